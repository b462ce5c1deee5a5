#pragma once

#include "Csv.h"

#include <QDialog>
#include <QList>
#include <QString>

#include <functional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSettings;

/// A list that can go out.
struct Ausgabeliste
{
    QString titel;                         ///< German; shown, and proposed for the file, translated
    int anzahl = 0;                        ///< rows that it has
    std::function<Csv::Tabelle()> tabelle; ///< made when it is wanted
};

/// Asks which list is to be saved as a table, and how it is written: as the spreadsheet of this
/// country has it, or with separator, decimal mark and byte-order mark of one's choice. What was
/// chosen last comes first the next time.
class Ausgabefenster : public QDialog
{
    Q_OBJECT

public:
    /// The settings outlive the window. At least one list has rows.
    Ausgabefenster(const QList<Ausgabeliste> &listen, QSettings &einstellungen, QWidget *parent);

    /// How the table is to be written, by what is chosen now.
    Csv::Form form() const;

    /// Chooses the list of this place, unless it is empty.
    void waehleListe(int stelle);

Q_SIGNALS:
    /// The user wants this list in this form. The window is closed then.
    void gewaehlt(const Ausgabeliste &liste, const Csv::Form &form);

protected:
    void changeEvent(QEvent *event) override;

private:
    void fuelleListen();
    void beschrifteListen();
    void fuelleForm(QFormLayout &zeilen);
    void stelleWiederHer();
    void merke() const;
    void schalteForm();
    void waehle();

    QList<Ausgabeliste> m_listen;
    QSettings &m_einstellungen;
    QComboBox *m_liste;
    QComboBox *m_form;
    QComboBox *m_trennung;
    QComboBox *m_dezimal;
    QCheckBox *m_marke;
};
