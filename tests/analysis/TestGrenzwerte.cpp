// The published limits of a day: each stands on its page with its publication, and each person has
// those that are for them.

#include "Grenzwerte.h"

#include <QFile>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using enum Referenzgeschlecht;
using enum Referenzzustand;

namespace {

/// The lines of docs/limits.md that begin so.
QStringList seitenzeilen(const QString &anfang)
{
    QFile datei(QStringLiteral(GRENZSEITE));
    if (!datei.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList zeilen;
    for (const QString &zeile : QString::fromUtf8(datei.readAll()).split(u'\n')) {
        if (zeile.startsWith(anfang)) {
            zeilen << zeile;
        }
    }
    return zeilen;
}

QString fuerWen(const Grenzwert &grenze)
{
    QStringList teile;
    if (grenze.von == 0 && grenze.bis != Grenzwert::ohneEnde) {
        teile << u"up to %1 years"_s.arg(grenze.bis);
    } else if (grenze.von > 0 && grenze.bis == Grenzwert::ohneEnde) {
        teile << u"from %1 years on"_s.arg(grenze.von);
    } else if (grenze.von > 0 && grenze.von == grenze.bis) {
        teile << u"%1 year"_s.arg(grenze.von);
    } else if (grenze.von > 0) {
        teile << u"%1 to %2 years"_s.arg(grenze.von).arg(grenze.bis);
    }
    if (grenze.geschlecht) {
        teile << (grenze.geschlecht == Mann ? u"male"_s : u"female"_s);
    }
    if (grenze.zustand) {
        teile << (grenze.zustand == Schwanger  ? u"pregnant"_s
                  : grenze.zustand == Stillend ? u"lactating"_s
                                               : u"neither pregnant nor lactating"_s);
    }
    return teile.isEmpty() ? u"everybody"_s : teile.join(u", "_s);
}

/// As the page has it.
QString seitenzeile(const Grenzwert &grenze)
{
    const QString art = grenze.art == Grenzart::Hoechstens ? u"at most"_s
                        : grenze.art == Grenzart::Unter    ? u"under"_s
                                                           : u"at least"_s;
    const Tagesgroessenbeschreibung &groesse = beschreibung(grenze.groesse);
    return u"| %1 | %2 %3 %4 | %5 | %6 |"_s.arg(QString::fromUtf8(groesse.kennung), art)
        .arg(grenze.wert)
        .arg(QString::fromUtf8(groesse.einheit), fuerWen(grenze),
             QString::fromUtf8(grenze.schluessel));
}

/// The limits of a person in words: "<=300 mg", "<27 g", ">=2000 ml".
QStringList grenzen(Tagesgroesse groesse, const Referenzperson &person)
{
    QStringList liste;
    for (const Grenzwert *eine : grenzenFuer(groesse, person).werte) {
        const QString art = eine->art == Grenzart::Hoechstens ? u"<="_s
                            : eine->art == Grenzart::Unter    ? u"<"_s
                                                              : u">="_s;
        liste << art + QString::number(eine->wert);
    }
    return liste;
}

} // namespace

class TestGrenzwerte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFigureIsDescribedInItsPlace();
    void everyLimitStandsOnThePageAndNoOther();
    void everyPublicationStandsOnThePageAndNoOther();
    void everyLimitMakesSense();
    void aPersonHasTheirLimits_data();
    void aPersonHasTheirLimits();
    void whyThereIsNoLimitIsSaid_data();
    void whyThereIsNoLimitIsSaid();
    void anUnknownKeyHasNoPublication();
};

void TestGrenzwerte::everyFigureIsDescribedInItsPlace()
{
    for (std::size_t i = 0; i < anzahlTagesgroessen; ++i) {
        const Tagesgroesse groesse = tagesgroessen[i].groesse;
        QCOMPARE(static_cast<std::size_t>(groesse), i);
        QCOMPARE(beschreibung(groesse).kennung, tagesgroessen[i].kennung);
        QVERIFY(!nameVon(groesse).isEmpty());
        QVERIFY(!einheitVon(groesse).isEmpty());
    }
}

