#include "Druckprobe.h"

#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QTest>

/// What leaves the printer: which pages, where on the paper, and what is told when it fails.
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

private:
    QTemporaryDir m_ordner;
};

void TestDrucktuer::initTestCase()
{
    QVERIFY(m_ordner.isValid());
}

void TestDrucktuer::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
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

QTEST_MAIN(TestDrucktuer)
#include "TestDrucktuer.moc"
