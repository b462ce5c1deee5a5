#include "Probefenster.h"

#include "Schieber.h"
#include "Sicherungsfenster.h"
#include "Sprache.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

using enum Naehrwert;

/// Letters of 8 to 20 points, as the user has set them on the desktop, and a small screen: every
/// window stays within it, and no text, button or field gets less room than it needs.
class TestSchriftgroesse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theMainWindowIsSeenWhole_data();
    void theMainWindowIsSeenWhole();
    void theSheetIsSeenWhole_data();
    void theSheetIsSeenWhole();
    void thePlanIsSeenWhole_data();
    void thePlanIsSeenWhole();
    void theEarlierStatesAreSeenWhole_data();
    void theEarlierStatesAreSeenWhole();

private:
    void oeffne();
    AppController &controller() const { return m_fenster->controller(); }

    const QFont m_vorher = QApplication::font();
    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// What a desktop leaves of a screen of 1366 x 768 for a window, its frame taken off.
constexpr QSize laptop(1358, 732);

const QString langerName = QStringLiteral("Rindfleischsülze (Rindersülze) in Aspik, mager, x");

void groessenUndSprachen()
{
    QTest::addColumn<int>("punkte");
    QTest::addColumn<QString>("sprache");
    for (const int punkte : {8, 10, 13, 16, 20}) {
        for (const char *sprache : {"de", "en"}) {
            QTest::addRow("%d points, %s", punkte, sprache)
                << punkte << QString::fromLatin1(sprache);
        }
    }
}

bool traegtText(const QWidget &feld)
{
    return feld.inherits("QLabel") || feld.inherits("QAbstractButton") ||
           feld.inherits("QComboBox") || feld.inherits("QAbstractSpinBox") ||
           feld.inherits("Schieber") || feld.inherits("Textfeld") || feld.inherits("QTabBar") ||
           feld.inherits("Bedarfsbalken") || feld.inherits("Farblegende") ||
           feld.inherits("Beschriftung");
}

/// The heights at which lines of text stand in a label of this width.
bool zeilenPassen(const QLabel &aufschrift)
{
    return !aufschrift.wordWrap() ||
           aufschrift.height() >= aufschrift.heightForWidth(aufschrift.width());
}

/// A text that is longer than its field can be read in the field's tooltip.
bool textPasst(Textfeld &feld)
{
    if (feld.width() >= feld.fontMetrics().horizontalAdvance(feld.text()) + 4 ||
        !feld.toolTip().isEmpty()) {
        return true;
    }
    QHelpEvent frage(QEvent::ToolTip, QPoint(2, 2), feld.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&feld, &frage);
    return QToolTip::text() == feld.text();
}

bool zeilenPassen(const QTableView &tabelle)
{
    return tabelle.verticalHeader()->defaultSectionSize() >= tabelle.fontMetrics().height();
}

bool passt(QWidget &feld)
{
    const auto *aufschrift = qobject_cast<const QLabel *>(&feld);
    auto *textfeld = qobject_cast<Textfeld *>(&feld);
    // What is shown has room for its text; the sign of a rating is as wide as the sign.
    const bool anzeige = textfeld != nullptr &&
                         (!textfeld->isEditable() || textfeld->muster() == QStringLiteral("+"));
    const QSize mindestens = traegtText(feld) && !anzeige ? feld.minimumSizeHint() : QSize(0, 0);
    const auto *tabelle = qobject_cast<const QTableView *>(&feld);
    return feld.width() >= mindestens.width() && feld.height() >= mindestens.height() &&
           (aufschrift == nullptr || zeilenPassen(*aufschrift)) &&
           (textfeld == nullptr || textPasst(*textfeld)) &&
           (tabelle == nullptr || zeilenPassen(*tabelle));
}

/// The arrows that roll the tabs are the style's.
bool gehoertDenReitern(const QWidget &feld)
{
    return feld.parentWidget()->inherits("QTabBar");
}

/// What of a window has less room than it needs, in words; empty when all is seen whole.
QString geschnittene(const QWidget &fenster)
{
    QCoreApplication::processEvents();
    QStringList ergebnis;
    for (QWidget *feld : fenster.findChildren<QWidget *>()) {
        if (feld->window() == &fenster && feld->isVisible() && !gehoertDenReitern(*feld) &&
            !passt(*feld)) {
            ergebnis << QStringLiteral("%1 %2 (%3 x %4 of %5 x %6)")
                            .arg(QLatin1String(feld->metaObject()->className()), feld->objectName())
                            .arg(feld->width())
                            .arg(feld->height())
                            .arg(feld->minimumSizeHint().width())
                            .arg(feld->minimumSizeHint().height());
        }
    }
    return ergebnis.join(u'\n');
}

