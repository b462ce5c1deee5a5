// Prints for a food of the table why it is rated as it is.

#include "Kommandozeile.h"
#include "Regelblatt.h"
#include "Wertungserklaerung.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: wertung-erklaeren [--table TABLE.csv] NAME\n"
    "       wertung-erklaeren --rules | --help\n"
    "Prints the rule behind each of a food's four ratings. NAME is the German or English\n"
    "name; a part of it lists the foods that have it. --rules prints all rules, the food\n"
    "groups and the sources as they stand in docs/ratings.md.\n"
    "Exit status: 0 explained, 1 no such food or no table, 2 wrong usage."_s;

struct Auftrag
{
    QString tabelle = u":/Lebensmittel.csv"_s; ///< the one that ships, carried within
    QString name;
};

std::optional<Auftrag> auftrag(QStringList argumente)
{
    Auftrag ergebnis;
    argumente.removeFirst();
    if (argumente.size() == 3 && argumente.first() == u"--table") {
        ergebnis.tabelle = argumente.at(1);
        argumente.remove(0, 2);
    }
    if (argumente.size() != 1 || argumente.first().isEmpty() ||
        argumente.first().startsWith(u"--")) {
        return std::nullopt;
    }
    ergebnis.name = argumente.first();
    return ergebnis;
}

void wertungErklaeren(Wertung wertung, const Tabellenzeile &zeile)
{
    using Kommandozeile::drucken;
    const Wertungserklaerung erklaerung(wertung, zeile, Regelsprache::Englisch, QLocale::c());
    const QStringList zeilen = erklaerung.zeilen();
    for (const QString &eine : zeilen) {
        drucken((&eine == &zeilen.first() ? QString() : u"    "_s) + eine);
    }
    if (erklaerung.regel() == nullptr) {
        return;
    }
    for (const char *const schluessel : erklaerung.regel()->quellen) {
        if (const Quelle *const eine = quelle(schluessel)) {
            drucken(
                u"    [%1] %2"_s.arg(QLatin1String(schluessel), QString::fromUtf8(eine->angabe)));
        }
    }
}

void erklaeren(const Tabellenzeile &zeile)
{
    using Kommandozeile::drucken;
    drucken(u"%1 (%2)"_s.arg(zeile.nameDe, zeile.nameEn));
    drucken(u"Food group: "_s + QString::fromUtf8(zeile.gruppe->name));
    if (!zeile.notiz.isEmpty()) {
        drucken(u"Note: "_s + zeile.notiz);
    }
    if (zeile.harnsaeure) {
        drucken(u"Purines: %1 mg uric acid, from %2 [%3]"_s.arg(*zeile.harnsaeure)
                    .arg(zeile.purinherkunft, zeile.purinquellen));
    }
    for (const auto &wertung : wertungen) {
        wertungErklaeren(wertung.wertung, zeile);
    }
}

void regelnDrucken()
{
    QStringList zeilen;
    for (const auto &wertung : wertungen) {
        zeilen += QStringList{QString::fromUtf8(wertung.bezeichnung), QString()};
        zeilen += Regelblatt::regeltabelle(wertung.wertung) + QStringList{QString()};
    }
    zeilen += Regelblatt::gruppentabelle() + QStringList{QString()} + Regelblatt::quellenliste();
    for (const QString &zeile : zeilen) {
        Kommandozeile::drucken(zeile);
    }
}

Kommandozeile::Ausgang suchen(const Tabelle &tabelle, const QString &name)
{
    QStringList aehnliche;
    for (const Tabellenzeile &zeile : tabelle) {
        for (const QString &einer : {zeile.nameDe, zeile.nameEn}) {
            if (einer.compare(name, Qt::CaseInsensitive) == 0) {
                erklaeren(zeile);
                return Kommandozeile::Gelungen;
            }
            if (einer.contains(name, Qt::CaseInsensitive)) {
                aehnliche.append(einer);
            }
        }
    }
    Kommandozeile::melden(u"There is no food \"%1\"."_s.arg(name));
    if (!aehnliche.isEmpty()) {
        Kommandozeile::melden(u"There are: "_s + aehnliche.join(u"; "));
    }
    return Kommandozeile::Misslungen;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    if (QCoreApplication::arguments().mid(1) == QStringList{u"--rules"_s}) {
        regelnDrucken();
        return Kommandozeile::Gelungen;
    }
    if (QCoreApplication::arguments().mid(1) == QStringList{u"--help"_s}) {
        Kommandozeile::drucken(gebrauch);
        return Kommandozeile::Gelungen;
    }
    const auto was = auftrag(QCoreApplication::arguments());
    if (!was) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    const auto bytes = Kommandozeile::lesen(was->tabelle);
    if (!bytes) {
        return Kommandozeile::Misslungen;
    }
    return suchen(Tabellendatei::lesen(*bytes).tabelle, was->name);
}
