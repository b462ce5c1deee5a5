#include "Mengenangabe.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace {

using namespace Qt::StringLiterals;
using Fehler = Mengenangabe::Fehler;

/// Nobody eats more: whoever types it mistook the unit.
constexpr double meisteGramm = 100'000;

constexpr std::array<std::pair<char16_t, double>, 5> bruchzeichen = {
    {{u'½', 1.0 / 2}, {u'¼', 1.0 / 4}, {u'¾', 3.0 / 4}, {u'⅓', 1.0 / 3}, {u'⅔', 2.0 / 3}}};

/// What is below 1 is a part of one.
const QHash<QString, double> &zahlworte()
{
    static const QHash<QString, double> worte = {{u"ein"_s, 1},
                                                 {u"eine"_s, 1},
                                                 {u"einen"_s, 1},
                                                 {u"einem"_s, 1},
                                                 {u"einer"_s, 1},
                                                 {u"eines"_s, 1},
                                                 {u"a"_s, 1},
                                                 {u"an"_s, 1},
                                                 {u"one"_s, 1},
                                                 {u"zwei"_s, 2},
                                                 {u"two"_s, 2},
                                                 {u"drei"_s, 3},
                                                 {u"three"_s, 3},
                                                 {u"vier"_s, 4},
                                                 {u"four"_s, 4},
                                                 {u"fünf"_s, 5},
                                                 {u"five"_s, 5},
                                                 {u"sechs"_s, 6},
                                                 {u"six"_s, 6},
                                                 {u"sieben"_s, 7},
                                                 {u"seven"_s, 7},
                                                 {u"acht"_s, 8},
                                                 {u"eight"_s, 8},
                                                 {u"neun"_s, 9},
                                                 {u"nine"_s, 9},
                                                 {u"zehn"_s, 10},
                                                 {u"ten"_s, 10},
                                                 {u"elf"_s, 11},
                                                 {u"eleven"_s, 11},
                                                 {u"zwölf"_s, 12},
                                                 {u"twelve"_s, 12},
                                                 {u"halb"_s, 0.5},
                                                 {u"halbe"_s, 0.5},
                                                 {u"halben"_s, 0.5},
                                                 {u"halber"_s, 0.5},
                                                 {u"halbes"_s, 0.5},
                                                 {u"half"_s, 0.5},
                                                 {u"viertel"_s, 0.25},
                                                 {u"quarter"_s, 0.25},
                                                 {u"quarters"_s, 0.25},
                                                 {u"dreiviertel"_s, 0.75},
                                                 {u"anderthalb"_s, 1.5},
                                                 {u"eineinhalb"_s, 1.5},
                                                 {u"zweieinhalb"_s, 2.5}};
    return worte;
}

/// What people write instead of the names that measures usually have.
const QHash<QString, QString> &kurzformen()
{
    static const QHash<QString, QString> formen = {
        {u"essl"_s, u"el"_s},         {u"esslöffel"_s, u"el"_s},
        {u"esslöffeln"_s, u"el"_s},   {u"teel"_s, u"tl"_s},
        {u"teelöffel"_s, u"tl"_s},    {u"teelöffeln"_s, u"tl"_s},
        {u"tablespoon"_s, u"tbsp"_s}, {u"tablespoons"_s, u"tbsp"_s},
        {u"teaspoon"_s, u"tsp"_s},    {u"teaspoons"_s, u"tsp"_s},
        {u"stk"_s, u"stück"_s},       {u"stck"_s, u"stück"_s},
        {u"stücke"_s, u"stück"_s},    {u"gr"_s, u"g"_s},
        {u"port"_s, u"portion"_s},    {u"pc"_s, u"piece"_s},
        {u"pcs"_s, u"pieces"_s},      {u"millilitre"_s, u"ml"_s},
        {u"gramm"_s, u"g"_s},         {u"gram"_s, u"g"_s},
        {u"grams"_s, u"g"_s},         {u"kilo"_s, u"kg"_s},
        {u"kilogramm"_s, u"kg"_s},    {u"milliliter"_s, u"ml"_s},
        {u"liter"_s, u"l"_s},         {u"litre"_s, u"l"_s},
        {u"litres"_s, u"l"_s}};
    return formen;
}

const QHash<QString, double> &gewichte()
{
    static const QHash<QString, double> gramm = {{u"g"_s, 1}, {u"kg"_s, 1000}};
    return gramm;
}

const QHash<QString, double> &raummasse()
{
    static const QHash<QString, double> milliliter = {
        {u"ml"_s, 1}, {u"cl"_s, 10}, {u"dl"_s, 100}, {u"l"_s, 1000}};
    return milliliter;
}

/// What is typed and what it is compared with, made alike. The Swiss write no ß.
QString vereinheitlicht(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C)
        .toLower()
        .simplified()
        .replace(u"ß"_s, u"ss"_s);
}

Mengenergebnis falsch(Fehler fehler)
{
    return {{}, fehler};
}

/// The count in front of an amount, and what stands behind it.
struct Anzahl
{
    double wert = 1;
    bool zahl = false; ///< in digits without a fraction, which may stand for grams
    QString rest;
};

