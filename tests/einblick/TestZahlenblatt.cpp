#include "Probesprache.h"
#include "Zahlenblatt.h"
#include "Zahlenmaler.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using enum Grenzurteil;

class TestZahlenblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyFigureHasItsRow();
    void theLimitsStandBesideTheirVerdicts();
    void theSignsAreThoseOfTheVerdicts_data();
    void theSignsAreThoseOfTheVerdicts();
    void theSignHasTheColourOfItsVerdict();
    void eachLimitStandsInALineOfItsOwn();
    void theDetailsTellTheSourceAndTheUnknown();
    void theKeyboardReachesTheDetails();
    void foodsWithoutAFigureAreNamedWithTheirClass();
    void whyThereIsNoLimitIsTold();
    void wholeUnknownIsNotNought();
    void withoutGoutPurinesAreNotMeasured();
    void aFoodIsNotMeasured();
    void withoutAnAgeGrownUpsCount();
    void nothingToCountIsSaid();
    void aChosenRowStaysChosen();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void theSheetSpeaksEnglish();
    void theScreenReaderHearsTheVerdicts();

private:
    QString zelle(int zeile, int spalte) const;
    QList<Zahlenmodell::Zeile> zeilen(const QString &name) const;
    QString menge(const QString &name) const;
    int zeileVon(const QString &name) const;
    QString einzelheiten(const QString &name) const;
    QLabel *label(const char *name) const;
    QList<int> gefaerbt(const QString &name, int (*mehr)(QRgb), int (*weniger)(QRgb)) const;

    std::unique_ptr<Zahlenblatt> m_blatt;
    QTableView *m_tabelle = nullptr;
    QTextEdit *m_einzelheiten = nullptr;
};

namespace {

/// 100 g of meat with 200 mg of uric acid and 300 kcal; 400 ml of beer with 16 g of alcohol; 50 g
/// of syrup whose purines nobody measured, but they are few; 50 g of an own bread.
Einblickstand tag()
{
    Zusatzwerte fleisch;
    fleisch.gruppe = lebensmittelgruppe(u"Schweinefleisch"_s);
    fleisch.harnsaeure = 200;
    fleisch.alkohol = 0;
    fleisch.wasser = 60;
    fleisch.gesaettigt = 2;
    Zusatzwerte bier = fleisch;
    bier.gruppe = lebensmittelgruppe(u"Bier"_s);
    bier.harnsaeure = 10;
    bier.alkohol = 4;
    bier.wasser = 90;
    Zusatzwerte sirup = fleisch;
    sirup.gruppe = lebensmittelgruppe(u"Zucker und Süßwaren"_s);
    sirup.harnsaeure.reset();
    sirup.purinklasse = Purinklasse::Niedrig;
    Datenmodul satz;
    satz.setkal(300);
    satz.setna(1000);
    satz.setkh(12);
    Datenmodul eigenes;
    eigenes.setkal(250);
    eigenes.setkh(48);
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Tag;
    stand.speisen = {{u"Fleisch"_s, satz, 100},
                     {u"Bier"_s, satz, 400},
                     {u"Sirup"_s, satz, 50},
                     {u"Hausbrot"_s, eigenes, 50}};
    stand.wissen = Stoffwissen({{u"Fleisch"_s, fleisch}, {u"Bier"_s, bier}, {u"Sirup"_s, sirup}});
    stand.person = {.geschlecht = Referenzgeschlecht::Mann, .alter = 50};
    stand.leiden[stelle(Wertung::gicht)] = true;
    return stand;
}

Einblickstand ohneEigenes()
{
    Einblickstand stand = tag();
    stand.speisen.removeLast();
    return stand;
}

} // namespace

void TestZahlenblatt::init()
{
    m_blatt = std::make_unique<Zahlenblatt>();
    m_tabelle = m_blatt->findChild<QTableView *>(u"zahlen"_s);
    m_einzelheiten = m_blatt->findChild<QTextEdit *>(u"einzelheiten"_s);
    m_blatt->resize(420, 520);
    m_blatt->show();
}

