#include "Probefenster.h"

#include "Rundgang.h"
#include "Tagesauswertungsfenster.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

using enum Naehrwert;

/// The tour that the program takes by itself, for those who have no display.
class TestRundgang : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_einer.reset(); }
    void everyStopHasItsPictureAndItsWords();
    void theSummaryTellsWhatIsSeen();
    void theDaysOfTheClientAreTypedIn_data();
    void theDaysOfTheClientAreTypedIn();
    void theClientIsNotLeftAtTheDesk();
    void itLeavesTheSettingsAndFilesAlone();
    void itGoesAlsoWithoutFoods();
    void aFolderThatCantBeMadeIsReported();

private:
    /// A tour that was taken.
    struct Gegangener
    {
        explicit Gegangener(const Lebensmittelverzeichnis &tabelle);
        QString bericht() const;

        Probeheim heim;
        std::unique_ptr<Probefenster> fenster;
        QDir ordner;
        bool gegangen = false;
    };

    const Gegangener &einer();

    std::unique_ptr<Gegangener> m_einer;
};

namespace {

QString lies(const QString &datei)
{
    QFile gelesen(datei);
    return gelesen.open(QIODevice::ReadOnly) ? QString::fromUtf8(gelesen.readAll()) : QString();
}

/// The numbered lines of a summary, one for each stop.
QStringList halte(const QString &bericht)
{
    static const QRegularExpression nummeriert(QStringLiteral("^\\d+\\. .+$"),
                                               QRegularExpression::MultilineOption);
    QStringList zeilen;
    for (const auto &treffer : nummeriert.globalMatch(bericht)) {
        zeilen << treffer.captured();
    }
    return zeilen;
}

} // namespace

TestRundgang::Gegangener::Gegangener(const Lebensmittelverzeichnis &tabelle)
{
    heim.schreibeTabelle(tabelle);
    fenster = std::make_unique<Probefenster>(heim);
    ordner.setPath(heim.pfad(QStringLiteral("a/tour"))); // made with the folders above it
    gegangen = Rundgang(fenster->oberflaeche(), ordner).gehen();
}

QString TestRundgang::Gegangener::bericht() const
{
    return lies(ordner.filePath(QStringLiteral("summary.txt")));
}

/// The tour through a table of forty foods, of which none is known. It takes seconds and is looked
/// at from several sides.
const TestRundgang::Gegangener &TestRundgang::einer()
{
    if (m_einer == nullptr) {
        m_einer = std::make_unique<Gegangener>(zaehltabelle(40));
    }
    return *m_einer;
}

void TestRundgang::everyStopHasItsPictureAndItsWords()
{
    QVERIFY(einer().gegangen);
    const Probefenster &fenster = *einer().fenster;
    const QDir ordner = einer().ordner;
    const QStringList bilder = ordner.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    const QStringList worte = halte(einer().bericht());
    QVERIFY(bilder.size() >= 11);
    QCOMPARE(worte.size(), bilder.size());
    QList<QImage> gesehen;
    for (int i = 0; i < bilder.size(); ++i) {
        QVERIFY(bilder[i].startsWith(QStringLiteral("%1-").arg(i + 1, 2, 10, QLatin1Char('0'))));
        QVERIFY(worte[i].startsWith(QStringLiteral("%1. ").arg(i + 1)));
        const QImage bild(ordner.filePath(bilder[i]));
        const bool vomKlienten = bilder[i].contains(QStringLiteral("client"));
        const bool vomPlan = !vomKlienten && bilder[i].contains(QStringLiteral("plan"));
        const bool vomBlatt = bilder[i].contains(QStringLiteral("sheet"));
        Tagefenster &tage = fenster.oberflaeche().tage.fenster();
        const bool vomHandzettel = bilder[i].contains(QStringLiteral("handout")); // it is gone
        const bool vonAuswertung = bilder[i].contains(QStringLiteral("evaluation"));
        Einblickanschluss &einblick = fenster.oberflaeche().einblick;
        const bool vomEinblick = bilder[i].contains(QStringLiteral("insight"));
        const bool vonRangliste = bilder[i].contains(QStringLiteral("ranking"));
        const bool vomRezept = bilder[i].contains(QStringLiteral("recipe")); // it is gone
        const bool vonTagen = bilder[i].contains(QStringLiteral("days"));
        QCOMPARE(bild.size(), vomPlan         ? fenster->planmodul->window()->size()
                              : vomBlatt      ? fenster->einfenster->size()
                              : vomKlienten   ? fenster.oberflaeche().klienten.fenster().size()
                              : vomHandzettel ? bild.size().boundedTo(tage.size())
                              : vonAuswertung ? tage.auswertungsfenster().size()
                              : vomEinblick   ? einblick.fenster().size()
                              : vonRangliste  ? einblick.rangliste().size()
                              : vomRezept     ? bild.size().boundedTo(tage.size())
                              : vonTagen      ? tage.size()
                                              : fenster->Hauptfenster->size());
        gesehen << bild;
    }
    for (qsizetype i = 1; i < gesehen.size(); ++i) {
        QVERIFY2(gesehen[i] != gesehen[i - 1], qPrintable(bilder[i])); // something has happened
    }
    const QString dunkel = bilder.filter(QStringLiteral("dark")).value(0);
    QVERIFY(QImage(ordner.filePath(dunkel)).pixelColor(5, 400).lightness() < 128);
    QVERIFY(gesehen[0].pixelColor(5, 400).lightness() > 128);
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 128); // and back again
}

