#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// A question for files or for a folder.
struct Dateifrage
{
    enum class Art {
        Oeffnen, ///< files that are there, one or several
        Sichern, ///< a file to be written; of one that is there it is asked whether it may go
        Ordner,  ///< a folder that is there
    };
    Art art;
    QString titel;       ///< what the question says above
    QString vorschlag;   ///< path that it begins with: a folder, or for `Sichern` the new file
    QString filter = {}; ///< the kinds of files as Qt writes them; empty: all
    QString endung = {}; ///< what a name that is typed without an ending gets, such as "pdf"
};

/// Asks over the window and answers with the paths that were chosen, none when it was closed
/// without a choice. Made in `main`, so that a test can choose.
using Dateituer = std::function<QStringList(QWidget *fenster, const Dateifrage &frage)>;

/// The door that shows the desktop's own window for this.
QStringList frageNachDateien(QWidget *fenster, const Dateifrage &frage);
