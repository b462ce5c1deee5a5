// The page on which two visits or two plans of a client stand side by side.

#include "Fortschrittsblatt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QTest>
#include <QTranslator>

#include <memory>

class TestFortschrittsblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }
    void init();
    void cleanup() { m_blatt.reset(); }

    void withoutTwoRecordsItSaysWhatIsMissing_data();
    void withoutTwoRecordsItSaysWhatIsMissing();
    void theFirstVisitStandsBesideTheLast();
    void anotherVisitIsChosen();
    void whatIsNotKnownIsADashAndIsReadOut();
    void plansStandInSections();
    void aPlanIsMeasuredAgainstTheVisitBefore();
    void aMissingRequirementIsExplained();
    void titlesAndDaysNameThePlans();
    void aLongTitleStandsWholeInItsToolTip();
    void rowsOfSeveralLinesAreAsHighAsTheyNeedToBe();
    void whatIsChosenStays();
    void aSideThatWasNotChosenFollowsANewVisit();
    void whatIsGoneIsNotChosenAnyMore();
    void anotherClientBeginsAnew();
    void visitsAndPlansAreChosenOnTheirOwn();
    void theTableIsReadByRows();
    void theTableIsCopied();
    void theKeyboardGoesThroughThePage();
    void itFollowsTheLanguage();

private:
    QStringList zeile(int nummer) const;
    QStringList zeile(const char *beschriftung) const;
    QStringList ueberschriften() const;
    QStringList koepfe() const;
    void zeigePlaene() const { QTest::mouseClick(m_blatt->planwahl, Qt::LeftButton); }

    std::unique_ptr<Fortschrittsblatt> m_blatt;
};

namespace {

QString deutsch(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList worte(const char *mitStrichen)
{
    return deutsch(mitStrichen).split(u'|');
}

Besuch besuch(const QDate &tag, double gewicht)
{
    Besuch einer;
    einer.kennung = QStringLiteral("b-") + tag.toString(Qt::ISODate);
    einer.datum = tag;
    einer.gewicht = gewicht;
    return einer;
}

Planablage plan(const char *titel, const QDate &tag, float gramm)
{
    Datenmodul brot;
    brot.setkh(50);
    Planablage eine;
    eine.kennung = QStringLiteral("p-") + tag.toString(Qt::ISODate);
    eine.titel = deutsch(titel);
    eine.datum = tag;
    eine.posten = {{QStringLiteral("Brot"), gramm, brot}};
    return eine;
}

/// Three visits of a woman who sits at work, and two plans.
Klientenakte akte()
{
    Klientenakte eine;
    eine.person.kennung = QStringLiteral("anna");
    eine.person.geschlecht = Personengeschlecht::Frau;
    eine.besuche = {besuch(QDate(2026, 1, 5), 80), besuch(QDate(2026, 2, 2), 77),
                    besuch(QDate(2026, 3, 2), 75)};
    for (Besuch &einer : eine.besuche) {
        einer.aktivitaet = Aktivitaet::Leicht;
    }
    eine.plaene = {plan("Vorher", QDate(2026, 1, 5), 400), plan("Nachher", QDate(2026, 3, 9), 300)};
    return eine;
}

Klientenakte akteMit(int besuche, int plaene)
{
    Klientenakte eine = akte();
    eine.besuche.resize(besuche);
    eine.plaene.resize(plaene);
    return eine;
}

} // namespace

void TestFortschrittsblatt::init()
{
    m_blatt = std::make_unique<Fortschrittsblatt>();
    m_blatt->resize(800, 600);
    m_blatt->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_blatt.get()));
}

/// What stands in a row, with ordinary blanks.
QStringList TestFortschrittsblatt::zeile(int nummer) const
{
    QStringList texte;
    for (int spalte = 0; spalte < m_blatt->vergleich->columnCount(); ++spalte) {
        const QTableWidgetItem *zelle = m_blatt->vergleich->item(nummer, spalte);
        texte << (zelle != nullptr ? zelle->text().replace(QChar(QChar::Nbsp), u' ') : QString());
    }
    return texte;
}

