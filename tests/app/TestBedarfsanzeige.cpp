#include "Probefenster.h"

#include <QTest>

#include <limits>

using enum Naehrwert;

/// How the food on display covers the needs of a day: twelve percentages, and one judgement.
class TestBedarfsanzeige : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyNeedHasItsField();
    void percentagesAreTruncated_data();
    void percentagesAreTruncated();
    void theColoursGoDownTheRows_data();
    void theColoursGoDownTheRows();
    void sevenValuesMakeAJudgement_data();
    void sevenValuesMakeAJudgement();
    void theJudgementHasThreeBands_data();
    void theJudgementHasThreeBands();
    void atExactly45TheBoxAndTheBarStay_data();
    void atExactly45TheBoxAndTheBarStay();
    void withoutAJudgementTheBarKeepsItsColour();
    void vitaminACountsAThousandth_data();
    void vitaminACountsAThousandth();
    void theJudgementIsThatOf100Kilocalories_data();
    void theJudgementIsThatOf100Kilocalories();
    void onlyAJudgementWithoutEnergySaysNothing_data();
    void onlyAJudgementWithoutEnergySaysNothing();
    void theJudgementFollowsTheAmount();
    void theBoxIsTranslated();

private:
    void zeige(const Wertliste &werte);
    QString farben() const;
    AppController &controller() const { return m_fenster->controller(); }
    QList<Textfeld *> felder() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// Six values at exactly 1 percent of a day, and none of calcium and the others.
const Wertliste sechsProzent = {{ma, 3.5F}, {bs, 0.3F}, {na, 5.5F}, {ka, 20}, {ph, 14}, {vitc, 1}};

Wertliste plus(Wertliste werte, const Wertliste &weitere)
{
    return werte << weitere;
}

} // namespace

