// Two visits side by side, and what follows from a visit: the height that counts and the energy
// that is needed.

#include "Besuchsvergleich.h"
#include "Messreihe.h"
#include "Satzspalten.h"

#include <QLocale>
#include <QTest>

class TestBesuchsvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }

    void aVisitWithoutMeasuresHasAllRows();
    void twoVisitsStandSideBySide();
    void whatWasNotMeasuredIsNotNothing();
    void aDifferenceIsThatOfTheFiguresOneReads();
    void daysAndWeeksLieBetween_data();
    void daysAndWeeksLieBetween();
    void theHeightThatCounts_data();
    void theHeightThatCounts();
    void theEnergyRequirement_data();
    void theEnergyRequirement();
    void theEnergyOfChildrenIsNotWorkedOut_data();
    void theEnergyOfChildrenIsNotWorkedOut();
    void aPlanIsMeasuredAgainstTheVisitBefore_data();
    void aPlanIsMeasuredAgainstTheVisitBefore();
};

namespace {

Besuch am(const QDate &tag)
{
    Besuch besuch;
    besuch.kennung = tag.toString(Qt::ISODate);
    besuch.datum = tag;
    return besuch;
}

Klientenakte akteVon(Personengeschlecht geschlecht, const QList<Besuch> &besuche)
{
    Klientenakte akte;
    akte.person.geschlecht = geschlecht;
    akte.besuche = besuche;
    return akte;
}

Vergleichszeile zeile(const char *beschriftung, const char *links, const char *rechts,
                      const char *unterschied)
{
    return {QString::fromUtf8(beschriftung), QString::fromUtf8(links), QString::fromUtf8(rechts),
            QString::fromUtf8(unterschied)};
}

/// A woman's first visit: hiking on an hour and a half, of which one counts.
Besuch ersterBesuch()
{
    Besuch besuch = am(QDate(2026, 1, 5));
    besuch.gewicht = 72;
    besuch.groesse = 1.6;
    besuch.taille = 99;
    besuch.huefte = 110;
    besuch.aktivitaet = Aktivitaet::Leicht;
    besuch.reduktion = true;
    besuch.sport = QStringLiteral("Wandern");
    besuch.sportdauer = 1.5;
    besuch.notiz = QStringLiteral("isst spät");
    return besuch;
}

/// The height was not measured again.
Besuch zweiterBesuch()
{
    Besuch besuch = am(QDate(2026, 3, 5));
    besuch.gewicht = 64;
    besuch.taille = 88;
    besuch.huefte = 110;
    besuch.aktivitaet = Aktivitaet::Mittel;
    besuch.reduktion = false;
    return besuch;
}

/// Fails with the first row that is not as expected.
void vergleiche(const QList<Vergleichszeile> &zeilen, const QList<Vergleichszeile> &erwartet)
{
    for (qsizetype i = 0; i < qMin(zeilen.size(), erwartet.size()); ++i) {
        QCOMPARE(zeilen[i].beschriftung, erwartet[i].beschriftung);
        QCOMPARE(zeilen[i].links, erwartet[i].links);
        QCOMPARE(zeilen[i].rechts, erwartet[i].rechts);
        QCOMPARE(zeilen[i].unterschied, erwartet[i].unterschied);
    }
    QCOMPARE(zeilen.size(), erwartet.size());
}

} // namespace

void TestBesuchsvergleich::aVisitWithoutMeasuresHasAllRows()
{
    constexpr qsizetype folgezahlen = 3; // body mass index, waist to hip, energy
    const qsizetype felder = static_cast<qsizetype>(spalten<Besuch>().size());
    const Besuch leer = am(QDate(2026, 1, 5));
    const auto zeilen = besucheVergleichen(akteVon(Personengeschlecht::Frau, {leer}), leer, leer);
    QCOMPARE(zeilen.size(), felder + folgezahlen);
    for (const Vergleichszeile &eine : zeilen.sliced(1)) { // behind the day
        QVERIFY2(eine.links.isNull() && eine.rechts.isNull() && eine.unterschied.isNull(),
                 qPrintable(eine.beschriftung));
    }
}

