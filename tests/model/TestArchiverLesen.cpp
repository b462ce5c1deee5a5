#include "Archivbau.h"
#include "Archiver.h"

#include <QTest>

#include <bit>
#include <limits>

using namespace Archivbau;
using Folge = Archivbau::Folge;
Q_DECLARE_METATYPE(Archivbau::Folge)

class TestArchiverLesen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theExampleIsRead_data();
    void theExampleIsRead();
    void dictionaryAndTextsOfEitherClass_data();
    void dictionaryAndTextsOfEitherClass();
    void valuesInEitherForm_data();
    void valuesInEitherForm();
    void texts_data();
    void texts();
    void lengthsAreUnsigned_data();
    void lengthsAreUnsigned();
    void absentTextsStayAbsent();
    void anEmptyDictionaryIsRead();
    void theSystemVersionIsFree_data();
    void theSystemVersionIsFree();
    void referencesInEveryForm_data();
    void referencesInEveryForm();
    void oneFoodUnderTwoNames();
    void theLaterOfTwoEntriesOfOneNameCounts();
    void theNameNeedNotBeTheKey();
    void bytesBehindTheEndAreCounted();
    void manyFoods_data();
    void manyFoods();
};

namespace {

/// A file with one food named "Ei" whose energy is written as described.
QByteArray mitEnergie(const QByteArray &wert, Folge folge)
{
    return datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                     "92 96 84 01 'f' " + wert + " " + QByteArray("9A 00 ").repeated(16) +
                     keineWertungen + "86 86",
                 folge);
}

/// A file with one food whose name and key are these bytes behind this length.
QByteArray mitText(const QByteArray &laenge, const QByteArray &text,
                   Folge folge = Folge::LittleEndian)
{
    return datei(verzeichnisAnfang + "01 " + ersterText + laenge, folge) + text +
           bytes("86 " + erstesLebensmittel + "92 96 " + nullwerte() + keineWertungen + "86 86");
}

void beideFolgen(const char *name, const QByteArray &wert, float zahl)
{
    QTest::addRow("%s, little-endian", name) << wert << Folge::LittleEndian << zahl;
    QTest::addRow("%s, big-endian", name) << wert << Folge::BigEndian << zahl;
}

} // namespace

void TestArchiverLesen::theExampleIsRead_data()
{
    QTest::addColumn<QByteArray>("datei");
    QTest::newRow("188 bytes, byte by byte") << beispielBytes();
    QTest::newRow("little-endian") << beispiel(Folge::LittleEndian);
    QTest::newRow("big-endian") << beispiel(Folge::BigEndian);
}

void TestArchiverLesen::theExampleIsRead()
{
    QFETCH(QByteArray, datei);
    QCOMPARE(datei.size(), 188);
    const auto ergebnis = Archiver::read(datei);
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), 1);
    QCOMPARE(ergebnis.eintraege, 1);
    QCOMPARE(ergebnis.rest, 0);
    const Datenmodul ei = ergebnis.verzeichnis.value(QStringLiteral("Ei"));
    QCOMPARE(ei.name(), QStringLiteral("Ei"));
    QCOMPARE(ei.kal(), 155.0F);
    QCOMPARE(ei.protein(), 12.6F);
    QCOMPARE(ei.fett(), 10.6F);
    QCOMPARE(ei.kh(), 0.0F);
    QCOMPARE(ei.vitc(), 0.0F);
    QCOMPARE(ei.joule, 0.0F);
    QCOMPARE(ei.uebergewicht(), QStringLiteral("0"));
    QCOMPARE(ei.diabetes(), QStringLiteral("+"));
    QCOMPARE(ei.gicht(), QStringLiteral("+"));
    QCOMPARE(ei.hkk(), QStringLiteral("-"));
}

