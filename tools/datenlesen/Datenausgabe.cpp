#include "Datenausgabe.h"

#include "Einzeilig.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr int spaltenbreite = 14;

/// The shortest decimal number that means this value and no other.
QString zahltext(float zahl)
{
    std::array<char, 64> puffer = {};
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), zahl).ptr;
    return QString::fromLatin1(puffer.data(), ende - puffer.data());
}

QString textzeile(const char *kennung, const QString &wert)
{
    return QStringLiteral("    ") + QString::fromLatin1(kennung).leftJustified(spaltenbreite) +
           wert + QLatin1Char('\n');
}

/// A record's name where it is not the one under which the food is kept.
QString namenszeile(const QString &schluessel, const Datenmodul &lebensmittel)
{
    if (lebensmittel.name().isNull()) {
        return textzeile("name", QStringLiteral("(none)"));
    }
    return lebensmittel.name() == schluessel ? QString()
                                             : textzeile("name", einzeilig(lebensmittel.name()));
}

QString textzelle(const QString &text)
{
    if (text.isNull()) {
        return {};
    }
    QString verdoppelt = text;
    verdoppelt.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + verdoppelt + QLatin1Char('"');
}

QString csvZeile(const QStringList &zellen)
{
    return zellen.join(QLatin1Char(',')) + QLatin1Char('\n');
}

QStringList spaltennamen()
{
    QStringList namen = {QStringLiteral("key"), QStringLiteral("name")};
    for (const auto &zeile : naehrwerte) {
        namen += QString::fromLatin1(zeile.kennung);
    }
    for (const auto &zeile : wertungen) {
        namen += QString::fromLatin1(zeile.kennung);
    }
    return namen;
}

} // namespace

QString alsText(const Lebensmittelverzeichnis &verzeichnis)
{
    QString text;
    for (auto eintrag = verzeichnis.cbegin(); eintrag != verzeichnis.cend(); ++eintrag) {
        const Datenmodul &lebensmittel = eintrag.value();
        text += einzeilig(eintrag.key()) + QLatin1Char('\n');
        text += namenszeile(eintrag.key(), lebensmittel);
        for (const auto &zeile : naehrwerte) {
            const float zahl = lebensmittel.wert(zeile.wert);
            if (zahl != 0.0F) {
                text += textzeile(zeile.kennung, zahltext(zahl) + QLatin1Char(' ') +
                                                     einheitszeichen(zeile.einheit));
            }
        }
        for (const auto &zeile : wertungen) {
            const QString &wertung = lebensmittel.wertung(zeile.wertung);
            if (!wertung.isNull()) {
                text += textzeile(zeile.kennung, einzeilig(wertung));
            }
        }
    }
    return text;
}

QString alsCsv(const Lebensmittelverzeichnis &verzeichnis)
{
    QString csv = csvZeile(spaltennamen());
    for (auto eintrag = verzeichnis.cbegin(); eintrag != verzeichnis.cend(); ++eintrag) {
        const Datenmodul &lebensmittel = eintrag.value();
        QStringList zellen = {textzelle(eintrag.key()), textzelle(lebensmittel.name())};
        for (const auto &zeile : naehrwerte) {
            zellen += zahltext(lebensmittel.wert(zeile.wert));
        }
        for (const auto &zeile : wertungen) {
            zellen += textzelle(lebensmittel.wertung(zeile.wertung));
        }
        csv += csvZeile(zellen);
    }
    return csv;
}
