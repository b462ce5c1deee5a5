// What the command prints of a plan against what the plan's window shows of it, for a thousand
// plans made at random.

#include "Befehle.h"
#include "Planprobe.h"
#include "Planzahlen.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int plaene = 1000;

/// The outlets of a value in the window, and its name in what the command prints.
struct Wertpaar
{
    QString name;
    Textfeld *Ui::PlanmodulGestalt::*prozent;
    WertungView *Ui::PlanmodulGestalt::*balken;
};

using Gestalt = Ui::PlanmodulGestalt;

const std::array<Wertpaar, anzahlNaehrwerte> wertpaare = {{
    {u"energy"_s, &Gestalt::gesamtkal, &Gestalt::gesamtkalview},
    {u"protein"_s, &Gestalt::gesamtprotein, &Gestalt::gesamtproteinview},
    {u"fat"_s, &Gestalt::gesamtfett, &Gestalt::gesamtfettview},
    {u"carbohydrate"_s, &Gestalt::gesamtkohlenhydrate, &Gestalt::gesamtkohlenhydrateview},
    {u"fibre"_s, &Gestalt::gesamtballaststoffe, &Gestalt::gesamtballaststoffeview},
    {u"cholesterol"_s, &Gestalt::gesamtcholesterin, &Gestalt::gesamtcholesterinview},
    {u"sodium"_s, &Gestalt::gesamtnatrium, &Gestalt::gesamtnatriumview},
    {u"potassium"_s, &Gestalt::gesamtkalium, &Gestalt::gesamtkaliumview},
    {u"calcium"_s, &Gestalt::gesamtcalcium, &Gestalt::gesamtcalciumview},
    {u"phosphate"_s, &Gestalt::gesamtphosphor, &Gestalt::gesamtphosphorview},
    {u"magnesium"_s, &Gestalt::gesamtmagnesium, &Gestalt::gesamtmagnesiumview},
    {u"iron"_s, &Gestalt::gesamteisen, &Gestalt::gesamteisenview},
    {u"vitamin_a"_s, &Gestalt::gesamtvitamina, &Gestalt::gesamtvitaminaview},
    {u"vitamin_b1"_s, &Gestalt::gesamtvitaminb1, &Gestalt::gesamtvitaminb1view},
    {u"vitamin_b2"_s, &Gestalt::gesamtvitaminb2, &Gestalt::gesamtvitaminb2view},
    {u"vitamin_b6"_s, &Gestalt::gesamtvitaminb6, &Gestalt::gesamtvitaminb6view},
    {u"vitamin_c"_s, &Gestalt::gesamtvitaminc, &Gestalt::gesamtvitamincview},
}};

struct Wertungspaar
{
    QString name;
    Zaehlfeld *Gestalt::*plus;
    Zaehlfeld *Gestalt::*neutral;
    Zaehlfeld *Gestalt::*minus;
};

const std::array<Wertungspaar, anzahlWertungen> wertungspaare = {{
    {u"overweight"_s, &Gestalt::uebergewichtpos, &Gestalt::uebergewichtneutral,
     &Gestalt::uebergewichtneg},
    {u"diabetes"_s, &Gestalt::diabetespos, &Gestalt::diabetesneutral, &Gestalt::diabetesneg},
    {u"gout"_s, &Gestalt::gichtpos, &Gestalt::gichtneutral, &Gestalt::gichtneg},
    {u"cardiovascular"_s, &Gestalt::hkkpos, &Gestalt::hkkneutral, &Gestalt::hkkneg},
}};

/// What a bar looks like.
struct Balkenbild
{
    QColor farbe;
    double laenge = 0;
};

/// A number that the command left out because it ran over.
double oderUnendlich(const QJsonValue &zahl)
{
    return zahl.isNull() ? std::numeric_limits<double>::infinity() : zahl.toDouble();
}

/// A sum, of which the command prints as many digits as single precision needs.
double summe(const QJsonValue &zahl)
{
    return static_cast<double>(static_cast<float>(oderUnendlich(zahl)));
}

