// Texts and tables are broken into pages.

#include "Drucksatz.h"

#include "Druckprobe.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

class TestDrucksatz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOnePage();
    void aLongTextGoesOnOnTheNextPage();
    void noLineStandsAloneOnAPage_data();
    void noLineStandsAloneOnAPage();
    void aHeadingStaysWithWhatItHeads_data();
    void aHeadingStaysWithWhatItHeads();
    void theEndOfALongIntroductionStaysWithWhatFollows_data();
    void theEndOfALongIntroductionStaysWithWhatFollows();
    void aHeadingThatIsLongerThanAPageGoesOn();
    void atTheTopOfAPageNothingIsKeptApart();
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
    void aNameStandsBesideWhatThereIsToSay();
    void aPictureStaysWhole();
    void pagesButTheFirstSayWhatTheyAreOf();

private:
    void drucke(const Drucksatz &satz);
    QStringList zeilen(int seite) const { return m_probe->zeilen(seite); }
    Druckwort wort(const QString &text) const { return finde(m_worte, text); }

    std::unique_ptr<Druckprobe> m_probe;
    QList<Druckwort> m_worte; ///< of the last print
};

namespace {

constexpr QPointF ecke(40, 40);
constexpr QSizeF seite(400, 200);

/// Rows of two columns: "Zeile 1" and its number.
Drucktabelle reihen(int anzahl)
{
    Drucktabelle tabelle{{{u"Name"_s}, {u"Zahl"_s, true}}, {}};
    for (int i = 1; i <= anzahl; ++i) {
        tabelle.zeilen << Drucktabelle::Zeile{
            {u"Zeile"_s + QString::number(i), QString::number(i)}};
    }
    return tabelle;
}

/// Leaves about so many points free on the first page.
Drucksatz mitRest(double frei)
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.bild({seite.height() - frei, [](QPainter &) {
               }});
    return satz;
}

} // namespace

void TestDrucksatz::drucke(const Drucksatz &satz)
{
    m_probe =
        std::make_unique<Druckprobe>(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    m_probe->drucke({.titel = u"Probe"_s,
                     .seitenzahl = [&satz](const QPageLayout &) { return satz.seiten(); },
                     .male =
                         [&satz](QPainter &maler, const QPageLayout &, int nummer) {
                             satz.male(maler, ecke, nummer);
                         }});
    m_worte = m_probe->worte();
    for (const Druckwort &wort : std::as_const(m_worte)) {
        QVERIFY2(wort.x >= ecke.x() - 0.5 && wort.rechts <= ecke.x() + seite.width() + 0.5 &&
                     wort.grundlinie >= ecke.y() && wort.grundlinie <= ecke.y() + seite.height(),
                 qPrintable(wort.text));
    }
}

void TestDrucksatz::nothingIsOnePage()
{
    const Drucksatz satz(seite, u"Kopf"_s);
    drucke(satz);
    QCOMPARE(satz.seiten(), 1);
    QVERIFY(zeilen(1).isEmpty());
}

void TestDrucksatz::aLongTextGoesOnOnTheNextPage()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.absatz(probeworte(500));
    drucke(satz);
    QVERIFY(satz.seiten() >= 4);
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        alle += zeilen(nummer).mid(nummer == 1 ? 0 : 1);
    }
    QCOMPARE(alle.join(u' '), probeworte(500));
    // Pages are full before the next is begun: a line is less than 15 points high.
    QVERIFY(m_probe->zeilen(1).size() >= static_cast<qsizetype>(seite.height() / 15));
}

void TestDrucksatz::noLineStandsAloneOnAPage_data()
{
    QTest::addColumn<double>("frei");
    // Five lines and more, for each height that can be left of a page.
    for (int frei = 1; frei < 80; frei += 3) {
        QTest::addRow("%d points are left", frei) << static_cast<double>(frei);
    }
}

void TestDrucksatz::noLineStandsAloneOnAPage()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.absatz(u"eins\nzwei\ndrei\nvier\nfünf"_s);
    drucke(satz);
    const qsizetype vorn = zeilen(1).size();
    const qsizetype hinten = satz.seiten() > 1 ? zeilen(2).size() - 1 : 0;
    QCOMPARE(vorn + hinten, 5);
    QVERIFY2(vorn != 1 && hinten != 1, qPrintable(QString::number(vorn)));
}