QStringList TestFortschrittsblatt::zeile(const char *beschriftung) const
{
    for (int nummer = 0; nummer < m_blatt->vergleich->rowCount(); ++nummer) {
        if (zeile(nummer).constFirst() == deutsch(beschriftung)) {
            return zeile(nummer);
        }
    }
    return {};
}

/// The headings of sections: rows that are one cell.
QStringList TestFortschrittsblatt::ueberschriften() const
{
    QStringList alle;
    for (int nummer = 0; nummer < m_blatt->vergleich->rowCount(); ++nummer) {
        if (m_blatt->vergleich->columnSpan(nummer, 0) == m_blatt->vergleich->columnCount()) {
            alle << m_blatt->vergleich->item(nummer, 0)->text();
        }
    }
    return alle;
}

QStringList TestFortschrittsblatt::koepfe() const
{
    QStringList alle;
    for (int spalte = 0; spalte < m_blatt->vergleich->columnCount(); ++spalte) {
        alle << m_blatt->vergleich->horizontalHeaderItem(spalte)->text();
    }
    return alle;
}

void TestFortschrittsblatt::withoutTwoRecordsItSaysWhatIsMissing_data()
{
    QTest::addColumn<int>("anzahl");
    QTest::addColumn<bool>("plaene");
    QTest::addColumn<QString>("satz"); // its beginning; empty: the table is shown
    QTest::newRow("no visit") << 0 << false << deutsch("Noch kein Besuch.");
    QTest::newRow("one visit") << 1 << false << deutsch("Erst ein Besuch.");
    QTest::newRow("two visits") << 2 << false << QString();
    QTest::newRow("no plan") << 0 << true << deutsch("Noch kein abgelegter Plan.");
    QTest::newRow("one plan") << 1 << true << deutsch("Erst ein abgelegter Plan.");
    QTest::newRow("two plans") << 2 << true << QString();
}

void TestFortschrittsblatt::withoutTwoRecordsItSaysWhatIsMissing()
{
    QFETCH(const int, anzahl);
    QFETCH(const bool, plaene);
    QFETCH(const QString, satz);
    m_blatt->setze(akte()); // what another client has shown is gone
    m_blatt->setze(plaene ? akteMit(3, anzahl) : akteMit(anzahl, 2));
    if (plaene) {
        zeigePlaene();
    }
    QCOMPARE(m_blatt->leerworte->isVisible(), !satz.isEmpty());
    QCOMPARE(m_blatt->vergleich->isVisible(), satz.isEmpty());
    QCOMPARE(m_blatt->auswahl->isVisible(), satz.isEmpty());
    QCOMPARE(m_blatt->vergleich->rowCount() == 0, !satz.isEmpty());
    QVERIFY(satz.isEmpty() || m_blatt->leerworte->text().startsWith(satz));
}

void TestFortschrittsblatt::theFirstVisitStandsBesideTheLast()
{
    m_blatt->setze(akte());
    QVERIFY(m_blatt->besuchswahl->isChecked());
    QCOMPARE(koepfe(), worte("|05.01.2026|02.03.2026|Unterschied"));
    QCOMPARE(zeile("Datum"), worte("Datum|05.01.2026|02.03.2026|+56 Tage (8 Wochen)"));
    QCOMPARE(zeile("Gewicht"), worte("Gewicht|80,0 kg|75,0 kg|-5,0 kg"));
    // 80 · 20 · 1.1 = 1760, 75 · 20 · 1.1 = 1650.
    QCOMPARE(zeile("Energiebedarf am Tag"),
             worte("Energiebedarf am Tag|1760 kcal|1650 kcal|-110 kcal"));
    QVERIFY(ueberschriften().isEmpty());
    QVERIFY(!m_blatt->erklaerung->isVisible());
}

void TestFortschrittsblatt::anotherVisitIsChosen()
{
    m_blatt->setze(akte());
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    QCOMPARE(koepfe(), worte("|02.02.2026|02.03.2026|Unterschied"));
    QCOMPARE(zeile("Gewicht"), worte("Gewicht|77,0 kg|75,0 kg|-2,0 kg"));
    QTest::keyClick(m_blatt->bis, Qt::Key_Home);
    QCOMPARE(koepfe(), worte("|02.02.2026|05.01.2026|Unterschied"));
    QCOMPARE(zeile("Gewicht"), worte("Gewicht|77,0 kg|80,0 kg|+3,0 kg"));
}

