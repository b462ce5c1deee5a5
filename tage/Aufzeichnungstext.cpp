#include "Aufzeichnungstext.h"

#include "Lebensmitteltext.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const QString artfeld = QStringLiteral("format");
const QString textart = QStringLiteral("Mahlberg days");
const QString formfeld = QStringLiteral("version");
constexpr int form = 1;

const QString titelfeld = QStringLiteral("title");
const QString sortefeld = QStringLiteral("kind");
const QString datumsfeld = QStringLiteral("start");
const QString mahlzeitenfeld = QStringLiteral("meals");
const QString tagefeld = QStringLiteral("days");
const QString notizfeld = QStringLiteral("note");
const QString mittelfeld = QStringLiteral("mean");
const QString zeilenfeld = QStringLiteral("rows");
const QString speisenfeld = QStringLiteral("foods");
const QString namensfeld = QStringLiteral("name");
const QString speisefeld = QStringLiteral("food");
const QString textfeld = QStringLiteral("text");
const QString angabefeld = QStringLiteral("amount");
const QString grammfeld = QStringLiteral("grams");
const QString oderfeld = QStringLiteral("or");

/// How the two kinds are called, in their order.
constexpr std::array<const char *, 2> sorten = {"record", "plan"};

/// The foods of a record, each kind of content once.
class Speisenliste
{
public:
    int stelleVon(const Mahlzeitzeile &zeile)
    {
        for (const int stelle : m_stellen.value(zeile.schluessel)) {
            const std::optional<Datenmodul> &andere = m_speisen[stelle].eintrag;
            if (andere.has_value() == zeile.eintrag.has_value() &&
                (!andere || gleicherInhalt(*andere, *zeile.eintrag))) {
                return stelle;
            }
        }
        const auto neue = static_cast<int>(m_speisen.size());
        m_speisen << zeile;
        m_stellen[zeile.schluessel] << neue;
        return neue;
    }

    QJsonArray alsJson() const
    {
        QJsonArray alle;
        for (const Mahlzeitzeile &speise : m_speisen) {
            QJsonObject eine{{namensfeld, speise.schluessel}};
            if (speise.eintrag) {
                Lebensmitteltext::fuegeHinzu(eine, *speise.eintrag);
            }
            alle.append(eine);
        }
        return alle;
    }

private:
    QList<Mahlzeitzeile> m_speisen;
    QHash<QString, QList<int>> m_stellen;
};

QJsonObject zeileAlsJson(const Mahlzeitzeile &zeile, Speisenliste &speisen)
{
    QJsonObject eine{{angabefeld, zeile.angabe}};
    if (zeile.schluessel.isNull()) {
        eine.insert(textfeld, zeile.text);
    } else {
        eine.insert(speisefeld, speisen.stelleVon(zeile));
    }
    if (zeile.gramm) {
        eine.insert(grammfeld, Lebensmitteltext::alsJson(*zeile.gramm));
    }
    if (zeile.oder) {
        eine.insert(oderfeld, true);
    }
    return eine;
}

QJsonObject tagAlsJson(const Tag &tag, Speisenliste &speisen)
{
    QJsonArray mahlzeiten;
    for (const Mahlzeit &mahlzeit : tag.mahlzeiten) {
        QJsonArray zeilen;
        for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
            zeilen.append(zeileAlsJson(zeile, speisen));
        }
        mahlzeiten.append(QJsonObject{{notizfeld, mahlzeit.notiz}, {zeilenfeld, zeilen}});
    }
    return {{notizfeld, tag.notiz}, {mittelfeld, tag.imMittel}, {mahlzeitenfeld, mahlzeiten}};
}

/// Reads a record. What can't be understood is named once, with the way to it, and the reading goes
/// on to nothing.
class Leser
{
public:
    explicit Leser(const QJsonObject &alles) : m_alles(alles) {}

    Aufzeichnung lies()
    {
        Aufzeichnung aufzeichnung;
        aufzeichnung.titel = m_alles.value(titelfeld).toString();
        const QString sorte = m_alles.value(sortefeld).toString();
        const auto art = std::find_if(sorten.begin(), sorten.end(), [&](const char *eine) {
            return sorte == QLatin1String(eine);
        });
        pruefe(art != sorten.end(), sortefeld);
        aufzeichnung.art = static_cast<Aufzeichnungsart>(art - sorten.begin());
        const QJsonValue datum = m_alles.value(datumsfeld);
        aufzeichnung.datum = QDate::fromString(datum.toString(), Qt::ISODate);
        pruefe(datum.isNull() || datum.isUndefined() || aufzeichnung.datum.isValid(), datumsfeld);
        const QJsonArray namen = m_alles.value(mahlzeitenfeld).toArray();
        for (const auto &name : namen) {
            pruefe(!name.toString().isEmpty(), mahlzeitenfeld);
            aufzeichnung.mahlzeiten << name.toString();
        }
        pruefe(!namen.isEmpty() && namen.size() <= meisteMahlzeiten, mahlzeitenfeld);
        liesSpeisen();
        const QJsonArray tage = m_alles.value(tagefeld).toArray();
        pruefe(!tage.isEmpty() && tage.size() <= meisteTage, tagefeld);
        for (qsizetype i = 0; i < tage.size() && m_mangel.isEmpty(); ++i) {
            aufzeichnung.tage << liesTag(tage[i].toObject(), namen.size(), glied(tagefeld, i));
        }
        return aufzeichnung;
    }

    const QString &mangel() const { return m_mangel; }

private:
    static QString glied(const QString &feld, qsizetype stelle)
    {
        return QStringLiteral("%1[%2]").arg(feld, QString::number(stelle));
    }