void TestGrenzwerte::everyLimitStandsOnThePageAndNoOther()
{
    QStringList soll;
    for (const Grenzwert &eine : alleGrenzwerte()) {
        soll << seitenzeile(eine);
    }
    // The first two lines of the table are its head.
    QCOMPARE(seitenzeilen(u"| "_s).mid(1), soll);
}

void TestGrenzwerte::everyPublicationStandsOnThePageAndNoOther()
{
    QStringList soll;
    for (const Quelle *eine : grenzquellen()) {
        soll << u"- **%1**: %2"_s.arg(QString::fromUtf8(eine->schluessel),
                                      QString::fromUtf8(eine->angabe));
    }
    QStringList ist;
    for (const QString &zeile : seitenzeilen(u"- **"_s)) {
        if (zeile.contains(u"**: ")) {
            ist << zeile;
        }
    }
    QCOMPARE(ist, soll);
    for (const Grenzwert &eine : alleGrenzwerte()) {
        QVERIFY2(grenzquelle(eine.schluessel) != nullptr, eine.schluessel);
    }
}

void TestGrenzwerte::everyLimitMakesSense()
{
    for (const Grenzwert &eine : alleGrenzwerte()) {
        QVERIFY(std::isfinite(eine.wert) && eine.wert >= 0);
        QVERIFY(eine.von >= 0 && eine.von <= eine.bis);
        QVERIFY(!QString::fromUtf8(eine.worte).isEmpty());
    }
}

void TestGrenzwerte::aPersonHasTheirLimits_data()
{
    QTest::addColumn<Tagesgroesse>("groesse");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<QStringList>("soll");
    const auto zeile = [](const char *name, Tagesgroesse groesse, const Referenzperson &person,
                          const QStringList &soll) {
        QTest::newRow(name) << groesse << person << soll;
    };
    const auto mann = [](int alter) {
        return Referenzperson{.geschlecht = Mann, .alter = alter};
    };
    const auto frau = [](int alter, Referenzzustand zustand = Keiner) {
        return Referenzperson{.geschlecht = Frau, .alter = alter, .zustand = zustand};
    };
    using enum Tagesgroesse;
    zeile("purines, whoever it is", Purine, {}, {u"<=500"_s, u"<=300"_s});
    zeile("alcohol at 17", AlkoholJeWoche, mann(17), {u"<=0"_s});
    zeile("alcohol at 18", AlkoholJeWoche, mann(18), {u"<27"_s});
    zeile("alcohol without an age", AlkoholJeWoche, {}, {u"<27"_s});
    zeile("alcohol, pregnant", AlkoholJeWoche, frau(28, Schwanger), {u"<=0"_s});
    zeile("alcohol, pregnant at 17", AlkoholJeWoche, frau(17, Schwanger), {u"<=0"_s});
    zeile("alcohol, lactating", AlkoholJeWoche, frau(28, Stillend), {u"<=0"_s});
    zeile("water at 1", Wasser, mann(1), {u">=1100"_s});
    zeile("water at 2", Wasser, mann(2), {u">=1300"_s});
    zeile("water at 3", Wasser, frau(3), {u">=1300"_s});
    zeile("water at 4", Wasser, frau(4), {u">=1600"_s});
    zeile("water at 8, of whichever sex", Wasser, {.alter = 8}, {u">=1600"_s});
    zeile("water of a boy of 9", Wasser, mann(9), {u">=2100"_s});
    zeile("water of a girl of 13", Wasser, frau(13), {u">=1900"_s});
    zeile("water of a boy of 14", Wasser, mann(14), {u">=2500"_s});
    zeile("water of a girl of 14", Wasser, frau(14), {u">=2000"_s});
    zeile("water of an old man", Wasser, mann(99), {u">=2500"_s});
    zeile("water of a man without an age", Wasser, {.geschlecht = Mann}, {u">=2500"_s});
    zeile("water, pregnant", Wasser, frau(28, Schwanger), {u">=2300"_s});
    zeile("water, lactating", Wasser, frau(28, Stillend), {u">=2700"_s});
    zeile("salt at 1", Salz, mann(1), {u"<=2.75"_s});
    zeile("salt at 3", Salz, mann(3), {u"<=2.75"_s});
    zeile("salt at 4", Salz, mann(4), {u"<=3.25"_s});
    zeile("salt at 7", Salz, mann(7), {u"<=4.25"_s});
    zeile("salt at 10", Salz, mann(10), {u"<=4.25"_s});
    zeile("salt at 11", Salz, mann(11), {u"<=5"_s});
    zeile("salt at 15", Salz, mann(15), {u"<=5"_s});
    zeile("salt at 16", Salz, mann(16), {u"<5"_s});
    zeile("salt at 18", Salz, mann(18), {u"<5"_s, u"<=6"_s});
    zeile("salt, pregnant", Salz, frau(28, Schwanger), {u"<5"_s, u"<=6"_s});
    zeile("energy density at 18", Energiedichte, mann(18), {u"<=125"_s});
    zeile("saturated fat at 2", Gesaettigt, mann(2), {u"<=10"_s});
    zeile("free sugars at 1", FreierZucker, mann(1), {u"<10"_s});
}

