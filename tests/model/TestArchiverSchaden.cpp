#include "Archivbau.h"
#include "Archiver.h"

#include <QTest>

using namespace Archivbau;

/// Bytes that are no store of foods: each is told from a good file, none brings the program down.
class TestArchiverSchaden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damageIsFoundWhereItBegins_data();
    void damageIsFoundWhereItBegins();
    void theBeginningIsChecked_data();
    void theBeginningIsChecked();
    void theReasonIsGiven_data();
    void theReasonIsGiven();
    void deepNestingEndsAtOnce_data();
    void deepNestingEndsAtOnce();
    void everyCutIsDamage_data();
    void everyCutIsDamage();
    void everyChangedByteIsDamageOrAStore_data();
    void everyChangedByteIsDamageOrAStore();

private:
    static void rootRows();
    static void classRows();
    static void entryRows();
    static void textRows();
    static void valueRows();
    static void markRows();
};

namespace {

const QByteArray einText = ersterText + "02 'Ei' 86 ";
const QByteArray einName = einText + erstesLebensmittel + "92 96 ";
const QByteArray werte16 = "84 01 'f' 00 " + QByteArray("9A 00 ").repeated(15);
const QByteArray texte = verzeichnisAnfang + "01 ";

/// A file that is good as far as `gut` goes and goes wrong with what follows.
void zeile(const char *name, const QByteArray &gut, const QByteArray &schlecht)
{
    QTest::newRow(name) << datei(gut) + bytes(schlecht) << datei(gut).size();
}

void pruefeSchaden(const QByteArray &roh, qsizetype position)
{
    const auto ergebnis = Archiver::read(roh);
    QVERIFY(!ergebnis.gelesen());
    QVERIFY(ergebnis.verzeichnis.isEmpty());
    QVERIFY(!ergebnis.grund.isEmpty());
    QVERIFY2(ergebnis.position == position, qPrintable(QStringLiteral("%1 instead of %2: %3")
                                                           .arg(ergebnis.position)
                                                           .arg(position)
                                                           .arg(ergebnis.grund)));
}

} // namespace

void TestArchiverSchaden::rootRows()
{
    const QByteArray klasse = "84 84 08 'NSObject' 00 85 ";
    zeile("nothing behind the signature", "", "");
    zeile("the root is no object", "", "84 01 'i' 05");
    zeile("the root's type is nil", "", "85");
    zeile("the root's type refers to nothing", "", "92 84");
    zeile("two objects in one group", "", "84 02 '@@' 84");
    zeile("a type without letters", "", "84 00 84");
    zeile("the root is nil", "84 01 '@' ", "85");
    zeile("the root is a reference", "84 01 '@' ", "92");
    zeile("the root is a plain object", "84 01 '@' ", "84 " + klasse + "86");
    zeile("the root is a text", "84 01 '@' ",
          "84 84 84 08 'NSString' 01 " + klasse + "84 01 '+' 02 'Ei' 86");
    zeile("the root is a food", "84 01 '@' ", "84 84 84 0A 'Datenmodul' 00 " + klasse);
    zeile("the root has no class", "84 01 '@' 84 ", "85");
}

