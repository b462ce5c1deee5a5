// Everything that is kept of a client, on paper.

#include "Klientenblatttest.h"

using namespace Qt::StringLiterals;

class TestKlientenblatt : public Klientenblatttest
{
    Q_OBJECT

private Q_SLOTS:
    void thePersonStandsAtTheTop();
    void whatIsNotKnownIsLeftOut();
    void withoutANameItSaysSo();
    void theAgeIsThatOfTheDay_data();
    void theAgeIsThatOfTheDay();
    void visitsAreATable();
    void columnsInWhichNothingStandsAreLeftOut();
    void manyVisitsGoOverPages();
    void measuresHaveTheirCourse_data();
    void measuresHaveTheirCourse();
    void aCourseIsDrawnInLines();
    void plansHaveTheirFoodsAndSums();
    void allPlansHaveTheirNumbersInTheSamePlace();
    void aPlanWithoutFoodsSaysSo();
    void manyPlansGoOverPages();
    void theOrderIsPersonVisitsCoursePlans();
    void nothingIsCutOffOnAnyPaper_data();
    void nothingIsCutOffOnAnyPaper();
    void textsAreAsTheyWereTyped();
    void everyPageHasItsFootAndTheNameAbove();
    void aPrintIsNamedAfterTheClient();
    void anotherPaperIsLaidOutAnew();
    void aDarkDesktopPrintsTheSame();
    void inEnglishAllIsEnglish();
};

void TestKlientenblatt::thePersonStandsAtTheTop()
{
    drucke({Aktenprobe::person(), {}, {}});
    QCOMPARE(m_probe->seiten(), 1);
    QCOMPARE(
        alleZeilen(),
        QStringList({u"Anna Muster"_s, u"Nummer A-17"_s, u"Geburtsdatum 03.04.1980 (Alter 46)"_s,
                     u"Geschlecht Frau"_s, u"Diabetes ja"_s, u"Notizen Isst gern <b>Brot</b>."_s,
                     u"Verträgt keine Farbstoffe."_s, u"Besuche"_s, u"Noch kein Besuch."_s,
                     u"Pläne"_s, u"Noch kein Plan."_s}));
    QVERIFY(wort(u"Anna"_s).groesse > 1.5 * wort(u"Nummer"_s).groesse);
    QVERIFY(wort(u"Besuche"_s).groesse > 1.2 * wort(u"Nummer"_s).groesse);
}

void TestKlientenblatt::whatIsNotKnownIsLeftOut()
{
    Person person;
    person.name = u"Anna"_s;
    drucke({person, {}, {}});
    QCOMPARE(alleZeilen(), QStringList({u"Anna"_s, u"Besuche"_s, u"Noch kein Besuch."_s, u"Pläne"_s,
                                        u"Noch kein Plan."_s}));
    person.umstand = Umstand::Stillend;
    person.archiviert = true;
    drucke({person, {}, {}});
    QCOMPARE(alleZeilen().mid(1, 2),
             QStringList({u"Schwanger oder stillend stillend"_s, u"Archiviert ja"_s}));
}

void TestKlientenblatt::withoutANameItSaysSo()
{
    Person person;
    person.name = u"  "_s;
    drucke({person, {}, {}});
    QCOMPARE(alleZeilen().value(0), u"(ohne Namen)"_s);
    QCOMPARE(m_probe->titel, u"(ohne Namen)"_s);
}

void TestKlientenblatt::theAgeIsThatOfTheDay_data()
{
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<QString>("worte");
    QTest::newRow("on the birthday") << QDate(1980, 11, 23) << u"23.11.1980 (Alter 46)"_s;
    QTest::newRow("a day before it") << QDate(1980, 11, 24) << u"24.11.1980 (Alter 45)"_s;
    QTest::newRow("born today") << QDate(2026, 11, 23) << u"23.11.2026 (Alter 0)"_s;
    QTest::newRow("to be born") << QDate(2026, 11, 24) << u"24.11.2026"_s;
}

void TestKlientenblatt::theAgeIsThatOfTheDay()
{
    QFETCH(const QDate, geburt);
    QFETCH(const QString, worte);
    Person person = Aktenprobe::person();
    person.geburt = geburt;
    drucke({person, {}, {}});
    QCOMPARE(alleZeilen().value(2), u"Geburtsdatum "_s + worte);
}

