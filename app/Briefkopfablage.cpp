#include "Briefkopfablage.h"

#include "Dateiwechsel.h"
#include "Zeichenkettentabelle.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSettings>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Hindernis = Briefkopfablage::Hindernis;

const QString namensschluessel = QStringLiteral("Briefkopf/Name");
const QString anschriftschluessel = QStringLiteral("Briefkopf/Anschrift");
const QString logoschluessel = QStringLiteral("Briefkopf/Logo");
const QString dateiname = QStringLiteral("MahlbergLogo.png");

constexpr qint64 meisteBytes = 20'000'000;
constexpr qint64 meistePunkte = 30'000'000; ///< they take 120 MB of memory; Qt reads 128
/// On its place of at most 170 x 56 points that is more than 500 dots to an inch.
constexpr QSize feinstes(1200, 400);

struct Gelesenes
{
    QImage bild = {};
    std::optional<Hindernis> hindernis = {};
};

bool istSvg(const QByteArray &bytes)
{
    constexpr qsizetype anfang = 4096; // comments may stand before it
    return bytes.first(std::min(anfang, bytes.size())).contains("<svg");
}

Gelesenes gemalt(const QByteArray &svg)
{
    QSvgRenderer zeichnung(svg);
    const QSize groesse = zeichnung.defaultSize().scaled(feinstes, Qt::KeepAspectRatio);
    if (!zeichnung.isValid() || zeichnung.defaultSize().isEmpty() || groesse.isEmpty()) {
        return {.hindernis = Hindernis::NichtZuLesen};
    }
    QImage bild(groesse, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    zeichnung.render(&maler);
    return {.bild = bild};
}

Gelesenes gelesen(const QByteArray &bytes)
{
    if (istSvg(bytes)) {
        return gemalt(bytes);
    }
    QByteArray inhalt = bytes;
    QBuffer puffer(&inhalt);
    QImageReader leser(&puffer);
    leser.setAutoTransform(true); // as the camera was held
    if (leser.format() != "png" && leser.format() != "jpeg") {
        return {.hindernis = Hindernis::KeinBild};
    }
    const QSize groesse = leser.size();
    if (qint64(groesse.width()) * groesse.height() > meistePunkte) {
        return {.hindernis = Hindernis::ZuGross};
    }
    const QImage bild = leser.read();
    return bild.isNull() ? Gelesenes{.hindernis = Hindernis::NichtZuLesen} : Gelesenes{bild};
}

Gelesenes gelesen(const QString &path)
{
    QFile datei(path);
    if (!datei.open(QIODevice::ReadOnly)) {
        return {.hindernis = Hindernis::NichtZuLesen};
    }
    if (datei.size() > meisteBytes) {
        return {.hindernis = Hindernis::ZuGross};
    }
    const QByteArray bytes = datei.readAll();
    return datei.error() == QFileDevice::NoError ? gelesen(bytes)
                                                 : Gelesenes{.hindernis = Hindernis::NichtZuLesen};
}

QByteArray alsPng(const QImage &bild)
{
    const bool zuFein = bild.width() > feinstes.width() || bild.height() > feinstes.height();
    const QImage passend =
        zuFein ? bild.scaled(feinstes, Qt::KeepAspectRatio, Qt::SmoothTransformation) : bild;
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    passend.save(&puffer, "PNG");
    return bytes;
}

} // namespace

Briefkopfablage::Briefkopfablage(QSettings &einstellungen, Datenordner ordner)
    : m_einstellungen(einstellungen)
    , m_ordner(std::move(ordner))
{
}

QString Briefkopfablage::logodatei() const
{
    const QString eigene = m_ordner.datei(QStringLiteral("customdaten"));
    return QFileInfo(eigene).dir().filePath(dateiname);
}

Briefkopf Briefkopfablage::lies() const
{
    Briefkopf kopf;
    kopf.name = m_einstellungen.value(namensschluessel).toString().trimmed();
    kopf.anschrift = anschrift().trimmed().split(u'\n', Qt::SkipEmptyParts);
    if (hatLogo()) {
        kopf.logo = gelesen(logodatei()).bild;
        kopf.logoFehlt = kopf.logo.isNull();
    }
    return kopf;
}

void Briefkopfablage::setzeName(const QString &name)
{
    m_einstellungen.setValue(namensschluessel, name);
}

void Briefkopfablage::setzeAnschrift(const QString &anschrift)
{
    m_einstellungen.setValue(anschriftschluessel, anschrift);
}

QString Briefkopfablage::anschrift() const
{
    return m_einstellungen.value(anschriftschluessel).toString();
}

bool Briefkopfablage::hatLogo() const
{
    return m_einstellungen.value(logoschluessel).toBool();
}

std::optional<Hindernis> Briefkopfablage::uebernimmLogo(const QString &path)
{
    const Gelesenes neues = gelesen(path);
    if (neues.hindernis) {
        return neues.hindernis;
    }
    Dateiwechsel wechsel(logodatei());
    if (!m_ordner.lege() || !wechsel.bereite(alsPng(neues.bild)) || !wechsel.vollziehe()) {
        return Hindernis::NichtZuSichern;
    }
    m_einstellungen.setValue(logoschluessel, true);
    return std::nullopt;
}

bool Briefkopfablage::entferneLogo()
{
    if (QFile::exists(logodatei()) && !QFile::remove(logodatei())) {
        return false;
    }
    m_einstellungen.remove(logoschluessel);
    return true;
}

QString inWorten(Briefkopfablage::Hindernis hindernis)
{
    static constexpr std::array<const char *, 4> worte = {
        QT_TRANSLATE_NOOP("Mahlberg", "Dieses Bild lässt sich nicht lesen."),
        QT_TRANSLATE_NOOP("Mahlberg", "Das ist kein Bild in PNG, JPEG oder SVG."),
        QT_TRANSLATE_NOOP("Mahlberg",
                          "Dieses Bild ist zu groß: Es darf 20 MB und 30 Millionen Punkte haben."),
        QT_TRANSLATE_NOOP("Mahlberg", "Das Logo ließ sich nicht sichern; es ist wie vorher."),
    };
    return localizedString(QString::fromUtf8(worte.at(static_cast<std::size_t>(hindernis))));
}
