#include "Druckzeilen.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>

#include <algorithm>
#include <memory>
#include <numeric>

namespace {

/// Letters that are set apart, however little, are not joined: under a joined ff a search of the
/// PDF finds no "Stoffe".
constexpr double kaumSichtbar = 0.01;

constexpr double tabulator = 28;

using Satz = std::shared_ptr<QTextLayout>;

/// The text with one sign for each end of a line, whatever system it was typed on.
QString mitZeilenenden(QString text)
{
    static const QRegularExpression ende(QStringLiteral("\r\n|[\n\r\v\f\u2029]"));
    return text.replace(ende, QString(QChar::LineSeparator));
}

Satz setze(const Druckzelle &zelle)
{
    auto satz = std::make_shared<QTextLayout>(mitZeilenenden(zelle.text), druckfont(zelle.schrift));
    QTextOption art(zelle.amRechtenRand ? Qt::AlignRight : Qt::AlignLeft);
    art.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    art.setTabStopDistance(tabulator * druckfeinheit);
    satz->setTextOption(art);
    satz->setCacheEnabled(true);
    satz->beginLayout();
    for (QTextLine zeile = satz->createLine(); zeile.isValid(); zeile = satz->createLine()) {
        const double davor = satz->lineCount() > 1 ? zelle.haengend : 0;
        zeile.setLineWidth((zelle.breite - davor) * druckfeinheit);
        zeile.setPosition({davor * druckfeinheit, 0});
    }
    satz->endLayout();
    return satz;
}

/// The lines of this number, those of all texts that have so many.
Druckstreifen streifen(const QList<std::pair<double, Satz>> &saetze, int nummer)
{
    double hinauf = 0;
    double hinab = 0;
    for (const auto &[links, satz] : saetze) {
        if (nummer < satz->lineCount()) {
            hinauf = std::max(hinauf, satz->lineAt(nummer).ascent());
            hinab = std::max(hinab, satz->lineAt(nummer).descent());
        }
    }
    return {(hinauf + hinab) / druckfeinheit, [saetze, nummer, hinauf](QPainter &maler) {
                maler.scale(1.0 / druckfeinheit, 1.0 / druckfeinheit);
                maler.setPen(Qt::black);
                for (const auto &[links, satz] : saetze) {
                    if (nummer < satz->lineCount()) {
                        const QTextLine zeile = satz->lineAt(nummer);
                        zeile.draw(&maler, {links * druckfeinheit, hinauf - zeile.ascent()});
                    }
                }
            }};
}

/// The widest of the parts of a text.
double breiteste(const QStringList &teile, const Druckschrift &schrift)
{
    const QFontMetricsF masse(druckfont(schrift));
    double breite = 0;
    for (const QString &teil : teile) {
        breite = std::max(breite, masse.horizontalAdvance(teil));
    }
    return breite / druckfeinheit;
}

} // namespace

QFont druckfont(const Druckschrift &schrift)
{
    QFont helvetica(QStringLiteral("Helvetica"));
    helvetica.setPixelSize(static_cast<int>(schrift.groesse * druckfeinheit));
    helvetica.setBold(schrift.fett);
    helvetica.setStyleStrategy(QFont::PreferOutline);
    helvetica.setLetterSpacing(QFont::AbsoluteSpacing, kaumSichtbar * druckfeinheit);
    return helvetica;
}

Druckstreifenfolge gesetzt(const QList<Druckzelle> &zellen)
{
    QList<std::pair<double, Satz>> saetze;
    int anzahl = 0;
    for (const Druckzelle &zelle : zellen) {
        saetze.emplaceBack(zelle.links, setze(zelle));
        anzahl = std::max(anzahl, saetze.last().second->lineCount());
    }
    Druckstreifenfolge folge;
    for (int nummer = 0; nummer < anzahl; ++nummer) {
        folge << streifen(saetze, nummer);
    }
    return folge;
}

double textbreite(const QString &text, const Druckschrift &schrift)
{
    return breiteste(mitZeilenenden(text).split(QChar(QChar::LineSeparator)), schrift);
}

double wortbreite(const QString &text, const Druckschrift &schrift)
{
    return breiteste(text.simplified().split(QLatin1Char(' ')), schrift);
}

QString gekuerzt(const QString &text, const Druckschrift &schrift, double breite)
{
    return QFontMetricsF(druckfont(schrift))
        .elidedText(text.simplified(), Qt::ElideRight, breite * druckfeinheit);
}

double hoehe(const Druckstreifenfolge &folge)
{
    return std::accumulate(
        folge.begin(), folge.end(), 0.0,
        [](double bisher, const Druckstreifen &streifen) { return bisher + streifen.hoehe; });
}

Druckstreifen freiraum(double hoehe)
{
    return {hoehe};
}

Druckstreifen waagerechte(double breite, double dicke)
{
    return {dicke, [breite, dicke](QPainter &maler) {
                maler.fillRect(QRectF(0, 0, breite, dicke), Qt::black);
            }};
}

Druckstreifen verbunden(const Druckstreifen &oben, const Druckstreifen &unten)
{
    return {oben.hoehe + unten.hoehe, [oben, unten](QPainter &maler) {
                for (const Druckstreifen &einer : {oben, unten}) {
                    if (einer.male) {
                        maler.save();
                        einer.male(maler);
                        maler.restore();
                    }
                    maler.translate(0, einer.hoehe);
                }
            }};
}

Druckstreifenfolge nebeneinander(const Druckstreifenfolge &links, const Druckstreifenfolge &rechts)
{
    Druckstreifenfolge folge;
    for (qsizetype i = 0; i < std::max(links.size(), rechts.size()); ++i) {
        const QList<Druckstreifen> beide = {links.value(i), rechts.value(i)};
        folge << Druckstreifen{std::max(beide[0].hoehe, beide[1].hoehe), [beide](QPainter &maler) {
                                   for (const Druckstreifen &einer : beide) {
                                       if (einer.male) {
                                           maler.save();
                                           einer.male(maler);
                                           maler.restore();
                                       }
                                   }
                               }};
    }
    return folge;
}