void TestBedarfsanzeige::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(verzeichnis(
        {lebensmittel(QStringLiteral("Apfel")), lebensmittel(QStringLiteral("Speise"))}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestBedarfsanzeige::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// Puts these values into the food of row 1 and chooses it.
void TestBedarfsanzeige::zeige(const Wertliste &werte)
{
    const QString name = QStringLiteral("Speise");
    controller().Dictionary[name] = lebensmittel(name, werte);
    m_fenster->klicke(1, inName);
}

/// The twelve percentages' fields, in the order in which they are judged.
QList<Textfeld *> TestBedarfsanzeige::felder() const
{
    const AppController &c = controller();
    return {c.catagesbedarffeld, c.matagesbedarffeld, c.bstagesbedarffeld, c.natagesbedarffeld,
            c.katagesbedarffeld, c.phtagesbedarffeld, c.fetagesbedarffeld, c.vitatagesbedarffeld,
            c.b1tagesbedarffeld, c.b2tagesbedarffeld, c.b6tagesbedarffeld, c.vitctagesbedarffeld};
}

QString TestBedarfsanzeige::farben() const
{
    QString alle;
    for (const Textfeld *feld : felder()) {
        alle += feld->textColor() == Textfarbe::Gruen ? QLatin1Char('g')
                : feld->textColor() == Textfarbe::Rot ? QLatin1Char('r')
                                                      : QLatin1Char('?');
    }
    return alle;
}

void TestBedarfsanzeige::everyNeedHasItsField()
{
    // 20, 21, ... 31 percent of what a day needs.
    zeige({{ca, 205},
           {ma, 74},
           {bs, 6.75F},
           {na, 129},
           {ka, 490},
           {ph, 357},
           {fe, 3.18F},
           {vita, 275},
           {b1, 0.342F},
           {b2, 0.472F},
           {b6, 0.5185F},
           {vitc, 31.5F}});
    for (int i = 0; i < 12; ++i) {
        QCOMPARE(felder()[i]->intValue(), 20 + i);
        QCOMPARE(Probefenster::text(*felder()[i]), QStringLiteral("%1 %").arg(20 + i));
    }
}

void TestBedarfsanzeige::percentagesAreTruncated_data()
{
    QTest::addColumn<float>("calcium");
    QTest::addColumn<int>("prozent");
    QTest::newRow("all of it") << 1000.0F << 100;
    QTest::newRow("almost all") << 999.9F << 99;
    QTest::newRow("more than a day") << 2345.0F << 234;
    QTest::newRow("less than a percent") << 9.9F << 0;
    QTest::newRow("towards zero from below") << -19.9F << -1;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
    QTest::newRow("endless") << std::numeric_limits<float>::infinity()
                             << std::numeric_limits<int>::max();
}

void TestBedarfsanzeige::percentagesAreTruncated()
{
    QFETCH(float, calcium);
    QFETCH(int, prozent);
    zeige({{ca, calcium}});
    QCOMPARE(controller().catagesbedarffeld->intValue(), prozent);
    QVERIFY(!controller().Hauptfenster->grab().isNull());
}

void TestBedarfsanzeige::theColoursGoDownTheRows_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::addColumn<QString>("farben");
    const auto zeile = [](const char *name, const Wertliste &werte, const char *farben) {
        QTest::newRow(name) << werte << QString::fromLatin1(farben);
    };
    zeile("nothing is red", {}, "rrrrrrrrrrrr");
    zeile("calcium at 9 percent", {{ca, 99.9F}}, "rrrrrrrrrrrr");
    zeile("calcium at 10 percent is green at once", {{ca, 100}}, "grrrrrrrrrrr");
    zeile("magnesium at 10 percent after red", {{ma, 35}}, "rrrrrrrrrrrr");
    zeile("magnesium at 10 percent after green", {{ca, 110}, {ma, 35}}, "ggrrrrrrrrrr");
    zeile("magnesium at 11 percent", {{ma, 38.6F}}, "rgrrrrrrrrrr");
    zeile("magnesium at 9 percent after green", {{ca, 110}, {ma, 34.9F}}, "grrrrrrrrrrr");
    zeile("green goes on over rows of exactly 10 percent",
          {{ca, 100}, {ma, 35}, {bs, 3}, {na, 55}, {ka, 200}, {ph, 140}, {fe, 1.2F}, {vita, 100}},
          "ggggggggrrrr");
    zeile("red goes on too",
          {{ma, 35}, {bs, 3}, {na, 55}, {ka, 200}, {ph, 140}, {fe, 1.2F}, {vita, 100}},
          "rrrrrrrrrrrr");
    zeile("a truncated 10 percent is exactly 10", {{ca, 110}, {ma, 38.4F}}, "ggrrrrrrrrrr");
    zeile("vitamin C at 10 percent takes the colour of vitamin B6", {{b6, 1.7F}, {vitc, 10}},
          "rrrrrrrrrrgg");
    zeile("the last one alone", {{vitc, 11}}, "rrrrrrrrrrrg");
}

void TestBedarfsanzeige::theColoursGoDownTheRows()
{
    QFETCH(Wertliste, werte);
    zeige(werte);
    QTEST(farben(), "farben");
}

void TestBedarfsanzeige::sevenValuesMakeAJudgement_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::addColumn<bool>("urteil");
    QTest::newRow("six") << sechsProzent << false;
    QTest::newRow("seven") << plus(sechsProzent, {{ca, 10}}) << true;
    QTest::newRow("the seventh is less than a percent")
        << plus(sechsProzent, {{ca, 9.9F}}) << false;
    QTest::newRow("the seventh is negative") << plus(sechsProzent, {{ca, -500}}) << false;
    QTest::newRow("the seventh is vitamin A") << plus(sechsProzent, {{vita, 10}}) << true;
    QTest::newRow("what has no need does not count")
        << plus(sechsProzent, {{protein, 50}, {fett, 50}, {kh, 50}, {chol, 50}}) << false;
    QTest::newRow("none") << Wertliste{} << false;
}

void TestBedarfsanzeige::sevenValuesMakeAJudgement()
{
    QFETCH(Wertliste, werte);
    QFETCH(bool, urteil);
    // The other case before.
    zeige(urteil ? Wertliste{} : plus(sechsProzent, {{kal, 100}, {ca, 900}}));
    zeige(plus(werte, {{kal, 100}}));
    QCOMPARE(!controller().gesamtbeurteilungfeld->isHidden(), urteil);
    QCOMPARE(controller().beurteilungbox->title() == QStringLiteral("keine Beurteilung möglich"),
             !urteil);
    QCOMPARE(controller().aview->value() > 0, urteil);
}

void TestBedarfsanzeige::theJudgementHasThreeBands_data()
{
    QTest::addColumn<float>("calcium"); // 10 for each percent
    QTest::addColumn<int>("wert");
    QTest::addColumn<Textfarbe>("farbe");
    QTest::addColumn<QString>("titel");
    QTest::addColumn<int>("code");
    const QString zwei = QStringLiteral("  ");
    const QString drei = QStringLiteral("   ");
    QTest::newRow("7 is bad") << 10.0F << 7 << Textfarbe::Rot << drei << 1;
    QTest::newRow("9 is bad") << 30.0F << 9 << Textfarbe::Rot << drei << 1;
    QTest::newRow("10 is middling") << 40.0F << 10 << Textfarbe::Blau << zwei << 2;
    QTest::newRow("44 is middling") << 380.0F << 44 << Textfarbe::Blau << zwei << 2;
    QTest::newRow("46 is good") << 400.0F << 46 << Textfarbe::Gruen << drei << 3;
    QTest::newRow("106 is good") << 1000.0F << 106 << Textfarbe::Gruen << drei << 3;
}

