#include "Wertungsprobe.h"

#include "Lebensmittelbestand.h"
#include "Wertungsauskunft.h"

#include <QApplication>
#include <QFile>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// Why a food is rated as it is: whose rating it is and what is told of it.
class TestWertungsgrund : public QObject, private Wertungsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { richteEin(); }
    void cleanup() { raeumeAuf(); }
    void theMouseThatRestsSeesTheReason();
    void aReasonIsInTheLanguageOfTheWindows_data();
    void aReasonIsInTheLanguageOfTheWindows();
    void theWayToTheFoodDecidesWhoseRatingItIs_data();
    void theWayToTheFoodDecidesWhoseRatingItIs();
    void anAmountShowsTheFoodOfTheRow();
    void whatWasSavedIsTheUsersOwn_data();
    void whatWasSavedIsTheUsersOwn();
    void withoutAReasonThereIsNoToolTip_data();
    void withoutAReasonThereIsNoToolTip();
    void whileAFoodIsTypedInNothingIsExplained();
    void anEmptyTableExplainsNothing();
    void aSearchAsksForNoReason();
    void everyShippedRatingHasItsReason();
};

void TestWertungsgrund::theMouseThatRestsSeesTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QTest::mouseMove(feld(Wertung::hkk));
    QTRY_VERIFY(QToolTip::isVisible());
    const QString text = lesbar(QToolTip::text());
    QVERIFY2(text.startsWith(u"Herz und Kreislauf: „-“"_s), qPrintable(text));
    QVERIFY2(text.contains(u"250 mg"_s), qPrintable(text));
    QVERIFY(QToolTip::text().contains(u"<b>Herz und Kreislauf: „-“"_s)); // a heading
    QCOMPARE(feld(Wertung::hkk)->toolTip(), QString());
}

void TestWertungsgrund::aReasonIsInTheLanguageOfTheWindows_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QString>("kopf");
    QTest::addColumn<QString>("zahl");
    QTest::addColumn<QString>("eigen");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Austria)
                            << u"Übergewicht: „-“ (ungeeignet)"_s << u"301,5 kcal"_s << vonIhnen;
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                             << u"Overweight: \"-\" (unsuitable)"_s << u"301.5 kcal"_s
                             << u"Your own rating"_s;
}

void TestWertungsgrund::aReasonIsInTheLanguageOfTheWindows()
{
    QFETCH(QLocale, sprache);
    QFETCH(QString, kopf);
    QFETCH(QString, zahl);
    QFETCH(QString, eigen);
    QLocale::setDefault(sprache);
    const Probeuebersetzer uebersetzer({{vonIhnen, eigen}});
    oeffne();
    m_fenster->klicke(1, inName);
    for (const QString &text : {anMaus(), anTaste()}) {
        QVERIFY2(text.startsWith(kopf), qPrintable(text));
        QVERIFY2(text.contains(zahl), qPrintable(text));
    }
    m_fenster->klicke(0, inEigen);
    QVERIFY(anMaus().endsWith(eigen));
}

void TestWertungsgrund::theWayToTheFoodDecidesWhoseRatingItIs_data()
{
    QTest::addColumn<QString>("suchwort"); // empty: a click into the list itself
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("enthalten");
    QTest::newRow("a built-in food") << QString() << 1 << inName << u"301,5 kcal"_s;
    QTest::newRow("an own food") << QString() << 0 << inEigen << eigenes;
    QTest::newRow("a name of both lists, built-in") << QString() << 2 << inName << u"302,5 kcal"_s;
    QTest::newRow("a name of both lists, own") << QString() << 1 << inEigen << eigenes;
    QTest::newRow("a result that is built-in") << u"0004"_s << 1 << inSuch << u"304,5 kcal"_s;
    QTest::newRow("a result that is own") << u"eigen"_s << 1 << inSuch << eigenes;
    QTest::newRow("a result of both lists is the own one") << u"0002"_s << 2 << inSuch << eigenes;
}

void TestWertungsgrund::theWayToTheFoodDecidesWhoseRatingItIs()
{
    QFETCH(QString, suchwort);
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(QString, enthalten);
    oeffne();
    m_fenster->klicke(5, inName);
    QVERIFY(anMaus().contains(u"305,5 kcal"_s));
    if (!suchwort.isEmpty()) {
        suche(suchwort);
    }
    m_fenster->klicke(zeile, spalte);
    QVERIFY2(anMaus().contains(enthalten), qPrintable(anMaus()));
    QVERIFY2(anTaste().contains(enthalten), qPrintable(anTaste()));
}

