#include "Bestandsvergleich.h"
#include "Einlesung.h"
#include "Lebensmittelbestand.h"
#include "Lebensmitteltabelle.h"

#include <QTest>
#include <QTranslator>

#include <limits>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

/// What goes out comes back as it was.
class TestRundreise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTableComesBack_data();
    void theWholeTableComesBack();
    void oddFoodsComeBack_data();
    void oddFoodsComeBack();
    void theShownNameStandsBeside();
    void aPlanStandsWithItsAmounts();
};

namespace {

/// The windows in English, as long as it lives.
class Englisch
{
public:
    Englisch()
    {
        for (const char *datei : {"mahlberg_en", "lebensmittel_en"}) {
            auto eines = std::make_unique<QTranslator>();
            QVERIFY(eines->load(u":/uebersetzungen/%1.qm"_s.arg(QLatin1String(datei))));
            QVERIFY(QCoreApplication::installTranslator(eines.get()));
            m_uebersetzer.push_back(std::move(eines));
        }
    }

private:
    std::vector<std::unique_ptr<QTranslator>> m_uebersetzer;
};

void jedeForm()
{
    QTest::addColumn<bool>("englisch");
    QTest::addColumn<Csv::Form>("form");
    for (const bool englisch : {false, true}) {
        for (const QChar trennung : Csv::trennungen()) {
            for (const QChar dezimal : {QChar(u','), QChar(u'.')}) {
                const bool marke = englisch == (dezimal == u',');
                QTest::addRow("%s, separator %d, decimal mark %c%s", englisch ? "en" : "de",
                              trennung.unicode(), dezimal.toLatin1(), marke ? ", mark" : "")
                    << englisch
                    << Csv::Form{.trennung = trennung,
                                 .dezimal = dezimal,
                                 .marke = marke,
                                 .zeilenende = marke ? u"\r\n"_s : u"\n"_s};
            }
        }
    }
}

/// Out and in again, nothing told about it but what the file says.
Einlesung rundreise(const QList<Datenmodul> &lebensmittel, const Csv::Form &form)
{
    const Csv::Rohtext text =
        Csv::entschluesseln(Csv::schreiben(lebensmitteltabelle(lebensmittel), form));
    const QList<Csv::Satz> saetze =
        Csv::zerlegen(text.text, Csv::geratenesTrennzeichen(text.text)).saetze;
    Leseauftrag auftrag;
    auftrag.spalten = deuteUeberschriften(saetze.first().felder).spalten;
    return liesEin(saetze, auftrag, {});
}

void vergleiche(const QList<Datenmodul> &vorher, const Einlesung &nachher)
{
    for (const Einwand &einwand : nachher.einwaende) {
        QVERIFY2(einwand.schwere != Schwere::Fehler, qPrintable(einwand.text));
    }
    const QList<Datenmodul> alle = nachher.lebensmittel();
    QCOMPARE(alle.size(), vorher.size());
    for (qsizetype i = 0; i < alle.size(); ++i) {
        QVERIFY2(gleich(alle[i], vorher[i]), qPrintable(vorher[i].name()));
    }
}

} // namespace

void TestRundreise::theWholeTableComesBack_data()
{
    jedeForm();
}

void TestRundreise::theWholeTableComesBack()
{
    QFETCH(bool, englisch);
    QFETCH(Csv::Form, form);
    const auto sprache = englisch ? std::make_unique<Englisch>() : nullptr;
    const Lebensmittelbestand bestand = ladeBestand(u":/DatabaseIII.daten"_s);
    QVERIFY(bestand.namen.size() > 1000);
    QList<Datenmodul> alle;
    for (const QString &name : bestand.namen) {
        alle << bestand.verzeichnis.value(name);
    }
    vergleiche(alle, rundreise(alle, form));
}

void TestRundreise::oddFoodsComeBack_data()
{
    jedeForm();
}

void TestRundreise::oddFoodsComeBack()
{
    QFETCH(bool, englisch);
    QFETCH(Csv::Form, form);
    const auto sprache = englisch ? std::make_unique<Englisch>() : nullptr;
    const QStringList namen = {u"=1+2"_s,         u"+"_s,
                               u"'+"_s,           u" Brot "_s,
                               u"a;b,c\td|e"_s,   u"\"Bio\""_s,
                               u"zwei\nZeilen"_s, u"\rx"_s,
                               u"1,5"_s,          u"\u0416 \U0001F600"_s,
                               u"sep=;"_s};
    QList<Datenmodul> alle;
    for (const QString &name : namen) {
        Datenmodul eines;
        eines.setName(name);
        eines.setfett(1.0F / 3.0F);
        eines.setka(1234.567F);
        eines.setvita(std::numeric_limits<float>::min());
        eines.setchol(0.1F);
        eines.setgicht(u"-"_s);
        eines.setdiabetes(u""_s);
        alle << eines;
    }
    vergleiche(alle, rundreise(alle, form));
}

void TestRundreise::theShownNameStandsBeside()
{
    const Englisch englisch;
    Datenmodul brot;
    brot.setName(u"Baguettes (Stangenweißbrot)"_s);
    brot.sethkk(u"-"_s);
    const Csv::Tabelle tabelle = lebensmitteltabelle({brot});
    QCOMPARE(tabelle.spalten.mid(0, 3),
             QStringList({u"Food"_s, u"Shown as"_s, u"Energy (kcal)"_s}));
    QCOMPARE(tabelle.spalten.last(), u"Heart and circulation"_s);
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][0]), brot.name());
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][1]), u"Baguette (French bread)"_s);
    brot.setName(u"Mein Brot"_s);
    QCOMPARE(lebensmitteltabelle({brot}).spalten.size(), 1 + 17 + 4);
}

void TestRundreise::aPlanStandsWithItsAmounts()
{
    Datenmodul brot;
    brot.setkal(200);
    brot.setfett(3);
    brot.setgicht(u"+"_s);
    const Csv::Tabelle tabelle =
        plantabelle({{u"Brot"_s, 50, &brot}, {u"Verschollenes"_s, 30, nullptr}});
    QCOMPARE(tabelle.spalten.mid(0, 3),
             QStringList({u"Lebensmittel"_s, u"Menge (g)"_s, u"Energie (kcal)"_s}));
    QCOMPARE(tabelle.zeilen[0].size(), 2 + 17 + 4);
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][0]), u"Brot"_s);
    QCOMPARE(std::get<float>(tabelle.zeilen[0][1]), 50.0F);
    QCOMPARE(std::get<float>(tabelle.zeilen[0][2]), 100.0F);
    QCOMPARE(std::get<float>(tabelle.zeilen[0][4]), 1.5F);
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][21]), u"+"_s);
    QCOMPARE(tabelle.zeilen[1].size(), 2 + 17 + 4);
    QCOMPARE(std::get<float>(tabelle.zeilen[1][1]), 30.0F);
    QVERIFY(std::holds_alternative<std::monostate>(tabelle.zeilen[1][2]));
}

QTEST_GUILESS_MAIN(TestRundreise)
#include "TestRundreise.moc"
