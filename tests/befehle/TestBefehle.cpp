#include "Befehlsprobe.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

/// A food that is looked up, and what both commands have in common.
class TestBefehle : public QObject, protected Befehlsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { richteEin(); }
    void theNameOfAFood_data();
    void theNameOfAFood();
    void anOwnFoodOfTheSameNameIsTold();
    void severalFoodsOfOneName();
    void noSuchFood_data();
    void noSuchFood();
    void noOwnFoodsAreNoFault();
    void aFoodAsText();
    void numbersInEnglish();
    void oddValuesOfAFood();
    void lookingChangesNothing();
    void theDataFolder_data();
    void theDataFolder();
    void whatIsNoCall();
};

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
    QTest::newRow("three letters are enough")
        << u"Brozz"_s << false << anfang.arg(u"Brozz"_s) + u" Ähnlich heißen: „Brot“."_s;
    QTest::newRow("two are in too many names") << u"Brz"_s << false << anfang.arg(u"Brz"_s);
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

void TestBefehle::noOwnFoodsAreNoFault()
{
    QCOMPARE(schlageNach(u"Xylophon"_s).meldung, u"Ein Lebensmittel „Xylophon“ gibt es nicht."_s);
    schreibePlan({{u"Weg"_s, 100}});
    QCOMPARE(werteAus(Ausgabeform::Json).ausgang, 0);
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
