// Rows that come from a spreadsheet or a text: what is understood becomes a row that counts, and
// what is not stays as it was typed.

#include "Aufzeichnungsprobe.h"
#include "Zeilentext.h"

#include <QLocale>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;
using Zustand = Ablagelesung::Zustand;

namespace {

/// Foods by their German and their English name.
constexpr std::array<std::array<const char *, 2>, 5> speisen = {
    {{"Vollkornbrot", "Wholemeal bread"},
     {"Brot", "Bread"},
     {"Butter", "Butter"},
     {"Apfel roh", "Apple raw"},
     {"oder Tee", "or tea"}}};

Datenmodul gesucht(const QString &schluessel)
{
    return speise(schluessel, 200);
}

/// "2 Scheiben" are 100 g, "150 g" are 150, "150" as well; all else is no amount.
std::optional<float> gewicht(const QString &angabe)
{
    if (angabe == u"2 Scheiben"_s) {
        return 100.0F;
    }
    QString zahl = angabe;
    zahl.remove(u" g"_s).replace(u',', u'.');
    bool gut = false;
    const float gramm = zahl.toFloat(&gut);
    return gut ? std::optional(gramm) : std::nullopt;
}

} // namespace

class TestZeilentext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aLineBecomesARow_data();
    void aLineBecomesARow();
    void nothingIsNoRows_data();
    void nothingIsNoRows();
    void headingsTellTheColumns_data();
    void headingsTellTheColumns();
    void ownTablesComeBack_data();
    void ownTablesComeBack();
    void theMealIsThatOfTheRowAbove();
    void aFirstRowIsNoAlternative();
    void moreMealsThanFitLoseNoRows();
    void aQuoteThatIsNeverClosedEatsNothing();
    void tooMuchIsRefused();
    void rowsAreBroughtUpToDate();
    void whatIsGoneStaysAsItWas();

private:
    Ablagelesung lies(const QString &text) const { return leseZeilentext(text, m_quellen); }
    static QString inWorten(const Mahlzeitzeile &eine)
    {
        return (eine.oder ? u"|"_s : QString()) +
               (eine.schluessel.isNull() ? u"?"_s + eine.text : eine.schluessel) + u"/"_s +
               eine.angabe + u"/"_s +
               (eine.gramm ? QString::number(static_cast<double>(*eine.gramm)) : u"-"_s);
    }
    static QString inWorten(const Zeilenablage &ablage)
    {
        QStringList alle;
        for (qsizetype i = 0; i < ablage.mahlzeiten.size(); ++i) {
            for (const Mahlzeitzeile &eine : ablage.inhalt.mahlzeiten[i].zeilen) {
                alle << (ablage.mahlzeiten[i].isEmpty() ? QString()
                                                        : ablage.mahlzeiten[i] + u": "_s) +
                            inWorten(eine);
            }
        }
        return alle.join(u'\n');
    }

    Speisequellen m_quellen;
    QMap<QString, Datenmodul> m_heute;
};

void TestZeilentext::init()
{
    QLocale::setDefault(QLocale(QLocale::German));
    m_heute.clear();
    for (const auto &eine : speisen) {
        m_heute.insert(QString::fromUtf8(eine[0]), gesucht(QString::fromUtf8(eine[0])));
    }
    m_quellen.schluessel = [](const QString &name) {
        for (const auto &[de, en] : speisen) {
            if (name.compare(QString::fromUtf8(de), Qt::CaseInsensitive) == 0 ||
                name.compare(QString::fromUtf8(en), Qt::CaseInsensitive) == 0) {
                return QString::fromUtf8(de);
            }
        }
        return QString();
    };
    m_quellen.lebensmittel = [this](const QString &schluessel) -> const Datenmodul * {
        const auto gefunden = m_heute.constFind(schluessel);
        return gefunden == m_heute.constEnd() ? nullptr : &*gefunden;
    };
    m_quellen.gramm = [](const QString &, const QString &angabe) {
        return gewicht(angabe);
    };
}

