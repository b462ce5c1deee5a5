#include "Archivdatei.h"
#include "Probefenster.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

/// The entry sheet at the keys: its fields, their order, what can be typed into them.
class TestEigeneFelder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyWayToTheSheet_data();
    void everyWayToTheSheet();
    void everyWayToCloseIt_data();
    void everyWayToCloseIt();
    void itOpensAtTheName();
    void tabGoesThroughTheFieldsInTheRecordsOrder();
    void returnTakesOver_data();
    void returnTakesOver();
    void everyValueHasItsNameAndUnit();
    void nothingButNumbersCanBeTyped_data();
    void nothingButNumbersCanBeTyped();
    void commaAndPointAreAlike_data();
    void commaAndPointAreAlike();
    void aPastedTextIsNoNumber();
    void aRatingIsChosenFromThree();
    void aRatingCanBeTyped();
    void theFieldsCanBeEmptied();
    void theSheetKeepsItsTextWhileItIsClosed();
    void everythingFits_data();
    void everythingFits();

private:
    AppController &controller() const { return m_fenster->controller(); }
    QDialog *blatt() const { return controller().einfenster; }
    void oeffne() const;
    Datenmodul gesichert(const QString &name) const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis.value(name);
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEigeneFelder::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestEigeneFelder::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneFelder::oeffne() const
{
    controller().Fenster();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(blatt()));
}

void TestEigeneFelder::everyWayToTheSheet_data()
{
    QTest::addColumn<bool>("leiste");
    QTest::newRow("the toolbar") << true;
    QTest::newRow("the keys of the menu") << false;
}

void TestEigeneFelder::everyWayToTheSheet()
{
    QFETCH(bool, leiste);
    QVERIFY(blatt()->isHidden());
    if (leiste) {
        m_fenster->drueckeWerkzeug(QStringLiteral("neu"));
    } else {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_N, Qt::ControlModifier);
    }
    QVERIFY(blatt()->isVisible());
}

void TestEigeneFelder::everyWayToCloseIt_data()
{
    QTest::addColumn<QString>("weg");
    for (const char *weg : {"button", "Escape in the name", "Escape in a number",
                            "Escape in a rating", "Escape on a button"}) {
        QTest::newRow(weg) << QString::fromLatin1(weg);
    }
}

void TestEigeneFelder::everyWayToCloseIt()
{
    QFETCH(QString, weg);
    oeffne();
    const QSignalSpy ende(blatt(), &QDialog::finished);
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    QWidget *feld = weg.endsWith(QStringLiteral("name"))     ? controller().EingabeFensterfeldA
                    : weg.endsWith(QStringLiteral("number")) ? controller().EingabeFensterfefeld
                    : weg.endsWith(QStringLiteral("rating"))
                        ? static_cast<QWidget *>(controller().EingabeFensterhkk)
                        : controller().EingabeFensteruebernehmen;
    if (weg == QStringLiteral("button")) {
        QTest::mouseClick(controller().EingabeFensterschliessen, Qt::LeftButton);
    } else {
        feld->setFocus();
        QTest::keyClick(feld, Qt::Key_Escape);
    }
    QVERIFY(blatt()->isHidden());
    QCOMPARE(ende.size(), 1);
    QCOMPARE(ende[0][0].toInt(), 1);
    QVERIFY(controller().KundenArray.isEmpty()); // closing saves nothing
}

void TestEigeneFelder::itOpensAtTheName()
{
    oeffne();
    QVERIFY(controller().EingabeFensterfeldA->hasFocus());
    controller().EingabeFenstervitcfeld->setFocus();
    controller().Fensterschliessen();
    oeffne();
    QVERIFY(controller().EingabeFensterfeldA->hasFocus());
}

