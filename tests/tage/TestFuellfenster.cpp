// The question into which days a day is filled, answered with the keys.

#include "Aufzeichnungsprobe.h"
#include "Fuellfenster.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;

class TestFuellfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }

    void allFollowingDaysAreTicked();
    void daysThatHoldSomethingSaySo();
    void whatGoesIsNamed();
    void theKeysTickAndFill();
    void withoutADayThereIsNothingToFill();
    void escapeFillsNothing();

private:
    QListWidget &liste() const { return *m_fenster->findChild<QListWidget *>(u"tage"_s); }
    QString worte() const { return m_fenster->findChild<QLabel *>(u"worte"_s)->text(); }
    QPushButton &fuellen() const { return *m_fenster->findChild<QPushButton *>(u"fuellen"_s); }

    std::unique_ptr<Fuellfenster> m_fenster;
};

/// Five days; the second is filled into others. The first has a row, the fourth a note to a meal,
/// the fifth one of its own.
void TestFuellfenster::init()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 5);
    eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50)};
    eine.tage[1].mahlzeiten[0].zeilen = {zeile(u"Ei"_s, 60)};
    eine.tage[3].mahlzeiten[2].notiz = u"im Büro"_s;
    eine.tage[4].notiz = u"Feiertag"_s;
    m_fenster = std::make_unique<Fuellfenster>(eine, 1, nullptr);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

void TestFuellfenster::allFollowingDaysAreTicked()
{
    QCOMPARE(m_fenster->gewaehlte(), (QList<int>{2, 3, 4}));
    QCOMPARE(liste().count(), 4); // not the day itself
}

void TestFuellfenster::daysThatHoldSomethingSaySo()
{
    QStringList namen;
    for (int i = 0; i < liste().count(); ++i) {
        namen << liste().item(i)->text();
    }
    QCOMPARE(namen, (QStringList{u"Tag 1 (schon ausgefüllt)"_s, u"Tag 3"_s,
                                 u"Tag 4 (schon ausgefüllt)"_s, u"Tag 5 (schon ausgefüllt)"_s}));
}

void TestFuellfenster::whatGoesIsNamed()
{
    QVERIFY(worte().contains(u": Tag 4, Tag 5."_s));
    liste().item(2)->setCheckState(Qt::Unchecked);
    QVERIFY(worte().contains(u": Tag 5."_s));
    liste().item(3)->setCheckState(Qt::Unchecked);
    QCOMPARE(worte(), QString());
    liste().item(0)->setCheckState(Qt::Checked);
    QVERIFY(worte().contains(u": Tag 1."_s));
}

void TestFuellfenster::theKeysTickAndFill()
{
    QVERIFY(liste().hasFocus());
    QTest::keyClick(&liste(), Qt::Key_Space);
    QTest::keyClick(&liste(), Qt::Key_Down);
    QTest::keyClick(&liste(), Qt::Key_Space);
    QCOMPARE(m_fenster->gewaehlte(), (QList<int>{0, 3, 4}));
    QTest::keyClick(&liste(), Qt::Key_Return);
    QCOMPARE(m_fenster->result(), static_cast<int>(QDialog::Accepted));
    QVERIFY(!m_fenster->isVisible());
}

void TestFuellfenster::withoutADayThereIsNothingToFill()
{
    for (int i = 0; i < liste().count(); ++i) {
        QVERIFY(fuellen().isEnabled());
        liste().item(i)->setCheckState(Qt::Unchecked);
    }
    QVERIFY(!fuellen().isEnabled());
    QTest::keyClick(&liste(), Qt::Key_Return);
    QVERIFY(m_fenster->isVisible());
}

void TestFuellfenster::escapeFillsNothing()
{
    QTest::keyClick(&liste(), Qt::Key_Escape);
    QCOMPARE(m_fenster->result(), static_cast<int>(QDialog::Rejected));
}

QTEST_MAIN(TestFuellfenster)
#include "TestFuellfenster.moc"
