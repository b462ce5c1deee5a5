#include "Tabellenansicht.h"

#include <QImage>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Two columns of empty cells, so that nothing but the lines is painted in them.
class Leerquelle : public Tabellenquelle
{
public:
    int numberOfRows() const override { return 6; }
    QString objectValue(const QString & /*spalte*/, int /*zeile*/) override { return {}; }
};

} // namespace

/// What a table paints: its lines, and the picture of what is dragged out of it.
class TestTabellenbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_tabelle.reset(); }
    void uprightLinesAreSolidAndTheOthersDashed_data();
    void uprightLinesAreSolidAndTheOthersDashed();
    void withoutAGridThereAreNoLines();
    void theSelectedRowIsMarkedAtItsBeginning_data();
    void theSelectedRowIsMarkedAtItsBeginning();
    void theDragsPictureShowsTheName_data();
    void theDragsPictureShowsTheName();
    void theDragsPictureDiffersByName();
    void theDragsPictureSpeaksTheUsersLanguage();
    void aLongNameIsCutOffInTheDragsPicture();

private:
    QRect zelle(int zeile, int spalte) const
    {
        return m_tabelle->visualRect(m_tabelle->model()->index(zeile, spalte));
    }
    void kleide(bool dunkel);

    Leerquelle m_quelle;
    std::unique_ptr<Tabellenansicht> m_tabelle;
};

namespace {

/// How many pixels of a picture have a colour.
int gezaehlt(const QImage &bild, const QRect &flaeche, const QColor &farbe)
{
    int zahl = 0;
    for (int y = flaeche.top(); y <= flaeche.bottom(); ++y) {
        for (int x = flaeche.left(); x <= flaeche.right(); ++x) {
            zahl += bild.pixelColor(x, y) == farbe ? 1 : 0;
        }
    }
    return zahl;
}

} // namespace

void TestTabellenbild::init()
{
    m_tabelle = std::make_unique<Tabellenansicht>();
    m_tabelle->setQuelle(&m_quelle, {{u"a"_s, u"A"_s}, {u"b"_s, u"B"_s}});
    m_tabelle->setRowHeight(23);
    m_tabelle->setColumnWidth(0, 150);
    m_tabelle->setColumnWidth(1, 100);
    m_tabelle->setGitter(true);
    m_tabelle->setAlternatingRowColors(true);
    m_tabelle->resize(300, 250);
    m_tabelle->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tabelle.get()));
}

void TestTabellenbild::kleide(bool dunkel)
{
    QPalette farben = m_tabelle->palette();
    farben.setColor(QPalette::Base, dunkel ? QColor(0x1c, 0x1e, 0x20) : QColor(Qt::white));
    farben.setColor(QPalette::AlternateBase,
                    dunkel ? QColor(0x25, 0x28, 0x2a) : QColor(0xf1, 0xf5, 0xf1));
    farben.setColor(QPalette::Text, dunkel ? QColor(0xec, 0xec, 0xec) : QColor(0x1e, 0x1e, 0x1e));
    farben.setColor(QPalette::Midlight,
                    dunkel ? QColor(0x45, 0x49, 0x4e) : QColor(0xd6, 0xd6, 0xd3));
    m_tabelle->setPalette(farben);
}

void TestTabellenbild::uprightLinesAreSolidAndTheOthersDashed_data()
{
    QTest::addColumn<bool>("dunkel");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::newRow("the first cell, in the light") << false << 0 << 0;
    QTest::newRow("a row with the other ground") << false << 1 << 0;
    QTest::newRow("the last column") << false << 2 << 1;
    QTest::newRow("the last cell, in the dark") << true << 5 << 1;
    QTest::newRow("a cell within, in the dark") << true << 3 << 0;
}

void TestTabellenbild::uprightLinesAreSolidAndTheOthersDashed()
{
    QFETCH(bool, dunkel);
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    kleide(dunkel);
    const QImage bild = m_tabelle->viewport()->grab().toImage();
    const QColor linie = m_tabelle->palette().color(QPalette::Midlight);
    const QRect feld = zelle(zeile, spalte);
    const QRect senkrecht(feld.right(), feld.top(), 1, feld.height());
    QCOMPARE(gezaehlt(bild, senkrecht, linie), feld.height());
    const QRect waagrecht(feld.left(), feld.bottom(), feld.width() - 1, 1);
    const int striche = gezaehlt(bild, waagrecht, linie);
    QVERIFY(striche > waagrecht.width() / 2); // dashes longer than the gaps between them
    QVERIFY(striche < waagrecht.width() * 3 / 4);
    const QRect innen = feld.adjusted(0, 0, -1, -1);
    QCOMPARE(gezaehlt(bild, innen, linie), 0);
}