void TestArchiverSchaden::classRows()
{
    const QByteArray objekt = "84 01 '@' 84 ";
    zeile("an unknown class", objekt + "84 ", "84 07 'NSArray' 00 85");
    zeile("a class name in lower case", objekt + "84 ", "84 0C 'nsdictionary' 00 85");
    zeile("a class name longer than the data", objekt + "84 84 7F ", "'NSDictionary'");
    zeile("a class without a name", objekt + "84 ", "85 00 85");
    zeile("a type code as class name", objekt + "84 ", "92 00 85");
    zeile("a class name that refers ahead", objekt + "84 ", "93 00 85");
    zeile("a dictionary of a later version", objekt + "84 84 0C 'NSDictionary' ", "01 85");
    zeile("a text of an earlier version", texte + "92 84 84 84 08 'NSString' ", "00 95 84");
    zeile("a food of a later version", texte + einText + "92 84 84 84 0A 'Datenmodul' ", "01 95");
    zeile("a root class of a later version",
          objekt + "84 84 0C 'NSDictionary' 00 84 84 08 'NSObject' ", "01 85");
    zeile("a class version that is nil", objekt + "84 84 0C 'NSDictionary' ", "85");
    zeile("a dictionary without a superclass", objekt + "84 84 0C 'NSDictionary' 00 ", "85");
    zeile("a root class below another",
          objekt + "84 84 0C 'NSDictionary' 00 84 84 08 'NSObject' 00 ",
          "84 84 08 'NSObject' 00 85");
    zeile("a class that is its own superclass", objekt + "84 84 0C 'NSDictionary' 00 ", "93");
    zeile("an object as superclass", objekt + "84 84 0C 'NSDictionary' 00 ", "92");
    zeile("a superclass that is still to come", objekt + "84 84 0C 'NSDictionary' 00 ", "94");
    zeile("a level of the chain left out", objekt + "84 84 13 'NSMutableDictionary' 00 ",
          "84 84 08 'NSObject' 00 85");
    zeile("a food below a dictionary", texte + einText + "92 84 84 84 0A 'Datenmodul' 00 ", "94");
    zeile("an object without a class", texte + "92 84 ", "85 00 00 00");
    zeile("an object whose class is an object", texte + "92 84 ", "92 00 00 00");
    zeile("an object whose class is itself", texte + "92 84 ", "96 00 00 00");
}

void TestArchiverSchaden::entryRows()
{
    zeile("a negative number of entries", verzeichnisAnfang, "FF 86");
    zeile("more entries than bytes", verzeichnisAnfang, "82 l:2147483647 86");
    zeile("one entry more than the bytes can hold", verzeichnisAnfang,
          "02 " + QByteArray("92 ").repeated(7));
    zeile("a fraction of an entry", verzeichnisAnfang, "83 f:1 86");
    zeile("an unsigned number of entries", verzeichnisAnfang.chopped(10), "84 01 'I' 00 86");
    zeile("a key that is nil", texte, "92 85 92 85");
    zeile("a key that is the dictionary", texte + "92 ", "92 92 85");
    zeile("a key that is a class", texte + "92 ", "93 92 85");
    zeile("a key that is still to come", texte + "92 ", "96 92 85");
    zeile("a key that is a plain object", texte + "92 ", "84 95 86 92 85");
    zeile("a key that is a dictionary", texte + "92 ", "84 93 96 00 86 92 85");
    zeile("a value that is nil", texte + einText + "92 ", "85 86 86 86");
    zeile("a value that is a text", texte + einText + "92 ", "96 86 86 86");
    zeile("a value that is a new text", texte + einText + "92 ", "84 97 98 00 86 86");
    zeile("a value that is the dictionary", texte + einText + "92 ", "92 86 86 86");
    zeile("a value that is a dictionary", texte + einText + "92 ", "84 93 96 00 86 86");
    zeile("a value before the number -1", texte + einText + "92 ", "81 s:-111 86 86");
    zeile("no end of the dictionary", texte + einName + nullwerte() + keineWertungen + "86 ", "");
    zeile("one entry too many", texte + einName + nullwerte() + keineWertungen + "86 ",
          "92 96 92 98 86");
    zeile("one entry too few",
          verzeichnisAnfang + "02 " + einName + nullwerte() + keineWertungen + "86 ", "86");
}

