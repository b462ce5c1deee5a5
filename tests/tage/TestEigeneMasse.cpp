// The measures that the user gave foods outlast the program, and what stands in the way is told.

#include "EigeneMasse.h"
#include "Merkdateitest.h"

#include <QFileInfo>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const QString suppe = u"Omas \"Suppe\""_s;
const Mass teller = {u"Teller"_s, u"Teller"_s, u"plate"_s, u"plates"_s, 0.1 + 0.2};
const Mass schale = {u"Schüssel"_s, u"Schüsseln"_s, u"bowl"_s, u"bowls"_s, 2000};

const QByteArray kopf = R"({"format":"Mahlberg measures","version":1,"foods":[)";
const QByteArray gutes =
    R"({"one":"Glas","many":"Gläser","oneEn":"glass","manyEn":"glasses","grams":200})";

QByteArray speise(const QByteArray &name, const QByteArray &masse)
{
    return R"({"food":")" + name + R"(","measures":[)" + masse + "]}";
}

} // namespace

class TestEigeneMasse : public Merkdateitest
{
    Q_OBJECT

public:
    TestEigeneMasse() : Merkdateitest(u"Masse.json"_s) {}

private Q_SLOTS:
    void nothingIsMadeBeforeTheFirstMeasure();
    void measuresComeBackAsTheyWereAndInTheirOrder();
    void theFileHasItsForm();
    void aFoodWithoutMeasuresIsTakenOut();
    void everyChangeIsToldOnce();
    void whatIsNotUnderstoodIsKeptBeside_data();
    void whatIsNotUnderstoodIsKeptBeside();
    void gramsAtTheirLimitsAreRead();
    void aNewerFileIsReadAndNotWritten();
    void whatCanNotBeReadIsNotWrittenOver_data();
    void whatCanNotBeReadIsNotWrittenOver();
    void whatCanNotBeWrittenHoldsAndIsWrittenLater_data();
    void whatCanNotBeWrittenHoldsAndIsWrittenLater();
    void whatCouldNotBeWrittenCanBeTriedAgain();
    void withoutAChangeNothingIsWritten();
    void aFormerNameLeadsToTheNameOfToday();
    void measuresUnderTheNameOfTodayGoBeforeThoseOfAFormerOne();

private:
    bool merke() const override { return EigeneMasse(path()).setze(suppe, {teller}); }
    QList<Mass> gesicherte(const QString &schluessel) const
    {
        return EigeneMasse(path()).masseFuer(schluessel);
    }
};

void TestEigeneMasse::nothingIsMadeBeforeTheFirstMeasure()
{
    EigeneMasse masse(path());
    QVERIFY(masse.masseFuer(suppe).isEmpty());
    QVERIFY(masse.masseFuer({}).isEmpty());
    QVERIFY(masse.setze(suppe, {}));
    QVERIFY(masse.sichere());
    QVERIFY(!masse.istGesperrt());
    QVERIFY(masse.istGesichert());
    QVERIFY(masse.hindernis().isNull());
    QVERIFY(!QFileInfo::exists(path()));
}

void TestEigeneMasse::measuresComeBackAsTheyWereAndInTheirOrder()
{
    EigeneMasse masse(path());
    QVERIFY(masse.setze(suppe, {teller, schale}));
    QVERIFY(masse.setze(u"Apfel"_s, {schale}));
    const EigeneMasse spaeter(path());
    QCOMPARE(spaeter.masseFuer(suppe), (QList<Mass>{teller, schale}));
    QCOMPARE(spaeter.masseFuer(u"Apfel"_s), QList<Mass>{schale});
    QVERIFY(spaeter.masseFuer(u"apfel"_s).isEmpty());
    QVERIFY(spaeter.hindernis().isNull());
}