void TestRundgang::theSummaryTellsWhatIsSeen()
{
    QVERIFY(einer().gegangen);
    const Probefenster &fenster = *einer().fenster;
    const QString bericht = einer().bericht();
    QVERIFY(halte(bericht)[0].contains(QStringLiteral("40 rows")));
    for (const int zeile : {8, 20, 32}) {
        QVERIFY(bericht.contains(zaehlname(zeile)));
    }
    QVERIFY(bericht.contains(QStringLiteral("30 g")));
    QVERIFY(bericht.contains(QStringLiteral("Energie: 21 kcal")));
    // There is none in these foods, and only the open save box shows what is 0.
    QVERIFY(!bericht.section(QStringLiteral("Typed in"), 0, 0).contains(u"Vitamin C"));
    QVERIFY(bericht.section(QStringLiteral("Typed in"), 1).contains(u"Vitamin C: 0 mg"));
    for (int i = 0; i < 5; ++i) {
        QVERIFY(bericht.contains(fenster->DatenAnsicht->tabText(i)));
    }
    QVERIFY(bericht.contains(QStringLiteral("Searched for \"kart\", found 0")));
    QVERIFY(bericht.contains(QStringLiteral("Searched for protein and gout, found ")));
    QVERIFY(bericht.contains(QStringLiteral("Kartoffelsuppe")));
    QVERIFY(bericht.contains(QStringLiteral("Energie: 48 kcal")));
    QVERIFY(bericht.contains(QStringLiteral("BMI 24,69, 2112 kcal per day")));
    QVERIFY(bericht.contains(QStringLiteral("20,0 g of alcohol for 5,0 h")));
    QVERIFY(bericht.contains(QStringLiteral("Entered a client: Erika Beispiel, Nr. K-017")));
    const auto tag = [](int wochen) {
        return QDate::currentDate().addDays(wochen * -7LL).toString(QStringLiteral("dd.MM.yyyy"));
    };
    const QString dritter = bericht.section(QStringLiteral("Measured again at the desk"), 1);
    QVERIFY(dritter.contains(QStringLiteral("   %1 84,9 kg\n   %2 86,2 kg\n   %3 88,6 kg")
                                 .arg(tag(0), tag(6), tag(12))));
    // None of these foods is known, and a dish lacks the rows of its meal.
    QCOMPARE(einer().heim.meldungen.size(), 1);
    QCOMPARE(einer().heim.meldungen[0].text,
             QStringLiteral("Zeilen, deren Lebensmittel oder Menge unbekannt ist, kamen nicht ins "
                            "Rezept."));
}

void TestRundgang::theDaysOfTheClientAreTypedIn_data()
{
    QTest::addColumn<Lebensmittelverzeichnis>("tabelle");
    QTest::addColumn<QStringList>("zeilen");
    // A spoon of oats weighs 7 g and half a cup of milk 62.5 g, as the shipped measures have it.
    QTest::newRow("foods that are known")
        << verzeichnis({lebensmittel(QStringLiteral("Haferflocken"), {{kal, 100}}),
                        lebensmittel(QStringLiteral("Milch, 1,5 % Fett (fettarme Milch, H-Milch)"),
                                     {{kal, 100}}),
                        lebensmittel(QStringLiteral("Butter"), {{kal, 100}})})
        << QStringList{QStringLiteral("   5 EL (35 g) Haferflocken"),
                       QStringLiteral("   ½ Tasse (62,5 g) Milch, 1,5 % Fett"),
                       QStringLiteral("? oder Orangen (Apfelsinen), roh")};
    QTest::newRow("no food that is known")
        << Lebensmittelverzeichnis() // the tour of all
        << QStringList{QStringLiteral("( g) ? Haferflocken"), QStringLiteral("( g) ? Butter")};
}

