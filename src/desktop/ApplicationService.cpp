#include "desktop/ApplicationService.h"

#include "desktop/ActivationToken.h"
#include "desktop/ApplicationIdentity.h"
#include "foundation/Log.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>

namespace {
const QString activationToken = QStringLiteral("activation-token");
const QString startupID = QStringLiteral("desktop-startup-id");
const QString toggleAction = QStringLiteral("toggle");

void setActivationToken(const QVariantMap &platformData)
{
    ActivationToken::set(platformData.value(activationToken, platformData.value(startupID)).toString());
}
} // namespace

ApplicationService::ApplicationService(QObject *parent)
    : QObject(parent)
{
}

void ApplicationService::publish()
{
    // The object before the name: the name may be called as soon as it is seen.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(ApplicationIdentity::objectPath, this, QDBusConnection::ExportAllSlots)
        || !bus.registerService(ApplicationIdentity::id))
        Log::line(QStringLiteral("failed to offer the D-Bus service: ") + bus.lastError().message());
}

void ApplicationService::callRunning(Call call)
{
    QVariantMap platformData;
    if (const QString token = ActivationToken::current(); !token.isEmpty())
        platformData.insert(activationToken, token);
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
        Log::line(QStringLiteral("cannot call the running instance: ") + reply.errorMessage());
}

void ApplicationService::Activate(const QVariantMap &platformData)
{
    setActivationToken(platformData);
    Q_EMIT activated();
}

void ApplicationService::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void ApplicationService::ActivateAction(
    const QString &name, const QVariantList &, const QVariantMap &platformData)
{
    setActivationToken(platformData);
    if (name == toggleAction)
        Q_EMIT toggled();
}
