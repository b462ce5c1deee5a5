// An amount drawn against what a day should hold.

#include "Bereichsbalken.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QTest>

#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Zielbereich)

namespace {

constexpr auto ca = Kenngroesse::ca;
constexpr int kleinsterBalken = 24; // what the bar itself has of its smallest width

QRgb mitte(const QImage &bild, int x)
{
    return bild.pixel(x, bild.height() / 2);
}

} // namespace

class TestBereichsbalken : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void theVerdictFollowsTheRange_data();
    void theVerdictFollowsTheRange();
    void eachVerdictHasItsSignItsWordAndItsColour_data();
    void eachVerdictHasItsSignItsWordAndItsColour();
    void theBarGoesALittleBeyondTheLastEnd();
    void itIsSaidToThoseWhoCannotSeeIt();
    void theAmountFillsTheBarInTheColourOfTheVerdict();
    void withoutARangeNothingIsDrawn();
    void theUpperLevelIsMarkedBoldly();
    void theRangeIsBracketed_data();
    void theRangeIsBracketed();
    void theBracketEndsBeforeTheLevel();
    void theSignHasTheColourOfTheVerdict();
    void whatIsShownAnewIsPaintedAnew();
    void theBarTakesTheRoomThatIsLeft();
};

void TestBereichsbalken::theVerdictFollowsTheRange_data()
{
    QTest::addColumn<Zielbereich>("ziel");
    QTest::addColumn<double>("menge");
    QTest::addColumn<double>("unbekannt");
    QTest::addColumn<Bereichsurteil>("urteil");
    const Zielbereich spanne = {ca, 800, 1200, 2500};
    const auto fall = [](const char *name, const Zielbereich &ziel, double menge, double unbekannt,
                         Bereichsurteil urteil) {
        QTest::newRow(name) << ziel << menge << unbekannt << urteil;
    };
    fall("below", spanne, 799.9, 0, Bereichsurteil::ZuWenig);
    fall("at the lower end", spanne, 800, 0, Bereichsurteil::Richtig);
    fall("at the upper end", spanne, 1200, 0, Bereichsurteil::Richtig);
    fall("above", spanne, 1200.1, 0, Bereichsurteil::ZuViel);
    fall("at the level", spanne, 2500, 0, Bereichsurteil::ZuViel);
    fall("above the level", spanne, 2500.1, 0, Bereichsurteil::Ueberhoeht);
    fall("below, as far as is known", spanne, 700, 0.01, Bereichsurteil::VielleichtZuWenig);
    fall("right, as far as is known", spanne, 900, 0.01, Bereichsurteil::VielleichtRichtig);
    fall("not too much of what is known", {Kenngroesse::na, {}, 1500, {}}, 900, 0.9,
         Bereichsurteil::VielleichtRichtig);
    fall("below the level, as far as is known", {ca, 800, {}, 2500}, 900, 0.5,
         Bereichsurteil::VielleichtRichtig);
    fall("enough, and no end above", {ca, 800, {}, {}}, 900, 0.5, Bereichsurteil::Richtig);
    fall("too much of what is known", spanne, 1300, 0.5, Bereichsurteil::ZuViel);
    fall("no range", {ca, {}, {}, {}}, 900, 0, Bereichsurteil::Keines);
    fall("only a level", {ca, {}, {}, 2500}, 0, 0, Bereichsurteil::Richtig);
}

void TestBereichsbalken::theVerdictFollowsTheRange()
{
    QFETCH(const Zielbereich, ziel);
    QFETCH(const double, menge);
    QFETCH(const double, unbekannt);
    QFETCH(const Bereichsurteil, urteil);
    QCOMPARE(beurteile(ziel, menge, unbekannt), urteil);
}

