#pragma once

#include "Planauswertung.h"
#include "Tagesrechnung.h"

#include <QWidget>

#include <array>

class QLabel;

/// How many rows of a day, and of the days in the mean, are suitable, neutral and unsuitable for
/// each of the four ratings. The count that leads is bold.
class Wertungszahlen : public QWidget
{
    Q_OBJECT

public:
    explicit Wertungszahlen(QWidget *parent = nullptr);

    /// Of what has no days the counts stay empty.
    void zeige(const Tagesrechnung &tag, const Tagesrechnung &mittel);

    /// What stands there of a rating, as it is read out: "Übergewicht, Tag: 3 geeignet, 2 neutral,
    /// 1 ungeeignet"; null where nothing is counted.
    QString worte(Wertung wertung, bool mittel) const;

private:
    static constexpr std::size_t spalten = 6; ///< three counts of the day, three of the mean

    void beschrifte();
    void zeigeZahlen(std::size_t zeile, const Tagesrechnung &rechnung, bool mittel);

    std::array<QLabel *, 2> m_gruppen = {};
    std::array<QLabel *, spalten> m_koepfe = {};
    std::array<QLabel *, anzahlWertungen> m_namen = {};
    std::array<std::array<QLabel *, spalten>, anzahlWertungen> m_zahlen = {};
};
