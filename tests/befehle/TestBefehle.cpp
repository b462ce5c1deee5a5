#include "Archivdatei.h"
#include "Befehle.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class TestBefehle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theNameOfAFood_data();
    void theNameOfAFood();
    void anOwnFoodOfTheSameNameIsTold();
    void severalFoodsOfOneName();
    void noSuchFood_data();
    void noSuchFood();
    void aFoodAsText();
    void numbersInEnglish();
    void oddValuesOfAFood();
    void aPlanAsText();
    void aPlanWithoutAnEnergyNeed();
    void anEmptyPlan();
    void foodsOfAPlan();
    void aPlanThatCannotBeRead_data();
    void aPlanThatCannotBeRead();
    void ownFoodsThatCannotBeRead();
    void lookingChangesNothing();
    void theDataFolder_data();
    void theDataFolder();
    void whatIsNoCall();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    void schreibe(const QString &name, const QList<Datenmodul> &lebensmittel) const;
    void schreibePlan(const QList<std::pair<QString, float>> &zeilen) const;
    void schreibeRoh(const QString &name, const QByteArray &bytes) const;
    Antwort schlageNach(const QString &name, float gramm = 100, bool eigenes = false,
                        Ausgabeform form = Ausgabeform::Json) const;
    Antwort werteAus(Ausgabeform form, std::int32_t energie = 0,
                     const QString &datei = u"Plan.daten"_s) const;
    Antwort frage(Aufruf aufruf) const;

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

using Werte = QList<std::pair<Naehrwert, float>>;

Datenmodul speise(const QString &name, const Werte &werte = {}, const QStringList &urteile = {})
{
    Datenmodul neu;
    neu.setName(name);
    for (const auto &[wert, zahl] : werte) {
        neu.setWert(wert, zahl);
    }
    for (qsizetype i = 0; i < urteile.size(); ++i) {
        neu.setWertung(static_cast<Wertung>(i), urteile[i]);
    }
    return neu;
}

QJsonObject objekt(const Antwort &antwort)
{
    return QJsonDocument::fromJson(antwort.ausgabe).object();
}

} // namespace

void TestBefehle::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
    QVERIFY(QDir().mkpath(pfad(u"Eigenes"_s)));
    schreibe(u"Tabelle.daten"_s, {speise(u"Äpfel, roh"_s, {{Naehrwert::kal, 52}}),
                                  speise(u"Apfelmus"_s, {{Naehrwert::kal, 62}}),
                                  speise(u"Brei"_s, {{Naehrwert::kal, 80}}),
                                  speise(u"Brot"_s, {{Naehrwert::kal, 250}})});
}

void TestBefehle::schreibe(const QString &name, const QList<Datenmodul> &lebensmittel) const
{
    Lebensmittelverzeichnis alle;
    for (const Datenmodul &eines : lebensmittel) {
        alle.insert(eines.name(), eines);
    }
    QVERIFY(Archivdatei::schreiben(pfad(name), alle));
}

void TestBefehle::schreibePlan(const QList<std::pair<QString, float>> &zeilen) const
{
    QList<Datenmodul> traeger;
    for (const auto &[name, gramm] : zeilen) {
        traeger << speise(name, {{Naehrwert::kal, gramm}});
    }
    schreibe(u"Plan.daten"_s, traeger);
}

void TestBefehle::schreibeRoh(const QString &name, const QByteArray &bytes) const
{
    QFile datei(pfad(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

Antwort TestBefehle::frage(Aufruf aufruf) const
{
    if (aufruf.auftrag.datenordner.isNull()) {
        aufruf.auftrag.datenordner = pfad(u"Eigenes"_s);
    }
    return antworte(aufruf, {.eingebauteTabelle = pfad(u"Tabelle.daten"_s),
                             .englischeNamen = {},
                             .namenswechsel = pfad(u"Umbenannt.csv"_s)});
}

Antwort TestBefehle::schlageNach(const QString &name, float gramm, bool eigenes,
                                 Ausgabeform form) const
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Nachschlagen;
    aufruf.auftrag.name = name;
    aufruf.auftrag.gramm = gramm;
    aufruf.auftrag.eigenes = eigenes;
    aufruf.auftrag.form = form;
    return frage(aufruf);
}

Antwort TestBefehle::werteAus(Ausgabeform form, std::int32_t energie, const QString &datei) const
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Auswerten;
    aufruf.auftrag.name = pfad(datei);
    aufruf.auftrag.form = form;
    aufruf.auftrag.energiebedarf = energie;
    return frage(aufruf);
}

void TestBefehle::theNameOfAFood_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("nurEigene");
    QTest::addColumn<QString>("gefunden");
    QTest::addColumn<bool>("eigenes");
    QTest::newRow("a built-in one") << u"Brot"_s << false << u"Brot"_s << false;
    QTest::newRow("in other letters") << u"bROT"_s << false << u"Brot"_s << false;
    QTest::newRow("with an umlaut") << u"äPFEL, roh"_s << false << u"Äpfel, roh"_s << false;
    QTest::newRow("an own one") << u"Müsli"_s << false << u"Müsli"_s << true;
    QTest::newRow("an own one in other letters") << u"MÜSLI"_s << false << u"Müsli"_s << true;
    QTest::newRow("as it is typed before other letters") << u"brei"_s << false << u"brei"_s << true;
    QTest::newRow("built in before own") << u"Brei"_s << false << u"Brei"_s << false;
    QTest::newRow("built in before own, in other letters")
        << u"BREI"_s << false << u"Brei"_s << false;
    QTest::newRow("own ones only") << u"BREI"_s << true << u"brei"_s << true;
}