void TestArchiverSchaden::textRows()
{
    zeile("a text longer than the data", texte + ersterText + "7F ", "'Ei' 86");
    zeile("a text of 64 KB in a small file", texte + ersterText + "81 s:65535 ", "'Ei' 86");
    zeile("a text of 4 GB in a small file", texte + ersterText + "82 l:4294967295 ", "'Ei' 86");
    zeile("a text whose length is nil", texte + ersterText, "85 86");
    zeile("a text whose length is a fraction", texte + ersterText, "83 f:2 'Ei' 86");
    zeile("a text of the wrong type", texte + "92 84 84 84 08 'NSString' 01 95 ", "84 01 '*' 02");
    zeile("a text without an end", texte + ersterText + "02 'Ei' ", "92 84");
    zeile("two texts in one object", texte + ersterText + "02 'Ei' ", "98 02 'Ei' 86");
    zeile("a text without content", texte + "92 84 84 84 08 'NSString' 01 95 ", "86");
    zeile("UTF-8: a continuation alone", texte + ersterText + "02 ", "80 41 86");
    zeile("UTF-8: cut short", texte + ersterText + "02 ", "41 C3 86");
    zeile("UTF-8: cut short in the middle", texte + ersterText + "03 ", "E2 82 41 86");
    zeile("UTF-8: longer than needed", texte + ersterText + "02 ", "C0 80 86");
    zeile("UTF-8: half of a pair", texte + ersterText + "03 ", "ED A0 80 86");
    zeile("UTF-8: beyond the last plane", texte + ersterText + "04 ", "F4 90 80 80 86");
    zeile("UTF-8: an old encoding's umlaut", texte + ersterText + "03 ", "4B E4 73 86");
    zeile("UTF-8: behind a byte order mark", texte + ersterText + "04 ", "EF BB BF FF 86");
}

void TestArchiverSchaden::valueRows()
{
    const QByteArray offen = einText + erstesLebensmittel;
    zeile("a name that is the food itself", texte + offen + "92 ", "98 84 01 'f' 00");
    zeile("a name that is a class", texte + offen + "92 ", "97 84 01 'f' 00");
    zeile("a name that is a food", texte + offen + "92 ", "84 99 92 96");
    zeile("no name", texte + offen, "84 01 'f' 00");
    zeile("a value that is nil too", texte + einName + "84 01 'f' ", "85 9A 00");
    zeile("a value cut short", texte + einName + "84 01 'f' 83 ", "00 00 C0");
    zeile("a value of double precision", texte + einName, "84 01 'd' 00");
    zeile("seventeen values in one group", texte + einName, "84 05 '[17f]' 00");
    zeile("sixteen values", texte + einName + werte16, keineWertungen + "86 86");
    zeile("eighteen values", texte + einName + nullwerte(), "9A 00 " + keineWertungen + "86 86");
    zeile("three ratings", texte + einName + nullwerte() + "92 85 92 85 92 85 ", "86 86 86 86");
    zeile("five ratings", texte + einName + nullwerte() + keineWertungen, "92 85 86 86");
    zeile("a rating that is a food", texte + einName + nullwerte() + "92 ", "98 92 85 86");
    zeile("a rating that is still to come", texte + einName + nullwerte() + "92 ", "9A 92 85 86");
}

void TestArchiverSchaden::markRows()
{
    for (const char *marke : {"80", "83", "86", "87", "91"}) {
        const auto name = [marke](const char *ort) {
            return QByteArray(marke) + " as " + ort;
        };
        zeile(name("type").constData(), texte, marke + QByteArray(" 00 00 00"));
        zeile(name("object").constData(), texte + "92 ", marke + QByteArray(" 00 00 00 00"));
        zeile(name("class").constData(), texte + "92 84 ", marke + QByteArray(" 00 00"));
        zeile(name("length").constData(), texte + ersterText, marke + QByteArray(" 'Ei' 86"));
        zeile(name("number").constData(), verzeichnisAnfang, marke + QByteArray(" 00 00"));
    }
    for (const char *marke : {"80", "84", "86", "87", "91"}) {
        zeile(QByteArray(marke + QByteArray(" as value")).constData(),
              texte + einName + "84 01 'f' ", marke);
    }
}

void TestArchiverSchaden::damageIsFoundWhereItBegins_data()
{
    QTest::addColumn<QByteArray>("roh");
    QTest::addColumn<qsizetype>("position");
    rootRows();
    classRows();
    entryRows();
    textRows();
    valueRows();
    markRows();
}

