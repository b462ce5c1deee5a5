// The cabinet: what is entered is kept or waits, whatever happens to the store; two desks are told
// of each other.

#include "Kartei.h"
#include "Pruefspeicher.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

class TestKartei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init();
    void cleanup() { m_kartei.reset(); }

    void aNewClientGetsAKeyAndStandsInTheList();
    void aVisitIsToldOfToWhoeverShowsTheClient();
    void whileTheStoreIsAwayWhatIsEnteredWaits();
    void aClientWhoWaitsCanBeShownAndGivenAVisit();
    void whoIsShownStaysWhileTheStoreIsAway();
    void whatWaitsIsChangedAndNotDoubled();
    void visitsThatWaitStandInTheirOrder();
    void whatWaitsForOneIsNotShownAtAnother();
    void whatWaitsKeepsTheGroundItWasChangedFrom();
    void whileSomethingWaitsTheStoreIsNotChanged();
    void whatWaitsOutlivesTheProgram();
    void whatTheUserWasAskedAboutOutlivesTheProgramToo();
    void whatIsTakenAwayWaitsNoMore();
    void whatCanNotBeKeptInTheFileWaitsAllTheSame();
    void theSecondDeskIsToldAndChooses();
    void whatTheUserGivesUpIsNotWritten();
    void whatAnotherDeskDeletedIsToldOf();
    void aDeletedClientComesBackWhole();
    void aDeletedVisitComesBack();
    void onlyTheLastDeletionComesBack();
    void afterForgettingNothingComesBack();
    void aVisitThatAnotherDeskChangedIsNotDeleted();
    void whoIsHereAlreadyIsNotTakenInAgain();

private:
    QString angelegt(const QString &name);
    Klientenakte akte(const QString &kennung) { return m_kartei->akte(kennung).value(); }
    QString neuerBesuch(const QString &kennung, double gewicht, const QDate &tag);
    void andererTischSchreibt(Person gelesen);
    void oeffne();

    Pruefspeicher m_speicher;
    std::unique_ptr<Kartei> m_kartei;
    std::optional<Kollision> m_kollision;        ///< the last that the user was asked about
    std::optional<Schreibwunsch> m_verschwunden; ///< what was last said to be gone
};

Q_DECLARE_METATYPE(Kollision)
Q_DECLARE_METATYPE(Schreibwunsch)

void TestKartei::init()
{
    m_speicher.beginne();
    oeffne();
    m_kartei->lade();
}

/// A program that has begun.
void TestKartei::oeffne()
{
    m_kollision.reset();
    m_verschwunden.reset();
    m_kartei = std::make_unique<Kartei>([this] { return m_speicher.ort(); });
    connect(m_kartei.get(), &Kartei::kollidiert, this,
            [this](const Kollision &eine) { m_kollision = eine; });
    connect(m_kartei.get(), &Kartei::verschwunden, this,
            [this](const Schreibwunsch &einer) { m_verschwunden = einer; });
}

QString TestKartei::angelegt(const QString &name)
{
    return m_kartei->sichere({QString(), namens(name), {}});
}

QString TestKartei::neuerBesuch(const QString &kennung, double gewicht, const QDate &tag)
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    return m_kartei->sichere({kennung, besuch, {}});
}

void TestKartei::andererTischSchreibt(Person gelesen)
{
    gelesen.nummer = QStringLiteral("17");
    QVERIFY(m_speicher.tisch()->sichere(gelesen));
}

void TestKartei::aNewClientGetsAKeyAndStandsInTheList()
{
    const QSignalSpy liste(m_kartei.get(), &Kartei::listeGeaendert);
    const QString kennung = angelegt(QStringLiteral("Anna"));
    QVERIFY(!kennung.isEmpty());
    QCOMPARE(liste.count(), 1);
    QCOMPARE(m_kartei->liste().suche({}, false).size(), 1);
    QCOMPARE(m_kartei->liste().suche({}, false).constFirst().kennung, kennung);
    QCOMPARE(akte(kennung).person.fassung, 1);
    Kartei andere([this] { return m_speicher.ort(); });
    andere.lade();
    QCOMPARE(andere.liste().suche({}, false).constFirst().name, QStringLiteral("Anna"));
}

