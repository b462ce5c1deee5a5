#include "Druckprobe.h"
#include "Seiteneinrichtung.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <functional>

class TestDrucktuer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void pagesLeaveThePrinterInOrder_data();
    void pagesLeaveThePrinterInOrder();
    void aPieceFitsWithItsProportions();
    void pagesArePaintedInPointsFromThePapersCorner();
    void theJobSeesTheMarginsThatHold();
    void onlyTheChosenPagesArePrinted();
    void pagesThatDoNotExistAreNotPrinted();
    void anUnwritablePdfIsTold_data();
    void anUnwritablePdfIsTold();
    void pagesAreCountedWhileTheyAreMade();
    void aCancelledPdfLeavesNoHalfFile_data();
    void aCancelledPdfLeavesNoHalfFile();
    void aFolderOrDeviceIsNotTakenAway();
    void manyPagesCanBeCancelled_data();
    void manyPagesCanBeCancelled();
    void fewPagesShowNoProgress();
    void thePreviewBeginsWithTheSharedPageSetup();
    void thePageSetupIsKeptForTheNextPrint();
    void theTitleMakesAFileName_data();
    void theTitleMakesAFileName();
    void thePreviewIsAsLargeAsItsWindow();
    void closingThePreviewPrintsNothing();
    void thePreviewIsPaintedLikeThePrint();
    void thePreviewShowsEveryPage();
    void withoutAPrinterItPrintsToAPdf();
    void theQuestionAboutAnExistingPdfIsShownAsItIsWritten();
    void cancellingGoesBackToThePreview();
    void aPdfThatFailsIsToldAndTheProgramGoesOn();

private:
    QPrintPreviewDialog *oeffne(const Druckauftrag &auftrag);

    QTemporaryDir m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    QList<Meldung> m_meldungen;
    QWidget m_fenster;
};

namespace {

/// Pages that say which they are: "Seite 1" with its line 100 points from the left and from the
/// top.
Druckauftrag beziffert(int seiten)
{
    return {QStringLiteral("Probe"), [seiten](const QPageLayout &) { return seiten; },
            [](QPainter &maler, const QPageLayout &, int nummer) {
                QFont schrift(QStringLiteral("Helvetica"));
                schrift.setPixelSize(20);
                maler.setFont(schrift);
                maler.drawText(QPointF(100, 100), QStringLiteral("Seite %1").arg(nummer));
            }};
}

QAction *aktion(QPrintPreviewDialog &vorschau, const char *text)
{
    for (QAction *aktion : vorschau.findChildren<QAction *>()) {
        if (aktion->text() == QLatin1String(text)) {
            return aktion;
        }
    }
    return nullptr;
}

/// Answers the system's print dialog when it comes: prints to this file, or cancels for a null
/// name.
void beantworteDruckfrage(const QString &pdf)
{
    QTimer::singleShot(0, qApp, [pdf] {
        auto *frage = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (frage == nullptr) {
            beantworteDruckfrage(pdf);
        } else if (pdf.isNull()) {
            frage->reject();
        } else {
            frage->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(pdf);
            frage->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        }
    });
}

/// Looks at the question that the print dialog asks, says no, and leaves the dialog.
void verneineFrage(const std::function<void(const QMessageBox &)> &sieAn)
{
    QTimer::singleShot(0, qApp, [sieAn] {
        auto *frage = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (frage == nullptr) {
            verneineFrage(sieAn);
            return;
        }
        sieAn(*frage);
        QWidget *dialog = frage->parentWidget();
        frage->button(QMessageBox::No)->click();
        QTimer::singleShot(0, dialog, [dialog] { dialog->close(); });
    });
}

} // namespace

void TestDrucktuer::initTestCase()
{
    QVERIFY(m_ordner.isValid());
}

void TestDrucktuer::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_meldungen.clear();
    m_einstellungen = std::make_unique<QSettings>(m_ordner.filePath(QStringLiteral("e.ini")),
                                                  QSettings::IniFormat);
    m_einstellungen->clear();
    m_fenster.show();
}

