#include "Profilsuche.h"

namespace {

bool erfuelltZahl(float wert, const std::optional<Zahlkriterium> &kriterium)
{
    if (!kriterium.has_value()) {
        return true;
    }
    const QString &vergleich = kriterium->vergleich;
    return (vergleich == QLatin1String(">") && wert > kriterium->zahl) ||
           (vergleich == QLatin1String("<") && wert < kriterium->zahl) ||
           (vergleich == QLatin1String("=") && wert == kriterium->zahl);
}

bool erfuelltWertung(const QString &wertung, const std::optional<QString> &gewuenscht)
{
    if (!gewuenscht.has_value()) {
        return true;
    }
    const bool bekannt = *gewuenscht == QLatin1String("+") || *gewuenscht == QLatin1String("0") ||
                         *gewuenscht == QLatin1String("-");
    return bekannt && *gewuenscht == wertung;
}

void anhaengen(QStringList &treffer, const Suchbestand &bestand, const Profil &profil)
{
    const Datenmodul leer;
    for (const QString &name : bestand.reihenfolge) {
        const auto gefunden = bestand.lebensmittel.constFind(name);
        const bool vorhanden = gefunden != bestand.lebensmittel.constEnd();
        if (erfuellt(vorhanden ? *gefunden : leer, profil)) {
            treffer.append(name);
        }
    }
}

} // namespace

bool erfuellt(const Datenmodul &lebensmittel, const Profil &profil)
{
    if (!erfuelltZahl(lebensmittel.protein(), profil.protein) ||
        !erfuelltZahl(lebensmittel.kal(), profil.energie)) {
        return false;
    }
    for (const auto &zeile : wertungen) {
        if (!erfuelltWertung(lebensmittel.wertung(zeile.wertung),
                             profil.wertungen[stelle(zeile.wertung)])) {
            return false;
        }
    }
    return true;
}

QStringList profilSuchen(const Suchbestand &eigene, const Suchbestand &eingebaute,
                         const Profil &profil)
{
    QStringList treffer;
    anhaengen(treffer, eigene, profil);
    anhaengen(treffer, eingebaute, profil);
    return treffer;
}
