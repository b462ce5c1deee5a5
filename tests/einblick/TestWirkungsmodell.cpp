#include "Probesprache.h"
#include "Textfarbe.h"
#include "Wirkungsmodell.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Kenngroesse;
using enum Wirkung::Richtung;

Q_DECLARE_METATYPE(Wirkung)

class TestWirkungsmodell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_deutsch = std::make_unique<Probesprache>(QLocale::German); }

    void theVerdictHasASignAWordAndAColour_data();
    void theVerdictHasASignAWordAndAColour();
    void onlyTheVerdictIsColoured();
    void theHeadingsTellTheColumns();

private:
    std::unique_ptr<Probesprache> m_deutsch;
};

namespace {

constexpr Zielbereich eisen = {fe, 15, {}, {}};

} // namespace

void TestWirkungsmodell::theVerdictHasASignAWordAndAColour_data()
{
    QTest::addColumn<Wirkung>("wirkung");
    QTest::addColumn<QString>("menge");
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<QVariant>("farbe");

    const auto farbe = [](Textfarbe welche) {
        return QVariant(farbeFuer(welche, QApplication::palette()));
    };
    QTest::newRow("better") << Wirkung{eisen, 8.2, 12.2, 0, Besser} << u"8,2 → 12,2 mg"_s
                            << u"✓ besser"_s << farbe(Textfarbe::Gruen);
    QTest::newRow("worse") << Wirkung{eisen, 8.2, 7.2, 0, Schlechter} << u"8,2 → 7,2 mg"_s
                           << u"✗ schlechter"_s << farbe(Textfarbe::Rot);
    QTest::newRow("the same") << Wirkung{eisen, 8.2, 8.2, 0, Gleich} << u"8,2 → 8,2 mg"_s
                              << QString() << QVariant();
    QTest::newRow("unknown") << Wirkung{eisen, 8.2, 8.2, 1, Gleich} << u"8,2 mg → ?"_s
                             << u"? unbekannt"_s << QVariant();
    QTest::newRow("unknown before")
        << Wirkung{eisen, 0, 4, 0, Gleich, 1} << u"unbekannt"_s << u"? unbekannt"_s << QVariant();
    QTest::newRow("partly unknown before")
        << Wirkung{eisen, 8.2, 12.2, 0, Besser, 0.5} << u"8,2 → 12,2 mg"_s << u"✓ besser"_s
        << farbe(Textfarbe::Gruen);
    QTest::newRow("partly unknown") << Wirkung{eisen, 8.2, 12.2, 0.5, Besser} << u"8,2 → 12,2 mg"_s
                                    << u"✓ besser"_s << farbe(Textfarbe::Gruen);
}

void TestWirkungsmodell::theVerdictHasASignAWordAndAColour()
{
    QFETCH(const Wirkung, wirkung);
    Wirkungsmodell modell;
    modell.zeige({wirkung});
    QCOMPARE(modell.index(0, Wirkungsmodell::Ziel).data().toString(), u"Eisen"_s);
    QTEST(modell.index(0, Wirkungsmodell::Menge).data().toString(), "menge");
    QTEST(modell.index(0, Wirkungsmodell::Urteil).data().toString(), "urteil");
    QTEST(modell.index(0, Wirkungsmodell::Urteil).data(Qt::ForegroundRole), "farbe");
}

void TestWirkungsmodell::onlyTheVerdictIsColoured()
{
    Wirkungsmodell modell;
    modell.zeige({{eisen, 8.2, 12.2, 0, Besser}});
    QCOMPARE(modell.index(0, Wirkungsmodell::Menge).data(Qt::ForegroundRole), QVariant());
    QCOMPARE(modell.index(0, Wirkungsmodell::Ziel).data(Qt::ForegroundRole), QVariant());
}

void TestWirkungsmodell::theHeadingsTellTheColumns()
{
    const Wirkungsmodell modell;
    QCOMPARE(modell.headerData(Wirkungsmodell::Menge, Qt::Horizontal, Qt::DisplayRole).toString(),
             u"vorher → nachher"_s);
    QCOMPARE(modell.headerData(0, Qt::Vertical, Qt::DisplayRole), QVariant());
}

QTEST_MAIN(TestWirkungsmodell)
#include "TestWirkungsmodell.moc"
