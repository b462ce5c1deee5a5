// A day as the rows of a table: meals with their sums, what is eaten, and where the next is typed.

#include "Aufzeichnungsprobe.h"
#include "Tagesmodell.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagesmodell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void mealsRowsAndPlacesToType();
    void whereNothingCanBeTypedThereIsNoPlaceForIt();
    void aRowShowsWhatItCounts();
    void aMealShowsItsSums();
    void anAlternativeShowsNoValues();
    void whatDoesNotCountIsMarkedAndSaysWhy();
    void whatCanBeTypedIsWhatWasTyped();
    void aDayThatIsNotThereHasNoRows_data();
    void aDayThatIsNotThereHasNoRows();
    void theColumnsAreNamed();
    void whatHasChangedSinceIsMarked_data();
    void whatHasChangedSinceIsMarked();

private:
    QString text(int reihe, int spalte) const
    {
        return m_modell.index(reihe, spalte).data().toString();
    }
    QList<Mahlzeitzeile> &zeilen(int mahlzeit)
    {
        return m_eine.tage[0].mahlzeiten[mahlzeit].zeilen;
    }

    Aufzeichnung m_eine;
    Tagesmodell m_modell;
};

void TestTagesmodell::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    m_eine.mahlzeiten.resize(2);
    m_eine.tage[0].mahlzeiten.resize(2);
    Mahlzeitzeile brot = zeile(u"Brot"_s, 50);
    brot.angabe = u"2 Scheiben"_s;
    brot.eintrag = speise(u"Brot"_s, 242, 9.2F, 2, 44.5F);
    brot.eintrag->setdiabetes(u"+"_s);
    zeilen(0) = {brot, zeile(u"Butter"_s, 10, 740)};
    m_modell.zeige(m_eine, 0, true);
}

void TestTagesmodell::mealsRowsAndPlacesToType()
{
    const QList<Platz> erwartet = {{Art::Mahlzeit, 0, 0}, {Art::Speise, 0, 0},
                                   {Art::Speise, 0, 1},   {Art::Eingabe, 0, 2},
                                   {Art::Mahlzeit, 1, 0}, {Art::Eingabe, 1, 0}};
    QCOMPARE(m_modell.rowCount(), 6);
    for (int reihe = 0; reihe < 6; ++reihe) {
        QVERIFY(m_modell.platz(reihe) == erwartet[reihe]);
        QCOMPARE(m_modell.reihe(erwartet[reihe]), reihe);
    }
    QVERIFY(!m_modell.platz(6).has_value());
    QVERIFY(!m_modell.platz(-1).has_value());
    QCOMPARE(m_modell.reihe({Art::Speise, 1, 0}), -1);
    QCOMPARE(m_modell.zeile(1)->schluessel, u"Brot"_s);
    QVERIFY(m_modell.zeile(0) == nullptr);
    QVERIFY(m_modell.zeile(3) == nullptr);
}

void TestTagesmodell::whereNothingCanBeTypedThereIsNoPlaceForIt()
{
    m_modell.zeige(m_eine, 0, false);
    QCOMPARE(m_modell.rowCount(), 4);
    QVERIFY(!m_modell.beschreibbar(1, Tagesmodell::Name));
    QVERIFY(!m_modell.beschreibbar(0, Tagesmodell::Name));
}

void TestTagesmodell::aRowShowsWhatItCounts()
{
    const QStringList erwartet = {u"Brot"_s, u"2 Scheiben"_s, u"50"_s,   u"121"_s,
                                  u"4,6"_s,  u"1,0"_s,        u"22,3"_s, QString(),
                                  u"+"_s,    QString(),       QString()};
    for (int spalte = 0; spalte < Tagesmodell::anzahlSpalten; ++spalte) {
        QCOMPARE(text(1, spalte), erwartet[spalte]);
    }
    QVERIFY(m_modell.index(1, 0).data(Qt::ToolTipRole).toString().isEmpty());
}

void TestTagesmodell::aMealShowsItsSums()
{
    QCOMPARE(text(0, Tagesmodell::Name), u"Frühstück"_s);
    QCOMPARE(text(0, Tagesmodell::Angabe), QString());
    QCOMPARE(text(0, Tagesmodell::Gramm), u"60"_s);
    QCOMPARE(text(0, Tagesmodell::Energie), u"195"_s); // 121 + 74
    QCOMPARE(text(0, Tagesmodell::Protein), u"4,6"_s);
    QCOMPARE(text(0, Tagesmodell::Fest), QString());
    QCOMPARE(text(4, Tagesmodell::Name), u"Vormittag"_s);
    QCOMPARE(text(4, Tagesmodell::Energie), QString()); // nothing is not 0
    QVERIFY(m_modell.index(0, 0).data(Qt::FontRole).value<QFont>().bold());
}

void TestTagesmodell::anAlternativeShowsNoValues()
{
    zeilen(0)[1] = oder(zeilen(0)[1]);
    m_modell.zeige(m_eine, 0, true);
    QCOMPARE(text(2, Tagesmodell::Name), u"oder Butter"_s);
    QCOMPARE(text(2, Tagesmodell::Gramm), u"10"_s);
    QCOMPARE(text(2, Tagesmodell::Energie), QString());
    QCOMPARE(text(0, Tagesmodell::Energie), u"121"_s);
    QCOMPARE(m_modell.index(2, 0).data(Qt::ToolTipRole).toString(),
             u"Eine Wahl statt der Zeile davor; sie zählt nicht."_s);
}

