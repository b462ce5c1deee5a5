// The evaluation of a day and of the mean: figures worked out by hand, and those of a plan that
// holds the same foods.

#include "Ampel.h"
#include "Aufzeichnungsprobe.h"
#include "Plananzeige.h"
#include "Planprobe.h"
#include "Tagesauswertungsfenster.h"
#include "Textfeld.h"
#include "WertungView.h"
#include "Woerterbuch.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;

namespace {

using Zaehlungen = std::array<Planzaehlung, anzahlWertungen>;

QString inWorten(const Zaehlungen &zaehlungen)
{
    QString text;
    for (const auto &zaehlung : zaehlungen) {
        for (const Zaehlfeld *feld : zaehlung) {
            text += u"%1/%2/%3 "_s.arg(feld->stringValue())
                        .arg(static_cast<int>(feld->anfangsfarbe()))
                        .arg(feld->anfangspunkte());
        }
    }
    return text;
}

QString inWorten(const Textfeld &prozent, const WertungView &balken)
{
    return u"%1|%2|%3|%4|%5"_s.arg(prozent.textAufPapier(), balken.color().name(),
                                   balken.beschreibung(), balken.zeichen(), prozent.toolTip());
}

/// A food whose values are about those of a real one, and whose ratings are anything.
Datenmodul zufallsspeise(QRandomGenerator &zufall, const QString &name)
{
    static const QStringList urteile = {u"+"_s, u"0"_s, u"-"_s, u""_s, u"egal"_s};
    Datenmodul eine;
    eine.setName(name);
    for (const auto &wert : naehrwerte) {
        const double groesse = wert.einheit == Einheit::Gramm ? 30 : 300;
        eine.setWert(wert.wert,
                     zufall.bounded(4) == 0 ? 0.F : static_cast<float>(zufall.bounded(groesse)));
    }
    for (const auto &wertung : wertungen) {
        eine.setWertung(wertung.wertung, urteile[zufall.bounded(static_cast<int>(urteile.size()))]);
    }
    return eine;
}

} // namespace

class TestTagesauswertungsfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init();
    void cleanup() { m_fenster.reset(); }

    void aDayByHand();
    void theMeanByHand();
    void aDayLooksAsItsPlan_data();
    void aDayLooksAsItsPlan();
    void noBarKeepsWhatAnotherDayLeft();
    void withoutANeedNothingIsMeasuredByTheEnergy();
    void whereNothingCountsThereAreWords_data();
    void whereNothingCountsThereAreWords();
    void rowsThatDoNotCountAreTold();
    void dayOrMeanIsChosenWithTheKeyboard();
    void theFaceHasItsPictures();
    void assistiveToolsReadNamesAndFigures();
    void anotherLanguageIsFollowed();
    void wordsBeginBelowTheCircles_data();
    void wordsBeginBelowTheCircles();

