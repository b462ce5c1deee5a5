#include "Zaehlfeld.h"

#include <QAccessible>
#include <QApplication>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;

class TestZaehlfeld : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atFirstItShowsNone();
    void aCountIsReadAsPlainText();
    void onlyTheFirstDigitStandsOut();
    void theLooksOutliveTheCount();
    void theColourFollowsTheTheme();
    void aTextIsShownAsItIs();
};

namespace {

/// What someone reads who can't see the field.
QString vorgelesen(Zaehlfeld &feld)
{
    QCoreApplication::processEvents();
    return QAccessible::queryAccessibleInterface(&feld)->text(QAccessible::Name);
}

} // namespace

void TestZaehlfeld::atFirstItShowsNone()
{
    Zaehlfeld feld;
    QCOMPARE(feld.intValue(), 0);
    QCOMPARE(vorgelesen(feld), u"0"_s);
    QCOMPARE(feld.anfangspunkte(), 0);
}

void TestZaehlfeld::aCountIsReadAsPlainText()
{
    Zaehlfeld feld;
    feld.setIntValue(12);
    feld.setAnfang(Textfarbe::Gruen, 11);
    QCOMPARE(vorgelesen(feld), u"12"_s);
}

void TestZaehlfeld::onlyTheFirstDigitStandsOut()
{
    Zaehlfeld feld;
    feld.setIntValue(12);
    feld.setAnfang(Textfarbe::Rot, 12);
    QCoreApplication::processEvents();
    const QString rot = farbeFuer(Textfarbe::Rot, feld.palette()).name();
    QCOMPARE(feld.text(), u"<span style='color:%1;font-size:12pt'>1</span>2"_s.arg(rot));
    QCOMPARE(feld.anfangsfarbe(), Textfarbe::Rot);
    QCOMPARE(feld.anfangspunkte(), 12);
}

void TestZaehlfeld::theLooksOutliveTheCount()
{
    Zaehlfeld feld;
    feld.setAnfang(Textfarbe::Blau, 12);
    feld.setIntValue(3);
    feld.setIntValue(0);
    QCoreApplication::processEvents();
    QVERIFY(feld.text().contains(u">0</span>"_s));
    QVERIFY(feld.text().contains(farbeFuer(Textfarbe::Blau, feld.palette()).name()));
}

void TestZaehlfeld::theColourFollowsTheTheme()
{
    Zaehlfeld feld;
    feld.setAnfang(Textfarbe::Gruen, 11);
    QCoreApplication::processEvents();
    const QString hell = feld.text();
    QPalette dunkel = feld.palette();
    dunkel.setColor(QPalette::Window, Qt::black);
    feld.setPalette(dunkel);
    QCoreApplication::processEvents();
    QVERIFY(feld.text() != hell);
}

void TestZaehlfeld::aTextIsShownAsItIs()
{
    Zaehlfeld feld;
    feld.setStringValue(u"<b>&"_s);
    QCOMPARE(vorgelesen(feld), u"<b>&"_s);
    feld.setAnfang(Textfarbe::Rot, 12);
    QCOMPARE(vorgelesen(feld), u"<b>&"_s);
    feld.setStringValue({});
    QCOMPARE(vorgelesen(feld), QString());
}

QTEST_MAIN(TestZaehlfeld)
#include "TestZaehlfeld.moc"
