// The fields of one own measure under the hands of its user.

#include "Masszeile.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

class TestMasszeile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::German); }
    void init();
    void cleanup() { m_seite.reset(); }

    void aMeasureStandsInTheFields();
    void whatIsTypedIsTold();
    void returnGoesOnToTheNextField();
    void returnInTheLastFieldIsTold_data();
    void returnInTheLastFieldIsTold();
    void theButtonAsksForTheMeasureToGo();
    void whatIsSaidStandsBelowAndIsReadOut_data();
    void whatIsSaidStandsBelowAndIsReadOut();
    void everyFieldSaysWhatItIs();
    void whatCanNotBeChangedTakesNoLetters();
    void whatGoesTakesItsFieldsAlong();

private:
    QLineEdit *feld(int spalte) const
    {
        return qobject_cast<QLineEdit *>(m_zeile->felder()[spalte]);
    }

    std::unique_ptr<QWidget> m_seite;
    Masszeile *m_zeile = nullptr;
};

void TestMasszeile::init()
{
    m_seite = std::make_unique<QWidget>();
    auto *anordnung = new QGridLayout(m_seite.get());
    m_zeile = new Masszeile(*anordnung, 1, 3, *m_seite);
    m_seite->show();
    QVERIFY(QTest::qWaitForWindowActive(m_seite.get()));
    m_zeile->gehZu();
}

void TestMasszeile::aMeasureStandsInTheFields()
{
    const Mass mass = {u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 62.5};
    m_zeile->zeige(mass);
    QCOMPARE(feld(Masszeile::Eines)->text(), u"Glas"_s);
    QCOMPARE(feld(Masszeile::Viele)->text(), u"Gläser"_s);
    QCOMPARE(feld(Masszeile::EinesEn)->text(), u"glass"_s);
    QCOMPARE(feld(Masszeile::VieleEn)->text(), u"glasses"_s);
    QCOMPARE(feld(Masszeile::Gramm)->text(), u"62,5"_s);
    QVERIFY(m_zeile->gehalten == mass);
    QCOMPARE(m_zeile->eingabe().vieleEn, u"glasses"_s);
}

void TestMasszeile::whatIsTypedIsTold()
{
    const QSignalSpy getippt(m_zeile, &Masszeile::getippt);
    const QSignalSpy eingegeben(m_zeile, &Masszeile::eingegeben);
    for (int spalte = Masszeile::Eines; spalte < Masszeile::AnzahlFelder; ++spalte) {
        feld(spalte)->setFocus();
        QTest::keyClicks(feld(spalte), u"a%1"_s.arg(spalte));
    }
    QCOMPARE(getippt.count(), 10); // five fields, two letters each
    QCOMPARE(eingegeben.count(), 4);
    const Masseingabe eingabe = m_zeile->eingabe();
    QCOMPARE(QStringList(
                 {eingabe.eines, eingabe.viele, eingabe.einesEn, eingabe.vieleEn, eingabe.gramm}),
             QStringList({u"a0"_s, u"a1"_s, u"a2"_s, u"a3"_s, u"a4"_s}));
    QVERIFY(!m_zeile->gehalten.has_value());
}

void TestMasszeile::returnGoesOnToTheNextField()
{
    QVERIFY(feld(Masszeile::Eines)->hasFocus());
    for (int spalte = Masszeile::Viele; spalte < Masszeile::AnzahlFelder; ++spalte) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY2(feld(spalte)->hasFocus(), qPrintable(QString::number(spalte)));
    }
}

void TestMasszeile::returnInTheLastFieldIsTold_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void TestMasszeile::returnInTheLastFieldIsTold()
{
    QFETCH(const Qt::Key, taste);
    const QSignalSpy fertig(m_zeile, &Masszeile::fertig);
    QTest::keyClick(feld(Masszeile::VieleEn), taste);
    QCOMPARE(fertig.count(), 0);
    QTest::keyClick(feld(Masszeile::Gramm), taste);
    QCOMPARE(fertig.count(), 1);
}

void TestMasszeile::theButtonAsksForTheMeasureToGo()
{
    const QSignalSpy gewuenscht(m_zeile, &Masszeile::herausnehmenGewuenscht);
    QTest::mouseClick(m_zeile->felder().constLast(), Qt::LeftButton);
    QCOMPARE(gewuenscht.count(), 1);
}

void TestMasszeile::whatIsSaidStandsBelowAndIsReadOut_data()
{
    QTest::addColumn<bool>("gilt");
    QTest::addColumn<QString>("worte");
    QTest::addColumn<QString>("gezeigt");
    QTest::newRow("an example") << true << u"2 Gläser = 400 g"_s << u"2 Gläser = 400 g"_s;
    QTest::newRow("a fault") << false << u"<b>x</b>"_s << u"⚠ <b>x</b>"_s;
    QTest::newRow("nothing") << true << QString() << QString();
}

void TestMasszeile::whatIsSaidStandsBelowAndIsReadOut()
{
    QFETCH(const bool, gilt);
    QFETCH(const QString, worte);
    QFETCH(const QString, gezeigt);
    m_zeile->sage(worte, gilt);
    auto *unten = m_seite->findChild<QLabel *>();
    QCOMPARE(unten->text(), gezeigt);
    QCOMPARE(unten->textFormat(), Qt::PlainText);
    QCOMPARE(feld(Masszeile::Eines)->accessibleDescription(), worte);
    QCOMPARE(feld(Masszeile::Gramm)->accessibleDescription(), worte);
    QCoreApplication::processEvents();
    QVERIFY(unten->y() > feld(Masszeile::Eines)->geometry().bottom());
}

void TestMasszeile::everyFieldSaysWhatItIs()
{
    QCOMPARE(feld(Masszeile::Eines)->accessibleName(), u"Maß 3: Eines"_s);
    QCOMPARE(feld(Masszeile::VieleEn)->accessibleName(), u"Maß 3: Englisch, mehrere"_s);
    QCOMPARE(feld(Masszeile::Gramm)->accessibleName(), u"Maß 3: Gramm von einem"_s);
    QCOMPARE(m_zeile->felder().constLast()->accessibleName(), u"Maß 3 herausnehmen"_s);
}

void TestMasszeile::whatCanNotBeChangedTakesNoLetters()
{
    m_zeile->erlaube(false);
    QTest::keyClicks(feld(Masszeile::Eines), u"Glas"_s);
    QTest::keyClicks(feld(Masszeile::Gramm), u"5"_s);
    QVERIFY(m_zeile->eingabe().leer());
    QVERIFY(!m_zeile->felder().constLast()->isEnabled());
    m_zeile->erlaube(true);
    QTest::keyClicks(feld(Masszeile::Eines), u"Glas"_s);
    QCOMPARE(m_zeile->eingabe().eines, u"Glas"_s);
    QVERIFY(m_zeile->felder().constLast()->isEnabled());
}

void TestMasszeile::whatGoesTakesItsFieldsAlong()
{
    const QPointer<Masszeile> zeile = m_zeile;
    m_zeile->entferne();
    QVERIFY(!m_zeile->felder().constFirst()->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(zeile.isNull());
    QVERIFY(m_seite->findChildren<QWidget *>().isEmpty());
}

QTEST_MAIN(TestMasszeile)
#include "TestMasszeile.moc"
