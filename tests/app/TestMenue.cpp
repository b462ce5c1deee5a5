#include "Probefenster.h"

#include "Sprache.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMenuBar>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

/// The menus: that their shortcuts work, and what they keep of their user's taste.
class TestMenue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aKeyShowsItsView_data();
    void aKeyShowsItsView();
    void theKeysWorkWhereverOneIs();
    void aKeyOpensTheSheet();
    void aKeyEndsTheProgram();
    void everyEntryCanBeFoundByItsKeys();
    void noShortcutIsGivenTwice();
    void aFoodIsCopiedOutOfTheTable();
    void theSourceOfTheFiguresIsNamed();
    void theAppearanceIsKept_data();
    void theAppearanceIsKept();
    void rubbishForAnAppearanceIsThatOfTheDesktop_data();
    void rubbishForAnAppearanceIsThatOfTheDesktop();
    void theLanguageIsKept_data();
    void theLanguageIsKept();
    void aLanguageIsTakenAtTheStart_data();
    void aLanguageIsTakenAtTheStart();
    void keysHaveTheNamesOfTheKeyboard_data();
    void keysHaveTheNamesOfTheKeyboard();
    void noNumberPartsItsThousands_data() { aLanguageIsTakenAtTheStart_data(); }
    void noNumberPartsItsThousands();
    void theToolbarCanBePutAway();

private:
    AppController &controller() const { return m_fenster->controller(); }
    QList<QAction *> eintraege() const;
    QAction *eintrag(const QString &text) const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

void sammle(const QMenu &menue, QList<QAction *> &alle)
{
    for (QAction *aktion : menue.actions()) {
        if (aktion->menu() != nullptr) {
            sammle(*aktion->menu(), alle);
        } else if (!aktion->isSeparator()) {
            alle << aktion;
        }
    }
}

QString ohneKuerzel(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

void TestMenue::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestMenue::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
    zeigeErscheinungsbild(Erscheinungsbild::System);
}

/// All entries of all menus.
QList<QAction *> TestMenue::eintraege() const
{
    QList<QAction *> alle;
    for (const QAction *titel : controller().Hauptfenster->menuBar()->actions()) {
        sammle(*titel->menu(), alle);
    }
    return alle;
}

QAction *TestMenue::eintrag(const QString &text) const
{
    for (QAction *aktion : eintraege()) {
        if (ohneKuerzel(aktion->text()) == text) {
            return aktion;
        }
    }
    return nullptr;
}

void TestMenue::aKeyShowsItsView_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::addColumn<QString>("ansicht");
    QTest::newRow("Ctrl+1") << Qt::Key_1 << QStringLiteral("eins");
    QTest::newRow("Ctrl+2") << Qt::Key_2 << QStringLiteral("zwei");
    QTest::newRow("Ctrl+3") << Qt::Key_3 << QStringLiteral("drei");
    QTest::newRow("Ctrl+4") << Qt::Key_4 << QStringLiteral("vier");
    QTest::newRow("Ctrl+5") << Qt::Key_5 << QStringLiteral("fünf");
    QTest::newRow("Ctrl+T, the next one") << Qt::Key_T << QStringLiteral("fünf");
}

void TestMenue::aKeyShowsItsView()
{
    QFETCH(Qt::Key, taste);
    controller().zeigeAnsicht(taste == Qt::Key_T ? QStringLiteral("vier") : QStringLiteral("drei"));
    QTest::keyClick(controller().Hauptfenster, taste, Qt::ControlModifier);
    QTEST(m_fenster->ansicht(), "ansicht");
}

void TestMenue::theKeysWorkWhereverOneIs()
{
    controller().Tabelle->setFocus();
    QTest::keyClick(controller().Tabelle, Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
    controller().feldA->setFocus();
    QTest::keyClick(controller().feldA, Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("drei"));
    controller().lebensmittelmenge3->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("eins"));
}

void TestMenue::aKeyOpensTheSheet()
{
    QTest::keyClick(controller().Hauptfenster, Qt::Key_N, Qt::ControlModifier);
    QVERIFY(controller().einfenster->isVisible());
}

