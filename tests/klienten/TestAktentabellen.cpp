// What is kept of a client goes out as tables.

#include "Aktentabellen.h"

#include "Aktenprobe.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestAktentabellen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPersonIsAFieldARow();
    void ofAnUnknownPersonTheCellsStayEmpty();
    void aVisitIsARow();
    void whatIsUnknownIsNotNothing();
    void aNoteIsAText_data();
    void aNoteIsAText();
    void aPlanIsARow();
    void aPlansFoodIsARow();
    void aRecordOfDaysIsARow();
    void aFoodOfADayIsARow();
    void valuesAreWorkedOutAsThePlanDoes();
    void aNumberThatIsNoneGoesOutAsSuch();
    void aClientWithoutAnythingHasTheHeadings();
    void inEnglishAllIsEnglish();

private:
    std::unique_ptr<Probesprache> m_sprache;
};

namespace {

const Csv::Zelle leer;

/// A column of the plan's foods, by its heading.
QList<Csv::Zelle> spalte(const Csv::Tabelle &tabelle, const QString &kopf)
{
    QList<Csv::Zelle> zellen;
    for (const QList<Csv::Zelle> &zeile : tabelle.zeilen) {
        zellen << zeile.value(tabelle.spalten.indexOf(kopf));
    }
    return zellen;
}

} // namespace

void TestAktentabellen::init()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::German);
}

void TestAktentabellen::aPersonIsAFieldARow()
{
    const Csv::Tabelle tabelle = personentabelle(Aktenprobe::person());
    QCOMPARE(tabelle.spalten, QStringList({u"Angabe"_s, u"Wert"_s}));
    const QList<QList<Csv::Zelle>> erwartet = {
        {u"Name"_s, u"Anna Muster"_s},
        {u"Nummer"_s, u"A-17"_s},
        {u"Geburtsdatum"_s, u"1980-04-03"_s},
        {u"Geschlecht"_s, u"Frau"_s},
        {u"Schwanger oder stillend"_s, u"keines von beiden"_s},
        {u"Übergewicht"_s, u"nein"_s},
        {u"Diabetes"_s, u"ja"_s},
        {u"Gicht"_s, u"nein"_s},
        {u"Herz und Kreislauf"_s, u"nein"_s},
        {u"Notizen"_s, u"Isst gern <b>Brot</b>.\nVerträgt keine Farbstoffe."_s},
        {u"Archiviert"_s, u"nein"_s},
    };
    QCOMPARE(tabelle.zeilen, erwartet);
}

void TestAktentabellen::ofAnUnknownPersonTheCellsStayEmpty()
{
    const Csv::Tabelle tabelle = personentabelle(Person());
    const QList<QString> texte = {u"Name"_s, u"Nummer"_s, u"Geburtsdatum"_s, u"Notizen"_s};
    for (const QList<Csv::Zelle> &zeile : tabelle.zeilen) {
        const QString name = std::get<QString>(zeile.first());
        QVERIFY2((zeile.last() == leer) == texte.contains(name), qPrintable(name));
    }
}

void TestAktentabellen::aVisitIsARow()
{
    const Csv::Tabelle tabelle = besuchstabelle(Aktenprobe::besuche());
    QCOMPARE(tabelle.spalten,
             QStringList({u"Datum"_s, u"Gewicht (kg)"_s, u"Größe (m)"_s, u"Taille (cm)"_s,
                          u"Hüfte (cm)"_s, u"Tätigkeit"_s, u"Gewichtsreduktion"_s, u"Sport"_s,
                          u"Sport am Tag (h)"_s, u"Notiz"_s}));
    const QList<QList<Csv::Zelle>> erwartet = {
        {u"2026-09-01"_s, 82.5, 1.68, 98.0, leer, u"mittlere Tätigkeit"_s, leer, leer, leer,
         u"Erstes Gespräch"_s},
        {u"2026-10-06"_s, 80.9, leer, 95.5, leer, leer, u"ja"_s, u"Radfahren"_s, 0.5, leer},
    };
    QCOMPARE(tabelle.zeilen, erwartet);
}

