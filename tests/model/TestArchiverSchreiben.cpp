#include "Archivbau.h"
#include "Archiver.h"

#include <QTest>

#include <bit>
#include <limits>

using namespace Archivbau;

class TestArchiverSchreiben : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theExampleComesOutByteForByte();
    void anEmptyStore();
    void valuesInTheirShortestForm_data();
    void valuesInTheirShortestForm();
    void lengths_data();
    void lengths();
    void equalTextsAreOneObject();
    void absentAndEmptyTexts();
    void anAbsentKeyIsWrittenAsEmpty();
    void entriesGoByName();
    void everyFileSettlesAtTheSecondWriting_data();
    void everyFileSettlesAtTheSecondWriting();
    void textsComeBack_data();
    void textsComeBack();
    void manyFoodsComeBack();
    void theUnusedSlotIsNotKept();
};

namespace {

Datenmodul lebensmittel(const QString &name)
{
    Datenmodul neues;
    neues.setName(name);
    return neues;
}

/// A store of one food of that name, kept under it.
Lebensmittelverzeichnis einzeln(const QString &name)
{
    return {{name, lebensmittel(name)}};
}

} // namespace

void TestArchiverSchreiben::theExampleComesOutByteForByte()
{
    QCOMPARE(Archiver::write(beispielVerzeichnis()).toHex(' '), beispielBytes().toHex(' '));
}

void TestArchiverSchreiben::anEmptyStore()
{
    QCOMPARE(Archiver::write({}), datei(verzeichnisAnfang + "00 86"));
}

void TestArchiverSchreiben::valuesInTheirShortestForm_data()
{
    QTest::addColumn<float>("zahl");
    QTest::addColumn<QByteArray>("wert");
    const auto row = [](const char *name, float zahl, const char *wert) {
        QTest::newRow(name) << zahl << QByteArray(wert);
    };
    row("zero", 0.0F, "00");
    row("negative zero keeps its sign", -0.0F, "83 x:80000000");
    row("largest of one byte", 127.0F, "7F");
    row("smallest of two bytes", 128.0F, "81 s:128");
    row("smallest of one byte", -110.0F, "92");
    row("the first of two bytes below", -111.0F, "81 s:-111");
    row("155", 155.0F, "81 9B 00");
    row("largest of two bytes", 32767.0F, "81 s:32767");
    row("smallest of four bytes", 32768.0F, "82 l:32768");
    row("lowest of two bytes", -32768.0F, "81 s:-32768");
    row("the first of four bytes below", -32769.0F, "82 l:-32769");
    row("the largest float within 32 bits", 2147483520.0F, "82 l:2147483520");
    row("the first whole number beyond 32 bits", 2147483648.0F, "83 f:2147483648");
    row("the lowest 32-bit number", -2147483648.0F, "82 l:-2147483648");
    row("a whole number below that", -2147483904.0F, "83 f:-2147483904");
    row("a fraction", 12.6F, "83 f:12.6");
    row("a negative fraction", -0.5F, "83 f:-0.5");
    row("huge", 1e30F, "83 f:1e30");
    row("infinite", std::numeric_limits<float>::infinity(), "83 x:7F800000");
    row("minus infinite", -std::numeric_limits<float>::infinity(), "83 x:FF800000");
    row("smallest above zero", std::numeric_limits<float>::denorm_min(), "83 x:00000001");
    row("not a number, bit for bit", std::bit_cast<float>(0xFFC12345U), "83 x:FFC12345");
    row("a signalling not-a-number", std::bit_cast<float>(0x7F800001U), "83 x:7F800001");
}

void TestArchiverSchreiben::valuesInTheirShortestForm()
{
    QFETCH(float, zahl);
    QFETCH(QByteArray, wert);
    auto verzeichnis = einzeln(QStringLiteral("Ei"));
    verzeichnis.first().setkal(zahl);
    QCOMPARE(Archiver::write(verzeichnis).toHex(' '),
             datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                   "92 96 84 01 'f' " + wert + " " + QByteArray("9A 00 ").repeated(16) +
                   keineWertungen + "86 86")
                 .toHex(' '));
    const auto wieder = Archiver::read(Archiver::write(verzeichnis));
    QVERIFY(gleich(wieder.verzeichnis, verzeichnis));
}