void TestBefehle::theNameOfAFood()
{
    QFETCH(QString, name);
    QFETCH(bool, nurEigene);
    QFETCH(QString, gefunden);
    QFETCH(bool, eigenes);
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s), speise(u"brei"_s)});
    const Antwort antwort = schlageNach(name, 100, nurEigene);
    QCOMPARE(antwort.ausgang, 0);
    const QJsonObject food = objekt(antwort)[u"food"].toObject();
    QCOMPARE(food[u"name"].toString(), gefunden);
    QCOMPARE(food[u"own"].toBool(), eigenes);
}

void TestBefehle::anOwnFoodOfTheSameNameIsTold()
{
    QVERIFY(schlageNach(u"Brei"_s).meldung.isNull());
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"brei"_s)});
    QCOMPARE(schlageNach(u"Brei"_s).meldung,
             u"Auch ein eigenes Lebensmittel heißt „Brei“; „--own“ zeigt dieses."_s);
    QVERIFY(schlageNach(u"brei"_s).meldung.isNull());
    QVERIFY(schlageNach(u"Brei"_s, 100, true).meldung.isNull());
    QVERIFY(schlageNach(u"Brot"_s).meldung.isNull());
}

void TestBefehle::severalFoodsOfOneName()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s), speise(u"müsli"_s)});
    const Antwort antwort = schlageNach(u"MÜSLI"_s);
    QCOMPARE(antwort.ausgang, 1);
    QCOMPARE(antwort.meldung, u"Mehrere Lebensmittel heißen so: „Müsli“, „müsli“."_s);
    QVERIFY(antwort.ausgabe.isEmpty());
    QCOMPARE(schlageNach(u"müsli"_s).ausgang, 0);
}

void TestBefehle::noSuchFood_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("nurEigene");
    QTest::addColumn<QString>("satz");
    const QString anfang = u"Ein Lebensmittel „%1“ gibt es nicht."_s;
    QTest::newRow("part of a name")
        << u"apfel"_s << false << anfang.arg(u"apfel"_s) + u" Ähnlich heißen: „Apfelmus“."_s;
    QTest::newRow("a letter too many")
        << u"Brott"_s << false << anfang.arg(u"Brott"_s) + u" Ähnlich heißen: „Brot“."_s;
    QTest::newRow("own ones come first, and no more than five")
        << u"Nuss"_s << false
        << anfang.arg(u"Nuss"_s) +
               u" Ähnlich heißen: „Nuss 1“, „Nuss 2“, „Nuss 3“, „Nuss 4“, „Nuss 5“."_s;
    QTest::newRow("nothing like it") << u"Xylophon"_s << false << anfang.arg(u"Xylophon"_s);
    QTest::newRow("no name at all") << u""_s << false << anfang.arg(u""_s);
    QTest::newRow("a built-in one among own ones only")
        << u"Brot"_s << true << anfang.arg(u"Brot"_s);
    QTest::newRow("what a terminal would obey")
        << u"\x1b[2J"_s << false << anfang.arg(u"\\x1b[2J"_s);
}

