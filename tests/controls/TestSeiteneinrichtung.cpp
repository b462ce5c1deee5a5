#include "Seiteneinrichtung.h"

#include <QLocale>
#include <QMarginsF>
#include <QPageSize>
#include <QRectF>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class TestSeiteneinrichtung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void atFirstItIsThePaperOfTheCountry();
    void itComesBackAsItWasKept_data();
    void itComesBackAsItWasKept();
    void nonsenseIsTheDefault_data();
    void nonsenseIsTheDefault();
    void marginsThatLeaveNoRoomAreForgotten();

private:
    QTemporaryDir m_ordner;
    QString datei() const { return m_ordner.filePath(QStringLiteral("s.ini")); }
};

void TestSeiteneinrichtung::atFirstItIsThePaperOfTheCountry()
{
    const QSettings leer(m_ordner.filePath(QStringLiteral("leer.ini")), QSettings::IniFormat);
    QCOMPARE(gemerkteSeite(leer).pageSize().id(), QPageSize::A4);
    QCOMPARE(gemerkteSeite(leer).orientation(), QPageLayout::Portrait);
    QCOMPARE(gemerkteSeite(leer).margins(), QMarginsF());
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(gemerkteSeite(leer).pageSize().id(), QPageSize::Letter);
}

void TestSeiteneinrichtung::itComesBackAsItWasKept_data()
{
    QTest::addColumn<QPageLayout>("seite");
    QTest::newRow("Letter across")
        << QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Landscape, {10, 20, 30, 40},
                       QPageLayout::Millimeter);
    QTest::newRow("A5 upright, margins in points") << QPageLayout(
        QPageSize(QPageSize::A5), QPageLayout::Portrait, {72, 36, 18, 9}, QPageLayout::Point);
    QTest::newRow("a paper without a name")
        << QPageLayout(QPageSize(QSizeF(123, 234), QPageSize::Millimeter), QPageLayout::Portrait,
                       {}, QPageLayout::Millimeter);
}

void TestSeiteneinrichtung::itComesBackAsItWasKept()
{
    QFETCH(QPageLayout, seite);
    {
        QSettings einstellungen(datei(), QSettings::IniFormat);
        merkeSeite(einstellungen, seite);
    }
    const QPageLayout zurueck = gemerkteSeite(QSettings(datei(), QSettings::IniFormat));
    QCOMPARE(zurueck.pageSize().id(), seite.pageSize().id());
    QCOMPARE(zurueck.fullRect(QPageLayout::Point), seite.fullRect(QPageLayout::Point));
    QCOMPARE(zurueck.orientation(), seite.orientation());
    const QMarginsF rand = seite.margins(QPageLayout::Millimeter);
    const QMarginsF wieder = zurueck.margins(QPageLayout::Millimeter);
    for (const auto &[da, dort] :
         {std::pair(rand.left(), wieder.left()), std::pair(rand.top(), wieder.top()),
          std::pair(rand.right(), wieder.right()), std::pair(rand.bottom(), wieder.bottom())}) {
        QVERIFY(qAbs(da - dort) < 0.01);
    }
}

void TestSeiteneinrichtung::nonsenseIsTheDefault_data()
{
    QTest::addColumn<QString>("schluessel");
    QTest::addColumn<QVariant>("wert");
    QTest::newRow("a width in words")
        << QStringLiteral("Seite/Breite") << QVariant(QStringLiteral("breit"));
    QTest::newRow("a height below zero") << QStringLiteral("Seite/Hoehe") << QVariant(-297.0);
    QTest::newRow("a height of a mile") << QStringLiteral("Seite/Hoehe") << QVariant(1609344.0);
    QTest::newRow("no number") << QStringLiteral("Seite/Breite") << QVariant(QStringLiteral("nan"));
}

void TestSeiteneinrichtung::nonsenseIsTheDefault()
{
    QFETCH(QString, schluessel);
    QFETCH(QVariant, wert);
    QSettings einstellungen(m_ordner.filePath(QStringLiteral("unsinn.ini")), QSettings::IniFormat);
    merkeSeite(einstellungen, QPageLayout(QPageSize(QPageSize::A3), QPageLayout::Portrait, {}));
    QCOMPARE(gemerkteSeite(einstellungen).pageSize().id(), QPageSize::A3);
    einstellungen.setValue(schluessel, wert);
    QCOMPARE(gemerkteSeite(einstellungen).pageSize().id(), QPageSize::A4);
}

void TestSeiteneinrichtung::marginsThatLeaveNoRoomAreForgotten()
{
    QSettings einstellungen(m_ordner.filePath(QStringLiteral("rand.ini")), QSettings::IniFormat);
    einstellungen.setValue(QStringLiteral("Seite/Raender"), QVariantList{110.0, 0.0, 110.0, 0.0});
    QCOMPARE(gemerkteSeite(einstellungen).margins(), QMarginsF());
    QCOMPARE(gemerkteSeite(einstellungen).paintRect(QPageLayout::Point), QRectF(0, 0, 595, 842));
}

QTEST_GUILESS_MAIN(TestSeiteneinrichtung)
#include "TestSeiteneinrichtung.moc"
