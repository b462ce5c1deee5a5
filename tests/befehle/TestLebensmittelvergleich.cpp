// What the command prints of a food against what the main window shows of it, for foods and amounts
// chosen at random.

#include "Archivdatei.h"
#include "Befehle.h"
#include "Probefenster.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QStringList wertnamen = {u"energy"_s,    u"protein"_s,     u"fat"_s,        u"carbohydrate"_s,
                               u"fibre"_s,     u"cholesterol"_s, u"sodium"_s,     u"potassium"_s,
                               u"calcium"_s,   u"phosphate"_s,   u"magnesium"_s,  u"iron"_s,
                               u"vitamin_a"_s, u"vitamin_b1"_s,  u"vitamin_b2"_s, u"vitamin_b6"_s,
                               u"vitamin_c"_s};
const QStringList wertungsnamen = {u"overweight"_s, u"diabetes"_s, u"gout"_s, u"cardiovascular"_s};

/// A number that the command left out because it ran over reads as 0 in the window.
float einfach(const QJsonValue &zahl)
{
    return static_cast<float>(zahl.toDouble());
}

QColor balkenfarbe(const QJsonValue &urteil, const QColor &vorher)
{
    return urteil == u"good"_s   ? QColor(Qt::green)
           : urteil == u"fair"_s ? QColor(Qt::blue)
           : urteil == u"poor"_s ? QColor(Qt::red)
                                 : vorher;
}

} // namespace

class TestLebensmittelvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void foodsAndAmounts();

private:
    void schreibeEigene();
    Antwort frage(const QString &name, int gramm, bool eigenes, Ausgabeform form);
    void vergleiche(const Probefenster &fenster, const QJsonObject &gesagt);
    static void vergleicheWerte(const Probefenster &fenster, const QJsonObject &gesagt);
    static void vergleicheBedarf(const Probefenster &fenster, const QJsonObject &gesagt);
    void vergleicheBeurteilung(const Probefenster &fenster, const QJsonObject &gesagt);
    void vergleicheRelationen(const Probefenster &fenster, const QJsonObject &gesagt);
    static void vergleicheWertungen(const Probefenster &fenster, const QJsonObject &gesagt);
    static void vergleicheText(const Probefenster &fenster, const QString &text);

    Probeheim m_heim;
    Lebensmittelverzeichnis m_eigene;
    QRandomGenerator m_zufall{20261122};
    QHash<const WertungView *, QColor> m_farben; ///< of the bars, before the food was chosen
};

void TestLebensmittelvergleich::initTestCase()
{
    const Lebensmittelverzeichnis ausgeliefert =
        Archivdatei::lesen(u":/DatabaseIII.daten"_s).archiv.verzeichnis;
    QVERIFY(ausgeliefert.size() > 1000);
    m_heim.schreibeTabelle(ausgeliefert);
    schreibeEigene();
}

/// Zeros, traces, usual values, and those that make exact and odd judgements.
void TestLebensmittelvergleich::schreibeEigene()
{
    static const QStringList urteile = {u"+"_s, u"0"_s, u"-"_s, u"wenig"_s, QString()};
    QStringList namen = {u"Butter"_s, u"Haferflocken"_s}; // built in as well
    for (int i = 0; i < 40; ++i) {
        namen << u"Eigenes %1"_s.arg(i, 2, 10, QLatin1Char('0'));
    }
    for (const QString &name : std::as_const(namen)) {
        Datenmodul neu;
        neu.setName(name);
        for (const auto &zeile : naehrwerte) {
            const int art = m_zufall.bounded(10);
            const double zahl = m_zufall.generateDouble();
            neu.setWert(zeile.wert, static_cast<float>(art < 2    ? 0.0
                                                       : art == 2 ? zahl / 1000
                                                       : art == 3 ? zahl * 5000
                                                       : art == 4 ? -zahl
                                                                  : zahl * 100));
        }
        for (const auto &zeile : wertungen) {
            neu.setWertung(zeile.wertung, urteile[m_zufall.bounded(urteile.size())]);
        }
        m_eigene.insert(name, neu);
    }
    Datenmodul genau; // 45 per 100 kcal, and relations at their limits
    genau.setName(u"Genau"_s);
    for (const auto &[wert, zahl] :
         std::initializer_list<std::pair<Naehrwert, float>>{{Naehrwert::kal, 100},
                                                            {Naehrwert::ca, 100},
                                                            {Naehrwert::ma, 35},
                                                            {Naehrwert::bs, 3},
                                                            {Naehrwert::na, 5.5F},
                                                            {Naehrwert::ka, 11},
                                                            {Naehrwert::ph, 14},
                                                            {Naehrwert::fe, 0.6F},
                                                            {Naehrwert::vitc, 8},
                                                            {Naehrwert::kh, 64.8F}}) {
        genau.setWert(wert, zahl);
    }
    m_eigene.insert(genau.name(), genau);
    m_heim.schreibeEigene(m_eigene);
}

