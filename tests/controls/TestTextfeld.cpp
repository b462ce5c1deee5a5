#include "Textfeld.h"

#include <QGuiApplication>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <QVBoxLayout>

class TestTextfeld : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void aNumberIsShownInItsFormatWithItsUnit_data();
    void aNumberIsShownInItsFormatWithItsUnit();
    void theFormatOnlyChangesWhatIsPainted();
    void wholeNumbersCanBeShownWithoutAComma();
    void aTextIsShownWithoutTheUnit();
    void theTextIsMadeOnceForAThousandValues();
    void aDisplayIsNoStopOfTheTabKey();
    void aTypedValueIsHeldAtOnceAndReportedAtTheEnd();
    void anEntryShowsTheBareNumberWhileItIsTyped();
    void whatWasTypedIsShownToItsLastDigit_data();
    void whatWasTypedIsShownToItsLastDigit();
    void aMarkThatPartsThousandsGoesAwayWhileItIsTyped_data();
    void aMarkThatPartsThousandsGoesAwayWhileItIsTyped();
    void aNumberThatCantBeHeldLeavesTheOneBefore_data();
    void aNumberThatCantBeHeldLeavesTheOneBefore();
    void leavingWithoutTypingReportsNothing();
    void aHiddenFieldKeepsItsPlace();
    void theVerdictFollowsTheTheme();
    void aTextIsShownInTheWindowsLanguage();
};

namespace {

QString nbsp(QString text)
{
    return text.replace(u'_', QChar(QChar::Nbsp));
}

} // namespace

void TestTextfeld::aNumberIsShownInItsFormatWithItsUnit_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("bedeutsam");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    const QString mg = QStringLiteral("mg");
    QTest::newRow("energy has no decimals")
        << 155.4 << 0 << 0 << QStringLiteral("kcal") << nbsp(QStringLiteral("155_kcal"));
    QTest::newRow("grams have one")
        << 12.0 << 1 << 0 << QStringLiteral("g") << nbsp(QStringLiteral("12,0_g"));
    QTest::newRow("thousands are not parted")
        << 1234.0 << 0 << 0 << mg << nbsp(QStringLiteral("1234_mg"));
    QTest::newRow("a trace of protein")
        << 0.03 << 1 << 0 << QStringLiteral("g") << nbsp(QStringLiteral("0,03_g"));
    QTest::newRow("no protein") << 0.0 << 1 << 0 << QStringLiteral("g")
                                << nbsp(QStringLiteral("0,0_g"));
    QTest::newRow("many milligrams") << 123.4 << 0 << 2 << mg << nbsp(QStringLiteral("123_mg"));
    QTest::newRow("ten milligrams") << 12.34 << 0 << 2 << mg << nbsp(QStringLiteral("12_mg"));
    QTest::newRow("one milligram") << 1.234 << 0 << 2 << mg << nbsp(QStringLiteral("1,2_mg"));
    QTest::newRow("a tenth") << 0.1234 << 0 << 2 << mg << nbsp(QStringLiteral("0,12_mg"));
    QTest::newRow("a hundredth") << 0.01234 << 0 << 2 << mg << nbsp(QStringLiteral("0,012_mg"));
    QTest::newRow("less still") << 0.0001 << 0 << 2 << mg << nbsp(QStringLiteral("0,0001_mg"));
    QTest::newRow("nothing") << 0.0 << 0 << 2 << mg << nbsp(QStringLiteral("0_mg"));
    QTest::newRow("as short as it is") << 2.5 << -1 << 0 << QString() << QStringLiteral("2,5");
}

void TestTextfeld::aNumberIsShownInItsFormatWithItsUnit()
{
    QFETCH(double, zahl);
    QFETCH(int, decimals);
    QFETCH(int, bedeutsam);
    QFETCH(QString, unit);
    QFETCH(QString, text);
    Textfeld feld;
    feld.setDecimals(decimals);
    feld.setSignificantDigits(bedeutsam);
    feld.setUnit(unit);
    feld.setDoubleValue(zahl);
    QTRY_COMPARE(feld.text(), text);
}

void TestTextfeld::theFormatOnlyChangesWhatIsPainted()
{
    Textfeld feld;
    feld.setDecimals(0);
    feld.setDoubleValue(99.6);
    QTRY_COMPARE(feld.text(), QStringLiteral("100"));
    QCOMPARE(feld.doubleValue(), 99.6);
    QCOMPARE(feld.intValue(), 99);
}

void TestTextfeld::wholeNumbersCanBeShownWithoutAComma()
{
    Textfeld feld;
    feld.setDecimals(1);
    feld.setTrailingZeros(false);
    feld.setDoubleValue(7);
    QCOMPARE(feld.stringValue(), QStringLiteral("7"));
    feld.setDoubleValue(-1200);
    QCOMPARE(feld.stringValue(), QStringLiteral("-1200"));
    feld.setDoubleValue(7.25);
    QCOMPARE(feld.stringValue(), QStringLiteral("7,3"));
    feld.setTrailingZeros(true);
    feld.setDoubleValue(7);
    QCOMPARE(feld.stringValue(), QStringLiteral("7,0"));
}