void TestEigeneMasse::theFileHasItsForm()
{
    lege(kopf + speise("Saft", gutes) + "]}");
    EigeneMasse masse(path());
    QCOMPARE(masse.masseFuer(u"Saft"_s),
             (QList<Mass>{{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 200}}));
    QVERIFY(masse.setze(suppe, {teller}));
    QVERIFY(bytes().contains(R"("format": "Mahlberg measures")"));
    QVERIFY(bytes().contains(R"("version": 1)"));
    QVERIFY(bytes().contains(R"("oneEn": "plate")"));
}

void TestEigeneMasse::aFoodWithoutMeasuresIsTakenOut()
{
    EigeneMasse masse(path());
    QVERIFY(masse.setze(suppe, {teller}));
    QVERIFY(masse.setze(u"Apfel"_s, {schale}));
    QVERIFY(masse.setze(suppe, {}));
    QVERIFY(gesicherte(suppe).isEmpty());
    QCOMPARE(gesicherte(u"Apfel"_s), QList<Mass>{schale});
    QVERIFY(masse.setze(u"Apfel"_s, {}));
    QCOMPARE(m_ordner->dateien(), QStringList());
}

void TestEigeneMasse::everyChangeIsToldOnce()
{
    EigeneMasse masse(path());
    const QSignalSpy geaendert(&masse, &EigeneMasse::geaendert);
    masse.setze(suppe, {teller});
    QCOMPARE(geaendert.count(), 1);
    masse.setze(suppe, {teller});
    QCOMPARE(geaendert.count(), 1);
    masse.setze(suppe, {});
    QCOMPARE(geaendert.count(), 2);
}

void TestEigeneMasse::whatIsNotUnderstoodIsKeptBeside_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<int>("gelesen"); // measures of the food "Saft"
    const QByteArray saft = speise("Saft", gutes);
    const auto ohne = [](const QByteArray &feld) {
        return QByteArray(gutes).replace(feld, R"("x")");
    };
    QTest::newRow("nothing in it") << QByteArray("") << 0;
    QTest::newRow("a letter") << QByteArray("Liebe Frau Muster,\n") << 0;
    QTest::newRow("JSON of something else")
        << QByteArray(R"({"format":"Mahlberg diary","version":1,"foods":[]})") << 0;
    QTest::newRow("no version") << QByteArray(R"({"format":"Mahlberg measures","foods":[]})") << 0;
    QTest::newRow("no list") << QByteArray(
                                    R"({"format":"Mahlberg measures","version":1,"foods":{}})")
                             << 0;
    QTest::newRow("cut off") << kopf + saft << 0;
    QTest::newRow("a food without a name") << kopf + saft + "," + speise("", gutes) + "]}" << 1;
    QTest::newRow("a food without measures") << kopf + speise("Tee", "") + "," + saft + "]}" << 1;
    QTest::newRow("a food twice") << kopf + saft + "," + speise("Saft", gutes + "," + gutes) + "]}"
                                  << 1;
    QTest::newRow("a food that is none") << kopf + "7," + saft + "]}" << 1;
    QTest::newRow("no name of one")
        << kopf + speise("Saft", gutes + "," + ohne(R"("one")")) + "]}" << 1;
    QTest::newRow("no name of several")
        << kopf + speise("Saft", ohne(R"("many")") + "," + gutes) + "]}" << 1;
    QTest::newRow("no English name of one")
        << kopf + speise("Saft", gutes + "," + ohne(R"("oneEn")")) + "]}" << 1;
    QTest::newRow("no English name of several")
        << kopf + speise("Saft", gutes + "," + ohne(R"("manyEn")")) + "]}" << 1;
    QTest::newRow("no grams") << kopf + speise("Saft", ohne(R"("grams")") + "," + gutes) + "]}"
                              << 1;
    QTest::newRow("weightless") << kopf + speise("Saft", QByteArray(gutes).replace("200", "0")) +
                                       "]}"
                                << 0;
    QTest::newRow("less than weightless")
        << kopf + speise("Saft", QByteArray(gutes).replace("200", "-1")) + "]}" << 0;
    QTest::newRow("too heavy") << kopf +
                                      speise("Saft", QByteArray(gutes).replace("200", "2000.1")) +
                                      "]}"
                               << 0;
}

