#pragma once

#include "Textfarbe.h"
#include "Zielbereich.h"

#include <QString>
#include <QWidget>

/// How an amount stands to its range, as far as that can be said.
enum class Bereichsurteil {
    Keines, ///< there is no range, or nothing is to be judged
    Richtig,
    VielleichtRichtig, ///< right of what is known, and what is not known may be too much
    VielleichtZuWenig, ///< too little of what is known, and some is not known
    ZuWenig,
    ZuViel,
    Ueberhoeht, ///< above what should not be passed for long
};

/// The verdict on an amount that is known but for `unbekannt`, a part of all, 0 to 1.
Bereichsurteil beurteile(const Zielbereich &ziel, double menge, double unbekannt);

/// "zu wenig"; empty without a verdict.
QString urteilswort(Bereichsurteil urteil);

/// The colour of a verdict, the third way to say it.
Textfarbe urteilsfarbe(Bereichsurteil urteil);

/// An amount as a bar, against what a day should hold: the verdict's sign, the bar, a bracket over
/// the range and a bold mark at the upper level.
class Bereichsbalken : public QWidget
{
    Q_OBJECT

public:
    explicit Bereichsbalken(QWidget *parent = nullptr);

    /// Shows an amount in the unit of the range.
    void zeige(double menge, const Zielbereich &ziel, Bereichsurteil urteil);
    /// Shows the range alone: the amount is not known.
    void zeigeBereich(const Zielbereich &ziel);
    /// Shows nothing: there is no range.
    void leere();

    Bereichsurteil urteil() const { return m_urteil; }
    /// The verdict in one character: ✓ right, ? right as far as is known, ≈ maybe too little, ↓ too
    /// little, ↑ too much, ‼ above the upper level; empty without one.
    QString zeichen() const;
    /// For those who can't see it: "612 mg, zu wenig (mind. 950 mg)", in the user's language.
    QString beschreibung() const;
    /// Where an amount lies on the bar, 0 to 1; what is beyond its end lies there.
    double ort(double menge) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize groesse(int balkenbreite) const;
    void maleBalken(QPainter &painter, const QRectF &platz) const;
    void maleBereich(QPainter &painter, const QRectF &platz) const;

    std::optional<Zielbereich> m_ziel;
    std::optional<double> m_menge;
    Bereichsurteil m_urteil = Bereichsurteil::Keines;
};
