#include "Befehlsprobe.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// A plan that is evaluated.
class TestPlanbefehl : public QObject, protected Befehlsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { richteEin(); }
    void aPlanAsText();
    void aPlanWithoutAnEnergyNeed();
    void anEmptyPlan();
    void foodsOfAPlan();
    void aPlanThatCannotBeRead_data();
    void aPlanThatCannotBeRead();
    void ownFoodsThatCannotBeRead();
};

void TestPlanbefehl::aPlanAsText()
{
    schreibe(u"Tabelle.daten"_s, {speise(u"Brot"_s,
                                         {{Naehrwert::kal, 400},
                                          {Naehrwert::protein, 20},
                                          {Naehrwert::fett, 10},
                                          {Naehrwert::kh, 50},
                                          {Naehrwert::bs, 8}},
                                         {u"+"_s, u"0"_s, u"-"_s, u"+"_s})});
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s,
             {speise(u"Salz"_s, {{Naehrwert::na, 66000}}, {u"-"_s, u"0"_s, u"+"_s, u"-"_s})});
    schreibeRoh(u"Umbenannt.csv"_s, "Toast;Brot\n");
    schreibePlan({{u"Brot"_s, 300}, {u"Salz"_s, 1}, {u"Toast"_s, 20.5F}, {u"Weg"_s, 5}});
    const Antwort antwort = werteAus(Ausgabeform::Text, 2000);
    QCOMPARE(antwort.ausgang, 0);
    QVERIFY(antwort.meldung.isNull());
    QCOMPARE(QString::fromUtf8(antwort.ausgabe), uR"(Lebensmittel
  Brot   300 g
  Salz     1 g  eigenes Lebensmittel
  Toast   20 g  heißt jetzt „Brot“ und zählt nicht mit
  Weg      5 g  steht in keiner Tabelle und zählt nicht mit
  Summe  301 g

Anteile am Tagesbedarf
  Energie        1110 kcal  von 2000 kcal   55,5 %  knapp daneben           noch 800 kcal
  Protein           60,0 g    von 100,0 g   60,0 %  knapp daneben           noch 40,0 g
  Fett              30,0 g     von 66,7 g   45,0 %  knapp daneben           noch 36,7 g
  Kohlenhydrate    150,0 g    von 250,0 g   60,0 %  knapp daneben           noch 100,0 g
  Ballaststoffe     24,0 g     von 30,0 g   80,0 %  im Ziel        1 Punkt  noch 6,0 g
  Cholesterin         0 mg     von 200 mg    0,0 %  verfehlt                noch 200 mg
  Natrium           660 mg     von 550 mg  120,0 %  verfehlt                110 mg zu viel
  Kalium              0 mg    von 2000 mg    0,0 %  verfehlt                noch 2000 mg
  Calcium             0 mg    von 1000 mg    0,0 %  verfehlt                noch 1000 mg
  Phosphat            0 mg    von 1400 mg    0,0 %  verfehlt                noch 1400 mg
  Magnesium           0 mg     von 350 mg    0,0 %  verfehlt                noch 350 mg
  Eisen             0,0 mg    von 12,0 mg    0,0 %  verfehlt                noch 12,0 mg
  Vitamin A           0 µg    von 1000 µg    0,0 %  verfehlt                noch 1000 µg
  Vitamin B1       0,00 mg    von 1,20 mg    0,0 %  verfehlt                noch 1,20 mg
  Vitamin B2       0,00 mg    von 1,60 mg    0,0 %  verfehlt                noch 1,60 mg
  Vitamin B6       0,00 mg    von 1,70 mg    0,0 %  verfehlt                noch 1,70 mg
  Vitamin C         0,0 mg   von 100,0 mg    0,0 %  verfehlt                noch 100,0 mg
  Die Energie ist aus Protein, Kohlenhydraten und Fett errechnet; nach der Tabelle sind es 1200 kcal.

Bewertungen
                      geeignet  neutral  ungeeignet
  Übergewicht                1        0           1  1 Punkt
  Diabetes                   0        2           0
  Gicht                      1        0           1
  Herz und Kreislauf         1        0           1  1 Punkt

Anteile an der Energie
  Protein        22 %
  Kohlenhydrate  54 %
  Fett           24 %

Beurteilung
  Ein unausgewogener Plan, 3 von 21 Punkten
)"_s);
}

void TestPlanbefehl::aPlanWithoutAnEnergyNeed()
{
    schreibePlan({{u"Brot"_s, 100}});
    const QString text = QString::fromUtf8(werteAus(Ausgabeform::Text).ausgabe);
    QVERIFY(text.contains(u"  0 kcal\n"_s));
    QVERIFY(text.contains(u"\n  Ohne Energiebedarf (--energy) zählen "_s));
    const QJsonObject gesagt = objekt(werteAus(Ausgabeform::Json));
    QVERIFY(gesagt[u"plan"][u"energy_need"].isNull());
    const QJsonValue fett = gesagt[u"nutrients"][u"fat"];
    for (const QString &feld : {u"reference"_s, u"percent"_s, u"verdict"_s, u"bar"_s, u"left"_s}) {
        QVERIFY(fett.toObject().contains(feld));
        QVERIFY(fett[feld].isNull());
    }
    QCOMPARE(objekt(werteAus(Ausgabeform::Json, 2000))[u"plan"][u"energy_need"].toInt(), 2000);
}

