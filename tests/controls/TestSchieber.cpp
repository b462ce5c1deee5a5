#include "Schieber.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

class TestSchieber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void itHoldsWhatItWasGiven_data();
    void itHoldsWhatItWasGiven();
    void settingRunsNoAction();
    void anArrowKeyMovesOneStep();
    void stepsOfHundredthsStayExact();
    void aTypedNumberIsTakenWithReturn();
    void aNumberThatCantBeHeldStaysWithinTheRange_data();
    void aNumberThatCantBeHeldStaysWithinTheRange();
    void commaAndPointBothMeanDecimals_data();
    void commaAndPointBothMeanDecimals();
    void aWholeNumberIsReadLikeAnyOther_data();
    void aWholeNumberIsReadLikeAnyOther();
    void aNumberBeyondTheRangeIsShownAndNotAltered();
    void aKeyAtTheEndTakesAValueBackIntoTheRange();
    void whatTheUserTypesKeepsToTheRange();
    void itsTextIsTheNumber();
    void itsPartsGoOffWithIt();
    void itsPartsHaveItsName();
};

void TestSchieber::itHoldsWhatItWasGiven_data()
{
    QTest::addColumn<double>("zahl");
    QTest::newRow("within") << 30.0;
    QTest::newRow("between two steps") << 30.3;
    QTest::newRow("below") << -5.0;
    QTest::newRow("above") << 1e6;
    QTest::newRow("nothing") << 0.0;
}

void TestSchieber::itHoldsWhatItWasGiven()
{
    QFETCH(double, zahl);
    Schieber schieber;
    schieber.setMinimumValue(10);
    schieber.setMaximumValue(50);
    schieber.setDoubleValue(zahl);
    schieber.show();
    QVERIFY(QTest::qWaitForWindowExposed(&schieber));
    QCoreApplication::processEvents();
    QCOMPARE(schieber.doubleValue(), zahl);
}

void TestSchieber::settingRunsNoAction()
{
    Schieber schieber;
    QSignalSpy gemeldet(&schieber, &Schieber::betaetigt);
    schieber.setIntValue(40);
    QTRY_COMPARE(schieber.regler()->value(), 40);
    QTRY_COMPARE(schieber.eingabe()->value(), 40.0);
    QCOMPARE(gemeldet.count(), 0);
}

void TestSchieber::anArrowKeyMovesOneStep()
{
    Schieber schieber;
    schieber.setMinimumValue(30);
    schieber.setMaximumValue(250);
    schieber.setStepValue(0.5);
    schieber.setDecimals(1);
    schieber.setDoubleValue(80);
    QTRY_COMPARE(schieber.regler()->value(), 100);
    QSignalSpy gemeldet(&schieber, &Schieber::betaetigt);
    QTest::keyClick(schieber.regler(), Qt::Key_Right);
    QCOMPARE(schieber.doubleValue(), 80.5);
    QCOMPARE(gemeldet.count(), 1);
    QTRY_COMPARE(schieber.eingabe()->value(), 80.5);
    QTest::keyClick(schieber.regler(), Qt::Key_End);
    QCOMPARE(schieber.doubleValue(), 250.0);
}

void TestSchieber::stepsOfHundredthsStayExact()
{
    Schieber schieber;
    schieber.setMinimumValue(1);
    schieber.setMaximumValue(2.3);
    schieber.setStepValue(0.01);
    schieber.setDecimals(2);
    for (int i = 130; i >= 0; --i) {
        schieber.regler()->setValue(i);
        QCOMPARE(schieber.doubleValue(), (100 + i) / 100.0);
    }
}

void TestSchieber::aTypedNumberIsTakenWithReturn()
{
    Schieber schieber;
    schieber.setMaximumValue(1000);
    schieber.setUnit(QStringLiteral("g"));
    schieber.setIntValue(100);
    schieber.show();
    QVERIFY(QTest::qWaitForWindowActive(&schieber));
    QTRY_COMPARE(schieber.eingabe()->value(), 100.0);
    QSignalSpy gemeldet(&schieber, &Schieber::betaetigt);
    schieber.eingabe()->setFocus();
    schieber.eingabe()->selectAll();
    QTest::keyClicks(schieber.eingabe(), QStringLiteral("30"));
    QCOMPARE(gemeldet.count(), 0);
    QTest::keyClick(schieber.eingabe(), Qt::Key_Return);
    QCOMPARE(schieber.intValue(), 30);
    QCOMPARE(gemeldet.count(), 1);
    QTRY_COMPARE(schieber.regler()->value(), 30);
}

