#pragma once

#include "Tabellendatei.h"

#include <QFile>

/// What the tests of the food table share: the table that ships, and lines to break.
namespace Tabellenprobe {

inline QByteArray dateiinhalt(const char *path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline Tabelle ausgelieferteTabelle()
{
    return Tabellendatei::lesen(dateiinhalt(LEBENSMITTELTABELLE)).tabelle;
}

/// The line of the shipped table that begins with this German name, split into its fields.
inline QStringList felder(const QString &name)
{
    const QString text = QString::fromUtf8(dateiinhalt(LEBENSMITTELTABELLE));
    for (const QString &zeile : text.split(u'\n')) {
        if (zeile.startsWith(name + u';')) {
            return zeile.split(u';');
        }
    }
    return {};
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
