#include "Bildprobe.h"
#include "FaceView.h"

#include <limits>

class TestFaceView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshViewIsEmpty();
    void codeChoosesThePicture_data();
    void codeChoosesThePicture();
    void anyOtherCodeDrawsNothing_data();
    void anyOtherCodeDrawsNothing();
    void withoutTheFirstPictureNothingIsDrawn();
    void aMissingPictureIsMissingOnlyForItsCode();
    void pictureIsStretchedOverTheBounds_data();
    void pictureIsStretchedOverTheBounds();
    void ofALargerPictureTheBottomLeftPartIsShown();
    void aSmallerPictureLiesAtTheBottomLeft();
    void theGroundShowsThroughATransparentPicture();
    void aPictureMadeSmallKeepsItsFineLines();
    void everyPixelIsShownAtRatioTwo();
    void faceSaysWhatItShows();
    void cleanup() { m_probe.sichereNachFehler(); }

private:
    static QImage einfarbig(const QColor &farbe, QSize groesse = {16, 16})
    {
        QImage bild(groesse, QImage::Format_ARGB32);
        bild.fill(farbe);
        return bild;
    }
    static void gibBilder(FaceView &view)
    {
        view.setImage(einfarbig(Qt::yellow));
        view.setImage2(einfarbig(Qt::cyan));
        view.setImage3(einfarbig(Qt::magenta));
    }

    Bildprobe m_probe;
};

void TestFaceView::aFreshViewIsEmpty()
{
    const FaceView view;
    QCOMPARE(view.entscheidungszahl(), 0);
    QVERIFY(view.bild().isNull() && view.bild2().isNull() && view.bild3().isNull());
    m_probe.male(view, {32, 32});
    QVERIFY(m_probe.istLeer());
}

void TestFaceView::codeChoosesThePicture_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QColor>("farbe");
    QTest::newRow("1 is the first, the smile") << 1 << QColor(Qt::yellow);
    QTest::newRow("2 is the second, neutral") << 2 << QColor(Qt::cyan);
    QTest::newRow("3 is the third, crying") << 3 << QColor(Qt::magenta);
}

void TestFaceView::codeChoosesThePicture()
{
    QFETCH(int, code);
    QFETCH(QColor, farbe);
    FaceView view;
    gibBilder(view);
    view.entscheidung(code);
    QCOMPARE(view.entscheidungszahl(), code);
    m_probe.male(view, {32, 32});
    for (const QPoint punkt : {QPoint(0, 0), QPoint(16, 16), QPoint(31, 0), QPoint(31, 31)}) {
        QCOMPARE(m_probe.farbe(punkt.x(), punkt.y()), farbe);
    }
}

void TestFaceView::anyOtherCodeDrawsNothing_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("0") << 0;
    QTest::newRow("4") << 4;
    QTest::newRow("-1") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestFaceView::anyOtherCodeDrawsNothing()
{
    QFETCH(int, code);
    FaceView view;
    gibBilder(view);
    view.entscheidung(1);
    view.entscheidung(code);
    QCOMPARE(view.entscheidungszahl(), code);
    m_probe.male(view, {32, 32});
    QVERIFY(m_probe.istLeer());
}

void TestFaceView::withoutTheFirstPictureNothingIsDrawn()
{
    FaceView view;
    gibBilder(view);
    view.setImage({});
    for (const int code : {1, 2, 3}) {
        view.entscheidung(code);
        m_probe.male(view, {32, 32});
        QVERIFY(m_probe.istLeer());
    }
}

void TestFaceView::aMissingPictureIsMissingOnlyForItsCode()
{
    FaceView view;
    gibBilder(view);
    view.setImage2({});
    view.entscheidung(2);
    m_probe.male(view, {32, 32});
    QVERIFY(m_probe.istLeer());
    view.entscheidung(3);
    m_probe.male(view, {32, 32});
    QCOMPARE(m_probe.farbe(16, 16), QColor(Qt::magenta));
}

void TestFaceView::pictureIsStretchedOverTheBounds_data()
{
    QTest::addColumn<QSize>("groesse");
    QTest::addColumn<int>("verhaeltnis");
    QTest::newRow("larger and wider") << QSize(90, 40) << 1;
    QTest::newRow("smaller") << QSize(10, 12) << 1;
    QTest::newRow("smaller one way only") << QSize(8, 40) << 1;
    QTest::newRow("two pixels to a point") << QSize(30, 20) << 2;
}

