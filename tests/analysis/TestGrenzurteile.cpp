// How the figures of a day stand to their limits, also where not all is known.

#include "Tageszahlprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Tagesgroesse;
using enum Grenzurteil;
using Tageszahlprobe::urteile;
using Tageszahlprobe::zahl;

class TestGrenzurteile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void purinesAreMeasuredOnlyWithGout();
    void aLimitIsKeptAlsoWhenItIsReached_data();
    void aLimitIsKeptAlsoWhenItIsReached();
    void whatIsUnknownKeepsTheVerdictOpen_data();
    void whatIsUnknownKeepsTheVerdictOpen();
    void aClassOfPurinesHasAnEnd_data();
    void aClassOfPurinesHasAnEnd();
    void theLastDigitsOfASumDoNotCount();
};

void TestGrenzurteile::purinesAreMeasuredOnlyWithGout()
{
    Zusatzwerte werte;
    werte.gruppe = lebensmittelgruppe(u"Fisch"_s);
    werte.harnsaeure = 45;
    const Stoffwissen wissen({{u"a"_s, werte}});
    const Speisen speisen = {{u"a"_s, Datenmodul(), 100}};
    QCOMPARE(urteile(zahl(tageszahlen({.speisen = speisen}, wissen), Purine)),
             (QList<Grenzurteil>{Keines, Keines}));
    QCOMPARE(urteile(zahl(tageszahlen({.speisen = speisen, .gicht = true}, wissen), Purine)),
             (QList<Grenzurteil>{Gehalten, Gehalten}));
}

void TestGrenzurteile::aLimitIsKeptAlsoWhenItIsReached_data()
{
    QTest::addColumn<Tagesgroesse>("groesse");
    QTest::addColumn<double>("gramm");
    QTest::addColumn<QList<Grenzurteil>>("soll");
    // A food that holds in 100 g: 10 mg of uric acid, 1 g of alcohol, 50 g of water, 400 mg of
    // sodium.
    QTest::newRow("300 mg of 300") << Purine << 3000.0 << QList<Grenzurteil>{Gehalten, Gehalten};
    QTest::newRow("over 300 mg") << Purine << 3001.0 << QList<Grenzurteil>{Gehalten, Verfehlt};
    QTest::newRow("500 mg of 500") << Purine << 5000.0 << QList<Grenzurteil>{Gehalten, Verfehlt};
    QTest::newRow("over 500 mg") << Purine << 5001.0 << QList<Grenzurteil>{Verfehlt, Verfehlt};
    QTest::newRow("27 g of under 27")
        << AlkoholJeWoche << 2700.0 / 7 << QList<Grenzurteil>{Verfehlt};
    QTest::newRow("under 27 g") << AlkoholJeWoche << 385.0 << QList<Grenzurteil>{Gehalten};
    QTest::newRow("2000 ml of 2000") << Wasser << 4000.0 << QList<Grenzurteil>{Gehalten};
    QTest::newRow("under 2000 ml") << Wasser << 3999.0 << QList<Grenzurteil>{Verfehlt};
    QTest::newRow("5 g of under 5 and 6")
        << Salz << 500.0 << QList<Grenzurteil>{Verfehlt, Gehalten};
    QTest::newRow("under 5 g") << Salz << 499.0 << QList<Grenzurteil>{Gehalten, Gehalten};
    QTest::newRow("6 g of 6") << Salz << 600.0 << QList<Grenzurteil>{Verfehlt, Gehalten};
    QTest::newRow("over 6 g") << Salz << 601.0 << QList<Grenzurteil>{Verfehlt, Verfehlt};
}