    void pruefe(bool gut, const QString &weg)
    {
        if (!gut && m_mangel.isEmpty()) {
            m_mangel = weg;
        }
    }

    void liesSpeisen()
    {
        const QJsonArray speisen = m_alles.value(speisenfeld).toArray();
        for (qsizetype i = 0; i < speisen.size() && m_mangel.isEmpty(); ++i) {
            const QJsonObject eine = speisen[i].toObject();
            Mahlzeitzeile speise;
            speise.schluessel = eine.value(namensfeld).toString();
            pruefe(!speise.schluessel.isNull(), glied(speisenfeld, i));
            if (Lebensmitteltext::enthaelt(eine)) {
                speise.eintrag = Lebensmitteltext::lies(eine, speise.schluessel);
                pruefe(speise.eintrag.has_value(), glied(speisenfeld, i));
            }
            m_speisen << speise;
        }
    }

    Tag liesTag(const QJsonObject &quelle, qsizetype anzahl, const QString &weg)
    {
        Tag tag;
        tag.notiz = quelle.value(notizfeld).toString();
        tag.imMittel = quelle.value(mittelfeld).toBool(true);
        const QJsonArray mahlzeiten = quelle.value(mahlzeitenfeld).toArray();
        pruefe(mahlzeiten.size() == anzahl, weg + u'.' + mahlzeitenfeld);
        for (qsizetype i = 0; i < mahlzeiten.size() && m_mangel.isEmpty(); ++i) {
            const QJsonObject eine = mahlzeiten[i].toObject();
            const QString hier = weg + u'.' + glied(mahlzeitenfeld, i);
            Mahlzeit mahlzeit;
            mahlzeit.notiz = eine.value(notizfeld).toString();
            const QJsonArray zeilen = eine.value(zeilenfeld).toArray();
            for (qsizetype j = 0; j < zeilen.size() && m_mangel.isEmpty(); ++j) {
                mahlzeit.zeilen << liesZeile(zeilen[j].toObject(),
                                             hier + u'.' + glied(zeilenfeld, j));
                pruefe(j > 0 || !mahlzeit.zeilen.constFirst().oder,
                       hier + u'.' + glied(zeilenfeld, j) + u'.' + oderfeld);
            }
            tag.mahlzeiten << mahlzeit;
        }
        return tag;
    }

    Mahlzeitzeile liesZeile(const QJsonObject &quelle, const QString &weg)
    {
        Mahlzeitzeile zeile;
        if (quelle.contains(speisefeld)) {
            const int stelle = quelle.value(speisefeld).toInt(-1);
            const bool gibt = stelle >= 0 && stelle < m_speisen.size();
            pruefe(gibt, weg + u'.' + speisefeld);
            zeile = gibt ? m_speisen[stelle] : zeile;
        } else {
            zeile.text = quelle.value(textfeld).toString();
        }
        zeile.angabe = quelle.value(angabefeld).toString();
        zeile.oder = quelle.value(oderfeld).toBool();
        if (quelle.contains(grammfeld)) {
            zeile.gramm = Lebensmitteltext::zahlAus(quelle.value(grammfeld));
            pruefe(zeile.gramm && std::isfinite(*zeile.gramm) && *zeile.gramm >= 0,
                   weg + u'.' + grammfeld);
        }
        return zeile;
    }

    QJsonObject m_alles;
    QList<Mahlzeitzeile> m_speisen; ///< key and values of the foods that the rows name
    QString m_mangel;
};

} // namespace

QByteArray alsText(const Aufzeichnung &aufzeichnung)
{
    if (!aufzeichnung.neuererText.isEmpty()) {
        return aufzeichnung.neuererText;
    }
    Speisenliste speisen;
    QJsonArray tage;
    for (const Tag &tag : aufzeichnung.tage) {
        tage.append(tagAlsJson(tag, speisen));
    }
    const QJsonObject alles{
        {artfeld, textart},
        {formfeld, form},
        {titelfeld, aufzeichnung.titel},
        {sortefeld, QLatin1String(sorten.at(static_cast<std::size_t>(aufzeichnung.art)))},
        {datumsfeld, aufzeichnung.datum.isValid()
                         ? QJsonValue(aufzeichnung.datum.toString(Qt::ISODate))
                         : QJsonValue(QJsonValue::Null)},
        {mahlzeitenfeld, QJsonArray::fromStringList(aufzeichnung.mahlzeiten)},
        {tagefeld, tage},
        {speisenfeld, speisen.alsJson()},
    };
    return QJsonDocument(alles).toJson(QJsonDocument::Compact);
}

Aufzeichnungslesung leseAufzeichnung(const QByteArray &text)
{
    using Zustand = Aufzeichnungslesung::Zustand;
    const QJsonObject alles = QJsonDocument::fromJson(text).object();
    if (alles.value(artfeld) != textart) {
        return {Zustand::Fremd};
    }
    const int fassung = alles.value(formfeld).toInt();
    Leser leser(alles);
    Aufzeichnung aufzeichnung = leser.lies();
    if (fassung < 1) {
        return {Zustand::Beschaedigt, {}, formfeld};
    }
    if (!leser.mangel().isEmpty()) {
        aufzeichnung = {};
    }
    if (fassung > form) {
        aufzeichnung.neuererText = text;
        return {Zustand::Neuer, aufzeichnung, leser.mangel()};
    }
    return {leser.mangel().isEmpty() ? Zustand::Gelesen : Zustand::Beschaedigt, aufzeichnung,
            leser.mangel()};
}