/// Three days with an alternative and a note are kept for the client; what the table does not know
/// stays as it was written.
void TestRundgang::theDaysOfTheClientAreTypedIn()
{
    QFETCH(Lebensmittelverzeichnis, tabelle);
    QFETCH(QStringList, zeilen);
    const auto eigener = tabelle.isEmpty() ? nullptr : std::make_unique<Gegangener>(tabelle);
    const Gegangener &gang = eigener != nullptr ? *eigener : einer();
    QVERIFY(gang.gegangen);
    const Probefenster &fenster = *gang.fenster;
    const QString bericht = gang.bericht().section(QStringLiteral("Typed in three days"), 1, 1);
    for (const QString &zeile : zeilen) {
        QVERIFY2(bericht.contains(zeile), qPrintable(zeile + u'\n' + bericht));
    }
    Kartei &kartei = fenster.oberflaeche().klienten.kartei;
    const QString wer = kartei.liste().suche({}, true).constFirst().kennung;
    const QList<Aufzeichnung> aufzeichnungen = kartei.akte(wer)->aufzeichnungen;
    QCOMPARE(aufzeichnungen.size(), 1);
    const Aufzeichnung &eine = aufzeichnungen.constFirst();
    QCOMPARE(eine.tage.size(), 3);
    const QList<Mahlzeitzeile> fruehstueck = eine.tage[0].mahlzeiten[0].zeilen;
    QCOMPARE(fruehstueck.size(), 4);
    QVERIFY(fruehstueck[3].oder && !fruehstueck[2].oder);
    QCOMPARE(eine.tage[0].mahlzeiten[0].notiz, QStringLiteral("7:30"));
    QCOMPARE(eine.tage[2].mahlzeiten[4].zeilen.size(), 1);
    QVERIFY(!fenster.oberflaeche().tage.fenster().isVisible());
}

void TestRundgang::theClientIsNotLeftAtTheDesk()
{
    QVERIFY(einer().gegangen);
    const Probefenster &fenster = *einer().fenster;
    QVERIFY(!fenster.oberflaeche().klienten.tisch.akte());
    QVERIFY(!fenster.oberflaeche().klienten.fenster().isVisible());
    const QList<Personenzeile> alle = fenster.oberflaeche().klienten.kartei.liste().suche({}, true);
    QCOMPARE(alle.size(), 1);
    const auto akte = fenster.oberflaeche().klienten.kartei.akte(alle.constFirst().kennung);
    QVERIFY(akte);
    QCOMPARE(akte->besuche.size(), 3);
    QVERIFY(akte->plaene.isEmpty()); // this table has no food of the day that is planned
}

void TestRundgang::itLeavesTheSettingsAndFilesAlone()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(40));
    heim.einstellungen().setValue(QStringLiteral("Erscheinungsbild"), 1);
    const Probefenster fenster(heim);
    QVERIFY(Rundgang(fenster.oberflaeche(), QDir(heim.pfad(QStringLiteral("tour")))).gehen());
    QCOMPARE(heim.einstellungen().value(QStringLiteral("Erscheinungsbild")).toInt(), 1);
    QVERIFY(fenster->erscheinungsbild() == Erscheinungsbild::Hell);
}

void TestRundgang::itGoesAlsoWithoutFoods()
{
    Probeheim heim;
    const Probefenster fenster(heim);
    const QDir ordner(heim.pfad(QStringLiteral("tour")));
    QVERIFY(Rundgang(fenster.oberflaeche(), ordner).gehen());
    QVERIFY(
        lies(ordner.filePath(QStringLiteral("summary.txt"))).contains(QStringLiteral("0 rows")));
}

void TestRundgang::aFolderThatCantBeMadeIsReported()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(3));
    const Probefenster fenster(heim);
    QFile imWeg(heim.pfad(QStringLiteral("tour")));
    QVERIFY(imWeg.open(QIODevice::WriteOnly));
    QVERIFY(!Rundgang(fenster.oberflaeche(), QDir(heim.pfad(QStringLiteral("tour/hier")))).gehen());
}

QTEST_MAIN(TestRundgang)
#include "TestRundgang.moc"
