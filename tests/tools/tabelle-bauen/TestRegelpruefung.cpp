#include "Regelblatt.h"
#include "Regelpruefung.h"
#include "Tabellenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The rules themselves are sound, and a rule that is broken on purpose does not get through.
class TestRegelpruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theRulesAreSound();
    void sixtyFoodsAreRatedAsDietitiansRateThem_data();
    void sixtyFoodsAreRatedAsDietitiansRateThem();
    void everyRatingGoesToATenthOfTheFoods();
    void thePageExplainsEveryRule();
    void aTurnedRuleIsMissedOnThePage_data();
    void aTurnedRuleIsMissedOnThePage();
    void aMovedLimitIsMissedOnThePage_data();
    void aMovedLimitIsMissedOnThePage();
    void dietitiansNoticeABrokenRule_data();
    void dietitiansNoticeABrokenRule();
    void brokenRulesAreFound_data();
    void brokenRulesAreFound();
    void aFoodThatIsNotThereCantBeAgreedUpon();

private:
    Tabelle m_tabelle;
    QString m_einigkeit;
    QString m_seite;
};

namespace {

enum class Schaden {
    DoppelterName,
    UnbekanntesUrteil,
    UnbekannteQuelle,
    KeineQuelle,
    KeineLetzteRegel,
    KeineRegel
};

void alleRegeln()
{
    QTest::addColumn<int>("nummer");
    for (std::size_t i = 0; i < wertungsregeln().size(); ++i) {
        QTest::newRow(wertungsregeln()[i].kennung) << static_cast<int>(i);
    }
}

std::size_t nummer(const char *kennung)
{
    std::size_t i = 0;
    while (qstrcmp(wertungsregeln().at(i).kennung, kennung) != 0) {
        ++i;
    }
    return i;
}

} // namespace

Q_DECLARE_METATYPE(Schaden)

void TestRegelpruefung::initTestCase()
{
    m_tabelle = Tabellenprobe::ausgelieferteTabelle();
    m_einigkeit = QString::fromUtf8(Tabellenprobe::dateiinhalt(EINIGKEIT));
    m_seite = QString::fromUtf8(Tabellenprobe::dateiinhalt(WERTUNGSSEITE));
    QVERIFY(!m_tabelle.isEmpty() && !m_einigkeit.isEmpty() && !m_seite.isEmpty());
}

void TestRegelpruefung::theRulesAreSound()
{
    QVERIFY(Regelpruefung::aufbauPruefen().isEmpty());
}

void TestRegelpruefung::sixtyFoodsAreRatedAsDietitiansRateThem_data()
{
    QTest::addColumn<QString>("eintrag");
    int anzahl = 0;
    for (const QString &eintrag : m_einigkeit.split(u'\n', Qt::SkipEmptyParts)) {
        if (!eintrag.startsWith(u'#') && !eintrag.startsWith(u"name_de")) {
            QTest::newRow(qPrintable(eintrag.section(u';', 0, 0))) << eintrag;
            ++anzahl;
        }
    }
    QCOMPARE(anzahl, 60);
}

void TestRegelpruefung::sixtyFoodsAreRatedAsDietitiansRateThem()
{
    QFETCH(QString, eintrag);
    for (const Beanstandung &eine : Regelpruefung::einigkeitPruefen(m_tabelle, eintrag)) {
        QFAIL(qPrintable(eine.meldung));
    }
}

void TestRegelpruefung::everyRatingGoesToATenthOfTheFoods()
{
    for (const Beanstandung &eine : Regelpruefung::anteilePruefen(m_tabelle)) {
        QFAIL(qPrintable(eine.meldung));
    }
    // A rule that swallows the others leaves ratings and rules without foods.
    Regelwerk regeln = wertungsregeln();
    regeln[nummer("H1")].bedingungen = {};
    QVERIFY(Regelpruefung::anteilePruefen(m_tabelle, regeln).size() > 2);
}

void TestRegelpruefung::thePageExplainsEveryRule()
{
    for (const Beanstandung &eine : Regelpruefung::seitePruefen(m_seite)) {
        QFAIL(qPrintable(eine.meldung));
    }
}

void TestRegelpruefung::aTurnedRuleIsMissedOnThePage_data()
{
    alleRegeln();
}

void TestRegelpruefung::aTurnedRuleIsMissedOnThePage()
{
    QFETCH(int, nummer);
    Regelwerk regeln = wertungsregeln();
    Wertungsregel &regel = regeln[static_cast<std::size_t>(nummer)];
    regel.urteil = qstrcmp(regel.urteil, "0") == 0 ? "-" : "0";
    QCOMPARE(Regelpruefung::seitePruefen(m_seite, regeln).size(), 1);
}

