// The household measures of the built-in foods, as the windows ask for them.

#include "Auskunftsprobe.h"
#include "Portionentabelle.h"
#include "Stoerung.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray portionen =
    "group;name;except;de;de_many;en;en_many;grams;keys;note\n"
    "Brot und Brötchen;;;Scheibe;Scheiben;slice;slices;50;SGE;\n"
    "Brot und Brötchen;Toast;;Scheibe;Scheiben;slice;slices;20;DGP;\n"
    "Brot und Brötchen|Eier;;;Portion;Portionen;portion;portions;60;SGE;\n";

QByteArray lebensmittel()
{
    return Auskunftsprobe::datei({Auskunftsprobe::zeile(u"Toast, hell"_s, {}),
                                  Auskunftsprobe::zeile(u"Ei, roh"_s, {{u"group"_s, u"Eier"_s}}),
                                  Auskunftsprobe::zeile(u"Butter"_s, {{u"group"_s, u"Hefe"_s}})});
}

QStringList namen(const QList<Mass> &masse)
{
    QStringList liste;
    for (const Mass &mass : masse) {
        liste.append(u"%1 %2"_s.arg(mass.eines).arg(mass.gramm));
    }
    return liste;
}

} // namespace

class TestPortionentabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatCanNotBeReadGivesNoMeasuresAndTheReason_data();
    void whatCanNotBeReadGivesNoMeasuresAndTheReason();
    void aMissingFileIsNamed_data();
    void aMissingFileIsNamed();
    void aFileThatCanNotBeReadIsNamed();
    void withoutAPathNothingIsMeasured();
    void anUnknownFoodHasNoMeasures_data();
    void anUnknownFoodHasNoMeasures();
    void aFoodHasItsOwnMeasuresFirst();
    void measuresOfAGroupStandAsInTheTable();
    void theTablesAreReadOnceAndOnlyWhenTheyAreAskedFor();
    void everyShippedFoodIsMeasuredInNoTime();

private:
    void schreibe(const QString &name, const QByteArray &bytes) const;
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    Portionentabelle tabelle() const { return {pfad(u"P.csv"_s), pfad(u"L.csv"_s)}; }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

void TestPortionentabelle::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    schreibe(u"P.csv"_s, portionen);
    schreibe(u"L.csv"_s, lebensmittel());
}

void TestPortionentabelle::schreibe(const QString &name, const QByteArray &bytes) const
{
    QFile datei(pfad(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestPortionentabelle::whatCanNotBeReadGivesNoMeasuresAndTheReason_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<QString>("hindernis");
    QTest::newRow("empty measures")
        << u"P.csv"_s << QByteArray() << u"P.csv:0: The table is empty"_s;
    QTest::newRow("measures cut off")
        << u"P.csv"_s << portionen.chopped(20) << u"P.csv:4: 6 fields instead of 10"_s;
    QTest::newRow("a measure without a weight")
        << u"P.csv"_s << portionen + "Eier;;;a;b;c;d;0;SGE;\n"
        << u"P.csv:5: 0 g is not above 0 and at most 2000"_s;
    QTest::newRow("the first of several")
        << u"P.csv"_s << portionen + "Eier;;;a;b;c;d;0;SGE;\nEier;;;a;b;c;d;3000;SGE;\n"
        << u"P.csv:5: 0 g is not above 0 and at most 2000"_s;
    QTest::newRow("empty foods") << u"L.csv"_s << QByteArray() << u"L.csv:0: The table is empty"_s;
    QTest::newRow("foods cut off") << u"L.csv"_s << lebensmittel().chopped(60) << u"L.csv:4: "_s;
}

void TestPortionentabelle::whatCanNotBeReadGivesNoMeasuresAndTheReason()
{
    QFETCH(const QString, datei);
    QFETCH(const QByteArray, inhalt);
    QFETCH(const QString, hindernis);
    schreibe(datei, inhalt);
    const Portionentabelle gebrochen = tabelle();
    QVERIFY(gebrochen.masseFuer(u"Toast, hell"_s).isEmpty());
    QVERIFY2(gebrochen.hindernis().startsWith(hindernis), qPrintable(gebrochen.hindernis()));
}

void TestPortionentabelle::aMissingFileIsNamed_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<bool>("ordner");
    QTest::newRow("no measures") << u"P.csv"_s << false;
    QTest::newRow("no foods") << u"L.csv"_s << false;
    QTest::newRow("a folder instead of the measures") << u"P.csv"_s << true;
    QTest::newRow("a folder instead of the foods") << u"L.csv"_s << true;
}

void TestPortionentabelle::aMissingFileIsNamed()
{
    QFETCH(const QString, datei);
    QFETCH(const bool, ordner);
    QVERIFY(QFile::remove(pfad(datei)));
    QVERIFY(!ordner || QDir().mkdir(pfad(datei)));
    const Portionentabelle ohne = tabelle();
    QVERIFY(ohne.masseFuer(u"Toast, hell"_s).isEmpty());
    QVERIFY(ohne.hindernis().startsWith(pfad(datei) + u": "_s));
}

void TestPortionentabelle::aFileThatCanNotBeReadIsNamed()
{
    QSet<QString> genannte;
    for (int heile = 0; heile < 20; ++heile) { // more reads than both files take
        const Portionentabelle gestoert = tabelle();
        const Stoerung stoerung(Stoerung::Schritt::Lesen, heile);
        const QString hindernis = gestoert.hindernis();
        // What only fails behind the last byte has lost nothing.
        QCOMPARE(gestoert.masseFuer(u"Toast, hell"_s).size(), hindernis.isNull() ? 2 : 0);
        if (!hindernis.isNull()) {
            genannte.insert(hindernis.section(u": "_s, 0, 0));
        }
    }
    QCOMPARE(genannte, (QSet<QString>{pfad(u"P.csv"_s), pfad(u"L.csv"_s)}));
}

void TestPortionentabelle::withoutAPathNothingIsMeasured()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    const Portionentabelle ohne({}, pfad(u"L.csv"_s));
    QVERIFY(ohne.masseFuer(u"Toast, hell"_s).isEmpty());
    QVERIFY(!ohne.hindernis().isEmpty());
}

