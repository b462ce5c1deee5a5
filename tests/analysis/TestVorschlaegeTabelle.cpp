// Suggestions from the shipped foods for plans drawn by lot.

#include "Lebensmittelbestand.h"
#include "Vorschlaege.h"
#include "Zusatzquelle.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Kenngroesse;

class TestVorschlaegeTabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void takenSuggestionsDoNoHarm();
    void theSameInputGivesTheSameList();
    void leftOutGroupsAreNotSuggested();

private:
    Speisen plan(QRandomGenerator &zufall) const;
    Speisen nachher(Speisen plan, const Vorschlag &vorschlag) const;
    QString schaden(const Speisen &plan, const Vorschlag &vorschlag, Kenngroesse ziel) const;

    Zusatzquelle m_quelle{u":/Zusatzwerte.csv"_s};
    Lebensmittelbestand m_bestand;
    Kandidaten m_kandidaten;
    /// For a woman of 30 years, roughly; with and without ends.
    const Zielbereiche m_ziele = {{kal, 1900, {}, {}},   {Kenngroesse::protein, 48, 80, {}},
                                  {fett, {}, 76, {}},    {bs, 30, {}, {}},
                                  {chol, {}, 300, {}},   {na, {}, 2000, {}},
                                  {ka, 4000, {}, {}},    {ca, 1000, {}, 2500},
                                  {ma, 300, {}, {}},     {fe, 15, {}, 40},
                                  {vita, 700, {}, 3000}, {b6, 1.4, {}, 12},
                                  {vitc, 95, {}, {}},    {gesaettigt, {}, 23, {}},
                                  {zucker, {}, 50, {}}};
};

void TestVorschlaegeTabelle::initTestCase()
{
    QCOMPARE(m_quelle.hindernis(), QString());
    m_bestand = ladeBestand(u":/DatabaseIII.daten"_s);
    QVERIFY(m_bestand.namen.size() > 1000);
    for (const QString &name : std::as_const(m_bestand.namen)) {
        m_kandidaten.append({name, m_bestand.verzeichnis.value(name), 120, u"1 Portion"_s});
    }
}

/// 5 to 30 rows of 20 to 400 g.
Speisen TestVorschlaegeTabelle::plan(QRandomGenerator &zufall) const
{
    Speisen zeilen;
    const int anzahl = zufall.bounded(5, 31);
    for (int i = 0; i < anzahl; ++i) {
        const QString name = m_bestand.namen[zufall.bounded(int(m_bestand.namen.size()))];
        zeilen.append(
            {name, m_bestand.verzeichnis.value(name), double(zufall.bounded(20, 401)), i});
    }
    return zeilen;
}

Speisen TestVorschlaegeTabelle::nachher(Speisen plan, const Vorschlag &vorschlag) const
{
    if (vorschlag.zeile >= 0) {
        plan[vorschlag.zeile] = vorschlag.speise;
    } else {
        plan.append(vorschlag.speise);
    }
    return plan;
}

/// What a suggestion would do wrong; null: nothing. Amounts are summed anew, so that rounding
/// alone is no harm.
QString TestVorschlaegeTabelle::schaden(const Speisen &plan, const Vorschlag &vorschlag,
                                        Kenngroesse ziel) const
{
    constexpr double rundung = 1e-6;
    const Speisen neu = nachher(plan, vorschlag);
    for (const Zielbereich &eines : m_ziele) {
        if (eines.groesse != ziel && !eines.obergrenze) {
            continue;
        }
        const double vor = summiere(plan, eines.groesse, m_quelle.wissen()).wert;
        const double nach = summiere(neu, eines.groesse, m_quelle.wissen()).wert;
        if (eines.groesse == ziel && abstand(eines, nach) >= abstand(eines, vor)) {
            return u"worse: "_s + vorschlag.speise.schluessel;
        }
        if (eines.obergrenze && vor <= *eines.obergrenze && nach > *eines.obergrenze + rundung) {
            return u"upper level: "_s + vorschlag.speise.schluessel;
        }
    }
    return {};
}

/// 200 plans, each for another of the aims that it misses. Whatever is suggested could be taken.
void TestVorschlaegeTabelle::takenSuggestionsDoNoHarm()
{
    QRandomGenerator zufall(20261123);
    int gefunden = 0;
    int ersetzt = 0;
    for (int lauf = 0; lauf < 200; ++lauf) {
        const Speisen zeilen = plan(zufall);
        const Vorschlagsgrundlage grundlage = {zeilen, m_ziele, m_quelle.wissen()};
        const QList<Abweichung> alle = abweichungen(grundlage);
        QVERIFY(!alle.isEmpty());
        const Kenngroesse ziel = alle[lauf % alle.size()].ziel.groesse;
        const Vorschlagsliste liste = vorschlaege(grundlage, ziel, m_kandidaten, {});
        for (const Vorschlag &einer : liste.vorschlaege) {
            QCOMPARE(schaden(zeilen, einer, ziel), QString());
            ++gefunden;
            ersetzt += einer.zeile >= 0 ? 1 : 0;
        }
    }
    // The plans are such that there is something to suggest, of both kinds.
    QVERIFY2(gefunden > 500 && ersetzt > 200 && ersetzt < gefunden - 100,
             qPrintable(u"%1, %2"_s.arg(gefunden).arg(ersetzt)));
}

void TestVorschlaegeTabelle::theSameInputGivesTheSameList()
{
    QRandomGenerator zufall(5);
    const Speisen zeilen = plan(zufall);
    const Vorschlagsgrundlage grundlage = {zeilen, m_ziele, m_quelle.wissen()};
    Kandidaten umgekehrt = m_kandidaten;
    std::ranges::reverse(umgekehrt);
    for (const Zielbereich &eines : m_ziele) {
        const auto eine = vorschlaege(grundlage, eines.groesse, m_kandidaten, {}).vorschlaege;
        const auto andere = vorschlaege(grundlage, eines.groesse, umgekehrt, {}).vorschlaege;
        QCOMPARE(eine.size(), andere.size());
        for (qsizetype i = 0; i < eine.size(); ++i) {
            QCOMPARE(eine[i].speise.schluessel, andere[i].speise.schluessel);
            QCOMPARE(eine[i].zeile, andere[i].zeile);
            QCOMPARE(eine[i].punkte, andere[i].punkte);
        }
    }
}

void TestVorschlaegeTabelle::leftOutGroupsAreNotSuggested()
{
    QRandomGenerator zufall(7);
    for (const Weglassgruppenbeschreibung &gruppe : weglassgruppen) {
        int gefunden = 0;
        for (int lauf = 0; lauf < 2; ++lauf) {
            const Speisen zeilen = plan(zufall);
            const Vorschlagsgrundlage grundlage = {zeilen, m_ziele, m_quelle.wissen()};
            for (const Zielbereich &eines : m_ziele) {
                const Vorschlagsliste liste =
                    vorschlaege(grundlage, eines.groesse, m_kandidaten, {.ohne = gruppe.gruppe});
                for (const Vorschlag &einer : liste.vorschlaege) {
                    const QString &name = einer.speise.schluessel;
                    const auto haelt = kannEnthalten(m_quelle.wissen().zusatz(name)->gruppe, name);
                    QVERIFY2(!(haelt & gruppe.gruppe), qPrintable(name));
                    ++gefunden;
                }
            }
        }
        QVERIFY(gefunden > 20);
    }
}

QTEST_APPLESS_MAIN(TestVorschlaegeTabelle)
#include "TestVorschlaegeTabelle.moc"
