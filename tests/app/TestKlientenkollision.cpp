// Two desks on one store: the second one is told, sees both and chooses, and nothing that was typed
// gets lost.

#include "Klientenprobe.h"

#include "Dateidatenbank.h"
#include "Kollisionsfenster.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

class TestKlientenkollision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void bothAreShownAndOnesOwnIsSaved();
    void theOthersIsTakenOver();
    void droppingTakesTheOthers();
    void aVisitThatBothChangedIsShown();
    void whoWasDeletedElsewhereCanBeTakenInAgain();
    void whoCanNotBeTakenInAgainNowIsAskedAboutLater();
    void whoWasDeletedElsewhereCanStayDeleted();
    void aVisitDeletedElsewhereCanBeTakenInAgain();
    void aMeasureAtTheDeskMeetsTheOtherDesksVisit();
    void aMeasureOfWhoWasDeletedElsewhereBringsThemBack();

private:
    QString datei() const
    {
        return QFileInfo(m_heim->eigeneDatei()).dir().filePath(u"MahlbergKlienten.sqlite"_s);
    }
    Kollisionsfenster *kollision() const
    {
        return m_probe->fenster().findChild<Kollisionsfenster *>();
    }
    static void klicke(const Kollisionsfenster &fenster, const QString &knopf)
    {
        for (QPushButton *einer : fenster.findChildren<QPushButton *>()) {
            if (einer->text() == knopf) {
                QTest::mouseClick(einer, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qUtf8Printable(knopf));
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
    std::unique_ptr<Klientenspeicher> m_anderer; ///< the other desk
};

void TestKlientenkollision::init()
{
    m_heim = std::make_unique<Probeheim>();
    Datenmodul apfel;
    apfel.setName(u"Apfel"_s);
    m_heim->schreibeTabelle({{u"Apfel"_s, apfel}});
    m_probe = std::make_unique<Klientenprobe>(*m_heim);
    m_probe->oeffne();
    m_probe->legeAn(u"Anna"_s);
    m_anderer = std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(datei()));
}

void TestKlientenkollision::cleanup()
{
    m_anderer.reset();
    m_probe.reset();
    m_heim.reset();
}

void TestKlientenkollision::bothAreShownAndOnesOwnIsSaved()
{
    Person anderes = m_probe->akte().person;
    anderes.name = u"Anna Anders"_s;
    anderes.nummer = u"17"_s;
    QVERIFY(m_anderer->sichere(anderes));
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    QVERIFY(kollision() != nullptr);
    QVERIFY(kollision()->isVisible());
    QCOMPARE(m_probe->akte().person.name, u"Anna Anders"_s);
    klicke(*kollision(), u"So &sichern"_s);
    const Person jetzt = m_probe->akte().person;
    QCOMPARE(jetzt.name, u"Anna Meine"_s);
    QCOMPARE(jetzt.nummer, u"17"_s);
    QCOMPARE(m_probe->fenster().personenblatt->nummer->text(), u"17"_s);
    QCOMPARE(m_probe->liste(), QStringList(u"Anna Meine"_s));
}

void TestKlientenkollision::theOthersIsTakenOver()
{
    Person anderes = m_probe->akte().person;
    anderes.name = u"Anna Anders"_s;
    QVERIFY(m_anderer->sichere(anderes));
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    const QList<QRadioButton *> wahl = kollision()->findChildren<QRadioButton *>();
    QCOMPARE(wahl.size(), 2);
    QTest::mouseClick(wahl[1], Qt::LeftButton, {}, QPoint(8, wahl[1]->height() / 2));
    klicke(*kollision(), u"So &sichern"_s);
    QCOMPARE(m_probe->akte().person.name, u"Anna Anders"_s);
    QCOMPARE(m_probe->fenster().personenblatt->name->text(), u"Anna Anders"_s);
}

void TestKlientenkollision::droppingTakesTheOthers()
{
    Person anderes = m_probe->akte().person;
    anderes.name = u"Anna Anders"_s;
    QVERIFY(m_anderer->sichere(anderes));
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    klicke(*kollision(), u"Meine Änderung &verwerfen"_s);
    QCOMPARE(m_probe->akte().person.name, u"Anna Anders"_s);
    QCOMPARE(m_probe->akte().person.fassung, 2);
    QCOMPARE(m_probe->fenster().personenblatt->name->text(), u"Anna Anders"_s);
}

void TestKlientenkollision::aVisitThatBothChangedIsShown()
{
    m_probe->fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *m_probe->fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    Besuch anderer = m_probe->akte().besuche.constFirst();
    anderer.gewicht = 81;
    QVERIFY(m_anderer->sichere(m_probe->akte().person.kennung, anderer));
    Klientenprobe::tippe(blatt.taille, u"95"_s);
    QVERIFY(kollision() != nullptr);
    klicke(*kollision(), u"So &sichern"_s);
    QCOMPARE(m_probe->akte().besuche.constFirst().gewicht, 81.0);
    QCOMPARE(m_probe->akte().besuche.constFirst().taille, 95.0);
    QCOMPARE(blatt.gewicht->text(), u"81"_s);
}

void TestKlientenkollision::whoWasDeletedElsewhereCanBeTakenInAgain()
{
    const QString kennung = m_probe->akte().person.kennung;
    m_probe->fenster().seiten->setCurrentIndex(1);
    QTest::mouseClick(m_probe->fenster().besuchsblatt->neuerBesuch, Qt::LeftButton);
    m_probe->fenster().seiten->setCurrentIndex(0);
    QVERIFY(m_anderer->loesche(kennung));
    m_heim->antworten = {0};
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    QCOMPARE(m_heim->meldungen.constLast().text,
             u"Ein anderer Platz hat diesen Klienten gelöscht."_s);
    QCOMPARE(m_probe->akte().person.name, u"Anna Meine"_s);
    QCOMPARE(m_probe->akte().person.kennung, kennung);
    QCOMPARE(m_probe->akte().besuche.size(), 1);
}

/// What was typed is not given up because the store was held for a moment.
void TestKlientenkollision::whoCanNotBeTakenInAgainNowIsAskedAboutLater()
{
    const QString kennung = m_probe->akte().person.kennung;
    QVERIFY(m_anderer->loesche(kennung));
    QSqlDatabase halter = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"halter"_s);
    halter.setDatabaseName(datei());
    QVERIFY(halter.open());
    m_heim->antworten = {0, 0};
    m_heim->beiMeldung = [&halter] {
        halter.exec(u"BEGIN IMMEDIATE"_s);
    };
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    QCOMPARE(m_probe->kartei().vorgemerkt(), 1);
    m_heim->beiMeldung = [] {
    };
    halter = QSqlDatabase();
    QSqlDatabase::removeDatabase(u"halter"_s);
    m_heim->meldungen.clear();
    m_probe->kartei().versucheNochmals();
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_probe->akte().person.name, u"Anna Meine"_s);
    QCOMPARE(m_probe->akte().person.kennung, kennung);
    QCOMPARE(m_probe->kartei().offene(), 0);
}

