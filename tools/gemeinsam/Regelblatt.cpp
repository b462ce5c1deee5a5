#include "Regelblatt.h"

#include <utility>

namespace {

using namespace Qt::StringLiterals;

constexpr std::array<std::pair<Merkmal, const char *>, 10> merkmalsnamen = {{
    {Merkmal::Getraenk, "drink"},
    {Merkmal::Fluessig, "liquid"},
    {Merkmal::Gewuerz, "seasoning"},
    {Merkmal::Pflanzlich, "plant purines"},
    {Merkmal::RotesFleisch, "red meat or sausage"},
    {Merkmal::Fettquelle, "recommended fat"},
    {Merkmal::Beilage, "salted by its cooking water"},
    {Merkmal::Milchzucker, "its own sugar is lactose"},
    {Merkmal::Koffein, "soft drink with caffeine"},
    {Merkmal::Zuckerarm, "low in free sugars"},
}};

QStringList worte(Merkmale merkmale, const QString &davor)
{
    QStringList liste;
    for (const auto &[merkmal, name] : merkmalsnamen) {
        if (merkmale.testFlag(merkmal)) {
            liste.append(davor + QLatin1String(name));
        }
    }
    return liste;
}

QString tabellenzeile(const QStringList &zellen)
{
    return u"| "_s + zellen.join(u" | ") + u" |"_s;
}

/// 100 g of sugars stand for "all of them".
QString eigenerZucker(double gramm)
{
    return gramm < 100 ? QString::number(gramm) + u" g"_s : u"all"_s;
}

} // namespace

QString Regelblatt::bedingungen(const Wertungsregel &regel)
{
    QStringList teile = worte(regel.verlangt, QString()) + worte(regel.verboten, u"not "_s);
    for (const Bedingung &bedingung : regel.bedingungen) {
        const auto &groesse = groessen[static_cast<std::size_t>(bedingung.groesse)];
        teile.append(u"%1 %2 %3 %4"_s.arg(
            groesse.name.in(Regelsprache::Englisch), vergleichswort(bedingung.vergleich),
            QString::number(bedingung.grenze), QLatin1String(groesse.einheit)));
    }
    return teile.isEmpty() ? u"always"_s : teile.join(u", ");
}

QStringList Regelblatt::regeltabelle(Wertung wertung, const Regelwerk &regeln)
{
    QStringList zeilen = {u"| rule | rating | when | meaning | sources |"_s,
                          u"|---|---|---|---|---|"_s};
    for (const Wertungsregel &regel : regeln) {
        if (regel.wertung != wertung) {
            continue;
        }
        QStringList schluessel;
        for (const char *const einer : regel.quellen) {
            schluessel.append(QLatin1String(einer));
        }
        zeilen.append(tabellenzeile({QLatin1String(regel.kennung), QLatin1String(regel.urteil),
                                     bedingungen(regel), regel.satz.in(Regelsprache::Englisch),
                                     schluessel.join(u", ")}));
    }
    return zeilen;
}

QStringList Regelblatt::gruppentabelle()
{
    QStringList zeilen = {u"| food group | own sugars | marks |"_s, u"|---|---|---|"_s};
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        zeilen.append(
            tabellenzeile({QString::fromUtf8(gruppe.name), eigenerZucker(gruppe.eigenerZucker),
                           worte(gruppe.merkmale, QString()).join(u", ")}));
    }
    return zeilen;
}

QStringList Regelblatt::quellenliste()
{
    QStringList zeilen;
    for (const Quelle &quelle : quellen()) {
        zeilen.append(u"- **%1**: %2"_s.arg(QLatin1String(quelle.schluessel),
                                            QString::fromUtf8(quelle.angabe)));
    }
    return zeilen;
}