void TestFaceView::pictureIsStretchedOverTheBounds()
{
    QFETCH(QSize, groesse);
    QFETCH(int, verhaeltnis);
    // Left half red, right half blue.
    QImage geteilt = einfarbig(Qt::red);
    QPainter maler(&geteilt);
    maler.fillRect(8, 0, 8, 16, Qt::blue);
    maler.end();

    FaceView view;
    view.setImage(geteilt);
    view.entscheidung(1);
    const QRectF bounds(QPointF(5, 5), groesse);
    m_probe.maleInnerhalb(view, bounds, {100, 60}, verhaeltnis);

    const QRect ziel(QPoint(5, 5) * verhaeltnis, groesse * verhaeltnis);
    QCOMPARE(m_probe.farbe(ziel.left(), ziel.top()), QColor(Qt::red));
    QCOMPARE(m_probe.farbe(ziel.left(), ziel.bottom()), QColor(Qt::red));
    QCOMPARE(m_probe.farbe(ziel.right(), ziel.top()), QColor(Qt::blue));
    QCOMPARE(m_probe.farbe(ziel.right(), ziel.bottom()), QColor(Qt::blue));
    QVERIFY(m_probe.istLeer({0, 0, ziel.left(), ziel.bottom()}));
    QVERIFY(m_probe.istLeer({ziel.right() + 1, 0, 4, ziel.bottom()}));
    QVERIFY(m_probe.istLeer({0, ziel.bottom() + 1, ziel.right(), 4}));
}

void TestFaceView::ofALargerPictureTheBottomLeftPartIsShown()
{
    QImage gross = einfarbig(Qt::red, {40, 40});
    QPainter maler(&gross);
    maler.fillRect(0, 24, 16, 16, Qt::blue);
    maler.end();
    FaceView view;
    gibBilder(view);
    view.setImage2(gross);
    view.entscheidung(2);
    m_probe.male(view, {16, 16});
    QCOMPARE(m_probe.bild(), einfarbig(Qt::blue).convertToFormat(m_probe.bild().format()));
}

void TestFaceView::aSmallerPictureLiesAtTheBottomLeft()
{
    FaceView view;
    gibBilder(view);
    view.setImage3(einfarbig(Qt::magenta, {4, 8}));
    view.entscheidung(3);
    m_probe.male(view, {16, 16});
    QCOMPARE(m_probe.farbe(1, 14), QColor(Qt::magenta));
    QCOMPARE(m_probe.farbe(3, 8), QColor(Qt::magenta));
    QVERIFY(m_probe.istLeer({0, 0, 16, 8}));
    QVERIFY(m_probe.istLeer({4, 0, 12, 16}));
}

void TestFaceView::theGroundShowsThroughATransparentPicture()
{
    FaceView view;
    view.setImage(einfarbig(QColor(255, 0, 0, 128)));
    view.entscheidung(1);
    QImage grund(16, 16, QImage::Format_ARGB32_Premultiplied);
    grund.fill(Qt::white);
    QPainter maler(&grund);
    view.zeichnen(maler, QRectF(0, 0, 16, 16));
    maler.end();
    const QColor gemischt = grund.pixelColor(8, 8);
    QCOMPARE(gemischt.red(), 255);
    QVERIFY(qAbs(gemischt.green() - 127) <= 1);
}

void TestFaceView::aPictureMadeSmallKeepsItsFineLines()
{
    // One black line among fifteen white ones: a sixteenth of the picture made sixteen times
    // smaller is a light grey, wherever the line lies.
    QImage fein = einfarbig(Qt::white, {256, 256});
    QPainter maler(&fein);
    for (int x = 3; x < 256; x += 16) {
        maler.fillRect(x, 0, 1, 256, Qt::black);
    }
    maler.end();
    FaceView view;
    view.setImage(fein);
    view.entscheidung(1);
    m_probe.male(view, {16, 16});
    for (int x = 0; x < 16; ++x) {
        QVERIFY(qAbs(m_probe.farbe(x, 8).red() - 239) < 4);
    }
}

void TestFaceView::everyPixelIsShownAtRatioTwo()
{
    QImage streifen = einfarbig(Qt::white, {32, 32});
    QPainter maler(&streifen);
    for (int x = 0; x < 32; x += 2) {
        maler.fillRect(x, 0, 1, 32, Qt::black);
    }
    maler.end();
    FaceView view;
    view.setImage(streifen);
    view.entscheidung(1);
    m_probe.male(view, {16, 16}, 2);
    QCOMPARE(m_probe.farbe(10, 5), QColor(Qt::black));
    QCOMPARE(m_probe.farbe(11, 5), QColor(Qt::white));
}

void TestFaceView::faceSaysWhatItShows()
{
    FaceView view;
    gibBilder(view);
    QCOMPARE(view.beschreibung(), QStringLiteral("kein Gesicht"));
    view.entscheidung(1);
    QCOMPARE(view.beschreibung(), QStringLiteral("lächelndes Gesicht"));
    view.entscheidung(2);
    QCOMPARE(view.beschreibung(), QStringLiteral("neutrales Gesicht"));
    view.entscheidung(3);
    QCOMPARE(view.beschreibung(), QStringLiteral("weinendes Gesicht"));
    view.setImage({});
    QCOMPARE(view.beschreibung(), QStringLiteral("kein Gesicht"));
}

QTEST_MAIN(TestFaceView)
#include "TestFaceView.moc"
