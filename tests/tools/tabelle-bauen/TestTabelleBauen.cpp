#include "Archivdatei.h"
#include "Tabellenprobe.h"
#include "Werkzeugtest.h"
#include "Zusatzdatei.h"

#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// The program that checks and builds the food table, as the build and people call it.
class TestTabelleBauen : public Werkzeugtest
{
    Q_OBJECT

public:
    TestTabelleBauen() : Werkzeugtest(BAUEN) {}

private Q_SLOTS:
    void init();
    void anyGoodTableIsBuilt();
    void aBrokenLineStopsTheBuild_data();
    void aBrokenLineStopsTheBuild();
    void brokenPublishedFiguresStopTheBuild_data();
    void brokenPublishedFiguresStopTheBuild();
    void aGoodTableIsSealed();
    void aBrokenLineIsNotSealed_data();
    void aBrokenLineIsNotSealed();
    void nothingIsSealedWithoutPublishedFigures();
    void theShippedTableIsChecked_data();
    void theShippedTableIsChecked();
    void wrongUsageIsTold_data();
    void aMissingTableIsTold();
    void aPlaceThatCantBeWrittenIsTold_data();
    void aPlaceThatCantBeWrittenIsTold();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QString ablegen(const QString &name, const QByteArray &bytes) const;
    QString tabelleAblegen(const QList<QStringList> &zeilen) const;
    Lauf bauen(const QString &tabelle) const;

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

const QString tabelle = QStringLiteral(LEBENSMITTELTABELLE);
const QString quellwerte = QStringLiteral(QUELLWERTE);
const QString purine = QStringLiteral(PURINE);
const QString einigkeit = QStringLiteral(EINIGKEIT);
const QString seite = QStringLiteral(WERTUNGSSEITE);

} // namespace

void TestTabelleBauen::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
}

QString TestTabelleBauen::ablegen(const QString &name, const QByteArray &bytes) const
{
    QFile file(pfad(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? pfad(name)
                                                                                : QString();
}

/// A table of these lines with the published figures beside it.
QString TestTabelleBauen::tabelleAblegen(const QList<QStringList> &zeilen) const
{
    ablegen(u"Quellwerte.csv"_s, Tabellenprobe::dateiinhalt(QUELLWERTE));
    ablegen(u"Purine.csv"_s, Tabellenprobe::dateiinhalt(PURINE));
    return ablegen(u"klein.csv"_s, Tabellenprobe::datei(zeilen));
}

/// Builds a table into the three files k.daten, k.ts and k.csv.
Lauf TestTabelleBauen::bauen(const QString &tabelle) const
{
    return starten(BAUEN, {tabelle, quellwerte, purine, pfad(u"k.daten"_s), pfad(u"k.ts"_s),
                           pfad(u"k.csv"_s)});
}

void TestTabelleBauen::anyGoodTableIsBuilt()
{
    const QStringList leber = Tabellenprobe::felder(u"657"_s);
    const QStringList apfel = Tabellenprobe::felder(u"378"_s);
    const QString klein = tabelleAblegen({leber, apfel});
    const Lauf lauf = bauen(klein);
    QCOMPARE(lauf.fehler, QString());
    QCOMPARE(lauf.ausgang, 0);
    const auto inhalt = Archivdatei::lesen(pfad(u"k.daten"_s));
    const QStringList namen = inhalt.archiv.verzeichnis.keys();
    QCOMPARE(QSet<QString>(namen.begin(), namen.end()),
             (QSet<QString>{u"-"_s, leber.first(), apfel.first()}));
    QCOMPARE(inhalt.archiv.verzeichnis.value(leber.first()).gicht(), u"-"_s);
    QVERIFY(Tabellenprobe::dateiinhalt(qPrintable(pfad(u"k.ts"_s))).contains(leber.at(1).toUtf8()));
    const auto [zusatz, einwaende] =
        Zusatzdatei::lesen(Tabellenprobe::dateiinhalt(qPrintable(pfad(u"k.csv"_s))));
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(zusatz.size(), 2);
    QCOMPARE(zusatz.value(leber.first()).gruppe, lebensmittelgruppe(u"Innereien"_s));
}

void TestTabelleBauen::aBrokenLineStopsTheBuild_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QStringList>("regeln");
    QTest::newRow("a figure") << u"kal"_s << u"1400"_s
                              << QStringList{u"[energy]"_s, u"[source]"_s, u"[seal]"_s};
    QTest::newRow("a purine figure")
        << u"uric_acid"_s << u"25"_s << QStringList{u"[purines]"_s, u"[seal]"_s};
    QTest::newRow("a name") << u"name_de"_s << u"Eier, 12 % Fett"_s
                            << QStringList{u"[name]"_s, u"[seal]"_s};
    QTest::newRow("a note") << u"note"_s << u"From a hen"_s << QStringList{u"[seal]"_s};
    QTest::newRow("what can't be read, and nothing else")
        << u"kal"_s << u"viel"_s << QStringList{u"[format]"_s};
}

void TestTabelleBauen::aBrokenLineStopsTheBuild()
{
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    QFETCH(QStringList, regeln);
    const QString kaputt =
        tabelleAblegen({Tabellenprobe::felder(u"378"_s),
                        Tabellenprobe::geaendert(Tabellenprobe::felder(u"290"_s), spalte, wert)});
    const Lauf lauf = bauen(kaputt);
    QCOMPARE(lauf.ausgang, 1);
    const QStringList meldungen = lauf.fehler.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(meldungen.size(), regeln.size());
    for (qsizetype i = 0; i < regeln.size(); ++i) {
        QVERIFY2(meldungen.at(i).startsWith(kaputt + u":3: error: "_s) &&
                     meldungen.at(i).endsWith(regeln.at(i)),
                 qPrintable(meldungen.at(i)));
    }
    for (const QString &name : {u"k.daten"_s, u"k.ts"_s, u"k.csv"_s}) {
        QVERIFY2(!QFile::exists(pfad(name)), qPrintable(name));
    }
}

void TestTabelleBauen::brokenPublishedFiguresStopTheBuild_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QByteArray>("aus");
    QTest::addColumn<QByteArray>("wird");
    QTest::newRow("the source") << u"Quellwerte.csv"_s << QByteArray("\n273;624;")
                                << QByteArray("\n273;many;");
    QTest::newRow("the purines") << u"Purine.csv"_s << QByteArray("\nRinderfilet;110;119;")
                                 << QByteArray("\nRinderfilet;119;110;");
}

