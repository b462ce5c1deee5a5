// The table of a day under the hands of its user: what is typed where, and where Return leads.

#include "Aufzeichnungsprobe.h"
#include "Tagesansicht.h"

#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagesansicht : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aLetterBeginsToType();
    void returnTakesTheFirstThatFits();
    void theArrowsChooseAnother();
    void aClickChoosesToo();
    void whatFitsNothingIsTakenAsItStands();
    void withoutTypingNothingIsChosen();
    void escapeLeavesAllAsItWas();
    void tabGoesOnWithoutTypingMore();
    void leavingWithTheMouseTakesWhatStandsThere();
    void whereNothingCanBeTypedNothingBegins();
    void deleteAsksForTheRows();
    void theCursorStaysWhereItWas();
    void theListStaysWithinTheWindow();
    void onlyRowsOfFoodsAreDragged_data();
    void onlyRowsOfFoodsAreDragged();
    void chosenRowsStayChosenWhileTheyAreDragged();

private:
    struct Eingabe
    {
        Platz platz;
        int spalte;
        QString text;
        QString schluessel;
        bool weiter;
    };
    void taste(Qt::Key taste, QWidget *wo = nullptr)
    {
        QTest::keyClick(wo != nullptr ? wo : static_cast<QWidget *>(m_ansicht), taste);
    }
    void tippe(const QString &text)
    {
        for (const QChar &zeichen : text) {
            QTest::keyClick(m_ansicht->feld() != nullptr ? static_cast<QWidget *>(m_ansicht->feld())
                                                         : m_ansicht,
                            zeichen.toLatin1());
        }
    }

    std::unique_ptr<QWidget> m_fenster;
    Tagesansicht *m_ansicht = nullptr;
    Aufzeichnung m_eine;
    QList<Eingabe> m_eingaben;
};

void TestTagesansicht::init()
{
    m_eingaben.clear();
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    m_eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50), zeile(u"Butter"_s, 10)};
    m_fenster = std::make_unique<QWidget>();
    m_ansicht = new Tagesansicht;
    auto *aufbau = new QVBoxLayout(m_fenster.get());
    aufbau->addWidget(m_ansicht);
    m_ansicht->setVorschlaege([](int, int spalte, const QString &text) {
        QList<Vorschlagsfeld::Vorschlag> alle;
        for (const QString &name : {u"Apfel"_s, u"Apfelsaft"_s, u"Birne"_s}) {
            if (spalte == Tagesmodell::Name && !text.isEmpty() &&
                name.contains(text, Qt::CaseInsensitive)) {
                alle << Vorschlagsfeld::Vorschlag{name, name.toUpper()};
            }
        }
        return alle;
    });
    connect(m_ansicht, &Tagesansicht::getippt, this,
            [this](const Platz &platz, int spalte, const QString &text, const QString &schluessel,
                   bool weiter) {
                m_eingaben << Eingabe{platz, spalte, text, schluessel, weiter};
            });
    m_ansicht->zeige(m_eine, 0, true);
    m_fenster->resize(700, 400);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    m_ansicht->setFocus();
    m_ansicht->geheZu({Art::Eingabe, 0, 2}, Tagesmodell::Name);
}

void TestTagesansicht::cleanup()
{
    m_fenster.reset();
}

void TestTagesansicht::aLetterBeginsToType()
{
    QVERIFY(m_ansicht->feld() == nullptr);
    tippe(u"ap"_s);
    QVERIFY(m_ansicht->feld() != nullptr);
    QCOMPARE(m_ansicht->feld()->text(), u"ap"_s);
    QVERIFY(m_ansicht->feld()->hasFocus());
    QVERIFY(m_ansicht->feld()->liste()->isVisible());
    QCOMPARE(m_ansicht->feld()->liste()->count(), 2);
    QCOMPARE(m_ansicht->feld()->geometry(), m_ansicht->visualRect(m_ansicht->currentIndex()));
}

void TestTagesansicht::returnTakesTheFirstThatFits()
{
    tippe(u"ap"_s);
    taste(Qt::Key_Return, m_ansicht->feld());
    QCOMPARE(m_eingaben.size(), 1);
    QVERIFY(m_eingaben[0].platz == (Platz{Art::Eingabe, 0, 2}));
    QCOMPARE(m_eingaben[0].spalte, static_cast<int>(Tagesmodell::Name));
    QCOMPARE(m_eingaben[0].text, u"ap"_s);
    QCOMPARE(m_eingaben[0].schluessel, u"APFEL"_s);
    QVERIFY(m_eingaben[0].weiter);
    QVERIFY(m_ansicht->feld() == nullptr);
    QVERIFY(m_ansicht->hasFocus());
}

