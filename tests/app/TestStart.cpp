#include "Probefenster.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using enum Naehrwert;

class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstFoodIsOnDisplay();
    void theControlsStandAsTheyShouldAtTheStart();
    void theTableIsSetUp();
    void theStateIsThatOfNoChoice();
    void captionsAndNamesAreTranslated();
    void withoutFoodsOneMessageComesAndTheStartGoesOn_data();
    void withoutFoodsOneMessageComesAndTheStartGoesOn();
    void theMessageIsTranslated();
    void ownFoodsAloneFillNoRow();
    void aFirstStartMakesTheFolderAndNoFile();
    void aDamagedFileOfOwnFoodsIsLeftInPeace();
    void ownFoodsStandInTheirColumn();
    void aFirstFoodThatIsNeverShownLeavesTheDisplayEmpty();
    void theNumberOfFoodsIsThatOfTheBuiltInOnes();
    void theAmountIsAHundredGrams();
};

namespace {

Lebensmittelverzeichnis dreiSpeisen()
{
    return verzeichnis({lebensmittel(QStringLiteral("Apfel"), {{kal, 52}, {kh, 11.4F}}),
                        lebensmittel(QStringLiteral("Brot"), {{kal, 240}, {protein, 7}}),
                        lebensmittel(QStringLiteral("Quark"), {{kal, 70}, {protein, 12}})});
}

} // namespace

void TestStart::theFirstFoodIsOnDisplay()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(Probefenster::text(*fenster->feldA), QStringLiteral("Apfel"));
    QCOMPARE(Probefenster::text(*fenster->feldB), QStringLiteral("52 kcal"));
    QCOMPARE(Probefenster::text(*fenster->joulefeld), QStringLiteral("217 kJ"));
    QCOMPARE(Probefenster::text(*fenster->khfeld), QStringLiteral("11,4 g"));
    QCOMPARE(fenster->unuebersetztername, QStringLiteral("Apfel"));
    QCOMPARE(fenster->Tabelle->selectedRow(), 0);
    QCOMPARE(fenster->kalumrkh, 100.0F);
    QVERIFY(heim.meldungen.isEmpty());
}

/// Row 0 takes the sliders away, and the choice of a built-in food gives them back.
void TestStart::theControlsStandAsTheyShouldAtTheStart()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(Probefenster::text(*fenster->LManzahl), QStringLiteral("3"));
    for (Schieber *regler :
         {fenster->lebensmittelmenge, fenster->lebensmittelmenge2, fenster->lebensmittelmenge3}) {
        QVERIFY(regler->isEnabled());
    }
    for (Textfeld *anzeige : {fenster->anzeigelebensmittelmenge, fenster->anzeigelebensmittelmenge2,
                              fenster->anzeigelebensmittelmenge3}) {
        QCOMPARE(Probefenster::text(*anzeige), QStringLiteral("Menge Lebensmittel (100g)"));
        QVERIFY(anzeige->isEnabled());
    }
    for (QWidget *balken : {fenster->proteinanzeige, fenster->fettanzeige, fenster->khanzeige}) {
        QVERIFY(balken->isHidden());
    }
    QVERIFY(!fenster->loeschenknopf->isEnabled());
    QVERIFY(fenster->direkteuebernahme->isChecked());
    QCOMPARE(fenster.ansicht(), QStringLiteral("eins"));
    QVERIFY(!fenster->DatenAnsicht->isHidden());
    QVERIFY(fenster->sichernBox->isHidden());
    QVERIFY(fenster->suchfortschritt->isHidden());
    QVERIFY(fenster->einfenster->isHidden());
}

void TestStart::theTableIsSetUp()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    const Tabellenansicht &tabelle = *fenster->Tabelle;
    QVERIFY(tabelle.alternatingRowColors());
    QVERIFY(tabelle.gitter());
    QCOMPARE(tabelle.rowHeight(), 23);
    QCOMPARE(tabelle.rowHeight(), tabelle.QTableView::rowHeight(1));
    QCOMPARE(tabelle.model()->rowCount(), 3);
    QCOMPARE(tabelle.model()->columnCount(), 3);
    QVERIFY(tabelle.viewport()->rect().contains(fenster.mitte(0, inName)));
}