void TestBedarfsanzeige::theJudgementHasThreeBands()
{
    QFETCH(float, calcium);
    QFETCH(int, wert);
    QFETCH(Textfarbe, farbe);
    QFETCH(QString, titel);
    QFETCH(int, code);
    zeige(plus(sechsProzent, {{kal, 100}, {ca, calcium}}));
    QVERIFY(!controller().gesamtbeurteilungfeld->isHidden());
    QCOMPARE(controller().gesamtbeurteilungfeld->intValue(), wert);
    QVERIFY(controller().gesamtbeurteilungfeld->textColor() == farbe);
    QCOMPARE(controller().beurteilungbox->title(), titel);
    QCOMPARE(controller().aview->a(), code);
    const QColor farben[] = {{}, QColor(255, 0, 0), QColor(0, 0, 255), QColor(0, 255, 0)};
    QCOMPARE(controller().aview->color(), farben[code]);
    QCOMPARE(controller().aview->value(), static_cast<double>(std::min(wert, 100)));
}

void TestBedarfsanzeige::atExactly45TheBoxAndTheBarStay_data()
{
    QTest::addColumn<Wertliste>("vorher");
    QTest::addColumn<float>("vitaminC");
    QTest::addColumn<float>("calcium");
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QColor>("balken");
    QTest::addColumn<Textfarbe>("zahl");
    const QString zwei = QStringLiteral("  ");
    const QString drei = QStringLiteral("   ");
    QTest::newRow("after a middling food")
        << Wertliste{{ca, 200}} << 1.0F << 390.0F << zwei << QColor(0, 0, 255) << Textfarbe::Rot;
    QTest::newRow("after a good food")
        << Wertliste{{ca, 900}} << 1.0F << 390.0F << drei << QColor(0, 255, 0) << Textfarbe::Rot;
    QTest::newRow("after a bad food")
        << Wertliste{{ca, 10}} << 1.0F << 390.0F << drei << QColor(255, 0, 0) << Textfarbe::Rot;
    QTest::newRow("after none") << Wertliste{} << 1.0F << 390.0F
                                << QStringLiteral("keine Beurteilung möglich") << QColor(0, 0, 255)
                                << Textfarbe::Rot;
    QTest::newRow("the number has the colour of vitamin C")
        << Wertliste{{ca, 10}} << 11.0F << 290.0F << drei << QColor(255, 0, 0) << Textfarbe::Gruen;
}

void TestBedarfsanzeige::atExactly45TheBoxAndTheBarStay()
{
    QFETCH(Wertliste, vorher);
    QFETCH(float, vitaminC);
    QFETCH(float, calcium);
    QFETCH(QString, titel);
    QFETCH(QColor, balken);
    QFETCH(Textfarbe, zahl);
    zeige(plus(plus(sechsProzent, {{kal, 100}}), vorher));
    zeige(plus(sechsProzent, {{kal, 100}, {ca, calcium}, {vitc, vitaminC}}));
    QCOMPARE(controller().gesamtbeurteilungfeld->intValue(), 45);
    QVERIFY(!controller().gesamtbeurteilungfeld->isHidden());
    QVERIFY(controller().gesamtbeurteilungfeld->textColor() == zahl);
    QCOMPARE(controller().beurteilungbox->title(), titel);
    QCOMPARE(controller().aview->a(), 0);
    QCOMPARE(controller().aview->color(), balken);
    QCOMPARE(controller().aview->value(), 45.0);
}

void TestBedarfsanzeige::withoutAJudgementTheBarKeepsItsColour()
{
    zeige(plus(sechsProzent, {{kal, 100}, {ca, 900}}));
    QCOMPARE(controller().aview->color(), QColor(0, 255, 0));
    zeige({{kal, 100}, {ca, 900}});
    QCOMPARE(controller().aview->color(), QColor(0, 255, 0));
    QCOMPARE(controller().aview->a(), 3); // no code was given
    QCOMPARE(controller().aview->value(), 0.0);
    QVERIFY(controller().gesamtbeurteilungfeld->isHidden());
}