void TestKlientenblatt::visitsAreATable()
{
    drucke({Aktenprobe::person(), Aktenprobe::besuche(), {}},
           Druckprobe::papier(QPageSize::A4, QPageLayout::Landscape));
    const QStringList zeilen = alleZeilen();
    const qsizetype kopf = zeilen.indexOf(
        u"Datum Gewicht (kg) Größe (m) Taille (cm) Tätigkeit Gewichtsreduktion Sport "
        "Sport am Tag (h)"_s);
    QVERIFY2(kopf > 0, qPrintable(zeilen.join(u'\n')));
    QCOMPARE(zeilen.mid(kopf + 1, 3),
             QStringList({u"01.09.2026 82,5 1,68 98,0 mittlere Tätigkeit"_s, u"Erstes Gespräch"_s,
                          u"06.10.2026 80,9 95,5 ja Radfahren 0,5"_s}));
    // What is missing leaves its place empty.
    QVERIFY(qAbs(wort(u"98,0"_s).rechts - wort(u"95,5"_s).rechts) < 0.3);
    QVERIFY(qAbs(wort(u"0,5"_s).rechts - wort(u"(h)"_s).rechts) < 0.3);
}

void TestKlientenblatt::columnsInWhichNothingStandsAreLeftOut()
{
    Besuch einer;
    einer.datum = QDate(2026, 9, 1);
    einer.gewicht = 0;
    drucke({Aktenprobe::person(), {einer}, {}});
    const QStringList zeilen = alleZeilen();
    QVERIFY(zeilen.contains(u"Datum Gewicht (kg)"_s));
    QVERIFY(zeilen.contains(u"01.09.2026 0,0"_s));
    einer = {};
    einer.datum = QDate(2026, 9, 2);
    einer.notiz = u"Nur geredet"_s;
    drucke({Aktenprobe::person(), {einer}, {}});
    QVERIFY(seite(1).contains(u"Datum\n02.09.2026\nNur geredet\n"_s));
}

/// 120 visits take more than one page: each of them stands there once, in order, below the table's
/// head.
void TestKlientenblatt::manyVisitsGoOverPages()
{
    drucke({Aktenprobe::person(), Aktenprobe::viele(120), {}});
    QVERIFY(m_probe->seiten() >= 3);
    QStringList reihen;
    int koepfe = 0;
    for (int nummer = 1; nummer <= m_probe->seiten(); ++nummer) {
        bool unterKopf = false;
        for (const QString &zeile : ohneRaender(m_probe->zeilen(nummer), nummer)) {
            if (zeile == u"Datum Gewicht (kg)"_s) {
                unterKopf = true;
                ++koepfe;
            } else if (zeile.size() == u"01.01.2025 90,0"_s.size() && zeile[2] == u'.') {
                QVERIFY(unterKopf);
                reihen << zeile;
            }
        }
    }
    QVERIFY(koepfe >= 2);
    QCOMPARE(reihen.size(), 120);
    for (int i = 0; i < 120; ++i) {
        const QDate tag = QDate(2025, 1, 1).addDays(7LL * i);
        QCOMPARE(reihen[i],
                 tag.toString(u"dd.MM.yyyy"_s) + u' ' + QLocale().toString(90 - 0.1 * i, 'f', 1));
    }
}

void TestKlientenblatt::measuresHaveTheirCourse_data()
{
    QTest::addColumn<bool>("gewicht");
    QTest::addColumn<bool>("groesse");
    QTest::addColumn<bool>("taille");
    QTest::newRow("none") << false << false << false;
    QTest::newRow("a weight alone") << true << false << false;
    QTest::newRow("weight and height") << true << true << false;
    QTest::newRow("a waist alone") << false << false << true;
    QTest::newRow("all") << true << true << true;
}

/// The body mass index needs both, 81 kg / (1.8 m)² = 25.
void TestKlientenblatt::measuresHaveTheirCourse()
{
    QFETCH(const bool, gewicht);
    QFETCH(const bool, groesse);
    QFETCH(const bool, taille);
    Besuch einer;
    einer.datum = QDate(2026, 9, 1);
    einer.gewicht = gewicht ? std::optional(81.0) : std::nullopt;
    einer.groesse = groesse ? std::optional(1.8) : std::nullopt;
    einer.taille = taille ? std::optional(98.0) : std::nullopt;
    drucke({Aktenprobe::person(), {einer}, {}});
    const QString alles = seite(1).replace(QChar(QChar::Nbsp), u' ');
    QCOMPARE(alles.contains(u"\nVerlauf\n"_s), gewicht || taille);
    QCOMPARE(alles.contains(u"81,0 kg am 01.09."_s), gewicht);
    QCOMPARE(alles.contains(u"25,0 kg/m² am 01.09."_s), gewicht && groesse);
    QCOMPARE(alles.contains(u"98,0 cm am 01.09."_s), taille);
    QCOMPARE(alles.contains(u"Zielbereich nach:"_s), (gewicht && groesse) || taille);
}

