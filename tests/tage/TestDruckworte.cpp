// What a print says in its own language, whatever the windows speak.

#include "Druckworte.h"

#include "Wochenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Regelsprache)

class TestDruckworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textsAreFoundWithoutSpeakingTheLanguage();
    void namesOfMealsAndDays_data();
    void namesOfMealsAndDays();
    void aRecordWithoutATitleIsCalledByItsKind();
    void foodsAreCalledAsInThePrint();
    void amounts_data();
    void amounts();
    void theLanguageOfTheWindowsIsThatOfTheNumbers();
    void numbersAreWrittenAsAtTheDesk();
};

namespace {

QString ohneNbsp(QString text)
{
    return text.replace(QChar(QChar::Nbsp), u' ');
}

} // namespace

void TestDruckworte::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
}

void TestDruckworte::textsAreFoundWithoutSpeakingTheLanguage()
{
    const Druckworte deutsch(Regelsprache::Deutsch);
    const Druckworte englisch(Regelsprache::Englisch);
    QCOMPARE(deutsch(u"Frühstück"_s), u"Frühstück"_s);
    QCOMPARE(englisch(u"Frühstück"_s), u"Breakfast"_s);
    QCOMPARE(englisch(u"Äpfel (Apfel), roh"_s), u"Apples, raw"_s);
    QCOMPARE(englisch(u"Omas Auflauf"_s), u"Omas Auflauf"_s);
    QVERIFY(englisch(QString()).isNull());
    QVERIFY(deutsch(QString()).isNull());
    const QList<Druckworte> kopien = {englisch}; // as prints keep them
    QCOMPARE(kopien[0](u"Frühstück"_s), u"Breakfast"_s);
    // The windows still speak German.
    QCOMPARE(mahlzeitname(u"Frühstück"_s), u"Frühstück"_s);
}

void TestDruckworte::namesOfMealsAndDays_data()
{
    QTest::addColumn<Regelsprache>("sprache");
    QTest::addColumn<QDate>("datum");
    QTest::addColumn<QString>("mahlzeit");
    QTest::addColumn<QString>("eigene");
    QTest::addColumn<QString>("tag");
    QTest::newRow("German with a date")
        << Regelsprache::Deutsch << QDate(2026, 11, 23) << u"Mittagessen"_s << u"Butter"_s
        << u"Mittwoch, 25. November 2026"_s;
    QTest::newRow("German without one")
        << Regelsprache::Deutsch << QDate() << u"Mittagessen"_s << u"Butter"_s << u"Tag 3"_s;
    // "Butter" is a word of the table too, but what the user called a meal stays.
    QTest::newRow("English with a date")
        << Regelsprache::Englisch << QDate(2026, 11, 23) << u"Lunch"_s << u"Butter"_s
        << u"Wednesday, 25 November 2026"_s;
    QTest::newRow("English without one")
        << Regelsprache::Englisch << QDate() << u"Lunch"_s << u"Butter"_s << u"Day 3"_s;
}

void TestDruckworte::namesOfMealsAndDays()
{
    QFETCH(const Regelsprache, sprache);
    QFETCH(const QDate, datum);
    QFETCH(const QString, mahlzeit);
    QFETCH(const QString, eigene);
    QFETCH(const QString, tag);
    const Druckworte worte(sprache);
    QCOMPARE(mahlzeitworte(u"Mittagessen"_s, worte), mahlzeit);
    QCOMPARE(mahlzeitworte(u"Butter"_s, worte), eigene);
    QCOMPARE(mahlzeitworte(u"Mahlzeit"_s, worte), u"Mahlzeit"_s);
    QCOMPARE(tagesworte(neueAufzeichnung(Aufzeichnungsart::Protokoll, datum, 3), 2, worte), tag);
}

void TestDruckworte::aRecordWithoutATitleIsCalledByItsKind()
{
    const Druckworte englisch(Regelsprache::Englisch);
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    QCOMPARE(titelworte(eine, Druckworte(Regelsprache::Deutsch)), u"Protokoll"_s);
    QCOMPARE(titelworte(eine, englisch), u"Food record"_s);
    eine.art = Aufzeichnungsart::Wochenplan;
    QCOMPARE(titelworte(eine, englisch), u"Week plan"_s);
    eine.titel = u" \t"_s;
    QCOMPARE(titelworte(eine, englisch), u"Week plan"_s);
    eine.titel = u" Tag "_s; // a word of the windows, but the user's title
    QCOMPARE(titelworte(eine, englisch), u"Tag"_s);
}

