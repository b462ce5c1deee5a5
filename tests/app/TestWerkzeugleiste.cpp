#include "Probefenster.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>

/// The toolbar: its items, and that it stays as its user has arranged it.
class TestWerkzeugleiste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theAllowedItemsHaveTheirOrder();
    void theDefaultItemsHaveTheirOrder();
    void theBarShowsTheItemsInOrder();
    void anItemHasItsLabelsAndPicture_data();
    void anItemHasItsLabelsAndPicture();
    void theLabelsAreTranslated();
    void anItemIsMadeAnew();
    void theSportItemStandsInNeitherListAndDoesNothing();
    void anotherIdentifierIsAnEmptyItem_data();
    void anotherIdentifierIsAnEmptyItem();
    void noItemHasAToolTip();
    void aClickRunsTheAction();
    void anArrangementIsKeptAtOnceAndComesBack_data();
    void anArrangementIsKeptAtOnceAndComesBack();
    void rubbishInTheSettingsIsPassedOver_data();
    void rubbishInTheSettingsIsPassedOver();
    void anItemThatStandsElsewhereMoves_data();
    void anItemThatStandsElsewhereMoves();
    void roomMayStandAsOftenAsWanted();
    void removingAPlaceThatIsNotThereDoesNothing();
    void theDefaultSetComesBack();
    void theStyleIsKept_data();
    void theStyleIsKept();
    void rubbishForAStyleIsPassedOver_data();
    void rubbishForAStyleIsPassedOver();
    void theMenuOfTheBarChangesItsStyle();
    void theMenuOfAnItemTakesItOut();

private:
    Werkzeugleiste &leiste() const { return *m_fenster->controller().toolbar; }
    Werkzeug werkzeug(const QString &kennung) const
    {
        return leiste().quelle().toolbarItem(kennung);
    }
    void starteNeu();
    void waehleImMenue(int stelle, const QString &text) const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

QStringList worte(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

const QStringList standard =
    worte("plan1 space drucken space export space bildschirm space neu space loeschen space "
          "flexibleSpace customize");

const QString kennungenSchluessel = QStringLiteral("mainToolbar/kennungen");
const QString stilSchluessel = QStringLiteral("mainToolbar/stil");

} // namespace

void TestWerkzeugleiste::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestWerkzeugleiste::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestWerkzeugleiste::starteNeu()
{
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestWerkzeugleiste::theAllowedItemsHaveTheirOrder()
{
    QCOMPARE(leiste().quelle().toolbarAllowedItemIdentifiers(),
             worte("plan1 space drucken export bildschirm neu loeschen flexibleSpace customize"));
}

void TestWerkzeugleiste::theDefaultItemsHaveTheirOrder()
{
    QCOMPARE(leiste().quelle().toolbarDefaultItemIdentifiers(), standard);
    QCOMPARE(leiste().kennungen(), standard); // nothing was kept yet
}

void TestWerkzeugleiste::theBarShowsTheItemsInOrder()
{
    int rechts = -1;
    for (int i = 0; i < standard.size(); ++i) {
        const QWidget *feld = leiste().werkzeugfeld(i);
        QVERIFY(feld->isVisible());
        QVERIFY(feld->geometry().left() > rechts);
        rechts = feld->geometry().right();
        const auto *knopf = qobject_cast<const QToolButton *>(feld);
        QCOMPARE(knopf != nullptr, !standard[i].contains(QStringLiteral("pace")));
        if (knopf != nullptr) {
            QCOMPARE(knopf->text(), werkzeug(standard[i]).beschriftung);
            QVERIFY(!knopf->icon().isNull());
        }
    }
    // Flexible room pushes what comes after it to the far end.
    QVERIFY(leiste().werkzeugfeld(12)->width() > leiste().werkzeugfeld(1)->width() * 2);
    QVERIFY(leiste().width() - rechts < 20);
}

void TestWerkzeugleiste::anItemHasItsLabelsAndPicture_data()
{
    QTest::addColumn<QString>("beschriftung");
    QTest::addColumn<QString>("palettenbeschriftung");
    QTest::addColumn<QString>("bild");
    const auto zeile = [](const char *kennung, const char *text, const char *palette,
                          const char *bild) {
        QTest::newRow(kennung) << QString::fromLatin1(text) << QString::fromLatin1(palette)
                               << QString::fromLatin1(bild);
    };
    zeile("plan1", "Planmodul", "Planmodul", "Planmodul");
    zeile("drucken", "Drucken", "Drucken", "Drucken");
    zeile("export", "LM anPlanmodul", "Lebensmittel an Planmodul", "LM an Planmodul");
    zeile("customize", "Anpassen", "Toolbar anpassen", "Anpassen");
    zeile("bildschirm", "Ansicht", "Ansicht", "Ansicht2");
    zeile("sport", "Sport", "Sport", "SportIcon");
    zeile("neu", "Neues LM", "Neues LM", "Neues LM");
    zeile("loeschen", "LM loeschen", "LM loeschen", "Papierkorb");
}

void TestWerkzeugleiste::anItemHasItsLabelsAndPicture()
{
    QFETCH(QString, bild);
    const QString kennung = QString::fromLatin1(QTest::currentDataTag());
    const Werkzeug eines = werkzeug(kennung);
    QCOMPARE(eines.kennung, kennung);
    QTEST(eines.beschriftung, "beschriftung");
    QTEST(eines.palettenbeschriftung, "palettenbeschriftung");
    const QImage gemalt = eines.bild.pixmap(32).toImage();
    QVERIFY(!gemalt.isNull());
    QCOMPARE(gemalt, QIcon(QStringLiteral(":/bilder/%1.svg").arg(bild)).pixmap(32).toImage());
}

void TestWerkzeugleiste::theLabelsAreTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("LM anPlanmodul"), QStringLiteral("To plan")},
         {QStringLiteral("Lebensmittel an Planmodul"), QStringLiteral("Food to plan")}});
    QCOMPARE(werkzeug(QStringLiteral("export")).beschriftung, QStringLiteral("To plan"));
    QCOMPARE(werkzeug(QStringLiteral("export")).palettenbeschriftung,
             QStringLiteral("Food to plan"));
    QCOMPARE(werkzeug(QStringLiteral("neu")).beschriftung, QStringLiteral("Neues LM"));
}

