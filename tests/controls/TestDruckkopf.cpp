#include "Druckfuss.h"
#include "Druckkopf.h"
#include "Druckprobe.h"

#include <QLocale>
#include <QTest>

/// The line at the head of every page that says for whom a print is.
class TestDruckkopf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageSaysForWhomItIs();
    void withoutAnybodyThePrintStaysAsItIs();
    void thePagesAreThoseBelowTheHead_data();
    void thePagesAreThoseBelowTheHead();
    void aLongNameStaysOnThePaper();
    void aNameIsNoMarkup();
};

void TestDruckkopf::everyPageSaysForWhomItIs()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Druckauftrag auftrag = beziffert(2);
    auftrag.tag = QDate(2026, 3, 1);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitKopf(mitFuss(auftrag), QStringLiteral("Änne Größ, 01.03.2026")));
    QCOMPARE(probe.seiten(), 2);
    for (int seite = 1; seite <= 2; ++seite) {
        QCOMPARE(
            probe.zeilen(seite),
            QStringList(
                {QStringLiteral("Änne Größ, 01.03.2026"), QStringLiteral("Seite %1").arg(seite),
                 QStringLiteral("Sonntag, 1. März 2026 Seite %1 von 2 Mahlberg").arg(seite)}));
    }
}

void TestDruckkopf::withoutAnybodyThePrintStaysAsItIs()
{
    QPageLayout gesehen;
    Druckauftrag auftrag = beziffert(1);
    auftrag.seitenzahl = [&](const QPageLayout &seite) {
        gesehen = seite;
        return 1;
    };
    const QPageLayout papier =
        Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait, QMarginsF(10, 20, 30, 40));
    mitKopf(auftrag, QString()).seitenzahl(papier);
    QCOMPARE(gesehen, papier);
}

void TestDruckkopf::thePagesAreThoseBelowTheHead_data()
{
    QTest::addColumn<double>("rand");
    QTest::addColumn<double>("frei"); // of the page, for the head and what is above it
    QTest::newRow("no margin: as near to the edge as printers reach") << 0.0 << 40.0;
    QTest::newRow("a wide one") << 70.0 << 92.0;
}

void TestDruckkopf::thePagesAreThoseBelowTheHead()
{
    QFETCH(double, rand);
    QPageLayout gesehen;
    Druckauftrag auftrag = beziffert(1);
    auftrag.seitenzahl = [&](const QPageLayout &seite) {
        gesehen = seite;
        return 1;
    };
    const QPageLayout papier =
        Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait, QMarginsF(10, rand, 30, 40));
    mitKopf(auftrag, QStringLiteral("Anna")).seitenzahl(papier);
    const QMarginsF raender = gesehen.margins(QPageLayout::Point);
    QTEST(raender.top(), "frei");
    QCOMPARE(raender.bottom(), 40.0);
    QCOMPARE(raender.left(), 10.0);
}

void TestDruckkopf::aLongNameStaysOnThePaper()
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A5, QPageLayout::Portrait));
    probe.drucke(
        mitKopf(beziffert(1), QString(400, QLatin1Char('w')) + QStringLiteral(", 01.03.2026")));
    for (const Druckwort &wort : probe.worte()) {
        QVERIFY(wort.rechts <= probe.seitengroesse().width() - 36);
    }
    QVERIFY(probe.zeilen(1).constFirst().endsWith(QStringLiteral("01.03.2026")));
}

void TestDruckkopf::aNameIsNoMarkup()
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitKopf(beziffert(1), QStringLiteral("<b>A</b> &amp; %1")));
    QCOMPARE(probe.zeilen(1).constFirst(), QStringLiteral("<b>A</b> &amp; %1"));
}

QTEST_MAIN(TestDruckkopf)
#include "TestDruckkopf.moc"
