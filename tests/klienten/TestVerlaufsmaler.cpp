// How the course of a measure looks: where its marks lie, what stands in the picture, and that it
// can be read in the dark, in large letters and on paper.

#include "Textfarbe.h"
#include "Verlaufsprobe.h"

#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>
#include <QPicture>
#include <QTest>
#include <QtMath>

#include <algorithm>

Q_DECLARE_METATYPE(Verlaufsdaten)

namespace {

/// How dark it gets at most in the nearest rows.
int dunkelstes(const QImage &bild, const QPoint &ort)
{
    return std::min({qGray(bild.pixel(ort - QPoint(0, 1))), qGray(bild.pixel(ort)),
                     qGray(bild.pixel(ort + QPoint(0, 1)))});
}

} // namespace

class TestVerlaufsmaler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void marksLieWhereDayAndValueAre();
    void measuresOfOneDayStandAboveEachOther();
    void oneMeasureStandsInTheMiddleWithItsValue();
    void theBandLiesBehindItsValues();
    void theBandBeginsWithTheNineteenthBirthday();
    void theBandIsNamedInThePicture();
    void withoutABandThePictureSaysWhy();
    void noTextLiesOnAnother_data();
    void noTextLiesOnAnother();
    void daysStayInThePictureBesideShortValues();
    void thePictureKeepsToItsPlace_data();
    void thePictureKeepsToItsPlace();
    void whatItShowsCanBeTold_data();
    void whatItShowsCanBeTold();
    void largeLettersMakeLargeMarks();
    void twiceThePixelsShowTheSamePicture();
    void aTinyPictureHasTheLastMeasure();
    void withoutMeasuresItSaysSo();
    void paperGetsThePicture_data();
    void paperGetsThePicture();
};

void TestVerlaufsmaler::marksLieWhereDayAndValueAre()
{
    // 10 and 40 days after the first; 80 kg is half way from 90 down to 70.
    const QImage bild = bildVon(
        gewichte({{heute, 80.0}, {heute.addDays(10), 90.0}, {heute.addDays(40), 70.0}}), gross);
    const QList<QPointF> mitten = marken(bild);
    QCOMPARE(mitten.size(), 3);
    const double breite = mitten[2].x() - mitten[0].x();
    QVERIFY(breite > 700);
    QVERIFY(qAbs((mitten[1].x() - mitten[0].x()) / breite - 0.25) < 0.005);
    const double hoehe = mitten[2].y() - mitten[1].y();
    QVERIFY(hoehe > 200);
    QVERIFY(qAbs((mitten[0].y() - mitten[1].y()) / hoehe - 0.5) < 0.01);
    // The line leads from mark to mark.
    for (const auto &[von, bis] :
         {std::pair(mitten[0], mitten[1]), std::pair(mitten[1], mitten[2])}) {
        const QPointF halb = (von + bis) / 2;
        const QPoint dort(qFloor(halb.x()), qFloor(halb.y()));
        QVERIFY(dunkelstes(bild, dort) < 100);
        QCOMPARE(bild.pixelColor(dort - QPoint(0, 12)), QColor(Qt::white));
    }
}

void TestVerlaufsmaler::measuresOfOneDayStandAboveEachOther()
{
    const QList<QPointF> mitten = marken(bildVon(
        gewichte({{heute, 80.0}, {heute.addDays(10), 90.0}, {heute.addDays(10), 70.0}}), gross));
    QCOMPARE(mitten.size(), 3);
    QCOMPARE(mitten[1].x(), mitten[2].x());
    QVERIFY(qAbs(mitten[1].y() - mitten[2].y()) > 200);
}