void TestWerkzeugleiste::anItemIsMadeAnew()
{
    Werkzeug eines = werkzeug(QStringLiteral("neu"));
    eines.beschriftung = QStringLiteral("verstellt");
    eines.aktion = {};
    QCOMPARE(werkzeug(QStringLiteral("neu")).beschriftung, QStringLiteral("Neues LM"));
    QVERIFY(werkzeug(QStringLiteral("neu")).aktion);
}

void TestWerkzeugleiste::theSportItemStandsInNeitherListAndDoesNothing()
{
    const QString sport = QStringLiteral("sport");
    QVERIFY(!werkzeug(sport).aktion);
    QVERIFY(!leiste().quelle().toolbarAllowedItemIdentifiers().contains(sport));
    QVERIFY(!leiste().quelle().toolbarDefaultItemIdentifiers().contains(sport));
    leiste().einfuegen(sport, 0);
    QCOMPARE(leiste().kennungen(), standard);
}

void TestWerkzeugleiste::anotherIdentifierIsAnEmptyItem_data()
{
    QTest::addColumn<QString>("kennung");
    QTest::newRow("unknown") << QStringLiteral("plan2");
    QTest::newRow("case counts") << QStringLiteral("Plan1");
    QTest::newRow("none") << QString();
    QTest::newRow("room") << Werkzeugleiste::space;
}

void TestWerkzeugleiste::anotherIdentifierIsAnEmptyItem()
{
    QFETCH(QString, kennung);
    const Werkzeug eines = werkzeug(kennung);
    QCOMPARE(eines.kennung, kennung);
    QCOMPARE(eines.beschriftung, QString());
    QCOMPARE(eines.palettenbeschriftung, QString());
    QVERIFY(eines.bild.isNull());
    QVERIFY(!eines.aktion);
}

void TestWerkzeugleiste::noItemHasAToolTip()
{
    for (int i = 0; i < leiste().kennungen().size(); ++i) {
        QCOMPARE(leiste().werkzeugfeld(i)->toolTip(), QString());
    }
    for (const QAction *aktion : leiste().actions()) {
        QCOMPARE(aktion->toolTip(), QString());
    }
}

void TestWerkzeugleiste::aClickRunsTheAction()
{
    QTest::mouseClick(leiste().werkzeugfeld(6), Qt::LeftButton);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("zwei"));
    QTest::keyClick(leiste().werkzeugfeld(6), Qt::Key_Space);
    QCOMPARE(m_fenster->ansicht(), QStringLiteral("drei"));
}

