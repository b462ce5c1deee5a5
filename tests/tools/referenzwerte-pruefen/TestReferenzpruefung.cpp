// What is objected to in the reference values that ship.

#include "Beanstandungsworte.h"
#include "Referenzpruefung.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString seite = u"Text about | SGX | keys.\n\n| key | publication |\n|---|---|\n"
                      "| DGE-TOOL | One |\n| EFSA-UL11 | Two |\n"_s;

QStringList gemeldet(const QStringList &zeilen)
{
    const QString kopf =
        u"set;nutrient;sex;from;to;state;phase;pal;kind;unit;low;high;limit;keys;de;en\n"_s;
    const auto [gelesene, formfehler] =
        Referenzdatei::lesen((kopf + zeilen.join(u'\n') + u'\n').toUtf8());
    return inWorten(formfehler + Referenzpruefung::pruefen(gelesene, seite));
}

} // namespace

class TestReferenzpruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrongIsObjectedTo_data();
    void whatIsWrongIsObjectedTo();
};

void TestReferenzpruefung::whatIsWrongIsObjectedTo_data()
{
    QTest::addColumn<QStringList>("zeilen");
    QTest::addColumn<QStringList>("meldungen");
    const auto fall = [](const char *name, const QStringList &zeilen,
                         const QStringList &meldungen) {
        QTest::newRow(name) << zeilen << meldungen;
    };
    const QString gut = u"DACH;ca;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL EFSA-UL11;;"_s;
    fall("nothing", {gut}, {});
    fall("no publication", {u"DACH;ca;f;4;6;none;;;PRI;mg;6;6;;;;"_s},
         {u"2: The value names no publication [key]"_s});
    fall("an unknown publication", {u"DACH;ca;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL SGX;;"_s},
         {u"2: \"SGX\" is no publication of the page [key]"_s});
    fall("the same once more", {gut, gut},
         {u"3: Line 2 is for people of these ages as well [twice]"_s});
    fall("one year in both", {gut, u"DACH;ca;f;6;9;none;;;PRI;mg;7;7;;DGE-TOOL;;"_s},
         {u"3: Line 2 is for people of these ages as well [twice]"_s});
    fall("within another",
         {u"DACH;ca;f;4;;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s,
          u"DACH;ca;f;60;64;none;;;AI;mg;7;7;;DGE-TOOL;;"_s},
         {u"3: Line 2 is for people of these ages as well [twice]"_s});
    fall("two kinds of value", {gut, u"DACH;ca;f;4;6;none;;;AI;mg;7;7;;DGE-TOOL;;"_s},
         {u"3: Line 2 is for people of these ages as well [twice]"_s});
    fall("ages out of order", {gut, u"DACH;ca;f;1;3;none;;;PRI;mg;7;7;;DGE-TOOL;;"_s},
         {u"3: The ages from 1 stand behind those of line 2 [ages]"_s});
    fall("the years that follow", {gut, u"DACH;ca;f;7;9;none;;;PRI;mg;7;7;;DGE-TOOL;;"_s}, {});
    fall("a remark in German", {u"DACH;ca;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL;alt;"_s},
         {u"2: The remark stands in one language only [note]"_s});
    fall("a remark in English", {u"DACH;ca;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL;;old"_s},
         {u"2: The remark stands in one language only [note]"_s});
    fall("an unreadable line", {gut, u"DACH;ca;f;6;4;none;;;PRI;mg;7;7;;DGE-TOOL;;"_s},
         {u"3: The ages end at 4, before 6 [ages]"_s});
    for (const auto &[name, andere] :
         {std::pair{"another set", u"EFSA;ca;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"another nutrient", u"DACH;ma;f;4;6;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"another sex", u"DACH;ca;m;4;6;none;;;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"another state", u"DACH;ca;f;4;6;lactating;;;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"another phase", u"DACH;ca;f;4;6;none;after menopause;;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"another activity", u"DACH;ca;f;4;6;none;;1.4;PRI;mg;6;6;;DGE-TOOL;;"_s},
          {"an upper level", u"DACH;ca;f;4;6;none;;;UL;mg;6;6;;DGE-TOOL;;"_s}}) {
        fall(name, {gut, andere}, {});
    }
    fall("for each kilogram and for one weight",
         {u"DACH;protein;f;4;6;none;;;PRI;g/kg;1;1;;DGE-TOOL;;"_s,
          u"DACH;protein;f;4;6;none;;;PRI;g;14;14;reference weight;DGE-TOOL;;"_s},
         {});
}

void TestReferenzpruefung::whatIsWrongIsObjectedTo()
{
    QFETCH(const QStringList, zeilen);
    QFETCH(const QStringList, meldungen);
    QCOMPARE(gemeldet(zeilen), meldungen);
}

QTEST_APPLESS_MAIN(TestReferenzpruefung)
#include "TestReferenzpruefung.moc"
