#include "Probefenster.h"

#include "Druckprobe.h"
#include "Erscheinungsbild.h"
#include "Sprache.h"

#include <QApplication>
#include <QHash>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;

/// Printing from the main window: the panel in front as it looks, with the food's name above it.
class TestDrucken : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theToolbarAndTheKeysPrint_data();
    void theToolbarAndTheKeysPrint();
    void thePanelInFrontIsPrinted_data();
    void thePanelInFrontIsPrinted();
    void aPanelThatRollsIsPrintedWhole();
    void theAmountOnDisplayIsPrinted();
    void theRatingsStandAboveThePanel();
    void onlyTheScreenHasThese_data();
    void onlyTheScreenHasThese();
    void nothingOnDisplayIsTold();
    void paperIsWhiteInTheDark_data();
    void paperIsWhiteInTheDark();
    void theWindowLooksAsBefore();
    void itPrintsInEnglish();
    void withoutADoorNothingHappens();
    void thePanelInFrontIsSavedAsAPdf_data();
    void thePanelInFrontIsSavedAsAPdf();
    void nothingOnDisplayIsNotSaved();
    void theCalculatorsPlanSavesItsFormsToo();

private:
    void oeffne() { m_fenster = std::make_unique<Probefenster>(*m_heim); }
    QString gedruckt() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Druckprobe> m_druck;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestDrucken::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(u"Äpfel, roh"_s, {{Naehrwert::kal, 52.0F},
                                                    {Naehrwert::kh, 12.0F},
                                                    {Naehrwert::ka, 119.0F},
                                                    {Naehrwert::na, 30.0F},
                                                    {Naehrwert::vitc, 12.0F}})}));
    m_druck =
        std::make_unique<Druckprobe>(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    m_heim->drucke = m_druck->tuer();
}

void TestDrucken::cleanup()
{
    m_fenster.reset();
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
}

/// All words of the print, with plain blanks between them.
QString TestDrucken::gedruckt() const
{
    return m_druck->zeilen(1).join(u' ').replace(QChar(QChar::Nbsp), u' ');
}

void TestDrucken::theToolbarAndTheKeysPrint_data()
{
    QTest::addColumn<bool>("mitTasten");
    QTest::newRow("the toolbar's item") << false;
    QTest::newRow("Ctrl+P") << true;
}

