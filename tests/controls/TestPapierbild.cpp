#include "Druckprobe.h"
#include "FaceView.h"
#include "Papierbild.h"
#include "Textfeld.h"
#include "WertungView.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPalette>
#include <QTest>

class TestPapierbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { QApplication::setPalette(m_palette); }
    void textStaysTextAndCanBeFound();
    void lettersThatLikeToJoinCanBeFound();
    void paperIsWhiteUnderEveryTheme_data();
    void paperIsWhiteUnderEveryTheme();
    void theThemeIsAsBeforeAfterwards();
    void verdictsAreWrittenInTheColoursOfALightPage();
    void itFillsTheWidthWithinTheMargins();
    void aTallPartFitsThePageToo();
    void eachPaperGetsThePictureThatIsLargestOnIt_data();
    void eachPaperGetsThePictureThatIsLargestOnIt();
    void theLinesAboveSayWhatItIs();
    void barsAreDrawnInLines();
    void aFaceKeepsItsPixels();
    void whatChangesAfterwardsIsNotPrinted();
    void aWindowThatWasNeverShownIsPrinted();

private:
    void zeige(const QPalette &palette);

    QPalette m_palette;
    std::unique_ptr<QWidget> m_flaeche;
    QLabel *m_beschriftung = nullptr;
    Textfeld *m_feld = nullptr;
    WertungView *m_balken = nullptr;
};

namespace {

const QPageLayout a4 = Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait);

QPalette dunkel()
{
    QPalette palette(QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

/// Whether a picture has a pixel that is nearly of this colour.
bool hat(const QImage &bild, const QColor &farbe)
{
    constexpr int nahe = 8;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor punkt = bild.pixelColor(x, y);
            if (qAbs(punkt.red() - farbe.red()) < nahe &&
                qAbs(punkt.green() - farbe.green()) < nahe &&
                qAbs(punkt.blue() - farbe.blue()) < nahe) {
                return true;
            }
        }
    }
    return false;
}

/// The share of pixels that are white.
double weiss(const QImage &bild)
{
    int anzahl = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            anzahl += bild.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
        }
    }
    return static_cast<double>(anzahl) / (bild.width() * bild.height());
}

} // namespace

void TestPapierbild::initTestCase()
{
    m_palette = QApplication::palette();
}

void TestPapierbild::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_flaeche = std::make_unique<QWidget>();
    auto *anordnung = new QGridLayout(m_flaeche.get());
    m_beschriftung = new QLabel(QStringLiteral("Ernährungsmaß Öl"));
    m_feld = new Textfeld;
    m_feld->setDecimals(1);
    m_feld->setUnit(QStringLiteral("mg"));
    m_feld->setDoubleValue(12.5);
    m_balken = new WertungView;
    m_balken->drawabalken(60);
    anordnung->addWidget(m_beschriftung, 0, 0);
    anordnung->addWidget(m_feld, 0, 1);
    anordnung->addWidget(m_balken, 1, 0, 1, 2);
    m_flaeche->resize(400, 200);
}

/// Shows the part in these colours, as a user has it before the eyes.
void TestPapierbild::zeige(const QPalette &palette)
{
    QApplication::setPalette(palette);
    m_flaeche->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_flaeche.get()));
    QTRY_COMPARE(m_beschriftung->palette().color(QPalette::WindowText), QColor(Qt::white));
}

void TestPapierbild::textStaysTextAndCanBeFound()
{
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({}, *m_flaeche));
    QCOMPARE(probe.seiten(), 1);
    QCOMPARE(finde(probe.worte(), QStringLiteral("Ernährungsmaß")).seite, 1);
    QCOMPARE(finde(probe.worte(), QStringLiteral("Öl")).seite, 1);
    QVERIFY(probe.zeilen(1).join(u' ').contains(QLatin1String("12,5")));
}

