#include "Serverdatenbank.h"

#include <algorithm>
#include <iterator>

namespace {

/// Without these a server that went away would keep the windows waiting for minutes.
const QList<std::pair<QString, QString>> sonst = {
    {QStringLiteral("connect_timeout"), QStringLiteral("5")},     // s
    {QStringLiteral("tcp_user_timeout"), QStringLiteral("5000")}, // ms
    {QStringLiteral("application_name"), QStringLiteral("Mahlberg")},
};

/// What the beginning of a state that the server tells means, as its handbook lists them. The
/// longer one comes first.
const struct
{
    const char *anfang;
    Hindernis hindernis;
} zustaende[] = {
    {"57P0", Hindernis::Getrennt},  // shut down, crashed, not ready yet
    {"08", Hindernis::Getrennt},    // the connection
    {"55P03", Hindernis::Gesperrt}, // somebody holds it
    {"57014", Hindernis::Gesperrt}, // took too long
    {"40", Hindernis::Gesperrt},    // two desks at once, nothing done
    {"28", Hindernis::Verwehrt},    // who one is
    {"42501", Hindernis::Verwehrt}, // what one may do
    {"25006", Hindernis::Verwehrt}, // a server that only answers
    {"42", Hindernis::Beschaedigt}, // tables or columns are not there
    {"XX", Hindernis::Beschaedigt},
};

} // namespace

Serverdatenbank::Serverdatenbank(const Serverangabe &angabe)
    : Datenbank(QStringLiteral("QPSQL"))
    , m_angabe(angabe)
{
}

Ausgang Serverdatenbank::verbinde()
{
    QSqlDatabase datenbank = verbindung();
    datenbank.setConnectOptions(verbindungstext(m_angabe.paare, sonst));
    if (!datenbank.open()) {
        return misslungen(datenbank.lastError());
    }
    // The tables lie in a room of their own, whatever else the practice keeps in that database.
    Ausgang eingestellt = fuehreEinzeln({
        QStringLiteral("SET search_path TO mahlberg"),
        QStringLiteral("SET lock_timeout TO 2000"),
        QStringLiteral("SET statement_timeout TO 10000"),
    });
    Gespraech gespraech(datenbank);
    m_offenLesbar =
        gespraech.fuehre(QStringLiteral("SELECT NOT ssl AND inet_server_addr() IS NOT NULL AND "
                                        "inet_server_addr() IS DISTINCT FROM inet_client_addr() "
                                        "FROM pg_stat_ssl WHERE pid = pg_backend_pid()")) &&
        gespraech.naechste() && gespraech.wert(0).toBool();
    return eingestellt;
}

bool Serverdatenbank::sperreUmbau(Gespraech &gespraech)
{
    // The number stands for "Mhlb"; the lock goes with the transaction.
    return gespraech.fuehre(QStringLiteral("SELECT pg_advisory_xact_lock(1298689122)"));
}

bool Serverdatenbank::lege(Gespraech &gespraech)
{
    return gespraech.fuehre(QStringLiteral("CREATE SCHEMA IF NOT EXISTS mahlberg"));
}

QString Serverdatenbank::fragtNachTabelle() const
{
    return QStringLiteral("SELECT CASE WHEN to_regclass('mahlberg.bestand') IS NULL THEN 0 ELSE 1 "
                          "END");
}

Hindernis Serverdatenbank::deute(const QSqlError &fehler) const
{
    const QString zustand = fehler.nativeErrorCode();
    const auto *treffer =
        std::find_if(std::begin(zustaende), std::end(zustaende), [&](const auto &zeile) {
            return zustand.startsWith(QLatin1String(zeile.anfang));
        });
    if (treffer != std::end(zustaende)) {
        return treffer->hindernis;
    }
    // Whatever the server says has a state; without one, it said nothing.
    return zustand.isEmpty() ? Hindernis::Getrennt : Hindernis::Sonstiges;
}
