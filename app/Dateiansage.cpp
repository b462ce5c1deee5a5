#include "Dateiansage.h"

#include "AppController.h"
#include "Bestandsvergleich.h"
#include "Einstellungen.h"
#include "Lebensmittelbestand.h"
#include "Sicherungsfenster.h"
#include "Zeichenkettentabelle.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>

namespace {

const QString eigeneDaten = QStringLiteral("customdaten");
const QString plandaten = QStringLiteral("plandaten");

// What notices are about.
const QString andereEigene = QStringLiteral("andere eigene");
const QString einstellungsdatei = QStringLiteral("einstellungen");
const QString zurueckgeholt = QStringLiteral("zurueckgeholt");

/// What is said of a file, in the order of the reports' kinds. %1 is the file, %2 its copy's name.
struct Worte
{
    const char *text;
    const char *knopf;
};

constexpr std::array<Worte, 4> meldungsworte = {{
    {QT_TRANSLATE_NOOP("Mahlberg", "Die Datei „%1“ lässt sich nicht lesen; was in ihr steht, fehlt "
                                   "hier, geht aber nicht verloren. Bitte prüfen Sie Ordner und "
                                   "Platte und starten Sie Mahlberg neu."),
     QT_TRANSLATE_NOOP("Mahlberg", "Ordner zeigen")},
    {QT_TRANSLATE_NOOP("Mahlberg", "Die Datei „%1“ ist beschädigt; was in ihr stand, fehlt hier. "
                                   "Sie wird aufgehoben. Vielleicht hilft ein früherer Stand."),
     QT_TRANSLATE_NOOP("Mahlberg", "Frühere Stände …")},
    {QT_TRANSLATE_NOOP("Mahlberg", "In der Datei „%1“ stand etwas, das nicht von hier kam. Es ist "
                                   "aufgehoben als „%2“."),
     QT_TRANSLATE_NOOP("Mahlberg", "Frühere Stände …")},
    {QT_TRANSLATE_NOOP("Mahlberg", "Die Datei „%1“ lässt sich nicht schreiben: Die letzte Änderung "
                                   "ist nicht gesichert. Ist die Platte voll oder der Ordner "
                                   "geschützt?"),
     QT_TRANSLATE_NOOP("Mahlberg", "Jetzt sichern")},
}};

QString kennung(const Dateimeldung &meldung)
{
    return meldung.path + u'|' + QString::number(static_cast<int>(meldung.art));
}

/// What was put aside is safe; anything else may be lost.
bool istWarnung(const Dateimeldung &meldung)
{
    return meldung.art != Dateimeldung::Art::Beiseitegelegt;
}

/// Names in one line; of many only the first are named.
QString aufzaehlung(const QStringList &namen)
{
    constexpr qsizetype genannte = 3;
    QStringList worte;
    for (const QString &name : namen.first(std::min(namen.size(), genannte))) {
        worte << (name.isEmpty() ? localizedString(QStringLiteral("eines ohne Namen"))
                                 : localizedString(QStringLiteral("„%1“"))
                                       .arg(kurzerName(localizedString(name))));
    }
    if (namen.size() > genannte) {
        worte << localizedString(QStringLiteral("%1 weitere")).arg(namen.size() - genannte);
    }
    return worte.join(QStringLiteral(", "));
}

QString worteFuer(const Bestandsunterschied &unterschied)
{
    const struct
    {
        const char *worte;
        const QStringList &namen;
    } teile[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "mit anderen Werten: %1"), unterschied.anders},
        {QT_TRANSLATE_NOOP("Mahlberg", "es fehlen: %1"), unterschied.fehlend},
        {QT_TRANSLATE_NOOP("Mahlberg", "zusätzlich: %1"), unterschied.zusaetzlich},
    };
    QStringList saetze;
    for (const auto &[worte, namen] : teile) {
        if (!namen.isEmpty()) {
            saetze << localizedString(QString::fromUtf8(worte)).arg(aufzaehlung(namen));
        }
    }
    return saetze.join(QStringLiteral("; "));
}

} // namespace

Dateiansage::Dateiansage(AppController &controller, const Datenordner &ordner,
                         std::shared_ptr<Dateihueter> dateien)
    : m_controller(controller)
    , m_ordner(ordner)
    , m_dateien(std::move(dateien))
{
}

/// A table that is being painted may write a file, so the window hears of it afterwards.
void Dateiansage::beginne()
{
    connect(m_dateien.get(), &Dateihueter::gemeldet, this, &Dateiansage::zeige,
            Qt::QueuedConnection);
    connect(m_dateien.get(), &Dateihueter::erledigt, this, &Dateiansage::nimmErledigtesZurueck,
            Qt::QueuedConnection);
    connect(m_dateien.get(), &Dateihueter::geschrieben, this, &Dateiansage::merkeGeschriebenes,
            Qt::QueuedConnection);
    connect(&m_controller, &AppController::fruehereStaendeGewuenscht, this,
            [this] { zeigeFruehereStaende(); });
    for (const Dateimeldung &meldung : m_dateien->offeneMeldungen()) {
        zeige(meldung);
    }
}

