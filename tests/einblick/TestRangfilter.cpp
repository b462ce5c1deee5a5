// What the user says about which foods are to be ranked, seen in the window of the ranks.

#include "Probesprache.h"
#include "Rangprobe.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

class TestRangfilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theChoicesCanBeOpenedAndClosed();
    void aGroupNarrows();
    void ownFoodsAreAChoice();
    void aRatingNarrows_data();
    void aRatingNarrows();
    void aRangeNarrowsLetterByLetter();
    void aNewRangeIsAboutTheRankedFigure();
    void rangesAreKeptTogether();
    void aRangeSaysItsUnitAndIsNamed();
    void theUnknownOfARangeIsCountedAndKeepsItsFigure();
    void oneFoodHasAnEnglishWordOfItsOwn();
    void aRangeGoesAway();
    void theKeyboardStaysWhereARangeWent();
    void whatNarrowsIsCountedAndLifted();
    void emptyResultsSayWhy_data();
    void emptyResultsSayWhy();
    void ownFoodsMayAllBeLeftOut();
    void withoutTheTableGroupsAreUnknown();
    void theTabKeyGoesThroughTheRanges();

private:
    QList<QLineEdit *> felder(const char *name) const;
    void tippe(const char *name, int zeile, const QString &text) const;
    void neuerBereich() const;
    QComboBox &bereichsgroesse(int zeile) const;

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<Rangprobe> m_probe;
};

void TestRangfilter::init()
{
    m_probe = std::make_unique<Rangprobe>();
    QVERIFY(m_probe->oeffne());
    QTest::mouseClick(&m_probe->teil<QToolButton>("eingrenzen"), Qt::LeftButton);
}

void TestRangfilter::cleanup()
{
    m_probe.reset();
    m_sprache.reset();
    QLocale::setDefault(QLocale::c());
}

QList<QLineEdit *> TestRangfilter::felder(const char *name) const
{
    QList<QLineEdit *> sichtbare;
    for (QLineEdit *feld : m_probe->fenster->findChildren<QLineEdit *>(QString::fromUtf8(name))) {
        if (feld->isVisible()) {
            sichtbare << feld;
        }
    }
    return sichtbare;
}

void TestRangfilter::tippe(const char *name, int zeile, const QString &text) const
{
    QLineEdit *feld = felder(name).at(zeile);
    feld->setFocus();
    feld->selectAll();
    QTest::keyClick(feld, Qt::Key_Delete);
    QTest::keyClicks(feld, text);
}

void TestRangfilter::neuerBereich() const
{
    const qsizetype vorher = felder("von").size();
    QTest::mouseClick(&m_probe->teil<QPushButton>("neuerbereich"), Qt::LeftButton);
    QTRY_COMPARE(felder("von").size(), vorher + 1);
}

QComboBox &TestRangfilter::bereichsgroesse(int zeile) const
{
    return *m_probe->fenster->findChildren<QComboBox *>(u"bereichsgroesse"_s).at(zeile);
}

void TestRangfilter::theChoicesCanBeOpenedAndClosed()
{
    const auto &gruppe = m_probe->teil<QComboBox>("gruppe");
    QVERIFY(gruppe.isVisible());
    auto &knopf = m_probe->teil<QToolButton>("eingrenzen");
    knopf.setFocus();
    QTest::keyClick(&knopf, Qt::Key_Space);
    QVERIFY(!gruppe.isVisible());
    QTest::keyClick(&knopf, Qt::Key_Space);
    QVERIFY(gruppe.isVisible());
}

void TestRangfilter::aGroupNarrows()
{
    m_probe->waehle("gruppe", u"Obst"_s);
    QCOMPARE(m_probe->zeilen(), (QStringList{u"1 Äpfel: 2.0 g"_s}));
    m_probe->waehle("gruppe", u"Käse"_s);
    QCOMPARE(m_probe->zeilen().size(), 4);
    m_probe->waehle("gruppe", u"Alle Gruppen"_s);
    QCOMPARE(m_probe->zeilen().size(), 5);
}

void TestRangfilter::ownFoodsAreAChoice()
{
    m_probe->waehle("gruppe", u"Eigene Lebensmittel"_s);
    QCOMPARE(m_probe->zeilen(), QStringList());
    Kandidat eigenes{.schluessel = u"Eigenbrot"_s, .satz = {}, .eigen = true};
    eigenes.satz.setbs(7);
    m_probe->speisen << eigenes;
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zeilen(), (QStringList{u"1 Eigenbrot: 7.0 g"_s}));
}

void TestRangfilter::aRatingNarrows_data()
{
    QTest::addColumn<QString>("wunsch");
    QTest::addColumn<QStringList>("namen");

    // For diabetes bread is "-", apples are "+", all others "0".
    QTest::newRow("any") << u"beliebig"_s
                         << QStringList{u"Linsen"_s, u"Brot"_s, u"Äpfel"_s, u"Käse"_s, u"Zucker"_s};
    QTest::newRow("+") << u"+"_s << QStringList{u"Äpfel"_s};
    QTest::newRow("+ or 0") << u"+ oder 0"_s
                            << QStringList{u"Linsen"_s, u"Äpfel"_s, u"Käse"_s, u"Zucker"_s};
}

