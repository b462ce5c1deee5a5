#pragma once

#include "Ampel.h"
#include "Naehrwerte.h"

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

/// What commands print for programs: the same in every language and country, under English names
/// that never change, as JSON and as CSV.
namespace Programmform {

/// A thing that is told about, such as "calcium", and what is told of it, such as "percent". One
/// that has nothing but a "value" is that value itself in JSON.
struct Posten
{
    QString name;
    QList<std::pair<QString, QJsonValue>> felder;
};

/// What is told of things by both commands.
namespace Feld {
inline const QString wert = QStringLiteral("value");
inline const QString einheit = QStringLiteral("unit");
inline const QString bezug = QStringLiteral("reference");
inline const QString prozent = QStringLiteral("percent");
inline const QString verdikt = QStringLiteral("verdict");
} // namespace Feld

/// A thing of which nothing but a value is told.
Posten einfach(const char *name, const QJsonValue &inhalt);

/// Things of one kind.
struct Abschnitt
{
    QString name;
    QList<Posten> posten;
    /// What the name of a thing is called where the things are a list in an order of their own;
    /// null: they are found by their names.
    QString namensfeld = {};
};

/// The name of a value, such as "vitamin_c", and of a rating, such as "gout".
QString kennung(Naehrwert wert);
QString kennung(Wertung wertung);

/// A number of single precision as the shortest decimal number that means it; nothing (null) for
/// one that is not finite.
QJsonValue zahl(float wert);
QJsonValue zahl(double wert);

/// A text; nothing (null) for an absent one.
QJsonValue text(const QString &wert);

/// The verdict that a bar's code stands for: "good", "fair" or "poor"; nothing (null) for any other
/// code and for none.
QJsonValue urteil(std::optional<int> code);
QJsonValue urteil(Ampel farbe);

/// An object of the sections' names; in it the things by their names, or a list of them.
QByteArray alsJson(const QList<Abschnitt> &abschnitte);

/// A table: "section", "item" and a column for each of `spalten`, with a row for each thing; what
/// is not told of it stays empty.
QByteArray alsCsv(const QList<Abschnitt> &abschnitte, const QStringList &spalten);

} // namespace Programmform
