#include "Druckworte.h"

#include "Mengenangabe.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QLocale::Language sprachname(Regelsprache sprache)
{
    return sprache == Regelsprache::Deutsch ? QLocale::German : QLocale::English;
}

QLocale landFuer(Regelsprache sprache)
{
    QLocale land = sprache == Regelsprache::Deutsch
                       ? QLocale(QLocale::German, QLocale::Germany)
                       : QLocale(QLocale::English, QLocale::UnitedKingdom);
    for (const QLocale &anderes : {QLocale::system(), QLocale()}) {
        if (anderes.language() == sprachname(sprache)) {
            land = anderes;
        }
    }
    land.setNumberOptions(QLocale::OmitGroupSeparator);
    return land;
}

/// A line of a print must not end between a number and its unit.
QString mitFestemGramm(QString text)
{
    return text.replace(QStringLiteral(" g)"), QChar(QChar::Nbsp) + QStringLiteral("g)"));
}

QString gramm(double zahl, const Druckworte &worte)
{
    return beisammen(mengentext({.anzahl = zahl}, worte.sprache(), worte.land()));
}

} // namespace

Druckworte::Druckworte(Regelsprache sprache) : m_sprache(sprache), m_land(landFuer(sprache))
{
    if (sprache == Regelsprache::Deutsch) {
        return; // the keys are German
    }
    for (const char *datei :
         {":/uebersetzungen/lebensmittel_en.qm", ":/uebersetzungen/mahlberg_en.qm"}) {
        auto uebersetzer = std::make_shared<QTranslator>();
        if (uebersetzer->load(QString::fromLatin1(datei))) {
            m_uebersetzer.push_back(std::move(uebersetzer));
        }
    }
}

Regelsprache Druckworte::derFenster()
{
    return QLocale().language() == QLocale::English ? Regelsprache::Englisch
                                                    : Regelsprache::Deutsch;
}

QString Druckworte::operator()(const QString &schluessel) const
{
    const QByteArray utf8 = schluessel.toUtf8();
    for (const auto &uebersetzer : m_uebersetzer) {
        QString text = uebersetzer->translate("Mahlberg", utf8.constData());
        if (!text.isNull()) {
            return text;
        }
    }
    return schluessel;
}

QString mahlzeitworte(const QString &name, const Druckworte &worte)
{
    const bool ueblich =
        std::any_of(ueblicheMahlzeiten.begin(), ueblicheMahlzeiten.end(),
                    [&](const char *eine) { return name == QString::fromUtf8(eine); });
    return ueblich ? worte(name) : name;
}

QString tagesworte(const Aufzeichnung &aufzeichnung, int tag, const Druckworte &worte)
{
    const QDate datum = datumVon(aufzeichnung, tag);
    return datum.isValid()
               ? worte.land().toString(datum, QLocale::LongFormat)
               : worte(QString::fromUtf8(QT_TRANSLATE_NOOP("Mahlberg", "Tag %1"))).arg(tag + 1);
}

QString artworte(Aufzeichnungsart art, const Druckworte &worte)
{
    return worte(QString::fromUtf8(art == Aufzeichnungsart::Protokoll
                                       ? QT_TRANSLATE_NOOP("Mahlberg", "Protokoll")
                                       : QT_TRANSLATE_NOOP("Mahlberg", "Wochenplan")));
}

QString titelworte(const Aufzeichnung &aufzeichnung, const Druckworte &worte)
{
    return aufzeichnung.titel.trimmed().isEmpty() ? artworte(aufzeichnung.art, worte)
                                                  : aufzeichnung.titel.trimmed();
}

QString speisenworte(const Mahlzeitzeile &zeile, const Druckworte &worte)
{
    return zeile.schluessel.isEmpty() ? zeile.text : worte(zeile.schluessel);
}

QString beisammen(QString text)
{
    constexpr qsizetype lang = 24;
    return text.size() <= lang ? text.replace(u' ', QChar(QChar::Nbsp)) : text;
}

QString mengenworte(const Mahlzeitzeile &zeile, const QList<Mass> &masse, const Druckworte &worte)
{
    QString getippt = zeile.angabe.trimmed();
    if (!zeile.gramm) {
        return getippt;
    }
    QString gezaehlt = gramm(static_cast<double>(*zeile.gramm), worte);
    std::optional<Mengenangabe> gelesen = leseMenge(getippt, masse).angabe;
    if (!gelesen) {
        return getippt.isEmpty() ? gezaehlt : QStringLiteral("%1 (%2)").arg(getippt, gezaehlt);
    }
    if (!gelesen->mass) {
        return gezaehlt;
    }
    gelesen->gramm = *zeile.gramm;
    return mitFestemGramm(mengentextMitGramm(*gelesen, worte.sprache(), worte.land()));
}

QString zeilenworte(const Mahlzeitzeile &zeile, const QList<Mass> &masse, const Druckworte &worte)
{
    QStringList teile = {speisenworte(zeile, worte).trimmed(),
                         beisammen(mengenworte(zeile, masse, worte))};
    teile.removeAll(QString());
    const QString text = teile.join(QStringLiteral(" –") + QChar(QChar::Nbsp));
    return zeile.oder && !text.isEmpty()
               ? worte(QString::fromUtf8(QT_TRANSLATE_NOOP("Mahlberg", "oder %1"))).arg(text)
               : text;
}
