#pragma once

#include "Kartei.h"
#include "Rollseite.h"
#include "Satzformular.h"
#include "ui_Personenblatt.h"

/// The page about a client as a person. What is entered is kept at once; what can't be kept stays
/// in its field, with a word beside it.
class Personenblatt : public Rollseite, public Ui::PersonenblattGestalt
{
    Q_OBJECT

public:
    explicit Personenblatt(Kartei &kartei);

    /// Shows a client. One without a key is new and is kept with the first name that is entered.
    void zeige(const Person &person);
    const Person &person() const { return m_person; }

    /// What stands in the fields is kept, as far as it can be. False when something can't.
    bool sichere();
    /// Whether the client is new and nothing was entered yet.
    bool leer();

    /// Another language is spoken.
    void folgeSprache();
    /// Whether something may be changed.
    void erlaube(bool aendern);

Q_SIGNALS:
    /// A client who was new is kept under this key.
    void angelegt(const QString &kennung);

private:
    void bieteAn();
    bool verbessere(Person &person);

    Kartei &m_kartei;
    Person m_person;
    Satzformular m_formular;
};
