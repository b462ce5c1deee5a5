#include "UeblichePortion.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestUeblichePortion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theUsualPortionIsFound_data();
    void theUsualPortionIsFound();
    void theMeasureIsGivenAsItIs();
};

void TestUeblichePortion::theUsualPortionIsFound_data()
{
    using Masse = QList<std::pair<QString, double>>;
    QTest::addColumn<Masse>("masse");
    QTest::addColumn<QString>("erwartet");

    QTest::newRow("none") << Masse() << QString();
    QTest::newRow("the first") << Masse{{u"Scheibe"_s, 60}, {u"Portion"_s, 80}} << u"Scheibe"_s;
    QTest::newRow("no spoons") << Masse{{u"EL"_s, 25}, {u"TL"_s, 30}, {u"Portion"_s, 80}}
                               << u"Portion"_s;
    QTest::newRow("no heaped spoons")
        << Masse{{u"gehäufter EL"_s, 50}, {u"Portion"_s, 80}} << u"Portion"_s;
    QTest::newRow("no spoons of the user's")
        << Masse{{u"Esslöffel"_s, 50}, {u"Löffel"_s, 30}} << QString();
    QTest::newRow("letters that a word ends with") << Masse{{u"BRÖTEL"_s, 50}} << u"BRÖTEL"_s;
    QTest::newRow("no leaf where there is a portion")
        << Masse{{u"Blatt"_s, 8}, {u"Portion"_s, 80}} << u"Portion"_s;
    QTest::newRow("a small piece alone") << Masse{{u"Stück"_s, 7.5}} << u"Stück"_s;
    QTest::newRow("no plate where there is a portion")
        << Masse{{u"Teller"_s, 450}, {u"Tasse"_s, 200}} << u"Tasse"_s;
    QTest::newRow("a plate alone") << Masse{{u"Teller"_s, 450}} << u"Teller"_s;
    QTest::newRow("20 g") << Masse{{u"a"_s, 19.9}, {u"b"_s, 20}} << u"b"_s;
    QTest::newRow("300 g") << Masse{{u"a"_s, 300.1}, {u"b"_s, 300}} << u"b"_s;
    QTest::newRow("5 g") << Masse{{u"a"_s, 4.9}, {u"b"_s, 5}} << u"b"_s;
    QTest::newRow("500 g") << Masse{{u"a"_s, 500.1}, {u"b"_s, 500}} << u"b"_s;
    QTest::newRow("nothing of a sensible size")
        << Masse{{u"ml"_s, 1}, {u"Kopf"_s, 900}} << QString();
}

void TestUeblichePortion::theUsualPortionIsFound()
{
    using Masse = QList<std::pair<QString, double>>;
    QFETCH(const Masse, masse);
    QFETCH(const QString, erwartet);
    QList<Mass> alle;
    for (const auto &[name, gramm] : masse) {
        alle.append({name, name, name, name, gramm});
    }
    const std::optional<Mass> portion = ueblichePortion(alle);
    QCOMPARE(portion ? portion->eines : QString(), erwartet);
}

void TestUeblichePortion::theMeasureIsGivenAsItIs()
{
    const Mass scheibe = {u"Scheibe"_s, u"Scheiben"_s, u"slice"_s, u"slices"_s, 50, {u"NETDOK"_s}};
    QCOMPARE(ueblichePortion({scheibe}), std::optional(scheibe));
}

QTEST_APPLESS_MAIN(TestUeblichePortion)
#include "TestUeblichePortion.moc"
