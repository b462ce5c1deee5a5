// A desk that kept its clients in a file brings them to the server, and nothing gets lost or
// doubled on the way.

#include "Dateidatenbank.h"
#include "Klientenumzug.h"
#include "Pruefspeicher.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestKlientenumzug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init();
    void cleanup();

    void allComeWhole();
    void whoIsThereStaysAsTheyAre();
    void nobodyToTakeOverIsNoHindrance();
    void theUserCanStopAndGoOn();
    void theOtherStoreFailsAndItGoesOnLater();
    void aFileThatIsNoneIsToldOf();

private:
    QString herkunft() const { return m_ordner->filePath(u"hier.sqlite"_s); }
    /// What is kept of this person here.
    Klientenakte hier(const QString &kennung)
    {
        std::optional<Klientenakte> akte;
        m_hier->akte(kennung, akte);
        return akte.value_or(Klientenakte());
    }
    Klientenakte dort(const QString &kennung)
    {
        std::optional<Klientenakte> akte;
        m_dort->akte(kennung, akte);
        return akte.value_or(Klientenakte());
    }
    qsizetype anzahlDort()
    {
        QList<Personenzeile> personen;
        m_dort->personen(personen);
        return personen.size();
    }
    Umzugsausgang zieheUm(qsizetype hoechstens = 100)
    {
        m_gemeldet.clear();
        return nimmAlleAuf(*m_hier, *m_dort, [&](qsizetype fertig, qsizetype alle) {
            m_gemeldet << fertig;
            return alle == 3 && fertig < hoechstens;
        });
    }

    Pruefspeicher m_speicher;
    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Klientenspeicher> m_hier;
    std::unique_ptr<Klientenspeicher> m_dort;
    QList<Person> m_personen;
    QList<qsizetype> m_gemeldet;
};

void TestKlientenumzug::init()
{
    m_speicher.beginne();
    m_ordner = std::make_unique<QTemporaryDir>();
    m_hier = std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(herkunft()));
    m_dort = m_speicher.tisch();
    m_personen.clear();
    for (const QString &name : {u"Anna"_s, u"Berta"_s, u"Änne \"x\""_s}) {
        Person person = namens(name);
        QVERIFY(m_hier->sichere(person));
        Besuch besuch;
        besuch.datum = QDate(2026, 11, 23);
        besuch.gewicht = 0.1 + 0.2;
        QVERIFY(m_hier->sichere(person.kennung, besuch));
        Planablage plan;
        plan.titel = u"Woche"_s;
        plan.datum = QDate(2026, 11, 20);
        plan.posten = {{u"Apfel"_s, 150.5F, {}}};
        QVERIFY(m_hier->sichere(person.kennung, plan));
        m_personen << person;
    }
}

void TestKlientenumzug::cleanup()
{
    m_hier.reset();
    m_dort.reset();
}

void TestKlientenumzug::allComeWhole()
{
    const Umzugsausgang ausgang = zieheUm();
    QVERIFY(ausgang.ganz);
    QCOMPARE(ausgang.aufgenommen, 3);
    QCOMPARE(ausgang.schonDa, 0);
    QCOMPARE(m_gemeldet, (QList<qsizetype>{0, 1, 2}));
    for (const Person &person : std::as_const(m_personen)) {
        QCOMPARE(dort(person.kennung).person.name, person.name);
        QCOMPARE(dort(person.kennung).besuche.size(), 1);
        QCOMPARE(dort(person.kennung).plaene.size(), 1);
        QCOMPARE(dort(person.kennung), hier(person.kennung));
    }
}

void TestKlientenumzug::whoIsThereStaysAsTheyAre()
{
    QVERIFY(m_dort->nimmAuf(hier(m_personen[1].kennung)));
    Person geaendert = m_personen[1];
    geaendert.name = u"Berta Muster"_s;
    QVERIFY(m_dort->sichere(geaendert));
    const Umzugsausgang ausgang = zieheUm();
    QVERIFY(ausgang.ganz);
    QCOMPARE(ausgang.aufgenommen, 2);
    QCOMPARE(ausgang.schonDa, 1);
    QCOMPARE(anzahlDort(), 3);
    QCOMPARE(dort(geaendert.kennung).person.name, u"Berta Muster"_s);
    const Umzugsausgang nochmals = zieheUm();
    QVERIFY(nochmals.ganz);
    QCOMPARE(nochmals.aufgenommen, 0);
    QCOMPARE(nochmals.schonDa, 3);
}

void TestKlientenumzug::nobodyToTakeOverIsNoHindrance()
{
    Klientenspeicher leer(std::make_unique<Dateidatenbank>(m_ordner->filePath(u"leer.sqlite"_s)));
    const Umzugsausgang ausgang =
        nimmAlleAuf(leer, *m_dort, [](qsizetype, qsizetype) { return true; });
    QVERIFY(ausgang.ganz);
    QCOMPARE(ausgang.aufgenommen + ausgang.schonDa, 0);
    QVERIFY(!QFileInfo::exists(m_ordner->filePath(u"leer.sqlite"_s)));
}

void TestKlientenumzug::theUserCanStopAndGoOn()
{
    const Umzugsausgang ausgang = zieheUm(2);
    QVERIFY(!ausgang.ganz);
    QVERIFY(ausgang.hindernis);
    QCOMPARE(ausgang.aufgenommen, 2);
    QCOMPARE(anzahlDort(), 2);
    const Umzugsausgang weiter = zieheUm();
    QVERIFY(weiter.ganz);
    QCOMPARE(weiter.aufgenommen, 1);
    QCOMPARE(weiter.schonDa, 2);
}

void TestKlientenumzug::theOtherStoreFailsAndItGoesOnLater()
{
    QVERIFY(m_dort->nimmAuf(hier(m_personen[0].kennung)));
    m_speicher.nimmWeg();
    const Umzugsausgang ausgang = zieheUm();
    QVERIFY(!ausgang.ganz);
    QCOMPARE(ausgang.aufgenommen, 0);
    QCOMPARE(ausgang.hindernis.hindernis,
             m_speicher.istServer() ? Hindernis::Getrennt : Hindernis::Gesperrt);
    m_speicher.gibZurueck();
    QVERIFY(zieheUm().ganz);
    QCOMPARE(anzahlDort(), 3);
}

void TestKlientenumzug::aFileThatIsNoneIsToldOf()
{
    const QString brief = m_ordner->filePath(u"brief.sqlite"_s);
    QFile datei(brief);
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write("Liebe Frau Muster,\n") > 0);
    datei.close();
    Klientenspeicher fremd(std::make_unique<Dateidatenbank>(brief));
    const Umzugsausgang ausgang =
        nimmAlleAuf(fremd, *m_dort, [](qsizetype, qsizetype) { return true; });
    QVERIFY(!ausgang.ganz);
    QCOMPARE(ausgang.hindernis.hindernis, Hindernis::Beschaedigt);
    QCOMPARE(anzahlDort(), 0);
}

QTEST_GUILESS_MAIN(TestKlientenumzug)
#include "TestKlientenumzug.moc"
