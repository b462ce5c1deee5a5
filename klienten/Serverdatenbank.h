#pragma once

#include "Datenbank.h"
#include "Serverangabe.h"

/// The store of a practice with several desks: tables of their own in a database of PostgreSQL's.
/// Whoever looks after the server makes the database and its copies.
class Serverdatenbank : public Datenbank
{
public:
    /// `angabe` must be without a fault.
    explicit Serverdatenbank(const Serverangabe &angabe);

    /// Whether what is sent could be read on its way: the server is another machine and the
    /// connection to it is not encrypted. False while there is no connection.
    bool offenLesbar() const { return m_offenLesbar; }

protected:
    Ausgang verbinde() override;
    QString schreibbeginn() const override { return QStringLiteral("BEGIN"); }
    bool sperreUmbau(Gespraech &gespraech) override;
    bool lege(Gespraech &gespraech) override;
    QString fragtNachTabelle() const override;
    Hindernis deute(const QSqlError &fehler) const override;

private:
    Serverangabe m_angabe;
    bool m_offenLesbar = false;
};
