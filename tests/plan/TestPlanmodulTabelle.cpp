#include "Planprobe.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QTest>
#include <QTranslator>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

/// What stands in the cells of the plan's table, and what the user does with them.
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
    void amounts_data();
    void amounts();
    void anAmountThatNoNumberHoldsIsRefused_data();
    void anAmountThatNoNumberHoldsIsRefused();
    void aTraceIsNotNothing_data();
    void aTraceIsNotNothing();
    void theAmountsHeadingSaysHowToTypeIt();
    void anEditedAmountChangesTheWholeRow();
    void anEditReloadsNothing();
    void onlyAmountsCanBeEdited();
    void aClickOnAnAmountBeginsToChangeIt();
    void aDoubleClickTakesTheWholeAmount();
    void theKeysOfTheEditorStayThere();
    void typingOverAnAmountBeginsToChangeIt();
    void escapeLeavesTheAmount();
    void theMenuBeginsToChangeTheAmountOfTheRow();
    void anAmountKeepsItsDigits();
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

namespace {

/// Every value of it is a number of its own: 2, 4, 6 ...
Datenmodul zaehlspeise(const QString &name)
{
    Datenmodul neu = speise(name, {}, {u"+"_s, u"0"_s, u"-"_s, u"egal"_s});
    for (const auto &zeile : naehrwerte) {
        neu.setWert(zeile.wert, 2.0F * static_cast<float>(stelle(zeile.wert) + 1));
    }
    return neu;
}

} // namespace

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

void TestPlanmodulTabelle::amounts_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<float>("gramm");
    QTest::newRow("whole") << "250" << 250.0F;
    QTest::newRow("with a comma") << "150,7" << 150.7F;
    QTest::newRow("with a point") << "150.7" << 150.7F;
    QTest::newRow("a point before three digits") << "1.250" << 1.25F;
    QTest::newRow("with its unit") << "80 g" << 80.0F;
    QTest::newRow("nothing") << "" << 0.0F;
    QTest::newRow("nonsense") << "viel" << 0.0F;
    QTest::newRow("a hyphen") << "-" << 0.0F;
    QTest::newRow("negative") << "-30" << -30.0F;
    QTest::newRow("negative with a fraction") << "-0,5" << -0.5F;
    QTest::newRow("more than anyone eats") << "1e30" << 1e30F;
}

void TestPlanmodulTabelle::amounts()
{
    QFETCH(QString, getippt);
    QFETCH(float, gramm);
    m_fenster->tippeMenge(1, getippt);
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, gramm}));
    QCOMPARE(m_heim->plan().value(u"Ei"_s), gramm);
    QVERIFY(!(*m_fenster)->window()->grab().isNull());
    const double zahl = zahlAusText(m_fenster->zelle(1, u"menge"_s));
    QVERIFY(qFuzzyCompare(1.0F + static_cast<float>(zahl), 1.0F + gramm));
    (*m_fenster)->datenberechnen();
}

void TestPlanmodulTabelle::anAmountThatNoNumberHoldsIsRefused_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::newRow("more than the program can hold") << "1e300";
    QTest::newRow("as much below nothing") << "-1e300";
    QTest::newRow("a little more than the largest number") << "3.5e38";
    QTest::newRow("more than any number") << "1e999";
    QTest::newRow("a key held down") << QString(400, u'9');
}

void TestPlanmodulTabelle::anAmountThatNoNumberHoldsIsRefused()
{
    QFETCH(QString, getippt);
    m_fenster->tippeMenge(1, u"61,5"_s);
    m_fenster->tippeMenge(1, getippt);
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 61.5F}));
    QCOMPARE(m_heim->plan().value(u"Ei"_s), 61.5F);
    QCOMPARE(m_fenster->zelle(1, u"menge"_s), u"61,5"_s);
    const QList<Hinweis> &hinweise = (*m_fenster)->hinweise->hinweise();
    QCOMPARE(hinweise.size(), 1);
    QCOMPARE(hinweise[0].text, u"„%1“ ist keine Menge. Es bleibt bei 61,5 g."_s.arg(getippt));
    QVERIFY((*m_fenster)->hinweise->isVisible());
    m_fenster->tippeMenge(1, u"70"_s);
    QVERIFY(hinweise.isEmpty());
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

void TestPlanmodulTabelle::theAmountsHeadingSaysHowToTypeIt()
{
    const QString worte =
        tabelle()
            .model()
            ->headerData(m_fenster->index(0, u"menge"_s).column(), Qt::Horizontal, Qt::ToolTipRole)
            .toString();
    QVERIFY(worte.contains(u"12,5"_s));
    QVERIFY(worte.contains(u"12.5"_s));
}

