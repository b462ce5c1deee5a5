// Turns the food table into what the program reads, after checking every line of it.

#include "Archiver.h"
#include "Auslieferung.h"
#include "Kommandozeile.h"
#include "Regelpruefung.h"
#include "Tabellenausgabe.h"
#include "Tabellenpruefung.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: tabelle-bauen TABLE.csv FOODS.daten NAMES.ts\n"
    "       tabelle-bauen --shipped TABLE.csv AGREED.csv RATINGS.md\n"
    "The first checks the table and writes the foods with their ratings, and their English\n"
    "names as a translation source. The second checks what only the table that ships with the\n"
    "program must keep: the number of foods, the rows that show another row's food, the\n"
    "ratings that dietitians agree upon, and the page that explains the rules.\n"
    "Exit status: 0 all well, 1 a check failed or a file can't be read, 2 wrong usage."_s;

/// Objects to whatever is wrong; true when nothing is.
bool melden(const QString &path, const Beanstandungen &beanstandungen)
{
    Kommandozeile::melden(path, beanstandungen);
    return beanstandungen.isEmpty();
}

bool bauen(const QStringList &dateien)
{
    const auto bytes = Kommandozeile::lesen(dateien.at(0));
    if (!bytes) {
        return false;
    }
    const auto [tabelle, formfehler] = Tabellendatei::lesen(*bytes);
    return melden(dateien.at(0), formfehler + Tabellenpruefung::pruefen(tabelle) +
                                     Regelpruefung::aufbauPruefen()) &&
           Kommandozeile::schreiben(dateien.at(1),
                                    Archiver::write(Tabellenausgabe::verzeichnis(tabelle))) &&
           Kommandozeile::schreiben(dateien.at(2), Tabellenausgabe::uebersetzung(tabelle));
}

bool auslieferungPruefen(const QStringList &dateien)
{
    const auto bytes = Kommandozeile::lesen(dateien.at(0));
    const auto einigkeit = Kommandozeile::lesen(dateien.at(1));
    const auto seite = Kommandozeile::lesen(dateien.at(2));
    if (!bytes || !einigkeit || !seite) {
        return false;
    }
    const auto [tabelle, formfehler] = Tabellendatei::lesen(*bytes);
    const bool tabelleGut = melden(
        dateien.at(0), formfehler + Auslieferung::pruefen(tabelle) +
                           Regelpruefung::anteilePruefen(tabelle) +
                           Regelpruefung::einigkeitPruefen(tabelle, QString::fromUtf8(*einigkeit)));
    return melden(dateien.at(2), Regelpruefung::seitePruefen(QString::fromUtf8(*seite))) &&
           tabelleGut;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QStringList dateien = QCoreApplication::arguments().mid(1);
    const bool auslieferung = dateien.removeOne(u"--shipped"_s);
    if (dateien.size() != 3) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    const bool gelungen = auslieferung ? auslieferungPruefen(dateien) : bauen(dateien);
    return gelungen ? Kommandozeile::Gelungen : Kommandozeile::Misslungen;
}
