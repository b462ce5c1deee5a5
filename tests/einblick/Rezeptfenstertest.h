#pragma once

#include "Rezeptfenster.h"
#include "Wertungswahl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

inline const QString linsen = u"Linsen"_s;
inline const QString moehren = u"Möhren"_s;
inline const QString hausbrot = u"Hausbrot"_s;

inline Datenmodul satz(const QString &name, float kal, float kh)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    eines.setkh(kh);
    return eines;
}

inline Lebensmittelverzeichnis lebensmittel()
{
    return {{linsen, satz(linsen, 320, 45)},
            {moehren, satz(moehren, 40, 8)},
            {hausbrot, satz(hausbrot, 240, 48)}};
}

inline Stoffwissen wissen()
{
    const auto zusatz = [](const QString &gruppe, double zucker) {
        return Zusatzwerte{.gruppe = lebensmittelgruppe(gruppe),
                           .zucker = zucker,
                           .gesaettigt = 0,
                           .alkohol = 0,
                           .wasser = 10,
                           .harnsaeure = 20};
    };
    return Stoffwissen(
        Zusatztabelle{{linsen, zusatz(u"Hülsenfrüchte"_s, 1)}, {moehren, zusatz(u"Gemüse"_s, 6)}});
}

/// 200 g of lentils and 100 g of carrots: 640 + 40 = 680 kcal in 300 g.
inline Rezept linsensuppe(const QString &name = {})
{
    Rezept rezept;
    rezept.schluessel = name;
    rezept.zutaten = {{linsen, 200, lebensmittel()[linsen]},
                      {moehren, 100, lebensmittel()[moehren]}};
    return rezept;
}

/// What the tests share that put a dish together in its window.
class Rezeptfenstertest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::German); }
    void init()
    {
        m_eigene.clear();
        m_fragen.clear();
        m_antwort = 0;
        m_sichert = true;
        m_rezept.reset();
        m_satz.reset();
        m_portion.reset();
        m_portionBisher.reset();
    }
    void cleanup() { m_fenster.reset(); }

protected:
    void oeffne(const Rezept &rezept, const Rezepte &andere = {})
    {
        const Zutatentueren zutaten = {
            .suche =
                [](const QString &text) {
                    QList<Zutatenvorschlag> treffer;
                    for (const Datenmodul &eines : lebensmittel()) {
                        if (eines.name().contains(text, Qt::CaseInsensitive)) {
                            treffer << Zutatenvorschlag{eines.name() + u" (roh)"_s, eines.name(),
                                                        eines};
                        }
                    }
                    return treffer;
                },
            .masse =
                [](const QString &schluessel) {
                    return schluessel == linsen
                               ? QList<Mass>{{u"Tasse"_s, u"Tassen"_s, u"cup"_s, u"cups"_s, 180}}
                               : QList<Mass>();
                }};
        const Rezepttueren tueren = {
            .zutaten = zutaten,
            .istEingebaut = [](const QString &name) { return name == linsen || name == moehren; },
            .eigenes =
                [this](const QString &name) {
                    return m_eigene.contains(name) ? std::optional(m_eigene[name]) : std::nullopt;
                },
            .sichere =
                [this](const Rezept &was, const Datenmodul &gibt) {
                    m_rezept = was;
                    m_satz = gibt;
                    return m_sichert;
                },
            .portion =
                [this](const QString &name, std::optional<double> gramm,
                       std::optional<double> bisher) {
                    if (gramm) {
                        m_portion = {name, *gramm};
                    }
                    m_portionBisher = bisher;
                },
            .melde =
                [this](QWidget *, const Meldung &frage) {
                    m_fragen << frage;
                    return m_antwort;
                }};
        m_fenster = std::make_unique<Rezeptfenster>(rezept, wissen(), andere, tueren);
        m_fenster->show();
        QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    }
    template <typename Teil>
    Teil &teil(const char *name) const
    {
        return *m_fenster->findChild<Teil *>(QLatin1String(name));
    }
    QString wort(const char *name) const { return teil<QLabel>(name).text(); }
    QString wert(Kenngroesse groesse, int spalte = 1) const
    {
        return teil<QTableWidget>("werte").item(static_cast<int>(stelle(groesse)), spalte)->text();
    }
    QString menge(int reihe) const { return teil<QTableWidget>("zutaten").item(reihe, 1)->text(); }
    void tippe(const char *feld, const QString &text) const
    {
        auto &zeile = teil<QLineEdit>(feld);
        zeile.setFocus();
        zeile.selectAll();
        QTest::keyClick(&zeile, Qt::Key_Delete);
        zeile.insert(text); // the keys of a test have no umlauts
    }
    void druecke(const char *knopf) const
    {
        QTest::mouseClick(&teil<QPushButton>(knopf), Qt::LeftButton);
    }
    QWidget &zelleneditor() const
    {
        return *teil<QTableWidget>("zutaten").findChild<QLineEdit *>();
    }

    std::unique_ptr<Rezeptfenster> m_fenster;
    Lebensmittelverzeichnis m_eigene;
    QList<Meldung> m_fragen;
    int m_antwort = 0;
    bool m_sichert = true;
    std::optional<Rezept> m_rezept; ///< that was kept
    std::optional<Datenmodul> m_satz;
    std::optional<std::pair<QString, double>> m_portion;
    std::optional<double> m_portionBisher; ///< what one weighed before, in g
};