void TestRegelpruefung::aMovedLimitIsMissedOnThePage_data()
{
    alleRegeln();
}

void TestRegelpruefung::aMovedLimitIsMissedOnThePage()
{
    QFETCH(int, nummer);
    const Regelwerk &heil = wertungsregeln();
    const auto stelle = static_cast<std::size_t>(nummer);
    for (std::size_t i = 0; i < heil[stelle].bedingungen.size(); ++i) {
        Regelwerk regeln = heil;
        regeln[stelle].bedingungen[i].grenze *= 1.1;
        QCOMPARE(Regelpruefung::seitePruefen(m_seite, regeln).size(), 1);
    }
}

void TestRegelpruefung::dietitiansNoticeABrokenRule_data()
{
    QTest::addColumn<QByteArray>("kennung");
    for (const char *kennung : {"U1", "U3", "U6", "U7",  "U8",  "U9",  "U10", "U12", "D1", "D4",
                                "D6", "D7", "D9", "D11", "D12", "D13", "D15", "G1",  "G2", "G3",
                                "G4", "G9", "H1", "H2",  "H3",  "H5",  "H7",  "H8",  "H9", "H10"}) {
        QTest::newRow(kennung) << QByteArray(kennung);
    }
}

void TestRegelpruefung::dietitiansNoticeABrokenRule()
{
    QFETCH(QByteArray, kennung);
    Regelwerk regeln = wertungsregeln();
    Wertungsregel &regel = regeln[nummer(kennung.constData())];
    regel.urteil = qstrcmp(regel.urteil, "-") == 0 ? "+" : "-";
    QVERIFY(!Regelpruefung::einigkeitPruefen(m_tabelle, m_einigkeit, regeln).isEmpty());
}

void TestRegelpruefung::brokenRulesAreFound_data()
{
    QTest::addColumn<Schaden>("schaden");
    QTest::newRow("a name twice") << Schaden::DoppelterName;
    QTest::newRow("a rating that the program does not know") << Schaden::UnbekanntesUrteil;
    QTest::newRow("a source that is not listed") << Schaden::UnbekannteQuelle;
    QTest::newRow("a limit without a source") << Schaden::KeineQuelle;
    QTest::newRow("foods that no rule holds for") << Schaden::KeineLetzteRegel;
    QTest::newRow("a condition without rules") << Schaden::KeineRegel;
}

void TestRegelpruefung::brokenRulesAreFound()
{
    QFETCH(Schaden, schaden);
    Regelwerk regeln = wertungsregeln();
    switch (schaden) {
    case Schaden::DoppelterName:
        regeln[1].kennung = regeln[0].kennung;
        break;
    case Schaden::UnbekanntesUrteil:
        regeln[0].urteil = "++";
        break;
    case Schaden::UnbekannteQuelle:
        regeln[0].quellen = {"hearsay"};
        break;
    case Schaden::KeineQuelle:
        regeln[0].quellen.clear();
        break;
    case Schaden::KeineLetzteRegel:
        regeln.back().bedingungen = {{Groesse::Energie, Vergleich::Ueber, 100}};
        regeln.back().quellen = {"EU-1924"};
        break;
    case Schaden::KeineRegel:
        regeln.erase(std::remove_if(regeln.begin(), regeln.end(),
                                    [](const Wertungsregel &regel) {
                                        return regel.wertung == Wertung::gicht;
                                    }),
                     regeln.end());
        break;
    }
    QCOMPARE(Regelpruefung::aufbauPruefen(regeln).size(), 1);
}

void TestRegelpruefung::aFoodThatIsNotThereCantBeAgreedUpon()
{
    const QString butter = Tabellenprobe::namen(u"49"_s).first();
    QCOMPARE(Regelpruefung::einigkeitPruefen(m_tabelle, u"Einhorn;+;+;+;+"_s).size(), 1);
    QCOMPARE(Regelpruefung::einigkeitPruefen(m_tabelle, butter + u";-"_s).size(), 1);
    QCOMPARE(Regelpruefung::einigkeitPruefen(m_tabelle, butter + u";;;;"_s).size(), 0);
    QCOMPARE(Regelpruefung::einigkeitPruefen(m_tabelle, butter + u";+;;;+"_s).size(), 2);
}

QTEST_GUILESS_MAIN(TestRegelpruefung)
#include "TestRegelpruefung.moc"
