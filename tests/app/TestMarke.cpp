#include "Probefenster.h"

#include <QDoubleSpinBox>
#include <QImage>
#include <QScreen>
#include <QTest>

using enum Naehrwert;

/// The mark of the chosen cell as it stands on the screen: it bears the name on display, and its
/// first letter alone is coloured.
class TestMarke : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void theMarkFollowsTheNameOnDisplay_data();
    void theMarkFollowsTheNameOnDisplay();
    void afterAnAmountARowOfAnotherNameBearsItsOwn();
    void onlyTheFirstLetterIsColoured_data();
    void onlyTheFirstLetterIsColoured();
    void theFirstLetterOfABuiltInFoodIsLarge_data();
    void theFirstLetterOfABuiltInFoodIsLarge();

private:
    void oeffne(int eingebaut, const QStringList &eigene);
    QRect zelle(int zeile, int spalte) const
    {
        const Tabellenansicht &tabelle = *controller().Tabelle;
        return tabelle.visualRect(tabelle.model()->index(zeile, spalte));
    }
    QImage aufDemSchirm(const QRect &zelle) const;
    QImage neuGemalt(const QRect &zelle) const;
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// How a cell is painted, letter by letter: its inner part, without border and lines.
struct Schriftbild
{
    int ersteFarbige = -1; ///< left edge of what is coloured
    int letzteFarbige = -1;
    int ersteGraue = -1; ///< left edge of what is not
    int hoheFarbige = 0; ///< height of what is coloured
};

bool istFarbig(const QColor &farbe, bool gruen)
{
    const int andere = gruen ? qMax(farbe.red(), farbe.blue()) : qMax(farbe.green(), farbe.blue());
    return (gruen ? farbe.green() : farbe.red()) > andere + 30;
}

Schriftbild schriftbild(const QImage &zelle, bool gruen)
{
    Schriftbild bild;
    int oben = zelle.height();
    int unten = -1;
    for (int x = 4; x < zelle.width() - 4; ++x) {
        for (int y = 3; y < zelle.height() - 3; ++y) {
            const QColor farbe = zelle.pixelColor(x, y);
            if (istFarbig(farbe, gruen)) {
                bild.ersteFarbige = bild.ersteFarbige < 0 ? x : bild.ersteFarbige;
                bild.letzteFarbige = x;
                oben = qMin(oben, y);
                unten = qMax(unten, y);
            } else if (farbe.lightness() < 100 && bild.ersteGraue < 0) {
                bild.ersteGraue = x;
            }
        }
    }
    bild.hoheFarbige = unten < 0 ? 0 : unten - oben + 1;
    return bild;
}

} // namespace

