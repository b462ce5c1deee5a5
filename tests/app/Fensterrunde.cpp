#include "Fensterrunde.h"

#include "Archivdatei.h"
#include "Fuellfenster.h"
#include "Planwahlfenster.h"
#include "Tagesauswertungsfenster.h"
#include "Ueber.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>

Fensterrunde::Fensterrunde(const QString &sprache) : m_sprache(sprache)
{
    Planmodul::klient = {};
    m_heim.schreibeTabelle(zaehltabelle(5));
    m_heim.schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Eigenes"))}));
    m_heim.waehleDatei = [this](QWidget *, const Dateifrage &, const auto &antwort) {
        antwort(m_heim.pfad(QStringLiteral("tabelle.csv")));
    };
    m_sprache.sprich(sprache); // the home has a desk of its own
    m_fenster = std::make_unique<Probefenster>(m_heim);
    m_fenster->klicke(2, inName);
    (*m_fenster)->Planmoduloeffnen();
    for (int zeile = 0; zeile < 3; ++zeile) {
        (*m_fenster)->planmodul->nameimportvontoolbar(zaehlname(zeile));
    }
}

void Fensterrunde::geheDurchsHauptfenster(const Besuch &besuch)
{
    AppController &controller = m_fenster->controller();
    QMainWindow &haupt = *controller.Hauptfenster;
    haupt.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&haupt));
    for (int i = 0; i < controller.DatenAnsicht->count(); ++i) {
        controller.DatenAnsicht->setCurrentIndex(i);
        QCoreApplication::processEvents();
        besuch(QStringLiteral("main ") + AppController::ansichten[i], haupt);
    }
    controller.SichernFensterAuf();
    QCoreApplication::processEvents();
    besuch(QStringLiteral("main, saving"), haupt);
    controller.SichernFensterAuf();
    controller.profilaufzu->click();
    QCoreApplication::processEvents();
    besuch(QStringLiteral("main, profile"), haupt);
    controller.profilaufzu->click();
}

/// Foods of which one has a name that is taken, and one a mistake.
void Fensterrunde::schreibeTabellendatei() const
{
    QFile datei(m_heim.pfad(QStringLiteral("tabelle.csv")));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("Name;kcal;kh\nEigenes;7;1\nSenf;x;1\n");
}

/// Opens a window of this class and closes it again.
void Fensterrunde::oeffne(const char *klasse, const QString &name,
                          const std::function<void()> &oeffner, const Besuch &besuch)
{
    oeffner();
    QCoreApplication::processEvents();
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && fenster->inherits(klasse)) {
            fenster->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(fenster));
            besuch(name, *fenster);
            fenster->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no window: ") + name));
}

void Fensterrunde::gehe(const Besuch &besuch)
{
    AppController &controller = m_fenster->controller();
    geheDurchsHauptfenster(besuch);
    QMainWindow &plan = *controller.planmodul->window();
    plan.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&plan));
    besuch(QStringLiteral("plan"), plan);
    oeffne(
        "QDialog", QStringLiteral("own food"), [&] { controller.Fenster(); }, besuch);
    oeffne(
        "Sicherungsfenster", QStringLiteral("states"),
        [&] { Q_EMIT controller.fruehereStaendeGewuenscht(); }, besuch);
    oeffne(
        "Einstellungsfenster", QStringLiteral("settings"),
        [&] { Q_EMIT controller.einstellungenGewuenscht(); }, besuch);
    const QString datei = m_heim.pfad(QStringLiteral("alt.daten"));
    QVERIFY(Archivdatei::schreiben(
        datei, verzeichnis({lebensmittel(QStringLiteral("Eigenes"), {{Naehrwert::kal, 5}}),
                            lebensmittel(QStringLiteral("Neues"))})));
    oeffne(
        "Dateifenster", QStringLiteral("opened file"),
        [&] { m_fenster->oberflaeche().empfang.oeffne({datei}); }, besuch);
    oeffne(
        "Ausgabefenster", QStringLiteral("going out"),
        [&] { Q_EMIT controller.ausgebenGewuenscht(); }, besuch);
    schreibeTabellendatei();
    oeffne(
        "Einlesefenster", QStringLiteral("coming in"),
        [&] { Q_EMIT controller.einlesenGewuenscht(); }, besuch);
    oeffne(
        "Anpassungspalette", QStringLiteral("palette"), [&] { controller.Leisteanpassen(); },
        besuch);
    oeffne(
        "QDialog", QStringLiteral("about"), [&] { zeigeUeber(controller.Hauptfenster); }, besuch);
    m_heim.antworten << -1;
    controller.planmodul->druckenentscheidung();
    QTimer::singleShot(0, qApp, [&] {
        QWidget *frage = QApplication::activeModalWidget();
        QVERIFY(frage != nullptr);
        frage->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(frage));
        besuch(QStringLiteral("print question"), *frage);
        frage->close();
    });
    zeigeMeldung(&plan, m_heim.meldungen.takeLast());
    geheDurchDieTage(besuch);
    geheDurchDenEinblick(besuch);
    geheDurchDieRangliste(besuch);
    geheDurchDasRezept(besuch);
}

/// A window that asks, as long as it is not answered.
static void frage(QDialog *fenster)
{
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->open();
}