private:
    QList<Mahlzeitzeile> &zeilen(int tag, int mahlzeit)
    {
        return m_eine.tage[tag].mahlzeiten[mahlzeit].zeilen;
    }
    static Mahlzeitzeile gegessen(const Datenmodul &speise, float gramm)
    {
        Mahlzeitzeile eine = zeile(speise.name(), gramm);
        eine.eintrag = speise;
        return eine;
    }
    /// 100 g have 20 g of protein, 10 g of fat and 50 g of carbohydrate: 80 + 90 + 200 = 370 kcal.
    static Datenmodul auflauf()
    {
        return speise(u"Auflauf"_s,
                      {{Naehrwert::protein, 20},
                       {Naehrwert::fett, 10},
                       {Naehrwert::kh, 50},
                       {Naehrwert::b1, 0.1F}},
                      {u"+"_s, u"0"_s, u"-"_s, u"+"_s});
    }
    void zeige(const Energiebedarf &bedarf = {2000, 2300}, int tag = 0)
    {
        m_fenster->zeige({.tagesname = tagesname(m_eine, tag),
                          .tag = rechneTag(m_eine, tag, bedarf),
                          .mittel = rechneMittel(m_eine, bedarf),
                          .bedarf = bedarf});
    }
    QString prozent(Naehrwert wert) const
    {
        return m_fenster->bedarfsgitter->prozent(wert).textAufPapier().replace(QChar(QChar::Nbsp),
                                                                               u' ');
    }
    Zaehlungen zaehlungen() const
    {
        Zaehlungen alle = {};
        for (int reihe = 0; reihe < static_cast<int>(anzahlWertungen); ++reihe) {
            for (int spalte = 0; spalte < 3; ++spalte) {
                alle[static_cast<std::size_t>(reihe)][static_cast<std::size_t>(spalte)] =
                    qobject_cast<Zaehlfeld *>(
                        m_fenster->wertungsgitter->itemAtPosition(reihe + 1, spalte + 1)->widget());
            }
        }
        return alle;
    }
    void vergleiche(const Planmodul &plan) const;

    std::unique_ptr<Tagesauswertungsfenster> m_fenster;
    Aufzeichnung m_eine;
};

void TestTagesauswertungsfenster::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 3);
    m_fenster = std::make_unique<Tagesauswertungsfenster>(nullptr);
}

/// 300 g are 1110 kcal: 55.5 % of 2000. 60 g of protein are 240 of 400 kcal, 30 g of fat 270 of
/// 600, 150 g of carbohydrate 600 of 1000; 0.3 mg of vitamin B1 are 25 % of 1.2 mg. Of the energy
/// that is 240, 600 and 270 of 1110: 21.6 %, 54.1 % and 24.3 %.
void TestTagesauswertungsfenster::aDayByHand()
{
    zeilen(0, 0) = {gegessen(auflauf(), 100)};
    zeilen(0, 2) = {gegessen(auflauf(), 200)};
    zeige();
    QCOMPARE(prozent(Naehrwert::kal), u"55,5 %"_s);
    QCOMPARE(prozent(Naehrwert::protein), u"60,0 %"_s);
    QCOMPARE(prozent(Naehrwert::fett), u"45,0 %"_s);
    QCOMPARE(prozent(Naehrwert::kh), u"60,0 %"_s);
    QCOMPARE(prozent(Naehrwert::b1), u"25,0 %"_s);
    QCOMPARE(prozent(Naehrwert::vitc), u"0,0 %"_s);
    QCOMPARE(m_fenster->bedarfsgitter->prozent(Naehrwert::protein)
                 .toolTip()
                 .replace(QChar(QChar::Nbsp), u' '),
             u"60,0 g von 100,0 g"_s);
    QCOMPARE(m_fenster->bedarfsgitter->balken(Naehrwert::kh).value(), 60.0);
    QVERIFY(qAbs(m_fenster->kreisansicht->a() - 21.62F) < 0.01F);
    QVERIFY(qAbs(m_fenster->kreisansicht->b() - 54.05F) < 0.01F);
    QVERIFY(qAbs(m_fenster->kreisansicht->c() - 24.32F) < 0.01F);
    QCOMPARE(m_fenster->kreisworte->text(), m_fenster->kreisansicht->beschreibung());
    QStringList gezaehlt;
    for (const auto &zaehlung : zaehlungen()) {
        gezaehlt << zaehlung[0]->text() + zaehlung[1]->text() + zaehlung[2]->text();
    }
    QCOMPARE(inWorten(zaehlungen()).section(u' ', 0, 2),
             u"2/%1/11 0/%2/9 0/%2/9"_s.arg(static_cast<int>(Textfarbe::Gruen))
                 .arg(static_cast<int>(Textfarbe::Schwarz)));
    QCOMPARE(m_fenster->gegenstandsworte->text(), tagesname(m_eine, 0));
    QCOMPARE(m_fenster->istwort->text(), u"Tag"_s);
    QCOMPARE(m_fenster->bedarfsworte->text().replace(QChar(QChar::Nbsp), u' '),
             u"100 % der Energie = 2000 kcal am Tag (zum Abnehmen)"_s);
    // Two ratings earn a point; of the values none is near its need.
    QCOMPARE(m_fenster->urteilsworte->text(), u"Ein unausgewogener Plan\n2 von 21 Punkten"_s);
    QCOMPARE(m_fenster->gesichtsbild->entscheidungszahl(), Gesichtscode::weinend);
    QVERIFY(m_fenster->fehlworte->text().startsWith(u"Es fehlen: Energie (55,5"_s));
    QVERIFY(m_fenster->fehlworte->text().endsWith(u", Diabetes, Gicht"_s));
}

