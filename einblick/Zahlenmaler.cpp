#include "Zahlenmaler.h"

#include "Textfarbe.h"
#include "Zahlenmodell.h"
#include "Zellengrund.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr int luft = 6; ///< around the lines, so that rows stand apart

struct Zeichen
{
    const char16_t *zeichen;
    Textfarbe farbe;
};

/// In the order of `Grenzurteil`.
constexpr std::array<Zeichen, 4> alleZeichen = {{
    {u"", Textfarbe::Standard},
    {u"✓", Textfarbe::Gruen},
    {u"✗", Textfarbe::Rot},
    {u"?", Textfarbe::Standard},
}};

const Zeichen &zeichenFuer(Grenzurteil urteil)
{
    return alleZeichen.at(static_cast<std::size_t>(urteil));
}

/// How far the limits stand behind the names, so that there is room for a sign.
int einzug(const QFontMetrics &schrift)
{
    int breite = 0;
    for (const Zeichen &eines : alleZeichen) {
        breite = std::max(breite, schrift.horizontalAdvance(QString::fromUtf16(eines.zeichen)));
    }
    return breite + luft;
}

QList<Zahlenmodell::Zeile> zeilen(const QModelIndex &index)
{
    return index.data(Zahlenmodell::zeilenrolle).value<QList<Zahlenmodell::Zeile>>();
}

int vorspann(const Zahlenmodell::Zeile &zeile, const QFontMetrics &schrift)
{
    return zeile.istGrenze ? einzug(schrift) : 0;
}

/// How high a line becomes within so much width.
int hoehe(const QFontMetrics &schrift, const QString &text, int breite)
{
    const QRect platz(0, 0, std::max(1, breite), QWIDGETSIZE_MAX);
    return schrift.boundingRect(platz, Qt::TextWordWrap | Qt::AlignLeft, text).height();
}

} // namespace

QString Zahlenmaler::zeichen(Grenzurteil urteil)
{
    return QString::fromUtf16(zeichenFuer(urteil).zeichen);
}

int Zahlenmaler::breiteFuer(int text)
{
    return text + 2 * luft + 1; // letters may lean over
}

void Zahlenmaler::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    QStyleOptionViewItem grund = option;
    initStyleOption(&grund, index);
    Zellengrund::male(grund, *painter);

    const bool gewaehlt = (option.state & QStyle::State_Selected) != 0;
    const QColor schrift = Zellengrund::schrift(option);
    const Qt::Alignment seite =
        index.column() == Zahlenmodell::Menge ? Qt::AlignRight : Qt::AlignLeft;
    const QRect platz = option.rect.adjusted(luft, luft, -luft, -luft);
    painter->save();
    painter->setFont(option.font);
    int oben = platz.top();
    for (const Zahlenmodell::Zeile &zeile : zeilen(index)) {
        const int vorne = vorspann(zeile, option.fontMetrics);
        const int hoch = hoehe(option.fontMetrics, zeile.text, platz.width() - vorne);
        const Textfarbe farbe = zeichenFuer(zeile.urteil).farbe;
        painter->setPen(
            farbe == Textfarbe::Standard || gewaehlt ? schrift : farbeFuer(farbe, option.palette));
        painter->drawText(QPoint(platz.left(), oben + option.fontMetrics.ascent()),
                          zeichen(zeile.urteil));
        painter->setPen(schrift);
        painter->drawText(QRect(platz.left() + vorne, oben, platz.width() - vorne, hoch),
                          static_cast<int>(Qt::TextWordWrap | seite), zeile.text);
        oben += hoch;
    }
    painter->restore();
}

QSize Zahlenmaler::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QFontMetrics &schrift = option.fontMetrics;
    int laengste = 0;
    int hoch = 0;
    for (const Zahlenmodell::Zeile &zeile : zeilen(index)) {
        const int vorne = vorspann(zeile, schrift);
        laengste = std::max(laengste, vorne + schrift.horizontalAdvance(zeile.text));
        hoch += hoehe(schrift, zeile.text, option.rect.width() - 2 * luft - vorne);
    }
    return {breiteFuer(laengste), hoch + 2 * luft};
}