void TestDruckworte::foodsAreCalledAsInThePrint()
{
    const Druckworte englisch(Regelsprache::Englisch);
    QCOMPARE(speisenworte({.schluessel = u"Äpfel (Apfel), roh"_s}, englisch), u"Apples, raw"_s);
    QCOMPARE(speisenworte({.text = u"Tag"_s}, englisch), u"Tag"_s);
    QCOMPARE(speisenworte({}, englisch), QString());
}

void TestDruckworte::amounts_data()
{
    QTest::addColumn<QString>("angabe");
    QTest::addColumn<float>("gramm"); // negative: it was not understood
    QTest::addColumn<QString>("deutsch");
    QTest::addColumn<QString>("englisch");
    const auto zeile = [](const char *name, const char *angabe, float gramm, const char *deutsch,
                          const char *englisch) {
        QTest::newRow(name) << QString::fromUtf8(angabe) << gramm << QString::fromUtf8(deutsch)
                            << QString::fromUtf8(englisch);
    };
    zeile("slices", "2 Scheiben", 100, "2 Scheiben (100 g)", "2 slices (100 g)");
    zeile("one slice", "eine Scheibe", 50, "1 Scheibe (50 g)", "1 slice (50 g)");
    zeile("typed in the other language", "3 slices", 150, "3 Scheiben (150 g)", "3 slices (150 g)");
    zeile("a part", "1/4 Scheibe", 12.5F, "¼ Scheibe (12,5 g)", "¼ slice (12.5 g)");
    zeile("a decimal count", "1,2 Tassen", 240, "1,2 Tassen (240 g)", "1.2 cups (240 g)");
    zeile("plain grams", "62,5", 62.5F, "62,5 g", "62.5 g");
    zeile("grams that count otherwise", "100", 90, "90 g", "90 g");
    zeile("kilograms", "0,1 kg", 100, "100 g", "100 g");
    // A slice weighs 50 g by now; when it was written down it weighed 40 g.
    zeile("the measure has changed", "2 Scheiben", 80, "2 Scheiben (80 g)", "2 slices (80 g)");
    zeile("the measure is gone", "2 Kellen", 250.5F, "2 Kellen (250,5 g)", "2 Kellen (250.5 g)");
    zeile("nothing was said", "", 30, "30 g", "30 g");
    zeile("not understood", " ein Teller ", -1, "ein Teller", "ein Teller");
    zeile("understood only by now", "2 Scheiben", -1, "2 Scheiben", "2 Scheiben");
    zeile("nothing at all", "", -1, "", "");
}

void TestDruckworte::amounts()
{
    QFETCH(const QString, angabe);
    QFETCH(const float, gramm);
    Mahlzeitzeile zeile;
    zeile.angabe = angabe;
    zeile.gramm = gramm < 0 ? std::nullopt : std::optional(gramm);
    QFETCH(const QString, deutsch);
    QFETCH(const QString, englisch);
    const auto worte = [&](Regelsprache sprache) {
        return mengenworte(zeile, Wochenprobe::masse(), Druckworte(sprache));
    };
    QCOMPARE(ohneNbsp(worte(Regelsprache::Deutsch)), deutsch);
    QCOMPARE(ohneNbsp(worte(Regelsprache::Englisch)), englisch);
    if (deutsch.endsWith(u')')) { // no line ends between the number and its unit
        QVERIFY(worte(Regelsprache::Deutsch).endsWith(QChar(QChar::Nbsp) + u"g)"_s));
    }
}

void TestDruckworte::theLanguageOfTheWindowsIsThatOfTheNumbers()
{
    QCOMPARE(Druckworte::derFenster(), Regelsprache::Deutsch);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(Druckworte::derFenster(), Regelsprache::Englisch);
}

/// A desk in Switzerland writes German in its own way, and English in that of the United Kingdom.
void TestDruckworte::numbersAreWrittenAsAtTheDesk()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Switzerland));
    QCOMPARE(Druckworte(Regelsprache::Deutsch).land().territory(), QLocale::Switzerland);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(Druckworte(Regelsprache::Englisch).land().territory(), QLocale::UnitedStates);
    QCOMPARE(Druckworte(Regelsprache::Deutsch).land().territory(), QLocale::Germany);
    QCOMPARE(Druckworte(Regelsprache::Deutsch).land().toString(12345), u"12345"_s);
}

QTEST_GUILESS_MAIN(TestDruckworte)
#include "TestDruckworte.moc"
