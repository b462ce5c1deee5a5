// What joins the days with each other, with the plan and with the foods of today.

#include "Tagefenster.h"

#include "Fuellfenster.h"
#include "Planwahlfenster.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QMenu>

namespace {

/// Some names for a notice; of many the first ones.
QString namensliste(const QStringList &schluessel)
{
    QStringList namen;
    for (const QString &einer : schluessel) {
        namen << kurzerName(localizedString(einer));
    }
    return aufzaehlung(namen, 4);
}

/// A sentence with the names; nothing where there are none.
QStringList satzMitNamen(const char *satz, const QStringList &namen)
{
    return namen.isEmpty()
               ? QStringList()
               : QStringList{localizedString(QString::fromUtf8(satz))
                                 .arg(QString::number(namen.size()), namensliste(namen))};
}

} // namespace

/// The entries of the menus that move things about. Those of the plan are there where the plan can
/// be reached.
void Tagefenster::baueUmzug(QMenu &bearbeiten, QMenu &tag)
{
    const auto fuege = [this](QMenu &menue, const char *text, const QKeySequence &tasten,
                              void (Tagefenster::*tat)()) {
        QAction *aktion = menue.addAction(localizedString(QString::fromUtf8(text)));
        aktion->setShortcut(tasten);
        connect(aktion, &QAction::triggered, this, tat);
    };
    bearbeiten.addSeparator();
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Zeilen aus&schneiden"), QKeySequence::Cut,
          &Tagefenster::schneideAus);
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Zeilen &kopieren"), QKeySequence::Copy,
          &Tagefenster::kopiere);
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Zeilen &einfügen"), QKeySequence::Paste,
          &Tagefenster::fuegeEin);
    bearbeiten.addSeparator();
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Zeilen hinau&f"),
          QKeySequence(QStringLiteral("Alt+Up")), &Tagefenster::zeilenHinauf);
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Zeilen hin&unter"),
          QKeySequence(QStringLiteral("Alt+Down")), &Tagefenster::zeilenHinunter);
    bearbeiten.addSeparator();
    fuege(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Werte von heu&te übernehmen"), {},
          &Tagefenster::uebernimmHeute);

    fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "In &gewählte Tage füllen …"), {},
          &Tagefenster::fuelleGewaehlteTage);
    tag.addSeparator();
    fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "Tag aus&schneiden"), {},
          &Tagefenster::schneideTagAus);
    fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "Tag &kopieren"), {}, &Tagefenster::kopiereTag);
    fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "Tag &einfügen"), {}, &Tagefenster::fuegeTagEin);
    tag.addSeparator();
    if (m_tueren.legeAufTisch) {
        fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "Als &Plan auf den Schreibtisch"), {},
              &Tagefenster::legePlanAufTisch);
    }
    if (m_tueren.planVomTisch) {
        fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "Plan vom Schreibtisch ü&bernehmen"), {},
              &Tagefenster::nimmPlanVomTisch);
    }
    if (m_tueren.abgelegtePlaene) {
        fuege(tag, QT_TRANSLATE_NOOP("Mahlberg", "&Abgelegten Plan übernehmen …"), {},
              &Tagefenster::nimmAbgelegtenPlan);
    }
}

void Tagefenster::fuelleGewaehlteTage()
{
    if (!darfUmziehen()) {
        return;
    }
    const Aufzeichnung eine = *buch.jetzige();
    if (eine.tage.size() < 2) {
        sageUmzug(localizedString(QStringLiteral("Es gibt keinen anderen Tag zu füllen.")), false);
        return;
    }
    const int von = buch.tag();
    Fuellfenster fenster(eine, von, this);
    if (fenster.exec() != QDialog::Accepted) {
        return;
    }
    const QList<int> nach = fenster.gewaehlte();
    if (aendere(QT_TRANSLATE_NOOP("Mahlberg", "Tage füllen"), [&](Aufzeichnung &was) {
            return Aufzeichnungsaenderung::fuelle(was, von, nach);
        })) {
        sageUmzug(localizedString(QStringLiteral("Gefüllte Tage: %1.")).arg(nach.size()), true);
    }
}

