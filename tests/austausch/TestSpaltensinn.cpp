#include "Spaltensinn.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Art = Spaltensinn::Art;

/// What headings mean.
class TestSpaltensinn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headingsAreUnderstood_data();
    void headingsAreUnderstood();
    void eachPlaceIsFilledOnce_data();
    void eachPlaceIsFilledOnce();
    void portionsAreSeen();
    void figuresComeIntoTheRecordsUnit_data();
    void figuresComeIntoTheRecordsUnit();
    void everyMeaningHasAName();
};

namespace {

/// The meaning by its German name; "" is nothing.
QString wort(const Spaltensinn &sinn)
{
    return sinn.art == Art::Nichts ? QString() : inWorten(sinn);
}

} // namespace

void TestSpaltensinn::headingsAreUnderstood_data()
{
    QTest::addColumn<QString>("sinn");
    const std::pair<const char *, const char *> zeilen[] = {
        {"Name", "Lebensmittel"},
        {"Lebensmittel", "Lebensmittel"},
        {"Bezeichnung", "Lebensmittel"},
        {"Food", "Lebensmittel"},
        {"product_name", "Lebensmittel"},
        {"Energie (kcal)", "Energie (kcal)"},
        {"Energie [kJ]", "Energie (kJ)"},
        {"Energie in kJ", "Energie (kJ)"},
        {"kcal", "Energie (kcal)"},
        {"kJ", "Energie (kJ)"},
        {"kcal/100g", "Energie (kcal)"},
        {"Brennwert kJ je 100 g", "Energie (kJ)"},
        {"Brennwert", "Energie (kcal)"},
        {"energy-kj_100g", "Energie (kJ)"},
        {"Energy, kcal per 100 g", "Energie (kcal)"},
        {"Kalorien", "Energie (kcal)"},
        {"Eiweiß", "Protein (g)"},
        {"EIWEISS (G)", "Protein (g)"},
        {"Protein (mg)", "Protein (mg)"},
        {"Proteins", "Protein (g)"},
        {"Fett gesamt (g)", "Fett (g)"},
        {"Total fat", "Fett (g)"},
        {"Kohlenhydrate, verfügbar", "Kohlenhydrate (g)"},
        {"Carbs", "Kohlenhydrate (g)"},
        {"Ballaststoffe (g)", "Ballaststoffe (g)"},
        {"Nahrungsfasern", "Ballaststoffe (g)"},
        {"Dietary fibre", "Ballaststoffe (g)"},
        {"Fiber", "Ballaststoffe (g)"},
        {"Cholesterin", "Cholesterin (mg)"},
        {"Cholesterol (g)", "Cholesterin (g)"},
        {"Natrium (mg)", "Natrium (mg)"},
        {"Natrium g", "Natrium (g)"},
        {"Sodium", "Natrium (mg)"},
        {"Na", "Natrium (mg)"},
        {"Salz (g)", "Salz (g)"},
        {"salt_100g", "Salz (g)"},
        {"Salz (mg)", ""},
        {"Kalium", "Kalium (mg)"},
        {"K (mg)", "Kalium (mg)"},
        {"Potassium", "Kalium (mg)"},
        {"Kalzium", "Calcium (mg)"},
        {"Phosphor (mg)", "Phosphat (mg)"},
        {"Phosphorus", "Phosphat (mg)"},
        {"Magnesium", "Magnesium (mg)"},
        {"Mg", "Magnesium (mg)"},
        {"Mg (mg)", "Magnesium (mg)"},
        {"mg", ""},
        {"Eisen (mg)", "Eisen (mg)"},
        {"Iron (µg)", "Eisen (µg)"},
        {"Vitamin A (µg)", "Vitamin A (µg)"},
        {"Vitamin A (\u03BCg)", "Vitamin A (µg)"},
        {"Vitamin A (mcg)", "Vitamin A (µg)"},
        {"Vitamin A (ug)", "Vitamin A (µg)"},
        {"Vit. A [mg]", "Vitamin A (mg)"},
        {"Vitamin A (IE)", ""},
        {"Vitamin-B1", "Vitamin B1 (mg)"},
        {"Thiamin (Vitamin B1)", "Vitamin B1 (mg)"},
        {"B2 (mg)", "Vitamin B2 (mg)"},
        {"Riboflavin", "Vitamin B2 (mg)"},
        {"Vit B6 (µg)", "Vitamin B6 (µg)"},
        {"Ascorbic acid", "Vitamin C (mg)"},
        {"Vitamin C", "Vitamin C (mg)"},
        {"Übergewicht", "Übergewicht"},
        {"Overweight", "Übergewicht"},
        {"Diabetes", "Diabetes"},
        {"Gout", "Gicht"},
        {"Herz und Kreislauf", "Herz und Kreislauf"},
        {"Heart and circulation", "Herz und Kreislauf"},
        {"HKK", "Herz und Kreislauf"},
        {"Portion (g)", "Gewicht der Portion (g)"},
        {"Serving size", "Gewicht der Portion (g)"},
        {"davon Zucker (g)", ""},
        {"davon gesättigte Fettsäuren", ""},
        {"Energie (MJ)", ""},
        {"Energie kcal kJ", ""},
        {"Protein (kcal)", ""},
        {"Gicht (mg)", ""},
        {"Preis", ""},
        {"", ""},
    };
    for (const auto &[ueberschrift, sinn] : zeilen) {
        QTest::newRow(ueberschrift) << QString::fromUtf8(sinn);
    }
}

