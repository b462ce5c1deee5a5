#include "Planmodul.h"

#include "Ampel.h"
#include "Archivdatei.h"
#include "Dateihueter.h"
#include "Planzeilen.h"
#include "Schriftplatz.h"
#include "Spaltenumbruch.h"
#include "Zeichenkettentabelle.h"

#include <QImage>
#include <QItemSelectionModel>
#include <QPushButton>

#include <algorithm>

Klient Planmodul::klient;

namespace {

/// All plans of the program, so that each can show what was told to one of them.
QList<Planmodul *> &allePlaene()
{
    static QList<Planmodul *> plaene;
    return plaene;
}

/// Days over which the weight is projected until the user says otherwise.
constexpr int ersteTage = 7;

QImage gesicht(const char *name)
{
    return QImage(QStringLiteral(":/bilder/%1.png").arg(QLatin1String(name)));
}

/// The words below the circles begin where the circles end, also where larger letters make the
/// picture wider. There a circle's radius is a fifth of the width, and its centre lies 45 points
/// above the middle.
void rueckeKreisworte(const Ui::PlanmodulGestalt &plan)
{
    constexpr int wortzeilen = 3; // of the sentence below the colours
    const QSize bild = plan.kreisansicht->minimumSize();
    const int breite = std::max(bild.width(), plan.kreisfarben->minimumSizeHint().width());
    const int hoehe = bild.height() * breite / bild.width();
    const int worte = plan.wort29->sizeHint().height() + plan.kreisfarben->sizeHint().height() +
                      wortzeilen * plan.kreisworte->fontMetrics().lineSpacing() +
                      3 * plan.anordnung9->spacing();
    const int kreisende = hoehe / 2 - 45 + breite / 5;
    const int mitAllenWorten = worte - 90 + 2 * breite / 5; // the picture as high as both together
    plan.luft4->changeSize(0,
                           std::max({plan.luft4->sizeHint().height(), kreisende, mitAllenWorten}),
                           QSizePolicy::Minimum, QSizePolicy::Fixed);
}

} // namespace

Planmodul::Planmodul(Plantueren tueren) : PlanmodulGestalt(), m_tueren(std::move(tueren))
{
    if (m_tueren.dateien == nullptr) {
        m_tueren.dateien = std::make_shared<Dateihueter>();
    }
    const auto lies = [this](const QString &name) {
        const QString path = m_tueren.datenordner.pathForDataFile(name);
        return m_tueren.dateien->lesen(path).archiv.verzeichnis;
    };
    Dictionary = Archivdatei::lesen(m_tueren.eingebauteTabelle).archiv.verzeichnis;
    KundenDictionary = lies(QStringLiteral("customdaten"));
    laden(lies(QStringLiteral("plandaten")));
    allePlaene() << this;
}

Planmodul::~Planmodul()
{
    allePlaene().removeOne(this);
    delete m_fenster;
}

QMainWindow *Planmodul::window()
{
    if (m_fenster == nullptr) {
        m_fenster = new QMainWindow;
        setupUi(m_fenster);
        awakeFromNib();
    }
    return m_fenster;
}

void Planmodul::showWindow()
{
    window()->show();
    m_fenster->setWindowState(m_fenster->windowState() & ~Qt::WindowMinimized);
    m_fenster->raise();
    m_fenster->activateWindow();
}

void Planmodul::awakeFromNib()
{
    beschrifteTabelle();
    verbinde();
    reloadData();
    ladeBilder();
    teiler->setStretchFactor(0, 1); // on a larger screen more rows are seen
    teiler->goenneUnten(*untereSeite);
    planbeurteilungfaceview->entscheidung(Gesichtscode::lachend);
    Kalorienbedarf->setIntValue(klient.unbereinigt);
    for (Textfeld *feld : {Kalorienerrechnet, wunschverlust}) {
        feld->setIntValue(0);
    }
    for (Textfeld *feld : {Gewichtsverlust, BMIneu}) {
        feld->setStringValue(QStringLiteral("-")); // nothing was projected yet
    }
    zeigeKlient();
    zeigeVerlauf(false);
    stelleZeichenDazu();
    Tage->setIntValue(ersteTage);
    datenberechnen();
    // The sentences set here need room; without this the first picture would be laid out too small.
    rueckeKreisworte(*this);
    Schriftplatz::gib(*boxinhalt);
    boxinhalt->layout()->activate();
    m_spaltenumbruch = new Spaltenumbruch(*untereSeite, *anordnung4, *rechteSpalten);
    ladeNamenswechsel();
    pruefePlannamen();
}