void TestKartei::aVisitIsToldOfToWhoeverShowsTheClient()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const QSignalSpy gesagt(m_kartei.get(), &Kartei::akteGeaendert);
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(gesagt.constFirst().constFirst().toString(), kennung);
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 80.0);
}

void TestKartei::whileTheStoreIsAwayWhatIsEnteredWaits()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const QSignalSpy hindernis(m_kartei.get(), &Kartei::hindernisGeaendert);
    m_speicher.nimmWeg();
    const Person vorher = namens(QStringLiteral("Anna"));
    Person neu = vorher;
    neu.kennung = kennung;
    neu.fassung = 1;
    neu.name = QStringLiteral("Anna Muster");
    m_kartei->sichere({kennung, neu, Satz(vorher)});
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    QCOMPARE(m_kartei->hindernis().hindernis,
             m_speicher.istServer() ? Hindernis::Getrennt : Hindernis::Gesperrt);
    QCOMPARE(hindernis.count(), 1);
    QVERIFY(m_kartei->beschreibbar());
    QCOMPARE(m_kartei->liste().suche({}, false).constFirst().name, QStringLiteral("Anna Muster"));
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QCOMPARE(m_kartei->hindernis().hindernis, Hindernis::Keines);
    QCOMPARE(hindernis.count(), 2);
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna Muster"));
    QCOMPARE(akte(kennung).person.fassung, 2);
}

void TestKartei::aClientWhoWaitsCanBeShownAndGivenAVisit()
{
    angelegt(QStringLiteral("Zoe")); // so that the tables are there
    m_speicher.nimmWeg();
    const QString kennung = angelegt(QStringLiteral("Anna"));
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    QCOMPARE(m_kartei->vorgemerkt(), 2);
    m_speicher.gibZurueck();
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna"));
    QCOMPARE(akte(kennung).besuche.size(), 1);
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 80.0);
}

/// A client sits at the desk when the line is cut: the consultation goes on.
void TestKartei::whoIsShownStaysWhileTheStoreIsAway()
{
    const QString anna = angelegt(QStringLiteral("Anna"));
    neuerBesuch(anna, 80, QDate(2026, 11, 16));
    const QString fort = angelegt(QStringLiteral("Zoe"));
    QCOMPARE(akte(anna).besuche.size(), 1);
    QCOMPARE(akte(fort).person.name, QStringLiteral("Zoe"));
    QVERIFY(m_kartei->loesche(akte(fort)));
    m_speicher.nimmWeg();
    QCOMPARE(m_kartei->akte(anna)->person.name, QStringLiteral("Anna"));
    neuerBesuch(anna, 79, QDate(2026, 11, 23));
    QCOMPARE(m_kartei->akte(anna)->besuche.size(), 2);
    const QString berta = angelegt(QStringLiteral("Berta"));
    QCOMPARE(m_kartei->akte(berta)->person.name, QStringLiteral("Berta"));
    QVERIFY(!m_kartei->akte(fort).has_value());
    QVERIFY(!m_kartei->akte(QStringLiteral("niemand")).has_value());
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QCOMPARE(akte(anna).besuche.size(), 2);
}

void TestKartei::whatWaitsIsChangedAndNotDoubled()
{
    angelegt(QStringLiteral("Zoe"));
    m_speicher.nimmWeg();
    const QString kennung = angelegt(QStringLiteral("Anna"));
    Person neu = namens(QStringLiteral("Anna Muster"));
    neu.kennung = kennung;
    QCOMPARE(m_kartei->sichere({kennung, neu, {}}), kennung);
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->liste().suche({}, false).size(), 2);
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna Muster"));
    QCOMPARE(akte(kennung).person.fassung, 1);
}

void TestKartei::visitsThatWaitStandInTheirOrder()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    neuerBesuch(kennung, 80, QDate(2026, 11, 16));
    m_speicher.nimmWeg();
    neuerBesuch(kennung, 79, QDate(2026, 11, 23));
    neuerBesuch(kennung, 82, QDate(2026, 11, 2));
    m_speicher.gibZurueck();
    QList<double> gewichte;
    for (const Besuch &besuch : akte(kennung).besuche) {
        gewichte << besuch.gewicht.value_or(0);
    }
    QCOMPARE(m_kartei->vorgemerkt(), 2);
    QCOMPARE(gewichte, (QList<double>{82, 80, 79}));
}