void TestBereichsbalken::eachVerdictHasItsSignItsWordAndItsColour_data()
{
    QTest::addColumn<Bereichsurteil>("urteil");
    QTest::addColumn<QString>("zeichen");
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Textfarbe>("farbe");
    QTest::newRow("none") << Bereichsurteil::Keines << QString() << QString()
                          << Textfarbe::Standard;
    QTest::newRow("right") << Bereichsurteil::Richtig << u"✓"_s << u"passt"_s << Textfarbe::Gruen;
    QTest::newRow("as far as known") << Bereichsurteil::VielleichtRichtig << u"?"_s
                                     << u"passt, soweit bekannt"_s << Textfarbe::Blau;
    QTest::newRow("maybe") << Bereichsurteil::VielleichtZuWenig << u"≈"_s
                           << u"vielleicht zu wenig"_s << Textfarbe::Blau;
    QTest::newRow("little") << Bereichsurteil::ZuWenig << u"↓"_s << u"zu wenig"_s << Textfarbe::Rot;
    QTest::newRow("much") << Bereichsurteil::ZuViel << u"↑"_s << u"zu viel"_s << Textfarbe::Rot;
    QTest::newRow("level") << Bereichsurteil::Ueberhoeht << u"‼"_s << u"über der Obergrenze"_s
                           << Textfarbe::Rot;
}

void TestBereichsbalken::eachVerdictHasItsSignItsWordAndItsColour()
{
    QFETCH(const Bereichsurteil, urteil);
    QFETCH(const QString, zeichen);
    QFETCH(const QString, wort);
    QFETCH(const Textfarbe, farbe);
    Bereichsbalken balken;
    balken.zeige(5, {ca, 10, {}, {}}, urteil);
    QCOMPARE(balken.zeichen(), zeichen);
    QCOMPARE(urteilswort(urteil), wort);
    QCOMPARE(urteilsfarbe(urteil), farbe);
}

void TestBereichsbalken::theBarGoesALittleBeyondTheLastEnd()
{
    Bereichsbalken balken;
    QCOMPARE(balken.ort(100), 0.0); // nothing is shown yet
    balken.zeigeBereich({ca, 800, {}, {}});
    QCOMPARE(balken.ort(800), 0.8); // 800 of 1000
    QCOMPARE(balken.ort(0), 0.0);
    QCOMPARE(balken.ort(1000), 1.0);
    QCOMPARE(balken.ort(5000), 1.0);
    balken.zeigeBereich({ca, 800, {}, 2000});
    QCOMPARE(balken.ort(800), 0.32); // 800 of 2500
    balken.zeigeBereich({ca, {}, 400, {}});
    QCOMPARE(balken.ort(400), 0.8);
    balken.zeigeBereich({ca, {}, {}, {}});
    QCOMPARE(balken.ort(400), 0.0);
}

void TestBereichsbalken::itIsSaidToThoseWhoCannotSeeIt()
{
    Bereichsbalken balken;
    QVERIFY(balken.beschreibung().isEmpty());
    balken.zeige(612, {ca, 950, {}, 2500}, Bereichsurteil::ZuWenig);
    QCOMPARE(balken.beschreibung(), u"612 mg, zu wenig (mind. 950 mg · höchstens 2500 mg)"_s);
    balken.zeige(612, {ca, 950, {}, {}}, Bereichsurteil::Keines);
    QCOMPARE(balken.beschreibung(), u"612 mg (mind. 950 mg)"_s);
    balken.zeigeBereich({ca, 950, {}, {}});
    QCOMPARE(balken.beschreibung(), u"mind. 950 mg"_s);
    QCOMPARE(balken.urteil(), Bereichsurteil::Keines);
    QAccessibleInterface *zugang = QAccessible::queryAccessibleInterface(&balken);
    QVERIFY(zugang != nullptr);
    QCOMPARE(zugang->text(QAccessible::Description), u"mind. 950 mg"_s);
    balken.zeige(612, {ca, 950, {}, {}}, Bereichsurteil::ZuWenig);
    balken.leere();
    QVERIFY(balken.beschreibung().isEmpty());
    QCOMPARE(balken.urteil(), Bereichsurteil::Keines);
    QVERIFY(balken.zeichen().isEmpty());
}

