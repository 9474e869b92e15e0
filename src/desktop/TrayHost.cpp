#include "desktop/TrayHost.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

using namespace std::chrono_literals;

namespace {
const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;
} // namespace

TrayHost::TrayHost(QObject *parent)
    : QObject(parent)
{
    // An XEmbed tray announces itself only to whoever listens on the root window; a look now and then does as
    // well.
    m_timer.setInterval(1s);
    connect(&m_timer, &QTimer::timeout, this, &TrayHost::look);
    m_patience.setSingleShot(true);
    m_patience.setInterval(2s);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_timer.setInterval(5s);
        Q_EMIT missing();
    });
}

void TrayHost::watch()
{
    auto *watcher = new QDBusServiceWatcher(
        watcherService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayHost::look);
    m_timer.start();
    m_patience.start();
    look();
}

void TrayHost::look()
{
    if (!m_timer.isActive())
        return;
    if (hasX11Tray()) {
        found();
        return;
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(watcherService, QStringLiteral("/StatusNotifierWatcher"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({watcherService, QStringLiteral("IsStatusNotifierHostRegistered")});
    question.setAutoStartService(false);
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply(*watcher);
        if (!reply.isError() && reply.value().variant().toBool())
            found();
    });
}

void TrayHost::found()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    m_patience.stop();
    Q_EMIT appeared();
}

bool TrayHost::hasX11Tray() const
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return false;
    xcb_connection_t *connection = x11->connection();
    constexpr char name[] = "_NET_SYSTEM_TRAY_S0";
    const Reply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, true, sizeof name - 1, name), nullptr),
        &std::free);
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr),
        &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}
