#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QVariant>

class Einstellungen;
class QWidget;

/// Remembers where the user has put one window and how large it was made. What the program chose by
/// itself is not remembered: it may choose better on another screen or with larger letters.
///
/// A window on its way is waited for: it is noted once it rests, when it closes, and at the end of
/// the program.
class Platzgedaechtnis : public QObject
{
    Q_OBJECT

public:
    /// What of the window is remembered.
    enum class Umfang {
        Platz,  ///< place and size, and whether it fills the screen
        Groesse ///< the size only: the desktop puts a sheet over its window
    };

    /// The settings' keys begin with the name. Window and settings outlive it.
    Platzgedaechtnis(QWidget &fenster, Einstellungen &einstellungen, const QString &name,
                     Umfang umfang, QObject *parent);
    ~Platzgedaechtnis() override;

    /// Brings the window back as it was left, within the screens that are there now; a window that
    /// was never changed stays as it is. Called before the window is shown.
    void stelleWiederHer();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QVariant stand() const;
    void merke();

    QWidget &m_fenster;
    Einstellungen &m_einstellungen;
    const Umfang m_umfang;
    const QString m_platz;
    const QString m_maximiert;
    QVariant m_bekannt; ///< as the program has set it, or as it was noted last
    bool m_gross = false;
    QBasicTimer m_ruhe;
};
