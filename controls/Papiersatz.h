#pragma once

#include "Drucktuer.h"

#include <QRectF>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

/// Where on a page something is set: the margins of the user, but never nearer to the paper's edges
/// than the foot stands at its sides, whatever the printer could do.
inline QRectF satzspiegel(const QPageLayout &seite)
{
    constexpr QMarginsF kleinsteRaender(36, 40, 36, 44); // points
    constexpr double schmalste = 50;                     // else no word would fit
    QRectF platz = seite.fullRect(QPageLayout::Point)
                       .marginsRemoved(seite.margins(QPageLayout::Point) | kleinsteRaender);
    platz.setSize(platz.size().expandedTo({schmalste, schmalste}));
    return platz;
}

/// What is printed under a title on a day, see `Druckauftrag`. Its pages are set by `setze`, which
/// is told how large they are: anew for every paper and not for every page. `Satz` counts its pages
/// by `seiten` and paints them by `male`.
template <typename Satz>
Druckauftrag gesetzterAuftrag(const QString &titel, const QString &form, const QDate &tag,
                              std::function<Satz(const QSizeF &seite)> setze)
{
    struct Papier
    {
        QPageLayout seite;
        std::optional<Satz> satz;
    };
    const auto papier = std::make_shared<Papier>();
    const auto auf = [papier, setze = std::move(setze)](const QPageLayout &seite) -> const Satz & {
        if (!papier->satz || papier->seite != seite) {
            papier->seite = seite;
            papier->satz.emplace(setze(satzspiegel(seite).size()));
        }
        return *papier->satz;
    };
    return {titel, [auf](const QPageLayout &seite) { return auf(seite).seiten(); },
            [auf](QPainter &maler, const QPageLayout &seite, int nummer) {
                auf(seite).male(maler, satzspiegel(seite).topLeft(), nummer);
            },
            form, tag};
}
