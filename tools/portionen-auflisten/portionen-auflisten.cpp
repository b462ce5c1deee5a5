// Lists the household measures of every food, or checks them.

#include "Kommandozeile.h"
#include "Portionspruefung.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: portionen-auflisten FOODS.csv MEASURES.csv\n"
    "       portionen-auflisten --check FOODS.csv MEASURES.csv PORTIONS.md\n"
    "       portionen-auflisten --help\n"
    "The first lists every food with its measures, the most specific first, and what each\n"
    "weighs. The second checks the measures: each food has one and no two of a name, each\n"
    "line is some food's, and each publication is listed on the page.\n"
    "Exit status: 0 all well, 1 a check failed or a file can't be read, 2 wrong usage."_s;

/// The two tables; nothing, and a message, when one of them can't be read whole.
struct Tabellen
{
    Tabelle lebensmittel;
    QList<Portionszeile> portionen;
};

std::optional<Tabellen> lesen(const QStringList &dateien)
{
    const auto lebensmittelbytes = Kommandozeile::lesen(dateien.at(0));
    const auto portionsbytes = Kommandozeile::lesen(dateien.at(1));
    if (!lebensmittelbytes || !portionsbytes) {
        return std::nullopt;
    }
    auto [lebensmittel, lebensmittelfehler] = Tabellendatei::lesen(*lebensmittelbytes);
    auto [portionen, portionsfehler] = Portionendatei::lesen(*portionsbytes);
    Kommandozeile::melden(dateien.at(0), lebensmittelfehler);
    Kommandozeile::melden(dateien.at(1), portionsfehler);
    if (!lebensmittelfehler.isEmpty() || !portionsfehler.isEmpty()) {
        return std::nullopt;
    }
    return Tabellen{std::move(lebensmittel), std::move(portionen)};
}

bool auflisten(const QStringList &dateien)
{
    const auto tabellen = lesen(dateien);
    if (!tabellen) {
        return false;
    }
    for (const Tabellenzeile &eines : tabellen->lebensmittel) {
        QStringList masse;
        for (const Portionszeile &zeile : Portionendatei::zeilenFuer(
                 tabellen->portionen, QString::fromUtf8(eines.gruppe->name), eines.nameDe)) {
            masse.append(u"%1 %2 g"_s.arg(zeile.mass.eines).arg(zeile.mass.gramm));
        }
        Kommandozeile::drucken(eines.nameDe + u": "_s + masse.join(u", "_s));
    }
    return true;
}

bool pruefen(const QStringList &dateien)
{
    const auto tabellen = lesen(dateien);
    const auto seite = Kommandozeile::lesen(dateien.at(2));
    if (!tabellen || !seite) {
        return false;
    }
    const auto &[lebensmittel, portionen] = *tabellen;
    const Beanstandungen unversorgt =
        Portionspruefung::lebensmittelPruefen(portionen, lebensmittel);
    const Beanstandungen zeilen =
        Portionspruefung::zeilenPruefen(portionen, lebensmittel, QString::fromUtf8(*seite));
    Kommandozeile::melden(dateien.at(0), unversorgt);
    Kommandozeile::melden(dateien.at(1), zeilen);
    return unversorgt.isEmpty() && zeilen.isEmpty();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QStringList dateien = QCoreApplication::arguments().mid(1);
    if (dateien == QStringList{u"--help"_s}) {
        Kommandozeile::drucken(gebrauch);
        return Kommandozeile::Gelungen;
    }
    const bool pruefung = dateien.removeOne(u"--check"_s);
    if (dateien.size() != (pruefung ? 3 : 2)) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    const bool gelungen = pruefung ? pruefen(dateien) : auflisten(dateien);
    return gelungen ? Kommandozeile::Gelungen : Kommandozeile::Misslungen;
}
