// The clients' window through clicks and keys: what is entered is kept at once, what can't be kept
// is said beside its field.

#include "Klientenprobe.h"

#include "Loeschfrage.h"

#include <QPlainTextEdit>
#include <QTableWidget>

using namespace Qt::StringLiterals;

class TestKlientenfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutAClientNoFileIsMade();
    void theFirstClientIsKeptWithTheName();
    void everyFieldOfAPersonIsKept();
    void whatCanNotBeKeptIsSaidBesideItsField_data();
    void whatCanNotBeKeptIsSaidBesideItsField();
    void withAWrongEntryNobodyElseIsShown();
    void notesAreKeptWhileOneWrites();
    void theSearchFollowsTheTyping();
    void archivedOnesAreOutOfTheList();
    void aVisitIsKeptFieldByField();
    void anUnlikelyMeasureIsAskedAboutOnce();
    void aDoubtLeadsBackToItsField_data();
    void aDoubtLeadsBackToItsField();
    void wordsBesideAFieldMoveNothing();
    void aFigureWithMoreDigitsThanAreShownStaysAsItIs();
    void aNoteIsKeptWhenAnotherVisitIsChosenAtOnce();
    void aMeasureThatIsNoneIsSaid();
    void theDayOfAVisitIsNeverEmpty();
    void todayHasOneVisit();
    void deletingNeedsTheName();
    void aDeletionComesBackUntilTheWindowCloses();
    void aDeletedVisitComesBack();
    void theOtherDesksChangeIsSeenWhenTheWindowIsLookedAt();

private:
    Klientenfenster &fenster() { return m_probe->fenster(); }
    QString worteBei(const char *feld)
    {
        return fenster().findChild<QLabel *>(QLatin1String(feld))->text();
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

void TestKlientenfenster::init()
{
    m_heim = std::make_unique<Probeheim>();
    Datenmodul apfel;
    apfel.setName(u"Apfel"_s);
    m_heim->schreibeTabelle({{u"Apfel"_s, apfel}});
    m_probe = std::make_unique<Klientenprobe>(*m_heim);
    m_probe->oeffne();
}

void TestKlientenfenster::cleanup()
{
    m_probe.reset();
    m_heim.reset();
}

void TestKlientenfenster::withoutAClientNoFileIsMade()
{
    QVERIFY(fenster().leerworte->isVisible());
    QTest::mouseClick(fenster().neuknopf, Qt::LeftButton);
    QVERIFY(fenster().personenblatt->isVisible());
    fenster().close();
    const QDir ordner = QFileInfo(m_heim->eigeneDatei()).dir();
    QVERIFY2(!ordner.exists(u"MahlbergKlienten.sqlite"_s), "a file was made for nobody");
}

void TestKlientenfenster::theFirstClientIsKeptWithTheName()
{
    m_probe->legeAn(u"Anna Muster"_s);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna Muster"_s));
    QCOMPARE(fenster().kopf->text(), u"Anna Muster"_s);
    QCOMPARE(m_probe->akte().person.name, u"Anna Muster"_s);
    QVERIFY(fenster().seiten->isTabEnabled(1));
}

void TestKlientenfenster::everyFieldOfAPersonIsKept()
{
    m_probe->legeAn(u"Anna"_s);
    Personenblatt &blatt = *fenster().personenblatt;
    Klientenprobe::tippe(blatt.nummer, u"17"_s);
    Klientenprobe::tippe(blatt.geburt, u"3.4.61"_s);
    Klientenprobe::waehle(blatt.geschlecht, u"Frau"_s);
    Klientenprobe::waehle(blatt.umstand, u"stillend"_s);
    QTest::mouseClick(blatt.gicht, Qt::LeftButton, {}, QPoint(8, blatt.gicht->height() / 2));
    const Person person = m_probe->akte().person;
    QCOMPARE(person.nummer, u"17"_s);
    QCOMPARE(person.geburt, QDate(1961, 4, 3));
    QCOMPARE(person.geschlecht, Personengeschlecht::Frau);
    QCOMPARE(person.umstand, Umstand::Stillend);
    QCOMPARE(person.leiden, (std::array{false, false, true, false}));
    QCOMPARE(blatt.geburt->text(), u"03.04.1961"_s);
}

void TestKlientenfenster::whatCanNotBeKeptIsSaidBesideItsField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("worte");
    QTest::newRow("no day") << u"gestern"_s << u"Kein Tag wie 31.12.1980."_s;
    QTest::newRow("the 30th of February") << u"30.2.1980"_s << u"Kein Tag wie 31.12.1980."_s;
    QTest::newRow("after today") << QDate::currentDate().addDays(1).toString(u"dd.MM.yyyy"_s)
                                 << u"Dieser Tag kommt erst noch."_s;
    QTest::newRow("131 years ago") << QDate::currentDate().addYears(-131).toString(u"dd.MM.yyyy"_s)
                                   << u"So alt ist niemand."_s;
}

