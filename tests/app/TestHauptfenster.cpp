#include "Probefenster.h"

#include "Auswahlfeld.h"

#include <QAccessible>
#include <QFileInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <algorithm>

using enum Naehrwert;

/// The window itself: its views, its sheet, its end, and whether everybody can use it.
class TestHauptfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theViewsHaveTheirIdentifiers();
    void theViewsGoRound_data();
    void theViewsGoRound();
    void aViewOfAnotherNameStays_data();
    void aViewOfAnotherNameStays();
    void theViewsGoRoundWhileTheyAreHidden();
    void theSheetOpensAndClosesWithResult1();
    void theSheetOpensAgain();
    void closingTheWindowEndsTheProgram();
    void closingTheSheetDoesNot();
    void closingAsksNothingAndWritesNothing();
    void everyControlHasANameForThoseWhoCantSeeIt();
    void theCircleAndTheBarsSayWhatTheyShow();
    void tabGoesDownEachView_data();
    void tabGoesDownEachView();
    void tabReachesWhatCanBeUsed();
    void displaysAreNoStopsOfTheTabKey();
    void hiddenValuesKeepTheirPlaces();
    void theNameHasACaption();

private:
    AppController &controller() const { return m_fenster->controller(); }
    void naechsteAnsicht() const
    {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_T, Qt::ControlModifier);
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QStringList ring = {QStringLiteral("eins"), QStringLiteral("zwei"), QStringLiteral("drei"),
                          QStringLiteral("vier"), QString::fromUtf8("f\xc3\xbcnf")};

QString vorgelesen(QWidget *widget, QAccessible::Text was)
{
    const QAccessibleInterface *schnittstelle = QAccessible::queryAccessibleInterface(widget);
    return schnittstelle != nullptr ? schnittstelle->text(was) : QString();
}

} // namespace