void TestDrucken::theToolbarAndTheKeysPrint()
{
    QFETCH(bool, mitTasten);
    oeffne();
    if (mitTasten) {
        QTest::keyClick((*m_fenster)->Hauptfenster, Qt::Key_P, Qt::ControlModifier);
    } else {
        m_fenster->drueckeWerkzeug(u"drucken"_s);
    }
    QCOMPARE(m_druck->auftraege, 1);
    QCOMPARE(m_druck->fenster, (*m_fenster)->Hauptfenster);
    QCOMPARE(m_druck->seiten(), 1);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestDrucken::thePanelInFrontIsPrinted_data()
{
    QTest::addColumn<int>("reiter");
    QTest::addColumn<bool>("vomLebensmittel");
    QTest::addColumn<QStringList>("texte");
    QTest::newRow("nutrients") << 0 << true
                               << QStringList{u"Nährstoffe"_s, u"Kohlenhydrate"_s, u"12,0 g"_s,
                                              u"119 mg"_s, u"52 kcal"_s};
    QTest::newRow("daily need") << 1 << true
                                << QStringList{u"Tagesbedarf"_s, u"Vitamin C"_s,
                                               u"Gesamtbeurteilung"_s};
    QTest::newRow("bread units") << 2 << true
                                 << QStringList{u"BE und Relationen"_s, u"1,0 BE"_s, u"1,2 KE"_s};
    QTest::newRow("body: about no food")
        << 3 << false
        << QStringList{u"Körper und Energie"_s, u"Gewicht"_s, u"kcal"_s, u"Mann"_s, u"aus"_s};
    QTest::newRow("alcohol and sport: about no food")
        << 4 << false << QStringList{u"Alkohol und Sport"_s, u"Getränk"_s, u"Dauer"_s};
}

void TestDrucken::thePanelInFrontIsPrinted()
{
    QFETCH(int, reiter);
    QFETCH(bool, vomLebensmittel);
    QFETCH(QStringList, texte);
    oeffne();
    (*m_fenster)->DatenAnsicht->setCurrentIndex(reiter);
    (*m_fenster)->drucken();
    const QString alles = gedruckt();
    for (const QString &text : std::as_const(texte)) {
        QVERIFY2(alles.contains(text), qPrintable(text + u" in: "_s + alles));
    }
    QCOMPARE(alles.contains(u"Äpfel, roh"_s), vomLebensmittel);
    QCOMPARE(m_druck->titel, vomLebensmittel ? u"Äpfel, roh"_s : texte.first());
    QVERIFY(!alles.contains(u"Lebensmittel suchen"_s)); // the panel only, not the window
    const QString heute = QDate::currentDate().toString(Qt::ISODate);
    QCOMPARE(m_druck->name, vomLebensmittel ? u"Äpfel, roh "_s + heute + u' ' + texte.first()
                                            : texte.first() + u' ' + heute);
    QVERIFY2(alles.endsWith(u"Seite 1 von 1 Mahlberg"_s), qPrintable(alles));
}

void TestDrucken::aPanelThatRollsIsPrintedWhole()
{
    oeffne();
    (*m_fenster)->DatenAnsicht->setCurrentIndex(3);
    (*m_fenster)->Hauptfenster->resize(1100, 600);
    QCoreApplication::processEvents();
    QVERIFY(m_fenster->rechner().gewichtredu->visibleRegion().isEmpty());
    (*m_fenster)->drucken();
    const QString alles = gedruckt();
    for (const QString &text : {u"Gewicht"_s, u"Tätigkeit"_s, u"Abnehmen"_s, u"Gerechnet für"_s}) {
        QVERIFY2(alles.contains(text), qPrintable(text));
    }
}

void TestDrucken::theAmountOnDisplayIsPrinted()
{
    oeffne();
    m_fenster->tippeMenge(u"250"_s);
    (*m_fenster)->drucken();
    const QString alles = gedruckt();
    QVERIFY2(alles.contains(u"Inhaltstoffe in 250 gramm"_s), qPrintable(alles));
    QVERIFY(alles.contains(u"130 kcal"_s)); // 52 x 2.5
    QVERIFY(alles.contains(u"30,0 g"_s));   // 12 x 2.5
}

/// Sign and word, in the colours that verdicts have on a light page.
void TestDrucken::theRatingsStandAboveThePanel()
{
    oeffne();
    m_fenster->tippeMenge(u"250"_s);
    (*m_fenster)->drucken();
    const QStringList zeilen = m_druck->zeilen(1);
    QCOMPARE(zeilen.value(0), u"Äpfel, roh"_s);
    QCOMPARE(QString(zeilen.value(1)).replace(QChar(QChar::Nbsp), u' '), u"Nährstoffe, 250 g"_s);
    QCOMPARE(zeilen.value(2), u"Übergewicht Diabetes Gicht Herz und Kreislauf"_s);
    QCOMPARE(zeilen.value(3), u"+ geeignet 0 neutral - ungeeignet + geeignet"_s);
    const Druckwort wort = finde(m_druck->worte(), u"ungeeignet"_s);
    const QImage bild = m_druck->bild(1, 4);
    int rot = 0;
    for (int x = qRound(wort.x * 4); x < qRound(wort.rechts * 4); ++x) {
        for (int y = qRound(wort.grundlinie * 4) - 36; y < qRound(wort.grundlinie * 4); ++y) {
            rot += bild.pixelColor(x, y) == QColor(0xc0, 0x1c, 0x28) ? 1 : 0;
        }
    }
    QVERIFY(rot > 50);
}

void TestDrucken::onlyTheScreenHasThese_data()
{
    QTest::addColumn<int>("reiter");
    QTest::addColumn<QString>("text");
    QTest::newRow("the slider of the amount, which stands above") << 0 << u"250 g "_s;
    QTest::newRow("the switch of the measures") << 3 << u"Metrisch"_s;
    QTest::newRow("the choice that was not made") << 3 << u"Frau"_s;
    QTest::newRow("the duration of sport once more") << 4 << u"Zeit(h)"_s;
}

void TestDrucken::onlyTheScreenHasThese()
{
    QFETCH(int, reiter);
    QFETCH(QString, text);
    oeffne();
    m_fenster->tippeMenge(u"250"_s);
    (*m_fenster)->DatenAnsicht->setCurrentIndex(reiter);
    (*m_fenster)->drucken();
    QString alles = gedruckt();
    alles.remove(u"Nährstoffe, 250 g"_s);
    QVERIFY2(!alles.contains(text), qPrintable(alles));
}

void TestDrucken::nothingOnDisplayIsTold()
{
    oeffne();
    (*m_fenster)->DatenAnsicht->hide();
    (*m_fenster)->drucken();
    QCOMPARE(m_druck->auftraege, 0);
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].text, u"Es wird nichts angezeigt, das gedruckt werden könnte."_s);
}

void TestDrucken::paperIsWhiteInTheDark_data()
{
    QTest::addColumn<int>("reiter");
    QTest::newRow("nutrients") << 0;
    QTest::newRow("daily need") << 1;
    QTest::newRow("bread units") << 2;
    QTest::newRow("body") << 3;
    QTest::newRow("alcohol and sport") << 4;
}

