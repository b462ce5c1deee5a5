#include "Siegel.h"
#include "Vergleichsprobe.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// No single cell of the shipped table can be changed unnoticed.
class TestZellen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theShippedFileIsInOrder();
    void aChangedCellIsFound_data();
    void aChangedCellIsFound();
    void aChangedFigureIsFoundAlsoWhenSealed_data();
    void aChangedFigureIsFoundAlsoWhenSealed();
    void whatCantBeReadIsSaidOnce_data();
    void whatCantBeReadIsSaidOnce();

private:
    QByteArray mitZelle(qsizetype zeile, qsizetype spalte, bool versiegeln) const;

    Tabellenpruefung::Vergleichswerte m_vergleich;
    QList<QStringList> m_zeilen;
};

namespace {

constexpr quint32 startwert = 20251122;
constexpr qsizetype anzahlZeilen = 10;

/// Columns that can hold only certain words get another of these: a word that is none would be
/// found by its form alone.
const QHash<QString, QStringList> &moeglicheWorte()
{
    static const QHash<QString, QStringList> worte = {
        {u"group"_s, {u"Gemüse"_s, u"Obst"_s}},
        {u"ready_g"_s, {u"250"_s, u"280"_s}},
        {u"purine_class"_s, {u"low"_s, u"moderate"_s}},
        {u"marks"_s, {u"caffeine"_s, u"recommended fat"_s}},
        {u"sugar_kind"_s, {u"no fructose"_s, QString()}}};
    return worte;
}

/// Something else that could stand in the cell just as well.
QString anders(const QString &spalte, const QString &zelle)
{
    for (const QString &wort : moeglicheWorte().value(spalte)) {
        if (wort != zelle) {
            return wort;
        }
    }
    if (spalte == u"uric_acid" && zelle.isEmpty()) {
        return u"20"_s;
    }
    bool istZahl = false;
    const double zahl = zelle.toDouble(&istZahl);
    return istZahl && spalte != u"check" ? QString::number(zahl + 1, 'g', 10) : zelle + u'x';
}

/// Ten lines drawn at random, and behind them the foods whose synonyms they are.
QList<QStringList> zufaelligeZeilen()
{
    const QList<QStringList> alle = Tabellenprobe::ausgelieferteZeilen();
    QRandomGenerator zufall(startwert);
    QList<QStringList> gezogen;
    while (gezogen.size() < anzahlZeilen) {
        const QStringList &zeile = alle.at(zufall.bounded(alle.size()));
        if (!gezogen.contains(zeile)) {
            gezogen.append(zeile);
        }
    }
    for (const QStringList &zeile : gezogen.first(anzahlZeilen)) {
        const QString name = Tabellenprobe::feld(zeile, u"synonym"_s);
        const QStringList eigen = Tabellenprobe::felder(Tabellenprobe::feld(zeile, u"source_id"_s));
        if (!name.isEmpty() && !gezogen.contains(eigen)) {
            gezogen.append(eigen);
        }
    }
    return gezogen;
}

void jedeGezogene(const QList<QStringList> &zeilen)
{
    QTest::addColumn<qsizetype>("zeile");
    for (qsizetype i = 0; i < anzahlZeilen; ++i) {
        QTest::newRow(qPrintable(zeilen.at(i).first())) << i;
    }
}

} // namespace

void TestZellen::initTestCase()
{
    m_vergleich = Vergleichsprobe::ausgeliefert();
    qInfo("seed of the random lines: %u", startwert);
    m_zeilen = zufaelligeZeilen();
}

/// The drawn lines with one cell changed.
QByteArray TestZellen::mitZelle(qsizetype zeile, qsizetype spalte, bool versiegeln) const
{
    QList<QStringList> zeilen = m_zeilen;
    QString &zelle = zeilen[zeile][spalte];
    zelle = anders(Tabellendatei::spalten().at(spalte), zelle);
    const QByteArray bytes = Tabellenprobe::datei(zeilen);
    return versiegeln ? Siegel::versiegelt(bytes) : bytes;
}

