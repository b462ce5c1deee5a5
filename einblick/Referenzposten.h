#pragma once

#include "Bereichsbalken.h"

#include <QStringList>
#include <QWidget>

class Feldauskunft;
class QLabel;

/// What a row of the reference values says.
struct Postenangabe
{
    QString name;
    QString menge; ///< with its unit, or that it is not known
    /// What the bar shows; absent where nothing is to be kept.
    std::optional<Zielbereich> ziel = {};
    std::optional<double> wert = {}; ///< in the unit of the range; absent: not known
    Bereichsurteil urteil = Bereichsurteil::Keines;
    QString worte;        ///< below: the verdict, the range, how it is meant
    QStringList auskunft; ///< all that is to be known about it; empty: nothing more
};

/// One nutrient: its name, how much of it counts, the bar, and below in small type what a day
/// should hold. The mouse and the keyboard learn more about it.
class Referenzposten : public QWidget
{
    Q_OBJECT

public:
    explicit Referenzposten(const char *name, QWidget *parent = nullptr);

    void zeige(const Postenangabe &angabe);
    /// How wide the name and the amount are at least, so that the bars of all rows stand in line.
    void setSpalten(int namensbreite, int mengenbreite);
    QSize spaltenbedarf() const;

    const Bereichsbalken &balken() const { return *m_balken; }
    const QLabel &menge() const { return *m_menge; }
    const QLabel &worte() const { return *m_worte; }
    const QStringList &auskunft() const { return m_auskunft; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_name;
    QLabel *m_menge;
    Bereichsbalken *m_balken;
    QLabel *m_worte;
    QStringList m_auskunft;
    Feldauskunft *m_erklaerung;
};
