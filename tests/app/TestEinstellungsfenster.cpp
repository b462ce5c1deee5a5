#include "Einstellungsfenster.h"

#include "Pdftuer.h"
#include "Probefenster.h"
#include "Sprache.h"

#include <QActionGroup>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

/// The window of the settings: what is chosen holds at once, is kept, and is the same in the menus.
class TestEinstellungsfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void menuAndKeysOpenIt_data();
    void menuAndKeysOpenIt();
    void oneWindowIsEnough();
    void theAppearanceHoldsAtOnce_data();
    void theAppearanceHoldsAtOnce();
    void itShowsWhatTheMenuHolds();
    void theLanguageHoldsAtOnce();
    void theKeyboardAloneChooses();
    void theKeyboardBeginsAtTheFirstChoice();
    void theFolderForPdfsIsChosenAndForgotten();
    void withoutAChoiceTheFolderStays();
    void withoutADoorNoFolderIsChosen();
    void aFurtherGroupStandsBelow();
    void onASmallScreenItRolls();

private:
    void oeffne();
    Einstellungsfenster &fenster() const
    {
        return *controller().Hauptfenster->findChild<Einstellungsfenster *>();
    }
    QRadioButton *wahl(const QString &text) const;
    void klicke(const QString &text) const;
    QPushButton *knopf(const char *name) const
    {
        return fenster().findChild<QPushButton *>(QLatin1String(name));
    }
    QString ordner() const { return fenster().findChild<QLineEdit *>(u"pdfordner"_s)->text(); }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEinstellungsfenster::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_sprache = std::make_unique<Sprache>(u"de"_s);
    m_heim->sprich = [this](const QString &kuerzel) {
        m_sprache->sprich(kuerzel);
    };
}

void TestEinstellungsfenster::cleanup()
{
    m_fenster.reset();
    m_sprache.reset();
    m_heim.reset();
    zeigeErscheinungsbild(Erscheinungsbild::System);
}

void TestEinstellungsfenster::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    Q_EMIT controller().einstellungenGewuenscht();
    QVERIFY(QTest::qWaitForWindowActive(&fenster()));
}

QRadioButton *TestEinstellungsfenster::wahl(const QString &text) const
{
    for (auto *eine : fenster().findChildren<QRadioButton *>()) {
        if (eine->text().remove(u'&') == text) {
            return eine;
        }
    }
    return nullptr;
}

/// On the circle: what is right of the words is not the button's.
void TestEinstellungsfenster::klicke(const QString &text) const
{
    QRadioButton *knopf = wahl(text);
    QTest::mouseClick(knopf, Qt::LeftButton, {}, QPoint(8, knopf->height() / 2));
}

void TestEinstellungsfenster::menuAndKeysOpenIt_data()
{
    QTest::addColumn<bool>("mitTasten");
    QTest::newRow("the menu's entry") << false;
    QTest::newRow("Ctrl+,") << true;
}

void TestEinstellungsfenster::menuAndKeysOpenIt()
{
    QFETCH(bool, mitTasten);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    if (mitTasten) {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_Comma, Qt::ControlModifier);
    } else {
        for (QAction *eintrag :
             controller().Hauptfenster->menuBar()->actions().at(1)->menu()->actions()) {
            if (eintrag->text() == u"E&instellungen …"_s) {
                eintrag->trigger();
            }
        }
    }
    QVERIFY(fenster().isVisible());
    QCOMPARE(fenster().windowModality(), Qt::WindowModal);
    QTest::mouseClick(fenster().findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Close),
                      Qt::LeftButton);
    QTRY_VERIFY(controller().Hauptfenster->findChild<Einstellungsfenster *>() == nullptr);
}

void TestEinstellungsfenster::oneWindowIsEnough()
{
    oeffne();
    Q_EMIT controller().einstellungenGewuenscht();
    QCOMPARE(controller().Hauptfenster->findChildren<Einstellungsfenster *>().size(), 1);
}

