#include "Archiver.h"

#include "Archivformat.h"
#include "Archivstrom.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

using namespace Archivformat;

namespace {

/// Something in the stream that later parts may refer to by its number.
struct Nummeriertes
{
    enum class Art : quint8 { Klasse, Unfertig, Text, Lebensmittel };
    Art art = Art::Unfertig;
    Klasse klasse = Klasse::Keine; ///< for a class
    quint32 platz = 0;             ///< for a text or a food: its place in the list of those
};
using Art = Nummeriertes::Art;

/// How an object begins: nothing, one that was met before, or a new one of some class.
struct Objektanfang
{
    enum class Form : quint8 { Nil, Bekannt, Neu };
    Form form = Form::Nil;
    std::size_t nummer = 0;
    Klasse klasse = Klasse::Keine; ///< for a new one
    qsizetype position = 0;        ///< where it begins
};
using Form = Objektanfang::Form;

/// Walks the one shape that a store of foods has: a dictionary of texts and records, each record of
/// a name, seventeen values and four ratings. The shape fixes the depth, so nothing here calls
/// itself, however deeply a bad file nests.
///
/// What is read is kept once and in pieces that never move, so that a file takes little more memory
/// than the store that it holds.
class Archivleser
{
public:
    explicit Archivleser(QByteArrayView bytes) : m_strom(bytes) {}
    Archiver::Ergebnis lesen();

private:
    void leseVorspann();
    qint32 leseVerzeichnis();
    qint32 leseAnzahl();
    QString leseText();
    void leseEintrag(const QString &schluessel);
    const Datenmodul *trageEin(const QString &schluessel, const Datenmodul &lebensmittel);
    void leseFelder(Datenmodul &lebensmittel);

    Objektanfang leseObjektanfang();
    QString leseTextinhalt(std::size_t nummer);
    const Nummeriertes &verweis(const Objektanfang &anfang, Art art);
    Klasse leseKlasse();
    std::pair<Klasse, bool> leseKlassenglied();
    Klasse leseNeueKlasse();
    QByteArrayView leseKennung();
    void erwarteTyp(char typ);
    void erwarteEnde();
    std::size_t verweisnummer(quint8 kopf, std::size_t anzahl);
    void meldeFalscheKlasse(const Objektanfang &anfang, const QString &gesucht);

    using Verzeichnis = std::map<QString, Datenmodul>;

