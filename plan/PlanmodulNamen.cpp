// Foods of the plan that no store has under the name by which the plan knows them: the built-in
// table gives some foods other names over the years, and takes one out now and then. Such a row is
// empty and counts nothing, so the user learns of it; the plan stays as it is until they say so.

#include "Planmodul.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// What the notices are about.
const QString neueNamen = QStringLiteral("neueNamen");
const QString fehlendeNamen = QStringLiteral("fehlendeNamen");

QString inWorten(const QString &name)
{
    return localizedString(QStringLiteral("„%1“")).arg(kurzerName(localizedString(name)));
}

/// The names in quotes, one after the other; of many the first ones and how many more there are.
QString aufgezaehlt(const QStringList &namen)
{
    QStringList worte;
    for (const QString &name : namen) {
        worte << inWorten(name);
    }
    return aufzaehlung(worte, 6);
}

/// The sentence about foods that are called something else now.
QString umbenanntSatz(const QStringList &namen, const QString &neuerName)
{
    const QString erster = inWorten(namen.constFirst());
    if (namen.size() == 1) {
        return localizedString(QStringLiteral("%1 im Plan heißt jetzt %2. Unter dem alten Namen "
                                              "zählt es nicht mit."))
            .arg(erster, inWorten(neuerName));
    }
    return localizedString(QStringLiteral("%1 Lebensmittel im Plan heißen jetzt anders, z. B. %2 "
                                          "jetzt %3. Unter den alten Namen zählen sie nicht mit."))
        .arg(QString::number(namen.size()), erster, inWorten(neuerName));
}

QString fehlendSatz(const QStringList &namen)
{
    const QString satz =
        namen.size() == 1
            ? localizedString(
                  QStringLiteral("%1 steht nicht mehr in der Tabelle und zählt im Plan nicht mit."))
            : localizedString(QStringLiteral(
                  "%1 stehen nicht mehr in der Tabelle und zählen im Plan nicht mit."));
    return satz.arg(aufgezaehlt(namen));
}

} // namespace

/// What has become of the foods whose rows count nothing.
Namensbefund Planmodul::namensbefund() const
{
    QStringList unbekannt;
    std::copy_if(PlanArray.begin(), PlanArray.end(), std::back_inserter(unbekannt),
                 [this](const QString &name) { return lebensmittel(name) == nullptr; });
    return pruefeNamen(unbekannt, PlanArray, m_namenswechsel);
}

/// The former names of foods that this table has.
void Planmodul::ladeNamenswechsel()
{
    m_namenswechsel = leseNamenswechsel(m_tueren.namenswechsel, Dictionary);
}

/// Tells of the foods that the plan has under names of former times.
void Planmodul::pruefePlannamen()
{
    if (m_fenster != nullptr) {
        const Namensbefund befund = namensbefund();
        zeigeFehlende(befund);
        zeigeUmbenannte(befund.umbenannt);
    }
}

/// A notice goes when it is settled. One that the user has closed does not come back.
void Planmodul::folgePlannamen()
{
    if (m_fenster == nullptr) {
        return;
    }
    const bool fehlende = hinweise->zeigt(fehlendeNamen);
    const bool umbenannte = hinweise->zeigt(neueNamen);
    if (!fehlende && !umbenannte) {
        return; // as nearly always, so a change of an amount costs no look at all names
    }
    const Namensbefund befund = namensbefund();
    if (fehlende) {
        zeigeFehlende(befund);
    }
    if (umbenannte) {
        zeigeUmbenannte(befund.umbenannt);
    }
}

void Planmodul::zeigeUmbenannte(const QStringList &namen)
{
    if (namen.isEmpty()) {
        hinweise->nimmZurueck(neueNamen);
        return;
    }
    hinweise->zeige({.kennung = neueNamen,
                     .text = umbenanntSatz(namen, m_namenswechsel.value(namen.constFirst())),
                     .knopf = localizedString(QStringLiteral("Neue Namen übernehmen")),
                     .aktion = [this] {
                         uebernimmNeueNamen();
                     }});
}

/// A food whose new name the plan has already is told here as well: giving the row that name would
/// make two rows of one food, and the file can hold only one.
void Planmodul::zeigeFehlende(const Namensbefund &befund)
{
    QStringList saetze;
    if (!befund.fehlend.isEmpty()) {
        saetze << fehlendSatz(befund.fehlend);
    }
    for (const QString &name : befund.doppelt) {
        saetze << localizedString(QStringLiteral("%1 heißt jetzt %2 und steht unter diesem Namen "
                                                 "schon im Plan; die Zeile mit dem alten zählt "
                                                 "nicht mit."))
                      .arg(inWorten(name), inWorten(m_namenswechsel.value(name)));
    }
    if (saetze.isEmpty()) {
        hinweise->nimmZurueck(fehlendeNamen);
        return;
    }
    hinweise->zeige({.kennung = fehlendeNamen, .text = saetze.join(u' '), .warnung = true});
}

/// The rows keep their places and grams.
void Planmodul::uebernimmNeueNamen()
{
    beendeEingabe();
    const QStringList umbenannte = namensbefund().umbenannt;
    for (const QString &name : umbenannte) {
        umbenennen(name, m_namenswechsel.value(name));
    }
    uebernimmAenderung();
    Q_EMIT geaendert({Aenderungsart::Namen});
}
