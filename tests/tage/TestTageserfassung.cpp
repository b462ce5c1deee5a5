// A client's week, typed in with the built-in foods and their household measures by keyboard alone:
// every key is counted.

#include "Fensterprobe.h"
#include "Lebensmittelbestand.h"
#include "Portionentabelle.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

/// A row as it is typed, and what it has to become.
struct Zeile
{
    const char *name; ///< letters until the first food that is found is the one
    const char *angabe;
    const char *speise;
    float gramm;
};

/// Foods that clients write down: what is typed of them, and what a measure of them weighs.
const QHash<QString, Zeile> &speisezettel()
{
    static const QHash<QString, Zeile> alle = {
        {u"flocken"_s, {"haferf", "4 el", "Haferflocken", 28}},
        {u"apfel"_s, {"apfel), r", "1 st", "Äpfel (Apfel), roh", 182}},
        {u"banane"_s, {"bananen, r", "1/2 Stück", "Bananen, roh", 57.5}},
        {u"brot"_s, {"weizenv", "2 scheiben", "Weizenvollkornbrote", 100}},
        {u"butter"_s, {"butter", "2 tl", "Butter", 6}},
        {u"marmelade"_s, {"konf", "1 el", "Konfitüren (Marmeladen)", 20}},
        {u"kaffee"_s, {"mit kaf", "2 tassen", "Kaffee mit Kaffeesahne, ungezuckert", 250}},
        {u"tee"_s, {"tee", "", "Tee (z. B. Schwarztee), ungezuckert", 125}},
        {u"kartoffeln"_s,
         {"pellkartoffeln, n", "3 stück", "Kartoffeln (Erdäpfel), Pellkartoffeln, neu", 240}},
        {u"reis"_s, {"parb", "1 Portion", "Reis (parboiled Reis), gekocht", 225}},
        {u"nudeln"_s, {"eiernudeln), g", "200", "Nudeln (Pasta, Eiernudeln), gekocht", 200}},
        {u"gurke"_s, {"gurken", "anderthalb stück", "Gurken (Salatgurken), roh", 451.5}},
        {u"öl"_s, {"olivenöl", "1,5 EL", "Olivenöl (Speiseöle)", 15}},
        {u"käse"_s, {"emm", "", "Emmentaler (Schweizer Käse)", 30}},
        {u"nüsse"_s, {"walnü", "eine handvoll", "Walnüsse (Walnuss)", 25}},
        {u"wasser"_s, {"leit", "3 gl", "Leitungswasser (Trinkwasser)", 840}},
        {u"wein"_s, {"rotw", "1/4 l", "Rotwein (Rotweine), 12 % vol", 250}},
        {u"ei"_s, {"eier", "", "Eier (Hühnereier), hart gekocht", 50}},
        {u"linsen"_s, {"linsen", "1 por", "Linsen, ganz (z. B. Tellerlinsen), gekocht", 125}},
        {u"brokkoli"_s, {"brok", "0,2 kg", "Brokkoli (Broccoli), gedämpft", 200}},
        {u"joghurt"_s, {"jo", "1 becher", "Joghurt (Erdbeerjoghurt, Fruchtjoghurts)", 150}},
        {u"zwieback"_s, {"zwieback", "4 Stück", "Zwieback", 30}},
        {u"erdbeeren"_s, {"erdb", "10 stück", "Erdbeeren, roh", 120}},
        {u"honig"_s, {"hon", "1 tl", "Honig (Blütenhonig)", 5}},
        {u"salat"_s, {"kopfs", "5 blatt", "Kopfsalate (Häuptelsalat), roh", 40}},
    };
    return alle;
}

/// What was eaten, day by day and meal by meal.
const QList<QStringList> &woche()
{
    static const QList<QStringList> tage = {
        {u"brot butter marmelade kaffee"_s, u"apfel"_s, u"kartoffeln brokkoli öl wasser"_s,
         u"joghurt tee"_s, u"brot käse gurke tee"_s, u"nüsse"_s},
        {u"flocken banane kaffee"_s, u""_s, u"nudeln salat öl wasser"_s, u"zwieback honig tee"_s,
         u"brot ei salat wasser"_s, u""_s},
        {u"brot butter honig tee"_s, u"banane"_s, u"linsen brot wasser"_s, u"erdbeeren kaffee"_s,
         u"kartoffeln ei gurke"_s, u"wein käse"_s},
        {u""_s, u"kaffee zwieback"_s, u"reis brokkoli öl wasser"_s, u""_s, u"brot käse salat"_s,
         u""_s},
        {u"flocken erdbeeren joghurt kaffee"_s, u"apfel nüsse"_s, u"nudeln öl gurke"_s, u"tee"_s,
         u"linsen reis wasser"_s, u""_s},
        {u"brot butter käse ei kaffee"_s, u""_s, u""_s, u"kaffee zwieback marmelade"_s,
         u"kartoffeln salat öl wein"_s, u"nüsse wein"_s},
        {u"zwieback butter marmelade honig kaffee"_s, u"joghurt"_s,
         u"reis brokkoli salat öl wasser"_s, u"apfel tee"_s, u"brot käse gurke wasser"_s,
         u"banane"_s}};
    return tage;
}

} // namespace

