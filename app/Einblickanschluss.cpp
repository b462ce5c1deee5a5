#include "Einblickanschluss.h"

#include "AnthroController.h"
#include "AppController.h"
#include "Einblickperson.h"
#include "Einblickworte.h"
#include "Einstellungen.h"
#include "Fensterplatz.h"
#include "Klientenanschluss.h"
#include "Standaufbau.h"
#include "Tageanschluss.h"
#include "UeblichePortion.h"
#include "Vorschlagsblatt.h"
#include "Zeichenkettentabelle.h"

#include <QLocale>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

/// A new entry of a menu.
QAction *eintrag(QObject *menue, const char *name, const QString &text, const QKeySequence &tasten)
{
    auto *aktion = new QAction(text, menue);
    aktion->setObjectName(QLatin1String(name));
    aktion->setShortcut(tasten);
    return aktion;
}

/// One of a measure, in the language of the windows.
QString eines(const Mass &mass)
{
    const bool englisch = QLocale().language() == QLocale::English;
    return QStringLiteral("1 ") + (englisch ? mass.einesEn : mass.eines);
}

} // namespace

Einblickanschluss::Einblickanschluss(AppController &hauptfenster, AnthroController &rechner,
                                     Klientenanschluss &klienten, Tageanschluss &tage,
                                     Tueren tueren)
    : rezepte(hauptfenster, tage, tueren, [this]() -> const Stoffwissen & { return wissen(); })
    , m_hauptfenster(hauptfenster)
    , m_rechner(rechner)
    , m_klienten(klienten)
    , m_tage(tage)
    , m_tueren(std::move(tueren))
    , m_zusatz(QStringLiteral(":/Zusatzwerte.csv"))
{
    m_gleich.setSingleShot(true);
    m_gleich.setInterval(0);
    connect(&m_gleich, &QTimer::timeout, this, &Einblickanschluss::frischeAuf);
}

Einblickanschluss::~Einblickanschluss() = default;

void Einblickanschluss::beginne()
{
    baueMenue();
    // What is known of the dishes is forgotten before they follow their ingredients.
    connect(&m_hauptfenster, &AppController::eigeneGeaendert, this,
            &Einblickanschluss::vergissSpeisen);
    connect(&m_hauptfenster, &AppController::eigeneGeaendert, this,
            &Einblickanschluss::vergissRueckweg);
    connect(&rezepte, &Rezeptanschluss::geaendert, this, &Einblickanschluss::vergissSpeisen);
    connect(&m_tage.eigeneMasse(), &EigeneMasse::geaendert, this,
            &Einblickanschluss::vergissSpeisen);
    rezepte.beginne();
    const auto bald = [this] {
        m_gleich.start();
    };
    connect(&m_hauptfenster, &AppController::planBereit, this, &Einblickanschluss::bereitePlan);
    if (m_hauptfenster.planmodul != nullptr) {
        bereitePlan();
    }
    connect(&m_tage, &Tageanschluss::fensterBereit, this, &Einblickanschluss::bereiteTage);
    connect(m_hauptfenster.feldA, &QLineEdit::textChanged, this, bald);
    // An own food may be called as the built-in one that was on display.
    connect(m_hauptfenster.Tabelle, &Tabellenansicht::betaetigt, this, bald);
    for (const Schieber *regler :
         {m_hauptfenster.lebensmittelmenge, m_hauptfenster.lebensmittelmenge2,
          m_hauptfenster.lebensmittelmenge3}) {
        connect(regler, &Schieber::betaetigt, this, bald);
    }
    connect(&m_klienten.tisch, &Tischklient::gewechselt, this, &Einblickanschluss::folgeKlient);
    connect(&m_klienten.kartei, &Kartei::klientVergessen, this, [this](const QString &kennung) {
        m_tueren.einstellungen->remove(QStringLiteral("Einblick/") + kennung);
    });
    // What the calculator says comes to the plan with the same action, but maybe after this.
    connect(&m_rechner, &AnthroController::angabeGeaendert, this, &Einblickanschluss::folgeRechner,
            Qt::QueuedConnection);
}

