#include "Probefenster.h"

#include "Getraenke.h"
#include "Sportarten.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

/// The calculator in the two last tabs of the main window, driven by mouse and keys.
class TestRechnerfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aClientIsTypedIn();
    void arrowKeysMoveOneStep_data();
    void arrowKeysMoveOneStep();
    void theSlidersCoverTheMeasures_data();
    void theSlidersCoverTheMeasures();
    void theMousePullsASlider();
    void theSwitchesTakeClicks();
    void theChoicesTakeKeys();
    void aChildsSlidersAreOff();
    void aDrinkIsTyped();
    void aDrinkIsChosenFromTheList();
    void aDrinkOfTheOtherLanguageCounts();
    void aSportIsChosenAndTakenBack();
    void aSportSpelledOtherwiseIsNone();
    void aNameInOtherCaseCounts();
    void theListsSpeakTheLanguageShown_data();
    void theListsSpeakTheLanguageShown();
    void theNextStartKnowsTheClient();

private:
    void zeige(const char *ansicht);
    static void tippe(const Schieber &schieber, const QString &zahl);
    static void tippeUndBestaetige(Auswahlfeld &feld, const QString &text);
    void gibKlient();
    QString text(const QLineEdit &feld) const { return Probefenster::text(feld); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    AnthroController *r = nullptr;
};

void TestRechnerfenster::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    zeige("vier");
}

void TestRechnerfenster::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestRechnerfenster::zeige(const char *ansicht)
{
    m_fenster->controller().zeigeAnsicht(QString::fromUtf8(ansicht));
    QCoreApplication::processEvents();
}

void TestRechnerfenster::tippe(const Schieber &schieber, const QString &zahl)
{
    Probefenster::tippeMenge(schieber, zahl);
}

void TestRechnerfenster::tippeUndBestaetige(Auswahlfeld &feld, const QString &text)
{
    feld.setFocus();
    feld.lineEdit()->selectAll();
    QTest::keyClick(&feld, Qt::Key_Delete);
    QTest::keyClicks(&feld, text);
    QTest::keyClick(&feld, Qt::Key_Return);
}

void TestRechnerfenster::gibKlient()
{
    tippe(*r->gewichtn, QStringLiteral("80"));
    tippe(*r->groessen, QStringLiteral("1,8"));
    tippe(*r->taillen, QStringLiteral("71"));
    tippe(*r->hueftn, QStringLiteral("86"));
}

void TestRechnerfenster::aClientIsTypedIn()
{
    QCOMPARE(text(*r->resultatbmi), QStringLiteral("0,00 kg/m²"));
    gibKlient();
    QCOMPARE(text(*r->gewicht), QStringLiteral("80,0 kg"));
    QCOMPARE(text(*r->groesse), QStringLiteral("1,80 m"));
    QCOMPARE(text(*r->taillenumfang), QStringLiteral("71,0 cm"));
    QCOMPARE(text(*r->hueftumfang), QStringLiteral("86,0 cm"));
    QCOMPARE(text(*r->resultatbmi), QStringLiteral("24,69 kg/m²"));
    QCOMPARE(text(*r->resultatwh), QStringLiteral("0,83"));
    QCOMPARE(text(*r->resultatkal), QStringLiteral("2112 kcal"));
    QCOMPARE(text(*r->feet), QStringLiteral("5 ft"));
    QCOMPARE(text(*r->inch), QStringLiteral("10 in"));
    QCOMPARE(text(*r->lbs), QStringLiteral("176 lb"));
    QCOMPARE(r->bmifaceview->entscheidungszahl(), 1);
    QCOMPARE(r->bmiworte->text(), QStringLiteral("im günstigen Bereich"));
    QCOMPARE(r->bmifaceview->beschreibung().isEmpty(), false);
    QCOMPARE(Planmodul::klient.bedarf, 2112);
    QCOMPARE(Planmodul::klient.unbereinigt, 2112);
    QCOMPARE(Planmodul::klient.gewicht, 80.0F);
    QCOMPARE(Planmodul::klient.groesse, 1.8F);
}

