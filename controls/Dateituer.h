#pragma once

#include <QString>

#include <functional>

class QWidget;

/// What a file or a folder is wanted for.
struct Dateifrage
{
    enum class Zweck {
        Lesen,     ///< a file that is there
        AlleLesen, ///< files that are there, one or several
        Schreiben, ///< a file; one that is there is asked about
        Ordner,    ///< a folder that is there
    };
    QString titel;          ///< of the dialog
    QString vorschlag = {}; ///< path that is proposed; of a file to be read only its folder counts
    QString arten = {};     ///< kinds of files, as `QFileDialog` has them; empty for a folder
    QString endung = {};    ///< ending of a name that is typed without one
    Zweck zweck = Zweck::Lesen;
};

/// Asks for a file over a window and hands its path on, of several one after the other; nothing
/// happens when none is chosen. Made in `main`, so that a test can answer.
using Dateituer = std::function<void(QWidget *fenster, const Dateifrage &frage,
                                     const std::function<void(const QString &)> &antwort)>;

/// The door that shows the system's dialog. A file that would be written over is asked about there.
void frageNachDatei(QWidget *fenster, const Dateifrage &frage,
                    const std::function<void(const QString &)> &antwort);
