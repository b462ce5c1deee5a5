#include "Archivbau.h"
#include "Archiver.h"

#include <QTest>

#include <algorithm>
#include <functional>

// Memory is counted by the sanitizer's allocator. Its names are its own, and no header of the
// compiler declares them. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*genommen)(const volatile void *,
                                                                          std::size_t),
                                                         void (*gegeben)(const volatile void *));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void *stelle);
// NOLINTEND(bugprone-reserved-identifier)

using namespace Archivbau;

/// What a file takes in memory while it is read, against the bytes that it has.
class TestArchiverSpeicher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void memoryIsASmallMultipleOfTheBytes_data();
    void memoryIsASmallMultipleOfTheBytes();
    void realFilesAreRead_data();
    void realFilesAreRead();
    void someSharedFoodsAreRead();

private:
    static void sharedRows();
    static void ownRows();
};

namespace {

std::size_t belegt = 0;
std::size_t hoechstens = 0;

void nimm(const volatile void *, std::size_t bytes)
{
    belegt += bytes;
    hoechstens = std::max(belegt, hoechstens);
}

void gib(const volatile void *stelle)
{
    const std::size_t bytes = stelle == nullptr ? 0 : __sanitizer_get_allocated_size(stelle);
    belegt -= std::min(bytes, belegt); // some of it was taken before anybody counted
}

const QByteArray kleineWerte = QByteArray("\x9A\x00", 2).repeated(17);
const QByteArray keine = QByteArray("\x92\x85", 2).repeated(4);

QByteArray text(const QByteArray &inhalt)
{
    return "\x92\x84\x97\x98" + QByteArray(1, static_cast<char>(inhalt.size())) + inhalt + '\x86';
}

/// A name of these letters that no other entry has.
QByteArray name(int nummer, int laenge)
{
    QByteArray zeichen(laenge, 'a');
    for (int stelle = laenge - 1; stelle >= 0; --stelle, nummer /= 26) {
        zeichen[stelle] = static_cast<char>('a' + nummer % 26);
    }
    return zeichen;
}

/// The beginning of a file up to its first entry, which has a food to which others can refer (98).
QByteArray anfang(int anzahl)
{
    return datei(verzeichnisAnfang + "82 l:" + QByteArray::number(anzahl) + ' ' + ersterText +
                 "02 'Ei' 86 " + erstesLebensmittel + "92 96 " + nullwerte() + keineWertungen +
                 "86");
}

/// A food whose name and ratings are these bytes.
QByteArray eigenes(const QByteArray &nameWieImStrom, const QByteArray &wertungen = keine)
{
    return QByteArray("\x92\x84\x99") + nameWieImStrom + kleineWerte + wertungen + '\x86';
}

constexpr int eintraege = 20'000;

void zeile(const char *wie, const std::function<QByteArray(int)> &eintrag, int anzahl = eintraege,
           const QByteArray &dahinter = {})
{
    QByteArray bytes = anfang(anzahl + 1);
    for (int i = 0; i < anzahl; ++i) {
        bytes += eintrag(i);
    }
    QTest::newRow(wie) << bytes + '\x86' + dahinter;
}

} // namespace

void TestArchiverSpeicher::initTestCase()
{
    QVERIFY(__sanitizer_install_malloc_and_free_hooks(nimm, gib) > 0);
}

/// Entries that all mean one food, which takes 250 bytes in memory each time.
void TestArchiverSpeicher::sharedRows()
{
    const auto geteilt = [](int i) {
        return text(name(i, 4)) + QByteArray("\x92\x98", 2);
    };
    zeile("shared foods", geteilt);
    zeile("shared foods, as many as the bytes behind them allow", geteilt, 9'000,
          QByteArray(qsizetype(9'000) * 41, 'x'));
    zeile("one name for all of them", [](int) { return QByteArray("\x92\x96\x92\x98", 4); });
}

void TestArchiverSpeicher::ownRows()
{
    const QByteArray derselbe("\x92\x96", 2);
    zeile("own foods as small as can be",
          [&](int i) { return text(name(i, 4)) + eigenes(derselbe); });
    zeile("own foods under one name", [&](int) { return derselbe + eigenes(derselbe); });
    zeile("ratings of one letter, each a text of its own", [&](int i) {
        return text(name(i, 4)) + eigenes(derselbe, text("+") + text("0") + text("-") + text("+"));
    });
    zeile("texts of two letters everywhere", [&](int i) {
        return text(name(i, 4)) +
               eigenes(text("ab"), text("ab") + text("cd") + text("ef") + text("gh"));
    });
    zeile("empty texts everywhere", [&](int i) {
        return text(name(i, 4)) + eigenes(text(""), text("") + text("") + text("") + text(""));
    });
    zeile("types spelled out each time", [&](int i) {
        QByteArray bytes = text(name(i, 4)) + eigenes(derselbe);
        bytes.replace(kleineWerte, QByteArray("\x84\x01"
                                              "f\x00",
                                              4)
                                       .repeated(17));
        return bytes;
    });
    zeile("long texts", [&](int i) { return text(name(i, 100)) + eigenes(derselbe); });
}

void TestArchiverSpeicher::memoryIsASmallMultipleOfTheBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    sharedRows();
    ownRows();
}

void TestArchiverSpeicher::memoryIsASmallMultipleOfTheBytes()
{
    QFETCH(QByteArray, bytes);
    belegt = 0;
    hoechstens = 0;
    const auto ergebnis = Archiver::read(bytes);
    const double vielfaches = double(hoechstens) / double(bytes.size());
    qInfo("%s: %d bytes, %.1f times as much in memory", ergebnis.gelesen() ? "read" : "refused",
          int(bytes.size()), vielfaches);
    QVERIFY(vielfaches <= 10);
}

void TestArchiverSpeicher::realFilesAreRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    ownRows();
}

void TestArchiverSpeicher::realFilesAreRead()
{
    QFETCH(QByteArray, bytes);
    const auto ergebnis = Archiver::read(bytes);
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.eintraege, eintraege + 1);
    const bool einName = qstrcmp(QTest::currentDataTag(), "own foods under one name") == 0;
    QCOMPARE(ergebnis.verzeichnis.size(), einName ? 1 : eintraege + 1);
}

/// One food under several names is unusual, but a store all the same.
void TestArchiverSpeicher::someSharedFoodsAreRead()
{
    QByteArray bytes = anfang(1000);
    for (int i = 0; i < 999; ++i) {
        bytes += text(name(i, 4)) + QByteArray("\x92\x98", 2);
    }
    const auto ergebnis = Archiver::read(bytes + '\x86');
    QVERIFY2(ergebnis.gelesen(), qPrintable(ergebnis.grund));
    QCOMPARE(ergebnis.verzeichnis.size(), 1000);
    QCOMPARE(ergebnis.verzeichnis[QStringLiteral("aaab")].name(), QStringLiteral("Ei"));
}

QTEST_GUILESS_MAIN(TestArchiverSpeicher)
#include "TestArchiverSpeicher.moc"