void Dateiansage::beachte(const Einstellungen &einstellungen)
{
    connect(&einstellungen, &Einstellungen::nichtGeschrieben, this, [this](const QString &path) {
        m_controller.hinweise->zeige(
            {.kennung = einstellungsdatei,
             .text = localizedString(
                         QStringLiteral("Die Einstellungen lassen sich nicht sichern: Die Datei "
                                        "„%1“ ist nicht zu lesen oder nicht zu schreiben."))
                         .arg(QDir::toNativeSeparators(path)),
             .warnung = true});
    });
    connect(&einstellungen, &Einstellungen::wiederGeschrieben, this,
            [this] { m_controller.hinweise->nimmZurueck(einstellungsdatei); });
}

/// The plan's own strip, as long as its window is there to be seen.
Hinweisstreifen *Dateiansage::streifenDesPlans() const
{
    Planmodul *plan = m_controller.planmodul;
    return plan != nullptr && plan->hinweise != nullptr && plan->window()->isVisible()
               ? plan->hinweise
               : nullptr;
}

/// Where the user works with this file.
Hinweisstreifen &Dateiansage::streifenFuer(const QString &path) const
{
    Hinweisstreifen *beimPlan = path == pfad(plandaten) ? streifenDesPlans() : nullptr;
    return beimPlan != nullptr ? *beimPlan : *m_controller.hinweise;
}

void Dateiansage::zeige(const Dateimeldung &meldung)
{
    const auto &[text, knopf] = meldungsworte.at(static_cast<std::size_t>(meldung.art));
    const QString satz = localizedString(QString::fromUtf8(text));
    const QString datei = QDir::toNativeSeparators(meldung.path);
    streifenFuer(meldung.path)
        .zeige({.kennung = kennung(meldung),
                .text = meldung.kopie.isNull()
                            ? satz.arg(datei)
                            : satz.arg(datei, QFileInfo(meldung.kopie).fileName()),
                .knopf = localizedString(QString::fromUtf8(knopf)),
                .aktion = [this, meldung] { fuehreAus(meldung); },
                .warnung = istWarnung(meldung)});
}

/// Does what the notice offers. That alone settles nothing: what is still amiss is said again.
void Dateiansage::fuehreAus(const Dateimeldung &meldung)
{
    switch (meldung.art) {
    case Dateimeldung::Art::NichtLesbar:
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(meldung.path).path()));
        break;
    case Dateimeldung::Art::Beschaedigt:
    case Dateimeldung::Art::Beiseitegelegt:
        zeigeFruehereStaende(meldung.path);
        break;
    case Dateimeldung::Art::NichtGeschrieben:
        sichereNochmals(meldung.path);
        break;
    }
    zeigeUngeloestes();
}

void Dateiansage::zeigeUngeloestes()
{
    for (const Dateimeldung &meldung : m_dateien->offeneMeldungen()) {
        if (istWarnung(meldung)) {
            zeige(meldung);
        }
    }
}

void Dateiansage::nimmErledigtesZurueck(const QString &path)
{
    QStringList offen;
    for (const Dateimeldung &meldung : m_dateien->offeneMeldungen()) {
        offen << kennung(meldung);
    }
    for (std::size_t art = 0; art < meldungsworte.size(); ++art) {
        const QString eine = kennung({static_cast<Dateimeldung::Art>(art), path, {}, {}});
        if (offen.contains(eine)) {
            continue;
        }
        m_controller.hinweise->nimmZurueck(eine);
        if (m_controller.planmodul != nullptr && m_controller.planmodul->hinweise != nullptr) {
            m_controller.planmodul->hinweise->nimmZurueck(eine);
        }
    }
}

void Dateiansage::sichereNochmals(const QString &path)
{
    if (path == pfad(eigeneDaten)) {
        m_dateien->schreiben(path, m_controller.KundenDictionary);
    } else if (m_controller.planmodul != nullptr) {
        m_dateien->schreiben(path, m_controller.planmodul->plansavedictionary);
    }
}

/// On a save the plan writes first and the main window second: in between the two differ, and
/// nobody need hear of that.
void Dateiansage::merkeGeschriebenes(const QString &path, const Lebensmittelverzeichnis &inhalt)
{
    if (m_zurueckgeholt && m_zurueckgeholt->path == path &&
        !::vergleiche(m_zurueckgeholt->stand, inhalt).leer()) {
        nimmZurueckgeholtesZurueck();
    }
    if (path == pfad(eigeneDaten)) {
        if (!m_geschriebeneEigene) {
            QMetaObject::invokeMethod(this, &Dateiansage::vergleiche, Qt::QueuedConnection);
        }
        m_geschriebeneEigene = inhalt;
    }
}

