#include "Planprobe.h"

#include "Druckprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Saving the plan as a PDF: the question which form is meant, and what is saved.
class TestPlanmodulPdf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theMenuAndTheKeysAsk_data();
    void theMenuAndTheKeysAsk();
    void eachButtonSavesItsForm_data();
    void eachButtonSavesItsForm();
    void anUnansweredQuestionSavesNothing_data();
    void anUnansweredQuestionSavesNothing();
    void withoutADoorNothingHappens();

private:
    void oeffne();

    QList<Meldung> m_meldungen;
    int m_antwort = 0;
    int m_gedruckt = 0;
    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Druckprobe> m_druck;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulPdf::init()
{
    vergissKlient();
    m_meldungen.clear();
    m_antwort = 0;
    m_gedruckt = 0;
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({zaehlspeise(u"Hefe"_s)});
    m_heim->schreibePlan({{u"Hefe"_s, 100.0F}});
    m_druck =
        std::make_unique<Druckprobe>(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
}

void TestPlanmodulPdf::oeffne()
{
    Plantueren tueren = m_heim->tueren();
    tueren.melde = [this](QWidget *, const Meldung &meldung) {
        m_meldungen << meldung;
        return m_antwort;
    };
    tueren.drucke = [this](QWidget *, const Druckauftrag &) {
        ++m_gedruckt;
    };
    tueren.alsPdf = [this](QWidget *fenster, const Druckauftrag &auftrag, const auto &) {
        m_druck->tuer()(fenster, auftrag);
    };
    m_fenster = std::make_unique<Planfenster>(std::move(tueren));
}

void TestPlanmodulPdf::theMenuAndTheKeysAsk_data()
{
    QTest::addColumn<bool>("mitTasten");
    QTest::newRow("the menu's entry") << false;
    QTest::newRow("Ctrl+Shift+P") << true;
}

void TestPlanmodulPdf::theMenuAndTheKeysAsk()
{
    QFETCH(bool, mitTasten);
    oeffne();
    if (mitTasten) {
        QTest::keyClick((*m_fenster)->window(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        (*m_fenster)->aktionPdf->trigger();
    }
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"Als PDF sichern"_s);
    QCOMPARE(m_meldungen[0].erklaerung, u"Was möchten Sie als PDF sichern?"_s);
    QCOMPARE(m_meldungen[0].knoepfe, QStringList({u"Einfache Liste"_s, u"Detaillierte Liste"_s,
                                                  u"Grafische Darstellung"_s}));
    QVERIFY(m_meldungen[0].verwerfbar);
    QCOMPARE(m_druck->auftraege, 1);
    QCOMPARE(m_druck->fenster, (*m_fenster)->window());
    QCOMPARE(m_gedruckt, 0);
}

void TestPlanmodulPdf::eachButtonSavesItsForm_data()
{
    QTest::addColumn<int>("antwort");
    QTest::addColumn<QString>("nurHier");
    QTest::addColumn<QString>("form");
    QTest::newRow("the simple list") << 0 << u"Soll"_s << u"Liste"_s;
    QTest::newRow("the detailed list") << 1 << u"VitB1"_s << u"Liste mit Nährstoffen"_s;
    QTest::newRow("the evaluation") << 2 << u"Gesamtbeurteilung"_s << u"Auswertung"_s;
}

void TestPlanmodulPdf::eachButtonSavesItsForm()
{
    QFETCH(int, antwort);
    QFETCH(QString, nurHier);
    QFETCH(QString, form);
    m_antwort = antwort;
    oeffne();
    (*m_fenster)->alsPdfSichern();
    QCOMPARE(m_druck->name,
             u"Mahlzeitenplan "_s + QDate::currentDate().toString(Qt::ISODate) + u' ' + form);
    QVERIFY(m_druck->zeilen(1).last().endsWith(u"Seite 1 von 1 Mahlberg"_s));
    const QList<Druckwort> worte = m_druck->worte();
    for (const QString &wort : {u"Soll"_s, u"VitB1"_s, u"Gesamtbeurteilung"_s}) {
        QVERIFY2((finde(worte, wort).seite == 1) == (wort == nurHier), qPrintable(wort));
    }
}

void TestPlanmodulPdf::anUnansweredQuestionSavesNothing_data()
{
    QTest::addColumn<int>("antwort");
    QTest::newRow("closed without an answer") << -1;
    QTest::newRow("a button that there is not") << 3;
}

void TestPlanmodulPdf::anUnansweredQuestionSavesNothing()
{
    QFETCH(int, antwort);
    m_antwort = antwort;
    oeffne();
    (*m_fenster)->alsPdfSichern();
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_druck->auftraege, 0);
}

void TestPlanmodulPdf::withoutADoorNothingHappens()
{
    m_fenster = std::make_unique<Planfenster>(*m_heim);
    (*m_fenster)->alsPdfSichern();
    QVERIFY((*m_fenster)->window()->isVisible());
}

QTEST_MAIN(TestPlanmodulPdf)
#include "TestPlanmodulPdf.moc"
