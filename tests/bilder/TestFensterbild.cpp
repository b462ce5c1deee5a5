#include "Bilderfenster.h"

#include "Archivdatei.h"
#include "Erscheinungsbild.h"
#include "Handbuch.h"
#include "Ueber.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

using namespace Qt::StringLiterals;

/// What the windows beside the main one and the plan look like, and the menus.
class TestFensterbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSheet();
    void theSheetThatDoubts();
    void formerStates();
    void noFormerStates();
    void theSettings();
    void anOpenedFile();
    void anOpenedPlan();
    void foodsThatComeIn_data();
    void foodsThatComeIn();
    void aListThatGoesOut_data();
    void aListThatGoesOut();
    void thePalette();
    void about();
    void theHandbook_data();
    void theHandbook();
    void aMessage_data();
    void aMessage();
    void theReasonOfARating();
    void theMenus_data();
    void theMenus();
    void thePlansMenus();
    void theTablesMenu();
    void theFoodsChosenLast();
};

namespace {

/// The window of this class that is open.
QWidget *offen(const char *klasse)
{
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && fenster->inherits(klasse)) {
            return fenster;
        }
    }
    return nullptr;
}

/// Compares the window of this class once it is there, and closes it.
void pruefeOffenes(const QString &name, const char *klasse)
{
    QTRY_VERIFY(offen(klasse) != nullptr);
    QWidget *fenster = offen(klasse);
    QVERIFY(QTest::qWaitForWindowActive(fenster));
    Bilderrahmen::pruefe(name, *fenster);
    fenster->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Compares the window that shows a file of these foods.
void pruefeDatei(const QString &name, Bilderfenster &fenster, const Lebensmittelverzeichnis &inhalt)
{
    const QString pfad = fenster.heim().pfad(u"Alter Rechner.daten"_s);
    QVERIFY(Archivdatei::schreiben(pfad, inhalt));
    fenster.oberflaeche().empfang.oeffne({pfad});
    QTRY_VERIFY(offen("Dateifenster") != nullptr);
    // The home is another one each time.
    offen("Dateifenster")
        ->findChild<QLabel *>(u"ort"_s)
        ->setText(u"/home/praxis/Alter Rechner.daten"_s);
    pruefeOffenes(name, "Dateifenster");
}

void pruefeMenue(const QString &name, QMenu &menue)
{
    menue.popup(QPoint(100, 100));
    QVERIFY(QTest::qWaitForWindowExposed(&menue));
    Bilderrahmen::pruefe(name, menue);
    menue.close();
}

} // namespace

void TestFensterbild::theSheet()
{
    const Bilderfenster fenster;
    fenster->Fenster();
    QVERIFY(QTest::qWaitForWindowActive(fenster->einfenster));
    Bilderrahmen::pruefe(u"blatt-leer"_s, *fenster->einfenster);
}

/// More protein and fat than 100 g can hold, and less energy than they have.
void TestFensterbild::theSheetThatDoubts()
{
    const Bilderfenster fenster;
    fenster->Fenster();
    QVERIFY(QTest::qWaitForWindowActive(fenster->einfenster));
    const std::pair<Textfeld *, const char16_t *> eingaben[] = {
        {fenster->EingabeFensterfeldA, u"Kartoffelsuppe"},
        {fenster->EingabeFensterfeldB, u"48"},
        {fenster->EingabeFensterproteinfeld, u"60"},
        {fenster->EingabeFensterfettfeld, u"70"},
    };
    for (const auto &[feld, text] : eingaben) {
        feld->setFocus();
        QTest::keyClicks(feld, QString::fromUtf16(text));
        QTest::keyClick(feld, Qt::Key_Return);
    }
    Bilderrahmen::pruefe(u"blatt-zweifel"_s, *fenster->einfenster);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    Bilderrahmen::pruefe(u"blatt-dunkel"_s, *fenster->einfenster);
}

void TestFensterbild::formerStates()
{
    Bilderfenster fenster;
    const QDir ordner = QFileInfo(fenster.heim().eigeneDatei()).dir();
    QVERIFY(ordner.mkpath(u"Sicherungen"_s));
    const auto lege = [&ordner](const QString &tag, const Lebensmittelverzeichnis &stand) {
        const QString name = u"Sicherungen/MahlbergCustomnutr %1.daten"_s.arg(tag);
        QVERIFY(Archivdatei::schreiben(ordner.filePath(name), stand));
    };
    Lebensmittelverzeichnis frueher = bildereigene();
    frueher.remove(u"Müsli vom Bäcker"_s);
    frueher.insert(u"Eintopf"_s, lebensmittel(u"Eintopf"_s, {{Naehrwert::kal, 75}}));
    lege(u"2026-03-02"_s, frueher);
    lege(u"2026-02-27"_s, bildereigene());
    fenster.oberflaeche().ansage.zeigeFruehereStaende();
    pruefeOffenes(u"fruehere-staende"_s, "Sicherungsfenster");
}

