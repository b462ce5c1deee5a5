#include "Bilderfenster.h"

#include "Beitragsblatt.h"
#include "Erscheinungsbild.h"
#include "Vorschlagsblatt.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// What the insight into a plan, the ranking and a recipe look like.
class TestEinblickbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSheetsOfTheInsight_data();
    void theSheetsOfTheInsight();
    void theFieldsBeforeASetIsChosen();
    void theRanking_data();
    void theRanking();
    void aRecipe_data();
    void aRecipe();
};

namespace {

/// A day of few vegetables and no fish, so that something is short.
const QList<std::pair<QString, int>> &gegessenes()
{
    static const QList<std::pair<QString, int>> tag = {
        {u"Haferflocken"_s, 50},
        {u"Milch, 1,5 % Fett (fettarme Milch, H-Milch)"_s, 250},
        {u"Bananen, roh"_s, 120},
        {u"Walnussbrote"_s, 100},
        {u"Konfitüren (Marmeladen)"_s, 40},
        {u"Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln"_s, 200},
        {u"Hähnchenbrustfilet (Hähnchenbrüste), gebraten"_s, 125},
        {u"Möhren (Karotten, Mohrrüben, Rüebli), gedämpft"_s, 80},
    };
    return tag;
}

Referenzperson klientin()
{
    Referenzperson person;
    person.geschlecht = Referenzgeschlecht::Frau;
    person.alter = 42;
    person.gewicht = 78.5;
    person.pal = 1.6;
    return person;
}

/// The program with that day in its plan.
struct Einblickbild
{
    explicit Einblickbild(const QString &sprache, const QList<std::pair<QString, int>> &speisen)
        : programm(sprache)
    {
        programm.oeffnePlan();
        Tabellenmodell &tabelle = *programm.plan().PlanTabelle->modell();
        const int menge = tabelle.spaltenstelle(u"menge"_s);
        for (const auto &[name, gramm] : speisen) {
            programm.plan().nameimportvontoolbar(name);
            tabelle.setData(tabelle.index(tabelle.rowCount() - 1, menge), QString::number(gramm),
                            Qt::EditRole);
        }
    }

    Einblickanschluss &anschluss() { return programm.oberflaeche().einblick; }
    Einblickfenster &fenster() { return anschluss().fenster(); }

    /// The window of the insight, measured by this set.
    void oeffne(std::optional<Referenzsatz> satz)
    {
        anschluss().oeffne(Gegenstand::Plan);
        QVERIFY(QTest::qWaitForWindowActive(&fenster()));
        fenster().personenwahl->setSatz(satz);
        fenster().setzeKlient(klientin(), {true, false, false, false});
    }

    Bilderfenster programm;
};

template <class Klasse>
Klasse &teil(const QWidget &fenster, const char *name)
{
    return *fenster.findChild<Klasse *>(QLatin1String(name));
}

/// Each sheet in the light and in German, and in the dark and in English.
void beideKleider(const QList<std::pair<const char *, int>> &blaetter)
{
    QTest::addColumn<int>("blatt");
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<Erscheinungsbild>("aussehen");
    QTest::addColumn<int>("verhaeltnis");
    for (const auto &[name, blatt] : blaetter) {
        QTest::newRow(name) << blatt << u"de"_s << Erscheinungsbild::Hell << 1;
        QTest::newRow(QByteArray(name).append("-englisch-dunkel").constData())
            << blatt << u"en"_s << Erscheinungsbild::Dunkel << 1;
    }
}

/// Compares the window under the name of the data row.
void pruefe(QWidget &fenster, Erscheinungsbild aussehen, int verhaeltnis)
{
    zeigeErscheinungsbild(aussehen);
    Bilderrahmen::pruefe(QString::fromLatin1(QTest::currentDataTag()), fenster, verhaeltnis);
}

} // namespace

