#include "Rundgang.h"

#include "Erscheinungsbild.h"
#include "Oberflaeche.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

#include <utility>

namespace {

struct Tagesration
{
    const char *name;
    int gramm;
};

/// What a day may look like that covers its needs.
constexpr Tagesration guterTag[] = {
    {"Haferflocken", 50},
    {"Milch, 1,5 % Fett (fettarme Milch, H-Milch)", 250},
    {"Mandeln", 25},
    {"Walnussbrote", 30},
    {"Konfitüren (Marmeladen)", 120},
    {"Joghurt (Naturjoghurts), natur", 70},
    {"Nudeln (Pasta, Spaghetti), ohne Ei, roh", 150},
    {"Hähnchenbrustfilet (Hähnchenbrüste), gebraten", 125},
    {"Brokkoli (Broccoli), gedämpft", 80},
    {"Möhren (Karotten, Mohrrüben, Rüebli), gedämpft", 50},
    {"Rapsöl (Speiseöle)", 40},
    {"Reis (weißer Reis), roh", 30},
    {"Quark (Topfen), mager (Magerquark)", 80},
    {"Apfelmus, gezuckert", 50},
};

} // namespace

Rundgang::Rundgang(Oberflaeche &oberflaeche, const QDir &ordner, QStringList *meldungen)
    : m_oberflaeche(oberflaeche)
    , m_controller(oberflaeche.hauptfenster)
    , m_rechner(oberflaeche.rechner)
    , m_ordner(ordner)
    , m_meldungen(meldungen)
{
}

bool Rundgang::gehen()
{
    m_gelungen = m_ordner.mkpath(QStringLiteral("."));
    m_controller.Hauptfenster->show();
    halt(QStringLiteral("start"),
         QStringLiteral("Started: %1 rows in the table of foods.").arg(m_controller.Array.size()));
    // A row in the first third, the middle and the last third, whatever the table holds.
    const qsizetype zeilen = m_controller.Array.size();
    for (const qsizetype zeile : {zeilen / 5, zeilen / 2, zeilen * 4 / 5}) {
        waehle(m_controller.Array.value(zeile));
        halt(QStringLiteral("food"),
             QStringLiteral("Chose a food for %1:")
                 .arg(m_controller.lebensmittelmenge->stringValue() + QStringLiteral(" g")));
    }
    setzeMenge(30);
    halt(QStringLiteral("amount"), QStringLiteral("Set the amount to 30 g:"));
    for (int i = 0; i < AppController::ansichten.size(); ++i) {
        m_controller.Ansichtdurchwechseln();
        halt(QStringLiteral("view"), QStringLiteral("Next view: %1")
                                         .arg(m_controller.DatenAnsicht->tabText(
                                             m_controller.DatenAnsicht->currentIndex())));
    }
    suche();
    sichereEigenes();
    rechne();
    plane();
    berate();
    m_controller.zeigeAnsicht(AppController::ansichten.first());
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    halt(QStringLiteral("dark"), QStringLiteral("Switched to the dark appearance."));
    haltBeimPlan(QStringLiteral("plan-dark"), QStringLiteral("The meal plan in the dark:"));
    zeigeErscheinungsbild(m_controller.erscheinungsbild());

    QFile datei(m_ordner.filePath(QStringLiteral("summary.txt")));
    m_gelungen = datei.open(QIODevice::WriteOnly | QIODevice::Text) &&
                 datei.write(m_bericht.join(u'\n').toUtf8() + '\n') > 0 && m_gelungen;
    QTextStream(stdout) << "The pictures and a summary of the tour lie in "
                        << m_ordner.absolutePath() << Qt::endl;
    return m_gelungen;
}

/// Chooses the way a user does: a click on the cell.
void Rundgang::waehle(const QString &name)
{
    const int zeile = static_cast<int>(m_controller.Array.indexOf(name));
    m_controller.Tabelle->selectRow(zeile);
    m_controller.Tabelle->scrollRowToVisible(zeile);
    m_controller.Laden();
}

void Rundgang::setzeMenge(int gramm)
{
    m_controller.lebensmittelmenge->setIntValue(gramm);
    m_controller.wieviellebensmittel(*m_controller.lebensmittelmenge);
}