void TestKartei::whatWaitsForOneIsNotShownAtAnother()
{
    const QString zoe = angelegt(QStringLiteral("Zoe"));
    const QString anna = angelegt(QStringLiteral("Anna"));
    m_speicher.nimmWeg();
    neuerBesuch(anna, 80, QDate(2026, 11, 23));
    m_speicher.gibZurueck();
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    QVERIFY(akte(zoe).besuche.isEmpty());
    QCOMPARE(akte(zoe).person.name, QStringLiteral("Zoe"));
    QCOMPARE(akte(anna).besuche.size(), 1);
}

/// Whoever types on while the store is away has still begun from what was read before: another desk
/// may have written meanwhile, and the choice between the two needs to know what was there first.
void TestKartei::whatWaitsKeepsTheGroundItWasChangedFrom()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const Person gelesen = akte(kennung).person;
    andererTischSchreibt(gelesen);

    m_speicher.nimmWeg();
    Person erste = gelesen;
    erste.name = QStringLiteral("Anna M");
    m_kartei->sichere({kennung, erste, Satz(gelesen)});
    Person zweite = erste;
    zweite.name = QStringLiteral("Anna Muster");
    m_kartei->sichere({kennung, zweite, Satz(erste)});
    m_speicher.gibZurueck();

    m_kartei->versucheNochmals();
    QVERIFY(m_kollision.has_value());
    QCOMPARE(std::get<Person>(m_kollision->meines.neu).name, QStringLiteral("Anna Muster"));
    QVERIFY(m_kollision->meines.alt.has_value());
    QCOMPARE(std::get<Person>(*m_kollision->meines.alt).name, QStringLiteral("Anna"));
}

void TestKartei::whileSomethingWaitsTheStoreIsNotChanged()
{
    QVERIFY(m_kartei->beginneNeu());
    angelegt(QStringLiteral("Anna"));
    m_speicher.nimmWeg();
    angelegt(QStringLiteral("Berta"));
    QVERIFY(!m_kartei->beginneNeu());
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QVERIFY(m_kartei->beginneNeu());
    QCOMPARE(m_kartei->liste().anzahl(), 2);
}

void TestKartei::whatWaitsOutlivesTheProgram()
{
    angelegt(QStringLiteral("Zoe"));
    m_speicher.nimmWeg();
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const QString besuch = neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    m_kartei->versucheNochmals(); // whoever is tried first stays first
    QVERIFY(m_kartei->istFestgehalten());

    oeffne();
    QCOMPARE(m_kartei->vorgemerkt(), 2);
    QVERIFY(m_kartei->istFestgehalten());
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 2);
    QVERIFY(QFileInfo::exists(m_speicher.vormerkdatei()));

    m_speicher.gibZurueck();
    m_kartei->lade();
    QCOMPARE(m_kartei->liste().anzahl(), 2);
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QVERIFY(!QFileInfo::exists(m_speicher.vormerkdatei()));
    Kartei andere([this] { return m_speicher.ort(); });
    QCOMPARE(andere.vorgemerkt(), 0);
    QCOMPARE(andere.akte(kennung)->person.name, QStringLiteral("Anna"));
    QCOMPARE(andere.akte(kennung)->besuche.constFirst().kennung, besuch);
}

