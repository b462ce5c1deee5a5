// What the mouse carries into the table of a day, within it and out of it.

#include "Umzugstest.h"

#include <QDragEnterEvent>
#include <QImage>
#include <QTabBar>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagefensterZiehen : public Umzugstest
{
    Q_OBJECT

private Q_SLOTS:
    void aFoodIsDroppedBetweenRows();
    void aFoodIsDroppedOntoAMeal_data();
    void aFoodIsDroppedOntoAMeal();
    void aLineShowsWhereItGoes();
    void whatIsForeignIsRefused_data();
    void whatIsForeignIsRefused();
    void aReadOnlyTableRefusesDrops();
    void draggedRowsMove();
    void draggedRowsAreCopiedWithTheKey();
    void rowsAreCarriedToAnotherDay();
    void rowsOfAnotherStateAreCopied();
    void rowsOfAnotherRecordAreCopied();
    void damagedRowsAreDroppedInVain();
    void rowsOfFoodsCanBeDragged();
    void aDragCarriesWhatOthersTake();

private:
    /// A place in the table: a part of the height of this row, from its top.
    QPoint ort(const Platz &platz, double teil) const
    {
        const QRect zelle = ansicht().visualRect(
            ansicht().tagesmodell().index(ansicht().tagesmodell().reihe(platz), 0));
        return {zelle.left() + 20, zelle.top() + static_cast<int>(teil * zelle.height())};
    }
    bool halte(const QPoint &wo, const QMimeData &daten, Qt::KeyboardModifiers dazu = {}) const
    {
        QDragEnterEvent ereignis(wo, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, dazu);
        QApplication::sendEvent(ansicht().viewport(), &ereignis);
        return ereignis.isAccepted();
    }
    void wirf(const QPoint &wo, const QMimeData &daten, Qt::KeyboardModifiers dazu = {}) const
    {
        halte(wo, daten, dazu);
        QDropEvent ereignis(wo, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, dazu);
        QApplication::sendEvent(ansicht().viewport(), &ereignis);
    }
    /// What a drag of these rows carries.
    std::unique_ptr<QMimeData> gezogene(const QList<Platz> &plaetze) const
    {
        waehle(plaetze);
        return std::unique_ptr<QMimeData>(m_probe->fenster->ziehdaten());
    }
};

void TestTagefensterZiehen::aFoodIsDroppedBetweenRows()
{
    QMimeData daten;
    daten.setText(u"Toast"_s);
    QVERIFY(halte(ort({Art::Speise, 0, 0}, 0.2), daten));
    wirf(ort({Art::Speise, 0, 0}, 0.2), daten);
    QCOMPARE(mahlzeit(0), u"ToastApfelToast|Milch"_s);
    QCOMPARE(m_probe->zeile(0, 0).angabe, u"1 Scheibe"_s);
    QCOMPARE(m_probe->zeile(0, 0).gramm, std::optional(20.0F));
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 0, 0}));
    QVERIFY(ansicht().feld() == nullptr);
    wirf(ort({Art::Speise, 0, 1}, 0.8), daten);
    QCOMPARE(mahlzeit(0), u"ToastApfelToastToast|Milch"_s);
    QCOMPARE(buch().schritte.index(), 2);
}

void TestTagefensterZiehen::aFoodIsDroppedOntoAMeal_data()
{
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<double>("teil");
    QTest::newRow("on its name") << static_cast<int>(Art::Mahlzeit) << 0 << 0.5;
    QTest::newRow("on its last row") << static_cast<int>(Art::Eingabe) << 3 << 0.1;
    QTest::newRow("between a row and its alternative") << static_cast<int>(Art::Speise) << 1 << 0.9;
    QTest::newRow("on the upper edge of an alternative")
        << static_cast<int>(Art::Speise) << 2 << 0.1;
}

void TestTagefensterZiehen::aFoodIsDroppedOntoAMeal()
{
    QFETCH(const int, art);
    QFETCH(const int, zeile);
    QFETCH(const double, teil);
    QMimeData daten;
    daten.setText(u"Wasser"_s);
    wirf(ort({static_cast<Art>(art), 0, zeile}, teil), daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|MilchWasser"_s);
    QCOMPARE(m_probe->zeile(0, 3).angabe, u"100 g"_s); // no measure is known of it
}

void TestTagefensterZiehen::aLineShowsWhereItGoes()
{
    QMimeData daten;
    daten.setText(u"Toast"_s);
    const auto bild = [this] {
        return ansicht().viewport()->grab().toImage();
    };
    const QImage vorher = bild();
    QVERIFY(halte(ort({Art::Speise, 0, 0}, 0.9), daten));
    QVERIFY(ansicht().abwurfplatz() == (Platz{Art::Speise, 0, 1}));
    const QRgb strich = ansicht().palette().color(QPalette::Highlight).rgb();
    QCOMPARE(bild().pixelColor(ort({Art::Speise, 0, 1}, 0) + QPoint(300, 0)).rgb(), strich);
    QVERIFY(halte(ort({Art::Mahlzeit, 0, 0}, 0.5), daten)); // at the end of the meal
    QCOMPARE(bild().pixelColor(ort({Art::Eingabe, 0, 3}, 0) + QPoint(300, 0)).rgb(), strich);
    QDragLeaveEvent fort;
    QApplication::sendEvent(ansicht().viewport(), &fort);
    QVERIFY(!ansicht().abwurfplatz());
    QCOMPARE(bild(), vorher);
}

void TestTagefensterZiehen::whatIsForeignIsRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("a text") << u"text/plain"_s << QByteArray("Apfelmus");
    QTest::newRow("an empty text") << u"text/plain"_s << QByteArray("");
    QTest::newRow("a picture") << u"image/png"_s << QByteArray("x");
    QTest::newRow("a file") << u"text/uri-list"_s << QByteArray("file:///Apfel");
    QTest::newRow("an origin alone") << QString::fromUtf8(herkunftsformat) << QByteArray("{}");
}

