#include "Planurteil.h"

#include "Ampel.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestPlanurteil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsOfAFace();
};

void TestPlanurteil::wordsOfAFace()
{
    Planauswertung auswertung;
    auswertung.gesicht = Gesichtscode::lachend;
    QCOMPARE(planurteil(auswertung, false), u"Ein guter Plan"_s);
    auswertung.gesicht = Gesichtscode::neutral;
    QCOMPARE(planurteil(auswertung, false), u"Ein Plan mit Lücken"_s);
    auswertung.gesicht = Gesichtscode::weinend;
    QCOMPARE(planurteil(auswertung, false), u"Ein unausgewogener Plan"_s);
    QCOMPARE(planurteil(auswertung, true), u"Der Plan ist leer"_s);
}

QTEST_GUILESS_MAIN(TestPlanurteil)
#include "TestPlanurteil.moc"
