#include "Probefenster.h"

#include <QTest>

using enum Naehrwert;

/// Showing the own food of the chosen row by the menu, whatever column was clicked.
class TestEigeneZeigen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void theOwnFoodOfTheRowIsShown_data();
    void theOwnFoodOfTheRowIsShown();
    void row0IsARowLikeAnyOther();
    void noRowIsSubstituted();
    void mettwurstStopsNothing();
    void noRowIsTooFarDown();
    void whereTheListHasNoFoodTheDisplayStays();
    void withoutARowTheControlsAreTakenAway();
    void theSlidersWakeAndTheirCaptionsDoNot();
    void theLevelsAreThoseOfOneGram_data();
    void theLevelsAreThoseOfOneGram();
    void theSharesAreThoseOfWholeGrams_data();
    void theSharesAreThoseOfWholeGrams();
    void aSelectionTakesTheGramsBack();
    void theRestIsAsAfterASelection();

private:
    void oeffne(const Lebensmittelverzeichnis &eingebaut, const Lebensmittelverzeichnis &eigene);
    void zeigeEigenes() const
    {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_E, Qt::ControlModifier);
    }
    AppController &controller() const { return m_fenster->controller(); }
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

Lebensmittelverzeichnis eigeneTabelle(int zeilen)
{
    Lebensmittelverzeichnis eigene;
    for (int i = 0; i < zeilen; ++i) {
        const QString name = QStringLiteral("Eigenes %1").arg(i, 4, 10, QLatin1Char('0'));
        eigene.insert(name, lebensmittel(name, {{kal, static_cast<float>(i + 1)}}));
    }
    return eigene;
}

} // namespace

void TestEigeneZeigen::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneZeigen::oeffne(const Lebensmittelverzeichnis &eingebaut,
                              const Lebensmittelverzeichnis &eigene)
{
    m_heim->schreibeTabelle(eingebaut);
    m_heim->schreibeEigene(eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestEigeneZeigen::theOwnFoodOfTheRowIsShown_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<int>("bestand");
    QTest::newRow("after a click on a built-in food") << inName << 1;
    QTest::newRow("after a click on an own food") << inEigen << 2;
    QTest::newRow("after a click on a search result") << inSuch << 0;
}

void TestEigeneZeigen::theOwnFoodOfTheRowIsShown()
{
    QFETCH(int, spalte);
    QFETCH(int, bestand);
    oeffne(zaehltabelle(5), eigeneTabelle(3));
    controller().suchArray = {zaehlname(4), zaehlname(1)};
    m_fenster->klicke(1, spalte);
    zeigeEigenes();
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes 0001"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Eigenes 0001"));
    QCOMPARE(controller().feldB->intValue(), 2);
    QVERIFY(controller().loeschenknopf->isEnabled());
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
    // Neither of these is read or set.
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QCOMPARE(controller().welcheTabelleAktiv, bestand);
    QVERIFY(controller().lebensmittelmenge->isEnabled());
    QVERIFY(controller().lebensmittelmenge2->isEnabled());
    QVERIFY(controller().lebensmittelmenge3->isEnabled());
}

void TestEigeneZeigen::row0IsARowLikeAnyOther()
{
    oeffne(zaehltabelle(5), eigeneTabelle(3));
    m_fenster->klicke(0, inName);
    QVERIFY(controller().fettanzeige->isHidden());
    zeigeEigenes();
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes 0000"));
    QVERIFY(!controller().proteinanzeige->isHidden());
    QVERIFY(!controller().fettanzeige->isHidden());
    QVERIFY(!controller().khanzeige->isHidden());
}

void TestEigeneZeigen::noRowIsSubstituted()
{
    oeffne(zaehltabelle(610), eigeneTabelle(610));
    for (const int zeile : {576, 577, 604}) {
        m_fenster->klicke(zeile, inName);
        zeigeEigenes();
        QCOMPARE(gezeigt(), controller().KundenArray[zeile]);
    }
}

void TestEigeneZeigen::mettwurstStopsNothing()
{
    oeffne(verzeichnis(
               {lebensmittel(QStringLiteral("Apfel")), lebensmittel(QStringLiteral("Mettwurst"))}),
           eigeneTabelle(3));
    m_fenster->klicke(1, inEigen);
    QCOMPARE(gezeigt(), QStringLiteral("Apfel"));
    zeigeEigenes();
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes 0001"));
}

