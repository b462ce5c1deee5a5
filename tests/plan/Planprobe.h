#pragma once

#include "Planmodul.h"

#include <QTemporaryDir>

#include <memory>
#include <utility>

/// A home folder with a built-in table, thrown away at the end. Two plans opened on one home, one
/// after the other, are a program that was started twice.
class Planheim
{
public:
    /// A home at a German desk.
    Planheim();

    QString tabelle() const { return m_ordner.filePath(QStringLiteral("DatabaseIII.daten")); }
    QString plandatei() const;
    QString eigeneDatei() const;

    void schreibeTabelle(const QList<Datenmodul> &lebensmittel) const;
    void schreibeEigene(const QList<Datenmodul> &lebensmittel) const;
    /// Writes a plan file of these foods and grams.
    void schreibePlan(const QList<std::pair<QString, float>> &zeilen) const;

    Lebensmittelverzeichnis eigene() const;
    /// What the plan file holds: from name to grams.
    QMap<QString, float> plan() const;

    /// Lets every user of the machine come into the home.
    void oeffneFuerAlle() const;

    /// The doors of this home. No message is ever shown: the plan has none.
    Plantueren tueren() const;

private:
    QTemporaryDir m_ordner;
};

/// A plan with its window shown, and the hands of its user.
class Planfenster
{
public:
    explicit Planfenster(const Planheim &heim) : Planfenster(heim.tueren()) {}
    explicit Planfenster(Plantueren tueren);

    Planmodul *operator->() const { return m_plan.get(); }
    Planmodul &plan() const { return *m_plan; }

    /// The text that a cell shows, null where it is empty.
    QString zelle(int zeile, const QString &spalte) const;
    /// The texts of a column as it is shown, from the first row to the last.
    QStringList spalte(const QString &kennung) const;
    QModelIndex index(int zeile, const QString &spalte) const;
    /// The middle of a cell in the coordinates of the table's viewport.
    QPoint mitte(int zeile, const QString &spalte) const;

    /// Types over an amount and presses Return.
    void tippeMenge(int zeile, const QString &gramm) const;
    /// Drops a text at this place of the table's viewport; false when it is not taken.
    bool wirfAb(const QString &text, const QPoint &ort) const;
    /// Drops a text on the edge above a row, or below all rows.
    bool wirfAbUeber(const QString &text, int zeile) const;

    /// What a field shows once the window has come to rest, with a plain blank before the unit.
    static QString text(const QLineEdit &feld);

private:
    std::unique_ptr<Planmodul> m_plan;
};

using Wertliste = QList<std::pair<Naehrwert, float>>;

/// A food with these values, all others 0, and its ratings in the record's order.
Datenmodul speise(const QString &name, const Wertliste &werte = {},
                  const QStringList &urteile = {});

/// Every value of it is a number of its own: 2, 4, 6 ...
Datenmodul zaehlspeise(const QString &name);

/// Nothing is known of the client, as before the calculator was ever opened.
void vergissKlient();
