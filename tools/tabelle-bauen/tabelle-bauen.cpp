// Turns the food table into what the program reads, after checking every line of it.

#include "Archiver.h"
#include "Auslieferung.h"
#include "Kommandozeile.h"
#include "Regelpruefung.h"
#include "Siegel.h"
#include "Tabellenausgabe.h"
#include "Tabellenpruefung.h"
#include "Zusatzdatei.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString gebrauch =
    u"Usage: tabelle-bauen TABLE.csv SOURCE.csv PURINES.csv FOODS.daten NAMES.ts FURTHER.csv\n"
    "       tabelle-bauen --shipped TABLE.csv AGREED.csv RATINGS.md\n"
    "       tabelle-bauen --seal TABLE.csv\n"
    "The first checks the table, compares it with the source's figures and the published\n"
    "purines, and writes the foods with their ratings, their English names as a translation\n"
    "source, and what is known of them besides. The second checks what only the table that\n"
    "ships with the program must keep: the number of foods, the rows that show another row's\n"
    "food, the ratings that dietitians agree upon, and the page that explains the rules. The\n"
    "third checks the table against Quellwerte.csv and Purine.csv beside it and, when all else\n"
    "is well, seals each line as it now stands.\n"
    "Exit status: 0 all well, 1 a check failed or a file can't be read, 2 wrong usage."_s;

using Tabellenpruefung::Siegelpflicht;

/// Objects to whatever is wrong; true when nothing is.
bool melden(const QString &path, const Beanstandungen &beanstandungen)
{
    Kommandozeile::melden(path, beanstandungen);
    return beanstandungen.isEmpty();
}

/// What the table is compared with; nothing, and a message, when it can't be read whole.
std::optional<Tabellenpruefung::Vergleichswerte> vergleichswerte(const QString &quelldatei,
                                                                 const QString &purindatei)
{
    const auto quellbytes = Kommandozeile::lesen(quelldatei);
    const auto purinbytes = Kommandozeile::lesen(purindatei);
    if (!quellbytes || !purinbytes) {
        return std::nullopt;
    }
    const auto [quelle, quellfehler] = Quellenvergleich::lesen(*quellbytes);
    const auto [purine, purinfehler] = Purinpruefung::lesen(*purinbytes);
    const bool quelleGut = melden(quelldatei, quellfehler);
    if (!melden(purindatei, purinfehler) || !quelleGut) {
        return std::nullopt;
    }
    return Tabellenpruefung::Vergleichswerte{quelle, purine};
}

bool bauen(const QStringList &dateien)
{
    const auto bytes = Kommandozeile::lesen(dateien.at(0));
    const auto vergleich = vergleichswerte(dateien.at(1), dateien.at(2));
    if (!bytes || !vergleich) {
        return false;
    }
    const auto [tabelle, einwaende] = Tabellenpruefung::dateiPruefen(*bytes, *vergleich);
    return melden(dateien.at(0), einwaende + Regelpruefung::aufbauPruefen()) &&
           Kommandozeile::schreiben(dateien.at(3),
                                    Archiver::write(Tabellenausgabe::verzeichnis(tabelle))) &&
           Kommandozeile::schreiben(dateien.at(4), Tabellenausgabe::uebersetzung(tabelle)) &&
           Kommandozeile::schreiben(dateien.at(5), Zusatzdatei::text(Tabellenausgabe::zusatzwerte(
                                                       tabelle, vergleich->quelle)));
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
    const bool tabelleGut =
        melden(dateien.at(0), formfehler) &&
        melden(dateien.at(0),
               Auslieferung::pruefen(tabelle) + Regelpruefung::anteilePruefen(tabelle) +
                   Regelpruefung::einigkeitPruefen(tabelle, QString::fromUtf8(*einigkeit)));
    return melden(dateien.at(2), Regelpruefung::seitePruefen(QString::fromUtf8(*seite))) &&
           tabelleGut;
}

/// Nobody seals a line that is broken, so all other checks come first.
bool siegeln(const QStringList &dateien)
{
    const QString &path = dateien.first();
    const QDir ordner = QFileInfo(path).dir();
    const auto bytes = Kommandozeile::lesen(path);
    const auto vergleich =
        vergleichswerte(ordner.filePath(u"Quellwerte.csv"_s), ordner.filePath(u"Purine.csv"_s));
    if (!bytes || !vergleich) {
        return false;
    }
    const auto einwaende =
        Tabellenpruefung::dateiPruefen(*bytes, *vergleich, Siegelpflicht::Nein).beanstandungen;
    return melden(path, einwaende) && Kommandozeile::schreiben(path, Siegel::versiegelt(*bytes));
}

struct Befehl
{
    const char *schalter; ///< null: none
    qsizetype dateien;    ///< how many files it takes
    bool (*ausfuehren)(const QStringList &dateien);
};

constexpr std::array<Befehl, 3> befehle = {{
    {nullptr, 6, bauen},
    {"--shipped", 3, auslieferungPruefen},
    {"--seal", 1, siegeln},
}};

const Befehl &befehl(QStringList &argumente)
{
    for (const Befehl &einer : befehle) {
        if (einer.schalter != nullptr && argumente.removeOne(QLatin1String(einer.schalter))) {
            return einer;
        }
    }
    return befehle.front();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QStringList dateien = QCoreApplication::arguments().mid(1);
    const Befehl &einer = befehl(dateien);
    if (dateien.size() != einer.dateien) {
        Kommandozeile::melden(gebrauch);
        return Kommandozeile::FalscherAufruf;
    }
    return einer.ausfuehren(dateien) ? Kommandozeile::Gelungen : Kommandozeile::Misslungen;
}
