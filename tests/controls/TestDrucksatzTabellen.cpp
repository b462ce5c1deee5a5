// Tables are broken into pages.

#include "Drucksatztest.h"

using namespace Qt::StringLiterals;

class TestDrucksatzTabellen : public Drucksatztest
{
    Q_OBJECT

private Q_SLOTS:
    void aTableHasItsHeadOnEachPage();
    void neitherTheFirstNorTheLastRowStandsAlone_data();
    void neitherTheFirstNorTheLastRowStandsAlone();
    void belowATableItsHeadIsGone();
    void aRowStaysOnOnePage_data();
    void aRowStaysOnOnePage();
    void aRowThatIsLongGoesOn();
    void aRowMayHoldTheNext_data();
    void aRowMayHoldTheNext();
    void columnsAreAsWideAsTheyNeed();
    void aColumnIsAsWideAsItIsMeantToBe();
    void whereThereIsNoRoomTheWordyColumnIsBroken();
    void aVeryLongWordTakesTheOthersNoRoom();
    void onNarrowPaperATableIsSetSmaller();
    void onPaperThatIsTooNarrowWordsAreBroken();
};

void TestDrucksatzTabellen::aTableHasItsHeadOnEachPage()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.absatz(u"davor"_s);
    satz.tabelle(reihen(30));
    satz.absatz(u"danach"_s);
    drucke(satz);
    QVERIFY(satz.seiten() >= 3);
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        const QStringList hier = zeilen(nummer);
        QCOMPARE(hier.value(0), nummer == 1 ? u"davor"_s : u"Kopf"_s);
        QCOMPARE(hier.value(1), u"Name Zahl"_s);
        QVERIFY(hier.size() > 2);
        alle += hier.mid(2);
    }
    QCOMPARE(alle.size(), 31);
    for (int i = 1; i <= 30; ++i) {
        QCOMPARE(alle[i - 1], u"Zeile%1 %1"_s.arg(i));
    }
    QCOMPARE(alle.last(), u"danach"_s);
}

void TestDrucksatzTabellen::neitherTheFirstNorTheLastRowStandsAlone_data()
{
    reste();
}

void TestDrucksatzTabellen::neitherTheFirstNorTheLastRowStandsAlone()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.tabelle(reihen(5));
    drucke(satz);
    QCOMPARE(wort(u"Zeile1"_s).seite, wort(u"Zeile2"_s).seite);
    QCOMPARE(wort(u"Zeile4"_s).seite, wort(u"Zeile5"_s).seite);
}

void TestDrucksatzTabellen::belowATableItsHeadIsGone()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.tabelle(reihen(2));
    satz.absatz(probeworte(200));
    drucke(satz);
    QVERIFY(satz.seiten() >= 2);
    QCOMPARE(zeilen(1).value(0), u"Name Zahl"_s);
    QVERIFY(!zeilen(2).contains(u"Name Zahl"_s));
}

void TestDrucksatzTabellen::aRowStaysOnOnePage_data()
{
    reste();
}

/// Rows of three lines: none is divided, not even the one above a row that is.
void TestDrucksatzTabellen::aRowStaysOnOnePage()
{
    QFETCH(const double, frei);
    Drucktabelle tabelle{{{u"Name"_s}}, {}};
    for (int i = 1; i <= 12; ++i) {
        tabelle.zeilen << Drucktabelle::Zeile{{u"a%1\nb%1"_s.arg(i)}, u"c%1"_s.arg(i)};
    }
    tabelle.zeilen << Drucktabelle::Zeile{{u"Ende"_s}, probeworte(200)};
    Drucksatz satz = mitRest(frei);
    satz.tabelle(tabelle);
    drucke(satz);
    QVERIFY(satz.seiten() >= 4);
    for (int i = 1; i <= 12; ++i) {
        const Druckwort a = wort(u"a%1"_s.arg(i));
        const Druckwort c = wort(u"c%1"_s.arg(i));
        QVERIFY(a.seite > 0);
        QCOMPARE(wort(u"b%1"_s.arg(i)).seite, a.seite);
        QCOMPARE(c.seite, a.seite);
        QVERIFY(c.grundlinie > a.grundlinie);
        QVERIFY(c.x > a.x); // it stands apart from the cells
    }
}

