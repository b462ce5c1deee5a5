#include "Planmodulprint.h"

#include "Drucktuer.h"
#include "Ganzzahl.h"
#include "Schriftsatz.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

enum Form { detailliert = 1, einfach = 2 };

/// Heading and totals stand in the rows below the foods.
constexpr qsizetype zeilenDarunter = 9;

/// By so much, in points, the pages of the detailed list begin above their first row.
constexpr double kopfraum = 25;

constexpr int gross = 20;
constexpr int mittel = 12;
constexpr int klein = 5;
constexpr int gesamtgroesse = 7;

/// From one entry of a row to the next; the heads and totals stand a little to the left of the
/// rows of the detailed list.
namespace Abstand {
constexpr double einfachName = 20;
constexpr double einfachMenge = 260;
constexpr double einfachEnergie = 230;
constexpr double name = 12;
constexpr double menge = 94;
constexpr double mengenkopf = 82;
constexpr double zahl = 20;
} // namespace Abstand

struct Naehrstoffspalte
{
    Planmodulprint::Zahlen Planmodulprint::*werte;
    const char *kopf; ///< key into the string table
};

constexpr std::array<Naehrstoffspalte, Planmodulprint::anzahlNaehrstoffe> naehrstoffspalten = {{
    {&Planmodulprint::prot, QT_TRANSLATE_NOOP("Mahlberg", "Prot")},
    {&Planmodulprint::fet, QT_TRANSLATE_NOOP("Mahlberg", "Fett")},
    {&Planmodulprint::kh, QT_TRANSLATE_NOOP("Mahlberg", "KH")},
    {&Planmodulprint::bs, QT_TRANSLATE_NOOP("Mahlberg", "BS")},
    {&Planmodulprint::chol, QT_TRANSLATE_NOOP("Mahlberg", "Chol")},
    {&Planmodulprint::na, QT_TRANSLATE_NOOP("Mahlberg", "Na")},
    {&Planmodulprint::ka, QT_TRANSLATE_NOOP("Mahlberg", "Ka")},
    {&Planmodulprint::ca, QT_TRANSLATE_NOOP("Mahlberg", "Ca")},
    {&Planmodulprint::ph, QT_TRANSLATE_NOOP("Mahlberg", "Ph")},
    {&Planmodulprint::ma, QT_TRANSLATE_NOOP("Mahlberg", "Mg")},
    {&Planmodulprint::fe, QT_TRANSLATE_NOOP("Mahlberg", "Fe")},
    {&Planmodulprint::va, QT_TRANSLATE_NOOP("Mahlberg", "VitA")},
    {&Planmodulprint::vb1, QT_TRANSLATE_NOOP("Mahlberg", "VitB1")},
    {&Planmodulprint::vb2, QT_TRANSLATE_NOOP("Mahlberg", "VitB2")},
    {&Planmodulprint::vb6, QT_TRANSLATE_NOOP("Mahlberg", "VitB6")},
    {&Planmodulprint::vc, QT_TRANSLATE_NOOP("Mahlberg", "VitC")},
}};

struct Wertungsspalte
{
    QStringList Planmodulprint::*texte;
    double abstand;
    const char *kopf; ///< key into the string table
    double kopfabstand;
};

constexpr std::array<Wertungsspalte, anzahlWertungen> wertungsspalten = {{
    {&Planmodulprint::uebergew, 45, QT_TRANSLATE_NOOP("Mahlberg", "Ueberg."), 35},
    {&Planmodulprint::diabet, 30, QT_TRANSLATE_NOOP("Mahlberg", "Diabetes"), 30},
    {&Planmodulprint::gich, 30, QT_TRANSLATE_NOOP("Mahlberg", "Gicht"), 35},
    {&Planmodulprint::hk, 30, QT_TRANSLATE_NOOP("Mahlberg", "HKK"), 25},
}};

