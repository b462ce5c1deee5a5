#include "Tischklient.h"

#include "Angabenworte.h"
#include "AnthroController.h"
#include "Csv.h"
#include "Feldworte.h"
#include "Planmodul.h"
#include "Planpostentext.h"
#include "Satzspalten.h"
#include "Sportarten.h"
#include "Sportworte.h"
#include "Zeichenkettentabelle.h"

#include <QCryptographicHash>
#include <QScopedValueRollback>
#include <QSettings>

#include <algorithm>

namespace {

/// A slider on its way tells a hundred figures; only the one where it comes to rest is a measure.
constexpr int ruhezeit = 300; // milliseconds

/// A notice about what was done is read and done with.
constexpr int lesezeit = 8000; // milliseconds

const QString hinweisTisch = QStringLiteral("tisch");
const QString hinweisZweifel = QStringLiteral("zweifel");
const QString hinweisPlan = QStringLiteral("abgelegt");

/// The sliders of the measures.
const struct
{
    std::optional<double> Besuch::*mass;
    Schieber *Ui_KoerperGestalt::*schieber;
    void (AnthroController::*aktion)(const Wertehalter &);
} massregler[] = {
    {&Besuch::gewicht, &Ui_KoerperGestalt::gewichtn, &AnthroController::slidergewicht},
    {&Besuch::groesse, &Ui_KoerperGestalt::groessen, &AnthroController::slidergroesse},
    {&Besuch::taille, &Ui_KoerperGestalt::taillen, &AnthroController::slidertaille},
    {&Besuch::huefte, &Ui_KoerperGestalt::hueftn, &AnthroController::sliderhuefte},
};

/// The number as it was typed: the calculator holds it in single precision, and "72.3" is to be
/// kept, not what comes out of that. 0 is what nobody has measured.
std::optional<double> gemessen(const Wertehalter &regler)
{
    const double zahl = Csv::zahltext(regler.floatValue(), QLatin1Char('.')).toDouble();
    return zahl > 0 ? std::optional(zahl) : std::nullopt;
}

/// The German name of a sport in either language; absent for one that is not in the table.
std::optional<QString> sportAufDeutsch(const QString &name)
{
    const auto zeile = std::find_if(sportarten.begin(), sportarten.end(), [&](const auto &eine) {
        return eine.deutsch == name || (!eine.englisch.isNull() && eine.englisch == name);
    });
    return zeile != sportarten.end() ? std::optional(zeile->deutsch.toString()) : std::nullopt;
}

/// What is known of each field at the last visit at which it was told.
Besuch letzterStand(const QList<Besuch> &besuche)
{
    Besuch stand;
    for (const Besuch &besuch : besuche) {
        for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
            if (const QVariant wert = spalte.lies(besuch); !wert.isNull()) {
                spalte.setze(stand, wert);
            }
        }
    }
    return stand;
}

QByteArray abdruck(const QList<Planposten> &posten)
{
    QByteArray text;
    for (const Planposten &einer : posten) {
        text += einer.schluessel.toUtf8() + '\t' + QByteArray::number(einer.gramm, 'g', 9) + '\n';
    }
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

bool gleicheZeilen(const QList<Planposten> &eine, const QList<Planposten> &andere)
{
    return std::equal(eine.begin(), eine.end(), andere.begin(), andere.end(),
                      [](const Planposten &a, const Planposten &b) {
                          return a.schluessel == b.schluessel && a.gramm == b.gramm;
                      });
}

} // namespace

Tischklient::Tischklient(Kartei &kartei, Tischtueren tueren)
    : m_kartei(kartei)
    , m_tueren(std::move(tueren))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(ruhezeit);
    connect(&m_pause, &QTimer::timeout, this, &Tischklient::sichere);
    connect(&m_tueren.rechner, &AnthroController::angabeGeaendert, this, [this] {
        if (m_akte && !m_stellt) {
            m_pause.start();
        }
    });
    connect(&m_kartei, &Kartei::akteGeaendert, this, &Tischklient::frischeAuf);
}

bool Tischklient::ist(const QString &kennung) const
{
    return m_akte && m_akte->person.kennung == kennung;
}

bool Tischklient::nimm(const QString &kennung)
{
    if (ist(kennung)) {
        return true;
    }
    const std::optional<Klientenakte> akte = m_kartei.akte(kennung);
    if (!akte) {
        return false;
    }
    verlasse();
    m_akte = akte;
    stelleRechner();
    Q_EMIT gewechselt();
    return true;
}

void Tischklient::verlasse()
{
    if (!m_akte) {
        return;
    }
    sichere();
    bewahrePlan();
    m_akte.reset();
    Q_EMIT gewechselt();
}

/// Somebody who was deleted does not sit at the desk any more.
void Tischklient::frischeAuf(const QString &kennung)
{
    if (!ist(kennung)) {
        return;
    }
    const std::optional<Klientenakte> akte = m_kartei.akte(kennung);
    if (akte) {
        m_akte = akte;
    } else if (m_kartei.hindernis()) {
        m_pause.stop();
        m_akte.reset();
    }
    Q_EMIT gewechselt();
}