void TestZellen::theShippedFileIsInOrder()
{
    const auto ergebnis = Tabellenpruefung::dateiPruefen(
        Tabellenprobe::dateiinhalt(LEBENSMITTELTABELLE), m_vergleich);
    for (const Beanstandung &eine : ergebnis.beanstandungen) {
        qWarning("line %d: %s [%s]", eine.zeile, qPrintable(eine.meldung), qPrintable(eine.regel));
    }
    QCOMPARE(ergebnis.beanstandungen.size(), 0);
}

void TestZellen::aChangedCellIsFound_data()
{
    jedeGezogene(m_zeilen);
}

void TestZellen::aChangedCellIsFound()
{
    QFETCH(qsizetype, zeile);
    QVERIFY(Tabellenpruefung::dateiPruefen(Tabellenprobe::datei(m_zeilen), m_vergleich)
                .beanstandungen.isEmpty());
    for (qsizetype spalte = 0; spalte < Tabellendatei::spalten().size(); ++spalte) {
        const auto ergebnis =
            Tabellenpruefung::dateiPruefen(mitZelle(zeile, spalte, false), m_vergleich);
        const QString wo =
            Tabellendatei::spalten().at(spalte) + u" of "_s + m_zeilen[zeile].first();
        QVERIFY2(!ergebnis.beanstandungen.isEmpty(), qPrintable(wo));
        QVERIFY2(Vergleichsprobe::regeln(ergebnis.beanstandungen).contains(u"seal"_s),
                 qPrintable(wo));
    }
}

void TestZellen::aChangedFigureIsFoundAlsoWhenSealed_data()
{
    jedeGezogene(m_zeilen);
}

void TestZellen::aChangedFigureIsFoundAlsoWhenSealed()
{
    QFETCH(qsizetype, zeile);
    QStringList spalten = {u"source_id"_s, u"sugars"_s,      u"saturated"_s,  u"alcohol"_s,
                           u"uric_acid"_s, u"purine_keys"_s, u"purine_from"_s};
    for (const auto &wert : naehrwerte) {
        spalten.append(QString::fromLatin1(wert.kennung));
    }
    for (const QString &spalte : spalten) {
        const qsizetype stelle = Tabellendatei::spalten().indexOf(spalte);
        const auto ergebnis =
            Tabellenpruefung::dateiPruefen(mitZelle(zeile, stelle, true), m_vergleich);
        const QStringList regeln = Vergleichsprobe::regeln(ergebnis.beanstandungen);
        const QString wo = spalte + u" of "_s + m_zeilen[zeile].first();
        QVERIFY2(!regeln.isEmpty() && !regeln.contains(u"seal"_s), qPrintable(wo));
        const bool vonPurinen = spalte == u"uric_acid" || spalte.startsWith(u"purine");
        QVERIFY2(regeln.contains(vonPurinen ? u"purines"_s : u"source"_s), qPrintable(wo));
    }
}

void TestZellen::whatCantBeReadIsSaidOnce_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("zelle");
    QTest::newRow("a number") << u"kal"_s << u"viel"_s;
    QTest::newRow("a group") << u"group"_s << u"Konfekt"_s;
    QTest::newRow("a mark") << u"marks"_s << u"tasty"_s;
    QTest::newRow("a field too many") << u"note"_s << u"a;b"_s;
}

void TestZellen::whatCantBeReadIsSaidOnce()
{
    QFETCH(QString, spalte);
    QFETCH(QString, zelle);
    // Without this line three others would be synonyms of nothing, and its seal is wrong.
    const QStringList eigen = Tabellenprobe::felder(u"1522"_s);
    QList<QStringList> zeilen = Tabellenprobe::ausgelieferteZeilen();
    const qsizetype stelle = zeilen.indexOf(eigen);
    zeilen[stelle] = Tabellenprobe::geaendert(eigen, spalte, zelle);
    const auto ergebnis = Tabellenpruefung::dateiPruefen(Tabellenprobe::datei(zeilen), m_vergleich);
    QCOMPARE(ergebnis.beanstandungen.size(), 1);
    QCOMPARE(ergebnis.beanstandungen.first().regel, u"format"_s);
    QCOMPARE(ergebnis.beanstandungen.first().zeile, int(stelle) + 2);
}

QTEST_GUILESS_MAIN(TestZellen)
#include "TestZellen.moc"