void TestArchiverLesen::dictionaryAndTextsOfEitherClass_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    const QByteArray fest = "84 01 '@' 84 84 84 0C 'NSDictionary' 00 84 84 08 'NSObject' 00 85 "
                            "84 01 'i' 01 ";
    const QByteArray kette = "84 84 0F 'NSMutableString' 01 84 84 08 'NSString' 01 ";
    // Objects: 0 the dictionary, 1 and 2 its classes, 3 the text, 4 its class, 5 the food.
    QTest::newRow("immutable dictionary")
        << fest +
               "92 84 84 84 08 'NSString' 01 94 84 01 '+' 02 'Ei' 86 "
               "92 84 84 84 0A 'Datenmodul' 00 94 92 95 84 01 'f' 05 " +
               QByteArray("99 00 ").repeated(16) + keineWertungen + "86 86";
    // Objects: 4 the text, 5 and 6 its classes, 7 the food. Strings: 7 "+", 8 the food's class.
    QTest::newRow("mutable texts")
        << verzeichnisAnfang + "01 92 84 " + kette + "95 84 01 '+' 02 'Ei' 86 " +
               erstesLebensmittel + "92 96 84 01 'f' 05 " + QByteArray("9B 00 ").repeated(16) +
               keineWertungen + "86 86";
    // The name is a text of its own here, of the class above the one of the key.
    QTest::newRow("a mutable key and an immutable name")
        << verzeichnisAnfang + "01 92 84 " + kette + "95 84 01 '+' 02 'Ei' 86 " +
               erstesLebensmittel + "92 84 98 99 02 'Ei' 86 84 01 'f' 05 " +
               QByteArray("9B 00 ").repeated(16) + keineWertungen + "86 86";
    // A class spelled out again where a reference would do takes numbers of its own.
    QTest::newRow("types and classes spelled out twice")
        << verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 84 01 '@' 84 84 84 0A " +
               "'Datenmodul' 00 84 84 08 'NSObject' 00 85 84 01 '@' 96 84 01 'f' 05 " +
               QByteArray("84 01 'f' 00 ").repeated(16) + keineWertungen + "86 86";
}

void TestArchiverLesen::dictionaryAndTextsOfEitherClass()
{
    QFETCH(QByteArray, inhalt);
    const auto ergebnis = Archiver::read(datei(inhalt));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), 1);
    const Datenmodul ei = ergebnis.verzeichnis.value(QStringLiteral("Ei"));
    QCOMPARE(ei.name(), QStringLiteral("Ei"));
    QCOMPARE(ei.kal(), 5.0F);
}

void TestArchiverLesen::valuesInEitherForm_data()
{
    QTest::addColumn<QByteArray>("wert");
    QTest::addColumn<Folge>("folge");
    QTest::addColumn<float>("zahl");
    beideFolgen("one byte, smallest", "92", -110.0F);
    beideFolgen("one byte, largest", "7F", 127.0F);
    beideFolgen("one byte, minus one", "FF", -1.0F);
    beideFolgen("two bytes, just too large for one", "81 s:128", 128.0F);
    beideFolgen("two bytes, just too small for one", "81 s:-111", -111.0F);
    beideFolgen("two bytes, smallest", "81 s:-32768", -32768.0F);
    beideFolgen("two bytes where one would do", "81 s:5", 5.0F);
    beideFolgen("four bytes", "82 l:70000", 70000.0F);
    beideFolgen("four bytes, smallest", "82 l:-2147483648", -2147483648.0F);
    beideFolgen("four bytes, more digits than a float holds", "82 l:16777217", 16777216.0F);
    beideFolgen("a fraction", "83 f:12.6", 12.6F);
    beideFolgen("a whole number as a float", "83 f:155", 155.0F);
    beideFolgen("negative zero", "83 f:-0", -0.0F);
    beideFolgen("zero as a float", "83 f:0", 0.0F);
    beideFolgen("infinite", "83 x:7F800000", std::numeric_limits<float>::infinity());
    beideFolgen("smallest above zero", "83 x:00000001", std::numeric_limits<float>::denorm_min());
    beideFolgen("not a number", "83 x:7FC12345", std::bit_cast<float>(0x7FC12345U));
    beideFolgen("a signalling not-a-number", "83 x:FF800001", std::bit_cast<float>(0xFF800001U));
}

void TestArchiverLesen::valuesInEitherForm()
{
    QFETCH(QByteArray, wert);
    QFETCH(Folge, folge);
    QFETCH(float, zahl);
    const auto ergebnis = Archiver::read(mitEnergie(wert, folge));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    const float gelesen = ergebnis.verzeichnis.first().kal();
    QCOMPARE(std::bit_cast<quint32>(gelesen), std::bit_cast<quint32>(zahl));
}