void TestBesuchsvergleich::twoVisitsStandSideBySide()
{
    // 72 kg · 20 · 1.1 = 1584 kcal, hiking 320 kcal: 1904; less a fifth (380): 1524.
    // 64 kg · 20 · 1.3 = 1664 kcal.
    const QList<Vergleichszeile> erwartet = {
        zeile("Datum", "05.01.2026", "05.03.2026", "+59 Tage (8,4 Wochen)"),
        zeile("Gewicht", "72,0 kg", "64,0 kg", "-8,0 kg"),
        zeile("Größe", "1,60 m", nullptr, nullptr),
        zeile("BMI", "28,1 kg/m²", "25,0 kg/m²", "-3,1 kg/m²"),
        zeile("Taille", "99,0 cm", "88,0 cm", "-11,0 cm"),
        zeile("Hüfte", "110,0 cm", "110,0 cm", "0,0 cm"),
        zeile("Taille zu Hüfte", "0,90", "0,80", "-0,10"),
        zeile("Tätigkeit", "leichte Tätigkeit", "mittlere Tätigkeit", nullptr),
        zeile("Gewichtsreduktion", "ja", "nein", nullptr),
        zeile("Sport", "Wandern", nullptr, nullptr),
        zeile("Sport am Tag", "1,5 h", nullptr, nullptr),
        zeile("Energiebedarf am Tag", "1524 kcal", "1664 kcal", "+140 kcal"),
        zeile("Notiz", "isst spät", nullptr, nullptr),
    };
    const Klientenakte akte = akteVon(Personengeschlecht::Frau, {ersterBesuch(), zweiterBesuch()});
    vergleiche(besucheVergleichen(akte, akte.besuche[0], akte.besuche[1]), erwartet);
}

void TestBesuchsvergleich::whatWasNotMeasuredIsNotNothing()
{
    Besuch links = ersterBesuch();
    links.gewicht.reset();
    links.huefte = 0;
    Besuch rechts = zweiterBesuch();
    rechts.taille.reset();
    rechts.sport = QStringLiteral(""); // that there is none is known
    const Klientenakte akte = akteVon(Personengeschlecht::Frau, {links, rechts});
    const auto zeilen = besucheVergleichen(akte, links, rechts);
    vergleiche({zeilen[1], zeilen[3], zeilen[4], zeilen[5], zeilen[6], zeilen[9], zeilen[11]},
               {zeile("Gewicht", nullptr, "64,0 kg", nullptr),
                zeile("BMI", nullptr, "25,0 kg/m²", nullptr),
                zeile("Taille", "99,0 cm", nullptr, nullptr),
                zeile("Hüfte", "0,0 cm", "110,0 cm", "+110,0 cm"),
                zeile("Taille zu Hüfte", nullptr, nullptr, nullptr),
                zeile("Sport", "Wandern", "kein Sport", nullptr),
                zeile("Energiebedarf am Tag", nullptr, "1664 kcal", nullptr)});
}

void TestBesuchsvergleich::aDifferenceIsThatOfTheFiguresOneReads()
{
    Besuch links = ersterBesuch();
    links.gewicht = 72.04; // 28.14 kg/m²
    Besuch rechts = ersterBesuch();
    rechts.gewicht = 72.1; // 28.16 kg/m²
    const Klientenakte akte = akteVon(Personengeschlecht::Frau, {links, rechts});
    vergleiche({besucheVergleichen(akte, links, rechts).at(3)},
               {zeile("BMI", "28,1 kg/m²", "28,2 kg/m²", "+0,1 kg/m²")});
}