void TestFortschrittsblatt::whatIsNotKnownIsADashAndIsReadOut()
{
    m_blatt->setze(akte());
    QCOMPARE(zeile("Taille"), worte("Taille|–|–|"));
    const QTableWidget &tafel = *m_blatt->vergleich;
    const auto vorgelesen = [&tafel](const char *beschriftung) {
        const auto zellen = tafel.findItems(deutsch(beschriftung), Qt::MatchExactly);
        const QModelIndex zelle = tafel.model()->index(zellen.constFirst()->row(), 1);
        return zelle.data(Qt::AccessibleTextRole).toString();
    };
    QCOMPARE(vorgelesen("Taille"), deutsch("keine Angabe"));
    QCOMPARE(vorgelesen("Gewicht"), QString()); // as it is written
}

void TestFortschrittsblatt::plansStandInSections()
{
    m_blatt->setze(akte());
    zeigePlaene();
    QCOMPARE(ueberschriften(),
             worte("Summen|Anteile an der Energie|Bewertungen (geeignet / neutral / ungeeignet)|"
                   "Andere Lebensmittel und Mengen"));
    QCOMPARE(zeile(0), worte("Summen|||"));
    QCOMPARE(zeile("Menge"), worte("Menge|400 g|300 g|-100 g"));
    QCOMPARE(zeile("Brot"), worte("Brot|400 g|300 g|-100 g"));
    QVERIFY(m_blatt->vergleich->item(0, 0)->font().weight() > QFont::Normal);
    // Nothing of it is left when the visits come back.
    QTest::mouseClick(m_blatt->besuchswahl, Qt::LeftButton);
    QVERIFY(ueberschriften().isEmpty());
    QCOMPARE(zeile(0).constFirst(), deutsch("Datum"));
}

void TestFortschrittsblatt::aPlanIsMeasuredAgainstTheVisitBefore()
{
    m_blatt->setze(akte());
    zeigePlaene();
    QCOMPARE(zeile("Energiebedarf am Tag"),
             worte("Energiebedarf am Tag|1760 kcal|1650 kcal|-110 kcal"));
    // 4 · 200 of 1760 kcal are 45.45 %, 3 · 200 of 1650 are 36.36 %.
    QCOMPARE(zeile("Energie"),
             worte("Energie|800 kcal, 45,5 % ≈ knapp daneben|600 kcal, 36,4 % ≈ knapp daneben|"
                   "-200 kcal, -9,1 %-Punkte"));
    QVERIFY(!m_blatt->erklaerung->isVisible());
}

void TestFortschrittsblatt::aMissingRequirementIsExplained()
{
    Klientenakte eine = akte();
    eine.besuche.removeFirst(); // the first plan was before all visits
    m_blatt->setze(eine);
    QVERIFY(!m_blatt->erklaerung->isVisible());
    zeigePlaene();
    QCOMPARE(zeile("Energiebedarf am Tag"), worte("Energiebedarf am Tag|–|1650 kcal|"));
    QCOMPARE(zeile("Energie").at(1), deutsch("800 kcal, –"));
    QVERIFY(m_blatt->erklaerung->isVisible());
    QVERIFY(m_blatt->erklaerung->text().startsWith(
        deutsch("Der Energiebedarf fehlt für: Vorher, 05.01.2026. ")));
    eine.person.geschlecht = Personengeschlecht::Unbekannt;
    m_blatt->setze(eine);
    QVERIFY(m_blatt->erklaerung->text().startsWith(
        deutsch("Der Energiebedarf fehlt für: Vorher, 05.01.2026; Nachher, 09.03.2026. ")));
    QTest::keyClick(m_blatt->von, Qt::Key_End); // one plan beside itself
    QVERIFY(m_blatt->erklaerung->text().startsWith(
        deutsch("Der Energiebedarf fehlt für: Nachher, 09.03.2026. ")));
}