void TestDrucksatzTabellen::aRowThatIsLongGoesOn()
{
    Drucktabelle tabelle = reihen(3);
    tabelle.zeilen[1].darunter = probeworte(400);
    Drucksatz satz(seite, u"Kopf"_s);
    satz.tabelle(tabelle);
    drucke(satz);
    QVERIFY(satz.seiten() >= 4);
    QCOMPARE(wort(u"Zeile2"_s).seite, 1); // the page is not left empty
    QCOMPARE(wort(u"wort0001"_s).seite, 1);
    QCOMPARE(wort(u"Zeile3"_s).seite, satz.seiten());
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        QCOMPARE(zeilen(nummer).value(nummer == 1 ? 0 : 1), u"Name Zahl"_s);
        alle += zeilen(nummer).mid(nummer == 1 ? 1 : 2);
    }
    QCOMPARE(alle.join(u' '), u"Zeile1 1 Zeile2 2 "_s + probeworte(400) + u" Zeile3 3"_s);
}

void TestDrucksatzTabellen::aRowMayHoldTheNext_data()
{
    QTest::addColumn<double>("rest");
    for (int rest = 60; rest <= 160; rest += 10) {
        QTest::addRow("%d points", rest) << static_cast<double>(rest);
    }
}

/// Every third row is the name of the two below it.
void TestDrucksatzTabellen::aRowMayHoldTheNext()
{
    QFETCH(const double, rest);
    Drucktabelle tabelle = reihen(12);
    for (qsizetype i = 0; i < tabelle.zeilen.size(); i += 3) {
        tabelle.zeilen[i].haelt = true;
    }
    Drucksatz satz = mitRest(rest);
    satz.tabelle(tabelle);
    drucke(satz);
    QVERIFY(satz.seiten() > 1);
    for (int i = 1; i <= 12; ++i) {
        QVERIFY(wort(u"Zeile%1"_s.arg(i)).seite > 0);
    }
    for (int i = 1; i <= 12; i += 3) {
        QCOMPARE(wort(u"Zeile%1"_s.arg(i)).seite, wort(u"Zeile%1"_s.arg(i + 1)).seite);
    }
}

void TestDrucksatzTabellen::columnsAreAsWideAsTheyNeed()
{
    Drucksatz satz(seite, QString());
    satz.tabelle({{{u"Datum"_s}, {u"Zahl"_s, true}, {u"Worte"_s}},
                  {{{u"01.09.26"_s, u"82,5"_s, u"mittlere Tätigkeit"_s}},
                   {{u"02.09.26"_s, u"7"_s, QString()}}}});
    drucke(satz);
    QCOMPARE(zeilen(1), QStringList({u"Datum Zahl Worte"_s, u"01.09.26 82,5 mittlere Tätigkeit"_s,
                                     u"02.09.26 7"_s}));
    QVERIFY(qAbs(wort(u"82,5"_s).rechts - wort(u"7"_s).rechts) < 0.3);
    QVERIFY(qAbs(wort(u"82,5"_s).rechts - wort(u"Zahl"_s).rechts) < 0.3);
    QVERIFY(qAbs(wort(u"Worte"_s).x - wort(u"mittlere"_s).x) < 0.7);
    // A narrow table is not torn apart over the whole page.
    QVERIFY(wort(u"Zahl"_s).rechts < ecke.x() + 200);
}

/// Two tables with names of different length have their numbers in the same place.
void TestDrucksatzTabellen::aColumnIsAsWideAsItIsMeantToBe()
{
    const auto tabelle = [](const QString &name, const QString &zahl) {
        return Drucktabelle{{{u"Name"_s, false, 200}, {u"Zahl"_s, true}}, {{{name, zahl}}}};
    };
    Drucksatz satz(seite, QString());
    satz.tabelle(tabelle(u"kurz"_s, u"11"_s));
    satz.tabelle(tabelle(u"etwas länger"_s, u"22"_s));
    drucke(satz);
    QCOMPARE(wort(u"11"_s).rechts, wort(u"22"_s).rechts);
    QVERIFY(wort(u"11"_s).x > ecke.x() + 200);
    Drucksatz enger({150, 200}, QString());
    enger.tabelle(tabelle(u"kurz"_s, u"11"_s));
    drucke(enger);
    QVERIFY(wort(u"11"_s).rechts <= ecke.x() + 150.5);
}