void TestEigeneFelder::tabGoesThroughTheFieldsInTheRecordsOrder()
{
    QList<QWidget *> soll = {controller().EingabeFensterfeldA};
    for (const auto &zeile : naehrwerte) {
        const QString feld = zeile.wert == Naehrwert::kal
                                 ? QStringLiteral("feldB")
                                 : QLatin1String(zeile.kennung) + QStringLiteral("feld");
        soll << blatt()->findChild<Textfeld *>(QStringLiteral("EingabeFenster") + feld);
        if (zeile.wert == Naehrwert::kal) { // the same in another unit
            soll << controller().EingabeFensterjoulefeld;
        } else if (zeile.wert == Naehrwert::na) {
            soll << controller().EingabeFenstersalzfeld;
        }
    }
    for (const auto &zeile : wertungen) {
        soll << blatt()->findChild<Auswahlfeld *>(QStringLiteral("EingabeFenster") +
                                                  QLatin1String(zeile.kennung));
    }
    oeffne();
    QList<QWidget *> gegangen;
    for (int i = 0; i < soll.size(); ++i) {
        gegangen << blatt()->focusWidget();
        QTest::keyClick(blatt()->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(gegangen, soll);
    QTest::keyClick(blatt()->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(blatt()->focusWidget(), soll.last());
}

void TestEigeneFelder::returnTakesOver_data()
{
    QTest::addColumn<QString>("feld");
    for (const char *feld : {"EingabeFensterfeldA", "EingabeFensterfeldB", "EingabeFenstervitcfeld",
                             "EingabeFensterhkk", "EingabeFensteruebernehmen"}) {
        QTest::newRow(feld) << QString::fromLatin1(feld);
    }
}

void TestEigeneFelder::returnTakesOver()
{
    QFETCH(QString, feld);
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    auto *widget = blatt()->findChild<QWidget *>(feld);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("Apfelmus")});
    QVERIFY(blatt()->isVisible());
    QCOMPARE(m_heim->protokoll.size(), 2); // once
}

void TestEigeneFelder::everyValueHasItsNameAndUnit()
{
    for (const auto &zeile : naehrwerte) {
        const QString feld = controller().eingabefelder()[stelle(zeile.wert)]->objectName();
        const auto *einheit = blatt()->findChild<QLabel *>(feld + QStringLiteral("einheit"));
        const auto *name = blatt()->findChild<QLabel *>(feld + QStringLiteral("einaus"));
        QVERIFY2(einheit != nullptr && name != nullptr, qPrintable(feld));
        QCOMPARE(einheit->text(), einheitszeichen(zeile.einheit));
        QCOMPARE(name->text(), QString::fromUtf8(zeile.bezeichnung));
        QCOMPARE(name->buddy(), controller().eingabefelder()[stelle(zeile.wert)]);
    }
}

void TestEigeneFelder::nothingButNumbersCanBeTyped_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("text");
    const auto zeile = [](const char *name, const char *getippt, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(getippt) << QString::fromLatin1(text);
    };
    zeile("a number", "120", "120");
    zeile("letters are passed over", "1a2b", "12");
    zeile("signs too", "-1+2", "12");
    zeile("and exponents", "1e5", "15");
    zeile("and blanks and units", "5 g", "5");
    zeile("one comma", "1,2,3", "1,23");
    zeile("one of both", "1.2,3", "1.23");
    zeile("it may begin with a comma", ",5", ",5");
    zeile("six places are enough", "0,12345678", "0,123456");
    zeile("so are seven digits", "123456789", "1234567");
}

void TestEigeneFelder::nothingButNumbersCanBeTyped()
{
    QFETCH(QString, getippt);
    QFETCH(QString, text);
    oeffne();
    for (Textfeld *feld : controller().eingabefelder()) {
        feld->setFocus();
        QTest::keyClicks(feld, getippt);
        QCOMPARE(feld->text(), text);
    }
}

void TestEigeneFelder::commaAndPointAreAlike_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<float>("zahl");
    for (const char *sprache : {"de", "en"}) {
        const QString kuerzel = QString::fromLatin1(sprache);
        const auto zeile = [&](const char *getippt, float zahl) {
            QTest::addRow("%s in %s", getippt, sprache)
                << kuerzel << QString::fromLatin1(getippt) << zahl;
        };
        zeile("12,5", 12.5F);
        zeile("12.5", 12.5F);
        zeile("0,004", 0.004F);
        zeile("0.004", 0.004F);
        zeile("1,234", 1.234F); // no thousands are parted here
        zeile("1.234", 1.234F);
        zeile("1234", 1234);
        zeile(",5", 0.5F);
        zeile(".5", 0.5F);
        zeile("7,", 7);
        zeile("7.", 7);
        zeile(",", 0);
        zeile("007", 7);
    }
}

void TestEigeneFelder::commaAndPointAreAlike()
{
    QFETCH(QString, sprache);
    QFETCH(QString, getippt);
    QFETCH(float, zahl);
    QLocale::setDefault(QLocale(sprache));
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    Textfeld *feld = controller().EingabeFensterb1feld;
    feld->setFocus();
    QTest::keyClicks(feld, getippt);
    QTest::keyClick(feld, Qt::Key_Tab);
    controller().umschreibenDerEingabeFelder();
    QCOMPARE(controller().b1feld->floatValue(), zahl);
    QCOMPARE(gesichert(QStringLiteral("Apfelmus")).b1(), zahl);
    QCOMPARE(feld->text(), getippt); // as typed
}

void TestEigeneFelder::aPastedTextIsNoNumber()
{
    oeffne();
    Textfeld *feld = controller().EingabeFensterproteinfeld;
    feld->insert(QStringLiteral("12,5"));
    feld->insert(QStringLiteral(" g"));
    feld->insert(QStringLiteral("viel"));
    QCOMPARE(feld->text(), QStringLiteral("12,5"));
    QCOMPARE(feld->floatValue(), 12.5F);
}