/// A measure of 0 was taken, and a reduction that is not aimed at was asked for.
void TestAktentabellen::whatIsUnknownIsNotNothing()
{
    Besuch besuch;
    besuch.sportdauer = 0;
    besuch.reduktion = false;
    besuch.aktivitaet = Aktivitaet::Leicht;
    const Csv::Tabelle tabelle = besuchstabelle({besuch});
    const QList<Csv::Zelle> erwartet = {leer,      leer, leer, leer, leer, u"leichte Tätigkeit"_s,
                                        u"nein"_s, leer, 0.0,  leer};
    QCOMPARE(tabelle.zeilen, {erwartet});
}

void TestAktentabellen::aNoteIsAText_data()
{
    QTest::addColumn<QString>("notiz");
    QTest::newRow("of several lines") << u"eins\n\nzwei"_s;
    QTest::newRow("that looks like a number") << u"0012"_s;
    QTest::newRow("that looks like a day") << u"2026-01-02"_s;
    QTest::newRow("that looks like a formula") << u"=1+1"_s;
    QTest::newRow("that looks like a mark-up") << u"<b>&amp;</b>"_s;
    QTest::newRow("with what marks arguments") << u"%1 %2"_s;
}

void TestAktentabellen::aNoteIsAText()
{
    QFETCH(const QString, notiz);
    Besuch besuch;
    besuch.notiz = notiz;
    Planablage plan;
    plan.titel = notiz;
    plan.notiz = notiz;
    Person person;
    person.notizen = notiz;
    QCOMPARE(besuchstabelle({besuch}).zeilen[0].last(), Csv::Zelle(notiz));
    QCOMPARE(plaenetabelle({plan}).zeilen[0].first(), Csv::Zelle(notiz));
    QCOMPARE(plaenetabelle({plan}).zeilen[0].value(2), Csv::Zelle(notiz));
    QVERIFY(personentabelle(person).zeilen.contains(QList<Csv::Zelle>{u"Notizen"_s, notiz}));
}

void TestAktentabellen::aPlanIsARow()
{
    Planablage leerer;
    leerer.datum = QDate(2026, 10, 1);
    const Csv::Tabelle tabelle = plaenetabelle({Aktenprobe::plan(), leerer});
    QCOMPARE(tabelle.spalten, QStringList({u"Titel"_s, u"Datum"_s, u"Notiz"_s, u"Lebensmittel"_s}));
    const QList<QList<Csv::Zelle>> erwartet = {
        {u"Erste Woche"_s, u"2026-09-02"_s, u"Abends warm"_s, 3.0},
        {leer, u"2026-10-01"_s, leer, 0.0},
    };
    QCOMPARE(tabelle.zeilen, erwartet);
}