/// Before there is a record, and with one of two rows, of which one was not understood.
void Fensterrunde::geheDurchDieTage(const Besuch &besuch)
{
    Tageanschluss &anschluss = m_fenster->oberflaeche().tage;
    Tagefenster &tage = anschluss.fenster();
    oeffne(
        "Tagefenster", QStringLiteral("days, none"), [&] { tage.zeige(); }, besuch);
    tage.neuesProtokoll();
    tage.gibHinein(QStringLiteral("Eigenes"));
    tage.gibHinein(zaehlname(1));
    tage.buch.aendere(QStringLiteral("Menge"), [](Aufzeichnung &eine) {
        Mahlzeitzeile &zeile = eine.tage[0].mahlzeiten[0].zeilen[1];
        zeile.angabe = QStringLiteral("3 Fuder");
        zeile.gramm.reset();
        return true;
    });
    oeffne(
        "Tagefenster", QStringLiteral("days"), [&] { tage.zeige(); }, besuch);
    oeffne(
        "Tagesauswertungsfenster", QStringLiteral("days, evaluation"),
        [&] { tage.zeigeAuswertungsfenster(); }, besuch);
    oeffne(
        "Handzettelfenster", QStringLiteral("days, handout"), [&] { tage.handzettelDrucken(); },
        besuch);
    oeffne(
        "Massfenster", QStringLiteral("measures"),
        [&] { anschluss.zeigeMasse(&tage, QStringLiteral("Eigenes")); }, besuch);
    oeffne(
        "Fuellfenster", QStringLiteral("days, filling"),
        [&] { frage(new Fuellfenster(*tage.buch.jetzige(), 0, &tage)); }, besuch);
    oeffne(
        "Planwahlfenster", QStringLiteral("days, kept plans"),
        [&] {
            frage(new Planwahlfenster(
                {{QStringLiteral("Mai"), QDate(2026, 5, 4), {{zaehlname(2), 80, {}}}}}, &tage));
        },
        besuch);
}

namespace {

/// The window with each of its tabs in front, called by this and the tab.
void geheDurchReiter(QTabWidget &reiter, const QString &name,
                     const std::function<void(const QString &name, QWidget &fenster)> &besuch)
{
    for (int i = 0; i < reiter.count(); ++i) {
        reiter.setCurrentIndex(i);
        QCoreApplication::processEvents();
        besuch(QStringLiteral("%1, sheet %2").arg(name).arg(i + 1), *reiter.window());
    }
}

template <class Klasse>
Klasse *teil(const QWidget &fenster, const char *name)
{
    return fenster.findChild<Klasse *>(QLatin1String(name));
}

} // namespace

/// About the plan, first folded as it opens, then with all that can be said of the person and of
/// the suggestions.
void Fensterrunde::geheDurchDenEinblick(const Besuch &besuch)
{
    Einblickanschluss &anschluss = m_fenster->oberflaeche().einblick;
    const auto besuche = [&](const QString &name, QWidget &fenster) {
        auto *reiter = teil<QTabWidget>(fenster, "blaetter");
        geheDurchReiter(*reiter, name, besuch);
        reiter->setCurrentIndex(0);
        teil<QToolButton>(fenster, "oeffner")->click();
        QCoreApplication::processEvents();
        besuch(name + QStringLiteral(", person"), fenster);
        teil<QToolButton>(fenster, "oeffner")->click();
        reiter->setCurrentIndex(2);
        QCoreApplication::processEvents();
        teil<QToolButton>(fenster, "klappe")->click();
        QCoreApplication::processEvents();
        besuch(name + QStringLiteral(", conditions"), fenster);
    };
    oeffne(
        "Einblickfenster", QStringLiteral("insight"), [&] { anschluss.oeffne(Gegenstand::Plan); },
        besuche);
}

/// With two foods side by side, and with what the foods are narrowed down by.
void Fensterrunde::geheDurchDieRangliste(const Besuch &besuch)
{
    Einblickanschluss &anschluss = m_fenster->oberflaeche().einblick;
    const auto besuche = [&](const QString &name, QWidget &fenster) {
        auto *tabelle = teil<QTableView>(fenster, "rangliste");
        tabelle->setFocus();
        for (int zeile = 0; zeile < 2; ++zeile) {
            tabelle->selectRow(zeile);
            QTest::keyClick(tabelle, Qt::Key_Space);
        }
        geheDurchReiter(*teil<QTabWidget>(fenster, "rangseiten"), name, besuch);
        teil<QTabWidget>(fenster, "rangseiten")->setCurrentIndex(0);
        teil<QToolButton>(fenster, "eingrenzen")->click();
        teil<QAbstractButton>(fenster, "neuerbereich")->click();
        QCoreApplication::processEvents();
        besuch(name + QStringLiteral(", narrowed"), fenster);
    };
    oeffne(
        "Ranglistenfenster", QStringLiteral("ranking"),
        [&] { anschluss.rangliste().zeige(Kenngroesse::kal); }, besuche);
}

/// Of the rows of the plan.
void Fensterrunde::geheDurchDasRezept(const Besuch &besuch)
{
    QMainWindow &plan = *m_fenster->controller().planmodul->window();
    const auto besuche = [&](const QString &name, QWidget &fenster) {
        geheDurchReiter(*teil<QTabWidget>(fenster, "rezeptseiten"), name, besuch);
    };
    oeffne(
        "Rezeptfenster", QStringLiteral("recipe"),
        [&] { plan.findChild<QAction *>(QStringLiteral("aktionRezept"))->trigger(); }, besuche);
}

bool istVonQt(const QWidget &widget)
{
    const QWidget *mutter = widget.parentWidget();
    return widget.objectName().startsWith(QLatin1String("qt_")) ||
           widget.inherits("QTableCornerButton") || widget.inherits("QHeaderView") ||
           widget.inherits("QToolBarExtension") ||
           qobject_cast<const QTabBar *>(mutter) != nullptr ||
           qobject_cast<const QLineEdit *>(mutter) != nullptr ||
           (mutter != nullptr &&
            (mutter->inherits("QAbstractSpinBox") || mutter->inherits("QComboBox")));
}

QString bezeichne(const QWidget &widget)
{
    return QLatin1String(widget.metaObject()->className()) + QLatin1Char(' ') + widget.objectName();
}
