// The sheet of reference values, through keys and clicks.

#include "Referenzblatt.h"
#include "Referenzprobe.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Milk with 120 mg of calcium in 100 g, and a soup of which nobody knows it; 1.5 mg of iron each.
Speise milch(double gramm)
{
    Datenmodul eine;
    eine.setca(120);
    eine.setfe(1.5F);
    eine.setkal(65);
    return {u"Milch"_s, eine, gramm, 0};
}

Speise suppe(double gramm)
{
    Datenmodul eine;
    eine.setfe(1.5F);
    eine.setkal(40);
    return {u"Suppe"_s, eine, gramm, 1};
}

QString worte(const Referenzblatt &blatt, Naehrwert wert)
{
    return blatt.posten(wert).worte().text();
}

} // namespace

class TestReferenzblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachNutrientHasItsRow();
    void aDayIsJudged();
    void bothSetsCanBeCompared();
    void theGeneralNeedsAreShownWhereNoSetIs();
    void theUnknownIsSaid();
    void allUnknownIsNotNought();
    void whatIsLackingSaysWhy();
    void aFoodAloneIsNotJudged();
    void nothingToCountIsSaid();
    void theKeysGoThroughTheRows();
    void aClickTakesTheKeyboardThere();
    void theTabKeyStopsOnce();
    void theTextOfARowIsReadable();
    void theWordsFollowTheLanguage();
    void nothingIsCutOffInANarrowWindow();
    void theBarsStandInLine();

private:
    Referenzposten &posten(const char *name) const
    {
        return *m_blatt->findChild<Referenzposten *>(QLatin1String(name));
    }
    QString kopf() const { return m_blatt->findChild<QLabel *>(u"kopf"_s)->text(); }

    std::unique_ptr<Referenzblatt> m_blatt;
};

void TestReferenzblatt::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_blatt = std::make_unique<Referenzblatt>();
    m_blatt->resize(420, 520);
    m_blatt->show();
    QVERIFY(QTest::qWaitForWindowActive(m_blatt.get()));
}

void TestReferenzblatt::eachNutrientHasItsRow()
{
    QStringList namen;
    for (const Referenzposten *einer : m_blatt->findChildren<Referenzposten *>()) {
        namen << einer->objectName();
    }
    QStringList erwartet;
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        erwartet << QString::fromUtf8(eine.kennung);
    }
    QCOMPARE(namen, erwartet);
}

void TestReferenzblatt::aDayIsJudged()
{
    // 500 g of milk: 600 mg of calcium, 7.5 mg of iron, 325 kcal.
    m_blatt->zeige(Referenzprobe::stand({milch(500)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    QCOMPARE(kopf(), u"Verglichen mit: EFSA\nMehr zu einer Zeile: F1 oder die Maus darauf."_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).menge().text(), u"600 mg"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::ca),
             u"zu wenig · mind. 950 mg · Empfehlung · höchstens 2500 mg"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::ZuWenig);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().beschreibung(),
             u"600 mg, zu wenig (mind. 950 mg · höchstens 2500 mg)"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::kal), u"zu wenig · etwa 2006 kcal · Durchschnittsbedarf"_s);
    // 1000 g: 1200 mg and 15 mg.
    m_blatt->zeige(Referenzprobe::stand({milch(1000)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    QCOMPARE(worte(*m_blatt, Naehrwert::fe),
             u"passt · mind. 11,0 mg · Empfehlung · sicher bis 40,0 mg"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::fe).balken().urteil(), Bereichsurteil::Richtig);
    // 3000 g: 3600 mg, above the upper level; 45 mg of iron are above what is safe, which is none.
    m_blatt->zeige(Referenzprobe::stand({milch(3000)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::Ueberhoeht);
    QVERIFY(worte(*m_blatt, Naehrwert::ca).startsWith(u"über der Obergrenze · "));
    QCOMPARE(m_blatt->posten(Naehrwert::fe).balken().urteil(), Bereichsurteil::Richtig);
}

void TestReferenzblatt::bothSetsCanBeCompared()
{
    const Speisen tag = {milch(820)}; // 984 mg
    m_blatt->zeige(Referenzprobe::stand(tag, Referenzsatz::Efsa, Referenzprobe::mann()));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::Richtig);
    m_blatt->zeige(Referenzprobe::stand(tag, Referenzsatz::Dach, Referenzprobe::mann()));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::ZuWenig);
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"zu wenig · mind. 1000 mg · Empfehlung"_s);
    QVERIFY(kopf().startsWith(u"Verglichen mit: D-A-CH\n"));
}

