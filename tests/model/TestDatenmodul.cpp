#include "Datenmodul.h"

#include <QTest>

#include <limits>

class TestDatenmodul : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshRecordIsEmpty();
    void namedAccessorsReachTheirOwnValue_data();
    void namedAccessorsReachTheirOwnValue();
    void valuesAreHeldAsTheyAre_data();
    void valuesAreHeldAsTheyAre();
    void textsAreHeldWithoutACheck();
    void aTextSetToItselfStaysValid();
    void theTablesFollowTheEnumerations();
};

namespace {

using Lesen = float (Datenmodul::*)() const;
using Setzen = void (Datenmodul::*)(float);

} // namespace

void TestDatenmodul::aFreshRecordIsEmpty()
{
    const Datenmodul frisch;
    QVERIFY(frisch.name().isNull());
    QCOMPARE(frisch.joule, 0.0F);
    for (const auto &zeile : naehrwerte) {
        QCOMPARE(frisch.wert(zeile.wert), 0.0F);
    }
    for (const auto &zeile : wertungen) {
        QVERIFY(frisch.wertung(zeile.wertung).isNull());
    }
}

void TestDatenmodul::namedAccessorsReachTheirOwnValue_data()
{
    QTest::addColumn<int>("index");
    for (const auto &zeile : naehrwerte) {
        QTest::newRow(zeile.kennung) << static_cast<int>(stelle(zeile.wert));
    }
}

void TestDatenmodul::namedAccessorsReachTheirOwnValue()
{
    // Written out once more on purpose: this list fixes the order of the record.
    static const std::array<std::pair<Lesen, Setzen>, 17> zugriffe = {{
        {&Datenmodul::kal, &Datenmodul::setkal},
        {&Datenmodul::protein, &Datenmodul::setprotein},
        {&Datenmodul::fett, &Datenmodul::setfett},
        {&Datenmodul::kh, &Datenmodul::setkh},
        {&Datenmodul::bs, &Datenmodul::setbs},
        {&Datenmodul::chol, &Datenmodul::setchol},
        {&Datenmodul::na, &Datenmodul::setna},
        {&Datenmodul::ka, &Datenmodul::setka},
        {&Datenmodul::ca, &Datenmodul::setca},
        {&Datenmodul::ph, &Datenmodul::setph},
        {&Datenmodul::ma, &Datenmodul::setma},
        {&Datenmodul::fe, &Datenmodul::setfe},
        {&Datenmodul::vita, &Datenmodul::setvita},
        {&Datenmodul::b1, &Datenmodul::setb1},
        {&Datenmodul::b2, &Datenmodul::setb2},
        {&Datenmodul::b6, &Datenmodul::setb6},
        {&Datenmodul::vitc, &Datenmodul::setvitc},
    }};
    QFETCH(int, index);
    const auto [lesen, setzen] = zugriffe.at(static_cast<std::size_t>(index));

    Datenmodul food;
    (food.*setzen)(12.5F);
    QCOMPARE((food.*lesen)(), 12.5F);
    for (const auto &zeile : naehrwerte) {
        const bool gesetzt = static_cast<int>(stelle(zeile.wert)) == index;
        QCOMPARE(food.wert(zeile.wert), gesetzt ? 12.5F : 0.0F);
    }
}

void TestDatenmodul::valuesAreHeldAsTheyAre_data()
{
    QTest::addColumn<float>("zahl");
    QTest::newRow("not rounded") << 0.123456789F;
    QTest::newRow("negative accepted") << -3.5F;
    QTest::newRow("smallest") << std::numeric_limits<float>::denorm_min();
    QTest::newRow("largest") << std::numeric_limits<float>::max();
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
}

void TestDatenmodul::valuesAreHeldAsTheyAre()
{
    QFETCH(float, zahl);
    Datenmodul food;
    food.setfe(zahl);
    QVERIFY(food.fe() == zahl);
}

void TestDatenmodul::textsAreHeldWithoutACheck()
{
    Datenmodul food;
    food.setName(QStringLiteral("Müsli"));
    food.setuebergewicht(QStringLiteral("+"));
    food.setdiabetes(QStringLiteral("gut"));
    food.setgicht(QString());
    food.sethkk(QLatin1String(""));
    QCOMPARE(food.name(), QStringLiteral("Müsli"));
    QCOMPARE(food.uebergewicht(), QStringLiteral("+"));
    QCOMPARE(food.diabetes(), QStringLiteral("gut"));
    QVERIFY(food.gicht().isNull());
    QVERIFY(food.hkk().isEmpty() && !food.hkk().isNull());
    food.setuebergewicht(QString());
    QVERIFY(food.uebergewicht().isNull());
}

void TestDatenmodul::aTextSetToItselfStaysValid()
{
    Datenmodul food;
    food.setName(QStringLiteral("Ei"));
    food.setName(food.name());
    QCOMPARE(food.name(), QStringLiteral("Ei"));
    food.sethkk(QStringLiteral("0"));
    food.sethkk(food.hkk());
    QCOMPARE(food.hkk(), QStringLiteral("0"));
}

void TestDatenmodul::theTablesFollowTheEnumerations()
{
    for (std::size_t i = 0; i < naehrwerte.size(); ++i) {
        QCOMPARE(stelle(naehrwerte[i].wert), i);
    }
    for (std::size_t i = 0; i < wertungen.size(); ++i) {
        QCOMPARE(stelle(wertungen[i].wertung), i);
    }
    QCOMPARE(einheitszeichen(beschreibung(Naehrwert::vita).einheit), QStringLiteral("µg"));
    QCOMPARE(einheitszeichen(beschreibung(Naehrwert::kal).einheit), QStringLiteral("kcal"));
    QCOMPARE(einheitszeichen(beschreibung(Naehrwert::bs).einheit), QStringLiteral("g"));
    QCOMPARE(einheitszeichen(beschreibung(Naehrwert::b6).einheit), QStringLiteral("mg"));
}

QTEST_GUILESS_MAIN(TestDatenmodul)
#include "TestDatenmodul.moc"