void TestZahlenblatt::cleanup()
{
    m_blatt.reset();
}

QString TestZahlenblatt::zelle(int zeile, int spalte) const
{
    return m_tabelle->model()->index(zeile, spalte).data().toString();
}

int TestZahlenblatt::zeileVon(const QString &name) const
{
    for (int zeile = 0; zeile < m_tabelle->model()->rowCount(); ++zeile) {
        if (zelle(zeile, Zahlenmodell::Angabe) == name) {
            return zeile;
        }
    }
    return -1;
}

QList<Zahlenmodell::Zeile> TestZahlenblatt::zeilen(const QString &name) const
{
    return m_tabelle->model()
        ->index(zeileVon(name), Zahlenmodell::Angabe)
        .data(Zahlenmodell::zeilenrolle)
        .value<QList<Zahlenmodell::Zeile>>();
}

QString TestZahlenblatt::menge(const QString &name) const
{
    return zelle(zeileVon(name), Zahlenmodell::Menge);
}

/// What stands below the table when that row is chosen.
QString TestZahlenblatt::einzelheiten(const QString &name) const
{
    m_tabelle->selectRow(zeileVon(name));
    return m_einzelheiten->toPlainText();
}

QLabel *TestZahlenblatt::label(const char *name) const
{
    return m_blatt->findChild<QLabel *>(QLatin1String(name));
}

void TestZahlenblatt::everyFigureHasItsRow()
{
    Einblickstand stand = tag();
    stand.mahlzeiten = {{u"Mittags"_s, stand.speisen.first(1)},
                        {u"Abends"_s, stand.speisen.sliced(1)}};
    m_blatt->zeige(stand);
    QStringList namen;
    QStringList mengen;
    for (int zeile = 0; zeile < m_tabelle->model()->rowCount(); ++zeile) {
        namen << zelle(zeile, Zahlenmodell::Angabe);
        mengen << zelle(zeile, Zahlenmodell::Menge);
    }
    QCOMPARE(
        namen,
        (QStringList{u"Harnsäure aus Purinen"_s, u"Broteinheiten"_s, u"Broteinheiten: Mittags"_s,
                     u"Broteinheiten: Abends"_s, u"Alkohol in der Woche"_s, u"Wasser insgesamt"_s,
                     u"Wasser in Getränken"_s, u"Wasser in Speisen"_s, u"Salz"_s,
                     u"Energiedichte ohne Getränke"_s, u"Energie aus gesättigten Fettsäuren"_s,
                     u"Energie aus allem Zucker"_s, u"Energie aus freiem Zucker, geschätzt"_s}));
    // 200 + 40 mg. 12 + 48 + 6 + 24 g of carbohydrate. 16 g of alcohol. 360 + 60 + 30 ml. 5.5 g of
    // sodium. 300 + 150 kcal in 150 g. 2 + 8 + 1 = 11 g, times 9, in 300 + 1200 + 150 + 125 kcal.
    QCOMPARE(mengen,
             (QStringList{u"240 mg"_s, u"7.5 BE"_s, u"1.0 BE"_s, u"6.5 BE"_s, u"112 g"_s,
                          u"450 ml"_s, u"360 ml"_s, u"90 ml"_s, u"13.8 g"_s, u"300 kcal/100 g"_s,
                          u"5.6 %"_s, u"unbekannt"_s, u"unbekannt"_s}));
}

