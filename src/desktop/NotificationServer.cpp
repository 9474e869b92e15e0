#include "desktop/NotificationServer.h"

#include "desktop/ApplicationIdentity.h"
#include "text/L10n.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
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

/// To ask for the server may start it, which should not hold up the start of the program.
constexpr std::chrono::milliseconds timeToStart{100};

/// A server that went away may be coming back on its own, or be startable; asking too soon would start a
/// second one.
constexpr std::chrono::seconds timeToComeBack{2};

QDBusConnection bus()
{
    return QDBusConnection::sessionBus();
}

/// Calls a method and hands the finished call on, to nobody when @p context has gone meanwhile.
template <typename Handler>
void call(const QString &method, const QVariantList &arguments, QObject *context, Handler &&handler)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus().asyncCall(message), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [handler = std::forward<Handler>(handler)](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            handler(*finished);
        });
}
} // namespace

NotificationServer::NotificationServer(QObject *parent)
    : QObject(parent)
{
    QTimer::singleShot(timeToStart, this, &NotificationServer::attach);
}

void NotificationServer::attach()
{
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
    call(QStringLiteral("GetCapabilities"), {}, this, [this](const QDBusPendingCall &finished) {
        const QDBusPendingReply<QStringList> reply(finished);
        setAvailable(!reply.isError());
    });
}

void NotificationServer::onOwnerChanged(const QString &newOwner)
{
    if (m_isAvailable == true)
        setAvailable(false);
    if (!newOwner.isEmpty()) {
        query();
        return;
    }
    QTimer::singleShot(timeToComeBack, this, [this] {
        if (m_isAvailable == false)
            query();
    });
}

void NotificationServer::setAvailable(bool isAvailable)
{
    if (m_isAvailable == isAvailable)
        return;
    m_isAvailable = isAvailable;
    Q_EMIT availabilityChanged();
}

void NotificationServer::show(
    const Notification &notification, std::function<void(std::optional<uint> id)> shown)
{
    // Asked each time: some servers show no buttons while the person is not to be disturbed.
    call(QStringLiteral("GetCapabilities"), {}, this,
        [this, notification, shown = std::move(shown)](const QDBusPendingCall &finished) {
            const QDBusPendingReply<QStringList> reply(finished);
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
        // Some servers know no click on the body, or show it as a button of its own when it has a label.
        actions = {
            defaultAction, QString(), openAction, L10n::text("打开"), snoozeAction, L10n::text("稍后提醒")};
    }
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), ApplicationIdentity::id},
        {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
        {QStringLiteral("urgency"), QVariant::fromValue(uchar(1))},
    };
    constexpr uint replacesNone = 0;
    constexpr int neverExpires = 0; // a reminder stays until it is seen
    call(QStringLiteral("Notify"),
        {QStringLiteral("Quillet"), replacesNone, ApplicationIdentity::id, notification.title,
            readsMarkup ? notification.body.toHtmlEscaped() : notification.body, actions, hints,
            neverExpires},
        this, [shown = std::move(shown)](const QDBusPendingCall &finished) {
            const QDBusPendingReply<uint> reply(finished);
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
    // Sent just before the click; whoever then asks for the focus finds it where Qt looks for it.
    qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

void NotificationServer::onNotificationClosed(uint id, uint)
{
    Q_EMIT closed(id);
}