void TestEinblickbild::theSheetsOfTheInsight_data()
{
    beideKleider({{"einblick-referenzwerte", 0},
                  {"einblick-beitraege", 1},
                  {"einblick-vorschlaege", 2},
                  {"einblick-werte", 3}});
    QTest::newRow("einblick-referenzwerte-zweifach") << 0 << u"de"_s << Erscheinungsbild::Hell << 2;
}

void TestEinblickbild::theSheetsOfTheInsight()
{
    QFETCH(int, blatt);
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    QFETCH(int, verhaeltnis);
    Einblickbild bild(sprache, gegessenes());
    bild.oeffne(Referenzsatz::Dach);
    Einblickfenster &fenster = bild.fenster();
    teil<QToolButton>(fenster, "oeffner").setChecked(blatt == 0); // for whom, where it is asked
    fenster.beitragsblatt->waehle(Kenngroesse::fe);
    fenster.blaetter->setCurrentIndex(blatt);
    fenster.vorschlagsblatt->waehleZiel(Kenngroesse::fe);
    pruefe(fenster, aussehen, verhaeltnis);
}

void TestEinblickbild::theFieldsBeforeASetIsChosen()
{
    Einblickbild bild(u"de"_s, gegessenes());
    bild.oeffne(std::nullopt);
    teil<QToolButton>(bild.fenster(), "oeffner").setChecked(true);
    Bilderrahmen::pruefe(u"einblick-tagesbedarf"_s, bild.fenster());
}

void TestEinblickbild::theRanking_data()
{
    beideKleider({{"rangliste", 0}, {"rangliste-vergleich", 1}});
}

/// Three foods are ticked, which stand side by side on the other sheet.
void TestEinblickbild::theRanking()
{
    QFETCH(int, blatt);
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    QFETCH(int, verhaeltnis);
    Einblickbild bild(sprache, {});
    Ranglistenfenster &fenster = bild.anschluss().rangliste();
    teil<QComboBox>(fenster, "rangbezug").setCurrentIndex(static_cast<int>(Bezug::JePortion));
    fenster.zeige(Kenngroesse::fe);
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    QAbstractItemModel &liste = *teil<QTableView>(fenster, "rangliste").model();
    for (int zeile = 0; zeile < 3; ++zeile) {
        liste.setData(liste.index(zeile, Rangmodell::Name), Qt::Checked, Qt::CheckStateRole);
    }
    teil<QTabWidget>(fenster, "rangseiten").setCurrentIndex(blatt);
    pruefe(fenster, aussehen, verhaeltnis);
}

void TestEinblickbild::aRecipe_data()
{
    beideKleider({{"rezept-zutaten", 0},
                  {"rezept-werte", 1},
                  {"rezept-wertungen", 2},
                  {"rezept-zubereitung", 3}});
}

/// Three rows of the plan in a pan.
void TestEinblickbild::aRecipe()
{
    QFETCH(int, blatt);
    QFETCH(QString, sprache);
    QFETCH(Erscheinungsbild, aussehen);
    QFETCH(int, verhaeltnis);
    Einblickbild bild(sprache, gegessenes().mid(5));
    bild.programm.plan().window()->findChild<QAction *>(u"aktionRezept"_s)->trigger();
    QPointer<Rezeptfenster> fenster = bild.anschluss().rezepte.offenes();
    QVERIFY(QTest::qWaitForWindowActive(fenster));
    const std::pair<const char *, QString> eingaben[] = {
        {"rezeptname", u"Hähnchenpfanne"_s}, {"fertiggewicht", u"360"_s}, {"portionen", u"2"_s}};
    for (const auto &[name, text] : eingaben) {
        teil<QLineEdit>(*fenster, name).setText(text);
    }
    teil<QPlainTextEdit>(*fenster, "zubereitung")
        .setPlainText(u"Alles in einer Pfanne braten, mit Kräutern bestreuen."_s);
    teil<QTabWidget>(*fenster, "rezeptseiten").setCurrentIndex(blatt);
    pruefe(*fenster, aussehen, verhaeltnis);
    delete fenster;
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestEinblickbild>(argc, argv);
}

#include "TestEinblickbild.moc"
