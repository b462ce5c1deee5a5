#pragma once

#include "Mass.h"
#include "Rezept.h"

#include <QWidget>

#include <functional>
#include <utility>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

/// A food that can go into a dish.
struct Zutatenvorschlag
{
    QString anzeige; ///< its name on screen
    QString schluessel;
    Datenmodul satz;
};

/// What the list of the ingredients asks of the program.
struct Zutatentueren
{
    /// The foods that fit a text, the best first.
    std::function<QList<Zutatenvorschlag>(const QString &text)> suche;
    /// The household measures of a food, in which its amount can be typed too.
    std::function<QList<Mass>(const QString &schluessel)> masse;
};

/// The ingredients of a dish, with their grams to change. Below stands a field in which another one
/// is named: what fits is listed, and Return takes it.
class Zutatenliste : public QWidget
{
    Q_OBJECT

public:
    explicit Zutatenliste(Zutatentueren tueren, QWidget *parent = nullptr);

    void zeige(const QList<Rezeptzutat> &zutaten);
    const QList<Rezeptzutat> &zutaten() const { return m_zutaten; }

    /// Takes the amount that is still being typed.
    void beendeEingabe();

    /// Another language is spoken: all texts anew.
    void folgeSprache();
    /// Whether the amount that was typed last could not be read, which is told once.
    bool nimmUnverstandenes() { return std::exchange(m_unverstanden, false); }
    /// What stands in the field for another ingredient and was not taken, which is told once; null
    /// where there is nothing to tell.
    QString nimmAngefangenes();
    /// Leads the keyboard to the field for another ingredient.
    void gehZumFeld();

Q_SIGNALS:
    /// There are other ingredients, or other amounts.
    void geaendert();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void baue();
    void fuelle();
    void schlageVor();
    bool nimmTasteImFeld(int taste);
    bool nimmTasteInTabelle(int taste);
    void nimmAuf();
    void nimmHeraus();
    void liesMenge(const QTableWidgetItem &zelle);
    void sage(const QString &worte);

    Zutatentueren m_tueren;
    QList<Rezeptzutat> m_zutaten;
    QList<Zutatenvorschlag> m_vorschlaege; ///< those in the list below the field
    QTableWidget *m_tabelle;
    QPushButton *m_heraus;
    QLabel *m_feldwort;
    QLineEdit *m_feld;
    QListWidget *m_treffer;
    QLabel *m_worte;
    bool m_tipptNeue = false;    ///< the amount of a new ingredient is being typed
    QString m_angefangen;        ///< what stood in the field when it was told
    bool m_unverstanden = false; ///< the amount that was typed last could not be read
};
