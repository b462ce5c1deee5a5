#include "Beitragsblatt.h"

#include "Balkenmaler.h"
#include "Probesprache.h"

#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

class TestBeitragsblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatGivesMostStandsOnTop();
    void theBarIsAsLongAsTheShare();
    void everyQuantityAndEveryRatingCanBeAskedFor();
    void theUnknownIsNamed();
    void nothingKnownIsNotNought();
    void unsuitableFoodsAreListed();
    void noneUnsuitableIsSaid();
    void foodsWithoutARatingAreNamed();
    void nothingToCountIsSaid();
    void rowsWithoutGramsDoNotCount();
    void whatIsCutOffIsReadWhole();
    void figuresStandAtTheRight();
    void namesGetTheRoomThatIsLeft();
    void aDoubleClickLeadsToTheRow();
    void returnLeadsToTheFirstRowOfTheFood_data();
    void returnLeadsToTheFirstRowOfTheFood();
    void returnPressesNothingElse();
    void aRowFromNowhereLeadsNowhere();
    void whatIsAskedForStaysWhenTheFoodsChange();
    void theChosenFoodStaysChosen();
    void anotherQuestionBeginsWithoutAChoice();
    void theKeyboardPassesThroughTheTable();
    void theLanguageIsFollowed();

private:
    QString zelle(int zeile, int spalte) const;
    QString wort(const char *name) const;
    bool zeigtWort(const char *name) const;
    QString gewaehltes() const;
    QString inWorten(int zeile) const;

    std::unique_ptr<Beitragsblatt> m_blatt;
    QTableView *m_tabelle = nullptr;
    QComboBox *m_wovon = nullptr;
};

namespace {

Datenmodul satz(float eisen, const char *gicht)
{
    Datenmodul eines;
    eines.setfe(eisen);
    eines.setgicht(QString::fromUtf8(gicht));
    return eines;
}

/// Liver 2 mg, bread twice 0.5 mg and 1.5 mg, and a soup of which nobody knows: 100 g of 500 g.
Einblickstand tag()
{
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Tag;
    stand.speisen = {{QStringLiteral("Brot"), satz(1, "0"), 50, 4},
                     {QStringLiteral("Leber"), satz(10, "-"), 20, 5},
                     {QStringLiteral("Suppe"), satz(0, "0"), 100, 6},
                     {QStringLiteral("Brot"), satz(1, "0"), 330, 7}};
    return stand;
}

} // namespace

void TestBeitragsblatt::init()
{
    QLocale::setDefault(QLocale::c());
    m_blatt = std::make_unique<Beitragsblatt>();
    m_tabelle = m_blatt->findChild<QTableView *>(QStringLiteral("beitraege"));
    m_wovon = m_blatt->findChild<QComboBox *>(QStringLiteral("wovon"));
    m_blatt->resize(420, 520);
    m_blatt->show();
}

QString TestBeitragsblatt::zelle(int zeile, int spalte) const
{
    return m_tabelle->model()->index(zeile, spalte).data().toString();
}

QString TestBeitragsblatt::wort(const char *name) const
{
    return m_blatt->findChild<QLabel *>(QLatin1String(name))->text();
}

bool TestBeitragsblatt::zeigtWort(const char *name) const
{
    return m_blatt->findChild<QLabel *>(QLatin1String(name))->isVisible();
}

/// The food whose row is chosen and seen as such.
QString TestBeitragsblatt::gewaehltes() const
{
    const QModelIndexList reihen = m_tabelle->selectionModel()->selectedRows(Beitragsmodell::Name);
    return reihen.isEmpty() ? QString() : reihen.first().data().toString();
}

QString TestBeitragsblatt::inWorten(int zeile) const
{
    return m_tabelle->model()->index(zeile, 0).data(Qt::ToolTipRole).toString();
}

void TestBeitragsblatt::whatGivesMostStandsOnTop()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    // 380 g of bread give 3.8 mg, 20 g of liver 2 mg: together 5.8 mg, of which 66 and 34 percent.
    QCOMPARE(m_tabelle->model()->rowCount(), 3);
    QCOMPARE(zelle(0, Beitragsmodell::Name), QStringLiteral("Brot"));
    QCOMPARE(zelle(0, Beitragsmodell::Gramm), QStringLiteral("380 g"));
    QCOMPARE(zelle(0, Beitragsmodell::Menge), QStringLiteral("3.8 mg"));
    QCOMPARE(zelle(0, Beitragsmodell::Anteil), QStringLiteral("66 %"));
    QCOMPARE(zelle(1, Beitragsmodell::Name), QStringLiteral("Leber"));
    QCOMPARE(zelle(1, Beitragsmodell::Anteil), QStringLiteral("34 %"));
    QCOMPARE(wort("summe"), QStringLiteral("Eisen: 5.8 mg"));
    QVERIFY(!zeigtWort("leer"));
}