void TestRechnerfenster::arrowKeysMoveOneStep_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("von");
    QTest::addColumn<double>("bis");
    QTest::newRow("weight") << QStringLiteral("gewichtn") << 80.0 << 80.5;
    QTest::newRow("height") << QStringLiteral("groessen") << 1.78 << 1.79;
    QTest::newRow("waist") << QStringLiteral("taillen") << 71.0 << 71.5;
    QTest::newRow("hip") << QStringLiteral("hueftn") << 86.5 << 87.0;
    QTest::newRow("age") << QStringLiteral("alter") << 25.0 << 26.0;
}

void TestRechnerfenster::arrowKeysMoveOneStep()
{
    QFETCH(QString, name);
    QFETCH(double, von);
    QFETCH(double, bis);
    auto *schieber = r->koerperseite->findChild<Schieber *>(name);
    schieber->setDoubleValue(von);
    QCoreApplication::processEvents();
    schieber->setFocus();
    QTest::keyClick(schieber->regler(), Qt::Key_Right);
    QCOMPARE(schieber->floatValue(), static_cast<float>(bis));
    QCoreApplication::processEvents();
    QTest::keyClick(schieber->regler(), Qt::Key_Left);
    QCOMPARE(schieber->floatValue(), static_cast<float>(von));
}

void TestRechnerfenster::theSlidersCoverTheMeasures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("kleinste");
    QTest::addColumn<double>("groesste");
    QTest::newRow("weight") << QStringLiteral("gewichtn") << 30.0 << 250.0;
    QTest::newRow("height") << QStringLiteral("groessen") << 1.0 << 2.3;
    QTest::newRow("waist") << QStringLiteral("taillen") << 40.0 << 200.0;
    QTest::newRow("hip") << QStringLiteral("hueftn") << 40.0 << 200.0;
    QTest::newRow("age") << QStringLiteral("alter") << 1.0 << 100.0;
}

void TestRechnerfenster::theSlidersCoverTheMeasures()
{
    QFETCH(QString, name);
    QFETCH(double, kleinste);
    QFETCH(double, groesste);
    auto *schieber = r->koerperseite->findChild<Schieber *>(name);
    schieber->setFocus();
    QTest::keyClick(schieber->regler(), Qt::Key_End);
    QCOMPARE(schieber->floatValue(), static_cast<float>(groesste));
    QCoreApplication::processEvents();
    QTest::keyClick(schieber->regler(), Qt::Key_Home);
    QCOMPARE(schieber->floatValue(), static_cast<float>(kleinste));
}

void TestRechnerfenster::theMousePullsASlider()
{
    gibKlient();
    QSlider *regler = r->gewichtn->regler();
    const QPoint griff(regler->width() * regler->value() / regler->maximum(), regler->height() / 2);
    QTest::mousePress(regler, Qt::LeftButton, {}, griff);
    for (int schritt = 1; schritt <= 10; ++schritt) {
        QTest::mouseMove(regler, griff + QPoint(schritt * 5, 0));
    }
    QTest::mouseRelease(regler, Qt::LeftButton, {}, griff + QPoint(50, 0));
    const float kilogramm = r->gewicht->floatValue();
    QVERIFY2(kilogramm > 80.0F, qPrintable(text(*r->gewicht)));
    QCOMPARE(kilogramm * 2, std::round(kilogramm * 2)); // in steps of 0.5 kg
    QCOMPARE(r->gewichtbmi->floatValue(), kilogramm);
    QCOMPARE(Planmodul::klient.gewicht, kilogramm);
    QCOMPARE(m_heim->einstellungen().value(QStringLiteral("Gewicht")).toFloat(), kilogramm);
}

