#include "Probefenster.h"

#include "Sprache.h"
#include "Textwechsel.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>

/// The language is changed while the windows are open: all that the program has written there
/// follows at once, and what the user has typed and chosen stays.
class TestSprachwechsel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void captionsFollowInAllWindows();
    void noTextStaysBehind_data();
    void noTextStaysBehind();
    void namesFollowAndTheOrderStays();
    void resultsOfASearchFollow();
    void whatIsTypedAndChosenStays();
    void numbersFollow();
    void drinksAndSportsFollow();
    void whyAControlIsShutFollows();
    void theKindsOfFilesFollow();
    void toAndFroIsAsBefore();
    void theSameLanguageChangesNothing();

private:
    void waehle(const QString &sprache) const;
    AppController &c() const { return m_fenster->controller(); }
    QStringList alleTexte() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Probeuebersetzer> m_namen;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString apfel = QStringLiteral("Apfel");
const QString zitrone = QStringLiteral("Zitrone");

} // namespace

/// Two foods whose order differs: Apfel, Zitrone; in English Lemon comes before Malus.
void TestSprachwechsel::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(apfel, {{Naehrwert::kal, 52.5F}, {Naehrwert::protein, 0.3F}}),
                     lebensmittel(zitrone, {{Naehrwert::kal, 35.0F}})}));
    m_sprache = std::make_unique<Sprache>(QStringLiteral("de"));
    m_heim->sprich = [this](const QString &kuerzel) {
        m_sprache->sprich(kuerzel);
        m_namen = kuerzel == QLatin1String("en")
                      ? std::make_unique<Probeuebersetzer>(QHash<QString, QString>{
                            {apfel, QStringLiteral("Malus")}, {zitrone, QStringLiteral("Lemon")}})
                      : nullptr;
    };
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    c().Planmoduloeffnen();
}

void TestSprachwechsel::cleanup()
{
    m_fenster.reset();
    m_namen.reset();
    m_sprache.reset();
    m_heim.reset();
}

/// Chooses a language in the menu.
void TestSprachwechsel::waehle(const QString &sprache) const
{
    for (QAction *aktion : c().Hauptfenster->findChildren<QAction *>()) {
        if (aktion->text() == sprache) {
            aktion->trigger();
            QCoreApplication::processEvents();
            return;
        }
    }
    QFAIL("no such language");
}

/// What can be read in all windows and menus, each text once.
QStringList TestSprachwechsel::alleTexte() const
{
    QCoreApplication::processEvents(); // fields bring their texts up to date when there is time
    QStringList alle;
    for (const QObject *fenster : {static_cast<QObject *>(c().Hauptfenster),
                                   static_cast<QObject *>(c().planmodul->window())}) {
        for (const QObject *teil : fenster->findChildren<QObject *>()) {
            for (const char *name : {"text", "title", "toolTip", "accessibleName"}) {
                alle << teil->property(name).toString();
            }
        }
    }
    alle.sort();
    alle.removeDuplicates();
    return alle;
}

void TestSprachwechsel::captionsFollowInAllWindows()
{
    waehle(QStringLiteral("English"));
    QCOMPARE(c().suchfeld->placeholderText(), QStringLiteral("Find"));
    QCOMPARE(c().suchfeld->accessibleName(), QStringLiteral("Find food"));
    QCOMPARE(c().Tabelle->model()->headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Food"));
    QCOMPARE(c().Hauptfenster->menuBar()->actions()[0]->text(), QStringLiteral("&File"));
    QCOMPARE(c().EingabeFensteruebernehmen->text(), QStringLiteral("Take over and save"));
    QCOMPARE(c().planmodul->window()->windowTitle(), QStringLiteral("Meal plan"));
    QVERIFY(c().planmodul->PlanTabelle->model()
                ->headerData(1, Qt::Horizontal)
                .toString()
                .contains(QStringLiteral("Amount")));
    QVERIFY(c().planmodul->planworte->text().endsWith(QStringLiteral("of 21 points")));
    QVERIFY(c().view->toPlainText().contains(QStringLiteral("Swiss Food Composition Database")));
}

void TestSprachwechsel::noTextStaysBehind_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<bool>("nachEnglisch");
    QTest::newRow("to English") << QStringLiteral("English") << true;
    QTest::newRow("and back to German") << QStringLiteral("Deutsch") << false;
}

