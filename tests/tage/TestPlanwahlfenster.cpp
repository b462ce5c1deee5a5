// The question which kept plan is wanted.

#include "Planwahlfenster.h"

#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class TestPlanwahlfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }

    void plansAreListedWithTheirDays();
    void theFoodsOfTheChosenPlanAreShown();
    void theKeysChoose();
    void escapeChoosesNothing();

private:
    QListWidget &plaene() const { return *m_fenster->findChild<QListWidget *>(u"plaene"_s); }
    QStringList texte(const QString &name) const
    {
        const QListWidget &liste = *m_fenster->findChild<QListWidget *>(name);
        QStringList alle;
        for (int i = 0; i < liste.count(); ++i) {
            alle << liste.item(i)->text();
        }
        return alle;
    }

    std::unique_ptr<Planwahlfenster> m_fenster;
};

void TestPlanwahlfenster::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_fenster = std::make_unique<Planwahlfenster>(
        QList<Vorratsplan>{{u"Aufbau"_s, QDate(2026, 11, 23), {{u"Brot"_s, 62.5F, {}}}},
                           {{}, {}, {{u"Ei"_s, 60, {}}, {u"Milch"_s, 200, {}}}}},
        nullptr);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

void TestPlanwahlfenster::plansAreListedWithTheirDays()
{
    QCOMPARE(texte(u"plaene"_s), (QStringList{u"Aufbau, 23.11.26"_s, u"Mahlzeitenplan"_s}));
}

void TestPlanwahlfenster::theFoodsOfTheChosenPlanAreShown()
{
    QCOMPARE(m_fenster->gewaehlter(), 0);
    QCOMPARE(texte(u"posten"_s), QStringList{u"Brot, 62,5 g"_s});
    plaene().setCurrentRow(1);
    QCOMPARE(texte(u"posten"_s), (QStringList{u"Ei, 60 g"_s, u"Milch, 200 g"_s}));
}

void TestPlanwahlfenster::theKeysChoose()
{
    QVERIFY(plaene().hasFocus());
    QTest::keyClick(&plaene(), Qt::Key_Down);
    QTest::keyClick(&plaene(), Qt::Key_Return);
    QCOMPARE(m_fenster->result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(m_fenster->gewaehlter(), 1);
}

void TestPlanwahlfenster::escapeChoosesNothing()
{
    QTest::keyClick(&plaene(), Qt::Key_Escape);
    QCOMPARE(m_fenster->result(), static_cast<int>(QDialog::Rejected));
}

QTEST_MAIN(TestPlanwahlfenster)
#include "TestPlanwahlfenster.moc"
