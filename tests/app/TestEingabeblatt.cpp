#include "Archivdatei.h"
#include "Probefenster.h"

#include <QLabel>
#include <QTest>

using enum Naehrwert;

/// Help at the sheet: other units, figures that are questioned, and a food to begin with.
class TestEingabeblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void kilojoulesBecomeKilocalories();
    void kilocaloriesAreShownInKilojoules();
    void saltBecomesSodium();
    void emptyingOneFieldEmptiesTheOther();
    void whatIsTypedIsLeftAsItIs();
    void clearingTheFieldsClearsTheOtherUnits();
    void aDoubtComesAndGoesWhileOneTypes();
    void aDoubtKeepsNothingFromBeingSaved();
    void doubtsNameTheirFigures_data();
    void doubtsNameTheirFigures();
    void theFoodOnDisplayIsCopiedPerHundredGrams();
    void aCopyHasANameOfItsOwn();
    void aNameMayLookLikeAPlaceForOne();
    void anOwnFoodKeepsItsName();
    void whatTheSheetSavedIsCopied();
    void withoutAFoodThereIsNothingToCopy_data();
    void withoutAFoodThereIsNothingToCopy();

private:
    void oeffne(const QList<Datenmodul> &eigene = {});
    static void tippe(Textfeld *feld, const char *text);
    QString zweifel() const
    {
        QCoreApplication::processEvents();
        return controller().EingabeFensterzweifel->text();
    }
    void schreibeAb() const
    {
        QTest::mouseClick(controller().EingabeFensterabschreiben, Qt::LeftButton);
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEingabeblatt::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(verzeichnis({
        lebensmittel(QStringLiteral("Apfel"), {{kal, 52}, {kh, 11.4F}, {ca, 5}}),
        lebensmittel(QStringLiteral("Brot"), {{kal, 240}, {kh, 48}, {na, 500}}),
    }));
}

void TestEingabeblatt::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEingabeblatt::oeffne(const QList<Datenmodul> &eigene)
{
    if (!eigene.isEmpty()) {
        m_heim->schreibeEigene(verzeichnis(eigene));
    }
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(1, inName);
    m_fenster->drueckeWerkzeug(QStringLiteral("neu"));
    QVERIFY(QTest::qWaitForWindowActive(controller().einfenster));
}

/// Types a text in place of what stands in the field.
void TestEingabeblatt::tippe(Textfeld *feld, const char *text)
{
    feld->setFocus();
    feld->selectAll();
    QTest::keyClick(feld, Qt::Key_Delete);
    QTest::keyClicks(feld, QString::fromLatin1(text));
    QCoreApplication::processEvents();
}

void TestEingabeblatt::kilojoulesBecomeKilocalories()
{
    oeffne();
    tippe(controller().EingabeFensterjoulefeld, "1000"); // * 67 / 280 = 239.29
    QCOMPARE(controller().EingabeFensterfeldB->text(), QStringLiteral("239,3"));
    tippe(controller().EingabeFensterfeldA, "Apfelmus");
    QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    QCOMPARE(controller().KundenDictionary[QStringLiteral("Apfelmus")].kal(), 239.3F);
    QCOMPARE(qRound(controller().joulefeld->floatValue()), 1000);
}

void TestEingabeblatt::kilocaloriesAreShownInKilojoules()
{
    oeffne();
    tippe(controller().EingabeFensterfeldB, "100");
    QCOMPARE(controller().EingabeFensterjoulefeld->text(), QStringLiteral("417,9"));
    QCOMPARE(controller().EingabeFensterfeldB->text(), QStringLiteral("100"));
}

void TestEingabeblatt::saltBecomesSodium()
{
    oeffne();
    tippe(controller().EingabeFenstersalzfeld, "1,25");
    QCOMPARE(controller().EingabeFensternafeld->text(), QStringLiteral("500"));
    tippe(controller().EingabeFenstersalzfeld, "1.3");
    QCOMPARE(controller().EingabeFensternafeld->text(), QStringLiteral("520"));
    tippe(controller().EingabeFensternafeld, "1000");
    QCOMPARE(controller().EingabeFenstersalzfeld->text(), QStringLiteral("2,5"));
}

void TestEingabeblatt::emptyingOneFieldEmptiesTheOther()
{
    oeffne();
    tippe(controller().EingabeFensterjoulefeld, "1000");
    tippe(controller().EingabeFensterjoulefeld, "");
    QCOMPARE(controller().EingabeFensterfeldB->text(), QString());
    tippe(controller().EingabeFensterfeldB, "100");
    tippe(controller().EingabeFensterfeldB, "");
    QCOMPARE(controller().EingabeFensterjoulefeld->text(), QString());
}