QPrintPreviewDialog *TestDrucktuer::oeffne(const Druckauftrag &auftrag)
{
    const Drucktuer tuer = systemdrucktuer(*m_einstellungen, [this](QWidget *, const Meldung &m) {
        m_meldungen << m;
        return 0;
    });
    tuer(&m_fenster, auftrag);
    const QPointer<QPrintPreviewDialog> vorschau = m_fenster.findChild<QPrintPreviewDialog *>();
    // A machine with printers asks for one of them; these tests are about files.
    vorschau->printer()->setOutputFormat(QPrinter::PdfFormat);
    return QTest::qWaitForWindowExposed(vorschau) ? vorschau.data() : nullptr;
}

void TestDrucktuer::pagesLeaveThePrinterInOrder_data()
{
    QTest::addColumn<QString>("bereiche");
    QTest::addColumn<bool>("letzteZuerst");
    QTest::addColumn<int>("kopien");
    QTest::addColumn<QList<int>>("folge");
    QTest::newRow("all of them") << QString() << false << 1 << QList<int>({1, 2, 3, 4});
    QTest::newRow("the last first") << QString() << true << 1 << QList<int>({4, 3, 2, 1});
    QTest::newRow("some of them") << QStringLiteral("2,4-9") << false << 1 << QList<int>({2, 4});
    QTest::newRow("two copies, one after the other")
        << QStringLiteral("1-2") << false << 2 << QList<int>({1, 2, 1, 2});
    QTest::newRow("none that exists") << QStringLiteral("5-9") << false << 1 << QList<int>();
}

void TestDrucktuer::pagesLeaveThePrinterInOrder()
{
    QFETCH(QString, bereiche);
    QFETCH(bool, letzteZuerst);
    QFETCH(int, kopien);
    QFETCH(QList<int>, folge);
    QCOMPARE(druckfolge(4, QPageRanges::fromString(bereiche), letzteZuerst, kopien), folge);
}

void TestDrucktuer::aPieceFitsWithItsProportions()
{
    QImage bild(200, 200, QImage::Format_ARGB32_Premultiplied);
    QPainter maler(&bild);
    passeEin(maler, QRectF(10, 20, 100, 50), QRectF(30, 40, 50, 50));
    QCOMPARE(maler.transform().map(QPointF(10, 20)), QPointF(30, 40));
    QCOMPARE(maler.transform().map(QPointF(110, 70)), QPointF(80, 65));
    maler.resetTransform();
    passeEin(maler, QRectF(0, 0, 0, 0), QRectF(30, 40, 50, 50)); // nothing to fit
    QVERIFY(maler.transform().isIdentity());
}

void TestDrucktuer::pagesArePaintedInPointsFromThePapersCorner()
{
    // Margins of 40 points move nothing: they are the job's to keep.
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait, {40, 40, 40, 40}));
    probe.drucke(beziffert(2));
    QCOMPARE(probe.seiten(), 2);
    const QList<Druckwort> worte = probe.worte();
    QCOMPARE(worte.size(), 4);
    QVERIFY(qAbs(worte[0].x - 100) < 0.05);
    QVERIFY(qAbs(worte[0].grundlinie - 100) < 0.05);
    QVERIFY(qAbs(worte[0].groesse - 20) < 0.05);
    QCOMPARE(probe.zeilen(1), QStringList({QStringLiteral("Seite 1")}));
    QCOMPARE(probe.zeilen(2), QStringList({QStringLiteral("Seite 2")}));
}

void TestDrucktuer::theJobSeesTheMarginsThatHold()
{
    QPageLayout gesehen;
    Druckauftrag auftrag = beziffert(1);
    auftrag.seitenzahl = [&gesehen](const QPageLayout &seite) {
        gesehen = seite;
        return 1;
    };
    Druckprobe probe(
        Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape, {10, 20, 30, 40}));
    probe.drucke(auftrag);
    QCOMPARE(gesehen.fullRect(QPageLayout::Point), QRectF(0, 0, 792, 612));
    QCOMPARE(gesehen.paintRect(QPageLayout::Point), QRectF(10, 20, 752, 552));
}

