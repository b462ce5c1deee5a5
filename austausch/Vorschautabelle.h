#pragma once

#include "Einlesung.h"

#include <QList>
#include <QTableWidget>

class QComboBox;

/// The first rows of a file as they are understood, and above each column a chooser for what it
/// means.
class Vorschautabelle : public QTableWidget
{
    Q_OBJECT

public:
    explicit Vorschautabelle(QWidget *parent = nullptr);

    /// Makes the columns of a file, with these headings and meanings.
    void setSpalten(const QStringList &ueberschriften, const QList<Spaltensinn> &spalten);
    /// What is chosen for each column.
    QList<Spaltensinn> spalten() const;
    /// Shows the first rows: each figure per 100 g in the unit of the record, or what stands in the
    /// file where that isn't understood.
    void zeige(const QList<Csv::Satz> &saetze, const Leseauftrag &auftrag,
               const Einlesung &einlesung);

Q_SIGNALS:
    /// The user has chosen another meaning for a column.
    void gewaehlt();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QComboBox *neueWahl(const QString &ueberschrift, const Spaltensinn &sinn);
    QTableWidgetItem *zelle(const QString &feld, int spalte, const Leseauftrag &auftrag,
                            const Einlesung &einlesung, const Lesezeile *zeile) const;

    QList<QComboBox *> m_wahlen;
};