void Einblickanschluss::baueMenue()
{
    const QList<QAction *> menues = m_hauptfenster.Hauptfenster->menuBar()->actions();
    QMenu *menue = menues[menues.size() - 2]->menu(); // the one before the help
    QAction *einblick =
        eintrag(menue, "aktionEinblick", localizedString(QStringLiteral("&Einblick")),
                QKeySequence(QStringLiteral("Ctrl+B")));
    QAction *liste = eintrag(menue, "aktionRangliste",
                             localizedString(QStringLiteral("&Rangliste und Vergleich")),
                             QKeySequence(QStringLiteral("Ctrl+R")));
    connect(einblick, &QAction::triggered, this, [this] { oeffne(Gegenstand::Lebensmittel); });
    connect(liste, &QAction::triggered, this, [this] { rangliste().zeige(); });
    menue->addActions({einblick, liste});
}

void Einblickanschluss::bereitePlan()
{
    Planmodul &plan = *m_hauptfenster.planmodul;
    plan.window();
    QAction *einblick =
        eintrag(plan.menueAnsicht, "aktionEinblick", localizedString(QStringLiteral("&Einblick")),
                QKeySequence(QStringLiteral("Ctrl+B")));
    connect(einblick, &QAction::triggered, this,
            [this, &plan] { oeffne(Gegenstand::Plan, plan.window()); });
    plan.menueAnsicht->addSeparator();
    plan.menueAnsicht->addAction(einblick);
    connect(&plan, &Planmodul::geaendert, this, [this] {
        vergissRueckweg();
        zeigeBald();
    });
}

void Einblickanschluss::bereiteTage()
{
    Tagefenster &tage = m_tage.fenster();
    const auto anders = [this] {
        vergissRueckweg();
        zeigeBald();
    };
    connect(&tage.buch, &Tagebuch::gewechselt, this, anders);
    connect(&tage.buch, &Tagebuch::geaendert, this, anders);
    connect(&tage.buch, &Tagebuch::tagGewechselt, this, &Einblickanschluss::zeigeBald);
    QMenu *menue = tage.menuBar()->actions().value(4)->menu(); // the one of what is shown
    QAction *einblick =
        eintrag(menue, "aktionEinblick", localizedString(QStringLiteral("&Einblick")),
                QKeySequence(QStringLiteral("Ctrl+B")));
    connect(einblick, &QAction::triggered, this, [this, &tage] { oeffne(Gegenstand::Tag, &tage); });
    menue->addAction(einblick);
}

void Einblickanschluss::oeffne(Gegenstand gegenstand, const QWidget *neben)
{
    const bool neu = m_fenster == nullptr;
    fenster();
    if (neu) {
        stelleNeben(neben != nullptr ? *neben : *m_hauptfenster.Hauptfenster);
        m_platz->stelleWiederHer();
    }
    m_fenster->zeige(gegenstand);
    m_veraltet = false;
}

Einblickfenster &Einblickanschluss::fenster()
{
    if (m_fenster != nullptr) {
        return *m_fenster;
    }
    Einblicktueren tueren;
    tueren.stand = [this](Gegenstand gegenstand) {
        return stand(gegenstand);
    };
    tueren.allgemeineZiele = [] {
        return Standaufbau::allgemeineZiele(Planmodul::klient.bedarf);
    };
    tueren.kandidaten = [this]() -> const Kandidaten & {
        return kandidaten();
    };
    tueren.referenz = Referenzdatei::ausDatei(QStringLiteral(":/Referenzwerte.csv")).zeilen;
    tueren.einstellungen = m_tueren.einstellungen;
    m_fenster = std::make_unique<Einblickfenster>(std::move(tueren), nullptr);
    m_platz = std::make_unique<Platzgedaechtnis>(*m_fenster, *m_tueren.einstellungen,
                                                 QStringLiteral("Einblickfenster"),
                                                 Platzgedaechtnis::Umfang::Platz, nullptr);
    connect(m_fenster->vorschlagsblatt, &Vorschlagsblatt::auswahlGeaendert, this,
            &Einblickanschluss::merkeWeggelassenes);
    connect(m_fenster.get(), &Einblickfenster::zeileGewuenscht, this,
            &Einblickanschluss::geheZuZeile);
    connect(m_fenster.get(), &Einblickfenster::aenderungGewuenscht, this,
            &Einblickanschluss::aendere);
    folgeKlient();
    return *m_fenster;
}