QString mitEinheit(std::size_t stelle, double zahl)
{
    return naehrwertMitEinheit(static_cast<Naehrwert>(stelle), zahl);
}

} // namespace

class TestPlanvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aThousandPlans();
    void plansInWindowsOfTheirOwn();

private:
    void macheLebensmittel();
    Datenmodul einLebensmittel(const QString &name);
    float eineMenge();
    void schreibeEinenPlan();
    Plantueren ohneOrdner() const;
    QJsonObject frageBefehl(std::int32_t bedarf) const;

    static void vergleiche(const Planfenster &fenster, const QJsonObject &gesagt,
                           const std::array<Balkenbild, anzahlNaehrwerte> &vorher);
    static void vergleicheZeilen(const Planfenster &fenster, const QJsonObject &gesagt);
    static void vergleicheWert(const Planfenster &fenster, std::size_t stelle,
                               const QJsonObject &gesagt, const Balkenbild &vorher);
    static void vergleicheWertungen(const Planfenster &fenster, const QJsonObject &gesagt);
    static void vergleicheUrteil(const Planfenster &fenster, const QJsonObject &gesagt);
    static std::array<Balkenbild, anzahlNaehrwerte> balkenbilder(const Planfenster &fenster);

    Planheim m_heim;
    QList<Datenmodul> m_eingebaute;
    QList<Datenmodul> m_eigene;
    QStringList m_namen;
    QRandomGenerator m_zufall{20261122};
};

void TestPlanvergleich::initTestCase()
{
    vergissKlient();
    macheLebensmittel();
    m_heim.schreibeTabelle(m_eingebaute);
    m_heim.schreibeEigene(m_eigene);
}

/// Zeros, traces, usual values and a few that make sums run over.
Datenmodul TestPlanvergleich::einLebensmittel(const QString &name)
{
    static const QStringList urteile = {u"+"_s, u"0"_s, u"-"_s, u"egal"_s, QString()};
    Datenmodul neu;
    neu.setName(name);
    for (const auto &zeile : naehrwerte) {
        const double art = m_zufall.generateDouble();
        const double zahl = m_zufall.generateDouble();
        neu.setWert(zeile.wert, static_cast<float>(art < 0.2     ? 0.0
                                                   : art < 0.3   ? zahl / 1000
                                                   : art < 0.995 ? zahl * 60
                                                                 : zahl * 1e35));
    }
    for (const auto &zeile : wertungen) {
        neu.setWertung(zeile.wertung, urteile[m_zufall.bounded(urteile.size())]);
    }
    return neu;
}

void TestPlanvergleich::macheLebensmittel()
{
    for (int i = 0; i < 60; ++i) {
        m_eingebaute << einLebensmittel(u"Speise %1"_s.arg(i));
    }
    for (int i = 0; i < 12; ++i) {
        m_eigene << einLebensmittel(u"Eigenes %1, „groß“"_s.arg(i));
        m_eigene << einLebensmittel(u"Speise %1"_s.arg(i)); // the built-in one counts
    }
    m_eigene << einLebensmittel(u"=1+1"_s);
    for (const Datenmodul &eines : m_eingebaute + m_eigene) {
        m_namen << eines.name();
    }
    m_namen << u"Niemand"_s << u"Verschollen \"7\""_s << u"-"_s;
}

float TestPlanvergleich::eineMenge()
{
    static const QList<float> besondere = {0, 1, 0.7F, 12.5F, 100, 150.7F, 1000, 1e6F, 3e9F, -20};
    return m_zufall.bounded(3) == 0 ? besondere[m_zufall.bounded(besondere.size())]
                                    : static_cast<float>(m_zufall.bounded(600));
}

void TestPlanvergleich::schreibeEinenPlan()
{
    QList<std::pair<QString, float>> zeilen;
    const int anzahl = m_zufall.bounded(13);
    for (int i = 0; i < anzahl; ++i) {
        zeilen.emplace_back(m_namen[m_zufall.bounded(m_namen.size())], eineMenge());
    }
    m_heim.schreibePlan(zeilen);
}

