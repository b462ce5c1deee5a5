#include "Planprobe.h"

#include <QLocale>
#include <QTest>
#include <QTranslator>

#include <cmath>

using namespace Qt::StringLiterals;

/// What stands in the cells and headings of the plan's table, and how large they are.
class TestPlanmodulTabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyColumnIsThere();
    void headingsCarryTheUnit();
    void narrowColumnsHaveShortHeadings();
    void valuesAreThoseOfTheAmount();
    void theValueBehindACellIsThatOf100Grams();
    void ratingsStandAsTheyAre();
    void namesAreShownInTheUsersLanguage();
    void aFoodOfNoStoreHasEmptyCells();
    void aBuiltInFoodGoesBeforeAnOwnOne();
    void numbersAreWrittenInTheUsersLocale();
    void aTraceIsNotNothing_data();
    void aTraceIsNotNothing();
    void theSizeControlSetsRowsAndColumns();
    void theSizeControlKeepsNameAndAmount();
    void aSizeOfNothingDoesNoHarm();
    void aDragCarriesTheName();
    void theLineShowsWhereADropGoes();
    void anEmptyPlanSaysHowToFillIt();

private:
    void oeffne() { m_fenster = std::make_unique<Planfenster>(*m_heim); }
    Tabellenansicht &tabelle() const { return *(*m_fenster)->PlanTabelle; }
    QString titel(const QString &spalte) const
    {
        return tabelle()
            .model()
            ->headerData(m_fenster->index(0, spalte).column(), Qt::Horizontal)
            .toString();
    }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulTabelle::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({zaehlspeise(u"Brot"_s), speise(u"Ei"_s)});
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Ei"_s, 60}});
    oeffne();
}

void TestPlanmodulTabelle::everyColumnIsThere()
{
    QStringList kennungen;
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        kennungen << tabelle().modell()->kennung(i);
    }
    QCOMPARE(kennungen.join(u' '),
             u"name menge kal protein fett kh bs chol na ka ca ph ma fe vita b1 b2 b6 vitc "
             "uebergewicht diabetes gicht hkk"_s);
}

void TestPlanmodulTabelle::headingsCarryTheUnit()
{
    QCOMPARE(titel(u"menge"_s), u"Menge\ng"_s);
    QCOMPARE(titel(u"kal"_s), u"Energie\nkcal"_s);
    QCOMPARE(titel(u"protein"_s), u"Protein\ng"_s);
    QCOMPARE(titel(u"fe"_s), u"Eisen\nmg"_s);
    QCOMPARE(titel(u"vita"_s), u"Vitamin A\nµg"_s);
    QCOMPARE(titel(u"hkk"_s), u"Herz und Kreislauf"_s);
}

void TestPlanmodulTabelle::narrowColumnsHaveShortHeadings()
{
    const int spalte = m_fenster->index(0, u"kh"_s).column();
    const QAbstractItemModel &modell = *tabelle().model();
    QCOMPARE(modell.headerData(spalte, Qt::Horizontal, Tabellenmodell::kurztitelrolle).toString(),
             u"KH\ng"_s);
    QCOMPARE(modell.headerData(spalte, Qt::Horizontal, Qt::ToolTipRole).toString(),
             u"Kohlenhydrate, g"_s);
}

void TestPlanmodulTabelle::valuesAreThoseOfTheAmount()
{
    m_fenster->tippeMenge(0, u"250"_s);
    const QMap<QString, QString> erwartet = {
        {u"kal"_s, u"5"_s},     {u"protein"_s, u"10,0"_s}, {u"fett"_s, u"15,0"_s},
        {u"kh"_s, u"20,0"_s},   {u"bs"_s, u"25,0"_s},      {u"chol"_s, u"30"_s},
        {u"na"_s, u"35"_s},     {u"ka"_s, u"40"_s},        {u"ca"_s, u"45"_s},
        {u"ph"_s, u"50"_s},     {u"ma"_s, u"55"_s},        {u"fe"_s, u"60,0"_s},
        {u"vita"_s, u"65"_s},   {u"b1"_s, u"70,00"_s},     {u"b2"_s, u"75,00"_s},
        {u"b6"_s, u"80,00"_s},  {u"vitc"_s, u"85,0"_s},    {u"menge"_s, u"250"_s},
        {u"name"_s, u"Brot"_s},
    };
    for (auto it = erwartet.begin(); it != erwartet.end(); ++it) {
        QCOMPARE(std::pair(it.key(), m_fenster->zelle(0, it.key())),
                 std::pair(it.key(), it.value()));
    }
}

