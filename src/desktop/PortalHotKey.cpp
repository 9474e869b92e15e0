#include "desktop/PortalHotKey.h"

#include "desktop/ActivationToken.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/DBusCall.h"
#include "desktop/DesktopPortal.h"
#include "text/L10n.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <algorithm>

namespace {
using DesktopPortal::path;
using DesktopPortal::service;
const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString registry = QStringLiteral("org.freedesktop.host.portal.Registry");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString connectionName = QStringLiteral("quillet-hotkey");

const QString shortcutID = QStringLiteral("toggle");

using Shortcut = QPair<QString, QVariantMap>; // D-Bus type (sa{sv})
using Shortcuts = QList<Shortcut>;

Shortcuts wantedShortcuts()
{
    return {{shortcutID, {{QStringLiteral("description"), L10n::text("打开或关闭 Quillet")},
                             {QStringLiteral("preferred_trigger"), QStringLiteral("CTRL+ALT+space")}}}};
}

QDBusConnection connectTo(const QString &busAddress)
{
    return busAddress.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)
                                : QDBusConnection::connectToBus(busAddress, connectionName);
}
} // namespace

PortalHotKey::PortalHotKey(const QString &busAddress, QObject *parent)
    : QObject(parent)
    , m_bus(connectTo(busAddress))
{
    // The signals cannot be connected before; Qt itself registers the type only at its first call.
    qDBusRegisterMetaType<QDBusObjectPath>();
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<Shortcuts>();
}

PortalHotKey::~PortalHotKey()
{
    QDBusConnection::disconnectFromBus(connectionName); // also closes the portal's session
}

void PortalHotKey::request()
{
    auto *watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &oldOwner, const QString &newOwner) {
            if (oldOwner.isEmpty() && m_step != Step::None)
                return; // started by our own call
            forgetSession();
            if (!newOwner.isEmpty())
                registerIdentity();
        });
    m_bus.connect(service, path, interface, QStringLiteral("Activated"), this,
        SLOT(onActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    registerIdentity();
}

template <typename... Values, typename Handler>
void PortalHotKey::send(const QDBusMessage &message, Handler handler)
{
    DBusCall::send<Values...>(
        m_bus, message, this, [this, handler = std::move(handler), round = m_round](const auto &reply) {
            if (round == m_round)
                handler(reply);
        });
}

void PortalHotKey::registerIdentity()
{
    m_step = Step::CreatingSession;
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, registry, QStringLiteral("Register"));
    call << ApplicationIdentity::id << QVariantMap();
    // Portals before 1.19.4 do not have the method, and do not need it.
    send(call, [this](const auto &) { checkVersion(); });
}

void PortalHotKey::checkVersion()
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, properties, QStringLiteral("Get"));
    call << interface << QStringLiteral("version");
    send<QDBusVariant>(call, [this](const auto &reply) {
        // An error means that no backend implements the interface.
        if (reply.isError())
            fail(reply.error().message());
        else
            createSession();
    });
}

void PortalHotKey::ask(Step step, const QString &method, const QVariantList &arguments, QVariantMap options)
{
    m_step = step;
    const QString token = QStringLiteral("quillet%1_%2").arg(m_round).arg(int(step));
    const QString sender = m_bus.baseService().sliced(1).replace(u'.', u'_');
    m_request = QStringLiteral("%1/request/%2/%3").arg(path, sender, token);
    // Connected before the call, since the response may arrive before the reply.
    m_bus.connect(service, m_request, requestInterface, QStringLiteral("Response"), this,
        SLOT(onResponse(uint, QVariantMap)));
    options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments + QVariantList{options});
    send(call, [this](const auto &reply) {
        if (reply.isError())
            fail(reply.error().message());
    });
}

void PortalHotKey::createSession()
{
    // The token is the same at each start: some desktops store a program's shortcuts under it. Some register
    // only the shortcuts passed here, others only those passed to BindShortcuts.
    ask(Step::CreatingSession, QStringLiteral("CreateSession"), {},
        {{QStringLiteral("session_handle_token"), QStringLiteral("quillet")},
            {QStringLiteral("shortcuts"), QVariant::fromValue(wantedShortcuts())}});
}

void PortalHotKey::onResponse(uint code, const QVariantMap &results)
{
    m_bus.disconnect(service, m_request, requestInterface, QStringLiteral("Response"), this,
        SLOT(onResponse(uint, QVariantMap)));
    if (code != 0) {
        fail(QString::number(code));
        return;
    }
    switch (std::exchange(m_step, Step::None)) {
    case Step::None:
    case Step::BindingShortcuts:
        break;
    case Step::CreatingSession: {
        const QVariant handle = results.value(QStringLiteral("session_handle")); // a string in practice
        m_session =
            handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
        ask(Step::ListingShortcuts, QStringLiteral("ListShortcuts"),
            {QVariant::fromValue(QDBusObjectPath(m_session))});
        break;
    }
    case Step::ListingShortcuts: {
        // Binding may open a dialog, so a shortcut that exists already is not bound again.
        const auto known = qdbus_cast<Shortcuts>(results.value(QStringLiteral("shortcuts")));
        const bool isKnown = std::any_of(
            known.begin(), known.end(), [](const Shortcut &each) { return each.first == shortcutID; });
        if (!isKnown)
            ask(Step::BindingShortcuts, QStringLiteral("BindShortcuts"),
                {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(wantedShortcuts()),
                    QString()});
        break;
    }
    }
}

void PortalHotKey::onActivated(
    const QDBusObjectPath &session, const QString &id, qulonglong, const QVariantMap &options)
{
    if (session.path() != m_session || id != shortcutID)
        return;
    ActivationToken::set(options.value(QStringLiteral("activation_token")).toString());
    Q_EMIT pressed();
}

void PortalHotKey::forgetSession()
{
    ++m_round;
    m_step = Step::None;
    m_session.clear();
}

void PortalHotKey::fail(const QString &message)
{
    forgetSession();
    Q_EMIT failed(message);
}