void TestBeitragsblatt::theBarIsAsLongAsTheShare()
{
    Einblickstand stand;
    stand.speisen = {{QStringLiteral("a"), satz(3, "0"), 100, 0},
                     {QStringLiteral("b"), satz(1, "0"), 100, 1}};
    m_blatt->zeige(stand);
    m_blatt->waehle(Kenngroesse::fe);
    const auto anteil = [this](int zeile, int spalte) {
        return m_tabelle->model()->index(zeile, spalte).data(Balkenmaler::anteilrolle);
    };
    QCOMPARE(anteil(0, Beitragsmodell::Anteil).toDouble(), 0.75);
    QCOMPARE(anteil(1, Beitragsmodell::Anteil).toDouble(), 0.25);
    QVERIFY(!anteil(0, Beitragsmodell::Menge).isValid());
    const auto *maler = m_tabelle->itemDelegateForColumn(Beitragsmodell::Anteil);
    QVERIFY(qobject_cast<const Balkenmaler *>(maler) != nullptr);
}

void TestBeitragsblatt::everyQuantityAndEveryRatingCanBeAskedFor()
{
    m_blatt->zeige(tag());
    // 24 quantities, a line, 4 ratings.
    QCOMPARE(m_wovon->count(), 29);
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        m_blatt->waehle(eine.groesse);
        QCOMPARE(m_wovon->currentText(), nameVon(eine.groesse));
    }
    m_blatt->waehle(Wertung::hkk);
    QCOMPARE(m_wovon->currentText(), QStringLiteral("Ungeeignet: Herz und Kreislauf"));
}

void TestBeitragsblatt::theUnknownIsNamed()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    QCOMPARE(zelle(2, Beitragsmodell::Name), QStringLiteral("Suppe"));
    QCOMPARE(zelle(2, Beitragsmodell::Menge), QStringLiteral("unbekannt"));
    QCOMPARE(zelle(2, Beitragsmodell::Anteil), QString());
    QVERIFY(!m_tabelle->model()
                 ->index(2, Beitragsmodell::Anteil)
                 .data(Balkenmaler::anteilrolle)
                 .isValid());
    QCOMPARE(wort("unbekannt"), QStringLiteral("Eisen, bei 20 % der Menge unbekannt: Suppe"));
    m_blatt->waehle(Kenngroesse::kal);
    QVERIFY(!zeigtWort("unbekannt"));
}

void TestBeitragsblatt::nothingKnownIsNotNought()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::vitc);
    QCOMPARE(wort("summe"), QStringLiteral("Vitamin C: unbekannt"));
}

void TestBeitragsblatt::unsuitableFoodsAreListed()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Wertung::gicht);
    QCOMPARE(m_tabelle->model()->rowCount(), 1);
    QCOMPARE(zelle(0, Beitragsmodell::Name), QStringLiteral("Leber"));
    QCOMPARE(zelle(0, Beitragsmodell::Anteil), QStringLiteral("4 %"));
    QVERIFY(m_tabelle->isColumnHidden(Beitragsmodell::Menge));
    QCOMPARE(zelle(0, Beitragsmodell::Gramm), QStringLiteral("20 g"));
    QCOMPARE(wort("summe"), QStringLiteral("Ungeeignete Lebensmittel: 1, 4 % der Menge"));
    m_blatt->waehle(Kenngroesse::fe);
    QVERIFY(!m_tabelle->isColumnHidden(Beitragsmodell::Menge));
    QVERIFY(zeigtWort("unbekannt"));
    Einblickstand mehr = tag();
    mehr.speisen << Speise{QStringLiteral("Sardinen"), satz(3, "-"), 125, 8};
    m_blatt->zeige(mehr);
    m_blatt->waehle(Wertung::gicht);
    // 145 g of 625 g are 23 percent; nothing about them is unknown.
    QCOMPARE(zelle(0, Beitragsmodell::Name), QStringLiteral("Sardinen"));
    QCOMPARE(wort("summe"), QStringLiteral("Ungeeignete Lebensmittel: 2, 23 % der Menge"));
    QVERIFY(!zeigtWort("unbekannt"));
}

