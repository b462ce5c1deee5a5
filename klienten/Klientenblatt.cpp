#include "Klientenblatt.h"

#include "Aktentabellen.h"
#include "Angabenpruefung.h"
#include "Druckfuss.h"
#include "Drucksatz.h"
#include "Druckworte.h"
#include "Feldworte.h"
#include "Papiersatz.h"
#include "Plandruckwerte.h"
#include "Planzahlen.h"
#include "Verlaufsmaler.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace {

constexpr Druckschrift namensschrift = {18, true};
constexpr Druckschrift kapitelschrift = {13, true};
constexpr Druckschrift planschrift = {10, true};
constexpr Druckschrift tagesschrift = {9, true};
constexpr Druckschrift bildschrift = {8};

// Of the courses, in points.
constexpr double kleinsteBildbreite = 240;
constexpr double bildabstand = 20;
constexpr double bildhoehe = 150;
constexpr double unterBild = 4;

// Of a plan, in points.
constexpr double namensbreite = 260; ///< all plans have their numbers in the same place
constexpr double unterNotiz = 4;

QString uebersetzt(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

/// What is called by nothing is called that.
QString oder(const QString &text, const QString &sonst)
{
    return text.trimmed().isEmpty() ? sonst : text;
}

/// The birthday with the age, which nobody wants to work out.
QString mitAlter(const QString &worte, const QDate &geburt, const QDate &heute)
{
    const std::optional<int> alter = alterAm(heute, geburt);
    return alter ? localizedString(QStringLiteral("%1 (Alter %2)"))
                       .arg(worte, QString::number(*alter))
                 : worte;
}

/// What there is to say of a person; what is not known or does not apply is left out.
void setzePerson(Drucksatz &satz, const Person &person, const QDate &heute)
{
    satz.absatz(oder(person.name, localizedString(QStringLiteral("(ohne Namen)"))), namensschrift);
    satz.linie();
    for (const Satzspalte<Person> &spalte : spalten<Person>()) {
        const QVariant wert = spalte.lies(person);
        const bool giltNicht = wert.metaType().id() == QMetaType::Int && wert.toInt() == 0;
        const QString worte = feldworte(spalte.name, wert);
        if (giltNicht || worte.isEmpty() || qstrcmp(spalte.name, "name") == 0) {
            continue;
        }
        const bool geburt = qstrcmp(spalte.name, "geburt") == 0;
        satz.angabe(uebersetzt(spalte.beschriftung),
                    geburt ? mitAlter(worte, person.geburt, heute) : worte);
    }
}

/// What a field of a visit says below a heading that names its unit.
QString ohneEinheit(const Besuch &besuch, const Satzspalte<Besuch> &spalte)
{
    const QString worte = feldworte(besuch, spalte);
    const qsizetype einheit = feldeinheit(spalte.name).size();
    return worte.isEmpty() || einheit == 0 ? worte : worte.chopped(einheit + 1);
}

/// The columns in which something stands. The note is none: it has a line of its own.
QList<Satzspalte<Besuch>> besuchsspalten(const QList<Besuch> &besuche)
{
    QList<Satzspalte<Besuch>> gefuellte;
    for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
        const bool steht = std::any_of(besuche.begin(), besuche.end(), [&](const Besuch &besuch) {
            return !feldworte(besuch, spalte).isEmpty();
        });
        if (steht && qstrcmp(spalte.name, "notiz") != 0) {
            gefuellte << spalte;
        }
    }
    return gefuellte;
}

void setzeBesuche(Drucksatz &satz, const QList<Besuch> &besuche)
{
    satz.ueberschrift(localizedString(QStringLiteral("Besuche")), kapitelschrift);
    if (besuche.isEmpty()) {
        satz.absatz(localizedString(QStringLiteral("Noch kein Besuch.")));
        return;
    }
    const QList<Satzspalte<Besuch>> gefuellte = besuchsspalten(besuche);
    Drucktabelle tabelle;
    for (const Satzspalte<Besuch> &spalte : gefuellte) {
        tabelle.spalten << Drucktabelle::Spalte{spaltenkopf(spalte),
                                                !feldeinheit(spalte.name).isEmpty()};
    }
    for (const Besuch &besuch : besuche) {
        Drucktabelle::Zeile zeile;
        for (const Satzspalte<Besuch> &spalte : gefuellte) {
            zeile.zellen << ohneEinheit(besuch, spalte);
        }
        zeile.darunter = besuch.notiz;
        tabelle.zeilen << zeile;
    }
    satz.tabelle(tabelle);
}

