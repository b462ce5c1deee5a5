// Which of several foods is marked as the better one.

#include "Vergleich.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using enum Bezugswert::Stand;

class TestVergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allFiguresStandInTheirOrder();
    void theBetterFigureIsMarked_data();
    void theBetterFigureIsMarked();
    void whatLooksTheSameIsTheSame_data();
    void whatLooksTheSameIsTheSame();
    void theBasisCounts();
    void whatADishMayHoldMoreOfIsNoBetter_data();
    void whatADishMayHoldMoreOfIsNoBetter();
    void nothingIsCompared();
};

namespace {

/// Own foods: a 0 is unknown, but for energy.
QList<Kandidat> mit(Naehrwert wert, const QList<float> &zahlen)
{
    QList<Kandidat> alle;
    for (const float zahl : zahlen) {
        Kandidat einer{.schluessel = QString(QChar(u'a' + static_cast<char16_t>(alle.size()))),
                       .satz = {},
                       .eigen = true};
        einer.satz.setkal(100);
        einer.satz.setWert(wert, zahl);
        alle << einer;
    }
    return alle;
}

/// The marks of one row as signs: "x" is better.
QString marken(const QList<Kandidat> &alle, Kenngroesse groesse, Bezug bezug = Bezug::Je100g,
               const Stoffwissen &wissen = Stoffwissen())
{
    QString text;
    const QList<Vergleichsreihe> reihen = vergleiche(alle, bezug, wissen);
    for (const Vergleichszahl &eine : reihen.at(static_cast<qsizetype>(stelle(groesse))).zahlen) {
        text += eine.besser ? u'x' : u'.';
    }
    return text;
}

} // namespace

void TestVergleich::allFiguresStandInTheirOrder()
{
    const QList<Vergleichsreihe> reihen =
        vergleiche(mit(Naehrwert::bs, {3, 0}), Bezug::Je100g, Stoffwissen());
    QCOMPARE(reihen.size(), qsizetype(anzahlKenngroessen));
    for (qsizetype i = 0; i < reihen.size(); ++i) {
        QCOMPARE(stelle(reihen[i].groesse), static_cast<std::size_t>(i));
        QCOMPARE(reihen[i].zahlen.size(), 2);
    }
    const Vergleichsreihe &ballaststoffe = reihen[static_cast<qsizetype>(stelle(Kenngroesse::bs))];
    QCOMPARE(ballaststoffe.zahlen[0].wert, (Bezugswert{Bekannt, 3}));
    QCOMPARE(ballaststoffe.zahlen[1].wert, (Bezugswert{OhneAngabe, 0}));
}

void TestVergleich::theBetterFigureIsMarked_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<QList<float>>("zahlen");
    QTest::addColumn<QString>("besser");

    using Zahlen = QList<float>;
    QTest::newRow("more fibre") << Naehrwert::bs << Zahlen{3, 5, 4} << u".x."_s;
    QTest::newRow("less sodium") << Naehrwert::na << Zahlen{300, 500, 400} << u"x.."_s;
    QTest::newRow("energy has no direction") << Naehrwert::kal << Zahlen{300, 500} << u".."_s;
    QTest::newRow("both best") << Naehrwert::bs << Zahlen{5, 3, 5} << u"x.x"_s;
    QTest::newRow("both worst") << Naehrwert::bs << Zahlen{3, 5, 3} << u".x."_s;
    QTest::newRow("all equal") << Naehrwert::bs << Zahlen{5, 5, 5} << u"..."_s;
    QTest::newRow("the unknown is not the least")
        << Naehrwert::na << Zahlen{0, 500, 400} << u"..x"_s;
    QTest::newRow("the unknown is no worse") << Naehrwert::bs << Zahlen{0, 5} << u".."_s;
    QTest::newRow("equal but for an unknown") << Naehrwert::bs << Zahlen{5, 0, 5} << u"..."_s;
    QTest::newRow("all unknown") << Naehrwert::bs << Zahlen{0, 0} << u".."_s;
    QTest::newRow("five") << Naehrwert::vitc << Zahlen{1, 2, 3, 4, 5} << u"....x"_s;
}

