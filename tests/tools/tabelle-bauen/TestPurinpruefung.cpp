#include "Vergleichsprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Every purine figure follows from published ones.
class TestPurinpruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePublishedFiguresShip();
    void aBrokenListIsObjectedTo_data();
    void aBrokenListIsObjectedTo();
    void whatAFoodHoldsIsTakenApart_data();
    void whatAFoodHoldsIsTakenApart();
    void figuresAreAddedUpAndRounded_data();
    void figuresAreAddedUpAndRounded();
    void aLineMustFollowFromItsParts_data();
    void aLineMustFollowFromItsParts();
};

namespace {

const QByteArray kopf = "food;low;high;keys;note\n";

/// Five published foods, one of them named like an amount.
Purintabelle purine()
{
    return Purinpruefung::lesen(kopf + "Rind;133;150;ACU ZH;\n"
                                       "Linsen, getrocknet;75;222;KAN14 ACU;\n"
                                       "Zwiebel;9;13;ACU;\n"
                                       "Milch;0;0;ZH;\n"
                                       "7 Kräuter;10;20;FH;\n")
        .purine;
}

struct Purinfelder
{
    QString harnsaeure;
    QString quellen;
    QString herkunft;
    QString klasse;
    QString notiz;
};

/// What is said of a line with these fields.
QStringList einwaende(const Purinfelder &felder)
{
    QStringList zeile = Tabellenprobe::felder(u"290"_s);
    const QList<std::pair<QString, QString>> zellen = {{u"uric_acid"_s, felder.harnsaeure},
                                                       {u"purine_keys"_s, felder.quellen},
                                                       {u"purine_from"_s, felder.herkunft},
                                                       {u"purine_class"_s, felder.klasse},
                                                       {u"note"_s, felder.notiz}};
    for (const auto &[spalte, zelle] : zellen) {
        zeile = Tabellenprobe::geaendert(zeile, spalte, zelle);
    }
    const Tabelle tabelle = Tabellendatei::lesen(Tabellenprobe::datei({zeile})).tabelle;
    QStringList meldungen;
    for (const Beanstandung &eine : Purinpruefung::pruefen(tabelle.first(), purine())) {
        meldungen.append(eine.meldung.section(u": "_s, 1));
    }
    return meldungen;
}

} // namespace

Q_DECLARE_METATYPE(Purinfelder)

void TestPurinpruefung::thePublishedFiguresShip()
{
    const auto [liste, beanstandungen] = Purinpruefung::lesen(Tabellenprobe::dateiinhalt(PURINE));
    QCOMPARE(beanstandungen.size(), 0);
    QCOMPARE(liste.size(), 338);
    const Purineintrag filet = liste.value(u"Rinderfilet"_s);
    QCOMPARE(filet.niedrig, 110.0);
    QCOMPARE(filet.hoch, 119.0);
    QCOMPARE(filet.schluessel, (QStringList{u"ACU"_s, u"KAN14"_s}));
}

void TestPurinpruefung::aBrokenListIsObjectedTo_data()
{
    QTest::addColumn<QByteArray>("zeile");
    QTest::newRow("a word for a figure") << QByteArray("Rind;low;150;ACU;");
    QTest::newRow("no figure") << QByteArray("Rind;133;;ACU;");
    QTest::newRow("a negative figure") << QByteArray("Rind;-1;150;ACU;");
    QTest::newRow("a span that runs backwards") << QByteArray("Rind;150;133;ACU;");
    QTest::newRow("a publication that nobody knows") << QByteArray("Rind;133;150;ACU hearsay;");
    QTest::newRow("no publication") << QByteArray("Rind;133;150;;");
    QTest::newRow("no name") << QByteArray(";133;150;ACU;");
    QTest::newRow("a name that reads like two") << QByteArray("Rind + Schwein;133;150;ACU;");
    QTest::newRow("a name twice") << QByteArray("Kalb;100;100;ACU;");
    QTest::newRow("a field too few") << QByteArray("Rind;133;150;ACU");
}

