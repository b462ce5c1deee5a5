#pragma once

#include "Verlaufsdaten.h"
#include "Verlaufsmaler.h"
#include "Zeichenansicht.h"

/// How a client's weight, body mass index or waist went, in front of the band where it should lie.
/// Its tool tip names the source of the band.
class Verlaufsbild : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit Verlaufsbild(QWidget *parent = nullptr);

    /// Shows one measure of a person with the band that holds today.
    void setze(const Person &person, const QList<Besuch> &besuche, Messgroesse was,
               const QDate &heute);
    const Verlaufsdaten &daten() const { return m_daten; }

    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    /// The course in sentences, see `verlaufInWorten`.
    QString beschreibung() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    QSize groesse(int zeichen, int zeilen) const;

    Verlaufsdaten m_daten;
};
