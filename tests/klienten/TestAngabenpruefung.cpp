// What is refused of what was typed about a person, and what is asked about once.

#include "Angabenpruefung.h"

#include <QTest>

using Art = Zweifel::Art;

namespace {

const QDate heute(2026, 11, 22);

Besuch am(const QDate &tag, std::optional<double> gewicht = {}, std::optional<double> groesse = {})
{
    Besuch besuch;
    besuch.kennung = tag.toString(Qt::ISODate);
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    besuch.groesse = groesse;
    return besuch;
}

} // namespace

class TestAngabenpruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsRefusedOfAPerson_data();
    void whatIsRefusedOfAPerson();
    void measuresThatAreAskedAbout_data();
    void measuresThatAreAskedAbout();
    void jumpsThatAreAskedAbout_data();
    void jumpsThatAreAskedAbout();
    void aJumpIsMeasuredFromTheLatestVisitBefore();
    void aVisitIsNotComparedWithItself();
    void daysThatAreAskedAbout();
    void ageInWholeYears_data();
    void ageInWholeYears();
};

void TestAngabenpruefung::whatIsRefusedOfAPerson_data()
{
    using Maengel = QList<Personenmangel>;
    QTest::addColumn<QString>("name");
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<Maengel>("erwartet");
    const QString anna = QStringLiteral("Anna");
    QTest::newRow("a name is enough") << anna << QDate() << Maengel{};
    QTest::newRow("no name") << QString() << QDate(1980, 1, 1)
                             << Maengel{Personenmangel::NameFehlt};
    QTest::newRow("blanks are no name")
        << QStringLiteral(" \t ") << QDate() << Maengel{Personenmangel::NameFehlt};
    QTest::newRow("born today") << anna << heute << Maengel{};
    QTest::newRow("born tomorrow")
        << anna << heute.addDays(1) << Maengel{Personenmangel::GeburtInZukunft};
    QTest::newRow("130 years today") << anna << QDate(1896, 11, 22) << Maengel{};
    QTest::newRow("130 years yesterday")
        << anna << QDate(1896, 11, 21) << Maengel{Personenmangel::GeburtUnmoeglich};
    QTest::newRow("both") << QString() << heute.addYears(5)
                          << Maengel{Personenmangel::NameFehlt, Personenmangel::GeburtInZukunft};
}

void TestAngabenpruefung::whatIsRefusedOfAPerson()
{
    QFETCH(const QString, name);
    QFETCH(const QDate, geburt);
    Person person;
    person.name = name;
    person.geburt = geburt;
    QTEST(maengel(person, heute), "erwartet");
}

void TestAngabenpruefung::measuresThatAreAskedAbout_data()
{
    QTest::addColumn<int>("mass"); // 0 weight, 1 height, 2 waist, 3 hip
    QTest::addColumn<double>("wert");
    QTest::addColumn<bool>("gefragt");
    const struct
    {
        const char *name;
        int mass;
        double wert;
        bool gefragt;
    } zeilen[] = {
        {"8 kg", 0, 8, true},
        {"just below 20 kg", 0, 19.9, true},
        {"20 kg", 0, 20, false},
        {"350 kg", 0, 350, false},
        {"more than 350 kg", 0, 350.1, true},
        {"0 kg", 0, 0, true},
        {"below 0 kg", 0, -70, true},
        {"3 m", 1, 3, true},
        {"0.9 m", 1, 0.9, false},
        {"2.3 m", 1, 2.3, false},
        {"centimetres for metres", 1, 172, true},
        {"a small waist", 2, 40, false},
        {"too small a waist", 2, 39.5, true},
        {"a big hip", 3, 250, false},
        {"too big a hip", 3, 251, true},
    };
    for (const auto &zeile : zeilen) {
        QTest::newRow(zeile.name) << zeile.mass << zeile.wert << zeile.gefragt;
    }
}

void TestAngabenpruefung::measuresThatAreAskedAbout()
{
    QFETCH(const int, mass);
    QFETCH(const double, wert);
    QFETCH(const bool, gefragt);
    constexpr std::optional<double> Besuch::*felder[] = {&Besuch::gewicht, &Besuch::groesse,
                                                         &Besuch::taille, &Besuch::huefte};
    Besuch besuch = am(heute);
    besuch.*felder[mass] = wert;
    const Art arten[] = {Art::Gewicht, Art::Groesse, Art::Taille, Art::Huefte};
    const QList<Zweifel> erwartet =
        gefragt ? QList<Zweifel>{{.art = arten[mass], .wert = wert}} : QList<Zweifel>{};
    QCOMPARE(zweifel(besuch, {}, {}, heute), erwartet);
}