void TestEingabeblatt::whatIsTypedIsLeftAsItIs()
{
    oeffne();
    tippe(controller().EingabeFensterjoulefeld, "1001");
    QTest::keyClick(controller().EingabeFensterjoulefeld, Qt::Key_Tab);
    QCoreApplication::processEvents();
    QCOMPARE(controller().EingabeFensterjoulefeld->text(), QStringLiteral("1001"));
}

void TestEingabeblatt::clearingTheFieldsClearsTheOtherUnits()
{
    oeffne();
    tippe(controller().EingabeFensternafeld, "500");
    tippe(controller().EingabeFensterjoulefeld, "1000");
    QTest::mouseClick(controller().EingabeFensterleeren, Qt::LeftButton);
    QTRY_COMPARE(controller().EingabeFensterjoulefeld->text(), QString());
    QTRY_COMPARE(controller().EingabeFenstersalzfeld->text(), QString());
}

void TestEingabeblatt::aDoubtComesAndGoesWhileOneTypes()
{
    oeffne();
    QCOMPARE(zweifel(), QString());
    tippe(controller().EingabeFensterfeldB, "300");
    QCOMPARE(zweifel(), QString()); // nothing to compare it with yet
    tippe(controller().EingabeFensterfettfeld, "30");
    tippe(controller().EingabeFensterkhfeld, "35"); // 270 + 140
    const QString worte = QStringLiteral("Energie prüfen: angegeben 300 kcal, aus den "
                                         "Nährstoffen 410 kcal.");
    QCOMPARE(zweifel(), worte);
    QVERIFY(controller().EingabeFensterzweifel->isVisible());
    QCOMPARE(controller().EingabeFensteruebernehmen->accessibleDescription(), worte);
    tippe(controller().EingabeFensterfeldB, "410");
    QCOMPARE(zweifel(), QString());
    QCOMPARE(controller().EingabeFensteruebernehmen->accessibleDescription(), QString());
}

void TestEingabeblatt::aDoubtKeepsNothingFromBeingSaved()
{
    oeffne();
    tippe(controller().EingabeFensterfeldA, "Wunderbrot");
    tippe(controller().EingabeFensterkhfeld, "150");
    QVERIFY(!zweifel().isEmpty());
    QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    QVERIFY(m_heim->meldungen.isEmpty());
    const auto datei = Archivdatei::lesen(m_heim->eigeneDatei());
    QCOMPARE(datei.archiv.verzeichnis.value(QStringLiteral("Wunderbrot")).kh(), 150.0F);
}

void TestEingabeblatt::doubtsNameTheirFigures_data()
{
    QTest::addColumn<QByteArray>("fett");
    QTest::addColumn<QByteArray>("energie");
    QTest::addColumn<QByteArray>("natrium");
    QTest::addColumn<QString>("worte");
    QTest::newRow("too much energy")
        << QByteArray("10") << QByteArray("500") << QByteArray()
        << QStringLiteral("Energie prüfen: angegeben 500 kcal, aus den Nährstoffen 90 kcal. Fehlt "
                          "ein Nährstoff, oder ist Alkohol darin?");
    QTest::newRow("too many grams")
        << QByteArray("102.5") << QByteArray("922") << QByteArray()
        << QStringLiteral("Mengen prüfen: Protein, Fett, Kohlenhydrate und Ballaststoffe ergeben "
                          "102,5 g in 100 g.");
    QTest::newRow("too much sodium")
        << QByteArray() << QByteArray() << QByteArray("50000")
        << QStringLiteral("Natrium prüfen: 50000 mg sind 125,0 g Salz, mehr als neben den anderen "
                          "Nährstoffen Platz hat.");
    QTest::newRow("salt for sodium")
        << QByteArray() << QByteArray() << QByteArray("1,25")
        << QStringLiteral("Ist bei Natrium Salz gemeint? 1,25 g Salz sind 500 mg Natrium.");
}

void TestEingabeblatt::doubtsNameTheirFigures()
{
    QFETCH(QByteArray, fett);
    QFETCH(QByteArray, energie);
    QFETCH(QByteArray, natrium);
    oeffne();
    tippe(controller().EingabeFensterfettfeld, fett.constData());
    tippe(controller().EingabeFensterfeldB, energie.constData());
    tippe(controller().EingabeFensternafeld, natrium.constData());
    QTEST(zweifel(), "worte");
}