void TestWerkzeugleiste::anArrangementIsKeptAtOnceAndComesBack_data()
{
    QTest::addColumn<QStringList>("kennungen");
    QTest::newRow("a few items") << worte("customize neu plan1");
    QTest::newRow("one item") << worte("neu");
    QTest::newRow("room twice") << worte("space flexibleSpace neu flexibleSpace space");
    QTest::newRow("an empty bar") << QStringList();
}

void TestWerkzeugleiste::anArrangementIsKeptAtOnceAndComesBack()
{
    QFETCH(QStringList, kennungen);
    leiste().setKennungen(kennungen);
    QCOMPARE(leiste().kennungen(), kennungen);
    QCOMPARE(m_heim->aufDerPlatte(kennungenSchluessel).toStringList(), kennungen);
    starteNeu();
    QCOMPARE(leiste().kennungen(), kennungen);
}

void TestWerkzeugleiste::rubbishInTheSettingsIsPassedOver_data()
{
    QTest::addColumn<QVariant>("gemerkt");
    QTest::addColumn<QStringList>("kennungen");
    QTest::newRow("unknown items among known ones")
        << QVariant(worte("neu plan9 space loeschen")) << worte("neu space loeschen");
    QTest::newRow("an item twice") << QVariant(worte("neu plan1 neu")) << worte("neu plan1");
    QTest::newRow("the sport item") << QVariant(worte("sport neu")) << worte("neu");
    QTest::newRow("an empty identifier")
        << QVariant(QStringList{QString(), QStringLiteral("neu")}) << worte("neu");
    QTest::newRow("one text") << QVariant(QStringLiteral("neu")) << worte("neu");
    QTest::newRow("nothing known") << QVariant(worte("foo bar")) << standard;
    QTest::newRow("a number") << QVariant(42) << standard;
}

void TestWerkzeugleiste::rubbishInTheSettingsIsPassedOver()
{
    QFETCH(QVariant, gemerkt);
    m_heim->einstellungen().setValue(kennungenSchluessel, gemerkt);
    starteNeu();
    QTEST(leiste().kennungen(), "kennungen");
}

void TestWerkzeugleiste::anItemThatStandsElsewhereMoves_data()
{
    QTest::addColumn<QString>("kennung");
    QTest::addColumn<int>("stelle");
    QTest::addColumn<QStringList>("danach");
    QTest::newRow("to the front") << QStringLiteral("export") << 0
                                  << worte("export plan1 drucken neu");
    QTest::newRow("to the end") << QStringLiteral("drucken") << 4
                                << worte("plan1 export neu drucken");
    QTest::newRow("one to the right")
        << QStringLiteral("drucken") << 3 << worte("plan1 export drucken neu");
    QTest::newRow("in front of itself")
        << QStringLiteral("drucken") << 1 << worte("plan1 drucken export neu");
    QTest::newRow("behind itself")
        << QStringLiteral("drucken") << 2 << worte("plan1 drucken export neu");
    QTest::newRow("a new one") << QStringLiteral("loeschen") << 2
                               << worte("plan1 drucken loeschen export neu");
    QTest::newRow("a new one beyond the end")
        << QStringLiteral("loeschen") << 99 << worte("plan1 drucken export neu loeschen");
    QTest::newRow("before the front")
        << QStringLiteral("neu") << -5 << worte("neu plan1 drucken export");
}

void TestWerkzeugleiste::anItemThatStandsElsewhereMoves()
{
    QFETCH(QString, kennung);
    QFETCH(int, stelle);
    leiste().setKennungen(worte("plan1 drucken export neu"));
    leiste().einfuegen(kennung, stelle);
    QTEST(leiste().kennungen(), "danach");
    QCOMPARE(m_heim->aufDerPlatte(kennungenSchluessel).toStringList(), leiste().kennungen());
}

void TestWerkzeugleiste::roomMayStandAsOftenAsWanted()
{
    leiste().setKennungen(worte("plan1 neu"));
    leiste().einfuegen(Werkzeugleiste::space, 1);
    leiste().einfuegen(Werkzeugleiste::space, 1);
    leiste().einfuegen(Werkzeugleiste::flexibleSpace, 0);
    leiste().einfuegen(Werkzeugleiste::flexibleSpace, 5);
    QCOMPARE(leiste().kennungen(), worte("flexibleSpace plan1 space space neu flexibleSpace"));
}

