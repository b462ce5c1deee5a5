#include "Druckname.h"
#include "Namensvergleich.h"
#include "Oeffnungsprobe.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include <functional>

using enum Naehrwert;
using Archivbau::Folge;
using namespace Qt::StringLiterals;

/// Opening ".daten" files in the main window: how they are asked for, what is seen of them, and
/// what is said of those that can't be opened.
class TestDateiOeffnen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_probe = std::make_unique<Oeffnungsprobe>(); }
    void cleanup() { m_probe.reset(); }
    void theKeysAskForFiles();
    void theFolderOfTheLastFileIsProposed();
    void theWindowShowsWhatAFileHolds_data();
    void theWindowShowsWhatAFileHolds();
    void aPlanIsShownAndNotTakenOver();
    void whatIsOddIsSaid();
    void severalFilesComeOneAfterTheOther();
    void fiftyFilesComeInTheirOrder();
    void whatComesWaitsForWhatIsInFront_data();
    void whatComesWaitsForWhatIsInFront();
    void whatComesWaitsForTheLastQuestion();
    void whatCanNotBeOpenedIsToldInFrontOfAQuestion();
    void aWaitingFileIsShownAsItCame();
    void whatCanNotBeOpenedIsToldAtOnce();
    void manyThatCanNotBeOpenedFitTheScreen();
    void anotherMachinesFileIsRefused();
    void theProgramsOwnFileHasNothingToTake();

private:
    std::unique_ptr<Oeffnungsprobe> m_probe;
};

namespace {

/// Lets a window come up in front, or go again.
using Vordergrund = std::function<void(QMainWindow &, AppController &)>;

/// What it is called meanwhile.
const QString vorne = u"vorne"_s;

} // namespace

Q_DECLARE_METATYPE(Vordergrund)

void TestDateiOeffnen::theKeysAskForFiles()
{
    QList<Dateifrage> gefragt;
    const QString ei = m_probe->lege(u"ei.daten"_s, Archivbau::beispiel());
    m_probe->heim.waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &antwort) {
        gefragt << frage;
        if (gefragt.size() > 1) {
            antwort(ei);
        }
    };
    m_probe->starte();
    QTest::keyClick(&m_probe->haupt(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(gefragt.size(), 1);
    QCOMPARE(gefragt[0].zweck, Dateifrage::Zweck::AlleLesen);
    QCOMPARE(QFileInfo(gefragt[0].vorschlag).path(), dokumentenordner());
    QCOMPARE(gefragt[0].arten, u"Lebensmittel (*.daten);;Alle Dateien (*)"_s);
    QVERIFY(m_probe->fenster() == nullptr); // nothing was chosen
    QTest::keyClick(&m_probe->haupt(), Qt::Key_O, Qt::ControlModifier);
    QVERIFY(m_probe->fenster()->isVisible());
    QCOMPARE(m_probe->fenster()->windowModality(), Qt::WindowModal);
}

void TestDateiOeffnen::theFolderOfTheLastFileIsProposed()
{
    QString vorschlag;
    m_probe->heim.waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &) {
        vorschlag = frage.vorschlag;
    };
    m_probe->starte();
    QVERIFY(QDir().mkpath(m_probe->heim.pfad(u"alt"_s)));
    m_probe->oeffne({m_probe->lege(u"alt/ei.daten"_s, Archivbau::beispiel())});
    m_probe->schliesse();
    Q_EMIT m_probe->controller().dateiGewuenscht();
    QCOMPARE(QFileInfo(vorschlag).path(), m_probe->heim.pfad(u"alt"_s));
}

void TestDateiOeffnen::theWindowShowsWhatAFileHolds_data()
{
    QTest::addColumn<Folge>("folge");
    QTest::addColumn<QString>("inhalt");
    QTest::newRow("little-endian")
        << Folge::LittleEndian
        << u"1 Lebensmittel, geschrieben auf einem Rechner heutiger Bauart (Little-Endian)."_s;
    QTest::newRow("big-endian")
        << Folge::BigEndian
        << u"1 Lebensmittel, geschrieben auf einem Rechner alter Bauart (Big-Endian)."_s;
}

void TestDateiOeffnen::theWindowShowsWhatAFileHolds()
{
    QFETCH(Folge, folge);
    const QString pfad = m_probe->lege(u"<b>ei.daten"_s, Archivbau::beispiel(folge));
    m_probe->oeffne({pfad});
    QCOMPARE(m_probe->fenster()->windowTitle(), u"<b>ei.daten"_s);
    QCOMPARE(m_probe->worte("ort"), pfad);
    QTEST(m_probe->worte("inhalt"), "inhalt");
    QVERIFY(m_probe->fenster()->findChild<QLabel *>(u"auffaellig"_s) == nullptr);
    const QAbstractItemModel &tafel = *m_probe->teil<QTableView>("lebensmittel").model();
    QCOMPARE(tafel.rowCount(), 1);
    QStringList zeile;
    for (int spalte = 0; spalte < tafel.columnCount(); ++spalte) {
        zeile << tafel.index(0, spalte).data().toString();
    }
    QCOMPARE(zeile.first(5), (QStringList{u"Ei"_s, u"neu"_s, u"155"_s, u"12,6"_s, u"10,6"_s}));
    QCOMPARE(zeile.mid(5, 14), QStringList(14, u"0"_s));
    QCOMPARE(zeile.last(4), (QStringList{u"0"_s, u"+"_s, u"+"_s, u"-"_s}));
}

