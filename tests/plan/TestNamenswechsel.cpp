#include "Archivdatei.h"
#include "Namenswechsel.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Former names of foods: what is read of them, which foods of a plan have one, and that those of
/// the shipped table lead to foods that it has.
class TestNamenswechsel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remarksAndLinesWithoutAPairAreNone();
    void aFileThatIsNotThereHoldsNone();
    void onlyNamesThatTheTableHasCount();
    void foodsAreToldApart_data();
    void foodsAreToldApart();
    void everyShippedNameOfTodayIsInTheTable();
    void noShippedFormerNameIsInTheTable();
    void theShippedNamesAreSorted();
};

namespace {

const QString ausgeliefert = u":/Umbenannt.csv"_s;

Lebensmittelverzeichnis tabelle()
{
    return Archivdatei::lesen(u":/DatabaseIII.daten"_s).archiv.verzeichnis;
}

} // namespace

void TestNamenswechsel::remarksAndLinesWithoutAPairAreNone()
{
    const QTemporaryDir ordner;
    const QString path = ordner.filePath(u"namen.csv"_s);
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("# einst;jetzt\nBürli;Brötchen (Bürli)\n\nallein\n;Nichts\nKohl, roh;Rotkohl\r\n");
    datei.close();
    QCOMPARE(leseNamenswechsel(path),
             Namenswechsel({{u"Bürli"_s, u"Brötchen (Bürli)"_s}, {u"Kohl, roh"_s, u"Rotkohl"_s}}));
}

void TestNamenswechsel::aFileThatIsNotThereHoldsNone()
{
    QVERIFY(leseNamenswechsel(u"/nirgends/namen.csv"_s).isEmpty());
}

void TestNamenswechsel::onlyNamesThatTheTableHasCount()
{
    const QTemporaryDir ordner;
    const QString path = ordner.filePath(u"namen.csv"_s);
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("Bürli;Brötchen\nKohl;Rotkohl\n");
    datei.close();
    const Lebensmittelverzeichnis eingebaute = {{u"Rotkohl"_s, {}}, {u"Bürli"_s, {}}};
    QCOMPARE(leseNamenswechsel(path, eingebaute), Namenswechsel({{u"Kohl"_s, u"Rotkohl"_s}}));
}

void TestNamenswechsel::foodsAreToldApart_data()
{
    QTest::addColumn<QString>("unbekannt");
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("befund");
    QTest::newRow("all are known") << u""_s << u"Brot"_s << u"||"_s;
    QTest::newRow("another name") << u"Linse"_s << u"Brot Linse"_s << u"Linse||"_s;
    QTest::newRow("the new name is there as well")
        << u"Linse"_s << u"Linse Linsen"_s << u"|Linse|"_s;
    QTest::newRow("no name any more") << u"Moa"_s << u"Moa"_s << u"||Moa"_s;
    QTest::newRow("a food in two rows is one")
        << u"Linse Linse"_s << u"Linse Linse"_s << u"Linse||"_s;
    QTest::newRow("two that are one food now")
        << u"Linse Linsenfrucht"_s << u"Linse Linsenfrucht"_s << u"Linse|Linsenfrucht|"_s;
    QTest::newRow("in the order of the rows")
        << u"Ente Moa Ara Linse"_s << u"Ente Moa Ara Linse"_s << u"Ente Linse||Moa Ara"_s;
}

void TestNamenswechsel::foodsAreToldApart()
{
    QFETCH(QString, unbekannt);
    QFETCH(QString, plan);
    QFETCH(QString, befund);
    const Namenswechsel wechsel = {
        {u"Linse"_s, u"Linsen"_s}, {u"Linsenfrucht"_s, u"Linsen"_s}, {u"Ente"_s, u"Enten"_s}};
    const Namensbefund gefunden = pruefeNamen(unbekannt.split(u' ', Qt::SkipEmptyParts),
                                              plan.split(u' ', Qt::SkipEmptyParts), wechsel);
    QCOMPARE(gefunden.umbenannt.join(u' ') + u'|' + gefunden.doppelt.join(u' ') + u'|' +
                 gefunden.fehlend.join(u' '),
             befund);
}

void TestNamenswechsel::everyShippedNameOfTodayIsInTheTable()
{
    const Lebensmittelverzeichnis lebensmittel = tabelle();
    const Namenswechsel wechsel = leseNamenswechsel(ausgeliefert);
    QCOMPARE(wechsel.size(), 711);
    for (const QString &neu : wechsel) {
        QVERIFY2(lebensmittel.contains(neu), qPrintable(neu));
    }
}

void TestNamenswechsel::noShippedFormerNameIsInTheTable()
{
    const Lebensmittelverzeichnis lebensmittel = tabelle();
    const QStringList einst = leseNamenswechsel(ausgeliefert).keys();
    for (const QString &alt : einst) {
        QVERIFY2(!lebensmittel.contains(alt), qPrintable(alt));
    }
}

void TestNamenswechsel::theShippedNamesAreSorted()
{
    QFile datei(ausgeliefert);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QByteArrayList zeilen = datei.readAll().trimmed().split('\n');
    QVERIFY(zeilen.takeFirst().startsWith("# "));
    QCOMPARE(zeilen.size(), 711);
    QVERIFY(std::is_sorted(zeilen.begin(), zeilen.end()));
}

QTEST_MAIN(TestNamenswechsel)
#include "TestNamenswechsel.moc"
