#pragma once

#include "Handzettel.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QPushButton;
class QSettings;

/// The choice of the last time; what the settings don't hold is as in a fresh `Handzettelwunsch`,
/// in the language of the windows. The day is not kept.
Handzettelwunsch gemerkterHandzettelwunsch(const QSettings &einstellungen);
void merkeHandzettelwunsch(QSettings &einstellungen, const Handzettelwunsch &wunsch);

/// Asks how a record is printed for the client: which days, how large, in which language, and
/// whether with figures.
class Handzettelfenster : public QDialog
{
    Q_OBJECT

public:
    enum class Weg { Drucken, AlsPdf };

    struct Lage
    {
        int tag = 0;                  ///< the one that is shown, counted from 0
        QString tagesname = {};       ///< how it is called on screen
        Weg weg = Weg::Drucken;       ///< what Return does
        bool logoFehlt = false;       ///< that the logo can't be read is told
        Handzettelwunsch wunsch = {}; ///< what is chosen at first
    };

    Handzettelfenster(const Lage &lage, QWidget *parent);

    /// What is chosen now.
    Handzettelwunsch wunsch() const;

Q_SIGNALS:
    /// So it is wanted. The window has closed.
    void gewuenscht(const Handzettelwunsch &wunsch, Handzettelfenster::Weg weg);

private:
    void schliesseAb(Weg weg);

    int m_tag;
    QButtonGroup *m_tage;
    QButtonGroup *m_sprachen;
    QCheckBox *m_zahlen;
    QCheckBox *m_gross;
};