void TestEinstellungsfenster::theAppearanceHoldsAtOnce_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("gemerkt");
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("dark") << u"Dunkel"_s << 2 << true;
    QTest::newRow("light") << u"Hell"_s << 1 << false;
}

void TestEinstellungsfenster::theAppearanceHoldsAtOnce()
{
    QFETCH(bool, dunkel);
    QFETCH(QString, text);
    oeffne();
    QVERIFY(wahl(u"Wie das System"_s)->isChecked());
    klicke(text);
    QCOMPARE(QApplication::palette().color(QPalette::Window).lightness() < 128, dunkel);
    QTEST(m_heim->aufDerPlatte(u"Erscheinungsbild"_s).toInt(), "gemerkt");
    const auto *menue =
        controller().Hauptfenster->findChild<QActionGroup *>(u"erscheinungsbilder"_s);
    QCOMPARE(menue->checkedAction()->text().remove(u'&'), text);
}

void TestEinstellungsfenster::itShowsWhatTheMenuHolds()
{
    m_heim->einstellungen().setValue(u"Erscheinungsbild"_s, 2);
    oeffne();
    QVERIFY(wahl(u"Dunkel"_s)->isChecked());
    QVERIFY(wahl(u"Deutsch"_s)->isChecked());
    controller()
        .Hauptfenster->findChild<QActionGroup *>(u"erscheinungsbilder"_s)
        ->actions()[1]
        ->trigger();
    QVERIFY(wahl(u"Hell"_s)->isChecked());
}

/// The window itself speaks it too.
void TestEinstellungsfenster::theLanguageHoldsAtOnce()
{
    oeffne();
    klicke(u"English"_s);
    QCOMPARE(m_heim->aufDerPlatte(u"Sprache"_s).toString(), u"en"_s);
    QCOMPARE(fenster().windowTitle(), u"Settings"_s);
    QStringList titel;
    for (const auto *gruppe : fenster().findChildren<QGroupBox *>()) {
        titel << gruppe->title();
    }
    QCOMPARE(titel, (QStringList{u"Language"_s, u"Appearance"_s, u"Folder for PDFs"_s,
                                 u"Letterhead of the prints"_s, u"Clients"_s}));
    QVERIFY(wahl(u"Like the system"_s) != nullptr);
    QCOMPARE(knopf("ordnerwaehlen")->text(), u"&Choose folder …"_s);
    QCOMPARE(fenster().findChild<QLineEdit *>(u"pdfordner"_s)->accessibleName(),
             u"Folder for PDFs"_s);
    klicke(u"Deutsch"_s);
    QCOMPARE(fenster().windowTitle(), u"Einstellungen"_s);
    QCOMPARE(QLocale().language(), QLocale::German);
}

void TestEinstellungsfenster::theKeyboardAloneChooses()
{
    oeffne();
    QTest::keyClick(fenster().windowHandle(), Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY(wahl(u"Dunkel"_s)->isChecked()); // it looks pressed for a moment first
    QCOMPARE(gemerktesErscheinungsbild(m_heim->einstellungen()), Erscheinungsbild::Dunkel);
    wahl(u"Dunkel"_s)->setFocus();
    QTest::keyClick(wahl(u"Dunkel"_s), Qt::Key_Up);
    QVERIFY(wahl(u"Hell"_s)->isChecked());
    QCOMPARE(gemerktesErscheinungsbild(m_heim->einstellungen()), Erscheinungsbild::Hell);
    QTest::keyClick(&fenster(), Qt::Key_Escape);
    QTRY_VERIFY(controller().Hauptfenster->findChild<Einstellungsfenster *>() == nullptr);
}

void TestEinstellungsfenster::theKeyboardBeginsAtTheFirstChoice()
{
    oeffne();
    const QWidget *schliessen =
        fenster().findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Close);
    const QWidgetList folge = {wahl(u"Deutsch"_s),
                               wahl(u"Wie das System"_s),
                               fenster().findChild<QLineEdit *>(u"pdfordner"_s),
                               knopf("ordnerwaehlen"),
                               fenster().findChild<QLineEdit *>(u"praxisname"_s),
                               fenster().findChild<QPlainTextEdit *>(u"praxisanschrift"_s),
                               knopf("logowaehlen"),
                               fenster().findChild<QRadioButton *>(u"klientendatei"_s)};
    QTRY_COMPARE(QApplication::focusWidget(), folge.first());
    for (const QWidget *halt : folge) {
        QCOMPARE(QApplication::focusWidget(), halt);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), schliessen);
}

