// The record that is worked at: what is changed is kept at once and can be taken back, whatever
// happens to it elsewhere.

#include "Aufzeichnungsaenderung.h"
#include "Aufzeichnungsprobe.h"
#include "Probeablage.h"
#include "Tagebuch.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::namen;
using Aufzeichnungsprobe::zeile;

class TestTagebuch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_buch.reset(); }

    void withoutARecordNothingCanBeDone();
    void theLastRecordIsWorkedAtFirst();
    void aChangeIsKeptAsSoonAsItIsShown();
    void whatIsNotKeptYetIsKeptBeforeAnythingElse_data();
    void whatIsNotKeptYetIsKeptBeforeAnythingElse();
    void whatAnotherDeskWroteIsShown();
    void aChangeIsTakenBackAndRepeated();
    void lettersOfAFieldAreOneStep();
    void whatChangesNothingIsNoStep();
    void anotherRecordHasStepsOfItsOwn();
    void aNewRecordIsWorkedAt();
    void aRecordIsTakenAway();
    void aRecordThatStaysIsStillThere();
    void aNewerRecordIsNotChanged();
    void whereNothingCanBeKeptNothingIsChanged();
    void whatChangedElsewhereIsSeen();
    void whatIsGoneElsewhereIsWorkedAtNoMore();
    void theDayStaysWithinTheRecord();
    void anotherPlaceHasOtherRecords();

private:
    bool esse(const QString &name)
    {
        return m_buch->aendere(u"Essen"_s, [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::fuegeEin(eine, {m_buch->tag(), 0, 0},
                                                    {zeile(name, 100)});
        });
    }
    QString heute() const { return namen(*m_buch->jetzige(), m_buch->tag(), 0); }

    std::unique_ptr<Probeablage> m_ablage;
    Probeablage m_andere;
    std::unique_ptr<Tagebuch> m_buch;
};

void TestTagebuch::init()
{
    m_ablage = std::make_unique<Probeablage>();
    for (const QString &kennung : {u"a"_s, u"b"_s}) {
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 3);
        eine.kennung = kennung;
        m_ablage->aufzeichnungen << eine;
    }
    m_buch = std::make_unique<Tagebuch>(*m_ablage);
}

void TestTagebuch::withoutARecordNothingCanBeDone()
{
    Probeablage leere;
    Tagebuch buch(leere);
    QVERIFY(!buch.jetzige().has_value());
    QCOMPARE(buch.stelle(), -1);
    QVERIFY(!buch.aenderbar());
    QVERIFY(!buch.loesche());
    QVERIFY(!buch.aendere({}, [](Aufzeichnung &) { return true; }));
    buch.waehle(0);
    buch.waehleTag(2);
    QCOMPARE(buch.tag(), 0);
}

void TestTagebuch::theLastRecordIsWorkedAtFirst()
{
    QCOMPARE(m_buch->jetzige()->kennung, u"b"_s);
    QVERIFY(m_buch->aenderbar());
}

void TestTagebuch::aChangeIsKeptAsSoonAsItIsShown()
{
    const QSignalSpy gesagt(m_buch.get(), &Tagebuch::geaendert);
    const QSignalSpy gewechselt(m_buch.get(), &Tagebuch::gewechselt);
    QVERIFY(esse(u"A"_s));
    QCOMPARE(heute(), u"A"_s);
    QCOMPARE(gesagt.count(), 1);
    QVERIFY(m_ablage->gesichert.isEmpty()); // the picture comes first
    QCoreApplication::processEvents();
    QCOMPARE(gewechselt.count(), 0); // what the place tells was done here
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(m_ablage->gesichert.size(), 1);
    QCOMPARE(namen(m_ablage->aufzeichnungen[1], 0, 0), u"A"_s);
    QCOMPARE(m_buch->jetzige()->fassung, 1);
    QVERIFY(esse(u"B"_s));
    m_buch->sichere();
    QCOMPARE(m_buch->jetzige()->fassung, 2);
    m_buch->sichere(); // there is nothing to keep
    QCOMPARE(m_ablage->gesichert.size(), 2);
}

void TestTagebuch::whatIsNotKeptYetIsKeptBeforeAnythingElse_data()
{
    using Tat = std::function<void(TestTagebuch &)>;
    QTest::addColumn<Tat>("tat");
    QTest::newRow("another record is chosen") << Tat([](auto &test) { test.m_buch->waehle(0); });
    QTest::newRow("a record is begun") << Tat([](auto &test) {
        test.m_buch->beginne(neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1));
    });
    QTest::newRow("other records come")
        << Tat([](auto &test) { test.m_buch->setzeAblage(test.m_andere); });
    QTest::newRow("another desk writes")
        << Tat([](auto &test) { Q_EMIT test.m_ablage->geaendert(); });
    QTest::newRow("the end") << Tat([](auto &test) { test.m_buch.reset(); });
}