void TestKlientenfenster::whatCanNotBeKeptIsSaidBesideItsField()
{
    QFETCH(QString, text);
    m_probe->legeAn(u"Anna"_s);
    Personenblatt &blatt = *fenster().personenblatt;
    Klientenprobe::tippe(blatt.geburt, u"3.4.1961"_s);
    Klientenprobe::tippe(blatt.geburt, text);
    QTEST(worteBei("geburtFehler"), "worte");
    QCOMPARE(blatt.geburt->text(), text);
    QCOMPARE(m_probe->akte().person.geburt, QDate(1961, 4, 3));
    Klientenprobe::tippe(blatt.nummer, u"17"_s); // the others are kept all the same
    QCOMPARE(m_probe->akte().person.nummer, u"17"_s);
    QTEST(worteBei("geburtFehler"), "worte");
    QCOMPARE(blatt.geburt->text(), text);
    Klientenprobe::tippe(blatt.geburt, u"4.4.1961"_s);
    QCOMPARE(worteBei("geburtFehler"), QString());
    QCOMPARE(m_probe->akte().person.geburt, QDate(1961, 4, 4));
}

void TestKlientenfenster::withAWrongEntryNobodyElseIsShown()
{
    m_probe->legeAn(u"Anna"_s);
    m_probe->legeAn(u"Berta"_s);
    Klientenprobe::tippe(fenster().personenblatt->name, QString());
    QCOMPARE(worteBei("nameFehler"), u"Ein Name muss sein."_s);
    m_probe->klicke(0);
    QCOMPARE(fenster().kopf->text(), u"Berta"_s);
    QCOMPARE(fenster().liste->currentIndex().row(), 1);
    QVERIFY(!m_probe->hinweise().isEmpty());
    Klientenprobe::tippe(fenster().personenblatt->name, u"Bertha"_s);
    m_probe->klicke(0);
    QCOMPARE(fenster().kopf->text(), u"Anna"_s);
    QVERIFY(m_probe->hinweise().isEmpty());
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Bertha"_s}));
}

void TestKlientenfenster::notesAreKeptWhileOneWrites()
{
    m_probe->legeAn(u"Anna"_s);
    QPlainTextEdit *notizen = fenster().personenblatt->notizen;
    notizen->setFocus();
    QTest::keyClicks(notizen, u"isst spaet"_s);
    QTRY_COMPARE(m_probe->akte().person.notizen, u"isst spaet"_s);
    QTest::keyClicks(notizen, u" und gern"_s);
    QTRY_COMPARE(m_probe->akte().person.notizen, u"isst spaet und gern"_s);
    QVERIFY(notizen->hasFocus());
    QCOMPARE(notizen->textCursor().position(), 19);
}

void TestKlientenfenster::theSearchFollowsTheTyping()
{
    for (const QString &name : {u"Anna Müller"_s, u"Berta Moll"_s, u"Carl Mueller"_s}) {
        m_probe->legeAn(name);
    }
    fenster().suchfeld->setFocus();
    QTest::keyClicks(fenster().suchfeld, u"muell"_s);
    QCOMPARE(m_probe->liste(), QStringList({u"Anna Müller"_s, u"Carl Mueller"_s}));
    QCOMPARE(fenster().anzahl->text(), u"2 von 3 Klienten"_s);
    QTest::keyClicks(fenster().suchfeld, u"x"_s);
    QCOMPARE(m_probe->liste(), QStringList());
    fenster().suchfeld->clear();
    QCOMPARE(m_probe->liste().size(), 3);
    QCOMPARE(fenster().kopf->text(), u"Carl Mueller"_s);
}