/// Without digits 0; too many of them are not finite.
double zahlwert(const QString &ziffern)
{
    if (ziffern.isEmpty()) {
        return 0;
    }
    bool gelungen = false;
    const double wert = QString(ziffern).replace(u',', u'.').toDouble(&gelungen);
    return gelungen ? wert : std::numeric_limits<double>::infinity();
}

double bruchwert(const QString &zeichen)
{
    for (const auto &[bruch, wert] : bruchzeichen) {
        if (zeichen == QChar(bruch)) {
            return wert;
        }
    }
    return 0;
}

/// Over nothing it is not finite.
double bruchwert(double zaehler, double nenner)
{
    return nenner > 0 ? zaehler / nenner : std::numeric_limits<double>::infinity();
}

/// Absent where the text does not begin with digits that make a number.
std::optional<Anzahl> leseZiffern(const QString &text)
{
    static const QRegularExpression form(
        u"^([+−-]?) ?(?:(?:(\\d+) )?(\\d+) ?[/⁄] ?(\\d+)|(\\d*) ?([½¼¾⅓⅔])|(\\d*[.,]?\\d+)) ?"_s);
    const QRegularExpressionMatch treffer = form.match(text);
    if (!treffer.hasMatch()) {
        return std::nullopt;
    }
    const auto teil = [&treffer](int nummer) {
        return zahlwert(treffer.captured(nummer));
    };
    Anzahl anzahl;
    anzahl.zahl = !treffer.captured(7).isEmpty();
    anzahl.wert = teil(2) + teil(5) + bruchwert(treffer.captured(6)) + teil(7);
    if (!treffer.captured(4).isEmpty()) {
        anzahl.wert += bruchwert(teil(3), teil(4));
    }
    const bool negativ = !treffer.captured(1).isEmpty() && treffer.captured(1) != u"+";
    anzahl.wert = negativ ? -anzahl.wert : anzahl.wert;
    anzahl.rest = text.mid(treffer.capturedEnd());
    return anzahl;
}

/// "zwei", "eine halbe", "half a", "drei viertel". Two words make a number only where one of them
/// is a part of one: "zwei drei" is none, and so its second word is left as the measure.
Anzahl leseWorte(const QString &text)
{
    const QString erstes = text.section(u' ', 0, 0);
    const QString zweites = text.section(u' ', 1, 1);
    if (!zahlworte().contains(erstes)) {
        return {1, false, text};
    }
    const double wert = zahlworte().value(erstes);
    const double weiterer = zahlworte().value(zweites);
    const bool zusammen = wert < 1 ? weiterer == 1 : weiterer > 0 && weiterer < 1;
    return zusammen ? Anzahl{wert * weiterer, false, text.section(u' ', 2)}
                    : Anzahl{wert, false, text.section(u' ', 1)};
}

/// Whether what should be a measure begins like a number.
bool beginntWieZahl(const QString &text)
{
    static const QRegularExpression zeichen(u"^[\\d.,/⁄½¼¾⅓⅔+−-]"_s);
    return text.contains(zeichen);
}

/// The measure's name as it is looked for, each word in its short form.
QString massname(const QString &text)
{
    QStringList worte = text.split(u' ', Qt::SkipEmptyParts);
    for (QString &wort : worte) {
        const QString ohnePunkt = wort.endsWith(u'.') ? wort.chopped(1) : wort;
        wort = kurzformen().value(ohnePunkt, ohnePunkt);
    }
    return worte.join(u' ');
}

/// The measures of which one of the four names passes, as it is written or in its short form: who
/// enters a measure may well call it "Esslöffel".
template <typename Bedingung>
QList<Mass> passende(const QList<Mass> &masse, const Bedingung &bedingung)
{
    QList<Mass> treffer;
    std::copy_if(masse.begin(), masse.end(), std::back_inserter(treffer), [&](const Mass &mass) {
        const QStringList namen = {mass.eines, mass.viele, mass.einesEn, mass.vieleEn};
        return std::any_of(namen.begin(), namen.end(), [&](const QString &geschrieben) {
            const QString name = vereinheitlicht(geschrieben);
            return bedingung(name) || bedingung(massname(name));
        });
    });
    return treffer;
}

/// The measures that may be meant. What is called just so goes before what only begins so.
QList<Mass> gemeinte(const QString &name, const QList<Mass> &masse)
{
    const auto genannte = [&masse](const QString &gesucht) {
        return passende(masse, [&](const QString &einer) { return einer == gesucht; });
    };
    QList<Mass> genaue = genannte(name);
    if (!genaue.isEmpty()) {
        return genaue;
    }
    if (!raummasse().contains(name)) {
        return passende(masse, [&](const QString &einer) { return einer.startsWith(name); });
    }
    QList<Mass> umgerechnet = genannte(u"ml"_s);
    for (Mass &mass : umgerechnet) {
        mass = {name, name, name, name, mass.gramm * raummasse().value(name), mass.quellen};
    }
    return umgerechnet;
}

