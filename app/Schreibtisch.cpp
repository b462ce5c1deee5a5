#include "Schreibtisch.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QFileInfo>

namespace {

const QString dienst = QStringLiteral("org.freedesktop.portal.Desktop");
const QString ort = QStringLiteral("/org/freedesktop/portal/desktop");
const QString schnittstelle = QStringLiteral("org.freedesktop.portal.Settings");
const QString aussehen = QStringLiteral("org.freedesktop.appearance");
const QString farbschema = QStringLiteral("color-scheme");

/// What the portal's number says: 1 dark, 2 light, any other leaves it open.
std::optional<bool> dunkelheit(QVariant wert)
{
    while (wert.canConvert<QDBusVariant>()) { // an answer is wrapped once more than a change
        wert = wert.value<QDBusVariant>().variant();
    }
    const uint schema = wert.toUInt();
    return schema == 1 || schema == 2 ? std::optional(schema == 1) : std::nullopt;
}

} // namespace

Schreibtisch::Schreibtisch(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

/// Asked for a bus that isn't there, the bus library would look for a program to start one.
QDBusConnection Schreibtisch::sitzungsbus()
{
    const bool genannt = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
    const QString laufzeit = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool ueblich =
        !laufzeit.isEmpty() && QFileInfo::exists(laufzeit + QStringLiteral("/bus"));
    return genannt || ueblich ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

void Schreibtisch::frage(const QDBusConnection &bus)
{
    if (!bus.isConnected()) {
        return;
    }
    QDBusConnection zuhoerer = bus;
    zuhoerer.connect(dienst, ort, schnittstelle, QStringLiteral("SettingChanged"), this,
                     SLOT(aendere(QString, QString, QDBusVariant)));
    QDBusMessage frage =
        QDBusMessage::createMethodCall(dienst, ort, schnittstelle, QStringLiteral("Read"));
    frage << aussehen << farbschema;
    auto *antwort = new QDBusPendingCallWatcher(bus.asyncCall(frage), this);
    connect(antwort, &QDBusPendingCallWatcher::finished, this, [this, antwort] {
        const QDBusPendingReply<QDBusVariant> gegeben = *antwort;
        if (gegeben.isValid()) {
            Q_EMIT gesagt(dunkelheit(QVariant::fromValue(gegeben.value())));
        }
        antwort->deleteLater();
    });
}

void Schreibtisch::aendere(const QString &bereich, const QString &name, const QDBusVariant &wert)
{
    if (bereich == aussehen && name == farbschema) {
        Q_EMIT gesagt(dunkelheit(wert.variant()));
    }
}

bool Schreibtisch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ThemeChange) {
        Q_EMIT umgefaerbt();
    }
    return QObject::eventFilter(watched, event);
}