void TestKlientenfenster::archivedOnesAreOutOfTheList()
{
    m_probe->legeAn(u"Anna"_s);
    m_probe->legeAn(u"Berta"_s);
    fenster().archiviere();
    QCOMPARE(m_probe->liste(), QStringList(u"Anna"_s));
    QVERIFY(m_probe->akte(1).person.archiviert);
    QTest::mouseClick(fenster().auchArchivierte, Qt::LeftButton, {},
                      QPoint(8, fenster().auchArchivierte->height() / 2));
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta (archiviert)"_s}));
    fenster().archiviere();
    QCOMPARE(m_probe->liste(), QStringList({u"Anna"_s, u"Berta"_s}));
}

void TestKlientenfenster::aVisitIsKeptFieldByField()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QVERIFY(!blatt.formular->isEnabled());
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    QCOMPARE(blatt.besuche->rowCount(), 1);
    Klientenprobe::tippe(blatt.gewicht, u"82,4"_s);
    Klientenprobe::tippe(blatt.groesse, u"1,71 m"_s);
    Klientenprobe::tippe(blatt.taille, u"95"_s);
    Klientenprobe::waehle(blatt.aktivitaet, u"mittlere Tätigkeit"_s);
    Klientenprobe::waehle(blatt.reduktion, u"nein"_s);
    Klientenprobe::waehle(blatt.sport, u"kein Sport"_s);
    const Besuch besuch = m_probe->akte().besuche.value(0);
    QCOMPARE(besuch.datum, QDate::currentDate());
    QCOMPARE(besuch.gewicht, 82.4);
    QCOMPARE(besuch.groesse, 1.71);
    QCOMPARE(besuch.taille, 95.0);
    QVERIFY(!besuch.huefte);
    QCOMPARE(besuch.aktivitaet, Aktivitaet::Mittel);
    QCOMPARE(besuch.reduktion, false);
    QVERIFY(besuch.sport && besuch.sport->isEmpty());
    QVERIFY(!besuch.sportdauer);
    QCOMPARE(blatt.besuche->item(0, 1)->text(), u"82,4 kg"_s);
    Klientenprobe::tippe(blatt.taille, QString());
    QVERIFY(!m_probe->akte().besuche.value(0).taille);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestKlientenfenster::anUnlikelyMeasureIsAskedAboutOnce()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    m_heim->antworten = {0}; // change
    Klientenprobe::tippe(blatt.gewicht, u"8"_s);
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen.constLast().erklaerung,
             u"8,0 kg sind ein ungewöhnliches Gewicht."_s);
    QVERIFY(!m_probe->akte().besuche.value(0).gewicht);
    QCOMPARE(blatt.gewicht->text(), u"8"_s);
    QCOMPARE(worteBei("gewichtFehler"), u"8,0 kg sind ein ungewöhnliches Gewicht."_s);
    QCOMPARE(fenster().focusWidget(), blatt.gewicht);
    QCOMPARE(blatt.gewicht->selectedText(), u"8"_s);
    m_heim->antworten = {1}; // it is meant
    Klientenprobe::tippe(blatt.gewicht, u"8"_s);
    QCOMPARE(m_heim->meldungen.size(), 2);
    QCOMPARE(m_probe->akte().besuche.value(0).gewicht, 8.0);
    QCOMPARE(worteBei("gewichtFehler"), QString());
    Klientenprobe::tippe(blatt.taille, u"60"_s);
    QCOMPARE(m_heim->meldungen.size(), 2);
    QCOMPARE(m_probe->akte().besuche.value(0).taille, 60.0);
}

