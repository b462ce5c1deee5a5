// What leads from the insight into the days: the way to a row, and foods that were suggested.

#include "Tagefenster.h"

#include "Planzahlen.h"

#include <QCoreApplication>

using Aufzeichnungsaenderung::Stelle;

namespace {

bool gibtEs(const Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    return stelle.tag >= 0 && stelle.tag < aufzeichnung.tage.size() && stelle.mahlzeit >= 0 &&
           stelle.mahlzeit < aufzeichnung.mahlzeiten.size() && stelle.zeile >= 0 &&
           stelle.zeile < aufzeichnung.tage[stelle.tag].mahlzeiten[stelle.mahlzeit].zeilen.size();
}

} // namespace

void Tagefenster::zeigeZeile(const Stelle &stelle)
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (!eine || !gibtEs(*eine, stelle)) {
        return;
    }
    ansicht->beende();
    zeige();
    buch.waehleTag(stelle.tag);
    ansicht->geheZu({Tagesmodell::Art::Speise, stelle.mahlzeit, stelle.zeile}, Tagesmodell::Name);
}

bool Tagefenster::nimmVorschlag(const QString &schluessel, double gramm, const QString &angabe,
                                const std::optional<Stelle> &statt)
{
    ansicht->beende();
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (!eine || m_tueren.lebensmittel(schluessel) == nullptr ||
        (statt && !gibtEs(*eine, *statt))) {
        return false;
    }
    Mahlzeitzeile neue = zeileFuer({}, schluessel);
    setzeAngabe(neue, angabe);
    if (!neue.gramm) {
        setzeAngabe(neue, mengentext(static_cast<float>(gramm)) + QStringLiteral(" g"));
    }
    const int mahlzeit = ansicht->platz().value_or(Tagesmodell::Platz{}).mahlzeit;
    const auto ende = static_cast<int>(eine->tage[buch.tag()].mahlzeiten[mahlzeit].zeilen.size());
    const Stelle wohin = statt.value_or(Stelle{buch.tag(), mahlzeit, ende});
    const auto tat = [&](Aufzeichnung &was) {
        if (!statt) {
            return Aufzeichnungsaenderung::fuegeEin(was, wohin, {neue});
        }
        neue.oder = was.tage[wohin.tag].mahlzeiten[wohin.mahlzeit].zeilen[wohin.zeile].oder;
        return Aufzeichnungsaenderung::ersetze(was, wohin, neue);
    };
    if (!aendere(statt ? QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel ändern")
                       : QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel eintragen"),
                 tat)) {
        return false;
    }
    if (wohin.tag == buch.tag()) {
        ansicht->geheZu({Tagesmodell::Art::Speise, wohin.mahlzeit, wohin.zeile},
                        Tagesmodell::Angabe);
    }
    return true;
}