void TestEingabeblatt::theFoodOnDisplayIsCopiedPerHundredGrams()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->tippeMenge(QStringLiteral("30"));
    controller().Fenster();
    QCOMPARE(controller().EingabeFensterabschreiben->toolTip(), QStringLiteral("„Brot“, je 100 g"));
    schreibeAb();
    QCoreApplication::processEvents();
    QCOMPARE(controller().EingabeFensterfeldA->text(), QStringLiteral("Brot (eigen)"));
    QCOMPARE(controller().EingabeFensterfeldB->text(), QStringLiteral("240"));
    QCOMPARE(controller().EingabeFensterjoulefeld->text(), QStringLiteral("1003"));
    QCOMPARE(controller().EingabeFensternafeld->text(), QStringLiteral("500"));
    QCOMPARE(controller().EingabeFenstersalzfeld->text(), QStringLiteral("1,25"));
    QCOMPARE(controller().EingabeFensteruebergewicht->currentText(), QStringLiteral("+"));
    QCOMPARE(controller().EingabeFenstergicht->currentText(), QStringLiteral("-"));
    QVERIFY(controller().KundenArray.isEmpty()); // nothing is saved yet
    QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("Brot (eigen)")});
    QCOMPARE(controller().KundenDictionary[QStringLiteral("Brot (eigen)")].kal(), 240.0F);
}

void TestEingabeblatt::aCopyHasANameOfItsOwn()
{
    oeffne({lebensmittel(QStringLiteral("Brot (eigen)")),
            lebensmittel(QStringLiteral("Brot (eigen 2)"))});
    schreibeAb();
    QCOMPARE(controller().EingabeFensterfeldA->stringValue(), QStringLiteral("Brot (eigen 3)"));
}

void TestEingabeblatt::aNameMayLookLikeAPlaceForOne()
{
    m_heim->schreibeTabelle(verzeichnis({lebensmittel(QStringLiteral("Apfel")),
                                         lebensmittel(QStringLiteral("Brot %1"), {{kal, 240}})}));
    oeffne({lebensmittel(QStringLiteral("Brot %1 (eigen)"))});
    schreibeAb();
    QCOMPARE(controller().EingabeFensterfeldA->stringValue(), QStringLiteral("Brot %1 (eigen 2)"));
}

void TestEingabeblatt::anOwnFoodKeepsItsName()
{
    oeffne({lebensmittel(QStringLiteral("Apfelmus"), {{kal, 80}})});
    controller().Fensterschliessen();
    m_fenster->klicke(0, inEigen);
    controller().Fenster();
    schreibeAb();
    QCOMPARE(controller().EingabeFensterfeldA->stringValue(), QStringLiteral("Apfelmus"));
    QCOMPARE(controller().EingabeFensterfeldB->floatValue(), 80.0F);
}

/// The food before it is not on display any more, although the table still marks its row.
void TestEingabeblatt::whatTheSheetSavedIsCopied()
{
    oeffne();
    tippe(controller().EingabeFensterfeldA, "Apfelmus");
    tippe(controller().EingabeFensterfeldB, "80");
    QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    QTest::mouseClick(controller().EingabeFensterleeren, Qt::LeftButton);
    schreibeAb();
    QCOMPARE(controller().EingabeFensterfeldA->stringValue(), QStringLiteral("Apfelmus"));
    QCOMPARE(controller().EingabeFensterfeldB->floatValue(), 80.0F);
}

void TestEingabeblatt::withoutAFoodThereIsNothingToCopy_data()
{
    QTest::addColumn<QStringList>("tabelle");
    QTest::newRow("an empty table") << QStringList{};
    QTest::newRow("the line before all foods") << QStringList{QStringLiteral("–")};
}

void TestEingabeblatt::withoutAFoodThereIsNothingToCopy()
{
    QFETCH(QStringList, tabelle);
    QList<Datenmodul> alle;
    for (const QString &name : tabelle) {
        alle << lebensmittel(name);
    }
    m_heim->schreibeTabelle(verzeichnis(alle));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    controller().Fenster();
    QVERIFY(!controller().EingabeFensterabschreiben->isEnabled());
    QCOMPARE(controller().EingabeFensterabschreiben->toolTip(),
             QStringLiteral("Es ist kein Lebensmittel zu sehen."));
}

QTEST_MAIN(TestEingabeblatt)
#include "TestEingabeblatt.moc"