void TestBesuchsvergleich::daysAndWeeksLieBetween_data()
{
    QTest::addColumn<QDate>("links");
    QTest::addColumn<QDate>("rechts");
    QTest::addColumn<QString>("worte"); // null: none
    const auto spanne = [](const char *name, int tage, const char *worte) {
        const QDate links(2026, 11, 20);
        QTest::newRow(name) << links << links.addDays(tage) << QString::fromUtf8(worte);
    };
    spanne("none", 0, "0 Tage");
    spanne("one day", 1, "+1 Tag");
    spanne("the day before", -1, "-1 Tag");
    spanne("not yet a week", 6, "+6 Tage");
    spanne("a week", 7, "+7 Tage (1 Woche)");
    spanne("a little more", 8, "+8 Tage (1,1 Wochen)");
    spanne("two weeks", 14, "+14 Tage (2 Wochen)");
    spanne("two weeks before", -14, "-14 Tage (2 Wochen)");
    spanne("a year", 365, "+365 Tage (52,1 Wochen)");
    QTest::newRow("the day is not known") << QDate(2026, 11, 20) << QDate() << QString();
}

void TestBesuchsvergleich::daysAndWeeksLieBetween()
{
    QFETCH(const QDate, links);
    QFETCH(const QDate, rechts);
    QTEST(besucheVergleichen({}, am(links), am(rechts)).constFirst().unterschied, "worte");
}

void TestBesuchsvergleich::theHeightThatCounts_data()
{
    QTest::addColumn<int>("besuch");
    QTest::addColumn<QList<double>>("groessen"); // 0: not measured
    QTest::addColumn<std::optional<double>>("groesse");
    const auto reihe = [](const char *name, int besuch, const QList<double> &groessen,
                          std::optional<double> groesse) {
        QTest::newRow(name) << besuch << groessen << groesse;
    };
    reihe("its own", 1, {1.7, 1.6, 1.8}, 1.6);
    reihe("the one before", 2, {1.7, 1.6, 0}, 1.6);
    reihe("the latest known before", 2, {1.7, 0, 0}, 1.7);
    reihe("before goes over later", 1, {1.7, 0, 1.8}, 1.7);
    reihe("the first one later", 0, {0, 1.6, 1.8}, 1.6);
    reihe("none", 1, {0, 0, 0}, std::nullopt);
}

void TestBesuchsvergleich::theHeightThatCounts()
{
    QFETCH(const int, besuch);
    QFETCH(const QList<double>, groessen);
    QFETCH(const std::optional<double>, groesse);
    for (const std::optional<double> &nichts : {std::optional<double>(), std::optional(0.0)}) {
        QList<Besuch> besuche;
        for (const double eine : groessen) {
            besuche << am(QDate(2026, 1, 1).addMonths(static_cast<int>(besuche.size())));
            besuche.last().groesse = eine == 0 ? nichts : eine;
        }
        QCOMPARE(groesseBei(besuche[besuch], besuche), groesse);
    }
    // Of the day itself it is known as well.
    Besuch davor = am(QDate(2025, 12, 31));
    davor.groesse = 1.5;
    Besuch selberTag = am(QDate(2026, 1, 1));
    selberTag.groesse = 1.9;
    QCOMPARE(groesseBei(am(QDate(2026, 1, 1)), {davor, selberTag}), std::optional(1.9));
}