void TestDrucksatzTabellen::whereThereIsNoRoomTheWordyColumnIsBroken()
{
    Drucksatz satz(seite, QString());
    satz.tabelle({{{u"Datum"_s}, {u"Zahl"_s, true}, {u"Worte"_s}},
                  {{{u"01.09.26"_s, u"82,5"_s, probeworte(30)}}}});
    drucke(satz);
    QCOMPARE(zeilen(1).value(0), u"Datum Zahl Worte"_s);
    QVERIFY(zeilen(1).value(1).startsWith(u"01.09.26 82,5 wort0001"_s));
    QVERIFY(zeilen(1).size() >= 4);
    QStringList rest = zeilen(1).mid(1);
    QCOMPARE(rest.join(u' '), u"01.09.26 82,5 "_s + probeworte(30));
}

void TestDrucksatzTabellen::aVeryLongWordTakesTheOthersNoRoom()
{
    Drucksatz satz(seite, QString());
    satz.tabelle({{{u"Datum"_s}, {u"Zahl"_s, true}, {u"Worte"_s}},
                  {{{u"01.09.2026"_s, u"82,5"_s, QString(300, u'x')}}}});
    drucke(satz);
    QVERIFY2(zeilen(1).value(1).startsWith(u"01.09.2026 82,5 xx"_s),
             qPrintable(zeilen(1).value(1)));
    QCOMPARE(zeilen(1).join(QString()).count(u'x'), 300);
}

/// Dates and numbers stay whole; what stands in no table has its size.
void TestDrucksatzTabellen::onNarrowPaperATableIsSetSmaller()
{
    const Drucktabelle tabelle{{{u"Datum"_s}, {u"Gewichtsreduktion"_s}, {u"Taille"_s, true}},
                               {{{u"01.09.2026"_s, u"ja"_s, u"95,5"_s}, u"Gespräch"_s}}};
    Drucksatz satz({140, 200}, QString());
    satz.absatz(u"darüber"_s);
    satz.tabelle(tabelle);
    drucke(satz);
    QCOMPARE(zeilen(1), QStringList({u"darüber"_s, u"Datum Gewichtsreduktion Taille"_s,
                                     u"01.09.2026 ja 95,5"_s, u"Gespräch"_s}));
    for (const Druckwort &wort : std::as_const(m_worte)) {
        QVERIFY2(wort.rechts <= ecke.x() + 140.5, qPrintable(wort.text));
    }
    QVERIFY(qAbs(wort(u"darüber"_s).groesse - 9) < 0.2);
    QVERIFY(wort(u"95,5"_s).groesse < 8.5 && wort(u"95,5"_s).groesse > 0.6 * 9);
    const auto zeilenabstand = [this] {
        return wort(u"Gespräch"_s).grundlinie - wort(u"95,5"_s).grundlinie;
    };
    const double enger = zeilenabstand();
    Drucksatz weiter(seite, QString());
    weiter.tabelle(tabelle);
    drucke(weiter);
    QVERIFY(enger < 0.95 * zeilenabstand());
    QVERIFY(qAbs(wort(u"95,5"_s).groesse - 9) < 0.2);
}

void TestDrucksatzTabellen::onPaperThatIsTooNarrowWordsAreBroken()
{
    Drucksatz satz({60, 200}, QString());
    satz.tabelle({{{u"Ernährung"_s}, {u"Gewichtsreduktion"_s}}, {{{u"viel"_s, u"wenig"_s}}}});
    drucke(satz);
    for (const Druckwort &wort : std::as_const(m_worte)) {
        QVERIFY2(wort.rechts <= ecke.x() + 60.5, qPrintable(wort.text));
        QVERIFY2(wort.groesse > 0.55 * 8, qPrintable(wort.text)); // still to be read
    }
    QString alles = zeilen(1).join(QString()).remove(u' ');
    QCOMPARE(alles.size(), u"ErnährungGewichtsreduktionvielwenig"_s.size());
}

QTEST_MAIN(TestDrucksatzTabellen)
#include "TestDrucksatzTabellen.moc"
