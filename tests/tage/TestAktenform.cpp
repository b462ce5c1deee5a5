// A record of days with all its figures, on paper.

#include "Aktenform.h"

#include "Druckprobe.h"
#include "Probesprache.h"
#include "Wochenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestAktenform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theHeadSaysWhatItIs();
    void theMeanComesFirst();
    void aDayShowsItsMealsAndRows();
    void allSeventeenValuesAreSummed();
    void theRatingsAreCounted();
    void theEvaluationIsThePlans();
    void withoutANeedItsPartsStayEmpty();
    void whatDoesNotCountIsSaid();
    void daysAreToldAsTheyAre();
    void anEmptyRecordHasNoFigures();
    void nothingIsCutOffOnAnyPaper_data();
    void nothingIsCutOffOnAnyPaper();
    void inEnglishAllIsEnglish();
    void everyPageHasItsFootAndItsName();

private:
    void drucke(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf = {1960, 1960},
                const QPageLayout &papier = Druckprobe::papier(QPageSize::A4,
                                                               QPageLayout::Landscape));
    QStringList zeilen() const;
    /// The lines from the first that begins with one text up to the next that begins with another.
    QStringList zwischen(const QString &von, const QString &bis) const;

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<Druckprobe> m_probe;
    Druckangaben m_angaben;
};

namespace {

/// 100 g of all foods have 200 kcal, 10 g of protein, 4 g of fat and 30 g of carbohydrate; their
/// energy worked out is 40 + 36 + 120 = 196 kcal.
Mahlzeitzeile zeile(const char *name, const char *angabe, float gramm, const QString &diabetes)
{
    Mahlzeitzeile eine = Wochenprobe::zeile(name, angabe, gramm);
    eine.eintrag->setdiabetes(diabetes);
    eine.eintrag->setvitc(2);
    return eine;
}

/// Two days in the mean, one that is not, and one without anything.
Aufzeichnung aufzeichnung()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 4);
    eine.titel = u"Vier Tage"_s;
    eine.tage[0].notiz = u"Im Urlaub"_s;
    eine.tage[0].mahlzeiten[0] = {{zeile("Brot", "2 Scheiben", 100, u"+"_s),
                                   Aufzeichnungsprobe::oder(zeile("Butter", "1 EL", 10, u"-"_s))},
                                  u"Im Stehen"_s};
    eine.tage[0].mahlzeiten[2].zeilen = {zeile("Reis", "50", 50, u"0"_s),
                                         {.text = u"Omas Auflauf"_s, .angabe = u"ein Teller"_s}};
    eine.tage[1].mahlzeiten[0].zeilen = {zeile("Brot", "4 Scheiben", 200, u"+"_s)};
    eine.tage[2].mahlzeiten[0].zeilen = {zeile("Brot", "6 Scheiben", 300, u"+"_s)};
    eine.tage[2].imMittel = false;
    return eine;
}

} // namespace

void TestAktenform::init()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::German);
    m_angaben = {.klient = u"Anna Muster"_s, .heute = QDate(2026, 11, 30)};
}

void TestAktenform::drucke(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf,
                           const QPageLayout &papier)
{
    m_probe = std::make_unique<Druckprobe>(papier);
    m_probe->drucke(aktenform(aufzeichnung, bedarf, m_angaben));
}

/// All lines without what stands at the head and foot of each page.
QStringList TestAktenform::zeilen() const
{
    QStringList alle;
    for (int seite = 1; seite <= m_probe->seiten(); ++seite) {
        QStringList eine = m_probe->zeilen(seite);
        eine.removeLast();
        alle += eine.mid(seite == 1 ? 0 : 1);
    }
    return alle.replaceInStrings(QString(QChar(QChar::Nbsp)), u" "_s);
}

QStringList TestAktenform::zwischen(const QString &von, const QString &bis) const
{
    const QStringList alle = zeilen();
    const auto stelle = [&alle](const QString &anfang, qsizetype ab) {
        while (ab < alle.size() && !alle[ab].startsWith(anfang)) {
            ++ab;
        }
        return ab;
    };
    const qsizetype anfang = stelle(von, 0);
    return alle.mid(anfang, stelle(bis, anfang + 1) - anfang);
}

