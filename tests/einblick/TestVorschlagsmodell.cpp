#include "Probesprache.h"
#include "Vorschlagsmodell.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Kenngroesse;

class TestVorschlagsmodell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_deutsch = std::make_unique<Probesprache>(QLocale::German); }

    void whatIsUnknownIsSaid();
    void lessHasItsSign();
    void anAmountWithoutAMeasureIsInGrams();
    void aSwapNamesWhoGivesUpTheirPlace();
    void aFoodWithoutARatingHasNone();
    void theHeadingsTellWhatTheSignsMean();

private:
    QString zelle(const Vorschlag &vorschlag, int spalte, int rolle = Qt::DisplayRole);

    std::unique_ptr<Probesprache> m_deutsch;
    Vorschlagsmodell m_modell;
};

namespace {

Vorschlag hirse()
{
    Datenmodul satz;
    satz.setgicht(u"-"_s);
    return {.speise = {u"Hirse"_s, satz, 60},
            .angabe = u"1 Portion"_s,
            .aenderung = 4,
            .geschlossen = 0.8};
}

} // namespace

QString TestVorschlagsmodell::zelle(const Vorschlag &vorschlag, int spalte, int rolle)
{
    m_modell.zeige({vorschlag}, {{u"Reis"_s, Datenmodul(), 60}}, fe);
    return m_modell.index(0, spalte).data(rolle).toString();
}

void TestVorschlagsmodell::whatIsUnknownIsSaid()
{
    Vorschlag einer = hirse();
    QCOMPARE(zelle(einer, Vorschlagsmodell::Bringt), u"+4,0 mg\nhilft zu 80\u00a0%"_s);
    einer.unbekannt = 0.3;
    QCOMPARE(zelle(einer, Vorschlagsmodell::Bringt),
             u"+4,0 mg\nhilft zu 80\u00a0%\nbei 30 % der Menge unbekannt"_s);
}

void TestVorschlagsmodell::lessHasItsSign()
{
    Vorschlag einer = hirse();
    einer.aenderung = -2;
    QVERIFY(zelle(einer, Vorschlagsmodell::Bringt).startsWith(u"−2,0 mg\n"_s));
}

void TestVorschlagsmodell::anAmountWithoutAMeasureIsInGrams()
{
    Vorschlag einer = hirse();
    QCOMPARE(zelle(einer, Vorschlagsmodell::Lebensmittel), u"Hirse\n1 Portion (60 g)"_s);
    einer.angabe.clear();
    QCOMPARE(zelle(einer, Vorschlagsmodell::Lebensmittel), u"Hirse\n60 g"_s);
}

void TestVorschlagsmodell::aSwapNamesWhoGivesUpTheirPlace()
{
    Vorschlag einer = hirse();
    einer.zeile = 0;
    QCOMPARE(zelle(einer, Vorschlagsmodell::Lebensmittel), u"Hirse\n60 g statt Reis"_s);
    einer.zeile = 1; // there is no such row
    QCOMPARE(zelle(einer, Vorschlagsmodell::Lebensmittel), u"Hirse\n1 Portion (60 g)"_s);
}

void TestVorschlagsmodell::aFoodWithoutARatingHasNone()
{
    QCOMPARE(zelle(hirse(), Vorschlagsmodell::Wertungszeichen), u"?\u00a0?\u00a0-\u00a0?"_s);
    QCOMPARE(zelle(hirse(), Vorschlagsmodell::Wertungszeichen, Qt::AccessibleTextRole),
             u"Übergewicht: unbekannt; Diabetes: unbekannt; Gicht: ungeeignet; Herz und Kreislauf: "
             u"unbekannt"_s);
}

void TestVorschlagsmodell::theHeadingsTellWhatTheSignsMean()
{
    const auto kopf = [this](int spalte, int rolle) {
        return m_modell.headerData(spalte, Qt::Horizontal, rolle).toString();
    };
    QCOMPARE(kopf(Vorschlagsmodell::Lebensmittel, Qt::DisplayRole), u"Lebensmittel"_s);
    QCOMPARE(kopf(Vorschlagsmodell::Lebensmittel, Qt::ToolTipRole), QString());
    QVERIFY(kopf(Vorschlagsmodell::Wertungszeichen, Qt::ToolTipRole).contains(u"- ungeeignet"_s));
    // Screen readers call a row so.
    m_modell.zeige({hirse()}, {}, fe);
    QCOMPARE(m_modell.headerData(0, Qt::Vertical, Qt::DisplayRole).toString(),
             u"Hirse\n1 Portion (60 g)"_s);
}

QTEST_MAIN(TestVorschlagsmodell)
#include "TestVorschlagsmodell.moc"