/// Days of 370 and 1110 kcal: 740 on one, 37 % of 2000. A day on which nothing counts and one that
/// is left out are not in it. The ratings of all three rows are counted.
void TestTagesauswertungsfenster::theMeanByHand()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 4);
    zeilen(0, 0) = {gegessen(auflauf(), 100)};
    zeilen(1, 2) = {{.text = u"Kuchen"_s}};
    zeilen(2, 0) = {gegessen(auflauf(), 500)};
    m_eine.tage[2].imMittel = false;
    zeilen(3, 0) = {gegessen(auflauf(), 100), gegessen(auflauf(), 200)};
    zeige();
    QCOMPARE(prozent(Naehrwert::kal), u"18,5 %"_s); // of the first day
    m_fenster->mittelknopf->click();
    QCOMPARE(prozent(Naehrwert::kal), u"37,0 %"_s);
    QCOMPARE(prozent(Naehrwert::protein), u"40,0 %"_s); // 40 g are 160 of 400 kcal
    QCOMPARE(inWorten(zaehlungen()).left(2), u"3/"_s);
    QCOMPARE(m_fenster->gegenstandsworte->text(), u"Tage im Mittel: 2."_s);
    QCOMPARE(m_fenster->istwort->text(), u"Mittel"_s);
    QVERIFY(!m_fenster->unverstandenworte->isVisibleTo(m_fenster.get()));
}

void TestTagesauswertungsfenster::aDayLooksAsItsPlan_data()
{
    QTest::addColumn<quint32>("saat");
    for (quint32 saat = 1; saat <= 12; ++saat) {
        QTest::addRow("day %u", saat) << saat;
    }
}

/// The window shows another random day before, so that what it left there would be seen.
void TestTagesauswertungsfenster::aDayLooksAsItsPlan()
{
    QFETCH(quint32, saat);
    QRandomGenerator zufall(saat);
    Planheim heim;
    QList<Datenmodul> speisen;
    QList<std::pair<QString, float>> posten;
    const int anzahl = zufall.bounded(1, 25);
    for (int i = 0; i < anzahl; ++i) { // in the order in which a plan's file is read
        const QString name = u"Speise %1"_s.arg(i, 2, 10, QLatin1Char('0'));
        speisen << zufallsspeise(zufall, name);
        posten << std::pair(name, static_cast<float>(zufall.bounded(1, 400)));
        zeilen(1, 3) << gegessen(zufallsspeise(zufall, name), 150);
    }
    int mahlzeit = 0;
    for (int i = 0; i < anzahl; ++i) {
        mahlzeit = std::min(5, mahlzeit + zufall.bounded(2));
        zeilen(0, mahlzeit) << gegessen(speisen[i], posten[i].second);
    }
    const Energiebedarf bedarf =
        saat % 4 == 0 ? Energiebedarf() : Energiebedarf{zufall.bounded(1200, 3000), 2600};
    heim.schreibeTabelle(speisen);
    heim.schreibePlan(posten);
    Planmodul::klient = {.bedarf = bedarf.bedarf, .unbereinigt = bedarf.unbereinigt};
    const Planfenster plan(heim);
    zeige(bedarf, 1);
    zeige(bedarf, 0);
    vergleiche(plan.plan());
    vergissKlient();
}

