#include "Auslieferung.h"
#include "Lebensmittelbestand.h"
#include "Tabellenausgabe.h"
#include "Tabellenprobe.h"
#include "Wertungsregeln.h"

#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The table that ships, and the files that the build made of it.
class TestAuslieferung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theShippedTableIsInOrder();
    void aFoodTooFewIsFound();
    void aGroupLeftOutIsFound();
    void redirectedRowsShowTheSameFood_data();
    void redirectedRowsShowTheSameFood();
    void aFoodInFrontMovesTheRows_data();
    void aFoodInFrontMovesTheRows();
    void aRenamedFoodIsFoundInItsLanguageOnly();
    void aShortTableHasNoSuchRows();
    void theBuiltFileHoldsTheTable();
    void theBuiltNamesAreTheEnglishOnes();
    void thePlaceholderIsEmptyAndComesFirst_data();
    void thePlaceholderIsEmptyAndComesFirst();

private:
    Tabelle m_tabelle;
};

void TestAuslieferung::initTestCase()
{
    m_tabelle = Tabellenprobe::ausgelieferteTabelle();
    QCOMPARE(m_tabelle.size(), 1015);
}

void TestAuslieferung::theShippedTableIsInOrder()
{
    for (const Beanstandung &eine : Auslieferung::pruefen(m_tabelle)) {
        QFAIL(qPrintable(eine.meldung));
    }
}

void TestAuslieferung::aFoodTooFewIsFound()
{
    Tabelle kuerzer = m_tabelle;
    kuerzer.removeLast();
    const Beanstandungen einwaende = Auslieferung::pruefen(kuerzer);
    QVERIFY(std::any_of(einwaende.begin(), einwaende.end(),
                        [](const auto &eine) { return eine.regel == u"count"; }));
}

void TestAuslieferung::aGroupLeftOutIsFound()
{
    Tabelle ohne = m_tabelle;
    ohne.removeIf([](const auto &zeile) { return qstrcmp(zeile.gruppe->name, "Eier") == 0; });
    const Beanstandungen einwaende = Auslieferung::pruefen(ohne);
    QVERIFY(std::any_of(einwaende.begin(), einwaende.end(), [](const auto &eine) {
        return eine.regel == u"group" && eine.meldung.contains(u"Eier");
    }));
}

void TestAuslieferung::redirectedRowsShowTheSameFood_data()
{
    QTest::addColumn<QString>("gebiet");
    QTest::addColumn<QString>("food");
    const QString pfannkuchen = Tabellenprobe::namen(u"1522"_s).first();
    const QString erbsen = Tabellenprobe::namen(u"630"_s).first();
    QTest::newRow("Germany") << u"de_DE"_s << pfannkuchen;
    QTest::newRow("Austria") << u"de_AT"_s << pfannkuchen;
    QTest::newRow("Switzerland") << u"de_CH"_s << pfannkuchen;
    QTest::newRow("Britain") << u"en_GB"_s << erbsen;
    QTest::newRow("America") << u"en_US"_s << erbsen;
}

void TestAuslieferung::redirectedRowsShowTheSameFood()
{
    QFETCH(QString, gebiet);
    QFETCH(QString, food);
    const Lebensmittelverzeichnis foods = Tabellenausgabe::verzeichnis(m_tabelle);
    const QStringList reihen = Auslieferung::reihenfolge(m_tabelle, QLocale(gebiet));
    QCOMPARE(reihen.size(), 1016);
    const Datenmodul soll = foods.value(food);
    QCOMPARE(soll.name(), food);
    for (const int reihe : {575, 576, 577, 604}) {
        const Datenmodul ist = foods.value(reihen.at(reihe));
        for (const auto &wert : naehrwerte) {
            QCOMPARE(ist.wert(wert.wert), soll.wert(wert.wert));
        }
        for (const auto &wertung : wertungen) {
            QCOMPARE(ist.wertung(wertung.wertung), soll.wertung(wertung.wertung));
        }
    }
}

void TestAuslieferung::aFoodInFrontMovesTheRows_data()
{
    QTest::addColumn<QString>("gebiet");
    QTest::newRow("German") << u"de_DE"_s;
    QTest::newRow("English") << u"en_GB"_s;
}

