#pragma once

#include <QDBusConnection>
#include <QObject>

#include <optional>

class QDBusVariant;

/// Listens to what the desktop says about light and dark. Some desktops say it with the palette
/// that they give to Qt; all that have a portal say it there, whichever toolkit they are made with.
/// The portal is asked without waiting for its answer, so the start takes no longer, and where
/// there is none nothing happens.
class Schreibtisch : public QObject
{
    Q_OBJECT

public:
    explicit Schreibtisch(QObject *parent = nullptr);

    /// The bus of the user's session; not connected where there is none. None is started for it.
    static QDBusConnection sitzungsbus();

    /// Asks the portal on this bus, and listens to it from now on.
    void frage(const QDBusConnection &bus);

Q_SIGNALS:
    /// The portal said whether windows shall be dark; absent: it leaves that open.
    void gesagt(std::optional<bool> dunkel);
    /// The desktop has given Qt another palette.
    void umgefaerbt();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void aendere(const QString &bereich, const QString &name, const QDBusVariant &wert);
};