/// The courses of which there is something to be seen.
QList<Verlaufsdaten> verlaeufe(const Klientenakte &akte, const QDate &heute)
{
    QList<Verlaufsdaten> alle;
    for (const Messgroesse was : {Messgroesse::Gewicht, Messgroesse::Bmi, Messgroesse::Taille}) {
        const Verlaufsdaten daten = verlaufsdaten(akte.person, akte.besuche, was, heute);
        if (!daten.punkte.isEmpty()) {
            alle << daten;
        }
    }
    return alle;
}

QPalette papierfarben()
{
    QPalette farben;
    farben.setColor(QPalette::Window, Qt::white);
    farben.setColor(QPalette::WindowText, Qt::black);
    return farben;
}

/// Courses side by side, and below each what it says in words.
Druckstreifen bilderreihe(const QList<Verlaufsdaten> &verlaeufe, double breite)
{
    Druckstreifen reihe{bildhoehe + unterBild, [verlaeufe, breite](QPainter &maler) {
                            maler.scale(1.0 / druckfeinheit, 1.0 / druckfeinheit);
                            maler.setFont(druckfont(bildschrift));
                            QRectF platz(0, 0, breite * druckfeinheit, bildhoehe * druckfeinheit);
                            for (const Verlaufsdaten &daten : verlaeufe) {
                                maleVerlauf(maler, platz, daten, papierfarben());
                                platz.translate((breite + bildabstand) * druckfeinheit, 0);
                            }
                        }};
    QList<Druckzelle> worte;
    for (qsizetype i = 0; i < verlaeufe.size(); ++i) {
        worte << Druckzelle{.text = verlaufInWorten(verlaeufe[i]),
                            .schrift = bildschrift,
                            .links = static_cast<double>(i) * (breite + bildabstand),
                            .breite = breite};
    }
    for (const Druckstreifen &zeile : gesetzt(worte)) {
        reihe = verbunden(reihe, zeile);
    }
    return reihe;
}

/// As many side by side as the paper is wide, and which limits they were measured against.
void setzeVerlauf(Drucksatz &satz, const Klientenakte &akte, const QDate &heute)
{
    const QList<Verlaufsdaten> alle = verlaeufe(akte, heute);
    if (alle.isEmpty()) {
        return;
    }
    satz.ueberschrift(localizedString(QStringLiteral("Verlauf")), kapitelschrift);
    const auto passen =
        static_cast<qsizetype>((satz.breite() + bildabstand) / (kleinsteBildbreite + bildabstand));
    const qsizetype jeReihe = std::clamp<qsizetype>(passen, 1, alle.size());
    const double breite =
        (satz.breite() + bildabstand) / static_cast<double>(jeReihe) - bildabstand;
    QStringList quellen;
    for (qsizetype i = 0; i < alle.size(); i += jeReihe) {
        satz.bild(bilderreihe(alle.mid(i, jeReihe), breite));
        satz.abstand(bildabstand / 2);
    }
    for (const Verlaufsdaten &daten : alle) {
        const QString quelle = zielbandquelle(daten.was);
        if (daten.band && !quellen.contains(quelle)) {
            quellen << quelle;
            satz.absatz(localizedString(QStringLiteral("Zielbereich nach: %1")).arg(quelle),
                        bildschrift);
        }
    }
}

Drucktabelle plantabelle(const QList<Planposten> &posten)
{
    Drucktabelle tabelle;
    tabelle.spalten = {
        {localizedString(QStringLiteral("Lebensmittel")), false, namensbreite},
        {mitEinheit(localizedString(QStringLiteral("Menge")), einheitszeichen(Einheit::Gramm)),
         true},
        {mitEinheit(localizedString(QStringLiteral("Energie")),
                    einheitszeichen(Einheit::Kilokalorie)),
         true}};
    float gramm = 0;
    std::int64_t energie = 0;
    for (const Planposten &eine : posten) {
        Drucktabelle::Zeile zeile{{localizedString(eine.schluessel), mengentext(eine.gramm)}};
        if (eine.eintrag) {
            const std::int32_t kal = druckwert({&*eine.eintrag, eine.gramm}, Naehrwert::kal);
            zeile.zellen << QString::number(kal);
            energie += kal;
        }
        gramm += eine.gramm;
        tabelle.zeilen << zeile;
    }
    tabelle.zeilen << Drucktabelle::Zeile{
        {localizedString(QStringLiteral("Gesamt")), mengentext(gramm), QString::number(energie)},
        {},
        true};
    return tabelle;
}