void TestZahlenblatt::theLimitsStandBesideTheirVerdicts()
{
    m_blatt->zeige(ohneEigenes());
    // 240 mg and up to 25 mg of 50 g of syrup, which is 50 g of 550.
    QCOMPARE(
        zeilen(u"Harnsäure aus Purinen"_s),
        (QList<Zahlenmodell::Zeile>{{u"Harnsäure aus Purinen"_s, false, Keines},
                                    {u"höchstens 500\u00a0mg (purinarm)"_s, true, Gehalten},
                                    {u"höchstens 300\u00a0mg (streng purinarm)"_s, true, Gehalten},
                                    {u"bei 9 % der Menge unbekannt"_s, false, Keines}}));
    QCOMPARE(
        zeilen(u"Alkohol in der Woche"_s),
        (QList<Zahlenmodell::Zeile>{{u"Alkohol in der Woche"_s, false, Keines},
                                    {u"unter 27\u00a0g (geringes Risiko)"_s, true, Verfehlt}}));
    QCOMPARE(zeilen(u"Wasser insgesamt"_s).value(1).text,
             u"mindestens 2500\u00a0ml (angemessene Zufuhr)"_s);
    m_blatt->zeige(tag());
    QCOMPARE(zeilen(u"Wasser insgesamt"_s).value(1).urteil, Offen);
}

void TestZahlenblatt::theSignsAreThoseOfTheVerdicts_data()
{
    QTest::addColumn<Grenzurteil>("urteil");
    QTest::addColumn<QString>("zeichen");
    QTest::newRow("kept") << Gehalten << u"✓"_s;
    QTest::newRow("missed") << Verfehlt << u"✗"_s;
    QTest::newRow("open") << Offen << u"?"_s;
    QTest::newRow("not measured") << Keines << QString();
}

void TestZahlenblatt::theSignsAreThoseOfTheVerdicts()
{
    QFETCH(const Grenzurteil, urteil);
    QFETCH(const QString, zeichen);
    QCOMPARE(Zahlenmaler::zeichen(urteil), zeichen);
}

/// Where in the row of a figure something is painted of which there is much more of one colour than
/// of the other: the heights of the dots below its upper edge, from above.
QList<int> TestZahlenblatt::gefaerbt(const QString &name, int (*mehr)(QRgb),
                                     int (*weniger)(QRgb)) const
{
    const QModelIndex stelle = m_tabelle->model()->index(zeileVon(name), Zahlenmodell::Angabe);
    m_tabelle->scrollTo(stelle);
    const QImage bild = m_tabelle->viewport()->grab(m_tabelle->visualRect(stelle)).toImage();
    QList<int> hoehen;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (mehr(bild.pixel(x, y)) > weniger(bild.pixel(x, y)) + 30) {
                hoehen << y;
            }
        }
    }
    return hoehen;
}

void TestZahlenblatt::theSignHasTheColourOfItsVerdict()
{
    m_blatt->zeige(ohneEigenes());
    m_tabelle->selectRow(zeileVon(u"Broteinheiten"_s));
    QVERIFY(!gefaerbt(u"Alkohol in der Woche"_s, qRed, qGreen).isEmpty());
    QVERIFY(gefaerbt(u"Alkohol in der Woche"_s, qGreen, qRed).isEmpty());
    QVERIFY(!gefaerbt(u"Harnsäure aus Purinen"_s, qGreen, qRed).isEmpty());
    QVERIFY(gefaerbt(u"Harnsäure aus Purinen"_s, qRed, qGreen).isEmpty());
    QVERIFY(gefaerbt(u"Wasser in Speisen"_s, qRed, qGreen).isEmpty());
    QVERIFY(gefaerbt(u"Wasser in Speisen"_s, qGreen, qRed).isEmpty());
}

void TestZahlenblatt::eachLimitStandsInALineOfItsOwn()
{
    m_blatt->zeige(ohneEigenes());
    m_tabelle->selectRow(zeileVon(u"Broteinheiten"_s));
    const int zeilenhoehe = m_tabelle->fontMetrics().height();
    const QList<int> hoehen = gefaerbt(u"Salz"_s, qRed, qGreen); // two limits, both missed
    QVERIFY(hoehen.first() >= zeilenhoehe);
    QVERIFY(hoehen.last() >= 2 * zeilenhoehe);
}

