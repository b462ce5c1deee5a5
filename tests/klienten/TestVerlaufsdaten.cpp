// What a course says in words, and whether there is a band to say it against.

#include "Verlaufsdaten.h"

#include <QLocale>
#include <QTest>

namespace {

const QDate heute(2026, 11, 22);

Besuch am(const QDate &tag, std::optional<double> gewicht, std::optional<double> groesse = {})
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    besuch.groesse = groesse;
    return besuch;
}

Person geborenAm(const QDate &geburt)
{
    Person person;
    person.geburt = geburt;
    return person;
}

Verlaufsdaten gewichte(const QList<Besuch> &besuche, const Person &person = {})
{
    return verlaufsdaten(person, besuche, Messgroesse::Gewicht, heute);
}

} // namespace

class TestVerlaufsdaten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void pointsAndBandBelongTogether();
    void theBandOfTheGrownUp_data();
    void theBandOfTheGrownUp();
    void whatIsSaidOfACourse_data();
    void whatIsSaidOfACourse();
    void whatIsSaidWithoutMeasures();
    void theBandIsNamed();
    void daysAreWrittenAsTheCountryDoes();
};

void TestVerlaufsdaten::pointsAndBandBelongTogether()
{
    const Verlaufsdaten daten =
        gewichte({am(heute, 80.0), am(heute.addDays(-9), 81.0, 2.0)}, geborenAm({1980, 5, 31}));
    QCOMPARE(daten.was, Messgroesse::Gewicht);
    QCOMPARE(daten.punkte, (QList<Messpunkt>{{heute.addDays(-9), 81.0}, {heute, 80.0}}));
    QCOMPARE(daten.band, (Zielband{.von = 74.0, .bis = 100.0, .unterBis = true}));
    QCOMPARE(daten.bandAb, QDate(1999, 5, 31));
    QVERIFY(!daten.mangel);

    const Verlaufsdaten ohne = gewichte({am(heute, 80.0)});
    QVERIFY(!ohne.band);
    QVERIFY(ohne.bandAb.isNull());
    QCOMPARE(ohne.mangel, Bandmangel::OhneGroesse);
}

void TestVerlaufsdaten::theBandOfTheGrownUp_data()
{
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<QDate>("letzterBesuch");
    QTest::addColumn<bool>("band");
    QTest::newRow("19 years on the day of the last measure")
        << QDate(2007, 11, 1) << QDate(2026, 11, 1) << true;
    QTest::newRow("19 years one day after it") << QDate(2007, 11, 2) << QDate(2026, 11, 1) << false;
    QTest::newRow("not yet 19 years today") << QDate(2007, 11, 23) << heute << false;
    QTest::newRow("birth not known") << QDate() << QDate(2026, 11, 1) << true;
}

void TestVerlaufsdaten::theBandOfTheGrownUp()
{
    QFETCH(const QDate, geburt);
    QFETCH(const QDate, letzterBesuch);
    QFETCH(const bool, band);
    const Verlaufsdaten daten =
        gewichte({am(QDate(2024, 1, 1), 60.0, 1.7), am(letzterBesuch, 62.0)}, geborenAm(geburt));
    QCOMPARE(daten.band.has_value(), band);
    QCOMPARE(daten.mangel.has_value(), !band);
    if (!band) {
        QCOMPARE(daten.mangel, Bandmangel::Jugend);
    }
    // Without a measure the day that counts is today.
    const Verlaufsdaten leer = gewichte({am(QDate(2024, 1, 1), {}, 1.7)}, geborenAm(geburt));
    QCOMPARE(leer.band.has_value(), geburt != QDate(2007, 11, 23));
}

