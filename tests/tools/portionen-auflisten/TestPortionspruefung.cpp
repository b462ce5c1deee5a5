// What is objected to in the household measures that ship.

#include "Auskunftsprobe.h"
#include "Beanstandungsworte.h"
#include "Portionspruefung.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString seite = u"Text about | SGX | keys.\n\n| key | publication |\n|---|---|\n"
                      "| SGE | One |\n| DGE24-N | Two |\n| USDA-nnnnn | Three |\n"_s;

Tabelle toastUndZopf()
{
    return Tabellendatei::lesen(Auskunftsprobe::datei({Auskunftsprobe::zeile(u"Toast"_s, {}),
                                                       Auskunftsprobe::zeile(u"Zopf"_s, {}),
                                                       Auskunftsprobe::zeile(u"-"_s, {})}))
        .tabelle;
}

/// Measures of bread, each with the fields from "name" on.
QList<Portionszeile> portionen(const QStringList &zeilen)
{
    QString text = u"group;name;except;de;de_many;en;en_many;grams;keys;note\n"_s;
    for (const QString &zeile : zeilen) {
        text += u"Brot und Brötchen;"_s + zeile + u'\n';
    }
    return Portionendatei::lesen(text.toUtf8()).zeilen;
}

} // namespace

class TestPortionspruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokenMeasuresAreObjectedTo_data();
    void brokenMeasuresAreObjectedTo();
    void aFoodWithoutAMeasureIsObjectedToAtItsLine();
    void thePlaceholderNeedsNoMeasure();
};

void TestPortionspruefung::brokenMeasuresAreObjectedTo_data()
{
    QTest::addColumn<QStringList>("zeilen");
    QTest::addColumn<QStringList>("meldungen");
    const QString gut = u";;Scheibe;Scheiben;slice;slices;50;SGE DGE24-N USDA-12345;"_s;
    QTest::newRow("none") << QStringList{gut} << QStringList();
    QTest::newRow("of no food") << QStringList{gut, u"Brioche;;a;b;c;d;5;SGE;"_s}
                                << QStringList{u"3: No food has this measure [food]"_s};
    QTest::newRow("no key") << QStringList{u";;a;b;c;d;5;;"_s}
                            << QStringList{u"2: The measure names no publication [key]"_s};
    QTest::newRow("an unknown key")
        << QStringList{u";;a;b;c;d;5;SGE SGX;"_s}
        << QStringList{u"2: \"SGX\" is no publication of the page [key]"_s};
    QTest::newRow("a number of a food that is none")
        << QStringList{u";;a;b;c;d;5;USDA-1234;"_s}
        << QStringList{u"2: \"USDA-1234\" is no publication of the page [key]"_s};
    QTest::newRow("the same German name twice")
        << QStringList{u"Toast;;a;b;c;d;5;SGE;"_s, u"oast;;a;b;e;f;6;SGE;"_s}
        << QStringList{u"3: Toast: line 2 has a measure of this name (a, e) as well [twice]"_s};
    QTest::newRow("the same English name twice")
        << QStringList{u"Toast;;a;b;c;d;5;SGE;"_s, u"oast;;e;f;c;d;6;SGE;"_s}
        << QStringList{u"3: Toast: line 2 has a measure of this name (e, c) as well [twice]"_s};
    QTest::newRow("the same name twice behind another")
        << QStringList{u"Toast;;e;f;g;h;5;SGE;"_s, u"Toast;;i;j;k;l;5;SGE;"_s,
                       u"Toast;;a;b;c;d;5;SGE;"_s, u"oast;;a;b;e;f;6;SGE;"_s}
        << QStringList{u"5: Toast: line 4 has a measure of this name (a, e) as well [twice]"_s};
    QTest::newRow("a number of a food with more behind it")
        << QStringList{u";;a;b;c;d;5;USDA-123456;"_s}
        << QStringList{u"2: \"USDA-123456\" is no publication of the page [key]"_s};
    QTest::newRow("a number of a food with more before it")
        << QStringList{u";;a;b;c;d;5;XUSDA-12345;"_s}
        << QStringList{u"2: \"XUSDA-12345\" is no publication of the page [key]"_s};
    QTest::newRow("the same name for different foods")
        << QStringList{u"Toast;;a;b;c;d;5;SGE;"_s, u"Zopf;;a;b;c;d;6;SGE;"_s} << QStringList();
    QTest::newRow("the same name for a food and its group")
        << QStringList{u"Toast;;a;b;c;d;5;SGE;"_s, u";;a;b;c;d;6;SGE;"_s} << QStringList();
}

void TestPortionspruefung::brokenMeasuresAreObjectedTo()
{
    QFETCH(const QStringList, zeilen);
    QFETCH(const QStringList, meldungen);
    QCOMPARE(portionen(zeilen).size(), zeilen.size());
    QCOMPARE(inWorten(Portionspruefung::zeilenPruefen(portionen(zeilen), toastUndZopf().first(2),
                                                      seite)),
             meldungen);
}

void TestPortionspruefung::aFoodWithoutAMeasureIsObjectedToAtItsLine()
{
    const auto zeilen = portionen({u"Toast;;a;b;c;d;5;SGE;"_s});
    QCOMPARE(inWorten(Portionspruefung::lebensmittelPruefen(zeilen, toastUndZopf())),
             QStringList{u"3: Zopf has no measure [measure]"_s});
}

void TestPortionspruefung::thePlaceholderNeedsNoMeasure()
{
    const auto zeilen = portionen({u"Toast|Zopf;;a;b;c;d;5;SGE;"_s});
    QVERIFY(Portionspruefung::lebensmittelPruefen(zeilen, toastUndZopf()).isEmpty());
}

QTEST_APPLESS_MAIN(TestPortionspruefung)
#include "TestPortionspruefung.moc"
