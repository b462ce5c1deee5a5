#include "Wertehalter.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>
#include <limits>

double zahlAusText(const QString &text)
{
    static const QRegularExpression vorn(
        QStringLiteral("^\\s*([+-]?)((?:\\d[\\d.,]*|[.,]\\d+)(?:[eE][+-]?\\d+)?)"));
    const auto treffer = vorn.match(text);
    if (!treffer.hasMatch()) {
        return 0;
    }
    QString ziffern = treffer.captured(2);
    while (ziffern.endsWith(u'.') || ziffern.endsWith(u',')) {
        ziffern.chop(1);
    }

    // "0.125" is a small number everywhere; no one groups thousands behind a leading zero.
    static const QRegularExpression nullPunkt(QStringLiteral("^0*[.,]"));
    bool lesbar = false;
    double zahl = 0;
    if (!nullPunkt.match(ziffern).hasMatch()) {
        zahl = QLocale().toDouble(ziffern, &lesbar);
    }
    if (!lesbar) {
        zahl = QLocale::c().toDouble(ziffern.replace(u',', u'.'), &lesbar);
    }
    if (!lesbar) {
        return 0;
    }
    return treffer.captured(1) == QLatin1String("-") ? -zahl : zahl;
}

double Wertehalter::doubleValue() const
{
    if (const auto *zahl = std::get_if<double>(&m_wert)) {
        return *zahl;
    }
    return textZahl(std::get<QString>(m_wert));
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
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(zahl, 'g', 6);
}
