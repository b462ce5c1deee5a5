#include "Auswahlfeld.h"
#include "Bedarfsbalken.h"
#include "Bilderrahmen.h"
#include "Erscheinungsbild.h"
#include "Farblegende.h"
#include "Hinweisstreifen.h"
#include "Karte.h"
#include "Schieber.h"
#include "Sprache.h"
#include "Tabellenansicht.h"
#include "Teiler.h"
#include "Textfeld.h"
#include "Wertungswort.h"
#include "Zaehlfeld.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// What the controls look like: each as it is, where it can't be used, and with the keyboard.
class TestSteuerungenbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fields_data() { farben(); }
    void fields();
    void badges_data();
    void badges();
    void notices_data() { farben(); }
    void notices();
    void tables_data() { farben(); }
    void tables();
    void whatHasTheKeyboard_data();
    void whatHasTheKeyboard();
    void theDividerWithTheKeyboard();
    void whatIsDragged();

private:
    /// Rows in the light and in the dark.
    static void farben();
    /// Compares the sheet in the clothes of the row.
    void pruefe(const QString &name);
    QVBoxLayout &anordnung() { return *qobject_cast<QVBoxLayout *>(m_bogen->layout()); }

    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<QWidget> m_bogen;
};

namespace {

constexpr int breite = 360;

/// Three foods, the second one on display, the third with a rating that stands out.
class Beispielquelle : public Tabellenquelle
{
public:
    int numberOfRows() const override { return 3; }
    QString objectValue(const QString &spalte, int zeile) override
    {
        static const QStringList namen = {
            u"Haferflocken"_s, u"Joghurt (Naturjoghurts), natur"_s,
            u"Hähnchenbrustfilet (Hähnchenbrüste), gebraten und ohne Haut"_s};
        return spalte == u"name"_s ? namen[zeile] : u"+ gut"_s;
    }
    Zellenbild willDisplayCell(const QString &spalte, int zeile, const QString &wert) override
    {
        Zellenbild bild;
        bild.text = wert;
        bild.umrandet = spalte == u"name"_s && zeile == 1;
        if (spalte == u"urteil"_s) {
            bild.anfang = zeile == 2 ? Textfarbe::Rot : Textfarbe::Gruen;
            bild.anfangspunkte = 14;
        }
        return bild;
    }
};

Schieber *schieber(double wert)
{
    auto *neu = new Schieber;
    neu->setMaximumValue(300);
    neu->setUnit(u"kg"_s);
    neu->setDecimals(1);
    neu->setDoubleValue(wert);
    return neu;
}

Textfeld *textfeld(double wert, Textfarbe farbe = Textfarbe::Standard)
{
    auto *neu = new Textfeld;
    neu->setUnit(u"mg"_s);
    neu->setSignificantDigits(2);
    neu->setDoubleValue(wert);
    neu->setTextColor(farbe);
    return neu;
}

Tabellenansicht *tabelle(Tabellenquelle &quelle, bool gitter)
{
    auto *neu = new Tabellenansicht;
    neu->setQuelle(&quelle, {{u"name"_s, u"Lebensmittel"_s},
                             {u"urteil"_s, u"Beurteilung bei Übergewicht"_s, u"Übergew."_s}});
    neu->setSpaltenbreiten({180, 60});
    neu->setRowHeight(24);
    neu->setGitter(gitter);
    neu->setAlternatingRowColors(true);
    neu->setFixedHeight(120);
    neu->reloadData();
    return neu;
}

} // namespace

void TestSteuerungenbild::init()
{
    m_sprache = std::make_unique<Sprache>(u"de"_s);
    m_bogen = std::make_unique<QWidget>();
    m_bogen->setFixedWidth(breite);
    new QVBoxLayout(m_bogen.get());
}

void TestSteuerungenbild::cleanup()
{
    m_bogen.reset();
    m_sprache.reset();
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
}

void TestSteuerungenbild::farben()
{
    QTest::addColumn<bool>("dunkel");
    QTest::addColumn<int>("verhaeltnis");
    QTest::addColumn<QString>("zusatz");
    QTest::newRow("in the light") << false << 1 << QString();
    QTest::newRow("in the dark") << true << 1 << u"-dunkel"_s;
}