void TestEinstellungsfenster::theFolderForPdfsIsChosenAndForgotten()
{
    const QString wieSystem = pdfordner(m_heim->einstellungen());
    Dateifrage gefragt;
    m_heim->waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &antwort) {
        gefragt = frage;
        antwort(m_heim->pfad(u"Ausdrucke"_s));
    };
    oeffne();
    QCOMPARE(ordner(), wieSystem);
    QVERIFY(!knopf("wiesystem")->isEnabled());
    QTest::mouseClick(knopf("ordnerwaehlen"), Qt::LeftButton);
    QCOMPARE(gefragt.zweck, Dateifrage::Zweck::Ordner);
    QCOMPARE(gefragt.vorschlag, wieSystem);
    QCOMPARE(ordner(), m_heim->pfad(u"Ausdrucke"_s));
    QCOMPARE(pdfordner(m_heim->einstellungen()), m_heim->pfad(u"Ausdrucke"_s));
    QTRY_COMPARE(m_heim->aufDerPlatte(u"PdfOrdner"_s).toString(), m_heim->pfad(u"Ausdrucke"_s));
    QTest::mouseClick(knopf("wiesystem"), Qt::LeftButton);
    QCOMPARE(ordner(), wieSystem);
    QVERIFY(!m_heim->einstellungen().contains(u"PdfOrdner"_s));
    QVERIFY(!knopf("wiesystem")->isEnabled());
}

void TestEinstellungsfenster::withoutAChoiceTheFolderStays()
{
    merkePdfordner(m_heim->einstellungen(), m_heim->pfad(u"Ausdrucke"_s));
    m_heim->waehleDatei = [](QWidget *, const Dateifrage &, const auto &) {
    };
    oeffne();
    QTest::mouseClick(knopf("ordnerwaehlen"), Qt::LeftButton);
    QCOMPARE(pdfordner(m_heim->einstellungen()), m_heim->pfad(u"Ausdrucke"_s));
    QVERIFY(knopf("wiesystem")->isEnabled());
}

void TestEinstellungsfenster::withoutADoorNoFolderIsChosen()
{
    oeffne();
    QTest::mouseClick(knopf("ordnerwaehlen"), Qt::LeftButton);
    QVERIFY(!m_heim->einstellungen().contains(u"PdfOrdner"_s));
}

void TestEinstellungsfenster::aFurtherGroupStandsBelow()
{
    oeffne();
    auto *inhalt = new QLabel(u"Inhalt"_s);
    fenster().nimmAuf(u"Weiteres"_s, inhalt);
    QCoreApplication::processEvents();
    QVERIFY(inhalt->isVisible());
    QVERIFY(inhalt->mapTo(&fenster(), QPoint()).y() >
            knopf("ordnerwaehlen")->mapTo(&fenster(), QPoint()).y());
}

void TestEinstellungsfenster::onASmallScreenItRolls()
{
    oeffne();
    const auto *bereich = fenster().findChild<QScrollArea *>();
    QCOMPARE(bereich->verticalScrollBar()->maximum(), 0); // else all is seen
    fenster().resize(fenster().width(), 200);
    QCoreApplication::processEvents();
    QVERIFY(bereich->verticalScrollBar()->maximum() > 0);
    QCOMPARE(bereich->horizontalScrollBar()->maximum(), 0);
}

QTEST_MAIN(TestEinstellungsfenster)
#include "TestEinstellungsfenster.moc"
