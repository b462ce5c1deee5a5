#include "Namenssuche.h"

#include <QRandomGenerator>
#include <QTest>

class TestNamenssuche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matching_data();
    void matching();
    void ownFoodsComeFirst();
    void nothingIsSortedOrListedOnce();
    void builtInFoodsAreSearchedInTheirTranslation();
    void aKeyWithoutTranslationIsSearchedAsItStands();
    void everyBuiltInMissIsCounted_data();
    void everyBuiltInMissIsCounted();
    void sameAsAPlainSearch_data();
    void sameAsAPlainSearch();
    void oneAmongManyIsFound();
};

void TestNamenssuche::matching_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("treffer");
    QTest::newRow("the whole name") << "Apfel"
                                    << "Apfel" << true;
    QTest::newRow("at the start, in lower case") << "Apfel, roh"
                                                 << "apf" << true;
    QTest::newRow("in the middle, in capitals") << "Bratapfel"
                                                << "TAPF" << true;
    QTest::newRow("at the end") << "Bratapfel"
                                << "fel" << true;
    QTest::newRow("longer than the name") << "Apfel"
                                          << "Apfelmus" << false;
    QTest::newRow("elsewhere") << "Birne"
                               << "Apfel" << false;
    QTest::newRow("empty text") << "Apfel"
                                << "" << false;
    QTest::newRow("empty text, empty name") << ""
                                            << "" << false;
    QTest::newRow("a text in an empty name") << ""
                                             << "a" << false;
    QTest::newRow("capital umlaut") << "Äpfel"
                                    << "äpf" << true;
    QTest::newRow("small umlaut") << "Weißkäse"
                                  << "KÄSE" << true;
    QTest::newRow("an umlaut is not its base letter") << "Äpfel"
                                                      << "apfel" << false;
    QTest::newRow("a base letter is not its umlaut") << "Apfel"
                                                     << "äpfel" << false;
    QTest::newRow("sharp s is not ss") << "Süßmost"
                                       << "süssmost" << false;
    QTest::newRow("accent") << "Crème fraîche"
                            << "CRÈME FRAÎ" << true;
    QTest::newRow("blank") << "Apfel, roh"
                           << ", r" << true;
    QTest::newRow("a single blank") << "Apfel, roh"
                                    << " " << true;
    QTest::newRow("blanks are not cut off") << "Apfel"
                                            << "Apfel " << false;
    QTest::newRow("percent sign") << "Milch 3,5 %"
                                  << "5 %" << true;
    QTest::newRow("no pattern signs") << "Apfel"
                                      << "A.*l" << false;
    QTest::newRow("non-Latin") << "Хлеб"
                               << "ХЛЕБ" << true;
    QTest::newRow("repeated start") << "aaab"
                                    << "aab" << true;
    QTest::newRow("the dash of row 0") << "Apfel"
                                       << "-" << false;
}

void TestNamenssuche::matching()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(bool, treffer);
    const auto eigen = namenSuchen({name}, {}, {}, text);
    QCOMPARE(eigen.treffer.size(), treffer ? 1 : 0);
    QCOMPARE(eigen.eigeneTreffer, treffer ? 1 : 0);
    QCOMPARE(eigen.nichtGefunden, 0);
    const auto eingebaut = namenSuchen({}, {QStringLiteral("key")}, {name}, text);
    QCOMPARE(eingebaut.treffer.size(), treffer ? 1 : 0);
    QCOMPARE(eingebaut.eigeneTreffer, 0);
    QCOMPARE(eingebaut.nichtGefunden, treffer ? 0 : 1);
}

void TestNamenssuche::ownFoodsComeFirst()
{
    const auto ergebnis =
        namenSuchen({QStringLiteral("Zwieback"), QStringLiteral("Brei")},
                    {QStringLiteral("Brot"), QStringLiteral("Ei")},
                    {QStringLiteral("Bread"), QStringLiteral("Egg")}, QStringLiteral("b"));
    const QList<Suchtreffer> erwartet = {
        {QStringLiteral("Zwieback"), QStringLiteral("Zwieback")},
        {QStringLiteral("Brei"), QStringLiteral("Brei")},
        {QStringLiteral("Bread"), QStringLiteral("Brot")},
    };
    QCOMPARE(ergebnis.treffer, erwartet);
    QCOMPARE(ergebnis.eigeneTreffer, 2);
    QCOMPARE(ergebnis.nichtGefunden, 1);
}

void TestNamenssuche::nothingIsSortedOrListedOnce()
{
    const auto mus = QStringLiteral("Mus");
    const auto apfelmus = QStringLiteral("Apfelmus");
    const auto ergebnis = namenSuchen({mus, apfelmus}, {mus, apfelmus}, {mus, apfelmus}, mus);
    const QList<Suchtreffer> erwartet = {
        {mus, mus}, {apfelmus, apfelmus}, {mus, mus}, {apfelmus, apfelmus}};
    QCOMPARE(ergebnis.treffer, erwartet);
}

