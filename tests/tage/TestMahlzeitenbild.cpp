// The picture of the meals: its bars and marks, its texts, and what it tells those who don't see
// it.

#include "Bildleser.h"
#include "Mahlzeitenbild.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QTest>
#include <QToolTip>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int breite = 400;

const QList<Mahlzeitenanteil> drei = {{u"Früh"_s, 200.0, 33.3, 400.0, 0},
                                      {u"Mittag"_s, 400.0, 66.7, 100.0, 0},
                                      {u"Abend"_s, {}, 0, {}, 1}};

QString ohneFestes(QString text)
{
    return text.replace(QChar(QChar::Nbsp), u' ');
}

} // namespace

class TestMahlzeitenbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init();

    void everyMealHasItsLine();
    void withoutAMeanNoMarkIsExplained();
    void barsAreAsLongAsTheirEnergy_data();
    void barsAreAsLongAsTheirEnergy();
    void marksStandWhereTheMeanIs();
    void colourOnLightAndDarkIsReadable_data();
    void colourOnLightAndDarkIsReadable();
    void longNamesAreCutOff();
    void figuresAreNeverCutOff_data();
    void figuresAreNeverCutOff();
    void itIsAsHighAsItsMeals_data();
    void itIsAsHighAsItsMeals();
    void assistiveToolsReadTheFigures();
    void theWholeNameStandsInTheToolTip();

private:
    int zeile() const { return m_bild->fontMetrics().height(); }
    QStringList worte(QSize groesse) const
    {
        Spionblatt blatt(groesse, 96);
        QPainter maler(&blatt);
        m_bild->zeichnen(maler, QRectF(QPointF(), groesse));
        maler.end();
        QStringList texte;
        for (const Textstelle &einer : blatt.texte()) {
            texte << ohneFestes(einer.text);
        }
        return texte;
    }
    QImage gemalt() const
    {
        QImage bild(m_bild->size(), QImage::Format_RGB32);
        bild.fill(m_bild->palette().color(QPalette::Window));
        QPainter maler(&bild);
        m_bild->zeichnen(maler, QRectF(m_bild->rect()));
        return bild;
    }
    Mahlzeitenspalten spalten() const;
    /// How many pixels of a line within the field of the bars have the colour of the bars.
    int balkenpunkte(const QImage &bild, int reihe) const;

    std::unique_ptr<Mahlzeitenbild> m_bild;
};

void TestMahlzeitenbild::init()
{
    m_bild = std::make_unique<Mahlzeitenbild>();
    QPalette hell;
    hell.setColor(QPalette::Window, Qt::white);
    hell.setColor(QPalette::WindowText, Qt::black);
    m_bild->setPalette(hell);
    m_bild->zeige(drei);
    m_bild->resize(breite, m_bild->minimumSizeHint().height());
}

/// The columns, worked out from the letters as anybody would measure them. The figures have room
/// for four digits, and for 100 %.
Mahlzeitenspalten TestMahlzeitenbild::spalten() const
{
    const QFontMetricsF masse(m_bild->font());
    Mahlzeitenbreiten wunsch;
    wunsch.energie = std::ceil(masse.horizontalAdvance(u"8888\u00a0kcal"_s));
    wunsch.prozent = std::ceil(masse.horizontalAdvance(u"100\u00a0%"_s));
    for (const Mahlzeitenanteil &einer : m_bild->anteile()) {
        wunsch.name = std::max(wunsch.name, std::ceil(masse.horizontalAdvance(einer.name)));
        wunsch.energie =
            std::max(wunsch.energie, std::ceil(masse.horizontalAdvance(energietext(einer))));
        wunsch.prozent =
            std::max(wunsch.prozent, std::ceil(masse.horizontalAdvance(anteilstext(einer))));
    }
    wunsch.abstand = masse.height() / 2;
    return mahlzeitenspalten(m_bild->width(), wunsch);
}

int TestMahlzeitenbild::balkenpunkte(const QImage &bild, int reihe) const
{
    const int y = zeile() * (reihe + 1) + zeile() / 2;
    int anzahl = 0;
    for (int x = static_cast<int>(spalten().balken);
         x < static_cast<int>(spalten().balken + spalten().balkenbreite); ++x) {
        anzahl += bild.pixelColor(x, y) == QColor(127, 127, 127) ? 1 : 0;
    }
    return anzahl;
}

void TestMahlzeitenbild::everyMealHasItsLine()
{
    QCOMPARE(worte(m_bild->size()), (QStringList{u"Energie der Mahlzeiten"_s, u"Strich: Mittel"_s,
                                                 u"Früh"_s, u"200 kcal"_s, u"33 %"_s, u"Mittag"_s,
                                                 u"400 kcal"_s, u"67 %"_s, u"Abend"_s, u"?"_s}));
}