void Tagefenster::uebernimmHeute()
{
    if (!darfUmziehen()) {
        return;
    }
    Werteabgleich abgleich;
    const bool etwas = aendere(QT_TRANSLATE_NOOP("Mahlberg", "Werte von heute übernehmen"),
                               [&](Aufzeichnung &eine) {
                                   abgleich = uebernimmHeutigeWerte(eine, m_tueren.lebensmittel);
                                   return true;
                               });
    QStringList saetze = {
        localizedString(QStringLiteral("Zeilen mit neuen Werten: %1.")).arg(abgleich.uebernommen)};
    saetze << satzMitNamen(
        QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel, die in keiner Tabelle mehr stehen: %1 (%2)."),
        abgleich.fort);
    sageUmzug(saetze.join(u' '), etwas);
}

/// The plan that goes can be brought back in its own window; it is asked for all the same, for that
/// may lie behind this one.
void Tagefenster::legePlanAufTisch()
{
    ansicht->beende();
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const Tagesplan plan = alsPlan(eine ? eine->tage[buch.tag()] : Tag(), m_tueren.lebensmittel);
    const QStringList ausgelassen = satzMitNamen(
        QT_TRANSLATE_NOOP("Mahlberg", "Ausgelassene Zeilen: %1 (%2)."), plan.ausgelassen);
    if (plan.posten.isEmpty()) {
        sageUmzug((QStringList{localizedString(QStringLiteral(
                       "Auf diesem Tag steht nichts, was in einen Plan kommen kann."))} +
                   ausgelassen)
                      .join(u' '),
                  false);
        return;
    }
    const qsizetype bisherige = m_tueren.planVomTisch ? m_tueren.planVomTisch().size() : 0;
    if (bisherige > 0 &&
        m_tueren.melde(
            this,
            {.text = localizedString(QStringLiteral("Den Plan auf dem Schreibtisch ersetzen?")),
             .erklaerung =
                 localizedString(QStringLiteral("Er hat %1 Zeilen. Im Fenster des Plans lässt "
                                                "sich das zurücknehmen."))
                     .arg(bisherige),
             .knoepfe = {localizedString(QStringLiteral("Behalten")),
                         localizedString(QStringLiteral("Ersetzen"))}}) != 1) {
        return;
    }
    if (!m_tueren.legeAufTisch(plan.posten)) {
        sageUmzug(localizedString(QStringLiteral("Der Plan ließ sich nicht auf den Schreibtisch "
                                                 "legen.")),
                  false);
        return;
    }
    QStringList saetze = {
        localizedString(QStringLiteral("Auf dem Schreibtisch liegt der Tag als Plan. "
                                       "Lebensmittel: %1."))
            .arg(plan.posten.size())};
    saetze << satzMitNamen(QT_TRANSLATE_NOOP("Mahlberg", "Aus mehreren Zeilen addiert: %1 (%2)."),
                           plan.zusammengezaehlt)
           << ausgelassen;
    sageUmzug(saetze.join(u' '), false);
}

void Tagefenster::bringePlanEin(const QList<Planmenge> &posten, const char *worte)
{
    Zeilenablage ablage;
    ablage.mahlzeiten << QString();
    ablage.inhalt.mahlzeiten << Mahlzeit{alsZeilen(posten, m_tueren.lebensmittel), {}};
    bringeEin(QT_TRANSLATE_NOOP("Mahlberg", "Plan übernehmen"), ablage, einfuegestelle(),
              localizedString(QString::fromUtf8(worte)).arg(posten.size()));
}

void Tagefenster::nimmPlanVomTisch()
{
    if (!darfUmziehen()) {
        return;
    }
    const QList<Planmenge> posten = m_tueren.planVomTisch();
    if (posten.isEmpty()) {
        sageUmzug(localizedString(QStringLiteral("Der Plan auf dem Schreibtisch ist leer.")),
                  false);
        return;
    }
    bringePlanEin(posten,
                  QT_TRANSLATE_NOOP("Mahlberg", "Zeilen vom Plan auf dem Schreibtisch: %1."));
}

void Tagefenster::nimmAbgelegtenPlan()
{
    if (!darfUmziehen()) {
        return;
    }
    const QList<Vorratsplan> plaene = m_tueren.abgelegtePlaene();
    if (plaene.isEmpty()) {
        sageUmzug(localizedString(QStringLiteral("Es ist kein Plan abgelegt.")), false);
        return;
    }
    Planwahlfenster fenster(plaene, this);
    if (fenster.exec() == QDialog::Accepted) {
        bringePlanEin(plaene[fenster.gewaehlter()].posten,
                      QT_TRANSLATE_NOOP("Mahlberg", "Zeilen vom abgelegten Plan: %1."));
    }
}
