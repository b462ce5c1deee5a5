// A record of days on paper: what the client takes home, and what stays in the file.

#include "Tagefenster.h"

#include "Aktenform.h"
#include "Handzettelfenster.h"

void Tagefenster::frageNachHandzettel(bool alsPdf)
{
    ansicht->beende();
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (!eine) {
        return;
    }
    using Weg = Handzettelfenster::Weg;
    Handzettelfenster::Lage lage{.tag = buch.tag(), .tagesname = tagesname(*eine, buch.tag())};
    lage.weg = alsPdf ? Weg::AlsPdf : Weg::Drucken;
    lage.logoFehlt = druckangaben().briefkopf.logoFehlt;
    if (m_tueren.einstellungen != nullptr) {
        lage.wunsch = gemerkterHandzettelwunsch(*m_tueren.einstellungen);
    }
    auto *fenster = new Handzettelfenster(lage, this);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    connect(fenster, &Handzettelfenster::gewuenscht, this,
            [this, aufzeichnung = *eine](const Handzettelwunsch &wunsch, Weg weg) {
                if (m_tueren.einstellungen != nullptr) {
                    merkeHandzettelwunsch(*m_tueren.einstellungen, wunsch);
                }
                gibAus(handzettel(aufzeichnung, wunsch, druckangaben()), weg == Weg::AlsPdf);
            });
    fenster->open();
}

void Tagefenster::gibAktenformAus(bool alsPdf)
{
    ansicht->beende();
    if (const std::optional<Aufzeichnung> eine = buch.jetzige()) {
        gibAus(aktenform(*eine, m_tueren.bedarf(), druckangaben()), alsPdf);
    }
}

Druckangaben Tagefenster::druckangaben() const
{
    Druckangaben angaben{.masse = m_tueren.masse, .heute = m_tueren.heute()};
    if (m_tueren.briefkopf) {
        angaben.briefkopf = m_tueren.briefkopf();
    }
    if (m_tueren.klient) {
        angaben.klient = m_tueren.klient();
    }
    return angaben;
}

void Tagefenster::gibAus(const Druckauftrag &auftrag, bool alsPdf)
{
    if (alsPdf && m_tueren.alsPdf) {
        m_tueren.alsPdf(this, auftrag, [] {});
    } else if (!alsPdf && m_tueren.drucke) {
        m_tueren.drucke(this, auftrag);
    }
}
