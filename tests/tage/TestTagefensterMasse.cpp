// The way from a row of a day to the household measures of its food.

#include "Aufzeichnungsprobe.h"
#include "Probeablage.h"
#include "Tagefenster.h"

#include <QListWidget>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;
using Art = Tagesmodell::Art;

class TestTagefensterMasse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFoodOfTheRowWithTheCursorIsMeant();
    void whereThereIsNoFoodNothingHappens_data();
    void whereThereIsNoFoodNothingHappens();
    void whatIsBeingTypedIsTakenFirst();
    void withoutTheDoorNothingHappens();

private:
    void oeffne(bool mitTuer = true);
    void waehleImMenue() const;

    QStringList m_gezeigte; ///< keys of the foods whose measures were shown
    std::unique_ptr<Probeablage> m_ablage;
    std::unique_ptr<Tagefenster> m_fenster;
};

void TestTagefensterMasse::init()
{
    m_gezeigte.clear();
    m_ablage = std::make_unique<Probeablage>();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    eine.tage[0].mahlzeiten[0].zeilen = {Aufzeichnungsprobe::zeile(u"Brot"_s, 50),
                                         Aufzeichnungsprobe::zeile(u"Butter"_s, 10),
                                         {.text = u"Auflauf"_s, .angabe = u"1 Teller"_s}};
    m_ablage->aufzeichnungen = {eine};
    oeffne();
}

void TestTagefensterMasse::oeffne(bool mitTuer)
{
    Tagetueren tueren;
    tueren.melde = [](QWidget *, const Meldung &) {
        return 0;
    };
    tueren.suche = [](const QString &text) {
        return text == u"Apfel"_s ? Namenssuchergebnis{{{text, text}}, 0, 0} : Namenssuchergebnis();
    };
    tueren.lebensmittel = [](const QString &) {
        return nullptr;
    };
    tueren.masse = [](const QString &) {
        return QList<Mass>();
    };
    tueren.bedarf = [] {
        return Energiebedarf();
    };
    if (mitTuer) {
        tueren.massfenster = [this](QWidget *fenster, const QString &schluessel) {
            QCOMPARE(fenster, m_fenster.get());
            m_gezeigte << schluessel;
        };
    }
    m_fenster = std::make_unique<Tagefenster>(*m_ablage, tueren);
    m_fenster->zeige();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

void TestTagefensterMasse::cleanup()
{
    m_fenster.reset();
}

void TestTagefensterMasse::waehleImMenue() const
{
    for (QAction *aktion : m_fenster->findChildren<QAction *>()) {
        if (aktion->text() == u"Haushalts&maße des Lebensmittels …"_s) {
            aktion->trigger();
            return;
        }
    }
    QFAIL("there is no such action");
}

void TestTagefensterMasse::theFoodOfTheRowWithTheCursorIsMeant()
{
    m_fenster->ansicht->geheZu({Art::Speise, 0, 1}, Tagesmodell::Angabe);
    waehleImMenue();
    QCOMPARE(m_gezeigte, QStringList(u"Butter"_s));
    m_fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    waehleImMenue();
    QCOMPARE(m_gezeigte, QStringList({u"Butter"_s, u"Brot"_s}));
}

void TestTagefensterMasse::whereThereIsNoFoodNothingHappens_data()
{
    QTest::addColumn<Tagesmodell::Platz>("platz");
    QTest::newRow("a meal") << Tagesmodell::Platz{Art::Mahlzeit, 0, 0};
    QTest::newRow("a text that is no food") << Tagesmodell::Platz{Art::Speise, 0, 2};
    QTest::newRow("the empty row") << Tagesmodell::Platz{Art::Eingabe, 0, 3};
}

void TestTagefensterMasse::whereThereIsNoFoodNothingHappens()
{
    QFETCH(const Tagesmodell::Platz, platz);
    m_fenster->ansicht->geheZu(platz, Tagesmodell::Name);
    QVERIFY(m_fenster->ansicht->platz() == platz);
    waehleImMenue();
    QVERIFY(m_gezeigte.isEmpty());
}

void TestTagefensterMasse::whatIsBeingTypedIsTakenFirst()
{
    m_fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    m_fenster->ansicht->beginne();
    m_fenster->ansicht->feld()->setText(u"Apfel"_s);
    waehleImMenue();
    QCOMPARE(m_gezeigte, QStringList(u"Apfel"_s));
}

void TestTagefensterMasse::withoutTheDoorNothingHappens()
{
    oeffne(false);
    m_fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    waehleImMenue();
    QVERIFY(m_gezeigte.isEmpty());
}

QTEST_MAIN(TestTagefensterMasse)
#include "TestTagefensterMasse.moc"
