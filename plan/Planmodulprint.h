#pragma once

#include "Naehrwerte.h"

#include <QList>
#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <memory>
#include <utility>

class QPainter;
class Schriftsatz;

/// The pages that a plan's list is printed on. One view as wide as the paper holds all pages, the
/// first at its top; row after row runs down it, thirty to a page, and each page shows a part.
///
/// The coordinates are points with the origin at the bottom left: a rectangle's `y()` is its lower
/// edge, and `y() + height()` its upper one.
class Planmodulprint
{
public:
    using Zahlen = QList<std::int32_t>;

    /// The energy has a list of its own.
    static constexpr std::size_t anzahlNaehrstoffe = anzahlNaehrwerte - 1;

    /// The simple list: foods, grams, kilocalories, and the day's requirement below them.
    static Planmodulprint initWithPeople(const QStringList &lebensmittel,
                                         const QList<float> &mengen, const Zahlen &kals,
                                         std::int32_t sollkal, const QPageLayout &printInfo);

    /// The detailed list, with sixteen nutrients and four ratings for each food, both in the order
    /// of the record.
    static Planmodulprint
    initWithPeople2(const QStringList &lebensmittel, const QList<float> &mengen, const Zahlen &kals,
                    std::int32_t sollkal, const std::array<Zahlen, anzahlNaehrstoffe> &naehrstoffe,
                    const std::array<QStringList, anzahlWertungen> &bewertungen,
                    const QPageLayout &printInfo);

    // What stands in the rows. A list that is shorter than the foods is taken to go on with 0 or
    // with nothing.
    QStringList lebensmittel;
    QList<float> mengen; ///< grams; the digits behind the point are not printed
    Zahlen kals;
    Zahlen prot, fet, kh, bs, chol, na, ka, ca, ph, ma, fe, va, vb1, vb2, vb6, vc;
    QStringList uebergew, diabet, gich, hk;

    std::int32_t sollkal = 0;        ///< kcal per day; the simple list names it
    std::int32_t peoplePerPage = 30; ///< rows on a page
    std::int32_t pages = 0;
    float rectHeight = 0;     ///< height of a row
    std::int32_t checker = 0; ///< what the list is: 2 simple, 1 detailed

    struct Seitenbereich
    {
        int erste = 1;
        int anzahl = 0;
    };
    Seitenbereich knowsPageRange() const { return {1, pages}; }

    /// The whole view.
    QRectF bounds() const { return m_bounds; }
    /// The part that page n shows, counted from 1. In the detailed list it begins above the first
    /// row, which gives each page some room at its top.
    QRectF rectForPage(int n) const;
    /// The place of row n, counted from 0. There are rows beyond the last food, for what stands
    /// below the list.
    QRectF rectForPerson(int n) const;
    /// The beginning of row n.
    QRectF rectForPerson2(int n) const;

    /// Draws what lies in `rect`. The painter's origin is the view's top left corner, its unit the
    /// point.
    void drawRect(QPainter &maler, const QRectF &rect) const;
    /// Paints the whole view green, to see where it lies.
    void drawRectb(QPainter &maler) const;

    /// Draws page n on paper: the painter's origin is the paper's top left corner, its unit the
    /// point. With margins the page is shrunk so that it lies within them.
    void maleSeite(QPainter &maler, int n) const;

private:
    struct Eintrag
    {
        double abstand; ///< from the beginning of the entry before
        QString text;
    };
    struct Schrift
    {
        int groesse; ///< points
        Qt::GlobalColor farbe;
    };

    Planmodulprint(const QStringList &namen, const QList<float> &gramm, const Zahlen &energien,
                   std::int32_t soll, std::int32_t form, const QPageLayout &printInfo);

    QRectF vonOben(const QRectF &rect) const;
    void zeichneEinfacheListe(QPainter &maler, const QRectF &rect) const;
    void zeichneDetaillierteListe(QPainter &maler, const QRectF &rect) const;
    QList<Eintrag> einfacheZeile(qsizetype i) const;
    QList<Eintrag> detaillierteZeile(qsizetype i) const;
    static QList<Eintrag> spaltenkoepfe();
    QList<Eintrag> summen() const;
    std::pair<qsizetype, qsizetype> lebensmittelIn(const QRectF &rect) const;
    bool liegtIn(const QRectF &rect, qsizetype zeile) const;
    void zeichneZeile(QPainter &maler, qsizetype zeile, Schrift schrift,
                      const QList<Eintrag> &eintraege) const;

    QPageLayout m_printInfo;
    QRectF m_bounds;
    std::shared_ptr<Schriftsatz> m_schriftsatz; ///< also of the copies
};