void TestPlanmodulTabelle::theValueBehindACellIsThatOf100Grams()
{
    m_fenster->tippeMenge(0, u"250"_s);
    QCOMPARE(m_fenster->index(0, u"protein"_s).data(Qt::EditRole).toString(), u"4"_s);
    QCOMPARE(m_fenster->index(0, u"vitc"_s).data(Qt::EditRole).toString(), u"34"_s);
}

void TestPlanmodulTabelle::ratingsStandAsTheyAre()
{
    QCOMPARE(m_fenster->zelle(0, u"uebergewicht"_s), u"+"_s);
    QCOMPARE(m_fenster->zelle(0, u"diabetes"_s), u"0"_s);
    QCOMPARE(m_fenster->zelle(0, u"gicht"_s), u"-"_s);
    QCOMPARE(m_fenster->zelle(0, u"hkk"_s), u"egal"_s);
    QVERIFY(m_fenster->zelle(1, u"hkk"_s).isNull()); // never rated
}

void TestPlanmodulTabelle::namesAreShownInTheUsersLanguage()
{
    class Woerter : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "Brot") == 0 ? u"Bread"_s : QString();
        }
    };
    Woerter woerter;
    QCoreApplication::installTranslator(&woerter);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Bread"_s, u"Ei"_s}));
    QCOMPARE(tabelle().modell()->ziehtext(0, 0), u"Brot"_s); // a drag carries the key
}

void TestPlanmodulTabelle::aFoodOfNoStoreHasEmptyCells()
{
    m_heim->schreibePlan({{u"Verschwunden"_s, 40}});
    oeffne();
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        const QString spalte = tabelle().modell()->kennung(i);
        const QVariant wert = m_fenster->index(0, spalte).data();
        QCOMPARE(wert.toString(), spalte == u"menge"_s ? u"40"_s : QString());
    }
    QVERIFY(!tabelle().grab().isNull());
}

void TestPlanmodulTabelle::aBuiltInFoodGoesBeforeAnOwnOne()
{
    m_heim->schreibeEigene({speise(u"Brot"_s, {{Naehrwert::protein, 99}}),
                            speise(u"Selbstgemachtes"_s, {{Naehrwert::protein, 77}})});
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Selbstgemachtes"_s, 100}});
    oeffne();
    QCOMPARE(m_fenster->spalte(u"protein"_s), QStringList({u"4,0"_s, u"77,0"_s}));
}

void TestPlanmodulTabelle::numbersAreWrittenInTheUsersLocale()
{
    m_fenster->tippeMenge(0, u"12345,5"_s);
    QCOMPARE(m_fenster->zelle(0, u"menge"_s), u"12345,5"_s);
    QCOMPARE(m_fenster->zelle(0, u"vitc"_s), u"4197,5"_s);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCOMPARE(m_fenster->zelle(0, u"menge"_s), u"12345.5"_s);
    QCOMPARE(m_fenster->zelle(0, u"vitc"_s), u"4197.5"_s);
}

void TestPlanmodulTabelle::aTraceIsNotNothing_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<float>("wert");
    QTest::addColumn<QString>("gezeigt");
    QTest::newRow("none at all") << u"protein"_s << 0.0F << u"0,0"_s;
    QTest::newRow("as many digits as its column") << u"protein"_s << 0.3F << u"0,3"_s;
    QTest::newRow("one digit more") << u"protein"_s << 0.04F << u"0,04"_s;
    QTest::newRow("two digits more, rounded") << u"b1"_s << 0.00046F << u"0,0005"_s;
    QTest::newRow("in a column of whole numbers") << u"na"_s << 0.4F << u"0,4"_s;
    QTest::newRow("what rounds up is seen") << u"na"_s << 0.6F << u"1"_s;
    QTest::newRow("less than anyone measures") << u"b1"_s << 3e-9F << u"3E-09"_s;
    QTest::newRow("below nothing") << u"protein"_s << -0.02F << u"-0,02"_s;
    QTest::newRow("a number that ran over") << u"na"_s << 3e38F << u"-"_s;
}

