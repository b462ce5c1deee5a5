#include "AppController.h"

#include "Bedarfsbeurteilung.h"
#include "Dateihueter.h"
#include "Eingabeblatt.h"
#include "Fensterplatz.h"
#include "Lebensmittelbestand.h"
#include "Menue.h"
#include "Rollbereich.h"
#include "Schriftplatz.h"
#include "Schriftstufe.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QAbstractButton>
#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QKeyEvent>

int AppController::angeklickteSpalte = -1;

const QStringList AppController::ansichten = {
    QStringLiteral("eins"), QStringLiteral("zwei"), QStringLiteral("drei"),
    QStringLiteral("vier"), QStringLiteral("fünf"),
};

namespace {

constexpr int zeilenhoehe = 23;

/// A search begins when the user has not typed for this long, in milliseconds.
constexpr int tipppause = 350;

constexpr int fensterteilung[] = {670, 590};
/// Together they fit the smallest table, so that what a search finds is always seen. Where there is
/// more room, it goes to the names first.
constexpr int spaltenbreiten[] = {180, 70, 106};

const char *const quellenangabe =
    QT_TRANSLATE_NOOP("Mahlberg", "Nährwerte je 100 g: Schweizer Nährwertdatenbank, generische "
                                  "Lebensmittel, Version 7.0, Bundesamt für Lebensmittelsicherheit "
                                  "und Veterinärwesen BLV");

QString reiterkennung(const QTabWidget &reiter, int stelle)
{
    return reiter.widget(stelle)->property("kennung").toString();
}

} // namespace

AppController::AppController(Tueren tueren)
    : Hauptfenster(new QMainWindow)
    , einfenster(nullptr)
    , m_tueren(std::move(tueren))
    , m_auskunft(m_tueren.wertungstabelle)
{
    if (m_tueren.dateien == nullptr) {
        m_tueren.dateien = std::make_shared<Dateihueter>();
    }
    ladeBestaende();
    HauptfensterGestalt::setupUi(Hauptfenster);
    for (QWidget *reiter : {tabEins, tabZwei, tabDrei}) {
        Rollbereich::fasse(*reiter);
    }
    Fensterplatz::lasseRollen(*anordnung1, *teiler);
    einfenster = new QDialog(Hauptfenster);
    EingabefensterGestalt::setupUi(einfenster);
    Rollbereich::fasse(*einfenster);
    einfenster->setWindowModality(Qt::WindowModal);
    findeFelder();
    beschrifte();
    verbinde();
}

AppController::~AppController()
{
    delete planmodul;
    delete Hauptfenster;
}

void AppController::ladeBestaende()
{
    Lebensmittelbestand eingebaut = ladeBestand(m_tueren.eingebauteTabelle);
    Dictionary = std::move(eingebaut.verzeichnis);
    Array = std::move(eingebaut.namen);
    for (const QString &name : std::as_const(Array)) {
        m_uebersetzt << localizedString(name);
    }
    Lebensmittelbestand eigene = ladeEigenenBestand(
        *m_tueren.dateien, m_tueren.datenordner.pathForDataFile(QStringLiteral("customdaten")));
    KundenDictionary = std::move(eigene.verzeichnis);
    KundenArray = std::move(eigene.namen);
}

/// Walks the one list of values to the outlets that show them. The energy's field and the caption
/// of protein have names of their own; all others are called after their value.
void AppController::findeFelder()
{
    const auto finde = [this](const QString &name) {
        return Hauptfenster->findChild<QWidget *>(name); // the sheet is a child of the window
    };
    const QString blatt = QStringLiteral("EingabeFenster");
    for (const auto &zeile : naehrwerte) {
        const QString kennung = QLatin1String(zeile.kennung);
        const bool energie = zeile.wert == Naehrwert::kal;
        const QString feld = energie ? QStringLiteral("feldB") : kennung + QStringLiteral("feld");
        const QString beschriftung = zeile.wert == Naehrwert::protein
                                         ? QStringLiteral("proteineinaus")
                                         : feld + QStringLiteral("einaus");
        m_wertfelder[stelle(zeile.wert)] = qobject_cast<Textfeld *>(finde(feld));
        m_wertbeschriftungen[stelle(zeile.wert)] = finde(beschriftung);
        m_eingabefelder[stelle(zeile.wert)] = qobject_cast<Textfeld *>(finde(blatt + feld));
    }
    for (const auto &zeile : wertungen) {
        m_wertungsfelder[stelle(zeile.wertung)] =
            qobject_cast<Textfeld *>(finde(QLatin1String(zeile.kennung) + QStringLiteral("feld")));
        m_wertungseingaben[stelle(zeile.wertung)] =
            qobject_cast<Auswahlfeld *>(finde(blatt + QLatin1String(zeile.kennung)));
        auto *wort = qobject_cast<Wertungswort *>(
            finde(QLatin1String(zeile.kennung) + QStringLiteral("wort")));
        wort->folge(*m_wertungsfelder[stelle(zeile.wertung)]);
    }
    for (std::size_t i = 0; i < tagesbedarfe.size(); ++i) {
        const QString kennung = QLatin1String(beschreibung(tagesbedarfe[i].wert).kennung);
        m_bedarfsfelder[i] =
            qobject_cast<Textfeld *>(finde(kennung + QStringLiteral("tagesbedarffeld")));
        m_bedarfsbalken[i] =
            qobject_cast<Bedarfsbalken *>(finde(kennung + QStringLiteral("tagesbedarfbalken")));
        m_bedarfsbalken[i]->setGrenze(bedarfsgrenze);
    }
    m_mengenanzeigen = {anzeigelebensmittelmenge, anzeigelebensmittelmenge2,
                        anzeigelebensmittelmenge3};
    m_mengenregler = {lebensmittelmenge, lebensmittelmenge2, lebensmittelmenge3};
}

