#pragma once

#include <QLabel>

class Tabellenansicht;

/// A line of words over the empty part of one column of a table: what belongs there and how it gets
/// there. The mouse goes through it, as if nothing stood there.
class Spaltenhinweis : public QLabel
{
    Q_OBJECT

public:
    /// Belongs to the table, and is hidden at first.
    Spaltenhinweis(Tabellenansicht &tabelle, const QString &kennung);

    /// Shows the words in the middle of what is seen of the column from this row on; without words
    /// nothing is shown. While the column lies partly beyond the table's right edge, they stand in
    /// the lower right corner, where they can be read.
    void zeige(const QString &text, int abZeile);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void ordne();

    Tabellenansicht &m_tabelle;
    int m_spalte;
    int m_abZeile = 0;
};
