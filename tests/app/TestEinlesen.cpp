#include "Austauschprobe.h"
#include "Bestandsvergleich.h"
#include "Dateifenster.h"
#include "Einlesefenster.h"
#include "Einstellungsfenster.h"
#include "Einwandliste.h"
#include "Hindernisse.h"
#include "Vorschautabelle.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// Foods of a table that come in, through the windows.
class TestEinlesen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_probe = std::make_unique<Austauschprobe>(); }
    void cleanup() { m_probe.reset(); }

    void foodsComeInAtOnceAndGoAtOnce();
    void nothingChangesBeforeItIsConfirmed();
    void returnTakesOver();
    void returnLosesNothing();
    void aMistakeStopsEverything();
    void aLineIsLeftOutAndComesBack();
    void allWrongLinesAreLeftOutAtOnce();
    void aColumnIsChosenAnew();
    void theDecimalMarkIsChosenAnew();
    void theSeparatorIsChosenAnew();
    void portionsAreWeighed();
    void headingsMayBeMissing();
    void takenNamesAreAskedAbout_data();
    void takenNamesAreAskedAbout();
    void nothingMovesUnderTheHand();
    void wrongCellsAreMarked();
    void theLanguageWaits();
    void theFoodOnDisplayFollows();
    void whatCantBeReadIsTold_data();
    void whatCantBeReadIsTold();
    void aQuoteThatStaysOpenStopsEverything();
    void aFileIsOpenedWhenTheTableHasBeenRead();
    void aFileThatIsNotWrittenIsTold();

private:
    std::unique_ptr<Austauschprobe> m_probe;
};

namespace {

QStringList eintraege(const QObject &fenster)
{
    const auto *liste = fenster.findChild<Einwandliste *>();
    QStringList alle;
    for (int i = 0; i < liste->count(); ++i) {
        alle << liste->item(i)->text();
    }
    return alle;
}

/// Ticks the box of an entry or unticks it.
void kreuzeAn(const QObject &fenster, int zeile, bool weg)
{
    auto *liste = fenster.findChild<Einwandliste *>();
    liste->setCurrentRow(zeile);
    QCOMPARE(liste->item(zeile)->checkState() == Qt::Checked, !weg);
    QTest::keyClick(liste, Qt::Key_Space);
    QCoreApplication::processEvents();
}

const QByteArray zweiSpeisen =
    "Name;Energie (kcal);Kalium (mg);Gicht\nQuark;70;1,5;+\nSenf;90;2;-\n";

} // namespace

void TestEinlesen::foodsComeInAtOnceAndGoAtOnce()
{
    Einlesefenster *fenster = m_probe->lies(zweiSpeisen);
    QVERIFY(fenster != nullptr);
    QCOMPARE(knopf(*fenster)->text(), u"2 Lebensmittel &übernehmen"_s);
    klicke(knopf(*fenster));
    QCOMPARE(m_probe->controller().KundenArray,
             QStringList({u"=Mus"_s, u"Brot"_s, u"Quark"_s, u"Senf"_s}));
    QCOMPARE(m_probe->aufDerPlatte().size(), 4);
    const Datenmodul quark = m_probe->aufDerPlatte().value(u"Quark"_s);
    QCOMPARE(quark.kal(), 70.0F);
    QCOMPARE(quark.ka(), 1.5F);
    QCOMPARE(quark.gicht(), u"+"_s);
    QCOMPARE(m_probe->hinweis(), u"2 Lebensmittel sind übernommen."_s);

    m_probe->controller().hinweise->hinweise().first().aktion();
    QCOMPARE(m_probe->controller().KundenArray, QStringList({u"=Mus"_s, u"Brot"_s}));
    QCOMPARE(m_probe->aufDerPlatte().keys(), QStringList({u"=Mus"_s, u"Brot"_s}));
    QCOMPARE(m_probe->hinweis(), u"Zurückgenommen: übernommene Lebensmittel."_s);
    menueeintrag(*m_probe->controller().Hauptfenster, u"Wiederholen"_s)->trigger();
    QCOMPARE(m_probe->aufDerPlatte().size(), 4);
}

