#include "Fensterrunde.h"

#include "Anpassungspalette.h"

#include <QApplication>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <algorithm>

/// The way of the Tab key through the windows, and the toolbar's palette without the mouse.
class TestTabfolge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyGoesFromTheTopLeftToTheBottomRight_data();
    void theTabKeyGoesFromTheTopLeftToTheBottomRight();
    void theToolbarIsArrangedWithKeysAlone();
    void anEmptyBarIsFilledWithKeysAlone();
    void whileCustomisingNoKeyRunsAnItem();
};

namespace {

/// What can be used, and what of it the Tab key has to reach: of choices that exclude each other,
/// the chosen one.
QSet<QWidget *> nutzbare(const QWidget &fenster)
{
    QSet<QWidget *> alle;
    for (QWidget *widget : fenster.findChildren<QWidget *>()) {
        const auto *knopf = qobject_cast<QAbstractButton *>(widget);
        const bool inGruppe = knopf != nullptr && knopf->autoExclusive() && !knopf->isChecked();
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &fenster &&
            widget->focusPolicy() != Qt::NoFocus && widget->focusPolicy() != Qt::ClickFocus &&
            widget->focusProxy() == nullptr && !inGruppe && !istVonQt(*widget)) {
            alle << widget;
        }
        if (knopf != nullptr && widget->isVisible() && widget->isEnabled() &&
            widget->window() == &fenster && !inGruppe && !istVonQt(*widget)) {
            alle << widget; // a button without a place for the keyboard is none for everybody
        }
    }
    return alle;
}

QRect platz(const QWidget &widget)
{
    return QRect(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
}

/// Where the Tab key begins: at the top left. That may be the bar with the tabs.
QWidget *anfangIn(const QWidget &fenster, const QSet<QWidget *> &nutzbare)
{
    QWidgetList alle(nutzbare.begin(), nutzbare.end());
    for (QTabBar *reiter : fenster.findChildren<QTabBar *>()) {
        if (reiter->isVisible() && reiter->window() == &fenster) {
            alle << reiter;
        }
    }
    return *std::min_element(alle.begin(), alle.end(), [](auto *a, auto *b) {
        const QPoint ortA = platz(*a).topLeft();
        const QPoint ortB = platz(*b).topLeft();
        return std::pair(ortA.y(), ortA.x()) < std::pair(ortB.y(), ortB.x());
    });
}

/// The stops of the Tab key, from this one on until it comes round; those that nobody sees at that
/// moment are kept too: a page that rolls may show them later.
QWidgetList gegangene(QWidget *anfang, QWidgetList &ungesehene)
{
    anfang->setFocus(Qt::TabFocusReason);
    QWidgetList weg;
    while (QApplication::focusWidget() != nullptr && !weg.contains(QApplication::focusWidget()) &&
           weg.size() < 300) {
        QWidget *hier = QApplication::focusWidget();
        weg << hier;
        if (!hier->isVisible() || hier->visibleRegion().isEmpty()) {
            ungesehene << hier;
        }
        // A date is a stop for each of its parts.
        constexpr int teileEinesDatums = 3;
        for (int teil = 0; teil < teileEinesDatums && QApplication::focusWidget() == hier; ++teil) {
            QTest::keyClick(hier, Qt::Key_Tab);
        }
    }
    return weg;
}

/// The nearest thing around both, also where one lies in the other: within it one of them comes
/// first.
const QWidget *gemeinsame(const QWidget &eins, const QWidget &zwei)
{
    const QWidget *mutter = eins.parentWidget();
    while (mutter != nullptr && (mutter == &zwei || !mutter->isAncestorOf(&zwei))) {
        mutter = mutter->parentWidget();
    }
    return mutter;
}

const QWidget *teilVon(const QWidget *mutter, const QWidget *widget)
{
    while (widget->parentWidget() != mutter) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// Whether the second stop lies behind the first: the parts of the window in which they lie stand
/// beside one another, or the second below the first.
bool liegtDahinter(const QWidget &eins, const QWidget &zwei)
{
    const QWidget *mutter = gemeinsame(eins, zwei);
    const QRect a = platz(*teilVon(mutter, &eins));
    const QRect b = platz(*teilVon(mutter, &zwei));
    return b.left() >= a.right() || b.top() >= a.bottom() ||
           (b.top() >= a.top() && b.left() >= a.left());
}

} // namespace

void TestTabfolge::theTabKeyGoesFromTheTopLeftToTheBottomRight_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::newRow("German") << QStringLiteral("de");
    QTest::newRow("English") << QStringLiteral("en");
}

void TestTabfolge::theTabKeyGoesFromTheTopLeftToTheBottomRight()
{
    QFETCH(QString, sprache);
    Fensterrunde runde(sprache);
    QStringList falsch;
    runde.gehe([&](const QString &name, const QWidget &fenster) {
        QSet<QWidget *> offen = nutzbare(fenster);
        QVERIFY(!offen.isEmpty());
        QWidgetList ungesehene;
        const QWidgetList weg = gegangene(anfangIn(fenster, offen), ungesehene);
        for (const QWidget *widget : std::as_const(ungesehene)) {
            if (!widget->isVisible() || widget->visibleRegion().isEmpty()) {
                falsch << name + QLatin1String(", unseen: ") + bezeichne(*widget);
            }
        }
        for (qsizetype i = 0; i < weg.size(); ++i) {
            offen.remove(weg[i]);
            if (i > 0 && !liegtDahinter(*weg[i - 1], *weg[i])) {
                falsch << name + QLatin1String(": ") + bezeichne(*weg[i - 1]) +
                              QLatin1String(" before ") + bezeichne(*weg[i]);
            }
        }
        for (const QWidget *widget : std::as_const(offen)) {
            falsch << name + QLatin1String(", not reached: ") + bezeichne(*widget);
        }
    });
    QVERIFY2(falsch.isEmpty(), qPrintable(falsch.join(u'\n')));
}

