#pragma once

#include "Rangliste.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QToolButton;
class Textfeld;

/// A line in which the user says between what a figure of a food is to lie. An end that is left
/// empty is missing.
class Bereichszeile : public QWidget
{
    Q_OBJECT

public:
    explicit Bereichszeile(Kenngroesse groesse, QWidget *parent = nullptr);

    Wertebereich bereich() const;
    /// Whether an end is there, so that the range asks for something.
    bool fragtEtwas() const;
    /// Another language is spoken.
    void folgeSprache();
    /// What the Tab key goes through, in its order.
    QList<QWidget *> felder() const;

    /// One line high, as it mostly is; in a narrow window `heightForWidth` tells of the second one.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another range is wanted.
    void geaendert();
    /// The line is to go.
    void wegGewuenscht();

private:
    void baue();
    void benenne();

    QComboBox *m_groesse;
    QComboBox *m_bezug;
    QLabel *m_vonWort;
    Textfeld *m_von;
    QLabel *m_bisWort;
    Textfeld *m_bis;
    QLabel *m_einheit;
    QToolButton *m_weg;
};
