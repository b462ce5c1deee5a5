#include <QColor>
#include <QImage>
#include <QPainter>
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
    void toolbarPicturesAreThere_data();
    void toolbarPicturesAreThere();
    void toolbarPicturesReadOnLightAndDark_data();
    void toolbarPicturesReadOnLightAndDark();
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
            QVERIFY(kontrast(farbe, Qt::white) > 2.4);
            QVERIFY(kontrast(farbe, QColor(0x2b, 0x2b, 0x2b)) > 2.4);
        }
    }
    QVERIFY(gedeckt > 20);
    QCOMPARE(bild.pixelColor(0, 0).alpha(), 0);
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
