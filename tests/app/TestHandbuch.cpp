#include "Erscheinungsbild.h"
#include "Fensterplatz.h"
#include "Handbuch.h"
#include "Sprache.h"

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// The handbook's window: going from page to page, and how a page looks.
class TestHandbuch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theContentsLeadToEachPage();
    void aLinkLeadsToItsPage();
    void aLinkCanBeFollowedWithTheKeyboard();
    void aLinkToNowhereIsNotFollowed_data();
    void aLinkToNowhereIsNotFollowed();
    void theKeysGoBackAndForth();
    void theButtonsGoBackAndForth();
    void aKeyCloses_data();
    void aKeyCloses();
    void aWordIsFoundOnThePage();
    void itComesToTheFront();
    void thePageFollowsTheLanguage();
    void thePageFollowsTheAppearance();
    void aPictureIsNoWiderThanTheWindow();
    void aTableIsNoWiderThanTheWindow_data();
    void aTableIsNoWiderThanTheWindow();
    void itFitsASmallScreen();
    void aDialogLeavesItReadable();

private:
    QTextBrowser &blatt() const { return *m_handbuch->findChild<QTextBrowser *>(); }
    QListWidget &inhalt() const { return *m_handbuch->findChild<QListWidget *>(); }
    QLineEdit &suchfeld() const { return *m_handbuch->findChild<QLineEdit *>(u"seitensuche"_s); }
    QTextCharFormat ersterVerweis() const;
    QTextImageFormat bild() const;
    QSize bildgroesse() const;
    void klickeAuf(const QString &worte) const;

    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Handbuch> m_handbuch;
};

void TestHandbuch::init()
{
    m_sprache = std::make_unique<Sprache>(u"de"_s);
    m_handbuch = std::make_unique<Handbuch>();
    m_handbuch->oeffne(u"index"_s);
    QVERIFY(QTest::qWaitForWindowActive(m_handbuch.get()));
}

void TestHandbuch::cleanup()
{
    m_handbuch.reset();
    m_sprache.reset();
}

QTextCharFormat TestHandbuch::ersterVerweis() const
{
    for (QTextBlock block = blatt().document()->begin(); block.isValid(); block = block.next()) {
        for (auto stueck = block.begin(); !stueck.atEnd(); ++stueck) {
            if (stueck.fragment().charFormat().isAnchor()) {
                return stueck.fragment().charFormat();
            }
        }
    }
    return {};
}

/// The picture of the page.
QTextImageFormat TestHandbuch::bild() const
{
    for (QTextBlock block = blatt().document()->begin(); block.isValid(); block = block.next()) {
        for (auto stueck = block.begin(); !stueck.atEnd(); ++stueck) {
            if (stueck.fragment().charFormat().isImageFormat()) {
                return stueck.fragment().charFormat().toImageFormat();
            }
        }
    }
    return {};
}

/// How large the page's picture is shown.
QSize TestHandbuch::bildgroesse() const
{
    const auto gezeigt = blatt()
                             .document()
                             ->resource(QTextDocument::ImageResource, QUrl(bild().name()))
                             .value<QImage>();
    return gezeigt.deviceIndependentSize().toSize();
}

/// Clicks the middle of these words on the page.
void TestHandbuch::klickeAuf(const QString &worte) const
{
    blatt().moveCursor(QTextCursor::Start);
    QVERIFY(blatt().find(worte));
    QTextCursor stelle = blatt().textCursor();
    const auto ort = [&](int wo) {
        stelle.setPosition(wo);
        return blatt().cursorRect(stelle).center();
    };
    const QTextCursor wahl = blatt().textCursor();
    const QPoint mitte = (ort(wahl.selectionStart()) + ort(wahl.selectionEnd())) / 2;
    blatt().setTextCursor(stelle);
    QTest::mouseClick(blatt().viewport(), Qt::LeftButton, {}, mitte);
}

void TestHandbuch::theContentsLeadToEachPage()
{
    QCOMPARE(inhalt().count(), 17);
    QCOMPARE(inhalt().currentRow(), 0);
    QCOMPARE(inhalt().item(5)->text(), u"Mahlzeitenplan"_s);
    QTest::mouseClick(inhalt().viewport(), Qt::LeftButton, {},
                      inhalt().visualItemRect(inhalt().item(5)).center());
    QCOMPARE(m_handbuch->seite(), u"plan"_s);
    inhalt().setFocus();
    for (int zeile = 6; zeile < inhalt().count(); ++zeile) {
        QTest::keyClick(&inhalt(), Qt::Key_Down);
        const QString titel = blatt().toPlainText().section(u'\n', 0, 0);
        QCOMPARE(inhalt().item(zeile)->text(), titel);
    }
    m_handbuch->oeffne(u"body"_s);
    QCOMPARE(inhalt().currentItem()->text(), u"Körper und Energie"_s);
}

