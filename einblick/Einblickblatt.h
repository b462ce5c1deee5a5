#pragma once

#include "Einblickstand.h"

#include <QWidget>

/// What is to be changed in the plan or the day on display: a food comes in, or takes the place of
/// another.
struct Speisenaenderung
{
    int ort = -1;        ///< the row that gives up its place, see `Speise::ort`; -1: none does
    QString schluessel;  ///< key of the food that comes in
    double gramm = 0;    ///< how much of it
    QString angabe = {}; ///< the same as it is said, such as "1 Scheibe"; empty: in grams

    bool operator==(const Speisenaenderung &) const = default;
};

/// One sheet of the insight. It shows what it is given and asks for deeds; it never changes
/// anything itself.
class Einblickblatt : public QWidget
{
    Q_OBJECT

public:
    explicit Einblickblatt(QWidget *parent = nullptr);

    /// Shows this from now on. What the user chose on the sheet stays chosen where it still can.
    virtual void zeige(const Einblickstand &stand) = 0;
    /// Another language is spoken: all texts anew.
    virtual void folgeSprache() = 0;

Q_SIGNALS:
    /// The user wants to be taken to a row of the plan or the day.
    void zeileGewuenscht(int ort);
    /// The user wants this done to the plan or the day; it can be taken back there.
    void aenderungGewuenscht(const Speisenaenderung &aenderung);
};
