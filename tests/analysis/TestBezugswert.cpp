// What 100 g, 100 kcal and a portion hold, and when that is unknown.

#include "Bezugswert.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using enum Bezugswert::Stand;

class TestBezugswert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachBasisHasItsFigure_data();
    void eachBasisHasItsFigure();
    void whatNobodyKnowsHasNoFigure();
    void foodsWithoutEnergyHaveNoHundredKilocalories_data();
    void foodsWithoutEnergyHaveNoHundredKilocalories();
    void aPortionIsMoreThanNothing_data();
    void aPortionIsMoreThanNothing();
    void theUnknownCountsBeforeTheMissingPortion();
    void aDishHoldsAtLeastWhatIsKnown();
    void ofADishWithUnknownEnergyNothingIsKnownByEnergy();
    void aFigureThatRanOverIsNone();
    void numbersHaveSixDigits_data();
    void numbersHaveSixDigits();
    void figuresOfTheRecordAreTheTypedOnes();
    void eachFigureHasItsDirection_data();
    void eachFigureHasItsDirection();
    void eachSourceIsListed();

private:
    static Kandidat linsen();
};

namespace {

QString gelesen(const QString &seite)
{
    QFile datei(seite);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

/// The lines of the page's table: identifier, direction, source.
QList<QStringList> seitenzeilen()
{
    static const QRegularExpression form(
        u"^\\| `(\\w+)` \\| [^|]+ \\| (more|less|neither) \\| [^|]+ \\| (\\S+) \\|$"_s,
        QRegularExpression::MultilineOption);
    QList<QStringList> zeilen;
    auto treffer = form.globalMatch(gelesen(QStringLiteral(RANGSEITE)));
    while (treffer.hasNext()) {
        zeilen << treffer.next().capturedTexts().mid(1);
    }
    return zeilen;
}

} // namespace

/// 100 g have 300 kcal and 15 g of fibre, a portion weighs 60 g.
Kandidat TestBezugswert::linsen()
{
    Kandidat eine{.schluessel = u"Linsen"_s, .satz = {}, .eigen = true, .portion = 60};
    eine.satz.setkal(300);
    eine.satz.setbs(15);
    return eine;
}

void TestBezugswert::eachBasisHasItsFigure_data()
{
    QTest::addColumn<Bezug>("bezug");
    QTest::addColumn<double>("wert");

    QTest::newRow("100 g") << Bezug::Je100g << 15.0;
    QTest::newRow("100 kcal") << Bezug::Je100kcal << 5.0; // 33.3 g
    QTest::newRow("a portion") << Bezug::JePortion << 9.0;
}

void TestBezugswert::eachBasisHasItsFigure()
{
    QFETCH(const Bezug, bezug);
    QFETCH(const double, wert);
    QCOMPARE(bezugswert(linsen(), Kenngroesse::bs, bezug, Stoffwissen()),
             (Bezugswert{Bekannt, wert}));
}

void TestBezugswert::whatNobodyKnowsHasNoFigure()
{
    for (const Bezug bezug : {Bezug::Je100g, Bezug::Je100kcal, Bezug::JePortion}) {
        QCOMPARE(bezugswert(linsen(), Kenngroesse::fe, bezug, Stoffwissen()),
                 (Bezugswert{OhneAngabe, 0}));
    }
}

void TestBezugswert::foodsWithoutEnergyHaveNoHundredKilocalories_data()
{
    QTest::addColumn<float>("kal");
    QTest::addColumn<Bezugswert>("wert");

    QTest::newRow("none") << 0.0F << Bezugswert{OhneAngabe, 0};
    QTest::newRow("below none") << -1.0F << Bezugswert{OhneAngabe, 0};
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN()
                               << Bezugswert{OhneAngabe, 0};
    QTest::newRow("hardly any") << 0.5F << Bezugswert{Bekannt, 3000}; // 20 kg
}

void TestBezugswert::foodsWithoutEnergyHaveNoHundredKilocalories()
{
    QFETCH(const float, kal);
    Kandidat eine = linsen();
    eine.satz.setkal(kal);
    QTEST(bezugswert(eine, Kenngroesse::bs, Bezug::Je100kcal, Stoffwissen()), "wert");
}

void TestBezugswert::aPortionIsMoreThanNothing_data()
{
    QTest::addColumn<std::optional<double>>("portion");
    QTest::addColumn<Bezugswert>("wert");

    QTest::newRow("absent") << std::optional<double>() << Bezugswert{OhnePortion, 0};
    QTest::newRow("0 g") << std::optional(0.0) << Bezugswert{OhnePortion, 0};
    QTest::newRow("below 0") << std::optional(-60.0) << Bezugswert{OhnePortion, 0};
    QTest::newRow("no number") << std::optional(std::numeric_limits<double>::quiet_NaN())
                               << Bezugswert{OhnePortion, 0};
    QTest::newRow("endless") << std::optional(std::numeric_limits<double>::infinity())
                             << Bezugswert{OhnePortion, 0};
    QTest::newRow("a pinch") << std::optional(0.1) << Bezugswert{Bekannt, 0.015};
}

void TestBezugswert::aPortionIsMoreThanNothing()
{
    QFETCH(const std::optional<double>, portion);
    Kandidat eine = linsen();
    eine.portion = portion;
    QTEST(bezugswert(eine, Kenngroesse::bs, Bezug::JePortion, Stoffwissen()), "wert");
}

void TestBezugswert::theUnknownCountsBeforeTheMissingPortion()
{
    Kandidat eine = linsen();
    eine.portion.reset();
    QCOMPARE(bezugswert(eine, Kenngroesse::fe, Bezug::JePortion, Stoffwissen()).stand, OhneAngabe);
}

void TestBezugswert::aDishHoldsAtLeastWhatIsKnown()
{
    Stoffwissen wissen;
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::zucker)] = {4, 0.25};
    angaben[stelle(Kenngroesse::wasser)] = {0, 1};
    wissen.setzeRezepte({{u"Linsen"_s, angaben}});
    QCOMPARE(bezugswert(linsen(), Kenngroesse::zucker, Bezug::Je100g, wissen),
             (Bezugswert{Mindestens, 4}));
    QCOMPARE(bezugswert(linsen(), Kenngroesse::wasser, Bezug::Je100g, wissen),
             (Bezugswert{OhneAngabe, 0}));
    QVERIFY(bezugswert(linsen(), Kenngroesse::zucker, Bezug::Je100g, wissen).hatZahl());
}

