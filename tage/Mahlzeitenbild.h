#pragma once

#include "Mahlzeitenanteil.h"
#include "Zeichenansicht.h"

#include <optional>

/// How the energy of a day is spread over its meals: a bar for each, with a mark where the mean of
/// the days lies. Long names are cut off; the whole one stands in the tool tip of its line.
class Mahlzeitenbild : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit Mahlzeitenbild(QWidget *parent = nullptr);

    void zeige(const QList<Mahlzeitenanteil> &anteile);
    const QList<Mahlzeitenanteil> &anteile() const { return m_anteile; }

    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    /// Every meal in a sentence of its own.
    QString beschreibung() const override;
    /// What the tool tip says at this place; null where it says nothing.
    QString hinweisBei(const QPoint &ort) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    int zeilenhoehe() const;
    const Mahlzeitenbreiten &breiten() const;
    Mahlzeitenbreiten messe() const;
    QSize groesse(double namensbreite, double balkenbreite) const;
    void maleKopf(QPainter &maler, const QRectF &zeile) const;
    void maleZeile(QPainter &maler, const QRectF &zeile, const Mahlzeitenspalten &spalten,
                   const Mahlzeitenanteil &einer) const;

    QList<Mahlzeitenanteil> m_anteile;
    mutable std::optional<Mahlzeitenbreiten> m_breiten; ///< absent until they are measured anew
};