void TestZeilentext::aLineBecomesARow_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("zeile");
    QTest::newRow("food and amount") << u"Brot\t2 Scheiben"_s << u"Brot/2 Scheiben/100"_s;
    QTest::newRow("food and grams") << u"Brot\t150"_s << u"Brot/150/150"_s;
    QTest::newRow("more columns") << u"Brot\t150\tbla\t3"_s << u"Brot/150/150"_s;
    QTest::newRow("semicolons") << u"Brot;150 g"_s << u"Brot/150 g/150"_s;
    QTest::newRow("in quotes") << u"\"Apfel roh\"\t\"150 g\""_s << u"Apfel roh/150 g/150"_s;
    QTest::newRow("in English") << u"apple raw\t150 g"_s << u"Apfel roh/150 g/150"_s;
    QTest::newRow("blanks around") << u"  Brot \t 150  g "_s << u"Brot/150 g/150"_s;
    QTest::newRow("amount first") << u"2 Scheiben Vollkornbrot"_s
                                  << u"Vollkornbrot/2 Scheiben/100"_s;
    QTest::newRow("amount last") << u"Vollkornbrot 100 g"_s << u"Vollkornbrot/100 g/100"_s;
    QTest::newRow("of two words") << u"Apfel roh 150 g"_s << u"Apfel roh/150 g/150"_s;
    QTest::newRow("food alone") << u"Butter"_s << u"Butter//-"_s;
    QTest::newRow("food in a table alone") << u"Butter\t\t"_s << u"Butter//-"_s;
    QTest::newRow("sentence in a table") << u"Butter 10 g\t"_s << u"Butter/10 g/10"_s;
    QTest::newRow("amount not understood") << u"ein Klecks Butter"_s << u"Butter/ein Klecks/-"_s;
    QTest::newRow("of two foods the last") << u"Brot 150 g Butter"_s << u"Butter/Brot 150 g/-"_s;
    QTest::newRow("of two names the longer one") << u"Brot Apfel roh"_s << u"Apfel roh/Brot/-"_s;
    QTest::newRow("food not known") << u"Omas Kuchen\t1 Stück"_s << u"?Omas Kuchen/1 Stück/-"_s;
    QTest::newRow("food not known, weight known") << u"Kuchen\t150 g"_s << u"?Kuchen/150 g/150"_s;
    QTest::newRow("nothing understood") << u"wie gestern"_s << u"?wie gestern//-"_s;
    QTest::newRow("amount without a food") << u"\t150 g"_s << u"?150 g//-"_s;
    QTest::newRow("marked as no formula") << u"'=Kuchen\t150"_s << u"?=Kuchen/150/150"_s;
    QTest::newRow("marked in a line") << u"'-Kuchen"_s << u"?-Kuchen//-"_s;
    QTest::newRow("a food that begins like an alternative")
        << u"oder Tee\t150"_s << u"oder Tee/150/150"_s;
    QTest::newRow("a semicolon further down")
        << u"Brot 150 g\nKuchen; süß"_s << u"Brot/150 g/150\n?Kuchen; süß//-"_s;
    QTest::newRow("line ends of any kind")
        << u"Brot\t1\r\nBrot\t2\rBrot\t3\n\n"_s << u"Brot/1/1\nBrot/2/2\nBrot/3/3"_s;
    QTest::newRow("alternatives") << u"Brot\t1\noder Butter\t2\nor Bread\t3"_s
                                  << u"Brot/1/1\n|Butter/2/2\n|Brot/3/3"_s;
    QTest::newRow("an alternative that is not known")
        << u"Brot\t1\noder Kuchen\t2"_s << u"Brot/1/1\n|?Kuchen/2/2"_s;
}

void TestZeilentext::aLineBecomesARow()
{
    QFETCH(const QString, text);
    const Ablagelesung gelesen = lies(text);
    QVERIFY(gelesen.zustand == Zustand::Gelesen);
    QVERIFY(gelesen.ablage.art == Zeilenablage::Art::Zeilen);
    QTEST(inWorten(gelesen.ablage), "zeile");
    for (const Mahlzeitzeile &eine : gelesen.ablage.inhalt.mahlzeiten[0].zeilen) {
        QCOMPARE(eine.eintrag.has_value(), !eine.schluessel.isNull());
    }
}