void TestHauptfenster::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestHauptfenster::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestHauptfenster::theViewsHaveTheirIdentifiers()
{
    QCOMPARE(controller().DatenAnsicht->count(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(controller().DatenAnsicht->widget(i)->property("kennung").toString(), ring[i]);
    }
}

void TestHauptfenster::theViewsGoRound_data()
{
    QTest::addColumn<int>("anfang");
    for (int i = 0; i < 5; ++i) {
        QTest::newRow(qPrintable(QStringLiteral("from ") + ring[i])) << i;
    }
}

void TestHauptfenster::theViewsGoRound()
{
    QFETCH(int, anfang);
    controller().DatenAnsicht->setCurrentIndex(anfang);
    for (int i = 1; i <= 5; ++i) {
        naechsteAnsicht();
        QCOMPARE(m_fenster->ansicht(), ring[(anfang + i) % 5]);
    }
}

void TestHauptfenster::aViewOfAnotherNameStays_data()
{
    QTest::addColumn<QVariant>("kennung");
    QTest::newRow("another identifier") << QVariant(QStringLiteral("sechs"));
    QTest::newRow("without the two dots") << QVariant(QStringLiteral("funf"));
    QTest::newRow("case counts") << QVariant(QStringLiteral("Eins"));
    QTest::newRow("none") << QVariant();
}

void TestHauptfenster::aViewOfAnotherNameStays()
{
    QFETCH(QVariant, kennung);
    auto *seite = new QWidget;
    seite->setProperty("kennung", kennung);
    controller().DatenAnsicht->insertTab(1, seite, QStringLiteral("Zugabe"));
    controller().DatenAnsicht->setCurrentWidget(seite);
    naechsteAnsicht();
    QCOMPARE(controller().DatenAnsicht->currentWidget(), seite);
    controller().DatenAnsicht->setCurrentIndex(0);
    naechsteAnsicht(); // the ring goes by names, not by places
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
}

void TestHauptfenster::theViewsGoRoundWhileTheyAreHidden()
{
    controller().DatenAnsicht->hide();
    naechsteAnsicht();
    QVERIFY(controller().DatenAnsicht->isHidden());
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
}

void TestHauptfenster::theSheetOpensAndClosesWithResult1()
{
    QSignalSpy ende(controller().einfenster, &QDialog::finished);
    QTest::keyClick(controller().Hauptfenster, Qt::Key_N, Qt::ControlModifier);
    QVERIFY(controller().einfenster->isVisible());
    QCOMPARE(controller().einfenster->parentWidget(), controller().Hauptfenster);
    QCOMPARE(controller().einfenster->windowModality(), Qt::WindowModal);
    const QStringList vorher = m_fenster->gezeigteWerte();
    QTest::mouseClick(controller().EingabeFensterschliessen, Qt::LeftButton);
    QVERIFY(controller().einfenster->isHidden());
    QCOMPARE(ende.count(), 1);
    QCOMPARE(ende[0][0].toInt(), 1);
    QCOMPARE(m_fenster->gezeigteWerte(), vorher);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestHauptfenster::theSheetOpensAgain()
{
    for (int i = 0; i < 2; ++i) {
        controller().Fenster();
        controller().Fenster(); // it is open already
        QVERIFY(controller().einfenster->isVisible());
        controller().Fensterschliessen();
        QVERIFY(controller().einfenster->isHidden());
    }
}

void TestHauptfenster::closingTheWindowEndsTheProgram()
{
    QSignalSpy ende(&controller(), &AppController::beendet);
    controller().Hauptfenster->close();
    QCOMPARE(ende.count(), 1);
    QVERIFY(!controller().Hauptfenster->isVisible());
}

void TestHauptfenster::closingTheSheetDoesNot()
{
    QSignalSpy ende(&controller(), &AppController::beendet);
    controller().Fenster();
    controller().einfenster->close();
    QCOMPARE(ende.count(), 0);
}

void TestHauptfenster::closingAsksNothingAndWritesNothing()
{
    m_fenster->klicke(3, inName);
    m_heim->einstellungen().sync();
    QFile einstellungen(m_heim->einstellungsdatei());
    QVERIFY(einstellungen.open(QIODevice::ReadOnly));
    const QByteArray vorher = einstellungen.readAll();
    controller().Hauptfenster->close();
    QVERIFY(m_heim->meldungen.isEmpty());
    QVERIFY(!QFileInfo::exists(m_heim->eigeneDatei()));
    m_heim->einstellungen().sync();
    einstellungen.seek(0);
    QCOMPARE(einstellungen.readAll(), vorher);
}

void TestHauptfenster::everyControlHasANameForThoseWhoCantSeeIt()
{
    for (int i = 0; i < controller().DatenAnsicht->count(); ++i) {
        controller().DatenAnsicht->setCurrentIndex(i);
    }
    controller().sichernBox->show();
    controller().Fenster();
    QStringList namenlos;
    for (QWidget *fenster :
         std::initializer_list<QWidget *>{controller().Hauptfenster, controller().einfenster}) {
        for (QWidget *widget : fenster->findChildren<QWidget *>()) {
            const bool bedienbar = dynamic_cast<Wertehalter *>(widget) != nullptr ||
                                   qobject_cast<Tabellenansicht *>(widget) != nullptr ||
                                   qobject_cast<Zeichenansicht *>(widget) != nullptr ||
                                   qobject_cast<QSlider *>(widget) != nullptr ||
                                   qobject_cast<QAbstractSpinBox *>(widget) != nullptr ||
                                   qobject_cast<QAbstractButton *>(widget) != nullptr;
            // Scroll bars, tab scrollers and the buttons in fields are Qt's own affair.
            const bool vonQt = widget->objectName().startsWith(QStringLiteral("qt_")) ||
                               widget->inherits("QTableCornerButton") ||
                               qobject_cast<QTabBar *>(widget->parentWidget()) != nullptr ||
                               qobject_cast<QLineEdit *>(widget->parentWidget()) != nullptr;
            if (bedienbar && !vonQt && vorgelesen(widget, QAccessible::Name).isEmpty()) {
                const QWidget *mutter = widget->parentWidget();
                namenlos << mutter->objectName() + QLatin1Char('/') + widget->objectName() +
                                QLatin1Char(':') + QLatin1String(widget->metaObject()->className());
            }
        }
    }
    QCOMPARE(namenlos.join(QLatin1Char(0x20)), QString());
}

void TestHauptfenster::theCircleAndTheBarsSayWhatTheyShow()
{
    controller().aview->drawaRect(3);
    controller().aview->drawabalken(77);
    QVERIFY(vorgelesen(controller().aview, QAccessible::Description).contains(u"77"));
    controller().nahrview->wert1(12);
    controller().nahrview->wert2(34);
    controller().nahrview->wert3(54);
    QVERIFY(vorgelesen(controller().nahrview, QAccessible::Description).contains(u"34"));
}

void TestHauptfenster::tabGoesDownEachView_data()
{
    QTest::addColumn<int>("ansicht");
    for (int i = 0; i < 5; ++i) {
        QTest::newRow(qPrintable(ring[i])) << i;
    }
}

/// Each stop stands below the last one, or beside it.
void TestHauptfenster::tabGoesDownEachView()
{
    QFETCH(int, ansicht);
    controller().DatenAnsicht->setCurrentIndex(ansicht);
    QCoreApplication::processEvents();
    const QWidget *seite = controller().DatenAnsicht->currentWidget();
    const QWidget *letzter = nullptr;
    QPoint zuletzt;
    for (QWidget *w = controller().DatenAnsicht->nextInFocusChain(); w != controller().DatenAnsicht;
         w = w->nextInFocusChain()) {
        if (!seite->isAncestorOf(w) || !w->isVisible() || !w->isEnabled() ||
            (w->focusPolicy() & Qt::TabFocus) == 0 || w->focusProxy() != nullptr) {
            continue;
        }
        const QPoint ort = w->mapTo(seite, QPoint(0, w->height() / 2));
        if (letzter != nullptr) {
            const bool daneben = std::abs(ort.y() - zuletzt.y()) < w->height();
            QVERIFY2(
                daneben ? ort.x() > zuletzt.x() : ort.y() > zuletzt.y(),
                qPrintable(letzter->objectName() + QStringLiteral(" before ") + w->objectName()));
        }
        letzter = w;
        zuletzt = ort;
    }
    QVERIFY(letzter != nullptr || ansicht >= 3);
}

void TestHauptfenster::tabReachesWhatCanBeUsed()
{
    QSet<QWidget *> erreicht;
    controller().Tabelle->setFocus();
    for (int i = 0; i < 100; ++i) {
        erreicht << QApplication::focusWidget();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget *ziel : std::initializer_list<QWidget *>{
             controller().Tabelle, controller().direkteuebernahme,
             controller().lebensmittelmenge->regler(), controller().sichernaufzu,
             controller().DatenAnsicht->tabBar(), controller().toolbar->werkzeugfeld(6)}) {
        QVERIFY2(erreicht.contains(ziel), qPrintable(ziel->objectName()));
    }
}

/// All but the ratings, which tell the keyboard their reasons.
void TestHauptfenster::displaysAreNoStopsOfTheTabKey()
{
    const auto &urteile = controller().wertungsfelder();
    for (Textfeld *feld : controller().Hauptfenster->findChildren<Textfeld *>()) {
        if (!feld->isEditable()) {
            const bool urteil = std::find(urteile.begin(), urteile.end(), feld) != urteile.end();
            QVERIFY2(((feld->focusPolicy() & Qt::TabFocus) != 0) == urteil,
                     qPrintable(feld->objectName()));
            QVERIFY(feld->isReadOnly());
        }
    }
}

/// While one food after the other is shown, nothing jumps.
void TestHauptfenster::hiddenValuesKeepTheirPlaces()
{
    const AppController &c = controller();
    controller().Dictionary[zaehlname(2)].setvitc(30);
    m_fenster->klicke(2, inName);
    QCoreApplication::processEvents();
    const QRect vitaminC = c.vitcfeld->geometry();
    const QRect ansicht = c.DatenAnsicht->geometry();
    const QRect balken = c.proteinanzeige->geometry();
    m_fenster->tippeMenge(QStringLiteral("0"));
    m_fenster->klicke(0, inName);
    QCoreApplication::processEvents();
    QVERIFY(c.vitcfeld->isHidden() && c.proteinanzeige->isHidden());
    QCOMPARE(c.vitcfeld->geometry(), vitaminC);
    QCOMPARE(c.DatenAnsicht->geometry(), ansicht);
    QCOMPARE(c.proteinanzeige->geometry(), balken);
}

/// Nothing that is done to the food changes what stands beside its name.
void TestHauptfenster::theNameHasACaption()
{
    const QLabel *beschriftung = controller().feldAeinaus;
    const QRect ort = beschriftung->geometry();
    const auto unveraendert = [&] {
        QCoreApplication::processEvents();
        return beschriftung->isVisible() && beschriftung->geometry() == ort &&
               beschriftung->text() == QStringLiteral("Lebensmittel");
    };
    QCOMPARE(beschriftung->buddy(), controller().feldA);
    QVERIFY(unveraendert());
    QVERIFY(ort.right() < controller().feldA->geometry().left());
    m_fenster->klicke(2, inName);
    m_fenster->tippeMenge(QStringLiteral("0"));
    QVERIFY(unveraendert());
    controller().SichernFensterAuf();
    controller().feldA->setStringValue(QString());
    controller().suchen(*controller().suchfeld);
    m_fenster->klickeDaneben();
    QVERIFY(unveraendert());
}

QTEST_MAIN(TestHauptfenster)
#include "TestHauptfenster.moc"
