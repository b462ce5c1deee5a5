#include "Spaltenzahlen.h"

#include <QByteArray>
#include <QRegularExpression>

#include <algorithm>
#include <charconv>

namespace {

/// Sign, digits in front with or without groups of three, decimals, power of ten. A group of
/// thousands does not begin with 0: "0.123" has decimals.
QRegularExpression muster(QLatin1StringView dezimal, QLatin1StringView gruppe)
{
    return QRegularExpression(
        QStringLiteral("^([+\\-\u2212]?)([1-9]\\d{0,2}(?:%2\\d{3})+|"
                       "[1-9]\\d{0,2}(?:[ \u00A0\u2009\u202F]\\d{3})+|"
                       "[1-9]\\d{0,2}(?:['\u2019]\\d{3})+|\\d*)(?:%1(\\d*))?([eE][+\\-]?\\d+)?$")
            .arg(dezimal, gruppe));
}

/// The number as C writes it; empty for what is none.
QByteArray normiert(const QString &text, Zahlenschrift schrift)
{
    static const QRegularExpression mitKomma =
        muster(QLatin1StringView(","), QLatin1StringView("\\."));
    static const QRegularExpression mitPunkt =
        muster(QLatin1StringView("\\."), QLatin1StringView(","));
    const auto teile =
        (schrift == Zahlenschrift::Komma ? mitKomma : mitPunkt).match(text.trimmed());
    QByteArray ganze;
    for (const QChar zeichen : teile.captured(2)) {
        if (zeichen.isDigit()) {
            ganze += zeichen.toLatin1();
        }
    }
    const QByteArray bruch = teile.captured(3).toLatin1();
    if (ganze.isEmpty() && bruch.isEmpty()) {
        return {};
    }
    const QByteArray vorzeichen =
        teile.captured(1).isEmpty() || teile.captured(1) == QLatin1String("+") ? "" : "-";
    return vorzeichen + (ganze.isEmpty() ? "0" : ganze) + '.' + (bruch.isEmpty() ? "0" : bruch) +
           teile.captured(4).toLatin1();
}

template <typename Zahl>
std::optional<Zahl> zahlAus(const QString &text, Zahlenschrift schrift)
{
    QByteArray ziffern = normiert(text, schrift);
    ziffern.replace("e+", "e").replace("E+", "E");
    Zahl zahl = 0;
    const auto [ende, fehler] =
        std::from_chars(ziffern.constData(), ziffern.constData() + ziffern.size(), zahl);
    return fehler == std::errc() && !ziffern.isEmpty() ? std::optional(zahl) : std::nullopt;
}

/// How a column is written, by the cells that leave no choice; absent where none does.
std::optional<Zahlenschrift> ausDenZellen(const QStringList &zellen)
{
    qsizetype komma = 0;
    qsizetype punkt = 0;
    for (const QString &zelle : zellen) {
        const bool mitKomma = doppelteZahl(zelle, Zahlenschrift::Komma).has_value();
        const bool mitPunkt = doppelteZahl(zelle, Zahlenschrift::Punkt).has_value();
        komma += mitKomma && !mitPunkt ? 1 : 0;
        punkt += mitPunkt && !mitKomma ? 1 : 0;
    }
    if (komma == punkt) {
        return std::nullopt;
    }
    return komma > punkt ? Zahlenschrift::Komma : Zahlenschrift::Punkt;
}

} // namespace

std::optional<float> einfacheZahl(const QString &text, Zahlenschrift schrift)
{
    return zahlAus<float>(text, schrift);
}

std::optional<double> doppelteZahl(const QString &text, Zahlenschrift schrift)
{
    return zahlAus<double>(text, schrift);
}

bool istMehrdeutig(const QString &text)
{
    const auto komma = doppelteZahl(text, Zahlenschrift::Komma);
    const auto punkt = doppelteZahl(text, Zahlenschrift::Punkt);
    return komma && punkt && *komma != *punkt;
}

QList<Zahlenschrift> zahlenschriften(const QList<QStringList> &spalten, Zahlenschrift sonst)
{
    QList<std::optional<Zahlenschrift>> entschieden;
    for (const QStringList &zellen : spalten) {
        entschieden << ausDenZellen(zellen);
    }
    const auto komma = std::count(entschieden.begin(), entschieden.end(), Zahlenschrift::Komma);
    const auto punkt = std::count(entschieden.begin(), entschieden.end(), Zahlenschrift::Punkt);
    const Zahlenschrift uebrige = komma == punkt  ? sonst
                                  : komma > punkt ? Zahlenschrift::Komma
                                                  : Zahlenschrift::Punkt;
    QList<Zahlenschrift> schriften;
    for (const auto &eine : entschieden) {
        schriften << eine.value_or(uebrige);
    }
    return schriften;
}
