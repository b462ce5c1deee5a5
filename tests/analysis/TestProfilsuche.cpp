#include "Profilsuche.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

class TestProfilsuche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data();
    void numbers();
    void ratings_data();
    void ratings();
    void eachRatingLooksAtItsOwn();
    void allCriteriaMustBeMet();
    void ownFoodsComeFirstInTheirOrder();
    void onlyTheChosenRatingCounts();
    void aNameWithoutARecordIsAnEmptyFood();
    void sameAsScoringEveryFood_data();
    void sameAsScoringEveryFood();
};

namespace {

Zahlkriterium kriterium(const char *vergleich, float zahl)
{
    return {QString::fromLatin1(vergleich), zahl};
}

QString text(const char *wertung)
{
    return QString::fromLatin1(wertung);
}

} // namespace

void TestProfilsuche::numbers_data()
{
    constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<float>("wert");
    QTest::addColumn<QString>("vergleich");
    QTest::addColumn<float>("zahl");
    QTest::addColumn<bool>("treffer");
    QTest::newRow("> finds more") << 10.1F << ">" << 10.0F << true;
    QTest::newRow("> does not find exactly as much") << 10.0F << ">" << 10.0F << false;
    QTest::newRow("> does not find less") << 9.9F << ">" << 10.0F << false;
    QTest::newRow("< finds less") << 9.9F << "<" << 10.0F << true;
    QTest::newRow("< does not find exactly as much") << 10.0F << "<" << 10.0F << false;
    QTest::newRow("< does not find more") << 10.1F << "<" << 10.0F << false;
    QTest::newRow("= finds exactly as much") << 10.0F << "=" << 10.0F << true;
    QTest::newRow("= with decimals") << 0.1F << "=" << 0.1F << true;
    QTest::newRow("= does not find the next number") << 10.000001F << "=" << 10.0F << false;
    QTest::newRow("= 0 finds negative zero") << -0.0F << "=" << 0.0F << true;
    QTest::newRow("unknown operator") << 10.0F << ">=" << 5.0F << false;
    QTest::newRow("empty operator") << 10.0F << "" << 10.0F << false;
    QTest::newRow("operator with a blank") << 10.0F << "= " << 10.0F << false;
    QTest::newRow("a value that is no number") << keineZahl << "=" << keineZahl << false;
}

void TestProfilsuche::numbers()
{
    QFETCH(float, wert);
    QFETCH(QString, vergleich);
    QFETCH(float, zahl);
    QFETCH(bool, treffer);
    Datenmodul protein;
    protein.setprotein(wert);
    QCOMPARE(erfuellt(protein, {.protein = {{vergleich, zahl}}, .energie = {}, .wertungen = {}}),
             treffer);
    Datenmodul energie;
    energie.setkal(wert);
    QCOMPARE(erfuellt(energie, {.protein = {}, .energie = {{vergleich, zahl}}, .wertungen = {}}),
             treffer);
}

void TestProfilsuche::ratings_data()
{
    QTest::addColumn<QString>("wertung");
    QTest::addColumn<QString>("gewuenscht");
    QTest::addColumn<bool>("treffer");
    QTest::newRow("+ is +") << "+"
                            << "+" << true;
    QTest::newRow("0 is 0") << "0"
                            << "0" << true;
    QTest::newRow("- is -") << "-"
                            << "-" << true;
    QTest::newRow("+ is not -") << "+"
                                << "-" << false;
    QTest::newRow("not rated") << QString() << "+" << false;
    QTest::newRow("an own text is no rating, even when wished for") << "gut"
                                                                    << "gut" << false;
    QTest::newRow("an own text is not found under +") << "gut"
                                                      << "+" << false;
    QTest::newRow("empty wish, empty rating") << ""
                                              << "" << false;
    QTest::newRow("absent wish text, not rated") << QString() << QString() << false;
    QTest::newRow("rating with a blank") << "+ "
                                         << "+" << false;
}

void TestProfilsuche::ratings()
{
    QFETCH(QString, wertung);
    QFETCH(QString, gewuenscht);
    QFETCH(bool, treffer);
    for (const auto &zeile : wertungen) {
        Datenmodul lebensmittel;
        lebensmittel.setWertung(zeile.wertung, wertung);
        Profil profil;
        profil.wertungen[stelle(zeile.wertung)] = gewuenscht;
        QCOMPARE(erfuellt(lebensmittel, profil), treffer);
    }
}