QString uebersetzt(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

QString blanks(int anzahl)
{
    return QString(anzahl, u' ');
}

QString mitEinheit(std::int32_t zahl, QLatin1String einheit)
{
    return QString::number(zahl) + u' ' + einheit;
}

std::int32_t gramm(float menge)
{
    return ganzzahl(static_cast<double>(menge));
}

std::int32_t summe(const Planmodulprint::Zahlen &werte)
{
    return ganzzahl(std::accumulate(werte.begin(), werte.end(), std::int64_t{0}));
}

std::int32_t summe(const QList<float> &mengen)
{
    return ganzzahl(
        std::accumulate(mengen.begin(), mengen.end(), std::int64_t{0},
                        [](std::int64_t bisher, float menge) { return bisher + gramm(menge); }));
}

} // namespace

Planmodulprint::Planmodulprint(const QStringList &namen, const QList<float> &gramm,
                               const Zahlen &energien, std::int32_t soll, std::int32_t form,
                               const QPageLayout &printInfo)
    : lebensmittel(namen)
    , mengen(gramm)
    , kals(energien)
    , sollkal(soll)
    , checker(form)
    , m_printInfo(printInfo)
    , m_schriftsatz(std::make_shared<Schriftsatz>())
{
    const QSizeF papier = printInfo.fullRect(QPageLayout::Point).size();
    pages = static_cast<std::int32_t>((namen.size() + zeilenDarunter + peoplePerPage - 1) /
                                      peoplePerPage);
    rectHeight = static_cast<float>(papier.height()) / static_cast<float>(peoplePerPage);
    m_bounds = QRectF(0, 0, papier.width(), papier.height() * pages);
}

Planmodulprint Planmodulprint::initWithPeople(const QStringList &lebensmittel,
                                              const QList<float> &mengen, const Zahlen &kals,
                                              std::int32_t sollkal, const QPageLayout &printInfo)
{
    return {lebensmittel, mengen, kals, sollkal, einfach, printInfo};
}

Planmodulprint Planmodulprint::initWithPeople2(
    const QStringList &lebensmittel, const QList<float> &mengen, const Zahlen &kals,
    std::int32_t sollkal, const std::array<Zahlen, anzahlNaehrstoffe> &naehrstoffe,
    const std::array<QStringList, anzahlWertungen> &bewertungen, const QPageLayout &printInfo)
{
    Planmodulprint liste(lebensmittel, mengen, kals, sollkal, detailliert, printInfo);
    for (std::size_t i = 0; i < naehrstoffspalten.size(); ++i) {
        liste.*naehrstoffspalten[i].werte = naehrstoffe[i];
    }
    for (std::size_t i = 0; i < wertungsspalten.size(); ++i) {
        liste.*wertungsspalten[i].texte = bewertungen[i];
    }
    return liste;
}

QRectF Planmodulprint::rectForPage(int n) const
{
    const double hoehe = peoplePerPage * static_cast<double>(rectHeight);
    const double unten = m_bounds.y() + m_bounds.height() - n * hoehe;
    return {m_bounds.x(), unten + (checker == detailliert ? kopfraum : 0), m_bounds.width(), hoehe};
}

QRectF Planmodulprint::rectForPerson(int n) const
{
    const double hoehe = static_cast<double>(rectHeight);
    const double unten = m_bounds.y() + m_bounds.height() - (n + 1) * hoehe;
    return {m_bounds.x(), unten, m_bounds.width(), hoehe};
}

QRectF Planmodulprint::rectForPerson2(int n) const
{
    constexpr double breite = 15;
    QRectF rect = rectForPerson(n);
    rect.setWidth(breite);
    return rect;
}

void Planmodulprint::drawRect(QPainter &maler, const QRectF &rect) const
{
    if (checker == einfach) {
        zeichneEinfacheListe(maler, rect);
    } else if (checker == detailliert) {
        zeichneDetaillierteListe(maler, rect);
    }
}

void Planmodulprint::drawRectb(QPainter &maler) const
{
    maler.fillRect(vonOben(m_bounds), Qt::green);
}

