// The household measures of one food: the built-in ones to look at, the user's own to type.

#include "Auskunftsprobe.h"
#include "Massfenster.h"
#include "Masszeile.h"
#include "Stoerung.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QByteArray portionen = "group;name;except;de;de_many;en;en_many;grams;keys;note\n"
                             "Brot und Brötchen;;;Scheibe;Scheiben;slice;slices;62.5;DGP SGE;\n"
                             "Brot und Brötchen;;;EL;EL;tbsp;tbsp;7;DGP;\n";

const QString toast = u"Toast, hell"_s;
const QString suppe = u"Omas <b>Suppe</b>"_s;
const Mass napf = {u"Napf"_s, u"Näpfe"_s, u"mug"_s, u"mugs"_s, 125};
const Mass becher = {u"Becher"_s, u"Becher"_s, u"Becher"_s, u"Becher"_s, 300};

} // namespace

class TestMassfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::German); }
    void init();
    void cleanup();

    void theBuiltInMeasuresAreShownAndCanNotBeChanged();
    void inEnglishTheyHaveTheirEnglishNames();
    void anOwnFoodHasNoBuiltInOnes();
    void aMeasureIsTypedWithTheKeyboardAlone();
    void tabGoesThroughAllRowsAndThenToTheButtons();
    void returnBehindTheLastRowLeadsToTheWayOut();
    void theExampleIsThereWhileOneTypes();
    void whatIsWrongIsToldAndNotKept();
    void aKeptMeasureStaysWhileItsRowIsWrong();
    void aNameIsGivenOnlyOnce();
    void aNameThatBecameFreeIsTaken();
    void anOwnMeasureMayHaveABuiltInName();
    void aMeasureIsTakenOut();
    void theEmptyRowIsThereAgainWhenItIsTakenOut();
    void aRowThatIsEmptiedIsTakenOut();
    void theButtonLeadsToTheEmptyRow();
    void escapeClosesAndKeepsWhatWasTyped();
    void whatCouldNotBeWrittenIsToldAndTriedAgain();
    void aLockedFileCanOnlyBeLookedAt();
    void theWindowGoesWhenItIsClosed();
    void whatWasTypedIsKeptWhenTheProgramEnds();
    void aNewRowIsInSight();

private:
    void oeffne(const QString &schluessel);
    void schreibe(const QString &name, const QByteArray &bytes) const;
    /// A field of the row, counted from 0.
    QLineEdit *feld(int zeile, int spalte) const
    {
        const QList<QLineEdit *> alle = m_fenster->eigenteil->findChildren<QLineEdit *>();
        return alle[zeile * Masszeile::AnzahlFelder + spalte];
    }
    qsizetype zeilen() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return m_fenster->eigenteil->findChildren<QLineEdit *>().size() / Masszeile::AnzahlFelder;
    }
    QString worte(int zeile) const { return feld(zeile, 0)->accessibleDescription(); }
    static void tippe(const QString &text, Qt::Key danach = Qt::Key_Return)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), danach);
    }
    /// Types in place of what stands in the field, and leaves it.
    void ersetze(QLineEdit *feld, const QString &text) const
    {
        feld->setFocus();
        feld->selectAll();
        QTest::keyClick(feld, Qt::Key_Delete);
        tippe(text, Qt::Key_Tab);
    }
    QList<Mass> gesicherte(const QString &schluessel) const
    {
        return EigeneMasse(m_ordner->filePath(u"M.json"_s)).masseFuer(schluessel);
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Portionentabelle> m_eingebaute;
    std::unique_ptr<EigeneMasse> m_eigene;
    QPointer<Massfenster> m_fenster;
};

void TestMassfenster::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    schreibe(u"P.csv"_s, portionen);
    schreibe(u"L.csv"_s, Auskunftsprobe::datei({Auskunftsprobe::zeile(toast, {})}));
    m_eingebaute = std::make_unique<Portionentabelle>(m_ordner->filePath(u"P.csv"_s),
                                                      m_ordner->filePath(u"L.csv"_s));
    m_eigene = std::make_unique<EigeneMasse>(m_ordner->filePath(u"M.json"_s));
}

void TestMassfenster::cleanup()
{
    delete m_fenster;
    QLocale::setDefault(QLocale::German);
}

