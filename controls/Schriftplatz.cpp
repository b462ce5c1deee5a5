#include "Schriftplatz.h"

#include <QEvent>
#include <QLayout>
#include <QProgressBar>
#include <QWidget>

#include <algorithm>

void Schriftplatz::gib(QWidget &fenster)
{
    const QList<QWidget *> felder = fenster.findChildren<QWidget *>();
    // What lies within a part tells it how much room is needed, so it comes first.
    std::for_each(felder.rbegin(), felder.rend(), [](QWidget *feld) {
        const QSize hoechstens = feld->maximumSize();
        const bool begrenzt = std::min(hoechstens.width(), hoechstens.height()) < QWIDGETSIZE_MAX;
        if (begrenzt && qobject_cast<QProgressBar *>(feld) == nullptr) { // that has no words
            new Schriftplatz(feld);
        }
    });
}

Schriftplatz::Schriftplatz(QWidget *feld)
    : QObject(feld)
    , m_feld(feld)
    , m_mindestens(feld->minimumSize())
    , m_hoechstens(feld->maximumSize())
{
    feld->installEventFilter(this);
    stelle();
}

bool Schriftplatz::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange) {
        stelle();
    }
    return QObject::eventFilter(watched, event);
}

void Schriftplatz::stelle()
{
    QSize bedarf = m_feld->minimumSizeHint();
    const QLayout *anordnung = m_feld->layout();
    if (anordnung != nullptr) { // a picture with words in it asks for no more than the picture
        bedarf = bedarf.expandedTo(anordnung->totalMinimumSize());
    }
    if (anordnung != nullptr && anordnung->hasHeightForWidth()) {
        const int breite = std::max(bedarf.width(), m_mindestens.width());
        bedarf.setHeight(std::max(bedarf.height(), anordnung->totalMinimumHeightForWidth(breite)));
    }
    if (bedarf.width() > m_hoechstens.width() && m_hoechstens.height() < QWIDGETSIZE_MAX) {
        // A picture keeps its proportions.
        const int hoehe = m_hoechstens.height() * bedarf.width() / m_hoechstens.width();
        bedarf.setHeight(std::max(bedarf.height(), hoehe));
    }
    m_feld->setMinimumSize(
        m_mindestens.width() > 0 ? std::max(m_mindestens.width(), bedarf.width()) : 0,
        m_mindestens.height() > 0 ? std::max(m_mindestens.height(), bedarf.height()) : 0);
    m_feld->setMaximumSize(m_hoechstens.expandedTo(bedarf));
}