void TestArchiverLesen::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("umlauts") << QStringLiteral("Käsespätzle, süß");
    QTest::newRow("Greek") << QStringLiteral("Μουσακάς");
    QTest::newRow("Chinese") << QStringLiteral("豆腐");
    QTest::newRow("Arabic") << QStringLiteral("حمص");
    QTest::newRow("beyond the first plane") << QStringLiteral("🥚 Ei");
    QTest::newRow("letter and combining mark") << QStringLiteral("a\u0308");
    QTest::newRow("begins with a byte order mark") << QStringLiteral("\uFEFFEi");
    QTest::newRow("a byte order mark alone") << QStringLiteral("\uFEFF");
    QTest::newRow("two byte order marks") << QStringLiteral("\uFEFF\uFEFFEi");
    QTest::newRow("a zero inside") << QString::fromUtf16(u"E\0i", 3);
    QTest::newRow("a zero alone") << QString(QChar(0));
    QTest::newRow("line breaks") << QStringLiteral("Ei\r\nroh");
    QTest::newRow("no character") << QStringLiteral("\uFFFF");
    QTest::newRow("empty") << QStringLiteral("");
}

void TestArchiverLesen::texts()
{
    QFETCH(QString, text);
    const QByteArray roh = text.toUtf8();
    const auto ergebnis = Archiver::read(mitText(QByteArray::number(roh.size(), 16), roh));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.firstKey(), text);
    QCOMPARE(ergebnis.verzeichnis.first().name(), text);
    QVERIFY(!ergebnis.verzeichnis.first().name().isNull());
}

void TestArchiverLesen::lengthsAreUnsigned_data()
{
    QTest::addColumn<QByteArray>("laenge");
    QTest::addColumn<Folge>("folge");
    QTest::addColumn<int>("anzahl");
    QTest::newRow("127 in one byte") << QByteArray("7F") << Folge::LittleEndian << 127;
    QTest::newRow("146 in one byte") << QByteArray("92") << Folge::LittleEndian << 146;
    QTest::newRow("255 in one byte") << QByteArray("FF") << Folge::BigEndian << 255;
    QTest::newRow("128 in two") << QByteArray("81 s:128") << Folge::LittleEndian << 128;
    QTest::newRow("40000 in two") << QByteArray("81 s:40000") << Folge::BigEndian << 40000;
    QTest::newRow("65535 in two") << QByteArray("81 s:65535") << Folge::LittleEndian << 65535;
    QTest::newRow("65536 in four") << QByteArray("82 l:65536") << Folge::BigEndian << 65536;
    QTest::newRow("3 in four") << QByteArray("82 l:3") << Folge::LittleEndian << 3;
}

void TestArchiverLesen::lengthsAreUnsigned()
{
    QFETCH(QByteArray, laenge);
    QFETCH(Folge, folge);
    QFETCH(int, anzahl);
    const auto ergebnis = Archiver::read(mitText(laenge, QByteArray(anzahl, 'n'), folge));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.firstKey(), QString(anzahl, QLatin1Char('n')));
}

void TestArchiverLesen::absentTextsStayAbsent()
{
    const auto ergebnis = Archiver::read(datei(verzeichnisAnfang + "01 " + ersterText +
                                               "02 'Ei' 86 " + erstesLebensmittel + "92 85 " +
                                               nullwerte() + keineWertungen + "86 86"));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    const Datenmodul ei = ergebnis.verzeichnis.value(QStringLiteral("Ei"));
    QVERIFY(ei.name().isNull());
    for (const auto &zeile : wertungen) {
        QVERIFY(ei.wertung(zeile.wertung).isNull());
    }
}

void TestArchiverLesen::anEmptyDictionaryIsRead()
{
    const auto ergebnis = Archiver::read(datei(verzeichnisAnfang + "00 86"));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QVERIFY(ergebnis.verzeichnis.isEmpty());
}

void TestArchiverLesen::theSystemVersionIsFree_data()
{
    QTest::addColumn<QByteArray>("fassung");
    QTest::newRow("one byte") << QByteArray("00");
    QTest::newRow("two bytes") << QByteArray("81 s:823");
    QTest::newRow("four bytes") << QByteArray("82 l:-5");
}

void TestArchiverLesen::theSystemVersionIsFree()
{
    QFETCH(QByteArray, fassung);
    const auto ergebnis =
        Archiver::read(bytes("04 0B 'streamtyped' " + fassung + " " + einEintrag()));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), 1);
}