void TestVerlaufsmaler::oneMeasureStandsInTheMiddleWithItsValue()
{
    const Verlaufsdaten daten = gewichte({{heute, 72.44}});
    const QList<QPointF> mitten = marken(bildVon(daten, klein));
    QCOMPARE(mitten.size(), 1);
    QVERIFY(qAbs(mitten[0].x() - klein.width() / 2.0) < 20);
    const QList<Textstelle> texte = texteVon(daten, klein);
    const auto wert = std::find_if(texte.begin(), texte.end(), [](const Textstelle &stelle) {
        return stelle.text == QStringLiteral("72,4");
    });
    QVERIFY(wert != texte.end());
    QVERIFY(wert->platz.left() > mitten[0].x());
    QVERIFY(wert->platz.left() < mitten[0].x() + 20);
    QVERIFY(qAbs(wert->platz.center().y() - mitten[0].y()) < 4);
    QVERIFY(worteVon(daten, klein).contains(QStringLiteral("22.11.26")));
}

void TestVerlaufsmaler::theBandLiesBehindItsValues()
{
    // The middle one lies on the limit of 94 cm.
    const QImage bild = bildVon(taillen({98.0, 94.0, 90.5}), gross);
    const QList<QPointF> mitten = marken(bild);
    QCOMPARE(mitten.size(), 3);
    const QColor band = haeufigsteFarbe(bild);
    QVERIFY(band.green() > band.red() && band.green() > band.blue());
    const int daneben = qRound((mitten[0].x() + mitten[1].x()) / 2);
    const QList<int> zeilen = zeilenMit(bild, daneben, band);
    QVERIFY(!zeilen.isEmpty());
    // Its edge is a line of its own.
    QVERIFY(qAbs(zeilen.first() - mitten[1].y()) < 3);
    QVERIFY(mitten[0].y() < zeilen.first());
    QVERIFY(mitten[2].y() > zeilen.first() && mitten[2].y() < zeilen.last());
    // From there down to the axis, which lies within the same step.
    QVERIFY(zeilen.last() > mitten[2].y());
}

void TestVerlaufsmaler::theBandBeginsWithTheNineteenthBirthday()
{
    Person person;
    person.geburt = QDate(2007, 2, 20); // 19 years in the middle of the course
    const QList<Besuch> besuche = {am(QDate(2025, 11, 22), 60.0, 1.72), am(heute, 60.0)};
    const QImage bild = bildVon(verlaufsdaten(person, besuche, Messgroesse::Bmi, heute), gross);
    const QList<QPointF> mitten = marken(bild);
    QCOMPARE(mitten.size(), 2);
    const auto stelle = [&mitten](double anteil) {
        return qRound(mitten[0].x() + anteil * (mitten[1].x() - mitten[0].x()));
    };
    const QColor band = haeufigsteFarbe(bild);
    // 22nd of November to 20th of February are 90 days of 365.
    QVERIFY(zeilenMit(bild, stelle(0.1), band).isEmpty());
    QVERIFY(zeilenMit(bild, stelle(90.0 / 365) - 3, band).isEmpty());
    QVERIFY(zeilenMit(bild, stelle(90.0 / 365) + 3, band).size() > 100);
    QVERIFY(zeilenMit(bild, stelle(0.9), band).size() > 100);
}

void TestVerlaufsmaler::theBandIsNamedInThePicture()
{
    const QStringList worte = worteVon(langerVerlauf(3, 60), klein);
    QVERIFY(worte.contains(QStringLiteral("Gewicht, kg")));
    // 18.5 and 25 times the square of 1.72 m.
    QVERIFY(worte.join(u' ').contains(QStringLiteral("Zielbereich 54,7–74")));
    // Its sign beside the name has its colour, above all that is drawn.
    const QImage bild = bildVon(langerVerlauf(3, 60), gross);
    const QColor band = haeufigsteFarbe(bild);
    const QImage kopf = bild.copy(gross.width() / 2, 0, gross.width() / 2, 16);
    QCOMPARE(haeufigsteFarbe(kopf), band);
}

