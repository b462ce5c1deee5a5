#include "Teiler.h"

#include "Fokusstil.h"

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int schritt = 16; // px, four fields of the grid on which everything stands

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

QString anleitung()
{
    return uebersetzt(QT_TRANSLATE_NOOP(
        "Mahlberg", "Die Pfeiltasten verschieben die Trennlinie, die Eingabetaste beendet."));
}

} // namespace

class Teiler::Griff : public QSplitterHandle
{
public:
    explicit Griff(Teiler *teiler)
        : QSplitterHandle(teiler->orientation(), teiler)
        , m_teiler(teiler)
    {
        setAccessibleName(uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Trennlinie")));
        setAccessibleDescription(anleitung());
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool quer = orientation() == Qt::Horizontal;
        const int ort = quer ? x() : y();
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            moveSplitter(ort - schritt);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            moveSplitter(ort + schritt);
            break;
        case Qt::Key_Home:
            moveSplitter(0);
            break;
        case Qt::Key_End:
            moveSplitter(quer ? m_teiler->width() : m_teiler->height());
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            gibTastaturZurueck();
            break;
        default:
            QSplitterHandle::keyPressEvent(event);
        }
    }

    void focusInEvent(QFocusEvent *event) override
    {
        QSplitterHandle::focusInEvent(event);
        update();
    }

    void focusOutEvent(QFocusEvent *event) override
    {
        QSplitterHandle::focusOutEvent(event);
        update();
    }

    void paintEvent(QPaintEvent *event) override
    {
        QSplitterHandle::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(this);
            maleFokus(painter, rect(), palette());
        }
    }

private:
    void gibTastaturZurueck()
    {
        if (m_teiler->m_vorher != nullptr) {
            m_teiler->m_vorher->setFocus(Qt::OtherFocusReason);
        } else {
            clearFocus();
        }
    }

    Teiler *m_teiler;
};

Teiler::Teiler(QWidget *parent) : Teiler(Qt::Horizontal, parent) {}

Teiler::Teiler(Qt::Orientation richtung, QWidget *parent) : QSplitter(richtung, parent)
{
    connect(this, &QSplitter::splitterMoved, this, [this] { m_gewaehlt = true; });
}

void Teiler::goenneUnten(QScrollArea &unten)
{
    m_unten = &unten;
    gibSeinen();
}

void Teiler::teileWieder(int ganz, int zweiter)
{
    setSizes({std::max(1, ganz - zweiter), std::min(zweiter, ganz)});
    m_gewaehlt = true;
}

void Teiler::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    gibSeinen();
}

void Teiler::gibSeinen()
{
    if (m_unten == nullptr || m_gewaehlt) {
        return;
    }
    const QWidget &seite = *m_unten->widget();
    const int rand = 2 * m_unten->frameWidth();
    const int bedarf = seite.hasHeightForWidth() ? seite.heightForWidth(width() - rand)
                                                 : seite.sizeHint().height();
    const int frei = height() - handleWidth();
    const int unten = std::min(bedarf + rand, frei / 2);
    setSizes({frei - unten, unten});
}

QSplitterHandle *Teiler::createHandle()
{
    return new Griff(this);
}

void Teiler::bewege()
{
    QSplitterHandle *griff = handle(1);
    if (griff == nullptr || griff->hasFocus()) {
        return;
    }
    m_vorher = QApplication::focusWidget();
    griff->setFocus(Qt::ShortcutFocusReason);
    QToolTip::showText(griff->mapToGlobal(griff->rect().center()), anleitung(), griff);
}
