#include "Druckfuss.h"
#include "Druckprobe.h"

#include <QLocale>
#include <QPainter>
#include <QTest>

#include <functional>

/// The line at the foot of every page.
class TestDruckfuss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysDayPageAndProgram_data();
    void itSaysDayPageAndProgram();
    void itMaySpeakAnotherLanguage();
    void itStandsWithinTheMargins_data();
    void itStandsWithinTheMargins();
    void thePagesAreThoseAboveTheFoot();
    void thePagesMayBeMeasuredInMillimetres();
    void thePageLeavesTheFootAsItIs();
    void aPrintIsOfToday();
};

void TestDruckfuss::itSaysDayPageAndProgram_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("tag");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany)
                            << QStringLiteral("Sonntag, 1. März 2026");
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                             << QStringLiteral("Sunday, 1 March 2026");
}

void TestDruckfuss::itSaysDayPageAndProgram()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, tag);
    QLocale::setDefault(sprache);
    Druckauftrag auftrag = beziffert(2);
    auftrag.tag = QDate(2026, 3, 1);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitFuss(auftrag));
    QCOMPARE(probe.seiten(), 2);
    for (int seite = 1; seite <= 2; ++seite) {
        QCOMPARE(probe.zeilen(seite),
                 QStringList({QStringLiteral("Seite %1").arg(seite),
                              QStringLiteral("%1 Seite %2 von 2 Mahlberg").arg(tag).arg(seite)}));
    }
}

void TestDruckfuss::itMaySpeakAnotherLanguage()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Druckauftrag auftrag = beziffert(2);
    auftrag.tag = QDate(2026, 3, 1);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitFuss(auftrag, QStringLiteral("Page %1 of %2"),
                         QLocale(QLocale::English, QLocale::UnitedKingdom)));
    QCOMPARE(probe.zeilen(2).last(), QStringLiteral("Sunday, 1 March 2026 Page 2 of 2 Mahlberg"));
}

void TestDruckfuss::itStandsWithinTheMargins_data()
{
    QTest::addColumn<QMarginsF>("raender");
    QTest::addColumn<double>("links");
    QTest::addColumn<double>("unten"); // where the letters stand, from the paper's lower edge
    QTest::addColumn<double>("frei");  // of the page, for the foot and what is below it
    QTest::newRow("no margins: as near to the edge as printers reach")
        << QMarginsF() << 36.0 << 18.0 << 34.0;
    QTest::newRow("wide ones") << QMarginsF(50, 40, 60, 70) << 50.0 << 70.0 << 86.0;
}

void TestDruckfuss::itStandsWithinTheMargins()
{
    QFETCH(QMarginsF, raender);
    QFETCH(double, links);
    QFETCH(double, unten);
    QFETCH(double, frei);
    Druckauftrag auftrag = beziffert(1);
    double gesehen = 0;
    auftrag.male = [&gesehen](QPainter &, const QPageLayout &seite, int) {
        gesehen = seite.margins(QPageLayout::Point).bottom();
    };
    Druckprobe probe(Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape, raender));
    probe.drucke(mitFuss(auftrag));
    QCOMPARE(gesehen, frei);
    const QList<Druckwort> worte = probe.worte();
    const Druckwort letztes = finde(worte, QStringLiteral("Mahlberg"));
    QVERIFY(qAbs(worte.first().x - links) < 1);
    QVERIFY(letztes.grundlinie <= 612 - unten);
    QVERIFY(letztes.grundlinie > 612 - frei);
    QVERIFY(letztes.rechts <= 792 - qMax(36.0, raender.right()) + 0.5);
}

/// With the foot there is less room for the rows, and they may need one page more.
void TestDruckfuss::thePagesAreThoseAboveTheFoot()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Druckauftrag auftrag = beziffert(2);
    auftrag.seitenzahl = [](const QPageLayout &seite) {
        return seite.margins(QPageLayout::Point).bottom() > 20 ? 3 : 2;
    };
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitFuss(auftrag));
    QCOMPARE(probe.seiten(), 3);
    QVERIFY(probe.zeilen(3).last().contains(QStringLiteral("Seite 3 von 3")));
}

void TestDruckfuss::thePagesMayBeMeasuredInMillimetres()
{
    Druckauftrag auftrag = beziffert(1);
    double unten = 0;
    auftrag.seitenzahl = [&unten](const QPageLayout &seite) {
        unten = seite.margins(QPageLayout::Point).bottom();
        return 1;
    };
    const QPageLayout seite(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                            QMarginsF(12.7, 12.7, 12.7, 12.7), QPageLayout::Millimeter);
    mitFuss(auftrag).seitenzahl(seite);
    QVERIFY(qAbs(unten - (36 + 16)) < 0.5); // 12.7 mm are half an inch
}

/// What a page draws last may be light, turned or moved.
void TestDruckfuss::thePageLeavesTheFootAsItIs()
{
    QImage papier(595, 842, QImage::Format_RGB32);
    const auto fuss = [&papier](const std::function<void(QPainter &)> &danach) {
        Druckauftrag auftrag = beziffert(1);
        auftrag.male = [danach](QPainter &maler, const QPageLayout &, int) {
            danach(maler);
        };
        papier.fill(Qt::white);
        QPainter maler(&papier);
        mitFuss(auftrag).male(maler, Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait), 1);
        maler.end();
        return papier;
    };
    const QImage erwartet = fuss([](QPainter &) {});
    const QImage gedruckt = fuss([](QPainter &maler) {
        maler.setPen(Qt::white);
        maler.setOpacity(0.2);
        maler.translate(40, -60);
        maler.rotate(10);
    });
    QCOMPARE(gedruckt, erwartet);
    papier.fill(Qt::white);
    QVERIFY(erwartet != papier);
}

void TestDruckfuss::aPrintIsOfToday()
{
    const QDate vorher = QDate::currentDate();
    const Druckauftrag auftrag = beziffert(1);
    QVERIFY(vorher <= auftrag.tag && auftrag.tag <= QDate::currentDate());
}

QTEST_MAIN(TestDruckfuss)
#include "TestDruckfuss.moc"