void Planmodulprint::maleSeite(QPainter &maler, int n) const
{
    const QRectF seite = vonOben(rectForPage(n));
    maler.save();
    passeEin(maler, QRectF(QPointF(), m_printInfo.fullRect(QPageLayout::Point).size()),
             m_printInfo.paintRect(QPageLayout::Point));
    maler.translate(-seite.topLeft());
    maler.setClipRect(seite, Qt::IntersectClip);
    drawRect(maler, rectForPage(n));
    maler.restore();
}

/// The same place in the painter's coordinates, which run from the view's top downwards.
QRectF Planmodulprint::vonOben(const QRectF &rect) const
{
    const double oben = m_bounds.y() + m_bounds.height() - (rect.y() + rect.height());
    return {rect.x(), oben, rect.width(), rect.height()};
}

QList<Planmodulprint::Eintrag> Planmodulprint::einfacheZeile(qsizetype i) const
{
    return {
        {Abstand::einfachName, localizedString(lebensmittel[i]) + u' '},
        {Abstand::einfachMenge, mitEinheit(gramm(mengen.value(i)), QLatin1String("gr "))},
        {Abstand::einfachEnergie, mitEinheit(kals.value(i), QLatin1String("kcal "))},
    };
}

void Planmodulprint::zeichneEinfacheListe(QPainter &maler, const QRectF &rect) const
{
    const qsizetype n = lebensmittel.size();
    const auto [von, bis] = lebensmittelIn(rect);
    for (qsizetype i = von; i < bis; ++i) {
        zeichneZeile(maler, i, {mittel, Qt::black}, einfacheZeile(i));
    }
    if (bis < n) {
        return; // what else there is stands below the last food
    }
    const QString anfang = blanks(5);
    const QString kopf = anfang + uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel")) +
                         blanks(21) + uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Gramm")) +
                         blanks(29) + uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Kalorien"));
    const QString gesamt = anfang + uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Gesamt")) +
                           blanks(31) + mitEinheit(summe(mengen), QLatin1String("gr")) +
                           blanks(29) + mitEinheit(summe(kals), QLatin1String("kcal"));
    const QString soll = anfang + uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Soll")) + blanks(79) +
                         mitEinheit(sollkal, QLatin1String("kcal"));
    const std::pair<qsizetype, QString> darunter[] = {
        {n + 1, kopf}, {n + 4, gesamt}, {n + 5, soll}};
    for (const auto &[zeile, text] : darunter) {
        if (liegtIn(rect, zeile)) {
            zeichneZeile(maler, zeile, {gross, Qt::blue}, {{0, text}});
        }
    }
}

QList<Planmodulprint::Eintrag> Planmodulprint::detaillierteZeile(qsizetype i) const
{
    QList<Eintrag> eintraege = {
        {Abstand::name, localizedString(lebensmittel[i]) + u' '},
        {Abstand::menge, mitEinheit(gramm(mengen.value(i)), QLatin1String("gr "))},
        {Abstand::zahl, mitEinheit(kals.value(i), QLatin1String("kcal "))},
    };
    for (const Naehrstoffspalte &spalte : naehrstoffspalten) {
        const Zahlen &werte = this->*spalte.werte;
        eintraege << Eintrag{Abstand::zahl, mitEinheit(werte.value(i), QLatin1String("gr "))};
    }
    for (const Wertungsspalte &spalte : wertungsspalten) {
        eintraege << Eintrag{spalte.abstand, (this->*spalte.texte).value(i) + u' '};
    }
    return eintraege;
}