void TestEinlesen::nothingChangesBeforeItIsConfirmed()
{
    Einlesefenster *fenster = m_probe->lies(zweiSpeisen);
    QCOMPARE(m_probe->controller().KundenArray.size(), 2);
    QTest::keyClick(fenster, Qt::Key_Escape);
    QCOMPARE(m_probe->controller().KundenArray.size(), 2);
    QCOMPARE(m_probe->aufDerPlatte().size(), 2);
    QVERIFY(m_probe->hinweis().isEmpty());
}

void TestEinlesen::returnTakesOver()
{
    const Einlesefenster *fenster = m_probe->lies(zweiSpeisen);
    QVERIFY(knopf(*fenster)->isDefault());
    QTest::keyClick(kind<QComboBox>(*fenster, "trennung"), Qt::Key_Return);
    QCOMPARE(m_probe->controller().KundenArray.size(), 4);
}

/// As long as there is a mistake it does nothing; least of all does it close the window.
void TestEinlesen::returnLosesNothing()
{
    Einlesefenster *fenster = m_probe->lies("Name;kcal\nQuark;x\nSenf;1,5\n");
    QTest::keyClick(fenster, Qt::Key_Return);
    QVERIFY(fenster->isVisible());
    QCOMPARE(m_probe->controller().KundenArray.size(), 2);
}

void TestEinlesen::aMistakeStopsEverything()
{
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nQuark;x\nSenf;1,5\n");
    QVERIFY(!knopf(*fenster)->isEnabled());
    QVERIFY(knopf(*fenster)->toolTip().startsWith(u"Fehler: 1."_s));
    QVERIFY(eintraege(*fenster).contains(u"Zeile 2: Energie (kcal): „x“ ist keine Zahl."_s));
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->item(0, 1)->text(), u"x"_s);
    QVERIFY(!vorschau->item(0, 1)->icon().isNull());
    QCOMPARE(vorschau->item(1, 1)->text(), u"1,5\u00A0kcal"_s);
    QCOMPARE(vorschau->verticalHeaderItem(0)->text(), u"2"_s);
}

void TestEinlesen::aLineIsLeftOutAndComesBack()
{
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nQuark;x\nSenf;1,5\n");
    kreuzeAn(*fenster, 0, true);
    QCOMPARE(eintraege(*fenster), QStringList{u"Zeile 2: bleibt weg"_s});
    QCOMPARE(knopf(*fenster)->text(), u"1 Lebensmittel &übernehmen"_s);
    QVERIFY(knopf(*fenster)->isEnabled());
    kreuzeAn(*fenster, 0, false);
    QVERIFY(!knopf(*fenster)->isEnabled());
    kreuzeAn(*fenster, 0, true);
    klicke(knopf(*fenster));
    QCOMPARE(m_probe->controller().KundenArray.last(), u"Senf"_s);
    QCOMPARE(m_probe->controller().KundenArray.size(), 3);
    QCOMPARE(m_probe->hinweis(), u"1 Lebensmittel ist übernommen."_s);
}

void TestEinlesen::allWrongLinesAreLeftOutAtOnce()
{
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nQuark;x\nSenf;1,5\nSenf;2\n;3\n");
    klicke(kind<QPushButton>(*fenster, "weglassen"));
    QCOMPARE(eintraege(*fenster).size(), 3);
    QVERIFY(!kind<QPushButton>(*fenster, "weglassen")->isEnabled());
    QCOMPARE(knopf(*fenster)->text(), u"1 Lebensmittel &übernehmen"_s);
}

void TestEinlesen::aColumnIsChosenAnew()
{
    const Einlesefenster *fenster = m_probe->lies("Name;Eisen;Farbe\nQuark;2;7\n");
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->horizontalHeaderItem(2)->text(), u"Farbe"_s);
    auto *wahl = vorschau->wahlen().at(2);
    QCOMPARE(wahl->currentText(), u"(nicht übernehmen)"_s);
    wahl->setCurrentText(u"Salz (g)"_s);
    vorschau->wahlen().at(1)->setCurrentText(u"Eisen (µg)"_s);
    QCOMPARE(vorschau->item(0, 1)->text(), u"0,002\u00A0mg"_s);
    QCOMPARE(vorschau->item(0, 2)->text(), u"2800\u00A0mg"_s);
    klicke(knopf(*fenster));
    QCOMPARE(m_probe->controller().KundenDictionary.value(u"Quark"_s).na(), 2800.0F);
    QCOMPARE(m_probe->controller().KundenDictionary.value(u"Quark"_s).fe(), 0.002F);
}

