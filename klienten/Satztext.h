#pragma once

#include "Satzspalten.h"

#include <QJsonObject>

/// The names of what a record has besides its columns, in the files that are handed over.
namespace Satzfeld {
inline const QString kennung = QStringLiteral("kennung");
inline const QString fassung = QStringLiteral("fassung");
} // namespace Satzfeld

/// A field of a record as JSON; the rows of a plan and the days of a
/// record are JSON already.
QJsonValue feldAlsJson(const QString &name, const QVariant &wert);
/// The same back, as the column takes it.
QVariant feldAusJson(const QString &name, const QJsonValue &wert);

/// A record with its key and its count of writes, under the names of the store's columns.
template <typename Satz>
QJsonObject alsJson(const Satz &satz)
{
    QJsonObject felder{{Satzfeld::kennung, satz.kennung}, {Satzfeld::fassung, satz.fassung}};
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        const QString name = QLatin1String(spalte.name);
        felder.insert(name, feldAlsJson(name, spalte.lies(satz)));
    }
    return felder;
}

/// Reads a record that was written at least so often. The name of the field that can't be read is
/// put behind `stelle`; it stays empty when all is well.
template <typename Satz>
Satz satzAus(const QJsonValue &wert, int mindestens, QString &stelle)
{
    const QJsonObject felder = wert.toObject();
    Satz satz;
    satz.kennung = felder.value(Satzfeld::kennung).toString();
    satz.fassung = felder.value(Satzfeld::fassung).toInt(-1);
    if (satz.kennung.isEmpty() || satz.fassung < mindestens) {
        stelle = satz.kennung.isEmpty() ? Satzfeld::kennung : Satzfeld::fassung;
        return satz;
    }
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        const QString name = QLatin1String(spalte.name);
        if (!spalte.setze(satz, feldAusJson(name, felder.value(name)))) {
            stelle = name;
            return satz;
        }
    }
    return satz;
}