void TestVergleich::theBetterFigureIsMarked()
{
    QFETCH(const Naehrwert, wert);
    QFETCH(const QList<float>, zahlen);
    QTEST(marken(mit(wert, zahlen), kenngroesse(wert)), "besser");
}

/// Fibre has one digit on screen, vitamin B1 two; what would look like 0 has more.
void TestVergleich::whatLooksTheSameIsTheSame_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<QList<float>>("zahlen");
    QTest::addColumn<QString>("besser");

    using Zahlen = QList<float>;
    QTest::newRow("3.41 and 3.44") << Naehrwert::bs << Zahlen{3.41F, 3.44F} << u".."_s;
    QTest::newRow("3.44 and 3.46") << Naehrwert::bs << Zahlen{3.44F, 3.46F} << u".x"_s;
    QTest::newRow("both best") << Naehrwert::bs << Zahlen{3.41F, 3.44F, 1} << u"xx."_s;
    QTest::newRow("3.41 and 3.44 mg") << Naehrwert::b1 << Zahlen{3.41F, 3.44F} << u".x"_s;
    QTest::newRow("0.001 and 0.002 mg") << Naehrwert::b1 << Zahlen{0.001F, 0.002F} << u".x"_s;
    QTest::newRow("0.4 and 0.3 mg sodium") << Naehrwert::na << Zahlen{0.4F, 0.3F} << u".x"_s;
}

void TestVergleich::whatLooksTheSameIsTheSame()
{
    QFETCH(const Naehrwert, wert);
    QFETCH(const QList<float>, zahlen);
    QTEST(marken(mit(wert, zahlen), kenngroesse(wert)), "besser");
}

/// In 100 g the second holds more fibre, in a portion the first; 100 kcal hold 6 and 5 g.
void TestVergleich::theBasisCounts()
{
    QList<Kandidat> beide = mit(Naehrwert::bs, {3, 5});
    beide[0].portion = 100; // 3 g
    beide[1].portion = 40;  // 2 g
    beide[0].satz.setkal(50);
    QCOMPARE(marken(beide, Kenngroesse::bs), u".x"_s);
    QCOMPARE(marken(beide, Kenngroesse::bs, Bezug::JePortion), u"x."_s);
    QCOMPARE(marken(beide, Kenngroesse::bs, Bezug::Je100kcal), u"x."_s);
}

void TestVergleich::whatADishMayHoldMoreOfIsNoBetter_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<float>("zahl");
    QTest::addColumn<QString>("besser");

    // The second holds at least 5.
    QTest::newRow("less fibre than it has surely") << Kenngroesse::bs << 4.0F << u".."_s;
    QTest::newRow("more fibre than is known of it") << Kenngroesse::bs << 6.0F << u"x."_s;
    QTest::newRow("less sodium than it has surely") << Kenngroesse::na << 4.0F << u"x."_s;
    QTest::newRow("more sodium than is known of it") << Kenngroesse::na << 6.0F << u".."_s;
}

void TestVergleich::whatADishMayHoldMoreOfIsNoBetter()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const float, zahl);
    Stoffwissen wissen;
    Rezeptangaben angaben = {};
    angaben[stelle(groesse)] = {5, 0.1};
    wissen.setzeRezepte({{u"b"_s, angaben}});
    QTEST(marken(mit(*naehrwert(groesse), {zahl, 5}), groesse, Bezug::Je100g, wissen), "besser");
}

void TestVergleich::nothingIsCompared()
{
    for (const Vergleichsreihe &eine : vergleiche({}, Bezug::Je100g, Stoffwissen())) {
        QCOMPARE(eine.zahlen.size(), 0);
    }
}

QTEST_APPLESS_MAIN(TestVergleich)
#include "TestVergleich.moc"