void TestEinlesen::theDecimalMarkIsChosenAnew()
{
    const Einlesefenster *fenster = m_probe->lies("Name;Kalium\nQuark;1.234\n");
    QVERIFY(eintraege(*fenster).contains(u"Spalte „Kalium“: „1.234“ ist als 1234 gelesen."_s));
    kind<QComboBox>(*fenster, "dezimal")->setCurrentText(u"Punkt ."_s);
    QVERIFY(eintraege(*fenster).contains(u"Spalte „Kalium“: „1.234“ ist als 1,234 gelesen."_s));
    klicke(knopf(*fenster));
    QCOMPARE(m_probe->controller().KundenDictionary.value(u"Quark"_s).ka(), 1.234F);
}

void TestEinlesen::theSeparatorIsChosenAnew()
{
    const Einlesefenster *fenster = m_probe->lies("Name|Fett\nQuark;mager|2\n");
    auto *trennung = kind<QComboBox>(*fenster, "trennung");
    QCOMPARE(trennung->currentText(), u"Senkrechter Strich |"_s);
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->columnCount(), 2);
    trennung->setCurrentText(u"Strichpunkt ;"_s);
    QCOMPARE(vorschau->columnCount(), 1);
    QVERIFY(!knopf(*fenster)->isEnabled());
    trennung->setCurrentText(u"Senkrechter Strich |"_s);
    QVERIFY(knopf(*fenster)->isEnabled());
}

void TestEinlesen::portionsAreWeighed()
{
    const Einlesefenster *fenster = m_probe->lies("Name;Fett (g) je Portion\nQuark;3\n");
    QCOMPARE(kind<QComboBox>(*fenster, "bezug")->currentText(), u"eine Portion"_s);
    QVERIFY(!knopf(*fenster)->isEnabled());
    kind<QDoubleSpinBox>(*fenster, "portion")->setValue(25);
    QCOMPARE(fenster->findChild<Vorschautabelle *>()->item(0, 1)->text(), u"12\u00A0g"_s);
    klicke(knopf(*fenster));
    QCOMPARE(m_probe->controller().KundenDictionary.value(u"Quark"_s).fett(), 12.0F);
}

void TestEinlesen::headingsMayBeMissing()
{
    const Einlesefenster *fenster = m_probe->lies("Quark;3\nSenf;4\n");
    auto *kopf = kind<QCheckBox>(*fenster, "ueberschriften");
    QVERIFY(!kopf->isChecked());
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->horizontalHeaderItem(0)->text(), u"Spalte 1"_s);
    vorschau->wahlen().at(0)->setCurrentText(u"Lebensmittel"_s);
    vorschau->wahlen().at(1)->setCurrentText(u"Fett (g)"_s);
    QCOMPARE(knopf(*fenster)->text(), u"2 Lebensmittel &übernehmen"_s);
    klicke(kopf);
    QCOMPARE(vorschau->horizontalHeaderItem(0)->text(), u"Quark"_s);
}

void TestEinlesen::takenNamesAreAskedAbout_data()
{
    QTest::addColumn<int>("wahl");
    QTest::addColumn<QStringList>("namen");
    QTest::addColumn<float>("brot");
    QTest::addColumn<QString>("knopftext");
    QTest::newRow("replace") << 0 << QStringList{u"=Mus"_s, u"Brot"_s, u"Senf"_s} << 7.0F
                             << u"2 Lebensmittel &übernehmen"_s;
    QTest::newRow("leave out") << 1 << QStringList{u"=Mus"_s, u"Brot"_s, u"Senf"_s} << 240.0F
                               << u"1 Lebensmittel &übernehmen"_s;
    QTest::newRow("new name") << 2 << QStringList{u"=Mus"_s, u"Brot"_s, u"Brot (2)"_s, u"Senf"_s}
                              << 240.0F << u"2 Lebensmittel &übernehmen"_s;
}