void TestMenue::aKeyEndsTheProgram()
{
    QSignalSpy ende(&controller(), &AppController::beendet);
    QTest::keyClick(controller().Hauptfenster, Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(ende.count(), 1);
}

/// Every menu and every entry has a letter that is underlined, and no letter stands twice beside
/// each other. Languages and views go by their names.
void TestMenue::everyEntryCanBeFoundByItsKeys()
{
    const auto buchstaben = [](const QList<QAction *> &nebeneinander) {
        QStringList alle;
        for (const QAction *aktion : nebeneinander) {
            const qsizetype stelle = aktion->text().indexOf(QLatin1Char('&'));
            if (stelle >= 0) {
                alle << aktion->text().mid(stelle + 1, 1).toLower();
            }
        }
        return alle;
    };
    const QList<QAction *> titel = controller().Hauptfenster->menuBar()->actions();
    QCOMPARE(buchstaben(titel).size(), titel.size());
    QList<QList<QAction *>> menues = {titel};
    for (const QAction *aktion : titel) {
        menues << aktion->menu()->actions();
    }
    for (const auto &menue : menues) {
        QStringList alle = buchstaben(menue);
        const qsizetype anzahl = alle.size();
        QCOMPARE(alle.removeDuplicates(), 0);
        QVERIFY(anzahl > 0);
    }
}

void TestMenue::noShortcutIsGivenTwice()
{
    QStringList tasten;
    for (const QAction *aktion : eintraege()) {
        if (!aktion->shortcut().isEmpty()) {
            tasten << aktion->shortcut().toString();
        }
    }
    QVERIFY(tasten.contains(QStringLiteral("Ctrl+Q")));
    QCOMPARE(tasten.removeDuplicates(), 0);
}

void TestMenue::aFoodIsCopiedOutOfTheTable()
{
    m_fenster->klicke(3, inName);
    controller().Tabelle->setFocus();
    QTest::keyClick(controller().Tabelle, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), zaehlname(3));
    controller().feldB->setFocus();
    controller().feldB->selectAll();
    QTest::keyClick(controller().feldB, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), controller().feldB->text());
}

void TestMenue::theSourceOfTheFiguresIsNamed()
{
    eintrag(QStringLiteral("Über Mahlberg"))->trigger();
    const auto *kasten = controller().Hauptfenster->findChild<QDialog *>(QStringLiteral("ueber"));
    QVERIFY(kasten != nullptr);
    QVERIFY(kasten->isVisible());
    QString alles;
    for (const QLabel *zeile : kasten->findChildren<QLabel *>()) {
        alles += zeile->text() + QLatin1Char('\n');
    }
    QVERIFY(alles.contains(QStringLiteral("Schweizer Nährwertdatenbank")));
    QVERIFY(alles.contains(QStringLiteral("Version 7.0")));
    QVERIFY(alles.contains(
        QStringLiteral("Bundesamt für Lebensmittelsicherheit und Veterinärwesen BLV")));
    QVERIFY(alles.contains(QStringLiteral("Mahlberg")));
    // The same beside the table, where the figures are read.
    QVERIFY(
        controller().view->toPlainText().contains(QStringLiteral("Schweizer Nährwertdatenbank")));
}

void TestMenue::theAppearanceIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("dark") << QStringLiteral("Dunkel") << true;
    QTest::newRow("light") << QStringLiteral("Hell") << false;
    QTest::newRow("as the desktop") << QStringLiteral("Wie das System") << false;
}

void TestMenue::theAppearanceIsKept()
{
    QFETCH(QString, text);
    QFETCH(bool, dunkel);
    eintrag(dunkel ? QStringLiteral("Hell") : QStringLiteral("Dunkel"))->trigger();
    eintrag(text)->trigger();
    QVERIFY(eintrag(text)->isChecked());
    QCOMPARE(eintrag(text)->actionGroup()->checkedAction(), eintrag(text));
    QCOMPARE(QApplication::palette().color(QPalette::Window).lightness() < 128, dunkel);
    const Erscheinungsbild gewaehlt = controller().erscheinungsbild();
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    QVERIFY(controller().erscheinungsbild() == gewaehlt);
    QVERIFY(eintrag(text)->isChecked());
}