    Archivstrom m_strom;
    std::deque<QByteArrayView> m_kennungen;
    std::deque<Nummeriertes> m_nummeriert;
    std::deque<QString> m_texte;
    std::deque<const Datenmodul *> m_lebensmittel; ///< each in one of the two below
    Verzeichnis m_verzeichnis;
    std::multimap<QString, Datenmodul> m_abgeloeste; ///< of names that stood there again later
    std::array<QString, 128> m_zeichen; ///< the texts of one letter that were met, mostly ratings
};

/// The fewest bytes of an entry: twice a type and a reference.
constexpr qsizetype kleinsterEintrag = 4;

/// A food that is only referred to takes some 30 times its bytes in memory. No program ever wrote
/// such a file, so beyond some entries each must have room for a food of its own: the types and
/// beginnings of two objects, a name, seventeen values, four ratings and an end.
constexpr qsizetype kleinsterEigener = 50;
constexpr qint32 stetsErlaubt = 1000;

/// A text from the file as it may stand in a reason: not too long, and without bytes that a
/// terminal would obey.
QString zitat(QByteArrayView roh)
{
    constexpr qsizetype laengstes = 40;
    QByteArray anfang = roh.first(std::min(roh.size(), laengstes)).toByteArray();
    std::replace_if(
        anfang.begin(), anfang.end(), [](char zeichen) { return zeichen < ' ' || zeichen > '~'; },
        '?');
    return QLatin1Char('"') + QString::fromLatin1(anfang) + QLatin1Char('"');
}

Archiver::Ergebnis Archivleser::lesen()
{
    leseVorspann();
    Archiver::Ergebnis ergebnis;
    ergebnis.eintraege = leseVerzeichnis();
    if (!m_strom.heil()) {
        Archiver::Ergebnis schaden;
        schaden.position = m_strom.schadensort();
        schaden.grund = m_strom.grund();
        return schaden;
    }
    ergebnis.zustand = Archiver::Zustand::Gelesen;
    ergebnis.verzeichnis = Lebensmittelverzeichnis(std::move(m_verzeichnis));
    ergebnis.rest = m_strom.rest();
    return ergebnis;
}

void Archivleser::leseVorspann()
{
    if (m_strom.byte() != streamfassung) {
        m_strom.melde(0, QStringLiteral("the file does not begin as an archive"));
    }
    const quint8 laenge = m_strom.byte();
    const QByteArrayView signatur = m_strom.bytes(signaturLittleEndian.size());
    const bool bigEndian = signatur == signaturBigEndian;
    if (laenge != signatur.size() || (!bigEndian && signatur != signaturLittleEndian)) {
        m_strom.melde(1, QStringLiteral("the signature of an archive is missing"));
    }
    m_strom.setBigEndian(bigEndian);
    m_strom.ganzzahl(); // the version of the system that wrote it
}

/// The root: the number of entries, which is the answer, then for each a name and a food.
qint32 Archivleser::leseVerzeichnis()
{
    const Objektanfang anfang = leseObjektanfang();
    if (anfang.form != Form::Neu ||
        (anfang.klasse != Klasse::Verzeichnis && anfang.klasse != Klasse::VerzeichnisVar)) {
        meldeFalscheKlasse(anfang, QStringLiteral("a dictionary"));
    }
    const qint32 anzahl = leseAnzahl();
    for (qint32 i = 0; i < anzahl && m_strom.heil(); ++i) {
        const qsizetype ort = m_strom.position();
        const QString schluessel = leseText();
        if (schluessel.isNull()) {
            m_strom.melde(ort, QStringLiteral("an entry has no name"));
        }
        leseEintrag(schluessel);
    }
    erwarteEnde();
    return anzahl;
}

/// The number of entries; a fault when the bytes left can't hold so many.
qint32 Archivleser::leseAnzahl()
{
    erwarteTyp(Typ::ganzzahl);
    const qsizetype position = m_strom.position();
    const qint32 anzahl = m_strom.ganzzahl();
    const qsizetype kleinster = anzahl > stetsErlaubt ? kleinsterEigener : kleinsterEintrag;
    if (anzahl < 0 || anzahl > m_strom.rest() / kleinster) {
        m_strom.melde(position, QStringLiteral("%1 entries can't follow").arg(anzahl));
    }
    return anzahl;
}

/// A text; null when it is absent, and after a fault.
QString Archivleser::leseText()
{
    const Objektanfang anfang = leseObjektanfang();
    if (!m_strom.heil() || anfang.form == Form::Nil) {
        return {};
    }
    if (anfang.form == Form::Bekannt) {
        const Nummeriertes &bekannt = verweis(anfang, Art::Text);
        return m_strom.heil() ? m_texte[bekannt.platz] : QString();
    }
    if (anfang.klasse != Klasse::Text && anfang.klasse != Klasse::TextVar) {
        meldeFalscheKlasse(anfang, QStringLiteral("a text"));
        return {};
    }
    return leseTextinhalt(anfang.nummer);
}

QString Archivleser::leseTextinhalt(std::size_t nummer)
{
    erwarteTyp(Typ::bytes);
    const qsizetype laenge = m_strom.laenge();
    const qsizetype position = m_strom.position();
    const QByteArrayView roh = m_strom.bytes(laenge);

    // Decoded so that a name may begin with a byte order mark, and a broken one is noticed.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom |
                                                       QStringConverter::Flag::Stateless);
    QString text = roh.isEmpty() ? QString(QLatin1String("")) : QString(decoder.decode(roh));
    if (text.size() == 1 && text.front().unicode() < m_zeichen.size()) {
        QString &bekannter = m_zeichen[text.front().unicode()];
        text = bekannter.isNull() ? bekannter = text : bekannter;
    }
    if (decoder.hasError()) {
        m_strom.melde(position, QStringLiteral("a text is not valid UTF-8"));
    }
    erwarteEnde();
    if (!m_strom.heil()) {
        return {};
    }
    m_nummeriert[nummer] = {Art::Text, Klasse::Keine, static_cast<quint32>(m_texte.size())};
    m_texte.push_back(text);
    return text;
}