class TestTageserfassung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aWeekIsTypedByKeyboardAlone();

private:
    void taste(Qt::Key taste, Qt::KeyboardModifiers dazu = {})
    {
        ++m_tasten;
        Fensterprobe::taste(taste, dazu);
    }
    void tippe(const char *text)
    {
        const QString alles = QString::fromUtf8(text);
        m_tasten += static_cast<int>(alles.size());
        Fensterprobe::tippe(alles);
    }
    void tippeMahlzeit(const QStringList &speisen);
    void pruefe(const Aufzeichnung &aufzeichnung) const;

    Lebensmittelbestand m_bestand;
    int m_tasten = 0;
};

void TestTageserfassung::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_bestand = ladeBestand(u":/DatabaseIII.daten"_s);
    QVERIFY(m_bestand.verzeichnis.size() > 1000);
}

void TestTageserfassung::tippeMahlzeit(const QStringList &speisen)
{
    for (const QString &speise : speisen) {
        const Zeile zeile = speisezettel().value(speise);
        tippe(zeile.name);
        taste(Qt::Key_Return);
        tippe(zeile.angabe);
        taste(Qt::Key_Return);
    }
    if (speisen.isEmpty()) {
        taste(Qt::Key_Return); // into the empty row
    }
    taste(Qt::Key_Return); // and on to the next meal
}

void TestTageserfassung::aWeekIsTypedByKeyboardAlone()
{
    Fensterprobe probe;
    const Portionentabelle portionen(u":/Portionen.csv"_s, u":/Lebensmittel.csv"_s);
    probe.namen = m_bestand.namen;
    probe.speisen = m_bestand.verzeichnis;
    for (const QString &name : std::as_const(probe.namen)) {
        probe.masse[name] = portionen.masseFuer(name);
    }
    m_tasten = 0;
    taste(Qt::Key_N, Qt::ControlModifier);
    taste(Qt::Key_G, Qt::AltModifier); // to the number of days
    tippe("7");
    while (QApplication::focusWidget() != probe.fenster->ansicht) {
        taste(Qt::Key_Tab);
        QVERIFY(m_tasten < 20);
    }
    qsizetype zugestanden = 0;
    int zeilen = 0;
    for (const QStringList &tag : woche()) {
        for (const QString &mahlzeit : tag) {
            const QStringList speisen = mahlzeit.split(u' ', Qt::SkipEmptyParts);
            tippeMahlzeit(speisen);
            for (const QString &speise : speisen) {
                const Zeile zeile = speisezettel().value(speise);
                zugestanden += QString::fromUtf8(zeile.name).size() +
                               QString::fromUtf8(zeile.angabe).size() + 3;
                ++zeilen;
            }
        }
    }
    pruefe(probe.jetzige());
    qInfo("%d rows typed with %d keys: %.2f a row, of which %.2f are not letters of a name or an "
          "amount",
          zeilen, m_tasten, m_tasten / static_cast<double>(zeilen),
          3 - static_cast<double>(zugestanden - m_tasten) / zeilen);
    QVERIFY2(m_tasten <= zugestanden, qPrintable(QString::number(m_tasten)));
}

/// Every row is the food that was meant, with the amount that was said.
void TestTageserfassung::pruefe(const Aufzeichnung &aufzeichnung) const
{
    QCOMPARE(aufzeichnung.tage.size(), woche().size());
    for (int tag = 0; tag < woche().size(); ++tag) {
        for (int mahlzeit = 0; mahlzeit < woche()[tag].size(); ++mahlzeit) {
            const QStringList speisen = woche()[tag][mahlzeit].split(u' ', Qt::SkipEmptyParts);
            const QList<Mahlzeitzeile> &zeilen = aufzeichnung.tage[tag].mahlzeiten[mahlzeit].zeilen;
            QCOMPARE(zeilen.size(), speisen.size());
            for (int i = 0; i < speisen.size(); ++i) {
                const Zeile gemeinte = speisezettel().value(speisen[i]);
                QCOMPARE(zeilen[i].schluessel, QString::fromUtf8(gemeinte.speise));
                QCOMPARE(zeilen[i].gramm.value_or(-1), gemeinte.gramm);
            }
        }
    }
}

QTEST_MAIN(TestTageserfassung)
#include "TestTageserfassung.moc"