void TestDrucksatz::aHeadingStaysWithWhatItHeads_data()
{
    QTest::addColumn<double>("frei");
    for (int frei = 1; frei < 120; frei += 7) {
        QTest::addRow("%d points are left", frei) << static_cast<double>(frei);
    }
}

/// Above a table it stays with the table's head and first row.
void TestDrucksatz::aHeadingStaysWithWhatItHeads()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.ueberschrift(u"Kapitel"_s, {13, true});
    satz.ueberschrift(u"Abschnitt"_s, {10, true});
    satz.vorspann(u"Vorspann"_s);
    satz.tabelle(reihen(3));
    drucke(satz);
    const int seite = wort(u"Kapitel"_s).seite;
    QVERIFY(seite > 0);
    QCOMPARE(wort(u"Abschnitt"_s).seite, seite);
    QCOMPARE(wort(u"Vorspann"_s).seite, seite);
    QCOMPARE(wort(u"Zahl"_s).seite, seite);
    QCOMPARE(wort(u"Zeile1"_s).seite, seite);
    const qsizetype koepfe =
        zeilen(1).count(u"Name Zahl"_s) + (satz.seiten() > 1 ? zeilen(2).count(u"Name Zahl"_s) : 0);
    QCOMPARE(koepfe, wort(u"Zeile3"_s).seite - seite + 1); // none stands without rows
}

void TestDrucksatz::theEndOfALongIntroductionStaysWithWhatFollows_data()
{
    QTest::addColumn<int>("anzahl");
    for (int anzahl = 5; anzahl < 18; ++anzahl) { // a page holds sixteen
        QTest::addRow("%d lines", anzahl) << anzahl;
    }
}

/// It begins where there is room, and is not kept for the next page as a whole.
void TestDrucksatz::theEndOfALongIntroductionStaysWithWhatFollows()
{
    QFETCH(const int, anzahl);
    QStringList text;
    for (int i = 1; i <= anzahl; ++i) {
        text << u"Satz%1"_s.arg(i);
    }
    Drucksatz satz(seite, u"Kopf"_s);
    satz.vorspann(text.join(u'\n'));
    satz.tabelle(reihen(1));
    drucke(satz);
    QCOMPARE(wort(text.first()).seite, 1);
    QVERIFY(wort(text.last()).seite > 0);
    QCOMPARE(wort(u"Zahl"_s).seite, wort(text.last()).seite);
    QCOMPARE(wort(u"Zeile1"_s).seite, wort(text.last()).seite);
}

void TestDrucksatz::aHeadingThatIsLongerThanAPageGoesOn()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.absatz(u"davor"_s);
    satz.ueberschrift(probeworte(300), {13, true});
    satz.absatz(u"danach"_s);
    drucke(satz);
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        alle += zeilen(nummer).mid(nummer == 1 ? 0 : 1);
    }
    QCOMPARE(alle.join(u' '), u"davor "_s + probeworte(300) + u" danach"_s);
}

void TestDrucksatz::atTheTopOfAPageNothingIsKeptApart()
{
    Drucksatz dicht(seite, u"Kopf"_s);
    dicht.absatz(u"oben"_s);
    drucke(dicht);
    const double erste = wort(u"oben"_s).grundlinie;
    Drucksatz satz(seite, u"Kopf"_s);
    satz.abstand(50);
    satz.absatz(u"oben"_s);
    drucke(satz);
    QCOMPARE(wort(u"oben"_s).grundlinie, erste);
    Drucksatz unten(seite, u"Kopf"_s);
    unten.absatz(u"davor"_s);
    unten.abstand(50);
    unten.absatz(u"oben"_s);
    drucke(unten);
    QVERIFY(qAbs(wort(u"oben"_s).grundlinie - wort(u"davor"_s).grundlinie - 50) < 15);
}

void TestDrucksatz::aTableHasItsHeadOnEachPage()
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

void TestDrucksatz::neitherTheFirstNorTheLastRowStandsAlone_data()
{
    aHeadingStaysWithWhatItHeads_data();
}