/// With more energy than is known, 100 kcal would hold less.
void TestBezugswert::ofADishWithUnknownEnergyNothingIsKnownByEnergy()
{
    Stoffwissen wissen;
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::kal)] = {300, 0.01};
    wissen.setzeRezepte({{u"Linsen"_s, angaben}});
    QCOMPARE(bezugswert(linsen(), Kenngroesse::bs, Bezug::Je100kcal, wissen),
             (Bezugswert{OhneAngabe, 0}));
    QCOMPARE(bezugswert(linsen(), Kenngroesse::bs, Bezug::Je100g, wissen),
             (Bezugswert{Bekannt, 15}));
}

void TestBezugswert::aFigureThatRanOverIsNone()
{
    Kandidat eine = linsen();
    eine.portion = std::numeric_limits<double>::max();
    eine.satz.setbs(300); // three times the largest number there is
    QCOMPARE(bezugswert(eine, Kenngroesse::bs, Bezug::JePortion, Stoffwissen()),
             (Bezugswert{OhneAngabe, 0}));
}

void TestBezugswert::numbersHaveSixDigits_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<double>("gerundet");

    constexpr double klein = std::numeric_limits<double>::denorm_min();
    QTest::newRow("0") << 0.0 << 0.0;
    QTest::newRow("0.1 of single precision") << static_cast<double>(0.1F) << 0.1;
    QTest::newRow("six digits stay") << 123456.0 << 123456.0;
    QTest::newRow("the seventh goes up") << 1.2345675 << 1.23457;
    QTest::newRow("the seventh goes down") << 1.2345649 << 1.23456;
    QTest::newRow("below 0") << -1.2345675 << -1.23457;
    QTest::newRow("into a further digit") << 999999.7 << 1000000.0;
    QTest::newRow("too small for six") << klein << klein;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity()
                             << std::numeric_limits<double>::infinity();
}

void TestBezugswert::numbersHaveSixDigits()
{
    QFETCH(const double, zahl);
    QFETCH(const double, gerundet);
    QVERIFY(sechsstellig(zahl) == gerundet);
    QVERIFY(std::isnan(sechsstellig(std::numeric_limits<double>::quiet_NaN())));
}

/// 0.3 g of 30 kcal are as much per 100 kcal as 0.1 g of 10, also in single precision.
void TestBezugswert::figuresOfTheRecordAreTheTypedOnes()
{
    Kandidat eine = linsen();
    eine.satz.setkal(30);
    eine.satz.setbs(0.3F);
    Kandidat andere = linsen();
    andere.satz.setkal(10);
    andere.satz.setbs(0.1F);
    QVERIFY(bezugswert(eine, Kenngroesse::bs, Bezug::Je100kcal, Stoffwissen()).wert == 1);
    QVERIFY(bezugswert(andere, Kenngroesse::bs, Bezug::Je100kcal, Stoffwissen()).wert == 1);
}

/// As docs/ranking.md lists them.
void TestBezugswert::eachFigureHasItsDirection_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<QString>("wort");

    QHash<QString, QString> worte;
    for (const QStringList &zeile : seitenzeilen()) {
        worte.insert(zeile[0], zeile[1]);
    }
    QCOMPARE(worte.size(), qsizetype(anzahlKenngroessen));
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        QTest::newRow(eine.kennung) << eine.groesse << worte.value(QString::fromUtf8(eine.kennung));
    }
}

void TestBezugswert::eachFigureHasItsDirection()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const QString, wort);
    const QHash<QString, Richtung> richtungen = {{u"more"_s, Richtung::MehrIstBesser},
                                                 {u"less"_s, Richtung::WenigerIstBesser},
                                                 {u"neither"_s, Richtung::Keine}};
    QVERIFY(richtungen.contains(wort));
    QCOMPARE(richtung(groesse), richtungen.value(wort));
}

/// On the page itself, or on that of the ratings.
void TestBezugswert::eachSourceIsListed()
{
    const QString wertungsseite = gelesen(QStringLiteral(WERTUNGSSEITE));
    const QString seite = gelesen(QStringLiteral(RANGSEITE));
    for (const QStringList &zeile : seitenzeilen()) {
        const QString quelle = zeile[2];
        QVERIFY2(quelle == u"Own"_s || seite.contains(u"\n| %1 | "_s.arg(quelle)) ||
                     wertungsseite.contains(u"\n- **%1**: "_s.arg(quelle)),
                 qPrintable(quelle));
    }
}

QTEST_APPLESS_MAIN(TestBezugswert)
#include "TestBezugswert.moc"