void Planmodul::ladeBilder()
{
    planbeurteilungfaceview->setImage(gesicht("smile"));
    planbeurteilungfaceview->setImage2(gesicht("nocrie-nosmile"));
    planbeurteilungfaceview->setImage3(gesicht("crie"));
    kreisfarben->setEintraege({
        {QColor(0, 255, 0), localizedString(QStringLiteral("Protein"))},
        {QColor(0, 0, 255), localizedString(QStringLiteral("Kohlenhydrate"))},
        {QColor(255, 255, 0), localizedString(QStringLiteral("Fett"))},
    });
}

void Planmodul::verbinde()
{
    // These keys mean the plan only while it has the keyboard.
    for (QAction *aktion : {aktionMenge, aktionEntfernen, aktionHoch, aktionRunter}) {
        aktion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        PlanTabelle->addAction(aktion);
    }
    connect(PlanTabelle, &QAbstractItemView::clicked, this, &Planmodul::bearbeiteMenge);
    connect(aktionMenge, &QAction::triggered, this, [this] {
        const int spalte = PlanTabelle->modell()->spaltenstelle(QStringLiteral("menge"));
        bearbeiteMenge(PlanTabelle->currentIndex().siblingAtColumn(spalte));
    });
    connect(PlanTabelle->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Planmodul::folgeAuswahl);
    for (const QAction *aktion : {aktionEntfernen, aktionHoch, aktionRunter}) {
        connect(aktion, &QAction::triggered, this, &Planmodul::waehleTastaturzeile);
    }
    connect(entfernenknopf, &QPushButton::clicked, this, &Planmodul::Lebensmittelentfernen);
    connect(aktionEntfernen, &QAction::triggered, entfernenknopf, &QPushButton::click);
    connect(aktionHoch, &QAction::triggered, this, [this] { Lebensmittelverschieben(-1); });
    connect(aktionRunter, &QAction::triggered, this, [this] { Lebensmittelverschieben(1); });
    connect(aktionSpalten, &QAction::triggered, this, &Planmodul::Spaltenanpassen);
    connect(aktionTeiler, &QAction::triggered, teiler, &Teiler::bewege);
    verbindeTabellenmenue();
    connect(aktionRueckgaengig, &QAction::triggered, this, &Planmodul::zuruecknehmenGewuenscht);
    connect(aktionWiederholen, &QAction::triggered, this, &Planmodul::wiederholenGewuenscht);
    connect(druckknopf, &QPushButton::clicked, this, &Planmodul::druckenentscheidung);
    connect(aktionDrucken, &QAction::triggered, druckknopf, &QPushButton::click);
    connect(aktionPdf, &QAction::triggered, this, &Planmodul::alsPdfSichern);
    connect(aktionHandbuch, &QAction::triggered, this, &Planmodul::hilfeGewuenscht);
    connect(aktionSchliessen, &QAction::triggered, m_fenster, &QWidget::close);
    connect(tabellengroesse, &Schieber::betaetigt, this,
            [this] { tabgroesseaendern(*tabellengroesse); });
    for (const Textfeld *feld : {Kalorienbedarf, Tage}) {
        connect(feld, &Textfeld::betaetigt, this, &Planmodul::verlustberechnen);
    }
    connect(wunschverlust, &Textfeld::betaetigt, this, [this] { tageberechnen(*wunschverlust); });
    connect(tageknopf, &QPushButton::clicked, this, [this] { tageberechnen(*wunschverlust); });
}

/// A click on an amount begins to change it: it looks like a field to type into, and is one.
void Planmodul::bearbeiteMenge(const QModelIndex &zelle)
{
    if ((zelle.flags() & Qt::ItemIsEditable) != 0) {
        PlanTabelle->setCurrentIndex(zelle);
        PlanTabelle->edit(zelle);
    }
}

void Planmodul::anthrouebergabe(int kilokalorien)
{
    klient.bedarf = kilokalorien;
}

void Planmodul::anthrouebergabe2(int kilokalorien)
{
    klient.unbereinigt = kilokalorien;
}

void Planmodul::anthrouebergabegewicht(float kilogramm)
{
    klient.gewicht = kilogramm;
    zeigeUeberall();
}

void Planmodul::anthrouebergabegroesse(float meter)
{
    klient.groesse = meter;
    zeigeUeberall();
}

/// The calculator speaks to a plan of its own, and the user looks at another one.
void Planmodul::zeigeUeberall()
{
    for (Planmodul *plan : std::as_const(allePlaene())) {
        plan->zeigeKlient();
    }
}

const Datenmodul *Planmodul::lebensmittel(const QString &name) const
{
    return lebensmittelVon(name, Dictionary, KundenDictionary);
}

