// For whom the insight speaks: the client at the desk, or whoever the calculator reckons for.

#include "Einblickprobe.h"

#include "Matrix.h"

using namespace Qt::StringLiterals;

class TestEinblickklient : public QObject, private Einblickprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void withoutAClientTheCalculatorIsMeant();
    void theConditionsComeWithTheClient();
    void whatWasTypedStaysWithTheSameClient();
    void theCalculatorIsAskedOnceItIsDone();
    void theNeedAloneIsFollowed();

private:
    QString bert() const
    {
        return klient(u"Bert"_s, Personengeschlecht::Mann, QDate(1959, 3, 1), true);
    }
};

void TestEinblickklient::init()
{
    richteEin({});
    oeffne();
}

void TestEinblickklient::withoutAClientTheCalculatorIsMeant()
{
    AnthroController &rechner = programm().rechner();
    rechner.geschlechtauswahl = 1.0F; // a woman's factor
    rechner.alter->setIntValue(47);
    rechner.arbeit->waehle(1);
    Planmodul::klient.gewicht = 71;
    Planmodul::klient.bedarf = 1900;
    zeige(Gegenstand::Plan);
    Referenzperson erwartet;
    erwartet.geschlecht = Referenzgeschlecht::Frau;
    erwartet.alter = 47;
    erwartet.pal = 1.6;
    erwartet.gewicht = 71;
    erwartet.energiebedarf = 1900;
    QCOMPARE(fenster().personenwahl->person(), erwartet);
    rechner.geschlechtauswahl = 1.2F; // a man's
    Q_EMIT rechner.angabeGeaendert();
    ruhe();
    QCOMPARE(fenster().personenwahl->person().geschlecht, std::optional(Referenzgeschlecht::Mann));
}

void TestEinblickklient::theConditionsComeWithTheClient()
{
    zeige(Gegenstand::Plan);
    const auto *gicht = fenster().vorschlagsblatt->findChild<QComboBox *>(u"wunsch_gicht"_s);
    QCOMPARE(gicht->currentText(), u"beliebig"_s);
    QVERIFY(m_probe->tisch().nimm(bert()));
    QCOMPARE(gicht->currentText(), u"nicht ungeeignet"_s);
    // New measures change nothing about them.
    Planmodul::klient.gewicht = 81;
    Q_EMIT programm().rechner().angabeGeaendert();
    ruhe();
    QCOMPARE(gicht->currentText(), u"nicht ungeeignet"_s);
}

void TestEinblickklient::whatWasTypedStaysWithTheSameClient()
{
    QVERIFY(m_probe->tisch().nimm(bert()));
    zeige(Gegenstand::Plan);
    Referenzperson getippt = fenster().personenwahl->person();
    getippt.alter = 30;
    fenster().personenwahl->setPerson(getippt);
    Q_EMIT m_probe->tisch().gewechselt(); // they are called otherwise
    QCOMPARE(fenster().personenwahl->person().alter, std::optional(30));
    Planmodul::klient.gewicht = 64;
    Q_EMIT m_probe->tisch().gewechselt();
    QCOMPARE(fenster().personenwahl->person().gewicht, std::optional(64.0));
    getippt = fenster().personenwahl->person();
    getippt.gewicht = 70;
    fenster().personenwahl->setPerson(getippt);
    Q_EMIT m_probe->tisch().gewechselt();
    QCOMPARE(fenster().personenwahl->person().gewicht, std::optional(70.0));
}

void TestEinblickklient::theCalculatorIsAskedOnceItIsDone()
{
    zeige(Gegenstand::Plan);
    Q_EMIT programm().rechner().angabeGeaendert();
    Planmodul::klient.gewicht = 64; // which comes to the plan a little later
    ruhe();
    QCOMPARE(fenster().personenwahl->person().gewicht, std::optional(64.0));
}

/// Of a child the calculator says no energy, but the plan's points go by it all the same.
void TestEinblickklient::theNeedAloneIsFollowed()
{
    programm()->holePlan().gibHinein(u"Apfel"_s, 150);
    Person kind;
    kind.name = u"Cleo"_s;
    kind.geschlecht = Personengeschlecht::Frau;
    kind.geburt = QDate::currentDate().addYears(-6);
    QVERIFY(m_probe->tisch().nimm(m_probe->kartei().sichere({QString(), kind, {}})));
    Planmodul::klient.bedarf = 1500;
    zeige(Gegenstand::Plan);
    fenster().blaetter->setCurrentWidget(fenster().vorschlagsblatt);
    ruhe();
    fenster().vorschlagsblatt->waehleZiel(Kenngroesse::kal);
    const auto *ziel = fenster().vorschlagsblatt->findChild<QComboBox *>(u"ziel"_s);
    const QString vorher = ziel->currentText();
    Planmodul::klient.bedarf = 1900;
    Q_EMIT programm().rechner().angabeGeaendert();
    ruhe(); // what the calculator says
    ruhe(); // and what follows from it
    QVERIFY(!fenster().personenwahl->person().energiebedarf);
    QVERIFY2(ziel->currentText() != vorher, qUtf8Printable(vorher));
}

QTEST_MAIN(TestEinblickklient)
#include "TestEinblickklient.moc"