Ranglistenfenster &Einblickanschluss::rangliste()
{
    if (m_rangliste == nullptr) {
        Ranglistentueren tueren;
        tueren.lebensmittel = [this] {
            QList<Kandidat> alle;
            for (const QString &name : m_hauptfenster.Array) {
                if (const Datenmodul *satz = m_tage.speise(name)) {
                    alle << Kandidat{.schluessel = name, .satz = *satz};
                }
            }
            for (const QString &name : m_hauptfenster.KundenArray) {
                if (!m_hauptfenster.Dictionary.contains(name)) {
                    alle << Kandidat{.schluessel = name,
                                     .satz = m_hauptfenster.KundenDictionary.value(name),
                                     .eigen = true};
                }
            }
            return alle;
        };
        tueren.masse = [this](const QString &schluessel) {
            return m_tage.masse(schluessel);
        };
        tueren.wissen = [this] {
            return wissen();
        };
        m_rangliste = std::make_unique<Ranglistenfenster>(std::move(tueren), nullptr);
        m_listenplatz = std::make_unique<Platzgedaechtnis>(
            *m_rangliste, *m_tueren.einstellungen, QStringLiteral("Ranglistenfenster"),
            Platzgedaechtnis::Umfang::Platz, nullptr);
        m_listenplatz->stelleWiederHer();
        connect(m_rangliste.get(), &Ranglistenfenster::lebensmittelGewuenscht, this,
                &Einblickanschluss::zeigeLebensmittel);
        connect(m_rangliste.get(), &Ranglistenfenster::planGewuenscht, this,
                [this](const QString &schluessel) {
                    m_hauptfenster.holePlan().nameimportvontoolbar(schluessel);
                });
    }
    return *m_rangliste;
}

const Stoffwissen &Einblickanschluss::wissen()
{
    if (!m_wissen) {
        m_wissen = m_zusatz.wissen();
        const Rezepte geltende =
            geltendeRezepte(rezepte.rezepte(), m_hauptfenster.KundenDictionary);
        Lebensmittelverzeichnis gegebene;
        for (const Rezept &eines : geltende) {
            gegebene.insert(eines.schluessel, eines.gegeben);
        }
        m_wissen->setzeRezepte(rezeptangaben(geltende, *m_wissen), gegebene);
    }
    return *m_wissen;
}

/// Own foods that are called as built-in ones are found nowhere but in their own list: plan and
/// days take the built-in one.
const Kandidaten &Einblickanschluss::kandidaten()
{
    if (!m_kandidaten) {
        m_kandidaten.emplace();
        for (const QString &name : m_hauptfenster.Array + m_hauptfenster.KundenArray) {
            const Datenmodul *satz = m_tage.speise(name);
            if (satz == nullptr) {
                continue;
            }
            const std::optional<Mass> portion = ueblichePortion(m_tage.masse(name));
            *m_kandidaten << Vorschlagskandidat{.schluessel = name,
                                                .lebensmittel = *satz,
                                                .gramm = portion ? portion->gramm : 0,
                                                .angabe = portion ? eines(*portion) : QString()};
        }
    }
    return *m_kandidaten;
}

