#include "Hilfe.h"

#include "Handbuch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>

#include <algorithm>

namespace {

/// Which page tells of a window or a part of it. What lies in it has the same page, as long as it
/// has none of its own.
struct Stelle
{
    const char *name; ///< the object's name
    const char *seite;
};

constexpr Stelle stellen[] = {
    {"suchfeld", "search"},
    {"direkteuebernahme", "search"},
    {"profilaufzu", "search"},
    {"suchprofileinaus", "search"},
    {"feldA", "food"},
    {"uebergewichtmarke", "food"},
    {"diabetesmarke", "food"},
    {"gichtmarke", "food"},
    {"hkkmarke", "food"},
    {"tabEins", "food"},
    {"tabZwei", "food"},
    {"tabDrei", "food"},
    {"tabVier", "body"},
    {"tabFuenf", "lifestyle"},
    {"sichernaufzu", "own-foods"},
    {"sichernBox", "own-foods"},
    {"einfenster", "own-foods"},
    {"anpassungspalette", "settings"},
    {"Planfenster", "plan"},
    {"untereSeite", "evaluation"},
    {"druckvorschau", "printing"},
    {"hinweise", "when-something-fails"},
    {"Klientenfenster", "clients"},
    {"Tagefenster", "days"},
    {"Massfenster", "days"},
    {"einblickfenster", "insight"},
    {"ranglistenfenster", "insight"},
    {"rezeptfenster", "insight"},
    {"sicherungen", "when-something-fails"},
    {"einlesen", "tables"},
    {"ausgabe", "tables"},
};

/// Empty where none is named.
QString seiteVon(const QWidget *teil)
{
    const auto *gefunden =
        std::find_if(std::begin(stellen), std::end(stellen), [teil](const Stelle &stelle) {
            return teil->objectName() == QLatin1String(stelle.name);
        });
    return gefunden != std::end(stellen) ? QLatin1String(gefunden->seite) : QString();
}

/// The page of the view that lies in front in this window.
QString seiteDerAnsicht(const QWidget &fenster)
{
    const auto *ansichten = fenster.findChild<QTabWidget *>();
    const bool gezeigt = ansichten != nullptr && ansichten->isVisibleTo(&fenster) &&
                         ansichten->currentWidget() != nullptr;
    return gezeigt ? seiteVon(ansichten->currentWidget()) : QString();
}

} // namespace

QString handbuchseite(const QWidget &fenster)
{
    const QWidget *teil = fenster.focusWidget() != nullptr ? fenster.focusWidget() : &fenster;
    for (; teil != nullptr; teil = teil->parentWidget()) {
        QString seite = seiteVon(teil);
        if (seite.isEmpty() && teil->isWindow()) {
            seite = seiteDerAnsicht(*teil);
        }
        if (!seite.isEmpty()) {
            return seite;
        }
    }
    return Handbuch::ersteSeite;
}

Hilfe::Hilfe()
{
    QCoreApplication::instance()->installEventFilter(this);
}

Hilfe::~Hilfe() = default;

void Hilfe::zeige(const QWidget &fenster)
{
    const QString seite = handbuchseite(fenster);
    if (m_handbuch == nullptr) {
        m_handbuch = std::make_unique<Handbuch>();
    }
    m_handbuch->oeffne(seite);
}

void Hilfe::folgeSprache()
{
    if (m_handbuch != nullptr) {
        m_handbuch->folgeSprache();
    }
}

/// A key that comes as far as the window is one that nothing in it wanted. A menu that is open
/// keeps it: the window below it is not what the user looks at.
bool Hilfe::eventFilter(QObject *watched, QEvent *event)
{
    const auto *fenster =
        event->type() == QEvent::KeyPress ? qobject_cast<QWidget *>(watched) : nullptr;
    if (fenster != nullptr && fenster->isWindow() && fenster->windowType() != Qt::Popup &&
        static_cast<QKeyEvent *>(event)->keyCombination() == QKeyCombination(Qt::Key_F1)) {
        zeige(*fenster);
        return true;
    }
    return QObject::eventFilter(watched, event);
}
