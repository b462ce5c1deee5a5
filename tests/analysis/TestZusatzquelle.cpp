// What is known of the built-in foods beside their records, as the windows ask for it.

#include "Stoerung.h"
#include "Zusatzdatei.h"
#include "Zusatzquelle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray inhalt(double zucker)
{
    return Zusatzdatei::text({{u"Hefe"_s,
                               {.gruppe = lebensmittelgruppe(u"Hefe"_s),
                                .zucker = zucker,
                                .purinklasse = Purinklasse::Hoch}}});
}

std::optional<double> zucker(const Zusatzquelle &quelle)
{
    const Zusatzwerte *const werte = quelle.wissen().zusatz(u"Hefe"_s);
    return werte != nullptr ? werte->zucker : std::nullopt;
}

} // namespace

class TestZusatzquelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsKnownIsTold();
    void itIsReadOnceAndOnlyWhenItIsAskedFor();
    void aDamagedTableTellsNothing_data();
    void aDamagedTableTellsNothing();
    void aMissingTableIsNamed_data();
    void aMissingTableIsNamed();
    void aTableThatCanNotBeReadIsNamed();
    void withoutAPathNothingIsKnown();
    void theShippedTableIsWhole();

private:
    void schreibe(const QByteArray &bytes) const;
    QString pfad() const { return m_ordner->filePath(u"Z.csv"_s); }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

void TestZusatzquelle::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    schreibe(inhalt(3));
}

void TestZusatzquelle::schreibe(const QByteArray &bytes) const
{
    QFile datei(pfad());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestZusatzquelle::whatIsKnownIsTold()
{
    const Zusatzquelle quelle(pfad());
    QCOMPARE(zucker(quelle), std::optional(3.0));
    QVERIFY(quelle.hindernis().isNull());
    const Stoffangabe angabe = quelle.wissen().je100g(u"Hefe"_s, Datenmodul(), Kenngroesse::zucker);
    QCOMPARE(angabe.wert, 3.0);
    QCOMPARE(angabe.unbekannt, 0.0);
}

void TestZusatzquelle::itIsReadOnceAndOnlyWhenItIsAskedFor()
{
    const Zusatzquelle quelle(pfad());
    schreibe(inhalt(4));
    QCOMPARE(zucker(quelle), std::optional(4.0));
    schreibe(inhalt(5));
    QCOMPARE(zucker(quelle), std::optional(4.0));
}

void TestZusatzquelle::aDamagedTableTellsNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("hindernis");
    const QByteArray gut = inhalt(3);
    const int ende = int(gut.count('\n'));
    QTest::newRow("empty") << QByteArray() << u"Z.csv:0: The table is empty"_s;
    QTest::newRow("cut off") << gut.chopped(3) << u"Z.csv:%1: 11 fields instead of 13"_s.arg(ende);
    QTest::newRow("a word for a figure")
        << QByteArray(gut).replace(";3;", ";x;")
        << u"Z.csv:%1: \"x\" is no number (column sugars)"_s.arg(ende);
    QTest::newRow("the first of two")
        << gut + "a;b;;;;;;;;;;;\nc;d;;;;;;;;;;;\n"
        << u"Z.csv:%1: \"b\" is unknown (column group)"_s.arg(ende + 1);
}

void TestZusatzquelle::aDamagedTableTellsNothing()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, hindernis);
    schreibe(bytes);
    const Zusatzquelle quelle(pfad());
    QVERIFY(quelle.wissen().tabelle().isEmpty());
    QCOMPARE(quelle.hindernis(), hindernis);
}

void TestZusatzquelle::aMissingTableIsNamed_data()
{
    QTest::addColumn<bool>("ordner");
    QTest::newRow("no file") << false;
    QTest::newRow("a folder instead") << true;
}

void TestZusatzquelle::aMissingTableIsNamed()
{
    QFETCH(const bool, ordner);
    QVERIFY(QFile::remove(pfad()));
    QVERIFY(!ordner || QDir().mkdir(pfad()));
    const Zusatzquelle quelle(pfad());
    QVERIFY(quelle.wissen().tabelle().isEmpty());
    QVERIFY2(quelle.hindernis().startsWith(pfad() + u": "_s), qPrintable(quelle.hindernis()));
}

void TestZusatzquelle::aTableThatCanNotBeReadIsNamed()
{
    int gescheiterte = 0;
    for (int heile = 0; heile < 10; ++heile) { // more reads than the file takes
        const Zusatzquelle quelle(pfad());
        const Stoerung stoerung(Stoerung::Schritt::Lesen, heile);
        const QString hindernis = quelle.hindernis();
        // What only fails behind the last byte has lost nothing.
        QCOMPARE(quelle.wissen().tabelle().size(), hindernis.isNull() ? 1 : 0);
        QVERIFY(hindernis.isNull() || hindernis.startsWith(pfad() + u": "_s));
        gescheiterte += hindernis.isNull() ? 0 : 1;
    }
    QVERIFY(gescheiterte > 0 && gescheiterte < 10);
}

void TestZusatzquelle::withoutAPathNothingIsKnown()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    const Zusatzquelle quelle{QString()};
    QVERIFY(quelle.wissen().tabelle().isEmpty());
    QVERIFY(!quelle.hindernis().isEmpty());
}

void TestZusatzquelle::theShippedTableIsWhole()
{
    const Zusatzquelle quelle(u":/Zusatzwerte.csv"_s);
    QCOMPARE(quelle.hindernis(), QString());
    QCOMPARE(quelle.wissen().tabelle().size(), 1015);
    // 3.3 g of water and 6.6 g of sugars; nobody weighed a millilitre of them.
    const Zusatzwerte *const mandeln = quelle.wissen().zusatz(u"Mandeln"_s);
    QVERIFY(mandeln != nullptr);
    QCOMPARE(mandeln->wasser, std::optional(3.3));
    QCOMPARE(mandeln->zucker, std::optional(6.6));
    QVERIFY(!mandeln->dichte);
}

QTEST_APPLESS_MAIN(TestZusatzquelle)
#include "TestZusatzquelle.moc"