void TestBereichsbalken::theAmountFillsTheBarInTheColourOfTheVerdict()
{
    Bereichsbalken balken;
    balken.resize(220, 24);
    // Half of the bar: 500 of 1000.
    balken.zeige(500, {ca, 800, {}, {}}, Bereichsurteil::ZuWenig);
    const QImage bild = balken.grab().toImage();
    const QRgb rot = farbeFuer(Textfarbe::Rot, balken.palette()).rgb();
    const QRgb grund = balken.palette().color(QPalette::Mid).rgb();
    QCOMPARE(mitte(bild, 60), rot);
    QCOMPARE(mitte(bild, 215), grund);
    QVERIFY(rot != grund);
    balken.zeige(500, {ca, 400, {}, {}}, Bereichsurteil::Richtig);
    QCOMPARE(mitte(balken.grab().toImage(), 60),
             farbeFuer(Textfarbe::Gruen, balken.palette()).rgb());
    balken.zeigeBereich({ca, 800, {}, {}});
    QCOMPARE(mitte(balken.grab().toImage(), 60), grund);
}

void TestBereichsbalken::withoutARangeNothingIsDrawn()
{
    Bereichsbalken balken;
    balken.resize(220, 24);
    const QImage leer = balken.grab().toImage();
    balken.zeige(500, {ca, 800, {}, {}}, Bereichsurteil::ZuWenig);
    QVERIFY(balken.grab().toImage() != leer);
    balken.leere();
    QCOMPARE(balken.grab().toImage(), leer);
}

namespace {

/// How wide the dark pieces of a row of the picture are.
QList<int> striche(const Bereichsbalken &balken, const QImage &bild, int y)
{
    const QRgb strich = balken.palette().color(QPalette::WindowText).rgb();
    QList<int> breiten;
    bool vorher = false;
    for (int x = 0; x < bild.width(); ++x) {
        const bool dunkel = bild.pixel(x, y) == strich;
        if (dunkel && !vorher) {
            breiten << 0;
        }
        if (dunkel) {
            ++breiten.last();
        }
        vorher = dunkel;
    }
    return breiten;
}

} // namespace

/// The mark of the upper level is three pixels wide, that of an end one.
void TestBereichsbalken::theUpperLevelIsMarkedBoldly()
{
    Bereichsbalken balken;
    balken.resize(220, 24);
    balken.zeigeBereich({ca, 500, {}, 1000});
    const QImage bild = balken.grab().toImage();
    QCOMPARE(striche(balken, bild, bild.height() / 2), (QList<int>{1, 3}));
}

void TestBereichsbalken::theRangeIsBracketed_data()
{
    QTest::addColumn<Zielbereich>("ziel");
    QTest::addColumn<QList<int>>("marken");
    QTest::addColumn<double>("klammer"); // a part of the bar
    // The bar ends at 1.25 times the last end.
    QTest::newRow("between") << Zielbereich{ca, 400, 800, {}} << QList<int>{1, 1} << 0.4;
    QTest::newRow("at least") << Zielbereich{ca, 400, {}, {}} << QList<int>{1} << 0.2;
    QTest::newRow("at most") << Zielbereich{ca, {}, 400, {}} << QList<int>{1} << 0.8;
    QTest::newRow("up to the level") << Zielbereich{ca, 400, {}, 800} << QList<int>{1, 3} << 0.4;
    QTest::newRow("only a level") << Zielbereich{ca, {}, {}, 800} << QList<int>{3} << 0.0;
}

void TestBereichsbalken::theRangeIsBracketed()
{
    QFETCH(const Zielbereich, ziel);
    QFETCH(const QList<int>, marken);
    QFETCH(const double, klammer);
    Bereichsbalken balken;
    balken.resize(220, 24);
    balken.zeigeBereich(ziel);
    const QImage bild = balken.grab().toImage();
    QCOMPARE(striche(balken, bild, bild.height() / 2), marken);
    // The bracket is the uppermost row that is drawn on; the marks begin there too.
    int oben = 0;
    while (striche(balken, bild, oben).isEmpty()) {
        ++oben;
    }
    const int breite = balken.width() - balken.minimumSizeHint().width() + kleinsterBalken;
    const double gezogen = std::accumulate(marken.begin(), marken.end(), 0);
    const QList<int> stuecke = striche(balken, bild, oben);
    const double erwartet = klammer * breite;
    QVERIFY(std::abs(std::accumulate(stuecke.begin(), stuecke.end(), 0) - erwartet) <= gezogen + 1);
    QCOMPARE(stuecke.size(), 1);
}

