#pragma once

#include "Tabellendatei.h"

#include <QFile>

/// What the tests of the food table share: the table that ships, and lines to break.
namespace Tabellenprobe {

using namespace Qt::StringLiterals;

inline QByteArray dateiinhalt(const char *path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline Tabelle ausgelieferteTabelle()
{
    return Tabellendatei::lesen(dateiinhalt(LEBENSMITTELTABELLE)).tabelle;
}

/// The lines of the shipped table, split into their fields, in the order of the file.
inline QList<QStringList> ausgelieferteZeilen()
{
    QList<QStringList> zeilen;
    const QString text = QString::fromUtf8(dateiinhalt(LEBENSMITTELTABELLE));
    for (const QString &zeile : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (!zeile.startsWith(u'#')) {
            zeilen.append(zeile.split(u';'));
        }
    }
    return zeilen.mid(1); // the first are the columns' names
}

inline QString feld(const QStringList &zeile, const QString &spalte)
{
    return zeile.value(Tabellendatei::spalten().indexOf(spalte));
}

/// The fields of the shipped food with this id of the source: the id stays when a food is renamed.
inline QStringList felder(const QString &quelle)
{
    for (const QStringList &zeile : ausgelieferteZeilen()) {
        if (feld(zeile, u"source_id"_s) == quelle && feld(zeile, u"synonym"_s).isEmpty()) {
            return zeile;
        }
    }
    return {};
}

/// Every shipped name of the food with this id: its own first, then its synonyms.
inline QStringList namen(const QString &quelle)
{
    QStringList liste;
    for (const QStringList &zeile : ausgelieferteZeilen()) {
        if (feld(zeile, u"source_id"_s) == quelle) {
            const bool eigen = feld(zeile, u"synonym"_s).isEmpty();
            liste.insert(eigen ? 0 : liste.size(), zeile.first());
        }
    }
    return liste;
}

/// A file with these lines under the columns' names; the first of them is line 2.
inline QByteArray datei(const QList<QStringList> &zeilen)
{
    QString text = Tabellendatei::spalten().join(u';') + u'\n';
    for (const QStringList &zeile : zeilen) {
        text += zeile.join(u';') + u'\n';
    }
    return text.toUtf8();
}

/// A line with one field replaced.
inline QStringList geaendert(QStringList zeile, const QString &spalte, const QString &wert)
{
    zeile[Tabellendatei::spalten().indexOf(spalte)] = wert;
    return zeile;
}

} // namespace Tabellenprobe
