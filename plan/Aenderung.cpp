#include "Aenderung.h"

#include "Hinweisstreifen.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

/// In the order of `Aenderungsart`.
constexpr std::array<const char *, 11> worte = {
    QT_TRANSLATE_NOOP("Mahlberg", "„%1“ in den Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "„%1“ aus dem Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "Menge von „%1“"),
    QT_TRANSLATE_NOOP("Mahlberg", "Platz von „%1“"),
    QT_TRANSLATE_NOOP("Mahlberg", "neue Namen im Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "früherer Stand des Plans"),
    QT_TRANSLATE_NOOP("Mahlberg", "„%1“ gesichert"),
    QT_TRANSLATE_NOOP("Mahlberg", "„%1“ geändert"),
    QT_TRANSLATE_NOOP("Mahlberg", "„%1“ gelöscht"),
    QT_TRANSLATE_NOOP("Mahlberg", "früherer Stand der eigenen Lebensmittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "übernommene Lebensmittel"),
};

} // namespace

QString inWorten(const Aenderung &aenderung)
{
    const QString satz =
        localizedString(QString::fromUtf8(worte.at(static_cast<std::size_t>(aenderung.art))));
    return satz.contains(QLatin1String("%1"))
               ? satz.arg(kurzerName(localizedString(aenderung.name)))
               : satz;
}