void TestDrucktuer::onlyTheChosenPagesArePrinted()
{
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    drucker.setOutputFileName(probe.pdf());
    drucker.setPrintRange(QPrinter::PageRange);
    drucker.setPageRanges(QPageRanges::fromString(QStringLiteral("2-3")));
    QVERIFY(!drucke(drucker, beziffert(5)));
    QCOMPARE(probe.seiten(), 2);
    QCOMPARE(probe.zeilen(1), QStringList({QStringLiteral("Seite 2")}));
    QCOMPARE(probe.zeilen(2), QStringList({QStringLiteral("Seite 3")}));
}

void TestDrucktuer::pagesThatDoNotExistAreNotPrinted()
{
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    const QString pdf = m_ordner.filePath(QStringLiteral("keine.pdf"));
    drucker.setOutputFileName(pdf);
    drucker.setPrintRange(QPrinter::PageRange);
    drucker.setPageRanges(QPageRanges::fromString(QStringLiteral("6-9")));
    QCOMPARE(drucke(drucker, beziffert(5)),
             std::optional(QStringLiteral("Die gewählten Seiten gibt es nicht.")));
    QVERIFY(!QFile::exists(pdf));
}

void TestDrucktuer::anUnwritablePdfIsTold_data()
{
    QTest::addColumn<QString>("pdf");
    QTest::newRow("a folder that does not exist")
        << m_ordner.filePath(QStringLiteral("fehlt/plan.pdf"));
    QTest::newRow("a folder in the place of the file") << m_ordner.path();
    QTest::newRow("a full disk") << QStringLiteral("/dev/full");
}

void TestDrucktuer::anUnwritablePdfIsTold()
{
    QFETCH(QString, pdf);
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(pdf);
    const auto grund = drucke(drucker, beziffert(1));
    QVERIFY(grund);
    QVERIFY2(grund->contains(pdf), qPrintable(*grund));
}

void TestDrucktuer::pagesAreCountedWhileTheyAreMade()
{
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    drucker.setOutputFileName(probe.pdf());
    QList<std::pair<int, int>> gezaehlt;
    QVERIFY(!drucke(drucker, beziffert(3), [&gezaehlt](int fertig, int gesamt) {
        gezaehlt << std::pair(fertig, gesamt);
        return true;
    }));
    const QList<std::pair<int, int>> erwartet = {{0, 3}, {1, 3}, {2, 3}, {3, 3}};
    QCOMPARE(gezaehlt, erwartet);
    QCOMPARE(probe.seiten(), 3);
}

void TestDrucktuer::aCancelledPdfLeavesNoHalfFile_data()
{
    QTest::addColumn<int>("letzte");
    QTest::addColumn<bool>("bleibt");
    QTest::newRow("before the first page") << 0 << false;
    QTest::newRow("after the first page") << 1 << false;
    QTest::newRow("before the last page") << 4 << false;
    QTest::newRow("after the last page: nothing is missing") << 5 << true;
}

void TestDrucktuer::aCancelledPdfLeavesNoHalfFile()
{
    QFETCH(int, letzte);
    QFETCH(bool, bleibt);
    const QString pdf = m_ordner.filePath(QStringLiteral("halb.pdf"));
    QFile::remove(pdf);
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(pdf);
    QVERIFY(!drucke(drucker, beziffert(5),
                    [letzte](int fertig, int) { return fertig < letzte; })); // is no failure
    QCOMPARE(QFile::exists(pdf), bleibt);
    QVERIFY(!drucke(drucker, beziffert(1))); // the printer can be used again
    QVERIFY(QFile::exists(pdf));
}

void TestDrucktuer::aFolderOrDeviceIsNotTakenAway()
{
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(QStringLiteral("/dev/null"));
    QVERIFY(!drucke(drucker, beziffert(5), [](int fertig, int) { return fertig < 2; }));
    QVERIFY(QFile::exists(QStringLiteral("/dev/null")));
}

void TestDrucktuer::manyPagesCanBeCancelled_data()
{
    QTest::addColumn<bool>("vorschau");
    QTest::newRow("while the preview is made") << true;
    QTest::newRow("while the print is made") << false;
}