void TestAuslieferung::aFoodInFrontMovesTheRows()
{
    QFETCH(QString, gebiet);
    const QLocale locale(gebiet);
    QVERIFY(Auslieferung::umleitungPruefen(m_tabelle, locale).isEmpty());

    Tabelle laenger = m_tabelle;
    laenger.append(m_tabelle.first());
    laenger.last().nameDe = u"Aal"_s;
    laenger.last().nameEn = u"Aa"_s;
    const Beanstandungen einwaende = Auslieferung::umleitungPruefen(laenger, locale);
    QCOMPARE(einwaende.size(), 3);
    QVERIFY(einwaende.first().meldung.contains(u"row 576"));
    QVERIFY(einwaende.last().meldung.contains(u"row 604"));
}

void TestAuslieferung::aRenamedFoodIsFoundInItsLanguageOnly()
{
    // Clicked, this row shows the peas of the row before.
    const QString geklickt = Auslieferung::reihenfolge(m_tabelle, QLocale(u"en_GB"_s)).at(576);
    Tabelle umbenannt = m_tabelle;
    const auto erbse = std::find_if(umbenannt.begin(), umbenannt.end(),
                                    [&](const auto &zeile) { return zeile.nameDe == geklickt; });
    QVERIFY(erbse != umbenannt.end());
    erbse->nameEn = u"Garden pea, canned"_s;
    QVERIFY(Auslieferung::umleitungPruefen(umbenannt, QLocale(u"de_DE"_s)).isEmpty());
    QVERIFY(!Auslieferung::umleitungPruefen(umbenannt, QLocale(u"en_GB"_s)).isEmpty());
}

void TestAuslieferung::aShortTableHasNoSuchRows()
{
    const Tabelle kurz = m_tabelle.first(100);
    QVERIFY(Auslieferung::umleitungPruefen(kurz, QLocale(u"de_DE"_s)).isEmpty());
    QVERIFY(Auslieferung::umleitungPruefen({}, QLocale(u"en_GB"_s)).isEmpty());
}

void TestAuslieferung::theBuiltFileHoldsTheTable()
{
    const Lebensmittelbestand bestand =
        ladeBestand(QStringLiteral(DATEN), QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(bestand.namen.size(), 1016);
    for (const Tabellenzeile &zeile : m_tabelle) {
        const Datenmodul food = bestand.verzeichnis.value(zeile.nameDe);
        QCOMPARE(food.name(), zeile.nameDe);
        for (const auto &wert : naehrwerte) {
            QCOMPARE(food.wert(wert.wert), static_cast<float>(zeile.wert(wert.wert)));
        }
        for (const auto &wertung : wertungen) {
            const auto *const regel = entscheidendeRegel(wertung.wertung, wertungsgroessen(zeile));
            QCOMPARE(food.wertung(wertung.wertung), QString::fromLatin1(regel->urteil));
        }
    }
}

void TestAuslieferung::theBuiltNamesAreTheEnglishOnes()
{
    QTranslator englisch;
    QVERIFY(englisch.load(QStringLiteral(NAMEN)));
    for (const Tabellenzeile &zeile : m_tabelle) {
        QCOMPARE(englisch.translate("Mahlberg", zeile.nameDe.toUtf8().constData()), zeile.nameEn);
    }
    QVERIFY(englisch.translate("Mahlberg", "-").isNull());

    QVERIFY(QCoreApplication::installTranslator(&englisch));
    const QLocale britisch(u"en_GB"_s);
    const Lebensmittelbestand bestand = ladeBestand(QStringLiteral(DATEN), britisch);
    QCoreApplication::removeTranslator(&englisch);
    QCOMPARE(bestand.namen, Auslieferung::reihenfolge(m_tabelle, britisch));
}

void TestAuslieferung::thePlaceholderIsEmptyAndComesFirst_data()
{
    QTest::addColumn<QString>("gebiet");
    QTest::newRow("German") << u"de_DE"_s;
    QTest::newRow("English") << u"en_GB"_s;
}

void TestAuslieferung::thePlaceholderIsEmptyAndComesFirst()
{
    QFETCH(QString, gebiet);
    QCOMPARE(Auslieferung::reihenfolge(m_tabelle, QLocale(gebiet)).first(), u"-"_s);
    const Datenmodul leer = Tabellenausgabe::verzeichnis(m_tabelle).value(u"-"_s);
    QCOMPARE(leer.name(), u"-"_s);
    for (const auto &wert : naehrwerte) {
        QCOMPARE(leer.wert(wert.wert), 0.0F);
    }
    for (const auto &wertung : wertungen) {
        QCOMPARE(leer.wertung(wertung.wertung), u"0"_s);
    }
}

QTEST_GUILESS_MAIN(TestAuslieferung)
#include "TestAuslieferung.moc"