void TestKartei::whatTheUserWasAskedAboutOutlivesTheProgramToo()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const Person gelesen = akte(kennung).person;
    andererTischSchreibt(gelesen);
    Person meines = gelesen;
    meines.name = QStringLiteral("Anna Muster");
    const QString weg = neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    Besuch besuch = akte(kennung).besuche.constFirst();
    QVERIFY(m_speicher.tisch()->loesche(besuch));
    besuch.gewicht = 79;
    m_kartei->sichere({kennung, meines, Satz(gelesen)});
    m_kartei->sichere({kennung, besuch, {}});
    QCOMPARE(m_kartei->offene(), 2);
    QVERIFY(!m_kartei->beginneNeu());

    oeffne(); // no answer was given
    m_kartei->versucheNochmals();
    QVERIFY(m_kollision.has_value());
    QCOMPARE(std::get<Person>(m_kollision->meines.neu).name, QStringLiteral("Anna Muster"));
    QCOMPARE(std::get<Person>(*m_kollision->meines.alt).name, QStringLiteral("Anna"));
    QVERIFY(m_verschwunden.has_value());
    QCOMPARE(::kennung(m_verschwunden->neu), weg);
    m_kartei->verzichte(*m_verschwunden);
    QCOMPARE(m_kartei->offene(), 1);
    m_kartei->entscheide(*m_kollision, m_kollision->meines.neu);
    QCOMPARE(m_kartei->offene(), 0);
    QVERIFY(!QFileInfo::exists(m_speicher.vormerkdatei()));
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna Muster"));
    QVERIFY(akte(kennung).besuche.isEmpty());
}

/// The store is back, but what waits was not tried again yet.
void TestKartei::whatIsTakenAwayWaitsNoMore()
{
    const QString zoe = angelegt(QStringLiteral("Zoe"));
    const QString anna = angelegt(QStringLiteral("Anna"));
    m_speicher.nimmWeg();
    neuerBesuch(anna, 80, QDate(2026, 11, 23));
    neuerBesuch(zoe, 60, QDate(2026, 11, 23));
    m_speicher.gibZurueck();
    QVERIFY(m_kartei->loesche(anna, akte(anna).besuche.constFirst()));
    QVERIFY(m_kartei->loesche(akte(zoe)));
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QVERIFY(!QFileInfo::exists(m_speicher.vormerkdatei()));
    m_kartei->versucheNochmals();
    QVERIFY(akte(anna).besuche.isEmpty());
    QVERIFY(!m_kartei->akte(zoe));
    const QSignalSpy vergessen(m_kartei.get(), &Kartei::klientVergessen);
    QVERIFY(m_kartei->beginneNeu()); // which brings nobody back
    QCOMPARE(vergessen.count(), 1);
}

void TestKartei::whatCanNotBeKeptInTheFileWaitsAllTheSame()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    QVERIFY(QDir().mkdir(m_speicher.vormerkdatei()));
    m_speicher.nimmWeg();
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    QVERIFY(!m_kartei->istFestgehalten());
    QVERIFY(QDir().rmdir(m_speicher.vormerkdatei()));
    m_kartei->versucheNochmals();
    QVERIFY(m_kartei->istFestgehalten());
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QCOMPARE(m_kartei->vorgemerkt(), 0);
    QCOMPARE(akte(kennung).besuche.size(), 1);
}

void TestKartei::theSecondDeskIsToldAndChooses()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const Person gelesen = akte(kennung).person;
    andererTischSchreibt(gelesen);
    Person meines = gelesen;
    meines.name = QStringLiteral("Anna Muster");
    m_kartei->sichere({kennung, meines, Satz(gelesen)});
    QVERIFY(m_kollision.has_value());
    QCOMPARE(std::get<Person>(m_kollision->anderes).nummer, QStringLiteral("17"));
    QCOMPARE(std::get<Person>(m_kollision->meines.neu).name, QStringLiteral("Anna Muster"));
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna"));

    Person beide = std::get<Person>(m_kollision->anderes);
    beide.name = QStringLiteral("Anna Muster");
    m_kartei->entscheide(*m_kollision, beide);
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna Muster"));
    QCOMPARE(akte(kennung).person.nummer, QStringLiteral("17"));
    QCOMPARE(akte(kennung).person.fassung, 3);
}

void TestKartei::whatTheUserGivesUpIsNotWritten()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const Person gelesen = akte(kennung).person;
    Person anderes = gelesen;
    anderes.name = QStringLiteral("Anders");
    QVERIFY(m_speicher.tisch()->sichere(anderes));
    Person meines = gelesen;
    meines.name = QStringLiteral("Meine");
    m_kartei->sichere({kennung, meines, Satz(gelesen)});
    m_kartei->verzichte(m_kollision.value().meines);
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anders"));
    QCOMPARE(m_kartei->liste().suche({}, false).constFirst().name, QStringLiteral("Anders"));
}