void TestVerlaufsmaler::withoutABandThePictureSaysWhy()
{
    Verlaufsdaten daten = gewichte({{heute, 80.0}});
    daten.mangel = Bandmangel::OhneGroesse;
    const QString satz =
        QStringLiteral("Ohne Angabe der Größe gibt es keinen Zielbereich für das Gewicht.");
    QCOMPARE(worteVon(daten, gross).filter(QStringLiteral("Ohne")).join(u' '), satz);
    // Where the letters are large, the picture itself comes first.
    QVERIFY(worteVon(daten, klein, 18).filter(QStringLiteral("Ohne")).isEmpty());
    QVERIFY(worteVon(daten, klein, 18).contains(QStringLiteral("80,0")));
}

void TestVerlaufsmaler::noTextLiesOnAnother_data()
{
    QTest::addColumn<Verlaufsdaten>("daten");
    QTest::addColumn<QSize>("groesse");
    QTest::addColumn<double>("punkte");
    Verlaufsdaten ohneBand = taillen({98.0, 94.0, 101.5});
    ohneBand.band.reset();
    ohneBand.mangel = Bandmangel::OhneGeschlecht;
    const struct
    {
        const char *name;
        Verlaufsdaten daten;
    } faelle[] = {
        {"one measure", gewichte({{heute, 72.4}})},
        {"two days", gewichte({{heute, 72.4}, {heute.addDays(1), 72.9}})},
        {"falling to the ground", gewichte({{heute, 60.0}, {heute.addDays(1), 20.0}})},
        {"rising to the top", gewichte({{heute, 20.0}, {heute.addDays(90), 60.0}})},
        {"two months", langerVerlauf(3, 60)},
        {"twelve years", langerVerlauf(60, 12 * 365)},
        {"twenty years", langerVerlauf(1000, 20 * 365)},
        {"waist with a limit above", taillen({98.0, 94.0, 90.0})},
        {"waist without gender", ohneBand},
        {"a million", gewichte({{heute, 1e6}, {heute.addDays(1), 72.9}})},
    };
    for (const auto &fall : faelle) {
        for (const QSize &groesse : {klein, gross, QSize(500, 180), QSize(320, 600)}) {
            for (const double punkte : {8.0, gewohnt, 12.0, 20.0}) {
                QTest::addRow("%s, %d x %d, %.0f points", fall.name, groesse.width(),
                              groesse.height(), punkte)
                    << fall.daten << groesse << punkte;
            }
        }
    }
}

void TestVerlaufsmaler::noTextLiesOnAnother()
{
    QFETCH(const Verlaufsdaten, daten);
    QFETCH(const QSize, groesse);
    QFETCH(const double, punkte);
    const QList<Textstelle> texte = texteVon(daten, groesse, punkte);
    QVERIFY(!texte.isEmpty());
    const QRectF ganzes = QRectF(QPointF(), groesse).adjusted(-0.5, -0.5, 0.5, 0.5);
    for (qsizetype i = 0; i < texte.size(); ++i) {
        QVERIFY2(ganzes.contains(texte[i].platz), qPrintable(texte[i].text));
        for (qsizetype j = 0; j < i; ++j) {
            // Metrics leave more room above and below than letters and figures take.
            const double luft = texte[i].platz.height() / 8;
            QVERIFY2(!texte[i].platz.adjusted(0, luft, 0, -luft).intersects(texte[j].platz),
                     qPrintable(texte[i].text + QStringLiteral(" on ") + texte[j].text));
        }
    }
}

void TestVerlaufsmaler::daysStayInThePictureBesideShortValues()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    const Verlaufsdaten daten = gewichte({{heute.addDays(-1), 5.0}, {heute, 5.0}});
    QStringList worte;
    for (const Textstelle &stelle : texteVon(daten, klein)) {
        QVERIFY2(QRectF(QPointF(), klein).contains(stelle.platz), qPrintable(stelle.text));
        worte << stelle.text;
    }
    QVERIFY(worte.contains(QStringLiteral("21/11/2026")));
    QVERIFY(worte.contains(QStringLiteral("22/11/2026")));
}

