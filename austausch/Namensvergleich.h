#pragma once

#include "Uebernahme.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

/// Shows an own food beside one of a file that has its name, value for value, and asks which of the
/// two it shall be. What differs carries a sign and bold figures.
class Namensvergleich : public QWidget
{
    Q_OBJECT

public:
    explicit Namensvergleich(QWidget *parent = nullptr);

    /// Shows two foods of one name, and what was decided about them.
    void zeige(const Datenmodul &eigenes, const Datenmodul &neues, Namensgleich entscheidung);
    /// Shows that the chosen food needs no decision.
    void leere();

Q_SIGNALS:
    /// The user wants this for the foods that are shown.
    void entschieden(Namensgleich was);
    /// The user wants this for all foods whose name is taken.
    void fuerAlleEntschieden(Namensgleich was);

private:
    void setze(int zeile, const QString &name, const QString &eigenes, const QString &neues,
               bool gleich);
    Namensgleich gewaehltes() const;

    QLabel *m_titel;
    QComboBox *m_wahl;
    QPushButton *m_alle;
    QTableWidget *m_werte;
};