void TestBefehle::noSuchFood()
{
    QFETCH(QString, name);
    QFETCH(bool, nurEigene);
    QFETCH(QString, satz);
    QList<Datenmodul> nuesse;
    for (int i = 1; i <= 7; ++i) {
        nuesse << speise(u"Nuss %1"_s.arg(i));
    }
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, nuesse);
    const Antwort antwort = schlageNach(name, 100, nurEigene);
    QCOMPARE(antwort.ausgang, 1);
    QCOMPARE(antwort.meldung, satz);
    QVERIFY(antwort.ausgabe.isEmpty());
}

void TestBefehle::aFoodAsText()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s,
                                                            {{Naehrwert::kal, 400},
                                                             {Naehrwert::protein, 10},
                                                             {Naehrwert::fett, 10},
                                                             {Naehrwert::kh, 50},
                                                             {Naehrwert::bs, 12},
                                                             {Naehrwert::na, 10},
                                                             {Naehrwert::ka, 200},
                                                             {Naehrwert::ca, 100},
                                                             {Naehrwert::ph, 140},
                                                             {Naehrwert::ma, 70},
                                                             {Naehrwert::fe, 6},
                                                             {Naehrwert::b1, 0.012F},
                                                             {Naehrwert::vitc, 30}},
                                                            {u"+"_s, u"0"_s, u"-"_s, u"wenig"_s})});
    const Antwort antwort = schlageNach(u"Müsli"_s, 50, false, Ausgabeform::Text);
    QCOMPARE(antwort.ausgang, 0);
    QCOMPARE(QString::fromUtf8(antwort.ausgabe), uR"(Müsli, 50 g (eigenes Lebensmittel)

Inhaltsstoffe, Anteil am Tagesbedarf
  Energie               200 kcal
  Energie in Kilojoule    836 kJ
  Protein                  5,0 g
  Fett                     5,0 g
  Kohlenhydrate           25,0 g
  Ballaststoffe            6,0 g  20 %  im Ziel
  Cholesterin               0 mg
  Natrium                 5,0 mg   0 %  verfehlt
  Kalium                  100 mg   5 %  verfehlt
  Calcium                  50 mg   5 %  verfehlt
  Phosphat                 70 mg   5 %  verfehlt
  Magnesium                35 mg  10 %  verfehlt
  Eisen                   3,0 mg  25 %  im Ziel
  Vitamin A                 0 µg   0 %  verfehlt
  Vitamin B1            0,006 mg   0 %  verfehlt
  Vitamin B2                0 mg   0 %  verfehlt
  Vitamin B6                0 mg   0 %  verfehlt
  Vitamin C                15 mg  15 %  im Ziel

Anteile an der Energie
  Protein        12 %
  Kohlenhydrate  61 %
  Fett           27 %

Gesamtbeurteilung: mittlere Deckung des Tagesbedarfs je 100 kcal, in %
  42, mittel

BE und Relationen
  Natrium zu Kalium        0,05  günstig
  Magnesium zu Calcium     0,70  ungünstig
  Broteinheiten          2,1 BE  günstig
  Kohlenhydrateinheiten  2,5 KE

Bewertungen
  Übergewicht         +      geeignet
  Diabetes            0      neutral
  Gicht               -      ungeeignet
  Herz und Kreislauf  wenig
)"_s);
}

void TestBefehle::numbersInEnglish()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Muesli"_s, {{Naehrwert::bs, 2.5F}})});
    const QString text =
        QString::fromUtf8(schlageNach(u"Muesli"_s, 12.5F, false, Ausgabeform::Text).ausgabe);
    QVERIFY(text.startsWith(u"Muesli, 12.5 g "_s));
    QVERIFY(text.contains(u" 0.3 g "_s));
    // What programs read is the same in every country.
    QCOMPARE(objekt(schlageNach(u"Muesli"_s, 12.5F))[u"nutrients"][u"fibre"][u"value"].toDouble(),
             0.3125);
}

/// A store can hold any number. None of them makes JSON invalid.
void TestBefehle::oddValuesOfAFood()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s,
             {speise(u"Riese"_s, {{Naehrwert::kal, 3e38F}, {Naehrwert::protein, -4}})});
    const QJsonObject gesagt = objekt(schlageNach(u"Riese"_s, 200));
    QCOMPARE(gesagt.size(), 7);
    QVERIFY(gesagt[u"nutrients"][u"energy"][u"value"].isNull());
    QVERIFY(gesagt[u"nutrients"][u"energy_kj"][u"value"].isNull());
    QCOMPARE(gesagt[u"nutrients"][u"protein"][u"value"].toDouble(), -8.0);
    QVERIFY(gesagt[u"relations"][u"sodium_potassium"][u"value"].isNull());
    QVERIFY(gesagt[u"relations"][u"sodium_potassium"][u"verdict"].isNull());
    QVERIFY(gesagt[u"ratings"][u"gout"][u"value"].isNull());
    QVERIFY(gesagt[u"ratings"][u"gout"][u"meaning"].isNull());
    QVERIFY(gesagt[u"judgement"][u"coverage_per_100_kcal"][u"value"].isNull());
    const QString text =
        QString::fromUtf8(schlageNach(u"Riese"_s, 200, false, Ausgabeform::Text).ausgabe);
    QVERIFY(text.contains(u" - kcal\n"_s));
    QVERIFY(text.contains(u" - kJ\n"_s));
    QVERIFY(text.contains(u"  keine Beurteilung möglich\n"_s));
}