/// The amount, if its weight is one that somebody may eat.
Mengenergebnis gewogen(double anzahl, const std::optional<Mass> &mass)
{
    const double gramm = mass ? anzahl * mass->gramm : anzahl;
    if (!(gramm <= meisteGramm)) {
        return falsch(Fehler::ZuViel);
    }
    const auto gerundet = static_cast<float>(gramm);
    return gerundet > 0 ? Mengenergebnis{Mengenangabe{anzahl, mass, gerundet}, {}}
                        : falsch(Fehler::Null);
}

/// With at most so many digits behind the comma, and no zeros at their end.
QString kurzeZahl(double zahl, int nachkommastellen, const QLocale &land)
{
    const QString komma = land.decimalPoint();
    const QString nullzeichen = land.zeroDigit();
    QString text = wertText(zahl, nachkommastellen, land);
    if (!text.contains(komma)) {
        return text;
    }
    while (text.endsWith(nullzeichen)) {
        text.chop(nullzeichen.size());
    }
    return text.endsWith(komma) ? text.chopped(komma.size()) : text;
}

/// "½", "1½", "2", "1,2".
QString anzahltext(double anzahl, const QLocale &land)
{
    constexpr double genauigkeit = 1e-9; // a third can't be held exactly
    const double ganze = std::floor(anzahl);
    for (const auto &[zeichen, wert] : bruchzeichen) {
        if (std::fabs(anzahl - ganze - wert) < genauigkeit) {
            return (ganze > 0 ? wertText(ganze, 0, land) : QString()) + QChar(zeichen);
        }
    }
    return kurzeZahl(anzahl, 2, land);
}

QString grammtext(double gramm, const QLocale &land)
{
    return kurzeZahl(gramm, 1, land) + u" g"_s;
}

} // namespace

Mengenergebnis leseMenge(const QString &text, const QList<Mass> &masse)
{
    const QString eingabe = vereinheitlicht(text);
    const Anzahl anzahl = leseZiffern(eingabe).value_or(leseWorte(eingabe));
    if (eingabe.isEmpty() || beginntWieZahl(anzahl.rest)) {
        return falsch(Fehler::KeineZahl);
    }
    if (!std::isfinite(anzahl.wert)) {
        return falsch(Fehler::Unendlich);
    }
    if (anzahl.wert <= 0) {
        return falsch(anzahl.wert < 0 ? Fehler::Negativ : Fehler::Null);
    }
    const QString name = massname(anzahl.rest);
    if (name.isEmpty()) {
        return anzahl.zahl ? gewogen(anzahl.wert, {}) : falsch(Fehler::MassUnbekannt);
    }
    if (gewichte().contains(name)) {
        return gewogen(anzahl.wert * gewichte().value(name), {});
    }
    const QList<Mass> moegliche = gemeinte(name, masse);
    if (moegliche.size() != 1) {
        return falsch(moegliche.isEmpty() ? Fehler::MassUnbekannt : Fehler::MassMehrdeutig);
    }
    return gewogen(anzahl.wert, moegliche.first());
}

QString mengentext(const Mengenangabe &angabe, Regelsprache sprache, const QLocale &land)
{
    if (!angabe.mass) {
        return grammtext(angabe.anzahl, land);
    }
    const bool deutsch = sprache == Regelsprache::Deutsch;
    const QString &eines = deutsch ? angabe.mass->eines : angabe.mass->einesEn;
    const QString &viele = deutsch ? angabe.mass->viele : angabe.mass->vieleEn;
    return anzahltext(angabe.anzahl, land) + u' ' + (angabe.anzahl > 1 ? viele : eines);
}

QString mengentextMitGramm(const Mengenangabe &angabe, Regelsprache sprache, const QLocale &land)
{
    const QString text = mengentext(angabe, sprache, land);
    return angabe.mass ? u"%1 (%2)"_s.arg(text, grammtext(angabe.gramm, land)) : text;
}

QString fehlertext(Mengenangabe::Fehler fehler)
{
    static const std::array<std::pair<Fehler, const char *>, 7> texte = {
        {{Fehler::KeineZahl, QT_TRANSLATE_NOOP("Mahlberg", "Das ist keine Mengenangabe.")},
         {Fehler::MassUnbekannt,
          QT_TRANSLATE_NOOP("Mahlberg", "Dieses Lebensmittel hat kein solches Maß.")},
         {Fehler::MassMehrdeutig,
          QT_TRANSLATE_NOOP("Mahlberg", "So beginnen mehrere Maße dieses Lebensmittels.")},
         {Fehler::Negativ, QT_TRANSLATE_NOOP("Mahlberg", "Die Menge darf nicht negativ sein.")},
         {Fehler::Null, QT_TRANSLATE_NOOP("Mahlberg", "Die Menge muss mehr als null sein.")},
         {Fehler::Unendlich, QT_TRANSLATE_NOOP("Mahlberg", "Diese Menge ist keine endliche Zahl.")},
         {Fehler::ZuViel, QT_TRANSLATE_NOOP("Mahlberg", "Mehr als 100 kg sind nicht möglich.")}}};
    const auto *const stelle = std::find_if(
        texte.begin(), texte.end(), [fehler](const auto &zeile) { return zeile.first == fehler; });
    return localizedString(QString::fromUtf8(stelle->second));
}
