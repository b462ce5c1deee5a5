#include "Druckfuss.h"
#include "Druckprobe.h"

#include <QLocale>
#include <QPainter>
#include <QTest>

/// The line at the foot of every page.
class TestDruckfuss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysDayPageAndProgram_data();
    void itSaysDayPageAndProgram();
    void itStandsWithinTheMargins_data();
    void itStandsWithinTheMargins();
    void aPrintIsOfToday();
};

void TestDruckfuss::itSaysDayPageAndProgram_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("tag");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany)
                            << QStringLiteral("Sonntag, 22. November 2026");
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                             << QStringLiteral("Sunday, 22 November 2026");
}

void TestDruckfuss::itSaysDayPageAndProgram()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, tag);
    QLocale::setDefault(sprache);
    Druckauftrag auftrag = beziffert(2);
    auftrag.tag = QDate(2026, 11, 22);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(mitFuss(auftrag));
    QCOMPARE(probe.seiten(), 2);
    for (int seite = 1; seite <= 2; ++seite) {
        QCOMPARE(probe.zeilen(seite),
                 QStringList({QStringLiteral("Seite %1").arg(seite),
                              QStringLiteral("%1 Seite %2 von 2 Mahlberg").arg(tag).arg(seite)}));
    }
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

void TestDruckfuss::aPrintIsOfToday()
{
    const QDate vorher = QDate::currentDate();
    const Druckauftrag auftrag = beziffert(1);
    QVERIFY(vorher <= auftrag.tag && auftrag.tag <= QDate::currentDate());
}

QTEST_MAIN(TestDruckfuss)
#include "TestDruckfuss.moc"