void TestTabelleBauen::brokenPublishedFiguresStopTheBuild()
{
    QFETCH(QString, datei);
    QFETCH(QByteArray, aus);
    QFETCH(QByteArray, wird);
    const QString klein = tabelleAblegen({Tabellenprobe::felder(u"378"_s)});
    QByteArray bytes = Tabellenprobe::dateiinhalt(qPrintable(pfad(datei)));
    QVERIFY(bytes.contains(aus));
    const QString kaputt = ablegen(datei, bytes.replace(aus, wird));
    const Lauf lauf = starten(BAUEN, {klein, pfad(u"Quellwerte.csv"_s), pfad(u"Purine.csv"_s),
                                      pfad(u"k.daten"_s), pfad(u"k.ts"_s), pfad(u"k.csv"_s)});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY2(lauf.fehler.startsWith(kaputt + u':'), qPrintable(lauf.fehler));
    QCOMPARE(lauf.fehler.count(u'\n'), 1);
    QVERIFY(!QFile::exists(pfad(u"k.daten"_s)));
}

void TestTabelleBauen::aGoodTableIsSealed()
{
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    const QStringList neu = Tabellenprobe::geaendert(ei, u"note"_s, u"From a hen"_s);
    const QString klein = tabelleAblegen({Tabellenprobe::felder(u"378"_s), neu});
    const Lauf lauf = starten(BAUEN, {u"--seal"_s, klein});
    QCOMPARE(lauf.fehler, QString());
    QCOMPARE(lauf.ausgang, 0);
    const QStringList zeilen =
        QString::fromUtf8(Tabellenprobe::dateiinhalt(qPrintable(klein))).split(u'\n');
    QCOMPARE(zeilen.at(1), Tabellenprobe::felder(u"378"_s).join(u';'));
    QCOMPARE(zeilen.at(2).section(u';', 0, -2), neu.join(u';').section(u';', 0, -2));
    QVERIFY(zeilen.at(2) != neu.join(u';'));
    QCOMPARE(bauen(klein).ausgang, 0);
}

void TestTabelleBauen::aBrokenLineIsNotSealed_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("regel");
    QTest::newRow("another figure than the source's") << u"ca"_s << u"49"_s << u"[source]"_s;
    QTest::newRow("another purine figure") << u"uric_acid"_s << u"3"_s << u"[purines]"_s;
    QTest::newRow("a name too long") << u"name_de"_s << u"E"_s.repeated(49) << u"[name]"_s;
    QTest::newRow("what can't be read") << u"group"_s << u"Konfekt"_s << u"[format]"_s;
}

void TestTabelleBauen::aBrokenLineIsNotSealed()
{
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    QFETCH(QString, regel);
    const QString kaputt =
        tabelleAblegen({Tabellenprobe::geaendert(Tabellenprobe::felder(u"290"_s), spalte, wert)});
    const QByteArray vorher = Tabellenprobe::dateiinhalt(qPrintable(kaputt));
    const Lauf lauf = starten(BAUEN, {u"--seal"_s, kaputt});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY2(lauf.fehler.contains(regel) && !lauf.fehler.contains(u"[seal]"),
             qPrintable(lauf.fehler));
    QCOMPARE(Tabellenprobe::dateiinhalt(qPrintable(kaputt)), vorher);
}

