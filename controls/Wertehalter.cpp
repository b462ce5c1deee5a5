#include "Wertehalter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The same digits as programs write them: no mark between the thousands, a point before the
/// decimals.
QString ohneTausender(QString ziffern)
{
    static const QRegularExpression leerraum(QStringLiteral("\\h"));
    ziffern.remove(leerraum);
    const qsizetype letzte = std::max(ziffern.lastIndexOf(u'.'), ziffern.lastIndexOf(u','));
    if (letzte < 0) {
        return ziffern;
    }
    const QString trennung = ziffern.count(ziffern[letzte]) == 1 ? QStringLiteral(".") : QString();
    const QString dahinter = ziffern.mid(letzte + 1);
    return ziffern.left(letzte).remove(u'.').remove(u',') + trennung + dahinter;
}

} // namespace

double zahlAusText(const QString &text)
{
    static const QRegularExpression vorn(QStringLiteral(
        "^[\\s\\h]*([+-]?)(\\d(?:[\\d.,]|\\h(?=\\d))*|[.,]\\d+)((?:[eE][+-]?\\d+)?)"));
    const auto treffer = vorn.match(text);
    if (!treffer.hasMatch()) {
        return 0;
    }
    return QLocale::c().toDouble(treffer.captured(1) + ohneTausender(treffer.captured(2)) +
                                 treffer.captured(3));
}

bool entferneTausender(QString &ziffern, int &stelle)
{
    static const QRegularExpression einfach(QStringLiteral("^\\d*[.,]?\\d*$"));
    static const QRegularExpression gruppen(
        QStringLiteral("^\\d{1,3}([.,\\h])\\d{3}(?:\\1\\d{3})*(?:\\1|[.,]\\d*)?$"));
    if (einfach.match(ziffern).hasMatch()) {
        return true;
    }
    const auto treffer = gruppen.match(ziffern);
    if (!treffer.hasMatch()) {
        return false;
    }
    const QString trenner = treffer.captured(1);
    stelle -= static_cast<int>(ziffern.left(stelle).count(trenner));
    ziffern.remove(trenner);
    return true;
}

double Wertehalter::doubleValue() const
{
    if (const auto *zahl = std::get_if<double>(&m_wert)) {
        return *zahl;
    }
    return zahlAusText(std::get<QString>(m_wert));
}

int Wertehalter::intValue() const
{
    const double zahl = doubleValue();
    if (std::isnan(zahl)) {
        return 0;
    }
    constexpr double kleinste = std::numeric_limits<int>::min();
    constexpr double groesste = std::numeric_limits<int>::max();
    return static_cast<int>(std::fmin(std::fmax(zahl, kleinste), groesste));
}

QString Wertehalter::stringValue() const
{
    if (const auto *zahl = std::get_if<double>(&m_wert)) {
        return zahlText(*zahl);
    }
    return std::get<QString>(m_wert);
}

void Wertehalter::setDoubleValue(double zahl)
{
    m_wert = zahl;
    wertGesetzt();
}

void Wertehalter::setStringValue(const QString &text)
{
    m_wert = text;
    wertGesetzt();
}

QString Wertehalter::zahlText(double zahl) const
{
    return zahlenform().toString(zahl, 'g', 6);
}