void TestTagebuch::whatIsNotKeptYetIsKeptBeforeAnythingElse()
{
    QFETCH(std::function<void(TestTagebuch &)>, tat);
    QVERIFY(esse(u"A"_s));
    tat(*this);
    QCOMPARE(m_ablage->gesichert.constFirst().kennung, u"b"_s);
    QCOMPARE(namen(m_ablage->aufzeichnungen[1], 0, 0), u"A"_s);
    m_buch.reset();
}

/// Where the place holds something else after the writing, that is what counts.
void TestTagebuch::whatAnotherDeskWroteIsShown()
{
    QVERIFY(esse(u"A"_s));
    const QSignalSpy gesagt(m_buch.get(), &Tagebuch::geaendert);
    m_ablage->anderswo = u"vom anderen Platz"_s;
    m_buch->sichere();
    QCOMPARE(m_buch->jetzige()->titel, u"vom anderen Platz"_s);
    QCOMPARE(gesagt.count(), 1);
}

void TestTagebuch::aChangeIsTakenBackAndRepeated()
{
    QVERIFY(esse(u"A"_s));
    m_buch->sichere();
    QVERIFY(esse(u"B"_s));
    QCOMPARE(m_buch->schritte.undoText(), u"Essen"_s);
    m_buch->schritte.undo();
    QCOMPARE(heute(), u"A"_s);
    m_buch->sichere();
    QCOMPARE(namen(m_ablage->aufzeichnungen[1], 0, 0), u"A"_s);
    QCOMPARE(m_buch->jetzige()->fassung, 2); // the state before is written anew
    m_buch->schritte.undo();
    QCOMPARE(heute(), QString());
    QVERIFY(!m_buch->schritte.canUndo());
    m_buch->schritte.redo();
    m_buch->schritte.redo();
    QCOMPARE(heute(), u"BA"_s);
}

void TestTagebuch::lettersOfAFieldAreOneStep()
{
    const auto tippe = [this](const QString &titel, const QString &feld) {
        m_buch->aendere(
            u"Titel"_s,
            [&](Aufzeichnung &eine) {
                eine.titel = titel;
                return true;
            },
            feld);
    };
    tippe(u"a"_s, u"titel"_s);
    tippe(u"ab"_s, u"titel"_s);
    tippe(u"x"_s, u"anderes"_s);
    tippe(u"y"_s, {});
    tippe(u"z"_s, {});
    QCOMPARE(m_buch->schritte.count(), 4);
    m_buch->schritte.setIndex(0);
    QCOMPARE(m_buch->jetzige()->titel, QString());
    m_buch->schritte.redo();
    QCOMPARE(m_buch->jetzige()->titel, u"ab"_s);
}

void TestTagebuch::whatChangesNothingIsNoStep()
{
    QVERIFY(!m_buch->aendere({}, [](Aufzeichnung &) { return true; }));
    QVERIFY(!m_buch->aendere({}, [](Aufzeichnung &eine) {
        eine.titel = u"x"_s;
        return false;
    }));
    QVERIFY(m_buch->jetzige()->titel.isEmpty());
    QVERIFY(m_ablage->gesichert.isEmpty());
    QVERIFY(!m_buch->schritte.canUndo());
}

void TestTagebuch::anotherRecordHasStepsOfItsOwn()
{
    QVERIFY(esse(u"A"_s));
    m_buch->waehleTag(2);
    const QSignalSpy gewechselt(m_buch.get(), &Tagebuch::gewechselt);
    m_buch->waehle(0);
    QCOMPARE(gewechselt.count(), 1);
    QCOMPARE(m_buch->jetzige()->kennung, u"a"_s);
    QCOMPARE(m_buch->tag(), 0);
    QVERIFY(!m_buch->schritte.canUndo());
    m_buch->waehle(2);
    m_buch->waehle(-1);
    QCOMPARE(m_buch->stelle(), 0);
}

