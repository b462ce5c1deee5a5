#include "Probefenster.h"

#include "Rollbereich.h"
#include "Sprache.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using enum Naehrwert;

/// How the main window looks: words beside signs, bars beside figures, room for every text, and
/// what is remembered of it.
class TestFensterblick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everySignHasItsWord_data();
    void everySignHasItsWord();
    void theWordGoesWithItsField();
    void theWordsFollowTheHand();
    void theBarsFollowTheFigures_data();
    void theBarsFollowTheFigures();
    void theLimitStandsBesideTheVerdict();
    void nothingIsCutOnASmallScreen_data();
    void nothingIsCutOnASmallScreen();
    void nothingRollsOnAnOrdinaryScreen_data();
    void nothingRollsOnAnOrdinaryScreen();
    void roomGoesToTheNames();
    void theArrangementComesBack();
    void aSmallerScreenBreaksNothing();

private:
    AppController &controller() const { return m_fenster->controller(); }
    void groesse(int breite, int hoehe) const;
    /// The four words, those that are hidden as "".
    QStringList worte() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

// What a desktop leaves of a screen for a window, its frame taken off.
constexpr QSize klein(1016, 604);       // of 1024 x 640
constexpr QSize gewoehnlich(1272, 764); // of 1280 x 800
constexpr QSize gross(1912, 1044);      // of 1920 x 1080

/// The longest name that the shipped table may have.
const QString langerName = QStringLiteral("Rindfleischsülze (Rindersülze) in Aspik, mager, x");

} // namespace

void TestFensterblick::init()
{
    m_heim = std::make_unique<Probeheim>();
    Lebensmittelverzeichnis alle = zaehltabelle(40);
    alle.insert(langerName, lebensmittel(langerName));
    alle.insert(QStringLiteral("Speise 0002"),
                lebensmittel(QStringLiteral("Speise 0002"), {},
                             {QStringLiteral("-"), QStringLiteral("sehr gut"), QString(),
                              QStringLiteral("0")}));
    m_heim->schreibeTabelle(alle);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestFensterblick::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestFensterblick::groesse(int breite, int hoehe) const
{
    controller().Hauptfenster->resize(breite, hoehe);
    QCoreApplication::processEvents();
    QCOMPARE(controller().Hauptfenster->size(), QSize(breite, hoehe));
}

QStringList TestFensterblick::worte() const
{
    QCoreApplication::processEvents();
    const AppController &c = controller();
    QStringList alle;
    for (const QLabel *wort :
         {static_cast<QLabel *>(c.uebergewichtwort), static_cast<QLabel *>(c.diabeteswort),
          static_cast<QLabel *>(c.gichtwort), static_cast<QLabel *>(c.hkkwort)}) {
        alle << (wort->isHidden() ? QString() : wort->text());
    }
    return alle;
}

void TestFensterblick::everySignHasItsWord_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QStringList>("worte");
    const QString de = QStringLiteral("de");
    const QString en = QStringLiteral("en");
    const QString ja = QStringLiteral("geeignet");
    const QString nein = QStringLiteral("ungeeignet");
    QTest::newRow("suitable, neutral, unsuitable")
        << 1 << de << QStringList{ja, QStringLiteral("neutral"), nein, ja};
    QTest::newRow("a text of one's own and none at all have no word")
        << 2 << de << QStringList{nein, QString(), QString(), QStringLiteral("neutral")};
    QTest::newRow("in English") << 1 << en
                                << QStringList{
                                       QStringLiteral("suitable"), QStringLiteral("neutral"),
                                       QStringLiteral("unsuitable"), QStringLiteral("suitable")};
}

