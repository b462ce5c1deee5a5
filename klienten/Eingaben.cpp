#include "Eingaben.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr int fruehestesJahr = 1000; // fewer digits are a slip

/// The day of a text with two marks, by the places at which day, month and year stand.
QDate ausTeilen(const QString &text, const QDate &heute, bool monatZuerst)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,2})[./-](\\d{1,2})[./-](\\d{2}|\\d{4})$"));
    const QRegularExpressionMatch teile = form.match(text);
    if (!teile.hasMatch()) {
        return {};
    }
    const int tag = teile.captured(monatZuerst ? 2 : 1).toInt();
    const int monat = teile.captured(monatZuerst ? 1 : 2).toInt();
    const int jahr = teile.captured(3).toInt();
    if (teile.capturedLength(3) == 4) {
        return QDate(jahr, monat, tag);
    }
    const QDate indiesem(heute.year() / 100 * 100 + jahr, monat, tag);
    return indiesem.isValid() && indiesem <= heute
               ? indiesem
               : QDate(heute.year() / 100 * 100 - 100 + jahr, monat, tag);
}

} // namespace

Eingelesenes<double> leseMass(const QString &text, const QString &einheit)
{
    QString zahl = text.simplified();
    if (!einheit.isEmpty() && zahl.endsWith(einheit, Qt::CaseInsensitive)) {
        zahl = zahl.chopped(einheit.size()).trimmed();
    }
    if (zahl.isEmpty()) {
        return {.lesbar = text.simplified().isEmpty()};
    }
    bool gelesen = false;
    const double wert = zahl.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&gelesen);
    if (!gelesen || !std::isfinite(wert) || wert < 0) {
        return {.lesbar = false};
    }
    return {.wert = wert};
}

Eingelesenes<QDate> leseTag(const QString &text, const QDate &heute)
{
    const QString form = text.simplified().remove(QLatin1Char(' '));
    if (form.isEmpty()) {
        return {};
    }
    QDate tag = QDate::fromString(form, Qt::ISODate);
    if (!tag.isValid()) {
        const bool monatZuerst =
            QLocale().dateFormat(QLocale::ShortFormat).startsWith(QLatin1Char('M'));
        tag = ausTeilen(form, heute, monatZuerst && form.contains(QLatin1Char('/')));
    }
    if (!tag.isValid() || tag.year() < fruehestesJahr) {
        return {.lesbar = false};
    }
    return {.wert = tag};
}
