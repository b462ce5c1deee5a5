#pragma once

#include "Planauswertung.h"

#include <QWidget>

#include <array>
#include <cstdint>

class QLabel;
class Textfeld;
class WertungView;

/// How far the day's needs of the seventeen values are met, as the plan shows it: the share in
/// percent, its bar, and the sign of the verdict for those who can't tell the colours apart.
class Bedarfsgitter : public QWidget
{
    Q_OBJECT

public:
    explicit Bedarfsgitter(QWidget *parent = nullptr);

    /// Shows an evaluation as if it were the first: no bar keeps what another day left there.
    /// `energiebedarf` is what it was measured against, 0 while that is unknown.
    void zeige(const Planauswertung &auswertung, std::int32_t energiebedarf);

    const Textfeld &prozent(Naehrwert wert) const { return *m_zeilen[stelle(wert)].prozent; }
    const WertungView &balken(Naehrwert wert) const { return *m_zeilen[stelle(wert)].balken; }
    const QLabel &zeichen(Naehrwert wert) const { return *m_zeilen[stelle(wert)].zeichen; }

private:
    struct Zeile
    {
        QLabel *name = nullptr;
        Textfeld *prozent = nullptr;
        WertungView *balken = nullptr;
        QLabel *zeichen = nullptr;
    };

    void beschrifte();

    std::array<Zeile, anzahlNaehrwerte> m_zeilen;
};