/// A text that the former language has and the new one has not is read nowhere.
void TestSprachwechsel::noTextStaysBehind()
{
    QFETCH(QString, sprache);
    QFETCH(bool, nachEnglisch);
    if (!nachEnglisch) {
        waehle(QStringLiteral("English"));
    }
    waehle(sprache);
    const Textwechsel hin(nachEnglisch);
    const Textwechsel zurueck(!nachEnglisch);
    for (const QString &text : alleTexte()) {
        const bool beides = zurueck.text(text) != text; // "Protein: %1" begins alike in both
        QVERIFY2(beides || hin.text(text) == text, qPrintable(text));
    }
}

void TestSprachwechsel::namesFollowAndTheOrderStays()
{
    m_fenster->klicke(0, inName);
    c().toolbarlebensmittelweitergabe();
    waehle(QStringLiteral("English"));
    QCOMPARE(c().feldA->text(), QStringLiteral("Malus"));
    QCOMPARE(c().unuebersetztername, apfel);
    QCOMPARE(m_fenster->zelle(0, inName).text, QStringLiteral("Malus"));
    QCOMPARE(m_fenster->zelle(1, inName).text, QStringLiteral("Lemon"));
    QCOMPARE(c().Array, QStringList({apfel, zitrone}));
    QCOMPARE(c().planmodul->PlanTabelle->modell()
                 ->bild(c().planmodul->PlanTabelle->model()->index(0, 0))
                 .text,
             QStringLiteral("Malus"));
    QCOMPARE(c().hinweise->hinweise().first().kennung, AppController::hinweisSprache);
    c().suchfeld->setStringValue(QStringLiteral("lem"));
    c().suchen(*c().suchfeld);
    QCOMPARE(c().suchArray2.last(), zitrone);
}

void TestSprachwechsel::resultsOfASearchFollow()
{
    waehle(QStringLiteral("English"));
    c().suchfeld->setStringValue(QStringLiteral("lem"));
    c().suchen(*c().suchfeld);
    QCOMPARE(m_fenster->zelle(1, inSuch).text, QStringLiteral("Lemon"));
    waehle(QStringLiteral("Deutsch"));
    QCOMPARE(c().Tabelle->model()->index(1, inSuch).data().toString(), zitrone);
    QCOMPARE(c().Tabelle->model()->headerData(inSuch, Qt::Horizontal).toString(),
             QStringLiteral("Suche: 1 gefunden"));
    m_fenster->klicke(1, inSuch); // and leads to its food
    QCOMPARE(c().unuebersetztername, zitrone);
}

void TestSprachwechsel::whatIsTypedAndChosenStays()
{
    m_fenster->klicke(1, inName);
    m_fenster->tippeMenge(QStringLiteral("30"));
    c().zeigeAnsicht(QStringLiteral("drei"));
    c().Fenster();
    c().EingabeFensterfeldA->setFocus();
    QTest::keyClicks(c().EingabeFensterfeldA, QStringLiteral("Drucken"));
    QTest::keyClicks(c().suchfeld, QStringLiteral("Fett"));
    waehle(QStringLiteral("English"));
    QCOMPARE(c().EingabeFensterfeldA->text(), QStringLiteral("Drucken"));
    QCOMPARE(c().suchfeld->text(), QStringLiteral("Fett"));
    QCOMPARE(c().unuebersetztername, zitrone);
    QCOMPARE(c().Tabelle->selectedRow(), 1);
    QCOMPARE(c().lebensmittelmenge->intValue(), 30);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("drei"));
    QVERIFY(c().einfenster->isVisible());
}