/// Fonts join ff, fi and fl to one sign, under which a search for the word finds nothing.
void TestPapierbild::lettersThatLikeToJoinCanBeFound()
{
    m_beschriftung->setText(QStringLiteral("Inhaltstoffe Filet Flan"));
    m_feld->setStringValue(QStringLiteral("Pfiff"));
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({QStringLiteral("Kaffee")}, *m_flaeche));
    for (const char *wort : {"Inhaltstoffe", "Filet", "Flan", "Pfiff", "Kaffee"}) {
        QCOMPARE(finde(probe.worte(), QString::fromLatin1(wort)).seite, 1);
    }
}

void TestPapierbild::paperIsWhiteUnderEveryTheme_data()
{
    QTest::addColumn<bool>("nacht");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestPapierbild::paperIsWhiteUnderEveryTheme()
{
    QFETCH(bool, nacht);
    if (nacht) {
        zeige(dunkel());
    }
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({QStringLiteral("Äpfel")}, *m_flaeche));
    const QImage bild = probe.bild(1);
    QVERIFY(weiss(bild) > 0.9);
    QVERIFY(hat(bild, Qt::black));
    QVERIFY(hat(bild, Qt::blue)); // the bar
}

void TestPapierbild::theThemeIsAsBeforeAfterwards()
{
    zeige(dunkel());
    m_feld->setTextColor(Textfarbe::Rot);
    const QPalette vorher = QApplication::palette();
    const QColor farbe = m_feld->palette().color(QPalette::Text);
    QVERIFY(farbe.lightness() > 128);
    const Papierbild bild(*m_flaeche);
    QCOMPARE(QApplication::palette(), vorher);
    QCOMPARE(m_beschriftung->palette().color(QPalette::WindowText), QColor(Qt::white));
    QCOMPARE(m_feld->palette().color(QPalette::Text), farbe);
}

void TestPapierbild::verdictsAreWrittenInTheColoursOfALightPage()
{
    zeige(dunkel());
    m_feld->setTextColor(Textfarbe::Rot);
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({}, *m_flaeche));
    const QImage bild = probe.bild(1, 4);
    QVERIFY(hat(bild, QColor(0xc0, 0x1c, 0x28)));
    QVERIFY(!hat(bild, QColor(0xff, 0x8f, 0x87)));
}

void TestPapierbild::itFillsTheWidthWithinTheMargins()
{
    // Half an inch at least stays free, more where the margins ask for it: 595 - 36 - 59 points
    // remain for 400, so everything is 1.25 as large.
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait, {0, 0, 59, 0}));
    m_flaeche->layout()->setContentsMargins(0, 0, 0, 0);
    m_balken->drawabalken(100);
    probe.drucke(bildauftrag({}, *m_flaeche));
    const QImage bild = probe.bild(1, 1);
    int links = bild.width();
    int rechts = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (bild.pixelColor(x, y) != QColor(Qt::white)) {
                links = qMin(links, x);
                rechts = qMax(rechts, x);
            }
        }
    }
    QVERIFY2(links >= 36 && links < 36 + 8, qPrintable(QString::number(links)));
    QVERIFY2(rechts <= 595 - 59 && rechts > 595 - 59 - 10, qPrintable(QString::number(rechts)));
}

void TestPapierbild::aTallPartFitsThePageToo()
{
    m_flaeche->resize(300, 1200);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Landscape));
    probe.drucke(bildauftrag({}, *m_flaeche));
    QCOMPARE(probe.seiten(), 1);
    const Druckwort wort = finde(probe.worte(), QStringLiteral("Ernährungsmaß"));
    QVERIFY(wort.x >= 36);
    QVERIFY(wort.rechts < 36 + 300 * (595 - 72) / 1200.0);
}

void TestPapierbild::eachPaperGetsThePictureThatIsLargestOnIt_data()
{
    QTest::addColumn<QPageLayout::Orientation>("lage");
    QTest::addColumn<QString>("wort");
    QTest::newRow("upright") << QPageLayout::Portrait << QStringLiteral("hoch");
    QTest::newRow("across") << QPageLayout::Landscape << QStringLiteral("breit");
}