void TestArchiverSchaden::damageIsFoundWhereItBegins()
{
    QFETCH(QByteArray, roh);
    QFETCH(qsizetype, position);
    pruefeSchaden(roh, position);
}

void TestArchiverSchaden::theBeginningIsChecked_data()
{
    QTest::addColumn<QByteArray>("roh");
    QTest::addColumn<qsizetype>("position");
    const auto row = [](const char *name, const QByteArray &roh, qsizetype position) {
        QTest::newRow(name) << roh << position;
    };
    const QByteArray rest = bytes("81 s:1000 " + einEintrag());
    row("no bytes at all", {}, 0);
    row("a text file", "Lebensmittel;kcal\n", 0);
    row("another stream version", bytes("05 0B 'streamtyped'") + rest, 0);
    row("a shorter signature", bytes("04 0A 'streamtype'") + rest, 1);
    row("another signature", bytes("04 0B 'streamTyped'") + rest, 1);
    row("a property list", "bplist00", 0);
    row("the signature cut", bytes("04 0B 'stream'"), 2);
    row("no system version", bytes("04 0B 'streamtyped'"), 13);
    row("a system version that is nil", bytes("04 0B 'streamtyped' 85 ") + rest, 13);
    row("a system version cut", bytes("04 0B 'streamtyped' 81 E8"), 14);
}

void TestArchiverSchaden::theBeginningIsChecked()
{
    QFETCH(QByteArray, roh);
    QFETCH(qsizetype, position);
    pruefeSchaden(roh, position);
}

void TestArchiverSchaden::theReasonIsGiven_data()
{
    QTest::addColumn<QByteArray>("roh");
    QTest::addColumn<QString>("grund");
    QTest::newRow("too short") << beispielBytes().chopped(1)
                               << QStringLiteral("the data end too early");
    QTest::newRow("a class that is not known")
        << datei("84 01 '@' 84 84 84 07 'NSArray' 00 85")
        << QStringLiteral("the class \"NSArray\" is not known here");
    QTest::newRow("another version")
        << datei("84 01 '@' 84 84 84 0C 'NSDictionary' 07 85")
        << QStringLiteral("version 7 of the class \"NSDictionary\" is not known here");
    QTest::newRow("another object")
        << datei("84 01 '@' 84 84 84 08 'NSObject' 00 85 86")
        << QStringLiteral("a dictionary should stand here, not NSObject");
    QTest::newRow("nothing") << datei("84 01 '@' 85")
                             << QStringLiteral("a dictionary should stand here, not nothing");
    QTest::newRow("a name with a percent sign")
        << datei("84 01 '@' 84 84 84 04 '%1%2' 00 85")
        << QStringLiteral("the class \"%1%2\" is not known here");
    QTest::newRow("a name that is no text")
        << datei("84 01 '@' 84 84 84 05 'NS' 1B 00 E4 00 85")
        << QStringLiteral("the class \"NS???\" is not known here");
    QTest::newRow("a long name")
        << datei("84 01 '@' 84 84 84 7F") + QByteArray(127, 'N')
        << QStringLiteral("the class \"%1\" is not known here").arg(QString(40, QLatin1Char('N')));
    QTest::newRow("another type") << datei("84 02 '@@' 84")
                                  << QStringLiteral("a value of type \"@\" should stand here, "
                                                    "not of \"@@\"");
    QTest::newRow("a text longer than the data")
        << datei(texte + ersterText + "7F 'Ei'")
        << QStringLiteral("127 bytes should follow, but the data end after 2");
    QTest::newRow("too many entries")
        << datei(verzeichnisAnfang + "7F 86") << QStringLiteral("127 entries can't follow");
    QTest::newRow("a mark") << datei(verzeichnisAnfang + "85")
                            << QStringLiteral("a number should stand here, not the mark 85");
    QTest::newRow("a reference ahead")
        << datei(texte + "92 96 00 00")
        << QStringLiteral("number 4 is referred to, but nothing had it yet");
    QTest::newRow("a broken text")
        << datei(texte + ersterText + "01 FF 86") << QStringLiteral("a text is not valid UTF-8");
}