void TestProfilsuche::eachRatingLooksAtItsOwn()
{
    for (const auto &zeile : wertungen) {
        Profil profil;
        profil.wertungen[stelle(zeile.wertung)] = text("+");
        for (const auto &andere : wertungen) {
            Datenmodul lebensmittel;
            lebensmittel.setWertung(andere.wertung, text("+"));
            QCOMPARE(erfuellt(lebensmittel, profil), andere.wertung == zeile.wertung);
        }
    }
}

void TestProfilsuche::allCriteriaMustBeMet()
{
    Datenmodul lebensmittel;
    lebensmittel.setprotein(20.0F);
    lebensmittel.setkal(150.0F);
    for (const auto &zeile : wertungen) {
        lebensmittel.setWertung(zeile.wertung, text("0"));
    }
    Profil profil;
    QVERIFY2(erfuellt(lebensmittel, profil), "no criterion");
    profil.protein = kriterium(">", 10.0F);
    profil.energie = kriterium("<", 200.0F);
    profil.wertungen.fill(text("0"));
    QVERIFY2(erfuellt(lebensmittel, profil), "all six");

    Profil fuenf = profil;
    fuenf.protein = kriterium(">", 20.0F);
    QVERIFY2(!erfuellt(lebensmittel, fuenf), "all but protein");
    fuenf = profil;
    fuenf.energie = kriterium("<", 150.0F);
    QVERIFY2(!erfuellt(lebensmittel, fuenf), "all but energy");
    for (const auto &zeile : wertungen) {
        fuenf = profil;
        fuenf.wertungen[stelle(zeile.wertung)] = text("+");
        QVERIFY2(!erfuellt(lebensmittel, fuenf), zeile.kennung);
    }
}

void TestProfilsuche::ownFoodsComeFirstInTheirOrder()
{
    const QStringList eigeneNamen = {QStringLiteral("Zwieback"), QStringLiteral("Brei")};
    const QStringList eingebauteNamen = {QStringLiteral("Wurst"), QStringLiteral("Brei")};
    Lebensmittelverzeichnis eigene;
    Lebensmittelverzeichnis eingebaute;
    for (const QString &name : eigeneNamen) {
        eigene[name].setprotein(5.0F);
    }
    for (const QString &name : eingebauteNamen) {
        eingebaute[name].setprotein(6.0F);
    }
    const Suchbestand ersteListe = {eigene, eigeneNamen};
    const Suchbestand zweiteListe = {eingebaute, eingebauteNamen};
    QCOMPARE(profilSuchen(ersteListe, zweiteListe, {}), eigeneNamen + eingebauteNamen);

    Profil profil;
    profil.protein = kriterium(">", 5.0F);
    QCOMPARE(profilSuchen(ersteListe, zweiteListe, profil), eingebauteNamen);
    profil.protein = kriterium("<", 6.0F);
    QCOMPARE(profilSuchen(ersteListe, zweiteListe, profil), eigeneNamen);
    profil.protein = kriterium("=", 5.5F);
    QCOMPARE(profilSuchen(ersteListe, zweiteListe, profil), QStringList());
}

void TestProfilsuche::onlyTheChosenRatingCounts()
{
    const QStringList namen = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    Lebensmittelverzeichnis foods;
    foods[namen.at(0)].setuebergewicht(text("+"));
    foods[namen.at(0)].setgicht(text("-"));
    foods[namen.at(1)].setuebergewicht(text("0"));
    foods[namen.at(1)].setgicht(text("+"));
    foods[namen.at(2)].setuebergewicht(text("+"));
    foods[namen.at(2)].setprotein(500.0F);
    Profil profil;
    profil.wertungen[stelle(Wertung::uebergewicht)] = text("+");
    const Lebensmittelverzeichnis keine;
    const QStringList erwartet = {namen.at(0), namen.at(2)};
    QCOMPARE(profilSuchen({keine, {}}, {foods, namen}, profil), erwartet);
}

