#pragma once

#include <QString>

#include <functional>

class QWidget;

/// What a file is wanted for.
struct Dateifrage
{
    QString titel;          ///< of the dialog
    QString vorschlag = {}; ///< path that is proposed; of a file to be read only its folder counts
    QString arten;          ///< kinds of files, as `QFileDialog` has them
    QString endung = {};    ///< ending of a name that is typed without one
    bool zumSchreiben = false; ///< false: the file is there and is read
};

/// Asks for a file over a window and hands its path on; nothing happens when no file is chosen.
/// Made in `main`, so that a test can answer.
using Dateituer = std::function<void(QWidget *fenster, const Dateifrage &frage,
                                     const std::function<void(const QString &)> &antwort)>;

/// The door that shows the system's dialog. A file that would be written over is asked about there.
void frageNachDatei(QWidget *fenster, const Dateifrage &frage,
                    const std::function<void(const QString &)> &antwort);
