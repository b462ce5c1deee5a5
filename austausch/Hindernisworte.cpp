#include "Hindernisworte.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

/// In the order of `Dateihindernis`.
constexpr std::array<const char *, 11> worte = {
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Diese Datei gibt es nicht."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das ist ein Ordner, keine Datei."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das ist keine gewöhnliche Datei."),
    QT_TRANSLATE_NOOP("Mahlberg", "Für eine Datei mit Lebensmitteln ist sie zu groß."),
    QT_TRANSLATE_NOOP("Mahlberg", "Sie lässt sich nicht lesen. Vielleicht ist sie geschützt."),
    QT_TRANSLATE_NOOP("Mahlberg", "Sie ist leer."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das ist keine Datei mit Lebensmitteln."),
    QT_TRANSLATE_NOOP("Mahlberg", "Sie ist beschädigt, ab Byte %1."),
    QT_TRANSLATE_NOOP("Mahlberg", "Darin hält Mahlberg selbst Ihre eigenen Lebensmittel. Sie sind "
                                  "schon da."),
    QT_TRANSLATE_NOOP("Mahlberg", "Darin hält Mahlberg selbst Ihren Plan. Er ist schon da."),
};

} // namespace

QString hinderniswort(const Lebensmitteldatei &datei)
{
    const char *text = worte.at(static_cast<std::size_t>(datei.hindernis));
    if (datei.lesbar()) {
        return {};
    }
    const QString satz = localizedString(QString::fromUtf8(text));
    return datei.hindernis == Dateihindernis::Beschaedigt ? satz.arg(datei.stelle) : satz;
}