void TestDrucksatz::neitherTheFirstNorTheLastRowStandsAlone()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.tabelle(reihen(5));
    drucke(satz);
    QCOMPARE(wort(u"Zeile1"_s).seite, wort(u"Zeile2"_s).seite);
    QCOMPARE(wort(u"Zeile4"_s).seite, wort(u"Zeile5"_s).seite);
}

void TestDrucksatz::belowATableItsHeadIsGone()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.tabelle(reihen(2));
    satz.absatz(probeworte(200));
    drucke(satz);
    QVERIFY(satz.seiten() >= 2);
    QCOMPARE(zeilen(1).value(0), u"Name Zahl"_s);
    QVERIFY(!zeilen(2).contains(u"Name Zahl"_s));
}

void TestDrucksatz::aRowStaysOnOnePage_data()
{
    aHeadingStaysWithWhatItHeads_data();
}

/// Rows of three lines: none is divided, not even the one above a row that is.
void TestDrucksatz::aRowStaysOnOnePage()
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

void TestDrucksatz::aRowThatIsLongGoesOn()
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

void TestDrucksatz::aRowMayHoldTheNext_data()
{
    QTest::addColumn<double>("rest");
    for (int rest = 60; rest <= 160; rest += 10) {
        QTest::addRow("%d points", rest) << static_cast<double>(rest);
    }
}

/// Every third row is the name of the two below it.
void TestDrucksatz::aRowMayHoldTheNext()
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

void TestDrucksatz::columnsAreAsWideAsTheyNeed()
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
void TestDrucksatz::aColumnIsAsWideAsItIsMeantToBe()
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

void TestDrucksatz::whereThereIsNoRoomTheWordyColumnIsBroken()
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

void TestDrucksatz::aVeryLongWordTakesTheOthersNoRoom()
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
void TestDrucksatz::onNarrowPaperATableIsSetSmaller()
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

void TestDrucksatz::onPaperThatIsTooNarrowWordsAreBroken()
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

void TestDrucksatz::aNameStandsBesideWhatThereIsToSay()
{
    Drucksatz satz(seite, QString());
    satz.angabe(u"Nummer"_s, u"17"_s);
    satz.angabe(u"Notizen"_s, probeworte(40));
    drucke(satz);
    QCOMPARE(zeilen(1).value(0), u"Nummer 17"_s);
    QVERIFY(zeilen(1).value(1).startsWith(u"Notizen wort0001"_s));
    QCOMPARE(zeilen(1).join(u' '), u"Nummer 17 Notizen "_s + probeworte(40));
    QVERIFY(qAbs(wort(u"17"_s).x - wort(u"wort0001"_s).x) < 1);
    QVERIFY(wort(u"wort0040"_s).x >= wort(u"wort0001"_s).x - 0.5); // not below the name
}

void TestDrucksatz::aPictureStaysWhole()
{
    QList<QPointF> orte;
    Drucksatz satz = mitRest(100);
    satz.bild({101, [&orte](QPainter &maler) {
                   orte << maler.transform().map(QPointF());
               }});
    satz.bild({40, [](QPainter &) {
               }});
    QCOMPARE(satz.seiten(), 2);
    QImage papier(500, 300, QImage::Format_RGB32);
    QPainter maler(&papier);
    satz.male(maler, ecke, 1);
    QVERIFY(orte.isEmpty());
    satz.male(maler, ecke, 2);
    QCOMPARE(orte.size(), 1);
    QVERIFY(orte[0].x() == ecke.x() && orte[0].y() > ecke.y());
    QVERIFY(maler.transform().isIdentity());
}

void TestDrucksatz::pagesButTheFirstSayWhatTheyAreOf()
{
    Drucksatz satz(seite, u"Anna\nMuster "_s + probeworte(100));
    satz.absatz(probeworte(300));
    drucke(satz);
    QCOMPARE(zeilen(1).value(0).section(u' ', 0, 0), u"wort0001"_s);
    for (int nummer = 2; nummer <= satz.seiten(); ++nummer) {
        QVERIFY(zeilen(nummer).value(0).startsWith(u"Anna Muster wort0001"_s));
        QVERIFY(zeilen(nummer).value(0).endsWith(u'…'));
    }
}

QTEST_MAIN(TestDrucksatz)
#include "TestDrucksatz.moc"