Antwort TestLebensmittelvergleich::frage(const QString &name, int gramm, bool eigenes,
                                         Ausgabeform form)
{
    Aufruf aufruf;
    aufruf.auftrag.befehl = Befehl::Nachschlagen;
    aufruf.auftrag.name = name;
    aufruf.auftrag.gramm = static_cast<float>(gramm);
    aufruf.auftrag.eigenes = eigenes;
    aufruf.auftrag.form = form;
    aufruf.auftrag.datenordner = QFileInfo(m_heim.eigeneDatei()).path();
    return antworte(
        aufruf, {.eingebauteTabelle = m_heim.tabelle(), .englischeNamen = {}, .namenswechsel = {}});
}

/// A value that is below 0 leaves its field shown or hidden as it was, and holds the number all the
/// same.
void TestLebensmittelvergleich::vergleicheWerte(const Probefenster &fenster,
                                                const QJsonObject &gesagt)
{
    const QJsonObject werte = gesagt[u"nutrients"].toObject();
    QCOMPARE(werte.size(), wertnamen.size() + 1);
    for (qsizetype i = 0; i < wertnamen.size(); ++i) {
        const Textfeld &feld = *fenster->wertfelder()[static_cast<std::size_t>(i)];
        QCOMPARE(feld.floatValue(), einfach(werte[wertnamen[i]][u"value"]));
        QCOMPARE(werte[wertnamen[i]][u"unit"].toString(), feld.unit());
    }
    QCOMPARE(fenster->joulefeld->floatValue(), einfach(werte[u"energy_kj"][u"value"]));
    const QJsonObject anteile = gesagt[u"energy_shares"].toObject();
    QCOMPARE(fenster->nahrview->a(), einfach(anteile[u"protein"][u"percent"]));
    QCOMPARE(fenster->nahrview->b(), einfach(anteile[u"carbohydrate"][u"percent"]));
    QCOMPARE(fenster->nahrview->c(), einfach(anteile[u"fat"][u"percent"]));
}

void TestLebensmittelvergleich::vergleicheBedarf(const Probefenster &fenster,
                                                 const QJsonObject &gesagt)
{
    const QJsonObject zeilen = gesagt[u"daily_need"].toObject();
    QCOMPARE(zeilen.size(), 12);
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        const QJsonObject zeile = zeilen[wertnamen[static_cast<qsizetype>(i)]].toObject();
        const QString kennung = QLatin1String(naehrwerte[i].kennung);
        const auto *feld =
            fenster->Hauptfenster->findChild<Textfeld *>(kennung + u"tagesbedarffeld"_s);
        QCOMPARE(feld == nullptr, zeile.isEmpty());
        if (feld != nullptr) {
            QCOMPARE(zeile[u"percent"].toInt(), feld->intValue());
            QCOMPARE(zeile[u"verdict"].toString(),
                     feld->textColor() == Textfarbe::Gruen ? u"good"_s : u"poor"_s);
        }
    }
}

void TestLebensmittelvergleich::vergleicheBeurteilung(const Probefenster &fenster,
                                                      const QJsonObject &gesagt)
{
    const QJsonValue wert = gesagt[u"judgement"][u"coverage_per_100_kcal"][u"value"];
    const QJsonValue urteil = gesagt[u"judgement"][u"coverage_per_100_kcal"][u"verdict"];
    const QJsonValue zuWenig = gesagt[u"judgement"][u"too_little_energy"];
    QCOMPARE(wert.isNull(), fenster->gesamtbeurteilungfeld->isHidden());
    QCOMPARE(zuWenig.isNull(), wert.isNull());
    QCOMPARE(zuWenig.toBool(), !fenster->zuWenigEnergie->isHidden());
    if (!wert.isNull()) {
        QCOMPARE(wert.toInt(), fenster->gesamtbeurteilungfeld->intValue());
        QCOMPARE(fenster->aview->value(), std::min(wert.toDouble(), 100.0));
    }
    QCOMPARE(fenster->aview->color(), balkenfarbe(urteil, m_farben.value(fenster->aview)));
}