void TestMassfenster::schreibe(const QString &name, const QByteArray &bytes) const
{
    QFile datei(m_ordner->filePath(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestMassfenster::oeffne(const QString &schluessel)
{
    Massfenster::oeffne(*m_eingebaute, *m_eigene, schluessel, nullptr);
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        if (auto *eines = qobject_cast<Massfenster *>(fenster)) {
            m_fenster = eines;
        }
    }
    QVERIFY(!m_fenster.isNull());
    QVERIFY(QTest::qWaitForWindowActive(m_fenster));
}

void TestMassfenster::theBuiltInMeasuresAreShownAndCanNotBeChanged()
{
    oeffne(toast);
    QVERIFY(m_fenster->isModal());
    QCOMPARE(m_fenster->lebensmittel->text(), toast);
    QCOMPARE(m_fenster->eingebaut->rowCount(), 2);
    QCOMPARE(m_fenster->eingebaut->item(0, 0)->text(), u"Scheibe, Scheiben"_s);
    QCOMPARE(m_fenster->eingebaut->item(0, 1)->text(), u"62,5"_s);
    QCOMPARE(m_fenster->eingebaut->item(0, 2)->text(), u"DGP SGE"_s);
    QCOMPARE(m_fenster->eingebaut->item(1, 0)->text(), u"EL"_s);
    QVERIFY(m_fenster->eingebaut->isVisible());
    QVERIFY(!m_fenster->keineWorte->isVisible());
    QVERIFY((m_fenster->eingebaut->item(0, 0)->flags() & Qt::ItemIsEditable) == 0);
    QVERIFY(!m_fenster->hindernis->isVisible());
    QCOMPARE(zeilen(), 1);
}

void TestMassfenster::inEnglishTheyHaveTheirEnglishNames()
{
    QLocale::setDefault(QLocale::English);
    QVERIFY(m_eigene->setze(toast, {napf}));
    oeffne(toast);
    QCOMPARE(m_fenster->eingebaut->item(0, 0)->text(), u"slice, slices"_s);
    QCOMPARE(m_fenster->eingebaut->item(0, 1)->text(), u"62.5"_s);
    QCOMPARE(worte(0), u"2 mugs = 250 g"_s);
}

void TestMassfenster::anOwnFoodHasNoBuiltInOnes()
{
    QVERIFY(m_eigene->setze(suppe, {napf, becher}));
    oeffne(suppe);
    QCOMPARE(m_fenster->lebensmittel->text(), suppe);
    QCOMPARE(m_fenster->lebensmittel->textFormat(), Qt::PlainText);
    QVERIFY(!m_fenster->eingebaut->isVisible());
    QVERIFY(m_fenster->keineWorte->isVisible());
    QCOMPARE(zeilen(), 3);
    QCOMPARE(feld(0, Masszeile::Viele)->text(), u"Näpfe"_s);
    QCOMPARE(feld(1, Masszeile::Gramm)->text(), u"300"_s);
    QCOMPARE(worte(0), u"2 Näpfe = 250 g"_s);
    QCOMPARE(worte(2), QString());
}

void TestMassfenster::aMeasureIsTypedWithTheKeyboardAlone()
{
    oeffne(suppe);
    QVERIFY(feld(0, 0)->hasFocus());
    tippe(u"Napf"_s);
    tippe(u"Naepfe"_s);
    tippe(u"mug"_s);
    tippe(u"mugs"_s);
    tippe(u"125"_s);
    QCOMPARE(zeilen(), 2);
    QVERIFY(feld(1, 0)->hasFocus());
    QCOMPARE(gesicherte(suppe), (QList<Mass>{{u"Napf"_s, u"Naepfe"_s, u"mug"_s, u"mugs"_s, 125}}));
    tippe(u"Becher"_s);
    tippe({});
    tippe({});
    tippe({});
    tippe(u"300"_s);
    QCOMPARE(gesicherte(suppe).value(1), becher);
    QVERIFY(feld(2, 0)->hasFocus());
    QVERIFY(m_fenster->isVisible());
}

void TestMassfenster::tabGoesThroughAllRowsAndThenToTheButtons()
{
    QVERIFY(m_eigene->setze(toast, {napf}));
    oeffne(toast);
    m_fenster->eingebaut->setFocus();
    QStringList namen;
    for (int i = 0; i < 14; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        namen << QApplication::focusWidget()->accessibleName();
    }
    QCOMPARE(namen.mid(0, 7),
             QStringList({u"Maß 1: Eines"_s, u"Maß 1: Mehrere"_s, u"Maß 1: Englisch, eines"_s,
                          u"Maß 1: Englisch, mehrere"_s, u"Maß 1: Gramm von einem"_s,
                          u"Maß 1 herausnehmen"_s, u"Maß 2: Eines"_s}));
    QCOMPARE(namen[11], u"Maß 2 herausnehmen"_s);
    QVERIFY(m_fenster->knoepfe->button(QDialogButtonBox::Close)->hasFocus());
}

void TestMassfenster::returnBehindTheLastRowLeadsToTheWayOut()
{
    oeffne(suppe);
    for (int spalte = Masszeile::Eines; spalte < Masszeile::AnzahlFelder; ++spalte) {
        tippe({});
    }
    QVERIFY(m_fenster->knoepfe->button(QDialogButtonBox::Close)->hasFocus());
    QVERIFY(m_fenster->isVisible());
}

void TestMassfenster::theExampleIsThereWhileOneTypes()
{
    oeffne(suppe);
    QTest::keyClicks(feld(0, 0), u"Glas"_s);
    QCOMPARE(worte(0), u"Wie viel Gramm wiegt eines?"_s);
    QCOMPARE(zeilen(), 2);
    QTest::keyClicks(feld(0, Masszeile::Gramm), u"20"_s);
    QCOMPARE(worte(0), u"2 Glas = 40 g"_s);
    QTest::keyClicks(feld(0, Masszeile::Gramm), u"0"_s);
    QCOMPARE(worte(0), u"2 Glas = 400 g"_s);
    QTest::keyClicks(feld(0, Masszeile::Viele), u"Glaeser"_s);
    QCOMPARE(worte(0), u"2 Glaeser = 400 g"_s);
}

void TestMassfenster::whatIsWrongIsToldAndNotKept()
{
    oeffne(suppe);
    tippe(u"kg"_s);
    ersetze(feld(0, Masszeile::Gramm), u"200"_s);
    QCOMPARE(worte(0), u"„kg“ wird schon anders gelesen, als Zahl oder Einheit."_s);
    QVERIFY(gesicherte(suppe).isEmpty());
    QCOMPARE(feld(0, 0)->text(), u"kg"_s);
    ersetze(feld(0, 0), u"Krug"_s);
    QCOMPARE(gesicherte(suppe).value(0).eines, u"Krug"_s);
}

void TestMassfenster::aKeptMeasureStaysWhileItsRowIsWrong()
{
    QVERIFY(m_eigene->setze(suppe, {napf}));
    oeffne(suppe);
    ersetze(feld(0, Masszeile::Gramm), u"viel"_s);
    QCOMPARE(worte(0), u"Das sind keine Gramm wie 62,5. Bis dahin gilt weiter: 2 Näpfe = 250 g"_s);
    QCOMPARE(gesicherte(suppe), QList<Mass>{napf});
    QCOMPARE(feld(0, Masszeile::Gramm)->text(), u"viel"_s);
}

void TestMassfenster::aNameIsGivenOnlyOnce()
{
    QVERIFY(m_eigene->setze(suppe, {napf}));
    oeffne(suppe);
    ersetze(feld(1, 0), u"napf"_s);
    ersetze(feld(1, Masszeile::Gramm), u"50"_s);
    QCOMPARE(worte(1), u"So heißt schon ein anderes Maß dieses Lebensmittels."_s);
    QCOMPARE(worte(0), u"2 Näpfe = 250 g"_s);
    QCOMPARE(gesicherte(suppe), QList<Mass>{napf});
}

void TestMassfenster::aNameThatBecameFreeIsTaken()
{
    QVERIFY(m_eigene->setze(suppe, {becher}));
    oeffne(suppe);
    ersetze(feld(1, 0), u"Becher"_s);
    ersetze(feld(1, Masszeile::Gramm), u"50"_s);
    QCOMPARE(gesicherte(suppe).size(), 1);
    for (int spalte = Masszeile::Eines; spalte < Masszeile::Gramm; ++spalte) {
        ersetze(feld(0, spalte), u"Krug"_s);
    }
    const QList<Mass> beide = gesicherte(suppe);
    QCOMPARE(beide.size(), 2);
    QCOMPARE(beide[0].eines + beide[1].eines, u"KrugBecher"_s);
    QCOMPARE(beide[1].gramm, 50.0);
    QCOMPARE(worte(1), u"2 Becher = 100 g"_s);
}

void TestMassfenster::anOwnMeasureMayHaveABuiltInName()
{
    oeffne(toast);
    tippe(u"Scheibe"_s);
    ersetze(feld(0, Masszeile::Gramm), u"40"_s);
    QCOMPARE(worte(0), u"2 Scheibe = 80 g"_s);
    QCOMPARE(gesicherte(toast).value(0).gramm, 40.0);
}

void TestMassfenster::aMeasureIsTakenOut()
{
    QVERIFY(m_eigene->setze(suppe, {napf, becher}));
    oeffne(suppe);
    QTest::mouseClick(m_fenster->eigenteil->findChildren<QToolButton *>().at(0), Qt::LeftButton);
    QCOMPARE(gesicherte(suppe), QList<Mass>{becher});
    QCOMPARE(zeilen(), 2);
    QCOMPARE(feld(0, 0)->text(), u"Becher"_s);
    QVERIFY(feld(0, 0)->hasFocus());
}

void TestMassfenster::theEmptyRowIsThereAgainWhenItIsTakenOut()
{
    oeffne(suppe);
    QTest::mouseClick(m_fenster->eigenteil->findChildren<QToolButton *>().at(0), Qt::LeftButton);
    QCOMPARE(zeilen(), 1);
    QVERIFY(feld(0, 0)->hasFocus());
    tippe(u"Napf"_s);
    QCOMPARE(zeilen(), 2);
}

void TestMassfenster::aRowThatIsEmptiedIsTakenOut()
{
    QVERIFY(m_eigene->setze(suppe, {napf}));
    oeffne(suppe);
    for (int spalte = Masszeile::Eines; spalte < Masszeile::AnzahlFelder; ++spalte) {
        QCOMPARE(gesicherte(suppe).size(), 1);
        ersetze(feld(0, spalte), {});
    }
    QVERIFY(gesicherte(suppe).isEmpty());
    QCOMPARE(worte(0), QString());
}

void TestMassfenster::theButtonLeadsToTheEmptyRow()
{
    QVERIFY(m_eigene->setze(suppe, {napf}));
    oeffne(suppe);
    QTest::mouseClick(m_fenster->neuknopf, Qt::LeftButton);
    QVERIFY(feld(1, 0)->hasFocus());
}

void TestMassfenster::escapeClosesAndKeepsWhatWasTyped()
{
    oeffne(suppe);
    tippe(u"Napf"_s);
    feld(0, Masszeile::Gramm)->setFocus();
    QTest::keyClicks(feld(0, Masszeile::Gramm), u"125"_s);
    QTest::keyClick(feld(0, Masszeile::Gramm), Qt::Key_Escape);
    QVERIFY(!m_fenster->isVisible());
    QCOMPARE(gesicherte(suppe).value(0).gramm, 125.0);
}

void TestMassfenster::whatCouldNotBeWrittenIsToldAndTriedAgain()
{
    oeffne(suppe);
    tippe(u"Napf"_s);
    {
        const Stoerung stoerung(Stoerung::Schritt::Schreiben);
        ersetze(feld(0, Masszeile::Gramm), u"125"_s);
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(m_fenster->hindernis->isVisible());
    QVERIFY(m_fenster->hindernis->text().contains(u"nicht sichern"_s));
    QVERIFY(gesicherte(suppe).isEmpty());
    m_fenster->close();
    QVERIFY(!m_fenster->hindernis->isVisible());
    QCOMPARE(gesicherte(suppe).size(), 1);
}

void TestMassfenster::aLockedFileCanOnlyBeLookedAt()
{
    schreibe(u"M.json"_s,
             R"({"format":"Mahlberg measures","version":2,"foods":[{"food":"x","measures":
             [{"one":"Napf","many":"a","oneEn":"b","manyEn":"c","grams":5}]}]})");
    oeffne(u"x"_s);
    QVERIFY(m_fenster->hindernis->isVisible());
    QVERIFY(!m_fenster->neuknopf->isEnabled());
    QVERIFY(feld(0, 0)->isReadOnly());
    QVERIFY(feld(1, 0)->isReadOnly());
    QVERIFY(!m_fenster->eigenteil->findChildren<QToolButton *>().at(0)->isEnabled());
    m_fenster->close();
    QCOMPARE(m_eigene->masseFuer(u"x"_s).size(), 1);
    QVERIFY(m_eigene->istGesichert());
}

