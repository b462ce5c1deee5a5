#include "Planprobe.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

/// The amounts in the plan's table: how their user types them, and what becomes of them.
class TestPlanmodulMenge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void amounts_data();
    void amounts();
    void anAmountThatNoNumberHoldsIsRefused_data();
    void anAmountThatNoNumberHoldsIsRefused();
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

private:
    Tabellenansicht &tabelle() const { return *(*m_fenster)->PlanTabelle; }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulMenge::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({zaehlspeise(u"Brot"_s), speise(u"Ei"_s)});
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Ei"_s, 60}});
    m_fenster = std::make_unique<Planfenster>(*m_heim);
}

void TestPlanmodulMenge::amounts_data()
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

void TestPlanmodulMenge::amounts()
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

void TestPlanmodulMenge::anAmountThatNoNumberHoldsIsRefused_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::newRow("more than the program can hold") << "1e300";
    QTest::newRow("as much below nothing") << "-1e300";
    QTest::newRow("a little more than the largest number") << "3.5e38";
    QTest::newRow("more than any number") << "1e999";
    QTest::newRow("a key held down") << QString(400, u'9');
}

void TestPlanmodulMenge::anAmountThatNoNumberHoldsIsRefused()
{
    QFETCH(QString, getippt);
    m_fenster->tippeMenge(1, u"61,5"_s);
    m_fenster->tippeMenge(1, getippt);
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 61.5F}));
    QCOMPARE(m_heim->plan().value(u"Ei"_s), 61.5F);
    QCOMPARE(m_fenster->zelle(1, u"menge"_s), u"61,5"_s);
    const QList<Hinweis> &hinweise = (*m_fenster)->hinweise->hinweise();
    QCOMPARE(hinweise.size(), 1);
    // Of what a hand lying on the keys has typed the beginning is enough.
    const QString genannt = getippt.size() > 60 ? getippt.left(59) + u'…' : getippt;
    QCOMPARE(hinweise[0].text, u"„%1“ ist keine Menge. Es bleibt bei 61,5 g."_s.arg(genannt));
    QVERIFY((*m_fenster)->hinweise->isVisible());
    m_fenster->tippeMenge(1, u"70"_s);
    QVERIFY(hinweise.isEmpty());
}

void TestPlanmodulMenge::theAmountsHeadingSaysHowToTypeIt()
{
    const QString worte =
        tabelle()
            .model()
            ->headerData(m_fenster->index(0, u"menge"_s).column(), Qt::Horizontal, Qt::ToolTipRole)
            .toString();
    QVERIFY(worte.contains(u"12,5"_s));
    QVERIFY(worte.contains(u"12.5"_s));
}

void TestPlanmodulMenge::anEditedAmountChangesTheWholeRow()
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

void TestPlanmodulMenge::anEditReloadsNothing()
{
    (*m_fenster)->PlanArray << u"Brot"_s; // not shown before the next reload
    (*m_fenster)->mengenarray << 10.0F;
    m_fenster->tippeMenge(0, u"200"_s);
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"200"_s, u"60"_s}));
}

void TestPlanmodulMenge::onlyAmountsCanBeEdited()
{
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        const QModelIndex zelle = tabelle().model()->index(0, i);
        const bool menge = tabelle().modell()->kennung(i) == u"menge"_s;
        QCOMPARE((zelle.flags() & Qt::ItemIsEditable) != 0, menge);
        QCOMPARE(tabelle().model()->setData(zelle, u"5"_s, Qt::EditRole), menge);
    }
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({5, 60}));
}

void TestPlanmodulMenge::aClickOnAnAmountBeginsToChangeIt()
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
void TestPlanmodulMenge::aDoubleClickTakesTheWholeAmount()
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
void TestPlanmodulMenge::theKeysOfTheEditorStayThere()
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

void TestPlanmodulMenge::typingOverAnAmountBeginsToChangeIt()
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

void TestPlanmodulMenge::escapeLeavesTheAmount()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"menge"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"9"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({100, 60}));
}

void TestPlanmodulMenge::theMenuBeginsToChangeTheAmountOfTheRow()
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(1, u"fett"_s));
    QTest::keyClick(&tabelle(), Qt::Key_F2);
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QCOMPARE(eingabe->text(), u"60"_s);
}

/// Looking at an amount and leaving it must not change it.
void TestPlanmodulMenge::anAmountKeepsItsDigits()
{
    m_fenster->tippeMenge(0, u"33,33333"_s);
    const float vorher = (*m_fenster)->mengenarray[0];
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(0, u"menge"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE((*m_fenster)->mengenarray[0], vorher);
}

QTEST_MAIN(TestPlanmodulMenge)
#include "TestPlanmodulMenge.moc"