void TestEigeneMasse::whatIsNotUnderstoodIsKeptBeside()
{
    QFETCH(const QByteArray, inhalt);
    QFETCH(const int, gelesen);
    lege(inhalt);
    EigeneMasse masse(path());
    QCOMPARE(masse.masseFuer(u"Saft"_s).size(), gelesen);
    QVERIFY(!masse.istGesperrt());
    const QStringList kopien =
        QDir(m_ordner->path(u"."_s)).entryList({u"Masse *.json"_s}, QDir::Files);
    QCOMPARE(kopien.size(), 1);
    QVERIFY(masse.hindernis().contains(m_ordner->path(kopien.constFirst())));
    QVERIFY(masse.setze(suppe, {teller}));
    QCOMPARE(gesicherte(suppe), QList<Mass>{teller});
    QCOMPARE(gesicherte(u"Saft"_s).size(), gelesen);
    QVERIFY(EigeneMasse(path()).hindernis().isNull());
    istKopie(m_ordner->path(kopien.constFirst()), inhalt);
}

void TestEigeneMasse::gramsAtTheirLimitsAreRead()
{
    lege(kopf + speise("Saft", QByteArray(gutes).replace("200", "2000")) + "," +
         speise("Tee", QByteArray(gutes).replace("200", "0.01")) + "]}");
    const EigeneMasse masse(path());
    QCOMPARE(masse.masseFuer(u"Saft"_s).constFirst().gramm, 2000.0);
    QCOMPARE(masse.masseFuer(u"Tee"_s).constFirst().gramm, 0.01);
    QVERIFY(masse.hindernis().isNull());
}

void TestEigeneMasse::aNewerFileIsReadAndNotWritten()
{
    lege(QByteArray(kopf).replace("1", "2") + speise("Saft", gutes) + R"(],"more":1})");
    const QByteArray vorher = bytes();
    EigeneMasse masse(path());
    QCOMPARE(masse.masseFuer(u"Saft"_s).size(), 1);
    QVERIFY(masse.istGesperrt());
    QVERIFY(masse.hindernis().contains(u"neueren"_s));
    const QSignalSpy geaendert(&masse, &EigeneMasse::geaendert);
    QVERIFY(!masse.setze(suppe, {teller}));
    QVERIFY(!masse.setze(u"Saft"_s, {}));
    QVERIFY(masse.sichere()); // nothing waits
    QVERIFY(masse.masseFuer(suppe).isEmpty());
    QCOMPARE(masse.masseFuer(u"Saft"_s).size(), 1);
    QCOMPARE(geaendert.count(), 0);
    QCOMPARE(bytes(), vorher);
}

void TestEigeneMasse::whatCanNotBeReadIsNotWrittenOver_data()
{
    lesestoerungen();
}