void TestFortschrittsblatt::titlesAndDaysNameThePlans()
{
    Klientenakte eine = akte();
    eine.plaene << plan("", QDate(2026, 3, 10), 10) << plan("Ohne\nTag", QDate(), 10);
    m_blatt->setze(eine);
    zeigePlaene();
    QStringList alle;
    for (int stelle = 0; stelle < m_blatt->von->count(); ++stelle) {
        alle << m_blatt->von->itemText(stelle);
    }
    QCOMPARE(alle, worte("Vorher, 05.01.2026|Nachher, 09.03.2026|10.03.2026|Ohne Tag, ohne Datum"));
}

void TestFortschrittsblatt::aLongTitleStandsWholeInItsToolTip()
{
    Klientenakte eine = akte();
    eine.plaene[0].titel = deutsch("Was <b>bisher</b> auf den Tisch kam & noch viel mehr");
    m_blatt->setze(eine);
    zeigePlaene();
    QCOMPARE(m_blatt->vergleich->horizontalHeaderItem(1)->toolTip(),
             deutsch("<qt>Was &lt;b&gt;bisher&lt;/b&gt; auf den Tisch kam &amp; noch viel mehr, "
                     "05.01.2026</qt>"));
}

void TestFortschrittsblatt::rowsOfSeveralLinesAreAsHighAsTheyNeedToBe()
{
    Klientenakte eine = akte();
    m_blatt->setze(eine);
    const int letzte = m_blatt->vergleich->rowCount() - 1;
    eine.besuche[0].notiz = deutsch("Erste Zeile\nzweite Zeile\ndritte Zeile");
    m_blatt->setze(eine);
    QCOMPARE(m_blatt->vergleich->item(letzte, 0)->text(), deutsch("Notiz"));
    const int zeilenabstand = m_blatt->vergleich->fontMetrics().lineSpacing();
    QVERIFY(m_blatt->vergleich->rowHeight(letzte) >= 3 * zeilenabstand + 8); // with air around
    // Larger letters get wider captions.
    const int schmal = m_blatt->vergleich->columnWidth(0);
    QFont schrift = m_blatt->font();
    schrift.setPointSize(2 * schrift.pointSize());
    m_blatt->setFont(schrift);
    QVERIFY(m_blatt->vergleich->columnWidth(0) > schmal * 3 / 2);
}

void TestFortschrittsblatt::whatIsChosenStays()
{
    Klientenakte eine = akte();
    m_blatt->setze(eine);
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    QTest::keyClick(m_blatt->bis, Qt::Key_Up);
    QTest::keyClick(m_blatt->bis, Qt::Key_Down);
    eine.besuche.prepend(besuch(QDate(2025, 12, 1), 82));
    eine.besuche.append(besuch(QDate(2026, 4, 6), 74));
    eine.besuche[2].gewicht = 76.5; // it was mended
    m_blatt->setze(eine);
    QCOMPARE(koepfe(), worte("|02.02.2026|02.03.2026|Unterschied"));
    QCOMPARE(zeile("Gewicht"), worte("Gewicht|76,5 kg|75,0 kg|-1,5 kg"));
}

void TestFortschrittsblatt::aSideThatWasNotChosenFollowsANewVisit()
{
    Klientenakte eine = akte();
    m_blatt->setze(eine);
    eine.besuche.append(besuch(QDate(2026, 4, 6), 74));
    m_blatt->setze(eine);
    QCOMPARE(koepfe(), worte("|05.01.2026|06.04.2026|Unterschied"));
}

void TestFortschrittsblatt::whatIsGoneIsNotChosenAnyMore()
{
    Klientenakte eine = akte();
    m_blatt->setze(eine);
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    eine.besuche.removeAt(1);
    m_blatt->setze(eine);
    QCOMPARE(koepfe(), worte("|05.01.2026|02.03.2026|Unterschied"));
}

void TestFortschrittsblatt::anotherClientBeginsAnew()
{
    Klientenakte eine = akte();
    m_blatt->setze(eine);
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    eine.person.kennung = QStringLiteral("bert"); // whose visits have the same keys here
    m_blatt->setze(eine);
    QCOMPARE(koepfe(), worte("|05.01.2026|02.03.2026|Unterschied"));
}

