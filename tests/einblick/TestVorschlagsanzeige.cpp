// What the sheet of suggestions shows and says.

#include "Vorschlagsblattprobe.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

class TestVorschlagsanzeige : public QObject, private Vorschlagsblattprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { oeffne(); }
    void cleanup() { m_blatt.reset(); }

    void whatIsChosenStaysChosen();
    void aSheetThatIsNotSeenAsksForNothing();
    void whereNothingCanBeSuggestedItIsSaid_data();
    void whereNothingCanBeSuggestedItIsSaid();
    void aMeanCanNotBeChanged();
    void aRowOfNoPlaceCanNotBeReplaced();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void theSheetSpeaksEnglish();
    void theScreenReaderHearsTheRatings();
    void whatIsNotListedIsSaid();
};

void TestVorschlagsanzeige::whatIsChosenStaysChosen()
{
    m_blatt->waehleZiel(fe);
    m_blatt->waehleZeile(7);
    Einblickstand stand = tag();
    stand.speisen << Speise{u"Linsen, gekocht"_s, m_kandidaten[0].lebensmittel, 50, 8};
    m_blatt->zeige(stand);
    QCOMPARE(ziel().currentText(), u"Eisen: 8,0 mg zu wenig"_s);
    QCOMPARE(teil<QComboBox>("zeile").currentText(), u"Salzbrot, 100 g"_s);
    // The row is another food now: it is not meant any more.
    stand.speisen.removeFirst();
    m_blatt->zeige(stand);
    QCOMPARE(teil<QComboBox>("zeile").currentIndex(), 0);
    QCOMPARE(ziel().currentText(), u"Eisen: 9,0 mg zu wenig"_s);
}

void TestVorschlagsanzeige::aSheetThatIsNotSeenAsksForNothing()
{
    m_gefragt = 0;
    m_blatt->hide();
    m_blatt->zeige(tag());
    m_blatt->zeige(tag());
    QCOMPARE(m_gefragt, 0);
    m_blatt->show();
    QCOMPARE(m_gefragt, 1);
    QCOMPARE(namen().size(), 1);
}

void TestVorschlagsanzeige::whereNothingCanBeSuggestedItIsSaid_data()
{
    QTest::addColumn<Gegenstand>("gegenstand");
    QTest::addColumn<Zielbereiche>("ziele");
    QTest::addColumn<QString>("worte");
    QTest::addColumn<bool>("fragbar");

    QTest::newRow("a single food")
        << Gegenstand::Lebensmittel << tag().ziele
        << u"Vorschläge gibt es zu einem Plan, einem Tag oder dem Mittel der Tage."_s << false;
    QTest::newRow("no aims") << Gegenstand::Tag << Zielbereiche()
                             << u"Dafür muss bekannt sein, was ein Tag enthalten soll, und das "
                                u"fehlt."_s
                             << false;
    QTest::newRow("all is well") << Gegenstand::Tag << Zielbereiche{{fe, 1, {}, {}}}
                                 << u"Alles ist im Zielbereich."_s << true;
    QTest::newRow("nothing helps")
        << Gegenstand::Tag << Zielbereiche{{vitc, 100, {}, {}}}
        << u"Hier hilft kein Lebensmittel, ohne mehr zu schaden als zu nützen."_s << true;
}

void TestVorschlagsanzeige::whereNothingCanBeSuggestedItIsSaid()
{
    QFETCH(const Gegenstand, gegenstand);
    QFETCH(const Zielbereiche, ziele);
    QFETCH(const QString, worte);
    QFETCH(const bool, fragbar);
    Einblickstand stand = tag();
    stand.gegenstand = gegenstand;
    stand.ziele = ziele;
    m_blatt->zeige(stand);
    QCOMPARE(teil<QLabel>("leer").text(), worte);
    QVERIFY(teil<QLabel>("leer").isVisible());
    QCOMPARE(ziel().isVisible(), fragbar);
    QVERIFY(!liste().isVisible());
    QVERIFY(!teil<QPushButton>("nehmen").isVisible());
}

void TestVorschlagsanzeige::aMeanCanNotBeChanged()
{
    Einblickstand stand = tag();
    stand.gegenstand = Gegenstand::Mittel;
    m_blatt->zeige(stand);
    m_blatt->waehleZiel(fe);
    QCOMPARE(namen().size(), 4);
    QPushButton &nehmen = teil<QPushButton>("nehmen");
    QVERIFY(!nehmen.isEnabled());
    QCOMPARE(nehmen.toolTip(), u"Im Mittel lässt sich nichts ändern. Wählen Sie einen Tag."_s);
    QCOMPARE(nehmen.accessibleDescription(), nehmen.toolTip());
    const QSignalSpy gewuenscht(m_blatt.get(), &Einblickblatt::aenderungGewuenscht);
    QTest::keyClick(&liste(), Qt::Key_Return);
    QCOMPARE(gewuenscht.size(), 0);
    m_blatt->zeige(tag());
    QVERIFY(nehmen.isEnabled());
    QCOMPARE(nehmen.toolTip(), QString());
}