void TestRangfilter::aRatingNarrows()
{
    QFETCH(const QString, wunsch);
    m_probe->speisen[1].satz.setdiabetes(u"+"_s);
    m_probe->speisen[2].satz.setdiabetes(u"-"_s);
    m_probe->fenster->frischeAuf();
    m_probe->waehle("wertungdiabetes", u"+ oder 0"_s);
    m_probe->waehle("wertungdiabetes", wunsch);
    QStringList namen;
    for (int i = 0; i < m_probe->zeilen().size(); ++i) {
        namen << m_probe->name(i);
    }
    QTEST(namen, "namen");
}

/// A new range is about the figure that is ranked.
void TestRangfilter::aRangeNarrowsLetterByLetter()
{
    neuerBereich();
    QCOMPARE(bereichsgroesse(0).currentText(), u"Ballaststoffe"_s);
    QCOMPARE(m_probe->zeilen().size(), 5); // it has no end yet
    tippe("von", 0, u"1"_s);
    QCOMPARE(m_probe->zeilen().size(), 3);
    QTest::keyClicks(felder("von").at(0), u"7"_s); // "17"
    QCOMPARE(m_probe->zeilen(), (QStringList{u"1 Linsen: 17.0 g"_s}));
    tippe("von", 0, {});
    tippe("bis", 0, u"4,9"_s);
    QCOMPARE(m_probe->zeilen().first(), u"1 Äpfel: 2.0 g"_s);
    tippe("bis", 0, u"5"_s);
    QCOMPARE(m_probe->zeilen().first(), u"1 Brot: 5.0 g"_s);
}

void TestRangfilter::aNewRangeIsAboutTheRankedFigure()
{
    m_probe->waehle("ranggroesse", u"Natrium"_s);
    neuerBereich();
    QCOMPARE(bereichsgroesse(0).currentText(), u"Natrium"_s);
}

void TestRangfilter::rangesAreKeptTogether()
{
    neuerBereich();
    tippe("von", 0, u"2"_s);
    neuerBereich();
    m_probe->waehle(bereichsgroesse(1), u"Natrium"_s);
    tippe("bis", 1, u"4"_s);
    QCOMPARE(m_probe->zeilen(), (QStringList{u"1 Linsen: 17.0 g"_s, u"2 Äpfel: 2.0 g"_s}));
}

void TestRangfilter::aRangeSaysItsUnitAndIsNamed()
{
    neuerBereich();
    m_probe->waehle(bereichsgroesse(0), u"Natrium"_s);
    QCOMPARE(felder("von").at(0)->accessibleName(), u"Natrium von, in mg"_s);
    QCOMPARE(felder("bis").at(0)->accessibleName(), u"Natrium bis, in mg"_s);
    QCOMPARE(m_probe->teil<QToolButton>("bereichweg").accessibleName(),
             u"Bereich für Natrium herausnehmen"_s);
}

/// Of the cheese the iron is unknown, its fibre is not.
void TestRangfilter::theUnknownOfARangeIsCountedAndKeepsItsFigure()
{
    neuerBereich();
    m_probe->waehle(bereichsgroesse(0), u"Eisen"_s);
    tippe("bis", 0, u"1"_s);
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"1 Äpfel: 2.0 g"_s, u"2 Zucker: 0.0 g"_s, u"– Käse: 0.0 g"_s}));
    QCOMPARE(m_probe->wort("rangworte"),
             u"2 Lebensmittel mit Rang. Am Ende der Liste: 1 Lebensmittel ohne Angabe."_s);
    QVERIFY(m_probe->tabelle()
                .model()
                ->index(2, 1)
                .data(Qt::AccessibleTextRole)
                .toString()
                .contains(u"ohne Rang, eine Angabe fehlt"_s));
}

/// Only sugar is known to hold so little iron; that of the cheese is unknown.
void TestRangfilter::oneFoodHasAnEnglishWordOfItsOwn()
{
    neuerBereich();
    m_probe->waehle(bereichsgroesse(0), u"Eisen"_s);
    tippe("bis", 0, u"0.4"_s);
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    m_probe->fenster->folgeSprache();
    QCOMPARE(m_probe->wort("rangworte"),
             u"1 food with a rank. At the end of the list: 1 food without a figure."_s);
    m_probe->waehle("rangbezug", u"per portion"_s);
    QCOMPARE(m_probe->wort("rangworte"), u"0 foods with a rank. At the end of the list: "
                                         "1 food without a figure, 1 food without a portion."_s);
}

void TestRangfilter::aRangeGoesAway()
{
    neuerBereich();
    tippe("von", 0, u"17"_s);
    QCOMPARE(m_probe->zeilen().size(), 1);
    QTest::mouseClick(&m_probe->teil<QToolButton>("bereichweg"), Qt::LeftButton);
    QCOMPARE(m_probe->zeilen().size(), 5);
    QCOMPARE(felder("von").size(), 0);
}

