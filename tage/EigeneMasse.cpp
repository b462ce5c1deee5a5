#include "EigeneMasse.h"

#include "Portionendatei.h"
#include "Zeichenkettentabelle.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>
#include <utility>

namespace {

const QString artfeld = QStringLiteral("format");
const QString art = QStringLiteral("Mahlberg measures");
const QString formfeld = QStringLiteral("version");
constexpr int form = 1;
const QString listenfeld = QStringLiteral("foods");
const QString namensfeld = QStringLiteral("food");
const QString massfeld = QStringLiteral("measures");
const QString einesfeld = QStringLiteral("one");
const QString vielefeld = QStringLiteral("many");
const QString einesEnfeld = QStringLiteral("oneEn");
const QString vieleEnfeld = QStringLiteral("manyEn");
const QString grammfeld = QStringLiteral("grams");

using Verstaendnis = Merkdatei::Verstaendnis;
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
bool nimmAuf(const QJsonObject &eintrag, Verzeichnis &verzeichnis)
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

Verstaendnis deute(const QByteArray &bytes, Verzeichnis &verzeichnis)
{
    const QJsonObject alles = QJsonDocument::fromJson(bytes).object();
    const int fassung = alles.value(formfeld).toInt();
    if (alles.value(artfeld) != art || fassung < 1 || !alles.value(listenfeld).isArray()) {
        return Verstaendnis::Teilweise;
    }
    bool ganz = true;
    const QJsonArray eintraege = alles.value(listenfeld).toArray();
    for (const auto &eintrag : eintraege) {
        ganz = nimmAuf(eintrag.toObject(), verzeichnis) && ganz;
    }
    return fassung > form ? Verstaendnis::Neuer
           : ganz         ? Verstaendnis::Ganz
                          : Verstaendnis::Teilweise;
}

QByteArray alsText(const Verzeichnis &verzeichnis)
{
    QJsonArray eintraege;
    for (auto eintrag = verzeichnis.begin(); eintrag != verzeichnis.end(); ++eintrag) {
        QJsonArray masse;
        for (const Mass &mass : eintrag.value()) {
            masse.append(alsJson(mass));
        }
        eintraege.append(QJsonObject{{namensfeld, eintrag.key()}, {massfeld, masse}});
    }
    return QJsonDocument(QJsonObject{{artfeld, art}, {formfeld, form}, {listenfeld, eintraege}})
        .toJson();
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
    : m_wechsel(std::move(wechsel))
    , m_gelesene{Merkdatei(path), {}}
{
}

QList<Mass> EigeneMasse::masseFuer(const QString &schluessel) const
{
    return gelesene().masse.value(schluessel);
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
        m_gelesene.masse.remove(schluessel);
    } else {
        m_gelesene.masse.insert(schluessel, masse);
    }
    const bool geschrieben = schreibe();
    Q_EMIT geaendert();
    return geschrieben;
}

bool EigeneMasse::sichere()
{
    return m_gesichert || schreibe();
}

bool EigeneMasse::schreibe()
{
    const bool vorher = m_gesichert;
    const Verzeichnis &masse = m_gelesene.masse;
    m_gesichert = m_gelesene.datei.schreibe(masse.isEmpty() ? QByteArray() : alsText(masse));
    if (m_gesichert != vorher) {
        Q_EMIT sicherungGewechselt();
    }
    return m_gesichert;
}

QString EigeneMasse::hindernis() const
{
    if (istGesperrt()) {
        return localizedString(QStringLiteral(
            "Die Datei der eigenen Haushaltsmaße lässt sich nicht lesen oder ist von einer neueren "
            "Version. Sie bleibt, wie sie ist, und eigene Maße können nicht geändert werden."));
    }
    if (!m_gesichert) {
        return localizedString(QStringLiteral(
            "Die eigenen Haushaltsmaße ließen sich nicht sichern. Sie gelten weiter, und mit der "
            "nächsten Änderung wird es wieder versucht."));
    }
    const QString &beiseite = gelesene().datei.beiseite();
    return beiseite.isNull()
               ? QString()
               : localizedString(QStringLiteral("Die Datei der eigenen Haushaltsmaße war "
                                                "beschädigt. Was sich lesen ließ, gilt; sie "
                                                "selbst liegt jetzt hier: %1"))
                     .arg(beiseite);
}

const EigeneMasse::Gelesene &EigeneMasse::gelesene() const
{
    if (!m_gelesene.gelesen) {
        m_gelesene.gelesen = true;
        m_gelesene.datei.lies(
            [this](const QByteArray &bytes) { return deute(bytes, m_gelesene.masse); },
            QDateTime::currentDateTime());
        benenneUm(m_gelesene.masse, m_wechsel);
    }
    return m_gelesene;
}