void TestGrenzurteile::aLimitIsKeptAlsoWhenItIsReached()
{
    QFETCH(const Tagesgroesse, groesse);
    QFETCH(const double, gramm);
    QFETCH(const QList<Grenzurteil>, soll);
    Zusatzwerte werte;
    werte.gruppe = lebensmittelgruppe(u"Brot und Brötchen"_s);
    werte.harnsaeure = 10;
    werte.alkohol = 1;
    werte.wasser = 50;
    Datenmodul satz;
    satz.setna(400);
    const auto ist = tageszahlen({.speisen = {{u"a"_s, satz, gramm}},
                                  .person = {.geschlecht = Referenzgeschlecht::Frau, .alter = 30},
                                  .gicht = true},
                                 Stoffwissen({{u"a"_s, werte}}));
    QCOMPARE(urteile(zahl(ist, groesse)), soll);
}

void TestGrenzurteile::whatIsUnknownKeepsTheVerdictOpen_data()
{
    QTest::addColumn<Tagesgroesse>("groesse");
    QTest::addColumn<double>("gramm");
    QTest::addColumn<QList<Grenzurteil>>("soll");
    // As above, and 100 g of an own food of which only the energy is known, 100 kcal.
    QTest::newRow("purines may be more") << Purine << 3000.0 << QList<Grenzurteil>{Offen, Offen};
    QTest::newRow("purines are too many anyway")
        << Purine << 4000.0 << QList<Grenzurteil>{Offen, Verfehlt};
    QTest::newRow("alcohol may be more") << AlkoholJeWoche << 0.0 << QList<Grenzurteil>{};
    QTest::newRow("alcohol may be more than a little")
        << AlkoholJeWoche << 100.0 << QList<Grenzurteil>{Offen};
    QTest::newRow("alcohol is too much anyway")
        << AlkoholJeWoche << 400.0 << QList<Grenzurteil>{Verfehlt};
    QTest::newRow("water may be more") << Wasser << 3000.0 << QList<Grenzurteil>{Offen};
    QTest::newRow("water is enough anyway") << Wasser << 4000.0 << QList<Grenzurteil>{Gehalten};
    QTest::newRow("salt may be more") << Salz << 400.0 << QList<Grenzurteil>{Offen, Offen};
    QTest::newRow("salt is too much anyway")
        << Salz << 550.0 << QList<Grenzurteil>{Verfehlt, Offen};
    QTest::newRow("it may be a drink") << Energiedichte << 100.0 << QList<Grenzurteil>{Offen};
    // 2 g in 200 kcal are 9 percent, 4 g in 300 kcal 12.
    QTest::newRow("saturated fat may be more") << Gesaettigt << 100.0 << QList<Grenzurteil>{Offen};
    QTest::newRow("saturated fat is too much anyway")
        << Gesaettigt << 200.0 << QList<Grenzurteil>{Verfehlt};
}

void TestGrenzurteile::whatIsUnknownKeepsTheVerdictOpen()
{
    QFETCH(const Tagesgroesse, groesse);
    QFETCH(const double, gramm);
    QFETCH(const QList<Grenzurteil>, soll);
    Zusatzwerte werte;
    werte.gruppe = lebensmittelgruppe(u"Brot und Brötchen"_s);
    werte.harnsaeure = 10;
    werte.alkohol = 1;
    werte.wasser = 50;
    werte.gesaettigt = 2;
    Datenmodul satz;
    satz.setna(400);
    satz.setkal(100);
    Datenmodul eigenes;
    eigenes.setkal(100);
    const auto ist = tageszahlen({.speisen = {{u"a"_s, satz, gramm}, {u"eigenes"_s, eigenes, 100}},
                                  .person = {.geschlecht = Referenzgeschlecht::Frau, .alter = 30},
                                  .gicht = true},
                                 Stoffwissen({{u"a"_s, werte}}));
    const Tageszahl &eine = zahl(ist, groesse);
    QCOMPARE(urteile(eine), soll.isEmpty() ? QList<Grenzurteil>{Keines} : soll);
    QCOMPARE(eine.unbekannte, QStringList{u"eigenes"_s});
    QCOMPARE(eine.unbekannt, 100 / (gramm + 100));
    QVERIFY(!eine.hoechstens);
}

