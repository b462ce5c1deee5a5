#pragma once

#include "Referenzwerte.h"

#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QToolButton;

/// By what a day is measured, and for whom: the general needs, or a published set of reference
/// values for somebody of this sex, age, state, activity and weight. One line says what holds; a
/// button opens the fields.
class Personenwahl : public QWidget
{
    Q_OBJECT

public:
    explicit Personenwahl(QWidget *parent = nullptr);

    /// What is known of somebody else; what was typed about the one before is gone. Not reported.
    void setPerson(const Referenzperson &person) { setPerson(person, person); }
    /// The same, but what was typed about the person stays, until it is reset to what is known.
    void setPerson(const Referenzperson &bekannt, const Referenzperson &getippt);
    /// For whom values are looked up. The energy that was worked out for the client is in it while
    /// nothing else about the person has been changed here.
    Referenzperson person() const { return m_person; }
    /// Who is known, whatever was typed since.
    Referenzperson bekannte() const { return m_vorgabe; }
    /// Absent: the general needs. Not reported.
    void setSatz(std::optional<Referenzsatz> satz);
    std::optional<Referenzsatz> satz() const;
    /// Another language is spoken.
    void folgeSprache();

Q_SIGNALS:
    /// The user has chosen another set, or said something else about the person.
    void geaendert();

private:
    void baue();
    QComboBox *neueWahl(const char *name);
    QLineEdit *neuesZahlfeld(const char *name);
    void fuelleWahlen();
    void zeigePerson();
    void zeigePal();
    void stelleZeilen();
    void sagWas();
    void uebernimm();
    void pruefe();
    void oeffne(bool offen);
    Referenzperson gelesene() const;
    bool fragtMenopause() const;

    Referenzperson m_vorgabe; ///< as it was set from outside
    Referenzperson m_person;
    QLabel *m_kurz;
    QToolButton *m_oeffner;
    QWidget *m_formular;
    QWidget *m_bereich = nullptr; ///< in which the form rolls
    QFormLayout *m_zeilen;
    QComboBox *m_satz;
    QComboBox *m_geschlecht;
    QLineEdit *m_alter;
    QComboBox *m_zustand;
    QComboBox *m_trimester;
    QComboBox *m_stillmonat;
    QComboBox *m_pal;
    QLineEdit *m_gewicht;
    QComboBox *m_menopause;
    QLabel *m_einwand;
    QToolButton *m_zurueck;
};