void TestGrenzwerte::aPersonHasTheirLimits()
{
    QFETCH(const Tagesgroesse, groesse);
    QFETCH(const Referenzperson, person);
    QFETCH(const QStringList, soll);
    QCOMPARE(grenzen(groesse, person), soll);
    QCOMPARE(grenzenFuer(groesse, person).mangel, Grenzmangel::Keiner);
}

void TestGrenzwerte::whyThereIsNoLimitIsSaid_data()
{
    QTest::addColumn<Tagesgroesse>("groesse");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<Grenzmangel>("mangel");
    using enum Tagesgroesse;
    const auto zeile = [](const char *name, Tagesgroesse groesse, const Referenzperson &person,
                          Grenzmangel mangel) {
        QTest::newRow(name) << groesse << person << mangel;
    };
    const Referenzperson jemand = {.geschlecht = Frau, .alter = 30};
    for (const Tagesgroesse ohne :
         {Broteinheiten, Alkohol, WasserGetraenke, WasserSpeisen, Zucker}) {
        zeile(beschreibung(ohne).kennung, ohne, jemand, Grenzmangel::NichtVeroeffentlicht);
    }
    zeile("water of nobody knows whom", Wasser, {.alter = 30}, Grenzmangel::GeschlechtFehlt);
    zeile("water at 9 of either sex", Wasser, {.alter = 9}, Grenzmangel::GeschlechtFehlt);
    zeile("water of a baby", Wasser, {.geschlecht = Mann, .alter = 0},
          Grenzmangel::AlterAusserhalb);
    zeile("water, pregnant at 13", Wasser, {.geschlecht = Frau, .alter = 13, .zustand = Schwanger},
          Grenzmangel::AlterAusserhalb);
    zeile("salt of a baby", Salz, {.geschlecht = Mann, .alter = 0}, Grenzmangel::AlterAusserhalb);
    zeile("energy density at 17", Energiedichte, {.geschlecht = Mann, .alter = 17},
          Grenzmangel::AlterAusserhalb);
    zeile("saturated fat at 1", Gesaettigt, {.geschlecht = Mann, .alter = 1},
          Grenzmangel::AlterAusserhalb);
}

void TestGrenzwerte::whyThereIsNoLimitIsSaid()
{
    QFETCH(const Tagesgroesse, groesse);
    QFETCH(const Referenzperson, person);
    QFETCH(const Grenzmangel, mangel);
    const Grenzen keine = grenzenFuer(groesse, person);
    QVERIFY(keine.werte.isEmpty());
    QCOMPARE(keine.mangel, mangel);
}

void TestGrenzwerte::anUnknownKeyHasNoPublication()
{
    QVERIFY(grenzquelle("WHO") == nullptr);
    QVERIFY(grenzquelle("") == nullptr);
    QVERIFY(grenzquelle("WHO-2015") == quelle("WHO-2015"));
    QVERIFY(grenzquelle("WHO-2023") != nullptr);
}

QTEST_APPLESS_MAIN(TestGrenzwerte)
#include "TestGrenzwerte.moc"