void TestBeitragsblatt::noneUnsuitableIsSaid()
{
    Einblickstand stand = tag();
    for (Speise &eine : stand.speisen) {
        eine.lebensmittel->setdiabetes(QStringLiteral("0"));
    }
    m_blatt->zeige(stand);
    m_blatt->waehle(Wertung::diabetes);
    QVERIFY(!m_tabelle->isVisible());
    QVERIFY(!zeigtWort("summe"));
    QVERIFY(zeigtWort("leer"));
    QCOMPARE(wort("leer"), QStringLiteral("Kein Lebensmittel ist hierfür ungeeignet."));
}

/// Whoever has no rating may be unsuitable.
void TestBeitragsblatt::foodsWithoutARatingAreNamed()
{
    Einblickstand stand = tag();
    stand.speisen = {{QStringLiteral("Brot"), satz(1, "0"), 150, 0},
                     {QStringLiteral("Eigenes"), satz(1, ""), 50, 1},
                     {QStringLiteral("Fort"), {}, 50, 2}};
    m_blatt->zeige(stand);
    m_blatt->waehle(Wertung::gicht);
    QCOMPARE(wort("leer"), QStringLiteral("Kein bewertetes Lebensmittel ist hierfür ungeeignet."));
    QCOMPARE(wort("unbekannt"),
             QStringLiteral("Ohne Bewertung sind 40 % der Menge: Eigenes, Fort"));
    QVERIFY(zeigtWort("unbekannt"));
    stand.speisen << Speise{QStringLiteral("Leber"), satz(10, "-"), 250, 3};
    m_blatt->zeige(stand);
    QCOMPARE(wort("summe"), QStringLiteral("Ungeeignete Lebensmittel: 1, 50 % der Menge"));
    QCOMPARE(wort("unbekannt"),
             QStringLiteral("Ohne Bewertung sind 20 % der Menge: Eigenes, Fort"));
}

void TestBeitragsblatt::nothingToCountIsSaid()
{
    m_blatt->zeige({});
    QVERIFY(!m_tabelle->isVisible());
    QVERIFY(!zeigtWort("summe"));
    QCOMPARE(wort("leer"), QStringLiteral("Hier zählt noch kein Lebensmittel."));
}

void TestBeitragsblatt::rowsWithoutGramsDoNotCount()
{
    Einblickstand stand;
    stand.speisen = {{QStringLiteral("Leber"), satz(10, "-"), 0, 0}};
    m_blatt->zeige(stand);
    m_blatt->waehle(Kenngroesse::fe);
    QCOMPARE(wort("leer"), QStringLiteral("Hier zählt noch kein Lebensmittel."));
    QVERIFY(!zeigtWort("summe"));
    m_blatt->waehle(Wertung::gicht);
    QCOMPARE(wort("leer"), QStringLiteral("Hier zählt noch kein Lebensmittel."));
}

/// A bread that was known by one record and not by the other is known in part.
void TestBeitragsblatt::whatIsCutOffIsReadWhole()
{
    Einblickstand stand = tag();
    stand.speisen[3].lebensmittel = satz(0, "0");
    m_blatt->zeige(stand);
    m_blatt->waehle(Kenngroesse::fe);
    // Of 380 g of bread 50 g are known.
    QCOMPARE(inWorten(0), QStringLiteral("Leber: 20 g, 2.0 mg, 80 %"));
    QCOMPARE(inWorten(1),
             QStringLiteral("Brot: 380 g, 0.5 mg, 20 %, bei 87 % der Menge unbekannt"));
    QCOMPARE(inWorten(2), QStringLiteral("Suppe: 100 g, unbekannt"));
    const QAbstractItemModel &modell = *m_tabelle->model();
    QCOMPARE(modell.index(2, 3).data(Qt::AccessibleTextRole).toString(), inWorten(2));
    QCOMPARE(modell.headerData(2, Qt::Vertical).toString(), QStringLiteral("Suppe"));
    m_blatt->waehle(Wertung::gicht);
    QCOMPARE(inWorten(0), QStringLiteral("Leber: 20 g, 4 %"));
}