/// Finds foods by their name, then by their profile.
void Rundgang::suche()
{
    m_controller.suchfeld->setStringValue(QStringLiteral("kart"));
    m_controller.suchen(*m_controller.suchfeld);
    halt(QStringLiteral("search"), QStringLiteral("Searched for \"%1\", found %2:")
                                       .arg(m_controller.suchfeld->stringValue())
                                       .arg(m_controller.suchArray.size() - 1));
    m_controller.suchfeld->setStringValue(QString());
    m_controller.profilaufzu->setChecked(true);
    for (const int kriterium : {0, 3}) {
        m_controller.suchprofileinaus->zelle(kriterium)->setChecked(true);
    }
    m_controller.proteinsuche();
    halt(QStringLiteral("profile"), QStringLiteral("Searched for protein and gout, found %1:")
                                        .arg(m_controller.suchArray.size()));
    m_controller.profilaufzu->setChecked(false);
}

/// Types a food of one's own into the sheet, and opens the save box for it.
void Rundgang::sichereEigenes()
{
    m_controller.Fenster();
    m_controller.EingabeFensterfeldA->setStringValue(QStringLiteral("Kartoffelsuppe"));
    const std::pair<Textfeld *, float> werte[] = {{m_controller.EingabeFensterfeldB, 48.0F},
                                                  {m_controller.EingabeFensterproteinfeld, 1.6F},
                                                  {m_controller.EingabeFensterfettfeld, 1.9F},
                                                  {m_controller.EingabeFensterkhfeld, 6.1F},
                                                  {m_controller.EingabeFensternafeld, 210.0F}};
    for (const auto &[feld, zahl] : werte) {
        feld->setFloatValue(zahl);
    }
    m_controller.umschreibenDerEingabeFelder();
    ++m_halt;
    m_bericht << QStringLiteral("%1. Typed in a food of one's own.").arg(m_halt) << QString();
    bild(*m_controller.einfenster, bildname(QStringLiteral("sheet")));
    m_controller.Fensterschliessen();
    m_controller.SichernFensterAuf();
    halt(QStringLiteral("own"),
         QStringLiteral("It is kept with %1 more:").arg(m_controller.KundenArray.size() - 1));
    m_controller.SichernFensterAuf();
}

/// Fills in both pages of the calculator for a client, as a user does with the sliders.
void Rundgang::rechne()
{
    const std::pair<Schieber *, double> eingaben[] = {
        {m_rechner.gewichtn, 80}, {m_rechner.groessen, 1.8}, {m_rechner.taillen, 71},
        {m_rechner.hueftn, 86},   {m_rechner.alter, 42},     {m_rechner.zieher, 500},
    };
    for (const auto &[regler, zahl] : eingaben) {
        regler->setDoubleValue(zahl);
        Q_EMIT regler->betaetigt();
    }
    m_rechner.metrik(1);
    m_controller.zeigeAnsicht(QStringLiteral("vier"));
    halt(QStringLiteral("body"),
         QStringLiteral("Client: BMI %1, %2 kcal per day.")
             .arg(m_rechner.resultatbmi->stringValue(), m_rechner.resultatkal->stringValue()));
    m_rechner.sport->setStringValue(m_rechner.sport->itemText(m_rechner.sport->count() / 2));
    m_rechner.welchersport(*m_rechner.sport);
    m_rechner.sportmenge->setDoubleValue(1.5);
    m_rechner.wievielsport(*m_rechner.sportmenge);
    m_controller.zeigeAnsicht(QStringLiteral("fünf"));
    halt(QStringLiteral("lifestyle"),
         QStringLiteral("%1 g of alcohol for %2 h; %3 takes %4 kcal.")
             .arg(m_rechner.alkgramm->stringValue(), m_rechner.abbaudauer->stringValue(),
                  m_rechner.sport->stringValue(), m_rechner.resultatsportkal->stringValue()));
}