void TestArchiverSchreiben::lengths_data()
{
    QTest::addColumn<int>("anzahl");
    QTest::addColumn<QByteArray>("laenge");
    QTest::newRow("nothing") << 0 << QByteArray("00");
    QTest::newRow("127") << 127 << QByteArray("7F");
    QTest::newRow("128 takes two bytes") << 128 << QByteArray("81 s:128");
    QTest::newRow("146 is not taken for a reference") << 146 << QByteArray("81 s:146");
    QTest::newRow("40000 is unsigned") << 40000 << QByteArray("81 s:40000");
    QTest::newRow("65535") << 65535 << QByteArray("81 s:65535");
    QTest::newRow("65536 takes four bytes") << 65536 << QByteArray("82 l:65536");
}

void TestArchiverSchreiben::lengths()
{
    QFETCH(int, anzahl);
    QFETCH(QByteArray, laenge);
    const QString name = anzahl == 0 ? QStringLiteral("") : QString(anzahl, QLatin1Char('n'));
    const QByteArray erwartet =
        datei(verzeichnisAnfang + "01 " + ersterText + laenge) + QByteArray(anzahl, 'n') +
        bytes("86 " + erstesLebensmittel + "92 96 " + nullwerte() + keineWertungen + "86 86");
    QCOMPARE(Archiver::write(einzeln(name)), erwartet);
}

void TestArchiverSchreiben::equalTextsAreOneObject()
{
    // The rating of one food is the name of another: still one text.
    auto verzeichnis = einzeln(QStringLiteral("+"));
    verzeichnis.first().sethkk(QString::fromLatin1("+"));
    verzeichnis.insert(QStringLiteral("Ei"), lebensmittel(QString::fromLatin1("+")));
    QCOMPARE(Archiver::write(verzeichnis).toHex(' '),
             datei(verzeichnisAnfang + "02 " + ersterText + "01 '+' 86 " + erstesLebensmittel +
                   "92 96 " + nullwerte() + "92 85 92 85 92 85 92 96 86 " +
                   "92 84 97 98 02 'Ei' 86 92 84 99 92 96 " + QByteArray("9A 00 ").repeated(17) +
                   keineWertungen + "86 86")
                 .toHex(' '));
}

void TestArchiverSchreiben::absentAndEmptyTexts()
{
    auto verzeichnis = einzeln(QStringLiteral("Ei"));
    verzeichnis.first().setName(QString());
    verzeichnis.first().setdiabetes(QStringLiteral(""));
    verzeichnis.first().setgicht(QStringLiteral(""));
    QCOMPARE(Archiver::write(verzeichnis).toHex(' '),
             datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                   "92 85 " + nullwerte() + "92 85 92 84 97 98 00 86 92 9A 92 85 86 86")
                 .toHex(' '));
    QVERIFY(gleich(Archiver::read(Archiver::write(verzeichnis)).verzeichnis, verzeichnis));
}

void TestArchiverSchreiben::anAbsentKeyIsWrittenAsEmpty()
{
    const auto wieder = Archiver::read(Archiver::write(einzeln(QString())));
    QVERIFY2(wieder.gelesen(), qPrintable(wieder.grund));
    QCOMPARE(wieder.verzeichnis.firstKey(), QStringLiteral(""));
    QVERIFY(wieder.verzeichnis.first().name().isNull());
}

void TestArchiverSchreiben::entriesGoByName()
{
    // Put in the other way round; upper case comes before lower case, umlauts behind both.
    Lebensmittelverzeichnis verzeichnis;
    for (const QString &name : {QStringLiteral("Äpfel"), QStringLiteral("apfel"),
                                QStringLiteral("Zucker"), QStringLiteral("Brot")}) {
        verzeichnis.insert(name, lebensmittel(name));
    }
    const QByteArray geschrieben = Archiver::write(verzeichnis);
    qsizetype davor = 0;
    for (const char *name : {"Brot", "Zucker", "apfel", "Äpfel"}) {
        const qsizetype ort = geschrieben.indexOf(name);
        QVERIFY2(ort > davor, name);
        davor = ort;
    }
}