void TestVorschlagsanzeige::aRowOfNoPlaceCanNotBeReplaced()
{
    Einblickstand stand = tag();
    stand.speisen[0].ort = -1;
    m_blatt->zeige(stand);
    QCOMPARE(namen().size(), 1);
    QVERIFY(!teil<QPushButton>("nehmen").isEnabled());
    m_blatt->waehleZiel(fe);
    QVERIFY(teil<QPushButton>("nehmen").isEnabled());
}

void TestVorschlagsanzeige::nothingIsCutOff_data()
{
    QTest::addColumn<int>("breite");
    QTest::addColumn<double>("schrift");

    QTest::newRow("a small sheet") << 420 << 1.0;
    QTest::newRow("a wide sheet") << 640 << 1.0;
    QTest::newRow("large type in a wide sheet") << 640 << 2.0;
    QTest::newRow("large type in a small sheet, which grows") << 420 << 2.0;
}

void TestVorschlagsanzeige::nothingIsCutOff()
{
    QFETCH(const int, breite);
    QFETCH(const double, schrift);
    QFont font = m_blatt->font();
    font.setPointSizeF(font.pointSizeF() * schrift);
    m_blatt->setFont(font);
    m_blatt->waehleZiel(fe);
    m_blatt->resize(breite, 600);
    QCoreApplication::processEvents();
    for (const char *name : {"vorschlaege", "wirkung"}) {
        const QTableView &tabelle = teil<QTableView>(name);
        const QFontMetrics metrik(tabelle.font());
        int breiten = 0;
        for (int spalte = 0; spalte < tabelle.model()->columnCount(); ++spalte) {
            breiten += tabelle.columnWidth(spalte);
            for (int zeile = 0; zeile < tabelle.model()->rowCount(); ++zeile) {
                QString text = zelle(name, zeile, spalte);
                const auto zeilen = text.count(u'\n') + 1;
                QVERIFY2(tabelle.rowHeight(zeile) >= zeilen * metrik.lineSpacing(),
                         qPrintable(text));
                for (const QString &wort : text.replace(u'\n', u' ').split(u' ')) {
                    QVERIFY2(metrik.horizontalAdvance(wort) + 6 <= tabelle.columnWidth(spalte),
                             qPrintable(wort));
                }
            }
        }
        QVERIFY2(breiten <= tabelle.viewport()->width(), name);
    }
}

void TestVorschlagsanzeige::theSheetSpeaksEnglish()
{
    m_blatt->waehleZiel(fe);
    m_blatt->setzeWeggelassene(Weglassgruppe::Fleisch);
    const Probesprache englisch(QLocale::English);
    m_blatt->folgeSprache();
    QCOMPARE(ziel().currentText(), u"Iron: 10.0 mg too little"_s);
    QCOMPARE(teil<QPushButton>("nehmen").text(), u"A&dd"_s);
    QCOMPARE(zelle("vorschlaege", 0, Vorschlagsmodell::Bringt), u"+4.0 mg\nhelps by 40\u00a0%"_s);
    QCOMPARE(wirkungen().last(), u"Sodium: 2000 → 2010 mg ✗ worse"_s);
    QCOMPARE(teil<QLabel>("auswahlworte").text(), u"Without: Meat and sausage."_s);
    QCOMPARE(teil<QComboBox>("wunsch_gicht").currentText(), u"any"_s);
}

void TestVorschlagsanzeige::theScreenReaderHearsTheRatings()
{
    m_blatt->waehleZiel(fe);
    const QModelIndex wertung = liste().model()->index(1, Vorschlagsmodell::Wertungszeichen);
    QCOMPARE(
        wertung.data(Qt::AccessibleTextRole).toString(),
        u"Übergewicht: neutral; Diabetes: neutral; Gicht: geeignet; Herz und Kreislauf: neutral"_s);
    QCOMPARE(liste().accessibleName(), u"Vorschläge"_s);
}

void TestVorschlagsanzeige::whatIsNotListedIsSaid()
{
    m_blatt->waehleZiel(fe);
    QCOMPARE(teil<QLabel>("randnotiz").text(), u"Ohne Angabe zu Eisen und nicht dabei: 1."_s);
    m_blatt->setzeWeggelassene(Weglassgruppe::Fisch);
    QCOMPARE(teil<QLabel>("randnotiz").text(),
             u"Ohne Angabe zu Eisen und nicht dabei: 1. Eigene Lebensmittel, von denen niemand "
             u"weiß, ob sie das Weggelassene enthalten, und nicht dabei: 1."_s);
    QVERIFY(teil<QLabel>("randnotiz").isVisible());
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const Probesprache deutsch(QLocale::German);
    TestVorschlagsanzeige test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestVorschlagsanzeige.moc"
