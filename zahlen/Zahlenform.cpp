#include "Zahlenform.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

bool zeigtMehrAlsNullen(const QString &text)
{
    static const QRegularExpression bedeutsam(QStringLiteral("[1-9]"));
    return text.contains(bedeutsam);
}

} // namespace

QLocale zahlenform()
{
    QLocale form;
    form.setNumberOptions(QLocale::OmitGroupSeparator);
    return form;
}

QString wertText(double zahl, int nachkommastellen)
{
    return wertText(zahl, nachkommastellen, zahlenform());
}

QString wertText(double zahl, int nachkommastellen, const QLocale &land)
{
    constexpr int meisteStellen = 6;
    QString text = land.toString(zahl == 0 ? 0.0 : zahl, 'f', nachkommastellen);
    if (zahl == 0 || !std::isfinite(zahl) || zeigtMehrAlsNullen(text)) {
        return text;
    }
    // Rounded to one digit first: 0.01 in single precision is a little less than that.
    const int stellen = -QString::number(zahl, 'e', 0).section(u'e', 1).toInt();
    return stellen <= meisteStellen ? land.toString(zahl, 'f', stellen)
                                    : land.toString(zahl, 'e', 0);
}

QString wertText(double zahl, int nachkommastellen, int bedeutsameStellen)
{
    constexpr int meisteStellen = 3; // more of them help nobody
    if (bedeutsameStellen <= 0 || zahl == 0 || !std::isfinite(zahl)) {
        return wertText(zahl, nachkommastellen);
    }
    const int fuehrend = static_cast<int>(std::floor(std::log10(std::fabs(zahl))));
    return wertText(zahl, std::clamp(bedeutsameStellen - 1 - fuehrend, nachkommastellen,
                                     std::max(nachkommastellen, meisteStellen)));
}