/// Whether the food on display was taken from the own ones: it may be called as a built-in one.
bool Einblickanschluss::zeigtEigenes() const
{
    return AppController::angeklickteSpalte == 1 &&
           m_hauptfenster.KundenDictionary.contains(m_hauptfenster.unuebersetztername);
}

/// Own foods, their recipes or household measures are others now.
void Einblickanschluss::vergissSpeisen()
{
    m_wissen.reset();
    m_kandidaten.reset();
    m_listeVeraltet = true;
    zeigeBald();
}

Einblickstand Einblickanschluss::nackterStand(Gegenstand gegenstand)
{
    const auto &haupt = m_hauptfenster;
    switch (gegenstand) {
    case Gegenstand::Plan: {
        Einblickstand eines = Standaufbau::vomPlan(
            m_tage.planVomTisch(), [this](const QString &name) { return m_tage.speise(name); });
        eines.titel =
            localizedString(QStringLiteral("Mahlzeitenplan, Zeilen: %1")).arg(eines.speisen.size());
        return eines;
    }
    case Gegenstand::Tag:
    case Gegenstand::Mittel: {
        const std::optional<Aufzeichnung> eine = m_tage.fenster().buch.jetzige();
        const int tag = m_tage.fenster().buch.tag();
        Einblickstand eines = gegenstand == Gegenstand::Tag
                                  ? Standaufbau::vomTag(eine.value_or(Aufzeichnung()), tag)
                                  : Standaufbau::vomMittel(eine.value_or(Aufzeichnung()));
        eines.titel = !eine ? localizedString(QStringLiteral("Keine Aufzeichnung ist geöffnet."))
                      : gegenstand == Gegenstand::Tag
                          ? tagesname(*eine, tag)
                          : localizedString(QStringLiteral("Tage im Mittel: %1.")).arg(eines.tage);
        return eines;
    }
    default: {
        const QString &name = haupt.unuebersetztername;
        const Datenmodul *satz =
            zeigtEigenes() ? &*haupt.KundenDictionary.constFind(name) : m_tage.speise(name);
        const int gramm = haupt.lebensmittelmenge->intValue();
        Einblickstand eines = Standaufbau::vomLebensmittel(name, satz, gramm);
        eines.titel =
            satz != nullptr
                ? QStringLiteral("%1, %2").arg(localizedString(name), Einblickworte::gramm(gramm))
                : localizedString(QStringLiteral("Kein Lebensmittel ist gewählt."));
        return eines;
    }
    }
}

Einblickstand Einblickanschluss::stand(Gegenstand gegenstand)
{
    Einblickstand eines = nackterStand(gegenstand);
    eines.wissen = gegenstand == Gegenstand::Lebensmittel && zeigtEigenes()
                       ? wissen().mitEigenem(m_hauptfenster.unuebersetztername)
                       : wissen();
    return eines;
}

void Einblickanschluss::zeigeBald()
{
    m_veraltet = true;
    m_gleich.start();
}

void Einblickanschluss::frischeAuf()
{
    m_veraltet = false;
    if (m_fenster != nullptr && m_fenster->isVisible()) {
        m_fenster->frischeAuf();
    }
    if (std::exchange(m_listeVeraltet, false) && m_rangliste != nullptr) {
        m_rangliste->frischeAuf();
    }
}

Referenzperson Einblickanschluss::person() const
{
    const Rechnerangaben angaben{
        .frau = m_rechner.geschlechtauswahl == 1.0F,
        .alter = m_rechner.alter->intValue(),
        .aktivitaet = static_cast<Aktivitaet>(std::clamp(m_rechner.arbeit->gewaehlterTag(), 0, 2)),
        .gewicht = static_cast<double>(Planmodul::klient.gewicht),
        .energiebedarf = static_cast<double>(Planmodul::klient.bedarf)};
    return referenzperson(m_klienten.tisch.akte(), angaben, QDate::currentDate());
}

