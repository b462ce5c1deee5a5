// Checks the reference values that ship.

#include "Kommandozeile.h"
#include "Referenzpruefung.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: referenzwerte-pruefen VALUES.csv PAGE.md\n"
    "       referenzwerte-pruefen --help\n"
    "Checks the reference values: every word is known, no range ends before it begins, no\n"
    "two lines are for the same people, and each publication is listed on the page.\n"
    "Exit status: 0 all well, 1 a check failed or a file can't be read, 2 wrong usage."_s;

bool pruefen(const QString &tabelle, const QString &seite)
{
    const auto tabellenbytes = Kommandozeile::lesen(tabelle);
    const auto seitenbytes = Kommandozeile::lesen(seite);
    if (!tabellenbytes || !seitenbytes) {
        return false;
    }
    auto [zeilen, einwaende] = Referenzdatei::lesen(*tabellenbytes);
    einwaende += Referenzpruefung::pruefen(zeilen, QString::fromUtf8(*seitenbytes));
    Kommandozeile::melden(tabelle, einwaende);
    return einwaende.isEmpty();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList argumente = QCoreApplication::arguments().mid(1);
    if (argumente == QStringList{u"--help"_s}) {
        Kommandozeile::drucken(gebrauch);
        return Kommandozeile::Gelungen;
    }
    if (argumente.size() != 2) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    return pruefen(argumente.at(0), argumente.at(1)) ? Kommandozeile::Gelungen
                                                     : Kommandozeile::Misslungen;
}