void TestProfilsuche::aNameWithoutARecordIsAnEmptyFood()
{
    const Lebensmittelverzeichnis keine;
    const QStringList namen = {QStringLiteral("verschwunden")};
    QCOMPARE(profilSuchen({keine, namen}, {keine, {}}, {}), namen);
    Profil profil;
    profil.protein = kriterium("=", 0.0F);
    QCOMPARE(profilSuchen({keine, namen}, {keine, {}}, profil), namen);
    profil.wertungen[stelle(Wertung::hkk)] = text("+");
    QCOMPARE(profilSuchen({keine, namen}, {keine, {}}, profil), QStringList());
}

namespace {

QString zufallstext(QRandomGenerator &zufall, std::initializer_list<const char *> auswahl)
{
    const int welcher = zufall.bounded(static_cast<int>(auswahl.size()));
    return QString::fromLatin1(*(auswahl.begin() + welcher));
}

std::optional<Zahlkriterium> zufallskriterium(QRandomGenerator &zufall)
{
    if (zufall.bounded(2) == 0) {
        return std::nullopt;
    }
    return Zahlkriterium{zufallstext(zufall, {">", "<", "=", "x"}),
                         static_cast<float>(zufall.bounded(5))};
}

int punkteZahl(float wert, const std::optional<Zahlkriterium> &k)
{
    int punkte = 0;
    if (!k.has_value()) {
        punkte += 1;
    } else {
        if (k->vergleich == QStringLiteral(">") && wert > k->zahl) {
            punkte += 1;
        }
        if (k->vergleich == QStringLiteral("<") && wert < k->zahl) {
            punkte += 1;
        }
        if (k->vergleich == QStringLiteral("=") && wert == k->zahl) {
            punkte += 1;
        }
    }
    return punkte;
}

/// Counts points the long way; six make a hit.
int punkte(const Datenmodul &food, const Profil &profil)
{
    int summe = punkteZahl(food.protein(), profil.protein) + punkteZahl(food.kal(), profil.energie);
    const QStringList eigene = {food.uebergewicht(), food.diabetes(), food.gicht(), food.hkk()};
    for (int i = 0; i < 4; ++i) {
        const auto &wunsch = profil.wertungen.at(static_cast<std::size_t>(i));
        if (!wunsch.has_value()) {
            summe += 1;
            continue;
        }
        for (const char *wertung : {"0", "+", "-"}) {
            if (*wunsch == text(wertung) && eigene.at(i) == text(wertung)) {
                summe += 1;
            }
        }
    }
    return summe;
}

} // namespace

void TestProfilsuche::sameAsScoringEveryFood_data()
{
    QTest::addColumn<quint32>("saat");
    for (const quint32 saat : {11U, 12U, 13U, 14U}) {
        QTest::addRow("random table %u", saat) << saat;
    }
}

void TestProfilsuche::sameAsScoringEveryFood()
{
    QFETCH(quint32, saat);
    QRandomGenerator zufall(saat);
    Lebensmittelverzeichnis foods;
    QStringList namen;
    for (int i = 0; i < 300; ++i) {
        namen.append(QString::number(i));
        Datenmodul &food = foods[namen.last()];
        food.setprotein(static_cast<float>(zufall.bounded(5)));
        food.setkal(static_cast<float>(zufall.bounded(5)));
        for (const auto &zeile : wertungen) {
            food.setWertung(zeile.wertung, zufallstext(zufall, {"+", "0", "-", "gut"}));
        }
    }
    const Lebensmittelverzeichnis keine;
    qsizetype treffer = 0;
    for (int durchgang = 0; durchgang < 200; ++durchgang) {
        Profil profil;
        profil.protein = zufallskriterium(zufall);
        profil.energie = zufallskriterium(zufall);
        for (auto &wertung : profil.wertungen) {
            if (zufall.bounded(4) == 0) {
                wertung = zufallstext(zufall, {"+", "0", "-", "gut"});
            }
        }
        QStringList erwartet;
        for (const QString &name : std::as_const(namen)) {
            if (punkte(foods[name], profil) == 6) {
                erwartet.append(name);
            }
        }
        treffer += erwartet.size();
        QCOMPARE(profilSuchen({keine, {}}, {foods, namen}, profil), erwartet);
    }
    QVERIFY2(treffer > 100, "the tables are such that foods are found");
}

QTEST_GUILESS_MAIN(TestProfilsuche)
#include "TestProfilsuche.moc"