/// Each doubt leads back to the field that it is about.
void TestKlientenfenster::aDoubtLeadsBackToItsField_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("worte");
    QTest::newRow("weight") << u"gewicht"_s << u"400"_s
                            << u"400,0 kg sind ein ungewöhnliches Gewicht."_s;
    QTest::newRow("height") << u"groesse"_s << u"3"_s << u"3,00 m sind eine ungewöhnliche Größe."_s;
    QTest::newRow("waist") << u"taille"_s << u"5"_s
                           << u"5,0 cm sind ein ungewöhnlicher Taillenumfang."_s;
    QTest::newRow("hip") << u"huefte"_s << u"5"_s
                         << u"5,0 cm sind ein ungewöhnlicher Hüftumfang."_s;
    QTest::newRow("a day to come") << u"datum"_s << u"1.1.2190"_s << QString();
}

void TestKlientenfenster::aDoubtLeadsBackToItsField()
{
    QFETCH(QString, feld);
    QFETCH(QString, text);
    QFETCH(QString, worte);
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    m_heim->antworten = {0}; // change
    auto *zeile = blatt.formular->findChild<QLineEdit *>(feld);
    Klientenprobe::tippe(zeile, text);
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(fenster().focusWidget(), zeile);
    const QString gesagt = blatt.findChild<QLabel *>(feld + u"Fehler"_s)->text();
    QVERIFY(!gesagt.isEmpty());
    QCOMPARE(gesagt, worte.isEmpty() ? m_heim->meldungen.constLast().erklaerung : worte);
    Q_EMIT m_probe->kartei().akteGeaendert(m_probe->akte().person.kennung);
    QCOMPARE(zeile->text(), text);
}

void TestKlientenfenster::wordsBesideAFieldMoveNothing()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    // Less room than all parts of the page would like to have.
    const int uebrig = blatt.height() - blatt.minimumSizeHint().height();
    fenster().resize(fenster().width(), fenster().height() - uebrig + 100);
    const auto stelle = [&] {
        QCoreApplication::processEvents();
        return blatt.neuerBesuch->mapTo(&fenster(), QPoint());
    };
    const QPoint vorher = stelle();
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    QCOMPARE(stelle(), vorher);
    Klientenprobe::tippe(blatt.gewicht, u"viel"_s);
    QCOMPARE(stelle(), vorher);
}

void TestKlientenfenster::aFigureWithMoreDigitsThanAreShownStaysAsItIs()
{
    Klientenakte akte;
    akte.person.kennung = u"anna"_s;
    akte.person.name = u"Anna"_s;
    Besuch besuch;
    besuch.kennung = u"montag"_s;
    besuch.datum = QDate(2026, 11, 16);
    besuch.gewicht = 82.1234567; // from a file, as 181 lb is
    akte.besuche = {besuch};
    QVERIFY(m_probe->kartei().nimmAuf(akte));
    m_probe->klicke(0);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QCOMPARE(blatt.gewicht->text(), u"82,1235"_s);
    Klientenprobe::tippe(blatt.taille, u"95"_s);
    QCOMPARE(m_probe->akte().besuche.value(0).taille, 95.0);
    QCOMPARE(m_probe->akte().besuche.value(0).gewicht, 82.1234567);
}

void TestKlientenfenster::aNoteIsKeptWhenAnotherVisitIsChosenAtOnce()
{
    Klientenakte akte;
    akte.person.kennung = u"anna"_s;
    akte.person.name = u"Anna"_s;
    for (const int tag : {9, 16}) {
        Besuch besuch;
        besuch.kennung = QString::number(tag);
        besuch.datum = QDate(2026, 11, tag);
        akte.besuche << besuch;
    }
    QVERIFY(m_probe->kartei().nimmAuf(akte));
    m_probe->klicke(0);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    blatt.notiz->setFocus();
    QTest::keyClicks(blatt.notiz, u"isst gern spaet"_s);
    blatt.besuche->setCurrentCell(1, 0);
    QCOMPARE(m_probe->akte().besuche.value(1).notiz, u"isst gern spaet"_s);
    QCOMPARE(m_probe->akte().besuche.value(0).notiz, QString());
    QCOMPARE(blatt.notiz->toPlainText(), QString());
}