void TestVerlaufsdaten::whatIsSaidOfACourse_data()
{
    QTest::addColumn<QList<Besuch>>("besuche");
    QTest::addColumn<QString>("worte");
    const QDate damals(2026, 3, 1);
    const QString ohneBand =
        QStringLiteral(" Ohne Angabe der Größe gibt es keinen Zielbereich für das Gewicht.");
    QTest::newRow("one measure") << QList<Besuch>{am(damals, 82.44)}
                                 << QStringLiteral("Gewicht: eine Messung, 82,4\u00a0kg am "
                                                   "01.03.26.") +
                                        ohneBand;
    QTest::newRow("less") << QList<Besuch>{am(damals, 82.4), am(heute, 76.1)}
                          << QStringLiteral("Gewicht: 2 Messungen, zuerst 82,4\u00a0kg am "
                                            "01.03.26, zuletzt 76,1\u00a0kg am 22.11.26, "
                                            "6,3\u00a0kg weniger.") +
                                 ohneBand;
    QTest::newRow("more than first, whatever lies between")
        << QList<Besuch>{am(heute, 84.0), am(damals, 82.0), am(damals.addDays(9), 99.0)}
        << QStringLiteral("Gewicht: 3 Messungen, zuerst 82,0\u00a0kg am 01.03.26, zuletzt "
                          "84,0\u00a0kg am 22.11.26, 2,0\u00a0kg mehr.") +
               ohneBand;
    QTest::newRow("what is not seen is no change")
        << QList<Besuch>{am(damals, 82.04), am(heute, 81.96)}
        << QStringLiteral("Gewicht: 2 Messungen, zuerst 82,0\u00a0kg am 01.03.26, zuletzt "
                          "82,0\u00a0kg am 22.11.26, unverändert.") +
               ohneBand;
    const QString einmal = QStringLiteral("Gewicht: eine Messung, %1\u00a0kg am 22.11.26. Der "
                                          "letzte Wert liegt %2 Zielbereich (74–100\u00a0kg).");
    QTest::newRow("below the band")
        << QList<Besuch>{am(heute, 73.9, 2.0)}
        << einmal.arg(QStringLiteral("73,9"), QStringLiteral("unter dem"));
    QTest::newRow("in the band") << QList<Besuch>{am(heute, 74.0, 2.0)}
                                 << einmal.arg(QStringLiteral("74,0"), QStringLiteral("im"));
    QTest::newRow("above the band")
        << QList<Besuch>{am(heute, 100.0, 2.0)}
        << einmal.arg(QStringLiteral("100,0"), QStringLiteral("über dem"));
}

void TestVerlaufsdaten::whatIsSaidOfACourse()
{
    QFETCH(const QList<Besuch>, besuche);
    QTEST(verlaufInWorten(gewichte(besuche)), "worte");
}

void TestVerlaufsdaten::whatIsSaidWithoutMeasures()
{
    QCOMPARE(verlaufInWorten(gewichte({})), QStringLiteral("Noch keine Messung."));
    QCOMPARE(verlaufInWorten(gewichte({am(heute, {}, 1.7)})),
             QStringLiteral("Noch keine Messung."));
    QCOMPARE(verlaufInWorten(verlaufsdaten({}, {am(heute, 70.0)}, Messgroesse::Bmi, heute)),
             QStringLiteral("Noch keine Messung von Gewicht und Größe."));
}

void TestVerlaufsdaten::theBandIsNamed()
{
    QCOMPARE(bandInWorten(verlaufsdaten({}, {}, Messgroesse::Bmi, heute)),
             QStringLiteral("Zielbereich 18,5–25"));
    Person mann;
    mann.geschlecht = Personengeschlecht::Mann;
    QCOMPARE(bandInWorten(verlaufsdaten(mann, {}, Messgroesse::Taille, heute)),
             QStringLiteral("Zielbereich bis 94"));
    QCOMPARE(bandInWorten(verlaufsdaten({}, {}, Messgroesse::Taille, heute)),
             QStringLiteral("Ohne Angabe des Geschlechts gibt es keinen Zielbereich für die "
                            "Taille."));
    QCOMPARE(bandInWorten({}), QString());
}

void TestVerlaufsdaten::daysAreWrittenAsTheCountryDoes()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QVERIFY(verlaufInWorten(gewichte({am(heute, 82.4)}))
                .contains(QStringLiteral("82.4\u00a0kg am 22/11/2026")));
}

QTEST_APPLESS_MAIN(TestVerlaufsdaten)
#include "TestVerlaufsdaten.moc"
