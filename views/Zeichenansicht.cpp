#include "Zeichenansicht.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace {

/// Tells an assistive tool what a view shows at the moment of asking. Telling it at every change
/// instead would cost more than the change.
class Ansichtszugang : public QAccessibleWidget
{
public:
    explicit Ansichtszugang(Zeichenansicht *ansicht)
        : QAccessibleWidget(ansicht, QAccessible::Graphic)
    {
    }

    QString text(QAccessible::Text art) const override
    {
        QString gegeben = QAccessibleWidget::text(art);
        const auto *ansicht = qobject_cast<const Zeichenansicht *>(object());
        if (art == QAccessible::Description && gegeben.isEmpty() && ansicht != nullptr) {
            return ansicht->beschreibung();
        }
        return gegeben;
    }
};

QAccessibleInterface *zugangZu(const QString &klasse, QObject *objekt)
{
    auto *ansicht = qobject_cast<Zeichenansicht *>(objekt);
    if (ansicht == nullptr || klasse != QLatin1String("Zeichenansicht")) {
        return nullptr;
    }
    return new Ansichtszugang(ansicht);
}

constexpr double kartenecke = 6;

/// The card on which the colours of a light window are right.
void zeichneKarte(QPainter &maler, const QRectF &bounds)
{
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(Qt::white);
    maler.drawRoundedRect(bounds, kartenecke, kartenecke);
    maler.restore();
}

} // namespace

Zeichenansicht::Zeichenansicht(QWidget *parent) : QWidget(parent)
{
    // Qt keeps one entry for a factory, however often it is named.
    QAccessible::installFactory(zugangZu);
}

void Zeichenansicht::paintEvent(QPaintEvent * /*event*/)
{
    QPainter maler(this);
    constexpr int halbhell = 128;
    if (brauchtHellenGrund() && palette().color(QPalette::Window).lightness() < halbhell) {
        // Captions that stand on the view's foot have the window's colours, and so its ground.
        const bool beschriftet = !childrenRect().isEmpty();
        zeichneKarte(maler, QRectF(rect().adjusted(
                                0, 0, 0, beschriftet ? childrenRect().top() - height() : 0)));
    }
    zeichnen(maler, QRectF(rect()));
}
