#include "Uebernahme.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Namensgleich;

/// Foods that come into the own foods.
class TestUebernahme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFoodsComeLast();
    void aTakenNameFollowsTheChoice_data();
    void aTakenNameFollowsTheChoice();
    void aSingleChoiceGoesFirst();
    void theSameFoodIsNoClash();
    void anotherRatingIsAClash();
    void aNewNameIsNobodysElse();
    void aNameThatComesTwiceMeetsTheFirst();
    void nothingComesIn();
};

namespace {

Datenmodul speise(const QString &name, float kalorien, const QString &gicht = u"0"_s)
{
    Datenmodul neu;
    neu.setName(name);
    neu.setkal(kalorien);
    neu.setgicht(gicht);
    return neu;
}

/// Own foods in this order.
Lebensmittelbestand bestand(const QList<Datenmodul> &speisen)
{
    Lebensmittelbestand neu;
    for (const Datenmodul &eine : speisen) {
        neu.verzeichnis.insert(eine.name(), eine);
        neu.namen << eine.name();
    }
    return neu;
}

QList<float> kalorien(const Uebernahme &uebernahme)
{
    QList<float> alle;
    for (const QString &name : uebernahme.bestand.namen) {
        alle << uebernahme.bestand.verzeichnis.value(name).kal();
    }
    return alle;
}

} // namespace

void TestUebernahme::newFoodsComeLast()
{
    const Uebernahme nachher = uebernimm(bestand({speise(u"Zopf"_s, 1), speise(u"Brot"_s, 2)}),
                                         {speise(u"Mus"_s, 3), speise(u"Apfel"_s, 4)}, {});
    QCOMPARE(nachher.bestand.namen, QStringList({u"Zopf"_s, u"Brot"_s, u"Mus"_s, u"Apfel"_s}));
    QCOMPARE(nachher.bestand.verzeichnis.size(), 4);
    QCOMPARE(kalorien(nachher), QList<float>({1, 2, 3, 4}));
    QCOMPARE(nachher.neu, QStringList({u"Mus"_s, u"Apfel"_s}));
    QCOMPARE(nachher.anzahl(), 2);
}

void TestUebernahme::aTakenNameFollowsTheChoice_data()
{
    QTest::addColumn<Namensgleich>("wahl");
    QTest::addColumn<QStringList>("namen");
    QTest::addColumn<QList<float>>("kalorien");
    QTest::addColumn<int>("anzahl");
    QTest::newRow("replaced") << Ersetzen << QStringList{u"Brot"_s, u"Mus"_s} << QList<float>{9, 2}
                              << 1;
    QTest::newRow("left out") << Ueberspringen << QStringList{u"Brot"_s, u"Mus"_s}
                              << QList<float>{1, 2} << 0;
    QTest::newRow("another name") << NeuerName << QStringList{u"Brot"_s, u"Mus"_s, u"Brot (2)"_s}
                                  << QList<float>{1, 2, 9} << 1;
}

void TestUebernahme::aTakenNameFollowsTheChoice()
{
    QFETCH(Namensgleich, wahl);
    const Uebernahme nachher = uebernimm(bestand({speise(u"Brot"_s, 1), speise(u"Mus"_s, 2)}),
                                         {speise(u"Brot"_s, 9)}, {.sonst = wahl});
    QTEST(nachher.bestand.namen, "namen");
    QTEST(kalorien(nachher), "kalorien");
    QTEST(int(nachher.anzahl()), "anzahl");
    QCOMPARE(nachher.ersetzt, wahl == Ersetzen ? QStringList{u"Brot"_s} : QStringList());
    QCOMPARE(nachher.uebersprungen, wahl == Ueberspringen ? QStringList{u"Brot"_s} : QStringList());
    QCOMPARE(nachher.umbenannt, wahl == NeuerName ? QStringList{u"Brot (2)"_s} : QStringList());
    for (const QString &name : nachher.bestand.namen) {
        QCOMPARE(nachher.bestand.verzeichnis.value(name).name(), name);
    }
}

void TestUebernahme::aSingleChoiceGoesFirst()
{
    const Uebernahme nachher =
        uebernimm(bestand({speise(u"Brot"_s, 1), speise(u"Mus"_s, 2)}),
                  {speise(u"Brot"_s, 8), speise(u"Mus"_s, 9)},
                  {.sonst = Ersetzen, .einzeln = {{u"Mus"_s, Ueberspringen}}});
    QCOMPARE(kalorien(nachher), QList<float>({8, 2}));
}

void TestUebernahme::theSameFoodIsNoClash()
{
    const QList<Datenmodul> neue = {speise(u"Brot"_s, 1)};
    const Lebensmittelbestand eigene = bestand(neue);
    const Uebernahme nachher = uebernimm(eigene, neue, {.sonst = NeuerName});
    QCOMPARE(nachher.bestand.namen, QStringList{u"Brot"_s});
    QCOMPARE(nachher.gleich, QStringList{u"Brot"_s});
    QCOMPARE(nachher.anzahl(), 0);
    QVERIFY(vergebeneNamen(eigene.verzeichnis, neue).isEmpty());
}

void TestUebernahme::anotherRatingIsAClash()
{
    const Lebensmittelbestand eigene = bestand({speise(u"Brot"_s, 1, u"+"_s)});
    const QList<Datenmodul> neue = {speise(u"Brot"_s, 1, u"-"_s), speise(u"Mus"_s, 1)};
    QCOMPARE(vergebeneNamen(eigene.verzeichnis, neue), QStringList{u"Brot"_s});
    const Uebernahme nachher = uebernimm(eigene, neue, {.sonst = Ersetzen});
    QCOMPARE(nachher.bestand.verzeichnis.value(u"Brot"_s).gicht(), u"-"_s);
}

void TestUebernahme::aNewNameIsNobodysElse()
{
    const Uebernahme nachher =
        uebernimm(bestand({speise(u"Brot"_s, 1), speise(u"Brot (2)"_s, 2)}),
                  {speise(u"Brot"_s, 8), speise(u"Brot (3)"_s, 9)}, {.sonst = NeuerName});
    QCOMPARE(nachher.bestand.namen,
             QStringList({u"Brot"_s, u"Brot (2)"_s, u"Brot (4)"_s, u"Brot (3)"_s}));
    QCOMPARE(kalorien(nachher), QList<float>({1, 2, 8, 9}));
    QCOMPARE(nachher.umbenannt, QStringList{u"Brot (4)"_s});
}

void TestUebernahme::aNameThatComesTwiceMeetsTheFirst()
{
    const Uebernahme nachher =
        uebernimm({}, {speise(u"Brot %2"_s, 1), speise(u"Brot %2"_s, 2)}, {.sonst = NeuerName});
    QCOMPARE(nachher.bestand.namen, QStringList({u"Brot %2"_s, u"Brot %2 (2)"_s}));
    QCOMPARE(kalorien(nachher), QList<float>({1, 2}));
}

void TestUebernahme::nothingComesIn()
{
    const Uebernahme nachher = uebernimm(bestand({speise(u"Brot"_s, 1)}), {}, {.sonst = Ersetzen});
    QCOMPARE(kalorien(nachher), QList<float>{1});
    QCOMPARE(nachher.anzahl(), 0);
}

QTEST_GUILESS_MAIN(TestUebernahme)
#include "TestUebernahme.moc"
