#pragma once

#include "Klientenspeicher.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What a text is searched by: small letters without accents, "ae" for "ä" and "ss" for "ß", single
/// blanks. So "Müller" and "MUELLER" are found alike.
QString suchform(const QString &text);

/// All clients as the list shows them: by name as the language on screen sorts, those of one name
/// by number, and searched as one types.
class Klientenliste
{
public:
    void setze(const QList<Personenzeile> &personen);

    /// Puts one client in its place, new or changed.
    void setze(const Personenzeile &person);
    void entferne(const QString &kennung);

    /// The clients that are to be seen, in order: each word of the text stands in the name or the
    /// number. An empty text is in all. Archived ones are left out unless they are asked for.
    QList<Personenzeile> suche(const QString &text, bool auchArchivierte) const;

    qsizetype anzahl() const { return m_eintraege.size(); }

private:
    struct Eintrag
    {
        Personenzeile person;
        QString suchform;
    };
    void ordne();

    QList<Eintrag> m_eintraege;
};
