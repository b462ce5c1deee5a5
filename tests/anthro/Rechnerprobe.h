#pragma once

#include "AnthroController.h"

#include <QList>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <utility>

/// What an action is sent by: a value and nothing else.
class Sender : public Wertehalter
{
public:
    explicit Sender(double zahl) { setDoubleValue(zahl); }
    explicit Sender(const QString &text) { setStringValue(text); }

protected:
    void wertGesetzt() override {}
};

/// A plan that writes down what it is told, in the order in which it is told.
class Planprobe : public Planmodul
{
public:
    Planprobe(Plantueren tueren, QStringList &rufe);

    void anthrouebergabe(int kilokalorien) override;
    void anthrouebergabe2(int kilokalorien) override;
    void anthrouebergabegewicht(float kilogramm) override;
    void anthrouebergabegroesse(float meter) override;

private:
    QStringList &m_rufe;
};

using Gemerktes = QList<std::pair<const char *, QVariant>>;

/// The calculator on its own, with settings in a folder that is thrown away and a plan that writes
/// down what it is told.
class Rechnerprobe
{
public:
    /// Starts with these settings, at a German desk.
    explicit Rechnerprobe(const Gemerktes &gemerktes = {});

    /// Starts with a client of 80 kg, 1.80 m, waist 71 cm and hip 86 cm, metric, and forgets what
    /// was told to the plan.
    static std::unique_ptr<Rechnerprobe> mitKlient();

    AnthroController *operator->() const { return m_rechner.get(); }
    AnthroController &rechner() const { return *m_rechner; }

    /// What the plan was told since the last call.
    QStringList rufe() { return std::exchange(m_rufe, {}); }

    QVariant gemerkt(const char *schluessel) const
    {
        return m_einstellungen->value(QLatin1String(schluessel));
    }
    QSettings &einstellungen() { return *m_einstellungen; }

    QStringList protokoll; ///< the lines of the system log
    int eigenePlaene = 0;  ///< how many plans the controller made

    /// What a field shows, with a plain blank before the unit.
    static QString text(const QLineEdit &feld);

private:
    QTemporaryDir m_ordner;
    QStringList m_rufe;
    std::unique_ptr<QSettings> m_einstellungen;
    std::unique_ptr<AnthroController> m_rechner;
};