void TestKlientenblatt::aCourseIsDrawnInLines()
{
    drucke(Aktenprobe::akte());
    QCOMPARE(m_probe->bilder(), 0);
    for (const QString &name : m_probe->schriften()) {
        QVERIFY2(name.contains(u"NimbusSans"_s), qPrintable(name));
    }
    // Below the heading there are lines and dots, of the weight at the left and beside it of the
    // body mass index.
    const QImage bild = m_probe->bild(1, 1);
    const Druckwort verlauf = wort(u"Verlauf"_s);
    QVERIFY(verlauf.seite == 1);
    for (const int links : {40, 320}) {
        int schwarze = 0;
        for (int y = static_cast<int>(verlauf.grundlinie) + 20; y < verlauf.grundlinie + 140; ++y) {
            for (int x = links; x < links + 200; ++x) {
                schwarze += bild.pixelColor(x, y).lightness() < 100 ? 1 : 0;
            }
        }
        QVERIFY2(schwarze > 100, qPrintable(QString::number(schwarze)));
    }
}

/// 150 g of apples have 52 x 1.5 = 78 kcal, 60.9 g of bread 255 x 0.609 = 155.3; the fraction falls
/// away as it does in a printed plan.
void TestKlientenblatt::plansHaveTheirFoodsAndSums()
{
    Planablage zweiter = Aktenprobe::plan();
    zweiter.titel.clear();
    zweiter.notiz.clear();
    zweiter.datum = QDate(2026, 10, 7);
    zweiter.posten = zweiter.posten.first(1);
    drucke({Aktenprobe::person(), {}, {Aktenprobe::plan(), zweiter}});
    const QStringList zeilen = alleZeilen();
    QCOMPARE(zeilen.mid(zeilen.indexOf(u"Pläne"_s)),
             QStringList({u"Pläne"_s, u"Erste Woche, 02.09.2026"_s, u"Abends warm"_s,
                          u"Lebensmittel Menge (g) Energie (kcal)"_s, u"Äpfel, roh 150 78"_s,
                          u"Weißbrot 60,9 155"_s, u"Vergessenes 80"_s, u"Gesamt 290,9 233"_s,
                          u"07.10.2026"_s, u"Lebensmittel Menge (g) Energie (kcal)"_s,
                          u"Äpfel, roh 150 78"_s, u"Gesamt 150 78"_s}));
}

void TestKlientenblatt::allPlansHaveTheirNumbersInTheSamePlace()
{
    Planablage kurz = Aktenprobe::plan();
    kurz.posten = {{u"Ei"_s, 111, {}}};
    Planablage lang = Aktenprobe::plan();
    lang.posten = {{u"Vollkornbrot mit Sonnenblumenkernen"_s, 222, {}}};
    drucke({Aktenprobe::person(), {}, {kurz, lang}});
    QVERIFY(wort(u"111"_s).seite == 1);
    QVERIFY(qAbs(wort(u"111"_s).rechts - wort(u"222"_s).rechts) < 0.1);
}

void TestKlientenblatt::aPlanWithoutFoodsSaysSo()
{
    Planablage leerer = Aktenprobe::plan();
    leerer.posten.clear();
    drucke({Aktenprobe::person(), {}, {leerer}});
    QVERIFY(seite(1).contains(u"Erste Woche, 02.09.2026\nAbends warm\nOhne Lebensmittel."_s));
}

void TestKlientenblatt::manyPlansGoOverPages()
{
    QList<Planablage> plaene;
    for (int i = 1; i <= 30; ++i) {
        Planablage einer = Aktenprobe::plan();
        einer.titel = u"Plan%1"_s.arg(i);
        plaene << einer;
    }
    drucke({Aktenprobe::person(), {}, plaene});
    QVERIFY(m_probe->seiten() >= 4);
    const QList<Druckwort> &worte = m_worte;
    QList<Druckwort> mengen;
    std::copy_if(worte.begin(), worte.end(), std::back_inserter(mengen),
                 [](const Druckwort &wort) { return wort.text == u"150"_s; });
    QCOMPARE(mengen.size(), 30);
    Druckwort davor;
    for (int i = 1; i <= 30; ++i) { // each title with its first food, in order
        const Druckwort titel = finde(worte, u"Plan%1,"_s.arg(i));
        QVERIFY(titel.seite > davor.seite ||
                (titel.seite == davor.seite && titel.grundlinie > davor.grundlinie));
        QCOMPARE(mengen[i - 1].seite, titel.seite);
        davor = titel;
    }
}