void TestVerlaufsmaler::thePictureKeepsToItsPlace_data()
{
    QTest::addColumn<double>("punkte");
    QTest::newRow("text as usual") << gewohnt;
    QTest::newRow("large letters") << 18.0;
}

/// What is cut off would reach to the edge of the place, and what is not would lie beyond it.
void TestVerlaufsmaler::thePictureKeepsToItsPlace()
{
    QFETCH(const double, punkte);
    const QColor grund(Qt::white);
    for (const Verlaufsdaten &daten : {gewichte({{heute, 72.4}}), langerVerlauf(3, 60),
                                       langerVerlauf(60, 12 * 365), taillen({98.0, 94.0, 90.0})}) {
        QImage bild(400, 260, QImage::Format_RGB32);
        bild.fill(grund);
        QPainter maler(&bild);
        maler.setFont(schrift(punkte));
        const QRect platz(30, 30, 340, 200);
        maleVerlauf(maler, platz, daten, palette(false));
        QCOMPARE(maler.font(), schrift(punkte));
        QVERIFY(!maler.hasClipping());
        maler.end();
        for (int y = 0; y < bild.height(); ++y) {
            for (int x = 0; x < bild.width(); ++x) {
                if (!platz.contains(x, y)) {
                    QCOMPARE(bild.pixelColor(x, y), grund);
                }
            }
        }
        for (int x = platz.left(); x <= platz.right(); ++x) {
            QCOMPARE(bild.pixelColor(x, platz.bottom()), grund);
        }
    }
}