void TestPlanmodulTabelle::anEditedAmountChangesTheWholeRow()
{
    Planmodul::klient.bedarf = 2000;
    const QString vorher = Planfenster::text(*(*m_fenster)->gesamtvitaminc);
    m_fenster->tippeMenge(0, u"200"_s);
    QCOMPARE(m_fenster->zelle(0, u"vitc"_s), u"68,0"_s);
    QCOMPARE(m_fenster->zelle(1, u"vitc"_s), u"0,0"_s);
    QCOMPARE(vorher, u"34,0 %"_s);
    QCOMPARE(Planfenster::text(*(*m_fenster)->gesamtvitaminc), u"68,0 %"_s);
    QCOMPARE(m_heim->plan().value(u"Brot"_s), 200.0F);
}

void TestPlanmodulTabelle::anEditReloadsNothing()
{
    (*m_fenster)->PlanArray << u"Brot"_s; // not shown before the next reload
    (*m_fenster)->mengenarray << 10.0F;
    m_fenster->tippeMenge(0, u"200"_s);
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"200"_s, u"60"_s}));
}

void TestPlanmodulTabelle::onlyAmountsCanBeEdited()
{
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        const QModelIndex zelle = tabelle().model()->index(0, i);
        const bool menge = tabelle().modell()->kennung(i) == u"menge"_s;
        QCOMPARE((zelle.flags() & Qt::ItemIsEditable) != 0, menge);
        QCOMPARE(tabelle().model()->setData(zelle, u"5"_s, Qt::EditRole), menge);
    }
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({5, 60}));
}

void TestPlanmodulTabelle::aClickOnAnAmountBeginsToChangeIt()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"name"_s));
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) == nullptr);
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"menge"_s));
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QCOMPARE(eingabe->text(), u"60"_s);
    QVERIFY(eingabe->alignment().testFlag(Qt::AlignRight));
    QCOMPARE(tabelle().selectedRow(), 1);
    // Who goes elsewhere has meant it.
    QTest::keyClicks(eingabe, u"75"_s);
    (*m_fenster)->wunschverlust->setFocus();
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 75}));
}

/// The first click opens the field, and the second falls into it: before or behind the comma.
void TestPlanmodulTabelle::aDoubleClickTakesTheWholeAmount()
{
    m_fenster->tippeMenge(1, u"12,5"_s);
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"menge"_s));
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QCOMPARE(eingabe->selectedText(), u"12,5"_s);
    const int anDerFuenf = eingabe->width() - 8;
    QTest::mouseDClick(eingabe, Qt::LeftButton, {}, QPoint(anDerFuenf, eingabe->height() / 2));
    QCOMPARE(eingabe->selectedText(), u"12,5"_s);
    QTest::keyClicks(eingabe, u"8"_s);
    QTest::keyClick(eingabe, Qt::Key_Return);
    QTRY_COMPARE((*m_fenster)->mengenarray, QList<float>({100, 8}));
}

/// None of them is taken for one of the table's or of the window's.
void TestPlanmodulTabelle::theKeysOfTheEditorStayThere()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"menge"_s));
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QTest::keyClick(eingabe, Qt::Key_Delete);
    QCOMPARE(eingabe->text(), QString());
    QTest::keyClicks(eingabe, u"1,5 g"_s);
    QTest::keyClick(eingabe, Qt::Key_Home);
    QTest::keyClick(eingabe, Qt::Key_Right);
    QTest::keyClick(eingabe, Qt::Key_Backspace);
    QTest::keyClicks(eingabe, u"2"_s);
    QCOMPARE(eingabe->text(), u"2,5 g"_s);
    QTest::keyClick(eingabe, Qt::Key_Return);
    QTRY_COMPARE((*m_fenster)->mengenarray, QList<float>({100, 2.5F}));
}

void TestPlanmodulTabelle::typingOverAnAmountBeginsToChangeIt()
{
    tabelle().setFocus();
    tabelle().setzeSchreibmarke(1, u"menge"_s);
    QTest::keyClick(&tabelle(), Qt::Key_7);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_5);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 75}));
    QTest::keyClick(&tabelle(), Qt::Key_Return); // opens it again
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr);
}

void TestPlanmodulTabelle::escapeLeavesTheAmount()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"menge"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"9"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 60}));
}

void TestPlanmodulTabelle::theMenuBeginsToChangeTheAmountOfTheRow()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"fett"_s));
    QTest::keyClick(&tabelle(), Qt::Key_F2);
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QCOMPARE(eingabe->text(), u"60"_s);
}

/// Looking at an amount and leaving it must not change it.
void TestPlanmodulTabelle::anAmountKeepsItsDigits()
{
    m_fenster->tippeMenge(0, u"33,33333"_s);
    const float vorher = (*m_fenster)->mengenarray[0];
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(0, u"menge"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE((*m_fenster)->mengenarray[0], vorher);
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
