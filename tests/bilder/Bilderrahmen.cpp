#include "Bilderrahmen.h"

#include "Bildvergleich.h"
#include "Erscheinungsbild.h"
#include "Fokusstil.h"

#include <QAbstractAnimation>
#include <QDir>
#include <QFile>
#include <QFont>

#include <algorithm>
#include <utility>

namespace {

/// Our look, held still.
class StillerStil : public Fokusstil
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *mehr) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : Fokusstil::styleHint(hint, option, widget, mehr);
    }
};

QString ordner = QStringLiteral(MAHLBERG_BILDER);
QString abweichungen = QStringLiteral(MAHLBERG_ABWEICHUNGEN);

QString abweichung(const QString &name, const char *welche)
{
    return QStringLiteral("%1/%2-%3.png").arg(abweichungen, name, QLatin1String(welche));
}

/// PNG at its smallest; without colours that let the ground through it is smaller still.
void sichere(const QImage &bild, const QString &datei)
{
    constexpr int kleinste = 0; // the quality at which the file takes the least room
    const bool deckend = !bild.hasAlphaChannel();
    const QImage::Format form = deckend ? QImage::Format_RGB888 : QImage::Format_ARGB32;
    QVERIFY2(bild.convertToFormat(form).save(datei, "PNG", kleinste), qPrintable(datei));
}

void erneuere(const QString &name, const QImage &bild)
{
    sichere(bild, QStringLiteral("%1/%2.png").arg(ordner, name));
    QFAIL(qPrintable(name + QStringLiteral(" was written anew. Look at it; without "
                                           "MAHLBERG_BILDER_NEU the test compares it.")));
}

void melde(const QString &name, const QImage &gesehen, const QImage &erwartet)
{
    QVERIFY(QDir().mkpath(abweichungen));
    sichere(gesehen, abweichung(name, "gesehen"));
    if (erwartet.isNull()) {
        QFAIL(qPrintable(QStringLiteral("There is no picture %1.png to expect. What was seen: %2")
                             .arg(name, abweichung(name, "gesehen"))));
    }
    const Bildvergleich vergleich(gesehen, erwartet);
    sichere(erwartet, abweichung(name, "erwartet"));
    sichere(vergleich.unterschied(), abweichung(name, "unterschied"));
    QFAIL(qPrintable(QStringLiteral("%1: %2.\n   seen:     %3\n   expected: %4\n   in red:   %5")
                         .arg(name, vergleich.worte(), abweichung(name, "gesehen"),
                              abweichung(name, "erwartet"), abweichung(name, "unterschied"))));
}

/// Takes pictures until two in a row are the same, with all done between them that is due.
QImage ruhig(const std::function<QImage()> &male)
{
    QImage bild;
    const bool steht = QTest::qWaitFor([&] {
        QCoreApplication::processEvents();
        const QImage vorher = std::exchange(bild, male());
        return vorher == bild;
    });
    if (!steht) {
        qWarning("It does not come to rest.");
    }
    return bild;
}

/// Buttons within fields, for instance, fade in.
bool bewegtSich(const QWidget &fenster)
{
    const auto bewegungen = fenster.findChildren<QAbstractAnimation *>();
    return std::any_of(bewegungen.begin(), bewegungen.end(), [](const QAbstractAnimation *eine) {
        return eine->state() == QAbstractAnimation::Running;
    });
}

/// On a busy machine what is expected may come a little later.
void vergleiche(const QString &name, const std::function<QImage()> &male)
{
    constexpr int geduld = 1500; // milliseconds
    if (qEnvironmentVariableIsSet("MAHLBERG_BILDER_NEU")) {
        QTest::qWait(geduld / 5); // what is kept must not be taken before something fades in
        erneuere(name, ruhig(male));
        return;
    }
    QImage gesehen = ruhig(male);
    for (const char *welche : {"gesehen", "erwartet", "unterschied"}) {
        QFile::remove(abweichung(name, welche));
    }
    const QImage erwartet(QStringLiteral("%1/%2.png").arg(ordner, name));
    const auto gleich = [&] {
        return Bildvergleich(gesehen, erwartet).gleich();
    };
    if (!gleich() && (erwartet.isNull() || !QTest::qWaitFor(
                                               [&] {
                                                   gesehen = male();
                                                   return gleich();
                                               },
                                               geduld))) {
        melde(name, gesehen, erwartet);
    }
}

} // namespace

void Bilderrahmen::bereiteVor()
{
    const auto setze = [](const char *name, const QString &wert) {
        qputenv(name, QFile::encodeName(wert));
    };
    const QString hier = QStringLiteral(MAHLBERG_BILDERRAHMEN);
    setze("QT_QPA_PLATFORM", QStringLiteral("offscreen:configfile=%1/schirm.json").arg(hier));
    setze("FONTCONFIG_FILE", hier + QStringLiteral("/schrift.conf"));
    setze("LC_ALL", QStringLiteral("C.UTF-8"));
    setze("TZ", QStringLiteral("UTC"));
    setze("QT_SCALE_FACTOR", QStringLiteral("1"));
    setze("QT_FONT_DPI", QStringLiteral("96"));
    for (const char *name : {"QT_SCREEN_SCALE_FACTORS", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME",
                             "QT_ENABLE_HIGHDPI_SCALING", "FONTCONFIG_PATH"}) {
        qunsetenv(name);
    }
    QApplication::setStyle(new StillerStil);
}

void Bilderrahmen::setzeOrdner(const QString &bilder, const QString &unterschiede)
{
    ordner = bilder;
    abweichungen = unterschiede;
}

void Bilderrahmen::kleide()
{
    constexpr int punkte = 9; // 12 pixels
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), punkte));
    QApplication::setCursorFlashTime(0);
    QApplication::setApplicationVersion(QStringLiteral("1.0")); // the next one changes no picture
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/Mahlberg.svg")));
    zeigeErscheinungsbild(Erscheinungsbild::Hell);
}

QImage Bilderrahmen::male(QWidget &teil, int verhaeltnis)
{
    QImage bild(teil.size() * verhaeltnis, QImage::Format_RGB32);
    bild.setDevicePixelRatio(verhaeltnis);
    bild.fill(teil.palette().color(QPalette::Window));
    teil.render(&bild);
    return bild;
}

void Bilderrahmen::pruefe(const QString &name, const QImage &bild)
{
    vergleiche(name, [&bild] { return bild; });
}

void Bilderrahmen::pruefe(const QString &name, QWidget &teil, int verhaeltnis)
{
    QCoreApplication::processEvents();
    QTRY_VERIFY(!bewegtSich(*teil.window()));
    vergleiche(name, [&teil, verhaeltnis] { return male(teil, verhaeltnis); });
}