void Tischklient::stelleRechner()
{
    const QScopedValueRollback stellt(m_stellt, true);
    m_pause.stop();
    AnthroController &rechner = m_tueren.rechner;
    const Besuch letzter = letzterStand(m_akte->besuche);
    stelleMasse(letzter);
    rechner.geschlechtAktion(m_akte->person.geschlecht == Personengeschlecht::Frau ? 1 : 0);
    rechner.arbeitAktion(static_cast<int>(letzter.aktivitaet.value_or(Aktivitaet::Leicht)));
    rechner.gewichtreduktion(letzter.reduktion.value_or(false) ? 1 : 0);
    stelleSport(letzter);
    // The age comes last: for a child the calculator takes the measures back.
    rechner.alter->setIntValue(
        alterAm(m_tueren.heute(), m_akte->person.geburt).value_or(AnthroController::startalter));
    rechner.wiealt(*rechner.alter);
    m_gestellt = vomRechner();
    sageUnbekanntes(letzter);
}

/// What was never measured is not that of whoever sat there before.
void Tischklient::stelleMasse(const Besuch &letzter)
{
    AnthroController &rechner = m_tueren.rechner;
    for (const auto &[mass, schieber, aktion] : massregler) {
        (rechner.*schieber)->setDoubleValue((letzter.*mass).value_or(0));
        (rechner.*aktion)(*(rechner.*schieber));
    }
}

void Tischklient::stelleSport(const Besuch &letzter)
{
    AnthroController &rechner = m_tueren.rechner;
    const QString sport = letzter.sport.value_or(QString());
    rechner.sport->setStringValue(sport.isEmpty() ? QString() : sportworte(sport));
    rechner.welchersport(*rechner.sport);
    rechner.sportmenge->setDoubleValue(sport.isEmpty() ? 0 : letzter.sportdauer.value_or(0));
    rechner.wievielsport(*rechner.sportmenge);
}

/// The calculator always reckons with a gender, an age and an activity. Whose these are must not be
/// guessed wrong.
void Tischklient::sageUnbekanntes(const Besuch &letzter)
{
    const std::pair<bool, const char *> angaben[] = {
        {m_akte->person.geschlecht != Personengeschlecht::Unbekannt,
         QT_TRANSLATE_NOOP("Mahlberg", "Geschlecht")},
        {m_akte->person.geburt.isValid(), QT_TRANSLATE_NOOP("Mahlberg", "Geburtsdatum")},
        {letzter.aktivitaet.has_value(), QT_TRANSLATE_NOOP("Mahlberg", "Tätigkeit")},
    };
    QStringList unbekannt;
    for (const auto &[bekannt, wort] : angaben) {
        if (!bekannt) {
            unbekannt << localizedString(QString::fromUtf8(wort));
        }
    }
    const QString satz =
        unbekannt.isEmpty()
            ? localizedString(QStringLiteral("Am Schreibtisch: %1."))
                  .arg(kurzerName(m_akte->person.name))
            : localizedString(QStringLiteral("Am Schreibtisch: %1. Nicht bekannt: %2; der Rechner "
                                             "steht dafür auf seinen Anfangswerten."))
                  .arg(kurzerName(m_akte->person.name), unbekannt.join(QStringLiteral(", ")));
    m_tueren.sage({.kennung = hinweisTisch, .text = satz, .dauer = lesezeit});
}

Besuch Tischklient::vomRechner() const
{
    const AnthroController &rechner = m_tueren.rechner;
    Besuch stand;
    for (const auto &[mass, schieber, aktion] : massregler) {
        stand.*mass = gemessen(*(rechner.*schieber));
    }
    stand.aktivitaet = static_cast<Aktivitaet>(std::clamp(rechner.arbeit->gewaehlterTag(), 0, 2));
    stand.reduktion = rechner.gewichtredu->isChecked();
    stand.sport = sportAufDeutsch(rechner.sportname);
    stand.sportdauer = rechner.sportmenge->doubleValue();
    return stand;
}

/// Only what was changed since belongs to the visit: the rest was told at an earlier one.
void Tischklient::sichere()
{
    m_pause.stop();
    if (!m_akte) {
        return;
    }
    const Besuch jetzt = vomRechner();
    if (jetzt == m_gestellt) {
        return;
    }
    // Another desk may have begun the visit of today meanwhile.
    if (const std::optional<Klientenakte> akte = m_kartei.akte(m_akte->person.kennung)) {
        m_akte = akte;
    }
    const QDate heute = m_tueren.heute();
    const auto heutiger = std::find_if(m_akte->besuche.begin(), m_akte->besuche.end(),
                                       [&](const Besuch &besuch) { return besuch.datum == heute; });
    Besuch besuch;
    Schreibwunsch wunsch = {m_akte->person.kennung, besuch, {}};
    if (heutiger != m_akte->besuche.end()) {
        besuch = *heutiger;
        wunsch.alt.emplace(besuch);
    }
    besuch.datum = heute;
    for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
        if (spalte.lies(jetzt) != spalte.lies(m_gestellt)) {
            spalte.setze(besuch, spalte.lies(jetzt));
        }
    }
    m_gestellt = jetzt;
    wunsch.neu = besuch;
    besuch.kennung = m_kartei.sichere(wunsch);
    frageNach(besuch);
}

