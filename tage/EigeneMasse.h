#pragma once

#include "Mass.h"
#include "Merkdatei.h"
#include "Namenswechsel.h"

#include <QMap>
#include <QObject>

/// The household measures that the user gave foods: own foods, which have no others, and built-in
/// ones, for the practice's own cup. They stand in a file of the desk, which is read when they are
/// first asked for and written with each change. Measures of a food that is gone stay, since it may
/// come back, and nobody sees them meanwhile.
class EigeneMasse : public QObject
{
    Q_OBJECT

public:
    /// `wechsel` leads from the former names of built-in foods to those of today. A name that an
    /// own food has must not be among the former ones: that food would lose its measures.
    explicit EigeneMasse(const QString &path, Namenswechsel wechsel = {});

    /// The measures of the food with that key in the order in which they were entered; none for a
    /// food that was given none.
    QList<Mass> masseFuer(const QString &schluessel) const;

    /// Gives the food these measures in place of those that it had; none take it out. What can't be
    /// written holds all the same, and goes to the disk with the next change. False: it could not
    /// be written, or the file is locked and nothing has changed.
    bool setze(const QString &schluessel, const QList<Mass> &masse);
    /// Tries again to write what could not be written. False: it still can't be.
    bool sichere();

    /// Whether the last state could be kept on the disk.
    bool istGesichert() const { return m_gesichert; }
    /// Whether the file can't be read, or is from a newer version: nothing can be changed.
    bool istGesperrt() const { return gelesene().datei.istGesperrt(); }
    /// What is in the way, as a sentence in the language of the windows: the file is locked, the
    /// last change is not on the disk, or a damaged file was put aside. Absent when all is well.
    QString hindernis() const;

Q_SIGNALS:
    /// A food has other measures than before.
    void geaendert();
    /// The state of today can't be kept on the disk any more, or can again.
    void sicherungGewechselt();

private:
    struct Gelesene
    {
        Merkdatei datei;
        QMap<QString, QList<Mass>> masse; ///< by the keys of the foods
        bool gelesen = false;
    };

    const Gelesene &gelesene() const;
    bool schreibe();

    Namenswechsel m_wechsel;
    mutable Gelesene m_gelesene; ///< what is read at the first question
    bool m_gesichert = true;
};
