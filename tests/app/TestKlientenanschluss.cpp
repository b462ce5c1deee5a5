// Clients and desk joined: the way to them in the menus, names on what is printed, the store that
// the settings name, earlier states, and the end of the program.

#include "Klientenprobe.h"

#include "Dateidatenbank.h"
#include "Druckprobe.h"
#include "Klientenstandfenster.h"
#include "Sprache.h"

#include <QMenuBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

class TestKlientenanschluss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theMenuOpensTheWindow();
    void theWindowStandsWhereItWasLeft();
    void theWindowRollsWhereTheScreenIsSmall();
    void printsCarryNameAndDay();
    void withoutAClientPrintsAreAsBefore();
    void thePlansKeyKeepsThePlan();
    void anEarlierStateComesBack();
    void aDamagedStoreIsNamedAndNotTouched();
    void aStoreOfAnotherProgramIsNotTouched();
    void aNewerStoreIsShownAndNotChanged();
    void theEndKeepsWhatWasMeasured();
    void whatCanNotBeSavedHoldsTheEndUp();
    void whatCouldNotBeKeptWouldBeLost();
    void theProgramEndsOnlyAfterAFieldThatCanNotBeSaved();
    void whatWaitedIsSavedAtTheNextStart();
    void whatWaitedAndCanNotBeReadIsKeptBeside();
    void theLanguageChangesTheWindowToo();