void TestFensterblick::everySignHasItsWord()
{
    QFETCH(int, zeile);
    QFETCH(QString, sprache);
    const Sprache worte_(sprache);
    m_fenster->klicke(zeile + 1, inName); // the long name stands first
    QTEST(worte(), "worte");
    const AppController &c = controller();
    QCOMPARE(c.uebergewichtwort->palette().color(QPalette::WindowText),
             farbeFuer(c.uebergewichtfeld->textColor(), QGuiApplication::palette()));
    // What is no sign is seen whole, and the sign stays in its field.
    const Textfeld &eigenes = *c.diabetesfeld;
    QVERIFY(eigenes.width() >= eigenes.fontMetrics().horizontalAdvance(eigenes.text()));
    QCOMPARE(c.hkkfeld->stringValue(), zeile == 1 ? QStringLiteral("+") : QStringLiteral("0"));
}

void TestFensterblick::theWordGoesWithItsField()
{
    m_fenster->klicke(2, inName);
    controller().gichtfeld->hide();
    QCOMPARE(worte()[2], QString());
    QVERIFY(!worte()[3].isEmpty());
    controller().gichtfeld->show();
    QCOMPARE(worte()[2], QStringLiteral("ungeeignet"));
}

/// While the save box is open the ratings can be typed over.
void TestFensterblick::theWordsFollowTheHand()
{
    m_fenster->klicke(2, inName);
    QTest::mouseClick(controller().sichernaufzu, Qt::LeftButton);
    controller().uebergewichtfeld->setFocus();
    controller().uebergewichtfeld->selectAll();
    QTest::keyClicks(controller().uebergewichtfeld, QStringLiteral("-"));
    QCOMPARE(worte()[0], QStringLiteral("ungeeignet"));
    QTest::keyClicks(controller().uebergewichtfeld, QStringLiteral("?"));
    QCOMPARE(worte()[0], QString());
    QCOMPARE(controller().uebergewichtfeld->stringValue(), QStringLiteral("-?"));
}

void TestFensterblick::theBarsFollowTheFigures_data()
{
    QTest::addColumn<float>("calcium"); // 10 for each percent
    QTest::addColumn<double>("fuellung");
    QTest::addColumn<QString>("zeichen");
    const QString ja = QStringLiteral("✓");
    const QString nein = QStringLiteral("✗");
    QTest::newRow("nothing") << 0.0F << 0.0 << nein;
    QTest::newRow("below the limit") << 90.0F << 0.09 << nein;
    QTest::newRow("calcium at the limit is green") << 100.0F << 0.1 << ja;
    QTest::newRow("half of a day") << 500.0F << 0.5 << ja;
    QTest::newRow("a day") << 1000.0F << 1.0 << ja;
    QTest::newRow("more than a day is full") << 2500.0F << 1.0 << ja;
    QTest::newRow("below nothing is empty") << -300.0F << 0.0 << nein;
}

void TestFensterblick::theBarsFollowTheFigures()
{
    QFETCH(float, calcium);
    QFETCH(double, fuellung);
    AppController &c = controller();
    c.zeigeAnsicht(QStringLiteral("zwei"));
    const QString name = zaehlname(1);
    c.Dictionary[name] = lebensmittel(name, {{ca, calcium}, {vitc, 30}});
    m_fenster->klicke(2, inName);
    QCOMPARE(c.catagesbedarfbalken->fuellung(), fuellung);
    QTEST(c.catagesbedarfbalken->zeichen(), "zeichen");
    QVERIFY(c.catagesbedarfbalken->farbe() == c.catagesbedarffeld->textColor());
    QCOMPARE(c.vitctagesbedarfbalken->fuellung(), 0.3); // 30 of 100 mg
    QCOMPARE(c.fetagesbedarfbalken->fuellung(), 0.0);

    // As much of the bar is painted in the verdict's colour, all but its mark and its round ends.
    Bedarfsbalken &balken = *c.catagesbedarfbalken;
    const QImage bild = balken.grab().toImage();
    const QColor farbe = farbeFuer(balken.farbe(), QGuiApplication::palette());
    const int zeichenbreite = balken.fontMetrics().horizontalAdvance(QStringLiteral("✗")) + 4;
    int gefaerbt = 0;
    for (int x = zeichenbreite; x < bild.width(); ++x) {
        gefaerbt += bild.pixelColor(x, bild.height() / 2) == farbe ? 1 : 0;
    }
    const int ganz = bild.width() - (balken.sizeHint().width() - 64);
    QVERIFY(qAbs(gefaerbt - ganz * fuellung) <= 6);
}

