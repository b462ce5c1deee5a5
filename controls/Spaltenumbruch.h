#pragma once

#include <QObject>

class QBoxLayout;
class QScrollArea;
class QWidget;

/// Three columns of a page that rolls: beside one another where there is room, else the first above
/// the other two, else all below one another. So one rolls up and down only. The lines between the
/// columns turn with them.
class Spaltenumbruch : public QObject
{
    Q_OBJECT

public:
    enum class Form {
        Nebeneinander,
        Geteilt, ///< the first column above the other two
        Untereinander
    };

    /// Both layouts are rows in the page of `bereich`: `aussen` of the first column and `innen`,
    /// `innen` of the other two columns. Belongs to `bereich`.
    Spaltenumbruch(QScrollArea &bereich, QBoxLayout &aussen, QBoxLayout &innen);

    Form form() const { return m_form; }

    /// Arranges the columns as there is room for them.
    void ordne();

    /// Arranges the columns for a picture, whatever room there is, and makes the page as small as
    /// it can be in this form. Until `ordne` is called.
    void stelle(Form form);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Form passende() const;
    void richte(Form form);

    QScrollArea &m_bereich;
    QWidget &m_seite;
    QBoxLayout &m_aussen;
    QBoxLayout &m_innen;
    Form m_form = Form::Nebeneinander;
};