void TestPlanmodulTabelle::aTraceIsNotNothing()
{
    QFETCH(QString, spalte);
    QFETCH(float, wert);
    QFETCH(QString, gezeigt);
    Datenmodul spur = speise(u"Spur"_s);
    for (const auto &zeile : naehrwerte) {
        if (spalte == QLatin1String(zeile.kennung)) {
            spur.setWert(zeile.wert, wert);
        }
    }
    m_heim->schreibeTabelle({spur});
    m_heim->schreibePlan({{u"Spur"_s, wert < 1e30F ? 100.0F : 1000.0F}});
    oeffne();
    QCOMPARE(m_fenster->zelle(0, spalte), gezeigt);
}

void TestPlanmodulTabelle::theSizeControlSetsRowsAndColumns()
{
    Schieber &regler = *(*m_fenster)->tabellengroesse;
    regler.setFloatValue(47.9F);
    (*m_fenster)->tabgroesseaendern(regler);
    QCOMPARE(tabelle().rowHeight(), 47);
    int gesetzt = 0;
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        gesetzt += tabelle().columnWidth(i) == 47 ? 1 : 0;
    }
    QCOMPARE(gesetzt, 21);
    QTest::keyClick(regler.regler(), Qt::Key_Home); // by the keyboard, down to the smallest
    QCOMPARE(tabelle().rowHeight(), 20);
    QCOMPARE(tabelle().columnWidth(m_fenster->index(0, u"hkk"_s).column()), 20);
    QVERIFY(!tabelle().grab().isNull());
}

void TestPlanmodulTabelle::theSizeControlKeepsNameAndAmount()
{
    const int name = tabelle().columnWidth(m_fenster->index(0, u"name"_s).column());
    const int menge = tabelle().columnWidth(m_fenster->index(0, u"menge"_s).column());
    (*m_fenster)->tabellengroesse->setIntValue(33);
    (*m_fenster)->tabgroesseaendern(*(*m_fenster)->tabellengroesse);
    QCOMPARE(tabelle().columnWidth(m_fenster->index(0, u"name"_s).column()), name);
    QCOMPARE(tabelle().columnWidth(m_fenster->index(0, u"menge"_s).column()), menge);
}

void TestPlanmodulTabelle::aSizeOfNothingDoesNoHarm()
{
    for (const double groesse : {0.0, -5.0, std::nan("")}) {
        Textfeld feld;
        feld.setDoubleValue(groesse);
        (*m_fenster)->tabgroesseaendern(feld);
        QVERIFY(!tabelle().grab().isNull());
    }
}

void TestPlanmodulTabelle::aDragCarriesTheName()
{
    for (const QString &spalte : {u"name"_s, u"menge"_s, u"hkk"_s}) {
        const int stelle = m_fenster->index(1, spalte).column();
        QCOMPARE(tabelle().modell()->ziehtext(stelle, 1), u"Ei"_s);
    }
    QVERIFY(tabelle().modell()->ziehtext(0, 2).isNull());
}

void TestPlanmodulTabelle::theLineShowsWhereADropGoes()
{
    const int oben = tabelle().rowViewportPosition(0);
    const int hoehe = tabelle().rowHeight();
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + 1)), std::optional(0));
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + hoehe / 2)), std::optional(1)); // on row 0
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + hoehe - 1)), std::optional(1));
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + hoehe + 1)), std::optional(1));
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + hoehe + hoehe / 2)), std::optional(2));
    QCOMPARE(tabelle().abwurfzeile(QPoint(5, oben + 4 * hoehe)), std::optional(2));
}

void TestPlanmodulTabelle::anEmptyPlanSaysHowToFillIt()
{
    const QImage voll = tabelle().viewport()->grab().toImage();
    (*m_fenster)->PlanArray.clear();
    (*m_fenster)->mengenarray.clear();
    tabelle().setHinweis({});
    (*m_fenster)->nameimportvontoolbar(u"Ei"_s);
    tabelle().selectRow(0);
    (*m_fenster)->Lebensmittelentfernen();
    const QImage ohne = tabelle().viewport()->grab().toImage();
    tabelle().setHinweis(u"Hierher"_s);
    QVERIFY(tabelle().viewport()->grab().toImage() != ohne);
    QVERIFY(voll != ohne);
}

QTEST_MAIN(TestPlanmodulTabelle)
#include "TestPlanmodulTabelle.moc"