/// As large as a small screen lets the window be.
void bringeAufDenLaptop(QWidget &fenster)
{
    fenster.resize(laptop);
    QCoreApplication::processEvents();
    QCOMPARE(fenster.size(), laptop); // nothing in it asks for more
}

} // namespace

void TestSchriftgroesse::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
    m_sprache.reset();
    QApplication::setFont(m_vorher);
}

void TestSchriftgroesse::oeffne()
{
    QFETCH(int, punkte);
    QFETCH(QString, sprache);
    QFont schrift = m_vorher;
    schrift.setPointSize(punkte);
    QApplication::setFont(schrift);
    m_sprache = std::make_unique<Sprache>(sprache);
    m_heim = std::make_unique<Probeheim>();
    Lebensmittelverzeichnis alle = zaehltabelle(40);
    alle.insert(
        langerName,
        lebensmittel(
            langerName,
            {{kal, 1452.5F}, {protein, 10.3F}, {fett, 20}, {kh, 30}, {ca, 1250}, {vitc, 300}}));
    m_heim->schreibeTabelle(alle);
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Eigene Speise"))}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    bringeAufDenLaptop(*controller().Hauptfenster);
}

void TestSchriftgroesse::theMainWindowIsSeenWhole_data()
{
    groessenUndSprachen();
}

void TestSchriftgroesse::theMainWindowIsSeenWhole()
{
    oeffne();
    AppController &c = controller();
    m_fenster->klicke(0, inName);
    for (const QString &ansicht : AppController::ansichten) {
        c.zeigeAnsicht(ansicht);
        const QString zuKlein = geschnittene(*c.Hauptfenster);
        QVERIFY2(zuKlein.isEmpty(), qPrintable(ansicht + u'\n' + zuKlein));
    }
    c.zeigeAnsicht(AppController::ansichten[0]);
    c.profilaufzu->setChecked(true);
    QTest::mouseClick(c.sichernaufzu, Qt::LeftButton);
    const QString zuKlein = geschnittene(*c.Hauptfenster);
    QVERIFY2(zuKlein.isEmpty(), qPrintable(zuKlein));
    QVERIFY(!c.view->verticalScrollBar()->isVisible());
    QVERIFY(c.view->height() >= c.view->document()->size().height());
    QVERIFY(c.suchfeld->width() >= c.suchfeld->minimumSizeHint().width());
}

void TestSchriftgroesse::theSheetIsSeenWhole_data()
{
    groessenUndSprachen();
}

void TestSchriftgroesse::theSheetIsSeenWhole()
{
    oeffne();
    controller().Fenster();
    QDialog &blatt = *controller().einfenster;
    QVERIFY(QTest::qWaitForWindowExposed(&blatt));
    blatt.resize(blatt.size().boundedTo(laptop));
    QVERIFY(blatt.minimumSizeHint().width() <= laptop.width());
    QVERIFY(blatt.minimumSizeHint().height() <= laptop.height());
    const QString zuKlein = geschnittene(blatt);
    QVERIFY2(zuKlein.isEmpty(), qPrintable(zuKlein));
}

void TestSchriftgroesse::thePlanIsSeenWhole_data()
{
    groessenUndSprachen();
}

void TestSchriftgroesse::thePlanIsSeenWhole()
{
    oeffne();
    for (const int zeile : {0, 3, 5}) {
        m_fenster->klicke(zeile, inName);
        controller().toolbarlebensmittelweitergabe();
    }
    QMainWindow &plan = *controller().planmodul->window();
    QVERIFY(QTest::qWaitForWindowExposed(&plan));
    bringeAufDenLaptop(plan);
    const QString zuKlein = geschnittene(plan);
    QVERIFY2(zuKlein.isEmpty(), qPrintable(zuKlein));
}

void TestSchriftgroesse::theEarlierStatesAreSeenWhole_data()
{
    groessenUndSprachen();
}

void TestSchriftgroesse::theEarlierStatesAreSeenWhole()
{
    oeffne();
    m_fenster->oberflaeche().ansage.zeigeFruehereStaende();
    auto *fenster = controller().Hauptfenster->findChild<Sicherungsfenster *>();
    QVERIFY(fenster != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(fenster));
    QVERIFY(fenster->minimumSizeHint().width() <= laptop.width());
    QVERIFY(fenster->minimumSizeHint().height() <= laptop.height());
    const QString zuKlein = geschnittene(*fenster);
    QVERIFY2(zuKlein.isEmpty(), qPrintable(zuKlein));
}

QTEST_MAIN(TestSchriftgroesse)
#include "TestSchriftgroesse.moc"