void TestArchiverLesen::referencesInEveryForm_data()
{
    QTest::addColumn<QByteArray>("verweis");
    QTest::newRow("one byte") << QByteArray("96");
    QTest::newRow("two bytes") << QByteArray("81 s:-106");
    QTest::newRow("four bytes") << QByteArray("82 l:-106");
}

void TestArchiverLesen::referencesInEveryForm()
{
    QFETCH(QByteArray, verweis);
    for (const Folge folge : {Folge::LittleEndian, Folge::BigEndian}) {
        const auto ergebnis = Archiver::read(
            datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                      "92 " + verweis + " " + nullwerte() + keineWertungen + "86 86",
                  folge));
        QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
        QCOMPARE(ergebnis.verzeichnis.first().name(), QStringLiteral("Ei"));
    }
}

void TestArchiverLesen::oneFoodUnderTwoNames()
{
    const auto ergebnis = Archiver::read(
        datei(verzeichnisAnfang + "02 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
              "92 96 84 01 'f' 07 " + QByteArray("9A 00 ").repeated(16) + keineWertungen +
              "86 92 84 97 98 06 'Eigelb' 86 92 98 86"));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), 2);
    QCOMPARE(ergebnis.verzeichnis.value(QStringLiteral("Ei")).kal(), 7.0F);
    QCOMPARE(ergebnis.verzeichnis.value(QStringLiteral("Eigelb")).kal(), 7.0F);
    QCOMPARE(ergebnis.verzeichnis.value(QStringLiteral("Eigelb")).name(), QStringLiteral("Ei"));
}

void TestArchiverLesen::theLaterOfTwoEntriesOfOneNameCounts()
{
    const auto ergebnis = Archiver::read(
        datei(verzeichnisAnfang + "02 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
              "92 96 " + nullwerte() + keineWertungen + "86 92 96 92 84 99 92 96 " +
              QByteArray("9A 09 ").repeated(17) + keineWertungen + "86 86"));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.eintraege, 2);
    QCOMPARE(ergebnis.verzeichnis.size(), 1);
    QCOMPARE(ergebnis.verzeichnis.first().kal(), 9.0F);
}

void TestArchiverLesen::theNameNeedNotBeTheKey()
{
    const auto ergebnis = Archiver::read(
        datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
              "92 84 97 98 03 'Egg' 86 " + nullwerte() + keineWertungen + "86 86"));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.value(QStringLiteral("Ei")).name(), QStringLiteral("Egg"));
}

void TestArchiverLesen::bytesBehindTheEndAreCounted()
{
    const auto ergebnis = Archiver::read(beispielBytes() + "abc");
    QVERIFY(ergebnis.gelesen());
    QVERIFY(gleich(ergebnis.verzeichnis, beispielVerzeichnis()));
    QCOMPARE(ergebnis.rest, 3);
}

void TestArchiverLesen::manyFoods_data()
{
    QTest::addColumn<int>("anzahl");
    QTest::addColumn<Folge>("folge");
    QTest::newRow("as many as take one-byte references") << 116 << Folge::LittleEndian;
    QTest::newRow("the first two-byte reference") << 117 << Folge::BigEndian;
    QTest::newRow("the last two-byte reference") << 16436 << Folge::LittleEndian;
    QTest::newRow("the first four-byte reference") << 16437 << Folge::BigEndian;
    QTest::newRow("100,000 little-endian") << 100000 << Folge::LittleEndian;
    QTest::newRow("100,000 big-endian") << 100000 << Folge::BigEndian;
}

void TestArchiverLesen::manyFoods()
{
    QFETCH(int, anzahl);
    QFETCH(Folge, folge);
    const auto ergebnis = Archiver::read(vieleEintraege(anzahl, folge));
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), anzahl);
    int i = 0;
    for (auto eintrag = ergebnis.verzeichnis.cbegin(); eintrag != ergebnis.verzeichnis.cend();
         ++eintrag, ++i) {
        const bool stimmt = eintrag.value().name() == eintrag.key() &&
                            eintrag.value().kal() == static_cast<float>(i);
        QVERIFY2(stimmt, qPrintable(eintrag.key()));
    }
    QCOMPARE(ergebnis.verzeichnis.lastKey(),
             QStringLiteral("L%1").arg(anzahl - 1, 7, 10, QLatin1Char('0')));
}

QTEST_GUILESS_MAIN(TestArchiverLesen)
#include "TestArchiverLesen.moc"
