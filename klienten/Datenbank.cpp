#include "Datenbank.h"

#include "Klientenschema.h"

#include <QUuid>

bool Gespraech::fuehre(const QString &anweisung, const QVariantList &werte)
{
    if (m_fehler.isValid() || m_bemaengelt) {
        return false;
    }
    // Statements that make tables can't be prepared on a server.
    bool gelungen = false;
    if (werte.isEmpty()) {
        gelungen = m_abfrage.exec(anweisung);
    } else if (m_abfrage.prepare(anweisung)) {
        for (const QVariant &wert : werte) {
            m_abfrage.addBindValue(wert);
        }
        gelungen = m_abfrage.exec();
    }
    if (!gelungen) {
        m_fehler = m_abfrage.lastError();
    }
    return gelungen;
}

void Gespraech::bemaengle(const QString &grund)
{
    m_bemaengelt = true;
    m_fehler = QSqlError(QString(), grund, QSqlError::UnknownError);
}

Datenbank::Datenbank(const QString &treiber)
    : m_treiber(treiber)
    , m_name(QStringLiteral("klienten ") + QUuid::createUuid().toString())
{
}

Datenbank::~Datenbank()
{
    QSqlDatabase::removeDatabase(m_name);
}

Ausgang Datenbank::oeffne()
{
    if (m_offen || !vorhanden()) {
        return m_fassung > Klientenschema::fassung ? Ausgang{Hindernis::Neuer} : Ausgang{};
    }
    Ausgang ausgang = stelleVerbindungHer();
    if (ausgang) {
        ausgang = pruefeFassung();
    }
    m_offen = ausgang || ausgang.hindernis == Hindernis::Neuer;
    if (!m_offen) {
        schliesse();
    }
    return ausgang;
}

Ausgang Datenbank::stelleVerbindungHer()
{
    if (!QSqlDatabase::isDriverAvailable(m_treiber)) {
        return {Hindernis::Treiber, m_treiber};
    }
    if (!QSqlDatabase::contains(m_name)) {
        QSqlDatabase::addDatabase(m_treiber, m_name);
    }
    return verbinde();
}

void Datenbank::schliesse()
{
    verbindung().close();
    m_offen = false;
    m_fassung = 0;
}

Ausgang Datenbank::lies(const Schritt &schritt)
{
    return mitVerbindung([&]() -> Ausgang {
        return m_fassung == 0 ? Ausgang{} : laufe(QStringLiteral("BEGIN"), schritt);
    });
}

Ausgang Datenbank::schreibe(const Schritt &schritt)
{
    return mitVerbindung([&]() -> Ausgang {
        if (m_fassung == 0) {
            if (Ausgang aufbau = baueAuf(); !aufbau) {
                return aufbau;
            }
        }
        vorSchreiben();
        // Another desk may have a newer version since, and have changed the tables. Where they are
        // older or gone, somebody has put something else there: it is opened anew.
        Ausgang ausgang = laufe(schreibbeginn(), [&](Gespraech &gespraech) {
            return liesFassung(gespraech) && m_fassung == Klientenschema::fassung &&
                   schritt(gespraech);
        });
        if (!ausgang || m_fassung == Klientenschema::fassung) {
            return ausgang;
        }
        return {m_fassung > Klientenschema::fassung ? Hindernis::Neuer : Hindernis::Getrennt};
    });
}

Ausgang Datenbank::mitVerbindung(const std::function<Ausgang()> &aufgabe)
{
    Ausgang ausgang;
    for (int versuch = 0; versuch < 2; ++versuch) {
        if (m_offen && !nochDasselbe()) {
            schliesse();
        }
        ausgang = m_offen && m_fassung == 0 ? pruefeFassung() : oeffne();
        if (!ausgang && ausgang.hindernis != Hindernis::Neuer) {
            return ausgang;
        }
        ausgang = aufgabe();
        if (ausgang.hindernis != Hindernis::Getrennt) {
            return ausgang;
        }
        schliesse();
    }
    return ausgang;
}

