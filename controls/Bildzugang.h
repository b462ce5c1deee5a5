#pragma once

#include <QAccessibleWidget>

/// Tells an assistive tool that a control is a picture, and what it shows at the moment of asking.
/// Telling it at every change instead would cost more than the change. `Bild` has `beschreibung()`.
template <typename Bild>
class Bildzugang : public QAccessibleWidget
{
public:
    explicit Bildzugang(Bild *bild) : QAccessibleWidget(bild, QAccessible::Graphic) {}

    QString text(QAccessible::Text art) const override
    {
        const auto *bild = qobject_cast<const Bild *>(object());
        return art == QAccessible::Description && bild != nullptr ? bild->beschreibung()
                                                                  : QAccessibleWidget::text(art);
    }

    /// The factory for controls of this class.
    static QAccessibleInterface *zugangZu(const QString & /*klasse*/, QObject *objekt)
    {
        auto *bild = qobject_cast<Bild *>(objekt);
        return bild != nullptr ? new Bildzugang(bild) : nullptr;
    }
};
