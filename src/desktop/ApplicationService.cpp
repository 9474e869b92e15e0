#include "desktop/ApplicationService.h"

#include "desktop/ApplicationIdentity.h"
#include "foundation/Log.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>

namespace {
const QString activationToken = QStringLiteral("activation-token");
const QString toggleAction = QStringLiteral("toggle");
const QString startupID = QStringLiteral("desktop-startup-id");

/// Hands the leave to take the focus on to where Qt looks for it.
void takeToken(const QVariantMap &platformData)
{
    const QString token = platformData.value(activationToken, platformData.value(startupID)).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}
} // namespace

ApplicationService::ApplicationService(QObject *parent)
    : QObject(parent)
{
}

void ApplicationService::publish()
{
    // The object before the name: whoever sees the name may call at once.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(ApplicationIdentity::objectPath, this, QDBusConnection::ExportAllSlots)
        || !bus.registerService(ApplicationIdentity::id))
        Log::line(QStringLiteral("failed to offer the D-Bus service: ") + bus.lastError().message());
}

void ApplicationService::callRunning(Call call)
{
    QVariantMap platformData;
    if (qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
        platformData.insert(activationToken, qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
    if (qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"))
        platformData.insert(startupID, qEnvironmentVariable("DESKTOP_STARTUP_ID"));
    const bool toggles = call == Call::Toggle;
    QDBusMessage message = QDBusMessage::createMethodCall(ApplicationIdentity::id,
        ApplicationIdentity::objectPath, QStringLiteral("org.freedesktop.Application"),
        toggles ? QStringLiteral("ActivateAction") : QStringLiteral("Activate"));
    if (toggles)
        message << toggleAction << QVariantList();
    message << platformData;
    const QDBusMessage reply = QDBusConnection::sessionBus().call(message, QDBus::Block, 5000);
    if (reply.type() == QDBusMessage::ErrorMessage)
        Log::line(QStringLiteral("already runs, and cannot be asked to open: ") + reply.errorMessage());
}

void ApplicationService::Activate(const QVariantMap &platformData)
{
    takeToken(platformData);
    Q_EMIT activated();
}

void ApplicationService::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void ApplicationService::ActivateAction(
    const QString &name, const QVariantList &, const QVariantMap &platformData)
{
    takeToken(platformData);
    if (name == toggleAction)
        Q_EMIT toggled();
}