void TestKlientenblatt::theOrderIsPersonVisitsCoursePlans()
{
    drucke(Aktenprobe::akte());
    const QString alles = alleZeilen().join(u'\n');
    qsizetype stelle = -1;
    for (const QString &teil :
         {u"Anna Muster"_s, u"Nummer"_s, u"Notizen"_s, u"\nBesuche\n"_s, u"01.09.2026"_s,
          u"06.10.2026"_s, u"\nVerlauf\n"_s, u"Zielbereich nach:"_s, u"\nPläne\n"_s,
          u"Erste Woche"_s, u"Gesamt 290,9 233"_s}) {
        const qsizetype hier = alles.indexOf(teil, stelle + 1);
        QVERIFY2(hier > stelle, qPrintable(teil));
        stelle = hier;
    }
}

void TestKlientenblatt::nothingIsCutOffOnAnyPaper_data()
{
    QTest::addColumn<QPageLayout>("papier");
    const auto zeile = [](const char *name, QPageSize::PageSizeId groesse,
                          QPageLayout::Orientation lage, const QMarginsF &raender) {
        QTest::newRow(name) << Druckprobe::papier(groesse, lage, raender);
    };
    zeile("A4 upright", QPageSize::A4, QPageLayout::Portrait, {});
    zeile("A4 across", QPageSize::A4, QPageLayout::Landscape, {});
    zeile("Letter upright", QPageSize::Letter, QPageLayout::Portrait, {});
    zeile("Letter across", QPageSize::Letter, QPageLayout::Landscape, {});
    zeile("A5 upright", QPageSize::A5, QPageLayout::Portrait, {});
    zeile("A4 upright with wide margins", QPageSize::A4, QPageLayout::Portrait,
          {90, 100, 110, 120});
}

/// A long name, a number without blanks, a long title and notes of 600 words: all words are there,
/// and none beyond the margins.
void TestKlientenblatt::nothingIsCutOffOnAnyPaper()
{
    QFETCH(const QPageLayout, papier);
    Klientenakte akte = Aktenprobe::akte();
    akte.person.name = probeworte(40);
    akte.person.nummer = QString(200, u'X');
    akte.person.notizen = probeworte(600).replace(u"wort"_s, u"p"_s);
    akte.besuche[0].notiz = probeworte(600).replace(u"wort"_s, u"b"_s);
    akte.besuche[0].sport = QString(80, u'Q');
    akte.plaene[0].titel = probeworte(60).replace(u"wort"_s, u"t"_s);
    akte.plaene[0].notiz = probeworte(600).replace(u"wort"_s, u"l"_s);
    akte.plaene[0].posten[0].schluessel = probeworte(60).replace(u"wort"_s, u"f"_s);
    drucke(akte, papier);
    const QMarginsF raender = papier.margins(QPageLayout::Point) | QMarginsF(36, 36, 36, 18);
    const QRectF frei = papier.fullRect(QPageLayout::Point).marginsRemoved(raender);
    const QString alles = u' ' + alleZeilen().join(u' ') + u' ';
    for (const Druckwort &wort : std::as_const(m_worte)) {
        QVERIFY2(wort.x >= frei.left() - 0.5 && wort.rechts <= frei.right() + 0.5 &&
                     wort.grundlinie - wort.groesse >= frei.top() - 1 &&
                     wort.grundlinie <= frei.bottom() + 0.5,
                 qPrintable(wort.text));
    }
    for (int i = 1; i <= 600; ++i) {
        const QString nummer = QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0'));
        for (const auto &[art, anzahl] : {std::pair(u"wort"_s, 40),
                                          {u"p"_s, 600},
                                          {u"b"_s, 600},
                                          {u"t"_s, 60},
                                          {u"l"_s, 600},
                                          {u"f"_s, 60}}) {
            const QString wort = art + nummer;
            QVERIFY2(i > anzahl || alles.contains(wort), qPrintable(wort));
        }
    }
    QCOMPARE(alles.count(u'X'), 200);
    QCOMPARE(alles.count(u'Q'), 80);
}