/// The surfaces of the dark appearance would fill an area; smoothed letters have a dot here and
/// there that comes near to them.
void TestDrucken::paperIsWhiteInTheDark()
{
    QFETCH(int, reiter);
    constexpr int einzelnePunkte = 50;
    constexpr int fastWeiss = 250;
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    oeffne();
    (*m_fenster)->DatenAnsicht->setCurrentIndex(reiter);
    QCoreApplication::processEvents();
    const QPalette dunkel = QApplication::palette();
    (*m_fenster)->drucken();
    const QImage bild = m_druck->bild(1);
    QHash<QRgb, int> punkte;
    int weiss = 0; // or nearly so: the ground of a group of fields is a breath darker
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            ++punkte[bild.pixel(x, y)];
            weiss += qGray(bild.pixel(x, y)) >= fastWeiss ? 1 : 0;
        }
    }
    QVERIFY(punkte.value(QColor(Qt::black).rgb()) > 0);
    QCOMPARE(bild.pixelColor(4, 4), QColor(Qt::white));
    QVERIFY2(weiss > bild.width() * bild.height() * 8 / 10, qPrintable(QString::number(weiss)));
    for (const auto rolle : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                             QPalette::Button, QPalette::Highlight}) {
        const QColor farbe = dunkel.color(rolle);
        QVERIFY2(punkte.value(farbe.rgb()) < einzelnePunkte, qPrintable(farbe.name()));
    }
}

void TestDrucken::theWindowLooksAsBefore()
{
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    oeffne();
    QCoreApplication::processEvents();
    const QImage vorher = (*m_fenster)->DatenAnsicht->grab().toImage();
    (*m_fenster)->drucken();
    QCoreApplication::processEvents();
    QCOMPARE((*m_fenster)->DatenAnsicht->grab().toImage(), vorher);
}

void TestDrucken::itPrintsInEnglish()
{
    const Sprache englisch(u"en"_s);
    oeffne();
    (*m_fenster)->drucken();
    QVERIFY(gedruckt().contains(u"Äpfel, roh"_s));
    for (const QString &text :
         {u"Nutrients, 100 g"_s, u"Overweight"_s, u"- unsuitable"_s, u"Page 1 of 1 Mahlberg"_s}) {
        QVERIFY2(gedruckt().contains(text), qPrintable(gedruckt()));
    }
    QVERIFY(m_druck->name.endsWith(u" Nutrients"_s));
}

void TestDrucken::withoutADoorNothingHappens()
{
    m_heim->drucke = {};
    oeffne();
    (*m_fenster)->drucken();
    QVERIFY(m_heim->meldungen.isEmpty());
    QVERIFY((*m_fenster)->Hauptfenster->isVisible());
}

void TestDrucken::thePanelInFrontIsSavedAsAPdf_data()
{
    QTest::addColumn<int>("reiter");
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("form");
    QTest::newRow("nutrients") << 0 << u"Äpfel, roh"_s << u"Nährstoffe"_s;
    QTest::newRow("daily need") << 1 << u"Äpfel, roh"_s << u"Tagesbedarf"_s;
    QTest::newRow("bread units") << 2 << u"Äpfel, roh"_s << u"BE und Relationen"_s;
    QTest::newRow("body") << 3 << u"Körper und Energie"_s << QString();
    QTest::newRow("alcohol and sport") << 4 << u"Alkohol und Sport"_s << QString();
}

/// What a print would be becomes a PDF, and no printer is asked for.
void TestDrucken::thePanelInFrontIsSavedAsAPdf()
{
    QFETCH(int, reiter);
    int gedruckt = 0;
    m_heim->drucke = [&gedruckt](QWidget *, const Druckauftrag &) {
        ++gedruckt;
    };
    QString form;
    m_heim->alsPdf = [this, &form](QWidget *fenster, const Druckauftrag &auftrag, const auto &) {
        form = auftrag.form;
        m_druck->tuer()(fenster, auftrag);
    };
    oeffne();
    (*m_fenster)->DatenAnsicht->setCurrentIndex(reiter);
    QTest::keyClick((*m_fenster)->Hauptfenster, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_druck->auftraege, 1);
    QCOMPARE(gedruckt, 0);
    QCOMPARE(m_druck->fenster, (*m_fenster)->Hauptfenster);
    QTEST(m_druck->titel, "titel");
    QTEST(form, "form");
    QVERIFY(this->gedruckt().endsWith(u"Seite 1 von 1 Mahlberg"_s));
}

void TestDrucken::nothingOnDisplayIsNotSaved()
{
    int gesichert = 0;
    m_heim->alsPdf = [&gesichert](QWidget *, const Druckauftrag &, const auto &) {
        ++gesichert;
    };
    oeffne();
    (*m_fenster)->DatenAnsicht->hide();
    (*m_fenster)->alsPdfSichern();
    QCOMPARE(gesichert, 0);
    QCOMPARE(m_heim->meldungen.size(), 1);
    (*m_fenster)->DatenAnsicht->show();
    (*m_fenster)->alsPdfSichern();
    QCOMPARE(gesichert, 1);
}

void TestDrucken::theCalculatorsPlanSavesItsFormsToo()
{
    QStringList formen;
    m_heim->alsPdf = [&formen](QWidget *, const Druckauftrag &auftrag, const auto &) {
        formen << auftrag.form;
    };
    oeffne();
    m_heim->antworten = {0, 2};
    (*m_fenster)->Planmoduloeffnen();
    (*m_fenster)->planmodul->alsPdfSichern();
    m_fenster->rechner().plan->alsPdfSichern();
    QCOMPARE(formen, (QStringList{u"Liste"_s, u"Auswertung"_s}));
}

QTEST_MAIN(TestDrucken)
#include "TestDrucken.moc"