void TestTextfeld::aTextIsShownWithoutTheUnit()
{
    Textfeld feld;
    feld.setUnit(QStringLiteral("g"));
    feld.setStringValue(QStringLiteral("   - "));
    QTRY_COMPARE(feld.text(), QStringLiteral("   - "));
    QCOMPARE(feld.floatValue(), 0.0F);
}

void TestTextfeld::theTextIsMadeOnceForAThousandValues()
{
    Textfeld feld;
    QSignalSpy gezeigt(&feld, &QLineEdit::textChanged);
    for (int i = 1; i <= 1000; ++i) {
        feld.setIntValue(i);
    }
    QCOMPARE(gezeigt.count(), 0);
    QTRY_COMPARE(feld.text(), QStringLiteral("1000"));
    QCOMPARE(gezeigt.count(), 1);
}

void TestTextfeld::aDisplayIsNoStopOfTheTabKey()
{
    Textfeld feld;
    QVERIFY(feld.isReadOnly());
    QVERIFY((feld.focusPolicy() & Qt::TabFocus) == 0);
    feld.setEditable(true);
    QVERIFY(!feld.isReadOnly());
    QVERIFY((feld.focusPolicy() & Qt::TabFocus) != 0);
}

void TestTextfeld::aTypedValueIsHeldAtOnceAndReportedAtTheEnd()
{
    Textfeld feld;
    feld.setEditable(true);
    feld.show();
    QVERIFY(QTest::qWaitForWindowActive(&feld));
    QSignalSpy gemeldet(&feld, &Textfeld::betaetigt);
    QTest::keyClicks(&feld, QStringLiteral("12,5"));
    QCOMPARE(feld.doubleValue(), 12.5);
    QCOMPARE(gemeldet.count(), 0);
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(gemeldet.count(), 1);
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(gemeldet.count(), 1);
}

void TestTextfeld::anEntryShowsTheBareNumberWhileItIsTyped()
{
    QWidget fenster;
    auto *anordnung = new QVBoxLayout(&fenster);
    auto *andere = new QLineEdit;
    auto *feld = new Textfeld;
    anordnung->addWidget(andere);
    anordnung->addWidget(feld);
    feld->setEditable(true);
    feld->setDecimals(1);
    feld->setUnit(QStringLiteral("g"));
    feld->setDoubleValue(3);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    andere->setFocus();
    QTRY_COMPARE(feld->text(), nbsp(QStringLiteral("3,0_g")));
    feld->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(feld->text(), QStringLiteral("3,0"));
    QCOMPARE(feld->selectedText(), QStringLiteral("3,0"));
    QTest::keyClicks(feld, QStringLiteral("4,25"));
    andere->setFocus();
    QCOMPARE(feld->doubleValue(), 4.25);
}

void TestTextfeld::whatWasTypedIsShownToItsLastDigit_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << "12" << nbsp(QStringLiteral("12_g"));
    QTest::newRow("hundredths") << "12,34" << nbsp(QStringLiteral("12,34_g"));
    QTest::newRow("with a point") << "12.34" << nbsp(QStringLiteral("12,34_g"));
    QTest::newRow("the smallest") << "0,000001" << nbsp(QStringLiteral("0,000001_g"));
    QTest::newRow("the largest") << "9999999" << nbsp(QStringLiteral("9999999_g"));
    QTest::newRow("a mark and nothing else") << "," << nbsp(QStringLiteral("0_g"));
}

void TestTextfeld::whatWasTypedIsShownToItsLastDigit()
{
    QFETCH(QString, getippt);
    QFETCH(QString, text);
    QWidget fenster;
    auto *anordnung = new QVBoxLayout(&fenster);
    auto *andere = new QLineEdit;
    auto *feld = new Textfeld;
    anordnung->addWidget(feld);
    anordnung->addWidget(andere);
    feld->setEditable(true);
    feld->setNurZahlen(true);
    feld->setUnit(QStringLiteral("g"));
    feld->setDoubleValue(10);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    feld->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(feld, getippt);
    andere->setFocus();
    QTRY_COMPARE(feld->text(), text);
    feld->hide();
    feld->show();
    QCoreApplication::processEvents();
    QCOMPARE(feld->text(), text);
}

void TestTextfeld::aMarkThatPartsThousandsGoesAwayWhileItIsTyped_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("zahl");
    QTest::newRow("decimals") << "1.234"
                              << "1.234" << 1.234;
    QTest::newRow("a point, then a comma") << "1.234,5"
                                           << "1234,5" << 1234.5;
    QTest::newRow("a comma, then a point") << "1,234.5"
                                           << "1234.5" << 1234.5;
    QTest::newRow("two points") << "1.500.000"
                                << "1500000" << 1500000.0;
    QTest::newRow("a comma hit twice") << "1,,5"
                                       << "1,5" << 1.5;
    QTest::newRow("blanks") << "1 500"
                            << "1500" << 1500.0;
}