void TestPlanbefehl::anEmptyPlan()
{
    schreibePlan({});
    const Antwort antwort = werteAus(Ausgabeform::Json, 2000);
    QCOMPARE(antwort.ausgang, 0);
    const QJsonObject gesagt = objekt(antwort);
    QVERIFY(gesagt[u"rows"].isArray());
    QVERIFY(gesagt[u"rows"].toArray().isEmpty());
    QCOMPARE(gesagt[u"plan"][u"points"].toInt(), 0);
    QCOMPARE(gesagt[u"plan"][u"face"].toString(), u"cry"_s);
    QVERIFY(QString::fromUtf8(werteAus(Ausgabeform::Text).ausgabe)
                .endsWith(u"  Der Plan ist leer, 0 von 21 Punkten\n"_s));
}

void TestPlanbefehl::foodsOfAPlan()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s), speise(u"Brot"_s)});
    schreibeRoh(u"Umbenannt.csv"_s, "Toast;Brot\nSemmel;Kaiserbrot\nMüsli;Brot\n");
    schreibePlan({{u"Brot"_s, 100},
                  {u"=Müsli"_s, 0},
                  {u"Müsli"_s, 50.7F},
                  {u"Toast"_s, 1},
                  {u"Semmel"_s, 2}});
    const Antwort antwort = werteAus(Ausgabeform::Csv);
    const QStringList zeilen =
        QString::fromUtf8(antwort.ausgabe).split(u'\n').filter(u"rows,"_s).mid(1);
    QCOMPARE(zeilen, (QStringList{u"rows,'=Müsli,,0,false,false,,,,,,,,,,,,,"_s,
                                  u"rows,Brot,,100,true,false,,,,,,,,,,,,,"_s,
                                  u"rows,Müsli,,50,true,true,,,,,,,,,,,,,"_s,
                                  u"rows,Semmel,,2,false,false,,,,,,,,,,,,,"_s,
                                  u"rows,Toast,,1,false,false,Brot,,,,,,,,,,,,"_s}));
    QCOMPARE(antwort.ausgabe.left(antwort.ausgabe.indexOf('\n')),
             "section,item,value,grams,known,own,renamed_to,unit,reference,percent,verdict,bar,"
             "point,column_sum,left,suitable,neutral,unsuitable,leading");
}

void TestPlanbefehl::aPlanThatCannotBeRead_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QString>("satz");
    QTest::newRow("no file") << u"fehlt.daten"_s << u"Die Datei „%1“ gibt es nicht."_s;
    QTest::newRow("a folder")
        << u"Eigenes"_s
        << u"Die Datei „%1“ lässt sich nicht lesen (it is a folder or a device, not a file)."_s;
    QTest::newRow("a pipe")
        << u"rohr"_s
        << u"Die Datei „%1“ lässt sich nicht lesen (it is a folder or a device, not a file)."_s;
    QTest::newRow("a picture") << u"bild.daten"_s
                               << u"Die Datei „%1“ ist beschädigt oder keine von Mahlberg (Byte"_s;
    QTest::newRow("an empty file")
        << u"leer.daten"_s << u"Die Datei „%1“ ist beschädigt oder keine von Mahlberg (Byte"_s;
    QTest::newRow("foods") << u"eintopf.daten"_s
                           << u"Die Datei „%1“ enthält Lebensmittel und keinen Plan."_s;
}

void TestPlanbefehl::aPlanThatCannotBeRead()
{
    QFETCH(QString, datei);
    QFETCH(QString, satz);
    schreibeRoh(u"bild.daten"_s, "\x89PNG");
    schreibeRoh(u"leer.daten"_s, {});
    schreibe(u"eintopf.daten"_s,
             {speise(u"Brot"_s, {{Naehrwert::kal, 250}, {Naehrwert::vitc, 1}})});
    QVERIFY(mkfifo(QFile::encodeName(pfad(u"rohr"_s)).constData(), 0600) == 0);
    const Antwort antwort = werteAus(Ausgabeform::Json, 0, datei);
    QCOMPARE(antwort.ausgang, 1);
    QVERIFY2(antwort.meldung.startsWith(satz.arg(pfad(datei))), qPrintable(antwort.meldung));
    QVERIFY(antwort.ausgabe.isEmpty());
}

/// What needs none of them works as ever.
void TestPlanbefehl::ownFoodsThatCannotBeRead()
{
    schreibeRoh(u"Eigenes/MahlbergCustomnutr.daten"_s, "?");
    const QString grund = u"Die Datei „%1“ ist beschädigt oder keine von Mahlberg"_s.arg(
        pfad(u"Eigenes/MahlbergCustomnutr.daten"_s));
    QCOMPARE(schlageNach(u"Brot"_s).ausgang, 0);
    const Antwort unbekannt = schlageNach(u"Müsli"_s);
    QCOMPARE(unbekannt.ausgang, 1);
    QVERIFY2(unbekannt.meldung.contains(grund), qPrintable(unbekannt.meldung));

    schreibePlan({{u"Brot"_s, 100}});
    QCOMPARE(werteAus(Ausgabeform::Json).ausgang, 0);
    schreibePlan({{u"Brot"_s, 100}, {u"Müsli"_s, 100}});
    const Antwort lueckig = werteAus(Ausgabeform::Json);
    QCOMPARE(lueckig.ausgang, 1);
    QVERIFY(lueckig.ausgabe.isEmpty());
    QVERIFY2(lueckig.meldung.startsWith(grund), qPrintable(lueckig.meldung));
}

QTEST_GUILESS_MAIN(TestPlanbefehl)
#include "TestPlanbefehl.moc"
