#include "Tabellenausgabe.h"

#include "Wertungsregeln.h"

#include <QXmlStreamWriter>

namespace {

using namespace Qt::StringLiterals;

/// Grams of water in 100 g that leave no room for purines, whether or not anybody looked for them.
constexpr double nurWasser = 100;

Datenmodul leererEintrag()
{
    Datenmodul eintrag;
    eintrag.setName(QString(Tabellenausgabe::platzhalter));
    for (const auto &wertung : wertungen) {
        eintrag.setWertung(wertung.wertung, u"0"_s);
    }
    return eintrag;
}

Zusatzwerte zusatz(const Tabellenzeile &zeile, const Quelleintrag &quelle)
{
    const auto bestimmt = [&quelle](const QString &spalte, double wert) {
        return quelle.unbestimmt.contains(spalte) ? std::nullopt : std::optional(wert);
    };
    Zusatzwerte werte = {.gruppe = zeile.gruppe,
                         .zucker = bestimmt(u"sugars"_s, zeile.zucker),
                         .gesaettigt = bestimmt(u"saturated"_s, zeile.gesaettigt),
                         .alkohol = bestimmt(u"alcohol"_s, zeile.alkohol),
                         .wasser = bestimmt(u"water"_s, quelle.wasser.value_or(0)),
                         .dichte = quelle.dichte,
                         .harnsaeure = zeile.harnsaeure,
                         .purinklasse = zeile.purinklasse,
                         .verzehrfertig = zeile.verzehrfertig,
                         .merkmale = zeile.merkmale,
                         .zuckerart = zeile.zuckerart,
                         .unbestimmt = {}};
    for (const auto &wert : naehrwerte) {
        werte.unbestimmt[stelle(wert.wert)] =
            quelle.unbestimmt.contains(QLatin1String(wert.kennung));
    }
    if (werte.wasser == nurWasser) {
        werte.harnsaeure = 0;
        werte.purinklasse.reset();
    }
    return werte;
}

} // namespace

Datenmodul Tabellenausgabe::datenmodul(const Tabellenzeile &zeile)
{
    Datenmodul food;
    food.setName(zeile.nameDe);
    for (const auto &wert : naehrwerte) {
        food.setWert(wert.wert, static_cast<float>(zeile.wert(wert.wert)));
    }
    const Wertungsgroessen groesse = wertungsgroessen(zeile);
    for (const auto &wertung : wertungen) {
        if (const auto *regel = entscheidendeRegel(wertung.wertung, groesse)) {
            food.setWertung(wertung.wertung, QString::fromLatin1(regel->urteil));
        }
    }
    return food;
}

Lebensmittelverzeichnis Tabellenausgabe::verzeichnis(const Tabelle &tabelle)
{
    Lebensmittelverzeichnis foods;
    foods.insert(QString(platzhalter), leererEintrag());
    for (const Tabellenzeile &zeile : tabelle) {
        foods.insert(zeile.nameDe, datenmodul(zeile));
    }
    return foods;
}

Zusatztabelle Tabellenausgabe::zusatzwerte(const Tabelle &tabelle, const Quellwerte &quelle)
{
    Zusatztabelle alle;
    for (const Tabellenzeile &zeile : tabelle) {
        if (const auto eintrag = quelle.constFind(zeile.quelle); eintrag != quelle.cend()) {
            alle.insert(zeile.nameDe, zusatz(zeile, *eintrag));
        }
    }
    return alle;
}

QByteArray Tabellenausgabe::uebersetzung(const Tabelle &tabelle)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(u"<!DOCTYPE TS>"_s);
    xml.writeStartElement(u"TS"_s);
    xml.writeAttribute(u"version"_s, u"2.1"_s);
    xml.writeAttribute(u"language"_s, u"en_GB"_s);
    xml.writeAttribute(u"sourcelanguage"_s, u"de_DE"_s);
    xml.writeStartElement(u"context"_s);
    xml.writeTextElement(u"name"_s, u"Mahlberg"_s);
    for (const Tabellenzeile &zeile : tabelle) {
        xml.writeStartElement(u"message"_s);
        xml.writeTextElement(u"source"_s, zeile.nameDe);
        xml.writeTextElement(u"translation"_s, zeile.nameEn);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return bytes;
}