void TestTextfeld::aMarkThatPartsThousandsGoesAwayWhileItIsTyped()
{
    QFETCH(QString, getippt);
    Textfeld feld;
    feld.setEditable(true);
    feld.setNurZahlen(true);
    feld.show();
    QVERIFY(QTest::qWaitForWindowActive(&feld));
    QTest::keyClicks(&feld, getippt);
    QTEST(feld.text(), "text");
    QTEST(feld.doubleValue(), "zahl");
    feld.selectAll();
    feld.insert(getippt); // all at once, as from the clipboard
    QCOMPARE(feld.doubleValue(), zahlAusText(feld.text()));
}

void TestTextfeld::aNumberThatCantBeHeldLeavesTheOneBefore_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::newRow("more than any number") << "1e999";
    QTest::newRow("as much below 0") << "-1e999";
    QTest::newRow("more than is computed with") << "1e39";
    QTest::newRow("a key held down") << QString(400, u'9');
}

void TestTextfeld::aNumberThatCantBeHeldLeavesTheOneBefore()
{
    QFETCH(QString, getippt);
    Textfeld feld;
    feld.setEditable(true);
    feld.setDecimals(1);
    feld.setDoubleValue(12.5);
    feld.show();
    QVERIFY(QTest::qWaitForWindowActive(&feld));
    feld.selectAll();
    QTest::keyClicks(&feld, getippt);
    QCOMPARE(feld.text(), getippt);
    QCOMPARE(feld.doubleValue(), 12.5);
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(feld.doubleValue(), 12.5);
    QTRY_COMPARE(feld.text(), QStringLiteral("12,5"));
    feld.selectAll();
    QTest::keyClicks(&feld, QStringLiteral("7"));
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(feld.doubleValue(), 7.0);
}

void TestTextfeld::leavingWithoutTypingReportsNothing()
{
    QWidget fenster;
    auto *anordnung = new QVBoxLayout(&fenster);
    auto *andere = new QLineEdit;
    auto *feld = new Textfeld;
    anordnung->addWidget(feld);
    anordnung->addWidget(andere);
    feld->setEditable(true);
    feld->setDoubleValue(99.96);
    feld->setDecimals(1);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    QSignalSpy gemeldet(feld, &Textfeld::betaetigt);
    feld->setFocus();
    andere->setFocus();
    QCOMPARE(gemeldet.count(), 0);
    QCOMPARE(feld->doubleValue(), 99.96);
}

void TestTextfeld::aHiddenFieldKeepsItsPlace()
{
    QWidget fenster;
    auto *anordnung = new QVBoxLayout(&fenster);
    auto *oben = new Textfeld;
    auto *unten = new Textfeld;
    anordnung->addWidget(oben);
    anordnung->addWidget(unten);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    const QPoint vorher = unten->pos();
    oben->hide();
    QCoreApplication::processEvents();
    QCOMPARE(unten->pos(), vorher);
}

void TestTextfeld::theVerdictFollowsTheTheme()
{
    const QPalette vorher = QGuiApplication::palette();
    QWidget fenster;
    auto *feld = new Textfeld(&fenster);
    feld->setTextColor(Textfarbe::Rot);
    QPalette hell = vorher;
    hell.setColor(QPalette::Window, Qt::white);
    QGuiApplication::setPalette(hell);
    QTRY_COMPARE(feld->palette().color(QPalette::Text), farbeFuer(Textfarbe::Rot, hell));
    QPalette dunkel = vorher;
    dunkel.setColor(QPalette::Window, Qt::black);
    QGuiApplication::setPalette(dunkel);
    QTRY_COMPARE(feld->palette().color(QPalette::Text), farbeFuer(Textfarbe::Rot, dunkel));
    QVERIFY(farbeFuer(Textfarbe::Rot, hell) != farbeFuer(Textfarbe::Rot, dunkel));
    feld->setTextColor(Textfarbe::Standard);
    QCOMPARE(feld->textColor(), Textfarbe::Standard);
    QGuiApplication::setPalette(vorher);
}

void TestTextfeld::aTextIsShownInTheWindowsLanguage()
{
    class Woerterbuch : public QTranslator
    {
    public:
        QString translate(const char *context, const char *sourceText, const char * /*unused*/,
                          int /*n*/) const override
        {
            const bool kennt =
                qstrcmp(context, "Mahlberg") == 0 && qstrcmp(sourceText, "Frau") == 0;
            return kennt ? QStringLiteral("Woman") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Woerterbuch woerterbuch;
    QCoreApplication::installTranslator(&woerterbuch);
    Textfeld feld;
    feld.setStringValue(QStringLiteral("Frau"));
    QTRY_COMPARE(feld.text(), QStringLiteral("Frau"));
    feld.setUebersetzt(true);
    QTRY_COMPARE(feld.text(), QStringLiteral("Woman"));
    QCOMPARE(feld.stringValue(), QStringLiteral("Frau"));
    feld.setStringValue(QStringLiteral("Mann"));
    QTRY_COMPARE(feld.text(), QStringLiteral("Mann")); // no translation: as it stands
    feld.setIntValue(3);
    QTRY_COMPARE(feld.text(), QStringLiteral("3"));
}

QTEST_MAIN(TestTextfeld)
#include "TestTextfeld.moc"
