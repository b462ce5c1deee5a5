// Turns the food table into what the program reads, after checking every line of it.

#include "Archiver.h"
#include "Auslieferung.h"
#include "Kommandozeile.h"
#include "Tabellenausgabe.h"
#include "Tabellenpruefung.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: tabelle-bauen TABLE.csv FOODS.daten NAMES.ts\n"
    "       tabelle-bauen --shipped TABLE.csv\n"
    "The first checks the table and writes the foods with their ratings, and\n"
    "their English names as a translation source. The second checks what only\n"
    "the table that ships with the program must keep: the number of foods, and\n"
    "the rows that show another row's food.\n"
    "Exit status: 0 all well, 1 a check failed, 2 wrong usage."_s;

struct Auftrag
{
    bool auslieferung = false;
    QString tabelle;
    QString daten;
    QString namen;
};

std::optional<Auftrag> auftrag(const QStringList &argumente)
{
    if (argumente.size() == 3 && argumente.at(1) == u"--shipped") {
        return Auftrag{true, argumente.at(2), {}, {}};
    }
    if (argumente.size() == 4) {
        return Auftrag{false, argumente.at(1), argumente.at(2), argumente.at(3)};
    }
    return std::nullopt;
}

Kommandozeile::Ausgang ausfuehren(const Auftrag &auftrag)
{
    const auto bytes = Kommandozeile::lesen(auftrag.tabelle);
    if (!bytes) {
        return Kommandozeile::Misslungen;
    }
    auto [tabelle, beanstandungen] = Tabellendatei::lesen(*bytes);
    beanstandungen +=
        auftrag.auslieferung ? Auslieferung::pruefen(tabelle) : Tabellenpruefung::pruefen(tabelle);
    Kommandozeile::melden(auftrag.tabelle, beanstandungen);
    if (!beanstandungen.isEmpty()) {
        return Kommandozeile::Misslungen;
    }
    const bool geschrieben =
        auftrag.auslieferung ||
        (Kommandozeile::schreiben(auftrag.daten,
                                  Archiver::write(Tabellenausgabe::verzeichnis(tabelle))) &&
         Kommandozeile::schreiben(auftrag.namen, Tabellenausgabe::uebersetzung(tabelle)));
    return geschrieben ? Kommandozeile::Gelungen : Kommandozeile::Misslungen;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const auto was = auftrag(QCoreApplication::arguments());
    if (!was) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    return ausfuehren(*was);
}
