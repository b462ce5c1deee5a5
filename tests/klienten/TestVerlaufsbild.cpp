// The view of a course: what it is given, what it shows, and what it says to those who don't see
// it.

#include "Verlaufsbild.h"
#include "Verlaufsprobe.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLocale>
#include <QTest>
#include <QToolTip>

namespace {

/// Counts how often a widget is painted.
class Malzaehler : public QObject
{
public:
    explicit Malzaehler(QWidget &flaeche) { flaeche.installEventFilter(this); }

    int gemalt = 0;

protected:
    bool eventFilter(QObject *ziel, QEvent *event) override
    {
        gemalt += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(ziel, event);
    }
};

} // namespace

class TestVerlaufsbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void theViewShowsWhatItIsGiven();
    void anotherLanguageIsShownAtOnce();
    void theSourceOfTheBandIsToldAtThePointer();
    void assistiveToolsReadTheCourse();
};

void TestVerlaufsbild::theViewShowsWhatItIsGiven()
{
    Verlaufsbild bild;
    bild.setPalette(palette(false));
    bild.setFont(schrift(gewohnt));
    bild.setAutoFillBackground(true);
    bild.resize(gross);
    const QImage leer = bild.grab().toImage();
    const QList<Besuch> besuche = {am(heute.addDays(-30), 84.0, 1.72), am(heute, 80.0)};
    bild.setze(mann(), besuche, Messgroesse::Gewicht, heute);
    QCOMPARE(bild.daten(), verlaufsdaten(mann(), besuche, Messgroesse::Gewicht, heute));
    QCOMPARE(bild.grab().toImage().convertToFormat(QImage::Format_RGB32),
             bildVon(bild.daten(), gross));
    QVERIFY(bild.grab().toImage() != leer);
    // Enough room for a picture, in letters of every size.
    for (const double punkte : {8.0, gewohnt, 20.0}) {
        bild.setFont(schrift(punkte));
        QVERIFY(worteVon(bild.daten(), bild.minimumSizeHint(), punkte)
                    .contains(QStringLiteral("80,0")));
        QVERIFY(bild.sizeHint().width() > bild.minimumSizeHint().width());
        QVERIFY(bild.sizeHint().height() > bild.minimumSizeHint().height());
    }
}

void TestVerlaufsbild::anotherLanguageIsShownAtOnce()
{
    Verlaufsbild bild;
    bild.resize(gross);
    bild.setze(mann(), {am(heute, 80.5)}, Messgroesse::Gewicht, heute);
    bild.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bild));
    QTest::qWait(0);
    Malzaehler zaehler(bild);
    QTest::qWait(0);
    QCOMPARE(zaehler.gemalt, 0);
    QEvent wechsel(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&bild, &wechsel);
    QTRY_COMPARE(zaehler.gemalt, 1);
}

void TestVerlaufsbild::theSourceOfTheBandIsToldAtThePointer()
{
    Verlaufsbild bild;
    bild.resize(gross);
    bild.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bild));
    const auto zeige = [&bild] {
        QHelpEvent anfrage(QEvent::ToolTip, QPoint(9, 9), bild.mapToGlobal(QPoint(9, 9)));
        QCoreApplication::sendEvent(&bild, &anfrage);
    };
    zeige();
    QVERIFY(!QToolTip::isVisible());
    bild.setze({}, {am(heute, 80.0)}, Messgroesse::Gewicht, heute); // no height, no band
    zeige();
    QVERIFY(!QToolTip::isVisible());
    bild.setze(mann(), {am(heute, 80.0, 1.72)}, Messgroesse::Gewicht, heute);
    zeige();
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(),
             QStringLiteral("Zielbereich nach: ") + zielbandquelle(Messgroesse::Gewicht));
}

void TestVerlaufsbild::assistiveToolsReadTheCourse()
{
    Verlaufsbild bild;
    auto *zugang = QAccessible::queryAccessibleInterface(&bild);
    QVERIFY(zugang != nullptr);
    QCOMPARE(zugang->role(), QAccessible::Graphic);
    QCOMPARE(zugang->text(QAccessible::Description), QStringLiteral("Noch keine Messung."));
    bild.setze(mann(), {am(heute.addDays(-30), 84.0, 2.0), am(heute, 80.0)}, Messgroesse::Gewicht,
               heute);
    QCOMPARE(zugang->text(QAccessible::Name), QStringLiteral("Gewicht"));
    QCOMPARE(zugang->text(QAccessible::Description),
             QStringLiteral("Gewicht: 2 Messungen, zuerst 84,0\u00a0kg am 23.10.26, zuletzt "
                            "80,0\u00a0kg am 22.11.26, 4,0\u00a0kg weniger. Der letzte Wert liegt "
                            "im Zielbereich (74–100\u00a0kg)."));
    bild.setze(mann(), {}, Messgroesse::Taille, heute);
    QCOMPARE(zugang->text(QAccessible::Name), QStringLiteral("Taille"));
    QCOMPARE(zugang->text(QAccessible::Description), QStringLiteral("Noch keine Messung."));
}

QTEST_MAIN(TestVerlaufsbild)
#include "TestVerlaufsbild.moc"