void TestMenue::rubbishForAnAppearanceIsThatOfTheDesktop_data()
{
    QTest::addColumn<QVariant>("gemerkt");
    QTest::newRow("none") << QVariant();
    QTest::newRow("a word") << QVariant(QStringLiteral("bunt"));
    QTest::newRow("a number beyond") << QVariant(7);
    QTest::newRow("a negative number") << QVariant(-1);
}

void TestMenue::rubbishForAnAppearanceIsThatOfTheDesktop()
{
    QFETCH(QVariant, gemerkt);
    m_heim->einstellungen().setValue(QStringLiteral("Erscheinungsbild"), gemerkt);
    QVERIFY(controller().erscheinungsbild() == Erscheinungsbild::System);
}

void TestMenue::theLanguageIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sprache");
    QTest::newRow("English") << QStringLiteral("English") << QStringLiteral("en");
    QTest::newRow("German") << QStringLiteral("Deutsch") << QStringLiteral("de");
}

void TestMenue::theLanguageIsKept()
{
    QFETCH(QString, text);
    QVERIFY(eintrag(QStringLiteral("Deutsch"))->isChecked()); // as long as nothing was chosen
    eintrag(text)->trigger();
    QTEST(m_heim->aufDerPlatte(QStringLiteral("Sprache")).toString(), "sprache");
    QVERIFY(m_heim->meldungen.isEmpty()); // nobody has to answer
    QVERIFY(eintrag(text)->isChecked());
}

void TestMenue::aLanguageIsTakenAtTheStart_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QLocale::Language>("erwartet");
    QTest::newRow("English") << QStringLiteral("en") << QLocale::English;
    QTest::newRow("German") << QStringLiteral("de") << QLocale::German;
    QTest::newRow("none, at a desk of neither language") << QString() << QLocale::German;
    QTest::newRow("one that it does not speak") << QStringLiteral("fr") << QLocale::German;
}

void TestMenue::aLanguageIsTakenAtTheStart()
{
    QFETCH(QString, sprache);
    m_fenster.reset();
    {
        const Sprache genommen(sprache);
        QTEST(QLocale().language(), "erwartet");
    }
    m_heim.reset();
}

void TestMenue::keysHaveTheNamesOfTheKeyboard_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QStringList>("tasten");
    QTest::newRow("German") << QStringLiteral("de")
                            << QStringList{QStringLiteral("Strg+Eingabe"),
                                           QStringLiteral("Strg+Umschalt+F"),
                                           QStringLiteral("Strg+P")};
    QTest::newRow("English") << QStringLiteral("en")
                             << QStringList{QStringLiteral("Ctrl+Return"),
                                            QStringLiteral("Ctrl+Shift+F"),
                                            QStringLiteral("Ctrl+P")};
}

void TestMenue::keysHaveTheNamesOfTheKeyboard()
{
    QFETCH(QStringList, tasten);
    const QList<QAction *> alle = {eintrag(QStringLiteral("In den Plan geben")),
                                   eintrag(QStringLiteral("Profilsuche")),
                                   eintrag(QStringLiteral("Drucken …"))};
    QFETCH(QString, sprache);
    const Sprache genommen(sprache);
    for (qsizetype i = 0; i < alle.size(); ++i) {
        QCOMPARE(alle[i]->shortcut().toString(QKeySequence::NativeText), tasten[i]);
    }
}

void TestMenue::noNumberPartsItsThousands()
{
    QFETCH(QString, sprache);
    const Sprache genommen(sprache);
    QCOMPARE(QLocale().toString(1234567), QStringLiteral("1234567"));
}

void TestMenue::theToolbarCanBePutAway()
{
    QAction *schalter = eintrag(QStringLiteral("Symbolleiste zeigen"));
    QVERIFY(schalter->isChecked());
    schalter->trigger();
    QVERIFY(controller().toolbar->isHidden());
    eintrag(QStringLiteral("Symbolleiste anpassen …"))->trigger(); // shows what is to be arranged
    QVERIFY(!controller().toolbar->isHidden());
}

QTEST_MAIN(TestMenue)
#include "TestMenue.moc"
