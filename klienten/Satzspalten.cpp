#include "Satzspalten.h"

#include "Aufzeichnungstext.h"
#include "Planpostentext.h"

#include <QCoreApplication>

#include <cmath>
#include <type_traits>

namespace {

// How a field's content is kept, kind by kind.

QVariant inWert(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}
bool ausWert(QString &ziel, const QVariant &wert)
{
    ziel = wert.toString();
    return wert.isNull() || wert.metaType().id() == QMetaType::QString;
}

QVariant inWert(bool ja)
{
    return ja ? 1 : 0;
}
bool ausWert(bool &ziel, const QVariant &wert)
{
    bool zahl = false;
    const int eins = wert.toInt(&zahl);
    ziel = eins == 1;
    return zahl && (eins == 0 || eins == 1);
}

QVariant inWert(double zahl)
{
    return zahl;
}
bool ausWert(double &ziel, const QVariant &wert)
{
    bool zahl = false;
    ziel = wert.toDouble(&zahl);
    return zahl && std::isfinite(ziel);
}

QVariant inWert(const QDate &tag)
{
    return tag.isValid() ? QVariant(tag.toString(Qt::ISODate))
                         : QVariant(QMetaType(QMetaType::QString));
}
bool ausWert(QDate &ziel, const QVariant &wert)
{
    ziel = QDate::fromString(wert.toString(), Qt::ISODate);
    return wert.isNull() || ziel.isValid();
}

QVariant inWert(const QList<Planposten> &posten)
{
    return QString::fromUtf8(postenAlsText(posten));
}
bool ausWert(QList<Planposten> &ziel, const QVariant &wert)
{
    const std::optional<QList<Planposten>> posten = postenAusText(wert.toString().toUtf8());
    ziel = posten.value_or(QList<Planposten>());
    return posten.has_value();
}

template <typename Zahl>
requires std::is_enum_v<Zahl> QVariant inWert(Zahl wahl)
{
    return static_cast<int>(wahl);
}
/// The last of the choices; most have three.
template <typename Zahl>
constexpr int letzteWahl = 2;
template <>
constexpr int letzteWahl<Aufzeichnungsart> = 1;

template <typename Zahl>
requires std::is_enum_v<Zahl>
bool ausWert(Zahl &ziel, const QVariant &wert)
{
    bool zahl = false;
    const int stelle = wert.toInt(&zahl);
    const bool gelesen = zahl && stelle >= 0 && stelle <= letzteWahl<Zahl>;
    ziel = gelesen ? static_cast<Zahl>(stelle) : Zahl();
    return gelesen;
}

template <typename Inhalt>
QVariant inWert(const std::optional<Inhalt> &inhalt)
{
    return inhalt ? inWert(*inhalt) : QVariant();
}
template <typename Inhalt>
bool ausWert(std::optional<Inhalt> &ziel, const QVariant &wert)
{
    ziel.reset();
    if (wert.isNull()) {
        return true;
    }
    Inhalt inhalt = {};
    const bool gelesen = ausWert(inhalt, wert);
    if (gelesen) {
        ziel = inhalt;
    }
    return gelesen;
}

/// The column of a field.
template <auto feld, typename Satz>
constexpr Satzspalte<Satz> spalte(const char *name, const char *beschriftung)
{
    return {name, beschriftung, [](const Satz &satz) { return inWert(satz.*feld); },
            [](Satz &satz, const QVariant &wert) {
                auto inhalt = satz.*feld;
                const bool gelesen = ausWert(inhalt, wert);
                if (gelesen) {
                    satz.*feld = inhalt;
                }
                return gelesen;
            }};
}

/// The column of one of the four conditions.
template <Wertung wertung>
constexpr Satzspalte<Person> leidenspalte(const char *name, const char *beschriftung)
{
    return {name, beschriftung,
            [](const Person &person) { return inWert(person.leiden[stelle(wertung)]); },
            [](Person &person, const QVariant &wert) {
                return ausWert(person.leiden[stelle(wertung)], wert);
            }};
}

template <auto feld>
constexpr auto von(const char *name, const char *beschriftung)
{
    return [=]<typename Satz, typename Inhalt>(Inhalt Satz::*) {
        return spalte<feld, Satz>(name, beschriftung);
    }(feld);
}

const std::array personenspalten = {
    von<&Person::name>("name", QT_TRANSLATE_NOOP("Mahlberg", "Name")),
    von<&Person::nummer>("nummer", QT_TRANSLATE_NOOP("Mahlberg", "Nummer")),
    von<&Person::geburt>("geburt", QT_TRANSLATE_NOOP("Mahlberg", "Geburtsdatum")),
    von<&Person::geschlecht>("geschlecht", QT_TRANSLATE_NOOP("Mahlberg", "Geschlecht")),
    von<&Person::umstand>("umstand", QT_TRANSLATE_NOOP("Mahlberg", "Schwanger oder stillend")),
    leidenspalte<Wertung::uebergewicht>("uebergewicht",
                                        QT_TRANSLATE_NOOP("Mahlberg", "Übergewicht")),
    leidenspalte<Wertung::diabetes>("diabetes", QT_TRANSLATE_NOOP("Mahlberg", "Diabetes")),
    leidenspalte<Wertung::gicht>("gicht", QT_TRANSLATE_NOOP("Mahlberg", "Gicht")),
    leidenspalte<Wertung::hkk>("hkk", QT_TRANSLATE_NOOP("Mahlberg", "Herz und Kreislauf")),
    von<&Person::notizen>("notizen", QT_TRANSLATE_NOOP("Mahlberg", "Notizen")),
    von<&Person::archiviert>("archiviert", QT_TRANSLATE_NOOP("Mahlberg", "Archiviert")),
};

const std::array besuchsspalten = {
    von<&Besuch::datum>("datum", QT_TRANSLATE_NOOP("Mahlberg", "Datum")),
    von<&Besuch::gewicht>("gewicht", QT_TRANSLATE_NOOP("Mahlberg", "Gewicht")),
    von<&Besuch::groesse>("groesse", QT_TRANSLATE_NOOP("Mahlberg", "Größe")),
    von<&Besuch::taille>("taille", QT_TRANSLATE_NOOP("Mahlberg", "Taille")),
    von<&Besuch::huefte>("huefte", QT_TRANSLATE_NOOP("Mahlberg", "Hüfte")),
    von<&Besuch::aktivitaet>("aktivitaet", QT_TRANSLATE_NOOP("Mahlberg", "Tätigkeit")),
    von<&Besuch::reduktion>("reduktion", QT_TRANSLATE_NOOP("Mahlberg", "Gewichtsreduktion")),
    von<&Besuch::sport>("sport", QT_TRANSLATE_NOOP("Mahlberg", "Sport")),
    von<&Besuch::sportdauer>("sportdauer", QT_TRANSLATE_NOOP("Mahlberg", "Sport am Tag")),
    von<&Besuch::notiz>("notiz", QT_TRANSLATE_NOOP("Mahlberg", "Notiz")),
};

const std::array planspalten = {
    von<&Planablage::titel>("titel", QT_TRANSLATE_NOOP("Mahlberg", "Titel")),
    von<&Planablage::datum>("datum", QT_TRANSLATE_NOOP("Mahlberg", "Datum")),
    von<&Planablage::notiz>("notiz", QT_TRANSLATE_NOOP("Mahlberg", "Notiz")),
    von<&Planablage::posten>("posten", QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel")),
};

/// Meals and days together, since a day is nothing without its meals. What else a record says has a
/// column of its own and is left out of the text; what a newer version has written stays whole.
QVariant tageLesen(const Aufzeichnung &aufzeichnung)
{
    Aufzeichnung tage = aufzeichnung;
    tage.titel = QString();
    tage.art = Aufzeichnungsart::Protokoll;
    tage.datum = QDate();
    return QString::fromUtf8(alsText(tage));
}
bool tageSetzen(Aufzeichnung &aufzeichnung, const QVariant &wert)
{
    const Aufzeichnungslesung lesung = leseAufzeichnung(wert.toString().toUtf8());
    const bool gelesen = lesung.zustand == Aufzeichnungslesung::Zustand::Gelesen ||
                         lesung.zustand == Aufzeichnungslesung::Zustand::Neuer;
    if (gelesen) {
        aufzeichnung.mahlzeiten = lesung.aufzeichnung.mahlzeiten;
        aufzeichnung.tage = lesung.aufzeichnung.tage;
        aufzeichnung.neuererText = lesung.aufzeichnung.neuererText;
    }
    return gelesen;
}

const std::array aufzeichnungsspalten = {
    von<&Aufzeichnung::titel>("titel", QT_TRANSLATE_NOOP("Mahlberg", "Titel")),
    von<&Aufzeichnung::art>("art", QT_TRANSLATE_NOOP("Mahlberg", "Art")),
    von<&Aufzeichnung::datum>("datum", QT_TRANSLATE_NOOP("Mahlberg", "Datum")),
    Satzspalte<Aufzeichnung>{"tage", QT_TRANSLATE_NOOP("Mahlberg", "Tage"), tageLesen, tageSetzen},
};

} // namespace

std::span<const Satzspalte<Person>> spalten(const Person *)
{
    return personenspalten;
}

std::span<const Satzspalte<Besuch>> spalten(const Besuch *)
{
    return besuchsspalten;
}

std::span<const Satzspalte<Planablage>> spalten(const Planablage *)
{
    return planspalten;
}

std::span<const Satzspalte<Aufzeichnung>> spalten(const Aufzeichnung *)
{
    return aufzeichnungsspalten;
}