void TestKlientenkollision::whoWasDeletedElsewhereCanStayDeleted()
{
    QVERIFY(m_anderer->loesche(m_probe->akte().person.kennung));
    m_heim->antworten = {1};
    Klientenprobe::tippe(m_probe->fenster().personenblatt->name, u"Anna Meine"_s);
    QCOMPARE(m_probe->liste(), QStringList());
    QVERIFY(m_probe->fenster().leerseite->isVisible());
}

void TestKlientenkollision::aVisitDeletedElsewhereCanBeTakenInAgain()
{
    m_probe->fenster().seiten->setCurrentIndex(1);
    Besuchsblatt &blatt = *m_probe->fenster().besuchsblatt;
    QTest::mouseClick(blatt.neuerBesuch, Qt::LeftButton);
    QVERIFY(m_anderer->loesche(m_probe->akte().besuche.constFirst()));
    m_heim->antworten = {0};
    Klientenprobe::tippe(blatt.gewicht, u"82"_s);
    QCOMPARE(m_heim->meldungen.constLast().text,
             u"Ein anderer Platz hat gelöscht, was Sie ändern."_s);
    QCOMPARE(m_probe->akte().besuche.constFirst().gewicht, 82.0);
}

void TestKlientenkollision::aMeasureAtTheDeskMeetsTheOtherDesksVisit()
{
    const QString kennung = m_probe->akte().person.kennung;
    QVERIFY(m_probe->tisch().nimm(kennung));
    Besuch anderer;
    anderer.datum = QDate::currentDate();
    anderer.taille = 90;
    QVERIFY(m_anderer->sichere(kennung, anderer));
    QDoubleSpinBox *gewicht = m_probe->programm().rechner().gewichtn->eingabe();
    gewicht->selectAll();
    QTest::keyClicks(gewicht, u"63"_s);
    QTest::keyClick(gewicht, Qt::Key_Return);
    m_probe->tisch().sichere();
    const Klientenakte akte = m_probe->akte();
    QCOMPARE(akte.besuche.size(), 1);
    QCOMPARE(akte.besuche.constFirst().gewicht, 63.0);
    QCOMPARE(akte.besuche.constFirst().taille, 90.0);
}

void TestKlientenkollision::aMeasureOfWhoWasDeletedElsewhereBringsThemBack()
{
    const QString kennung = m_probe->akte().person.kennung;
    Besuch frueher;
    frueher.datum = QDate(2026, 1, 5);
    frueher.gewicht = 64;
    m_probe->kartei().sichere({kennung, frueher, {}});
    QVERIFY(m_probe->tisch().nimm(kennung));
    m_probe->legeAn(u"Berta"_s); // whom the window shows
    QVERIFY(m_anderer->loesche(kennung));
    m_heim->antworten = {0};
    m_heim->meldungen.clear();
    QDoubleSpinBox *gewicht = m_probe->programm().rechner().gewichtn->eingabe();
    gewicht->selectAll();
    QTest::keyClicks(gewicht, u"63"_s);
    QTest::keyClick(gewicht, Qt::Key_Return);
    m_probe->tisch().sichere();
    QCOMPARE(m_heim->meldungen.size(), 1);
    const std::optional<Klientenakte> akte = m_probe->kartei().akte(kennung);
    QVERIFY(akte.has_value());
    QCOMPARE(akte->person.name, u"Anna"_s);
    QCOMPARE(akte->besuche.size(), 2);
    QCOMPARE(akte->besuche.constLast().gewicht, 63.0);
}

QTEST_MAIN(TestKlientenkollision)
#include "TestKlientenkollision.moc"