void TestPapierbild::eachPaperGetsThePictureThatIsLargestOnIt()
{
    QFETCH(QPageLayout::Orientation, lage);
    QFETCH(QString, wort);
    QList<Papierbild> bilder;
    m_flaeche->resize(400, 200);
    m_beschriftung->setText(QStringLiteral("breit"));
    bilder << Papierbild(*m_flaeche);
    m_flaeche->resize(200, 400);
    m_beschriftung->setText(QStringLiteral("hoch"));
    bilder << Papierbild(*m_flaeche);
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, lage));
    probe.drucke(bildauftrag({}, bilder));
    QCOMPARE(probe.seiten(), 1);
    QCOMPARE(finde(probe.worte(), wort).seite, 1);
    const QString anderes =
        wort == QLatin1String("hoch") ? QStringLiteral("breit") : QStringLiteral("hoch");
    QCOMPARE(finde(probe.worte(), anderes).seite, 0);
}

void TestPapierbild::theLinesAboveSayWhatItIs()
{
    Druckprobe probe(a4);
    probe.drucke(
        bildauftrag({QStringLiteral("Äpfel, roh"), QStringLiteral("Nährwerte")}, *m_flaeche));
    QCOMPARE(probe.titel, QStringLiteral("Äpfel, roh"));
    const Druckwort titel = finde(probe.worte(), QStringLiteral("Äpfel,"));
    const Druckwort darunter = finde(probe.worte(), QStringLiteral("Nährwerte"));
    const Druckwort bild = finde(probe.worte(), QStringLiteral("Ernährungsmaß"));
    QCOMPARE(qRound(titel.x), 36);
    QVERIFY(titel.grundlinie > 36);
    QCOMPARE(qRound(titel.groesse), 16);
    QCOMPARE(qRound(darunter.x), 36);
    QVERIFY(darunter.grundlinie > titel.grundlinie + 10);
    QCOMPARE(qRound(darunter.groesse), 11);
    QVERIFY(bild.grundlinie > darunter.grundlinie + 10);
}

void TestPapierbild::barsAreDrawnInLines()
{
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({}, *m_flaeche));
    QCOMPARE(probe.bilder(), 0);
}

void TestPapierbild::aFaceKeepsItsPixels()
{
    // Lines that are one pixel wide in a picture four times as fine as the window.
    QImage streifen(256, 256, QImage::Format_RGB32);
    streifen.fill(Qt::white);
    for (int x = 0; x < streifen.width(); x += 2) {
        for (int y = 0; y < streifen.height(); ++y) {
            streifen.setPixelColor(x, y, Qt::black);
        }
    }
    auto *gesicht = new FaceView;
    gesicht->setImage(streifen);
    gesicht->entscheidung(1);
    gesicht->setFixedSize(64, 64);
    m_flaeche->layout()->addWidget(gesicht);
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({}, *m_flaeche));
    QVERIFY(probe.bilder() > 0);
    QVERIFY(hat(probe.bild(1, 8), Qt::black)); // blended with white it would be grey
}

void TestPapierbild::whatChangesAfterwardsIsNotPrinted()
{
    const Druckauftrag auftrag = bildauftrag({}, *m_flaeche);
    m_beschriftung->setText(QStringLiteral("Danach"));
    m_flaeche.reset();
    Druckprobe probe(a4);
    probe.drucke(auftrag);
    QCOMPARE(finde(probe.worte(), QStringLiteral("Ernährungsmaß")).seite, 1);
    QCOMPARE(finde(probe.worte(), QStringLiteral("Danach")).seite, 0);
}

void TestPapierbild::aWindowThatWasNeverShownIsPrinted()
{
    QVERIFY(!m_flaeche->isVisible());
    Druckprobe probe(a4);
    probe.drucke(bildauftrag({}, *m_flaeche));
    QVERIFY(finde(probe.worte(), QStringLiteral("Ernährungsmaß")).rechts < 595 / 2.0);
    QVERIFY(!m_flaeche->isVisible());
}

QTEST_MAIN(TestPapierbild)
#include "TestPapierbild.moc"
