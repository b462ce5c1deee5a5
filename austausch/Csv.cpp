#include "Csv.h"

#include <array>
#include <charconv>
#include <cmath>

namespace Csv {

namespace {

constexpr QChar schutz = u'\'';

/// Whether a spreadsheet runs this, whatever number of marks stands in front of it. The wide signs
/// are those of East Asian keyboards.
bool istFormel(QStringView text)
{
    while (text.startsWith(schutz)) {
        text = text.sliced(1);
    }
    if (text.startsWith(u'\t') || text.startsWith(u'\r') || text.startsWith(u'\n')) {
        return true;
    }
    text = text.trimmed();
    return !text.isEmpty() && QStringView(u"=+-@\uFF1D\uFF0B\uFF0D\uFF20").contains(text.front());
}

/// Long enough for the smallest double with all its zeros.
constexpr std::size_t laengsteZahl = 1100;

template <typename Zahl>
QString dezimalzahl(Zahl zahl, QChar dezimal)
{
    std::array<char, laengsteZahl> puffer = {};
    const auto ende =
        std::to_chars(puffer.data(), puffer.data() + puffer.size(), zahl, std::chars_format::fixed)
            .ptr;
    return QString::fromLatin1(puffer.data(), ende - puffer.data()).replace(u'.', dezimal);
}

/// A text as it stands between two separators. An empty one is told from an absent one by its
/// quotes.
QString feld(const QString &text, QChar trennung)
{
    const bool braucht = text.isEmpty() || text.front().isSpace() || text.back().isSpace() ||
                         text.contains(trennung) || text.contains(u'"') || text.contains(u'\n') ||
                         text.contains(u'\r');
    if (text.isNull() || !braucht) {
        return text;
    }
    QString verdoppelt = text;
    return u'"' + verdoppelt.replace(u'"', QLatin1String("\"\"")) + u'"';
}

QString zellentext(const Zelle &zelle, const Form &form)
{
    const auto zahl = [&form](auto wert) {
        const QString text = zahltext(wert, form.dezimal);
        return feld(std::isfinite(wert) ? text : geschuetzt(text), form.trennung);
    };
    if (const auto *text = std::get_if<QString>(&zelle)) {
        return feld(geschuetzt(*text), form.trennung);
    }
    if (const auto *einfach = std::get_if<float>(&zelle)) {
        return zahl(*einfach);
    }
    if (const auto *doppelt = std::get_if<double>(&zelle)) {
        return zahl(*doppelt);
    }
    return {};
}

/// A line without any sign would not count as a row.
QString zeile(const QStringList &felder, const Form &form)
{
    const QString text = felder.join(form.trennung);
    return (text.isEmpty() ? QStringLiteral("\"\"") : text) + form.zeilenende;
}

} // namespace

Form formDesTabellenprogramms(const QLocale &locale)
{
    const bool komma = locale.decimalPoint() == QLatin1String(",");
    return {.trennung = komma ? u';' : u',',
            .dezimal = komma ? u',' : u'.',
            .marke = true,
            .zeilenende = QStringLiteral("\r\n")};
}

Form formFuerProgramme()
{
    return {};
}

QString zahltext(float zahl, QChar dezimal)
{
    return dezimalzahl(zahl, dezimal);
}

QString zahltext(double zahl, QChar dezimal)
{
    return dezimalzahl(zahl, dezimal);
}

QString geschuetzt(const QString &text)
{
    return istFormel(text) ? schutz + text : text;
}

QString ungeschuetzt(const QString &text)
{
    return text.startsWith(schutz) && istFormel(QStringView(text).sliced(1)) ? text.sliced(1)
                                                                             : text;
}

QByteArray schreiben(const Tabelle &tabelle, const Form &form)
{
    QStringList felder;
    for (const QString &spalte : tabelle.spalten) {
        felder << feld(geschuetzt(spalte), form.trennung);
    }
    QString text = (form.marke ? QString(QChar::ByteOrderMark) : QString()) + zeile(felder, form);
    for (const QList<Zelle> &zellen : tabelle.zeilen) {
        felder.clear();
        for (const Zelle &zelle : zellen) {
            felder << zellentext(zelle, form);
        }
        text += zeile(felder, form);
    }
    return text.toUtf8();
}

} // namespace Csv