void TestZeilentext::nothingIsNoRows_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << u"  \n\t\t\n"_s;
    QTest::newRow("semicolons") << u";;\n ; \n"_s;
    QTest::newRow("ends of lines") << u"\r\n\n\r"_s;
    QTest::newRow("headings alone") << u"Lebensmittel\tMenge"_s;
}

void TestZeilentext::nothingIsNoRows()
{
    QFETCH(const QString, text);
    const Ablagelesung gelesen = lies(text);
    QVERIFY(gelesen.zustand == Zustand::Leer);
    QVERIFY(gelesen.ablage.mahlzeiten.isEmpty());
}

void TestZeilentext::headingsTellTheColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("zeilen");
    QTest::newRow("in another order") << u"Menge;Lebensmittel\n150 g;Brot"_s << u"Brot/150 g/150"_s;
    QTest::newRow("in English") << u"FOOD\tAmount\nBread\t2 Scheiben"_s << u"Brot/2 Scheiben/100"_s;
    QTest::newRow("grams for the amount") << u"Food\tGrams\nBread\t150"_s << u"Brot/150 g/150"_s;
    QTest::newRow("grams beside an amount that is not understood")
        << u"Lebensmittel\tMenge\tGramm\nBrot\tein Laib\t1.250,5"_s << u"Brot/ein Laib/1250.5"_s;
    QTest::newRow("the amount goes before the grams")
        << u"Lebensmittel\tMenge\tGramm\nBrot\t2 Scheiben\t90"_s << u"Brot/2 Scheiben/100"_s;
    QTest::newRow("no grams") << u"Lebensmittel\tMenge\tGramm\nBrot\tein Laib\t0"_s
                              << u"Brot/ein Laib/-"_s;
    QTest::newRow("below zero") << u"Lebensmittel\tMenge\tGramm\nBrot\tein Laib\t-3"_s
                                << u"Brot/ein Laib/-"_s;
    QTest::newRow("meals") << u"Mahlzeit\tLebensmittel\tMenge\nBrunch\tBrot\t1"_s
                           << u"Brunch: Brot/1/1"_s;
}

void TestZeilentext::headingsTellTheColumns()
{
    QFETCH(const QString, text);
    QTEST(inWorten(lies(text).ablage), "zeilen");
}

void TestZeilentext::ownTablesComeBack_data()
{
    QTest::addColumn<bool>("mitUeberschrift");
    QTest::newRow("with headings") << true;
    QTest::newRow("without") << false;
}

/// What went out to a spreadsheet comes back from it as the same rows.
void TestZeilentext::ownTablesComeBack()
{
    QFETCH(const bool, mitUeberschrift);
    QStringList zeilen = {u"Frühstück\tBrot\t2 Scheiben\t100\t200"_s,
                          u"Frühstück\toder Vollkornbrot\t80\t80\t"_s,
                          u"Abendessen\tKuchen\tein Stück\t\t"_s};
    if (mitUeberschrift) {
        zeilen.prepend(u"Mahlzeit\tLebensmittel\tMenge\tGramm\tkcal"_s);
    }
    QCOMPARE(inWorten(lies(zeilen.join(u'\n') + u'\n').ablage),
             u"Frühstück: Brot/2 Scheiben/100\nFrühstück: |Vollkornbrot/80/80\n"
             "Abendessen: ?Kuchen/ein Stück/-"_s);
}

void TestZeilentext::theMealIsThatOfTheRowAbove()
{
    QCOMPARE(inWorten(lies(u"Mahlzeit\tLebensmittel\tMenge\n\tBrot\t1\nfrühstück\tBrot\t2\n\tButter"
                           "\t3\nAbendessen\tBrot\t4\nFrühstück\tBrot\t5"_s)
                          .ablage),
             u"Brot/1/1\nFrühstück: Brot/2/2\nFrühstück: Butter/3/3\nFrühstück: Brot/5/5\n"
             "Abendessen: Brot/4/4"_s);
}