/// The data view comes back; the ratings stay hidden, as the selection left them.
void TestEigeneZeigen::noRowIsTooFarDown()
{
    oeffne(zaehltabelle(1020), eigeneTabelle(1020));
    m_fenster->klicke(1017, inName);
    QVERIFY(controller().DatenAnsicht->isHidden());
    zeigeEigenes();
    QVERIFY(!controller().DatenAnsicht->isHidden());
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes 1017"));
    QVERIFY(controller().uebergewichtfeld->isHidden());
    QVERIFY(controller().hkkfeld->isHidden());
}

void TestEigeneZeigen::whereTheListHasNoFoodTheDisplayStays()
{
    oeffne(zaehltabelle(5), eigeneTabelle(2));
    m_fenster->klicke(3, inName);
    controller().feldB->setFloatValue(67);
    zeigeEigenes();
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().joulefeld->floatValue(), 280.0F); // what stands is worked with
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
    QVERIFY(controller().loeschenknopf->isEnabled());
    QCOMPARE(controller().nahrview->aa(), 10);
}

void TestEigeneZeigen::withoutARowTheControlsAreTakenAway()
{
    oeffne(zaehltabelle(5), eigeneTabelle(2));
    m_fenster->klicke(3, inName);
    controller().zeigeAnsicht(QStringLiteral("drei"));
    m_fenster->klickeDaneben();
    controller().LManzahl->setStringValue(QString());
    controller().DatenAnsicht->hide();
    zeigeEigenes();
    QVERIFY(!controller().lebensmittelmenge->isEnabled());
    QVERIFY(!controller().lebensmittelmenge2->isEnabled());
    QVERIFY(!controller().lebensmittelmenge3->isEnabled());
    QVERIFY(controller().proteinanzeige->isHidden());
    QVERIFY(controller().fettanzeige->isHidden());
    QVERIFY(controller().khanzeige->isHidden());
    QVERIFY(controller().DatenAnsicht->isHidden());
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("drei"));
    QVERIFY(controller().loeschenknopf->isEnabled());
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().LManzahl->intValue(), 5); // the steps after go on
    QCOMPARE(controller().nahrview->aa(), 10);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestEigeneZeigen::theSlidersWakeAndTheirCaptionsDoNot()
{
    oeffne(zaehltabelle(5), eigeneTabelle(3));
    controller().suchArray = {zaehlname(4)};
    m_fenster->klicke(0, inSuch);
    QVERIFY(!controller().lebensmittelmenge->isEnabled());
    zeigeEigenes();
    QVERIFY(controller().lebensmittelmenge->isEnabled());
    QVERIFY(!controller().anzeigelebensmittelmenge->isEnabled());
}

void TestEigeneZeigen::theLevelsAreThoseOfOneGram_data()
{
    QTest::addColumn<QString>("menge");
    QTest::addColumn<double>("p");
    QTest::addColumn<double>("f");
    QTest::addColumn<double>("k");
    QTest::newRow("of 100 g") << QStringLiteral("100") << 0.25 << 0.5 << 0.125;
    QTest::newRow("of 400 g") << QStringLiteral("400") << 0.25 << 0.5 << 0.125;
    QTest::newRow("of 1 g") << QStringLiteral("1") << 0.25 << 0.5 << 0.125;
    QTest::newRow("of nothing") << QStringLiteral("0") << 0.0 << 0.0 << 0.0;
}

void TestEigeneZeigen::theLevelsAreThoseOfOneGram()
{
    QFETCH(QString, menge);
    oeffne(zaehltabelle(2), verzeichnis({lebensmittel(QStringLiteral("Eigenes"),
                                                      {{protein, 25}, {fett, 50}, {kh, 12.5F}})}));
    m_fenster->tippeMenge(menge);
    zeigeEigenes();
    QTEST(controller().proteinanzeige->doubleValue(), "p");
    QTEST(controller().fettanzeige->doubleValue(), "f");
    QTEST(controller().khanzeige->doubleValue(), "k");
    m_fenster->klicke(0, inEigen); // a selection shows those of 100 g again
    QCOMPARE(controller().fettanzeige->doubleValue(), 50.0);
}