void TestTagesauswertungsfenster::vergleiche(const Planmodul &plan) const
{
    const auto gezeigt = plananzeigen(plan);
    for (const auto &eine : naehrwerte) {
        const Plananzeige &anteil = gezeigt[stelle(eine.wert)];
        QCOMPARE(inWorten(m_fenster->bedarfsgitter->prozent(eine.wert),
                          m_fenster->bedarfsgitter->balken(eine.wert)),
                 inWorten(*anteil.prozent, *anteil.balken));
        QCOMPARE(m_fenster->bedarfsgitter->zeichen(eine.wert).text(), anteil.balken->zeichen());
    }
    QCOMPARE(inWorten(zaehlungen()), inWorten(planzaehlungen(plan)));
    QCOMPARE(m_fenster->kreisworte->text(), plan.kreisworte->text());
    QCOMPARE(m_fenster->kreisansicht->a(), plan.kreisansicht->a());
    QCOMPARE(m_fenster->kreisansicht->b(), plan.kreisansicht->b());
    QCOMPARE(m_fenster->kreisansicht->c(), plan.kreisansicht->c());
    QCOMPARE(m_fenster->gesichtsbild->entscheidungszahl(),
             plan.planbeurteilungfaceview->entscheidungszahl());
    QCOMPARE(m_fenster->urteilsworte->text(), plan.planworte->text());
    QCOMPARE(m_fenster->fehlworte->text(), plan.planworte->accessibleDescription());
}

/// Exactly 120 % of sodium is in no band; of 1000 % the bar is red.
void TestTagesauswertungsfenster::noBarKeepsWhatAnotherDayLeft()
{
    const Datenmodul salz =
        speise(u"Salz"_s, {{Naehrwert::na, 550}}, {u"-"_s, u"-"_s, u"-"_s, u"-"_s});
    zeilen(0, 0) = {gegessen(salz, 1000)};
    zeilen(1, 0) = {gegessen(speise(u"Lake"_s, {{Naehrwert::na, 550}}), 120)};
    zeige({}, 0);
    const WertungView &balken = m_fenster->bedarfsgitter->balken(Naehrwert::na);
    QCOMPARE(balken.color(), QColor(Qt::red));
    QCOMPARE(balken.value(), 100.0);
    QCOMPARE(m_fenster->bedarfsgitter->zeichen(Naehrwert::na).text(), u"✗"_s);
    zeige({}, 1);
    QCOMPARE(prozent(Naehrwert::na), u"120,0 %"_s);
    QCOMPARE(balken.value(), 0.0);
    QCOMPARE(balken.color(), QColor(Qt::blue)); // as if it was never told another
    QCOMPARE(m_fenster->bedarfsgitter->zeichen(Naehrwert::na).text(), QString());
    QCOMPARE(inWorten(zaehlungen()).section(u' ', 0, 2),
             u"0/%1/0 0/%1/0 0/%1/0"_s.arg(static_cast<int>(Textfarbe::Standard)));
}

void TestTagesauswertungsfenster::withoutANeedNothingIsMeasuredByTheEnergy()
{
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    zeige({});
    QVERIFY(
        m_fenster->bedarfsworte->text().startsWith(u"Der Rechner kennt den Bedarf noch nicht"_s));
    QCOMPARE(prozent(Naehrwert::kal), u"0,0 %"_s);
    QCOMPARE(prozent(Naehrwert::b1), u"25,0 %"_s); // which has a need of its own
    QVERIFY(m_fenster->bedarfsgitter->prozent(Naehrwert::kal)
                .accessibleDescription()
                .endsWith(u"der Energiebedarf ist noch nicht bekannt"_s));
    zeige({2000, 2000});
    QCOMPARE(m_fenster->bedarfsworte->text().replace(QChar(QChar::Nbsp), u' '),
             u"100 % der Energie = 2000 kcal am Tag"_s);
}

