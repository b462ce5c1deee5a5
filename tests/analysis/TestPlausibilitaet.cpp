#include "Plausibilitaet.h"

#include <QTest>

using enum Naehrwert;

/// What is questioned about the figures of a food that was typed in.
class TestPlausibilitaet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresThatAgreeAreNotQuestioned_data();
    void figuresThatAgreeAreNotQuestioned();
    void energyIsComparedWithTheNutrients_data();
    void energyIsComparedWithTheNutrients();
    void partsAreWeighed_data();
    void partsAreWeighed();
    void sodiumIsTakenForSalt_data();
    void sodiumIsTakenForSalt();
    void severalDoubtsStandTogether();
};

namespace {

using Wertliste = QList<std::pair<Naehrwert, float>>;

QList<Bedenken> bedenken(const Wertliste &werte)
{
    Datenmodul lebensmittel;
    for (const auto &[wert, zahl] : werte) {
        lebensmittel.setWert(wert, zahl);
    }
    return bezweifeln(lebensmittel);
}

} // namespace

void TestPlausibilitaet::figuresThatAgreeAreNotQuestioned_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::newRow("nothing typed") << Wertliste{};
    QTest::newRow("energy alone") << Wertliste{{kal, 300}};
    QTest::newRow("energy alone, more than alcohol has") << Wertliste{{kal, 900}};
    QTest::newRow("bread") << Wertliste{{kal, 244}, {protein, 8}, {fett, 1.5F}, {kh, 46}, {bs, 6}};
    QTest::newRow("oil") << Wertliste{{kal, 900}, {fett, 100}};
    QTest::newRow("rounded by a label") // 4 * 10 + 9 * 10 + 4 * 50 = 330
        << Wertliste{{kal, 355}, {protein, 10}, {fett, 10}, {kh, 50}};
    QTest::newRow("rounded down by a label") // 400 - 10 - 0.05 * 400 is 370
        << Wertliste{{kal, 370}, {kh, 100}};
    QTest::newRow("beer with as much protein as a drink has")
        << Wertliste{{kal, 77}, {protein, 2}, {kh, 1.5F}};
    QTest::newRow("white wine") << Wertliste{{kal, 77}, {protein, 0.1F}, {kh, 1.5F}};
    QTest::newRow("spirit with sugar") << Wertliste{{kal, 320}, {kh, 30}};
    QTest::newRow("parts rounded up") << Wertliste{{kal, 408}, {kh, 102}};
    QTest::newRow("table salt") << Wertliste{{na, 39900}};
    QTest::newRow("little sodium") << Wertliste{{kal, 52}, {kh, 13}, {na, 1}};
    QTest::newRow("an analysis of sodium") << Wertliste{{na, 1.5F}, {ka, 120}};
    QTest::newRow("a fraction of much sodium") << Wertliste{{na, 10.5F}};
    QTest::newRow("ham") << Wertliste{{kal, 119}, {protein, 20}, {fett, 4}, {na, 1180}};
}

void TestPlausibilitaet::figuresThatAgreeAreNotQuestioned()
{
    QFETCH(Wertliste, werte);
    QVERIFY(bedenken(werte).isEmpty());
}

void TestPlausibilitaet::energyIsComparedWithTheNutrients_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::addColumn<Zweifel>("zweifel");
    QTest::addColumn<double>("errechnet");
    QTest::newRow("too little")
        << Wertliste{{kal, 300}, {protein, 20}, {fett, 20}, {kh, 35}, {bs, 5}}
        << Zweifel::EnergieZuKlein << 410.0;
    QTest::newRow("none") << Wertliste{{kh, 50}} << Zweifel::EnergieZuKlein << 200.0;
    QTest::newRow("kilojoules for kilocalories")
        << Wertliste{{kal, 1046}, {protein, 10}, {fett, 10}, {kh, 30}} << Zweifel::EnergieZuGross
        << 250.0;
    QTest::newRow("forgotten fat")
        << Wertliste{{kal, 540}, {protein, 7}, {kh, 55}} << Zweifel::EnergieZuGross << 248.0;
    QTest::newRow("more than alcohol has room for")
        << Wertliste{{kal, 800}, {kh, 50}} << Zweifel::EnergieZuGross << 200.0;
    QTest::newRow("as much as alcohol has, in something to eat")
        << Wertliste{{kal, 250}, {protein, 3}} << Zweifel::EnergieZuGross << 12.0;
    QTest::newRow("just beyond rounding") // 330 + 10 + 0.05 * 358 is 357.9
        << Wertliste{{kal, 358}, {protein, 10}, {fett, 10}, {kh, 50}} << Zweifel::EnergieZuGross
        << 330.0;
}

