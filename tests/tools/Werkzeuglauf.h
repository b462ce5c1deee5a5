#pragma once

#include <QProcess>

/// What a program without windows said, and how it ended.
struct Lauf
{
    int ausgang; ///< -1: it crashed or did not start
    QString ausgabe;
    QString fehler;
};

/// Runs a program to its end.
inline Lauf starten(const char *programm, const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(QString::fromUtf8(programm), argumente);
    prozess.waitForFinished();
    return {prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1,
            QString::fromUtf8(prozess.readAllStandardOutput()),
            QString::fromUtf8(prozess.readAllStandardError())};
}