void TestHandbuch::aLinkLeadsToItsPage()
{
    m_handbuch->oeffne(u"plan"_s);
    klickeAuf(u"Körper und Energie"_s);
    QCOMPARE(m_handbuch->seite(), u"body"_s);
    QVERIFY(blatt().toPlainText().startsWith(u"Körper und Energie"_s));
    QCOMPARE(inhalt().currentItem()->text(), u"Körper und Energie"_s);
}

void TestHandbuch::aLinkCanBeFollowedWithTheKeyboard()
{
    m_handbuch->oeffne(u"evaluation"_s);
    QVERIFY(blatt().hasFocus());
    QTest::keyClick(&blatt(), Qt::Key_Tab);
    QTest::keyClick(&blatt(), Qt::Key_Return);
    QCOMPARE(m_handbuch->seite(), u"plan"_s); // the first one on that page
}

void TestHandbuch::aLinkToNowhereIsNotFollowed_data()
{
    QTest::addColumn<QUrl>("verweis");
    QTest::newRow("a page that there is not") << QUrl(u"nowhere.md"_s);
    QTest::newRow("nothing") << QUrl();
    QTest::newRow("a folder") << QUrl(u"pictures"_s);
    QTest::newRow("a picture") << QUrl(u"pictures/main.png"_s);
    QTest::newRow("out of the handbook") << QUrl(u"../../uebersetzungen/mahlberg_en.ts"_s);
    QTest::newRow("a file of the disk") << QUrl(u"file:///etc/plan.md"_s);
    QTest::newRow("a page of the net") << QUrl(u"https://example.org/plan.md"_s);
}

void TestHandbuch::aLinkToNowhereIsNotFollowed()
{
    QFETCH(QUrl, verweis);
    m_handbuch->oeffne(u"search"_s);
    const QString vorher = blatt().toPlainText();
    Q_EMIT blatt().anchorClicked(verweis);
    QCOMPARE(m_handbuch->seite(), u"search"_s);
    QCOMPARE(blatt().toPlainText(), vorher);
    m_handbuch->oeffne(verweis.toString()); // and no such page can be asked for
    QCOMPARE(m_handbuch->seite(), u"search"_s);
}

