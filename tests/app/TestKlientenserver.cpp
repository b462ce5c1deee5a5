// From the file of a desk to the server of the practice, through the settings.

#include "Einstellungsfenster.h"
#include "Klientenprobe.h"
#include "Pruefserver.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

class TestKlientenserver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(m_server.grund().isEmpty(), qPrintable(m_server.grund())); }
    void init();
    void cleanup();

    void theClientsComeAlong();
    void theyStayWhenTheUserSaysSo();
    void theyCanComeLater();
    void withoutClientsNothingIsAsked();
    void inTheFileThereIsNothingToDo();
    void whatStopsItIsSaid();
    void aConsultationGoesOnWhileTheServerIsAway();

private:
    QString angabe() { return m_server.angabe(u"praxis%1"_s.arg(m_nummer)); }
    void waehleServer();
    void umzugAusMenue();
    void klient(const QString &name)
    {
        Person person;
        person.name = name;
        m_probe->kartei().sichere({QString(), person, {}});
    }

    Pruefserver m_server;
    int m_nummer = 0;
    QString m_worte; ///< what the settings said
    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

void TestKlientenserver::init()
{
    ++m_nummer;
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle({});
    m_probe = std::make_unique<Klientenprobe>(*m_heim);
}

void TestKlientenserver::cleanup()
{
    m_probe.reset();
    m_heim.reset();
}

void TestKlientenserver::waehleServer()
{
    m_heim->meldungen.clear();
    m_probe->programm().oberflaeche().zeigeEinstellungen();
    QWidget *fenster = m_probe->programm()->Hauptfenster;
    fenster->findChild<QRadioButton *>(u"klientenserver"_s)->click();
    fenster->findChild<QLineEdit *>(u"serverangabe"_s)->setText(angabe());
    fenster->findChild<QPushButton *>(u"speicheruebernehmen"_s)->click();
    m_worte = fenster->findChild<QLabel *>(u"speicherworte"_s)->text();
    fenster->findChild<Einstellungsfenster *>()->close();
}

void TestKlientenserver::umzugAusMenue()
{
    m_heim->meldungen.clear();
    const QList<QAction *> aktionen = m_probe->fenster().findChildren<QAction *>();
    const auto stelle = std::find_if(aktionen.begin(), aktionen.end(), [](const QAction *eine) {
        return eine->text() == u"Klienten dieses Plat&zes auf den Server …";
    });
    QVERIFY(stelle != aktionen.end());
    (*stelle)->trigger();
}

void TestKlientenserver::theClientsComeAlong()
{
    klient(u"Anna"_s);
    klient(u"Berta"_s);
    m_heim->antworten = {1};
    waehleServer();
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen.constFirst().text,
             u"Sollen die Klienten aus der Datei dieses Platzes auf den Server?"_s);
    QVERIFY(m_heim->meldungen.constFirst().erklaerung.startsWith(u"Es sind 2. "_s));
    QVERIFY(
        m_probe->hauptsaetze().contains(u"Auf den Server gebracht: 2. Dort schon vorhanden: 0."_s));
    m_probe->oeffne();
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta"_s}));
    QCOMPARE(m_probe->fenster().fusszeile->text(),
             u"Die Klienten stehen auf dem Server der Praxis."_s);
}

void TestKlientenserver::theyStayWhenTheUserSaysSo()
{
    klient(u"Anna"_s);
    m_heim->antworten = {0};
    waehleServer();
    QCOMPARE(m_heim->meldungen.size(), 1);
    m_probe->oeffne();
    QVERIFY(m_probe->liste().isEmpty());
    QVERIFY(m_probe->hauptsaetze().isEmpty());
}

void TestKlientenserver::theyCanComeLater()
{
    klient(u"Anna"_s);
    m_heim->antworten = {0, 1, 1};
    waehleServer();
    m_probe->oeffne();
    umzugAusMenue();
    QCOMPARE(m_probe->hinweise().constFirst(),
             u"Auf den Server gebracht: 1. Dort schon vorhanden: 0."_s);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna"_s));
    umzugAusMenue();
    QCOMPARE(m_probe->hinweise().constFirst(),
             u"Auf den Server gebracht: 0. Dort schon vorhanden: 1."_s);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna"_s));
}

void TestKlientenserver::withoutClientsNothingIsAsked()
{
    waehleServer();
    QVERIFY(m_heim->meldungen.isEmpty());
    QVERIFY(m_worte.startsWith(u"Von jetzt an gelten die Klienten dort."_s));
}

void TestKlientenserver::inTheFileThereIsNothingToDo()
{
    klient(u"Anna"_s);
    m_probe->oeffne();
    umzugAusMenue();
    QVERIFY(m_heim->meldungen.isEmpty());
    QCOMPARE(m_probe->hinweise().constFirst(),
             u"Die Klienten stehen in der Datei dieses Platzes; ein Server ist nicht gewählt."_s);
}

void TestKlientenserver::whatStopsItIsSaid()
{
    klient(u"Anna"_s);
    m_heim->antworten = {0, 1};
    waehleServer();
    m_probe->oeffne();
    m_server.halteAn();
    umzugAusMenue();
    m_server.starte();
    const QString satz = m_probe->hinweise().join(u'\n');
    QVERIFY2(satz.contains(u"Auf den Server gebracht: 0. Dort schon vorhanden: 0. Der Server der "
                           "Klienten ist nicht zu erreichen."_s),
             qUtf8Printable(satz));
}

void TestKlientenserver::aConsultationGoesOnWhileTheServerIsAway()
{
    waehleServer();
    m_probe->oeffne();
    m_probe->legeAn(u"Anna"_s);
    Klientenfenster &fenster = m_probe->fenster();
    QCOMPARE(fenster.kopf->text(), u"Anna"_s);
    m_server.halteAn();
    Klientenprobe::tippe(fenster.personenblatt->nummer, u"17"_s);
    QVERIFY(fenster.aktenseite->isVisible());
    QCOMPARE(fenster.personenblatt->nummer->text(), u"17"_s);
    QVERIFY(!m_probe->hinweise().constFirst().contains(u'\n'));
    QVERIFY(m_probe->hinweise().constFirst().endsWith(
        u"Was Sie eingeben, ist vorgemerkt und wird gesichert, sobald es geht."_s));
    fenster.seiten->setCurrentIndex(1);
    QTest::mouseClick(fenster.besuchsblatt->neuerBesuch, Qt::LeftButton);
    Klientenprobe::tippe(fenster.besuchsblatt->gewicht, u"80"_s);
    QVERIFY(fenster.aktenseite->isVisible());
    m_probe->legeAn(u"Berta"_s);
    QCOMPARE(fenster.kopf->text(), u"Berta"_s);
    m_server.starte();
    m_probe->kartei().versucheNochmals();
    QCOMPARE(m_probe->kartei().vorgemerkt(), 0);
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta"_s}));
    QCOMPARE(m_probe->akte().person.nummer, u"17"_s);
    QCOMPARE(m_probe->akte().besuche.constFirst().gewicht, 80.0);
}

QTEST_MAIN(TestKlientenserver)
#include "TestKlientenserver.moc"