void TestTagefensterZiehen::whatIsForeignIsRefused()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, inhalt);
    QMimeData daten;
    daten.setData(format, inhalt);
    QVERIFY(!halte(ort({Art::Speise, 0, 0}, 0.5), daten));
    wirf(ort({Art::Speise, 0, 0}, 0.5), daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QVERIFY(!ansicht().abwurfplatz());
}

void TestTagefensterZiehen::aReadOnlyTableRefusesDrops()
{
    m_probe->ablage.laesstSchreiben = false;
    ansicht().zeige(m_probe->jetzige(), 0, buch().aenderbar());
    QMimeData daten;
    daten.setText(u"Toast"_s);
    QVERIFY(!halte(ort({Art::Speise, 0, 0}, 0.5), daten));
}

void TestTagefensterZiehen::draggedRowsMove()
{
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *gezogene({{Art::Speise, 0, 0}}));
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 2, 1}));
    einSchritt(0);
}

void TestTagefensterZiehen::draggedRowsAreCopiedWithTheKey()
{
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *gezogene({{Art::Speise, 0, 0}}), Qt::ControlModifier);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
    einSchritt(0);
}

/// Held over a tab, the rows open its day; there they are dropped.
void TestTagefensterZiehen::rowsAreCarriedToAnotherDay()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    QTabBar &tage = *m_probe->fenster->tage;
    const QPoint reiter = tage.tabRect(1).center();
    QDragEnterEvent hinein(reiter, Qt::MoveAction, daten.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&tage, &hinein);
    QVERIFY(hinein.isAccepted());
    QDragMoveEvent ueber(reiter, Qt::MoveAction, daten.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&tage, &ueber);
    QTRY_COMPARE(buch().tag(), 1);
    wirf(ort({Art::Mahlzeit, 1, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(1, 1), u"Apfel"_s);
}

/// Where the record has changed since, nobody knows whether the rows are still there.
void TestTagefensterZiehen::rowsOfAnotherStateAreCopied()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        was.tage[0].mahlzeiten[0].zeilen.removeFirst();
        return true;
    });
    buch().sichere();
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
}

void TestTagefensterZiehen::rowsOfAnotherRecordAreCopied()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    Aufzeichnung andere = m_probe->jetzige();
    andere.kennung = QString();
    buch().beginne(andere);
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
}

void TestTagefensterZiehen::damagedRowsAreDroppedInVain()
{
    QMimeData daten;
    daten.setData(QLatin1String(ablageformat), "{}");
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), daten);
    QCOMPARE(mahlzeit(2), u"Wasser"_s);
    QVERIFY(m_probe->hinweise().first().contains(u"beschädigt"_s));
}

void TestTagefensterZiehen::rowsOfFoodsCanBeDragged()
{
    const Qt::ItemFlags speise = ansicht().tagesmodell().flags(ansicht().tagesmodell().index(1, 0));
    const Qt::ItemFlags kopf = ansicht().tagesmodell().flags(ansicht().tagesmodell().index(0, 0));
    QVERIFY(speise.testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(!kopf.testFlag(Qt::ItemIsDragEnabled));
}

/// The plan's table takes a food by its key, and only one.
void TestTagefensterZiehen::aDragCarriesWhatOthersTake()
{
    QCOMPARE(gezogene({{Art::Speise, 0, 0}})->text(), u"Apfel"_s);
    QVERIFY(!gezogene({{Art::Speise, 0, 0}, {Art::Speise, 2, 0}})->hasText());
    ansicht().clearSelection();
    QVERIFY(m_probe->fenster->ziehdaten() == nullptr);
    m_probe = std::make_unique<Fensterprobe>();
    QVERIFY(m_probe->fenster->ziehdaten() == nullptr);
}

QTEST_MAIN(TestTagefensterZiehen)
#include "TestTagefensterZiehen.moc"