void TestZahlenblatt::theDetailsTellTheSourceAndTheUnknown()
{
    m_blatt->zeige(tag());
    const QString salz = einzelheiten(u"Salz"_s);
    QCOMPARE(salz.split(u'\n'),
             (QStringList{
                 u"Salz: 13.8 g"_s, u"Aus dem Natrium: das 2,5-Fache."_s,
                 u"Grenze: unter 5 g (WHO), nicht eingehalten"_s,
                 u"Quelle: WHO. Guideline: Sodium intake for adults and children. Geneva: World "
                 "Health Organization, 2012."_s,
                 u"Grenze: höchstens 6 g (DGE), nicht eingehalten"_s,
                 u"Quelle: Strohm D et al. Speisesalzzufuhr in Deutschland, gesundheitliche Folgen "
                 "und resultierende Handlungsempfehlung. Position of the Deutsche Gesellschaft für "
                 "Ernährung. Ernährungs Umschau 2016; 63."_s,
                 u"Unbekannt bei 8 % der Menge: Hausbrot"_s}));
    const QModelIndex stelle = m_tabelle->model()->index(zeileVon(u"Salz"_s), Zahlenmodell::Menge);
    QCOMPARE(stelle.data(Qt::ToolTipRole).toString().replace(QChar::Nbsp, u' '), salz);
}