void TestTagebuch::aNewRecordIsWorkedAt()
{
    QVERIFY(esse(u"A"_s));
    m_buch->beginne(neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 7));
    QCOMPARE(m_buch->alle().size(), 3);
    QCOMPARE(m_buch->stelle(), 2);
    QCOMPARE(m_buch->jetzige()->kennung, u"neu2"_s);
    QCOMPARE(m_buch->jetzige()->fassung, 1);
    QVERIFY(!m_buch->schritte.canUndo());
    QVERIFY(esse(u"B"_s));
    QCOMPARE(m_ablage->aufzeichnungen.size(), 3);
}

void TestTagebuch::aRecordIsTakenAway()
{
    QVERIFY(esse(u"A"_s));
    QVERIFY(m_buch->loesche());
    QCOMPARE(m_buch->jetzige()->kennung, u"a"_s);
    QVERIFY(!m_buch->schritte.canUndo());
    QVERIFY(m_buch->loesche());
    QVERIFY(!m_buch->jetzige().has_value());
    QVERIFY(m_ablage->aufzeichnungen.isEmpty());
}

void TestTagebuch::aRecordThatStaysIsStillThere()
{
    QVERIFY(esse(u"A"_s));
    m_ablage->laesstLoeschen = false;
    QVERIFY(!m_buch->loesche());
    QCOMPARE(m_buch->alle().size(), 2);
    QVERIFY(m_buch->schritte.canUndo());
}

void TestTagebuch::aNewerRecordIsNotChanged()
{
    m_ablage->aufzeichnungen[0].neuererText = "{}";
    Q_EMIT m_ablage->geaendert();
    m_buch->waehle(0);
    QVERIFY(!m_buch->aenderbar());
    QVERIFY(!esse(u"A"_s));
    QVERIFY(m_ablage->gesichert.isEmpty());
}

void TestTagebuch::whereNothingCanBeKeptNothingIsChanged()
{
    m_ablage->laesstSchreiben = false;
    QVERIFY(!esse(u"A"_s));
    QCOMPARE(heute(), QString());
}

void TestTagebuch::whatChangedElsewhereIsSeen()
{
    QVERIFY(esse(u"A"_s));
    m_buch->waehleTag(1);
    const QSignalSpy gewechselt(m_buch.get(), &Tagebuch::gewechselt);
    Q_EMIT m_ablage->geaendert(); // something else, perhaps a visit
    QVERIFY(m_buch->schritte.canUndo());
    m_ablage->aufzeichnungen[1].titel = u"Anderer Platz"_s;
    Q_EMIT m_ablage->geaendert();
    QCOMPARE(gewechselt.count(), 2);
    QCOMPARE(m_buch->jetzige()->titel, u"Anderer Platz"_s);
    QCOMPARE(m_buch->tag(), 1);
    QVERIFY(!m_buch->schritte.canUndo());
}

void TestTagebuch::whatIsGoneElsewhereIsWorkedAtNoMore()
{
    QVERIFY(esse(u"A"_s));
    m_buch->waehleTag(2);
    m_ablage->aufzeichnungen.removeLast();
    Q_EMIT m_ablage->geaendert();
    QCOMPARE(m_buch->jetzige()->kennung, u"a"_s);
    QCOMPARE(m_buch->tag(), 0);
    QVERIFY(!m_buch->schritte.canUndo());
}

void TestTagebuch::theDayStaysWithinTheRecord()
{
    const QSignalSpy gesagt(m_buch.get(), &Tagebuch::tagGewechselt);
    m_buch->waehleTag(2);
    m_buch->waehleTag(2);
    QCOMPARE(gesagt.count(), 1);
    m_buch->waehleTag(3);
    QCOMPARE(m_buch->tag(), 2);
    m_buch->waehleTag(-1);
    QCOMPARE(m_buch->tag(), 0);
    m_buch->waehleTag(2);
    QVERIFY(m_buch->aendere(u"Tage"_s, [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeTagezahl(eine, 2);
    }));
    QCOMPARE(m_buch->tag(), 1);
}

void TestTagebuch::anotherPlaceHasOtherRecords()
{
    QVERIFY(esse(u"A"_s));
    Probeablage andere;
    m_buch->setzeAblage(andere);
    QVERIFY(m_buch->alle().isEmpty());
    QVERIFY(!m_buch->schritte.canUndo());
    const QSignalSpy gewechselt(m_buch.get(), &Tagebuch::gewechselt);
    Q_EMIT m_ablage->geaendert();
    QCOMPARE(gewechselt.count(), 0);
    m_buch->setzeAblage(*m_ablage);
    QCOMPARE(m_buch->jetzige()->kennung, u"b"_s);
    QCOMPARE(heute(), u"A"_s);
}

QTEST_MAIN(TestTagebuch)
#include "TestTagebuch.moc"