void TestKlientenblatt::textsAreAsTheyWereTyped()
{
    Klientenakte akte = Aktenprobe::akte();
    akte.person.name = u"<i>Anna</i> & %1 „Muster“"_s;
    akte.besuche[0].notiz = u"eins\n\nzwei  <b>drei</b> &amp; %2"_s;
    akte.plaene[0].titel = u"%1 <u>Plan</u>"_s;
    drucke(akte);
    const QStringList zeilen = alleZeilen();
    QCOMPARE(zeilen.value(0), u"<i>Anna</i> & %1 „Muster“"_s);
    QCOMPARE(zeilen.indexOf(u"zwei <b>drei</b> &amp; %2"_s), zeilen.indexOf(u"eins"_s) + 1);
    QVERIFY(zeilen.contains(u"%1 <u>Plan</u>, 02.09.2026"_s));
    // The empty line between them is there.
    QVERIFY(wort(u"zwei"_s).grundlinie - wort(u"eins"_s).grundlinie > 18);
}

void TestKlientenblatt::everyPageHasItsFootAndTheNameAbove()
{
    drucke({Aktenprobe::person(), Aktenprobe::viele(120), {}});
    const int seiten = m_probe->seiten();
    for (int nummer = 1; nummer <= seiten; ++nummer) {
        const QStringList zeilen = m_probe->zeilen(nummer);
        QCOMPARE(zeilen.first(), u"Anna Muster"_s);
        QCOMPARE(zeilen.last(), u"Montag, 23. November 2026 Seite %1 von %2 Mahlberg"_s.arg(
                                    QString::number(nummer), QString::number(seiten)));
    }
}

void TestKlientenblatt::aPrintIsNamedAfterTheClient()
{
    drucke(Aktenprobe::akte());
    QCOMPARE(m_probe->titel, u"Anna Muster"_s);
    QCOMPARE(m_probe->name, u"Anna Muster 2026-11-23 Akte"_s);
}

/// A preview shows one paper and prints another.
void TestKlientenblatt::anotherPaperIsLaidOutAnew()
{
    const Druckauftrag auftrag =
        klientenblatt({Aktenprobe::person(), Aktenprobe::viele(120), {}}, Aktenprobe::heute);
    const QPageLayout hoch = Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait);
    const QPageLayout quer = Druckprobe::papier(QPageSize::A4, QPageLayout::Landscape);
    const int seiten = auftrag.seitenzahl(hoch);
    QVERIFY(auftrag.seitenzahl(quer) > seiten);
    QCOMPARE(auftrag.seitenzahl(hoch), seiten);
    Druckprobe probe(quer);
    probe.drucke(auftrag);
    QCOMPARE(probe.seiten(), auftrag.seitenzahl(quer));
    QCOMPARE(probe.seitengroesse(), QSizeF(842, 595));
}

void TestKlientenblatt::aDarkDesktopPrintsTheSame()
{
    drucke(Aktenprobe::akte());
    const QImage hell = m_probe->bild(1);
    QApplication::setPalette(QPalette(Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::darkGray,
                                      Qt::white, Qt::white, Qt::black, Qt::black));
    drucke(Aktenprobe::akte());
    QCOMPARE(m_probe->bild(1), hell);
    QCOMPARE(hell.pixelColor(4, 4), QColor(Qt::white));
}

void TestKlientenblatt::inEnglishAllIsEnglish()
{
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    Klientenakte akte = Aktenprobe::akte();
    akte.plaene[0].posten[2].schluessel = u"Haferflocken"_s;
    drucke(akte, Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape));
    const QString alles = alleZeilen().join(u'\n').replace(QChar(QChar::Nbsp), u' ');
    for (const QString &teil :
         {u"Date of birth 03/04/1980 (age 46)"_s, u"Gender Woman"_s, u"\nVisits\n"_s,
          u"01/09/2026 82.5 1.68 98.0"_s, u"bicycling"_s, u"\nCourse\n"_s, u"\nPlans\n"_s,
          u"Food Amount (g) Energy (kcal)"_s, u"oat flakes) 80"_s, u"Total 290.9 233"_s}) {
        QVERIFY2(alles.contains(teil), qPrintable(alles));
    }
    QCOMPARE(m_probe->name, u"Anna Muster 2026-11-23 Record"_s);
    drucke({});
    QVERIFY(seite(1).contains(u"Visits\nNo visit yet.\nPlans\nNo plan yet."_s));
}

QTEST_MAIN(TestKlientenblatt)
#include "TestKlientenblatt.moc"