void TestTabelleBauen::nothingIsSealedWithoutPublishedFigures()
{
    const QString klein = tabelleAblegen({Tabellenprobe::felder(u"290"_s)});
    QVERIFY(QFile::remove(pfad(u"Purine.csv"_s)));
    const Lauf lauf = starten(BAUEN, {u"--seal"_s, klein});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(pfad(u"Purine.csv"_s)));
}

void TestTabelleBauen::theShippedTableIsChecked_data()
{
    QTest::addColumn<QString>("quelle");
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("regel");
    QTest::newRow("as it is") << u"271"_s << u"note"_s << u"As it is"_s << QString();
    QTest::newRow("a German name that moves")
        << u"1522"_s << u"name_de"_s << u"Eierkuchen, neu"_s << u"[rows]"_s;
    QTest::newRow("an English name that moves")
        << u"630"_s << u"name_en"_s << u"Garden pea, new"_s << u"[rows]"_s;
    QTest::newRow("a food fewer") << u"930"_s << u"name_de"_s << u"#Zwieback"_s << u"[count]"_s;
    QTest::newRow("a value that turns a rating")
        << u"271"_s << u"na"_s << u"2000"_s << u"[agreed]"_s;
    QTest::newRow("a food that dietitians agree upon, renamed")
        << u"354"_s << u"name_de"_s << u"Einlegegurken, roh"_s << u"[agreed]"_s;
    QTest::newRow("what can't be read, and nothing else")
        << u"271"_s << u"na"_s << u"viel"_s << u"[format]"_s;
}

void TestTabelleBauen::theShippedTableIsChecked()
{
    QFETCH(QString, quelle);
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    QFETCH(QString, regel);
    const QStringList heil = Tabellenprobe::felder(quelle);
    QList<QStringList> zeilen = Tabellenprobe::ausgelieferteZeilen();
    zeilen[zeilen.indexOf(heil)] = Tabellenprobe::geaendert(heil, spalte, wert);
    const QString geaendert = ablegen(u"geaendert.csv"_s, Tabellenprobe::datei(zeilen));
    const Lauf lauf = starten(BAUEN, {u"--shipped"_s, geaendert, einigkeit, seite});
    QCOMPARE(lauf.ausgang, regel.isEmpty() ? 0 : 1);
    QVERIFY2(lauf.fehler.contains(regel), qPrintable(lauf.fehler));
    QCOMPARE(lauf.fehler.contains(u"[format]"),
             lauf.fehler.count(u'\n') == 1 && regel == u"[format]");
}

void TestTabelleBauen::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("a file too few") << QStringList{tabelle, quellwerte, purine, u"a"_s, u"b"_s};
    QTest::newRow("a file too many")
        << QStringList{tabelle, quellwerte, purine, u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("nothing to seal") << QStringList{u"--seal"_s};
    QTest::newRow("two tables to seal") << QStringList{u"--seal"_s, tabelle, tabelle};
    QTest::newRow("the shipped table alone") << QStringList{u"--shipped"_s, tabelle};
}

void TestTabelleBauen::aMissingTableIsTold()
{
    const QString fehlt = pfad(u"fehlt.csv"_s);
    const QString a = pfad(u"a"_s);
    const QString b = pfad(u"b"_s);
    const QString c = pfad(u"c"_s);
    QCOMPARE(starten(BAUEN, {fehlt, quellwerte, purine, a, b, c}).ausgang, 1);
    QCOMPARE(starten(BAUEN, {tabelle, fehlt, purine, a, b, c}).ausgang, 1);
    QCOMPARE(starten(BAUEN, {tabelle, quellwerte, fehlt, a, b, c}).ausgang, 1);
    QCOMPARE(starten(BAUEN, {u"--seal"_s, fehlt}).ausgang, 1);
    QCOMPARE(starten(BAUEN, {u"--shipped"_s, tabelle, fehlt, seite}).ausgang, 1);
    QVERIFY(starten(BAUEN, {fehlt, quellwerte, purine, a, b, c}).fehler.contains(fehlt));
}

void TestTabelleBauen::aPlaceThatCantBeWrittenIsTold_data()
{
    QTest::addColumn<int>("ausgabe");
    QTest::newRow("of the foods") << 0;
    QTest::newRow("of the names") << 1;
    QTest::newRow("of what is known besides") << 2;
}

void TestTabelleBauen::aPlaceThatCantBeWrittenIsTold()
{
    const QString klein = tabelleAblegen({Tabellenprobe::felder(u"378"_s)});
    QFETCH(int, ausgabe);
    const QString unterEinerDatei = klein + u"/k"_s;
    QStringList ausgaben = {pfad(u"k.daten"_s), pfad(u"k.ts"_s), pfad(u"k.csv"_s)};
    ausgaben[ausgabe] = unterEinerDatei;
    const Lauf lauf = starten(BAUEN, QStringList{klein, quellwerte, purine} + ausgaben);
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(unterEinerDatei));
}

QTEST_GUILESS_MAIN(TestTabelleBauen)
#include "TestTabelleBauen.moc"
