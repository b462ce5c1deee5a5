#include "Bilderfenster.h"

#include "Erscheinungsbild.h"
#include "Kollisionsfenster.h"
#include "Loeschfrage.h"

using namespace Qt::StringLiterals;

/// What the clients' window looks like, in the course of three visits.
class TestKlientenbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyYet();
    void thePages_data();
    void thePages();
    void theQuestionBeforeDeleting();
    void whatTwoDesksHaveWritten();
};

namespace {

Klientenakte klientin()
{
    Klientenakte akte;
    akte.person.kennung = u"erika"_s;
    akte.person.name = u"Erika Beispiel"_s;
    akte.person.nummer = u"K-017"_s;
    akte.person.geschlecht = Personengeschlecht::Frau;
    akte.person.leiden = {true, true, false, false};
    akte.person.notizen = u"Isst gern spät. Kein Fisch."_s;
    const std::tuple<QDate, double, double> besuche[] = {{QDate(2025, 9, 1), 88.6, 98},
                                                         {QDate(2025, 10, 13), 86.2, 96},
                                                         {QDate(2025, 11, 24), 84.9, 94}};
    for (const auto &[tag, gewicht, taille] : besuche) {
        Besuch besuch;
        besuch.kennung = tag.toString(Qt::ISODate);
        besuch.datum = tag;
        besuch.gewicht = gewicht;
        besuch.groesse = 1.68;
        besuch.taille = taille;
        besuch.huefte = 111;
        besuch.aktivitaet = Aktivitaet::Leicht;
        besuch.reduktion = true;
        akte.besuche << besuch;
    }
    akte.besuche.last().notiz = u"Geht jetzt zu Fuß zur Arbeit."_s;
    return akte;
}

/// A plan of the pictures' day; of one food the table has other values today, one is gone from it.
Planablage plan(const QDate &tag, qsizetype anfang)
{
    Planablage ablage;
    ablage.kennung = u"plan "_s + tag.toString(Qt::ISODate);
    ablage.titel = u"Woche vom %1"_s.arg(tag.toString(u"d. M."_s));
    ablage.datum = tag;
    const Lebensmittelverzeichnis tafel = bildertafel();
    for (const auto &[name, gramm] : bildertag().mid(anfang)) {
        ablage.posten.append({name, static_cast<float>(gramm), tafel.value(name)});
    }
    ablage.posten[0].eintrag->setkal(12);
    ablage.posten.append({u"Großmutters Eintopf"_s, 200, Datenmodul()});
    return ablage;
}

/// The window of the clients, opened with its key; empty, or with one client in it.
struct Klientenbild
{
    explicit Klientenbild(const QString &sprache, bool leer = false) : programm(sprache)
    {
        if (!leer) {
            Klientenakte akte = klientin();
            akte.plaene = {plan(QDate(2025, 9, 1), 4), plan(QDate(2025, 11, 24), 0)};
            anschluss().kartei.lade();
            anschluss().kartei.nimmAuf(akte);
        }
        fenster().zeige();
        fenster().resize(1000, 680);
        QVERIFY(QTest::qWaitForWindowActive(&fenster()));
        if (!leer) {
            fenster().liste->selectRow(0);
        }
    }

    Klientenanschluss &anschluss() { return programm.oberflaeche().klienten; }
    Klientenfenster &fenster() { return anschluss().fenster(); }

    Bilderfenster programm;
};

} // namespace

void TestKlientenbild::nobodyYet()
{
    Klientenbild bild(u"de"_s, true);
    Bilderrahmen::pruefe(u"klienten-keine"_s, bild.fenster());
}

void TestKlientenbild::thePages_data()
{
    QTest::addColumn<int>("seite");
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<Erscheinungsbild>("aussehen");
    QTest::newRow("klienten-person") << 0 << u"de"_s << Erscheinungsbild::Hell;
    QTest::newRow("klienten-besuche") << 1 << u"de"_s << Erscheinungsbild::Hell;
    QTest::newRow("klienten-besuche-englisch-dunkel") << 1 << u"en"_s << Erscheinungsbild::Dunkel;
    QTest::newRow("klienten-plaene") << 2 << u"de"_s << Erscheinungsbild::Hell;
    QTest::newRow("klienten-fortschritt") << 3 << u"de"_s << Erscheinungsbild::Hell;
    QTest::newRow("klienten-fortschritt-englisch-dunkel")
        << 3 << u"en"_s << Erscheinungsbild::Dunkel;
}

void TestKlientenbild::thePages()
{
    QFETCH(int, seite);
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    Klientenbild bild(sprache);
    zeigeErscheinungsbild(aussehen);
    bild.fenster().seiten->setCurrentIndex(seite);
    Bilderrahmen::pruefe(QString::fromLatin1(QTest::currentDataTag()), bild.fenster());
}

void TestKlientenbild::theQuestionBeforeDeleting()
{
    const Bilderfenster programm;
    Loeschfrage frage(u"Erika Beispiel"_s,
                      u"In den täglichen Kopien bleibt es, bis zehn jüngere da sind."_s, nullptr);
    frage.show();
    QVERIFY(QTest::qWaitForWindowActive(&frage));
    Bilderrahmen::pruefe(u"klienten-loeschen"_s, frage);
}

void TestKlientenbild::whatTwoDesksHaveWritten()
{
    const Bilderfenster programm;
    const Besuch grundlage = klientin().besuche.constLast();
    Besuch meines = grundlage;
    meines.gewicht = 84.6;
    meines.notiz = u"Geht zu Fuß zur Arbeit, schläft besser."_s;
    Besuch anderes = grundlage;
    anderes.gewicht = 84.4;
    anderes.sport = u"Schwimmen"_s;
    anderes.sportdauer = 0.5;
    Kollisionsfenster fenster({{u"erika"_s, meines, grundlage}, anderes}, u"Erika Beispiel"_s,
                              nullptr);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    Bilderrahmen::pruefe(u"klienten-kollision"_s, fenster);
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestKlientenbild>(argc, argv);
}

#include "TestKlientenbild.moc"
