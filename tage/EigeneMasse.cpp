#include "EigeneMasse.h"

#include "Portionendatei.h"
#include "Zeichenkettentabelle.h"

#include <QJsonObject>

#include <optional>
#include <utility>

namespace {

const QString namensfeld = QStringLiteral("food");
const QString massfeld = QStringLiteral("measures");
const QString einesfeld = QStringLiteral("one");
const QString vielefeld = QStringLiteral("many");
const QString einesEnfeld = QStringLiteral("oneEn");
const QString vieleEnfeld = QStringLiteral("manyEn");
const QString grammfeld = QStringLiteral("grams");

using Verzeichnis = QMap<QString, QList<Mass>>;

QJsonObject alsJson(const Mass &mass)
{
    return {{einesfeld, mass.eines},
            {vielefeld, mass.viele},
            {einesEnfeld, mass.einesEn},
            {vieleEnfeld, mass.vieleEn},
            {grammfeld, mass.gramm}};
}

/// Absent when it is no measure.
std::optional<Mass> massAus(const QJsonObject &eintrag)
{
    const Mass mass = {eintrag.value(einesfeld).toString(), eintrag.value(vielefeld).toString(),
                       eintrag.value(einesEnfeld).toString(), eintrag.value(vieleEnfeld).toString(),
                       eintrag.value(grammfeld).toDouble()};
    const bool benannt = !mass.eines.isEmpty() && !mass.viele.isEmpty() &&
                         !mass.einesEn.isEmpty() && !mass.vieleEn.isEmpty();
    const bool gewogen = mass.gramm > 0 && mass.gramm <= Portionendatei::meisteGramm;
    return benannt && gewogen ? std::optional(mass) : std::nullopt;
}

/// Takes up the measures of a food. False when not all of it was understood.
bool nimmSpeiseAuf(const QJsonObject &eintrag, Verzeichnis &verzeichnis)
{
    const QString schluessel = eintrag.value(namensfeld).toString();
    const QJsonArray liste = eintrag.value(massfeld).toArray();
    if (schluessel.isEmpty() || liste.isEmpty() || verzeichnis.contains(schluessel)) {
        return false;
    }
    QList<Mass> masse;
    for (const auto &eines : liste) {
        if (const std::optional<Mass> mass = massAus(eines.toObject())) {
            masse << *mass;
        }
    }
    if (!masse.isEmpty()) {
        verzeichnis.insert(schluessel, masse);
    }
    return masse.size() == liste.size();
}

/// What was given to a food under a former name is its own under the name of today, unless it was
/// given others under that one.
void benenneUm(Verzeichnis &verzeichnis, const Namenswechsel &wechsel)
{
    for (const QString &frueher : verzeichnis.keys()) {
        const QString heute = wechsel.value(frueher);
        if (!heute.isNull() && !verzeichnis.contains(heute)) {
            verzeichnis.insert(heute, verzeichnis.take(frueher));
        }
    }
}

} // namespace

EigeneMasse::EigeneMasse(const QString &path, Namenswechsel wechsel)
    : Merkablage(path, {QStringLiteral("Mahlberg measures"), 1, QStringLiteral("foods")})
    , m_wechsel(std::move(wechsel))
{
}

QList<Mass> EigeneMasse::masseFuer(const QString &schluessel) const
{
    lies();
    return m_masse.value(schluessel);
}

bool EigeneMasse::setze(const QString &schluessel, const QList<Mass> &masse)
{
    if (istGesperrt()) {
        return false;
    }
    if (masse == masseFuer(schluessel)) {
        return sichere();
    }
    if (masse.isEmpty()) {
        m_masse.remove(schluessel);
    } else {
        m_masse.insert(schluessel, masse);
    }
    return uebernimm();
}

bool EigeneMasse::nimmAuf(const QJsonArray &eintraege) const
{
    bool ganz = true;
    for (const auto &eintrag : eintraege) {
        ganz = nimmSpeiseAuf(eintrag.toObject(), m_masse) && ganz;
    }
    benenneUm(m_masse, m_wechsel);
    return ganz;
}

QJsonArray EigeneMasse::eintraege() const
{
    QJsonArray liste;
    for (auto eintrag = m_masse.cbegin(); eintrag != m_masse.cend(); ++eintrag) {
        QJsonArray masse;
        for (const Mass &mass : eintrag.value()) {
            masse.append(alsJson(mass));
        }
        liste.append(QJsonObject{{namensfeld, eintrag.key()}, {massfeld, masse}});
    }
    return liste;
}

Merkablage::Saetze EigeneMasse::saetze() const
{
    return {
        .gesperrt = localizedString(QStringLiteral(
            "Die Datei der eigenen Haushaltsmaße lässt sich nicht lesen oder ist von einer neueren "
            "Version. Sie bleibt, wie sie ist, und eigene Maße können nicht geändert werden.")),
        .ungesichert = localizedString(QStringLiteral(
            "Die eigenen Haushaltsmaße ließen sich nicht sichern. Sie gelten weiter, und mit der "
            "nächsten Änderung wird es wieder versucht.")),
        .beschaedigt = localizedString(QStringLiteral(
            "Die Datei der eigenen Haushaltsmaße war beschädigt. Was sich lesen ließ, gilt; sie "
            "selbst liegt jetzt hier: %1")),
    };
}