void TestZahlenblatt::theKeyboardReachesTheDetails()
{
    m_blatt->zeige(tag());
    m_blatt->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
    m_tabelle->setFocus();
    QVERIFY(m_einzelheiten->toPlainText().startsWith(u"Harnsäure aus Purinen: 240 mg"));
    QTest::keyClick(m_tabelle, Qt::Key_Down);
    QVERIFY(m_einzelheiten->toPlainText().startsWith(u"Broteinheiten: 7.5 BE"));
    QTest::keyClick(m_tabelle, Qt::Key_Tab);
    QVERIFY(m_einzelheiten->hasFocus());
    QTest::keyClick(m_einzelheiten, Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(m_tabelle->hasFocus());
}

void TestZahlenblatt::foodsWithoutAFigureAreNamedWithTheirClass()
{
    m_blatt->zeige(tag());
    QVERIFY(einzelheiten(u"Harnsäure aus Purinen"_s)
                .endsWith(u"\nUnbekannt bei 17 % der Menge: Sirup (wenig Purine); Hausbrot"));
    QVERIFY(einzelheiten(u"Alkohol in der Woche"_s)
                .endsWith(u"\nUnbekannt bei 8 % der Menge: Hausbrot"));
    QVERIFY(einzelheiten(u"Energie aus allem Zucker"_s)
                .endsWith(u"\nUnbekannt bei 100 % der Menge: Fleisch; Bier; Sirup; Hausbrot"));
}

void TestZahlenblatt::whyThereIsNoLimitIsTold()
{
    Einblickstand stand = tag();
    stand.person.geschlecht.reset();
    m_blatt->zeige(stand);
    QVERIFY(
        einzelheiten(u"Broteinheiten"_s).contains(u"\nEine Grenze hat niemand veröffentlicht."));
    QVERIFY(einzelheiten(u"Wasser insgesamt"_s)
                .contains(u"\nDie Grenze hängt vom Geschlecht ab, und das fehlt."));
    stand.person.alter = 12;
    m_blatt->zeige(stand);
    QVERIFY(einzelheiten(u"Energiedichte ohne Getränke"_s)
                .contains(u"\nFür dieses Alter ist keine Grenze veröffentlicht."));
    QCOMPARE(zeilen(u"Alkohol in der Woche"_s).value(1).text, u"gar nichts (unter 18 Jahren)"_s);
}

void TestZahlenblatt::wholeUnknownIsNotNought()
{
    Einblickstand stand = tag();
    stand.speisen = stand.speisen.last(1);
    m_blatt->zeige(stand);
    QCOMPARE(menge(u"Salz"_s), u"unbekannt"_s);
    QVERIFY(einzelheiten(u"Salz"_s).endsWith(u"\nUnbekannt bei 100 % der Menge: Hausbrot"));
    // The amount says it already, and nothing is measured.
    QCOMPARE(zeilen(u"Salz"_s),
             (QList<Zahlenmodell::Zeile>{{u"Salz"_s, false, Keines},
                                         {u"unter 5\u00a0g (WHO)"_s, true, Keines},
                                         {u"höchstens 6\u00a0g (DGE)"_s, true, Keines}}));
    Datenmodul wasser;
    stand.speisen = {{u"Bier"_s, wasser, 100}};
    m_blatt->zeige(stand);
    QCOMPARE(menge(u"Energie aus gesättigten Fettsäuren"_s), u"–"_s);
}

void TestZahlenblatt::withoutGoutPurinesAreNotMeasured()
{
    Einblickstand stand = ohneEigenes();
    stand.leiden = {};
    m_blatt->zeige(stand);
    QCOMPARE(zeilen(u"Harnsäure aus Purinen"_s).value(1).urteil, Keines);
    QVERIFY(label("anmerkung")->isVisible());
    QCOMPARE(label("anmerkung")->text(),
             u"An den Grenzen für Purine wird nur bei Gicht gemessen."_s);
    m_blatt->zeige(ohneEigenes());
    QCOMPARE(zeilen(u"Harnsäure aus Purinen"_s).value(1).urteil, Gehalten);
    QVERIFY(!label("anmerkung")->isVisible());
}

void TestZahlenblatt::aFoodIsNotMeasured()
{
    Einblickstand stand = tag();
    stand.gegenstand = Gegenstand::Lebensmittel;
    m_blatt->zeige(stand);
    QCOMPARE(menge(u"Alkohol"_s), u"16.0 g"_s);
    QCOMPARE(zeileVon(u"Alkohol in der Woche"_s), -1);
    for (int zeile = 0; zeile < m_tabelle->model()->rowCount(); ++zeile) {
        for (const Zahlenmodell::Zeile &eine : zeilen(zelle(zeile, Zahlenmodell::Angabe))) {
            QCOMPARE(eine.urteil, Keines);
        }
    }
    QCOMPARE(label("anmerkung")->text(),
             u"Die Grenzen gelten für einen ganzen Tag; ein einzelnes Lebensmittel wird nicht "
             "daran gemessen."_s);
}

void TestZahlenblatt::withoutAnAgeGrownUpsCount()
{
    Einblickstand stand = tag();
    stand.person.alter.reset();
    m_blatt->zeige(stand);
    QCOMPARE(label("anmerkung")->text(), u"Ohne Alter gelten die Grenzen für Erwachsene."_s);
    QCOMPARE(zeilen(u"Alkohol in der Woche"_s).value(1).text,
             u"unter 27\u00a0g (geringes Risiko)"_s);
}

void TestZahlenblatt::nothingToCountIsSaid()
{
    m_blatt->zeige(tag());
    QVERIFY(m_tabelle->isVisible());
    m_blatt->zeige({});
    QVERIFY(!m_tabelle->isVisible());
    QVERIFY(!m_einzelheiten->isVisible());
    QVERIFY(!label("anmerkung")->isVisible());
    QVERIFY(label("leer")->isVisible());
    QCOMPARE(label("leer")->text(), u"Hier zählt noch kein Lebensmittel."_s);
}

void TestZahlenblatt::aChosenRowStaysChosen()
{
    m_blatt->zeige(tag());
    m_tabelle->selectRow(zeileVon(u"Salz"_s));
    Einblickstand stand = ohneEigenes();
    stand.mahlzeiten = {{u"Mittags"_s, stand.speisen}}; // one row more in front
    m_blatt->zeige(stand);
    QCOMPARE(zelle(m_tabelle->currentIndex().row(), Zahlenmodell::Angabe), u"Salz"_s);
    QVERIFY(m_einzelheiten->toPlainText().startsWith(u"Salz: 13.8 g"));
    m_tabelle->selectRow(zeileVon(u"Broteinheiten: Mittags"_s));
    m_blatt->zeige(ohneEigenes());
    QCOMPARE(m_tabelle->currentIndex().row(), 0); // that meal is gone
}

void TestZahlenblatt::nothingIsCutOff_data()
{
    QTest::addColumn<int>("breite");
    QTest::addColumn<double>("schrift");
    QTest::newRow("a small sheet") << 420 << 1.0;
    QTest::newRow("a wide sheet") << 640 << 1.0;
    QTest::newRow("large type in a small sheet") << 420 << 2.0;
}

void TestZahlenblatt::nothingIsCutOff()
{
    QFETCH(const int, breite);
    QFETCH(const double, schrift);
    QFont font = m_blatt->font();
    font.setPointSizeF(font.pointSizeF() * schrift);
    m_blatt->zeige(tag());
    m_blatt->resize(breite, 560);
    m_blatt->setFont(font);
    QCOMPARE(m_tabelle->columnWidth(0) + m_tabelle->columnWidth(1), m_tabelle->viewport()->width());
    QVERIFY(!m_tabelle->horizontalScrollBar()->isVisible());
    const QFontMetrics metrik(m_tabelle->font());
    for (int zeile = 0; zeile < m_tabelle->model()->rowCount(); ++zeile) {
        int hoehe = 0;
        for (const auto &eine : zeilen(zelle(zeile, Zahlenmodell::Angabe))) {
            hoehe += metrik.lineSpacing();
            for (const QString &wort : eine.text.split(u' ')) {
                QVERIFY2(metrik.horizontalAdvance(wort) + 30 * schrift <= m_tabelle->columnWidth(0),
                         qPrintable(wort));
            }
        }
        QVERIFY2(m_tabelle->rowHeight(zeile) >= hoehe,
                 qPrintable(zelle(zeile, Zahlenmodell::Angabe)));
        for (const QString &wort : zelle(zeile, Zahlenmodell::Menge).split(u' ')) {
            QVERIFY2(metrik.horizontalAdvance(wort) + 12 <= m_tabelle->columnWidth(1),
                     qPrintable(wort));
        }
    }
}

void TestZahlenblatt::theSheetSpeaksEnglish()
{
    m_blatt->zeige(tag());
    m_tabelle->selectRow(zeileVon(u"Salz"_s));
    const Probesprache englisch(QLocale::English);
    m_blatt->folgeSprache();
    QCOMPARE(zelle(0, Zahlenmodell::Angabe), u"Uric acid from purines"_s);
    QCOMPARE(zeilen(u"Uric acid from purines"_s).value(1).text,
             u"at most 500\u00a0mg (low in purines)"_s);
    QCOMPARE(m_tabelle->model()->headerData(0, Qt::Horizontal).toString(), u"Value"_s);
    QVERIFY(m_einzelheiten->toPlainText().contains(u"\nLimit: under 5 g (WHO), not kept\n"));
    QCOMPARE(m_einzelheiten->accessibleName(), u"Details of the chosen row"_s);
}

void TestZahlenblatt::theScreenReaderHearsTheVerdicts()
{
    m_blatt->zeige(ohneEigenes());
    const auto gehoert = [this](const QString &name, int spalte) {
        return m_tabelle->model()
            ->index(zeileVon(name), spalte)
            .data(Qt::AccessibleTextRole)
            .toString();
    };
    QCOMPARE(gehoert(u"Alkohol in der Woche"_s, Zahlenmodell::Angabe),
             u"Alkohol in der Woche; unter 27\u00a0g (geringes Risiko): nicht eingehalten"_s);
    QCOMPARE(gehoert(u"Alkohol in der Woche"_s, Zahlenmodell::Menge), u"112 g"_s);
    QVERIFY(gehoert(u"Harnsäure aus Purinen"_s, Zahlenmodell::Angabe)
                .contains(u"(purinarm): eingehalten; "));
    QCOMPARE(m_tabelle->accessibleName(), u"Weitere Werte des Tages"_s);
}

QTEST_MAIN(TestZahlenblatt)
#include "TestZahlenblatt.moc"