void TestKlientenfenster::aMeasureThatIsNoneIsSaid()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    Klientenprobe::tippe(blatt.gewicht, u"viel"_s);
    QCOMPARE(worteBei("gewichtFehler"), u"Keine Zahl wie 72,5."_s);
    Klientenprobe::tippe(blatt.groesse, u"1,7"_s);
    QVERIFY(!m_probe->akte().besuche.value(0).gewicht);
    QCOMPARE(m_probe->akte().besuche.value(0).groesse, 1.7);
    QCOMPARE(blatt.gewicht->text(), u"viel"_s);
}

void TestKlientenfenster::theDayOfAVisitIsNeverEmpty()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    auto *datum = blatt.formular->findChild<QLineEdit *>(u"datum"_s);
    Klientenprobe::tippe(datum, QString());
    QCOMPARE(blatt.findChild<QLabel *>(u"datumFehler"_s)->text(), u"Ein Besuch hat einen Tag."_s);
    QCOMPARE(m_probe->akte().besuche.value(0).datum, QDate::currentDate());
    Klientenprobe::tippe(datum, u"1.2.2025"_s);
    QCOMPARE(m_probe->akte().besuche.value(0).datum, QDate(2025, 2, 1));
}

void TestKlientenfenster::todayHasOneVisit()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    QCOMPARE(m_probe->akte().besuche.size(), 1);
}

void TestKlientenfenster::deletingNeedsTheName()
{
    m_probe->legeAn(u"Anna Muster"_s);
    fenster().loesche();
    auto *frage = fenster().findChild<Loeschfrage *>();
    QVERIFY(frage != nullptr);
    auto *knopf = frage->findChild<QPushButton *>(u"loeschen"_s);
    auto *name = frage->findChild<QLineEdit *>(u"name"_s);
    QVERIFY(!knopf->isEnabled());
    QTest::keyClicks(name, u"Anna Muste"_s);
    QVERIFY(!knopf->isEnabled());
    QTest::keyClicks(name, u"R"_s);
    QVERIFY(knopf->isEnabled());
    QTest::mouseClick(knopf, Qt::LeftButton);
    QCOMPARE(m_probe->liste(), QStringList());
    QVERIFY(!fenster().aktenseite->isVisible());
}

void TestKlientenfenster::aDeletionComesBackUntilTheWindowCloses()
{
    m_probe->legeAn(u"Anna"_s);
    const Klientenakte vorher = m_probe->akte();
    QVERIFY(m_probe->kartei().loesche(vorher));
    fenster().nimmZurueck();
    QVERIFY(m_probe->akte() == vorher);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna"_s));
    QVERIFY(m_probe->kartei().loesche(m_probe->akte()));
    fenster().close();
    m_probe->oeffne();
    fenster().nimmZurueck();
    QCOMPARE(m_probe->hinweise().constFirst(), u"Es gibt nichts zurückzunehmen."_s);
    QCOMPARE(m_probe->liste(), QStringList());
}

void TestKlientenfenster::aDeletedVisitComesBack()
{
    m_probe->legeAn(u"Anna"_s);
    fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    Klientenprobe::tippe(blatt.gewicht, u"82,4"_s);
    QTest::mouseClick(blatt.besuchLoeschen, Qt::LeftButton);
    QCOMPARE(m_probe->akte().besuche.size(), 0);
    QCOMPARE(m_probe->hinweise().constFirst(), u"Der Besuch ist gelöscht."_s);
    fenster().nimmZurueck();
    QCOMPARE(m_probe->akte().besuche.value(0).gewicht, 82.4);
    QCOMPARE(blatt.besuche->rowCount(), 1);
}

void TestKlientenfenster::theOtherDesksChangeIsSeenWhenTheWindowIsLookedAt()
{
    m_probe->legeAn(u"Anna"_s);
    Person anders = m_probe->akte().person;
    anders.name = u"Anna am anderen Platz"_s;
    QVERIFY(m_probe->kartei().speicher().sichere(anders));
    fenster().frischeAuf();
    QCOMPARE(fenster().personenblatt->name->text(), u"Anna am anderen Platz"_s);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna am anderen Platz"_s));
}

QTEST_MAIN(TestKlientenfenster)
#include "TestKlientenfenster.moc"