void TestStart::theStateIsThatOfNoChoice()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(fenster->welcheTabelleAktiv, 0); // although the first food is from the built-in list
    QCOMPARE(fenster->BoxAufZu, 0);
    QCOMPARE(AppController::angeklickteSpalte, -1);
    QVERIFY(fenster->suchArray.isEmpty());
    QVERIFY(fenster->suchArray2.isEmpty());
    QVERIFY(fenster->toolbar != nullptr);
    QCOMPARE(fenster->toolbar->objectName(), QStringLiteral("mainToolbar"));
    QCOMPARE(fenster->toolbar->parentWidget(), fenster->Hauptfenster);
    QVERIFY(!fenster->toolbar->isHidden());
}

void TestStart::captionsAndNamesAreTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("Menge Lebensmittel (100g)"), QStringLiteral("Amount of food (100 g)")},
         {QStringLiteral("Apfel"), QStringLiteral("Apple")},
         {QStringLiteral("Brot"), QStringLiteral("A loaf")}});
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(Probefenster::text(*fenster->anzeigelebensmittelmenge3),
             QStringLiteral("Amount of food (100 g)"));
    // "A loaf" comes before "Apple", so another food is the first one.
    QCOMPARE(Probefenster::text(*fenster->feldA), QStringLiteral("A loaf"));
    QCOMPARE(fenster->unuebersetztername, QStringLiteral("Brot"));
}

void TestStart::withoutFoodsOneMessageComesAndTheStartGoesOn_data()
{
    QTest::addColumn<int>("datei"); // 0 none, 1 rubbish, 2 cut off, 3 an empty store
    QTest::newRow("the table is missing") << 0;
    QTest::newRow("the table is damaged") << 1;
    QTest::newRow("the table was cut off") << 2;
    QTest::newRow("the table is empty") << 3;
}

void TestStart::withoutFoodsOneMessageComesAndTheStartGoesOn()
{
    QFETCH(int, datei);
    Probeheim heim;
    if (datei >= 2) {
        heim.schreibeTabelle(datei == 2 ? dreiSpeisen() : Lebensmittelverzeichnis());
    }
    QFile tabelle(heim.tabelle());
    if (datei == 1) {
        QVERIFY(tabelle.open(QIODevice::WriteOnly));
        QVERIFY(tabelle.write("this is no table of foods") > 0);
    } else if (datei == 2) {
        QVERIFY(tabelle.resize(tabelle.size() - 7));
    }
    tabelle.close();

    const Probefenster fenster(heim);
    QCOMPARE(heim.meldungen.size(), 1);
    QCOMPARE(heim.meldungen[0].text, QStringLiteral("Keine Lebensmittel gefunden!"));
    QCOMPARE(heim.meldungen[0].erklaerung, QStringLiteral("Datenpaket könnte beschädigt sein"));
    QCOMPARE(heim.meldungen[0].knoepfe, QStringList{QStringLiteral("ok")});
    QCOMPARE(Probefenster::text(*fenster->LManzahl), QStringLiteral("0"));
    QCOMPARE(fenster->Tabelle->model()->rowCount(), 0);
    QCOMPARE(fenster->Tabelle->selectedRow(), -1);
    QVERIFY(!fenster->lebensmittelmenge->isEnabled());
    QVERIFY(!fenster->lebensmittelmenge2->isEnabled());
    QVERIFY(!fenster->lebensmittelmenge3->isEnabled());
    QCOMPARE(Probefenster::text(*fenster->anzeigelebensmittelmenge),
             QStringLiteral("Menge Lebensmittel (100g)"));
    QCOMPARE(Probefenster::text(*fenster->feldA), QString());
    QVERIFY(fenster->unuebersetztername.isNull());
    QCOMPARE(fenster.ansicht(), QStringLiteral("eins"));
    QVERIFY(fenster->direkteuebernahme->isChecked());
    QCOMPARE(fenster->welcheTabelleAktiv, 0);
    QVERIFY(fenster->toolbar != nullptr);

    fenster.klickeDaneben(); // every attempt says it once more
    QCOMPARE(heim.meldungen.size(), 2);
}

