#include "Planwertung.h"

#include <QTest>

class TestPlanwertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counting_data();
    void counting();
    void textsThatAreNoRating_data();
    void textsThatAreNoRating();
    void styles_data();
    void styles();
};

Q_DECLARE_METATYPE(Zeichenstil)

namespace {

QString siegerName(const Planwertung &wertung)
{
    if (!wertung.sieger.has_value()) {
        return QStringLiteral("none");
    }
    switch (*wertung.sieger) {
    case Wertungssieger::Plus:
        return QStringLiteral("+");
    case Wertungssieger::Neutral:
        return QStringLiteral("0");
    case Wertungssieger::Minus:
        return QStringLiteral("-");
    }
    return {};
}

} // namespace

void TestPlanwertung::counting_data()
{
    QTest::addColumn<QString>("reihe");
    QTest::addColumn<int>("plus");
    QTest::addColumn<int>("neutral");
    QTest::addColumn<int>("minus");
    QTest::addColumn<bool>("punkt");
    QTest::addColumn<QString>("sieger");
    QTest::newRow("no rows") << "" << 0 << 0 << 0 << false << "none";
    QTest::newRow("one +") << "+" << 1 << 0 << 0 << true << "+";
    QTest::newRow("one 0") << "0" << 0 << 1 << 0 << false << "0";
    QTest::newRow("one -") << "-" << 0 << 0 << 1 << false << "-";
    QTest::newRow("+ + - : + leads") << "++-" << 2 << 0 << 1 << true << "+";
    QTest::newRow("+ - : a tie keeps the looks and the point")
        << "+-" << 1 << 0 << 1 << true << "+";
    QTest::newRow("- + : a tie keeps the looks and earns nothing")
        << "-+" << 1 << 0 << 1 << false << "-";
    QTest::newRow("+ - - : the point stays, the looks do not")
        << "+--" << 1 << 0 << 2 << true << "-";
    QTest::newRow("+ 0 0 : nor do neutral foods take the point away")
        << "+00" << 1 << 2 << 0 << true << "0";
    QTest::newRow("- + + : the point comes late") << "-++" << 2 << 0 << 1 << true << "+";
    QTest::newRow("0 + - : three alike keep the first") << "0+-" << 1 << 1 << 1 << false << "0";
    QTest::newRow("0 + 0 + : never ahead") << "0+0+" << 2 << 2 << 0 << false << "0";
    QTest::newRow("0 + + - - - : the last leader") << "0++---" << 2 << 1 << 3 << true << "-";
    QTest::newRow("a tie of two above the third") << "++00-" << 2 << 2 << 1 << true << "+";
    QTest::newRow("unrated rows change nothing") << ".+.-.." << 1 << 0 << 1 << true << "+";
}

void TestPlanwertung::counting()
{
    QFETCH(QString, reihe);
    Planwertung wertung;
    for (const QChar zeichen : reihe) {
        zaehleWertung(wertung, zeichen == QLatin1Char('.') ? QString() : QString(zeichen));
    }
    QTEST(wertung.plus, "plus");
    QTEST(wertung.neutral, "neutral");
    QTEST(wertung.minus, "minus");
    QTEST(wertung.punkt, "punkt");
    QTEST(siegerName(wertung), "sieger");
}

void TestPlanwertung::textsThatAreNoRating_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("absent") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("own text") << "gut";
    QTest::newRow("two signs") << "++";
    QTest::newRow("with a blank") << "+ ";
    QTest::newRow("letter O") << "O";
    QTest::newRow("dash") << QString::fromUtf8("–");
}

void TestPlanwertung::textsThatAreNoRating()
{
    QFETCH(QString, text);
    Planwertung wertung;
    zaehleWertung(wertung, text);
    QCOMPARE(wertung.plus + wertung.neutral + wertung.minus, 0);
    QVERIFY(!wertung.punkt);
    QVERIFY(!wertung.sieger.has_value());
}

void TestPlanwertung::styles_data()
{
    QTest::addColumn<int>("sieger");
    QTest::addColumn<Zeichenstil>("plus");
    QTest::addColumn<Zeichenstil>("neutral");
    QTest::addColumn<Zeichenstil>("minus");
    const Zeichenstil klein = {Ampel::Schwarz, 9};
    QTest::newRow("+ leads: green, 11 points") << static_cast<int>(Wertungssieger::Plus)
                                               << Zeichenstil{Ampel::Gruen, 11} << klein << klein;
    QTest::newRow("0 leads: blue, 12 points") << static_cast<int>(Wertungssieger::Neutral) << klein
                                              << Zeichenstil{Ampel::Blau, 12} << klein;
    QTest::newRow("- leads: red, 12 points")
        << static_cast<int>(Wertungssieger::Minus) << klein << klein << Zeichenstil{Ampel::Rot, 12};
}

void TestPlanwertung::styles()
{
    QFETCH(int, sieger);
    const Wertungsstil stil = wertungsstil(static_cast<Wertungssieger>(sieger));
    QTEST(stil.plus, "plus");
    QTEST(stil.neutral, "neutral");
    QTEST(stil.minus, "minus");
}

QTEST_GUILESS_MAIN(TestPlanwertung)
#include "TestPlanwertung.moc"
