#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

/// Where a second start of the program leaves the files that it was asked to open, for the one that
/// is at work already: a note beside the user's files, for the user alone, which is gone as soon as
/// it was taken.
class Postfach : public QObject
{
    Q_OBJECT

public:
    /// Watches the folder of the user's files from now on. A note that was left there while the
    /// program started is taken, too, as soon as the events run; an old one is nobody's any more,
    /// and thrown away.
    explicit Postfach(const QString &ordner);

    /// Leaves a note about these files, named by whole paths, and waits so many milliseconds for
    /// somebody to take it. False when nobody did: then nobody will any more.
    static bool gibAb(const QString &ordner, const QStringList &pfade, int wartezeit);

Q_SIGNALS:
    /// Somebody wants these files opened.
    void eingetroffen(const QStringList &pfade);

private:
    void sieNach();

    QString m_ordner;
    QFileSystemWatcher m_waechter;
};
