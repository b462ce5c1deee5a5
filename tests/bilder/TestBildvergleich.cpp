#include "Bildvergleich.h"

#include <QPainter>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

/// What makes two pictures different, and what does not.
class TestBildvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void samePicturesAreEqual_data();
    void samePicturesAreEqual();
    void differencesAreSeen_data();
    void differencesAreSeen();
    void whatDiffersIsRed();
    void anotherSizeIsToldAndMarked();
    void aPictureThatIsMissingDiffers();
};

namespace {

constexpr QSize groesse(200, 60);

struct Motiv
{
    QString wort = u"Eiweiß 12,5 g"_s;
    QPoint ort = {10, 30};
    QColor farbe = QColor(0x2f, 0x7d, 0x4f);
};

/// A word beside a square, as it might stand in a window.
QImage gemalt(const Motiv &motiv)
{
    QImage bild(groesse, QImage::Format_RGB32);
    bild.fill(QColor(0xf6, 0xf6, 0xf4));
    QPainter maler(&bild);
    maler.setPen(Qt::black);
    maler.drawText(motiv.ort, motiv.wort);
    maler.fillRect(150, 20, 20, 20, motiv.farbe);
    return bild;
}

/// Every channel of every pixel is off by this much, up and down in turn.
QImage verrauscht(QImage bild, int schritte)
{
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const int um = (x + y) % 2 == 0 ? schritte : -schritte;
            const QColor farbe = bild.pixelColor(x, y);
            const auto neben = [um](int kanal) {
                return qBound(0, kanal + um, 255);
            };
            bild.setPixelColor(
                x, y, QColor(neben(farbe.red()), neben(farbe.green()), neben(farbe.blue())));
        }
    }
    return bild;
}

} // namespace

void TestBildvergleich::samePicturesAreEqual_data()
{
    QTest::addColumn<QImage>("gesehen");
    const QImage bild = gemalt({});
    QTest::newRow("painted twice") << gemalt({});
    QTest::newRow("in another format") << bild.convertToFormat(QImage::Format_RGB888);
    QTest::newRow("off by what another processor may round")
        << verrauscht(bild, Bildvergleich::spielraum);
    QImage zweifach = bild;
    zweifach.setDevicePixelRatio(2); // a file keeps no ratio
    QTest::newRow("with two pixels to a point") << zweifach;
}

void TestBildvergleich::samePicturesAreEqual()
{
    QFETCH(QImage, gesehen);
    const Bildvergleich vergleich(gesehen, gemalt({}));
    QVERIFY2(vergleich.gleich(), qPrintable(vergleich.worte()));
    QCOMPARE(vergleich.worte(), QString());
}

void TestBildvergleich::differencesAreSeen_data()
{
    QTest::addColumn<QImage>("gesehen");
    QTest::newRow("another word") << gemalt({.wort = u"Protein 12,5 g"_s});
    QTest::newRow("a point in place of the comma") << gemalt({.wort = u"Eiweiß 12.5 g"_s});
    QTest::newRow("a word 2 px further right") << gemalt({.ort = {12, 30}});
    QTest::newRow("a word 1 px lower") << gemalt({.ort = {10, 31}});
    QTest::newRow("another colour") << gemalt({.farbe = QColor(0x2f, 0x7d, 0x5f)});
    QTest::newRow("a little more than the scope")
        << verrauscht(gemalt({}), Bildvergleich::spielraum + 1);
    QImage einPixel = gemalt({});
    einPixel.setPixelColor(199, 59, Qt::black);
    QTest::newRow("one pixel") << einPixel;
    QTest::newRow("wider") << gemalt({}).copy(0, 0, 201, 60);
    QTest::newRow("lower") << gemalt({}).copy(0, 0, 200, 59);
}

void TestBildvergleich::differencesAreSeen()
{
    QFETCH(QImage, gesehen);
    const Bildvergleich vergleich(gesehen, gemalt({}));
    QVERIFY(!vergleich.gleich());
    QVERIFY(!vergleich.worte().isEmpty());
}

void TestBildvergleich::whatDiffersIsRed()
{
    QImage gesehen = gemalt({});
    QPainter maler(&gesehen);
    maler.fillRect(20, 4, 3, 2, Qt::blue);
    maler.end();
    const Bildvergleich vergleich(gesehen, gemalt({}));
    QCOMPARE(vergleich.worte(), u"6 pixels differ, at 20, 4 in 3 x 2"_s);
    const QImage &bild = vergleich.unterschied();
    QCOMPARE(bild.size(), groesse);
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const bool rot = bild.pixelColor(x, y) == QColor(Qt::red);
            QCOMPARE(rot, QRect(20, 4, 3, 2).contains(x, y));
        }
    }
}

void TestBildvergleich::anotherSizeIsToldAndMarked()
{
    const Bildvergleich vergleich(gemalt({}).copy(0, 0, 205, 60), gemalt({}));
    QCOMPARE(vergleich.worte(), u"it is 205 x 60 pixels, not 200 x 60"_s);
    QCOMPARE(vergleich.unterschied().size(), QSize(205, 60));
    QCOMPARE(vergleich.unterschied().pixelColor(202, 30), QColor(Qt::red));
    QVERIFY(vergleich.unterschied().pixelColor(100, 30) != QColor(Qt::red));
}

void TestBildvergleich::aPictureThatIsMissingDiffers()
{
    QVERIFY(!Bildvergleich(gemalt({}), QImage()).gleich());
    QVERIFY(!Bildvergleich(QImage(), gemalt({})).gleich());
}

QTEST_MAIN(TestBildvergleich)
#include "TestBildvergleich.moc"