void TestArchiverSchaden::theReasonIsGiven()
{
    QFETCH(QByteArray, roh);
    QFETCH(QString, grund);
    QCOMPARE(Archiver::read(roh).grund, grund);
}

void TestArchiverSchaden::deepNestingEndsAtOnce_data()
{
    QTest::addColumn<QByteArray>("glied");
    QTest::newRow("classes in classes") << QByteArray("84 84 08 'NSObject' 00");
    QTest::newRow("dictionaries as keys") << QByteArray("84 93 96 01 92");
    QTest::newRow("foods as names") << QByteArray("84 84 84 0A 'Datenmodul' 00 95 92");
    QTest::newRow("new objects") << QByteArray("84");
    QTest::newRow("texts in texts") << QByteArray("84 84 84 08 'NSString' 01 95 92");
}

void TestArchiverSchaden::deepNestingEndsAtOnce()
{
    QFETCH(QByteArray, glied);
    const QByteArray tief = bytes(glied).repeated(1'000'000);
    for (const QByteArray &davor :
         {QByteArray("84 01 '@' 84"), texte + "92", texte + einText + "92",
          texte + einText + erstesLebensmittel + "92"}) {
        const auto ergebnis = Archiver::read(datei(davor) + tief);
        QVERIFY(!ergebnis.gelesen());
        QVERIFY2(ergebnis.position < 300, qPrintable(ergebnis.grund));
    }
}

void TestArchiverSchaden::everyCutIsDamage_data()
{
    QTest::addColumn<QByteArray>("ganz");
    QTest::newRow("little-endian") << beispiel(Folge::LittleEndian);
    QTest::newRow("big-endian") << beispiel(Folge::BigEndian);
}

void TestArchiverSchaden::everyCutIsDamage()
{
    QFETCH(QByteArray, ganz);
    for (qsizetype laenge = 0; laenge < ganz.size(); ++laenge) {
        // A copy of its own, so that a look beyond its end is noticed.
        const QByteArray stueck(ganz.constData(), laenge);
        const auto ergebnis = Archiver::read(stueck);
        QVERIFY2(!ergebnis.gelesen(), qPrintable(QString::number(laenge)));
        QVERIFY(ergebnis.position <= laenge);
        QVERIFY(!ergebnis.grund.isEmpty());
    }
}

void TestArchiverSchaden::everyChangedByteIsDamageOrAStore_data()
{
    everyCutIsDamage_data();
}

void TestArchiverSchaden::everyChangedByteIsDamageOrAStore()
{
    QFETCH(QByteArray, ganz);
    int gelesen = 0;
    for (qsizetype ort = 0; ort < ganz.size(); ++ort) {
        QByteArray anders(ganz.constData(), ganz.size());
        for (int wert = 0; wert < 256; ++wert) {
            anders[ort] = static_cast<char>(wert);
            const auto ergebnis = Archiver::read(anders);
            if (!ergebnis.gelesen()) {
                QVERIFY(ergebnis.position <= anders.size() && ergebnis.verzeichnis.isEmpty());
                continue;
            }
            ++gelesen;
            const auto wieder = Archiver::read(Archiver::write(ergebnis.verzeichnis));
            QVERIFY2(wieder.gelesen() && gleich(wieder.verzeichnis, ergebnis.verzeichnis),
                     qPrintable(QStringLiteral("byte %1 as %2").arg(ort).arg(wert)));
        }
    }
    // Each of the 188 bytes comes by once as it is; letters and values may differ and still be
    // good.
    QVERIFY(gelesen > 188);
    QVERIFY(gelesen < 188 * 256 / 4);
}

QTEST_GUILESS_MAIN(TestArchiverSchaden)
#include "TestArchiverSchaden.moc"
