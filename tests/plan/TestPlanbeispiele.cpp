#include "Planauswertung.h"
#include "Planbeispiele.h"

#include <QTest>

/// Whole plans, worked out by hand.
class TestPlanbeispiele : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plans_data();
    void plans();
};

namespace {

/// What the evaluation says about a nutrient: percentage, then code and length of the bar, or "-"
/// for a bar that is left alone.
QString inWorten(const Plannaehrwert &naehrwert)
{
    QString text = QString::number(naehrwert.prozent, 'g', 9) + QLatin1Char(':');
    if (!naehrwert.balken.has_value()) {
        return text + QLatin1Char('-');
    }
    const QString code = naehrwert.balken->code.has_value()
                             ? QString::number(*naehrwert.balken->code)
                             : QStringLiteral("?");
    return text + code + QLatin1Char('/') + QString::number(naehrwert.balken->laenge);
}

QString inWorten(const Planwertung &wertung)
{
    return QStringLiteral("%1%2%3%4")
        .arg(wertung.plus)
        .arg(wertung.neutral)
        .arg(wertung.minus)
        .arg(wertung.punkt ? QStringLiteral("!") : QString());
}

} // namespace

void TestPlanbeispiele::plans_data()
{
    Planbeispiele::fuelle();
}

void TestPlanbeispiele::plans()
{
    QFETCH(QStringList, plan);
    QFETCH(int, bedarf);
    QFETCH(QString, prozente);
    QFETCH(int, energie);
    const Planbeispiele::Plan gelesen = Planbeispiele::lesen(plan);
    const Planauswertung auswertung = planAuswerten(gelesen.zeilen, bedarf, 2345);
    for (const auto &zeile : naehrwerte) {
        const QString ist = inWorten(auswertung.naehrwerte[stelle(zeile.wert)]);
        const QString soll = Planbeispiele::erwartet(prozente, zeile.kennung);
        QVERIFY2(ist == soll, qPrintable(QString::fromLatin1(zeile.kennung) + QLatin1String(": ") +
                                         ist + QLatin1String(" is not ") + soll));
    }
    QVERIFY(auswertung.energie.has_value());
    QCOMPARE(auswertung.energie->bedarf, 2345);
    QCOMPARE(auswertung.energie->errechnet, energie);
    QStringList zaehlungen;
    for (const Planwertung &wertung : auswertung.wertungen) {
        zaehlungen.append(inWorten(wertung));
    }
    QTEST(zaehlungen.join(QLatin1Char(' ')), "gezaehlt");
    QTEST(auswertung.punkte, "punkte");
    QTEST(auswertung.gesicht, "gesicht");
}

QTEST_GUILESS_MAIN(TestPlanbeispiele)
#include "TestPlanbeispiele.moc"
