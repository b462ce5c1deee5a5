#include "Spaltensinn.h"

#include "Skalierung.h"
#include "Ueberschrift.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using Art = Spaltensinn::Art;

namespace {

constexpr double tausend = 1000;

/// The units in which a value that is held in this one can be given, that one first.
QList<Lesemass> masse(Einheit einheit)
{
    switch (einheit) {
    case Einheit::Kilokalorie:
        return {Lesemass::Kilokalorie, Lesemass::Kilojoule};
    case Einheit::Gramm:
        return {Lesemass::Gramm, Lesemass::Milligramm};
    case Einheit::Milligramm:
        return {Lesemass::Milligramm, Lesemass::Gramm, Lesemass::Mikrogramm};
    case Einheit::Mikrogramm:
        return {Lesemass::Mikrogramm, Lesemass::Milligramm};
    }
    return {};
}

Lesemass eigenesMass(Naehrwert wert)
{
    return masse(beschreibung(wert).einheit).first();
}

QList<Spaltensinn> sammle()
{
    QList<Spaltensinn> alle = {{.art = Art::Nichts}, {.art = Art::Name}};
    for (const auto &zeile : naehrwerte) {
        for (const Lesemass mass : masse(zeile.einheit)) {
            alle << Spaltensinn{.art = Art::Wert, .wert = zeile.wert, .mass = mass};
        }
        if (zeile.wert == Naehrwert::na) {
            alle << Spaltensinn{
                .art = Art::Wert, .wert = Naehrwert::na, .mass = Lesemass::GrammSalz};
        }
    }
    for (const auto &zeile : wertungen) {
        alle << Spaltensinn{.art = Art::Wertung, .wertung = zeile.wertung};
    }
    alle << Spaltensinn{.art = Art::Portion};
    return alle;
}

QString zeichen(Lesemass mass)
{
    static const std::array<QString, 6> alle = {
        QStringLiteral("kcal"), QStringLiteral("kJ"), QStringLiteral("g"),
        QStringLiteral("mg"),   QStringLiteral("µg"), QStringLiteral("g"),
    };
    return alle.at(static_cast<std::size_t>(mass));
}

/// Thousandths of a gram that one of the unit is.
double milligramm(Lesemass mass)
{
    return mass == Lesemass::Gramm ? tausend : mass == Lesemass::Mikrogramm ? 1 / tausend : 1;
}

/// How well a heading fits among several for one place of the record; the smallest fits best.
int rang(const Spaltensinn &sinn, const Ueberschrift &ueberschrift)
{
    const int portion = ueberschrift.jePortion ? 2 : 0;
    return portion + (sinn.art == Art::Wert && !istEigenesMass(sinn) ? 1 : 0);
}

} // namespace

bool Spaltensinn::gleichesZiel(const Spaltensinn &anderer) const
{
    return art == anderer.art && art != Art::Nichts && (art != Art::Wert || wert == anderer.wert) &&
           (art != Art::Wertung || wertung == anderer.wertung);
}

const QList<Spaltensinn> &alleSpaltensinne()
{
    static const QList<Spaltensinn> alle = sammle();
    return alle;
}

QString inWorten(const Spaltensinn &sinn)
{
    switch (sinn.art) {
    case Art::Nichts:
        return localizedString(QStringLiteral("(nicht übernehmen)"));
    case Art::Name:
        return localizedString(QStringLiteral("Lebensmittel"));
    case Art::Portion:
        return localizedString(QStringLiteral("Gewicht der Portion (g)"));
    case Art::Wertung:
        return localizedString(QString::fromUtf8(beschreibung(sinn.wertung).bezeichnung));
    case Art::Wert:
        break;
    }
    const QString name =
        sinn.mass == Lesemass::GrammSalz
            ? localizedString(QStringLiteral("Salz"))
            : localizedString(QString::fromUtf8(beschreibung(sinn.wert).bezeichnung));
    return QStringLiteral("%1 (%2)").arg(name, zeichen(sinn.mass));
}

bool istEigenesMass(const Spaltensinn &sinn)
{
    return sinn.mass == eigenesMass(sinn.wert);
}

double imEigenenMass(double zahl, const Spaltensinn &sinn)
{
    if (istEigenesMass(sinn)) {
        return zahl;
    }
    if (sinn.mass == Lesemass::Kilojoule) {
        return kilokalorien(zahl);
    }
    if (sinn.mass == Lesemass::GrammSalz) {
        return natriumAusSalz(zahl);
    }
    return zahl * milligramm(sinn.mass) / milligramm(eigenesMass(sinn.wert));
}

Spaltendeutung deuteUeberschriften(const QStringList &ueberschriften)
{
    QList<Ueberschrift> gelesen;
    for (const QString &text : ueberschriften) {
        gelesen << liesUeberschrift(text);
    }
    Spaltendeutung deutung;
    for (qsizetype i = 0; i < gelesen.size(); ++i) {
        const Spaltensinn sinn = gelesen[i].sinn;
        bool besser = sinn.art != Art::Nichts;
        for (qsizetype j = 0; j < gelesen.size(); ++j) {
            const int anderer = rang(gelesen[j].sinn, gelesen[j]);
            const int dieser = rang(sinn, gelesen[i]);
            besser &= i == j || !sinn.gleichesZiel(gelesen[j].sinn) || dieser < anderer ||
                      (dieser == anderer && i < j);
        }
        deutung.spalten << (besser ? sinn : Spaltensinn());
        deutung.jePortion |= besser && sinn.art == Art::Wert && gelesen[i].jePortion;
    }
    return deutung;
}
