// What a sport is called.

#include "Sportworte.h"

#include "Aktenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestSportworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSportIsCalledAsTheWindowsSpeak_data();
    void aSportIsCalledAsTheWindowsSpeak();
};

void TestSportworte::aSportIsCalledAsTheWindowsSpeak_data()
{
    QTest::addColumn<QString>("sport");
    QTest::addColumn<QString>("deutsch");
    QTest::addColumn<QString>("englisch");
    QTest::newRow("with two names") << u"Radfahren"_s << u"Radfahren"_s << u"bicycling"_s;
    QTest::newRow("with one name") << u"Tennis"_s << u"Tennis"_s << u"Tennis"_s;
    QTest::newRow("of no table") << u"Quidditch"_s << u"Quidditch"_s << u"Quidditch"_s;
    QTest::newRow("none") << QString() << u"kein Sport"_s << u"no sport"_s;
}

void TestSportworte::aSportIsCalledAsTheWindowsSpeak()
{
    QFETCH(const QString, sport);
    const Probesprache deutsch(QLocale::German);
    QTEST(sportworte(sport), "deutsch");
    const Probesprache englisch(QLocale::English);
    QTEST(sportworte(sport), "englisch");
}

QTEST_GUILESS_MAIN(TestSportworte)
#include "TestSportworte.moc"
