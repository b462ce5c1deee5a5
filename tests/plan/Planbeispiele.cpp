#include "Planbeispiele.h"

#include <QTest>

namespace Planbeispiele {

namespace {

Naehrwert naehrwert(QStringView kennung)
{
    for (const auto &zeile : naehrwerte) {
        if (kennung == QLatin1String(zeile.kennung)) {
            return zeile.wert;
        }
    }
    qFatal("unknown nutrient");
}

void werteSetzen(Datenmodul &lebensmittel, const QStringList &woerter)
{
    for (const QString &wort : woerter) {
        const qsizetype gleich = wort.indexOf(QLatin1Char('='));
        if (gleich > 0) {
            const QStringView zahl = QStringView(wort).mid(gleich + 1);
            lebensmittel.setWert(naehrwert(QStringView(wort).left(gleich)), zahl.toFloat());
            continue;
        }
        for (const auto &zeile : wertungen) {
            const QChar zeichen = wort.at(static_cast<qsizetype>(stelle(zeile.wertung)));
            lebensmittel.setWertung(zeile.wertung,
                                    zeichen == QLatin1Char('.') ? QString() : QString(zeichen));
        }
    }
}

constexpr const char *ausgewogen =
    "protein=100 fett=66 kh=250 bs=30 chol=100 na=440 ka=1600 ca=800 ph=1120 ma=280 fe=9 vita=800 "
    "b1=0.9 b2=1.25 b6=1.275 vitc=80 ++++";

/// 400 of 400, 594 of 600, 1000 of 1000 kcal; the rest by its amount per day.
constexpr const char *ausgewogenErwartet =
    "kal=99.6999969:3/99 protein=100:3/100 fett=99:3/99 kh=100:3/100 bs=100:3/100 chol=50:2/50 "
    "na=80:3/80 ka=80:3/80 ca=80:3/80 ph=80:3/80 ma=80:3/80 fe=75:3/75 vita=80:3/80 b1=75:3/75 "
    "b2=78.125:3/78 b6=75:3/75 vitc=80:3/80";

QString halb(const char *lebensmittel)
{
    return QStringLiteral("50 ") + QString::fromLatin1(lebensmittel);
}

} // namespace

Plan lesen(const QStringList &texte)
{
    Plan plan;
    for (const QString &text : texte) {
        QStringList woerter = text.split(QLatin1Char(' '));
        const float menge = woerter.takeFirst().toFloat();
        if (woerter == QStringList(QStringLiteral("?"))) {
            plan.zeilen.push_back({nullptr, menge});
            continue;
        }
        werteSetzen(plan.lebensmittel.emplace_back(), woerter);
        plan.zeilen.push_back({&plan.lebensmittel.back(), menge});
    }
    return plan;
}

QString erwartet(const QString &liste, const char *kennung)
{
    const QString anfang = QString::fromLatin1(kennung) + QLatin1Char('=');
    for (const QString &eintrag : liste.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (eintrag.startsWith(anfang)) {
            return eintrag.mid(anfang.size());
        }
    }
    return QStringLiteral("0:1/0");
}

void fuelle()
{
    QTest::addColumn<QStringList>("plan");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<QString>("prozente");
    QTest::addColumn<int>("energie");      // kcal, truncated
    QTest::addColumn<QString>("gezaehlt"); // counts of + 0 -, "!" for the point
    QTest::addColumn<int>("punkte");
    QTest::addColumn<int>("gesicht");
    const auto zeilen = [](std::initializer_list<const char *> texte) {
        QStringList liste;
        for (const char *text : texte) {
            liste.append(QString::fromLatin1(text));
        }
        return liste;
    };
    const auto ohne = QStringLiteral("000 000 000 000");

    QTest::newRow("300 g of one food, 2000 kcal wanted")
        << zeilen({"300 protein=20 fett=10 kh=50"}) << 2000
        << "kal=55.5:2/55 protein=60:2/60 fett=45:2/45 kh=60:2/60" << 1110 << ohne << 0 << 3;
    QTest::newRow("the same, nothing known of the requirement")
        << zeilen({"300 protein=20 fett=10 kh=50"}) << 0 << "" << 1110 << ohne << 0 << 3;
    QTest::newRow("a balanced day earns all 21 points")
        << QStringList(QStringLiteral("100 ") + QString::fromLatin1(ausgewogen)) << 2000
        << ausgewogenErwartet << 1994 << "100! 100! 100! 100!" << 21 << 1;
    QTest::newRow("the same in two halves")
        << QStringList{halb(ausgewogen), halb(ausgewogen)} << 2000 << ausgewogenErwartet << 1994
        << "200! 200! 200! 200!" << 21 << 1;
    QTest::newRow("the same without a requirement: 17 points still laugh")
        << QStringList(QStringLiteral("100 ") + QString::fromLatin1(ausgewogen)) << 0
        << QString::fromLatin1(ausgewogenErwartet).section(QLatin1Char(' '), 4) << 1994
        << "100! 100! 100! 100!" << 17 << 1;
    // 400 of 800, 594 of 1200, 1000 of 2000 kcal: no point for these four, nor for the ratings.
    QTest::newRow("the same for twice the requirement, badly rated: 13 points are neutral")
        << QStringList(QStringLiteral("100 ") +
                       QString::fromLatin1(ausgewogen)
                           .replace(QStringLiteral("++++"), QStringLiteral("----")))
        << 4000
        << QStringLiteral("kal=49.8499985:2/49 protein=50:2/50 fett=49:2/49 kh=50:2/50 ") +
               QString::fromLatin1(ausgewogenErwartet).section(QLatin1Char(' '), 4)
        << 1994 << "001 001 001 001" << 13 << 2;
    QTest::newRow("sodium at exactly 120 percent at once leaves the bar")
        << zeilen({"100 na=660"}) << 2000 << "na=120:-" << 0 << ohne << 0 << 3;
    QTest::newRow("at 60, then at 120 percent: the bar stays at 60")
        << zeilen({"100 na=330 fe=7.2", "100 na=330 fe=7.2"}) << 2000 << "na=120:2/60 fe=120:2/60"
        << 0 << ohne << 0 << 3;
    QTest::newRow("at 120, then beyond: the bar follows again")
        << zeilen({"100 ka=2400", "50 ka=200"}) << 2000 << "ka=125:1/125" << 0 << ohne << 0 << 3;
    QTest::newRow("vitamin A at 105 percent is on target without a point, vitamin C has one")
        << zeilen({"100 vita=1050 vitc=105"}) << 2000 << "vita=105:3/105 vitc=105:3/105" << 0
        << ohne << 1 << 3;
    QTest::newRow("cholesterol earns its point before its target")
        << zeilen({"200 chol=50"}) << 2000 << "chol=50:2/50" << 0 << ohne << 1 << 3;
    QTest::newRow("cholesterol and iron are red above 100, calcium is not")
        << zeilen({"100 chol=210 fe=12.6 ca=1050"}) << 2000
        << "chol=105:1/105 fe=105:1/105 ca=105:2/105" << 0 << ohne << 2 << 3;
    QTest::newRow("ratings + + -, + -, - + and 0 in plan order")
        << zeilen({"10 ++-0", "10 +-+.", "10 -..."}) << 2000 << "" << 0 << "201! 101! 101 010" << 2
        << 3;
    QTest::newRow("a food in no store is a row without anything")
        << zeilen({"500 ?", "300 protein=20 fett=10 kh=50 +...", "70 ?"}) << 2000
        << "kal=55.5:2/55 protein=60:2/60 fett=45:2/45 kh=60:2/60" << 1110 << "100! 000 000 000"
        << 1 << 3;
    // 132.5 kcal of 399.8, 184.5 of 599.7, 400.5 of 999.5; 717.5 of 1999
    QTest::newRow("every whole number is cut off before the next step")
        << zeilen({"100 protein=33.125 fett=20.5 kh=100.125"}) << 1999
        << "kal=35.8929482:2/35 protein=33:2/33 fett=30:2/30 kh=40:2/40" << 717 << ohne << 0 << 3;
    QTest::newRow("the stored energy of a food is not read")
        << zeilen({"100 kal=900 kh=50"}) << 2000 << "kal=10:1/10 kh=20:1/20" << 200 << ohne << 0
        << 3;
    QTest::newRow("0 g of a food counts only its ratings")
        << zeilen({"0 protein=20 fett=10 kh=50 vitc=900 +0-."}) << 2000 << "" << 0
        << "100! 010 001 000" << 1 << 3;
    QTest::newRow("fractions of a gram count")
        << zeilen({"12.5 vitc=80"}) << 2000 << "vitc=10:1/10" << 0 << ohne << 0 << 3;
    // Protein 7.5 + 12.5 + 1.875 = 21.875 g, fat 1.5 + 15 = 16.5 g, carbohydrate 54 + 25 = 79 g:
    // 87.5 + 148.5 + 316 = 552 kcal.
    QTest::newRow("breakfast: bread, cheese, orange juice")
        << zeilen({"120 protein=6.25 fett=1.25 kh=45 bs=6.5 na=500 ka=250 fe=2.5 b1=0.25 0+-0",
                   "50 protein=25 fett=30 chol=100 na=800 ca=1000 ph=600 vita=400 --0-",
                   "250 protein=0.75 kh=10 ka=160 ca=12 ma=12 b1=0.0625 vitc=40 0-+-"})
        << 2200
        << "kal=25.09091:1/25 protein=19:1/19 fett=22:1/22 kh=28:1/28 bs=26:1/26 chol=25:1/25 "
           "na=181.818176:1/181 ka=35:1/35 ca=53:2/53 ph=21.4285717:1/21 ma=8.5714283:1/8 "
           "fe=25:1/25 vita=20:1/20 b1=38.0208321:1/38 vitc=100:3/100"
        << 552 << "021 102! 111 012" << 2 << 3;
    // Protein 30 g, fat 5 + 32 = 37 g, carbohydrate 175 + 100 = 275 g: 120 of 360, 333 of 540 and
    // 1100 of 900 kcal; 865 + 288 + 400 = 1553 kcal.
    QTest::newRow("a day of noodles, butter and lemonade")
        << zeilen({"250 protein=12 fett=2 kh=70 bs=4 ka=200 ph=150 ma=40 fe=1.5 b1=0.125 ++00",
                   "40 fett=80 chol=240 vita=750 ---.", "1000 kh=10 .-0-"})
        << 1800
        << "kal=86.2777786:3/86 protein=33:2/33 fett=61:2/61 kh=122:1/122 bs=33.3333321:2/33 "
           "chol=48:2/48 ka=25:1/25 ph=26.7857151:1/26 ma=28.5714283:1/28 fe=31.25:1/31 "
           "vita=30:1/30 b1=26.041666:1/26"
        << 1553 << "101! 102! 021 011" << 4 << 3;
}

} // namespace Planbeispiele
