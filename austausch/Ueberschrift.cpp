#include "Ueberschrift.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;
using Art = Spaltensinn::Art;
using enum Naehrwert;

namespace {

/// The words under which a value goes, in small letters without accents.
struct Wertworte
{
    Naehrwert wert;
    const char *worte;
};

constexpr Wertworte wertworte[] = {
    {kal, "energie|energy|brennwert|energiewert|energiegehalt|kalorien|calories"},
    {protein, "protein|proteine|proteins|eiweiss|eiweisse|prot|ew"},
    {fett, "fett|fette|fat|fats|lipide|lipids"},
    {kh, "kohlenhydrate|kohlenhydrat|kohlehydrate|carbohydrate|carbohydrates|carbs|kh"},
    {bs, "ballaststoffe|ballaststoff|nahrungsfasern|nahrungsfaser|fibre|fiber|fibres|dietary fibre|"
         "dietary fiber|bs"},
    {chol, "cholesterin|cholesterol|chol"},
    {na, "natrium|sodium|na"},
    {ka, "kalium|potassium|ka|k"},
    {ca, "calcium|kalzium|ca"},
    {ph, "phosphat|phosphor|phosphate|phosphorus|ph|p"},
    {ma, "magnesium|ma"},
    {fe, "eisen|iron|fe"},
    {vita, "vitamin a|vit a|vita|retinol"},
    {b1, "vitamin b1|vit b1|vitb1|b1|thiamin|thiamine|vitamin b1 thiamin|thiamin vitamin b1"},
    {b2, "vitamin b2|vit b2|vitb2|b2|riboflavin|vitamin b2 riboflavin|riboflavin vitamin b2"},
    {b6, "vitamin b6|vit b6|vitb6|b6|pyridoxin|pyridoxine|vitamin b6 pyridoxin"},
    {vitc, "vitamin c|vit c|vitc|ascorbinsaeure|ascorbic acid|vitamin c ascorbinsaeure"},
};

constexpr const char *salzworte = "salz|salt|kochsalz|speisesalz|salzgehalt";

struct Wertungsworte
{
    Wertung wertung;
    const char *worte;
};

constexpr Wertungsworte wertungsworte[] = {
    {Wertung::uebergewicht, "uebergewicht|adipositas|overweight|obesity|gew"},
    {Wertung::diabetes, "diabetes|diab"},
    {Wertung::gicht, "gicht|gout"},
    {Wertung::hkk, "hkk|herz und kreislauf|herz kreislauf|herzkreislauf|heart and circulation|"
                   "cardiovascular|cardiovascular disease"},
};

constexpr const char *namensworte =
    "name|lebensmittel|lebensmittelname|bezeichnung|produkt|produktname|artikel|speise|food|"
    "food name|product|product name|item|description";

constexpr const char *portionsworte =
    "portion|portionsgewicht|portionsgroesse|gewicht portion|portion size|portion weight|"
    "serving|serving size|serving weight|gewicht der portion|weight of portion|"
    "weight of the portion";

/// Words that change nothing about what is meant.
constexpr const char *fuellworte =
    "gesamt|total|gehalt|content|in|verwertbar|verwertbare|verfuegbar|verfuegbare|available|"
    "durchschnittlich";

QStringList liste(const char *worte)
{
    return QString::fromLatin1(worte).split(u'|');
}

QHash<QString, Spaltensinn> woerterbuch()
{
    QHash<QString, Spaltensinn> buch;
    const auto trageEin = [&buch](const char *worte, const Spaltensinn &sinn) {
        for (const QString &wort : liste(worte)) {
            buch.insert(wort, sinn);
        }
    };
    for (const auto &[wert, worte] : wertworte) {
        trageEin(worte, {.art = Art::Wert, .wert = wert});
    }
    trageEin(salzworte, {.art = Art::Wert, .wert = na, .mass = Lesemass::GrammSalz});
    for (const auto &[wertung, worte] : wertungsworte) {
        trageEin(worte, {.art = Art::Wertung, .wertung = wertung});
    }
    trageEin(namensworte, {.art = Art::Name});
    trageEin(portionsworte, {.art = Art::Portion});
    return buch;
}

const QHash<QString, Lesemass> &masszeichen()
{
    static const QHash<QString, Lesemass> zeichen = {
        {u"kcal"_s, Lesemass::Kilokalorie},
        {u"kilokalorien"_s, Lesemass::Kilokalorie},
        {u"kj"_s, Lesemass::Kilojoule},
        {u"kilojoule"_s, Lesemass::Kilojoule},
        {u"g"_s, Lesemass::Gramm},
        {u"gramm"_s, Lesemass::Gramm},
        {u"gram"_s, Lesemass::Gramm},
        {u"grams"_s, Lesemass::Gramm},
        {u"mg"_s, Lesemass::Milligramm},
        {u"milligramm"_s, Lesemass::Milligramm},
        {u"µg"_s, Lesemass::Mikrogramm},
        {u"\u03BCg"_s, Lesemass::Mikrogramm},
        {u"ug"_s, Lesemass::Mikrogramm},
        {u"mcg"_s, Lesemass::Mikrogramm},
        {u"mikrogramm"_s, Lesemass::Mikrogramm},
    };
    return zeichen;
}

/// In small letters, without accents, parted into words by whatever else stands there.
QString vereinfacht(const QString &text)
{
    QString einfach = text.toLower();
    einfach.replace(u"ä"_s, u"ae"_s).replace(u"ö"_s, u"oe"_s).replace(u"ü"_s, u"ue"_s);
    einfach.replace(u"ß"_s, u"ss"_s);
    static const QRegularExpression trenner(u"[^\\w%µ\u03BC]+|_"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    return einfach.replace(trenner, u" "_s).trimmed();
}

/// Takes "je 100 g" out of a heading.
void streicheHundert(QString &text)
{
    static const QRegularExpression hundert(
        u"\\b(?:(?:je|pro|per|in|auf|for|fuer) )?100 ?(?:g|gramm|gram|grams)\\b"_s);
    text = text.replace(hundert, u" "_s).simplified();
}

/// Takes "je Portion" out of a heading; true when it was there.
bool streichePortion(QString &text)
{
    static const QRegularExpression portion(
        u"\\b(?:je|pro|per|a|each) (?:portion|serving|stueck|piece)\\b"_s);
    const QString vorher = text;
    text = text.replace(portion, u" "_s).simplified();
    return text != vorher.simplified();
}

/// Takes the unit out of the words; absent where there is none or more than one.
std::optional<Lesemass> streicheMass(QStringList &worte, bool &eindeutig)
{
    std::optional<Lesemass> mass;
    eindeutig = true;
    QStringList uebrige;
    for (const QString &wort : std::as_const(worte)) {
        const auto gefunden = masszeichen().constFind(wort);
        if (gefunden == masszeichen().constEnd()) {
            uebrige << wort;
        } else {
            eindeutig &= !mass || *mass == *gefunden;
            mass = *gefunden;
        }
    }
    worte = uebrige;
    return mass;
}

/// The meaning in this unit; nothing where the value can't be given in it.
Spaltensinn imMass(Spaltensinn sinn, std::optional<Lesemass> mass)
{
    if (sinn.art == Art::Portion) {
        return mass.value_or(Lesemass::Gramm) == Lesemass::Gramm ? sinn : Spaltensinn();
    }
    if (sinn.art != Art::Wert) {
        return mass ? Spaltensinn() : sinn;
    }
    const bool salz = sinn.mass == Lesemass::GrammSalz;
    if (salz) {
        return mass.value_or(Lesemass::Gramm) == Lesemass::Gramm ? sinn : Spaltensinn();
    }
    for (const Spaltensinn &moeglich : alleSpaltensinne()) {
        const bool passt = mass ? moeglich.mass == *mass : istEigenesMass(moeglich);
        if (moeglich.gleichesZiel(sinn) && passt) {
            return moeglich;
        }
    }
    return {};
}

} // namespace

Ueberschrift liesUeberschrift(const QString &text)
{
    static const QHash<QString, Spaltensinn> buch = woerterbuch();
    static const QSet<QString> fuellung = [] {
        const QStringList worte = liste(fuellworte);
        return QSet<QString>(worte.begin(), worte.end());
    }();
    // "Mg" is the sign of magnesium and "mg" a unit; only the first word can be the sign.
    static const QRegularExpression magnesium(u"^\\s*Mg\\b"_s);
    QString worteText = vereinfacht(QString(text).replace(magnesium, u"magnesium"_s));
    streicheHundert(worteText);
    Ueberschrift ergebnis;
    ergebnis.jePortion = streichePortion(worteText);
    QStringList worte = worteText.split(u' ', Qt::SkipEmptyParts);
    bool eindeutig = true;
    const std::optional<Lesemass> mass = streicheMass(worte, eindeutig);
    worte.removeIf([](const QString &wort) { return fuellung.contains(wort); });
    const bool nurEnergie =
        worte.isEmpty() && (mass == Lesemass::Kilokalorie || mass == Lesemass::Kilojoule);
    const QString wort = nurEnergie ? u"energie"_s : worte.join(u' ');
    ergebnis.sinn = eindeutig ? imMass(buch.value(wort), mass) : Spaltensinn();
    return ergebnis;
}