void TestPurinpruefung::aBrokenListIsObjectedTo()
{
    QFETCH(QByteArray, zeile);
    QVERIFY(Purinpruefung::lesen(kopf + "Kalb;100;100;ACU;\nRind;133;133;ACU;\n")
                .beanstandungen.isEmpty());
    const auto liste = Purinpruefung::lesen(kopf + "Kalb;100;100;ACU;\n" + zeile).beanstandungen;
    QCOMPARE(liste.size(), 1);
    QCOMPARE(liste.first().zeile, 3);
}

void TestPurinpruefung::whatAFoodHoldsIsTakenApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<double>>("gramm");
    QTest::addColumn<QString>("fehler");
    using Gramm = QList<double>;
    QTest::newRow("a food") << u"Rind"_s << Gramm{100} << QString();
    QTest::newRow("a food with a comma") << u"Linsen, getrocknet"_s << Gramm{100} << QString();
    QTest::newRow("grams of it") << u"40 Linsen, getrocknet"_s << Gramm{40} << QString();
    QTest::newRow("parts of a gram") << u"2.5 Rind"_s << Gramm{2.5} << QString();
    QTest::newRow("two parts") << u"40 Linsen, getrocknet + Zwiebel"_s << Gramm{40, 100}
                               << QString();
    QTest::newRow("a name that begins with a number") << u"7 Kräuter"_s << Gramm{100} << QString();
    QTest::newRow("grams of such a name") << u"50 7 Kräuter"_s << Gramm{50} << QString();
    QTest::newRow("nothing of a food") << u"0 Rind"_s << Gramm() << u"\"0 Rind\" weighs nothing"_s;
    QTest::newRow("a food that is not listed")
        << u"Einhorn"_s << Gramm() << u"nothing is published about \"Einhorn\""_s;
    QTest::newRow("grams of such a food")
        << u"40 Einhorn"_s << Gramm() << u"nothing is published about \"Einhorn\""_s;
    QTest::newRow("a negative amount")
        << u"-40 Rind"_s << Gramm() << u"nothing is published about \"-40 Rind\""_s;
    QTest::newRow("an amount alone") << u"40"_s << Gramm() << u"nothing is published about \"\""_s;
    QTest::newRow("a plus without blanks")
        << u"Rind+Zwiebel"_s << Gramm() << u"nothing is published about \"Rind+Zwiebel\""_s;
}

void TestPurinpruefung::whatAFoodHoldsIsTakenApart()
{
    QFETCH(QString, text);
    QFETCH(QList<double>, gramm);
    QFETCH(QString, fehler);
    const auto [teile, alleFehler] = Purinpruefung::herkunft(text, purine());
    QList<double> gelesen;
    for (const auto &teil : teile) {
        gelesen.append(teil.gramm);
    }
    QCOMPARE(gelesen, gramm);
    QCOMPARE(alleFehler, fehler.isEmpty() ? QStringList() : QStringList{fehler});
}

void TestPurinpruefung::figuresAreAddedUpAndRounded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("harnsaeure");
    QTest::addColumn<QString>("schluessel");
    QTest::newRow("the middle of a span") << u"Rind"_s << 141.5 << u"ACU ZH"_s;
    QTest::newRow("by weight") << u"40 Rind"_s << 56.6 << u"ACU ZH"_s;
    QTest::newRow("rounded down") << u"33 Zwiebel"_s << 3.6 << u"ACU"_s;                 // 3.63
    QTest::newRow("rounded up") << u"7 Zwiebel"_s << 0.8 << u"ACU"_s;                    // 0.77
    QTest::newRow("a half is rounded up") << u"50 Rind"_s << 70.8 << u"ACU ZH"_s;        // 70.75
    QTest::newRow("a half behind an even digit") << u"30 Rind"_s << 42.5 << u"ACU ZH"_s; // 42.45
    QTest::newRow("keys once, in order")
        << u"10 Linsen, getrocknet + 10 Rind + Milch"_s << 29.0 << u"KAN14 ACU ZH"_s;
    QTest::newRow("nothing") << u"Milch"_s << 0.0 << u"ZH"_s;
}

