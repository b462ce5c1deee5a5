#pragma once

#include "Archivdatei.h"
#include "Probefenster.h"

#include <QMenuBar>
#include <QPushButton>

class Einlesefenster;

/// The main window with two built-in and two own foods, and the hands that let tables come in and
/// go out.
class Austauschprobe
{
public:
    Austauschprobe();

    AppController &controller() const { return fenster->controller(); }
    /// Shows the window.
    void oeffne();
    /// The path of a file with these bytes.
    QString datei(const QByteArray &bytes) const;
    /// Chooses a file with these bytes; null when no window came up for it.
    Einlesefenster *lies(const QByteArray &bytes);
    /// Saves the list of this place of the chooser.
    void gibAus(int liste, const QString &path);
    /// What the newest notice says; null when there is none.
    QString hinweis() const;
    /// The own foods as their file holds them.
    Lebensmittelverzeichnis aufDerPlatte() const;

    Probeheim heim;
    std::unique_ptr<Probefenster> fenster; ///< null before it is shown
};

/// The entry of the menus that begins with these words; null when there is none.
QAction *menueeintrag(const QMainWindow &fenster, const QString &anfang);

/// The button that takes the foods over.
QPushButton *knopf(const QObject &fenster);

void klicke(QAbstractButton *taste);

template <typename Art>
Art *kind(const QObject &fenster, const char *name)
{
    return fenster.findChild<Art *>(QLatin1String(name));
}