void TestKartei::whatAnotherDeskDeletedIsToldOf()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    const Person gelesen = akte(kennung).person;
    QVERIFY(m_speicher.tisch()->loesche(kennung));
    Person meines = gelesen;
    meines.name = QStringLiteral("Anna Muster");
    m_kartei->sichere({kennung, meines, Satz(gelesen)});
    QVERIFY(m_verschwunden.has_value());
    QCOMPARE(kennung, m_verschwunden->person);
    QVERIFY(!m_kartei->akte(kennung));
    QCOMPARE(m_kartei->vorgemerkt(), 0);
}

void TestKartei::aDeletedClientComesBackWhole()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    const Klientenakte vorher = akte(kennung);
    QVERIFY(!m_kartei->kannZurueckholen());
    QVERIFY(m_kartei->loesche(vorher));
    QVERIFY(!m_kartei->akte(kennung));
    QCOMPARE(m_kartei->liste().anzahl(), 0);
    QVERIFY(m_kartei->kannZurueckholen());
    QVERIFY(m_kartei->holeZurueck());
    QVERIFY(akte(kennung) == vorher);
    QCOMPARE(m_kartei->liste().anzahl(), 1);
    QVERIFY(!m_kartei->kannZurueckholen());
}

void TestKartei::aDeletedVisitComesBack()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    const Besuch besuch = akte(kennung).besuche.constFirst();
    QVERIFY(m_kartei->loesche(kennung, besuch));
    QVERIFY(akte(kennung).besuche.isEmpty());
    QVERIFY(m_kartei->holeZurueck());
    QCOMPARE(akte(kennung).besuche.constFirst().kennung, besuch.kennung);
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 80.0);
}

void TestKartei::onlyTheLastDeletionComesBack()
{
    const QString anna = angelegt(QStringLiteral("Anna"));
    const QString berta = angelegt(QStringLiteral("Berta"));
    QVERIFY(m_kartei->loesche(akte(anna)));
    QVERIFY(m_kartei->loesche(akte(berta)));
    QVERIFY(m_kartei->holeZurueck());
    QVERIFY(!m_kartei->holeZurueck());
    QVERIFY(m_kartei->akte(berta).has_value());
    QVERIFY(!m_kartei->akte(anna));
}

void TestKartei::afterForgettingNothingComesBack()
{
    const QString anna = angelegt(QStringLiteral("Anna"));
    QVERIFY(m_kartei->loesche(akte(anna)));
    m_kartei->vergiss();
    QVERIFY(!m_kartei->kannZurueckholen());
    QVERIFY(!m_kartei->holeZurueck());
    QVERIFY(!m_kartei->akte(anna));
}

void TestKartei::aVisitThatAnotherDeskChangedIsNotDeleted()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    neuerBesuch(kennung, 80, QDate(2026, 11, 23));
    const Besuch gesehen = akte(kennung).besuche.constFirst();
    Besuch anderer = gesehen;
    anderer.gewicht = 79;
    QVERIFY(m_speicher.tisch()->sichere(kennung, anderer));
    QVERIFY(!m_kartei->loesche(kennung, gesehen));
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 79.0);
    QVERIFY(!m_kartei->kannZurueckholen());
}

void TestKartei::whoIsHereAlreadyIsNotTakenInAgain()
{
    const QString kennung = angelegt(QStringLiteral("Anna"));
    Klientenakte fremde = akte(kennung);
    fremde.person.name = QStringLiteral("Eine andere");
    QCOMPARE(m_kartei->nimmAuf(fremde).art, Schreibausgang::Art::Ueberholt);
    QCOMPARE(akte(kennung).person.name, QStringLiteral("Anna"));
    Klientenakte neue;
    neue.person = namens(QStringLiteral("Berta"));
    neue.person.kennung = neueKennung();
    neue.person.fassung = 4;
    QVERIFY(m_kartei->nimmAuf(neue));
    QCOMPARE(m_kartei->liste().anzahl(), 2);
    QVERIFY(akte(neue.person.kennung) == neue);
}

QTEST_GUILESS_MAIN(TestKartei)
#include "TestKartei.moc"
