#include "desktop/TrayHost.h"

#include "desktop/DBusCall.h"
#include "desktop/X11.h"

#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>

#include <xcb/xcb.h>

using namespace std::chrono_literals;

namespace {
const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
} // namespace

TrayHost::TrayHost(QObject *parent)
    : QObject(parent)
{
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(2s);
    connect(&m_timeout, &QTimer::timeout, this, &TrayHost::missing);
}

TrayHost::~TrayHost()
{
    qApp->removeNativeEventFilter(this);
}

void TrayHost::watch()
{
    m_isWatching = true;
    if (X11::connection()) {
        m_selection = X11::atom("_NET_SYSTEM_TRAY_S0");
        if (hasX11Tray()) { // first, since asking the bus takes longer
            found(Kind::XEmbed);
            return;
        }
        m_announcement = X11::atom("MANAGER");
        qApp->installNativeEventFilter(this);
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto *watcher =
        new QDBusServiceWatcher(watcherService, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayHost::look);
    bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"),
        this, SLOT(look()));
    m_timeout.start();
    look();
}

bool TrayHost::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE)
        return false;
    const auto *announcement = reinterpret_cast<const xcb_client_message_event_t *>(event);
    if (announcement->type == m_announcement && announcement->data.data32[1] == m_selection)
        QMetaObject::invokeMethod(this, &TrayHost::look, Qt::QueuedConnection); // after Qt has handled it
    return false;
}

void TrayHost::look()
{
    if (!m_isWatching)
        return;
    if (hasX11Tray()) {
        found(Kind::XEmbed);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(watcherService, watcherPath,
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call.setArguments({watcherService, QStringLiteral("IsStatusNotifierHostRegistered")});
    call.setAutoStartService(false);
    DBusCall::send<QDBusVariant>(QDBusConnection::sessionBus(), call, this, [this](const auto &reply) {
        if (!reply.isError() && reply.value().variant().toBool())
            found(Kind::StatusNotifier);
    });
}

void TrayHost::found(Kind kind)
{
    if (!m_isWatching)
        return;
    m_isWatching = false;
    m_timeout.stop();
    qApp->removeNativeEventFilter(this);
    Q_EMIT appeared(kind);
}

bool TrayHost::hasX11Tray() const
{
    return m_selection != 0 && X11::ownerOf(m_selection) != XCB_WINDOW_NONE;
}
