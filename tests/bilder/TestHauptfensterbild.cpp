#include "Bilderfenster.h"

#include "Erscheinungsbild.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;

/// What the main window looks like.
class TestHauptfensterbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStart();
    void aFood();
    void itsOtherViews_data();
    void itsOtherViews();
    void aFoodInTheDark();
    void theCalculator_data();
    void theCalculator();
    void theCalculatorInTheDark();
    void aChildInTheCalculator();
    void aSearch();
    void aSearchInVain();
    void theProfile();
    void theSaveBox();
    void notices();
    void aSmallScreen();
    void inEnglish();
};

namespace {

constexpr QSize klein(1016, 604); // what a desktop leaves of a screen of 1024 x 640

const QString haferflocken = u"Haferflocken"_s;

} // namespace

void TestHauptfensterbild::theFirstStart()
{
    const Bilderfenster fenster(u"de"_s, Bilderfenster::Eigene::Ohne);
    fenster.pruefe(u"haupt-erster-start"_s);
}

void TestHauptfensterbild::aFood()
{
    const Bilderfenster fenster;
    fenster.waehle(haferflocken);
    fenster.pruefe(u"haupt-naehrwerte"_s);
}

void TestHauptfensterbild::itsOtherViews_data()
{
    QTest::addColumn<QString>("ansicht");
    QTest::addColumn<QString>("bild");
    QTest::newRow("the needs of a day") << u"zwei"_s << u"haupt-tagesbedarf"_s;
    QTest::newRow("its relations") << u"drei"_s << u"haupt-relationen"_s;
}

void TestHauptfensterbild::itsOtherViews()
{
    QFETCH(QString, ansicht);
    QFETCH(QString, bild);
    const Bilderfenster fenster;
    fenster.waehle(haferflocken);
    fenster->zeigeAnsicht(ansicht);
    Bilderrahmen::pruefe(bild, *fenster->DatenAnsicht);
}

void TestHauptfensterbild::aFoodInTheDark()
{
    const Bilderfenster fenster;
    fenster.waehle(haferflocken);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    fenster.pruefe(u"haupt-naehrwerte-dunkel"_s);
    fenster->zeigeAnsicht(u"zwei"_s);
    Bilderrahmen::pruefe(u"haupt-tagesbedarf-dunkel"_s, *fenster->DatenAnsicht);
}

void TestHauptfensterbild::theCalculator_data()
{
    QTest::addColumn<QString>("ansicht");
    QTest::addColumn<bool>("leer");
    QTest::addColumn<QString>("bild");
    QTest::newRow("body, before anything was entered") << u"vier"_s << true << u"rechner-leer"_s;
    QTest::newRow("body") << u"vier"_s << false << u"rechner-koerper"_s;
    QTest::newRow("lifestyle") << u"fünf"_s << false << u"rechner-lebensweise"_s;
}

void TestHauptfensterbild::theCalculator()
{
    QFETCH(QString, ansicht);
    QFETCH(bool, leer);
    QFETCH(QString, bild);
    const Bilderfenster fenster;
    if (!leer) {
        fenster.rechne();
    }
    fenster->zeigeAnsicht(ansicht);
    Bilderrahmen::pruefe(bild, *fenster->DatenAnsicht);
}

void TestHauptfensterbild::theCalculatorInTheDark()
{
    const Bilderfenster fenster;
    fenster.rechne();
    fenster->zeigeAnsicht(u"vier"_s);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    Bilderrahmen::pruefe(u"rechner-dunkel"_s, *fenster->DatenAnsicht);
}

/// For the youngest nothing is worked out, and the page says so.
void TestHauptfensterbild::aChildInTheCalculator()
{
    const Bilderfenster fenster;
    fenster.rechne();
    fenster.rechner().alter->setDoubleValue(9);
    Q_EMIT fenster.rechner().alter->betaetigt();
    fenster->zeigeAnsicht(u"vier"_s);
    Bilderrahmen::pruefe(u"rechner-kind"_s, *fenster->DatenAnsicht);
}

void TestHauptfensterbild::aSearch()
{
    const Bilderfenster fenster;
    fenster.suche(u"kart"_s);
    fenster->waehleTreffer(1);
    QVERIFY(fenster->trefferleiste->isVisible());
    Bilderrahmen::pruefe(u"haupt-suche"_s, *fenster->linkeSeite);
}

void TestHauptfensterbild::aSearchInVain()
{
    const Bilderfenster fenster;
    fenster.suche(u"Tatzelwurm"_s);
    Bilderrahmen::pruefe(u"haupt-suche-vergeblich"_s, *fenster->linkeSeite);
}

/// Much protein, suitable with gout.
void TestHauptfensterbild::theProfile()
{
    const Bilderfenster fenster;
    fenster->profilaufzu->click();
    fenster->suchprofileinaus->zelle(0)->click();
    fenster->suchprofileinaus->zelle(3)->click();
    fenster->profilsuchen->click();
    Bilderrahmen::pruefe(u"haupt-profilsuche"_s, *fenster->linkeSeite);
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    Bilderrahmen::pruefe(u"haupt-profil-dunkel"_s, *fenster->suchprofileinaus);
}

void TestHauptfensterbild::theSaveBox()
{
    const Bilderfenster fenster;
    fenster->zeigeEigenes(u"Kartoffelsuppe"_s);
    fenster->sichernaufzu->click();
    QVERIFY(fenster->sichernBox->isVisible());
    Bilderrahmen::pruefe(u"haupt-sichern"_s, *fenster->rechteSeite);
}

void TestHauptfensterbild::notices()
{
    const Bilderfenster fenster;
    fenster->Hauptfenster->resize(klein);
    fenster.waehle(haferflocken);
    fenster->hinweise->zeige({.kennung = u"sicherung"_s,
                              .text = u"„Kartoffelsuppe“ ist gesichert."_s,
                              .knopf = u"Anzeigen"_s});
    fenster->hinweise->zeige(
        {.kennung = u"datei"_s,
         .text = u"Die Datei mit Ihren Lebensmitteln lässt sich nicht schreiben. Vielleicht ist "
                 "kein Platz mehr frei."_s,
         .knopf = u"Noch einmal"_s,
         .warnung = true});
    fenster.pruefe(u"haupt-hinweise"_s);
}

void TestHauptfensterbild::aSmallScreen()
{
    const Bilderfenster fenster;
    fenster->Hauptfenster->resize(klein);
    fenster.waehle(haferflocken);
    fenster.pruefe(u"haupt-klein"_s);
}

void TestHauptfensterbild::inEnglish()
{
    const Bilderfenster fenster(u"en"_s);
    fenster.rechne();
    fenster.waehle(haferflocken);
    fenster.pruefe(u"haupt-englisch"_s);
    fenster->zeigeAnsicht(u"vier"_s);
    Bilderrahmen::pruefe(u"rechner-englisch"_s, *fenster->DatenAnsicht);
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestHauptfensterbild>(argc, argv);
}

#include "TestHauptfensterbild.moc"