void TestPortionentabelle::anUnknownFoodHasNoMeasures_data()
{
    QTest::addColumn<QString>("schluessel");
    QTest::newRow("absent") << QString();
    QTest::newRow("unknown") << u"Toast, dunkel"_s;
    QTest::newRow("in other capitals") << u"toast, hell"_s;
    QTest::newRow("the placeholder") << u"-"_s;
    QTest::newRow("of a group without measures") << u"Butter"_s;
}

void TestPortionentabelle::anUnknownFoodHasNoMeasures()
{
    QFETCH(const QString, schluessel);
    const Portionentabelle gut = tabelle();
    QVERIFY(gut.masseFuer(schluessel).isEmpty());
    QVERIFY(gut.hindernis().isNull());
}

void TestPortionentabelle::aFoodHasItsOwnMeasuresFirst()
{
    const Portionentabelle gut = tabelle();
    QCOMPARE(namen(gut.masseFuer(u"Toast, hell"_s)),
             (QStringList{u"Scheibe 20"_s, u"Portion 60"_s}));
    QCOMPARE(namen(gut.masseFuer(u"Ei, roh"_s)), QStringList{u"Portion 60"_s});
}

void TestPortionentabelle::measuresOfAGroupStandAsInTheTable()
{
    schreibe(u"P.csv"_s, portionen + "Eier;;;Stück;Stück;piece;pieces;50;SGE;\n");
    QCOMPARE(namen(tabelle().masseFuer(u"Ei, roh"_s)),
             (QStringList{u"Portion 60"_s, u"Stück 50"_s}));
}

void TestPortionentabelle::theTablesAreReadOnceAndOnlyWhenTheyAreAskedFor()
{
    const Portionentabelle gut = tabelle();
    schreibe(u"P.csv"_s, QByteArray(portionen).replace(";60;", ";70;"));
    QCOMPARE(namen(gut.masseFuer(u"Ei, roh"_s)), QStringList{u"Portion 70"_s});
    schreibe(u"P.csv"_s, portionen);
    QCOMPARE(namen(gut.masseFuer(u"Ei, roh"_s)), QStringList{u"Portion 70"_s});
}

void TestPortionentabelle::everyShippedFoodIsMeasuredInNoTime()
{
    const QString foods = QStringLiteral(LEBENSMITTELTABELLE);
    QFile datei(foods);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const Tabelle alle = Tabellendatei::lesen(datei.readAll()).tabelle;
    QVERIFY(alle.size() > 1000);
    const Portionentabelle ausgeliefert(QStringLiteral(PORTIONENTABELLE), foods);
    QCOMPARE(ausgeliefert.hindernis(), QString());
    QElapsedTimer uhr;
    uhr.start();
    for (const Tabellenzeile &zeile : alle) {
        QVERIFY2(!ausgeliefert.masseFuer(zeile.nameDe).isEmpty(), qPrintable(zeile.nameDe));
    }
    // A hundred times what it takes where nothing is measured beside.
    QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
}

QTEST_APPLESS_MAIN(TestPortionentabelle)
#include "TestPortionentabelle.moc"