void Planmodul::nameimportvontoolbar(const QString &name)
{
    beendeEingabe();
    anhaengen(name);
    uebernimmLetzte();
    Q_EMIT geaendert({Aenderungsart::Hinein, name});
}

void Planmodul::gibHinein(const QString &name, float gramm)
{
    beendeEingabe();
    anhaengen(name);
    mengeAendern(PlanArray.size() - 1, gramm);
    uebernimmLetzte();
    Q_EMIT geaendert({Aenderungsart::Hinein, name});
}

void Planmodul::Lebensmittelentfernen()
{
    beendeEingabe();
    const int zeile = m_fenster != nullptr ? PlanTabelle->selectedRow() : -1;
    const QString name = PlanArray.value(zeile);
    if (zeileEntfernen(zeile)) {
        uebernimmAenderung();
        Q_EMIT geaendert({Aenderungsart::Hinaus, name});
    }
}

/// A table that was only just reached has no selection, but shows where the keyboard is: keys mean
/// that row.
void Planmodul::waehleTastaturzeile()
{
    const QModelIndex zelle = PlanTabelle->currentIndex();
    if (PlanTabelle->hasFocus() && PlanTabelle->selectedRow() < 0 && zelle.isValid()) {
        PlanTabelle->selectRow(zelle.row());
    }
}

void Planmodul::Lebensmittelverschieben(int um)
{
    beendeEingabe();
    const int zeile = m_fenster != nullptr ? PlanTabelle->selectedRow() : -1;
    if (verschieben(zeile, zeile + um)) {
        uebernimmAenderung();
        PlanTabelle->selectRow(zeile + um);
        PlanTabelle->scrollRowToVisible(zeile + um);
        Q_EMIT geaendert({Aenderungsart::Platz, PlanArray[zeile + um]});
    }
}

void Planmodul::umschreibungMitName(const Datenmodul &lebensmittel)
{
    KundenDictionary.insert(lebensmittel.name(), lebensmittel);
    schreibeEigeneLebensmittel();
    folgePlannamen();
}

void Planmodul::loeschenvonkundeneintraegen(const QString &name)
{
    beendeEingabe();
    KundenDictionary.remove(name);
    schreibeEigeneLebensmittel();
    const auto zeile = zeileVon(name);
    if (zeile && zeileEntfernen(*zeile)) {
        uebernimmAenderung();
    }
}

void Planmodul::uebernimmEigene(const Lebensmittelverzeichnis &eigene)
{
    KundenDictionary = eigene;
    if (m_fenster != nullptr) {
        PlanTabelle->viewport()->update();
    }
    folgePlannamen();
}

void Planmodul::uebernimmPlan(const Planliste &zeilen, const Aenderung &was)
{
    setzePlan(zeilen);
    pruefePlannamen();
    Q_EMIT geaendert(was);
}

void Planmodul::setzePlan(const Planliste &zeilen)
{
    beendeEingabe();
    const QStringList namen = PlanArray;
    const QList<float> mengen = mengenarray;
    Planliste::operator=(zeilen);
    uebernimmAenderung();
    qsizetype erste = 0;
    while (erste < std::min(namen.size(), PlanArray.size()) && namen[erste] == PlanArray[erste] &&
           mengen[erste] == mengenarray[erste]) {
        ++erste;
    }
    if (m_fenster != nullptr && erste < PlanArray.size()) {
        PlanTabelle->selectRow(static_cast<int>(erste));
        PlanTabelle->scrollRowToVisible(static_cast<int>(erste));
    }
}

/// An amount that is being typed still belongs to the row in which it is typed.
void Planmodul::beendeEingabe()
{
    if (m_fenster != nullptr) {
        PlanTabelle->beendeEingabe();
    }
}

// Whether writing worked is not asked: the plan goes on with what it holds in memory, and the
// keeper of the files tells who wants to know.

void Planmodul::schreibePlan() const
{
    m_tueren.dateien->schreiben(m_tueren.datenordner.pathForDataFile(QStringLiteral("plandaten")),
                                plansavedictionary);
}

void Planmodul::schreibeEigeneLebensmittel() const
{
    m_tueren.dateien->halte(m_tueren.datenordner.pathForDataFile(QStringLiteral("customdaten")),
                            KundenDictionary);
}

/// What follows a change of the rows that ran through.
void Planmodul::uebernimmAenderung()
{
    schreibePlan();
    reloadData();
    datenberechnen();
    folgePlannamen();
}

/// The same when the last row is new, which is then in sight.
void Planmodul::uebernimmLetzte()
{
    uebernimmAenderung();
    if (m_fenster != nullptr) {
        PlanTabelle->scrollRowToVisible(numberOfRows() - 1);
    }
}