void TestTagesauswertungsfenster::whereNothingCountsThereAreWords_data()
{
    QTest::addColumn<bool>("aufgezeichnet");
    QTest::addColumn<bool>("mittel");
    QTest::addColumn<QString>("worte");
    QTest::newRow("on this day") << true << false << u"An diesem Tag zählt noch nichts."_s;
    QTest::newRow("in the mean") << true << true << u"Kein Tag zählt im Mittel."_s;
    QTest::newRow("no record") << false << false << u"Keine Aufzeichnung ist geöffnet."_s;
    QTest::newRow("no record, and its mean")
        << false << true << u"Keine Aufzeichnung ist geöffnet."_s;
}

void TestTagesauswertungsfenster::whereNothingCountsThereAreWords()
{
    QFETCH(bool, aufgezeichnet);
    QFETCH(bool, mittel);
    m_fenster->show();
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    zeige();
    (mittel ? m_fenster->mittelknopf : m_fenster->tagknopf)->click();
    QVERIFY(m_fenster->bedarfsgitter->isVisible());
    QVERIFY(!m_fenster->leerworte->isVisible());
    zeilen(0, 0).clear();
    if (aufgezeichnet) {
        zeige();
    } else {
        m_fenster->zeige({});
    }
    QVERIFY(!m_fenster->bedarfsgitter->isVisible());
    QVERIFY(m_fenster->leerworte->isVisible());
    QTEST(m_fenster->leerworte->text(), "worte");
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    zeige();
    QVERIFY(m_fenster->bedarfsgitter->isVisible());
}

void TestTagesauswertungsfenster::rowsThatDoNotCountAreTold()
{
    m_fenster->show();
    zeilen(0, 0) = {gegessen(auflauf(), 300), {.text = u"Kuchen"_s}, {.text = u"Torte"_s}};
    zeilen(1, 0) = {gegessen(auflauf(), 300), {.text = u"Eis"_s}};
    zeige();
    QVERIFY(m_fenster->unverstandenworte->isVisible());
    QVERIFY(m_fenster->unverstandenworte->text().endsWith(u": 2."_s));
    m_fenster->mittelknopf->click();
    QVERIFY(m_fenster->unverstandenworte->text().endsWith(u": 3."_s));
    zeilen(0, 0).resize(1);
    zeilen(1, 0).resize(1);
    zeige();
    QVERIFY(!m_fenster->unverstandenworte->isVisible());
}

void TestTagesauswertungsfenster::dayOrMeanIsChosenWithTheKeyboard()
{
    zeilen(0, 0) = {gegessen(auflauf(), 100)};
    zeilen(1, 0) = {gegessen(auflauf(), 300)};
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    zeige();
    QVERIFY(m_fenster->tagknopf->isChecked());
    QTest::keyClick(m_fenster.get(), Qt::Key_M, Qt::AltModifier);
    QTRY_COMPARE(prozent(Naehrwert::kal), u"37,0 %"_s);
    zeige({1000, 1000}); // the choice stays
    QCOMPARE(prozent(Naehrwert::kal), u"74,0 %"_s);
    QTest::keyClick(m_fenster.get(), Qt::Key_T, Qt::AltModifier);
    QTRY_COMPARE(prozent(Naehrwert::kal), u"37,0 %"_s);
    QTest::keyClick(m_fenster.get(), Qt::Key_Escape);
    QVERIFY(!m_fenster->isVisible());
    QVERIFY(!m_fenster->isModal());
}

void TestTagesauswertungsfenster::theFaceHasItsPictures()
{
    const FaceView &gesicht = *m_fenster->gesichtsbild;
    QVERIFY(!gesicht.bild().isNull());
    QVERIFY(!gesicht.bild2().isNull());
    QVERIFY(!gesicht.bild3().isNull());
    QVERIFY(gesicht.bild() != gesicht.bild2() && gesicht.bild2() != gesicht.bild3());
}