/// A job of 500 pages that take their time. The user sees how many are done, and cancels.
void TestDrucktuer::manyPagesCanBeCancelled()
{
    QFETCH(bool, vorschau);
    bool langsam = vorschau;
    int gemalt = 0;
    QString worte;
    Druckauftrag auftrag = beziffert(500);
    auftrag.male = [&](QPainter &, const QPageLayout &, int) {
        if (!langsam) {
            return;
        }
        ++gemalt;
        QElapsedTimer arbeit;
        arbeit.start();
        while (arbeit.elapsed() < 10) {
        }
        for (QWidget *fenster : QApplication::topLevelWidgets()) {
            auto *anzeige = qobject_cast<QProgressDialog *>(fenster);
            if (anzeige != nullptr && anzeige->isVisible() && worte.isNull()) {
                worte = anzeige->labelText();
                QTest::mouseClick(anzeige->findChild<QPushButton *>(), Qt::LeftButton);
            }
        }
    };
    const QString pdf = m_ordner.filePath(QStringLiteral("abgebrochen.pdf"));
    const QPointer<QPrintPreviewDialog> fenster = oeffne(auftrag);
    if (!vorschau) {
        QVERIFY(fenster);
        langsam = true;
        fenster->printer()->setOutputFileName(pdf);
        fenster->findChild<QPrintPreviewWidget *>()->print();
    }
    QVERIFY(gemalt > 1 && gemalt < 500);
    QCOMPARE(worte, QStringLiteral("Seite %1 von 500").arg(gemalt));
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr); // it closes
    QVERIFY(!QFile::exists(pdf));
    QVERIFY(m_meldungen.isEmpty()); // who cancels knows it
}

void TestDrucktuer::fewPagesShowNoProgress()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    for (const QWidget *fenster : QApplication::topLevelWidgets()) {
        QVERIFY(qobject_cast<const QProgressDialog *>(fenster) == nullptr);
    }
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::thePreviewBeginsWithTheSharedPageSetup()
{
    merkeSeite(*m_einstellungen,
               Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape, {72, 36, 18, 9}));
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    const QPageLayout seite = vorschau->printer()->pageLayout();
    QCOMPARE(seite.pageSize().id(), QPageSize::Letter);
    QCOMPARE(seite.orientation(), QPageLayout::Landscape);
    QCOMPARE(seite.margins(QPageLayout::Point), QMarginsF(72, 36, 18, 9));
    QVERIFY(vorschau->windowTitle().contains(QLatin1String("Probe")));
    vorschau->close();
}

void TestDrucktuer::thePageSetupIsKeptForTheNextPrint()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->pageLayout().orientation(), QPageLayout::Portrait);
    vorschau->findChild<QPrintPreviewWidget *>()->setLandscapeOrientation();
    vorschau->close();
    QCOMPARE(gemerkteSeite(*m_einstellungen).orientation(), QPageLayout::Landscape);
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);

    vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->pageLayout().orientation(), QPageLayout::Landscape);
    QCOMPARE(vorschau->printer()->pageLayout().pageSize().id(), QPageSize::A4);
    vorschau->close();
}

void TestDrucktuer::theTitleMakesAFileName_data()
{
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("name");
    QTest::newRow("an ordinary name")
        << QStringLiteral("Äpfel, roh") << QStringLiteral("Äpfel, roh");
    QTest::newRow("a slash is no folder")
        << QStringLiteral("Apfel/Birne") << QStringLiteral("Apfel-Birne");
    QTest::newRow("a point in the last word is no ending")
        << QStringLiteral("Milch 3.5%") << QStringLiteral("Milch 3,5%");
    QTest::newRow("a point before a blank does no harm")
        << QStringLiteral("Milch m. Zucker") << QStringLiteral("Milch m. Zucker");
    QTest::newRow("a point at the end does no harm")
        << QStringLiteral("Obst usw.") << QStringLiteral("Obst usw.");
    QTest::newRow("longer than a disk takes") << QString(300, u'ä') << QString(80, u'ä');
}

