// The table that ships, walked row by row through the window as its user would: what is shown is
// right for the name that was clicked.

#include "Probefenster.h"
#include "Sprache.h"

#include <QFile>
#include <QTest>

namespace {

/// A food as it stands in the file that people edit.
struct Quellzeile
{
    QString deutsch;
    QString englisch;
    std::array<float, anzahlNaehrwerte> werte = {};
};

/// The foods of the file by their German names, with the placeholder that has no line in it.
QHash<QString, Quellzeile> quelle()
{
    QHash<QString, Quellzeile> zeilen;
    const QString platzhalter = QStringLiteral("-");
    zeilen.insert(platzhalter, {platzhalter, platzhalter, {}});
    QFile datei(QStringLiteral(MAHLBERG_SOURCE_DIR "/resources/Lebensmittel.csv"));
    if (!datei.open(QIODevice::ReadOnly)) {
        return {};
    }
    bool kopf = true;
    while (!datei.atEnd()) {
        const QString text = QString::fromUtf8(datei.readLine()).trimmed();
        if (text.startsWith(u'#')) {
            continue;
        }
        const QStringList zellen = text.split(u';');
        if (!std::exchange(kopf, false)) {
            Quellzeile zeile{zellen[0], zellen[1], {}};
            for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
                zeile.werte[i] = zellen[static_cast<qsizetype>(i) + 4].toFloat();
            }
            zeilen.insert(zeile.deutsch, zeile);
        }
    }
    return zeilen;
}

} // namespace

class TestAusgelieferteTabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowShowsItsFood_data();
    void everyRowShowsItsFood();
    void noFoodStopsTheSelection();
};

void TestAusgelieferteTabelle::everyRowShowsItsFood_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::newRow("German") << QStringLiteral("de");
    QTest::newRow("English") << QStringLiteral("en");
}

void TestAusgelieferteTabelle::everyRowShowsItsFood()
{
    QFETCH(QString, sprache);
    const Sprache gesprochen(sprache);
    const auto zeilen = quelle();
    Probeheim heim;
    QLocale::setDefault(sprache == QLatin1String("de")
                            ? QLocale(QLocale::German, QLocale::Germany)
                            : QLocale(QLocale::English, QLocale::UnitedKingdom));
    Tueren tueren = heim.tueren();
    tueren.eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten");
    AppController fenster(tueren);
    fenster.awakeFromNib();
    fenster.Hauptfenster->show();
    QCOMPARE(fenster.Array.size(), 1016);
    QCOMPARE(zeilen.size(), 1016);
    QCOMPARE(fenster.Array.first(), QStringLiteral("-"));

    const QList<int> zweitnamen = {576, 577, 604};
    for (int i = 0; i < fenster.Array.size(); ++i) {
        fenster.Tabelle->selectRow(i);
        fenster.Laden();
        const Quellzeile geklickt = zeilen.value(fenster.Array[i]);
        const Quellzeile gezeigt = zeilen.value(fenster.Array[zweitnamen.contains(i) ? 575 : i]);
        const QString wo = QStringLiteral("row %1: %2").arg(i).arg(geklickt.deutsch);
        QVERIFY2(!fenster.DatenAnsicht->isHidden(), qPrintable(wo));
        QCOMPARE(fenster.feldA->stringValue(),
                 sprache == QLatin1String("de") ? gezeigt.deutsch : gezeigt.englisch);
        QCOMPARE(fenster.unuebersetztername, gezeigt.deutsch);
        for (const auto &wert : naehrwerte) {
            // 100 g: times 100, divided by 100, may move the last binary digit of a figure.
            const float erwartet = geklickt.werte[stelle(wert.wert)] * 100.0F / 100.0F;
            QVERIFY2(fenster.wertfelder()[stelle(wert.wert)]->floatValue() == erwartet,
                     qPrintable(wo + QStringLiteral(", ") + QLatin1String(wert.kennung)));
        }
        for (const Textfeld *feld : fenster.wertungsfelder()) {
            const QStringList erlaubt = {QStringLiteral("+"), QStringLiteral("0"),
                                         QStringLiteral("-")};
            QVERIFY2(erlaubt.contains(feld->stringValue()), qPrintable(wo));
        }
    }
    QVERIFY(heim.meldungen.isEmpty());
}

void TestAusgelieferteTabelle::noFoodStopsTheSelection()
{
    QVERIFY(!quelle().contains(QStringLiteral("Mettwurst")));
}

QTEST_MAIN(TestAusgelieferteTabelle)
#include "TestAusgelieferteTabelle.moc"
