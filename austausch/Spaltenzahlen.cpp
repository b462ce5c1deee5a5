#include "Spaltenzahlen.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>

namespace {

bool nurZiffern(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar zeichen) { return zeichen >= u'0' && zeichen <= u'9'; });
}

/// What may stand between the thousands: the sign that is not before the decimals, blanks of all
/// widths, and the apostrophes of Switzerland.
bool istGruppenzeichen(QChar zeichen, Zahlenschrift schrift)
{
    return zeichen == (schrift == Zahlenschrift::Komma ? u'.' : u',') ||
           QStringView(u" \u00A0\u2009\u202F'\u2019").contains(zeichen);
}

/// The digits in front of the decimals without what parts the thousands; absent where groups of
/// three are not what is parted. A group of thousands does not begin with 0: "0.123" has decimals.
std::optional<QString> ohneGruppen(QStringView ganze, Zahlenschrift schrift)
{
    const auto trennung = std::find_if(ganze.begin(), ganze.end(), [schrift](QChar zeichen) {
        return istGruppenzeichen(zeichen, schrift);
    });
    if (trennung == ganze.end()) {
        return nurZiffern(ganze) ? std::optional(ganze.toString()) : std::nullopt;
    }
    const QList<QStringView> gruppen = ganze.split(*trennung);
    const bool dreier = std::all_of(gruppen.begin() + 1, gruppen.end(), [](QStringView gruppe) {
        return gruppe.size() == 3 && nurZiffern(gruppe);
    });
    const QStringView erste = gruppen.first();
    const bool anfang = !erste.isEmpty() && erste.size() <= 3 && erste.front() != u'0';
    return dreier && anfang && nurZiffern(erste) ? std::optional(ganze.toString().remove(*trennung))
                                                 : std::nullopt;
}

/// The number as C writes it; empty for what is none.
QByteArray normiert(const QString &text, Zahlenschrift schrift)
{
    QStringView rest = QStringView(text).trimmed();
    const bool minus = rest.startsWith(u'-') || rest.startsWith(u'\u2212');
    rest = minus || rest.startsWith(u'+') ? rest.sliced(1) : rest;
    const qsizetype potenz = rest.indexOf(u'e', 0, Qt::CaseInsensitive);
    QStringView hoch = potenz < 0 ? QStringView() : rest.sliced(potenz + 1);
    const bool hochMinus = hoch.startsWith(u'-');
    hoch = hochMinus || hoch.startsWith(u'+') ? hoch.sliced(1) : hoch;
    rest = potenz < 0 ? rest : rest.first(potenz);
    const qsizetype dezimal = rest.indexOf(schrift == Zahlenschrift::Komma ? u',' : u'.');
    const QStringView bruch = dezimal < 0 ? QStringView() : rest.sliced(dezimal + 1);
    const auto ganze = ohneGruppen(dezimal < 0 ? rest : rest.first(dezimal), schrift);
    if (!ganze || ganze->size() + bruch.size() == 0 || !nurZiffern(bruch) || !nurZiffern(hoch) ||
        (potenz >= 0 && hoch.isEmpty())) {
        return {};
    }
    return (minus ? "-0" : "0") + ganze->toLatin1() + '.' + bruch.toLatin1() + '0' +
           (hochMinus ? "e-0" : "e0") + hoch.toLatin1();
}

template <typename Zahl>
std::optional<Zahl> zahlAus(const QString &text, Zahlenschrift schrift)
{
    const QByteArray ziffern = normiert(text, schrift);
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