void TestTabellenbild::withoutAGridThereAreNoLines()
{
    m_tabelle->setGitter(false);
    kleide(false);
    const QImage bild = m_tabelle->viewport()->grab().toImage();
    const QColor linie = m_tabelle->palette().color(QPalette::Midlight);
    QCOMPARE(gezaehlt(bild, zelle(0, 0).united(zelle(5, 1)), linie), 0);
}

void TestTabellenbild::theSelectedRowIsMarkedAtItsBeginning_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<bool>("ganzeZeilen");
    QTest::addColumn<int>("marken"); // of 4 x 23 points
    QTest::newRow("the first row") << 0 << false << 92;
    QTest::newRow("a row far down") << 4 << false << 92;
    QTest::newRow("a row that is coloured as a whole needs none") << 4 << true << 0;
}

/// The row is selected in the second column, as after a search; no other row has a mark.
void TestTabellenbild::theSelectedRowIsMarkedAtItsBeginning()
{
    QFETCH(int, zeile);
    QFETCH(bool, ganzeZeilen);
    QFETCH(int, marken);
    QPalette farben = m_tabelle->palette();
    farben.setColor(QPalette::Highlight, Qt::magenta);
    m_tabelle->setPalette(farben);
    m_tabelle->setGitter(false);
    m_tabelle->setzeSchreibmarke(2, u"b"_s);
    m_tabelle->setSelectionBehavior(ganzeZeilen ? QAbstractItemView::SelectRows
                                                : QAbstractItemView::SelectItems);
    m_tabelle->selectionModel()->select(m_tabelle->model()->index(zeile, 1),
                                        QItemSelectionModel::ClearAndSelect);
    const QImage bild = m_tabelle->viewport()->grab().toImage();
    for (int andere = 0; andere < 6; ++andere) {
        QRect anfang = zelle(andere, 0);
        anfang.setWidth(4);
        QCOMPARE(gezaehlt(bild, anfang, Qt::magenta), andere == zeile ? marken : 0);
    }
}

void TestTabellenbild::theDragsPictureShowsTheName_data()
{
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("in the light") << false;
    QTest::newRow("in the dark") << true;
}

void TestTabellenbild::theDragsPictureShowsTheName()
{
    QFETCH(bool, dunkel);
    kleide(dunkel);
    const QPixmap bild = m_tabelle->ziehbild(u"Magerquark"_s);
    const QSizeF groesse = bild.deviceIndependentSize();
    const int wort = m_tabelle->fontMetrics().horizontalAdvance(u"Magerquark"_s);
    QVERIFY(groesse.width() > wort && groesse.width() < wort + 40);
    QVERIFY(groesse.height() >= m_tabelle->fontMetrics().height());
    const QImage gemalt = bild.toImage();
    const QRect innen = gemalt.rect().adjusted(4, 4, -4, -4);
    const int grund = gezaehlt(gemalt, innen, m_tabelle->palette().color(QPalette::Base));
    QVERIFY(grund > innen.width() * innen.height() / 3);
    QVERIFY(grund < innen.width() * innen.height() - 100); // the letters
    QCOMPARE(gemalt.pixelColor(0, 0).alpha(), 0);          // the corners are round
}

void TestTabellenbild::theDragsPictureDiffersByName()
{
    QCOMPARE(m_tabelle->ziehbild(u"Apfel"_s).toImage(), m_tabelle->ziehbild(u"Apfel"_s).toImage());
    QVERIFY(m_tabelle->ziehbild(u"Apfel"_s).toImage() != m_tabelle->ziehbild(u"Ampel"_s).toImage());
}

void TestTabellenbild::theDragsPictureSpeaksTheUsersLanguage()
{
    const QImage apple = m_tabelle->ziehbild(u"Apple"_s).toImage();
    class Woerter : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "Apfel") == 0 ? u"Apple"_s : QString();
        }
    };
    Woerter woerter;
    QCoreApplication::installTranslator(&woerter);
    QCOMPARE(m_tabelle->ziehbild(u"Apfel"_s).toImage(), apple);
}

void TestTabellenbild::aLongNameIsCutOffInTheDragsPicture()
{
    const QPixmap bild = m_tabelle->ziehbild(u"Apfelkuchen mit Guss "_s.repeated(20));
    QVERIFY(bild.deviceIndependentSize().width() < 360);
    QVERIFY(bild.deviceIndependentSize().width() > 250);
}

QTEST_MAIN(TestTabellenbild)
#include "TestTabellenbild.moc"