void TestFensterbild::noFormerStates()
{
    const Bilderfenster fenster;
    fenster.oberflaeche().ansage.zeigeFruehereStaende();
    pruefeOffenes(u"fruehere-staende-keine"_s, "Sicherungsfenster");
}

void TestFensterbild::theSettings()
{
    const Bilderfenster fenster;
    Q_EMIT fenster->einstellungenGewuenscht();
    QTRY_VERIFY(offen("Einstellungsfenster") != nullptr);
    // The folder of the system is another one on every machine.
    offen("Einstellungsfenster")
        ->findChild<QLineEdit *>(u"pdfordner"_s)
        ->setText(u"/home/praxis/Dokumente"_s);
    pruefeOffenes(u"einstellungen"_s, "Einstellungsfenster");
}

/// One food is new, one is there already, and one has other values than the user's own.
void TestFensterbild::anOpenedFile()
{
    Bilderfenster fenster;
    Lebensmittelverzeichnis altes = bildereigene();
    altes[u"Müsli vom Bäcker"_s].setfett(18);
    altes.insert(u"Eintopf"_s, lebensmittel(u"Eintopf"_s, {{Naehrwert::kal, 75}}));
    pruefeDatei(u"datei-lebensmittel"_s, fenster, altes);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    pruefeDatei(u"datei-lebensmittel-dunkel"_s, fenster, altes);
}

void TestFensterbild::anOpenedPlan()
{
    Bilderfenster fenster;
    Lebensmittelverzeichnis plan;
    for (const auto &[name, gramm] :
         {std::pair(u"Müsli vom Bäcker"_s, 60.0F), std::pair(u"Kartoffeln"_s, 250.0F)}) {
        Datenmodul ration;
        ration.setName(name);
        ration.setkal(gramm);
        plan.insert(name, ration);
    }
    pruefeDatei(u"datei-plan"_s, fenster, plan);
}

namespace {

/// The language, the appearance and the picture's name behind the window's own.
void spracheUndBild()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<Erscheinungsbild>("aussehen");
    QTest::addColumn<QString>("zusatz");
    QTest::newRow("German, light") << u"de"_s << Erscheinungsbild::Hell << QString();
    QTest::newRow("English, dark") << u"en"_s << Erscheinungsbild::Dunkel << u"-englisch-dunkel"_s;
}

} // namespace

void TestFensterbild::foodsThatComeIn_data()
{
    spracheUndBild();
}

/// Energy in kJ and salt, a name that is taken, a number that can be read in two ways, and a line
/// with a mistake.
void TestFensterbild::foodsThatComeIn()
{
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    QFETCH(QString, zusatz);
    Bilderfenster fenster(sprache);
    zeigeErscheinungsbild(aussehen);
    const QString pfad = fenster.heim().pfad(u"Speisen der Kantine.csv"_s);
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("Speise;Energie (kJ);Eiweiß;Fett;Kohlenhydrate;Salz (g);Kalium (mg);Preis\n"
                "Gemüseeintopf;310;2,9;2,1;10;0,8;1.250;4,20\n"
                "Müsli vom Bäcker;1650;11,5;viel;58;0,1;390;2,80\n"
                "Linsensuppe;380;5,6;1,9;50;0,9;260;3,90\n");
    datei.close();
    fenster.heim().waehleDatei = [pfad](QWidget *, const Dateifrage &, const auto &antwort) {
        antwort(pfad);
    };
    Q_EMIT fenster->einlesenGewuenscht();
    pruefeOffenes(u"einlesen"_s + zusatz, "Einlesefenster");
}

void TestFensterbild::aListThatGoesOut_data()
{
    spracheUndBild();
}

void TestFensterbild::aListThatGoesOut()
{
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    QFETCH(QString, zusatz);
    const Bilderfenster fenster(sprache);
    zeigeErscheinungsbild(aussehen);
    Q_EMIT fenster->ausgebenGewuenscht();
    pruefeOffenes(u"ausgeben"_s + zusatz, "Ausgabefenster");
}

void TestFensterbild::thePalette()
{
    const Bilderfenster fenster;
    fenster->Leisteanpassen();
    QTRY_VERIFY(offen("Anpassungspalette") != nullptr);
    Bilderrahmen::pruefe(u"leiste-anpassen"_s, *fenster->toolbar);
    pruefeOffenes(u"palette"_s, "Anpassungspalette");
    Bilderrahmen::pruefe(u"leiste"_s, *fenster->toolbar);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    Bilderrahmen::pruefe(u"leiste-dunkel"_s, *fenster->toolbar);
}

void TestFensterbild::about()
{
    const Bilderfenster fenster;
    zeigeUeber(fenster->Hauptfenster);
    pruefeOffenes(u"ueber"_s, "QDialog");
}

void TestFensterbild::theHandbook_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("bild");
    QTest::newRow("in German") << u"de"_s << u"handbuch"_s;
    QTest::newRow("in English") << u"en"_s << u"handbuch-englisch"_s;
}