void TestSteuerungenbild::pruefe(const QString &name)
{
    QFETCH(bool, dunkel);
    QFETCH(int, verhaeltnis);
    QFETCH(QString, zusatz);
    zeigeErscheinungsbild(dunkel ? Erscheinungsbild::Dunkel : Erscheinungsbild::Hell);
    m_bogen->setFocusPolicy(Qt::StrongFocus); // so that none of the controls has the keyboard
    m_bogen->setFocus();
    m_bogen->show();
    QVERIFY(QTest::qWaitForWindowActive(m_bogen.get()));
    Bilderrahmen::pruefe(name + zusatz, *m_bogen, verhaeltnis);
}

/// Sliders within and beyond their range, fields with small and large numbers, choosers.
void TestSteuerungenbild::fields()
{
    for (const double wert : {0.0, 82.5, 300.0, 450.0}) {
        anordnung().addWidget(schieber(wert));
    }
    auto *gesperrt = schieber(82.5);
    gesperrt->setEnabled(false);
    anordnung().addWidget(gesperrt);
    for (const double wert : {0.012, 1234.5}) {
        anordnung().addWidget(textfeld(wert));
    }
    auto *frei = new Textfeld;
    frei->setEditable(true);
    frei->setPlaceholderText(u"Name suchen"_s);
    anordnung().addWidget(frei);
    auto *aus = textfeld(12);
    aus->setEnabled(false);
    anordnung().addWidget(aus);
    auto *wahl = new Auswahlfeld;
    wahl->setAuswahl(u"geeignet|neutral|ungeeignet"_s);
    anordnung().addWidget(wahl);
    auto *freieWahl = new Auswahlfeld;
    freieWahl->setFreitext(true);
    freieWahl->setAuswahl(u"Bier|Wein"_s);
    freieWahl->setStringValue(u"Wein"_s);
    anordnung().addWidget(freieWahl);
    pruefe(u"steuerung-felder"_s);
}

void TestSteuerungenbild::badges_data()
{
    farben();
    QTest::newRow("two pixels to a point") << false << 2 << u"-zweifach"_s;
}

/// What carries a verdict: coloured figures, counts, words, bars, and the legend of the colours.
void TestSteuerungenbild::badges()
{
    auto *karte = new Karte;
    auto *darin = new QFormLayout(karte);
    for (const auto &[farbe, zeichen] : {std::pair(Textfarbe::Gruen, u"+"_s),
                                         {Textfarbe::Blau, u"0"_s},
                                         {Textfarbe::Rot, u"-"_s}}) {
        auto *feld = new Textfeld;
        feld->setTextColor(farbe);
        feld->setStringValue(zeichen);
        auto *wort = new Wertungswort;
        wort->folge(*feld);
        darin->addRow(wort, feld);
    }
    anordnung().addWidget(karte);
    for (const auto &[prozent, farbe] : {std::pair(0, Textfarbe::Standard),
                                         {4, Textfarbe::Rot},
                                         {12, Textfarbe::Blau},
                                         {60, Textfarbe::Gruen},
                                         {250, Textfarbe::Gruen}}) {
        auto *balken = new Bedarfsbalken;
        balken->setGrenze(10);
        balken->zeige(prozent, farbe);
        anordnung().addWidget(balken);
    }
    for (const auto &[farbe, zahl] :
         {std::pair(Textfarbe::Gruen, 12), {Textfarbe::Rot, 3}, {Textfarbe::Schwarz, 0}}) {
        auto *feld = new Zaehlfeld;
        feld->setAnfang(farbe, 18);
        feld->setIntValue(zahl);
        anordnung().addWidget(feld);
    }
    auto *legende = new Farblegende;
    legende->setEintraege({{QColor(Qt::green), u"Protein"_s},
                           {QColor(Qt::blue), u"Kohlenhydrate"_s},
                           {QColor(Qt::yellow), u"Fett"_s}});
    anordnung().addWidget(legende);
    pruefe(u"steuerung-urteile"_s);
}

/// A short one, a warning with a long text, and one without a button.
void TestSteuerungenbild::notices()
{
    auto *streifen = new Hinweisstreifen;
    anordnung().addWidget(streifen);
    streifen->zeige({.kennung = u"a"_s, .text = u"„Kartoffelsuppe“ ist gelöscht."_s});
    streifen->zeige({.kennung = u"b"_s,
                     .text = u"Die Datei mit Ihren Lebensmitteln lässt sich nicht schreiben."_s,
                     .knopf = u"Noch einmal"_s,
                     .warnung = true});
    streifen->zeige({.kennung = u"c"_s, .text = u"Gesichert."_s, .knopf = u"Anzeigen"_s});
    pruefe(u"steuerung-hinweise"_s);
}

