#include "Fokusstil.h"

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>

/// What the program's style adds to fields.
class TestFokusstil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new Fokusstil); }
    void aFieldIsSeenInTheDark_data();
    void aFieldIsSeenInTheDark();
    void aChoiceIsSeenInTheDark_data();
    void aChoiceIsSeenInTheDark();
};

void TestFokusstil::aFieldIsSeenInTheDark_data()
{
    QTest::addColumn<QColor>("fenster");
    QTest::addColumn<bool>("rahmen");
    QTest::addColumn<bool>("rand");
    QTest::newRow("in the dark") << QColor(0x23, 0x25, 0x27) << true << true;
    QTest::newRow("in the light the style's own edge is enough")
        << QColor(0xf6, 0xf6, 0xf4) << true << false;
    QTest::newRow("a field without a frame is no place to type in")
        << QColor(0x23, 0x25, 0x27) << false << false;
}

/// The edge has the colour of hints, which no other part of the field has.
void TestFokusstil::aFieldIsSeenInTheDark()
{
    QFETCH(QColor, fenster);
    QFETCH(bool, rahmen);
    QFETCH(bool, rand);
    QLineEdit feld;
    QPalette farben(fenster);
    farben.setColor(QPalette::Window, fenster);
    farben.setColor(QPalette::PlaceholderText, Qt::magenta);
    feld.setPalette(farben);
    feld.setFrame(rahmen);
    feld.setFocusPolicy(Qt::NoFocus);
    feld.resize(80, 24);
    const QImage bild = feld.grab().toImage();
    for (const QPoint &stelle : {QPoint(40, 0), QPoint(40, 23), QPoint(0, 12), QPoint(79, 12)}) {
        QCOMPARE(bild.pixelColor(stelle) == QColor(Qt::magenta), rand);
    }
    QVERIFY(bild.pixelColor(40, 4) != QColor(Qt::magenta));
}

void TestFokusstil::aChoiceIsSeenInTheDark_data()
{
    QTest::addColumn<bool>("rund");
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("a box in the dark") << false << true;
    QTest::newRow("a box in the light") << false << false;
    QTest::newRow("a round one in the dark") << true << true;
    QTest::newRow("a round one in the light") << true << false;
}

void TestFokusstil::aChoiceIsSeenInTheDark()
{
    QFETCH(bool, rund);
    QFETCH(bool, dunkel);
    std::unique_ptr<QAbstractButton> knopf;
    if (rund) {
        knopf = std::make_unique<QRadioButton>();
    } else {
        knopf = std::make_unique<QCheckBox>();
    }
    const QColor fenster = dunkel ? QColor(0x23, 0x25, 0x27) : QColor(0xf6, 0xf6, 0xf4);
    QPalette farben(fenster);
    farben.setColor(QPalette::Window, fenster);
    farben.setColor(QPalette::PlaceholderText, Qt::magenta);
    knopf->setPalette(farben);
    knopf->setFocusPolicy(Qt::NoFocus);
    knopf->resize(24, 24);
    const QImage bild = knopf->grab().toImage();
    int gefaerbt = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor punkt = bild.pixelColor(x, y);
            gefaerbt += punkt.red() > punkt.green() + 100 && punkt.blue() > punkt.green() + 100;
        }
    }
    QCOMPARE(gefaerbt > 20, dunkel);
    QCOMPARE(gefaerbt > 0, dunkel);
}

QTEST_MAIN(TestFokusstil)
#include "TestFokusstil.moc"
