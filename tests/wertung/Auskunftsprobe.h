#pragma once

#include "Tabellendatei.h"

#include <QHash>

/// Small food tables for the tests of what explains a rating.
namespace Auskunftsprobe {

using Felder = QHash<QString, QString>;

/// A food of the table: bread that holds nothing but what these columns say.
inline QString zeile(const QString &name, const Felder &felder)
{
    Felder alle = {{QStringLiteral("name_de"), name},
                   {QStringLiteral("name_en"), QStringLiteral("Dish")},
                   {QStringLiteral("group"), QStringLiteral("Brot und Brötchen")},
                   {QStringLiteral("sugars"), QStringLiteral("0")},
                   {QStringLiteral("saturated"), QStringLiteral("0")},
                   {QStringLiteral("alcohol"), QStringLiteral("0")},
                   {QStringLiteral("purine_class"), QStringLiteral("low")}};
    for (const auto &wert : naehrwerte) {
        alle.insert(QLatin1String(wert.kennung), QStringLiteral("0"));
    }
    alle.insert(felder);
    QStringList stuecke;
    for (const QString &spalte : Tabellendatei::spalten()) {
        stuecke << alle.value(spalte);
    }
    return stuecke.join(u';');
}

/// A file with these lines.
inline QByteArray datei(const QStringList &zeilen)
{
    return (Tabellendatei::spalten().join(u';') + u'\n' + zeilen.join(u'\n') + u'\n').toUtf8();
}

} // namespace Auskunftsprobe