void TestArchiverSchreiben::everyFileSettlesAtTheSecondWriting_data()
{
    QTest::addColumn<QByteArray>("roh");
    QTest::newRow("the example") << beispielBytes();
    QTest::newRow("the example, big-endian") << beispiel(Folge::BigEndian);
    QTest::newRow("with bytes behind it") << beispielBytes() + "rest";
    QTest::newRow("empty") << datei(verzeichnisAnfang + "00 86");
    QTest::newRow("not by name") << datei(verzeichnisAnfang + "02 " + ersterText + "02 'Ei' 86 " +
                                          erstesLebensmittel + "92 96 84 01 'f' 83 f:7 " +
                                          QByteArray("9A 83 f:-0 ").repeated(16) + keineWertungen +
                                          "86 92 84 97 98 05 'Apfel' 86 92 98 86");
    QTest::newRow("1000 foods, big-endian") << vieleEintraege(1000, Folge::BigEndian);
}

void TestArchiverSchreiben::everyFileSettlesAtTheSecondWriting()
{
    QFETCH(QByteArray, roh);
    const auto gelesen = Archiver::read(roh);
    QVERIFY2(gelesen.gelesen(), qPrintable(gelesen.grund));
    const QByteArray erstes = Archiver::write(gelesen.verzeichnis);
    const auto wieder = Archiver::read(erstes);
    QVERIFY2(wieder.gelesen(), qPrintable(wieder.grund));
    QVERIFY(gleich(wieder.verzeichnis, gelesen.verzeichnis));
    QCOMPARE(wieder.rest, 0);
    QCOMPARE(Archiver::write(wieder.verzeichnis), erstes);
}

void TestArchiverSchreiben::textsComeBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("umlauts") << QStringLiteral("Käsespätzle");
    QTest::newRow("beyond the first plane") << QStringLiteral("🥚");
    QTest::newRow("a byte order mark") << QStringLiteral("\uFEFFEi");
    QTest::newRow("a zero inside") << QString::fromUtf16(u"E\0i", 3);
    QTest::newRow("blanks at both ends") << QStringLiteral(" Ei ");
    QTest::newRow("empty") << QStringLiteral("");
}

void TestArchiverSchreiben::textsComeBack()
{
    QFETCH(QString, text);
    const auto verzeichnis = einzeln(text);
    const auto wieder = Archiver::read(Archiver::write(verzeichnis));
    QVERIFY2(wieder.gelesen(), qPrintable(wieder.grund));
    QVERIFY(gleich(wieder.verzeichnis, verzeichnis));
}

void TestArchiverSchreiben::manyFoodsComeBack()
{
    const auto gelesen = Archiver::read(vieleEintraege(100000, Folge::LittleEndian));
    QCOMPARE(gelesen.verzeichnis.size(), 100000);
    const QByteArray geschrieben = Archiver::write(gelesen.verzeichnis);
    const auto wieder = Archiver::read(geschrieben);
    QVERIFY2(wieder.gelesen(), qPrintable(wieder.grund));
    QVERIFY(gleich(wieder.verzeichnis, gelesen.verzeichnis));
}

void TestArchiverSchreiben::theUnusedSlotIsNotKept()
{
    auto verzeichnis = beispielVerzeichnis();
    verzeichnis.first().joule = 648;
    QCOMPARE(Archiver::write(verzeichnis), beispielBytes());
    QCOMPARE(Archiver::read(Archiver::write(verzeichnis)).verzeichnis.first().joule, 0.0F);
}

QTEST_GUILESS_MAIN(TestArchiverSchreiben)
#include "TestArchiverSchreiben.moc"
