#pragma once

#include "Datenmodul.h"
#include "Sicherungen.h"

#include <QDialog>
#include <QList>

#include <functional>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

/// A store of foods whose earlier states can be looked at and brought back.
struct Sicherungsquelle
{
    QString titel;   ///< what the user calls it, translated
    QString path;    ///< its file; the copies are found by it
    QString groesse; ///< what `kal` of a record is there, with its unit: energy of 100 g, or grams
    std::function<Lebensmittelverzeichnis()> jetzt; ///< what the program holds of it
    std::function<void(const Lebensmittelverzeichnis &)>
        zurueck; ///< takes a state over in its place
};

/// Shows what the copies of the user's files hold, beside what the program holds now, and brings
/// one back. Nothing changes before that is asked for.
class Sicherungsfenster : public QDialog
{
    Q_OBJECT

public:
    /// The copies of the file `path` are shown first, those of the first store when it is none of
    /// theirs.
    Sicherungsfenster(const QList<Sicherungsquelle> &quellen, const QString &path, QWidget *parent);

private:
    QWidget *oberteil();
    QWidget *mittelteil();
    QWidget *unterteil();
    void zeigeQuelle();
    void zeigeStand();
    void fuelle(const Lebensmittelverzeichnis &stand, const Lebensmittelverzeichnis &jetzt);
    void holeZurueck();
    const Sicherungsquelle &quelle() const;

    QList<Sicherungsquelle> m_quellen;
    QList<Sicherungen::Sicherung> m_sicherungen;
    Lebensmittelverzeichnis m_stand; ///< what the chosen copy holds
    QComboBox *m_wahl = nullptr;
    QListWidget *m_tage = nullptr;
    QTableWidget *m_inhalt = nullptr;
    QLabel *m_worte = nullptr;
    QPushButton *m_zurueck = nullptr;
};