/// A range up to 800 of which 1600 should never be passed: the bar ends at 2000.
void TestBereichsbalken::theBracketEndsBeforeTheLevel()
{
    Bereichsbalken balken;
    balken.resize(balken.minimumSizeHint().width() - kleinsterBalken + 200, 24);
    balken.zeigeBereich({ca, 400, 800, 1600});
    const QImage bild = balken.grab().toImage();
    QCOMPARE(striche(balken, bild, bild.height() / 2), (QList<int>{1, 1, 3}));
    int oben = 0;
    while (striche(balken, bild, oben).isEmpty()) {
        ++oben;
    }
    // 400 of 2000 on 200 pixels, with the mark of its end; the level's mark stands by itself.
    QCOMPARE(striche(balken, bild, oben), (QList<int>{41, 3}));
}

void TestBereichsbalken::theSignHasTheColourOfTheVerdict()
{
    Bereichsbalken balken;
    balken.resize(220, 24);
    const int links = balken.minimumSizeHint().width() - kleinsterBalken - 4;
    // Thin strokes are mixed with the ground; the darkest pixel is the least mixed one.
    const auto dunkelste = [&](Bereichsurteil urteil) {
        balken.zeige(500, {ca, 800, {}, {}}, urteil);
        const QImage bild = balken.grab().toImage();
        QColor eine = Qt::white;
        for (int x = 0; x < links; ++x) {
            for (int y = 0; y < bild.height(); ++y) {
                const QColor diese = bild.pixelColor(x, y);
                eine = diese.lightness() < eine.lightness() ? diese : eine;
            }
        }
        return eine;
    };
    QCOMPARE(dunkelste(Bereichsurteil::Keines), balken.palette().color(QPalette::Window));
    const auto abstand = [&](Bereichsurteil urteil, Textfarbe farbe) {
        const QColor gemeint = farbeFuer(farbe, balken.palette());
        return std::abs(dunkelste(urteil).hslHue() - gemeint.hslHue());
    };
    QVERIFY(abstand(Bereichsurteil::ZuWenig, Textfarbe::Rot) <= 3);
    QVERIFY(abstand(Bereichsurteil::Richtig, Textfarbe::Gruen) <= 3);
    QVERIFY(abstand(Bereichsurteil::VielleichtZuWenig, Textfarbe::Blau) <= 3);
}

void TestBereichsbalken::whatIsShownAnewIsPaintedAnew()
{
    class Zaehler : public Bereichsbalken
    {
    public:
        int gemalt = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++gemalt;
            Bereichsbalken::paintEvent(event);
        }
    };
    Zaehler balken;
    balken.show();
    QVERIFY(QTest::qWaitForWindowExposed(&balken));
    const auto maltBei = [&balken](const std::function<void()> &aenderung) {
        QCoreApplication::processEvents();
        balken.gemalt = 0;
        aenderung();
        QCoreApplication::processEvents();
        return balken.gemalt > 0;
    };
    const Zielbereich ziel = {ca, 800, {}, {}};
    QVERIFY(!maltBei([] {}));
    QVERIFY(maltBei([&] { balken.zeige(500, ziel, Bereichsurteil::ZuWenig); }));
    QVERIFY(maltBei([&] { balken.zeigeBereich(ziel); }));
    QVERIFY(maltBei([&] { balken.leere(); }));
}

void TestBereichsbalken::theBarTakesTheRoomThatIsLeft()
{
    QWidget reihe;
    auto *anordnung = new QHBoxLayout(&reihe);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(0);
    auto *name = new QLabel(u"Calcium"_s);
    auto *balken = new Bereichsbalken;
    anordnung->addWidget(name);
    anordnung->addWidget(balken);
    reihe.resize(600, 30);
    reihe.show();
    QCOMPARE(name->width(), name->sizeHint().width());
    QCOMPARE(balken->width(), 600 - name->width());
    // Where nobody says how wide it is, the bar is five times as long as the shortest one.
    QCOMPARE(balken->sizeHint().width() - balken->minimumSizeHint().width(), 120 - kleinsterBalken);
}

QTEST_MAIN(TestBereichsbalken)
#include "TestBereichsbalken.moc"