/// The plan keeps a copy of the own foods and writes it too. When the file came to hold other foods
/// than the main window in that way, the user learns which, and can put the window's back.
void Dateiansage::vergleiche()
{
    const Lebensmittelverzeichnis inDerDatei =
        m_geschriebeneEigene.value_or(Lebensmittelverzeichnis());
    m_geschriebeneEigene.reset();
    const Bestandsunterschied unterschied = ::vergleiche(m_controller.KundenDictionary, inDerDatei);
    if (unterschied.leer()) {
        m_controller.hinweise->nimmZurueck(andereEigene);
        return;
    }
    // That something is saved would not be the whole truth any more.
    m_controller.hinweise->nimmZurueck(AppController::hinweisGesichert);
    m_controller.hinweise->zeige(
        {.kennung = andereEigene,
         .text = localizedString(
                     QStringLiteral("In der Datei stehen jetzt andere eigene Lebensmittel als in "
                                    "diesem Fenster, so wie der Plan sie kennt (%1)."))
                     .arg(worteFuer(unterschied)),
         .knopf = localizedString(QStringLiteral("Die des Fensters sichern")),
         .aktion =
             [this] {
                 m_controller.uebernimmEigene(m_controller.KundenDictionary,
                                              m_controller.KundenArray);
             },
         .warnung = true});
}

void Dateiansage::zeigeFruehereStaende(const QString &path)
{
    if (auto *offen = m_controller.Hauptfenster->findChild<Sicherungsfenster *>()) {
        offen->activateWindow();
        return;
    }
    const auto planstand = [this] {
        return m_controller.planmodul != nullptr
                   ? m_controller.planmodul->plansavedictionary
                   : Archivdatei::lesen(pfad(plandaten)).archiv.verzeichnis;
    };
    auto *fenster =
        new Sicherungsfenster({{.titel = localizedString(QStringLiteral("Eigene Lebensmittel")),
                                .path = pfad(eigeneDaten),
                                .groesse = localizedString(QStringLiteral("kcal je 100 g")),
                                .jetzt = [this] { return m_controller.KundenDictionary; },
                                .zurueck =
                                    [this](const auto &stand) {
                                        holeEigeneZurueck(stand);
                                    }},
                               {.titel = localizedString(QStringLiteral("Mahlzeitenplan")),
                                .path = pfad(plandaten),
                                .groesse = localizedString(QStringLiteral("Menge, g")),
                                .jetzt = planstand,
                                .zurueck =
                                    [this](const auto &stand) {
                                        holePlanZurueck(stand);
                                    }}},
                              path, m_controller.Hauptfenster);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->open();
}

void Dateiansage::setzeEigene(const Lebensmittelverzeichnis &eigene, const QStringList &namen)
{
    m_controller.uebernimmEigene(eigene, namen);
    Q_EMIT m_controller.eigeneGeaendert({Aenderungsart::Eigenstand});
}

void Dateiansage::holeEigeneZurueck(const Lebensmittelverzeichnis &stand)
{
    const QString path = pfad(eigeneDaten);
    const Lebensmittelverzeichnis vorher = m_controller.KundenDictionary;
    const QStringList namen = m_controller.KundenArray;
    m_dateien->hebeAuf(path);
    setzeEigene(stand, sortiertNachName(stand.keys()));
    meldeZurueckgeholtes(path, stand, [this, vorher, namen] { setzeEigene(vorher, namen); });
}

void Dateiansage::holePlanZurueck(const Lebensmittelverzeichnis &stand)
{
    const QString path = pfad(plandaten);
    m_controller.Planmoduloeffnen();
    Planmodul &plan = *m_controller.planmodul;
    const Planliste vorher = plan;
    Planliste zeilen;
    zeilen.laden(stand);
    m_dateien->hebeAuf(path);
    plan.uebernimmPlan(zeilen);
    meldeZurueckgeholtes(path, stand,
                         [this, vorher] { m_controller.planmodul->uebernimmPlan(vorher); });
}

void Dateiansage::meldeZurueckgeholtes(const QString &path, const Lebensmittelverzeichnis &stand,
                                       const std::function<void()> &rueckgaengig)
{
    nimmZurueckgeholtesZurueck();
    m_zurueckgeholt = {path, stand};
    streifenFuer(path).zeige(
        {.kennung = zurueckgeholt,
         .text = localizedString(QStringLiteral("Der frühere Stand ist zurückgeholt.")),
         .knopf = localizedString(QStringLiteral("Rückgängig")),
         .aktion = rueckgaengig});
}

/// What has been worked on since would be lost if the way back were still offered.
void Dateiansage::nimmZurueckgeholtesZurueck()
{
    m_zurueckgeholt.reset();
    m_controller.hinweise->nimmZurueck(zurueckgeholt);
    if (m_controller.planmodul != nullptr && m_controller.planmodul->hinweise != nullptr) {
        m_controller.planmodul->hinweise->nimmZurueck(zurueckgeholt);
    }
}
