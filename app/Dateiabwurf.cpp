#include "Dateiabwurf.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMainWindow>
#include <QMimeData>

Dateiabwurf::Dateiabwurf()
{
    // A field for text would take a file's address as text: it is asked after this one.
    QCoreApplication::instance()->installEventFilter(this);
}

bool Dateiabwurf::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (auto *fenster = qobject_cast<QMainWindow *>(watched)) {
            fenster->setAcceptDrops(true);
        }
        return false;
    }
    const bool zieht = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                       event->type() == QEvent::Drop;
    const auto *worueber = zieht ? qobject_cast<QWidget *>(watched) : nullptr;
    if (worueber == nullptr || qobject_cast<QMainWindow *>(worueber->window()) == nullptr) {
        return false;
    }
    auto &abwurf = static_cast<QDropEvent &>(*event); // what comes in and moves is one, too
    if (!abwurf.mimeData()->hasUrls()) {
        return false;
    }
    abwurf.setDropAction(Qt::CopyAction); // the file stays where it is
    abwurf.accept();
    if (event->type() == QEvent::Drop) {
        QMetaObject::invokeMethod(
            this, [this, adressen = abwurf.mimeData()->urls()] { Q_EMIT abgeworfen(adressen); },
            Qt::QueuedConnection);
    }
    return true;
}