void TestBesuchsvergleich::theEnergyRequirement_data()
{
    using enum Personengeschlecht;
    QTest::addColumn<Personengeschlecht>("geschlecht");
    QTest::addColumn<Besuch>("besuch");
    QTest::addColumn<int>("kal"); // −1: not known
    const auto fall = [](const char *name, Personengeschlecht geschlecht, int kal,
                         void (*aendere)(Besuch &)) {
        Besuch besuch = ersterBesuch();
        aendere(besuch);
        QTest::newRow(name) << geschlecht << besuch << kal;
    };
    fall("a woman who wants to lose weight", Frau, 1524, [](Besuch &) {});
    // 72 · 20 · 1.1 · 1.2 = 1900.8, and 320: 2220; less 444.
    fall("a man", Mann, 1776, [](Besuch &) {});
    fall("no reduction", Frau, 1904, [](Besuch &besuch) { besuch.reduktion = false; });
    fall("reduction not told", Frau, 1904, [](Besuch &besuch) { besuch.reduktion.reset(); });
    // 1440 · 1.5 = 2160, and 320: 2480; less 496.
    fall("hard work", Frau, 1984, [](Besuch &besuch) { besuch.aktivitaet = Aktivitaet::Schwer; });
    // 1584 and 2 · 320: 2224; less 444.
    fall("two whole hours", Frau, 1780, [](Besuch &besuch) { besuch.sportdauer = 2; });
    fall("not quite two hours", Frau, 1524, [](Besuch &besuch) { besuch.sportdauer = 1.99; });
    // 1584 less 316.
    fall("hours not told", Frau, 1268, [](Besuch &besuch) { besuch.sportdauer.reset(); });
    fall("no sport", Frau, 1268, [](Besuch &besuch) { besuch.sport = QStringLiteral(""); });
    fall("sport not told", Frau, 1268, [](Besuch &besuch) { besuch.sport.reset(); });
    fall("a sport in no table", Frau, 1268,
         [](Besuch &besuch) { besuch.sport = QStringLiteral("Quidditch"); });
    fall("weight not known", Frau, -1, [](Besuch &besuch) { besuch.gewicht.reset(); });
    fall("activity not known", Frau, -1, [](Besuch &besuch) { besuch.aktivitaet.reset(); });
    fall("gender not known", Unbekannt, -1, [](Besuch &) {});
}

void TestBesuchsvergleich::theEnergyRequirement()
{
    QFETCH(const Personengeschlecht, geschlecht);
    QFETCH(const Besuch, besuch);
    const Klientenakte akte = akteVon(geschlecht, {besuch});
    QTEST(energiebedarfBei(akte.person, besuch).value_or(-1), "kal");
}

void TestBesuchsvergleich::theEnergyOfChildrenIsNotWorkedOut_data()
{
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<bool>("bekannt");
    QTest::newRow("the day before the tenth birthday") << QDate(2016, 1, 6) << false;
    QTest::newRow("the tenth birthday") << QDate(2016, 1, 5) << true;
    QTest::newRow("a grown-up") << QDate(1980, 1, 5) << true;
    QTest::newRow("birth not known") << QDate() << true;
}

void TestBesuchsvergleich::theEnergyOfChildrenIsNotWorkedOut()
{
    QFETCH(const QDate, geburt);
    Person person;
    person.geschlecht = Personengeschlecht::Frau;
    person.geburt = geburt;
    QTEST(energiebedarfBei(person, ersterBesuch()).has_value(), "bekannt");
}

void TestBesuchsvergleich::aPlanIsMeasuredAgainstTheVisitBefore_data()
{
    QTest::addColumn<QDate>("tag");
    QTest::addColumn<int>("kal"); // 0: not known
    QTest::newRow("before the first visit") << QDate(2026, 1, 4) << 0;
    QTest::newRow("on the day of the first visit") << QDate(2026, 1, 5) << 1524;
    QTest::newRow("the day before the second visit") << QDate(2026, 3, 4) << 1524;
    QTest::newRow("on the day of the second visit") << QDate(2026, 3, 5) << 1664;
    QTest::newRow("after a visit at which nobody was weighed") << QDate(2026, 4, 2) << 0;
    QTest::newRow("the day is not known") << QDate() << 0;
}

void TestBesuchsvergleich::aPlanIsMeasuredAgainstTheVisitBefore()
{
    QFETCH(const QDate, tag);
    const Klientenakte akte =
        akteVon(Personengeschlecht::Frau, {ersterBesuch(), zweiterBesuch(), am(QDate(2026, 4, 1))});
    QTEST(energiebedarfAm(tag, akte), "kal");
}

QTEST_APPLESS_MAIN(TestBesuchsvergleich)
#include "TestBesuchsvergleich.moc"