void TestReferenzblatt::theGeneralNeedsAreShownWhereNoSetIs()
{
    Einblickstand stand = Referenzprobe::stand({milch(500)}, {}, {});
    stand.ziele = {{Kenngroesse::ca, 1000, 1500, {}}};
    m_blatt->zeige(stand);
    QVERIFY(kopf().startsWith(u"Verglichen mit: Allgemeiner Tagesbedarf\n"));
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"zu wenig · 1000–1500 mg"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::fe), u"Energiebedarf noch nicht bekannt"_s);
    QVERIFY(m_blatt->posten(Naehrwert::fe).balken().beschreibung().isEmpty());
    QCOMPARE(m_blatt->posten(Naehrwert::fe).menge().text(), u"7,5 mg"_s);
}

void TestReferenzblatt::theUnknownIsSaid()
{
    // 300 g of 1000 g say nothing of calcium; 700 g give 840 mg.
    m_blatt->zeige(
        Referenzprobe::stand({milch(700), suppe(300)}, Referenzsatz::Dach, Referenzprobe::mann()));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::VielleichtZuWenig);
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"vielleicht zu wenig · mind. 1000 mg · Empfehlung · "
                                             "bei 30 % der Menge unbekannt"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).auskunft().last(),
             u"bei 30 % der Menge unbekannt: Suppe"_s);
    QVERIFY(!worte(*m_blatt, Naehrwert::fe).contains(u"unbekannt"));
}

void TestReferenzblatt::allUnknownIsNotNought()
{
    m_blatt->zeige(Referenzprobe::stand({suppe(300)}, Referenzsatz::Dach, Referenzprobe::mann()));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).menge().text(), u"unbekannt"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::Keines);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().beschreibung(), u"mind. 1000 mg"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"mind. 1000 mg · Empfehlung"_s);
}

void TestReferenzblatt::whatIsLackingSaysWhy()
{
    Referenzperson ohneAlter = Referenzprobe::mann();
    ohneAlter.alter.reset();
    m_blatt->zeige(Referenzprobe::stand({milch(500)}, Referenzsatz::Dach, ohneAlter));
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"kein Wert: Das Alter fehlt"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::chol), u"kein Wert: Es ist keiner festgelegt"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).menge().text(), u"600 mg"_s);
    QVERIFY(m_blatt->posten(Naehrwert::ca).balken().beschreibung().isEmpty());
}

void TestReferenzblatt::aFoodAloneIsNotJudged()
{
    Einblickstand stand =
        Referenzprobe::stand({milch(200)}, Referenzsatz::Dach, Referenzprobe::mann());
    stand.gegenstand = Gegenstand::Lebensmittel;
    m_blatt->zeige(stand);
    // 240 of 1000 mg.
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"24 % davon · mind. 1000 mg · Empfehlung"_s);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::Keines);
    QVERIFY(kopf().contains(u"was diese Menge zu einem Tag beiträgt"));
    stand.gegenstand = Gegenstand::Mittel;
    m_blatt->zeige(stand);
    QCOMPARE(m_blatt->posten(Naehrwert::ca).balken().urteil(), Bereichsurteil::ZuWenig);
}

void TestReferenzblatt::nothingToCountIsSaid()
{
    m_blatt->zeige(Referenzprobe::stand({}, Referenzsatz::Dach, Referenzprobe::mann()));
    QVERIFY(kopf().contains(u"Hier zählt noch kein Lebensmittel."));
    QCOMPARE(m_blatt->posten(Naehrwert::ca).menge().text(), u"–"_s);
    QCOMPARE(worte(*m_blatt, Naehrwert::ca), u"mind. 1000 mg · Empfehlung"_s);
}

void TestReferenzblatt::theKeysGoThroughTheRows()
{
    posten("kal").setFocus(Qt::TabFocusReason);
    QTest::keyClick(&posten("kal"), Qt::Key_Up);
    QVERIFY(posten("kal").hasFocus()); // the first one
    QTest::keyClick(&posten("kal"), Qt::Key_Down);
    QVERIFY(posten("protein").hasFocus());
    QTest::keyClick(&posten("protein"), Qt::Key_End);
    QVERIFY(posten("vitc").hasFocus());
    const auto *rolle = m_blatt->findChild<QScrollArea *>();
    QVERIFY(rolle->verticalScrollBar()->value() > 0); // it is seen
    QTest::keyClick(&posten("vitc"), Qt::Key_Down);
    QVERIFY(posten("vitc").hasFocus());
    QTest::keyClick(&posten("vitc"), Qt::Key_Up);
    QVERIFY(posten("b6").hasFocus());
    QTest::keyClick(&posten("b6"), Qt::Key_Home);
    QVERIFY(posten("kal").hasFocus());
    QCOMPARE(rolle->verticalScrollBar()->value(), 0);
}

