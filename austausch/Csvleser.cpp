#include "Csvleser.h"

#include "Csv.h"

#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Csv {

namespace {

/// What the bytes 0x80 to 0x9F are in Windows-1252; those that it leaves open stay what they are.
constexpr std::array<char16_t, 32> obenInWindows = {
    u'\u20AC', u'\x81',   u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\x8D',   u'\u017D', u'\x8F',
    u'\x90',   u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\x9D',   u'\u017E', u'\u0178'};
constexpr char16_t ersterOben = 0x80;

QString ausWindows(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &zeichen : text) {
        const unsigned stelle = zeichen.unicode() - ersterOben;
        if (stelle < obenInWindows.size()) {
            zeichen = QChar(obenInWindows[stelle]);
        }
    }
    return text;
}

/// Without a mark: letters of Europe have a zero on one side, and on the other side none is.
std::optional<QStringDecoder::Encoding> utf16OhneMarke(QByteArrayView bytes)
{
    std::array<qsizetype, 2> nullen = {0, 0};
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        nullen.at(i % 2 == 0 ? 0 : 1) += bytes[i] == 0 ? 1 : 0;
    }
    const bool gerade = bytes.size() % 2 == 0;
    const auto einseitig = [&](qsizetype mit, qsizetype ohne) {
        return gerade && ohne == 0 && mit > bytes.size() / 4;
    };
    if (einseitig(nullen[1], nullen[0])) {
        return QStringDecoder::Utf16LE;
    }
    return einseitig(nullen[0], nullen[1]) ? std::optional(QStringDecoder::Utf16BE) : std::nullopt;
}

bool istText(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar zeichen) {
        return zeichen < u' ' && zeichen != u'\t' && zeichen != u'\n' && zeichen != u'\r';
    });
}

Rohtext gelesen(const QString &text, const QString &zeichensatz, bool fehler = false)
{
    return fehler || !istText(text)   ? Rohtext{Lesefehler::KeinText, {}, {}}
           : text.trimmed().isEmpty() ? Rohtext{Lesefehler::Leer, {}, {}}
                                      : Rohtext{Lesefehler::Keiner, text, zeichensatz};
}

Rohtext gelesen(QByteArrayView bytes, QStringDecoder::Encoding kodierung)
{
    QStringDecoder leser(kodierung);
    const QString text = leser(bytes);
    return gelesen(text, kodierung == QStringDecoder::Utf8 ? u"UTF-8"_s : u"UTF-16"_s,
                   leser.hasError());
}

/// The separator that a first line "sep=;" names, as spreadsheets write and obey it.
std::optional<QChar> genanntesTrennzeichen(const QString &text)
{
    const bool nennt = text.startsWith("sep="_L1, Qt::CaseInsensitive) && text.size() > 4 &&
                       (text.size() == 5 || text[5] == u'\n' || text[5] == u'\r');
    return nennt ? std::optional(text[4]) : std::nullopt;
}

/// Walks through a text sign by sign and puts its rows together.
class Zerleger
{
public:
    Zerleger(const QString &text, QChar trennung) : m_text(text), m_trennung(trennung) {}

    Saetze zerlege();

private:
    bool trennt(QChar zeichen) const;
    bool endetZeile();
    void liesZitat();
    void beendeFeld();
    void beendeSatz();

    const QString &m_text;
    QChar m_trennung;
    qsizetype m_ort = 0;
    int m_zeile = 1;
    Saetze m_ergebnis;
    Satz m_satz = {1, {}};
    QString m_feld;
    bool m_zitiert = false;
    bool m_zeichenImSatz = false;
};

/// Whether something may end or begin with this sign.
bool Zerleger::trennt(QChar zeichen) const
{
    return zeichen == m_trennung || zeichen == u'"' || zeichen == u'\n' || zeichen == u'\r' ||
           (m_zitiert && zeichen.isSpace());
}

/// Steps over the end of a line, if there is one here.
bool Zerleger::endetZeile()
{
    const QChar zeichen = m_text[m_ort];
    if (zeichen != u'\n' && zeichen != u'\r') {
        return false;
    }
    const bool zwei = zeichen == u'\r' && m_ort + 1 < m_text.size() && m_text[m_ort + 1] == u'\n';
    m_ort += zwei ? 2 : 1;
    ++m_zeile;
    return true;
}

