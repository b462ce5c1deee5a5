#include "Fensterplatz.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QWidget>

#include <algorithm>

namespace Fensterplatz {

namespace {

constexpr QMargins drumherum(rahmen, titelleiste, rahmen, rahmen);

/// Rolls what is larger than itself; as a part of a window it asks for hardly any room.
class Rahmen : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override
    {
        constexpr QSize wenigstens(480, 240);
        return widget()->minimumSizeHint().boundedTo(wenigstens);
    }
};

} // namespace

QRect imSchirm(const QRect &schirm, const QPoint &ort, const QSize &wunsch)
{
    const QRect frei = schirm.marginsRemoved(drumherum);
    const QSize groesse = wunsch.boundedTo(frei.size());
    const int x = std::clamp(ort.x(), frei.left(), frei.right() + 1 - groesse.width());
    const int y = std::clamp(ort.y(), frei.top(), frei.bottom() + 1 - groesse.height());
    return {QPoint(x, y), groesse};
}

QRect wiederImSchirm(const QList<QRect> &schirme, const QRect &platz)
{
    const auto anteil = [&platz](const QRect &schirm) {
        const QRect zuSehen = schirm.intersected(platz);
        return static_cast<qint64>(zuSehen.width()) * zuSehen.height();
    };
    const auto bester =
        std::max_element(schirme.begin(), schirme.end(),
                         [&anteil](const auto &a, const auto &b) { return anteil(a) < anteil(b); });
    return bester != schirme.end() ? imSchirm(*bester, platz.topLeft(), platz.size()) : platz;
}

void bringeInDenSchirm(QWidget &fenster)
{
    const QRect schirm = fenster.screen()->availableGeometry();
    const QRect platz = imSchirm(schirm, fenster.geometry().topLeft(), fenster.size());
    if (fenster.testAttribute(Qt::WA_Moved)) {
        fenster.setGeometry(platz);
    } else { // the desktop finds a place for it
        fenster.resize(platz.size());
    }
}

Schirmwaechter::Schirmwaechter()
{
    QApplication::instance()->installEventFilter(this);
}

bool Schirmwaechter::eventFilter(QObject *watched, QEvent *event)
{
    auto *fenster = event->type() == QEvent::Show && !event->spontaneous()
                        ? qobject_cast<QWidget *>(watched)
                        : nullptr;
    const bool maximiert =
        fenster != nullptr && (fenster->isMaximized() || fenster->isFullScreen());
    if (fenster != nullptr && !maximiert &&
        (fenster->windowType() == Qt::Window || fenster->windowType() == Qt::Dialog)) {
        bringeInDenSchirm(*fenster);
    }
    return QObject::eventFilter(watched, event);
}

void lasseRollen(QBoxLayout &anordnung, QWidget &inhalt)
{
    auto *rollend = new Rahmen;
    rollend->setFrameShape(QFrame::NoFrame);
    rollend->setFocusPolicy(Qt::NoFocus); // the keys belong to what it holds
    rollend->setWidgetResizable(true);
    delete anordnung.replaceWidget(&inhalt, rollend);
    rollend->setWidget(&inhalt);
    rollend->viewport()->setAutoFillBackground(false);
    inhalt.setAutoFillBackground(false);
}

QRect planplatz(const Planlage &lage)
{
    const QRect frei = lage.schirm.marginsRemoved(drumherum);
    const QSize wunsch = lage.wunsch.boundedTo(frei.size());
    const int rechts = lage.haupt.right() + 1 + rahmen;
    const int links = lage.haupt.left() - rahmen - wunsch.width();
    const int oben = lage.haupt.top() + titelleiste;
    if (rechts + wunsch.width() <= frei.right() + 1) {
        return imSchirm(lage.schirm, {rechts, oben}, wunsch);
    }
    if (links >= frei.left()) {
        return imSchirm(lage.schirm, {links, oben}, wunsch);
    }
    const int neben = lage.tabelle.right() + 1 + rahmen;
    const int breite = std::min(wunsch.width(), frei.right() + 1 - neben);
    if (breite >= lage.mindestens.width()) {
        return imSchirm(lage.schirm, {frei.right() + 1 - breite, oben}, {breite, wunsch.height()});
    }
    return imSchirm(lage.schirm, frei.bottomRight(), {wunsch.width(), lage.mindestens.height()});
}

} // namespace Fensterplatz