void TestBefehle::aPlanAsText()
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

void TestBefehle::aPlanWithoutAnEnergyNeed()
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

void TestBefehle::anEmptyPlan()
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

void TestBefehle::foodsOfAPlan()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s), speise(u"Brot"_s)});
    schreibeRoh(u"Umbenannt.csv"_s, "Toast;Brot\nSemmel;Kaiserbrot\n");
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

void TestBefehle::aPlanThatCannotBeRead_data()
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

void TestBefehle::aPlanThatCannotBeRead()
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
void TestBefehle::ownFoodsThatCannotBeRead()
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

void TestBefehle::lookingChangesNothing()
{
    schreibe(u"Eigenes/MahlbergCustomnutr.daten"_s, {speise(u"Müsli"_s)});
    schreibePlan({{u"Müsli"_s, 100.7F}});
    const auto bytes = [this](const QString &name) {
        QFile datei(pfad(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("none");
    };
    const QByteArray plan = bytes(u"Plan.daten"_s);
    const QByteArray eigene = bytes(u"Eigenes/MahlbergCustomnutr.daten"_s);
    QCOMPARE(werteAus(Ausgabeform::Json).ausgang, 0);
    QCOMPARE(schlageNach(u"Müsli"_s).ausgang, 0);
    QCOMPARE(bytes(u"Plan.daten"_s), plan);
    QCOMPARE(bytes(u"Eigenes/MahlbergCustomnutr.daten"_s), eigene);
    QCOMPARE(
        QDir(pfad(u"Eigenes"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"MahlbergCustomnutr.daten"_s});
}

void TestBefehle::theDataFolder_data()
{
    QTest::addColumn<QString>("ordner");
    QTest::addColumn<bool>("geht");
    QTest::newRow("one that is there") << u"Eigenes"_s << true;
    QTest::newRow("one that is made") << u"neu/darin"_s << true;
    QTest::newRow("a file") << u"Tabelle.daten"_s << false;
    QTest::newRow("below a file") << u"Tabelle.daten/darin"_s << false;
}

void TestBefehle::theDataFolder()
{
    QFETCH(QString, ordner);
    QFETCH(bool, geht);
    Aufruf aufruf;
    aufruf.auftrag.datenordner = pfad(ordner);
    QCOMPARE(datenordnerVon(aufruf.auftrag).has_value(), geht);
    QCOMPARE(QFileInfo(pfad(ordner)).isDir(), geht);
    aufruf.auftrag.befehl = Befehl::Nachschlagen;
    aufruf.auftrag.name = u"Brot"_s;
    const Antwort antwort = frage(aufruf);
    QCOMPARE(antwort.ausgang, geht ? 0 : 2);
    QCOMPARE(
        antwort.meldung,
        geht
            ? QString()
            : u"Der Ordner „%1“ für „--data-dir“ ist keiner oder lässt sich nicht anlegen. Mehr sagt „mahlberg --help“."_s
                  .arg(pfad(ordner)));
}

void TestBefehle::whatIsNoCall()
{
    Aufruf aufruf;
    aufruf.fehler = {Fehlerart::BefehlUnbekannt, u"eat"_s};
    aufruf.auftrag.datenordner = pfad(u"nie"_s);
    const Antwort antwort = frage(aufruf);
    QCOMPARE(antwort.ausgang, 2);
    QVERIFY(antwort.ausgabe.isEmpty());
    QCOMPARE(antwort.meldung, u"Den Befehl „eat“ gibt es nicht. Mehr sagt „mahlberg --help“."_s);
    QVERIFY(!QFileInfo::exists(pfad(u"nie"_s)));
}

QTEST_GUILESS_MAIN(TestBefehle)
#include "TestBefehle.moc"