void TestPurinpruefung::figuresAreAddedUpAndRounded()
{
    QFETCH(QString, text);
    QFETCH(double, harnsaeure);
    QFETCH(QString, schluessel);
    const auto teile = Purinpruefung::herkunft(text, purine()).teile;
    QCOMPARE(Purinpruefung::harnsaeure(teile), harnsaeure);
    QCOMPARE(Purinpruefung::schluessel(teile), schluessel);
}

void TestPurinpruefung::aLineMustFollowFromItsParts_data()
{
    QTest::addColumn<Purinfelder>("felder");
    QTest::addColumn<QStringList>("meldungen");
    const QString entweder = u"either purine_from or purine_class must be filled"_s;
    const QString ohneHerkunft = u"a figure or a key needs what it comes from"_s;
    const QString begruenden = u"parts or grams need their reason in the note"_s;
    const auto zeile = [](const char *name, const Purinfelder &felder, const QStringList &soll) {
        QTest::newRow(name) << felder << soll;
    };
    zeile("an entry as it is", {u"141.5"_s, u"ACU ZH"_s, u"Rind"_s, {}, {}}, {});
    zeile("a class", {{}, {}, {}, u"low"_s, u"Oil"_s}, {});
    zeile("parts with their reason",
          {u"21.9"_s, u"ACU ZH"_s, u"10 Rind + 70 Zwiebel"_s, {}, u"By weight"_s}, {});
    zeile("neither figure nor class", {}, {entweder});
    zeile("both", {u"141.5"_s, u"ACU ZH"_s, u"Rind"_s, u"moderate"_s, {}}, {entweder});
    zeile("a figure beside a class", {u"30"_s, {}, {}, u"low"_s, {}}, {ohneHerkunft});
    zeile("keys beside a class", {{}, u"ACU"_s, {}, u"low"_s, {}}, {ohneHerkunft});
    const QString soll = u"uric_acid must be 141.5, as its parts give"_s;
    zeile("a tenth too much", {u"141.6"_s, u"ACU ZH"_s, u"Rind"_s, {}, {}}, {soll});
    zeile("a tenth too little", {u"141.4"_s, u"ACU ZH"_s, u"Rind"_s, {}, {}}, {soll});
    zeile("a digit more than is known", {u"141.51"_s, u"ACU ZH"_s, u"Rind"_s, {}, {}}, {soll});
    zeile("no figure", {{}, u"ACU ZH"_s, u"Rind"_s, {}, {}}, {soll});
    const QString quellen = u"the keys of its parts are \"ACU ZH\""_s;
    zeile("keys in another order", {u"141.5"_s, u"ZH ACU"_s, u"Rind"_s, {}, {}}, {quellen});
    zeile("a key missing", {u"141.5"_s, u"ACU"_s, u"Rind"_s, {}, {}}, {quellen});
    zeile("no keys", {u"141.5"_s, {}, u"Rind"_s, {}, {}}, {quellen});
    zeile("grams without a reason", {u"56.6"_s, u"ACU ZH"_s, u"40 Rind"_s, {}, {}}, {begruenden});
    zeile("parts without a reason", {u"141.5"_s, u"ACU ZH"_s, u"Rind + Milch"_s, {}, {}},
          {begruenden});
    zeile("100 g said out loud", {u"141.5"_s, u"ACU ZH"_s, u"100 Rind"_s, {}, {}}, {});
    zeile("a food that is not listed", {u"1"_s, u"ACU"_s, u"Einhorn + 0 Rind"_s, {}, {}},
          {u"nothing is published about \"Einhorn\""_s, u"\"0 Rind\" weighs nothing"_s});
}

void TestPurinpruefung::aLineMustFollowFromItsParts()
{
    QFETCH(Purinfelder, felder);
    QFETCH(QStringList, meldungen);
    QCOMPARE(einwaende(felder), meldungen);
}

QTEST_GUILESS_MAIN(TestPurinpruefung)
#include "TestPurinpruefung.moc"