void TestEigeneFelder::aRatingIsChosenFromThree()
{
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    const QStringList urteile = {QStringLiteral("+"), QStringLiteral("0"), QStringLiteral("-")};
    for (Auswahlfeld *feld :
         {controller().EingabeFensteruebergewicht, controller().EingabeFensterdiabetes,
          controller().EingabeFenstergicht, controller().EingabeFensterhkk}) {
        QStringList eintraege;
        for (int i = 0; i < feld->count(); ++i) {
            eintraege << feld->itemText(i);
        }
        QCOMPARE(eintraege, urteile);
        QCOMPARE(feld->stringValue(), urteile[1]);
    }
    Auswahlfeld *feld = controller().EingabeFensterdiabetes;
    feld->setFocus();
    QTest::keyClick(feld, Qt::Key_Down);
    QCOMPARE(feld->stringValue(), urteile[2]);
    QTest::keyClick(feld, Qt::Key_Up);
    QTest::keyClick(feld, Qt::Key_Up);
    QCOMPARE(feld->stringValue(), urteile[0]);
    feld->showPopup();
    QTest::keyClick(feld->view(), Qt::Key_Escape); // closes the list, not the sheet
    QVERIFY(blatt()->isVisible());
    controller().umschreibenDerEingabeFelder();
    QCOMPARE(gesichert(QStringLiteral("Apfelmus")).diabetes(), urteile[0]);
    QCOMPARE(gesichert(QStringLiteral("Apfelmus")).gicht(), urteile[1]);
}

void TestEigeneFelder::aRatingCanBeTyped()
{
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    Auswahlfeld *feld = controller().EingabeFensterhkk;
    feld->setFocus();
    feld->lineEdit()->selectAll();
    QTest::keyClicks(feld, QStringLiteral("-?"));
    QTest::keyClick(feld, Qt::Key_Return);
    QCOMPARE(controller().hkkfeld->stringValue(), QStringLiteral("-?"));
    QCOMPARE(gesichert(QStringLiteral("Apfelmus")).hkk(), QStringLiteral("-?"));
    QCOMPARE(feld->count(), 3); // what was typed is not offered again
}

void TestEigeneFelder::theFieldsCanBeEmptied()
{
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    for (Textfeld *feld : controller().eingabefelder()) {
        feld->insert(QStringLiteral("5"));
    }
    controller().EingabeFensterhkk->setCurrentText(QStringLiteral("+"));
    QTest::mouseClick(controller().EingabeFensterleeren, Qt::LeftButton);
    QCOMPARE(Probefenster::text(*controller().EingabeFensterfeldA), QString());
    for (Textfeld *feld : controller().eingabefelder()) {
        QCOMPARE(Probefenster::text(*feld), QString());
        QCOMPARE(feld->floatValue(), 0.0F);
    }
    QCOMPARE(controller().EingabeFensterhkk->currentText(), QStringLiteral("0"));
    QVERIFY(controller().EingabeFensterfeldA->hasFocus());
    QVERIFY(controller().KundenArray.isEmpty());
    QTest::keyClicks(controller().EingabeFensterfeldA, QStringLiteral("Mus"));
    controller().umschreibenDerEingabeFelder();
    QCOMPARE(gesichert(QStringLiteral("Mus")).kal(), 0.0F);
}

void TestEigeneFelder::theSheetKeepsItsTextWhileItIsClosed()
{
    oeffne();
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    controller().EingabeFensterfeldB->insert(QStringLiteral("80,5"));
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    oeffne();
    QCOMPARE(controller().EingabeFensterfeldA->text(), QStringLiteral("Apfelmus"));
    QCOMPARE(controller().EingabeFensterfeldB->text(), QStringLiteral("80,5"));
}

void TestEigeneFelder::everythingFits_data()
{
    QTest::addColumn<int>("punkte");
    QTest::newRow("letters of 9 points") << 9;
    QTest::newRow("letters of 18 points") << 18;
}

/// No caption of the sheet is cut off, whatever the size of its letters.
void TestEigeneFelder::everythingFits()
{
    QFETCH(int, punkte);
    QFont schrift = blatt()->font();
    schrift.setPointSize(punkte);
    blatt()->setFont(schrift);
    oeffne();
    QCoreApplication::processEvents();
    for (const QWidget *widget : blatt()->findChildren<QWidget *>()) {
        if (widget->isVisible() && qobject_cast<const QLineEdit *>(widget) == nullptr &&
            (qobject_cast<const QLabel *>(widget) != nullptr ||
             qobject_cast<const QAbstractButton *>(widget) != nullptr)) {
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(),
                     qPrintable(widget->objectName()));
        }
    }
}

QTEST_MAIN(TestEigeneFelder)
#include "TestEigeneFelder.moc"