void TestEigeneMasse::whatCanNotBeReadIsNotWrittenOver()
{
    QFETCH(const Schritt, schritt);
    QVERIFY(EigeneMasse(path()).setze(suppe, {teller}));
    const QByteArray vorher = bytes();
    EigeneMasse masse(path());
    {
        const Stoerung stoerung(schritt);
        QVERIFY(masse.istGesperrt());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(masse.masseFuer(suppe).isEmpty());
    QVERIFY(!masse.hindernis().isEmpty());
    QVERIFY(!masse.setze(suppe, {schale}));
    QCOMPARE(bytes(), vorher);
}

void TestEigeneMasse::whatCanNotBeWrittenHoldsAndIsWrittenLater_data()
{
    schreibstoerungen();
}

void TestEigeneMasse::whatCanNotBeWrittenHoldsAndIsWrittenLater()
{
    QFETCH(const Schritt, schritt);
    EigeneMasse masse(path());
    QVERIFY(masse.setze(suppe, {teller}));
    const QByteArray vorher = bytes();
    const QSignalSpy gesagt(&masse, &EigeneMasse::sicherungGewechselt);
    const QSignalSpy geaendert(&masse, &EigeneMasse::geaendert);
    {
        const Stoerung stoerung(schritt);
        QVERIFY(!masse.setze(suppe, {schale}));
        QVERIFY(!masse.setze(u"Apfel"_s, {teller}));
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(geaendert.count(), 2);
    QVERIFY(!masse.istGesichert());
    QVERIFY(masse.hindernis().contains(u"nicht sichern"_s));
    QCOMPARE(masse.masseFuer(suppe), QList<Mass>{schale});
    QCOMPARE(bytes(), vorher);
    QVERIFY(masse.setze(u"Birne"_s, {teller}));
    QCOMPARE(gesagt.count(), 2);
    QVERIFY(masse.istGesichert());
    QVERIFY(masse.hindernis().isNull());
    QCOMPARE(gesicherte(suppe), QList<Mass>{schale});
    QCOMPARE(gesicherte(u"Apfel"_s), QList<Mass>{teller});
    QCOMPARE(gesicherte(u"Birne"_s), QList<Mass>{teller});
}

void TestEigeneMasse::whatCouldNotBeWrittenCanBeTriedAgain()
{
    EigeneMasse masse(path());
    {
        const Stoerung stoerung(Schritt::Schreiben);
        QVERIFY(!masse.setze(suppe, {teller}));
        QVERIFY(!masse.sichere());
        QVERIFY(!masse.setze(suppe, {teller}));
    }
    QVERIFY(masse.setze(suppe, {teller})); // as it was, and so there was only the writing to do
    QCOMPARE(gesicherte(suppe), QList<Mass>{teller});
    {
        const Stoerung stoerung(Schritt::Schreiben);
        QVERIFY(!masse.setze(suppe, {schale}));
    }
    QVERIFY(masse.sichere());
    QCOMPARE(gesicherte(suppe), QList<Mass>{schale});
}

void TestEigeneMasse::withoutAChangeNothingIsWritten()
{
    lege(kopf + speise("Saft", gutes) + "]}");
    const QByteArray vorher = bytes();
    EigeneMasse masse(path());
    QVERIFY(masse.setze(u"Saft"_s, masse.masseFuer(u"Saft"_s)));
    QVERIFY(masse.setze(suppe, {}));
    QVERIFY(masse.sichere());
    QCOMPARE(bytes(), vorher);
}

void TestEigeneMasse::aFormerNameLeadsToTheNameOfToday()
{
    QVERIFY(EigeneMasse(path()).setze(u"Apfel, roh"_s, {teller}));
    EigeneMasse masse(path(), {{u"Apfel, roh"_s, u"Äpfel (Apfel), roh"_s}});
    QCOMPARE(masse.masseFuer(u"Äpfel (Apfel), roh"_s), QList<Mass>{teller});
    QVERIFY(masse.masseFuer(u"Apfel, roh"_s).isEmpty());
    QVERIFY(masse.setze(u"Äpfel (Apfel), roh"_s, {}));
    QVERIFY(EigeneMasse(path(), {{u"Apfel, roh"_s, u"Äpfel (Apfel), roh"_s}})
                .masseFuer(u"Äpfel (Apfel), roh"_s)
                .isEmpty());
}

void TestEigeneMasse::measuresUnderTheNameOfTodayGoBeforeThoseOfAFormerOne()
{
    {
        EigeneMasse masse(path());
        QVERIFY(masse.setze(u"Alt"_s, {teller}));
        QVERIFY(masse.setze(u"Neu"_s, {schale}));
    }
    EigeneMasse masse(path(), {{u"Alt"_s, u"Neu"_s}});
    QCOMPARE(masse.masseFuer(u"Neu"_s), QList<Mass>{schale});
    QCOMPARE(masse.masseFuer(u"Alt"_s), QList<Mass>{teller});
}

QTEST_GUILESS_MAIN(TestEigeneMasse)
#include "TestEigeneMasse.moc"