/// 150 g of apples have 52 x 1.5 = 78 kcal, 60.9 g of bread 8 x 0.609 = 4.872 g of protein.
void TestAktentabellen::aPlansFoodIsARow()
{
    const Csv::Tabelle tabelle = planzeilentabelle({Aktenprobe::plan(), Aktenprobe::plan()});
    QCOMPARE(tabelle.spalten, QStringList({u"Plan"_s,
                                           u"Datum"_s,
                                           u"Lebensmittel"_s,
                                           u"Menge (g)"_s,
                                           u"Energie (kcal)"_s,
                                           u"Protein (g)"_s,
                                           u"Fett (g)"_s,
                                           u"Kohlenhydrate (g)"_s,
                                           u"Ballaststoffe (g)"_s,
                                           u"Cholesterin (mg)"_s,
                                           u"Natrium (mg)"_s,
                                           u"Kalium (mg)"_s,
                                           u"Calcium (mg)"_s,
                                           u"Phosphat (mg)"_s,
                                           u"Magnesium (mg)"_s,
                                           u"Eisen (mg)"_s,
                                           u"Vitamin A (µg)"_s,
                                           u"Vitamin B1 (mg)"_s,
                                           u"Vitamin B2 (mg)"_s,
                                           u"Vitamin B6 (mg)"_s,
                                           u"Vitamin C (mg)"_s,
                                           u"Übergewicht"_s,
                                           u"Diabetes"_s,
                                           u"Gicht"_s,
                                           u"Herz und Kreislauf"_s}));
    QCOMPARE(tabelle.zeilen.size(), 6);
    QCOMPARE(tabelle.zeilen[3], tabelle.zeilen[0]);
    const QList<Csv::Zelle> apfel = {u"Erste Woche"_s, u"2026-09-02"_s, u"Äpfel, roh"_s, 150.0F,
                                     78.0F};
    QCOMPARE(tabelle.zeilen[0].first(5), apfel);
    QCOMPARE(tabelle.zeilen[1].value(5), Csv::Zelle(4.872F));
    for (qsizetype wert = 6; wert < 21; ++wert) { // the record holds 0, and that is known
        QCOMPARE(tabelle.zeilen[0].value(wert), Csv::Zelle(0.0F));
    }
    QCOMPARE(tabelle.zeilen[0].mid(21),
             QList<Csv::Zelle>({QString(), u"+"_s, QString(), QString()}));
    const QList<Csv::Zelle> vergessenes = tabelle.zeilen[2];
    QCOMPARE(vergessenes.size(), 25);
    QCOMPARE(vergessenes.first(4),
             QList<Csv::Zelle>({u"Erste Woche"_s, u"2026-09-02"_s, u"Vergessenes"_s, 80.0F}));
    QCOMPARE(vergessenes.mid(4), QList<Csv::Zelle>(21));
}

void TestAktentabellen::aRecordOfDaysIsARow()
{
    Aufzeichnung ohneDatum = Aktenprobe::tage();
    ohneDatum.datum = {};
    ohneDatum.art = Aufzeichnungsart::Wochenplan;
    const Csv::Tabelle tabelle = aufzeichnungstabelle({Aktenprobe::tage(), ohneDatum});
    QCOMPARE(tabelle.spalten, QStringList({u"Titel"_s, u"Art"_s, u"Datum"_s, u"Tage"_s}));
    const QList<QList<Csv::Zelle>> erwartet = {
        {u"Zwei Tage"_s, u"Protokoll"_s, u"2026-09-07"_s, 2.0},
        {u"Zwei Tage"_s, u"Wochenplan"_s, leer, 2.0},
    };
    QCOMPARE(tabelle.zeilen, erwartet);
}

/// 50 g of bread have 255 x 0.5 = 127.5 kcal.
void TestAktentabellen::aFoodOfADayIsARow()
{
    const Csv::Tabelle tabelle = tageszeilentabelle({Aktenprobe::tage()});
    QCOMPARE(tabelle.spalten.first(7),
             QStringList({u"Aufzeichnung"_s, u"Tag"_s, u"Mahlzeit"_s, u"Lebensmittel"_s,
                          u"Menge, wie gesagt"_s, u"Menge (g)"_s, u"Energie (kcal)"_s}));
    QCOMPARE(tabelle.zeilen.size(), 4);
    const QList<Csv::Zelle> brot = {u"Zwei Tage"_s,  u"2026-09-07"_s, u"Frühstück"_s, u"Weißbrot"_s,
                                    u"2 Scheiben"_s, 50.0F,           127.5F};
    QCOMPARE(tabelle.zeilen[0].first(7), brot);
    QCOMPARE(tabelle.zeilen[0].size(), tabelle.spalten.size());
    const QList<Csv::Zelle> oder = {u"Zwei Tage"_s,       u"2026-09-07"_s, u"Frühstück"_s,
                                    u"oder Äpfel, roh"_s, u"150"_s,        150.0F};
    QCOMPARE(tabelle.zeilen[1], oder + QList<Csv::Zelle>(21));
    const QList<Csv::Zelle> auflauf = {u"Zwei Tage"_s,    u"2026-09-07"_s, u"Frühstück"_s,
                                       u"Omas Auflauf"_s, u"1 Teller"_s,   leer};
    QCOMPARE(tabelle.zeilen[2], auflauf + QList<Csv::Zelle>(21));
    QCOMPARE(tabelle.zeilen[3].value(1), Csv::Zelle(u"2026-09-08"_s));
    QCOMPARE(tabelle.zeilen[3].value(2), Csv::Zelle(u"Mittagessen"_s));
    Aufzeichnung ohneDatum = Aktenprobe::tage();
    ohneDatum.datum = {};
    QCOMPARE(tageszeilentabelle({ohneDatum}).zeilen[3].value(1), Csv::Zelle(2.0));
}

