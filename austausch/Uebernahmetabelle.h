#pragma once

#include "Lebensmittelbestand.h"
#include "Uebernahme.h"

#include <QAbstractTableModel>
#include <QList>

/// The foods of a file with their values, each beside what becomes of it among the own foods, and
/// with a box that takes it along. What is there already, or has no name, can't be taken along.
class Uebernahmetabelle : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// How a food of the file stands to the own foods.
    enum class Lage {
        Neu,       ///< no own food has its name
        SchonDa,   ///< the own food of its name has the same values and ratings
        Vergeben,  ///< the own food of its name has others
        OhneNamen, ///< it has none
    };

    enum Spalte { spalteName, spalteLage, spalteWerte };

    /// `eingebaute` are the foods whose values the plan takes before those of an own food.
    Uebernahmetabelle(QList<Datenmodul> lebensmittel, Lebensmittelbestand eigene,
                      const Lebensmittelverzeichnis &eingebaute, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    Lage lage(int zeile) const { return m_zeilen[zeile].lage; }
    const Datenmodul &lebensmittel(int zeile) const { return m_zeilen[zeile].lebensmittel; }
    /// What should be known about a food before it is taken along; empty when nothing.
    QString erklaerung(int zeile) const;
    /// Whether there is such a food.
    bool erklaertEtwas() const;
    /// The own food of this row's name; null when there is none.
    const Datenmodul *eigenes(int zeile) const;
    /// The first row whose name is taken by another own food; −1 when there is none.
    int ersterVergebener() const;

    /// Takes all along that can be, or none.
    void waehleAlle(bool an);
    /// What becomes of a row whose name is taken.
    void entscheide(int zeile, Namensgleich was);
    /// The same for all rows whose name is taken.
    void entscheideAlle(Namensgleich was);
    Namensgleich entscheidung(int zeile) const;

    /// The foods that are taken along, in the order of the rows.
    QList<Datenmodul> gewaehlte() const;
    const Namenswahl &wahl() const { return m_wahl; }
    /// What would come of it.
    const Uebernahme &ergebnis() const { return m_ergebnis; }

Q_SIGNALS:
    /// Another food is taken along, or another thing becomes of one.
    void umentschieden();

private:
    struct Zeile
    {
        Datenmodul lebensmittel;
        Lage lage = Lage::Neu;
        bool gewaehlt = true;
        bool wieEingebautes = false; ///< a built-in food has its name
        QString zweifel = {};        ///< what its figures raise, in sentences
    };

    Zeile zeileFuer(const Datenmodul &eines, const Lebensmittelverzeichnis &eingebaute) const;
    QString lagewort(const Zeile &zeile) const;
    QString text(int zeile, int spalte) const;
    void rechneNeu();

    QList<Zeile> m_zeilen;
    Lebensmittelbestand m_eigene;
    Namenswahl m_wahl;
    Uebernahme m_ergebnis;
};

/// A value of a food with as many digits as matter, or a word for what is no number.
QString zahlwort(float zahl);
/// How a value or a rating is called above its column, with the value's unit.
QString ueberschrift(const Naehrwertbeschreibung &zeile);