void TestReferenzblatt::aClickTakesTheKeyboardThere()
{
    QTest::mouseClick(&posten("fett"), Qt::LeftButton);
    QVERIFY(posten("fett").hasFocus());
    QCOMPARE(posten("fett").focusPolicy(), Qt::StrongFocus);
    QCOMPARE(posten("kal").focusPolicy(), Qt::ClickFocus);
    QTest::keyClick(&posten("fett"), Qt::Key_Down);
    QVERIFY(posten("kh").hasFocus());
}

void TestReferenzblatt::theTabKeyStopsOnce()
{
    int haltestellen = 0;
    for (const Referenzposten *einer : m_blatt->findChildren<Referenzposten *>()) {
        haltestellen += (einer->focusPolicy() & Qt::TabFocus) != 0 ? 1 : 0;
    }
    QCOMPARE(haltestellen, 1);
}

void TestReferenzblatt::theTextOfARowIsReadable()
{
    m_blatt->zeige(Referenzprobe::stand({milch(500)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    Referenzposten &zeile = posten("ca");
    QCOMPARE(zeile.accessibleName(),
             u"Calcium, 600 mg, zu wenig · mind. 950 mg · Empfehlung · höchstens 2500 mg"_s);
    QVERIFY(zeile.accessibleDescription().contains(u"Quelle: EFSA-DRV4, EFSA-UL11"));
    QCOMPARE(zeile.auskunft().first(), u"Calcium · 600 mg · zu wenig"_s);
    // F1 opens the same beside the row.
    zeile.setFocus(Qt::TabFocusReason);
    auto *fahne = zeile.findChild<QLabel *>(u"fahne"_s);
    QVERIFY(!fahne->isVisible());
    QTest::keyClick(&zeile, Qt::Key_F1);
    QVERIFY(fahne->isVisible());
    QVERIFY(fahne->text().contains(u"EFSA-UL11"));
    QTest::keyClick(&zeile, Qt::Key_Escape);
    QVERIFY(!fahne->isVisible());
}

void TestReferenzblatt::theWordsFollowTheLanguage()
{
    m_blatt->zeige(Referenzprobe::stand({milch(500)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    Referenzprobe::Woerterbuch woerter;
    QCoreApplication::installTranslator(&woerter);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_blatt->folgeSprache();
    QVERIFY(worte(*m_blatt, Naehrwert::ca).startsWith(u"too little"));
    QVERIFY(worte(*m_blatt, Naehrwert::bs).contains(u"Adequate"));
    QVERIFY(posten("na").auskunft().contains(u"Safe and adequate intake"_s));
    QCoreApplication::removeTranslator(&woerter);
}

void TestReferenzblatt::nothingIsCutOffInANarrowWindow()
{
    m_blatt->zeige(Referenzprobe::stand({milch(700), suppe(300)}, Referenzsatz::Efsa,
                                        Referenzprobe::schwangere()));
    QCoreApplication::processEvents();
    QCOMPARE(m_blatt->width(), 420);
    const auto *rolle = m_blatt->findChild<QScrollArea *>();
    QVERIFY(rolle->widget()->width() <= rolle->viewport()->width());
    for (const Referenzposten *einer : m_blatt->findChildren<Referenzposten *>()) {
        const QLabel &text = einer->worte();
        QTRY_VERIFY_WITH_TIMEOUT(text.height() >= text.heightForWidth(text.width()), 1000);
        QVERIFY(einer->menge().width() >= einer->menge().sizeHint().width());
    }
}

void TestReferenzblatt::theBarsStandInLine()
{
    m_blatt->zeige(Referenzprobe::stand({milch(500)}, Referenzsatz::Efsa, Referenzprobe::mann()));
    QCoreApplication::processEvents();
    QSet<int> anfaenge;
    for (const Bereichsbalken *einer : m_blatt->findChildren<Bereichsbalken *>()) {
        anfaenge << einer->mapTo(m_blatt.get(), QPoint(0, 0)).x();
    }
    QCOMPARE(anfaenge.size(), 1);
}

QTEST_MAIN(TestReferenzblatt)
#include "TestReferenzblatt.moc"