void TestLebensmittelvergleich::vergleicheRelationen(const Probefenster &fenster,
                                                     const QJsonObject &gesagt)
{
    const QJsonObject alle = gesagt[u"relations"].toObject();
    const struct
    {
        QString name;
        const Textfeld *feld;
        const WertungView *balken;
    } zeilen[] = {{u"sodium_potassium"_s, fenster->kanafeld, fenster->kanaview},
                  {u"magnesium_calcium"_s, fenster->macafeld, fenster->macaview},
                  {u"bread_units"_s, fenster->befeld, fenster->beview}};
    for (const auto &zeile : zeilen) {
        const QJsonObject eine = alle[zeile.name].toObject();
        QCOMPARE(zeile.feld->haeltZahl(), !eine[u"value"].isNull());
        QCOMPARE(zeile.feld->floatValue(), einfach(eine[u"value"]));
        if (zeile.feld->haeltZahl()) {
            QCOMPARE(zeile.balken->color(),
                     balkenfarbe(eine[u"verdict"], m_farben.value(zeile.balken)));
        }
    }
    QCOMPARE(fenster->kaefeld->floatValue(), einfach(alle[u"carbohydrate_units"]));
}

void TestLebensmittelvergleich::vergleicheWertungen(const Probefenster &fenster,
                                                    const QJsonObject &gesagt)
{
    static const QHash<QString, QString> bedeutungen = {
        {u"+"_s, u"suitable"_s}, {u"0"_s, u"neutral"_s}, {u"-"_s, u"unsuitable"_s}};
    for (qsizetype i = 0; i < wertungsnamen.size(); ++i) {
        const QJsonObject eine = gesagt[u"ratings"][wertungsnamen[i]].toObject();
        const QString zeichen =
            fenster->wertungsfelder()[static_cast<std::size_t>(i)]->stringValue();
        QCOMPARE(eine[u"value"].toString(), zeichen);
        QCOMPARE(eine[u"meaning"].toString(), bedeutungen.value(zeichen));
    }
}

void TestLebensmittelvergleich::vergleiche(const Probefenster &fenster, const QJsonObject &gesagt)
{
    vergleicheWerte(fenster, gesagt);
    vergleicheBedarf(fenster, gesagt);
    vergleicheBeurteilung(fenster, gesagt);
    vergleicheRelationen(fenster, gesagt);
    vergleicheWertungen(fenster, gesagt);
}

/// The numbers for people are written as the window writes them.
void TestLebensmittelvergleich::vergleicheText(const Probefenster &fenster, const QString &text)
{
    const QStringList gezeigte = fenster.gezeigteWerte();
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        const QString &wert = gezeigte[static_cast<qsizetype>(i)];
        const QString wort = u"\n  "_s + QString::fromUtf8(naehrwerte[i].bezeichnung) + u' ';
        const QString zeile = text.mid(text.indexOf(wort) + 1).section(u'\n', 0, 0);
        QVERIFY2(wert.isEmpty() || zeile.contains(u' ' + wert), qPrintable(zeile + wert));
    }
}

void TestLebensmittelvergleich::foodsAndAmounts()
{
    static const QList<int> besondere = {0, 1, 99, 100, 101, 1000};
    const Probefenster fenster(m_heim);
    fenster.klicke(1, inName);
    for (int i = 0; i < 300 && !QTest::currentTestFailed(); ++i) {
        const bool genau = i == 0;
        const bool eigenes = genau || m_zufall.bounded(3) == 0;
        const int gramm = genau                      ? 100
                          : m_zufall.bounded(4) == 0 ? besondere[m_zufall.bounded(besondere.size())]
                                                     : m_zufall.bounded(1001);
        const QStringList &namen = eigenes ? fenster->KundenArray : fenster->Array;
        const auto zeile =
            static_cast<int>(genau ? namen.indexOf(u"Genau"_s) : m_zufall.bounded(namen.size()));
        fenster.tippeMenge(QString::number(gramm));
        m_farben.clear();
        for (const WertungView *balken : fenster->Hauptfenster->findChildren<WertungView *>()) {
            m_farben.insert(balken, balken->color());
        }
        fenster.klicke(zeile, eigenes ? inEigen : inName);
        // Some rows show the food of another one that it is sold as too.
        const QString name = fenster->unuebersetztername;
        const Antwort antwort = frage(name, gramm, eigenes, Ausgabeform::Json);
        QCOMPARE(antwort.ausgang, 0);
        vergleiche(fenster, QJsonDocument::fromJson(antwort.ausgabe).object());
        QVERIFY(!genau || fenster->gesamtbeurteilungfeld->intValue() == 45);
        if (i % 3 == 0) {
            const Antwort text = frage(name, gramm, eigenes, Ausgabeform::Text);
            vergleicheText(fenster, QString::fromUtf8(text.ausgabe));
        }
        if (QTest::currentTestFailed()) {
            qWarning() << i << name << gramm << eigenes;
        }
    }
}

QTEST_MAIN(TestLebensmittelvergleich)
#include "TestLebensmittelvergleich.moc"