void TestRangfilter::theKeyboardStaysWhereARangeWent()
{
    neuerBereich();
    neuerBereich();
    const auto knoepfe = m_probe->fenster->findChildren<QToolButton *>(u"bereichweg"_s);
    knoepfe[0]->setFocus();
    QTest::keyClick(knoepfe[0], Qt::Key_Space);
    QVERIFY(knoepfe[1]->hasFocus());
    QTest::keyClick(knoepfe[1], Qt::Key_Space);
    QVERIFY(m_probe->teil<QPushButton>("neuerbereich").hasFocus());
}

void TestRangfilter::whatNarrowsIsCountedAndLifted()
{
    const auto &knopf = m_probe->teil<QToolButton>("eingrenzen");
    auto &aufheben = m_probe->teil<QPushButton>("aufheben");
    QCOMPARE(knopf.text(), u"&Eingrenzen"_s);
    QVERIFY(!aufheben.isEnabled());
    m_probe->waehle("gruppe", u"Käse"_s);
    QCOMPARE(knopf.text(), u"&Eingrenzen (1)"_s);
    m_probe->waehle("wertunggicht", u"+"_s);
    neuerBereich();
    QCOMPARE(knopf.text(), u"&Eingrenzen (2)"_s); // the range has no end yet
    tippe("von", 0, u"17"_s);
    QCOMPARE(knopf.text(), u"&Eingrenzen (3)"_s);
    QTest::mouseClick(&aufheben, Qt::LeftButton);
    QCOMPARE(knopf.text(), u"&Eingrenzen"_s);
    QCOMPARE(m_probe->zeilen().size(), 5);
    QCOMPARE(m_probe->teil<QComboBox>("gruppe").currentIndex(), 0);
    QCOMPARE(m_probe->teil<QComboBox>("wertunggicht").currentIndex(), 0);
    QCOMPARE(felder("von").size(), 0);
}

void TestRangfilter::emptyResultsSayWhy_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<QString>("von");
    QTest::addColumn<QString>("bis");
    QTest::addColumn<QString>("worte");

    const QString alle = u"Alle Gruppen"_s;
    const QString nichts =
        u"Kein Lebensmittel erfüllt alles, was unter „Eingrenzen“ gewählt ist."_s;
    QTest::newRow("the wrong way round")
        << alle << u"5"_s << u"2"_s
        << u"Kein Lebensmittel: Der Bereich für Ballaststoffe hört auf, bevor er anfängt."_s;
    QTest::newRow("equal ends without a food") << alle << u"3"_s << u"3"_s << nichts;
    QTest::newRow("no own foods") << u"Eigene Lebensmittel"_s << QString() << QString()
                                  << u"Es gibt noch keine eigenen Lebensmittel."_s;
    QTest::newRow("an empty group") << u"Bier"_s << QString() << QString() << nichts;
    QTest::newRow("nothing in the range") << alle << u"18"_s << QString() << nichts;
}

void TestRangfilter::emptyResultsSayWhy()
{
    QFETCH(const QString, gruppe);
    QFETCH(const QString, von);
    QFETCH(const QString, bis);
    m_probe->waehle("gruppe", gruppe);
    neuerBereich();
    tippe("von", 0, von);
    tippe("bis", 0, bis);
    QTEST(m_probe->wort("rangleer"), "worte");
    QVERIFY(!m_probe->tabelle().isVisible());
}

void TestRangfilter::ownFoodsMayAllBeLeftOut()
{
    m_probe->speisen << Kandidat{.schluessel = u"Eigenbrot"_s, .satz = {}, .eigen = true};
    m_probe->fenster->frischeAuf();
    m_probe->waehle("gruppe", u"Eigene Lebensmittel"_s);
    m_probe->waehle("wertunggicht", u"+"_s);
    QCOMPARE(m_probe->wort("rangleer"),
             u"Kein Lebensmittel erfüllt alles, was unter „Eingrenzen“ gewählt ist."_s);
}

void TestRangfilter::withoutTheTableGroupsAreUnknown()
{
    m_probe->zusatz.clear();
    m_probe->fenster->frischeAuf();
    m_probe->waehle("gruppe", u"Obst"_s);
    QCOMPARE(m_probe->wort("rangleer"),
             u"Die Gruppen der Lebensmittel konnten nicht gelesen werden."_s);
}

void TestRangfilter::theTabKeyGoesThroughTheRanges()
{
    neuerBereich();
    QVERIFY(bereichsgroesse(0).hasFocus());
    QStringList namen;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        namen << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(namen, (QStringList{u"bereichsbezug"_s, u"von"_s, u"bis"_s, u"bereichweg"_s,
                                 u"neuerbereich"_s, u"rangliste"_s}));
}

QTEST_MAIN(TestRangfilter)
#include "TestRangfilter.moc"