/// The food of an entry, put into the store under its name.
void Archivleser::leseEintrag(const QString &schluessel)
{
    const Objektanfang anfang = leseObjektanfang();
    if (!m_strom.heil()) {
        return;
    }
    if (anfang.form == Form::Bekannt) {
        const quint32 platz = verweis(anfang, Art::Lebensmittel).platz;
        if (m_strom.heil()) {
            trageEin(schluessel, *m_lebensmittel[platz]);
        }
        return;
    }
    if (anfang.form == Form::Nil || anfang.klasse != Klasse::Lebensmittel) {
        meldeFalscheKlasse(anfang, QStringLiteral("a food"));
        return;
    }
    Datenmodul lebensmittel;
    leseFelder(lebensmittel);
    erwarteEnde();
    if (m_strom.heil()) {
        m_nummeriert[anfang.nummer] = {Art::Lebensmittel, Klasse::Keine,
                                       static_cast<quint32>(m_lebensmittel.size())};
        m_lebensmittel.push_back(trageEin(schluessel, lebensmittel));
    }
}

/// Where the food stands in the store. Of two under one name the later one counts; the earlier one
/// is kept as long as others may refer to it.
const Datenmodul *Archivleser::trageEin(const QString &schluessel, const Datenmodul &lebensmittel)
{
    // Most files are in order, so the end is the right place to look first.
    const std::size_t bisher = m_verzeichnis.size();
    auto platz = m_verzeichnis.try_emplace(m_verzeichnis.cend(), schluessel, lebensmittel);
    if (m_verzeichnis.size() == bisher) {
        m_abgeloeste.insert(m_verzeichnis.extract(platz));
        platz = m_verzeichnis.try_emplace(m_verzeichnis.cend(), schluessel, lebensmittel);
    }
    return &platz->second;
}

void Archivleser::leseFelder(Datenmodul &lebensmittel)
{
    lebensmittel.setName(leseText());
    for (const auto &zeile : naehrwerte) {
        erwarteTyp(Typ::gleitkomma);
        lebensmittel.setWert(zeile.wert, m_strom.gleitkommazahl());
    }
    for (const auto &zeile : wertungen) {
        lebensmittel.setWertung(zeile.wertung, leseText());
    }
}

/// The type of an object and its beginning. A new object takes its number before its class.
Objektanfang Archivleser::leseObjektanfang()
{
    erwarteTyp(Typ::objekt);
    Objektanfang anfang;
    anfang.position = m_strom.position();
    const quint8 kopf = m_strom.byte();
    if (!m_strom.heil() || kopf == Marke::nil) {
        return anfang;
    }
    if (kopf != Marke::neu) {
        anfang.form = Form::Bekannt;
        anfang.nummer = verweisnummer(kopf, m_nummeriert.size());
        return anfang;
    }
    anfang.form = Form::Neu;
    anfang.nummer = m_nummeriert.size();
    m_nummeriert.emplace_back();
    anfang.klasse = leseKlasse();
    return anfang;
}

/// What a reference means; a fault unless it is of the kind that the place asks for. An object that
/// is still being read is of no kind, so nothing can contain itself.
const Nummeriertes &Archivleser::verweis(const Objektanfang &anfang, Art art)
{
    static constexpr Nummeriertes nichts;
    if (!m_strom.heil()) {
        return nichts;
    }
    const Nummeriertes &ziel = m_nummeriert[anfang.nummer];
    if (ziel.art != art) {
        m_strom.melde(anfang.position, QStringLiteral("the reference to number %1 means a thing "
                                                      "that can't stand here")
                                           .arg(anfang.nummer));
        return nichts;
    }
    return ziel;
}

/// The class of an object. All classes above it must be the ones that it has in every file.
Klasse Archivleser::leseKlasse()
{
    const qsizetype position = m_strom.position();
    auto [klasse, neu] = leseKlassenglied();
    if (klasse == Klasse::Keine) {
        m_strom.melde(position, QStringLiteral("an object has no class"));
        return klasse;
    }
    Klasse glied = klasse;
    while (neu && m_strom.heil()) {
        const Klasse erwartet = beschreibung(glied).oberklasse;
        const qsizetype ort = m_strom.position();
        std::tie(glied, neu) = leseKlassenglied();
        if (glied != erwartet) {
            m_strom.melde(ort, QStringLiteral("a class has not the superclass that it should"));
        }
    }
    return klasse;
}