void TestHandbuch::theKeysGoBackAndForth()
{
    m_handbuch->oeffne(u"food"_s);
    m_handbuch->oeffne(u"plan"_s);
    QTest::keyClick(&blatt(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"food"_s);
    QCOMPARE(inhalt().currentItem()->text(), u"Ein Lebensmittel lesen"_s);
    suchfeld().setFocus();
    QTest::keyClick(&suchfeld(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"index"_s);
    QTest::keyClick(&suchfeld(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"food"_s);
    m_sprache->sprich(u"en"_s);
    m_handbuch->folgeSprache();
    QTest::keyClick(&blatt(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"plan"_s);
    QVERIFY(blatt().toPlainText().startsWith(u"The meal plan"_s)); // read in German before
}

void TestHandbuch::theButtonsGoBackAndForth()
{
    const QList<QToolButton *> knoepfe = m_handbuch->findChildren<QToolButton *>();
    QToolButton *zurueck = knoepfe[0];
    QToolButton *vor = knoepfe[1];
    QCOMPARE(zurueck->text(), u"Zurück"_s);
    QVERIFY(!zurueck->isEnabled());
    m_handbuch->oeffne(u"plan"_s);
    QVERIFY(zurueck->isEnabled());
    QVERIFY(!vor->isEnabled());
    QTest::mouseClick(zurueck, Qt::LeftButton);
    QCOMPARE(m_handbuch->seite(), u"index"_s);
    QTest::mouseClick(vor, Qt::LeftButton);
    QCOMPARE(m_handbuch->seite(), u"plan"_s);
}

void TestHandbuch::aKeyCloses_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::addColumn<Qt::KeyboardModifiers>("dazu");
    QTest::newRow("Esc") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("Ctrl+W") << Qt::Key_W << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void TestHandbuch::aKeyCloses()
{
    QFETCH(Qt::Key, taste);
    QFETCH(Qt::KeyboardModifiers, dazu);
    QTest::keyClick(&blatt(), taste, dazu);
    QVERIFY(!m_handbuch->isVisible());
    m_handbuch->oeffne(u"plan"_s);
    QVERIFY(QTest::qWaitForWindowActive(m_handbuch.get()));
    suchfeld().setFocus();
    QTest::keyClick(&suchfeld(), taste, dazu);
    QVERIFY(!m_handbuch->isVisible());
}

void TestHandbuch::aWordIsFoundOnThePage()
{
    m_handbuch->oeffne(u"food"_s);
    QTest::keyClick(&blatt(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(suchfeld().hasFocus());
    QTest::keyClicks(&suchfeld(), u"Calcium"_s);
    QList<int> stellen;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&suchfeld(), Qt::Key_Return);
        QCOMPARE(blatt().textCursor().selectedText(), u"Calcium"_s);
        stellen << blatt().textCursor().selectionStart();
    }
    QVERIFY(stellen[0] < stellen[1] && stellen[1] < stellen[2]);
    QTest::keyClick(&suchfeld(), Qt::Key_Return); // there are three of them
    QCOMPARE(blatt().textCursor().selectionStart(), stellen[0]);

    const auto *vergeblich = m_handbuch->findChild<QLabel *>(u"vergeblich"_s);
    QVERIFY(!vergeblich->isVisible());
    QTest::keyClicks(&suchfeld(), u"xyz"_s);
    QTest::keyClick(&suchfeld(), Qt::Key_Return);
    QVERIFY(vergeblich->isVisible());
    QCOMPARE(blatt().textCursor().selectionStart(), stellen[0]); // it stays where it was
    QTest::keyClick(&suchfeld(), Qt::Key_Backspace);
    QVERIFY(!vergeblich->isVisible());
    QTest::keyClick(&suchfeld(), Qt::Key_Return);
    QVERIFY(vergeblich->isVisible());
    m_handbuch->oeffne(u"plan"_s); // of which it says nothing
    QVERIFY(!vergeblich->isVisible());
    QTest::keyClick(&blatt(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(suchfeld().selectedText(), u"Calciumxy"_s); // another word is typed at once
    suchfeld().deselect();
    QTest::keyClick(&suchfeld(), Qt::Key_F, Qt::ControlModifier); // also from the box itself
    QCOMPARE(suchfeld().selectedText(), u"Calciumxy"_s);
    suchfeld().clear();
    QTest::keyClick(&suchfeld(), Qt::Key_Return);
    QVERIFY(!vergeblich->isVisible()); // nothing was looked for
}

/// Asked for again, it comes in front of the others, even folded away.
void TestHandbuch::itComesToTheFront()
{
    QWidget anderes;
    anderes.show();
    anderes.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&anderes));
    m_handbuch->oeffne(u"plan"_s);
    QVERIFY(QTest::qWaitForWindowActive(m_handbuch.get()));
    m_handbuch->showMinimized();
    QVERIFY(m_handbuch->isMinimized());
    m_handbuch->oeffne(u"plan"_s);
    QVERIFY(!m_handbuch->isMinimized());
}

void TestHandbuch::thePageFollowsTheLanguage()
{
    m_handbuch->oeffne(u"plan"_s);
    m_sprache->sprich(u"en"_s);
    m_handbuch->folgeSprache();
    QCOMPARE(m_handbuch->seite(), u"plan"_s);
    QVERIFY(blatt().toPlainText().startsWith(u"The meal plan"_s));
    QCOMPARE(inhalt().currentItem()->text(), u"The meal plan"_s);
    QCOMPARE(m_handbuch->windowTitle(), u"Handbook"_s);
    QCOMPARE(suchfeld().placeholderText(), u"Find on this page"_s);
    QCOMPARE(m_handbuch->findChildren<QToolButton *>()[0]->text(), u"Back"_s);
    m_sprache->sprich(u"de"_s);
    m_handbuch->folgeSprache();
    QVERIFY(blatt().toPlainText().startsWith(u"Mahlzeitenplan"_s));
    QCOMPARE(m_handbuch->windowTitle(), u"Handbuch"_s);
}

void TestHandbuch::thePageFollowsTheAppearance()
{
    m_handbuch->oeffne(u"evaluation"_s);
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
    QTRY_COMPARE(ersterVerweis().foreground().color(), QColor(0x1a5fb4));
    blatt().verticalScrollBar()->setValue(100);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    QTRY_COMPARE(ersterVerweis().foreground().color(), QColor(0x8ab8ff));
    QVERIFY(blatt().grab().toImage().pixelColor(4, 4).lightness() < 64);
    QCOMPARE(blatt().verticalScrollBar()->value(), 100); // and stays where it is
    zeigeErscheinungsbild(Erscheinungsbild::System);
}

void TestHandbuch::aPictureIsNoWiderThanTheWindow()
{
    m_handbuch->oeffne(u"plan"_s);
    for (const int breite : {700, 560, 900}) {
        m_handbuch->resize(breite, 600);
        QCoreApplication::processEvents();
        const int platz = blatt().viewport()->width();
        QVERIFY(bildgroesse().width() <= platz);
        QVERIFY(bildgroesse().width() >= platz - 40); // as large as there is room
        QCOMPARE(bildgroesse().height(), qRound(bildgroesse().width() * 800 / 1280.0));
        QCOMPARE(blatt().horizontalScrollBar()->maximum(), 0);
    }
    m_handbuch->resize(1800, 600);
    QCoreApplication::processEvents();
    QCOMPARE(bildgroesse(), QSize(1280, 800)); // never larger than it is
}

void TestHandbuch::aTableIsNoWiderThanTheWindow_data()
{
    QTest::addColumn<QString>("seite");
    for (const char *seite : {"body", "evaluation", "food", "keyboard", "printing", "search"}) {
        QTest::newRow(seite) << QString::fromLatin1(seite);
    }
}

void TestHandbuch::aTableIsNoWiderThanTheWindow()
{
    QFETCH(QString, seite);
    m_handbuch->oeffne(seite);
    m_handbuch->resize(680, 500);
    // The end of a long page is laid out when there is time.
    QTRY_COMPARE(blatt().horizontalScrollBar()->maximum(), 0);
    int tabellen = 0;
    for (const QTextFrame *rahmen : blatt().document()->rootFrame()->childFrames()) {
        if (const auto *tabelle = qobject_cast<const QTextTable *>(rahmen)) {
            ++tabellen;
            QVERIFY(tabelle->format().border() > 0);
            QVERIFY(tabelle->format().cellPadding() > 2);
        }
    }
    QVERIFY(tabellen > 0);
}

void TestHandbuch::itFitsASmallScreen()
{
    constexpr QSize klein(1024, 640);
    const QSize kleinste = m_handbuch->minimumSizeHint();
    QVERIFY(kleinste.width() <= klein.width() / 2); // also at twice the scale
    QVERIFY(kleinste.height() <= klein.height() / 2);
    m_handbuch->close();
    const Fensterplatz::Schirmwaechter waechter;
    m_handbuch->oeffne(u"plan"_s);
    QVERIFY(QTest::qWaitForWindowExposed(m_handbuch.get()));
    QVERIFY(m_handbuch->screen()->availableGeometry().contains(m_handbuch->frameGeometry()));
}

void TestHandbuch::aDialogLeavesItReadable()
{
    QDialog frage;
    frage.setModal(true);
    frage.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frage));
    m_handbuch->oeffne(u"printing"_s);
    QTest::keyClick(m_handbuch->windowHandle(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"index"_s);
    QVERIFY(frage.isVisible());
    { // a question over it is no hindrance either, and once it is answered all is as before
        QDialog darueber(&frage);
        darueber.setModal(true);
        darueber.show();
        QVERIFY(QTest::qWaitForWindowExposed(&darueber));
        QTest::keyClick(m_handbuch->windowHandle(), Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(m_handbuch->seite(), u"printing"_s);
        darueber.reject();
    }
    QTRY_COMPARE(m_handbuch->windowHandle()->transientParent(), frage.windowHandle());
    QTest::keyClick(m_handbuch->windowHandle(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_handbuch->seite(), u"index"_s);
    frage.reject();
    QTRY_COMPARE(m_handbuch->windowHandle()->transientParent(), nullptr);
    QVERIFY(m_handbuch->isVisible());
    m_handbuch->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_handbuch.get()));
    QTest::keyClick(m_handbuch->windowHandle(), Qt::Key_Escape);
    QVERIFY(!m_handbuch->isVisible());
}

QTEST_MAIN(TestHandbuch)
#include "TestHandbuch.moc"