void TestAktenform::theHeadSaysWhatItIs()
{
    drucke(aufzeichnung(), {1960, 2450});
    QCOMPARE(zeilen().first(5),
             QStringList({u"Vier Tage"_s, u"Klient Anna Muster"_s, u"Art Protokoll"_s,
                          u"Tage Montag, 23. November 2026 bis Donnerstag, 26. November 2026"_s,
                          u"Bedarf 100 % der Energie = 1960 kcal am Tag (zum Abnehmen)"_s}));
    QCOMPARE(m_probe->name, u"Anna Muster, Vier Tage 2026-11-30 Aktenform"_s);
    m_angaben.klient.clear();
    Aufzeichnung eine = aufzeichnung();
    eine.datum = {};
    drucke(eine, {});
    QCOMPARE(zeilen().mid(1, 3),
             QStringList({u"Art Protokoll"_s, u"Tage 4 ohne Datum"_s,
                          u"Bedarf 100 % der Energie: noch nicht bekannt (unter „Körper und "
                          "Energie“)"_s}));
    eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 1);
    drucke(eine);
    QCOMPARE(zeilen().mid(1, 2),
             QStringList({u"Art Wochenplan"_s, u"Tage Montag, 23. November 2026"_s}));
}

/// In the mean of the first two days there are (100 + 200) / 2 = 150 g of bread and 25 g of rice:
/// 300 and 50 kcal. Its energy worked out is 1.75 x 196 = 343 kcal, 17.5 % of 1960. Of protein a
/// fifth of 1960 is 392 kcal, and 17.5 g are 70 kcal: 17.9, cut off to 17 %; of fat 63 of 588 kcal:
/// 10 %; of carbohydrate 210 of 980 kcal: 21 %.
void TestAktenform::theMeanComesFirst()
{
    drucke(aufzeichnung());
    QCOMPARE(zwischen(u"Mittel der Tage"_s, u"Mahlzeit Calcium"_s),
             QStringList({u"Mittel der Tage"_s, u"Tage im Mittel: 2."_s,
                          u"Zeilen, die nicht zählen: 1."_s,
                          u"Mahlzeit Energie (kcal) Protein (g) Fett (g) Kohlenhydrate (g) "
                          "Ballaststoffe (g) Cholesterin (mg) Natrium (mg) Kalium (mg)"_s,
                          u"Frühstück 300 15,0 6,0 45,0 0,0 0 0 0"_s,
                          u"Mittagessen 50 2,5 1,0 7,5 0,0 0 0 0"_s,
                          u"Gesamt 350 17,5 7,0 52,5 0,0 0 0 0"_s,
                          u"Bedarf 1960 98,0 65,3 245,0 30,0 200 550 2000"_s,
                          u"% des Bedarfs 17,5 17,0 10,0 21,0 0,0 0,0 0,0 0,0"_s}));
}

void TestAktenform::aDayShowsItsMealsAndRows()
{
    drucke(aufzeichnung());
    QCOMPARE(zwischen(u"Montag"_s, u"Zeilen"_s),
             QStringList({u"Montag, 23. November 2026"_s, u"Im Urlaub"_s,
                          u"Lebensmittel Menge Gramm Energie (kcal) Protein (g) Fett (g) "
                          "Kohlenhydrate (g) Ballaststoffe (g)"_s,
                          u"Frühstück 100 200 10,0 4,0 30,0 0,0"_s, u"Im Stehen"_s,
                          u"Brot 2 Scheiben 100 200 10,0 4,0 30,0 0,0"_s, u"oder Butter 1 EL 10"_s,
                          u"Mittagessen 50 100 5,0 2,0 15,0 0,0"_s,
                          u"Reis 50 50 100 5,0 2,0 15,0 0,0"_s, u"Omas Auflauf ein Teller"_s}));
}

/// Vitamin C: 2 mg in 100 g are 2 mg in the bread and 1 mg in the rice; of 100 mg that is 3 %.
void TestAktenform::allSeventeenValuesAreSummed()
{
    Aufzeichnung eine = aufzeichnung();
    eine.tage = eine.tage.first(1);
    drucke(eine);
    QCOMPARE(zwischen(u"Mahlzeit Calcium"_s, u"Wertung"_s),
             QStringList({u"Mahlzeit Calcium (mg) Phosphat (mg) Magnesium (mg) Eisen (mg) "
                          "Vitamin A (µg) Vitamin B1 (mg) Vitamin B2 (mg) Vitamin B6 (mg) "
                          "Vitamin C (mg)"_s,
                          u"Frühstück 0 0 0 0,0 0 0,00 0,00 0,00 2,0"_s,
                          u"Mittagessen 0 0 0 0,0 0 0,00 0,00 0,00 1,0"_s,
                          u"Gesamt 0 0 0 0,0 0 0,00 0,00 0,00 3,0"_s,
                          u"Bedarf 1000 1400 350 12,0 1000 1,20 1,60 1,70 100,0"_s,
                          u"% des Bedarfs 0,0 0,0 0,0 0,0 0,0 0,0 0,0 0,0 3,0"_s}));
}