void TestSchieber::aNumberThatCantBeHeldStaysWithinTheRange_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("getippt");
    for (const int decimals : {0, 1}) {
        QTest::addRow("an exponent, %d decimals", decimals) << decimals << QStringLiteral("1e999");
        QTest::addRow("many nines, %d decimals", decimals) << decimals << QString(400, u'9');
        QTest::addRow("many nines and a comma, %d decimals", decimals)
            << decimals << QString(400, u'9') + QStringLiteral(",5");
    }
}

/// At once, as from the clipboard.
void TestSchieber::aNumberThatCantBeHeldStaysWithinTheRange()
{
    QFETCH(int, decimals);
    QFETCH(QString, getippt);
    Schieber schieber;
    schieber.setDecimals(decimals);
    schieber.setMaximumValue(1000);
    schieber.setIntValue(100);
    schieber.show();
    QVERIFY(QTest::qWaitForWindowActive(&schieber));
    QTRY_COMPARE(schieber.eingabe()->value(), 100.0);
    schieber.eingabe()->setFocus();
    auto *zeile = schieber.eingabe()->findChild<QLineEdit *>();
    QVERIFY(zeile != nullptr);
    zeile->selectAll();
    zeile->insert(getippt);
    QTest::keyClick(schieber.eingabe(), Qt::Key_Return);
    QCOMPARE(schieber.doubleValue(), 100.0);
    QTRY_COMPARE(schieber.regler()->value(), 100);
}

void TestSchieber::commaAndPointBothMeanDecimals_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("gezeigt");
    const QLocale deutsch(QLocale::German, QLocale::Germany);
    const QLocale englisch(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("German, comma") << deutsch << QStringLiteral("1,9") << QStringLiteral("1,9");
    QTest::newRow("German, point") << deutsch << QStringLiteral("1.9") << QStringLiteral("1,9");
    QTest::newRow("English, comma") << englisch << QStringLiteral("1,9") << QStringLiteral("1.9");
    QTest::newRow("English, point") << englisch << QStringLiteral("1.9") << QStringLiteral("1.9");
}

void TestSchieber::commaAndPointBothMeanDecimals()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, getippt);
    QLocale::setDefault(sprache);
    Schieber schieber;
    schieber.setDecimals(1);
    schieber.setUnit(QStringLiteral("Std."));
    schieber.show();
    QVERIFY(QTest::qWaitForWindowActive(&schieber));
    schieber.eingabe()->setFocus();
    schieber.eingabe()->selectAll();
    QTest::keyClicks(schieber.eingabe(), getippt);
    QTest::keyClick(schieber.eingabe(), Qt::Key_Return);
    QCOMPARE(schieber.doubleValue(), 1.9);
    QTEST(schieber.eingabe()->cleanText(), "gezeigt");
    QVERIFY(schieber.eingabe()->text().endsWith(QStringLiteral("Std.")));
}

void TestSchieber::aWholeNumberIsReadLikeAnyOther_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<double>("zahl");
    const QLocale deutsch(QLocale::German, QLocale::Germany);
    const QLocale englisch(QLocale::English, QLocale::UnitedKingdom);
    const auto zeile = [&](const QString &getippt, double zahl) {
        QTest::addRow("%s in German", qPrintable(getippt)) << deutsch << getippt << zahl;
        QTest::addRow("%s in English", qPrintable(getippt)) << englisch << getippt << zahl;
    };
    zeile(QStringLiteral("1500"), 1500);
    zeile(QStringLiteral("12.5"), 13);
    zeile(QStringLiteral("12,4"), 12);
    zeile(QStringLiteral("1.500"), 2);
    zeile(QStringLiteral("1,500"), 2);
    zeile(QStringLiteral("1.500,4"), 1500);
    zeile(QStringLiteral("1,500.6"), 1501);
    zeile(QStringLiteral("1 500"), 1500);
    zeile(QStringLiteral(",6"), 1);
    zeile(QStringLiteral(","), 100); // no number: what stood there stays
}