void TestSpaltensinn::headingsAreUnderstood()
{
    const QString ueberschrift = QString::fromUtf8(QTest::currentDataTag());
    QTEST(wort(deuteUeberschriften({ueberschrift}).spalten.first()), "sinn");
}

void TestSpaltensinn::eachPlaceIsFilledOnce_data()
{
    QTest::addColumn<QStringList>("ueberschriften");
    QTest::addColumn<QStringList>("sinn");
    QTest::newRow("kJ before kcal") << QStringList{u"Energie (kJ)"_s, u"Energie (kcal)"_s}
                                    << QStringList{{}, u"Energie (kcal)"_s};
    QTest::newRow("kcal before kJ") << QStringList{u"Energie (kcal)"_s, u"Energie (kJ)"_s}
                                    << QStringList{u"Energie (kcal)"_s, {}};
    QTest::newRow("sodium before salt")
        << QStringList{u"Salz (g)"_s, u"Natrium (mg)"_s} << QStringList{{}, u"Natrium (mg)"_s};
    QTest::newRow("the first of two alike")
        << QStringList{u"Fett"_s, u"Fat"_s} << QStringList{u"Fett (g)"_s, {}};
    QTest::newRow("per 100 g before a portion")
        << QStringList{u"Fett pro Portion"_s, u"Fett je 100 g"_s} << QStringList{{}, u"Fett (g)"_s};
    QTest::newRow("per 100 g in kJ before a portion in kcal")
        << QStringList{u"kcal per serving"_s, u"kJ per 100 g"_s}
        << QStringList{{}, u"Energie (kJ)"_s};
}

void TestSpaltensinn::eachPlaceIsFilledOnce()
{
    QFETCH(QStringList, ueberschriften);
    QStringList gefunden;
    const Spaltendeutung deutung = deuteUeberschriften(ueberschriften);
    for (const Spaltensinn &sinn : deutung.spalten) {
        gefunden << wort(sinn);
    }
    QTEST(gefunden, "sinn");
    QVERIFY(!deutung.jePortion);
}

void TestSpaltensinn::portionsAreSeen()
{
    QVERIFY(deuteUeberschriften({u"Name"_s, u"Fett (g) je Portion"_s}).jePortion);
    QVERIFY(
        deuteUeberschriften({u"Name"_s, u"Fat per serving"_s, u"Serving size (g)"_s}).jePortion);
    QVERIFY(!deuteUeberschriften({u"Name"_s, u"Fett"_s, u"Portion (g)"_s}).jePortion);
    QVERIFY(!deuteUeberschriften({u"Produkt je Portion"_s, u"Fett"_s}).jePortion);
}

void TestSpaltensinn::figuresComeIntoTheRecordsUnit_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<Lesemass>("mass");
    QTest::addColumn<double>("zahl");
    QTest::addColumn<double>("eigene");
    QTest::newRow("kcal") << Naehrwert::kal << Lesemass::Kilokalorie << 7.1 << 7.1;
    QTest::newRow("kJ") << Naehrwert::kal << Lesemass::Kilojoule << 280.0 << 67.0;
    QTest::newRow("g as mg") << Naehrwert::fett << Lesemass::Milligramm << 1500.0 << 1.5;
    QTest::newRow("mg as g") << Naehrwert::chol << Lesemass::Gramm << 0.25 << 250.0;
    QTest::newRow("mg as µg") << Naehrwert::b1 << Lesemass::Mikrogramm << 50.0 << 0.05;
    QTest::newRow("µg as mg") << Naehrwert::vita << Lesemass::Milligramm << 0.5 << 500.0;
    QTest::newRow("sodium in g") << Naehrwert::na << Lesemass::Gramm << 0.5 << 500.0;
    QTest::newRow("salt") << Naehrwert::na << Lesemass::GrammSalz << 1.25 << 500.0;
}

void TestSpaltensinn::figuresComeIntoTheRecordsUnit()
{
    QFETCH(Naehrwert, wert);
    QFETCH(Lesemass, mass);
    QFETCH(double, zahl);
    const Spaltensinn sinn = {.art = Art::Wert, .wert = wert, .mass = mass};
    QTEST(imEigenenMass(zahl, sinn), "eigene");
    QCOMPARE(istEigenesMass(sinn), mass == Lesemass::Kilokalorie);
}

void TestSpaltensinn::everyMeaningHasAName()
{
    // nothing, name, energy 2, four in g with 2 units, eleven in mg with 3, vitamin A 2, salt,
    // four ratings, the portion
    QCOMPARE(alleSpaltensinne().size(), 2 + 2 + 4 * 2 + 11 * 3 + 2 + 1 + 4 + 1);
    QSet<QString> worte;
    for (const Spaltensinn &sinn : alleSpaltensinne()) {
        worte.insert(inWorten(sinn));
    }
    QCOMPARE(worte.size(), alleSpaltensinne().size());
}

QTEST_GUILESS_MAIN(TestSpaltensinn)
#include "TestSpaltensinn.moc"