void TestZeilentext::aFirstRowIsNoAlternative()
{
    QCOMPARE(inWorten(lies(u"oder Brot\t1\noder Butter\t2"_s).ablage), u"Brot/1/1\n|Butter/2/2"_s);
}

void TestZeilentext::moreMealsThanFitLoseNoRows()
{
    QString text = u"Mahlzeit\tLebensmittel\tMenge\n"_s;
    for (int i = 0; i < meisteMahlzeiten + 2; ++i) {
        text += u"M%1\tBrot\t1\n"_s.arg(i);
    }
    const Zeilenablage ablage = lies(text).ablage;
    QCOMPARE(ablage.mahlzeiten.size(), meisteMahlzeiten);
    QCOMPARE(zeilenzahl(ablage), meisteMahlzeiten + 2);
}

void TestZeilentext::aQuoteThatIsNeverClosedEatsNothing()
{
    QCOMPARE(inWorten(lies(u"\"Brot\t1\nButter\t2"_s).ablage), u"?\"Brot/1/1\nButter/2/2"_s);
}

void TestZeilentext::tooMuchIsRefused()
{
    const QString eine = u"Brot\t1\n"_s;
    QCOMPARE(zeilenzahl(lies(eine.repeated(meisteAblagezeilen)).ablage), meisteAblagezeilen);
    QVERIFY(lies(eine.repeated(meisteAblagezeilen + 1)).zustand == Zustand::ZuViel);
    int gesucht = 0; // nobody waits for foods that will be refused
    const auto schluessel = m_quellen.schluessel;
    m_quellen.schluessel = [&](const QString &name) {
        ++gesucht;
        return schluessel(name);
    };
    QVERIFY(lies(eine.repeated(meisteAblagezeilen + 5)).zustand == Zustand::ZuViel);
    QCOMPARE(gesucht, 0);
    QVERIFY(lies(u"Lebensmittel\tMenge\n"_s + eine.repeated(meisteAblagezeilen)).zustand ==
            Zustand::Gelesen);
    QVERIFY(lies(QString(1'000'001, u'x')).zustand == Zustand::ZuViel);
}

void TestZeilentext::rowsAreBroughtUpToDate()
{
    Zeilenablage ablage{Zeilenablage::Art::Zeilen, {u"Frühstück"_s}, {}};
    Mahlzeitzeile eine = zeile(u"Brot"_s, 90, 999);
    eine.angabe = u"2 Scheiben"_s;
    ablage.inhalt.mahlzeiten = {{{eine}, {}}};
    bringeAufHeute(ablage, m_quellen);
    const Mahlzeitzeile &neue = ablage.inhalt.mahlzeiten[0].zeilen[0];
    QCOMPARE(neue.eintrag->kal(), 200.0F);
    QCOMPARE(neue.gramm, std::optional(100.0F));
}

void TestZeilentext::whatIsGoneStaysAsItWas()
{
    Zeilenablage ablage{Zeilenablage::Art::Zeilen, {u"Frühstück"_s}, {}};
    Mahlzeitzeile fort = zeile(u"Früher"_s, 90, 999);
    fort.angabe = u"2 Scheiben"_s;
    Mahlzeitzeile unverstanden = zeile(u"Brot"_s, 70);
    unverstanden.angabe = u"ein Laib"_s;
    Mahlzeitzeile getippt;
    getippt.text = u"Brot"_s;
    ablage.inhalt.mahlzeiten = {{{fort, unverstanden, getippt}, {}}};
    bringeAufHeute(ablage, m_quellen);
    const QList<Mahlzeitzeile> &zeilen = ablage.inhalt.mahlzeiten[0].zeilen;
    QVERIFY(zeilen[0] == fort);
    QCOMPARE(zeilen[1].gramm, std::optional(70.0F));
    QVERIFY(zeilen[2] == getippt);
}

QTEST_GUILESS_MAIN(TestZeilentext)
#include "TestZeilentext.moc"
