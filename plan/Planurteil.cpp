#include "Planurteil.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

/// In the order of the faces' codes.
constexpr std::array<const char *, 3> gesichtsworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Ein guter Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein Plan mit Lücken"),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein unausgewogener Plan"),
};

constexpr const char *leererPlan = QT_TRANSLATE_NOOP("Mahlberg", "Der Plan ist leer");

} // namespace

QString planurteil(const Planauswertung &auswertung, bool leer)
{
    const char *worte =
        leer ? leererPlan : gesichtsworte.at(static_cast<std::size_t>(auswertung.gesicht - 1));
    return localizedString(QString::fromUtf8(worte));
}
