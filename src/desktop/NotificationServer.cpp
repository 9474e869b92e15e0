#include "desktop/NotificationServer.h"

#include "desktop/ActivationToken.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/DBusCall.h"
#include "text/L10n.h"

#include <QDBusServiceWatcher>
#include <QTimer>
#include <QVariantMap>

#include <chrono>

namespace {
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");

const QString defaultAction = QStringLiteral("default"); // a click on the body
const QString openAction = QStringLiteral("open");
const QString snoozeAction = QStringLiteral("snooze");

/// The first call may start the server, which should not delay the start of the program.
constexpr std::chrono::milliseconds startDelay{100};

/// A server that has gone may be restarting; calling too soon would make the bus start a second one.
constexpr std::chrono::seconds restartDelay{2};

QDBusConnection bus()
{
    return QDBusConnection::sessionBus();
}

QDBusMessage call(const QString &method, const QVariantList &arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return message;
}
} // namespace

NotificationServer::NotificationServer(QObject *parent)
    : QObject(parent)
{
    QTimer::singleShot(startDelay, this, &NotificationServer::attach);
}

void NotificationServer::attach()
{
    m_isQuerying = false;
    auto *watcher = new QDBusServiceWatcher(service, bus(), QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &, const QString &newOwner) { onOwnerChanged(newOwner); });
    QDBusConnection connection = bus();
    connection.connect(service, path, interface, QStringLiteral("ActionInvoked"), this,
        SLOT(onActionInvoked(uint, QString)));
    connection.connect(service, path, interface, QStringLiteral("ActivationToken"), this,
        SLOT(onActivationToken(uint, QString)));
    connection.connect(service, path, interface, QStringLiteral("NotificationClosed"), this,
        SLOT(onNotificationClosed(uint, uint)));
    query();
}

void NotificationServer::query()
{
    if (std::exchange(m_isQuerying, true))
        return;
    DBusCall::send<QStringList>(
        bus(), call(QStringLiteral("GetCapabilities")), this, [this](const auto &reply) {
            m_isQuerying = false;
            setAvailable(!reply.isError());
        });
}

void NotificationServer::onOwnerChanged(const QString &newOwner)
{
    if (m_isAvailable)
        setAvailable(false);
    if (!newOwner.isEmpty()) {
        m_isQuerying = false; // the one under way asks the previous owner
        query();
        return;
    }
    QTimer::singleShot(restartDelay, this, [this] {
        if (!m_isAvailable)
            query();
    });
}

void NotificationServer::setAvailable(bool isAvailable)
{
    m_isAvailable = isAvailable;
    Q_EMIT availabilityDetermined();
}

void NotificationServer::show(
    const Notification &notification, std::function<void(std::optional<uint> id)> shown)
{
    // Queried each time: some servers show no buttons in their do-not-disturb mode.
    DBusCall::send<QStringList>(bus(), call(QStringLiteral("GetCapabilities")), this,
        [this, notification, shown = std::move(shown)](const auto &reply) {
            if (reply.isError())
                shown(std::nullopt);
            else
                notify(notification, reply.value(), shown);
        });
}

void NotificationServer::notify(const Notification &notification, const QStringList &capabilities,
    std::function<void(std::optional<uint> id)> shown)
{
    const bool readsMarkup = capabilities.contains(QStringLiteral("body-markup"));
    QStringList actions;
    if (capabilities.contains(QStringLiteral("actions"))) {
        // Some servers do not support a click on the body, others show the default action as a button if it
        // has a label.
        actions = {
            defaultAction, QString(), openAction, L10n::text("打开"), snoozeAction, L10n::text("稍后提醒")};
    }
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), ApplicationIdentity::id},
        {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
        {QStringLiteral("urgency"), QVariant::fromValue(uchar(1))},
    };
    constexpr uint replacesNone = 0;
    constexpr int neverExpires = 0; // a reminder stays until it is closed
    const QDBusMessage message = call(QStringLiteral("Notify"),
        {QStringLiteral("Quillet"), replacesNone, ApplicationIdentity::id, notification.title,
            readsMarkup ? notification.body.toHtmlEscaped() : notification.body, actions, hints,
            neverExpires});
    DBusCall::send<uint>(bus(), message, this, [shown = std::move(shown)](const auto &reply) {
        shown(reply.isError() ? std::nullopt : std::optional(reply.value()));
    });
}

void NotificationServer::onActionInvoked(uint id, const QString &action)
{
    if (action == defaultAction || action == openAction)
        Q_EMIT clicked(id);
    else if (action == snoozeAction)
        Q_EMIT snoozed(id);
}

void NotificationServer::onActivationToken(uint, const QString &token)
{
    ActivationToken::set(token); // sent just before the click
}

void NotificationServer::onNotificationClosed(uint id, uint)
{
    Q_EMIT closed(id);
}