void TestRechnerfenster::theSwitchesTakeClicks()
{
    gibKlient();
    QVERIFY(r->lbs->isVisible() && r->feet->isVisible() && !r->gewicht->isVisible());
    QTest::mouseClick(r->metrikeinaus, Qt::LeftButton, {},
                      QPoint(8, r->metrikeinaus->height() / 2));
    QVERIFY(!r->lbs->isVisible() && !r->feet->isVisible() && r->gewicht->isVisible());
    QCOMPARE(m_heim->einstellungen().value(QStringLiteral("metrik")).toDouble(), 1.0);
    QTest::mouseClick(r->gewichtredu, Qt::LeftButton, {}, QPoint(8, r->gewichtredu->height() / 2));
    QCOMPARE(r->gewichtredu->text(), QStringLiteral("moderat ( -1/5 Kcal)"));
    QCOMPARE(text(*r->resultatkal), QStringLiteral("1690 kcal"));
    QTest::mouseClick(r->frau, Qt::LeftButton, {}, QPoint(8, r->frau->height() / 2));
    QCOMPARE(text(*r->geschlecht), QStringLiteral("Frau"));
    QCOMPARE(text(*r->resultatkal), QStringLiteral("1408 kcal"));
    QTest::mouseClick(r->arbeitschwer, Qt::LeftButton, {}, QPoint(8, r->frau->height() / 2));
    QCOMPARE(text(*r->resultatkal), QStringLiteral("1920 kcal"));
    QCOMPARE(Planmodul::klient.bedarf, 1920);
    QCOMPARE(Planmodul::klient.unbereinigt, 2400);
}

void TestRechnerfenster::theChoicesTakeKeys()
{
    gibKlient();
    r->arbeitleicht->setFocus();
    QTest::keyClick(r->arbeitleicht, Qt::Key_Down);
    QCOMPARE(r->arbeitauswahl, 1.3F);
    QTest::keyClick(r->arbeitmittel, Qt::Key_Down);
    QCOMPARE(r->arbeitauswahl, 1.5F);
    QCOMPARE(r->kal, 2880);
    r->mann->setFocus();
    QTest::keyClick(r->mann, Qt::Key_Right);
    QCOMPARE(r->geschlechtauswahl, 1.0F);
    QCOMPARE(r->kal, 2400);
    r->gewichtredu->setFocus();
    QTest::keyClick(r->gewichtredu, Qt::Key_Space);
    QCOMPARE(r->kal, 1920);
}

void TestRechnerfenster::aChildsSlidersAreOff()
{
    gibKlient();
    tippe(*r->alter, QStringLiteral("9"));
    QCOMPARE(text(*r->alteranzeige), QStringLiteral("9 Jahre"));
    QCOMPARE(text(*r->gewicht), QStringLiteral("-"));
    QTest::keyClick(r->gewichtn->regler(), Qt::Key_Right);
    QTest::mouseClick(r->frau, Qt::LeftButton, {}, QPoint(8, r->frau->height() / 2));
    QCOMPARE(r->gewichtn->floatValue(), 80.0F);
    QCOMPARE(text(*r->geschlecht), QStringLiteral("Mann"));
    QVERIFY(!r->alkohol->isEnabled() && !r->zieher->isEnabled());
    tippe(*r->alter, QStringLiteral("10"));
    QVERIFY(!r->gewichtn->isEnabled());
    tippe(*r->alter, QStringLiteral("11"));
    QVERIFY(r->gewichtn->isEnabled() && r->alkohol->isEnabled());
    QCOMPARE(text(*r->gewicht), QStringLiteral("80,0 kg"));
}

void TestRechnerfenster::aDrinkIsTyped()
{
    gibKlient();
    zeige("fünf");
    tippe(*r->zieher, QStringLiteral("500"));
    QCOMPARE(text(*r->alkgramm), QStringLiteral("20,0 g")); // of the start's Kölsch
    QCOMPARE(text(*r->abbaudauer), QStringLiteral("5,0 h"));
    tippeUndBestaetige(*r->alkohol, QStringLiteral("Rotwein"));
    QCOMPARE(r->name, QStringLiteral("Rotwein"));
    QCOMPARE(text(*r->alkgramm), QStringLiteral("47,5 g"));
    QCOMPARE(text(*r->abbaudauer), QStringLiteral("5,9 h"));
    QVERIFY(r->alkgramm->textColor() == Textfarbe::Rot);
    tippeUndBestaetige(*r->alkohol, QStringLiteral("Limonade"));
    QCOMPARE(text(*r->alkgramm), QStringLiteral("47,5 g"));
    QCOMPARE(m_heim->protokoll, QStringList(QStringLiteral("5  Alkohol")));
}

