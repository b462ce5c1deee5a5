// Names that are cut off in the tables of the insight: the mouse reads them whole.

#include "Beitragsblatt.h"
#include "Rangprobe.h"
#include "Vorschlagsblatt.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QTabWidget>
#include <QToolTip>

using namespace Qt::StringLiterals;

class TestLangeNamen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QToolTip::hideText(); }

    void contributionsTellTheWholeName_data() { namen(); }
    void contributionsTellTheWholeName();
    void theRankingTellsTheWholeName_data() { namen(); }
    void theRankingTellsTheWholeName();
    void theComparisonTellsTheWholeName_data() { namen(); }
    void theComparisonTellsTheWholeName();
    void suggestionsTellTheWholeName_data() { namen(); }
    void suggestionsTellTheWholeName();

private:
    static void namen();
};

namespace {

constexpr QSize schmal(330, 520);

Datenmodul satz()
{
    Datenmodul einer;
    einer.setkal(100);
    einer.setfe(2);
    return einer;
}

/// What is read when the mouse rests there.
QString gelesenes(QWidget &feld, const QPoint &ort)
{
    QToolTip::hideText();
    QHelpEvent ruht(QEvent::ToolTip, ort, feld.mapToGlobal(ort));
    QCoreApplication::sendEvent(&feld, &ruht);
    return QToolTip::text();
}

/// The same at a cell whose text has less room than it needs.
QString gelesenesAn(const QTableView &tabelle, int spalte)
{
    const QModelIndex zelle = tabelle.model()->index(0, spalte);
    const int noetig = tabelle.fontMetrics().horizontalAdvance(zelle.data().toString());
    return noetig > tabelle.columnWidth(spalte)
               ? gelesenes(*tabelle.viewport(), tabelle.visualRect(zelle).center())
               : u"nothing is cut off"_s;
}

} // namespace

/// What a food is called, and what is read of it with what is said behind its name.
void TestLangeNamen::namen()
{
    QTest::addColumn<QString>("langer");
    QTest::addColumn<QString>("gelesen");
    QTest::addColumn<QString>("umbruch");
    const QString brot = u"Vollkornbrot aus Roggen mit Sonnenblumenkernen, frisch aus dem Ofen"_s;
    QTest::newRow("a long one") << brot << brot + u"%1"_s << u"\n"_s;
    QTest::newRow("one like markup")
        << u"<b>Brot & Butter</b> mit Sonnenblumenkernen, frisch aus dem Ofen"_s
        << u"<qt>&lt;b&gt;Brot &amp; Butter&lt;/b&gt; mit Sonnenblumenkernen, frisch aus dem "
           "Ofen%1</qt>"_s
        << u"<br>"_s;
}

void TestLangeNamen::contributionsTellTheWholeName()
{
    QFETCH(QString, langer);
    QFETCH(QString, gelesen);
    Beitragsblatt blatt;
    blatt.resize(schmal);
    blatt.show();
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Tag;
    stand.speisen = {{langer, satz(), 50, 0}};
    blatt.zeige(stand);
    blatt.waehle(Kenngroesse::fe);
    const auto &tabelle = *blatt.findChild<QTableView *>(u"beitraege"_s);
    QCOMPARE(gelesenesAn(tabelle, Beitragsmodell::Name), gelesen.arg(u": 50 g, 1.0 mg, 100 %"_s));
}

void TestLangeNamen::theRankingTellsTheWholeName()
{
    QFETCH(QString, langer);
    QFETCH(QString, gelesen);
    Rangprobe probe;
    probe.gib(qPrintable(langer), 90, 1, 1);
    QVERIFY(probe.oeffne());
    QCOMPARE(gelesenesAn(probe.tabelle(), Rangmodell::Name), gelesen.arg(u": Rang 1, 90.0 g"_s));
}

/// At its heading and in each of its cells.
void TestLangeNamen::theComparisonTellsTheWholeName()
{
    QFETCH(QString, langer);
    QFETCH(QString, gelesen);
    Rangprobe probe;
    probe.gib(qPrintable(langer), 90, 1, 1);
    QVERIFY(probe.oeffne());
    for (int zeile = 0; zeile < 2; ++zeile) {
        probe.tabelle().selectRow(zeile);
        probe.taste(Qt::Key_Space);
    }
    probe.teil<QTabWidget>("rangseiten").setCurrentIndex(1);
    const auto &tabelle = probe.teil<QTableView>("vergleich");
    const QHeaderView &kopf = *tabelle.horizontalHeader();
    const QPoint ueberschrift(kopf.sectionViewportPosition(0) + 5, 5);
    QCOMPARE(gelesenes(*kopf.viewport(), ueberschrift), gelesen.arg(QString()));
    const QPoint zelle = tabelle.visualRect(tabelle.model()->index(0, 0)).center();
    QCOMPARE(gelesenes(*tabelle.viewport(), zelle), gelesen.arg(u", Energie: 100 kcal"_s));
}

void TestLangeNamen::suggestionsTellTheWholeName()
{
    QFETCH(QString, langer);
    QFETCH(QString, gelesen);
    QFETCH(QString, umbruch);
    Datenmodul wenig;
    wenig.setfe(1);
    const Kandidaten kandidaten = {{langer, satz(), 60, u"1 Scheibe"_s}};
    Vorschlagsblatt blatt([&kandidaten]() -> const Kandidaten & { return kandidaten; });
    blatt.resize(schmal);
    blatt.show();
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Tag;
    stand.speisen = {{u"Toast"_s, wenig, 100, 0}};
    stand.ziele = {{Kenngroesse::fe, 11, {}, {}}};
    blatt.zeige(stand);
    const auto &tabelle = *blatt.findChild<QTableView *>(u"vorschlaege"_s);
    QCOMPARE(gelesenesAn(tabelle, Vorschlagsmodell::Lebensmittel),
             gelesen.arg(umbruch + u"1 Scheibe (60 g)"_s));
}

QTEST_MAIN(TestLangeNamen)
#include "TestLangeNamen.moc"
