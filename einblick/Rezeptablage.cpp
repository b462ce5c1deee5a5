#include "Rezeptablage.h"

#include "Rezepttext.h"
#include "Zeichenkettentabelle.h"

#include <utility>

namespace {

void benenneUm(Rezepte &rezepte, const Namenswechsel &wechsel)
{
    for (Rezept &rezept : rezepte) {
        for (Rezeptzutat &zutat : rezept.zutaten) {
            zutat.schluessel = wechsel.value(zutat.schluessel, zutat.schluessel);
        }
    }
}

} // namespace

Rezeptablage::Rezeptablage(const QString &path, Namenswechsel wechsel)
    : Merkablage(path, {QStringLiteral("Mahlberg recipes"), 1, QStringLiteral("recipes")},
                 Merkdatei::Tageskopien::Zehn)
    , m_wechsel(std::move(wechsel))
{
}

Rezepte Rezeptablage::rezepteFuer(const Lebensmittelverzeichnis &eigene) const
{
    Rezepte vorhandene;
    for (const Rezept &rezept : alle()) {
        if (eigene.contains(rezept.schluessel)) {
            vorhandene.insert(rezept.schluessel, rezept);
        }
    }
    return vorhandene;
}

std::optional<Rezept> Rezeptablage::rezept(const QString &schluessel) const
{
    const auto eines = alle().constFind(schluessel);
    return eines == alle().cend() ? std::nullopt : std::optional(*eines);
}

bool Rezeptablage::setze(const QList<Rezept> &rezepte)
{
    Rezepte neue = alle();
    for (const Rezept &rezept : rezepte) {
        neue.insert(rezept.schluessel, rezept);
    }
    for (const Rezept &rezept : rezepte) {
        if (rezeptmangel(rezept, Stoffwissen(), neue) != Rezeptmangel::Keiner) {
            return false;
        }
    }
    return stelleEin(neue);
}

bool Rezeptablage::nimmHeraus(const QString &schluessel)
{
    Rezepte neue = alle();
    neue.remove(schluessel);
    return stelleEin(neue);
}

bool Rezeptablage::stelleEin(const Rezepte &rezepte)
{
    if (istGesperrt()) {
        return false;
    }
    if (rezepte == alle()) {
        return sichere();
    }
    m_rezepte = rezepte;
    return uebernimm();
}

bool Rezeptablage::nimmAuf(const QJsonArray &eintraege) const
{
    for (const auto &eintrag : eintraege) {
        const std::optional<Rezept> rezept = rezeptAus(eintrag.toObject());
        if (rezept && !m_rezepte.contains(rezept->schluessel)) {
            m_rezepte.insert(rezept->schluessel, *rezept);
        }
    }
    benenneUm(m_rezepte, m_wechsel);
    return m_rezepte.size() == eintraege.size();
}

QJsonArray Rezeptablage::eintraege() const
{
    QJsonArray liste;
    for (const Rezept &rezept : m_rezepte) {
        liste.append(alsJson(rezept));
    }
    return liste;
}

Merkablage::Saetze Rezeptablage::saetze() const
{
    return {
        .gesperrt = localizedString(QStringLiteral(
            "Die Datei der Rezepte lässt sich nicht lesen oder ist von einer neueren Version. Sie "
            "bleibt, wie sie ist, und Rezepte können nicht geändert werden.")),
        .ungesichert = localizedString(QStringLiteral(
            "Die Rezepte ließen sich nicht sichern. Sie gelten weiter, und mit der nächsten "
            "Änderung wird es wieder versucht.")),
        .beschaedigt = localizedString(QStringLiteral(
            "Die Datei der Rezepte war beschädigt. Was sich lesen ließ, gilt; sie selbst liegt "
            "jetzt hier: %1")),
    };
}