void TestSprachwechsel::numbersFollow()
{
    m_fenster->klicke(0, inName);
    QVERIFY(Probefenster::text(*c().proteinfeld).startsWith(QStringLiteral("0,3")));
    waehle(QStringLiteral("English"));
    QVERIFY(Probefenster::text(*c().proteinfeld).startsWith(QStringLiteral("0.3")));
    QVERIFY(m_fenster->rechner().groessen->eingabe()->text().contains(u'.'));
}

void TestSprachwechsel::drinksAndSportsFollow()
{
    AnthroController &r = m_fenster->rechner();
    r.sport->setStringValue(QStringLiteral("Fußball"));
    r.alkohol->setStringValue(QStringLiteral("Bier Marke Eigenbau"));
    const int eintraege = r.sport->count();
    waehle(QStringLiteral("English"));
    QCOMPARE(r.sport->stringValue(), QStringLiteral("soccer"));
    QVERIFY(r.sport->findText(QStringLiteral("soccer")) >= 0);
    QCOMPARE(r.sport->count(), eintraege);
    QCOMPARE(r.alkohol->stringValue(), QStringLiteral("Bier Marke Eigenbau")); // in no table
    waehle(QStringLiteral("Deutsch"));
    QCOMPARE(r.sport->stringValue(), QStringLiteral("Fußball"));
}

/// Shut and opened again, before and after the change.
void TestSprachwechsel::whyAControlIsShutFollows()
{
    const QWidget *feld = c().proteineingabe;
    const QString gesperrt =
        QStringLiteral("Schalten Sie das Kriterium davor ein, um es einzustellen.");
    QAbstractButton *schalter = c().suchprofileinaus->zelle(0);
    c().profilaufzu->click();
    schalter->click();
    const QString offen = feld->toolTip();
    schalter->click();
    QCOMPARE(feld->toolTip(), gesperrt);
    waehle(QStringLiteral("English"));
    QCOMPARE(feld->toolTip(), QStringLiteral("Switch on the criterion before it to set this."));
    schalter->click();
    QVERIFY(offen.isEmpty() || feld->toolTip() != offen);
    QCOMPARE(feld->toolTip().isEmpty(), offen.isEmpty());
    schalter->click();
    QCOMPARE(feld->toolTip(), QStringLiteral("Switch on the criterion before it to set this."));
    QCOMPARE(feld->accessibleDescription(), feld->toolTip());
}

/// Over the plan a file may be asked for while the main window changes the language.
void TestSprachwechsel::theKindsOfFilesFollow()
{
    QWidget *plan = c().planmodul->window();
    frageNachDatei(plan,
                   {.titel = QStringLiteral("Als Tabelle sichern"),
                    .vorschlag = m_heim->pfad(QStringLiteral("x.csv")),
                    .arten = QStringLiteral("Tabellen (*.csv);;Alle Dateien (*)"),
                    .zweck = Dateifrage::Zweck::Schreiben},
                   {});
    const auto *dialog = plan->findChild<QFileDialog *>();
    const auto *arten = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
    waehle(QStringLiteral("English"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save as table"));
    QCOMPARE(arten->itemText(0), QStringLiteral("Tables (*.csv)"));
    QCOMPARE(arten->itemText(1), QStringLiteral("All files (*)"));
}

void TestSprachwechsel::toAndFroIsAsBefore()
{
    m_fenster->klicke(0, inName);
    m_fenster->tippeMenge(QStringLiteral("30"));
    const QStringList vorher = alleTexte();
    waehle(QStringLiteral("English"));
    QVERIFY(alleTexte() != vorher);
    waehle(QStringLiteral("Deutsch"));
    c().hinweise->nimmZurueck(AppController::hinweisSprache);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(alleTexte(), vorher);
}

void TestSprachwechsel::theSameLanguageChangesNothing()
{
    const QStringList vorher = alleTexte();
    waehle(QStringLiteral("Deutsch"));
    QCOMPARE(alleTexte(), vorher);
    QVERIFY(c().hinweise->hinweise().isEmpty());
}

QTEST_MAIN(TestSprachwechsel)
#include "TestSprachwechsel.moc"