/// Sends foods to the plan as a user does, then plans a day that does well.
void Rundgang::plane()
{
    m_controller.Planmoduloeffnen();
    m_controller.planmodul->window()->resize(m_controller.Hauptfenster->size());
    haltBeimPlan(QStringLiteral("plan-empty"), QStringLiteral("Opened the meal plan, empty yet."));
    const qsizetype zeilen = m_controller.Array.size();
    for (const qsizetype zeile : {zeilen / 5, zeilen / 2, zeilen * 4 / 5}) {
        waehle(m_controller.Array.value(zeile));
        m_controller.toolbarlebensmittelweitergabe();
    }
    haltBeimPlan(QStringLiteral("plan-few"), QStringLiteral("Three foods in the plan:"));

    Planmodul &plan = *m_controller.planmodul;
    while (!plan.Arrayrausgeben().isEmpty()) {
        plan.PlanTabelle->selectRow(0);
        plan.Lebensmittelentfernen();
    }
    Tabellenmodell &tabelle = *plan.PlanTabelle->modell();
    const int menge = tabelle.spaltenstelle(QStringLiteral("menge"));
    for (const Tagesration &ration : guterTag) {
        const QString name = QString::fromUtf8(ration.name);
        if (m_controller.Dictionary.contains(name)) {
            plan.nameimportvontoolbar(name);
            tabelle.setData(tabelle.index(tabelle.rowCount() - 1, menge),
                            QString::number(ration.gramm), Qt::EditRole);
        }
    }
    haltBeimPlan(QStringLiteral("plan-day"), QStringLiteral("A day that does well:"));
}

void Rundgang::haltBeimPlan(const QString &name, const QString &worte)
{
    const Planmodul &plan = *m_controller.planmodul;
    ++m_halt;
    m_bericht << QStringLiteral("%1. %2").arg(m_halt).arg(worte);
    for (qsizetype i = 0; i < plan.PlanArray.size(); ++i) {
        m_bericht << QStringLiteral("   %1 g %2")
                         .arg(zahlenform().toString(plan.mengenarray[i]),
                              localizedString(plan.PlanArray[i]));
    }
    m_bericht << QStringLiteral("   %1; %2 of %3 kcal")
                     .arg(plan.planworte->text().replace(u'\n', QStringLiteral(", ")),
                          plan.Kalorienerrechnet->stringValue(), plan.Kalorienbedarf->stringValue())
              << QString();
    bild(*m_controller.planmodul->window(), bildname(name));
}

QString Rundgang::bildname(const QString &name) const
{
    return QStringLiteral("%1-%2.png").arg(m_halt, 2, 10, QLatin1Char('0')).arg(name);
}

void Rundgang::halt(const QString &name, const QString &worte)
{
    ++m_halt;
    m_bericht << QStringLiteral("%1. %2").arg(m_halt).arg(worte) << angezeigteWerte()
              << neueMeldungen() << QString();
    bild(*m_controller.Hauptfenster, bildname(name));
}

void Rundgang::bild(QWidget &fenster, const QString &name)
{
    QApplication::processEvents();
    m_gelungen = fenster.grab().save(m_ordner.filePath(name)) && m_gelungen;
}

QStringList Rundgang::neueMeldungen()
{
    QStringList zeilen;
    if (m_meldungen != nullptr) {
        for (const QString &meldung : std::exchange(*m_meldungen, {})) {
            zeilen << QStringLiteral("   Message: %1").arg(meldung);
        }
    }
    return zeilen;
}

QString Rundgang::angezeigteWerte() const
{
    QStringList zeilen = {QStringLiteral("   %1").arg(m_controller.feldA->stringValue())};
    for (const auto &zeile : naehrwerte) {
        const Textfeld *feld = m_controller.wertfelder()[stelle(zeile.wert)];
        if (!feld->isHidden()) {
            zeilen << QStringLiteral("   %1: %2 %3")
                          .arg(localizedString(QString::fromUtf8(zeile.bezeichnung)),
                               feld->stringValue(), einheitszeichen(zeile.einheit));
        }
    }
    for (const auto &zeile : wertungen) {
        zeilen << QStringLiteral("   %1: %2")
                      .arg(localizedString(QString::fromUtf8(zeile.bezeichnung)),
                           m_controller.wertungsfelder()[stelle(zeile.wertung)]->stringValue());
    }
    return zeilen.join(u'\n');
}