void TestPlausibilitaet::energyIsComparedWithTheNutrients()
{
    QFETCH(Wertliste, werte);
    const QList<Bedenken> alle = bedenken(werte);
    QCOMPARE(alle.size(), 1);
    QTEST(alle[0].zweifel, "zweifel");
    const bool genannt = werte[0].first == kal;
    QCOMPARE(alle[0].angegeben, genannt ? static_cast<double>(werte[0].second) : 0.0);
    QTEST(alle[0].errechnet, "errechnet");
}

void TestPlausibilitaet::partsAreWeighed_data()
{
    QTest::addColumn<float>("ballaststoffe");
    QTest::addColumn<bool>("zuviel");
    QTest::newRow("what rounding makes") << 12.0F << false;
    QTest::newRow("more") << 12.5F << true;
}

void TestPlausibilitaet::partsAreWeighed()
{
    QFETCH(float, ballaststoffe);
    QFETCH(bool, zuviel);
    const float energie = 30 * 4 + 20 * 9 + 40 * 4 + ballaststoffe * 2;
    const QList<Bedenken> alle =
        bedenken({{kal, energie}, {protein, 30}, {fett, 20}, {kh, 40}, {bs, ballaststoffe}});
    QCOMPARE(alle.size(), zuviel ? 1 : 0);
    if (zuviel) {
        QCOMPARE(alle[0].zweifel, Zweifel::Ueber100Gramm);
        QCOMPARE(alle[0].angegeben, 102.5);
        QCOMPARE(alle[0].errechnet, 100.0);
    }
}

void TestPlausibilitaet::sodiumIsTakenForSalt_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::addColumn<Zweifel>("zweifel");
    QTest::addColumn<double>("errechnet");
    QTest::newRow("more than any salt has")
        << Wertliste{{na, 50000}} << Zweifel::NatriumZuGross << 125.0;
    QTest::newRow("no room beside the sugar")
        << Wertliste{{na, 10000}, {kal, 360}, {kh, 90}} << Zweifel::NatriumZuGross << 25.0;
    QTest::newRow("the salt of a label")
        << Wertliste{{na, 1.25F}, {kal, 52}, {kh, 13}} << Zweifel::SalzStattNatrium << 500.0;
}

void TestPlausibilitaet::sodiumIsTakenForSalt()
{
    QFETCH(Wertliste, werte);
    const QList<Bedenken> alle = bedenken(werte);
    QCOMPARE(alle.size(), 1);
    QTEST(alle[0].zweifel, "zweifel");
    QCOMPARE(alle[0].angegeben, static_cast<double>(werte[0].second));
    QFETCH(double, errechnet);
    QVERIFY(qAbs(alle[0].errechnet - errechnet) < 0.001);
}

void TestPlausibilitaet::severalDoubtsStandTogether()
{
    const QList<Bedenken> alle = bedenken({{kal, 100}, {fett, 80}, {kh, 40}, {na, 0.8F}});
    QCOMPARE(alle.size(), 3);
    QCOMPARE(alle[0].zweifel, Zweifel::EnergieZuKlein);
    QCOMPARE(alle[1].zweifel, Zweifel::Ueber100Gramm);
    QCOMPARE(alle[2].zweifel, Zweifel::SalzStattNatrium);
}

QTEST_MAIN(TestPlausibilitaet)
#include "TestPlausibilitaet.moc"
