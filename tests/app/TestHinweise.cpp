#include "Probefenster.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using enum Naehrwert;

/// What the main window tells without asking for an answer.
class TestHinweise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatTheSheetSavedIsNamed();
    void theDisplayStaysAsTheStepsLeaveIt();
    void nothingMovesWhenANoticeComesOrGoes();
    void showingItSelectsItsRow();
    void choosingAnyFoodSettlesIt();
    void deletingItIsConfirmedInItsPlace();
    void changingItIsNamed();
    void theSaveButtonConfirms();
    void aRowThatStandsForAnotherFoodShowsWhatWasSaved_data();
    void aRowThatStandsForAnotherFoodShowsWhatWasSaved();
    void whatTheTableDoesNotReachIsNotOffered();
    void aNameMayHoldAnything();

private:
    void oeffne(int zeilen, int eigene);
    void sichere(const QString &name, const QString &kilokalorien) const;
    QStringList texte() const;
    QPushButton *knopf() const
    {
        return controller().hinweise->findChild<QPushButton *>(QStringLiteral("hinweisknopf"));
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestHinweise::init()
{
    m_heim = std::make_unique<Probeheim>();
}

void TestHinweise::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// A table of so many rows, and so many own foods called "Eigen 000" and so on.
void TestHinweise::oeffne(int zeilen, int eigene)
{
    m_heim->schreibeTabelle(zaehltabelle(zeilen));
    QList<Datenmodul> alle;
    for (int i = 0; i < eigene; ++i) {
        alle << lebensmittel(QStringLiteral("Eigen %1").arg(i, 4, 10, QLatin1Char('0')),
                             {{kal, 5}, {protein, 1}});
    }
    m_heim->schreibeEigene(verzeichnis(alle));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// Types a food into the sheet, takes it over and closes the sheet.
void TestHinweise::sichere(const QString &name, const QString &kilokalorien) const
{
    controller().Fenster();
    QVERIFY(QTest::qWaitForWindowActive(controller().einfenster));
    controller().EingabeFensterfeldA->clear();
    QTest::keyClicks(controller().EingabeFensterfeldA, name);
    QTest::keyClicks(controller().EingabeFensterfeldB, kilokalorien);
    QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    QTest::mouseClick(controller().EingabeFensterschliessen, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
}

QStringList TestHinweise::texte() const
{
    QStringList ergebnis;
    for (const Hinweis &hinweis : controller().hinweise->hinweise()) {
        ergebnis << hinweis.text;
    }
    return ergebnis;
}

void TestHinweise::whatTheSheetSavedIsNamed()
{
    oeffne(30, 0);
    QVERIFY(texte().isEmpty());
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QCOMPARE(texte(), QStringList{QStringLiteral("„Linsensuppe“ ist gesichert. Kreis, Balken und "
                                                 "Farben zeigen noch das Lebensmittel davor.")});
    QVERIFY(controller().hinweise->isVisible());
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestHinweise::theDisplayStaysAsTheStepsLeaveIt()
{
    oeffne(30, 0);
    m_fenster->klicke(4, inName); // 5 kcal, 10 g of protein: all energy from protein
    QCOMPARE(controller().kalumrprot, 100.0F);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QCOMPARE(controller().kalumrprot, 100.0F);
    QCOMPARE(controller().Tabelle->selectedRow(), 4);
    QCOMPARE(controller().feldB->floatValue(), 80.0F);
}

/// It stands where the source is named otherwise.
void TestHinweise::nothingMovesWhenANoticeComesOrGoes()
{
    oeffne(30, 0);
    controller().Hauptfenster->resize(1280, 768);
    QCoreApplication::processEvents();
    const auto orte = [this] {
        QCoreApplication::processEvents();
        QList<QRect> alle;
        for (const QWidget *teil : std::initializer_list<const QWidget *>{
                 controller().Tabelle, controller().trefferleiste, controller().LManzahl,
                 controller().DatenAnsicht, controller().sichernaufzu}) {
            alle << QRect(teil->mapTo(controller().Hauptfenster, QPoint(0, 0)), teil->size());
        }
        return alle;
    };
    const int letzte = controller().Tabelle->rowAt(controller().Tabelle->viewport()->height() - 30);
    m_fenster->klicke(letzte, inName);
    const int gerollt = controller().Tabelle->verticalScrollBar()->value();
    const QList<QRect> vorher = orte();
    QVERIFY(controller().view->isVisible());
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QVERIFY(controller().hinweise->isVisible());
    QVERIFY(!controller().view->isVisible());
    QCOMPARE(orte(), vorher);
    while (!controller().hinweise->hinweise().isEmpty()) {
        controller().hinweise->schliesse();
    }
    QVERIFY(controller().view->isVisible());
    QCOMPARE(orte(), vorher);
    QCOMPARE(controller().Tabelle->verticalScrollBar()->value(), gerollt);
}

void TestHinweise::showingItSelectsItsRow()
{
    oeffne(30, 3);
    m_fenster->klicke(4, inName);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QTest::mouseClick(knopf(), Qt::LeftButton);
    QCOMPARE(controller().Tabelle->selectedRow(), 3); // behind the three that were there
    QCOMPARE(AppController::angeklickteSpalte, inEigen);
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Linsensuppe"));
    QCOMPARE(controller().kalumrprot, 0.0F);
    QVERIFY(controller().loeschenknopf->isEnabled());
    QVERIFY(m_fenster->zelle(3, inEigen).umrandet);
    QVERIFY(texte().isEmpty());
}

void TestHinweise::choosingAnyFoodSettlesIt()
{
    oeffne(30, 0);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QCOMPARE(texte().size(), 1);
    m_fenster->klicke(7, inName);
    QVERIFY(texte().isEmpty());
    QVERIFY(controller().hinweise->isHidden());
}

void TestHinweise::deletingItIsConfirmedInItsPlace()
{
    oeffne(30, 0);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QCOMPARE(texte().size(), 1);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QVERIFY(controller().KundenDictionary.isEmpty());
    QCOMPARE(texte(), QStringList{QStringLiteral("„Linsensuppe“ ist gelöscht.")});
    QTRY_COMPARE(knopf()->text(), QStringLiteral("Zurücknehmen"));
    m_fenster->klicke(7, inName);
    QVERIFY(texte().isEmpty());
}

void TestHinweise::changingItIsNamed()
{
    oeffne(30, 0);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("85"));
    QCOMPARE(texte().size(), 1);
    QVERIFY(texte().constFirst().startsWith(QStringLiteral("„Linsensuppe“ ist geändert. Kreis")));
}

void TestHinweise::theSaveButtonConfirms()
{
    oeffne(30, 0);
    m_fenster->klicke(7, inName);
    QTest::mouseClick(controller().sichernaufzu, Qt::LeftButton);
    QTest::mouseClick(controller().sichernknopf, Qt::LeftButton);
    QCOMPARE(texte(), QStringList{QStringLiteral("„Speise 0007“ ist gesichert.")});
    QTest::mouseClick(controller().sichernknopf, Qt::LeftButton);
    QCOMPARE(texte(), QStringList{QStringLiteral("„Speise 0007“ ist geändert.")});
}

void TestHinweise::aRowThatStandsForAnotherFoodShowsWhatWasSaved_data()
{
    QTest::addColumn<int>("zeile");
    for (const int zeile : {575, 576, 577, 578, 604}) {
        QTest::addRow("row %d", zeile) << zeile;
    }
}

void TestHinweise::aRowThatStandsForAnotherFoodShowsWhatWasSaved()
{
    QFETCH(int, zeile);
    oeffne(610, zeile);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QTest::mouseClick(knopf(), Qt::LeftButton);
    QCOMPARE(controller().Tabelle->selectedRow(), zeile);
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Linsensuppe"));
    QCOMPARE(controller().feldA->stringValue(), QStringLiteral("Linsensuppe"));
    QCOMPARE(controller().feldB->floatValue(), 80.0F);
    QVERIFY(texte().isEmpty());
}

void TestHinweise::whatTheTableDoesNotReachIsNotOffered()
{
    oeffne(3, 3);
    sichere(QStringLiteral("Linsensuppe"), QStringLiteral("80"));
    QCOMPARE(controller().KundenArray.indexOf(QStringLiteral("Linsensuppe")), 3);
    QCOMPARE(texte().size(), 1);
    QVERIFY(knopf() == nullptr);
}

void TestHinweise::aNameMayHoldAnything()
{
    oeffne(30, 0);
    const QString name = QStringLiteral("<b>Brot</b> %1 & Butter");
    sichere(name, QStringLiteral("80"));
    QVERIFY(texte().constFirst().startsWith(u'„' + name + u'“'));
    const auto *feld = controller().hinweise->findChild<QLabel *>(QStringLiteral("hinweistext"));
    QCOMPARE(feld->textFormat(), Qt::PlainText);
}

QTEST_MAIN(TestHinweise)
#include "TestHinweise.moc"