void TestTagesmodell::whatDoesNotCountIsMarkedAndSaysWhy()
{
    zeilen(0)[1].gramm.reset();
    zeilen(0)[1].angabe = u"3 Bund"_s;
    zeilen(0) << Mahlzeitzeile{.text = u"Omas Auflauf"_s, .angabe = u"1 Teller"_s};
    m_modell.zeige(m_eine, 0, true);
    QCOMPARE(text(2, Tagesmodell::Name), u"Butter"_s);
    QCOMPARE(text(2, Tagesmodell::Angabe), u"? 3 Bund"_s);
    QCOMPARE(text(2, Tagesmodell::Gramm), QString());
    QCOMPARE(m_modell.index(2, 0).data(Qt::AccessibleDescriptionRole).toString(),
             u"Die Menge ist nicht zu verstehen; die Zeile zählt nicht."_s);
    QCOMPARE(text(3, Tagesmodell::Name), u"? Omas Auflauf"_s);
    QCOMPARE(text(3, Tagesmodell::Angabe), u"? 1 Teller"_s);
    QVERIFY(m_modell.index(3, 0)
                .data(Qt::ToolTipRole)
                .toString()
                .startsWith(
                    u"Ein Lebensmittel dieses Namens gibt es nicht; die Zeile zählt nicht. "_s));
}

void TestTagesmodell::whatCanBeTypedIsWhatWasTyped()
{
    QCOMPARE(m_modell.eingabetext(0, Tagesmodell::Name), u"Frühstück"_s);
    QCOMPARE(m_modell.eingabetext(1, Tagesmodell::Name), u"Brot"_s);
    QCOMPARE(m_modell.eingabetext(1, Tagesmodell::Angabe), u"2 Scheiben"_s);
    QCOMPARE(m_modell.eingabetext(3, Tagesmodell::Name), QString());
    QVERIFY(m_modell.beschreibbar(0, Tagesmodell::Name));
    QVERIFY(!m_modell.beschreibbar(0, Tagesmodell::Angabe));
    QVERIFY(m_modell.beschreibbar(1, Tagesmodell::Angabe));
    QVERIFY(!m_modell.beschreibbar(1, Tagesmodell::Gramm));
    QVERIFY(m_modell.beschreibbar(3, Tagesmodell::Name));
    QVERIFY(!m_modell.beschreibbar(3, Tagesmodell::Angabe));
    QVERIFY(!m_modell.beschreibbar(6, Tagesmodell::Name));
}

void TestTagesmodell::aDayThatIsNotThereHasNoRows_data()
{
    QTest::addColumn<int>("tag");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 1;
}

void TestTagesmodell::aDayThatIsNotThereHasNoRows()
{
    QFETCH(int, tag);
    m_modell.zeige(m_eine, tag, true);
    QCOMPARE(m_modell.rowCount(), 0);
    QVERIFY(!m_modell.index(0, 0).data().isValid());
}

void TestTagesmodell::theColumnsAreNamed()
{
    QStringList koepfe;
    for (int spalte = 0; spalte < m_modell.columnCount(); ++spalte) {
        koepfe << m_modell.headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    QCOMPARE(koepfe,
             QStringList({u"Lebensmittel"_s, u"Menge"_s, u"g"_s, u"kcal"_s, u"Protein (g)"_s,
                          u"Fett (g)"_s, u"KH (g)"_s, u"Ü"_s, u"D"_s, u"G"_s, u"H"_s}));
    QCOMPARE(m_modell.headerData(7, Qt::Horizontal, Qt::ToolTipRole).toString(), u"Übergewicht"_s);
    QCOMPARE(m_modell.headerData(6, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
             u"Kohlenhydrate (g)"_s);
}

void TestTagesmodell::whatHasChangedSinceIsMarked_data()
{
    QTest::addColumn<float>("heute"); // kcal; below 0: it is in no store any more
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("worte");
    QTest::newRow("as it was") << 242.0F << u"Brot"_s << QString();
    QTest::newRow("other values") << 241.0F << u"Brot *"_s << u"heute andere Werte"_s;
    QTest::newRow("gone") << -1.0F << u"Brot *"_s << u"in keiner Tabelle mehr"_s;
}

void TestTagesmodell::whatHasChangedSinceIsMarked()
{
    QFETCH(const float, heute);
    QFETCH(const QString, worte);
    Datenmodul brot = *zeilen(0)[0].eintrag;
    brot.setkal(heute);
    m_modell.setNachschlag([&](const QString &schluessel) {
        return schluessel == u"Brot"_s && heute >= 0 ? &brot : nullptr;
    });
    QTEST(text(1, Tagesmodell::Name), "name");
    for (const int rolle : {Qt::ToolTipRole, Qt::AccessibleDescriptionRole}) {
        const QString gesagt = m_modell.index(1, 0).data(rolle).toString();
        QVERIFY2(gesagt.contains(worte) && gesagt.isEmpty() == worte.isEmpty(), qPrintable(gesagt));
    }
    QCOMPARE(m_modell.eingabetext(1, Tagesmodell::Name), u"Brot"_s);
}

QTEST_MAIN(TestTagesmodell)
#include "TestTagesmodell.moc"
