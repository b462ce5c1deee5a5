#include "UeblichePortion.h"

#include <algorithm>

namespace {

struct Spanne
{
    double von; ///< grams, both included
    double bis;
};
constexpr Spanne spannen[] = {{20, 300}, {5, 500}};

/// Table and tea spoons, heaped, or of what is ground.
bool istLoeffel(const Mass &mass)
{
    const QStringList worte = mass.eines.split(u' ');
    return std::ranges::any_of(worte, [](const QString &wort) {
        return wort == QStringLiteral("EL") || wort == QStringLiteral("TL") ||
               wort.endsWith(QStringLiteral("löffel"), Qt::CaseInsensitive);
    });
}

} // namespace

std::optional<Mass> ueblichePortion(const QList<Mass> &masse)
{
    for (const Spanne &spanne : spannen) {
        const auto eines = std::ranges::find_if(masse, [&spanne](const Mass &mass) {
            return !istLoeffel(mass) && mass.gramm >= spanne.von && mass.gramm <= spanne.bis;
        });
        if (eines != masse.end()) {
            return *eines;
        }
    }
    return std::nullopt;
}
