#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

/// Calls on D-Bus that do not block.
namespace DBusCall {
/// Sends @p message, and calls @p handler with a QDBusPendingReply<Values...> once there is an answer or an
/// error; not at all when @p context is gone by then.
template <typename... Values, typename Handler>
void send(const QDBusConnection &bus, const QDBusMessage &message, QObject *context, Handler handler)
{
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [handler = std::move(handler)](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            handler(QDBusPendingReply<Values...>(*finished));
        });
}
} // namespace DBusCall
