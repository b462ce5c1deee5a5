#include "Bestandsvergleich.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestBestandsvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreComparedToTheLastBit_data();
    void recordsAreComparedToTheLastBit();
    void storesAreComparedByName_data();
    void storesAreComparedByName();
    void aCopyOfAStoreIsEqual();
};

namespace {

Datenmodul speise(const QString &name, float kal = 100, const QString &gicht = QStringLiteral("0"))
{
    Datenmodul neu;
    neu.setName(name);
    neu.setkal(kal);
    neu.setgicht(gicht);
    return neu;
}

/// "A1 B2": a food "A" with 1 kcal and a food "B" with 2 kcal; "_3" is one without a name.
Lebensmittelverzeichnis bestand(const QString &text)
{
    Lebensmittelverzeichnis neu;
    for (const QString &wort : text.split(u' ', Qt::SkipEmptyParts)) {
        const QString name = wort.startsWith(u'_') ? QStringLiteral("") : wort.left(1);
        neu.insert(name, speise(name, wort.mid(1).toFloat()));
    }
    return neu;
}

} // namespace

void TestBestandsvergleich::recordsAreComparedToTheLastBit_data()
{
    constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<Datenmodul>("eines");
    QTest::addColumn<Datenmodul>("anderes");
    QTest::addColumn<bool>("erwartet");
    const QString a = QStringLiteral("A");
    QTest::newRow("all the same") << speise(a) << speise(a) << true;
    QTest::newRow("another name") << speise(a) << speise(QStringLiteral("B")) << false;
    QTest::newRow("the last bit of a value")
        << speise(a, 0.1F) << speise(a, std::nextafter(0.1F, 1.0F)) << false;
    QTest::newRow("no number twice") << speise(a, keineZahl) << speise(a, keineZahl) << true;
    QTest::newRow("a negative zero") << speise(a, 0.0F) << speise(a, -0.0F) << false;
    QTest::newRow("another rating") << speise(a) << speise(a, 1, QStringLiteral("+")) << false;
    QTest::newRow("an absent rating beside an empty one")
        << speise(a, 1, QString()) << speise(a, 1, QStringLiteral("")) << false;
    Datenmodul letzter = speise(a);
    letzter.setvitc(1);
    QTest::newRow("the last of the values") << speise(a) << letzter << false;
    Datenmodul joule = speise(a);
    joule.joule = 5;
    QTest::newRow("the slot that nothing stores") << speise(a) << joule << true;
}

void TestBestandsvergleich::recordsAreComparedToTheLastBit()
{
    QFETCH(Datenmodul, eines);
    QFETCH(Datenmodul, anderes);
    QFETCH(bool, erwartet);
    QCOMPARE(gleich(eines, anderes), erwartet);
    QCOMPARE(gleich(anderes, eines), erwartet);
}

void TestBestandsvergleich::storesAreComparedByName_data()
{
    QTest::addColumn<QString>("erster");
    QTest::addColumn<QString>("zweiter");
    QTest::addColumn<QString>("fehlend");
    QTest::addColumn<QString>("zusaetzlich");
    QTest::addColumn<QString>("anders");
    const auto zeile = [](const char *name, const char *erster, const char *zweiter,
                          const char *fehlend, const char *zusaetzlich, const char *anders) {
        QTest::newRow(name) << QString::fromLatin1(erster) << QString::fromLatin1(zweiter)
                            << QString::fromLatin1(fehlend) << QString::fromLatin1(zusaetzlich)
                            << QString::fromLatin1(anders);
    };
    zeile("both empty", "", "", "", "", "");
    zeile("the same foods", "A1 B2", "A1 B2", "", "", "");
    zeile("only the first holds foods", "A1 B2", "", "A,B", "", "");
    zeile("only the second holds foods", "", "A1 B2", "", "A,B", "");
    zeile("one is missing in the middle", "A1 B2 C3", "A1 C3", "B", "", "");
    zeile("one more at the end", "A1", "A1 B2", "", "B", "");
    zeile("other values", "A1 B2 C3", "A1 B9 C3", "", "", "B");
    zeile("one without a name", "A1", "_5 A1", "", "", "");
    zeile("all at once", "A1 B2 D4", "B3 C1 D4 E5", "A", "C,E", "B");
}

void TestBestandsvergleich::storesAreComparedByName()
{
    QFETCH(QString, erster);
    QFETCH(QString, zweiter);
    QFETCH(QString, fehlend);
    QFETCH(QString, zusaetzlich);
    QFETCH(QString, anders);
    const Bestandsunterschied unterschied = vergleiche(bestand(erster), bestand(zweiter));
    const auto namen = [](const QString &text) {
        return text.split(u',', Qt::SkipEmptyParts);
    };
    const bool namenlos = zweiter.startsWith(u'_');
    QCOMPARE(unterschied.fehlend, namen(fehlend));
    QCOMPARE(unterschied.zusaetzlich, namenlos ? QStringList{QString()} : namen(zusaetzlich));
    QCOMPARE(unterschied.anders, namen(anders));
    QCOMPARE(unterschied.leer(),
             fehlend.isEmpty() && zusaetzlich.isEmpty() && anders.isEmpty() && !namenlos);
}

void TestBestandsvergleich::aCopyOfAStoreIsEqual()
{
    const Lebensmittelverzeichnis eines = {
        {QStringLiteral("A"),
         speise(QStringLiteral("A"), std::numeric_limits<float>::quiet_NaN())}};
    QVERIFY(vergleiche(eines, Lebensmittelverzeichnis(eines)).leer());
    Lebensmittelverzeichnis geaendert = eines;
    geaendert[QStringLiteral("A")].setkal(1);
    QCOMPARE(vergleiche(eines, geaendert).anders, QStringList{QStringLiteral("A")});
}

QTEST_GUILESS_MAIN(TestBestandsvergleich)
#include "TestBestandsvergleich.moc"
