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
    void whatIsNoPictureIsTold_data();
    void whatIsNoPictureIsTold();

private:
    QString pfad(const QString &name) const { return m_ordner.filePath(name); }
    static int starte(const QStringList &argumente);

    QTemporaryDir m_ordner;
};

int TestBildVerkleinern::starte(const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(QStringLiteral(VERKLEINERN), argumente);
    prozess.waitForFinished();
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

void TestBildVerkleinern::whatIsNoPictureIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ausgang");
    QTest::newRow("nothing") << QStringList() << 2;
    QTest::newRow("one name only") << QStringList{u"/nowhere.png"_s} << 2;
    QTest::newRow("no such picture") << QStringList{u"/nowhere.png"_s, u"/nowhere2.png"_s} << 1;
}

void TestBildVerkleinern::whatIsNoPictureIsTold()
{
    QFETCH(QStringList, argumente);
    QFETCH(int, ausgang);
    QCOMPARE(starte(argumente), ausgang);
}

QTEST_GUILESS_MAIN(TestBildVerkleinern)
#include "TestBildVerkleinern.moc"