void TestRechnerfenster::aDrinkIsChosenFromTheList()
{
    gibKlient();
    zeige("fünf");
    tippe(*r->zieher, QStringLiteral("700"));
    r->alkohol->showPopup();
    QCoreApplication::processEvents();
    QAbstractItemView *liste = r->alkohol->view();
    const int pils = r->alkohol->findText(QStringLiteral("Pils"));
    liste->scrollTo(liste->model()->index(pils, 0));
    QTest::mouseMove(liste->viewport(), liste->visualRect(liste->model()->index(pils, 0)).center());
    liste->setCurrentIndex(liste->model()->index(pils, 0));
    QTest::keyClick(liste, Qt::Key_Return);
    QCOMPARE(r->name, QStringLiteral("Pils"));
    QCOMPARE(text(*r->alkgramm), QStringLiteral("28,0 g"));
    QVERIFY(r->alkgramm->textColor() == Textfarbe::Schwarz);
    QCOMPARE(text(*r->ml), QStringLiteral("700 ml"));
    QVERIFY(r->ml->textColor() == Textfarbe::Rot);
}

void TestRechnerfenster::aDrinkOfTheOtherLanguageCounts()
{
    gibKlient();
    zeige("fünf");
    tippe(*r->zieher, QStringLiteral("100"));
    tippeUndBestaetige(*r->alkohol, QStringLiteral("vodka"));
    QCOMPARE(text(*r->alkgramm), QStringLiteral("30,0 g"));
}

void TestRechnerfenster::aSportIsChosenAndTakenBack()
{
    gibKlient();
    zeige("fünf");
    QVERIFY(!r->sportmenge->isEnabled());
    tippeUndBestaetige(*r->sport, QStringLiteral("Radfahren"));
    QVERIFY(r->sportmenge->isEnabled());
    tippe(*r->sportmenge, QStringLiteral("1,9"));
    QCOMPARE(text(*r->sportstunden), QStringLiteral("1,9 h"));
    QCOMPARE(text(*r->resultatsportkal), QStringLiteral("570 kcal"));
    QCOMPARE(text(*r->resultatkal), QStringLiteral("2412 kcal"));
    QCOMPARE(Planmodul::klient.bedarf, 2412);
    tippeUndBestaetige(*r->sport, QString());
    QCOMPARE(text(*r->resultatsportkal), QStringLiteral("0 kcal"));
    QCOMPARE(text(*r->sportstunden), QStringLiteral("0 h"));
    QVERIFY(!r->sportmenge->isEnabled());
    QCOMPARE(Planmodul::klient.bedarf, 2112);
}

void TestRechnerfenster::aSportSpelledOtherwiseIsNone()
{
    zeige("fünf");
    tippeUndBestaetige(*r->sport, QStringLiteral("Baskettball"));
    QCOMPARE(r->sportkal, 360);
    QVERIFY(!r->sportworte->isVisible());
    for (const QString &wort : {QStringLiteral("Basketball"), QStringLiteral("Schach")}) {
        tippeUndBestaetige(*r->sport, wort);
        QCOMPARE(r->sportname, wort);
        QCOMPARE(r->sport->currentText(), wort);
        QCOMPARE(r->sportkal, 360);
        QVERIFY(r->sportworte->isVisible());
    }
    tippeUndBestaetige(*r->sport, QStringLiteral("ice-hockey"));
    QCOMPARE(r->sportkal, 510);
    QVERIFY(!r->sportworte->isVisible());
}