void TestDateiOeffnen::aPlanIsShownAndNotTakenOver()
{
    m_probe->oeffne({m_probe->lege(u"plan.daten"_s, {ration(zaehlname(2), 150), ration(eintopf, 60),
                                                     ration(u"Unbekanntes"_s, 12.5F)})});
    QCOMPARE(m_probe->worte("inhalt"),
             u"Ein Mahlzeitenplan mit 3 Lebensmitteln, geschrieben auf einem "
             "Rechner heutiger Bauart (Little-Endian)."_s);
    const auto &tafel = m_probe->teil<QTableWidget>("planzeilen");
    QStringList zeilen;
    for (int i = 0; i < tafel.rowCount(); ++i) {
        zeilen << tafel.item(i, 0)->text() + u'|' + tafel.item(i, 1)->text() + u'|' +
                      tafel.item(i, 2)->text();
    }
    QCOMPARE(zeilen, (QStringList{u"Eintopf|60|eigenes"_s, zaehlname(2) + u"|150|eingebaut"_s,
                                  u"Unbekanntes|12,5|unbekannt"_s}));
    QVERIFY(m_probe->fenster()->findChild<QPushButton *>(u"uebernehmen"_s) == nullptr);
    QVERIFY(m_probe->worte("ergebnis").startsWith(u"Ein Plan hält nur Namen und Mengen fest"_s));
    m_probe->schliesse();
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli}));
}

void TestDateiOeffnen::whatIsOddIsSaid()
{
    Lebensmittelverzeichnis seltsames;
    seltsames.insert(u"Außen"_s, lebensmittel(u"Innen"_s));
    seltsames.insert(QString(u""_s), lebensmittel(QString()));
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, Archiver::write(seltsames) + "rest")});
    QCOMPARE(m_probe->worte("auffaellig"),
             u"⚠ Ohne Namen: 1. Innen anders benannt: 1. Es gilt der Name, der hier steht. Hinter "
             "dem Ende folgen 4 Bytes, die nichts bedeuten."_s);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"Außen"_s}));
    QCOMPARE(m_probe->controller().KundenDictionary[u"Außen"_s].name(), u"Außen"_s);
}

void TestDateiOeffnen::severalFilesComeOneAfterTheOther()
{
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s, {{kal, 1}})}),
                     m_probe->lege(u"b.daten"_s, {lebensmittel(u"A"_s, {{kal, 2}})})});
    QCOMPARE(m_probe->haupt().findChildren<Dateifenster *>().size(), 1);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"a.daten"_s);
    m_probe->druecke("uebernehmen");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"b.daten"_s);
    QVERIFY(m_probe->fenster()->findChild<Namensvergleich *>() !=
            nullptr); // the first one's came before
    m_probe->schliesse();
    QVERIFY(m_probe->fenster() == nullptr);
}

void TestDateiOeffnen::fiftyFilesComeInTheirOrder()
{
    QStringList pfade;
    for (int i = 0; i < 50; ++i) {
        pfade << m_probe->lege(u"%1.daten"_s.arg(i), Archivbau::beispiel());
    }
    m_probe->oeffne(pfade);
    for (int i = 0; i < 50; ++i) {
        QCOMPARE(m_probe->haupt().findChildren<Dateifenster *>().size(), 1);
        QCOMPARE(m_probe->fenster()->windowTitle(), u"%1.daten"_s.arg(i));
        m_probe->schliesse();
    }
    QVERIFY(m_probe->fenster() == nullptr);
}

void TestDateiOeffnen::whatComesWaitsForWhatIsInFront_data()
{
    QTest::addColumn<Vordergrund>("auf");
    QTest::addColumn<Vordergrund>("zu");
    QTest::newRow("a question") << Vordergrund([](QMainWindow &haupt, AppController &) {
        (new QDialog(&haupt))->open();
    }) << Vordergrund([](QMainWindow &haupt, AppController &) {
        haupt.findChild<QDialog *>(vorne)->done(0);
    });
    QTest::newRow("one that goes without an answer")
        << Vordergrund([](QMainWindow &haupt, AppController &) { (new QDialog(&haupt))->open(); })
        << Vordergrund([](QMainWindow &haupt, AppController &) {
               delete haupt.findChild<QDialog *>(vorne);
           });
    QTest::newRow("the sheet of an own food")
        << Vordergrund([](QMainWindow &, AppController &controller) { controller.Fenster(); })
        << Vordergrund(
               [](QMainWindow &, AppController &controller) { controller.Fensterschliessen(); });
}