/// The doors of a window that can't write what it shows: that would take most of the time.
Plantueren TestPlanvergleich::ohneOrdner() const
{
    Plantueren tueren = m_heim.tueren();
    tueren.datenordner = Datenordner::unmittelbar(u"/dev/null/keiner"_s);
    return tueren;
}

QJsonObject TestPlanvergleich::frageBefehl(std::int32_t bedarf) const
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Auswerten;
    aufruf.auftrag.form = Ausgabeform::Json;
    aufruf.auftrag.name = m_heim.plandatei();
    aufruf.auftrag.datenordner = QFileInfo(m_heim.eigeneDatei()).path();
    aufruf.auftrag.energiebedarf = bedarf;
    const Antwort antwort = antworte(aufruf, {.eingebauteTabelle = m_heim.tabelle(),
                                              .englischeNamen = {},
                                              .namenswechsel = u":/Umbenannt.csv"_s});
    QJsonParseError fehler;
    const QJsonDocument gelesen = QJsonDocument::fromJson(antwort.ausgabe, &fehler);
    if (antwort.ausgang != Erledigt || fehler.error != QJsonParseError::NoError) {
        qFatal("no JSON: %s %s", qPrintable(antwort.meldung), qPrintable(fehler.errorString()));
    }
    return gelesen.object();
}

std::array<Balkenbild, anzahlNaehrwerte> TestPlanvergleich::balkenbilder(const Planfenster &fenster)
{
    std::array<Balkenbild, anzahlNaehrwerte> bilder;
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        const WertungView &balken = *(fenster.plan().*wertpaare[i].balken);
        bilder[i] = {balken.color(), balken.value()};
    }
    return bilder;
}

void TestPlanvergleich::vergleicheZeilen(const Planfenster &fenster, const QJsonObject &gesagt)
{
    const QJsonArray zeilen = gesagt[u"rows"].toArray();
    const QJsonObject plan = gesagt[u"plan"].toObject();
    QCOMPARE(fenster->PlanTabelle->model()->rowCount(), zeilen.size());
    QCOMPARE(plan[u"rows"].toInt(), zeilen.size());
    int unbekannte = 0;
    for (int i = 0; i < zeilen.size(); ++i) {
        const QJsonObject zeile = zeilen[i].toObject();
        const QString name = zeile[u"food"].toString();
        const auto gramm = static_cast<float>(zeile[u"grams"].toDouble());
        QCOMPARE(fenster->PlanArray[i], name);
        QCOMPARE(fenster->mengenarray[i], gramm);
        QCOMPARE(fenster.zelle(i, u"menge"_s), mengentext(gramm));
        const bool bekannt = !fenster.zelle(i, u"kal"_s).isNull();
        QCOMPARE(zeile[u"known"].toBool(), bekannt);
        QCOMPARE(zeile[u"own"].toBool(), bekannt && !fenster->Dictionary.contains(name));
        unbekannte += bekannt ? 0 : 1;
    }
    QCOMPARE(plan[u"rows_unknown"].toInt(), unbekannte);
    const auto menge = static_cast<float>(oderUnendlich(plan[u"grams"]));
    QCOMPARE(fenster->SummenTabelle->modell()
                 ->index(0, fenster->SummenTabelle->modell()->spaltenstelle(u"menge"_s))
                 .data()
                 .toString(),
             mengentext(menge));
}