void TestDrucktuer::theTitleMakesAFileName()
{
    QFETCH(QString, titel);
    QFETCH(QString, name);
    Druckauftrag auftrag = beziffert(1);
    auftrag.titel = titel;
    QPrintPreviewDialog *vorschau = oeffne(auftrag);
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->docName(), name);
    QVERIFY(vorschau->windowTitle().contains(titel)); // the user reads the true one
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::thePreviewIsAsLargeAsItsWindow()
{
    m_fenster.resize(780, 570);
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->size(), QSize(780, 570));
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);

    m_fenster.resize(100, 50); // but never too small for its buttons
    vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->size(), QSize(692, 515));
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::closingThePreviewPrintsNothing()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QVERIFY(vorschau->isModal()); // what is about to be printed can't change behind it
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
    QVERIFY(m_meldungen.isEmpty());
}

void TestDrucktuer::thePreviewIsPaintedLikeThePrint()
{
    QList<int> gemalt;
    Druckauftrag auftrag = beziffert(3);
    auftrag.male = [&gemalt, male = auftrag.male](QPainter &maler, const QPageLayout &seite,
                                                  int nummer) {
        gemalt << nummer;
        male(maler, seite, nummer);
    };
    QPrintPreviewDialog *vorschau = oeffne(auftrag);
    QVERIFY(vorschau);
    auto *ansicht = vorschau->findChild<QPrintPreviewWidget *>();
    QTRY_COMPARE(ansicht->pageCount(), 3);
    QCOMPARE(gemalt.first(3), QList<int>({1, 2, 3}));

    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    vorschau->printer()->setOutputFileName(probe.pdf());
    gemalt.clear();
    ansicht->print();
    QCOMPARE(gemalt, QList<int>({1, 2, 3}));
    QCOMPARE(probe.zeilen(3), QStringList({QStringLiteral("Seite 3")}));
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::thePreviewShowsEveryPage()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(3));
    QVERIFY(vorschau);
    QTRY_COMPARE(vorschau->findChild<QPrintPreviewWidget *>()->pageCount(), 3);
    vorschau->close();
}

void TestDrucktuer::withoutAPrinterItPrintsToAPdf()
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    beantworteDruckfrage(probe.pdf());
    aktion(*vorschau, "Print")->trigger();
    QCOMPARE(probe.seiten(), 2);
    QCOMPARE(probe.zeilen(2), QStringList({QStringLiteral("Seite 2")}));
    QVERIFY(m_meldungen.isEmpty());
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

/// The print dialog's own question, which the program doesn't write, shows a name like any other.
void TestDrucktuer::theQuestionAboutAnExistingPdfIsShownAsItIsWritten()
{
    QFile vorhanden(m_ordner.filePath(QStringLiteral("<b>x.pdf")));
    QVERIFY(vorhanden.open(QIODevice::WriteOnly));
    vorhanden.close();
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QString gefragt;
    Qt::TextFormat format = Qt::AutoText;
    verneineFrage([&](const QMessageBox &kasten) {
        const auto *zeile = kasten.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        gefragt = zeile->text();
        format = zeile->textFormat();
    });
    beantworteDruckfrage(vorhanden.fileName());
    aktion(*vorschau, "Print")->trigger();
    QVERIFY2(gefragt.contains(vorhanden.fileName()), qPrintable(gefragt));
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(vorhanden.size(), 0);
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::cancellingGoesBackToThePreview()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    beantworteDruckfrage(QString());
    aktion(*vorschau, "Print")->trigger();
    QVERIFY(m_meldungen.isEmpty());
    QVERIFY(vorschau->isVisible()); // the user may look on
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDrucktuer::aPdfThatFailsIsToldAndTheProgramGoesOn()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    vorschau->printer()->setOutputFileName(m_ordner.filePath(QStringLiteral("fehlt/plan.pdf")));
    vorschau->findChild<QPrintPreviewWidget *>()->print();
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, QStringLiteral("Das Drucken ist nicht gelungen."));
    QVERIFY(m_meldungen[0].erklaerung.contains(QLatin1String("fehlt/plan.pdf")));
    QCOMPARE(m_meldungen[0].knoepfe, QStringList({QStringLiteral("ok")}));
    vorschau->close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);

    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(beziffert(1));
    QCOMPARE(probe.seiten(), 1);
}

QTEST_MAIN(TestDrucktuer)
#include "TestDrucktuer.moc"