/// The window is so low that the page's own picture, which is taken anew from time to time, is not
/// in this one.
void TestFensterbild::theHandbook()
{
    QFETCH(QString, sprache);
    QFETCH(QString, bild);
    const Sprache worte(sprache);
    Handbuch handbuch;
    handbuch.oeffne(Handbuch::ersteSeite);
    QVERIFY(QTest::qWaitForWindowActive(&handbuch));
    handbuch.resize(760, 225);
    Bilderrahmen::pruefe(bild, handbuch);
}

void TestFensterbild::aMessage_data()
{
    QTest::addColumn<bool>("gefahr");
    QTest::addColumn<QString>("bild");
    QTest::newRow("a question") << false << u"frage"_s;
    QTest::newRow("a warning") << true << u"warnung"_s;
}

void TestFensterbild::aMessage()
{
    QFETCH(bool, gefahr);
    QFETCH(QString, bild);
    const Bilderfenster fenster;
    bool gesehen = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget *frage = QApplication::activeModalWidget();
        QVERIFY(frage != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(frage));
        Bilderrahmen::pruefe(bild, *frage);
        frage->close();
        gesehen = true;
    });
    const Meldung frage = {
        .text = u"Drucken"_s,
        .erklaerung = u"Was moechten Sie drucken ? "_s,
        .knoepfe = {u"Einfache Liste"_s, u"Detaillierte Liste"_s, u"Grafische Darstellung"_s},
        .verwerfbar = true};
    const Meldung warnung = {.text = u"Mahlberg ist schon geöffnet."_s,
                             .erklaerung = u"Zweimal zugleich geöffnet, überschreibt das eine die "
                                           "Lebensmittel und den Plan des anderen."_s,
                             .knoepfe = {u"Beenden"_s, u"Trotzdem öffnen"_s},
                             .verwerfbar = true,
                             .gefahr = true};
    zeigeMeldung(fenster->Hauptfenster, gefahr ? warnung : frage);
    QVERIFY(gesehen);
}

void TestFensterbild::theReasonOfARating()
{
    const Bilderfenster fenster;
    fenster.waehle(u"Haferflocken"_s);
    fenster->uebergewichtfeld->setFocus();
    QTest::keyClick(fenster->uebergewichtfeld, Qt::Key_F1);
    QTRY_VERIFY(offen("QLabel") != nullptr);
    Bilderrahmen::pruefe(u"wertungsgrund"_s, *offen("QLabel"));
}

void TestFensterbild::theMenus_data()
{
    QTest::addColumn<int>("stelle");
    QTest::addColumn<QString>("bild");
    QTest::newRow("file") << 0 << u"menue-ablage"_s;
    QTest::newRow("edit") << 1 << u"menue-bearbeiten"_s;
    QTest::newRow("view") << 2 << u"menue-darstellung"_s;
    QTest::newRow("windows") << 3 << u"menue-fenster"_s;
    QTest::newRow("help") << 4 << u"menue-hilfe"_s;
}

void TestFensterbild::theMenus()
{
    QFETCH(int, stelle);
    QFETCH(QString, bild);
    const Bilderfenster fenster;
    fenster.waehle(u"Haferflocken"_s);
    pruefeMenue(bild, *fenster->Hauptfenster->menuBar()->actions().at(stelle)->menu());
}

void TestFensterbild::thePlansMenus()
{
    const Bilderfenster fenster;
    fenster.plane();
    pruefeMenue(u"plan-menue-ablage"_s, *fenster.plan().menueAblage);
    pruefeMenue(u"plan-menue-bearbeiten"_s, *fenster.plan().menueBearbeiten);
    pruefeMenue(u"plan-menue-ansicht"_s, *fenster.plan().menueAnsicht);
    pruefeMenue(u"plan-menue-hilfe"_s, *fenster.plan().menueHilfe);
}

void TestFensterbild::theTablesMenu()
{
    const Bilderfenster fenster;
    const QModelIndex zelle = fenster->Tabelle->model()->index(3, inName);
    Q_EMIT fenster->Tabelle->menueGewuenscht(zelle, QPoint(100, 100));
    QTRY_VERIFY(offen("QMenu") != nullptr);
    Bilderrahmen::pruefe(u"menue-tabelle"_s, *offen("QMenu"));
    offen("QMenu")->close();
}

void TestFensterbild::theFoodsChosenLast()
{
    const Bilderfenster fenster;
    fenster.suche(u"kart"_s);
    fenster->waehleTreffer(1);
    fenster->waehleTreffer(1);
    fenster->zeigeZuletzt();
    QTRY_VERIFY(offen("QMenu") != nullptr);
    Bilderrahmen::pruefe(u"menue-zuletzt"_s, *offen("QMenu"));
    offen("QMenu")->close();
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestFensterbild>(argc, argv);
}

#include "TestFensterbild.moc"