void TestPlanvergleich::vergleicheWert(const Planfenster &fenster, std::size_t stelle,
                                       const QJsonObject &gesagt, const Balkenbild &vorher)
{
    static const QHash<QString, QColor> farben = {
        {u"good"_s, Qt::green}, {u"fair"_s, Qt::blue}, {u"poor"_s, Qt::red}};
    const auto naehrwert = static_cast<Naehrwert>(stelle);
    const Textfeld &feld = *(fenster.plan().*wertpaare[stelle].prozent);
    const WertungView &balken = *(fenster.plan().*wertpaare[stelle].balken);
    const QString menge = mitEinheit(stelle, summe(gesagt[u"value"]));
    QCOMPARE(gesagt[u"unit"].toString(), einheitszeichen(beschreibung(naehrwert).einheit));
    if (gesagt[u"reference"].isNull()) {
        QCOMPARE(feld.toolTip(), menge + u"; der Energiebedarf ist noch nicht bekannt"_s);
        QCOMPARE(feld.doubleValue(), 0.0);
        for (const QString &name : {u"percent"_s, u"verdict"_s, u"bar"_s, u"left"_s}) {
            QVERIFY(gesagt[name].isNull());
        }
    } else {
        QCOMPARE(feld.toolTip(),
                 menge + u" von "_s + mitEinheit(stelle, gesagt[u"reference"].toDouble()));
        QCOMPARE(feld.haeltZahl(), !gesagt[u"percent"].isNull());
        QCOMPARE(feld.floatValue(), static_cast<float>(gesagt[u"percent"].toDouble()));
        QCOMPARE(balken.value(), gesagt[u"bar"].isNull()
                                     ? vorher.laenge
                                     : std::min(gesagt[u"bar"].toDouble(), 100.0));
        QCOMPARE(balken.color(), gesagt[u"verdict"].isNull()
                                     ? vorher.farbe
                                     : farben.value(gesagt[u"verdict"].toString()));
    }
    const Tabellenmodell &summen = *fenster->SummenTabelle->modell();
    const int spalte = summen.spaltenstelle(QLatin1String(beschreibung(naehrwert).kennung));
    QCOMPARE(summen.index(0, spalte).data().toString(),
             naehrwerttext(naehrwert, summe(gesagt[u"column_sum"])));
    QCOMPARE(summen.index(1, spalte).data().toString(),
             naehrwerttext(naehrwert, oderUnendlich(gesagt[u"left"])));
}

void TestPlanvergleich::vergleicheWertungen(const Planfenster &fenster, const QJsonObject &gesagt)
{
    for (const Wertungspaar &paar : wertungspaare) {
        const QJsonObject eine = gesagt[u"ratings"].toObject()[paar.name].toObject();
        const Zaehlfeld &plus = *(fenster.plan().*paar.plus);
        const Zaehlfeld &neutral = *(fenster.plan().*paar.neutral);
        const Zaehlfeld &minus = *(fenster.plan().*paar.minus);
        QCOMPARE(plus.intValue(), eine[u"suitable"].toInt());
        QCOMPARE(neutral.intValue(), eine[u"neutral"].toInt());
        QCOMPARE(minus.intValue(), eine[u"unsuitable"].toInt());
        if (const QString fuehrend = eine[u"leading"].toString(); !fuehrend.isEmpty()) {
            QCOMPARE(plus.anfangsfarbe() == Textfarbe::Gruen, fuehrend == u"suitable");
            QCOMPARE(neutral.anfangsfarbe() == Textfarbe::Blau, fuehrend == u"neutral");
            QCOMPARE(minus.anfangsfarbe() == Textfarbe::Rot, fuehrend == u"unsuitable");
        }
    }
}