void TestTagesauswertungsfenster::assistiveToolsReadNamesAndFigures()
{
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    zeige();
    for (const auto &eine : naehrwerte) {
        const QString name = QString::fromUtf8(eine.bezeichnung);
        const Bedarfsgitter &gitter = *m_fenster->bedarfsgitter;
        QCOMPARE(gitter.prozent(eine.wert).accessibleName(), name + u", Anteil am Tagesbedarf"_s);
        QCOMPARE(gitter.balken(eine.wert).accessibleName(), name + u", Balken"_s);
        QVERIFY(!gitter.prozent(eine.wert).accessibleDescription().isEmpty());
    }
    QCOMPARE(zaehlungen()[2][0]->accessibleDescription(), u"Gicht, geeignete Lebensmittel"_s);
    QCOMPARE(zaehlungen()[2][1]->accessibleDescription(), u"Gicht, neutrale Lebensmittel"_s);
    QCOMPARE(zaehlungen()[3][2]->accessibleDescription(),
             u"Herz und Kreislauf, ungeeignete Lebensmittel"_s);
    for (const QWidget *bild : {static_cast<QWidget *>(m_fenster->kreisansicht),
                                static_cast<QWidget *>(m_fenster->gesichtsbild)}) {
        QVERIFY(!bild->accessibleName().isEmpty());
    }
    QCOMPARE(m_fenster->gesichtsbild->accessibleDescription(), u"Ein unausgewogener Plan"_s);
}

void TestTagesauswertungsfenster::anotherLanguageIsFollowed()
{
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    zeige();
    Woerterbuch englisch;
    QCoreApplication::installTranslator(&englisch);
    m_fenster->folgeSprache();
    QCoreApplication::removeTranslator(&englisch);
    const auto *name =
        qobject_cast<QLabel *>(m_fenster->wertungsgitter->itemAtPosition(3, 0)->widget());
    QCOMPARE(name->text(), u"Gout"_s);
    QCOMPARE(zaehlungen()[2][0]->accessibleDescription(), u"Gout, geeignete Lebensmittel"_s);
    QVERIFY(m_fenster->fehlworte->text().endsWith(u"Gout"_s));
}

void TestTagesauswertungsfenster::wordsBeginBelowTheCircles_data()
{
    QTest::addColumn<double>("punkte");
    for (const double punkte : {8.0, 10.0, 14.0, 20.0}) {
        QTest::addRow("%.0f points", punkte) << punkte;
    }
}

/// A circle's radius is a fifth of the width of the picture, its centre 45 points above the middle.
void TestTagesauswertungsfenster::wordsBeginBelowTheCircles()
{
    QFETCH(double, punkte);
    zeilen(0, 0) = {gegessen(auflauf(), 300)};
    m_fenster->show();
    zeige();
    QFont schrift = m_fenster->font();
    schrift.setPointSizeF(punkte);
    m_fenster->setFont(schrift);
    QVERIFY(QTest::qWaitForWindowExposed(m_fenster.get()));
    QCoreApplication::processEvents();
    const NahrstoffraumView &bild = *m_fenster->kreisansicht;
    const int mitte = bild.height() / 2 - 45;
    const int radius = bild.width() / 5;
    QVERIFY(mitte - radius >= -1);
    QVERIFY(m_fenster->sollwort->y() >= mitte + radius - 1);
    QVERIFY(m_fenster->kreisworte->geometry().bottom() < bild.height());
    QVERIFY(m_fenster->kreisworte->height() >=
            m_fenster->kreisworte->heightForWidth(m_fenster->kreisworte->width()));
}

QTEST_MAIN(TestTagesauswertungsfenster)
#include "TestTagesauswertungsfenster.moc"
