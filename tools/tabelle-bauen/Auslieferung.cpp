#include "Auslieferung.h"

#include "Lebensmittelbestand.h"
#include "Tabellenausgabe.h"

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

/// The German-speaking countries read the table in German, all others in English.
const std::array<const char *, 5> gebietsschemata = {"de_DE", "de_AT", "de_CH", "en_GB", "en_US"};

const QString reihenRegel = u"rows"_s;

/// Gives the English names of a table as long as it lives.
class Namensuebersetzer : public QTranslator
{
public:
    explicit Namensuebersetzer(const Tabelle &tabelle)
    {
        for (const Tabellenzeile &zeile : tabelle) {
            m_namen.insert(zeile.nameDe.toUtf8(), zeile.nameEn);
        }
        QCoreApplication::installTranslator(this);
    }
    ~Namensuebersetzer() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(Namensuebersetzer)

    bool isEmpty() const override { return m_namen.isEmpty(); }
    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*n*/) const override
    {
        return m_namen.value(QByteArray(text));
    }

private:
    QHash<QByteArray, QString> m_namen;
};

const QString &hauptname(const Tabellenzeile &zeile)
{
    return zeile.synonymVon.isEmpty() ? zeile.nameDe : zeile.synonymVon;
}

} // namespace

QStringList Auslieferung::reihenfolge(const Tabelle &tabelle, const QLocale &locale)
{
    QStringList namen = {QString(Tabellenausgabe::platzhalter)};
    for (const Tabellenzeile &zeile : tabelle) {
        namen.append(zeile.nameDe);
    }
    if (locale.language() == QLocale::German) {
        return sortiertNachUebersetzung(namen, locale);
    }
    const Namensuebersetzer englisch(tabelle);
    return sortiertNachUebersetzung(namen, locale);
}

Beanstandungen Auslieferung::umleitungPruefen(const Tabelle &tabelle, const QLocale &locale)
{
    Beanstandungen liste;
    const QStringList reihen = reihenfolge(tabelle, locale);
    QHash<QString, const Tabellenzeile *> zeilen;
    for (const Tabellenzeile &zeile : tabelle) {
        zeilen.insert(zeile.nameDe, &zeile);
    }
    const Tabellenzeile *const gezeigt = zeilen.value(reihen.value(gezeigteReihe));
    for (const int reihe : umgeleiteteReihen) {
        const Tabellenzeile *const geklickt = zeilen.value(reihen.value(reihe));
        if (geklickt == nullptr) {
            continue; // A shorter table has no such row.
        }
        if (hauptname(*geklickt) != hauptname(*gezeigt)) {
            const QString meldung = u"%1: row %2 is \"%3\", but \"%4\" of row %5 would be shown"_s;
            liste.append({geklickt->zeile, reihenRegel,
                          meldung.arg(locale.name())
                              .arg(reihe)
                              .arg(geklickt->nameDe, gezeigt->nameDe)
                              .arg(gezeigteReihe)});
        }
    }
    return liste;
}

Beanstandungen Auslieferung::pruefen(const Tabelle &tabelle)
{
    Beanstandungen liste;
    if (tabelle.size() != anzahlLebensmittel) {
        const QString meldung = u"%1 foods instead of %2"_s;
        liste.append({0, u"count"_s, meldung.arg(tabelle.size()).arg(anzahlLebensmittel)});
    }
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        const bool vertreten = std::any_of(tabelle.begin(), tabelle.end(), [&](const auto &zeile) {
            return zeile.gruppe == &gruppe;
        });
        if (!vertreten) {
            const QString meldung = u"no food of the group \"%1\""_s;
            liste.append({0, u"group"_s, meldung.arg(QString::fromUtf8(gruppe.name))});
        }
    }
    for (const char *const name : gebietsschemata) {
        liste += umleitungPruefen(tabelle, QLocale(QLatin1String(name)));
    }
    return liste;
}