/// Bread twice and rice once; the alternative does not count.
void TestAktenform::theRatingsAreCounted()
{
    drucke(aufzeichnung());
    QCOMPARE(zwischen(u"Wertung"_s, u"Beurteilung"_s),
             QStringList({u"Wertung geeignet neutral ungeeignet"_s, u"Übergewicht 0 0 0"_s,
                          u"Diabetes 2 1 0"_s, u"Gicht 0 0 0"_s, u"Herz und Kreislauf 0 0 0"_s}));
}

/// The one point is that of diabetes. Of 196 kcal 40 are from protein: 20.4 %, 120 from
/// carbohydrate: 61.2 %, and 36 from fat: 18.4 %.
void TestAktenform::theEvaluationIsThePlans()
{
    drucke(aufzeichnung());
    const QStringList urteil = zwischen(u"Beurteilung"_s, u"Montag"_s);
    QCOMPARE(urteil.first(), u"Beurteilung Ein unausgewogener Plan, 1 von 21 Punkten"_s);
    const QString alles = urteil.join(u' ');
    QVERIFY(alles.contains(u"Es fehlen: Energie (17,5 %), Protein (17 %), Fett (10 %)"_s));
    QVERIFY(!alles.contains(u"Diabetes"_s));
    QCOMPARE(urteil.last(),
             u"Von der Energie: Protein 20,4 %, Kohlenhydrate 61,2 %, Fett 18,4 %."_s);
}

void TestAktenform::withoutANeedItsPartsStayEmpty()
{
    drucke(aufzeichnung(), {});
    const QStringList mittel = zwischen(u"Mittel der Tage"_s, u"Mahlzeit Calcium"_s);
    QCOMPARE(mittel.mid(mittel.size() - 2),
             QStringList({u"Bedarf 30,0 200 550 2000"_s, u"% des Bedarfs 0,0 0,0 0,0 0,0"_s}));
}

void TestAktenform::whatDoesNotCountIsSaid()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    eine.tage[0].mahlzeiten[5].zeilen = {{.text = u"Omas Auflauf"_s, .angabe = u"ein Teller"_s}};
    drucke(eine);
    QCOMPARE(
        zwischen(u"Mittel der Tage"_s, u"Nichts"_s),
        QStringList({u"Mittel der Tage"_s, u"Tage im Mittel: 0."_s, u"Tag 1"_s,
                     u"Lebensmittel Menge Gramm Energie (kcal) Protein (g) Fett (g) "
                     "Kohlenhydrate (g) Ballaststoffe (g)"_s,
                     u"Spät"_s, u"Omas Auflauf ein Teller"_s, u"Zeilen, die nicht zählen: 1."_s}));
}

/// The fourth day has nothing to tell.
void TestAktenform::daysAreToldAsTheyAre()
{
    drucke(aufzeichnung());
    QStringList tage;
    for (const QString &zeile : zeilen().mid(5)) {
        if (zeile.contains(u". November 2026"_s)) {
            tage << zeile;
        }
    }
    QCOMPARE(tage, QStringList({u"Montag, 23. November 2026"_s, u"Dienstag, 24. November 2026"_s,
                                u"Mittwoch, 25. November 2026 (nicht im Mittel)"_s}));
}

void TestAktenform::anEmptyRecordHasNoFigures()
{
    drucke(neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 7));
    QCOMPARE(m_probe->seiten(), 1);
    QCOMPARE(zeilen().mid(5), QStringList({u"Mittel der Tage"_s, u"Tage im Mittel: 0."_s}));
}

void TestAktenform::nothingIsCutOffOnAnyPaper_data()
{
    QTest::addColumn<QPageLayout>("papier");
    QTest::addColumn<int>("tage");
    const auto neue = [](const char *name, QPageSize::PageSizeId groesse,
                         QPageLayout::Orientation lage, const QMarginsF &raender = {},
                         int tage = 4) {
        QTest::newRow(name) << Druckprobe::papier(groesse, lage, raender) << tage;
    };
    neue("A4 upright, two weeks", QPageSize::A4, QPageLayout::Portrait, {}, 14);
    neue("A4 across", QPageSize::A4, QPageLayout::Landscape);
    neue("Letter upright", QPageSize::Letter, QPageLayout::Portrait);
    neue("Letter across", QPageSize::Letter, QPageLayout::Landscape);
    neue("wide margins", QPageSize::A4, QPageLayout::Portrait, {90, 100, 110, 120});
}

