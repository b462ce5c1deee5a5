#include "Klientenschema.h"

namespace Klientenschema {

namespace {

// What people told about themselves goes with them: whatever belongs to a person refers to the row
// in `person`. The key comes first in each table, then the count of writes.

const QList<QStringList> schritte = {
    // 1: persons and their visits
    {
        QStringLiteral("CREATE TABLE bestand (fassung INTEGER NOT NULL)"),
        QStringLiteral("INSERT INTO bestand (fassung) VALUES (0)"),
        QStringLiteral("CREATE TABLE person ("
                       "kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, "
                       "name TEXT NOT NULL, nummer TEXT NOT NULL, geburt TEXT, "
                       "geschlecht INTEGER NOT NULL, umstand INTEGER NOT NULL, "
                       "uebergewicht INTEGER NOT NULL, diabetes INTEGER NOT NULL, "
                       "gicht INTEGER NOT NULL, hkk INTEGER NOT NULL, "
                       "notizen TEXT NOT NULL, archiviert INTEGER NOT NULL)"),
        QStringLiteral("CREATE TABLE besuch ("
                       "kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, "
                       "person TEXT NOT NULL REFERENCES person (kennung) ON DELETE CASCADE, "
                       "datum TEXT NOT NULL, gewicht DOUBLE PRECISION, groesse DOUBLE PRECISION, "
                       "taille DOUBLE PRECISION, huefte DOUBLE PRECISION, aktivitaet INTEGER, "
                       "reduktion INTEGER, sport TEXT, sportdauer DOUBLE PRECISION, "
                       "notiz TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX besuch_person ON besuch (person)"),
    },
    // 2: the plans that are kept
    {
        QStringLiteral("CREATE TABLE plan ("
                       "kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, "
                       "person TEXT NOT NULL REFERENCES person (kennung) ON DELETE CASCADE, "
                       "titel TEXT NOT NULL, datum TEXT NOT NULL, notiz TEXT NOT NULL, "
                       "posten TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX plan_person ON plan (person)"),
    },
    // 3: records of days
    {
        QStringLiteral("CREATE TABLE aufzeichnung ("
                       "kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, "
                       "person TEXT NOT NULL REFERENCES person (kennung) ON DELETE CASCADE, "
                       "titel TEXT NOT NULL, art INTEGER NOT NULL, datum TEXT, "
                       "tage TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX aufzeichnung_person ON aufzeichnung (person)"),
    },
};

} // namespace

QStringList schritt(int nach)
{
    return schritte.at(nach - 1);
}

} // namespace Klientenschema
