#include "Erscheinungsbild.h"
#include "Fensterrunde.h"
#include "Fokusstil.h"
#include "Planmodul.h"

#include <QApplication>
#include <QImage>
#include <QTest>

/// Whoever works with the keyboard sees where it is, in every window, in the light and in the dark.
class TestFokus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyControlHasAFrame_data();
    void everyControlHasAFrame();
    void theCellHasAFrame_data();
    void theCellHasAFrame();
    void theFrameIsTwoPixelsOfTheAccent();
};

namespace {

QImage bildVon(QWidget &widget)
{
    QCoreApplication::processEvents(); // fields bring their texts up to date when there is time
    return widget.grab().toImage();
}

int verschiedene(const QImage &eins, const QImage &zwei)
{
    int anzahl = 0;
    for (int y = 0; y < eins.height(); ++y) {
        for (int x = 0; x < eins.width(); ++x) {
            anzahl += eins.pixel(x, y) != zwei.pixel(x, y) ? 1 : 0;
        }
    }
    return anzahl;
}

/// Those that take the keyboard by the Tab key and are seen.
QWidgetList haltestellen(const QWidget &fenster)
{
    QWidgetList alle;
    for (QWidget *widget : fenster.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &fenster &&
            (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            widget->focusProxy() == nullptr) {
            alle << widget;
        }
    }
    return alle;
}

/// A frame of 2 px around a small part of a control at least: a check box has it around its words.
constexpr int kleinsterRahmen = 4 * 2 * 10;

/// The stops of a window that look the same with and without the keyboard.
QStringList unscheinbare(QWidget &fenster)
{
    QStringList ergebnis;
    for (QWidget *widget : haltestellen(fenster)) {
        if (QWidget *bisher = fenster.focusWidget()) {
            bisher->clearFocus();
        }
        const QImage ohne = bildVon(*widget);
        widget->setFocus(Qt::TabFocusReason);
        const QImage mit = bildVon(*widget);
        if (!widget->hasFocus() || ohne.size() != mit.size() ||
            verschiedene(ohne, mit) < kleinsterRahmen) {
            ergebnis << bezeichne(*widget) + QLatin1Char(' ') +
                            QString::number(verschiedene(ohne, mit));
        }
    }
    return ergebnis;
}

void hellUndDunkel()
{
    QTest::addColumn<Erscheinungsbild>("bild");
    QTest::newRow("light") << Erscheinungsbild::Hell;
    QTest::newRow("dark") << Erscheinungsbild::Dunkel;
}

} // namespace

void TestFokus::initTestCase()
{
    QApplication::setStyle(new Fokusstil);
}

void TestFokus::everyControlHasAFrame_data()
{
    hellUndDunkel();
}

void TestFokus::everyControlHasAFrame()
{
    QFETCH(Erscheinungsbild, bild);
    zeigeErscheinungsbild(bild);
    Fensterrunde runde(QStringLiteral("de"));
    QStringList ohneRahmen;
    int geprueft = 0;
    runde.gehe([&](const QString &name, QWidget &fenster) {
        geprueft += static_cast<int>(haltestellen(fenster).size());
        for (const QString &widget : unscheinbare(fenster)) {
            ohneRahmen << name + QLatin1String(": ") + widget;
        }
    });
    QVERIFY(geprueft > 100);
    QVERIFY2(ohneRahmen.isEmpty(), qPrintable(ohneRahmen.join(u'\n')));
}

void TestFokus::theCellHasAFrame_data()
{
    QTest::addColumn<Erscheinungsbild>("bild");
    QTest::addColumn<bool>("plan");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("gewaehlt");
    for (const auto &[name, bild] : {std::pair("light", Erscheinungsbild::Hell),
                                     std::pair("dark", Erscheinungsbild::Dunkel)}) {
        QTest::addRow("%s, a food", name) << bild << false << 0 << false;
        QTest::addRow("%s, the food on display", name) << bild << false << 0 << true;
        QTest::addRow("%s, name in the plan", name) << bild << true << 0 << false;
        QTest::addRow("%s, name in the chosen row", name) << bild << true << 0 << true;
        QTest::addRow("%s, amount", name) << bild << true << 1 << false;
        QTest::addRow("%s, amount in the chosen row", name) << bild << true << 1 << true;
        QTest::addRow("%s, value in the chosen row", name) << bild << true << 3 << true;
    }
}

/// The cell on which the keyboard works looks different while the table has the keyboard.
void TestFokus::theCellHasAFrame()
{
    QFETCH(Erscheinungsbild, bild);
    QFETCH(bool, plan);
    QFETCH(int, spalte);
    QFETCH(bool, gewaehlt);
    zeigeErscheinungsbild(bild);
    Fensterrunde runde(QStringLiteral("de"));
    const AppController &controller = runde.fenster().controller();
    Tabellenansicht &tabelle = plan ? *controller.planmodul->PlanTabelle : *controller.Tabelle;
    tabelle.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(tabelle.window()));
    const QModelIndex zelle = tabelle.model()->index(1, spalte);
    const auto auswahl =
        gewaehlt ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear;
    tabelle.selectionModel()->setCurrentIndex(zelle,
                                              plan ? auswahl | QItemSelectionModel::Rows : auswahl);
    if (gewaehlt && !plan) {
        runde.fenster().klicke(1, spalte);
    }
    tabelle.setFocus();
    const QImage mit = bildVon(*tabelle.window());
    tabelle.clearFocus();
    const QImage ohne = bildVon(*tabelle.window());
    const QRect platz(
        tabelle.viewport()->mapTo(tabelle.window(), tabelle.visualRect(zelle).topLeft()),
        tabelle.visualRect(zelle).size());
    const int umfang = 2 * (platz.width() + platz.height() - 20);
    QVERIFY2(verschiedene(mit.copy(platz), ohne.copy(platz)) >= umfang,
             qPrintable(QString::number(verschiedene(mit.copy(platz), ohne.copy(platz)))));
}

void TestFokus::theFrameIsTwoPixelsOfTheAccent()
{
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
    Fensterrunde runde(QStringLiteral("de"));
    QWidget &feld = *runde.fenster()->suchfeld;
    runde.fenster()->Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(runde.fenster()->Hauptfenster));
    feld.setFocus();
    const QImage bild = bildVon(feld);
    const QColor akzent(0x2f, 0x7d, 0x4f);
    const int mitte = bild.height() / 2;
    for (const int x : {0, 1, bild.width() - 2, bild.width() - 1}) {
        QCOMPARE(bild.pixelColor(x, mitte), akzent);
    }
    QVERIFY(bild.pixelColor(2, mitte) != akzent);
}

QTEST_MAIN(TestFokus)
#include "TestFokus.moc"
