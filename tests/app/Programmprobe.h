#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <csignal>

/// The sign of a program that is at work, below its home.
inline const QString zeichen = QStringLiteral("Library/Application Support/Mahlberg/Mahlberg.lock");
/// What the hand tells of the question at a second start, and of the main window.
inline const QString frage =
    QStringLiteral("message: Mahlberg ist schon geöffnet. | Zweimal zugleich geöffnet, "
                   "überschreibt das eine die Lebensmittel und den Plan des anderen. | "
                   "Beenden | Trotzdem öffnen");
inline const QString fenster = QStringLiteral("window: Mahlberg");

/// The program while it runs.
class Programm
{
public:
    /// `ordner` is where it is started; where the test is, when there is none.
    explicit Programm(const QString &heim,
                      const QStringList &argumente = {QStringLiteral("--language"),
                                                      QStringLiteral("de")},
                      const QString &ordner = {})
    {
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert(QStringLiteral("HOME"), heim);
        umgebung.remove(QStringLiteral("XDG_CONFIG_HOME"));
        umgebung.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(BEDIENHAND));
        umgebung.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("bedienhand"));
        m_prozess.setProcessEnvironment(umgebung);
        m_prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_prozess.setWorkingDirectory(ordner);
        m_prozess.start(QStringLiteral(MAHLBERG), argumente);
    }
    ~Programm()
    {
        m_prozess.kill();
        m_prozess.waitForFinished();
    }
    Programm(const Programm &) = delete;
    Programm &operator=(const Programm &) = delete;

    /// What appears next, or a null text when nothing does.
    QString naechstes()
    {
        while (!m_prozess.canReadLine()) {
            if (!m_prozess.waitForReadyRead()) {
                return {};
            }
        }
        return QString::fromUtf8(m_prozess.readLine()).trimmed();
    }

    void tue(const QString &tat)
    {
        m_prozess.write(tat.toUtf8() + '\n');
        m_prozess.waitForBytesWritten();
    }

    /// The exit status, or −1 when the program goes on or was killed.
    int ende()
    {
        const bool zuEnde =
            m_prozess.state() == QProcess::NotRunning || m_prozess.waitForFinished();
        return zuEnde && m_prozess.exitStatus() == QProcess::NormalExit ? m_prozess.exitCode() : -1;
    }

    /// Lets it stand still as if it were stuck, or go on.
    void halteAn() const { kill(static_cast<pid_t>(m_prozess.processId()), SIGSTOP); }
    void lasseWeiter() const { kill(static_cast<pid_t>(m_prozess.processId()), SIGCONT); }

    void toete()
    {
        m_prozess.kill();
        m_prozess.waitForFinished();
    }

private:
    QProcess m_prozess;
};
