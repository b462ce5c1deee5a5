// The view of a course: what it is given, what it shows, and what it says to those who don't see
// it.

#include "Verlaufsbild.h"
#include "Verlaufsprobe.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLocale>
#include <QTest>
#include <QToolTip>
#include <QTranslator>

namespace {

/// Knows one word.
class Woerterbuch : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char * /*kontext*/, const char *text, const char * /*unterscheidung*/,
                      int /*anzahl*/) const override
    {
        return qstrcmp(text, "Gewicht") == 0 ? QStringLiteral("Weight") : QString();
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
    // Into a picture it draws itself as in its window.
    bild.setFont(schrift(2 * gewohnt));
    QImage gemalt(gross, QImage::Format_RGB32);
    gemalt.fill(Qt::white);
    QPainter maler(&gemalt);
    maler.setFont(schrift(gewohnt));
    bild.zeichnen(maler, QRectF(QPointF(), gross));
    QCOMPARE(maler.font(), schrift(gewohnt));
    maler.end();
    QCOMPARE(gemalt, bildVon(bild.daten(), gross, palette(false), 2 * gewohnt));
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
    bild.setze(mann(), {am(heute, 80.5)}, Messgroesse::Gewicht, heute);
    QVERIFY(bild.beschreibung().startsWith(QStringLiteral("Gewicht: ")));
    QVERIFY(worteVon(bild.daten(), gross).contains(QStringLiteral("Gewicht, kg")));
    Woerterbuch englisch;
    QCoreApplication::installTranslator(&englisch);
    QVERIFY(bild.beschreibung().startsWith(QStringLiteral("Weight: ")));
    QVERIFY(worteVon(bild.daten(), gross).contains(QStringLiteral("Weight, kg")));
    QCoreApplication::removeTranslator(&englisch);
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