/// The grams are divided first, in single precision: 255 x (60.9 / 100) is a little more than
/// 255 x 60.9 / 100.
void TestAktentabellen::valuesAreWorkedOutAsThePlanDoes()
{
    const Csv::Tabelle tabelle = planzeilentabelle({Aktenprobe::plan()});
    QCOMPARE(spalte(tabelle, u"Energie (kcal)"_s)[1], Csv::Zelle(155.29501F));
}

void TestAktentabellen::aNumberThatIsNoneGoesOutAsSuch()
{
    Planablage plan = Aktenprobe::plan();
    plan.posten = {
        {u"Rest"_s, 100, Aktenprobe::speise(u"Rest"_s, std::numeric_limits<float>::infinity(), 1)}};
    const QByteArray text = Csv::schreiben(planzeilentabelle({plan}), Csv::formFuerProgramme());
    QVERIFY(text.contains("Rest,100,inf,1,0,"));
}

void TestAktentabellen::aClientWithoutAnythingHasTheHeadings()
{
    QCOMPARE(besuchstabelle({}).spalten.size(), 10);
    QCOMPARE(plaenetabelle({}).spalten.size(), 4);
    QCOMPARE(planzeilentabelle({}).spalten.size(), 25);
    QVERIFY(besuchstabelle({}).zeilen.isEmpty());
    QVERIFY(plaenetabelle({}).zeilen.isEmpty());
    QVERIFY(planzeilentabelle({}).zeilen.isEmpty());
    Planablage ohne = Aktenprobe::plan();
    ohne.posten.clear();
    QVERIFY(planzeilentabelle({ohne}).zeilen.isEmpty());
}

void TestAktentabellen::inEnglishAllIsEnglish()
{
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    const QByteArray text =
        Csv::schreiben(besuchstabelle(Aktenprobe::besuche()), Csv::formDesTabellenprogramms());
    QVERIFY(text.startsWith("\xEF\xBB\xBF")); // by which spreadsheets know UTF-8
    QCOMPARE(QString::fromUtf8(text),
             u"Date,Weight (kg),Height (m),Waist (cm),Hip (cm),Activity,Weight reduction,"
             "Sport,Sport a day (h),Note\r\n"
             "2026-09-01,82.5,1.68,98,,medium activity,,,,Erstes Gespräch\r\n"
             "2026-10-06,80.9,,95.5,,,yes,bicycling,0.5,\r\n"_s);
    Planablage plan = Aktenprobe::plan();
    plan.posten = {{u"Haferflocken"_s, 100, {}}};
    QCOMPARE(planzeilentabelle({plan}).zeilen[0].value(2),
             Csv::Zelle(u"Oats (rolled oats, porridge oats, oat flakes)"_s));
    QVERIFY(personentabelle(Aktenprobe::person())
                .zeilen.contains(QList<Csv::Zelle>{u"Gender"_s, u"Woman"_s}));
    QCOMPARE(planzeilentabelle({}).spalten.first(5),
             QStringList({u"Plan"_s, u"Date"_s, u"Food"_s, u"Amount (g)"_s, u"Energy (kcal)"_s}));
}

QTEST_GUILESS_MAIN(TestAktentabellen)
#include "TestAktentabellen.moc"
