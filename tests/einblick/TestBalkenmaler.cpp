// A cell that shows a share as a bar with its figure beside it.

#include "Balkenmaler.h"

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class TestBalkenmaler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theBarIsAsLongAsTheShare_data();
    void theBarIsAsLongAsTheShare();
    void theBarLeavesRoomForTheFigure();
    void theFigureStandsAtTheRightAlone();
    void aChosenCellIsReadable();
    void theNarrowestColumnHasRoomForABar();
    void aCellWithoutAShareIsPaintedAsAnyOther();

private:
    QImage gemalt(const QAbstractItemDelegate &maler, bool gewaehlt = false) const;
    QImage gemalt(double anteil);
    int balkenlaenge(const QImage &bild) const;
    int zahlbreite() const { return m_zelle.fontMetrics.horizontalAdvance(u"100 %"_s); }

    Balkenmaler m_maler{nullptr};
    QStandardItemModel m_modell{1, 1};
    QStyleOptionViewItem m_zelle;
};

void TestBalkenmaler::init()
{
    m_modell.clear();
    m_modell.setItem(0, 0, new QStandardItem(u"7 %"_s));
    m_zelle = QStyleOptionViewItem();
    m_zelle.state = QStyle::State_Enabled | QStyle::State_Active;
    m_zelle.palette = QPalette(Qt::black, Qt::white);
    m_zelle.palette.setColor(QPalette::Text, Qt::black);
    m_zelle.palette.setColor(QPalette::Highlight, Qt::blue);
    m_zelle.palette.setColor(QPalette::HighlightedText, Qt::yellow);
    m_zelle.showDecorationSelected = true; // as tables want it
    m_zelle.rect = QRect(0, 0, 300, 30);
}

QImage TestBalkenmaler::gemalt(const QAbstractItemDelegate &maler, bool gewaehlt) const
{
    QStyleOptionViewItem zelle = m_zelle;
    zelle.state.setFlag(QStyle::State_Selected, gewaehlt);
    QImage bild(zelle.rect.size(), QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter painter(&bild);
    maler.paint(&painter, zelle, m_modell.index(0, 0));
    painter.end();
    return bild;
}

QImage TestBalkenmaler::gemalt(double anteil)
{
    m_modell.item(0, 0)->setData(anteil, Balkenmaler::anteilrolle);
    return gemalt(m_maler);
}

/// How many pixels of the bar are seen in the middle of the cell, from its left end.
int TestBalkenmaler::balkenlaenge(const QImage &bild) const
{
    const int y = bild.height() / 2;
    int links = 0;
    while (links < bild.width() && bild.pixel(links, y) == bild.pixel(0, 0)) {
        ++links;
    }
    int rechts = links;
    while (rechts < bild.width() && bild.pixel(rechts, y) == bild.pixel(links, y)) {
        ++rechts;
    }
    return links < bild.width() - zahlbreite() ? rechts - links : 0;
}

void TestBalkenmaler::theBarIsAsLongAsTheShare_data()
{
    QTest::addColumn<double>("anteil");
    QTest::addColumn<double>("laenge"); // a part of the longest bar
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("a quarter") << 0.25 << 0.25;
    QTest::newRow("a half") << 0.5 << 0.5;
    QTest::newRow("all") << 1.0 << 1.0;
    QTest::newRow("no bar is longer than that") << 3.0 << 1.0;
    QTest::newRow("or grows to the left") << -0.5 << 0.0;
}

void TestBalkenmaler::theBarIsAsLongAsTheShare()
{
    QFETCH(const double, anteil);
    QFETCH(const double, laenge);
    const int laengste = balkenlaenge(gemalt(1));
    QVERIFY(laengste > 100);
    QVERIFY(std::abs(balkenlaenge(gemalt(anteil)) - laenge * laengste) <= 1);
}

void TestBalkenmaler::theBarLeavesRoomForTheFigure()
{
    const QImage bild = gemalt(1);
    const QImage ohne = gemalt(0);
    constexpr int luft = 6; // beside the figure on both sides
    for (int x = bild.width() - zahlbreite() - 2 * luft; x < bild.width(); ++x) {
        for (int y = 0; y < bild.height(); ++y) {
            QCOMPARE(bild.pixel(x, y), ohne.pixel(x, y));
        }
    }
}

void TestBalkenmaler::theFigureStandsAtTheRightAlone()
{
    const QImage bild = gemalt(0);
    const int mitte = bild.width() / 2;
    int letzte = 0;
    for (int x = 0; x < bild.width(); ++x) {
        for (int y = 0; y < bild.height(); ++y) {
            const bool leer = bild.pixel(x, y) == qRgb(255, 255, 255);
            QVERIFY(leer || x > mitte);
            letzte = leer ? letzte : x;
        }
    }
    QVERIFY(letzte > bild.width() - 10);
}

/// The bar lets the ground through: half yellow on blue is grey.
void TestBalkenmaler::aChosenCellIsReadable()
{
    m_modell.item(0, 0)->setData(0.5, Balkenmaler::anteilrolle);
    const QColor balken = gemalt(m_maler, true).pixelColor(50, m_zelle.rect.height() / 2);
    QVERIFY(std::abs(balken.red() - 127) <= 2);
    QVERIFY(std::abs(balken.green() - 127) <= 2);
    QVERIFY(std::abs(balken.blue() - 128) <= 2);
}

/// Fourteen letters; shorter bars can't be compared.
void TestBalkenmaler::theNarrowestColumnHasRoomForABar()
{
    m_zelle.rect.setWidth(m_maler.sizeHint(m_zelle, m_modell.index(0, 0)).width());
    QVERIFY(balkenlaenge(gemalt(1)) >= 14 * m_zelle.fontMetrics.averageCharWidth() - 1);
}

void TestBalkenmaler::aCellWithoutAShareIsPaintedAsAnyOther()
{
    const QStyledItemDelegate irgendeiner;
    const QImage ohne = gemalt(m_maler);
    QCOMPARE(ohne, gemalt(irgendeiner));
    QVERIFY(ohne != gemalt(0));
}

QTEST_MAIN(TestBalkenmaler)
#include "TestBalkenmaler.moc"