/// What is in front knows the foods as they were when it came up.
void TestDateiOeffnen::whatComesWaitsForWhatIsInFront()
{
    QFETCH(Vordergrund, auf);
    QFETCH(Vordergrund, zu);
    auf(m_probe->haupt(), m_probe->controller());
    QVERIFY(QApplication::activeModalWidget() != nullptr);
    QApplication::activeModalWidget()->setObjectName(vorne);
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, Archivbau::beispiel())});
    m_probe->oeffne({m_probe->lege(u"b.daten"_s, Archivbau::beispiel())});
    QCoreApplication::processEvents();
    QVERIFY(m_probe->fenster() == nullptr);
    zu(m_probe->haupt(), m_probe->controller());
    QTRY_VERIFY(m_probe->fenster() != nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(m_probe->haupt().findChildren<Dateifenster *>().size(), 1);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"a.daten"_s);
    m_probe->schliesse();
    QCOMPARE(m_probe->fenster()->windowTitle(), u"b.daten"_s);
}

void TestDateiOeffnen::whatComesWaitsForTheLastQuestion()
{
    auto *erste = new QDialog(&m_probe->haupt());
    erste->open();
    auto *zweite = new QDialog(erste);
    zweite->open();
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, Archivbau::beispiel())});
    zweite->done(0);
    QCoreApplication::processEvents();
    QVERIFY(m_probe->fenster() == nullptr);
    erste->done(0);
    QTRY_VERIFY(m_probe->fenster() != nullptr);
}

void TestDateiOeffnen::whatCanNotBeOpenedIsToldInFrontOfAQuestion()
{
    QDialog frage(&m_probe->haupt());
    frage.open();
    m_probe->oeffne({m_probe->heim.pfad(u"fehlt.daten"_s)});
    QCOMPARE(m_probe->heim.meldungen.size(), 1);
    QVERIFY(frage.isVisible());
}

/// It may lie on a stick that is pulled out meanwhile, or be written anew.
void TestDateiOeffnen::aWaitingFileIsShownAsItCame()
{
    const QString erste = m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s)});
    const QString zweite = m_probe->lege(u"b.daten"_s, {lebensmittel(u"B"_s)});
    m_probe->oeffne({erste, zweite});
    QVERIFY(QFile::remove(erste));
    QVERIFY(QFile::remove(zweite));
    m_probe->druecke("uebernehmen");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"b.daten"_s);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"A"_s, u"B"_s}));
    QVERIFY(m_probe->heim.meldungen.isEmpty());
}

void TestDateiOeffnen::whatCanNotBeOpenedIsToldAtOnce()
{
    m_probe->oeffne({m_probe->heim.pfad(u"fehlt.daten"_s),
                     m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s)}),
                     m_probe->lege(u"leer.daten"_s, QByteArray())});
    QCOMPARE(m_probe->heim.meldungen.size(), 1);
    QCOMPARE(m_probe->heim.meldungen[0].text, u"Das lässt sich nicht öffnen."_s);
    QCOMPARE(m_probe->heim.meldungen[0].erklaerung,
             u"„"_s + m_probe->heim.pfad(u"fehlt.daten"_s) + u"“: Diese Datei gibt es nicht.\n„"_s +
                 m_probe->heim.pfad(u"leer.daten"_s) + u"“: Sie ist leer."_s);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"a.daten"_s); // the good one is shown all the same
}

void TestDateiOeffnen::manyThatCanNotBeOpenedFitTheScreen()
{
    QStringList pfade;
    for (int i = 0; i < 40; ++i) {
        pfade << m_probe->heim.pfad(QString::number(i));
    }
    m_probe->oeffne(pfade);
    const QStringList zeilen = m_probe->heim.meldungen[0].erklaerung.split(u'\n');
    QCOMPARE(zeilen.size(), 11);
    QCOMPARE(zeilen.last(), u"und 30 weitere"_s);
    m_probe->oeffne(pfade.first(10));
    QCOMPARE(m_probe->heim.meldungen[1].erklaerung.split(u'\n').size(), 10);
}

void TestDateiOeffnen::anotherMachinesFileIsRefused()
{
    m_probe->probefenster().oberflaeche().empfang.oeffneAdressen(
        {QUrl(u"https://example.org/a.daten"_s),
         QUrl::fromLocalFile(m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s)}))});
    QCOMPARE(m_probe->heim.meldungen.size(), 1);
    QCOMPARE(m_probe->heim.meldungen[0].erklaerung,
             u"„https://example.org/a.daten“: Geöffnet werden nur "
             "Dateien dieses Rechners."_s);
    QCOMPARE(m_probe->fenster()->windowTitle(), u"a.daten"_s);
}

void TestDateiOeffnen::theProgramsOwnFileHasNothingToTake()
{
    m_probe->oeffne({m_probe->heim.eigeneDatei()});
    QVERIFY(m_probe->fenster() == nullptr);
    QVERIFY(m_probe->heim.meldungen[0].erklaerung.endsWith(
        u"Darin hält Mahlberg selbst Ihre eigenen Lebensmittel. Sie sind schon da."_s));
}

QTEST_MAIN(TestDateiOeffnen)
#include "TestDateiOeffnen.moc"