/// Days of sixteen meals with long names: no word stands beyond the margins or on another.
void TestAktenform::nothingIsCutOffOnAnyPaper()
{
    QFETCH(const QPageLayout, papier);
    QFETCH(const int, tage);
    m_angaben.klient = probeworte(20).replace(u"wort"_s, u"k"_s);
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), tage);
    eine.titel = probeworte(30).replace(u"wort"_s, u"t"_s);
    eine.mahlzeiten.clear();
    for (int i = 0; i < meisteMahlzeiten; ++i) {
        eine.mahlzeiten << u"Mahlzeit%1 nach dem langen Weg"_s.arg(i);
    }
    for (Tag &tag : eine.tage) {
        tag.mahlzeiten.fill({{zeile("Butter", "1000 g von der guten Sorte", 1000, u"+"_s)}, {}},
                            meisteMahlzeiten);
    }
    eine.tage[3].mahlzeiten[5].zeilen[0].schluessel = QString(80, u'X');
    eine.tage[3].mahlzeiten[6].zeilen[0].schluessel = probeworte(60).replace(u"wort"_s, u"f"_s);
    eine.tage[3].mahlzeiten[6].notiz = probeworte(200).replace(u"wort"_s, u"n"_s);
    drucke(eine, {1960, 1960}, papier);
    const QMarginsF raender = papier.margins(QPageLayout::Point) | QMarginsF(36, 40, 36, 18);
    const QRectF frei = papier.fullRect(QPageLayout::Point).marginsRemoved(raender);
    const QList<Druckwort> worte = m_probe->worte();
    QString alles;
    for (const Druckwort &wort : worte) {
        QVERIFY2(wort.x >= frei.left() - 0.5 && wort.rechts <= frei.right() + 0.5 &&
                     wort.grundlinie - wort.groesse >= frei.top() - 2 &&
                     wort.grundlinie <= frei.bottom() + 0.5,
                 qPrintable(wort.text));
        alles += wort.text + u' ';
    }
    // A row for each meal of each day, and one in each of the two tables of sums of it and the
    // mean.
    QCOMPARE(alles.count(u"Mahlzeit15 "_s), tage + 2 * (tage + 1));
    QCOMPARE(alles.count(u'X'), 80);
    for (const auto &[art, anzahl] : {std::pair(u'k', 20), {u't', 30}, {u'f', 60}, {u'n', 200}}) {
        for (int i = 1; i <= anzahl; ++i) {
            const QString eines = art + QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0'));
            QVERIFY2(alles.contains(eines), qPrintable(eines));
        }
    }
}

void TestAktenform::inEnglishAllIsEnglish()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    Aufzeichnung eine = aufzeichnung();
    eine.titel.clear();
    drucke(eine);
    const QString alles = zeilen().join(u'\n');
    for (const QString &teil :
         {u"Food record\nClient Anna Muster\nKind Food record\nDays Monday, 23 November 2026 to"_s,
          u"Mean of the days\n"_s, u"Breakfast 300 15.0 6.0 45.0"_s, u"% of need 17.5"_s,
          u"\nor Butter"_s, u"Rating suitable neutral unsuitable"_s, u"(not in the mean)"_s,
          u"Of the energy: protein 20.4 %"_s, u"Rows that do not count: 1."_s}) {
        QVERIFY2(alles.contains(teil), qPrintable(teil + u"\n\n"_s + alles));
    }
    QCOMPARE(m_probe->name, u"Anna Muster, Food record 2026-11-30 File form"_s);
}

void TestAktenform::everyPageHasItsFootAndItsName()
{
    drucke(aufzeichnung());
    const int seiten = m_probe->seiten();
    QVERIFY(seiten > 1);
    for (int nummer = 1; nummer <= seiten; ++nummer) {
        const QStringList zeilen = m_probe->zeilen(nummer);
        QCOMPARE(zeilen.last(), u"Montag, 30. November 2026 Seite %1 von %2 Mahlberg"_s.arg(
                                    QString::number(nummer), QString::number(seiten)));
        QVERIFY(nummer == 1 || zeilen.first() == u"Anna Muster, Vier Tage"_s);
    }
}

QTEST_MAIN(TestAktenform)
#include "TestAktenform.moc"