void TestAngabenpruefung::jumpsThatAreAskedAbout_data()
{
    QTest::addColumn<int>("tage");
    QTest::addColumn<double>("vorher");
    QTest::addColumn<double>("jetzt");
    QTest::addColumn<bool>("gefragt");
    QTest::newRow("20 kg more than last week") << 7 << 80.0 << 100.0 << true;
    QTest::newRow("10 kg more than last week") << 7 << 80.0 << 90.0 << false;
    QTest::newRow("a little more than that") << 7 << 80.0 << 90.5 << true;
    QTest::newRow("10 kg less than last week") << 7 << 80.0 << 70.0 << false;
    QTest::newRow("a little less than that") << 7 << 80.0 << 69.5 << true;
    QTest::newRow("8 kg on one day") << 0 << 80.0 << 88.0 << false;
    QTest::newRow("more than 8 kg on one day") << 0 << 80.0 << 88.5 << true;
    QTest::newRow("50 kg in a year") << 364 << 150.0 << 100.0 << false;
}

void TestAngabenpruefung::jumpsThatAreAskedAbout()
{
    QFETCH(const int, tage);
    QFETCH(const double, vorher);
    QFETCH(const double, jetzt);
    QFETCH(const bool, gefragt);
    const QDate damals = heute.addDays(-tage);
    Besuch erster = am(damals, vorher);
    erster.kennung = QStringLiteral("der erste");
    const QList<Zweifel> erwartet =
        gefragt ? QList<Zweifel>{{Art::Gewichtssprung, jetzt, vorher, damals}} : QList<Zweifel>{};
    QCOMPARE(zweifel(am(heute, jetzt), {erster}, {}, heute), erwartet);
}

void TestAngabenpruefung::aJumpIsMeasuredFromTheLatestVisitBefore()
{
    const QList<Besuch> andere = {am(QDate(2026, 11, 15), 80.0), am(QDate(2026, 11, 1), 60.0),
                                  am(QDate(2026, 11, 20)), am(QDate(2026, 11, 29), 40.0)};
    QCOMPARE(zweifel(am(heute, 82.0), andere, {}, heute), QList<Zweifel>());
    QCOMPARE(zweifel(am(heute, 60.0), andere, {}, heute),
             (QList<Zweifel>{{Art::Gewichtssprung, 60.0, 80.0, QDate(2026, 11, 15)}}));
    // 5 cm, and 2 mm for each of the two weeks.
    QCOMPARE(zweifel(am(heute, {}, 1.753), {am(heute.addDays(-14), {}, 1.70)}, {}, heute),
             QList<Zweifel>());
    QCOMPARE(zweifel(am(heute, {}, 1.755), {am(heute.addDays(-14), {}, 1.70)}, {}, heute),
             (QList<Zweifel>{{Art::Groessensprung, 1.755, 1.70, heute.addDays(-14)}}));
}

void TestAngabenpruefung::aVisitIsNotComparedWithItself()
{
    const Besuch vorher = am(heute, 60.0);
    Besuch jetzt = vorher;
    jetzt.gewicht = 90.0;
    QCOMPARE(zweifel(jetzt, {vorher}, {}, heute), QList<Zweifel>());
}

void TestAngabenpruefung::daysThatAreAskedAbout()
{
    QCOMPARE(zweifel(am(heute), {}, heute, heute), QList<Zweifel>());
    QCOMPARE(zweifel(am(heute.addDays(1)), {}, {}, heute),
             (QList<Zweifel>{{.art = Art::InZukunft}}));
    QCOMPARE(zweifel(am(heute.addDays(-1)), {}, heute, heute),
             (QList<Zweifel>{{.art = Art::VorGeburt}}));
}

void TestAngabenpruefung::ageInWholeYears_data()
{
    QTest::addColumn<QDate>("tag");
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<int>("jahre"); // −1: none
    QTest::newRow("the day before a birthday") << QDate(2026, 3, 4) << QDate(1990, 3, 5) << 35;
    QTest::newRow("the birthday") << QDate(2026, 3, 5) << QDate(1990, 3, 5) << 36;
    QTest::newRow("the day of birth") << QDate(1990, 3, 5) << QDate(1990, 3, 5) << 0;
    QTest::newRow("before the birth") << QDate(1990, 3, 4) << QDate(1990, 3, 5) << -1;
    QTest::newRow("birth not known") << QDate(1990, 3, 4) << QDate() << -1;
    QTest::newRow("born on the 29th of February, on the 28th")
        << QDate(2026, 2, 28) << QDate(2000, 2, 29) << 25;
    QTest::newRow("born on the 29th of February, in March")
        << QDate(2026, 3, 1) << QDate(2000, 2, 29) << 26;
}

void TestAngabenpruefung::ageInWholeYears()
{
    QFETCH(const QDate, tag);
    QFETCH(const QDate, geburt);
    QTEST(alterAm(tag, geburt).value_or(-1), "jahre");
}

QTEST_APPLESS_MAIN(TestAngabenpruefung)
#include "TestAngabenpruefung.moc"