void TestMarke::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestMarke::oeffne(int eingebaut, const QStringList &eigene)
{
    m_heim->schreibeTabelle(zaehltabelle(eingebaut));
    QList<Datenmodul> alle;
    for (const QString &name : eigene) {
        alle << lebensmittel(name, {{kal, 11}});
    }
    m_heim->schreibeEigene(verzeichnis(alle));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// What the user sees now, without anything being painted for the test.
QImage TestMarke::aufDemSchirm(const QRect &zelle) const
{
    QCoreApplication::processEvents();
    const QWidget *fenster = controller().Hauptfenster;
    const QPoint ort = controller().Tabelle->viewport()->mapTo(fenster, zelle.topLeft());
    return fenster->screen()
        ->grabWindow(fenster->winId(), ort.x(), ort.y(), zelle.width(), zelle.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

QImage TestMarke::neuGemalt(const QRect &zelle) const
{
    return controller().Tabelle->viewport()->grab(zelle).toImage().convertToFormat(
        QImage::Format_RGB32);
}

void TestMarke::theMarkFollowsTheNameOnDisplay_data()
{
    QTest::addColumn<QString>("weg");
    QTest::addColumn<QString>("name");
    QTest::newRow("the own food of the row is shown")
        << QStringLiteral("Strg+E") << QStringLiteral("Eigenes B");
    QTest::newRow("a food is taken over from the sheet, which saves one that is there")
        << QStringLiteral("Blatt") << QStringLiteral("Eigenes B");
    QTest::newRow("the name is typed over") << QStringLiteral("tippen") << QStringLiteral("x");
}

void TestMarke::theMarkFollowsTheNameOnDisplay()
{
    QFETCH(QString, weg);
    oeffne(5, {QStringLiteral("Eigenes A"), QStringLiteral("Eigenes B")});
    m_fenster->klicke(1, inName);
    controller().SichernFensterAuf();
    controller().feldA->setFocus(); // a table that loses the keyboard is painted anew
    const QRect marke = zelle(1, inName);
    const QImage vorher = aufDemSchirm(marke);
    QCOMPARE(vorher, neuGemalt(marke));
    if (weg == QStringLiteral("Strg+E")) {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_E, Qt::ControlModifier);
    } else if (weg == QStringLiteral("Blatt")) {
        controller().EingabeFensterfeldA->setStringValue(QStringLiteral("Eigenes B"));
        controller().umschreibenDerEingabeFelder();
    } else {
        controller().feldA->selectAll();
        QTest::keyClicks(controller().feldA, QStringLiteral("x"));
    }
    QTEST(m_fenster->zelle(1, inName).text, "name");
    const QImage nachher = aufDemSchirm(marke);
    QVERIFY(nachher != vorher);
    QCOMPARE(nachher, neuGemalt(marke));
}

/// Row 576 shows the food of row 575, until an amount asks the list for the food of the row.
void TestMarke::afterAnAmountARowOfAnotherNameBearsItsOwn()
{
    oeffne(610, {});
    m_fenster->klicke(576, inName);
    QCOMPARE(m_fenster->zelle(576, inName).text, zaehlname(575));
    controller().lebensmittelmenge->eingabe()->setFocus();
    const QRect marke = zelle(576, inName);
    const QImage vorher = aufDemSchirm(marke);
    QCOMPARE(vorher, neuGemalt(marke));
    m_fenster->tippeMenge(QStringLiteral("200"));
    QCOMPARE(m_fenster->zelle(576, inName).text, zaehlname(576));
    const QImage nachher = aufDemSchirm(marke);
    QVERIFY(nachher != vorher);
    QCOMPARE(nachher, neuGemalt(marke));
}

void TestMarke::onlyTheFirstLetterIsColoured_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("gruen");
    QTest::newRow("built-in: green") << inName << true;
    QTest::newRow("own: red") << inEigen << false;
    QTest::newRow("search: red") << inSuch << false;
}

/// All names begin alike, so that every cell can be compared with the one above it.
void TestMarke::onlyTheFirstLetterIsColoured()
{
    QFETCH(int, spalte);
    QFETCH(bool, gruen);
    oeffne(5, {zaehlname(0), zaehlname(1)});
    controller().suchArray = {zaehlname(0), zaehlname(1)};
    m_fenster->klicke(1, spalte);
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
    const Schriftbild marke = schriftbild(neuGemalt(zelle(1, spalte)), gruen);
    QVERIFY(marke.ersteFarbige >= 0);
    QVERIFY(marke.letzteFarbige - marke.ersteFarbige < 16); // an "S", and nothing after it
    QVERIFY(marke.ersteGraue > marke.ersteFarbige);
    QVERIFY(marke.ersteGraue >= marke.letzteFarbige - 1); // the rest of the name is plain
    for (const int zeile : {0, 1}) {
        for (const int andere : {inName, inEigen, inSuch}) {
            if (zeile != 1 || andere != spalte) {
                const QImage bild = neuGemalt(zelle(zeile, andere));
                QCOMPARE(schriftbild(bild, true).ersteFarbige, -1);
                QCOMPARE(schriftbild(bild, false).ersteFarbige, -1);
            }
        }
    }
}

void TestMarke::theFirstLetterOfABuiltInFoodIsLarge_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("gruen");
    QTest::addColumn<int>("punkte");
    QTest::newRow("built-in: 14 points") << inName << true << 14;
    QTest::newRow("own: as the rest") << inEigen << false << 0;
    QTest::newRow("search: as the rest") << inSuch << false << 0;
}

void TestMarke::theFirstLetterOfABuiltInFoodIsLarge()
{
    QFETCH(int, spalte);
    QFETCH(bool, gruen);
    QFETCH(int, punkte);
    oeffne(5, {zaehlname(0), zaehlname(1)});
    controller().suchArray = {zaehlname(0), zaehlname(1)};
    m_fenster->klicke(1, spalte);
    QFont schrift = controller().Tabelle->font();
    const int ueblich = QFontMetrics(schrift).tightBoundingRect(QStringLiteral("S")).height();
    if (punkte > 0) {
        schrift.setPointSize(punkte);
    }
    const int erwartet = QFontMetrics(schrift).tightBoundingRect(QStringLiteral("S")).height();
    QCOMPARE(erwartet > ueblich + 2, punkte > 0);
    const int gemalt = schriftbild(neuGemalt(zelle(1, spalte)), gruen).hoheFarbige;
    QVERIFY2(std::abs(gemalt - erwartet) <= 1, qPrintable(QString::number(gemalt)));
}

QTEST_MAIN(TestMarke)
#include "TestMarke.moc"
