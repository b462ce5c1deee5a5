#include "FaceView.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

#include <algorithm>
#include <cmath>

/// The pictures that are compiled into the program, under the names by which it asks for them.
class TestBilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facesHaveOneSizeAndNoGround_data();
    void facesHaveOneSizeAndNoGround();
    void facesAreWhatTheirSourcesDraw_data();
    void facesAreWhatTheirSourcesDraw();
    void facesDifferWithoutColour();
    void facesAreSharpAtEveryScale_data();
    void facesAreSharpAtEveryScale();
    void toolbarPicturesAreThere_data();
    void toolbarPicturesAreThere();
    void toolbarPicturesReadOnLightAndDark_data();
    void toolbarPicturesReadOnLightAndDark();
    void toolbarPicturesAreOneFamily_data();
    void toolbarPicturesAreOneFamily();
    void programHasAnIcon();
};

namespace {

void gesichter()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"smile", "nocrie-nosmile", "crie"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void leistenbilder()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"Planmodul", "Drucken", "LM an Planmodul", "Anpassen", "Ansicht2", "SportIcon",
          "Neues LM", "Papierkorb", "Leerraum", "Flexibler Leerraum"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

QImage gesicht(const QString &name)
{
    return QImage(QStringLiteral(":/bilder/%1.png").arg(name))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage gezeichnet(const QString &datei, int kante)
{
    QImage bild(kante, kante, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    QSvgRenderer(datei).render(&maler);
    return bild;
}

/// Share of pixels (0 to 1) that differ by more than `schritte` in one channel.
double unterschied(const QImage &eins, const QImage &zwei, int schritte)
{
    int anders = 0;
    for (int y = 0; y < eins.height(); ++y) {
        for (int x = 0; x < eins.width(); ++x) {
            const QRgb a = eins.pixel(x, y);
            const QRgb b = zwei.pixel(x, y);
            const int abstand =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
            anders += abstand > schritte ? 1 : 0;
        }
    }
    return double(anders) / (eins.width() * eins.height());
}

/// Relative luminance as the web's accessibility guidelines (WCAG 2.1) define it.
double helligkeit(const QColor &farbe)
{
    const auto anteil = [](double wert) {
        return wert <= 0.04045 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) +
           0.0722 * anteil(farbe.blueF());
}

/// Contrast of two colours as the same guidelines define it, from 1 to 21.
double kontrast(const QColor &eins, const QColor &zwei)
{
    const auto [dunkel, hell] = std::minmax({helligkeit(eins), helligkeit(zwei)});
    return (hell + 0.05) / (dunkel + 0.05);
}

} // namespace

void TestBilder::facesHaveOneSizeAndNoGround_data()
{
    gesichter();
}

void TestBilder::facesHaveOneSizeAndNoGround()
{
    QFETCH(QString, name);
    const QImage bild = gesicht(name);
    QCOMPARE(bild.size(), QSize(256, 256));
    for (const QPoint ecke : {QPoint(0, 0), QPoint(255, 0), QPoint(0, 255), QPoint(255, 255)}) {
        QCOMPARE(bild.pixelColor(ecke).alpha(), 0);
    }
    QCOMPARE(bild.pixelColor(128, 128).alpha(), 255);
}

void TestBilder::facesAreWhatTheirSourcesDraw_data()
{
    gesichter();
}

void TestBilder::facesAreWhatTheirSourcesDraw()
{
    QFETCH(QString, name);
    const QImage quelle = gezeichnet(QStringLiteral(MAHLBERG_BILDER "/%1.svg").arg(name), 256);
    const bool gleich = unterschied(gesicht(name), quelle, 8) < 0.005;
    if (!gleich) {
        quelle.save(name + QStringLiteral(".png"));
    }
    QVERIFY2(gleich, "The source was changed; what it draws now is in the current folder.");
}

void TestBilder::facesDifferWithoutColour()
{
    const auto grau = [](const char *name) {
        return gesicht(QString::fromLatin1(name))
            .convertToFormat(QImage::Format_Grayscale8)
            .scaled(24, 24, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage lachend = grau("smile");
    const QImage neutral = grau("nocrie-nosmile");
    const QImage weinend = grau("crie");
    QVERIFY(unterschied(lachend, neutral, 40) > 0.05);
    QVERIFY(unterschied(lachend, weinend, 40) > 0.05);
    QVERIFY(unterschied(neutral, weinend, 40) > 0.05);
}

void TestBilder::facesAreSharpAtEveryScale_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("kante");
    QTest::addColumn<double>("verhaeltnis");
    const char *const namen[] = {"smile", "nocrie-nosmile", "crie"};
    for (int code = 1; code <= 3; ++code) {
        for (const int kante : {52, 64}) { // points, beside the body measures and in the plan
            for (const double verhaeltnis : {1.0, 1.5, 2.0}) {
                QTest::addRow("%s, %d points at %g", namen[code - 1], kante, verhaeltnis)
                    << QString::fromLatin1(namen[code - 1]) << code << kante << verhaeltnis;
            }
        }
    }
}

/// What the view makes of the picture is what the drawing itself gives at that size.
void TestBilder::facesAreSharpAtEveryScale()
{
    QFETCH(QString, name);
    QFETCH(int, code);
    QFETCH(int, kante);
    QFETCH(double, verhaeltnis);
    FaceView ansicht;
    ansicht.setImage(gesicht(QStringLiteral("smile")));
    ansicht.setImage2(gesicht(QStringLiteral("nocrie-nosmile")));
    ansicht.setImage3(gesicht(QStringLiteral("crie")));
    ansicht.entscheidung(code);
    const int pixel = qRound(kante * verhaeltnis);
    QImage gezeigt(pixel, pixel, QImage::Format_ARGB32_Premultiplied);
    gezeigt.setDevicePixelRatio(verhaeltnis);
    gezeigt.fill(Qt::transparent);
    QPainter maler(&gezeigt);
    ansicht.zeichnen(maler, QRectF(0, 0, kante, kante));
    maler.end();
    const QImage quelle = gezeichnet(QStringLiteral(MAHLBERG_BILDER "/%1.svg").arg(name), pixel);
    QVERIFY(unterschied(gezeigt, quelle, 40) < 0.01);
}

void TestBilder::toolbarPicturesAreThere_data()
{
    leistenbilder();
}

void TestBilder::toolbarPicturesAreThere()
{
    QFETCH(QString, name);
    const QSvgRenderer quelle(QStringLiteral(":/bilder/%1.svg").arg(name));
    QVERIFY(quelle.isValid());
    QCOMPARE(quelle.viewBox(), QRect(0, 0, 32, 32));
}

void TestBilder::toolbarPicturesReadOnLightAndDark_data()
{
    leistenbilder();
}

void TestBilder::toolbarPicturesReadOnLightAndDark()
{
    QFETCH(QString, name);
    const QImage bild = gezeichnet(QStringLiteral(":/bilder/%1.svg").arg(name), 24);
    int gedeckt = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor farbe = bild.pixelColor(x, y);
            if (farbe.alpha() < 250) {
                continue;
            }
            ++gedeckt;
            // The windows' own surfaces.
            QVERIFY(kontrast(farbe, QColor(0xf6, 0xf6, 0xf4)) >= 3);
            QVERIFY(kontrast(farbe, QColor(0x23, 0x25, 0x27)) >= 3);
        }
    }
    QVERIFY(gedeckt > 20);
    QCOMPARE(bild.pixelColor(0, 0).alpha(), 0);
}

void TestBilder::toolbarPicturesAreOneFamily_data()
{
    leistenbilder();
}

/// Grey lines of one weight, what a picture is about in the accent's green, and red where something
/// is thrown away. A mark that must be seen from afar is half as wide again as a line.
void TestBilder::toolbarPicturesAreOneFamily()
{
    QFETCH(QString, name);
    QFile datei(QStringLiteral(":/bilder/%1.svg").arg(name));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(datei.readAll());
    const auto alle = [&text](const char *muster) {
        QSet<QString> ergebnis;
        for (auto treffer = QRegularExpression(QLatin1String(muster)).globalMatch(text);
             treffer.hasNext();) {
            ergebnis << treffer.next().captured(1);
        }
        return ergebnis;
    };
    const QSet<QString> striche = {QStringLiteral("2"), QStringLiteral("3")};
    QVERIFY(striche.contains(alle("stroke-width=\"([^\"]*)\"")));
    QSet<QString> farben = {QStringLiteral("7b8288"), QStringLiteral("3a9560")};
    if (name == QLatin1String("Papierkorb")) {
        farben << QStringLiteral("d9534a");
    }
    QVERIFY(farben.contains(alle("#([0-9a-f]{6})")));
    QVERIFY(text.contains(QStringLiteral("stroke-linecap=\"round\" stroke-linejoin=\"round\"")));
}

void TestBilder::programHasAnIcon()
{
    const QImage bild = gezeichnet(QStringLiteral(":/bilder/Mahlberg.svg"), 64);
    QCOMPARE(bild.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(bild.pixelColor(32, 32).alpha(), 255);
    QVERIFY(!QImage(QStringLiteral(":/bilder/Mahlberg.svg")).isNull());
}

QTEST_MAIN(TestBilder)
#include "TestBilder.moc"