void TestWerkzeugleiste::removingAPlaceThatIsNotThereDoesNothing()
{
    leiste().setKennungen(worte("plan1 neu"));
    leiste().entfernen(2);
    leiste().entfernen(-1);
    QCOMPARE(leiste().kennungen(), worte("plan1 neu"));
    leiste().entfernen(0);
    QCOMPARE(leiste().kennungen(), worte("neu"));
    QCOMPARE(leiste().werkzeugfeld(1), nullptr);
}

void TestWerkzeugleiste::theDefaultSetComesBack()
{
    leiste().setKennungen({});
    leiste().standardHerstellen();
    QCOMPARE(leiste().kennungen(), standard);
    QCOMPARE(m_heim->aufDerPlatte(kennungenSchluessel).toStringList(), standard);
}

void TestWerkzeugleiste::theStyleIsKept_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("stil");
    QTest::newRow("pictures") << Qt::ToolButtonIconOnly;
    QTest::newRow("text") << Qt::ToolButtonTextOnly;
    QTest::newRow("both") << Qt::ToolButtonTextUnderIcon;
}

void TestWerkzeugleiste::theStyleIsKept()
{
    QFETCH(Qt::ToolButtonStyle, stil);
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonTextUnderIcon); // at first
    leiste().setDarstellung(stil);
    QCOMPARE(m_heim->aufDerPlatte(stilSchluessel).toInt(), static_cast<int>(stil));
    starteNeu();
    QCOMPARE(leiste().toolButtonStyle(), stil);
    QCOMPARE(qobject_cast<QToolButton *>(leiste().werkzeugfeld(0))->toolButtonStyle(), stil);
    QCOMPARE(leiste().kennungen(), standard);
}

void TestWerkzeugleiste::rubbishForAStyleIsPassedOver_data()
{
    QTest::addColumn<QVariant>("gemerkt");
    QTest::newRow("a word") << QVariant(QStringLiteral("bunt"));
    QTest::newRow("beyond all styles") << QVariant(99);
    QTest::newRow("negative") << QVariant(-1);
    QTest::newRow("a style that can't be chosen") << QVariant(4);
    QTest::newRow("a list") << QVariant(worte("0 1"));
}

void TestWerkzeugleiste::rubbishForAStyleIsPassedOver()
{
    QFETCH(QVariant, gemerkt);
    m_heim->einstellungen().setValue(stilSchluessel, gemerkt);
    starteNeu();
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

/// Opens the context menu over the item at this place and chooses the entry.
void TestWerkzeugleiste::waehleImMenue(int stelle, const QString &text) const
{
    bool gewaehlt = false;
    QTimer::singleShot(0, m_fenster->controller().toolbar, [&] {
        auto *menue = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        for (QAction *aktion : menue->actions()) {
            if (aktion->text() == text) {
                gewaehlt = true;
                menue->setActiveAction(aktion);
                QTest::keyClick(menue, Qt::Key_Return);
            }
        }
        menue->close();
    });
    const QPoint ort = leiste().werkzeugfeld(stelle)->geometry().center();
    QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, leiste().mapToGlobal(ort));
    QCoreApplication::sendEvent(m_fenster->controller().toolbar, &ereignis);
    QVERIFY(gewaehlt);
}

void TestWerkzeugleiste::theMenuOfTheBarChangesItsStyle()
{
    waehleImMenue(0, QStringLiteral("Nur Text"));
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonTextOnly);
    QCOMPARE(m_heim->aufDerPlatte(stilSchluessel).toInt(),
             static_cast<int>(Qt::ToolButtonTextOnly));
    waehleImMenue(0, QStringLiteral("Symbol und Text"));
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

void TestWerkzeugleiste::theMenuOfAnItemTakesItOut()
{
    waehleImMenue(2, QStringLiteral("Aus der Leiste entfernen"));
    QCOMPARE(leiste().kennungen().size(), standard.size() - 1);
    QVERIFY(!leiste().kennungen().contains(QStringLiteral("drucken")));
    waehleImMenue(0, QStringLiteral("Leiste anpassen …"));
    QVERIFY(leiste().istAnpassbar());
}

QTEST_MAIN(TestWerkzeugleiste)
#include "TestWerkzeugleiste.moc"
