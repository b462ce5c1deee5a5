#include "CustomProgressIndicator.h"
#include "FaceView.h"
#include "GewichtsverlaufView.h"
#include "NahrstoffraumView.h"
#include "WertungView.h"

#include <QAccessible>
#include <QPainter>
#include <QPalette>
#include <QTest>

#include <memory>

/// What the five views have in common.
class TestZeichenansicht : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aViewCanBeMadeByAForm_data();
    void aViewCanBeMadeByAForm();
    void theParentShowsWhereNothingIsDrawn_data();
    void theParentShowsWhereNothingIsDrawn();
    void aDarkWindowHasALightCardUnderPureColours_data();
    void aDarkWindowHasALightCardUnderPureColours();
    void captionsOnAViewStandBelowItsCard();
    void anEmptyViewHasNoCard_data();
    void anEmptyViewHasNoCard();
    void theWindowShowsWhatIsDrawn();
    void thePainterComesBackAsItWas_data();
    void thePainterComesBackAsItWas();
    void aThousandChangesAreOneRepaint();
    void circlesAreRepaintedForTheLastShareOnly();
    void chartIsRepaintedForIntakeAndHeightOnly();
    void assistiveToolsReadTheDescription_data();
    void assistiveToolsReadTheDescription();
};

namespace {

using Ansicht = std::shared_ptr<Zeichenansicht>;

/// A view that counts how often it was painted.
template <typename View>
class Gezaehlt : public View
{
public:
    int gemalt = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++gemalt;
        View::paintEvent(event);
    }
};

/// Shows the view and waits until no repaint is left over from that.
void zeige(QWidget &view)
{
    view.resize(view.sizeHint());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::qWait(0);
}

Ansicht gefuellterBalken()
{
    auto view = std::make_shared<WertungView>();
    view->drawabalken(80);
    return view;
}

Ansicht gefuellteAnzeige()
{
    auto view = std::make_shared<CustomProgressIndicator>();
    view->setDoubleValue(80);
    return view;
}

Ansicht gesicht()
{
    QImage bild(16, 16, QImage::Format_ARGB32);
    bild.fill(Qt::transparent);
    auto view = std::make_shared<FaceView>();
    view->setImage(bild);
    view->entscheidung(1);
    return view;
}

void alleAnsichten()
{
    QTest::addColumn<Ansicht>("ansicht");
    QTest::newRow("WertungView") << gefuellterBalken();
    QTest::newRow("CustomProgressIndicator") << gefuellteAnzeige();
    QTest::newRow("FaceView") << gesicht();
    QTest::newRow("NahrstoffraumView") << Ansicht(std::make_shared<NahrstoffraumView>());
    QTest::newRow("GewichtsverlaufView") << Ansicht(std::make_shared<GewichtsverlaufView>());
}

const QColor hell(212, 234, 200);
const QColor dunkel(12, 34, 56);

/// A window of this colour in which the view lies at (10, 10), 340 points wide and 260 high.
QImage imFenster(Zeichenansicht &ansicht, const QColor &farbe)
{
    QWidget fenster;
    QPalette palette = fenster.palette();
    palette.setColor(QPalette::Window, farbe);
    fenster.setPalette(palette);
    fenster.setAutoFillBackground(true);
    fenster.resize(400, 300);
    ansicht.setParent(&fenster);
    ansicht.setGeometry(10, 10, 340, 260);
    QImage bild = fenster.grab().toImage();
    ansicht.setParent(nullptr);
    return bild;
}

} // namespace

Q_DECLARE_METATYPE(Ansicht)

void TestZeichenansicht::aViewCanBeMadeByAForm_data()
{
    alleAnsichten();
}

void TestZeichenansicht::aViewCanBeMadeByAForm()
{
    QFETCH(Ansicht, ansicht);
    QCOMPARE(ansicht->metaObject()->className(), QTest::currentDataTag());
    QVERIFY(!ansicht->sizeHint().isEmpty());
    QVERIFY(!ansicht->minimumSizeHint().isEmpty());
    QCOMPARE(ansicht->minimumSizeHint().boundedTo(ansicht->sizeHint()), ansicht->minimumSizeHint());
}

void TestZeichenansicht::theParentShowsWhereNothingIsDrawn_data()
{
    alleAnsichten();
}

void TestZeichenansicht::theParentShowsWhereNothingIsDrawn()
{
    QFETCH(Ansicht, ansicht);
    // The top right corner of the view is empty in all of them.
    const QImage bild = imFenster(*ansicht, hell);
    QCOMPARE(bild.pixelColor(10 + 338, 11), hell);
    QCOMPARE(bild.pixelColor(10 + 337, 20), hell);
}

void TestZeichenansicht::aDarkWindowHasALightCardUnderPureColours_data()
{
    alleAnsichten();
}

/// Black and pure blue can't be seen on a dark ground. The faces have their own.
void TestZeichenansicht::aDarkWindowHasALightCardUnderPureColours()
{
    QFETCH(Ansicht, ansicht);
    const bool gesicht = qobject_cast<FaceView *>(ansicht.get()) != nullptr;
    const QImage bild = imFenster(*ansicht, dunkel);
    QCOMPARE(bild.pixelColor(10 + 337, 20), gesicht ? dunkel : QColor(Qt::white));
    QCOMPARE(bild.pixelColor(10 + 339, 10), dunkel); // its corners are round
    QCOMPARE(bild.pixelColor(10 + 345, 20), dunkel); // and it ends with the view

    // What the view draws itself stays as it is, for pictures and paper.
    QImage leer(400, 300, QImage::Format_ARGB32_Premultiplied);
    leer.fill(Qt::transparent);
    QPainter maler(&leer);
    ansicht->zeichnen(maler, QRectF(10, 10, 340, 260));
    maler.end();
    QCOMPARE(leer.pixelColor(10 + 337, 20).alpha(), 0);
}

