#pragma once

#include "Plansummen.h"
#include "Tabellenmodell.h"

/// The two rows below the plan's table: what its columns add up to, and what is left of a day's
/// need. What a number means beyond its column is said in words, by tool tips and to screen
/// readers.
class Summenzeilen : public Tabellenquelle
{
public:
    /// The sums from now on. `errechnet` is the energy that the evaluation goes by, in kcal.
    void setzeSummen(const Plansummen &summen, double errechnet);

    int numberOfRows() const override;
    QString objectValue(const QString &spalte, int zeile) override;
    QString zeilenname(int zeile) override;
    Zellenbild willDisplayCell(const QString &spalte, int zeile, const QString &wert) override;

private:
    QString summenwort() const;
    QString restwort(Naehrwert wert) const;
    QString erklaerung(const QString &spalte, int zeile) const;

    Plansummen m_summen;
    double m_errechnet = 0;
};