void TestBeitragsblatt::figuresStandAtTheRight()
{
    m_blatt->zeige(tag());
    const auto seite = [this](int spalte) {
        return Qt::Alignment(
                   m_tabelle->model()->index(0, spalte).data(Qt::TextAlignmentRole).toInt()) &
               Qt::AlignHorizontal_Mask;
    };
    QCOMPARE(seite(Beitragsmodell::Name), Qt::AlignLeft);
    for (const int spalte :
         {Beitragsmodell::Gramm, Beitragsmodell::Menge, Beitragsmodell::Anteil}) {
        QCOMPARE(seite(spalte), Qt::AlignRight);
    }
}

void TestBeitragsblatt::namesGetTheRoomThatIsLeft()
{
    m_blatt->zeige(tag());
    for (const int breite : {420, 900}) {
        m_blatt->resize(breite, 520);
        QCoreApplication::processEvents();
        QCOMPARE(m_tabelle->horizontalHeader()->length(), m_tabelle->viewport()->width());
    }
    QVERIFY(m_tabelle->columnWidth(Beitragsmodell::Name) > 450);
}

void TestBeitragsblatt::aDoubleClickLeadsToTheRow()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    const QSignalSpy spion(m_blatt.get(), &Einblickblatt::zeileGewuenscht);
    const QPoint ort = m_tabelle->visualRect(m_tabelle->model()->index(1, 0)).center();
    QTest::mouseClick(m_tabelle->viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(m_tabelle->viewport(), Qt::LeftButton, {}, ort);
    QCOMPARE(spion.count(), 1);
    QCOMPARE(spion[0][0].toInt(), 5);
}

void TestBeitragsblatt::returnLeadsToTheFirstRowOfTheFood_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::newRow("beside the letters") << Qt::Key_Return;
    QTest::newRow("beside the digits") << Qt::Key_Enter;
}

void TestBeitragsblatt::returnLeadsToTheFirstRowOfTheFood()
{
    QFETCH(const Qt::Key, taste);
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    const QSignalSpy spion(m_blatt.get(), &Einblickblatt::zeileGewuenscht);
    QTest::keyClick(m_tabelle, taste);
    QCOMPARE(spion.count(), 0); // none is chosen yet
    m_tabelle->setCurrentIndex(m_tabelle->model()->index(0, 0));
    QTest::keyClick(m_tabelle, taste);
    QCOMPARE(spion.count(), 1);
    QCOMPARE(spion[0][0].toInt(), 4);
}

void TestBeitragsblatt::returnPressesNothingElse()
{
    QDialog fenster;
    auto *knopf = new QPushButton;
    knopf->setDefault(true);
    auto *anordnung = new QVBoxLayout(&fenster);
    anordnung->addWidget(m_blatt.get());
    anordnung->addWidget(knopf);
    fenster.show();
    m_blatt->zeige(tag());
    m_tabelle->setCurrentIndex(m_tabelle->model()->index(0, 0));
    const QSignalSpy gedrueckt(knopf, &QPushButton::clicked);
    QTest::keyClick(m_tabelle, Qt::Key_Return);
    QCOMPARE(gedrueckt.count(), 0);
    m_blatt->setParent(nullptr);
}

void TestBeitragsblatt::aRowFromNowhereLeadsNowhere()
{
    Einblickstand stand = tag();
    for (Speise &eine : stand.speisen) {
        eine.ort = -1;
    }
    m_blatt->zeige(stand);
    m_blatt->waehle(Kenngroesse::fe);
    const QSignalSpy spion(m_blatt.get(), &Einblickblatt::zeileGewuenscht);
    m_tabelle->setCurrentIndex(m_tabelle->model()->index(0, 0));
    QTest::keyClick(m_tabelle, Qt::Key_Return);
    QCOMPARE(spion.count(), 0);
}

void TestBeitragsblatt::whatIsAskedForStaysWhenTheFoodsChange()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    Einblickstand anderes = tag();
    anderes.speisen.removeLast();
    m_blatt->zeige(anderes);
    QCOMPARE(m_wovon->currentText(), QStringLiteral("Eisen"));
    // 50 g of bread 0.5 mg, 20 g of liver 2 mg.
    QCOMPARE(wort("summe"), QStringLiteral("Eisen: 2.5 mg"));
    m_blatt->folgeSprache();
    QCOMPARE(m_wovon->currentText(), QStringLiteral("Eisen"));
}