/// They are light in a dark window, and could not be read on the card.
void TestZeichenansicht::captionsOnAViewStandBelowItsCard()
{
    NahrstoffraumView ansicht;
    QWidget beschriftung(&ansicht);
    beschriftung.setGeometry(20, 180, 100, 20);
    const QImage bild = imFenster(ansicht, dunkel);
    QCOMPARE(bild.pixelColor(10 + 170, 10 + 178), QColor(Qt::white));
    QCOMPARE(bild.pixelColor(10 + 70, 10 + 181), dunkel);
    QCOMPARE(bild.pixelColor(10 + 330, 10 + 181), dunkel);
    QCOMPARE(bild.pixelColor(10 + 170, 10 + 258), dunkel);
}

void TestZeichenansicht::anEmptyViewHasNoCard_data()
{
    QTest::addColumn<Ansicht>("ansicht");
    QTest::newRow("WertungView") << Ansicht(std::make_shared<WertungView>());
    QTest::newRow("CustomProgressIndicator")
        << Ansicht(std::make_shared<CustomProgressIndicator>());
    QTest::newRow("FaceView") << Ansicht(std::make_shared<FaceView>());
}

void TestZeichenansicht::anEmptyViewHasNoCard()
{
    QFETCH(Ansicht, ansicht);
    QCOMPARE(imFenster(*ansicht, dunkel).pixelColor(10 + 170, 10 + 130), dunkel);
}

void TestZeichenansicht::theWindowShowsWhatIsDrawn()
{
    WertungView view;
    view.drawaRect(3);
    view.drawabalken(100);
    view.resize(101, 24);
    QCOMPARE(view.grab().toImage().pixelColor(50, 12), QColor(0, 255, 0));
}

void TestZeichenansicht::thePainterComesBackAsItWas_data()
{
    alleAnsichten();
}

void TestZeichenansicht::thePainterComesBackAsItWas()
{
    QFETCH(Ansicht, ansicht);
    QImage bild(400, 300, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.setPen(Qt::magenta);
    maler.setClipRect(5, 5, 350, 250);
    ansicht->zeichnen(maler, QRectF(20, 20, 330, 240));
    QCOMPARE(maler.pen(), QPen(Qt::magenta));
    QCOMPARE(maler.brush(), QBrush());
    QCOMPARE(maler.transform(), QTransform());
    QCOMPARE(maler.clipBoundingRect(), QRectF(5, 5, 350, 250));
    QVERIFY(!maler.testRenderHint(QPainter::Antialiasing));
    QVERIFY(!maler.testRenderHint(QPainter::SmoothPixmapTransform));
}

void TestZeichenansicht::aThousandChangesAreOneRepaint()
{
    Gezaehlt<WertungView> view;
    zeige(view);
    const int vorher = view.gemalt;
    for (int i = 0; i < 1000; ++i) {
        view.drawaRect(i % 5);
        view.drawabalken(i);
    }
    QCOMPARE(view.gemalt, vorher);
    QTRY_COMPARE(view.gemalt, vorher + 1);
}

void TestZeichenansicht::circlesAreRepaintedForTheLastShareOnly()
{
    Gezaehlt<NahrstoffraumView> view;
    zeige(view);
    const int vorher = view.gemalt;
    view.wert1(20);
    view.wert2(30);
    view.grammkreisMitProtein(1, 2, 3);
    QTest::qWait(0);
    QCOMPARE(view.gemalt, vorher);
    view.wert3(40);
    QTRY_COMPARE(view.gemalt, vorher + 1);
}

void TestZeichenansicht::chartIsRepaintedForIntakeAndHeightOnly()
{
    Gezaehlt<GewichtsverlaufView> view;
    zeige(view);
    const int vorher = view.gemalt;
    view.wert1(80);
    view.wert2(2500);
    QTest::qWait(0);
    QCOMPARE(view.gemalt, vorher);
    view.wert3(1500);
    QTRY_COMPARE(view.gemalt, vorher + 1);
    view.wert4(1.8F);
    QTRY_COMPARE(view.gemalt, vorher + 2);
}

void TestZeichenansicht::assistiveToolsReadTheDescription_data()
{
    alleAnsichten();
}

void TestZeichenansicht::assistiveToolsReadTheDescription()
{
    QFETCH(Ansicht, ansicht);
    auto *zugang = QAccessible::queryAccessibleInterface(ansicht.get());
    QVERIFY(zugang != nullptr);
    QCOMPARE(zugang->role(), QAccessible::Graphic);
    QVERIFY(!ansicht->beschreibung().isEmpty());
    QCOMPARE(zugang->text(QAccessible::Description), ansicht->beschreibung());

    ansicht->setAccessibleName(QStringLiteral("Natrium"));
    QCOMPARE(zugang->text(QAccessible::Name), QStringLiteral("Natrium"));
    ansicht->setAccessibleDescription(QStringLiteral("eigener Text"));
    QCOMPARE(zugang->text(QAccessible::Description), QStringLiteral("eigener Text"));
}

QTEST_MAIN(TestZeichenansicht)
#include "TestZeichenansicht.moc"
