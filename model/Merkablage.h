#pragma once

#include "Merkdatei.h"

#include <QJsonArray>
#include <QObject>

/// A list of the user's in a file of this desk, which is read when it is first asked for and
/// written with each change. What can't be written holds all the same, and goes to the disk with
/// the next change.
class Merkablage : public QObject
{
    Q_OBJECT

public:
    /// Tries again to write what could not be written. False: it still can't be.
    bool sichere();

    /// Whether the last state could be kept on the disk.
    bool istGesichert() const { return m_gesichert; }
    /// Whether the file can't be read, or is from a newer version: nothing can be changed.
    bool istGesperrt() const;
    /// What is in the way, as a sentence in the language of the windows: the file is locked, the
    /// last change is not on the disk, or a damaged file was put aside. Absent when all is well.
    QString hindernis() const;

Q_SIGNALS:
    /// The list is another one than before.
    void geaendert();
    /// The state of today can't be kept on the disk any more, or can again.
    void sicherungGewechselt();

protected:
    /// How the file is known.
    struct Form
    {
        QString art; ///< what it says of itself
        int fassung; ///< of the program: a file with a higher one is newer
        QString liste;
    };
    /// What is told of it, in the language of the windows.
    struct Saetze
    {
        QString gesperrt;
        QString ungesichert;
        QString beschaedigt; ///< "%1" stands for the place where it is now
    };

    Merkablage(const QString &path, Form form,
               Merkdatei::Tageskopien kopien = Merkdatei::Tageskopien::Keine);

    /// Reads the file, the first time. Comes before each look at the list.
    void lies() const;
    /// Writes the list, which has been changed, and tells of it. False: it could not be written.
    bool uebernimm();

    /// Takes up what the file holds. False: not all of it was understood.
    virtual bool nimmAuf(const QJsonArray &eintraege) const = 0;
    /// The list as the file holds it. For none there is no file.
    virtual QJsonArray eintraege() const = 0;
    virtual Saetze saetze() const = 0;

private:
    Merkdatei::Verstaendnis deute(const QByteArray &bytes) const;
    bool schreibe();

    Form m_form;
    mutable Merkdatei m_datei;
    mutable bool m_gelesen = false;
    bool m_gesichert = true;
};