/// The points, also one by one: the window names those that the plan lacks.
void TestPlanvergleich::vergleicheUrteil(const Planfenster &fenster, const QJsonObject &gesagt)
{
    const QJsonObject plan = gesagt[u"plan"].toObject();
    QCOMPARE(fenster->planworte->text().section(u'\n', 1),
             u"%1 von 21 Punkten"_s.arg(plan[u"points"].toInt()));
    static const QStringList gesichter = {u"smile"_s, u"neutral"_s, u"cry"_s};
    QCOMPARE(gesichter.value(fenster->planbeurteilungfaceview->entscheidungszahl() - 1),
             plan[u"face"].toString());
    if (!fenster->PlanArray.isEmpty()) {
        const QString fehlende = fenster->planworte->accessibleDescription();
        for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
            const bool punkt = gesagt[u"nutrients"][wertpaare[i].name][u"point"].toBool();
            const QString wort = QString::fromUtf8(naehrwerte[i].bezeichnung) + u" ("_s;
            QCOMPARE(fehlende.contains(wort), !punkt);
        }
        for (std::size_t i = 0; i < anzahlWertungen; ++i) {
            const bool punkt = gesagt[u"ratings"][wertungspaare[i].name][u"point"].toBool();
            QCOMPARE(fehlende.contains(QString::fromUtf8(wertungen[i].bezeichnung)), !punkt);
        }
        const double energie = oderUnendlich(gesagt[u"nutrients"][u"energy"][u"value"]);
        if (std::abs(energie) < 2e9) {
            QCOMPARE(fenster->Kalorienerrechnet->intValue(), static_cast<int>(energie));
        }
    }
    const std::pair<QString, float> anteile[] = {{u"protein"_s, fenster->kreisansicht->a()},
                                                 {u"carbohydrate"_s, fenster->kreisansicht->b()},
                                                 {u"fat"_s, fenster->kreisansicht->c()}};
    for (const auto &[name, anteil] : anteile) {
        const QJsonValue prozent = gesagt[u"energy_shares"][name][u"percent"];
        QCOMPARE(prozent.isNull(), !std::isfinite(anteil));
        QVERIFY(prozent.isNull() || static_cast<float>(prozent.toDouble()) == anteil);
    }
}

void TestPlanvergleich::vergleiche(const Planfenster &fenster, const QJsonObject &gesagt,
                                   const std::array<Balkenbild, anzahlNaehrwerte> &vorher)
{
    vergleicheZeilen(fenster, gesagt);
    const QJsonObject alle = gesagt[u"nutrients"].toObject();
    QCOMPARE(alle.size(), static_cast<qsizetype>(anzahlNaehrwerte));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        vergleicheWert(fenster, i, alle[wertpaare[i].name].toObject(), vorher[i]);
    }
    vergleicheWertungen(fenster, gesagt);
    vergleicheUrteil(fenster, gesagt);
}

void TestPlanvergleich::aThousandPlans()
{
    static const QList<std::int32_t> bedarfe = {0, 1, 4, 1200, 2000, 2137, 3500, 1000000};
    const Planfenster fenster(ohneOrdner());
    Lebensmittelverzeichnis eigene;
    for (const Datenmodul &eines : std::as_const(m_eigene)) {
        eigene.insert(eines.name(), eines);
    }
    fenster->uebernimmEigene(eigene);
    for (int i = 0; i < plaene && !QTest::currentTestFailed(); ++i) {
        schreibeEinenPlan();
        const std::int32_t bedarf = bedarfe[m_zufall.bounded(bedarfe.size())];
        const auto vorher = balkenbilder(fenster);
        fenster->anthrouebergabe(bedarf);
        fenster->anthrouebergabe2(bedarf);
        const Planmodul geladen(m_heim.tueren()); // reads the file as every start does
        fenster->setzePlan(geladen);
        vergleiche(fenster, frageBefehl(bedarf), vorher);
        if (QTest::currentTestFailed()) {
            qWarning("plan %d", i);
        }
    }
}

void TestPlanvergleich::plansInWindowsOfTheirOwn()
{
    for (int i = 0; i < 10 && !QTest::currentTestFailed(); ++i) {
        schreibeEinenPlan();
        Planmodul::klient = {.bedarf = 2000, .unbereinigt = 2000};
        const Planfenster fenster(m_heim);
        std::array<Balkenbild, anzahlNaehrwerte> vorher;
        vorher.fill({Qt::blue, 0}); // as a bar is made
        vergleiche(fenster, frageBefehl(2000), vorher);
    }
}

QTEST_MAIN(TestPlanvergleich)
#include "TestPlanvergleich.moc"