void TestBedarfsanzeige::vitaminACountsAThousandth_data()
{
    QTest::addColumn<float>("vitaminA");
    QTest::addColumn<int>("gezeigt");
    QTest::addColumn<int>("gesamt");
    QTest::newRow("a day's need adds nothing") << 1000.0F << 100 << 6;
    QTest::newRow("999 percent add nothing") << 9999.0F << 999 << 6;
    QTest::newRow("1000 percent add one") << 10000.0F << 1000 << 7;
    QTest::newRow("liver") << 39999.0F << 3999 << 9;
}

void TestBedarfsanzeige::vitaminACountsAThousandth()
{
    QFETCH(float, vitaminA);
    QFETCH(int, gezeigt);
    QFETCH(int, gesamt);
    zeige(plus(sechsProzent, {{kal, 100}, {vita, vitaminA}}));
    QCOMPARE(controller().vitatagesbedarffeld->intValue(), gezeigt);
    QCOMPARE(controller().gesamtbeurteilungfeld->intValue(), gesamt);
}

void TestBedarfsanzeige::theJudgementIsThatOf100Kilocalories_data()
{
    QTest::addColumn<float>("kilokalorien");
    QTest::addColumn<int>("gesamt"); // of 91 percent together
    QTest::addColumn<int>("code");
    QTest::newRow("no energy") << 0.0F << 0 << 1;
    QTest::newRow("99 kcal are none") << 99.0F << 0 << 1;
    QTest::newRow("100 kcal") << 100.0F << 91 << 3;
    QTest::newRow("199 kcal are one hundred") << 199.9F << 91 << 3;
    QTest::newRow("200 kcal; the half percent is dropped") << 200.0F << 45 << 0;
    QTest::newRow("300 kcal") << 300.0F << 30 << 2;
    QTest::newRow("1000 kcal") << 1000.0F << 9 << 1;
    QTest::newRow("-99 kcal are none") << -99.0F << 0 << 1;
    QTest::newRow("-300 kcal") << -300.0F << -30 << 1;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0 << 1;
}

void TestBedarfsanzeige::theJudgementIsThatOf100Kilocalories()
{
    QFETCH(float, kilokalorien);
    QFETCH(int, gesamt);
    QFETCH(int, code);
    zeige(plus(sechsProzent, {{kal, kilokalorien}, {ca, 850}}));
    QCOMPARE(controller().gesamtbeurteilungfeld->intValue(), gesamt);
    QCOMPARE(controller().aview->a(), code);
    QVERIFY(!controller().gesamtbeurteilungfeld->isHidden());
    QCOMPARE(!controller().zuWenigEnergie->isHidden(), gesamt == 0); // a 0 that is no verdict
    if (gesamt == 0) {
        QVERIFY(controller().gesamtbeurteilungfeld->textColor() == Textfarbe::Rot);
        QCOMPARE(controller().aview->value(), 0.0);
    }
}

/// What is no judgement anyway needs no word, and neither does a 0 that is one.
void TestBedarfsanzeige::onlyAJudgementWithoutEnergySaysNothing_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::newRow("six values at 99 kcal") << plus(sechsProzent, {{kal, 99}});
    QTest::newRow("seven percent at 800 kcal") << plus(sechsProzent, {{kal, 800}, {ca, 10}});
}

void TestBedarfsanzeige::onlyAJudgementWithoutEnergySaysNothing()
{
    QFETCH(Wertliste, werte);
    zeige(plus(sechsProzent, {{kal, 99}, {ca, 850}}));
    QVERIFY(!controller().zuWenigEnergie->isHidden());
    zeige(werte);
    QVERIFY(controller().zuWenigEnergie->isHidden());
}

void TestBedarfsanzeige::theJudgementFollowsTheAmount()
{
    zeige(plus(sechsProzent, {{kal, 100}, {ca, 850}}));
    m_fenster->tippeMenge(QStringLiteral("200"));
    QCOMPARE(controller().catagesbedarffeld->intValue(), 170);
    QCOMPARE(controller().gesamtbeurteilungfeld->intValue(), 91); // twice as much of both
    m_fenster->tippeMenge(QStringLiteral("50")); // 50 kcal, and one value above 0 is left
    QCOMPARE(controller().beurteilungbox->title(), QStringLiteral("keine Beurteilung möglich"));
    QVERIFY(controller().gesamtbeurteilungfeld->isHidden());
}

void TestBedarfsanzeige::theBoxIsTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("keine Beurteilung möglich"), QStringLiteral("no rating possible")}});
    zeige({});
    QCOMPARE(controller().beurteilungbox->title(), QStringLiteral("no rating possible"));
}

QTEST_MAIN(TestBedarfsanzeige)
#include "TestBedarfsanzeige.moc"