void TestFensterblick::theLimitStandsBesideTheVerdict()
{
    QCOMPARE(controller().catagesbedarfbalken->grenztext(), QStringLiteral("ab 10 %"));
    const Sprache englisch(QStringLiteral("en"));
    QCOMPARE(controller().vitctagesbedarfbalken->grenztext(), QStringLiteral("from 10 %"));
}

void TestFensterblick::nothingIsCutOnASmallScreen_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("offen");
    for (const char *sprache : {"de", "en"}) {
        for (const char *offen :
             {"nothing", "profile", "save", "notice", "result", "result and profile"}) {
            QTest::addRow("%s, %s open", sprache, offen)
                << QString::fromLatin1(sprache) << QString::fromLatin1(offen);
        }
    }
}

/// Views may roll up and down; nothing else does, and no text or button is narrower than it needs.
void TestFensterblick::nothingIsCutOnASmallScreen()
{
    QFETCH(QString, sprache);
    QFETCH(QString, offen);
    m_fenster.reset();
    const Sprache worte_(sprache);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    AppController &c = controller();
    c.profilaufzu->setChecked(offen.endsWith(QLatin1String("profile")));
    if (offen == QLatin1String("save")) {
        QTest::mouseClick(c.sichernaufzu, Qt::LeftButton);
    } else if (offen == QLatin1String("notice")) {
        c.hinweise->zeige({.kennung = offen, .text = QString(90, u'n')});
    }
    groesse(klein.width(), klein.height());
    if (offen.startsWith(QLatin1String("result"))) {
        c.proteinsuche();
        c.waehleTreffer(-1);
        QVERIFY(c.trefferleiste->isVisible());
        QCoreApplication::processEvents();
        QVERIFY(c.Tabelle->height() >= c.Tabelle->minimumHeight());
        QVERIFY(c.Tabelle->geometry().bottom() < c.trefferleiste->geometry().top());
    }
    const auto *aussen = qobject_cast<QScrollArea *>(c.teiler->parentWidget()->parentWidget());
    QVERIFY(!aussen->horizontalScrollBar()->isVisible());
    QVERIFY(!aussen->verticalScrollBar()->isVisible());
    QVERIFY(!c.Tabelle->horizontalScrollBar()->isVisible()); // all three lists are seen
    QVERIFY(c.suchfeld->width() >=
            c.suchfeld->fontMetrics().horizontalAdvance(c.suchfeld->placeholderText()) + 12);
    QCOMPARE(c.view->verticalScrollBar()->maximum(), 0); // the note on the source is seen whole
    for (int ansicht = 0; ansicht < c.DatenAnsicht->count(); ++ansicht) {
        c.DatenAnsicht->setCurrentIndex(ansicht);
        QCoreApplication::processEvents();
        for (const QWidget *teil : c.teiler->findChildren<QWidget *>()) {
            const bool text = qobject_cast<const QLabel *>(teil) != nullptr ||
                              qobject_cast<const QAbstractButton *>(teil) != nullptr ||
                              qobject_cast<const Bedarfsbalken *>(teil) != nullptr;
            if (text && teil->isVisible()) {
                QVERIFY2(teil->width() >= teil->minimumSizeHint().width(),
                         qPrintable(teil->objectName()));
            }
        }
    }
}

void TestFensterblick::nothingRollsOnAnOrdinaryScreen_data()
{
    QTest::addColumn<int>("ansicht");
    for (int i = 0; i < 5; ++i) {
        QTest::newRow(qPrintable(AppController::ansichten[i])) << i;
    }
}