void TestMahlzeitenbild::withoutAMeanNoMarkIsExplained()
{
    m_bild->zeige({{u"Früh"_s, 200.0, 100, {}, 0}});
    QVERIFY(!worte(m_bild->size()).contains(u"Strich: Mittel"_s));
    m_bild->zeige({});
    QCOMPARE(worte(m_bild->size()), QStringList{u"Energie der Mahlzeiten"_s});
}

void TestMahlzeitenbild::barsAreAsLongAsTheirEnergy_data()
{
    QTest::addColumn<QList<Mahlzeitenanteil>>("anteile");
    QTest::addColumn<QList<double>>("teile"); // of the whole length
    QTest::newRow("half and whole")
        << QList<Mahlzeitenanteil>{{u"A"_s, 200.0, 33, {}, 0}, {u"B"_s, 400.0, 67, {}, 0}}
        << QList<double>{0.5, 1};
    QTest::newRow("the mean may be longer")
        << QList<Mahlzeitenanteil>{{u"A"_s, 200.0, 33, {}, 0}, {u"B"_s, {}, 0, 800.0, 0}}
        << QList<double>{0.25, 0};
    QTest::newRow("no energy on this day")
        << QList<Mahlzeitenanteil>{{u"A"_s, 0.0, 0, {}, 0}, {u"B"_s, {}, 0, {}, 3}}
        << QList<double>{0, 0};
}

void TestMahlzeitenbild::barsAreAsLongAsTheirEnergy()
{
    QFETCH(QList<Mahlzeitenanteil>, anteile);
    QFETCH(QList<double>, teile);
    m_bild->zeige(anteile);
    m_bild->resize(breite, m_bild->minimumSizeHint().height());
    const QImage bild = gemalt();
    for (int reihe = 0; reihe < teile.size(); ++reihe) {
        const double erwartet = teile[reihe] * spalten().balkenbreite;
        const int gezeigt = balkenpunkte(bild, reihe);
        QVERIFY2(std::abs(gezeigt - erwartet) <= 1.5, qPrintable(QString::number(gezeigt)));
    }
}

/// The first mark is at the end of the field, the second at a quarter, over the bar; the third meal
/// has none.
void TestMahlzeitenbild::marksStandWhereTheMeanIs()
{
    const QImage bild = gemalt();
    const auto schwarzBei = [&](int reihe, double teil) {
        const int y = zeile() * (reihe + 1) + 2; // above the bar
        const int x = qRound(spalten().balken + teil * spalten().balkenbreite);
        int anzahl = 0;
        for (int i = x - 3; i <= x + 3; ++i) {
            anzahl += bild.pixelColor(i, y) == QColor(Qt::black) ? 1 : 0;
        }
        return anzahl;
    };
    QCOMPARE(schwarzBei(0, 1), 2);
    QCOMPARE(schwarzBei(0, 0.5), 0);
    QCOMPARE(schwarzBei(1, 0.25), 2);
    QCOMPARE(schwarzBei(1, 1), 0);
    for (const double teil : {0.0, 0.25, 0.5, 1.0}) {
        QCOMPARE(schwarzBei(2, teil), 0);
    }
}

void TestMahlzeitenbild::colourOnLightAndDarkIsReadable_data()
{
    QTest::addColumn<QColor>("grund");
    QTest::addColumn<QColor>("schrift");
    QTest::newRow("light") << QColor(239, 239, 239) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(45, 45, 45) << QColor(Qt::white);
}