Ausgang Datenbank::misslungen(const QSqlError &fehler) const
{
    return {deute(fehler),
            fehler.databaseText().isEmpty() ? fehler.driverText() : fehler.databaseText()};
}

Ausgang Datenbank::fuehreEinzeln(const QStringList &anweisungen)
{
    Gespraech gespraech(verbindung());
    for (const QString &anweisung : anweisungen) {
        if (!gespraech.fuehre(anweisung)) {
            return misslungen(gespraech.fehler());
        }
    }
    return {};
}

Ausgang Datenbank::laufe(const QString &beginn, const Schritt &schritt)
{
    Gespraech rahmen(verbindung());
    if (!rahmen.fuehre(beginn)) {
        return misslungen(rahmen.fehler());
    }
    QSqlError fehler;
    bool bemaengelt = false;
    bool gelungen = false;
    {
        Gespraech gespraech(verbindung());
        gelungen = schritt(gespraech) && !gespraech.fehler().isValid();
        fehler = gespraech.fehler();
        bemaengelt = gespraech.bemaengelt();
    }
    if (gelungen && rahmen.fuehre(QStringLiteral("COMMIT"))) {
        return {};
    }
    Ausgang ausgang = bemaengelt         ? Ausgang{Hindernis::Beschaedigt, fehler.databaseText()}
                      : fehler.isValid() ? misslungen(fehler)
                      : rahmen.fehler().isValid() ? misslungen(rahmen.fehler())
                                                  : Ausgang{};
    Gespraech(verbindung()).fuehre(QStringLiteral("ROLLBACK"));
    return ausgang;
}

bool Datenbank::liesFassung(Gespraech &gespraech)
{
    m_fassung = 0;
    if (!gespraech.fuehre(fragtNachTabelle())) {
        return false;
    }
    if (!gespraech.naechste() || gespraech.wert(0).toInt() == 0) {
        return true;
    }
    if (!gespraech.fuehre(QStringLiteral("SELECT fassung FROM bestand"))) {
        return false;
    }
    m_fassung = gespraech.naechste() ? gespraech.wert(0).toInt() : 0;
    if (m_fassung < 1) {
        gespraech.bemaengle(QStringLiteral("The store does not say which form it has."));
    }
    return m_fassung >= 1;
}

Ausgang Datenbank::pruefeFassung()
{
    Ausgang ausgang = laufe(QStringLiteral("BEGIN"),
                            [this](Gespraech &gespraech) { return liesFassung(gespraech); });
    if (!ausgang) {
        return ausgang;
    }
    if (m_fassung > Klientenschema::fassung) {
        return {Hindernis::Neuer};
    }
    if (m_fassung == 0) {
        return {};
    }
    if (m_fassung == Klientenschema::fassung) {
        return richteEin();
    }
    const Ausgang kopie = vorUmbau();
    return kopie ? baueAuf() : kopie;
}

/// Two desks may want this at once: the second one finds it done.
Ausgang Datenbank::baueAuf()
{
    if (!verbindung().isOpen()) {
        if (Ausgang ausgang = stelleVerbindungHer(); !ausgang) {
            return ausgang;
        }
        m_offen = true;
    }
    Ausgang ausgang = laufe(schreibbeginn(), [this](Gespraech &gespraech) {
        if (!sperreUmbau(gespraech) || !liesFassung(gespraech) ||
            (m_fassung == 0 && !lege(gespraech))) {
            return false;
        }
        for (int nach = m_fassung + 1; nach <= Klientenschema::fassung; ++nach) {
            for (const QString &anweisung : Klientenschema::schritt(nach)) {
                if (!gespraech.fuehre(anweisung)) {
                    return false;
                }
            }
            if (!gespraech.fuehre(QStringLiteral("UPDATE bestand SET fassung = ?"), {nach})) {
                return false;
            }
            m_fassung = nach;
        }
        return true;
    });
    if (!ausgang) {
        schliesse();
        return ausgang;
    }
    return richteEin();
}