namespace {

/// A key, pressed where the keyboard is.
void druecke(Qt::Key taste, Qt::KeyboardModifiers dazu = {})
{
    QCoreApplication::processEvents();
    QTest::keyClick(QApplication::focusWidget(), taste, dazu);
    QCoreApplication::processEvents();
}

/// Opens the palette from the menu and goes to the tile of this item, with the Tab key alone.
void geheZurKachel(const AppController &controller, const QString &kennung)
{
    auto *palette = controller.Hauptfenster->findChild<Anpassungspalette *>();
    QVERIFY(palette != nullptr);
    palette->activateWindow(); // there is no desktop that does it
    QTRY_VERIFY(palette->isActiveWindow());
    for (int i = 0; i < 30; ++i) {
        if (QApplication::focusWidget() != nullptr &&
            QApplication::focusWidget()->objectName() == QLatin1String("kachel ") + kennung) {
            return;
        }
        QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                               : QApplication::activeWindow(),
                        Qt::Key_Tab);
    }
    QFAIL(
        qPrintable(QStringLiteral("no such tile, but ") +
                   (QApplication::focusWidget() != nullptr ? bezeichne(*QApplication::focusWidget())
                                                           : QStringLiteral("nothing"))));
}

} // namespace

/// Adding, moving and removing, room too.
void TestTabfolge::theToolbarIsArrangedWithKeysAlone()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(3));
    const Probefenster fenster(heim);
    Werkzeugleiste &leiste = *fenster->toolbar;
    leiste.setKennungen({QStringLiteral("plan1"), Werkzeugleiste::space, QStringLiteral("neu")});
    fenster->Leisteanpassen();
    geheZurKachel(fenster.controller(), QStringLiteral("export"));
    druecke(Qt::Key_Return);
    QCOMPARE(leiste.kennungen(), (QStringList{QStringLiteral("plan1"), Werkzeugleiste::space,
                                              QStringLiteral("neu"), QStringLiteral("export")}));
    druecke(Qt::Key_F6);
    QTRY_COMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(0));
    druecke(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(1)); // the room
    druecke(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(leiste.kennungen(), (QStringList{QStringLiteral("plan1"), QStringLiteral("neu"),
                                              Werkzeugleiste::space, QStringLiteral("export")}));
    QCOMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(2));
    druecke(Qt::Key_Delete);
    QCOMPARE(leiste.kennungen(), (QStringList{QStringLiteral("plan1"), QStringLiteral("neu"),
                                              QStringLiteral("export")}));
    QCOMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(2));
    for (int i = 0; i < 3; ++i) { // no further than the beginning
        druecke(Qt::Key_Left, Qt::AltModifier);
    }
    QCOMPARE(leiste.kennungen(), (QStringList{QStringLiteral("export"), QStringLiteral("plan1"),
                                              QStringLiteral("neu")}));
    druecke(Qt::Key_F6);
    QTRY_VERIFY(qobject_cast<Anpassungspalette *>(QApplication::activeWindow()) != nullptr);
    druecke(Qt::Key_Escape);
    QVERIFY(!leiste.istAnpassbar());
}

void TestTabfolge::anEmptyBarIsFilledWithKeysAlone()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(3));
    const Probefenster fenster(heim);
    Werkzeugleiste &leiste = *fenster->toolbar;
    leiste.setKennungen({QStringLiteral("neu")});
    fenster->Leisteanpassen();
    geheZurKachel(fenster.controller(), QStringLiteral("plan1"));
    druecke(Qt::Key_F6);
    QTRY_COMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(0));
    druecke(Qt::Key_Delete);
    QVERIFY(leiste.kennungen().isEmpty());
    QTest::keyClick(fenster->Hauptfenster, Qt::Key_F6);
    geheZurKachel(fenster.controller(), QStringLiteral("plan1"));
    druecke(Qt::Key_Return);
    QCOMPARE(leiste.kennungen(), QStringList{QStringLiteral("plan1")});
}

void TestTabfolge::whileCustomisingNoKeyRunsAnItem()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(3));
    const Probefenster fenster(heim);
    Werkzeugleiste &leiste = *fenster->toolbar;
    fenster->Leisteanpassen();
    geheZurKachel(fenster.controller(), QStringLiteral("plan1"));
    druecke(Qt::Key_F6);
    QTRY_COMPARE(QApplication::focusWidget(), leiste.werkzeugfeld(0)); // opens the plan
    druecke(Qt::Key_Space);
    druecke(Qt::Key_Return);
    QVERIFY(fenster->planmodul == nullptr);
}

QTEST_MAIN(TestTabfolge)
#include "TestTabfolge.moc"