/// Reads up to the quote that ends the field, its ends of lines as they stand.
void Zerleger::liesZitat()
{
    const int begonnen = m_zeile;
    ++m_ort;
    m_zitiert = true;
    while (m_ort < m_text.size()) {
        const qsizetype vorher = m_ort;
        if (m_text[m_ort] == u'"') {
            const bool zwei = m_ort + 1 < m_text.size() && m_text[m_ort + 1] == u'"';
            m_ort += zwei ? 2 : 1;
            if (!zwei) {
                return;
            }
            m_feld += u'"';
        } else if (endetZeile()) {
            m_feld += QStringView(m_text).sliced(vorher, m_ort - vorher);
        } else {
            m_feld += m_text[m_ort++];
        }
    }
    m_ergebnis.offeneZeile = begonnen;
}

void Zerleger::beendeFeld()
{
    const QString feld = m_zitiert ? m_feld : m_feld.trimmed();
    m_satz.felder << (feld.isEmpty() && !m_zitiert ? QString() : ungeschuetzt(feld));
    m_feld = QString();
    m_zitiert = false;
}

void Zerleger::beendeSatz()
{
    if (m_zeichenImSatz) {
        beendeFeld();
        m_ergebnis.saetze << m_satz;
    }
    m_satz = {m_zeile, {}};
    m_zeichenImSatz = false;
}

Saetze Zerleger::zerlege()
{
    if (genanntesTrennzeichen(m_text)) {
        m_ort = 5;
        m_satz.zeile = m_ort < m_text.size() && endetZeile() ? m_zeile : 1;
    }
    while (m_ort < m_text.size()) {
        if (endetZeile()) {
            beendeSatz();
            continue;
        }
        m_zeichenImSatz = true;
        if (m_text[m_ort] == m_trennung) {
            beendeFeld();
            ++m_ort;
        } else if (m_text[m_ort] == u'"' && m_feld.trimmed().isEmpty() && !m_zitiert) {
            m_feld = u""_s;
            liesZitat();
        } else if (m_zitiert && m_text[m_ort].isSpace()) {
            ++m_ort;
        } else {
            const qsizetype anfang = m_ort++;
            while (m_ort < m_text.size() && !trennt(m_text[m_ort])) {
                ++m_ort;
            }
            m_feld += QStringView(m_text).sliced(anfang, m_ort - anfang);
        }
    }
    beendeSatz();
    return m_ergebnis.saetze.size() > meisteZeilen ? Saetze{Lesefehler::ZuVieleZeilen, {}, 0}
                                                   : m_ergebnis;
}

} // namespace

Rohtext entschluesseln(QByteArrayView bytes)
{
    if (bytes.size() > groessteDatei) {
        return {Lesefehler::ZuGross, {}, {}};
    }
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return gelesen(bytes, QStringDecoder::Utf8);
    }
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        return bytes.size() % 2 == 0 ? gelesen(bytes, QStringDecoder::Utf16)
                                     : Rohtext{Lesefehler::KeinText, {}, {}};
    }
    if (bytes.contains('\0')) {
        const auto kodierung = utf16OhneMarke(bytes);
        return kodierung ? gelesen(bytes, *kodierung) : Rohtext{Lesefehler::KeinText, {}, {}};
    }
    const Rohtext utf8 = gelesen(bytes, QStringDecoder::Utf8);
    return utf8.fehler == Lesefehler::KeinText ? gelesen(ausWindows(bytes), u"Windows-1252"_s)
                                               : utf8;
}

const QList<QChar> &trennungen()
{
    static const QList<QChar> alle = {u';', u',', u'\t', u'|'};
    return alle;
}

QChar geratenesTrennzeichen(const QString &text)
{
    if (const auto genannt = genanntesTrennzeichen(text)) {
        return *genannt;
    }
    QChar bestes = u';';
    qsizetype beste = 0;
    for (const QChar trennung : trennungen()) {
        const QList<Satz> saetze = zerlegen(text, trennung).saetze;
        const qsizetype breite = saetze.isEmpty() ? 0 : saetze.first().felder.size();
        const auto gleichbreite =
            std::count_if(saetze.begin(), saetze.end(),
                          [breite](const Satz &satz) { return satz.felder.size() == breite; });
        if (breite > 1 && gleichbreite > beste) {
            bestes = trennung;
            beste = gleichbreite;
        }
    }
    return bestes;
}

Saetze zerlegen(const QString &text, QChar trennung)
{
    return Zerleger(text, trennung).zerlege();
}

} // namespace Csv
