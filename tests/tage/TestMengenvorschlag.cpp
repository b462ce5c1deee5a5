// What is offered while an amount is typed, and how a row keeps it.

#include "Mengenvorschlag.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestMengenvorschlag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }

    void whatFitsABeginningIsOffered_data();
    void whatFitsABeginningIsOffered();
    void aFoodWithoutMeasuresHasGrams();
    void theLanguageIsThatOfTheScreen();
    void amountsAreKeptNeatly_data();
    void amountsAreKeptNeatly();

private:
    const QList<Mass> m_brot = {{.eines = u"Scheibe"_s,
                                 .viele = u"Scheiben"_s,
                                 .einesEn = u"slice"_s,
                                 .vieleEn = u"slices"_s,
                                 .gramm = 50},
                                {.eines = u"Schachtel"_s,
                                 .viele = u"Schachteln"_s,
                                 .einesEn = u"box"_s,
                                 .vieleEn = u"boxes"_s,
                                 .gramm = 500}};
    const QList<Mass> m_milch = {{.eines = u"Tasse"_s,
                                  .viele = u"Tassen"_s,
                                  .einesEn = u"cup"_s,
                                  .vieleEn = u"cups"_s,
                                  .gramm = 125}};
};

void TestMengenvorschlag::whatFitsABeginningIsOffered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("angezeigt");
    const auto zeile = [](const char *name, const QString &text, const QStringList &angezeigt) {
        QTest::newRow(name) << text << angezeigt;
    };
    zeile("nothing typed offers one of each", u""_s,
          {u"1 Scheibe (50 g)"_s, u"1 Schachtel (500 g)"_s});
    zeile("a count is grams first", u"2"_s,
          {u"2 g"_s, u"2 Scheiben (100 g)"_s, u"2 Schachteln (1000 g)"_s});
    zeile("exactly 2 kg of a measure is offered", u"4"_s,
          {u"4 g"_s, u"4 Scheiben (200 g)"_s, u"4 Schachteln (2000 g)"_s});
    zeile("more than 2 kg is not", u"5"_s, {u"5 g"_s, u"5 Scheiben (250 g)"_s});
    zeile("a weight is no count of slices", u"150"_s, {u"150 g"_s});
    zeile("a beginning of several", u"2 Sch"_s,
          {u"2 Scheiben (100 g)"_s, u"2 Schachteln (1000 g)"_s});
    zeile("a beginning of one", u"2 Sche"_s, {u"2 Scheiben (100 g)"_s});
    zeile("small letters", u"2 sche"_s, {u"2 Scheiben (100 g)"_s});
    zeile("of several as well", u"3 Scheiben"_s, {u"3 Scheiben (150 g)"_s});
    zeile("in the other language", u"2 sl"_s, {u"2 Scheiben (100 g)"_s});
    zeile("a fraction", u"1/2"_s, {u"½ Scheibe (25 g)"_s, u"½ Schachtel (250 g)"_s});
    zeile("a word", u"zwei Scheiben"_s, {u"2 Scheiben (100 g)"_s});
    zeile("a measure without a count is one of it", u"Scha"_s, {u"1 Schachtel (500 g)"_s});
    zeile("the middle of a name", u"2 heibe"_s, {});
    zeile("what fits nothing", u"2 Fuder"_s, {});
    zeile("nothing of it", u"0"_s, {});
    zeile("less than nothing", u"-1"_s, {});
}

void TestMengenvorschlag::whatFitsABeginningIsOffered()
{
    QFETCH(QString, text);
    QFETCH(QStringList, angezeigt);
    QStringList texte;
    for (const Mengenvorschlag &einer : mengenvorschlaege(text, m_brot, Regelsprache::Deutsch)) {
        texte << einer.anzeige;
    }
    QCOMPARE(texte, angezeigt);
}

void TestMengenvorschlag::aFoodWithoutMeasuresHasGrams()
{
    QVERIFY(mengenvorschlaege(u""_s, {}, Regelsprache::Deutsch).isEmpty());
    QCOMPARE(mengenvorschlaege(u"80"_s, {}, Regelsprache::Deutsch),
             (QList<Mengenvorschlag>{{u"80 g"_s, u"80 g"_s}}));
}

void TestMengenvorschlag::theLanguageIsThatOfTheScreen()
{
    QCOMPARE(mengenvorschlaege(u"2 Sche"_s, m_brot, Regelsprache::Englisch),
             (QList<Mengenvorschlag>{{u"2 slices (100 g)"_s, u"2 slices"_s}}));
}

void TestMengenvorschlag::amountsAreKeptNeatly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("behalten");
    QTest::newRow("digits get their unit") << u"150"_s << u"150 g"_s;
    QTest::newRow("a short form") << u"150gr"_s << u"150 g"_s;
    QTest::newRow("kilograms are grams") << u"1,5 kg"_s << u"1500 g"_s;
    QTest::newRow("a fraction") << u"1/2 tasse"_s << u"½ Tasse"_s;
    QTest::newRow("one and a half") << u"1,5 Tassen"_s << u"1½ Tassen"_s;
    QTest::newRow("a word") << u"zwei Tassen"_s << u"2 Tassen"_s;
    QTest::newRow("one alone") << u"tasse"_s << u"1 Tasse"_s;
    QTest::newRow("no digit is lost") << u"62,55"_s << u"62,55 g"_s;
    QTest::newRow("nor of a unit") << u"62,55 g"_s << u"62,55 g"_s;
    QTest::newRow("nor of a measure") << u"1,234 Tassen"_s << u"1,234 Tassen"_s;
    QTest::newRow("what is not understood stays") << u"3 Fuder"_s << u"3 Fuder"_s;
    QTest::newRow("nothing stays nothing") << u""_s << u""_s;
}

void TestMengenvorschlag::amountsAreKeptNeatly()
{
    QFETCH(QString, text);
    QTEST(behalteneAngabe(text, m_milch, Regelsprache::Deutsch), "behalten");
}

QTEST_GUILESS_MAIN(TestMengenvorschlag)
#include "TestMengenvorschlag.moc"