void TestVerlaufsmaler::whatItShowsCanBeTold_data()
{
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestVerlaufsmaler::whatItShowsCanBeTold()
{
    QFETCH(const bool, dunkel);
    const QPalette farben = palette(dunkel);
    const QColor grund = farben.color(QPalette::Window);
    const QColor text = farben.color(QPalette::WindowText);
    const QImage bild = bildVon(taillen({98.0, 94.0, 90.0}), gross, farben);
    const QColor band = haeufigsteFarbe(bild);
    QVERIFY(band != grund);
    QVERIFY(kontrast(text, band) >= 4.5);
    // The band is quiet, its edge is seen.
    QVERIFY(kontrast(band, grund) < 2);
    const QColor rand = farbeFuer(Textfarbe::Gruen, farben);
    QVERIFY(kontrast(rand, grund) >= 3);
    const int stelle = gross.width() / 3; // the line is far above it here
    const int darin = zeilenMit(bild, stelle, band).first();
    QVERIFY(qAbs(zeilenMit(bild, stelle, rand).value(0) - darin) <= 2);
    // Marks and letters have the colour of texts.
    QVERIFY(!zeilenMit(bild, gross.width() - 1, band).size());
    int schriftpunkte = 0;
    for (int x = 0; x < bild.width(); ++x) {
        schriftpunkte += static_cast<int>(zeilenMit(bild, x, text).size());
    }
    QVERIFY(schriftpunkte > 250);
}

void TestVerlaufsmaler::largeLettersMakeLargeMarks()
{
    const auto schwarz = [](double punkte) {
        const QImage bild = bildVon(gewichte({{heute, 72.4}}), gross, palette(false), punkte);
        const QPoint mitte = marken(bild).value(0).toPoint();
        int breite = 0;
        while (qGray(bild.pixel(mitte.x() + breite, mitte.y())) < 40) {
            ++breite;
        }
        return breite;
    };
    QVERIFY(schwarz(gewohnt) >= 2);
    QVERIFY(schwarz(2 * gewohnt) >= 2 * schwarz(gewohnt) - 1);
}

void TestVerlaufsmaler::twiceThePixelsShowTheSamePicture()
{
    const Verlaufsdaten daten =
        gewichte({{heute, 80.0}, {heute.addDays(10), 90.0}, {heute.addDays(40), 70.0}});
    const QList<QPointF> einfach = marken(bildVon(daten, klein));
    const QImage fein = bildVon(daten, klein, palette(false), gewohnt, 2);
    QList<QPointF> doppelt;
    for (const QPointF &mitte : marken(fein)) {
        // The figures of the last value are thick enough here to be taken for marks.
        if (mitte.x() / 2 < einfach.last().x() + 3) {
            doppelt << mitte / 2;
        }
    }
    QCOMPARE(doppelt.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(qAbs(doppelt[i].x() - einfach[i].x()) <= 1);
        QVERIFY(qAbs(doppelt[i].y() - einfach[i].y()) <= 1);
    }
}

void TestVerlaufsmaler::aTinyPictureHasTheLastMeasure()
{
    const Verlaufsdaten daten = langerVerlauf(3, 60);
    const QString letzter = messwert(daten.was, daten.punkte.last().wert);
    QCOMPARE(worteVon(daten, QSize(90, 40)), QStringList{letzter});
    QCOMPARE(worteVon(daten, QSize(400, 40)), QStringList{letzter});
    QCOMPARE(worteVon(daten, QSize(60, 400)), QStringList{letzter});
    bildVon(daten, QSize(1, 1)); // nor does less room end the program
}

void TestVerlaufsmaler::withoutMeasuresItSaysSo()
{
    const QList<Textstelle> texte = texteVon(Verlaufsdaten{}, gross);
    QCOMPARE(texte.size(), 1);
    QCOMPARE(texte.first().text, QStringLiteral("Noch keine Messung."));
    QVERIFY(qAbs(texte.first().platz.center().x() - gross.width() / 2.0) < 2);
    QVERIFY(qAbs(texte.first().platz.center().y() - gross.height() / 2.0) < 2);
}

void TestVerlaufsmaler::paperGetsThePicture_data()
{
    QTest::addColumn<Verlaufsdaten>("daten");
    QTest::newRow("no measure") << Verlaufsdaten{};
    QTest::newRow("one measure") << gewichte({{heute, 72.4}});
    QTest::newRow("twelve years") << langerVerlauf(60, 12 * 365);
    QTest::newRow("a waist") << taillen({98.0, 94.0, 90.0});
}

void TestVerlaufsmaler::paperGetsThePicture()
{
    QFETCH(const Verlaufsdaten, daten);
    QBuffer datei;
    QVERIFY(datei.open(QIODevice::ReadWrite));
    {
        QPdfWriter blatt(&datei);
        QPainter maler(&blatt);
        maler.setFont(schrift(gewohnt));
        maleVerlauf(maler, QRectF(0, 0, blatt.width(), blatt.height() / 3.0), daten,
                    palette(false));
    }
    QVERIFY(datei.data().startsWith("%PDF"));
    QVERIFY(datei.data().size() > 2000);
    QPicture aufnahme;
    QPainter maler(&aufnahme);
    maler.setFont(schrift(gewohnt));
    maleVerlauf(maler, QRectF(QPointF(), gross), daten, palette(false));
    maler.end();
    QVERIFY(aufnahme.size() > 0);
    QImage bild(gross, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter abspieler(&bild);
    QVERIFY(aufnahme.play(&abspieler));
    abspieler.end();
    QImage leer(gross, QImage::Format_RGB32);
    leer.fill(Qt::white);
    QVERIFY(bild != leer);
    // On paper as fine as a printer's the letters are as large, measured in pixels of that paper.
    constexpr int druckfein = 1200;
    const QSize papier(9000, 4000);
    const QRectF ganzes(QPointF(), papier);
    for (const Textstelle &stelle : texteVon(daten, papier, gewohnt, druckfein)) {
        QVERIFY(ganzes.contains(stelle.platz));
        QVERIFY(stelle.platz.height() > 100);
    }
}

QTEST_MAIN(TestVerlaufsmaler)
#include "TestVerlaufsmaler.moc"