void TestFortschrittsblatt::visitsAndPlansAreChosenOnTheirOwn()
{
    m_blatt->setze(akte());
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    zeigePlaene();
    QCOMPARE(koepfe(), worte("|Vorher, 05.01.2026|Nachher, 09.03.2026|Unterschied"));
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    QTest::mouseClick(m_blatt->besuchswahl, Qt::LeftButton);
    QCOMPARE(koepfe(), worte("|02.02.2026|02.03.2026|Unterschied"));
    zeigePlaene();
    QCOMPARE(koepfe(), worte("|Nachher, 09.03.2026|Nachher, 09.03.2026|Unterschied"));
}

void TestFortschrittsblatt::theTableIsReadByRows()
{
    m_blatt->setze(akte());
    QTableWidget &tafel = *m_blatt->vergleich;
    QVERIFY(!tafel.accessibleName().isEmpty());
    QTest::mouseClick(tafel.viewport(), Qt::LeftButton, {},
                      tafel.visualItemRect(tafel.item(1, 2)).center());
    QCOMPARE(tafel.selectedItems().size(), 4);
    QCOMPARE(tafel.currentRow(), 1);
    QTest::keyClick(&tafel, Qt::Key_Down);
    QCOMPARE(tafel.currentRow(), 2);
    QTest::keyClick(&tafel, Qt::Key_F2);
    QTest::mouseDClick(tafel.viewport(), Qt::LeftButton, {},
                       tafel.visualItemRect(tafel.item(1, 2)).center());
    QVERIFY(!tafel.isPersistentEditorOpen(tafel.currentItem()));
    QVERIFY(tafel.viewport()->findChildren<QWidget *>().isEmpty()); // nothing to type into
}

void TestFortschrittsblatt::theTableIsCopied()
{
    m_blatt->setze(akte());
    QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
    m_blatt->vergleich->setFocus();
    QTest::keyClick(m_blatt->vergleich, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QStringList zeilen = QGuiApplication::clipboard()->text().split(u'\n');
    QCOMPARE(zeilen.at(0), deutsch("\t05.01.2026\t02.03.2026\tUnterschied"));
    QVERIFY(zeilen.at(2).startsWith(deutsch("Gewicht\t80,0 kg\t75,0 kg\t")));
}

void TestFortschrittsblatt::theKeyboardGoesThroughThePage()
{
    m_blatt->setze(akte());
    QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
    m_blatt->besuchswahl->setFocus();
    QTest::keyClick(m_blatt->besuchswahl, Qt::Key_Right);
    QVERIFY(m_blatt->planwahl->isChecked());
    for (QWidget *naechstes : QWidgetList{m_blatt->von, m_blatt->bis, m_blatt->vergleich}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), naechstes);
    }
    QCOMPARE(m_blatt->vontext->buddy(), static_cast<QWidget *>(m_blatt->von));
    QCOMPARE(m_blatt->bistext->buddy(), static_cast<QWidget *>(m_blatt->bis));
}

void TestFortschrittsblatt::itFollowsTheLanguage()
{
    /// Capitals stand for the other language.
    class Woerterbuch : public QTranslator
    {
    public:
        QString translate(const char * /*context*/, const char *sourceText,
                          const char * /*disambiguation*/, int /*n*/) const override
        {
            return QString::fromUtf8(sourceText).toUpper();
        }
        bool isEmpty() const override { return false; }
    };
    m_blatt->setze(akte());
    QTest::keyClick(m_blatt->von, Qt::Key_Down);
    Woerterbuch woerterbuch;
    QVERIFY(QCoreApplication::installTranslator(&woerterbuch));
    m_blatt->folgeSprache();
    QCOMPARE(koepfe(), worte("|02.02.2026|02.03.2026|UNTERSCHIED"));
    QCOMPARE(zeile(1), worte("GEWICHT|77,0 kg|75,0 kg|-2,0 kg"));
    QCOMPARE(m_blatt->planwahl->text(), deutsch("&PLÄNE"));
    QCoreApplication::removeTranslator(&woerterbuch);
    m_blatt->folgeSprache();
    QCOMPARE(koepfe(), worte("|02.02.2026|02.03.2026|Unterschied"));
    QCOMPARE(m_blatt->planwahl->text(), deutsch("&Pläne"));
}

QTEST_MAIN(TestFortschrittsblatt)
#include "TestFortschrittsblatt.moc"
