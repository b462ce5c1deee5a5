#include "Pruefprogrammtest.h"

using namespace Qt::StringLiterals;

namespace {

const QString tabelle = QStringLiteral(REFERENZTABELLE);
const QString seite = QStringLiteral(REFERENZSEITE);

} // namespace

/// The program that checks the reference values, as the build and people call it.
class TestReferenzwertePruefen : public Pruefprogrammtest
{
    Q_OBJECT

public:
    TestReferenzwertePruefen() : Pruefprogrammtest(PRUEFEN, {}, {tabelle, seite}, 0) {}

private Q_SLOTS:
    void wrongUsageIsTold_data();
    void aMissingFileIsTold_data();
    void whatIsWrongIsToldWithItsLine_data();
};

void TestReferenzwertePruefen::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no page") << QStringList{tabelle};
    QTest::newRow("two pages") << QStringList{tabelle, seite, seite};
    QTest::newRow("help and more") << QStringList{u"--help"_s, tabelle, seite};
}

void TestReferenzwertePruefen::aMissingFileIsTold_data()
{
    QTest::addColumn<int>("stelle");
    QTest::newRow("values") << 0;
    QTest::newRow("page") << 1;
}

void TestReferenzwertePruefen::whatIsWrongIsToldWithItsLine_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<QString>("meldung");
    QTest::newRow("a word") << u"EFSA;ca;x;1;3;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s
                            << u"\"x\" is unknown (column sex) [format]"_s;
    QTest::newRow("ages") << u"EFSA;ca;m;3;1;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s
                          << u"The ages end at 1, before 3 [ages]"_s;
    QTest::newRow("a range") << u"EFSA;fett;m;1;3;none;;;RI;% of energy;6;5;;DGE-TOOL;;"_s
                             << u"The range ends at 5, before 6 [range]"_s;
    QTest::newRow("a key") << u"EFSA;bs;f;18;;pregnant;;;AI;g;6;6;;XYZ;;"_s
                           << u"\"XYZ\" is no publication of the page [key]"_s;
    QTest::newRow("a remark") << u"EFSA;bs;f;18;;pregnant;;;AI;g;6;6;;DGE-TOOL;alt;"_s
                              << u"The remark stands in one language only [note]"_s;
}

QTEST_GUILESS_MAIN(TestReferenzwertePruefen)
#include "TestReferenzwertePruefen.moc"