void TestEinlesen::takenNamesAreAskedAbout()
{
    QFETCH(int, wahl);
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nBrot;7\nSenf;8\n");
    auto *namenswahl = kind<QComboBox>(*fenster, "namenswahl");
    QVERIFY(namenswahl->isVisible());
    QCOMPARE(namenswahl->currentIndex(), 1);
    QCOMPARE(kind<QLabel>(*fenster, "namensworte")->toolTip(), u"Brot"_s);
    namenswahl->setCurrentIndex(wahl);
    QTEST(knopf(*fenster)->text(), "knopftext");
    klicke(knopf(*fenster));
    QTEST(m_probe->controller().KundenArray, "namen");
    QTEST(m_probe->controller().KundenDictionary.value(u"Brot"_s).kal(), "brot");
}

/// The choice about names goes with the only line that had a taken one.
void TestEinlesen::nothingMovesUnderTheHand()
{
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nBrot;x\nSenf;8\n");
    const auto *liste = fenster->findChild<Einwandliste *>();
    const auto *wahl = kind<QComboBox>(*fenster, "namenswahl");
    QVERIFY(wahl->isVisible());
    const QRect vorher = liste->geometry();
    kreuzeAn(*fenster, 0, true);
    QVERIFY(!wahl->isVisible());
    QCOMPARE(liste->geometry(), vorher);
}

/// Beside the words about them, each of a line's mistakes is seen where it stands.
void TestEinlesen::wrongCellsAreMarked()
{
    const Einlesefenster *fenster = m_probe->lies("Name;Fett (g) je Portion;Gicht;Portion (g)\n"
                                                  ";x;gut;0\nQuark;3;+;25\nSenf;;;\nMus;-1;0;-5\n");
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    const QList<QList<bool>> falsch = {{true, true, true, true},
                                       {false, false, false, false},
                                       {false, false, false, true},
                                       {false, true, false, true}};
    for (int zeile = 0; zeile < falsch.size(); ++zeile) {
        for (int spalte = 0; spalte < falsch[zeile].size(); ++spalte) {
            QCOMPARE(!vorschau->item(zeile, spalte)->icon().isNull(), falsch[zeile][spalte]);
        }
    }
    QCOMPARE(vorschau->item(1, 3)->text(), u"25\u00A0g"_s);
    QCOMPARE(vorschau->item(3, 3)->text(), u"-5"_s);
    // For 100 g nobody asks what a portion weighs.
    kind<QComboBox>(*fenster, "bezug")->setCurrentIndex(0);
    QVERIFY(vorschau->item(0, 3)->icon().isNull());
}