void TestGrenzurteile::aClassOfPurinesHasAnEnd_data()
{
    QTest::addColumn<std::optional<Purinklasse>>("klasse");
    QTest::addColumn<double>("verzehrfertig");
    QTest::addColumn<std::optional<double>>("hoechstens");
    QTest::addColumn<QList<Grenzurteil>>("soll");
    using Klasse = std::optional<Purinklasse>;
    using Ende = std::optional<double>;
    // Beside 250 mg, 100 g of it.
    QTest::newRow("low: up to 50 mg") << Klasse(Purinklasse::Niedrig) << 100.0 << Ende(300)
                                      << QList<Grenzurteil>{Gehalten, Gehalten};
    QTest::newRow("low, but 102 g when it is ready")
        << Klasse(Purinklasse::Niedrig) << 102.0 << Ende(301)
        << QList<Grenzurteil>{Gehalten, Offen};
    QTest::newRow("moderate: up to 150 mg")
        << Klasse(Purinklasse::Mittel) << 100.0 << Ende(400) << QList<Grenzurteil>{Gehalten, Offen};
    QTest::newRow("moderate, and 200 g when it is ready")
        << Klasse(Purinklasse::Mittel) << 200.0 << Ende(550) << QList<Grenzurteil>{Offen, Offen};
    QTest::newRow("high: without end")
        << Klasse(Purinklasse::Hoch) << 100.0 << Ende() << QList<Grenzurteil>{Offen, Offen};
    QTest::newRow("without a class")
        << Klasse() << 100.0 << Ende() << QList<Grenzurteil>{Offen, Offen};
}

void TestGrenzurteile::aClassOfPurinesHasAnEnd()
{
    QFETCH(const std::optional<Purinklasse>, klasse);
    QFETCH(const double, verzehrfertig);
    QFETCH(const std::optional<double>, hoechstens);
    QFETCH(const QList<Grenzurteil>, soll);
    Zusatzwerte fleisch;
    fleisch.gruppe = lebensmittelgruppe(u"Fisch"_s);
    fleisch.harnsaeure = 250;
    Zusatzwerte anderes;
    anderes.gruppe = fleisch.gruppe;
    anderes.purinklasse = klasse;
    anderes.verzehrfertig = verzehrfertig;
    const auto ist = tageszahlen({.speisen = {{u"a"_s, Datenmodul(), 100},
                                              {u"b"_s, Datenmodul(), 100},
                                              {u"c"_s, Datenmodul(), 0}},
                                  .gicht = true},
                                 Stoffwissen({{u"a"_s, fleisch}, {u"b"_s, anderes}}));
    const Tageszahl &purine = zahl(ist, Purine);
    QCOMPARE(purine.wert, std::optional(250.0));
    QCOMPARE(purine.hoechstens, hoechstens);
    QCOMPARE(urteile(purine), soll);
    QCOMPARE(purine.unbekannt, 0.5);
}

void TestGrenzurteile::theLastDigitsOfASumDoNotCount()
{
    // 90.6 + 78.7 + 90.9 + 39.8 mg are 300 mg, but their binary sum is a little more.
    QHash<QString, Zusatzwerte> tabelle;
    Speisen speisen;
    for (const double milligramm : {90.6, 78.7, 90.9, 39.8}) {
        Zusatzwerte werte;
        werte.gruppe = lebensmittelgruppe(u"Fisch"_s);
        werte.harnsaeure = milligramm;
        const QString name = QString::number(milligramm);
        tabelle.insert(name, werte);
        speisen << Speise{name, Datenmodul(), 100};
    }
    const auto ist = tageszahlen({.speisen = speisen, .gicht = true}, Stoffwissen(tabelle));
    QVERIFY(*zahl(ist, Purine).wert > 300);
    QCOMPARE(urteile(zahl(ist, Purine)), (QList<Grenzurteil>{Gehalten, Gehalten}));
}

QTEST_APPLESS_MAIN(TestGrenzurteile)
#include "TestGrenzurteile.moc"