void TestStart::theMessageIsTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("Keine Lebensmittel gefunden!"), QStringLiteral("No foods found!")},
         {QStringLiteral("Datenpaket könnte beschädigt sein"), QStringLiteral("Damaged?")}});
    Probeheim heim;
    const Probefenster fenster(heim);
    QCOMPARE(heim.meldungen.size(), 1);
    QCOMPARE(heim.meldungen[0].text, QStringLiteral("No foods found!"));
    QCOMPARE(heim.meldungen[0].erklaerung, QStringLiteral("Damaged?"));
    QCOMPARE(heim.meldungen[0].knoepfe, QStringList{QStringLiteral("ok")});
}

/// The table is as long as the list of the built-in foods.
void TestStart::ownFoodsAloneFillNoRow()
{
    Probeheim heim;
    heim.schreibeEigene(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(fenster->KundenArray.size(), 3);
    QCOMPARE(fenster->Tabelle->model()->rowCount(), 0);
    QCOMPARE(heim.meldungen.size(), 1);
}

void TestStart::aFirstStartMakesTheFolderAndNoFile()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const QString ordner = heim.pfad(QStringLiteral("Library/Application Support/Mahlberg"));
    QVERIFY(!QFileInfo::exists(ordner));
    const Probefenster fenster(heim);
    QVERIFY(QFileInfo(ordner).isDir());
    QVERIFY(!QFileInfo::exists(heim.eigeneDatei()));
    QVERIFY(fenster->KundenArray.isEmpty());
    QVERIFY(heim.meldungen.isEmpty());
}

void TestStart::aDamagedFileOfOwnFoodsIsLeftInPeace()
{
    const QByteArray kaputt("half a file");
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    QFile datei(heim.eigeneDatei());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(kaputt);
    datei.close();
    const Probefenster fenster(heim);
    QVERIFY(heim.meldungen.isEmpty());
    QVERIFY(fenster->KundenArray.isEmpty());
    QCOMPARE(fenster->Array.size(), 3);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), kaputt);
}

void TestStart::ownFoodsStandInTheirColumn()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    heim.schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("zimtstern")),
                                     lebensmittel(QStringLiteral("Anisplätzchen"))}));
    const Probefenster fenster(heim);
    const QAbstractItemModel &modell = *fenster->Tabelle->model();
    QCOMPARE(modell.index(0, inEigen).data().toString(), QStringLiteral("Anisplätzchen"));
    QCOMPARE(modell.index(1, inEigen).data().toString(), QStringLiteral("zimtstern"));
    QVERIFY(!modell.index(2, inEigen).data().isValid());
    QVERIFY(!modell.index(0, inSuch).data().isValid());
}

void TestStart::aFirstFoodThatIsNeverShownLeavesTheDisplayEmpty()
{
    Probeheim heim;
    heim.schreibeTabelle(verzeichnis({lebensmittel(QStringLiteral("Mettwurst"), {{kal, 400}}),
                                      lebensmittel(QStringLiteral("Zwieback"), {{kal, 370}})}));
    const Probefenster fenster(heim);
    QCOMPARE(Probefenster::text(*fenster->feldA), QString());
    QVERIFY(fenster->unuebersetztername.isNull());
    QCOMPARE(Probefenster::text(*fenster->LManzahl), QStringLiteral("2"));
    QCOMPARE(fenster.ansicht(), QStringLiteral("eins"));
    QVERIFY(fenster->toolbar != nullptr);
    QVERIFY(heim.meldungen.isEmpty());
}

void TestStart::theNumberOfFoodsIsThatOfTheBuiltInOnes()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(1020));
    heim.schreibeEigene(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(fenster->LManzahl->intValue(), 1020);
    QCOMPARE(Probefenster::text(*fenster->LManzahl), QStringLiteral("1020"));
}

void TestStart::theAmountIsAHundredGrams()
{
    Probeheim heim;
    heim.schreibeTabelle(dreiSpeisen());
    const Probefenster fenster(heim);
    QCOMPARE(fenster->lebensmittelmenge->intValue(), 100);
    QCOMPARE(fenster->lebensmittelmenge2->intValue(), 100);
    QCOMPARE(fenster->lebensmittelmenge3->intValue(), 100);
    QVERIFY(fenster->sichernknopf->isEnabled());
}

QTEST_MAIN(TestStart)
#include "TestStart.moc"