void TestSchieber::aWholeNumberIsReadLikeAnyOther()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, getippt);
    QLocale::setDefault(sprache);
    Schieber schieber;
    schieber.setMaximumValue(3000);
    schieber.setUnit(QStringLiteral("ml"));
    schieber.setIntValue(100);
    schieber.show();
    QVERIFY(QTest::qWaitForWindowActive(&schieber));
    schieber.eingabe()->setFocus();
    schieber.eingabe()->selectAll();
    QTest::keyClicks(schieber.eingabe(), getippt);
    QTest::keyClick(schieber.eingabe(), Qt::Key_Return);
    QTEST(schieber.doubleValue(), "zahl");
}

void TestSchieber::aNumberBeyondTheRangeIsShownAndNotAltered()
{
    Schieber schieber;
    schieber.setMinimumValue(30);
    schieber.setMaximumValue(250);
    schieber.setDecimals(1);
    QSignalSpy gemeldet(&schieber, &Schieber::betaetigt);
    schieber.setDoubleValue(300);
    QTRY_COMPARE(schieber.eingabe()->value(), 300.0);
    QCOMPARE(schieber.regler()->value(), schieber.regler()->maximum());
    schieber.setDoubleValue(0);
    QTRY_COMPARE(schieber.eingabe()->value(), 0.0);
    QCOMPARE(schieber.regler()->value(), 0);
    QCOMPARE(schieber.doubleValue(), 0.0);
    QCOMPARE(gemeldet.count(), 0);
}

void TestSchieber::aKeyAtTheEndTakesAValueBackIntoTheRange()
{
    Schieber schieber;
    schieber.setMinimumValue(30);
    schieber.setMaximumValue(250);
    schieber.setDoubleValue(0);
    QTRY_COMPARE(schieber.regler()->value(), 0);
    QSignalSpy gemeldet(&schieber, &Schieber::betaetigt);
    QTest::keyClick(schieber.regler(), Qt::Key_Home);
    QCOMPARE(schieber.doubleValue(), 30.0);
    QCOMPARE(gemeldet.count(), 1);
    QTest::keyClick(schieber.regler(), Qt::Key_Home);
    QCOMPARE(gemeldet.count(), 1);
}

void TestSchieber::whatTheUserTypesKeepsToTheRange()
{
    Schieber schieber;
    schieber.setMinimumValue(30);
    schieber.setMaximumValue(250);
    schieber.setDoubleValue(0);
    QTRY_COMPARE(schieber.eingabe()->value(), 0.0);
    schieber.eingabe()->setValue(10);
    QCOMPARE(schieber.doubleValue(), 30.0);
}

void TestSchieber::itsTextIsTheNumber()
{
    Schieber schieber;
    schieber.setUnit(QStringLiteral("g"));
    schieber.setIntValue(100);
    QCOMPARE(schieber.stringValue(), QStringLiteral("100"));
    schieber.setDoubleValue(2.5);
    QCOMPARE(schieber.stringValue(), QStringLiteral("2,5"));
    schieber.setIntValue(2000);
    QCOMPARE(schieber.stringValue(), QStringLiteral("2000"));
}

void TestSchieber::itsPartsGoOffWithIt()
{
    Schieber schieber;
    schieber.setEnabled(false);
    QVERIFY(!schieber.regler()->isEnabled());
    QVERIFY(!schieber.eingabe()->isEnabled());
}

void TestSchieber::itsPartsHaveItsName()
{
    Schieber schieber;
    schieber.setAccessibleName(QStringLiteral("Menge"));
    schieber.show();
    QCOMPARE(schieber.regler()->accessibleName(), QStringLiteral("Menge"));
    QCOMPARE(schieber.eingabe()->accessibleName(), QStringLiteral("Menge"));
}

QTEST_MAIN(TestSchieber)
#include "TestSchieber.moc"