void TestEigeneZeigen::theSharesAreThoseOfWholeGrams_data()
{
    QTest::addColumn<Wertliste>("werte");
    QTest::addColumn<float>("gesamt");
    QTest::addColumn<QList<float>>("anteile"); // protein, carbohydrate, fat
    QTest::addColumn<QList<int>>("gramm");
    QTest::newRow("fractions are dropped")
        << Wertliste{{protein, 9.99F}, {kh, 0.99F}, {fett, 1.5F}} << 45.0F
        << QList<float>{80.0F, 0.0F, 20.0F} << QList<int>{9, 0, 1};
    QTest::newRow("nothing of a whole gram")
        << Wertliste{{protein, 0.9F}, {kh, 0.9F}, {fett, 0.9F}} << 0.0F
        << QList<float>{0.0F, 0.0F, 0.0F} << QList<int>{0, 0, 0};
    QTest::newRow("all three") << Wertliste{{protein, 9}, {kh, 9}, {fett, 8}} << 144.0F
                               << QList<float>{25.0F, 25.0F, 50.0F} << QList<int>{9, 9, 8};
    QTest::newRow("towards zero") << Wertliste{{protein, -1.9F}, {kh, 3.5F}} << 8.0F
                                  << QList<float>{-50.0F, 150.0F, 0.0F} << QList<int>{-1, 3, 0};
    QTest::newRow("beyond whole numbers is the largest one")
        << Wertliste{{fett, 1e20F}} << 19327352832.0F << QList<float>{0.0F, 0.0F, 100.0F}
        << QList<int>{0, 0, 2147483647};
}

void TestEigeneZeigen::theSharesAreThoseOfWholeGrams()
{
    QFETCH(Wertliste, werte);
    QFETCH(QList<float>, anteile);
    QFETCH(QList<int>, gramm);
    oeffne(zaehltabelle(2), verzeichnis({lebensmittel(QStringLiteral("Eigenes"), werte)}));
    zeigeEigenes();
    QTEST(controller().gesamtkal, "gesamt");
    const NahrstoffraumView &kreis = *controller().nahrview;
    QCOMPARE(QList<float>({kreis.a(), kreis.b(), kreis.c()}), anteile);
    QCOMPARE(
        QList<float>({controller().kalumrprot, controller().kalumrkh, controller().kalumrfett}),
        anteile);
    QCOMPARE(QList<int>({kreis.aa(), kreis.bb(), kreis.cc()}), gramm);
}

void TestEigeneZeigen::aSelectionTakesTheGramsBack()
{
    oeffne(zaehltabelle(2), verzeichnis({lebensmittel(QStringLiteral("Eigenes"), {{kh, 7.5F}})}));
    zeigeEigenes();
    QCOMPARE(controller().nahrview->bb(), 7);
    QCOMPARE(Probefenster::text(*controller().khfeld), QStringLiteral("7,5 g"));
    m_fenster->klicke(0, inEigen);
    QCOMPARE(controller().nahrview->bb(), 0);
    QCOMPARE(controller().gesamtkal, 30.0F);
}

void TestEigeneZeigen::theRestIsAsAfterASelection()
{
    oeffne(zaehltabelle(2),
           verzeichnis({lebensmittel(QStringLiteral("Eigenes"), {{kal, 67}, {ca, 1000}, {kh, 30}},
                                     {QStringLiteral("?"), QStringLiteral("-"), QStringLiteral("?"),
                                      QStringLiteral("0")})}));
    controller().LManzahl->setStringValue(QString());
    zeigeEigenes();
    QCOMPARE(controller().LManzahl->intValue(), 2);
    QCOMPARE(controller().joulefeld->floatValue(), 280.0F);
    QVERIFY(controller().uebergewichtfeld->textColor() == Textfarbe::Standard);
    QVERIFY(controller().diabetesfeld->textColor() == Textfarbe::Rot);
    QVERIFY(controller().gichtfeld->textColor() == Textfarbe::Rot);
    QVERIFY(controller().hkkfeld->textColor() == Textfarbe::Blau);
    QCOMPARE(controller().catagesbedarffeld->intValue(), 100);
    QCOMPARE(controller().kaefeld->floatValue(), 3.0F);
}

QTEST_MAIN(TestEigeneZeigen)
#include "TestEigeneZeigen.moc"