void TestFensterblick::nothingRollsOnAnOrdinaryScreen()
{
    QFETCH(int, ansicht);
    AppController &c = controller();
    groesse(gewoehnlich.width(), gewoehnlich.height());
    m_fenster->klicke(3, inName);
    c.DatenAnsicht->setCurrentIndex(ansicht);
    QCoreApplication::processEvents();
    const auto *seite = c.DatenAnsicht->currentWidget()->findChild<Rollbereich *>();
    QVERIFY(!seite->verticalScrollBar()->isVisible());
    QVERIFY(c.Tabelle->height() >= 15 * c.Tabelle->rowHeight());
}

void TestFensterblick::roomGoesToTheNames()
{
    const AppController &c = controller();
    groesse(gewoehnlich.width(), gewoehnlich.height());
    const int rechts = c.rechteSeite->width();
    groesse(gross.width(), gross.height());
    QCOMPARE(c.rechteSeite->width(), rechts);
    QVERIFY(c.Tabelle->columnWidth(inName) >=
            c.Tabelle->fontMetrics().horizontalAdvance(langerName));
    QVERIFY(c.Tabelle->columnWidth(inSuch) > 300);
}

void TestFensterblick::theArrangementComesBack()
{
    groesse(gewoehnlich.width(), gewoehnlich.height());
    {
        AppController &c = controller();
        QTest::mouseClick(c.profilaufzu, Qt::LeftButton);
        c.DatenAnsicht->setCurrentIndex(2);
        const QHeaderView *kopf = c.Tabelle->horizontalHeader();
        const QPoint griff(kopf->sectionViewportPosition(inEigen) - 1, kopf->height() / 2);
        QTest::mousePress(kopf->viewport(), Qt::LeftButton, {}, griff);
        QTest::mouseMove(kopf->viewport(), griff - QPoint(40, 0));
        QTest::mouseRelease(kopf->viewport(), Qt::LeftButton, {}, griff - QPoint(40, 0));
        QWidget *linie = c.teiler->handle(1);
        QTest::mousePress(linie, Qt::LeftButton, {}, linie->rect().center());
        QTest::mouseMove(linie, linie->rect().center() - QPoint(30, 0));
        QTest::mouseRelease(linie, Qt::LeftButton, {}, linie->rect().center() - QPoint(30, 0));
    }
    const int name = controller().Tabelle->columnWidth(inName);
    const int rechts = controller().rechteSeite->width();
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    groesse(gewoehnlich.width(), gewoehnlich.height());
    QVERIFY(controller().suchprofileinaus->isVisible());
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("drei"));
    QCOMPARE(controller().Tabelle->columnWidth(inName), name);
    QVERIFY(qAbs(controller().rechteSeite->width() - rechts) <= 4);
    QVERIFY(rechts > 600); // it was moved
}

void TestFensterblick::aSmallerScreenBreaksNothing()
{
    m_fenster.reset();
    Einstellungen &einstellungen = m_heim->einstellungen();
    einstellungen.setValue(QStringLiteral("Hauptfenster/rechteSeite"), 9000);
    einstellungen.setValue(QStringLiteral("Hauptfenster/Spalte_name"), 9000);
    einstellungen.setValue(QStringLiteral("Hauptfenster/Spalte_eigen"), QStringLiteral("breit"));
    einstellungen.setValue(QStringLiteral("Hauptfenster/Ansicht"), QStringLiteral("neun"));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    groesse(klein.width(), klein.height());
    QVERIFY(controller().Tabelle->width() >= 300);
    QVERIFY(controller().Tabelle->columnWidth(inName) <=
            controller().Hauptfenster->screen()->availableGeometry().width() / 2);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("eins"));
}

QTEST_MAIN(TestFensterblick)
#include "TestFensterblick.moc"
