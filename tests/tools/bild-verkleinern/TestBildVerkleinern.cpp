#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The program that makes the handbook's pictures smaller, as the script calls it.
class TestBildVerkleinern : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fewColoursStayAsTheyAre();
    void ofManyColoursTheFrequentOnesStay();
    void largeAreasKeepTheirTinges();
    void whatIsNoPictureIsTold_data();
    void whatIsNoPictureIsTold();

private:
    QString pfad(const QString &name) const { return m_ordner.filePath(name); }
    int starte(const QStringList &argumente);

    QTemporaryDir m_ordner;
    QString m_meldung; ///< what the program has said of its last run
};

int TestBildVerkleinern::starte(const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(QStringLiteral(VERKLEINERN), argumente);
    prozess.waitForFinished();
    m_meldung = QString::fromUtf8(prozess.readAllStandardError());
    return prozess.exitCode();
}

void TestBildVerkleinern::fewColoursStayAsTheyAre()
{
    QImage bild(300, 200, QImage::Format_RGB32);
    bild.fill(0xfff6f6f4);
    for (int i = 0; i < 200; ++i) {
        bild.setPixel(i, i, 0xff000000U | static_cast<QRgb>(i)); // each of them only once
    }
    QVERIFY(bild.save(pfad(u"gross.png"_s)));
    QCOMPARE(starte({pfad(u"gross.png"_s), pfad(u"klein.png"_s)}), 0);
    const QImage kleines(pfad(u"klein.png"_s));
    QCOMPARE(kleines.format(), QImage::Format_Indexed8);
    QCOMPARE(kleines.convertToFormat(QImage::Format_RGB32), bild);
    QVERIFY(QFileInfo(pfad(u"klein.png"_s)).size() < QFileInfo(pfad(u"gross.png"_s)).size());
}

void TestBildVerkleinern::ofManyColoursTheFrequentOnesStay()
{
    QImage bild(400, 10, QImage::Format_RGB32);
    bild.fill(0xffffffff);
    for (int x = 0; x < 400; ++x) { // 300 greens once each, then white
        if (x < 300) {
            bild.setPixel(x, 0, qRgb(0, x % 256, x / 256));
        }
        bild.setPixel(x, 5, qRgb(200, 0, 0));
    }
    QVERIFY(bild.save(pfad(u"gross.png"_s)));
    QCOMPARE(starte({pfad(u"gross.png"_s), pfad(u"klein.png"_s)}), 0);
    const QImage kleines(pfad(u"klein.png"_s));
    QVERIFY(kleines.colorCount() <= 256);
    QCOMPARE(kleines.pixel(399, 9), 0xffffffffU);
    QCOMPARE(kleines.pixel(7, 5), qRgb(200, 0, 0));
    for (int x = 0; x < 300; ++x) { // no colour is far from what it was
        QVERIFY(qAbs(qGreen(kleines.pixel(x, 0)) - x % 256) <= 1);
    }
}

/// The grey of a window and the one of its fields differ by a few steps, beside a photograph of
/// thousands of colours.
void TestBildVerkleinern::largeAreasKeepTheirTinges()
{
    constexpr QRgb fenster = qRgb(246, 246, 244);
    constexpr QRgb feld = qRgb(249, 249, 248);
    QImage bild(200, 90, QImage::Format_RGB32);
    for (int y = 0; y < 90; ++y) {
        for (int x = 0; x < 200; ++x) {
            const bool foto = y >= 30 && y < 60;
            bild.setPixel(x, y,
                          foto     ? qRgb(x, 4 * (y - 30), (x * 7 + y * 13) % 256)
                          : y < 30 ? fenster
                                   : feld);
        }
    }
    QVERIFY(bild.save(pfad(u"gross.png"_s)));
    QCOMPARE(starte({pfad(u"gross.png"_s), pfad(u"klein.png"_s)}), 0);
    const QImage kleines(pfad(u"klein.png"_s));
    for (int x = 0; x < 200; ++x) {
        for (int y = 0; y < 30; ++y) {
            QCOMPARE(kleines.pixel(x, y), fenster);
            QCOMPARE(kleines.pixel(x, y + 60), feld);
        }
    }
}

void TestBildVerkleinern::whatIsNoPictureIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ausgang");
    QTest::addColumn<QString>("meldung");
    QTest::newRow("nothing") << QStringList() << 2 << u"usage:"_s;
    QTest::newRow("one name only") << QStringList{u"/nowhere.png"_s} << 2 << u"usage:"_s;
    QTest::newRow("no such picture")
        << QStringList{u"/nowhere.png"_s, u"/nowhere2.png"_s} << 1 << u"/nowhere.png: no picture"_s;
    QImage bild(4, 4, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QVERIFY(bild.save(pfad(u"gross.png"_s)));
    QTest::newRow("nowhere to write") << QStringList{pfad(u"gross.png"_s), u"/nowhere/klein.png"_s}
                                      << 1 << u"/nowhere/klein.png: can't be written"_s;
}

void TestBildVerkleinern::whatIsNoPictureIsTold()
{
    QFETCH(QStringList, argumente);
    QFETCH(int, ausgang);
    QFETCH(QString, meldung);
    QCOMPARE(starte(argumente), ausgang);
    QVERIFY2(m_meldung.startsWith(meldung), qPrintable(m_meldung));
}

QTEST_GUILESS_MAIN(TestBildVerkleinern)
#include "TestBildVerkleinern.moc"