void TestMassfenster::theWindowGoesWhenItIsClosed()
{
    oeffne(suppe);
    QTest::mouseClick(m_fenster->knoepfe->button(QDialogButtonBox::Close), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_fenster.isNull());
}

void TestMassfenster::whatWasTypedIsKeptWhenTheProgramEnds()
{
    oeffne(suppe);
    tippe(u"Napf"_s);
    feld(0, Masszeile::Gramm)->setFocus();
    QTest::keyClicks(feld(0, Masszeile::Gramm), u"125"_s);
    delete m_fenster;
    QCOMPARE(gesicherte(suppe).value(0).gramm, 125.0);
}

void TestMassfenster::aNewRowIsInSight()
{
    QList<Mass> viele;
    for (int i = 0; i < 20; ++i) {
        const QString name = u"x%1x"_s.arg(i);
        viele << Mass{name, name, name, name, 5};
    }
    QVERIFY(m_eigene->setze(toast, viele));
    oeffne(toast);
    m_fenster->resize(700, 400);
    QCoreApplication::processEvents();
    QTest::mouseClick(m_fenster->neuknopf, Qt::LeftButton);
    QTRY_VERIFY(feld(20, 0)->visibleRegion().boundingRect().height() == feld(20, 0)->height());
    QVERIFY(feld(20, 0)->hasFocus());
}

QTEST_MAIN(TestMassfenster)
#include "TestMassfenster.moc"