/// What is unlikely was kept all the same; whoever slipped sees it at once.
void Tischklient::frageNach(const Besuch &besuch)
{
    if (!m_akte) {
        return;
    }
    QStringList saetze;
    for (const Zweifel &einer :
         zweifel(besuch, m_akte->besuche, m_akte->person.geburt, m_tueren.heute())) {
        saetze << inWorten(einer);
    }
    if (!saetze.isEmpty()) {
        m_tueren.sage({.kennung = hinweisZweifel,
                       .text = localizedString(QStringLiteral("%1 Bitte prüfen Sie die Zahl."))
                                   .arg(saetze.join(u' ')),
                       .warnung = true});
    }
}

QList<Planposten> Tischklient::postenAmTisch() const
{
    const Planmodul *plan = m_tueren.plan(false);
    QList<Planposten> posten;
    if (plan == nullptr) {
        return posten;
    }
    for (qsizetype i = 0; i < plan->PlanArray.size(); ++i) {
        const QString &name = plan->PlanArray[i];
        const Datenmodul *eintrag = plan->lebensmittel(name);
        posten.append({name, plan->mengenarray.value(i),
                       eintrag != nullptr ? std::optional(*eintrag) : std::nullopt});
    }
    return posten;
}

/// A plan that was kept the last time stays known when the program is started anew.
bool Tischklient::istAbgelegt(const QList<Planposten> &posten) const
{
    const auto liegtSchon = [&](const Planablage &plan) {
        return gleicheZeilen(plan.posten, posten);
    };
    return posten.isEmpty() ||
           m_tueren.einstellungen.value(QStringLiteral("abgelegterPlan")).toByteArray() ==
               abdruck(posten) ||
           (m_akte && std::any_of(m_akte->plaene.begin(), m_akte->plaene.end(), liegtSchon));
}

void Tischklient::merkeAbgelegtes(const QList<Planposten> &posten)
{
    m_tueren.einstellungen.setValue(QStringLiteral("abgelegterPlan"), abdruck(posten));
}

/// Keeps the plan on the desk under the client when it is not kept yet. False when there was
/// nothing to do.
bool Tischklient::bewahrePlan()
{
    const QList<Planposten> posten = postenAmTisch();
    if (!m_akte || istAbgelegt(posten)) {
        return false;
    }
    Planablage plan;
    plan.titel = localizedString(QStringLiteral("Mahlzeitenplan"));
    plan.datum = m_tueren.heute();
    plan.posten = posten;
    m_kartei.sichere({m_akte->person.kennung, plan, {}});
    merkeAbgelegtes(posten);
    return true;
}

void Tischklient::legePlanAb()
{
    if (!m_akte || m_tueren.plan(true) == nullptr) {
        return;
    }
    const QString name = kurzerName(m_akte->person.name);
    const QString satz =
        postenAmTisch().isEmpty()
            ? localizedString(QStringLiteral("Der Plan ist leer; es gibt nichts abzulegen."))
        : bewahrePlan() ? localizedString(QStringLiteral("Der Plan liegt jetzt bei %1.")).arg(name)
                        : localizedString(QStringLiteral("Dieser Plan ist schon abgelegt."));
    m_tueren.sage({.kennung = hinweisPlan, .text = satz, .dauer = lesezeit});
}

void Tischklient::holePlan(const Planablage &plan)
{
    Planmodul *amTisch = m_akte ? m_tueren.plan(true) : nullptr;
    if (amTisch == nullptr) {
        return;
    }
    const bool bewahrt = bewahrePlan();
    Planliste liste;
    for (const Planposten &posten : plan.posten) {
        liste.anhaengen(posten.schluessel);
        liste.mengeAendern(liste.PlanArray.size() - 1, posten.gramm);
    }
    amTisch->uebernimmPlan(liste);
    merkeAbgelegtes(plan.posten);
    const QString satz =
        bewahrt
            ? localizedString(QStringLiteral("Der Plan „%1“ vom %2 steht im Mahlzeitenplan. Was "
                                             "dort stand, ist abgelegt."))
            : localizedString(QStringLiteral("Der Plan „%1“ vom %2 steht im Mahlzeitenplan."));
    m_tueren.sage({.kennung = hinweisPlan,
                   .text = satz.arg(kurzerName(plan.titel), tagesworte(plan.datum)),
                   .dauer = lesezeit});
}