/// With lines and a chosen row; without lines; and without rows.
void TestSteuerungenbild::tables()
{
    Beispielquelle quelle;
    auto *mitLinien = tabelle(quelle, true);
    mitLinien->setSelectionBehavior(QAbstractItemView::SelectRows);
    anordnung().addWidget(mitLinien);
    mitLinien->selectRow(1);
    auto *ohneLinien = tabelle(quelle, false);
    anordnung().addWidget(ohneLinien);
    ohneLinien->selectRow(2);
    auto *leer = new Tabellenansicht;
    leer->setHinweis(u"Noch kein Lebensmittel im Plan."_s);
    leer->setFixedHeight(60);
    anordnung().addWidget(leer);
    pruefe(u"steuerung-tabellen"_s);
    m_bogen.reset(); // before what the tables show
}

void TestSteuerungenbild::whatHasTheKeyboard_data()
{
    QTest::addColumn<bool>("dunkel");
    QTest::addColumn<QString>("bild");
    QTest::newRow("in the light") << false << u"tastatur"_s;
    QTest::newRow("in the dark") << true << u"tastatur-dunkel"_s;
}

/// One control of each kind, one below the other, each while the keyboard is on it.
void TestSteuerungenbild::whatHasTheKeyboard()
{
    QFETCH(bool, dunkel);
    QFETCH(QString, bild);
    zeigeErscheinungsbild(dunkel ? Erscheinungsbild::Dunkel : Erscheinungsbild::Hell);
    Beispielquelle quelle;
    auto *regler = schieber(82.5);
    auto *eingabe = schieber(82.5);
    auto *frei = textfeld(12.5);
    frei->setEditable(true);
    auto *wahl = new Auswahlfeld;
    wahl->setAuswahl(u"geeignet|neutral"_s);
    auto *liste = tabelle(quelle, true);
    const std::pair<QWidget *, QWidget *> teile[] = {
        {new QPushButton(u"Sichern"_s), nullptr},
        {new QCheckBox(u"Gewicht reduzieren"_s), nullptr},
        {new QRadioButton(u"Frau"_s), nullptr},
        {regler, regler->regler()},
        {eingabe, eingabe->eingabe()},
        {frei, nullptr},
        {wahl, nullptr},
        {liste, nullptr},
    };
    for (const auto &[teil, innen] : teile) {
        anordnung().addWidget(teil);
    }
    m_bogen->show();
    QVERIFY(QTest::qWaitForWindowActive(m_bogen.get()));
    QImage alle;
    for (const auto &[teil, innen] : teile) {
        QWidget *feld = innen != nullptr ? innen : teil;
        feld->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(feld->hasFocus());
        QCoreApplication::processEvents();
        if (alle.isNull()) {
            alle = Bilderrahmen::male(*m_bogen);
        }
        QPainter maler(&alle);
        maler.drawImage(teil->pos(), Bilderrahmen::male(*teil));
    }
    Bilderrahmen::pruefe(bild, alle);
    m_bogen.reset();
}

void TestSteuerungenbild::theDividerWithTheKeyboard()
{
    auto *teiler = new Teiler;
    teiler->setFixedHeight(60);
    teiler->addWidget(new Karte);
    teiler->addWidget(new Karte);
    anordnung().addWidget(teiler);
    m_bogen->show();
    QVERIFY(QTest::qWaitForWindowActive(m_bogen.get()));
    Bilderrahmen::pruefe(u"steuerung-teiler"_s, *m_bogen);
    teiler->bewege();
    Bilderrahmen::pruefe(u"steuerung-teiler-tastatur"_s, *m_bogen);
}

void TestSteuerungenbild::whatIsDragged()
{
    Tabellenansicht ansicht;
    QImage bild(320, 40, QImage::Format_RGB32);
    bild.fill(ansicht.palette().color(QPalette::Window));
    QPainter(&bild).drawPixmap(4, 4, ansicht.ziehbild(u"Joghurt (Naturjoghurts), natur"_s));
    Bilderrahmen::pruefe(u"steuerung-ziehbild"_s, bild);
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestSteuerungenbild>(argc, argv);
}

#include "TestSteuerungenbild.moc"
