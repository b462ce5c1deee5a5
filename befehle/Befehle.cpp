#include "Befehle.h"

#include "Aufrufworte.h"
#include "Dateigrund.h"
#include "Einzeilig.h"
#include "Lebensmittelbericht.h"
#include "Planbericht.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

Antwort misslungen(const QString &satz)
{
    return {{}, satz, Misslungen};
}

/// Texts for people have blanks that break no line between numbers and units; on a terminal, and to
/// who searches there, a plain blank is of more use.
template <typename Bericht>
QByteArray inForm(const Bericht &bericht, Ausgabeform form)
{
    switch (form) {
    case Ausgabeform::Csv:
        return alsCsv(bericht);
    case Ausgabeform::Json:
        return alsJson(bericht);
    case Ausgabeform::Text:
        break;
    }
    return alsText(bericht).replace(QChar(QChar::Nbsp), u' ').toUtf8();
}

QString inAnfuehrung(const QStringList &namen)
{
    QStringList worte;
    for (const QString &name : namen) {
        worte << localizedString(QStringLiteral("„%1“")).arg(einzeilig(name));
    }
    return worte.join(QStringLiteral(", "));
}

/// What is said of a name that no food has, or several have.
QString ohneWahl(const Auftrag &auftrag, const Bestaende &bestaende, const Lebensmittelwahl &wahl)
{
    if (!wahl.mehrdeutig.isEmpty()) {
        return localizedString(QStringLiteral("Mehrere Lebensmittel heißen so: %1."))
            .arg(inAnfuehrung(wahl.mehrdeutig));
    }
    QString satz = localizedString(QStringLiteral("Ein Lebensmittel „%1“ gibt es nicht."))
                       .arg(einzeilig(auftrag.name));
    Bestaende gefragte = bestaende;
    if (auftrag.eigenes) {
        gefragte.eingebaute.clear();
    }
    const QStringList aehnliche = aehnlicheNamen(gefragte, auftrag.name);
    if (!aehnliche.isEmpty()) {
        satz += u' ' +
                localizedString(QStringLiteral("Ähnlich heißen: %1.")).arg(inAnfuehrung(aehnliche));
    }
    return bestaende.eigeneUngelesen.isNull() ? satz : satz + u' ' + bestaende.eigeneUngelesen;
}

Antwort schlageNach(const Auftrag &auftrag, const Befehlstueren &tueren, const Datenordner &ordner)
{
    const Bestaende bestaende = ladeBestaende(tueren, ordner);
    const Lebensmittelwahl wahl = waehleLebensmittel(bestaende, auftrag.name, auftrag.eigenes);
    if (wahl.lebensmittel == nullptr) {
        return misslungen(ohneWahl(auftrag, bestaende, wahl));
    }
    Antwort antwort;
    antwort.ausgabe = inForm(lebensmittelbericht(wahl, bestaende, auftrag.gramm), auftrag.form);
    if (wahl.auchEigenes) {
        antwort.meldung =
            localizedString(QStringLiteral("Auch ein eigenes Lebensmittel heißt „%1“; „--own“ "
                                           "zeigt dieses."))
                .arg(einzeilig(auftrag.name));
    }
    return antwort;
}

/// A plan's file carries the grams and nothing else; one that tells more of its foods is a store of
/// them, and its figures are no grams.
bool istPlan(const Lebensmittelverzeichnis &verzeichnis)
{
    return std::all_of(verzeichnis.begin(), verzeichnis.end(), [](const Datenmodul &eintrag) {
        return std::all_of(naehrwerte.begin(), naehrwerte.end(), [&eintrag](const auto &zeile) {
            return zeile.wert == Naehrwert::kal || eintrag.wert(zeile.wert) == 0.0F;
        });
    });
}

Antwort werteAus(const Auftrag &auftrag, const Befehlstueren &tueren, const Datenordner &ordner)
{
    const Archivdatei::Inhalt inhalt = Archivdatei::lesen(auftrag.name);
    if (inhalt.zustand != Archivdatei::Zustand::Gelesen) {
        return misslungen(dateigrund(auftrag.name, inhalt));
    }
    if (!istPlan(inhalt.archiv.verzeichnis)) {
        return misslungen(localizedString(QStringLiteral("Die Datei „%1“ enthält Lebensmittel und "
                                                         "keinen Plan."))
                              .arg(einzeilig(auftrag.name)));
    }
    Planliste plan;
    plan.laden(inhalt.archiv.verzeichnis);
    const Bestaende bestaende = ladeBestaende(tueren, ordner);
    const Planbericht bericht =
        planbericht(plan, bestaende, leseNamenswechsel(tueren.namenswechsel, bestaende.eingebaute),
                    auftrag.energiebedarf);
    // Without them, figures of the plan may be missing: better none than wrong ones.
    if (bericht.summen.ohneWerte > 0 && !bestaende.eigeneUngelesen.isNull()) {
        return misslungen(bestaende.eigeneUngelesen);
    }
    return {inForm(bericht, auftrag.form), {}, Erledigt};
}

QString mitVerweis(const QString &satz)
{
    return satz + u' ' + localizedString(QStringLiteral("Mehr sagt „mahlberg --help“."));
}

Antwort ohneDatenordner(const Auftrag &auftrag)
{
    return {{},
            mitVerweis(localizedString(QStringLiteral("Der Ordner „%1“ für „--data-dir“ ist keiner "
                                                      "oder lässt sich nicht anlegen."))
                           .arg(einzeilig(auftrag.datenordner))),
            FalscherAufruf};
}

} // namespace

std::optional<Datenordner> datenordnerVon(const Auftrag &auftrag)
{
    if (auftrag.datenordner.isNull()) {
        return Datenordner();
    }
    const Datenordner ordner = Datenordner::unmittelbar(auftrag.datenordner);
    return ordner.lege() ? std::optional(ordner) : std::nullopt;
}

Antwort antworte(const Aufruf &aufruf, const Befehlstueren &tueren)
{
    if (aufruf.fehler) {
        return {{}, mitVerweis(inWorten(*aufruf.fehler)), FalscherAufruf};
    }
    const Auftrag &auftrag = aufruf.auftrag;
    if (auftrag.befehl == Befehl::Hilfe) {
        return {hilfetext().toUtf8(), {}, Erledigt};
    }
    if (auftrag.befehl == Befehl::Version) {
        return {"Mahlberg " + QCoreApplication::applicationVersion().toUtf8() + '\n', {}, Erledigt};
    }
    const std::optional<Datenordner> ordner = datenordnerVon(auftrag);
    if (!ordner) {
        return ohneDatenordner(auftrag);
    }
    return auftrag.befehl == Befehl::Auswerten ? werteAus(auftrag, tueren, *ordner)
                                               : schlageNach(auftrag, tueren, *ordner);
}