/// One class of a chain, and whether the next one follows because this one was new.
std::pair<Klasse, bool> Archivleser::leseKlassenglied()
{
    const qsizetype position = m_strom.position();
    const quint8 kopf = m_strom.byte();
    if (!m_strom.heil() || kopf == Marke::nil) {
        return {Klasse::Keine, false};
    }
    if (kopf == Marke::neu) {
        const Klasse klasse = leseNeueKlasse();
        return {klasse, klasse != Klasse::Keine};
    }
    Objektanfang anfang;
    anfang.position = position;
    anfang.nummer = verweisnummer(kopf, m_nummeriert.size());
    return {verweis(anfang, Art::Klasse).klasse, false};
}

/// Name and version of a class that is met first here; `Keine` after a fault.
Klasse Archivleser::leseNeueKlasse()
{
    const qsizetype position = m_strom.position();
    const QByteArrayView name = leseKennung();
    const auto *fund = std::find_if(klassen.begin(), klassen.end(),
                                    [name](const auto &zeile) { return zeile.name == name; });
    if (fund == klassen.end()) {
        m_strom.melde(position, QStringLiteral("the class %1 is not known here").arg(zitat(name)));
        return Klasse::Keine;
    }
    const qsizetype ort = m_strom.position();
    const qint32 fassung = m_strom.ganzzahl();
    if (fassung != fund->fassung) {
        m_strom.melde(ort, QStringLiteral("version %1 of the class %2 is not known here")
                               .arg(fassung)
                               .arg(zitat(name)));
        return Klasse::Keine;
    }
    const auto klasse = static_cast<Klasse>(fund - klassen.begin());
    m_nummeriert.push_back({Art::Klasse, klasse, 0});
    return klasse;
}

/// A type code or a class name, each of which is spelled out once and then referred to; empty after
/// a fault.
QByteArrayView Archivleser::leseKennung()
{
    const quint8 kopf = m_strom.byte();
    if (kopf == Marke::neu) {
        const QByteArrayView kennung = m_strom.bytes(m_strom.laenge());
        m_kennungen.push_back(kennung);
        return kennung;
    }
    const std::size_t nummer = verweisnummer(kopf, m_kennungen.size());
    return m_strom.heil() ? m_kennungen[nummer] : QByteArrayView();
}

void Archivleser::erwarteTyp(char typ)
{
    const qsizetype position = m_strom.position();
    const QByteArrayView kennung = leseKennung();
    if (kennung.size() != 1 || kennung.front() != typ) {
        m_strom.melde(position,
                      QStringLiteral("a value of type \"%1\" should stand here, not of %2")
                          .arg(QString(QLatin1Char(typ)), zitat(kennung)));
    }
}

void Archivleser::erwarteEnde()
{
    const qsizetype position = m_strom.position();
    if (m_strom.byte() != Marke::ende) {
        m_strom.melde(position, QStringLiteral("an object should end here"));
    }
}

/// The number meant by a reference that begins with this byte; 0 after a fault.
std::size_t Archivleser::verweisnummer(quint8 kopf, std::size_t anzahl)
{
    const qsizetype position = m_strom.position() - 1;
    const qint64 nummer = qint64(m_strom.ganzzahlNach(kopf)) - kleinsteEinzelne;
    if (nummer < 0 || nummer >= static_cast<qint64>(anzahl)) {
        m_strom.melde(
            position,
            QStringLiteral("number %1 is referred to, but nothing had it yet").arg(nummer));
        return 0;
    }
    return static_cast<std::size_t>(nummer);
}

void Archivleser::meldeFalscheKlasse(const Objektanfang &anfang, const QString &gesucht)
{
    const bool neu = anfang.form == Form::Neu && anfang.klasse != Klasse::Keine;
    const QString gefunden =
        neu ? QString::fromLatin1(beschreibung(anfang.klasse).name) : QStringLiteral("nothing");
    m_strom.melde(anfang.position,
                  QStringLiteral("%1 should stand here, not %2").arg(gesucht, gefunden));
}

} // namespace

Archiver::Ergebnis Archiver::read(QByteArrayView bytes)
{
    return Archivleser(bytes).lesen();
}