void TestBeitragsblatt::theChosenFoodStaysChosen()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    m_tabelle->setCurrentIndex(m_tabelle->model()->index(1, 0));
    QCOMPARE(gewaehltes(), QStringLiteral("Leber"));
    Einblickstand mehr = tag();
    mehr.speisen[1].gramm = 100; // 10 mg, the most of all
    m_blatt->zeige(mehr);
    QCOMPARE(zelle(0, Beitragsmodell::Name), QStringLiteral("Leber"));
    QCOMPARE(gewaehltes(), QStringLiteral("Leber"));
    m_blatt->folgeSprache();
    QCOMPARE(gewaehltes(), QStringLiteral("Leber"));
    const QSignalSpy spion(m_blatt.get(), &Einblickblatt::zeileGewuenscht);
    QTest::keyClick(m_tabelle, Qt::Key_Return);
    QCOMPARE(spion.count(), 1);
    QCOMPARE(spion[0][0].toInt(), 5);
    mehr.speisen.removeAt(1);
    m_blatt->zeige(mehr);
    QCOMPARE(gewaehltes(), QString());
    QTest::keyClick(m_tabelle, Qt::Key_Return);
    QCOMPARE(spion.count(), 1);
}

/// What gives most is what is asked for, so the list is seen from its top.
void TestBeitragsblatt::anotherQuestionBeginsWithoutAChoice()
{
    m_blatt->zeige(tag());
    m_blatt->waehle(Kenngroesse::fe);
    m_tabelle->setCurrentIndex(m_tabelle->model()->index(1, 0));
    m_blatt->waehle(Kenngroesse::kal);
    QCOMPARE(gewaehltes(), QString());
}

void TestBeitragsblatt::theKeyboardPassesThroughTheTable()
{
    m_blatt->zeige(tag());
    m_blatt->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
    m_tabelle->setFocus();
    QTest::keyClick(m_tabelle, Qt::Key_Tab);
    QVERIFY(m_wovon->hasFocus());
    QTest::keyClick(m_wovon, Qt::Key_Tab);
    QVERIFY(m_tabelle->hasFocus());
    QTest::keyClick(m_tabelle, Qt::Key_E, Qt::AltModifier); // the letter of the question
    QVERIFY(m_wovon->hasFocus());
}

void TestBeitragsblatt::theLanguageIsFollowed()
{
    Einblickstand stand = tag();
    stand.speisen[1].schluessel = QStringLiteral("Bananen, roh");
    m_blatt->zeige(stand);
    m_blatt->waehle(Kenngroesse::fe);
    const Probesprache englisch(QLocale::English);
    const QSignalSpy andereFrage(m_wovon, &QComboBox::currentIndexChanged);
    m_blatt->folgeSprache();
    QCOMPARE(andereFrage.count(), 0);
    QCOMPARE(m_wovon->currentText(), QStringLiteral("Iron"));
    QCOMPARE(m_wovon->count(), 29);
    QCOMPARE(wort("summe"), QStringLiteral("Iron: 5.8 mg"));
    QCOMPARE(wort("unbekannt"), QStringLiteral("Iron, unknown for 20 % of the amount: Suppe"));
    QCOMPARE(zelle(1, Beitragsmodell::Name), QStringLiteral("Bananas, raw"));
    QCOMPARE(zelle(2, Beitragsmodell::Menge), QStringLiteral("unknown"));
    QStringList koepfe;
    for (int spalte = 0; spalte < Beitragsmodell::AnzahlSpalten; ++spalte) {
        koepfe << m_tabelle->model()->headerData(spalte, Qt::Horizontal).toString();
    }
    QCOMPARE(koepfe.join(u'|'), QStringLiteral("Food|Amount|Contribution|Share"));
    QCOMPARE(m_tabelle->accessibleName(), QStringLiteral("Contributions of the foods"));
    QCOMPARE(m_tabelle->accessibleDescription(),
             QStringLiteral("Return leads to the row of the food."));
    const QLabel *frage = m_blatt->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(frage->text(), QStringLiteral("&Where it comes from:"));
    m_blatt->waehle(Wertung::hkk);
    QCOMPARE(m_wovon->currentText(), QStringLiteral("Unsuitable: Heart and circulation"));
}

QTEST_MAIN(TestBeitragsblatt)
#include "TestBeitragsblatt.moc"