void TestTagesansicht::theArrowsChooseAnother()
{
    tippe(u"ap"_s);
    taste(Qt::Key_Down, m_ansicht->feld());
    taste(Qt::Key_Down, m_ansicht->feld()); // the last one stays
    taste(Qt::Key_Return, m_ansicht->feld());
    QCOMPARE(m_eingaben[0].schluessel, u"APFELSAFT"_s);
    tippe(u"ap"_s);
    taste(Qt::Key_Down, m_ansicht->feld());
    taste(Qt::Key_Up, m_ansicht->feld());
    taste(Qt::Key_Up, m_ansicht->feld());
    taste(Qt::Key_Return, m_ansicht->feld());
    QCOMPARE(m_eingaben[1].schluessel, u"APFEL"_s);
}

void TestTagesansicht::aClickChoosesToo()
{
    tippe(u"ap"_s);
    const QListWidget &liste = *m_ansicht->feld()->liste();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.item(1)).center());
    QCOMPARE(m_eingaben.size(), 1);
    QCOMPARE(m_eingaben[0].schluessel, u"APFELSAFT"_s);
    QVERIFY(m_eingaben[0].weiter);
}

void TestTagesansicht::whatFitsNothingIsTakenAsItStands()
{
    tippe(u"xyz"_s);
    QVERIFY(!m_ansicht->feld()->liste()->isVisible());
    taste(Qt::Key_Return, m_ansicht->feld());
    QCOMPARE(m_eingaben[0].text, u"xyz"_s);
    QVERIFY(m_eingaben[0].schluessel.isNull());
}

/// Whoever opens a field and leaves it again has not chosen what would have fitted.
void TestTagesansicht::withoutTypingNothingIsChosen()
{
    m_ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    taste(Qt::Key_F2);
    QVERIFY(m_ansicht->feld() != nullptr);
    QCOMPARE(m_ansicht->feld()->text(), u"Brot"_s);
    QCOMPARE(m_ansicht->feld()->selectedText(), u"Brot"_s);
    taste(Qt::Key_Return, m_ansicht->feld());
    QCOMPARE(m_eingaben[0].text, u"Brot"_s);
    QVERIFY(m_eingaben[0].schluessel.isNull());
}

void TestTagesansicht::escapeLeavesAllAsItWas()
{
    tippe(u"ap"_s);
    const QPointer<const QListWidget> liste = m_ansicht->feld()->liste();
    taste(Qt::Key_Escape, m_ansicht->feld());
    QVERIFY(m_ansicht->feld() == nullptr);
    QVERIFY(m_ansicht->hasFocus());
    QVERIFY(m_eingaben.isEmpty());
    QTRY_VERIFY(liste == nullptr);
    QVERIFY(m_fenster->isVisible());
}

void TestTagesansicht::tabGoesOnWithoutTypingMore()
{
    m_ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    tippe(u"bi"_s);
    taste(Qt::Key_Tab, m_ansicht->feld());
    QCOMPARE(m_eingaben.size(), 1);
    QCOMPARE(m_eingaben[0].schluessel, u"BIRNE"_s);
    QVERIFY(!m_eingaben[0].weiter);
    QVERIFY(m_ansicht->feld() == nullptr);
    QCOMPARE(m_ansicht->currentIndex().column(), static_cast<int>(Tagesmodell::Angabe));
    tippe(u"5"_s);
    taste(Qt::Key_Backtab, m_ansicht->feld());
    QCOMPARE(m_eingaben[1].spalte, static_cast<int>(Tagesmodell::Angabe));
    QCOMPARE(m_ansicht->currentIndex().column(), static_cast<int>(Tagesmodell::Name));
}

void TestTagesansicht::leavingWithTheMouseTakesWhatStandsThere()
{
    tippe(u"ap"_s);
    QTest::mouseClick(m_ansicht->viewport(), Qt::LeftButton, {},
                      m_ansicht->visualRect(m_ansicht->model()->index(1, 2)).center());
    QCOMPARE(m_eingaben.size(), 1);
    QCOMPARE(m_eingaben[0].schluessel, u"APFEL"_s);
    QVERIFY(!m_eingaben[0].weiter);
    tippe(u"a"_s); // the grams can't be typed
    QVERIFY(m_ansicht->feld() == nullptr);
}

void TestTagesansicht::whereNothingCanBeTypedNothingBegins()
{
    m_ansicht->geheZu({Art::Mahlzeit, 0, 0}, Tagesmodell::Energie);
    tippe(u"a"_s);
    taste(Qt::Key_F2);
    QVERIFY(m_ansicht->feld() == nullptr);
    m_ansicht->zeige(m_eine, 0, false);
    m_ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    tippe(u"a"_s);
    QVERIFY(m_ansicht->feld() == nullptr);
}