private:
    QString datei() const
    {
        return QFileInfo(m_heim->eigeneDatei()).dir().filePath(u"MahlbergKlienten.sqlite"_s);
    }
    QString vormerkdatei() const
    {
        return QFileInfo(datei()).dir().filePath(u"MahlbergVorgemerkt.json"_s);
    }
    void oeffne() { m_probe = std::make_unique<Klientenprobe>(*m_heim); }
    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void schreibe(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QString klient(const QString &name)
    {
        Person person;
        person.name = name;
        return m_probe->kartei().sichere({QString(), person, {}});
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

void TestKlientenanschluss::init()
{
    m_heim = std::make_unique<Probeheim>();
    Datenmodul apfel;
    apfel.setName(u"Apfel"_s);
    apfel.setkal(54);
    m_heim->schreibeTabelle({{u"Apfel"_s, apfel}});
}

void TestKlientenanschluss::cleanup()
{
    m_probe.reset();
    m_heim.reset();
}

void TestKlientenanschluss::theMenuOpensTheWindow()
{
    oeffne();
    QAction *eintrag = m_probe->programm()->Hauptfenster->findChild<QAction *>(u"aktionKlienten"_s);
    QVERIFY(eintrag != nullptr);
    QCOMPARE(eintrag->shortcut(), QKeySequence(u"Ctrl+K"_s));
    QVERIFY(m_probe->anschluss().offenes() == nullptr);
    eintrag->trigger();
    QVERIFY(m_probe->fenster().isVisible());
    QVERIFY(!QFile::exists(datei()));
}

void TestKlientenanschluss::theWindowStandsWhereItWasLeft()
{
    const QRect platz(40, 50, 620, 500);
    oeffne();
    m_probe->oeffne();
    m_probe->fenster().setGeometry(platz);
    m_probe->fenster().close();
    m_probe.reset();
    oeffne();
    m_probe->oeffne();
    QCOMPARE(m_probe->fenster().geometry(), platz);
}

/// A screen of 1366 x 768 at twice the scale has half as many points.
void TestKlientenanschluss::theWindowRollsWhereTheScreenIsSmall()
{
    oeffne();
    m_probe->oeffne();
    m_probe->legeAn(u"Anna"_s);
    Klientenfenster &fenster = m_probe->fenster();
    QVERIFY(fenster.minimumSizeHint().width() <= 683);
    QVERIFY(fenster.minimumSizeHint().height() <= 384);
    fenster.resize(fenster.minimumSizeHint());
    QCoreApplication::processEvents();
    QCOMPARE(fenster.size(), fenster.minimumSizeHint());
    for (int seite = 0; seite < fenster.seiten->count(); ++seite) {
        fenster.seiten->setCurrentIndex(seite);
        QCoreApplication::processEvents();
        const QWidget &blatt = *fenster.seiten->currentWidget();
        QVERIFY2(blatt.width() >= blatt.minimumSizeHint().width(),
                 qPrintable(QString::number(seite)));
    }
}

void TestKlientenanschluss::printsCarryNameAndDay()
{
    Druckprobe druck(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    m_heim->drucke = druck.tuer();
    oeffne();
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna Muster"_s)));
    const QString kopf = u"Anna Muster, "_s + QDate::currentDate().toString(u"dd.MM.yyyy"_s);
    m_probe->programm()->zeigeAnsicht(u"body"_s);
    m_probe->programm()->drucken();
    QCOMPARE(druck.auftraege, 1);
    QCOMPARE(druck.zeilen(1).constFirst(), kopf);
    m_probe->programm()->Planmoduloeffnen();
    m_probe->programm()->planmodul->gibHinein(u"Apfel"_s, 100);
    m_probe->programm()->planmodul->drucken();
    QCOMPARE(druck.auftraege, 2);
    QCOMPARE(druck.zeilen(1).constFirst(), kopf);
    m_probe->programm().rechner().plan->drucken();
    QCOMPARE(druck.auftraege, 3);
    QCOMPARE(druck.zeilen(1).constFirst(), kopf);
}

void TestKlientenanschluss::withoutAClientPrintsAreAsBefore()
{
    Druckprobe druck(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    m_heim->drucke = druck.tuer();
    oeffne();
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna Muster"_s)));
    m_probe->tisch().verlasse();
    m_probe->programm()->Planmoduloeffnen();
    m_probe->programm()->planmodul->gibHinein(u"Apfel"_s, 100);
    m_probe->programm()->planmodul->drucken();
    QVERIFY(!druck.zeilen(1).join(u' ').contains(u"Anna"));
}

void TestKlientenanschluss::thePlansKeyKeepsThePlan()
{
    oeffne();
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(m_probe->tisch().nimm(kennung));
    m_probe->programm()->Planmoduloeffnen();
    Planmodul &plan = *m_probe->programm()->planmodul;
    plan.gibHinein(u"Apfel"_s, 100);
    QVERIFY(QTest::qWaitForWindowActive(plan.window()));
    QTest::keyClick(plan.window(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_probe->kartei().akte(kennung)->plaene.size(), 1);
}

void TestKlientenanschluss::anEarlierStateComesBack()
{
    oeffne();
    klient(u"Gestern"_s);
    const QDir ordner(QFileInfo(datei()).path() + u"/Sicherungen"_s);
    QVERIFY(QDir().mkpath(ordner.path()));
    QVERIFY(dynamic_cast<Dateidatenbank &>(m_probe->kartei().speicher().datenbank())
                .kopiere(ordner.filePath(u"MahlbergKlienten 2026-11-20.sqlite"_s)));
    klient(u"Heute"_s);
    m_probe->oeffne();
    QCOMPARE(m_probe->liste(), QStringList({u"Gestern"_s, u"Heute"_s}));
    Q_EMIT m_probe->fenster().fruehereStaendeGewuenscht();
    auto *staende = m_probe->fenster().findChild<Klientenstandfenster *>();
    QVERIFY(staende != nullptr);
    QVERIFY(staende->findChild<QLabel *>(u"worte"_s)
                ->text()
                .startsWith(u"In diesem Stand: 1 Klienten."_s));
    QTest::mouseClick(staende->findChild<QPushButton *>(u"zurueckholen"_s), Qt::LeftButton);
    QCOMPARE(m_probe->liste(), QStringList(u"Gestern"_s));
    const QStringList beiseite =
        QFileInfo(datei()).dir().entryList({u"MahlbergKlienten 20*.sqlite"_s});
    QCOMPARE(beiseite.size(), 1);
    QVERIFY(m_probe->hinweise().constFirst().contains(beiseite.constFirst()));
}

void TestKlientenanschluss::aDamagedStoreIsNamedAndNotTouched()
{
    oeffne();
    klient(u"Anna"_s);
    m_probe.reset();
    QByteArray schaden = bytes(datei());
    constexpr qsizetype seite = 4096;
    schaden.replace(seite, seite, QByteArray(seite, 'x'));
    schreibe(datei(), schaden);
    oeffne();
    m_probe->oeffne();
    QVERIFY2(m_probe->hinweise().constFirst().startsWith(u"Die Klienten sind beschädigt."_s),
             qUtf8Printable(m_probe->hinweise().join(u'|')));
    QVERIFY(!m_probe->fenster().neuknopf->isEnabled());
    m_probe->programm()->Planmoduloeffnen(); // the desk works on
    m_probe->programm()->planmodul->gibHinein(u"Apfel"_s, 100);
    m_probe.reset();
    QCOMPARE(bytes(datei()), schaden);
}

void TestKlientenanschluss::aStoreOfAnotherProgramIsNotTouched()
{
    schreibe(datei(), "Liebe Frau Muster,\n");
    oeffne();
    m_probe->oeffne();
    QVERIFY(!m_probe->hinweise().isEmpty());
    QVERIFY(!m_probe->fenster().neuknopf->isEnabled());
    m_probe.reset();
    QCOMPARE(bytes(datei()), QByteArray("Liebe Frau Muster,\n"));
}

void TestKlientenanschluss::aNewerStoreIsShownAndNotChanged()
{
    oeffne();
    klient(u"Anna"_s);
    QVERIFY(m_probe->kartei().speicher().datenbank().schreibe([](Gespraech &gespraech) {
        return gespraech.fuehre(u"UPDATE bestand SET fassung = 99"_s);
    }));
    m_probe.reset();
    oeffne();
    m_probe->oeffne();
    QCOMPARE(m_probe->liste(), QStringList(u"Anna"_s));
    QVERIFY(m_probe->hinweise().constFirst().startsWith(
        u"Die Klienten wurden mit einer neueren Version von Mahlberg geschrieben."_s));
    m_probe->klicke(0);
    QCOMPARE(m_probe->fenster().kopf->text(), u"Anna"_s);
    QVERIFY(!m_probe->fenster().personenblatt->name->isEnabled());
    QVERIFY(!m_probe->fenster().neuknopf->isEnabled());
}

void TestKlientenanschluss::theEndKeepsWhatWasMeasured()
{
    oeffne();
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(m_probe->tisch().nimm(kennung));
    QDoubleSpinBox *gewicht = m_probe->programm().rechner().gewichtn->eingabe();
    gewicht->selectAll();
    QTest::keyClicks(gewicht, u"63"_s);
    QTest::keyClick(gewicht, Qt::Key_Return);
    m_probe->programm()->Hauptfenster->close();
    m_probe.reset();
    oeffne();
    QCOMPARE(m_probe->kartei().akte(kennung)->besuche.constFirst().gewicht, 63.0);
}

void TestKlientenanschluss::whatCanNotBeSavedHoldsTheEndUp()
{
    oeffne();
    klient(u"Anna"_s);
    Dateidatenbank andere(datei());
    QVERIFY(andere.schreibe([&](Gespraech &) { // holds the store while it is at it
        klient(u"Berta"_s);
        [&] {
            QCOMPARE(m_probe->kartei().vorgemerkt(), 1);
        }();
        m_probe->fenster().show();
        m_heim->meldungen.clear();
        m_heim->antworten = {0, 1};
        [&] {
            QVERIFY(!m_probe->programm()->Hauptfenster->close());
        }();
        [&] {
            QVERIFY(m_probe->programm()->Hauptfenster->isVisible());
            QVERIFY(m_probe->fenster().isVisible());
        }();
        [&] {
            QCOMPARE(m_heim->meldungen.constFirst().text, u"Noch nicht alles ist gesichert."_s);
            QVERIFY(m_heim->meldungen.constFirst().erklaerung.endsWith(
                u" Es bleibt an diesem Platz vorgemerkt und wird beim nächsten Start gesichert."_s));
            QVERIFY(!m_heim->meldungen.constFirst().gefahr);
        }();
        return true;
    }));
    QVERIFY(m_probe->programm()->Hauptfenster->close());
    QCOMPARE(m_heim->meldungen.size(), 1);
    m_probe.reset();
    oeffne();
    m_probe->oeffne();
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta"_s}));
}

void TestKlientenanschluss::whatCouldNotBeKeptWouldBeLost()
{
    oeffne();
    klient(u"Anna"_s);
    QVERIFY(QDir().mkdir(vormerkdatei()));
    Dateidatenbank andere(datei());
    QVERIFY(andere.schreibe([&](Gespraech &) {
        klient(u"Berta"_s);
        m_heim->meldungen.clear();
        m_heim->antworten = {1};
        return m_probe->programm()->Hauptfenster->close();
    }));
    QVERIFY(m_heim->meldungen.constFirst().erklaerung.endsWith(
        u" Was davon nicht gesichert ist, geht beim Beenden verloren."_s));
    QVERIFY(m_heim->meldungen.constFirst().gefahr);
}

void TestKlientenanschluss::theProgramEndsOnlyAfterAFieldThatCanNotBeSaved()
{
    oeffne();
    m_probe->oeffne();
    m_probe->legeAn(u"Anna"_s);
    auto *geburt = m_probe->fenster().personenblatt->findChild<QLineEdit *>(u"geburt"_s);
    Klientenprobe::tippe(geburt, u"neulich"_s);
    m_heim->meldungen.clear();
    m_heim->antworten = {0, 1};
    QWidget &hauptfenster = *m_probe->programm()->Hauptfenster;
    QVERIFY(!hauptfenster.close());
    QVERIFY(hauptfenster.isVisible());
    QVERIFY(m_probe->fenster().isVisible());
    QCOMPARE(geburt->text(), u"neulich"_s);
    QVERIFY(hauptfenster.close());
    QCOMPARE(m_heim->meldungen.size(), 2);
    QVERIFY(!m_probe->fenster().isVisible());
}

void TestKlientenanschluss::whatWaitedIsSavedAtTheNextStart()
{
    const QString satz =
        u"Bei den Klienten ist vom letzten Mal noch etwas vorgemerkt; es wird gesichert, sobald es "
        u"geht."_s;
    oeffne();
    klient(u"Anna"_s);
    Dateidatenbank andere(datei());
    QVERIFY(andere.schreibe([&](Gespraech &) {
        klient(u"Berta"_s);
        m_heim->antworten = {1};
        const bool beendet = m_probe->programm()->Hauptfenster->close();
        m_probe.reset();
        oeffne();
        m_probe->kartei().versucheNochmals();
        return beendet;
    }));
    QVERIFY(m_probe->hauptsaetze().contains(satz));
    QVERIFY(!m_probe->fenster().isVisible());
    m_probe->kartei().versucheNochmals();
    QVERIFY(!m_probe->hauptsaetze().contains(satz));
    QVERIFY(!QFileInfo::exists(vormerkdatei()));
    m_probe->oeffne();
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta"_s}));
}

void TestKlientenanschluss::whatWaitedAndCanNotBeReadIsKeptBeside()
{
    QDir().mkpath(QFileInfo(vormerkdatei()).path());
    schreibe(vormerkdatei(), "Liebe Frau Muster,\n");
    oeffne();
    const QString satz = m_probe->hauptsaetze().join(u'\n');
    QVERIFY2(satz.contains(u"nicht ganz zu lesen; aufgehoben ist es als „MahlbergVorgemerkt "_s),
             qUtf8Printable(satz));
    m_probe.reset();
    QVERIFY(QFile::remove(vormerkdatei()));
    QVERIFY(QDir().mkdir(vormerkdatei()));
    oeffne();
    QVERIFY(m_probe->hauptsaetze().contains(
        u"Was bei den Klienten noch zu sichern war, ist nicht zu lesen."_s));
}

void TestKlientenanschluss::theLanguageChangesTheWindowToo()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    m_probe->oeffne();
    m_probe->legeAn(u"Frau"_s); // a name is nobody's caption
    m_probe->fenster().seiten->setCurrentIndex(1);
    QTest::mouseClick(m_probe->fenster().besuchsblatt->neuerBesuch, Qt::LeftButton);
    const Klientenakte vorher = m_probe->akte();
    m_probe->programm().oberflaeche().sprich(u"en"_s);
    QCOMPARE(m_probe->fenster().windowTitle(), u"Clients"_s);
    QCOMPARE(m_probe->fenster().kopf->text(), u"Frau"_s);
    QCOMPARE(m_probe->fenster().seiten->tabText(1), u"Visits"_s);
    QCOMPARE(m_probe->fenster().besuchsblatt->aktivitaet->currentText(), u"not asked"_s);
    QCOMPARE(m_probe->fenster().besuchsblatt->besuche->horizontalHeaderItem(1)->text(),
             u"Weight"_s);
    m_probe->fenster().sichere();
    QVERIFY(m_probe->akte() == vorher);
    m_probe->programm().oberflaeche().sprich(u"de"_s);
    QCOMPARE(m_probe->fenster().seiten->tabText(1), u"Besuche"_s);
    QCOMPARE(m_probe->fenster().windowTitle(), u"Klienten"_s);
    QCOMPARE(m_probe->fenster().kopf->text(), u"Frau"_s);
    QVERIFY(m_probe->akte() == vorher);
}

QTEST_MAIN(TestKlientenanschluss)
#include "TestKlientenanschluss.moc"