void TestNamenssuche::builtInFoodsAreSearchedInTheirTranslation()
{
    const QStringList schluessel = {QStringLiteral("Apfel")};
    const QStringList uebersetzt = {QStringLiteral("Apple")};
    QCOMPARE(namenSuchen({}, schluessel, uebersetzt, QStringLiteral("apfel")).treffer.size(), 0);
    const auto ergebnis = namenSuchen({}, schluessel, uebersetzt, QStringLiteral("apple"));
    QCOMPARE(ergebnis.treffer.size(), 1);
    QCOMPARE(ergebnis.treffer.first().anzeige, QStringLiteral("Apple"));
    QCOMPARE(ergebnis.treffer.first().schluessel, QStringLiteral("Apfel"));
}

void TestNamenssuche::aKeyWithoutTranslationIsSearchedAsItStands()
{
    const auto ergebnis = namenSuchen({}, {QStringLiteral("Apfel"), QStringLiteral("Birne")},
                                      {QStringLiteral("Apple")}, QStringLiteral("birne"));
    const QList<Suchtreffer> erwartet = {{QStringLiteral("Birne"), QStringLiteral("Birne")}};
    QCOMPARE(ergebnis.treffer, erwartet);
    QCOMPARE(ergebnis.nichtGefunden, 1);
}

void TestNamenssuche::everyBuiltInMissIsCounted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("verfehlt");
    QTest::newRow("empty text: all") << "" << 4;
    QTest::newRow("found nowhere: all") << "xyz" << 4;
    QTest::newRow("some") << "birne" << 2;
    QTest::newRow("none") << "n" << 0;
}

void TestNamenssuche::everyBuiltInMissIsCounted()
{
    QFETCH(QString, text);
    const QStringList namen = {QStringLiteral("Birne"), QStringLiteral("Nuss"),
                               QStringLiteral("Banane"), QStringLiteral("Birnenmus")};
    QTEST(static_cast<int>(namenSuchen({QStringLiteral("Ei")}, namen, namen, text).nichtGefunden),
          "verfehlt");
}

namespace {

/// Names from few letters, so that short texts are found often; umlauts, a sharp s, a letter
/// outside the first 65536 (Deseret, which has capitals) and an empty name now and then.
QStringList zufallsnamen(QRandomGenerator &zufall, int anzahl)
{
    const QStringList zeichen = {QStringLiteral("a"),
                                 QStringLiteral("A"),
                                 QStringLiteral("ä"),
                                 QStringLiteral("Ä"),
                                 QStringLiteral("b"),
                                 QStringLiteral("ß"),
                                 QStringLiteral(" "),
                                 QStringLiteral("é"),
                                 QStringLiteral("É"),
                                 QString::fromUtf8("\U00010400"),
                                 QString::fromUtf8("\U00010428")};
    QStringList namen;
    for (int i = 0; i < anzahl; ++i) {
        QString name;
        for (int laenge = zufall.bounded(9); laenge > 0; --laenge) {
            name += zeichen.at(zufall.bounded(static_cast<int>(zeichen.size())));
        }
        namen.append(name);
    }
    return namen;
}

} // namespace

void TestNamenssuche::sameAsAPlainSearch_data()
{
    QTest::addColumn<quint32>("saat");
    for (const quint32 saat : {1U, 2U, 3U, 4U, 5U}) {
        QTest::addRow("random table %u", saat) << saat;
    }
}

void TestNamenssuche::sameAsAPlainSearch()
{
    QFETCH(quint32, saat);
    QRandomGenerator zufall(saat);
    const QStringList eigene = zufallsnamen(zufall, 200);
    const QStringList schluessel = zufallsnamen(zufall, 300);
    const QStringList uebersetzt = zufallsnamen(zufall, 300);
    for (const QString &lang : zufallsnamen(zufall, 200)) {
        const QString text = lang.left(4);
        QList<Suchtreffer> erwartet;
        for (const QString &name : eigene) {
            if (!text.isEmpty() && name.contains(text, Qt::CaseInsensitive)) {
                erwartet.append({name, name});
            }
        }
        const qsizetype vonEigenen = erwartet.size();
        for (int i = 0; i < 300; ++i) {
            if (!text.isEmpty() && uebersetzt.at(i).contains(text, Qt::CaseInsensitive)) {
                erwartet.append({uebersetzt.at(i), schluessel.at(i)});
            }
        }
        const auto ergebnis = namenSuchen(eigene, schluessel, uebersetzt, text);
        QCOMPARE(ergebnis.treffer, erwartet);
        QCOMPARE(ergebnis.eigeneTreffer, vonEigenen);
        QCOMPARE(ergebnis.nichtGefunden, 300 - (erwartet.size() - vonEigenen));
    }
}

void TestNamenssuche::oneAmongManyIsFound()
{
    QStringList namen;
    namen.reserve(100'000);
    for (int i = 0; i < 100'000; ++i) {
        namen.append(QStringLiteral("Lebensmittel Nummer %1, gekocht, ohne Schale").arg(i));
    }
    const auto ergebnis = namenSuchen({}, namen, namen, QStringLiteral("nummer 99999"));
    QCOMPARE(ergebnis.treffer.size(), 1);
    QCOMPARE(ergebnis.nichtGefunden, 99'999);
}

QTEST_GUILESS_MAIN(TestNamenssuche)
#include "TestNamenssuche.moc"