void AppController::beschrifte()
{
    Schriftstufe::kleide(*Hauptfenster);
    Schriftplatz::gib(*Hauptfenster);
    view->viewport()->setAutoFillBackground(false);
    // The note on the source is seen whole, in however many lines.
    connect(view->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
            this, [this](const QSizeF &text) {
                const int hoehe = qCeil(text.height());
                view->setFixedHeight(hoehe);
                fusshoehe->changeSize(0, std::max(hoehe, hinweise->zweizeilig()),
                                      QSizePolicy::Fixed, QSizePolicy::Fixed);
                fusszeile->invalidate();
            });
    hinweise->vertritt(view);
    view->setPlainText(localizedString(QString::fromUtf8(quellenangabe)));
    nahrviewfarben->setEintraege({
        {QColor(0, 255, 0), localizedString(QStringLiteral("Protein"))},
        {QColor(0, 0, 255), localizedString(QStringLiteral("Kohlenhydrate"))},
        {QColor(255, 255, 0), localizedString(QStringLiteral("Fett"))},
    });
    teiler->setSizes({fensterteilung[0], fensterteilung[1]});
    suchfortschritt->hide();
    sichernBox->hide();
    for (QWidget *widget :
         std::initializer_list<QWidget *>{DatenAnsicht, proteinanzeige, fettanzeige, khanzeige,
                                          gesamtbeurteilungfeld, sichernBox}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
}

void AppController::verbinde()
{
    Tabelle->setQuelle(this,
                       {{QStringLiteral("name"), localizedString(QStringLiteral("Lebensmittel"))},
                        {QStringLiteral("eigen"), localizedString(QStringLiteral("Eigene"))},
                        {QStringLiteral("such"), localizedString(QStringLiteral("Suche"))}});
    Tabelle->setSpaltenbreiten({std::begin(spaltenbreiten), std::end(spaltenbreiten)});
    connect(Tabelle, &Tabellenansicht::betaetigt, this, &AppController::Laden);
    connect(Tabelle, &Tabellenansicht::ziehenBeginnt, this, &AppController::holePlanNachVorn);
    connect(lebensmittelmenge, &Schieber::betaetigt, this,
            [this] { wieviellebensmittel(*lebensmittelmenge); });
    connect(lebensmittelmenge2, &Schieber::betaetigt, this,
            [this] { wieviellebensmittel2(*lebensmittelmenge2); });
    connect(lebensmittelmenge3, &Schieber::betaetigt, this,
            [this] { wieviellebensmittel3(*lebensmittelmenge3); });
    Hauptfenster->installEventFilter(this);
    verbindeSuche();
    verbindeEigene();
    verbindeWertungen();
    verbindeLeeres();
    verbindeTreffer();
    verbindeZugabe();
}

void AppController::verbindeSuche()
{
    Tabelle->setBestaetigungsspalten({QStringLiteral("such")});
    suchfeld->installEventFilter(this);
    m_tipppause.setSingleShot(true);
    m_tipppause.setInterval(tipppause);
    connect(suchfeld, &QLineEdit::textEdited, &m_tipppause, qOverload<>(&QTimer::start));
    connect(suchfeld, &QLineEdit::returnPressed, this, [this] { suchen(*suchfeld); });
    // Who types and leaves the box at once finds the results where they go to.
    connect(suchfeld, &QLineEdit::editingFinished, this, [this] {
        if (m_tipppause.isActive()) {
            sucheGetipptes();
        }
    });
    connect(&m_tipppause, &QTimer::timeout, this, &AppController::sucheGetipptes);

    suchprofileinaus->hide();
    schalteKriterien();
    connect(profilaufzu, &QToolButton::toggled, this, [this](bool offen) {
        suchprofileinaus->setVisible(offen);
        profilaufzu->setArrowType(offen ? Qt::DownArrow : Qt::RightArrow);
    });
    connect(profilsuchen, &QAbstractButton::clicked, this, &AppController::proteinsuche);
    for (QAbstractButton *zelle : suchprofileinaus->zellen()) {
        connect(zelle, &QAbstractButton::clicked, this, &AppController::proteinsuche);
    }
    for (Textfeld *eingabe : {proteineingabe, kalorieneingabe}) {
        connect(eingabe, &QLineEdit::returnPressed, this, &AppController::proteinsuche);
    }
}

void AppController::verbindeEigene()
{
    for (Textfeld *feld : m_wertfelder) {
        feld->setNurZahlen(true); // they can be typed into while the save box is open
    }
    // While the save box is open the name can be typed over; the marked cell follows.
    connect(feldA, &QLineEdit::textEdited, Tabelle->viewport(), qOverload<>(&QWidget::update));
    connect(sichernaufzu, &QAbstractButton::clicked, this, &AppController::SichernFensterAuf);
    connect(sichernknopf, &QAbstractButton::clicked, this, &AppController::SicherneigeneLM);
    connect(loeschenknopf, &QAbstractButton::clicked, this, &AppController::LoescheneigeneLM);
    connect(EingabeFensteruebernehmen, &QAbstractButton::clicked, this,
            &AppController::umschreibenDerEingabeFelder);
    new Eingabeblatt(*this, *einfenster, [this] { return eingegebenesLebensmittel(); });
    connect(EingabeFensterabschreiben, &QAbstractButton::clicked, this, &AppController::schreibeAb);
    einfenster->installEventFilter(this);
    connect(EingabeFensterschliessen, &QAbstractButton::clicked, this,
            &AppController::Fensterschliessen);
    connect(EingabeFensterleeren, &QAbstractButton::clicked, this, [this] {
        EingabeFensterfeldA->setStringValue(QString());
        for (Textfeld *feld : m_eingabefelder) {
            feld->setStringValue(QString());
        }
        for (Auswahlfeld *feld : m_wertungseingaben) {
            feld->setStringValue(QStringLiteral("0"));
        }
        EingabeFensterfeldA->setFocus();
    });
}

void AppController::awakeFromNib()
{
    LManzahl->setIntValue(static_cast<int>(Array.size()));
    Tabelle->setAlternatingRowColors(true);
    Tabelle->setGitter(true);
    Tabelle->setRowHeight(zeilenhoeheFuer(*Tabelle, zeilenhoehe));
    for (std::size_t i = 0; i < m_mengenregler.size(); ++i) {
        m_mengenregler[i]->setEnabled(false);
        m_mengenanzeigen[i]->setStringValue(
            localizedString(QStringLiteral("Menge Lebensmittel (100g)")));
    }
    Tabelle->selectRow(0);
    Tabelle->scrollRowToVisible(0);
    DatenAnsicht->setCurrentIndex(0);
    direkteuebernahme->setChecked(true);
    Laden();
    zeigeAnsicht(QStringLiteral("eins"));
    welcheTabelleAktiv = 0;
    BoxAufZu = 0;
    setUpToolbar();
    baueMenueleiste(*this);
    zeigeLeeres();
}

void AppController::Ansichtdurchwechseln()
{
    const qsizetype jetzt =
        ansichten.indexOf(reiterkennung(*DatenAnsicht, DatenAnsicht->currentIndex()));
    if (jetzt >= 0) {
        zeigeAnsicht(ansichten[(jetzt + 1) % ansichten.size()]);
    }
}

void AppController::zeigeAnsicht(const QString &kennung)
{
    for (int i = 0; i < DatenAnsicht->count(); ++i) {
        if (reiterkennung(*DatenAnsicht, i) == kennung) {
            DatenAnsicht->setCurrentIndex(i);
        }
    }
}

void AppController::windowWillClose()
{
    Q_EMIT beendet();
}

bool AppController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == Hauptfenster && event->type() == QEvent::Close) {
        windowWillClose();
    } else if (event->type() == QEvent::KeyPress) {
        const int gedrueckt = static_cast<QKeyEvent *>(event)->key();
        if (watched == suchfeld && taste(gedrueckt)) {
            return true;
        }
        if (watched == einfenster && gedrueckt == Qt::Key_Escape) {
            Fensterschliessen();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
