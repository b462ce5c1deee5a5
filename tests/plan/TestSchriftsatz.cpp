#include "Schriftsatz.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <utility>

/// Texts on paper: what was set once must look as if it were set anew.
class TestSchriftsatz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textLooksAsThePainterWritesIt_data();
    void textLooksAsThePainterWritesIt();
    void theSameTextAtAnotherPlaceAndSize();
    void aTextThatIsTooWideIsNarrowed();
    void blanksAreNothing();
};

namespace {

QImage leer()
{
    QImage bild(300, 60, QImage::Format_RGB32);
    bild.fill(Qt::white);
    return bild;
}

/// The text as the painter itself writes it: a hundred times as large, and shrunk.
QImage vomMaler(const QString &text, int groesse, const QPointF &linie)
{
    QImage bild = leer();
    QPainter maler(&bild);
    QFont schrift(QStringLiteral("Helvetica"));
    schrift.setPixelSize(groesse * 100);
    schrift.setStyleStrategy(QFont::PreferOutline);
    maler.setFont(schrift);
    maler.translate(linie);
    maler.scale(0.01, 0.01);
    maler.drawText(QPointF(0, 0), text);
    return bild;
}

QImage gesetzt(Schriftsatz &satz, const QString &text, int groesse, const QRectF &platz)
{
    QImage bild = leer();
    QPainter maler(&bild);
    satz.zeichne(maler, platz, groesse, text);
    return bild;
}

/// The columns between the first and the last that are not white; 0 when all are.
int breite(const QImage &bild)
{
    int erste = bild.width();
    int letzte = -1;
    for (int x = 0; x < bild.width(); ++x) {
        for (int y = 0; y < bild.height(); ++y) {
            if (bild.pixelColor(x, y) != QColor(Qt::white)) {
                erste = qMin(erste, x);
                letzte = x;
            }
        }
    }
    return letzte < 0 ? 0 : letzte - erste + 1;
}

} // namespace

void TestSchriftsatz::textLooksAsThePainterWritesIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a number") << QStringLiteral("17 gr ");
    QTest::newRow("a name") << QStringLiteral("Äpfel, geschält ");
    QTest::newRow("letters that are moved together") << QStringLiteral("AVAT Wy");
    QTest::newRow("blanks before") << QStringLiteral("     Gesamt");
}

void TestSchriftsatz::textLooksAsThePainterWritesIt()
{
    QFETCH(QString, text);
    Schriftsatz satz;
    const QImage erwartet = vomMaler(text, 20, {10, 5 + 0.92 * 20});
    for (int mal = 0; mal < 2; ++mal) { // set, and kept
        QCOMPARE(gesetzt(satz, text, 20, QRectF(10, 5, 280, 50)), erwartet);
    }
}

void TestSchriftsatz::theSameTextAtAnotherPlaceAndSize()
{
    Schriftsatz satz;
    const QString text = QStringLiteral("12 gr ");
    for (const auto &[groesse, x] : {std::pair(20, 10.0), {12, 40.5}, {20, 80.25}, {5, 10.0}}) {
        QCOMPARE(gesetzt(satz, text, groesse, QRectF(x, 3, 200, 50)),
                 vomMaler(text, groesse, {x, 3 + 0.92 * groesse}));
    }
}

void TestSchriftsatz::aTextThatIsTooWideIsNarrowed()
{
    Schriftsatz satz;
    const QString text = QStringLiteral("Vollkornroggenbrot");
    const int ganz = breite(gesetzt(satz, text, 20, QRectF(10, 5, 280, 50)));
    QVERIFY(ganz > 100);
    // A fifth of the size stays free before the neighbour.
    const int schmal = breite(gesetzt(satz, text, 20, QRectF(10, 5, 84, 50)));
    QVERIFY2(qAbs(schmal - 80) <= 3, qPrintable(QString::number(schmal)));
    // Kept is the text, and not how narrow it was.
    QCOMPARE(breite(gesetzt(satz, text, 20, QRectF(10, 5, 280, 50))), ganz);
}

void TestSchriftsatz::blanksAreNothing()
{
    Schriftsatz satz;
    for (const QString &text : {QString(), QStringLiteral("   ")}) {
        QCOMPARE(gesetzt(satz, text, 20, QRectF(10, 5, 280, 50)), leer());
    }
}

QTEST_MAIN(TestSchriftsatz)
#include "TestSchriftsatz.moc"
