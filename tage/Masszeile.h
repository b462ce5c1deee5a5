#pragma once

#include "Masspruefung.h"

#include <QObject>

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;
class QWidget;

/// One own measure of a food as a row of fields, and below them what is said about it. Return goes
/// on to the next field.
class Masszeile : public QObject
{
    Q_OBJECT

public:
    /// The columns; behind the fields comes the button that takes the measure out.
    enum Spalte { Eines, Viele, EinesEn, VieleEn, Gramm, AnzahlFelder };

    /// Puts its fields into the rows `reihe` and `reihe` + 1 of a layout of that page, which owns
    /// them and this. `nummer` counts the measures from 1, for who can't see where the fields are.
    Masszeile(QGridLayout &anordnung, int reihe, int nummer, QWidget &seite);
    /// Takes itself and its fields off the page.
    void entferne();

    /// Writes a measure into the fields, which is one of the food's own from now on.
    void zeige(const Mass &mass);
    Masseingabe eingabe() const;
    /// Says what is made of what stands in the fields. `gilt`: it is kept as it stands there.
    void sage(const QString &worte, bool gilt);

    /// In the order in which Tab goes through them.
    QList<QWidget *> felder() const;
    void gehZu();
    void erlaube(bool aendern);

    /// The measure that is kept for this row: what was last typed here and could be. Absent when
    /// there was none yet.
    std::optional<Mass> gehalten = {};

Q_SIGNALS:
    /// A letter was typed.
    void getippt();
    /// A field is done.
    void eingegeben();
    /// Return was pressed in the last field.
    void fertig();
    void herausnehmenGewuenscht();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit *neuesFeld(int spalte, int nummer, QWidget &seite);

    std::array<QLineEdit *, AnzahlFelder> m_felder;
    QToolButton *m_heraus;
    QLabel *m_worte;
};

/// What stands above a column of fields.
QString massspalte(Masszeile::Spalte spalte);
