#include "Pruefserver.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace {

constexpr int geduld = 60000; // ms

} // namespace

// Not in the folder that the environment names: the path of a socket has room for about a hundred
// letters.
Pruefserver::Pruefserver() : m_ordner(QStringLiteral("/tmp/mahlberg-"))
{
    const QDir versionen(QStringLiteral("/usr/lib/postgresql"));
    const QStringList da =
        versionen.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    if (da.isEmpty()) {
        m_grund = QStringLiteral("no PostgreSQL server is installed");
        return;
    }
    m_programme = versionen.filePath(da.constFirst()) + QStringLiteral("/bin/");
    if (geteuid() == 0) { // the server refuses to run as root
        m_nutzer = QStringLiteral("postgres");
        QProcess::execute(QStringLiteral("chown"), {m_nutzer, m_ordner.path()});
    }
    rufe(QStringLiteral("initdb"),
         {QStringLiteral("-D"), m_ordner.filePath(QStringLiteral("d")), QStringLiteral("-U"),
          QStringLiteral("praxis"), QStringLiteral("-A"), QStringLiteral("trust"),
          QStringLiteral("-E"), QStringLiteral("UTF8"), QStringLiteral("--locale=C"),
          QStringLiteral("--no-sync")});
    starte();
}

Pruefserver::~Pruefserver()
{
    halteAn();
    QProcess::execute(QStringLiteral("rm"), {QStringLiteral("-rf"), m_ordner.path()});
}

void Pruefserver::starte()
{
    rufe(QStringLiteral("pg_ctl"),
         {QStringLiteral("-D"), m_ordner.filePath(QStringLiteral("d")), QStringLiteral("-w"),
          QStringLiteral("-l"), m_ordner.filePath(QStringLiteral("log")), QStringLiteral("-o"),
          QStringLiteral("-c listen_addresses='' -c fsync=off -k %1").arg(m_ordner.path()),
          QStringLiteral("start")});
}

void Pruefserver::halteAn()
{
    if (m_programme.isEmpty()) {
        return;
    }
    rufe(QStringLiteral("pg_ctl"),
         {QStringLiteral("-D"), m_ordner.filePath(QStringLiteral("d")), QStringLiteral("-m"),
          QStringLiteral("immediate"), QStringLiteral("-w"), QStringLiteral("stop")});
}

QString Pruefserver::angabe(const QString &datenbank)
{
    if (!m_datenbanken.contains(datenbank)) {
        frage(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE \"%1\"").arg(datenbank));
        m_datenbanken.insert(datenbank);
    }
    return QStringLiteral("host=%1 user=praxis dbname=%2").arg(m_ordner.path(), datenbank);
}

QString Pruefserver::frage(const QString &datenbank, const QString &anweisung)
{
    return rufe(QStringLiteral("psql"),
                {QStringLiteral("-h"), m_ordner.path(), QStringLiteral("-U"),
                 QStringLiteral("praxis"), QStringLiteral("-d"), datenbank, QStringLiteral("-X"),
                 QStringLiteral("-A"), QStringLiteral("-t"), QStringLiteral("-c"), anweisung});
}

/// Runs one of the server's programs. What goes wrong is the server's reason to be missing.
QString Pruefserver::rufe(const QString &programm, const QStringList &worte)
{
    QStringList alle = {m_programme + programm};
    if (!m_nutzer.isEmpty()) {
        alle = QStringList{QStringLiteral("runuser"), QStringLiteral("-u"), m_nutzer,
                           QStringLiteral("--")} +
               alle;
    }
    QProcess prozess;
    prozess.setWorkingDirectory(QStringLiteral("/"));
    prozess.setStandardInputFile(QProcess::nullDevice());
    // The server outlives the call and would keep its output open.
    const QString ausgabe = m_ordner.filePath(QStringLiteral("ausgabe"));
    prozess.setStandardOutputFile(ausgabe);
    prozess.setStandardErrorFile(ausgabe, QIODevice::Append);
    prozess.start(alle.constFirst(), alle.mid(1) + worte);
    if (!prozess.waitForFinished(geduld)) {
        m_grund = programm + QStringLiteral(" does not come to an end");
        return {};
    }
    QFile datei(ausgabe);
    QString text = datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
    if (prozess.exitCode() != 0) {
        m_grund = programm + QStringLiteral(": ") + text;
    }
    return text;
}
