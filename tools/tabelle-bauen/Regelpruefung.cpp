#include "Regelpruefung.h"

#include "Regelblatt.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

const QString regelnRegel = u"rules"_s;
const std::array<QString, 3> urteile = {u"+"_s, u"0"_s, u"-"_s};

Beanstandung einwand(const QString &meldung)
{
    return {0, regelnRegel, meldung};
}

QString urteil(Wertung wertung, const Tabellenzeile &zeile, const Regelwerk &regeln)
{
    const auto *const regel = entscheidendeRegel(wertung, wertungsgroessen(zeile), regeln);
    return regel == nullptr ? QString() : QString::fromLatin1(regel->urteil);
}

Beanstandungen regelPruefen(const Wertungsregel &regel)
{
    Beanstandungen liste;
    const QString name = QString::fromLatin1(regel.kennung);
    if (std::find(urteile.begin(), urteile.end(), QLatin1String(regel.urteil)) == urteile.end()) {
        liste.append(einwand(u"rule %1 gives an unknown rating"_s.arg(name)));
    }
    for (const char *const schluessel : regel.quellen) {
        if (quelle(schluessel) == nullptr) {
            const QString meldung = u"rule %1 names the unknown source %2"_s;
            liste.append(einwand(meldung.arg(name, QLatin1String(schluessel))));
        }
    }
    if (!regel.bedingungen.empty() && regel.quellen.empty()) {
        liste.append(einwand(u"rule %1 has a limit, but no source for it"_s.arg(name)));
    }
    return liste;
}

bool giltImmer(const Wertungsregel &regel)
{
    return !regel.verlangt && !regel.verboten && regel.bedingungen.empty();
}

} // namespace

Beanstandungen Regelpruefung::aufbauPruefen(const Regelwerk &regeln)
{
    Beanstandungen liste;
    QSet<QString> namen;
    for (const Wertungsregel &regel : regeln) {
        liste += regelPruefen(regel);
        const QString name = QString::fromLatin1(regel.kennung);
        if (namen.contains(name)) {
            liste.append(einwand(u"rule %1 stands twice"_s.arg(name)));
        }
        namen.insert(name);
    }
    for (const auto &wertung : wertungen) {
        const auto letzte =
            std::find_if(regeln.rbegin(), regeln.rend(), [&](const Wertungsregel &regel) {
                return regel.wertung == wertung.wertung;
            });
        if (letzte == regeln.rend() || !giltImmer(*letzte)) {
            const QString meldung = u"the last rule for %1 must always hold"_s;
            liste.append(einwand(meldung.arg(QString::fromUtf8(wertung.bezeichnung))));
        }
    }
    return liste;
}

Beanstandungen Regelpruefung::seitePruefen(const QString &markdown, const Regelwerk &regeln)
{
    const QStringList vorhanden = markdown.split(u'\n');
    const QSet<QString> zeilen(vorhanden.begin(), vorhanden.end());
    QStringList noetig = Regelblatt::gruppentabelle() + Regelblatt::quellenliste();
    for (const auto &wertung : wertungen) {
        noetig += Regelblatt::regeltabelle(wertung.wertung, regeln);
    }
    Beanstandungen liste;
    for (const QString &zeile : noetig) {
        if (!zeilen.contains(zeile)) {
            liste.append({0, u"page"_s, u"this line is missing from the page: "_s + zeile});
        }
    }
    return liste;
}

Beanstandungen Regelpruefung::einigkeitPruefen(const Tabelle &tabelle, const QString &liste,
                                               const Regelwerk &regeln)
{
    QHash<QString, const Tabellenzeile *> foods;
    for (const Tabellenzeile &zeile : tabelle) {
        foods.insert(zeile.nameDe, &zeile);
    }
    Beanstandungen einwaende;
    for (const QString &eintrag : liste.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList felder = eintrag.split(u';');
        if (eintrag.startsWith(u'#') || felder.first() == u"name_de") {
            continue;
        }
        const Tabellenzeile *const zeile = foods.value(felder.first());
        if (zeile == nullptr || felder.size() != 1 + qsizetype(anzahlWertungen)) {
            einwaende.append({0, u"agreed"_s, u"\"%1\" can't be checked"_s.arg(eintrag)});
            continue;
        }
        for (const auto &wertung : wertungen) {
            const QString &erlaubt = felder.at(1 + qsizetype(stelle(wertung.wertung)));
            const QString gegeben = urteil(wertung.wertung, *zeile, regeln);
            if (!erlaubt.isEmpty() && (gegeben.isEmpty() || !erlaubt.contains(gegeben))) {
                const QString meldung = u"%1 is rated \"%2\" for %3, dietitians say \"%4\""_s;
                einwaende.append({zeile->zeile, u"agreed"_s,
                                  meldung.arg(zeile->nameDe, gegeben,
                                              QString::fromUtf8(wertung.bezeichnung), erlaubt)});
            }
        }
    }
    return einwaende;
}

Beanstandungen Regelpruefung::anteilePruefen(const Tabelle &tabelle, const Regelwerk &regeln)
{
    Beanstandungen liste;
    QSet<const Wertungsregel *> gebraucht;
    for (const auto &wertung : wertungen) {
        QHash<QString, qsizetype> anzahl;
        for (const Tabellenzeile &zeile : tabelle) {
            const auto *const regel =
                entscheidendeRegel(wertung.wertung, wertungsgroessen(zeile), regeln);
            gebraucht.insert(regel);
            ++anzahl[regel == nullptr ? QString() : QString::fromLatin1(regel->urteil)];
        }
        for (const QString &urteil : urteile) {
            if (anzahl.value(urteil) * 10 < tabelle.size()) {
                const QString meldung = u"only %1 of %2 foods are rated \"%3\" for %4"_s;
                liste.append({0, u"share"_s,
                              meldung.arg(anzahl.value(urteil))
                                  .arg(tabelle.size())
                                  .arg(urteil, QString::fromUtf8(wertung.bezeichnung))});
            }
        }
    }
    for (const Wertungsregel &regel : regeln) {
        if (!gebraucht.contains(&regel)) {
            const QString meldung = u"rule %1 decides no food"_s;
            liste.append(einwand(meldung.arg(QLatin1String(regel.kennung))));
        }
    }
    return liste;
}