void TestTagesansicht::deleteAsksForTheRows()
{
    const QSignalSpy gewuenscht(m_ansicht, &Tagesansicht::loeschenGewuenscht);
    m_ansicht->geheZu({Art::Mahlzeit, 0, 0}, Tagesmodell::Name);
    QTest::keyClick(m_ansicht, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(m_ansicht, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(m_ansicht, Qt::Key_Down, Qt::ShiftModifier);
    const QList<Platz> zeilen = {{Art::Speise, 0, 0}, {Art::Speise, 0, 1}};
    QVERIFY(m_ansicht->gewaehlteZeilen() == zeilen); // neither the meal nor the empty row
    taste(Qt::Key_Delete);
    QCOMPARE(gewuenscht.count(), 1);
}

void TestTagesansicht::theCursorStaysWhereItWas()
{
    m_ansicht->geheZu({Art::Speise, 0, 1}, Tagesmodell::Angabe);
    m_eine.tage[0].mahlzeiten[0].zeilen << zeile(u"Käse"_s, 30);
    m_ansicht->zeige(m_eine, 0, true);
    QVERIFY(m_ansicht->platz() == (Platz{Art::Speise, 0, 1}));
    QCOMPARE(m_ansicht->currentIndex().column(), static_cast<int>(Tagesmodell::Angabe));
    m_ansicht->zeige(m_eine, 1, true); // no such row on that day
    QVERIFY(m_ansicht->platz().has_value());
}

void TestTagesansicht::theListStaysWithinTheWindow()
{
    m_ansicht->geheZu({Art::Eingabe, 5, 0}, Tagesmodell::Name);
    tippe(u"a"_s);
    const QListWidget &liste = *m_ansicht->feld()->liste();
    QVERIFY(liste.isVisible());
    QVERIFY(m_fenster->rect().contains(liste.geometry()));
    const QRect feld(m_ansicht->feld()->mapTo(m_fenster.get(), QPoint(0, 0)),
                     m_ansicht->feld()->size());
    QVERIFY(!liste.geometry().intersects(feld));
}

void TestTagesansicht::onlyRowsOfFoodsAreDragged_data()
{
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("zuege");
    QTest::newRow("a food") << static_cast<int>(Art::Speise) << 1 << 1;
    QTest::newRow("the name of a meal") << static_cast<int>(Art::Mahlzeit) << 0 << 0;
    QTest::newRow("where the next is typed") << static_cast<int>(Art::Eingabe) << 2 << 0;
}

/// The button is pressed and the mouse pulled away, as a hand does it.
void TestTagesansicht::onlyRowsOfFoodsAreDragged()
{
    QFETCH(const int, art);
    QFETCH(const int, zeile);
    int zuege = 0;
    m_ansicht->setZiehquelle([&] {
        ++zuege;
        return static_cast<QMimeData *>(nullptr);
    });
    const int reihe = m_ansicht->tagesmodell().reihe({static_cast<Art>(art), 0, zeile});
    QWidget *flaeche = m_ansicht->viewport();
    const QPoint von = m_ansicht->visualRect(m_ansicht->tagesmodell().index(reihe, 0)).center();
    QTest::mousePress(flaeche, Qt::LeftButton, {}, von);
    for (const int weit : {5, 60, 61}) {
        QMouseEvent zug(QEvent::MouseMove, von + QPoint(weit, 0),
                        flaeche->mapToGlobal(von + QPoint(weit, 0)), Qt::NoButton, Qt::LeftButton,
                        {});
        QApplication::sendEvent(flaeche, &zug);
    }
    QTest::mouseRelease(flaeche, Qt::LeftButton, {}, von + QPoint(61, 0));
    QTEST(zuege, "zuege");
    QVERIFY(m_ansicht->feld() == nullptr);
}

void TestTagesansicht::chosenRowsStayChosenWhileTheyAreDragged()
{
    m_ansicht->waehle({{Art::Speise, 0, 0}, {Art::Speise, 0, 1}});
    QCOMPARE(m_ansicht->gewaehlteZeilen().size(), 2);
    QTest::mousePress(m_ansicht->viewport(), Qt::LeftButton, {},
                      m_ansicht->visualRect(m_ansicht->tagesmodell().index(2, 0)).center());
    QCOMPARE(m_ansicht->gewaehlteZeilen().size(), 2);
    m_ansicht->waehle({});
    QCOMPARE(m_ansicht->gewaehlteZeilen().size(), 2);
}

QTEST_MAIN(TestTagesansicht)
#include "TestTagesansicht.moc"
