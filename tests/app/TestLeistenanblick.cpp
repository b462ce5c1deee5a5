#include "Probefenster.h"

#include <QAction>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QScreen>
#include <QTest>

/// What is seen of the toolbar: whether it is there at all, and the mark that shows where a drop
/// would go.
class TestLeistenanblick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aBarThatWasPutAwayStaysAway();
    void rubbishForTheVisibilityShowsTheBar_data();
    void rubbishForTheVisibilityShowsTheBar();
    void theDropMarkGoesAway_data();
    void theDropMarkGoesAway();

private:
    Werkzeugleiste &leiste() const { return *m_fenster->controller().toolbar; }
    void starteNeu();
    int markenpunkteAufDemSchirm() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

QStringList worte(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

const QString sichtbarSchluessel = QStringLiteral("mainToolbar/sichtbar");

} // namespace

void TestLeistenanblick::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(3));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestLeistenanblick::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestLeistenanblick::starteNeu()
{
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestLeistenanblick::aBarThatWasPutAwayStaysAway()
{
    const QStringList kennungen = worte("neu space plan1");
    leiste().setKennungen(kennungen);
    QVERIFY(leiste().toggleViewAction()->isChecked());
    QVERIFY(!m_heim->einstellungen().contains(sichtbarSchluessel));
    leiste().toggleViewAction()->trigger(); // the menu's entry
    QVERIFY(leiste().isHidden());
    QCOMPARE(m_heim->aufDerPlatte(sichtbarSchluessel).toString(), QStringLiteral("false"));
    for (int start = 0; start < 2; ++start) {
        starteNeu();
        QVERIFY(leiste().isHidden());
        QVERIFY(!leiste().toggleViewAction()->isChecked());
        QCOMPARE(leiste().kennungen(), kennungen);
        leiste().setKennungen(kennungen); // arranging it is no reason to show it
        QVERIFY(leiste().isHidden());
    }
    leiste().toggleViewAction()->trigger();
    QVERIFY(leiste().isVisible());
    QVERIFY(leiste().toggleViewAction()->isChecked());
    starteNeu();
    QVERIFY(leiste().isVisible());
    QVERIFY(leiste().toggleViewAction()->isChecked());
}

void TestLeistenanblick::rubbishForTheVisibilityShowsTheBar_data()
{
    QTest::addColumn<QVariant>("gemerkt");
    QTest::newRow("a word") << QVariant(QStringLiteral("bunt"));
    QTest::newRow("a number") << QVariant(7);
    QTest::newRow("nothing") << QVariant(QString());
    QTest::newRow("a list") << QVariant(worte("0 1"));
}

void TestLeistenanblick::rubbishForTheVisibilityShowsTheBar()
{
    QFETCH(QVariant, gemerkt);
    m_heim->einstellungen().setValue(sichtbarSchluessel, gemerkt);
    starteNeu();
    QVERIFY(leiste().isVisible());
    QVERIFY(leiste().toggleViewAction()->isChecked());
}

/// How much of the mark for a drop stands on the screen, without anything being painted for it.
int TestLeistenanblick::markenpunkteAufDemSchirm() const
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    const QWidget *fenster = m_fenster->controller().Hauptfenster;
    const QRect flaeche(leiste().mapTo(fenster, QPoint()), leiste().size());
    const QImage bild = fenster->screen()
                            ->grabWindow(fenster->winId(), flaeche.x(), flaeche.y(),
                                         flaeche.width(), flaeche.height())
                            .toImage();
    int punkte = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            punkte += bild.pixelColor(x, y) == leiste().palette().color(QPalette::Highlight);
        }
    }
    return punkte;
}

void TestLeistenanblick::theDropMarkGoesAway_data()
{
    QTest::addColumn<QByteArray>("kennung");
    QTest::addColumn<bool>("abgelegt");
    QTest::newRow("an item is dropped") << QByteArray("neu") << true;
    QTest::newRow("an item is dropped where it was") << QByteArray("drucken") << true;
    QTest::newRow("the drag leaves the bar") << QByteArray("neu") << false;
}

void TestLeistenanblick::theDropMarkGoesAway()
{
    QFETCH(QByteArray, kennung);
    QFETCH(bool, abgelegt);
    Werkzeugleiste *bar = m_fenster->controller().toolbar;
    bar->setKennungen(worte("plan1 drucken neu customize"));
    bar->setAnpassbar(true);
    QCOMPARE(markenpunkteAufDemSchirm(), 0);
    QMimeData daten;
    daten.setData(Werkzeugleiste::ziehformat, kennung);
    const QPoint ort = bar->werkzeugfeld(1)->geometry().topLeft() + QPoint(2, 10);
    QDragEnterEvent hinein(ort, Qt::MoveAction, &daten, Qt::LeftButton, {});
    QCoreApplication::sendEvent(bar, &hinein);
    QVERIFY(markenpunkteAufDemSchirm() > 50);
    if (abgelegt) {
        QDropEvent fallen(ort, Qt::MoveAction, &daten, Qt::LeftButton, {});
        QCoreApplication::sendEvent(bar, &fallen);
    } else {
        QDragLeaveEvent hinaus;
        QCoreApplication::sendEvent(bar, &hinaus);
    }
    QCOMPARE(markenpunkteAufDemSchirm(), 0);
}

QTEST_MAIN(TestLeistenanblick)
#include "TestLeistenanblick.moc"