/// After a search the amount shows the built-in food of the row where the selection stands.
void TestWertungsgrund::anAmountShowsTheFoodOfTheRow()
{
    oeffne();
    suche(u"0002"_s);
    waehleTreffer(zaehlname(2));
    QCOMPARE(anMaus(), eigenes);
    controller().lebensmittelmenge->setIntValue(30);
    controller().wieviellebensmittel(*controller().lebensmittelmenge);
    QCOMPARE(controller().unuebersetztername, zaehlname(1));
    QVERIFY2(anMaus().contains(u"301,5 kcal"_s), qPrintable(anMaus())); // for 100 g, as ever
}

void TestWertungsgrund::whatWasSavedIsTheUsersOwn_data()
{
    QTest::addColumn<bool>("vomBlatt");
    QTest::newRow("from the sheet") << true;
    QTest::newRow("from the display") << false;
}

void TestWertungsgrund::whatWasSavedIsTheUsersOwn()
{
    QFETCH(bool, vomBlatt);
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    if (vomBlatt) {
        controller().Fenster();
        controller().EingabeFensterfeldA->setStringValue(u"Vom Blatt"_s);
        controller().EingabeFensteruebergewicht->setStringValue(u"-"_s);
        controller().EingabeFensteruebernehmen->click();
        controller().EingabeFensterschliessen->click();
    } else {
        controller().sichernaufzu->click();
        controller().sichernknopf->click();
        controller().sichernaufzu->click();
    }
    QTRY_VERIFY(!controller().einfenster->isVisible());
    QCOMPARE(anMaus(), u"Übergewicht: „-“\n"_s + vonIhnen);
    m_fenster->klicke(4, inName);
    QVERIFY(anMaus().contains(u"304,5 kcal"_s));
}

void TestWertungsgrund::withoutAReasonThereIsNoToolTip_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<Wertung>("wertung");
    QTest::newRow("a food that the explaining table lacks") << 0 << inName << Wertung::hkk;
    QTest::newRow("a rating that its figures don't give") << 3 << inName << Wertung::uebergewicht;
    QTest::newRow("an own food without a rating") << 2 << inEigen << Wertung::uebergewicht;
}

void TestWertungsgrund::withoutAReasonThereIsNoToolTip()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(Wertung, wertung);
    Datenmodul unbewertet;
    unbewertet.setName(u"Unbewertet"_s);
    m_eigene.insert(unbewertet.name(), unbewertet);
    oeffne();
    m_fenster->klicke(zeile, spalte);
    QCOMPARE(anMaus(wertung), QString());
    QCOMPARE(anTaste(wertung), QString());
}

void TestWertungsgrund::whileAFoodIsTypedInNothingIsExplained()
{
    oeffne();
    m_fenster->klicke(1, inName);
    controller().Fenster();
    QCOMPARE(anMaus(), QString());
    controller().Fensterschliessen();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    controller().sichernaufzu->click();
    QCOMPARE(anMaus(), QString());
    QCOMPARE(anTaste(), QString());
    controller().sichernaufzu->click();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    QVERIFY(anTaste().contains(u"301,5 kcal"_s));
}

void TestWertungsgrund::anEmptyTableExplainsNothing()
{
    m_eingebaut.clear();
    oeffne();
    for (const auto &zeile : wertungen) {
        QCOMPARE(anMaus(zeile.wertung), QString());
        QCOMPARE(anTaste(zeile.wertung), QString());
    }
}

/// The table is there only after the search: who had asked before would never get to know.
void TestWertungsgrund::aSearchAsksForNoReason()
{
    QVERIFY(QFile::remove(m_heim->wertungstabelle));
    oeffne();
    suche(u"speise"_s);
    suche(u"0005"_s);
    m_fenster->klicke(1, inName);
    QCoreApplication::processEvents();
    schreibeErklaerungen();
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
}

void TestWertungsgrund::everyShippedRatingHasItsReason()
{
    const Lebensmittelbestand bestand = ladeBestand(u":/DatabaseIII.daten"_s);
    QVERIFY(!bestand.verzeichnis.isEmpty());
    const Wertungsauskunft auskunft(u":/Lebensmittel.csv"_s);
    for (auto eines = bestand.verzeichnis.begin(); eines != bestand.verzeichnis.end(); ++eines) {
        const bool keines = eines.key() == u"-"_s; // the row of the table that stands for no food
        for (const auto &zeile : wertungen) {
            const QStringList grund =
                auskunft.erklaerung(eines.key(), zeile.wertung, eines->wertung(zeile.wertung),
                                    Regelsprache::Deutsch, QLocale());
            QVERIFY2(keines ? grund.isEmpty() : grund.size() >= 2, qPrintable(eines.key()));
        }
    }
}

QTEST_MAIN(TestWertungsgrund)
#include "TestWertungsgrund.moc"