/// What the window says is put together from many pieces in one language: as long as it is open,
/// neither the menu nor the settings can be reached.
void TestEinlesen::theLanguageWaits()
{
    m_probe->oeffne();
    const AppController &controller = m_probe->controller();
    const QAction *darstellung = controller.Hauptfenster->menuBar()->actions().at(2);
    const QPoint menue = controller.Hauptfenster->menuBar()->mapTo(
        controller.Hauptfenster, controller.Hauptfenster->menuBar()
                                     ->actionGeometry(const_cast<QAction *>(darstellung))
                                     .center());
    QTest::mouseClick(controller.Hauptfenster->windowHandle(), Qt::LeftButton, {}, menue);
    QTRY_VERIFY(darstellung->menu()->isVisible()); // else it can
    darstellung->menu()->close();

    Einlesefenster *fenster = m_probe->lies(zweiSpeisen);
    QVERIFY(QTest::qWaitForWindowActive(fenster));
    QTest::mouseClick(controller.Hauptfenster->windowHandle(), Qt::LeftButton, {}, menue);
    QTest::keyClick(controller.Hauptfenster->windowHandle(), Qt::Key_Comma, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QVERIFY(!darstellung->menu()->isVisible());
    QVERIFY(controller.Hauptfenster->findChild<Einstellungsfenster *>() == nullptr);
}

void TestEinlesen::theFoodOnDisplayFollows()
{
    m_probe->oeffne();
    m_probe->fenster->klicke(1, inEigen);
    QCOMPARE(m_probe->controller().feldA->stringValue(), u"Brot"_s);
    const Einlesefenster *fenster = m_probe->lies("Name;kcal\nBrot;7\n");
    kind<QComboBox>(*fenster, "namenswahl")->setCurrentIndex(0);
    klicke(knopf(*fenster));
    QCOMPARE(Probefenster::text(*m_probe->controller().feldB), u"7 kcal"_s);
    m_probe->controller().hinweise->hinweise().first().aktion();
    QCOMPARE(Probefenster::text(*m_probe->controller().feldB), u"240 kcal"_s);
}

void TestEinlesen::whatCantBeReadIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("grund");
    QTest::newRow("empty") << QByteArray() << u"Sie ist leer."_s;
    QTest::newRow("too large") << QByteArray(Csv::groessteDatei + 1, 'x')
                               << u"Sie ist größer als 50 MB."_s;
    QTest::newRow("no text")
        << QByteArray("PK\x03\x04")
        << u"Sie ist kein Text. Tabellenprogramme sichern eine Tabelle als CSV."_s;
}

void TestEinlesen::whatCantBeReadIsTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, grund);
    QVERIFY(m_probe->lies(bytes) == nullptr);
    QCOMPARE(m_probe->hinweis(), u"„speisen.csv“ lässt sich nicht einlesen. "_s + grund);
}

void TestEinlesen::aQuoteThatStaysOpenStopsEverything()
{
    const Einlesefenster *fenster = m_probe->lies("Name;Fett\nQuark;1\n\"Senf;2\n");
    QVERIFY(eintraege(*fenster).contains(
        u"In Zeile 3 beginnt ein Anführungszeichen, das nicht endet."_s));
    QVERIFY(!knopf(*fenster)->isEnabled());
    klicke(kind<QPushButton>(*fenster, "weglassen"));
    QVERIFY(!knopf(*fenster)->isEnabled());
}

/// Taken over while the table is looked at, its foods would be gone once the table's come.
void TestEinlesen::aFileIsOpenedWhenTheTableHasBeenRead()
{
    const Einlesefenster *tabelle = m_probe->lies("Name;kcal\nSenf;8\n");
    const QString alt = m_probe->heim.pfad(u"alt.daten"_s);
    QVERIFY(Archivdatei::schreiben(alt, verzeichnis({lebensmittel(u"Suppe"_s)})));
    m_probe->fenster->oberflaeche().empfang.oeffne({alt});
    const QMainWindow &haupt = *m_probe->controller().Hauptfenster;
    QVERIFY(haupt.findChild<Dateifenster *>() == nullptr);
    klicke(knopf(*tabelle));
    QTRY_VERIFY(haupt.findChild<Dateifenster *>() != nullptr);
    klicke(knopf(*haupt.findChild<Dateifenster *>()));
    const QStringList alle = {u"=Mus"_s, u"Brot"_s, u"Senf"_s, u"Suppe"_s};
    QCOMPARE(m_probe->controller().KundenArray, alle);
    QCOMPARE(m_probe->aufDerPlatte().keys(), alle);
}

void TestEinlesen::aFileThatIsNotWrittenIsTold()
{
    const Einlesefenster *fenster = m_probe->lies(zweiSpeisen);
    {
        const VolleFestplatte voll(20);
        klicke(knopf(*fenster));
    }
    QCOMPARE(m_probe->aufDerPlatte().size(), 2);
    QCOMPARE(m_probe->controller().KundenArray.size(), 4);
    QCoreApplication::processEvents(); // the window hears of it afterwards
    QCOMPARE(m_probe->controller().hinweise->hinweise().size(), 2);
    QVERIFY(m_probe->controller().hinweise->hinweise()[0].warnung);
}

QTEST_MAIN(TestEinlesen)
#include "TestEinlesen.moc"