void setzePlaene(Drucksatz &satz, const QList<Planablage> &plaene)
{
    satz.ueberschrift(localizedString(QStringLiteral("Pläne")), kapitelschrift);
    if (plaene.isEmpty()) {
        satz.absatz(localizedString(QStringLiteral("Noch kein Plan.")));
    }
    for (const Planablage &plan : plaene) {
        const QString tag = tagesworte(plan.datum);
        satz.ueberschrift(plan.titel.isEmpty() ? tag
                                               : QStringLiteral("%1, %2").arg(plan.titel, tag),
                          planschrift);
        if (!plan.notiz.isEmpty()) {
            satz.vorspann(plan.notiz);
            satz.abstand(unterNotiz);
        }
        if (plan.posten.isEmpty()) {
            satz.absatz(localizedString(QStringLiteral("Ohne Lebensmittel.")));
        } else {
            satz.tabelle(plantabelle(plan.posten));
        }
    }
}

/// From when to when, what kind of record, and how it is called.
QString aufzeichnungsworte(const Aufzeichnung &eine, const Druckworte &worte)
{
    const auto letzter = static_cast<int>(eine.tage.size()) - 1;
    QStringList teile = {titelworte(eine, worte)};
    if (teile.first() != artworte(eine.art, worte)) {
        teile << artworte(eine.art, worte);
    }
    if (eine.datum.isValid()) {
        const QString von = tagesworte(eine.datum);
        teile << (letzter == 0 ? von
                               : localizedString(QStringLiteral("%1 bis %2"))
                                     .arg(von, tagesworte(datumVon(eine, letzter))));
    }
    return teile.join(QStringLiteral(", "));
}

/// What was eaten at a meal, a food in each line, and its note.
QString mahlzeitinhalt(const Mahlzeit &mahlzeit, const Druckworte &worte)
{
    QStringList zeilen;
    for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
        zeilen << zeilenworte(zeile, {}, worte);
    }
    zeilen << mahlzeit.notiz.trimmed();
    zeilen.removeAll(QString());
    return zeilen.join(u'\n');
}

void setzeAufzeichnung(Drucksatz &satz, const Aufzeichnung &eine)
{
    const Druckworte worte(Druckworte::derFenster());
    satz.ueberschrift(aufzeichnungsworte(eine, worte), planschrift);
    for (int tag = 0; tag < eine.tage.size(); ++tag) {
        satz.ueberschrift(tagesworte(eine, tag, worte), tagesschrift);
        const QList<Mahlzeit> &mahlzeiten = eine.tage[tag].mahlzeiten;
        QList<std::pair<QString, QString>> angaben;
        for (qsizetype i = 0; i < mahlzeiten.size(); ++i) {
            angaben.emplaceBack(mahlzeitworte(eine.mahlzeiten.value(i), worte),
                                mahlzeitinhalt(mahlzeiten[i], worte));
        }
        angaben.emplaceBack(localizedString(QStringLiteral("Notiz")),
                            eine.tage[tag].notiz.trimmed());
        erase_if(angaben, [](const auto &angabe) { return angabe.second.isEmpty(); });
        for (const auto &[name, inhalt] : std::as_const(angaben)) {
            satz.angabe(name, inhalt);
        }
        if (angaben.isEmpty()) {
            satz.absatz(localizedString(QStringLiteral("Nichts aufgezeichnet.")));
        }
    }
}

/// Who has none is not asked for any.
void setzeAufzeichnungen(Drucksatz &satz, const QList<Aufzeichnung> &aufzeichnungen)
{
    if (!aufzeichnungen.isEmpty()) {
        satz.ueberschrift(localizedString(QStringLiteral("Aufzeichnungen")), kapitelschrift);
    }
    for (const Aufzeichnung &eine : aufzeichnungen) {
        setzeAufzeichnung(satz, eine);
    }
}

} // namespace

Druckauftrag klientenblatt(const Klientenakte &akte, const QDate &heute)
{
    const auto setze = [akte, heute](const QSizeF &seite) {
        Drucksatz satz(seite, akte.person.name);
        setzePerson(satz, akte.person, heute);
        setzeBesuche(satz, akte.besuche);
        setzeVerlauf(satz, akte, heute);
        setzePlaene(satz, akte.plaene);
        setzeAufzeichnungen(satz, akte.aufzeichnungen);
        return satz;
    };
    return mitFuss(gesetzterAuftrag<Drucksatz>(
        oder(akte.person.name, localizedString(QStringLiteral("(ohne Namen)"))),
        localizedString(QStringLiteral("Akte")), heute, setze));
}
