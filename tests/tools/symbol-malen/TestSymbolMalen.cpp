#include "Werkzeuglauf.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The program that paints the icons, as the build calls it.
class TestSymbolMalen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDrawingFillsThePicture_data();
    void aDrawingFillsThePicture();
    void twoPaintingsAreTheSameBytes();
    void whatCantBePaintedIsTold_data();
    void whatCantBePaintedIsTold();

private:
    QString pfad(const QString &name) const { return m_ordner.filePath(name); }

    QTemporaryDir m_ordner;
};

/// A drawing that is red on the left, clear on the right.
void TestSymbolMalen::initTestCase()
{
    QFile datei(pfad(u"halb.svg"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QVERIFY(datei.write("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">"
                        "<rect width=\"4\" height=\"8\" fill=\"#ff0000\"/></svg>") > 0);
}

void TestSymbolMalen::aDrawingFillsThePicture_data()
{
    QTest::addColumn<int>("groesse");
    for (const int groesse : {2, 16, 1024}) {
        QTest::addRow("%d points", groesse) << groesse;
    }
}

void TestSymbolMalen::aDrawingFillsThePicture()
{
    QFETCH(int, groesse);
    const QString ziel = pfad(u"bild.png"_s);
    const Lauf lauf = starten(MALEN, {pfad(u"halb.svg"_s), QString::number(groesse), ziel});
    QCOMPARE(lauf.fehler, QString());
    QCOMPARE(lauf.ausgang, 0);
    const QImage bild(ziel);
    QCOMPARE(bild.size(), QSize(groesse, groesse));
    QCOMPARE(bild.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(bild.pixelColor(groesse / 2 - 1, groesse - 1), QColor(Qt::red));
    QCOMPARE(bild.pixelColor(groesse / 2, 0).alpha(), 0);
    QCOMPARE(bild.pixelColor(groesse - 1, groesse - 1).alpha(), 0);
}

void TestSymbolMalen::twoPaintingsAreTheSameBytes()
{
    QList<QByteArray> inhalte;
    for (const QString &name : {u"eins.png"_s, u"zwei.png"_s}) {
        QCOMPARE(starten(MALEN, {pfad(u"halb.svg"_s), u"48"_s, pfad(name)}).ausgang, 0);
        QFile datei(pfad(name));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        inhalte << datei.readAll();
    }
    QCOMPARE(inhalte.first(), inhalte.last());
}

void TestSymbolMalen::whatCantBePaintedIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ausgang");
    QTest::addColumn<QString>("meldung");
    const QString halb = pfad(u"halb.svg"_s);
    const QString ziel = pfad(u"keins.png"_s);
    QTest::newRow("nothing") << QStringList() << 2 << u"usage:"_s;
    QTest::newRow("no picture named") << QStringList{halb, u"16"_s} << 2 << u"usage:"_s;
    QTest::newRow("no points") << QStringList{halb, u"0"_s, ziel} << 2 << u"usage:"_s;
    QTest::newRow("too many points") << QStringList{halb, u"1025"_s, ziel} << 2 << u"usage:"_s;
    QTest::newRow("a word for a size") << QStringList{halb, u"big"_s, ziel} << 2 << u"usage:"_s;
    QTest::newRow("no such drawing")
        << QStringList{u"/nowhere.svg"_s, u"16"_s, ziel} << 1 << u"/nowhere.svg: no drawing"_s;
    QTest::newRow("nowhere to write") << QStringList{halb, u"16"_s, u"/nowhere/bild.png"_s} << 1
                                      << u"/nowhere/bild.png: can't be written"_s;
}

void TestSymbolMalen::whatCantBePaintedIsTold()
{
    QFETCH(QStringList, argumente);
    QFETCH(int, ausgang);
    QFETCH(QString, meldung);
    const Lauf lauf = starten(MALEN, argumente);
    QCOMPARE(lauf.ausgang, ausgang);
    QVERIFY2(lauf.fehler.contains(meldung), qPrintable(lauf.fehler));
    QVERIFY(!QFile::exists(pfad(u"keins.png"_s)));
}

QTEST_GUILESS_MAIN(TestSymbolMalen)
#include "TestSymbolMalen.moc"