/// Somebody else sits at the desk, and what was typed about the one before is gone; or the same
/// client with other measures, of which only those change.
void Einblickanschluss::folgeKlient()
{
    if (m_fenster == nullptr) {
        return;
    }
    const std::optional<Klientenakte> &akte = m_klienten.tisch.akte();
    const QString kennung = akte ? akte->person.kennung : QString();
    if (kennung != m_kennung || !m_vorgabe) {
        m_kennung = kennung;
        m_vorgabe = person();
        holeWeggelassenes();
        m_fenster->vorschlagsblatt->vergissWuensche();
        m_fenster->setzeKlient(*m_vorgabe, leidenVon(akte));
    } else {
        m_fenster->setzeLeiden(leidenVon(akte));
        folgeRechner();
    }
}

void Einblickanschluss::folgeRechner()
{
    if (m_fenster == nullptr || !m_vorgabe) {
        return;
    }
    const Referenzperson neue = person();
    if (neue != *m_vorgabe) {
        m_fenster->folgePerson(neue, mitNeuem(m_fenster->personenwahl->person(), *m_vorgabe, neue));
        m_vorgabe = neue;
    }
    m_gleich.start();
}

/// At that edge of the screen where the least of the other window is covered.
void Einblickanschluss::stelleNeben(const QWidget &anderes)
{
    const QRect schirm = anderes.screen()->availableGeometry();
    const QSize groesse = m_fenster->size();
    const int oben = anderes.frameGeometry().top();
    const QRect links = Fensterplatz::imSchirm(schirm, {schirm.left(), oben}, groesse);
    const QRect rechts =
        Fensterplatz::imSchirm(schirm, {schirm.right() - groesse.width(), oben}, groesse);
    const auto verdeckt = [&anderes](const QRect &platz) {
        return platz.intersected(anderes.frameGeometry()).width();
    };
    m_fenster->setGeometry(verdeckt(links) < verdeckt(rechts) ? links : rechts);
}

/// What a client does not eat holds for the next visit too.
void Einblickanschluss::merkeWeggelassenes()
{
    const Vorschlagsblatt &blatt = *m_fenster->vorschlagsblatt;
    QStringList gruppen;
    for (const Weglassgruppenbeschreibung &eine : weglassgruppen) {
        if (blatt.weggelassene().testFlag(eine.gruppe)) {
            gruppen << QLatin1String(eine.kennung);
        }
    }
    m_tueren.einstellungen->setValue(merkname("Gruppen"), gruppen);
    m_tueren.einstellungen->setValue(merkname("Gestrichene"), blatt.gestrichene());
}

void Einblickanschluss::holeWeggelassenes()
{
    const QStringList namen = m_tueren.einstellungen->value(merkname("Gruppen")).toStringList();
    Weglassgruppen gruppen;
    for (const Weglassgruppenbeschreibung &eine : weglassgruppen) {
        gruppen.setFlag(eine.gruppe, namen.contains(QLatin1String(eine.kennung)));
    }
    Vorschlagsblatt &blatt = *m_fenster->vorschlagsblatt;
    blatt.setzeWeggelassene(gruppen);
    blatt.setzeGestrichene(m_tueren.einstellungen->value(merkname("Gestrichene")).toStringList());
}

/// Under which the settings keep it: of each client by itself, whose key says nothing of them.
QString Einblickanschluss::merkname(const char *was) const
{
    return QStringLiteral("Einblick/%1/%2")
        .arg(m_kennung.isEmpty() ? QStringLiteral("Ohne Klient") : m_kennung, QLatin1String(was));
}

void Einblickanschluss::folgeVerlauf()
{
    vergissRueckweg();
    vergissSpeisen();
    rezepte.folgeVerlauf();
}

void Einblickanschluss::folgeSprache()
{
    m_kandidaten.reset(); // their portions are said in words
    if (m_fenster != nullptr) {
        m_fenster->folgeSprache();
    }
    if (m_rangliste != nullptr) {
        m_rangliste->folgeSprache();
    }
    rezepte.folgeSprache();
}