/// What has to be made out has 3 : 1 at least against its ground (WCAG 2.1, 1.4.11).
void TestMahlzeitenbild::colourOnLightAndDarkIsReadable()
{
    QFETCH(QColor, grund);
    QFETCH(QColor, schrift);
    QPalette farben;
    farben.setColor(QPalette::Window, grund);
    farben.setColor(QPalette::WindowText, schrift);
    m_bild->setPalette(farben);
    const QColor balken =
        gemalt().pixelColor(static_cast<int>(spalten().balken) + 3, zeile() + zeile() / 2);
    const auto helligkeit = [](const QColor &farbe) {
        const auto teil = [](double wert) {
            return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * teil(static_cast<double>(farbe.redF())) +
               0.7152 * teil(static_cast<double>(farbe.greenF())) +
               0.0722 * teil(static_cast<double>(farbe.blueF()));
    };
    const double a = helligkeit(balken) + 0.05;
    const double b = helligkeit(grund) + 0.05;
    QVERIFY2(std::max(a, b) / std::min(a, b) >= 3, qPrintable(balken.name()));
}

void TestMahlzeitenbild::longNamesAreCutOff()
{
    const QString lang = u"Mahlzeit mit einem Namen, der über jede Breite des Bildes hinausgeht"_s;
    m_bild->zeige({{lang, 200.0, 100, {}, 0}});
    const QString gezeigt = worte(m_bild->size()).value(1);
    QVERIFY2(gezeigt.endsWith(u'…'), qPrintable(gezeigt));
    QVERIFY(lang.startsWith(gezeigt.chopped(1)));
    QVERIFY(gezeigt.size() > 6);
}

void TestMahlzeitenbild::figuresAreNeverCutOff_data()
{
    QTest::addColumn<double>("punkte");
    QTest::newRow("100 %") << 10.0;
    QTest::newRow("150 %") << 15.0;
    QTest::newRow("200 %") << 20.0;
}

void TestMahlzeitenbild::figuresAreNeverCutOff()
{
    QFETCH(double, punkte);
    QFont schrift = m_bild->font();
    schrift.setPointSizeF(punkte);
    m_bild->setFont(schrift);
    m_bild->zeige({{u"Zwischenmahlzeit"_s, 1234.0, 100, 1250.0, 0}});
    const QSize kleinste = m_bild->minimumSizeHint();
    Spionblatt blatt(kleinste, 96);
    QPainter maler(&blatt);
    m_bild->zeichnen(maler, QRectF(QPointF(), kleinste));
    maler.end();
    double rechts = 0;
    for (const Textstelle &einer : blatt.texte()) {
        QVERIFY2(einer.platz.left() >= rechts - 0.5 || einer.platz.left() < 1,
                 qPrintable(einer.text));
        QVERIFY(einer.platz.right() <= kleinste.width() + 0.5);
        QVERIFY(einer.platz.bottom() <= kleinste.height() + 0.5);
        rechts = einer.platz.right();
    }
    QCOMPARE(ohneFestes(blatt.texte().value(blatt.texte().size() - 2).text), u"1234 kcal"_s);
    QCOMPARE(ohneFestes(blatt.texte().last().text), u"100 %"_s);
}

void TestMahlzeitenbild::itIsAsHighAsItsMeals_data()
{
    QTest::addColumn<int>("mahlzeiten");
    for (const int anzahl : {0, 1, 6, meisteMahlzeiten}) {
        QTest::addRow("%d", anzahl) << anzahl;
    }
}

void TestMahlzeitenbild::itIsAsHighAsItsMeals()
{
    QFETCH(int, mahlzeiten);
    m_bild->zeige(QList<Mahlzeitenanteil>(mahlzeiten, {u"A"_s, 1.0, 1, 1.0, 0}));
    QCOMPARE(m_bild->minimumSizeHint().height(), (mahlzeiten + 1) * zeile());
    QCOMPARE(m_bild->sizeHint().height(), (mahlzeiten + 1) * zeile());
    QVERIFY(m_bild->sizeHint().width() > m_bild->minimumSizeHint().width());
    QVERIFY(!gemalt().isNull());
}

void TestMahlzeitenbild::assistiveToolsReadTheFigures()
{
    auto *zugang = QAccessible::queryAccessibleInterface(m_bild.get());
    QVERIFY(zugang != nullptr);
    QCOMPARE(zugang->role(), QAccessible::Graphic);
    QCOMPARE(zugang->text(QAccessible::Name), u"Energie der Mahlzeiten"_s);
    QCOMPARE(ohneFestes(zugang->text(QAccessible::Description)),
             u"Früh: 200 kcal, 33 %; im Mittel 400 kcal. Mittag: 400 kcal, 67 %; im Mittel 100 "
             "kcal. Abend: unbekannt; Zeilen, die nicht zählen: 1."_s);
    m_bild->zeige({{u"Früh"_s, 90.0, 100, {}, 0}});
    QCOMPARE(ohneFestes(zugang->text(QAccessible::Description)), u"Früh: 90 kcal, 100 %."_s);
}

void TestMahlzeitenbild::theWholeNameStandsInTheToolTip()
{
    QVERIFY(m_bild->hinweisBei({5, -1}).isNull());
    QVERIFY(m_bild->hinweisBei({5, zeile() - 1}).isNull()); // the heading
    QVERIFY(m_bild->hinweisBei({5, zeile()}).startsWith(u"Früh: "_s));
    QVERIFY(m_bild->hinweisBei({390, 3 * zeile() - 1}).startsWith(u"Mittag: "_s));
    QVERIFY(m_bild->hinweisBei({5, 3 * zeile()}).startsWith(u"Abend: "_s));
    QVERIFY(m_bild->hinweisBei({5, 4 * zeile()}).isNull());
    m_bild->zeige({{u"<b>Lang</b>"_s, 90.0, 100, {}, 0}});
    m_bild->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_bild.get()));
    const QPoint ort(5, zeile() + 2);
    QHelpEvent frage(QEvent::ToolTip, ort, m_bild->mapToGlobal(ort));
    QCoreApplication::sendEvent(m_bild.get(), &frage);
    QCOMPARE(ohneFestes(QToolTip::text()), u"&lt;b&gt;Lang&lt;/b&gt;: 90 kcal, 100 %."_s);
    QVERIFY(m_bild->toolTip().isEmpty()); // it would be read out in place of the description
}

QTEST_MAIN(TestMahlzeitenbild)
#include "TestMahlzeitenbild.moc"
