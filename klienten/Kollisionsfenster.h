#pragma once

#include "Kartei.h"

#include <QDialog>
#include <QList>

class QGridLayout;
class QRadioButton;

/// Shows what two desks have made of one record, field by field, and lets the user choose. What
/// only one of the two has changed is proposed as that one has it; of what both have changed, one's
/// own.
class Kollisionsfenster : public QDialog
{
    Q_OBJECT

public:
    Kollisionsfenster(const Kollision &kollision, const QString &klient, QWidget *parent);

    /// The record as it is chosen now.
    Satz entschieden() const;

    /// Leaving without a choice would lose one of the two, so that there is no such way.
    void reject() override {}

private:
    template <typename Art>
    void baue(const Art &meines, const Art &anderes, const Art *grundlage);
    void fuegeZeileHinzu(const QString &name, const QString &meines, const QString &anderes,
                         bool meinesZuerst);

    /// A field in which the two differ.
    struct Zeile
    {
        qsizetype spalte; ///< its place among the columns of the record
        QRadioButton *meines;
    };

    Kollision m_kollision;
    QGridLayout *m_felder = nullptr;
    QList<Zeile> m_zeilen;
};