QList<Planmodulprint::Eintrag> Planmodulprint::spaltenkoepfe()
{
    const auto kopf = [](double abstand, const char *text) {
        return Eintrag{abstand, uebersetzt(text) + u' '};
    };
    QList<Eintrag> eintraege = {
        kopf(Abstand::name, QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel")),
        kopf(Abstand::mengenkopf, QT_TRANSLATE_NOOP("Mahlberg", "Gramm")),
        kopf(Abstand::zahl, QT_TRANSLATE_NOOP("Mahlberg", "Kcal")),
    };
    for (const Naehrstoffspalte &spalte : naehrstoffspalten) {
        eintraege << kopf(Abstand::zahl, spalte.kopf);
    }
    for (const Wertungsspalte &spalte : wertungsspalten) {
        eintraege << kopf(spalte.kopfabstand, spalte.kopf);
    }
    return eintraege;
}

QList<Planmodulprint::Eintrag> Planmodulprint::summen() const
{
    // "Gesamt" is written larger than the sums and so stands in the row apart from them.
    const auto eintrag = [](double abstand, std::int32_t zahl) {
        return Eintrag{abstand, QString::number(zahl) + u' '};
    };
    QList<Eintrag> eintraege = {eintrag(Abstand::name + Abstand::mengenkopf, summe(mengen)),
                                eintrag(Abstand::zahl, summe(kals))};
    for (const Naehrstoffspalte &spalte : naehrstoffspalten) {
        eintraege << eintrag(Abstand::zahl, summe(this->*spalte.werte));
    }
    return eintraege;
}

void Planmodulprint::zeichneDetaillierteListe(QPainter &maler, const QRectF &rect) const
{
    const qsizetype n = lebensmittel.size();
    const auto [von, bis] = lebensmittelIn(rect);
    for (qsizetype i = von; i < bis; ++i) {
        zeichneZeile(maler, i, {klein, Qt::black}, detaillierteZeile(i));
    }
    if (liegtIn(rect, n + 1)) {
        zeichneZeile(maler, n + 1, {klein, Qt::blue}, spaltenkoepfe());
    }
    if (liegtIn(rect, n + 3)) {
        const QString gesamt = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Gesamt")) + u' ';
        zeichneZeile(maler, n + 3, {gesamtgroesse, Qt::blue}, {{Abstand::name, gesamt}});
        zeichneZeile(maler, n + 3, {klein, Qt::blue}, summen());
    }
}

bool Planmodulprint::liegtIn(const QRectF &rect, qsizetype zeile) const
{
    return rectForPerson(static_cast<int>(zeile)).intersects(rect);
}

/// The foods whose rows lie in `rect`, from the first to behind the last. Thousands of rows are not
/// looked at for each of their pages: the first one is reckoned from the top of `rect`.
std::pair<qsizetype, qsizetype> Planmodulprint::lebensmittelIn(const QRectF &rect) const
{
    const qsizetype n = lebensmittel.size();
    const double darueber = m_bounds.y() + m_bounds.height() - (rect.y() + rect.height());
    qsizetype von = 0;
    if (rectHeight > 0) {
        const double vollstaendig = std::floor(darueber / static_cast<double>(rectHeight)) - 1;
        von = static_cast<qsizetype>(std::clamp(vollstaendig, 0.0, static_cast<double>(n)));
    }
    while (von < n && !liegtIn(rect, von)) {
        ++von;
    }
    qsizetype bis = von;
    while (bis < n && liegtIn(rect, bis)) {
        ++bis;
    }
    return {von, bis};
}

/// Draws the entries of a row. An entry's place ends where the next begins, the last one's at the
/// paper's edge.
void Planmodulprint::zeichneZeile(QPainter &maler, qsizetype zeile, Schrift schrift,
                                  const QList<Eintrag> &eintraege) const
{
    maler.setPen(schrift.farbe);
    QRectF platz = vonOben(rectForPerson(static_cast<int>(zeile)));
    for (qsizetype i = 0; i < eintraege.size(); ++i) {
        platz.setLeft(platz.left() + eintraege[i].abstand);
        platz.setRight(i + 1 < eintraege.size() ? platz.left() + eintraege[i + 1].abstand
                                                : m_bounds.right());
        m_schriftsatz->zeichne(maler, platz, schrift.groesse, eintraege[i].text);
    }
}
