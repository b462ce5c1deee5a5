#include "Namenspruefung.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Figures in names are those of the food.
class TestNamenspruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresInNamesAreTheFoods_data();
    void figuresInNamesAreTheFoods();
    void bothLanguagesAreChecked();
    void anUnknownFoodIsLeftToTheSource();
    void dryMatterNeedsTheWater();
};

namespace {

/// What a food holds of all that a name can say in percent.
struct Gehalt
{
    double fett = 0;
    double wasser = 0;
    double alkohol = 0;
    std::optional<double> dichte = std::nullopt;
};

Tabellenzeile zeile(const QString &de, const QString &en, const Gehalt &gehalt)
{
    Tabellenzeile ergebnis;
    ergebnis.nameDe = de;
    ergebnis.nameEn = en;
    ergebnis.quelle = u"7"_s;
    ergebnis.werte[stelle(Naehrwert::fett)] = gehalt.fett;
    ergebnis.alkohol = gehalt.alkohol;
    return ergebnis;
}

Quellwerte quelle(const Gehalt &gehalt)
{
    Quelleintrag eintrag;
    eintrag.wasser = gehalt.wasser;
    eintrag.dichte = gehalt.dichte;
    return {{u"7"_s, eintrag}};
}

} // namespace

Q_DECLARE_METATYPE(Gehalt)

void TestNamenspruefung::figuresInNamesAreTheFoods_data()
{
    QTest::addColumn<QString>("de");
    QTest::addColumn<QString>("en");
    QTest::addColumn<Gehalt>("gehalt");
    QTest::addColumn<bool>("gut");
    const auto fett = [](const char *name, const QString &de, const QString &en, double gramm,
                         bool gut) {
        QTest::newRow(name) << de << en << Gehalt{gramm} << gut;
    };
    const QString sahne = u"Sahne, 28 % Fett"_s;
    const QString cream = u"Cream, 28% fat"_s;
    fett("fat, half a gram less", sahne, cream, 27.5, true);
    fett("fat, more than half a gram less", sahne, cream, 27.4, false);
    fett("fat, half a gram more", sahne, cream, 28.5, true);
    fett("fat, more than half a gram more", sahne, cream, 28.6, false);
    fett("fat with a decimal", u"Milch, 1,5 % Fett (fettarm)"_s, u"Milk, 1.5% fat"_s, 1.5, true);
    fett("fat of a tenth of it", u"Milch, 1,5 % Fett"_s, u"Milk, 1.5% fat"_s, 15, false);
    fett("fat without a blank", u"Sahne, 28% Fett"_s, u"Cream, 28 % fat"_s, 35, false);
    const QString spanneDe = u"Margarine, 35-40 % Fett"_s;
    const QString spanneEn = u"Margarine, 35-40% fat"_s;
    fett("a span, its beginning", spanneDe, spanneEn, 35, true);
    fett("a span, its end", spanneDe, spanneEn, 40, true);
    fett("before a span", spanneDe, spanneEn, 34.9, false);
    fett("behind a span", spanneDe, spanneEn, 40.1, false);
    fett("no figure", u"Sahne"_s, u"Cream"_s, 28, true);
    fett("a figure of something else", u"Schokolade, 70 % Kakao"_s, u"Chocolate, 70% cocoa"_s, 40,
         true);
    fett("a point in German", u"Milch, 1.5 % Fett"_s, u"Milk, 1.5% fat"_s, 1.5, false);
    fett("a comma in English", u"Milch, 1,5 % Fett"_s, u"Milk, 1,5% fat"_s, 1.5, false);
    fett("a point in any German figure", u"Cola 0.5 Liter"_s, u"Cola"_s, 0, false);
    fett("a list of figures", u"Mehl, Type 405, 550"_s, u"Flour, type 405, 550"_s, 0, true);

    const auto trocken = [](const char *name, double gramm, double wasser, bool gut) {
        QTest::newRow(name) << u"Käse, 50 % Fett i. Tr."_s << u"Cheese, 50% fat in dry matter"_s
                            << Gehalt{gramm, wasser} << gut;
    };
    trocken("dry matter", 30, 40, true);              // 50.0
    trocken("dry matter, half less", 29.7, 40, true); // 49.5
    trocken("dry matter, more than half less", 29.6, 40, false);
    trocken("dry matter, half more", 30.3, 40, true); // 50.5
    trocken("dry matter, more than half more", 30.4, 40, false);
    trocken("dry matter, but the fat of all", 50, 40, false);
    trocken("nothing but water", 30, 100, false);

    const auto vol = [](const char *name, double gramm, std::optional<double> dichte, bool gut) {
        QTest::newRow(name) << u"Wein, 12,5 % vol"_s << u"Wine, 12.5% vol"_s
                            << Gehalt{0, 0, gramm, dichte} << gut;
    };
    vol("alcohol, half less", 9.5, {}, true);             // 12.04
    vol("alcohol, more than half less", 9.4, {}, false);  // 11.91
    vol("alcohol, half more", 10.2, {}, true);            // 12.93
    vol("alcohol, more than half more", 10.3, {}, false); // 13.05
    vol("alcohol of a heavy drink", 9, 1.1, true);        // 12.55
    vol("alcohol of a drink that is not heavy", 9, {}, false);
}

void TestNamenspruefung::figuresInNamesAreTheFoods()
{
    QFETCH(QString, de);
    QFETCH(QString, en);
    QFETCH(Gehalt, gehalt);
    QFETCH(bool, gut);
    const auto einwaende = Namenspruefung::zeilePruefen(zeile(de, en, gehalt), quelle(gehalt));
    QCOMPARE(einwaende.isEmpty(), gut);
    for (const Beanstandung &eine : einwaende) {
        QCOMPARE(eine.regel, u"name"_s);
    }
}

void TestNamenspruefung::bothLanguagesAreChecked()
{
    const Gehalt gehalt = {28};
    const auto meldung = [&](const QString &de, const QString &en) {
        const auto liste = Namenspruefung::zeilePruefen(zeile(de, en, gehalt), quelle(gehalt));
        return liste.size() == 1 ? liste.first().meldung : QString();
    };
    QCOMPARE(meldung(u"Sahne, 27 % Fett"_s, u"Cream, 28% fat"_s),
             u"\"Sahne, 27 % Fett\" says \"27 % Fett\", the figures give 28.0"_s);
    QCOMPARE(meldung(u"Sahne, 28 % Fett"_s, u"Cream, 27% fat"_s),
             u"\"Cream, 27% fat\" says \"27% fat\", the figures give 28.0"_s);
    QCOMPARE(meldung(u"Sahne, 28.0 % Fett"_s, u"Cream, 28% fat"_s),
             u"\"Sahne, 28.0 % Fett\" must write its figures with \",\""_s);
}

void TestNamenspruefung::anUnknownFoodIsLeftToTheSource()
{
    const Tabellenzeile fremd = zeile(u"Sahne, 27 % Fett"_s, u"Cream, 27% fat"_s, {28});
    QVERIFY(Namenspruefung::zeilePruefen(fremd, {}).isEmpty());
}

void TestNamenspruefung::dryMatterNeedsTheWater()
{
    const Tabellenzeile kaese =
        zeile(u"Käse, 50 % Fett i. Tr."_s, u"Cheese, 50% fat in dry matter"_s, {30});
    QCOMPARE(Namenspruefung::zeilePruefen(kaese, {{u"7"_s, Quelleintrag()}}).size(), 2);
}

QTEST_GUILESS_MAIN(TestNamenspruefung)
#include "TestNamenspruefung.moc"