void TestRechnerfenster::aNameInOtherCaseCounts()
{
    gibKlient();
    zeige("fünf");
    tippe(*r->zieher, QStringLiteral("100"));
    const std::pair<const char *, const char *> folge[] = {
        {"pils", "Pils"}, {"WODKA", "Wodka"}, {"Vodka", "vodka"}, {"GRAPPA", "Grappa"}};
    for (const auto &[getippt, name] : folge) {
        tippeUndBestaetige(*r->alkohol, QString::fromUtf8(getippt));
        QCOMPARE(r->name, QString::fromUtf8(name));
        QCOMPARE(r->alkohol->currentText(), QString::fromUtf8(name));
        QVERIFY(!r->getraenkworte->isVisible());
    }
    QCOMPARE(text(*r->alkgramm), QStringLiteral("35,6 g"));
    tippeUndBestaetige(*r->alkohol, QStringLiteral("pilz"));
    QVERIFY(r->getraenkworte->isVisible());
    tippeUndBestaetige(*r->sport, QStringLiteral("KARATE"));
    QCOMPARE(r->sportname, QStringLiteral("Karate"));
    QCOMPARE(r->sportkal, 670);
}

void TestRechnerfenster::theListsSpeakTheLanguageShown_data()
{
    QTest::addColumn<QLocale>("sprache");
    QTest::addColumn<QStringList>("dabei");
    QTest::addColumn<QStringList>("nicht");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany)
                            << QStringList{QStringLiteral("Wodka"),   QStringLiteral("Gin"),
                                           QStringLiteral("-"),       QStringLiteral(" "),
                                           QStringLiteral("Fußball"), QString()}
                            << QStringList{QStringLiteral("vodka"), QStringLiteral("soccer")};
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                             << QStringList{QStringLiteral("vodka"), QStringLiteral("Gin"),
                                            QStringLiteral("red wine lightbodiedt"),
                                            QStringLiteral("soccer"), QString()}
                             << QStringList{QStringLiteral("Wodka"), QStringLiteral("Fußball")};
}

void TestRechnerfenster::theListsSpeakTheLanguageShown()
{
    QFETCH(QLocale, sprache);
    QFETCH(QStringList, dabei);
    QFETCH(QStringList, nicht);
    QLocale::setDefault(sprache);
    m_fenster.reset();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    QCOMPARE(r->alkohol->count(), 100);
    QCOMPARE(r->sport->count(), 20);
    const QStringList angebot =
        (r->alkohol->auswahl() + QLatin1Char('|') + r->sport->auswahl()).split(u'|');
    for (const QString &name : dabei) {
        QVERIFY2(angebot.contains(name), qPrintable(name));
    }
    for (const QString &name : nicht) {
        QVERIFY2(!angebot.contains(name), qPrintable(name));
    }
    QVERIFY(angebot.indexOf(QStringLiteral("Altbier")) < angebot.indexOf(QStringLiteral("Gin")));
    // Every name offered has an effect when it is chosen.
    for (int i = 0; i < r->alkohol->count(); ++i) {
        QVERIFY(getraenk(r->alkohol->itemText(i), Alkoholanlass::Wahl) != nullptr);
    }
    for (int i = 0; i < r->sport->count(); ++i) {
        QVERIFY(sportkalorien(r->sport->itemText(i)).has_value());
    }
}

void TestRechnerfenster::theNextStartKnowsTheClient()
{
    gibKlient();
    QTest::mouseClick(r->metrikeinaus, Qt::LeftButton, {},
                      QPoint(8, r->metrikeinaus->height() / 2));
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    r = &m_fenster->rechner();
    zeige("vier");
    QCOMPARE(text(*r->gewicht), QStringLiteral("80,0 kg"));
    QVERIFY(r->gewicht->isVisible());
    QCOMPARE(text(*r->resultatbmi), QStringLiteral("24,69 kg/m²"));
    QCOMPARE(r->gewichtn->eingabe()->value(), 80.0);
    QCOMPARE(r->groessen->eingabe()->value(), 1.8);
}

QTEST_MAIN(TestRechnerfenster)
#include "TestRechnerfenster.moc"
