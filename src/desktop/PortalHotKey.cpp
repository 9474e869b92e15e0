#include "desktop/PortalHotKey.h"

#include "desktop/ApplicationIdentity.h"
#include "desktop/DesktopPortal.h"
#include "text/L10n.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
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

using Shortcut = QPair<QString, QVariantMap>; // of the bus type (sa{sv})
using Shortcuts = QList<Shortcut>;

Shortcuts wanted()
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
    qDBusRegisterMetaType<QDBusObjectPath>(); // which Qt itself does later than the first signal is connected
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<Shortcuts>();
}

PortalHotKey::~PortalHotKey()
{
    QDBusConnection::disconnectFromBus(connectionName); // which ends the session too
}

void PortalHotKey::request()
{
    auto *watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &oldOwner, const QString &newOwner) {
            if (oldOwner.isEmpty() && m_step != Step::None)
                return; // our own call has started it
            forgetSession();
            if (!newOwner.isEmpty())
                registerIdentity();
        });
    m_bus.connect(service, path, interface, QStringLiteral("Activated"), this,
        SLOT(onActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    registerIdentity();
}

void PortalHotKey::whenFinished(
    const QDBusPendingCall &call, std::function<void(const QDBusPendingCall &)> handler)
{
    auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, handler = std::move(handler), round = m_round](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            if (round == m_round)
                handler(*finished);
        });
}

void PortalHotKey::registerIdentity()
{
    m_step = Step::CreatingSession;
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, registry, QStringLiteral("Register"));
    call << ApplicationIdentity::id << QVariantMap();
    // Portals before 1.19.4 do not know the call, and need none.
    whenFinished(m_bus.asyncCall(call), [this](const QDBusPendingCall &) { checkVersion(); });
}

void PortalHotKey::checkVersion()
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, properties, QStringLiteral("Get"));
    call << interface << QStringLiteral("version");
    whenFinished(m_bus.asyncCall(call), [this](const QDBusPendingCall &finished) {
        const QDBusPendingReply<QDBusVariant> reply(finished);
        // Only this tells that somebody is behind the interface.
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
    // Heard before it is asked, or the answer may come first.
    m_bus.connect(service, m_request, requestInterface, QStringLiteral("Response"), this,
        SLOT(onResponse(uint, QVariantMap)));
    options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments + QVariantList{options});
    whenFinished(m_bus.asyncCall(call), [this](const QDBusPendingCall &finished) {
        if (finished.isError())
            fail(finished.error().message());
    });
}

void PortalHotKey::createSession()
{
    // The token is the same at each start: some desktops know a program's keys by it. Some register only what
    // they are told here, others only what they are told when it is bound.
    ask(Step::CreatingSession, QStringLiteral("CreateSession"), {},
        {{QStringLiteral("session_handle_token"), QStringLiteral("quillet")},
            {QStringLiteral("shortcuts"), QVariant::fromValue(wanted())}});
}

void PortalHotKey::listShortcuts()
{
    ask(Step::ListingShortcuts, QStringLiteral("ListShortcuts"),
        {QVariant::fromValue(QDBusObjectPath(m_session))}, {});
}

void PortalHotKey::bindShortcuts()
{
    ask(Step::BindingShortcuts, QStringLiteral("BindShortcuts"),
        {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(wanted()), QString()}, {});
}

void PortalHotKey::onResponse(uint code, const QVariantMap &results)
{
    m_bus.disconnect(service, m_request, requestInterface, QStringLiteral("Response"), this,
        SLOT(onResponse(uint, QVariantMap)));
    if (code != 0) {
        fail(QString::number(code));
        return;
    }
    switch (m_step) {
    case Step::None:
        break;
    case Step::CreatingSession: {
        const QVariant handle = results.value(QStringLiteral("session_handle")); // a string, by mistake
        m_session =
            handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
        listShortcuts();
        break;
    }
    case Step::ListingShortcuts: {
        // What is there already need not be asked for, which may open a dialog.
        const auto known = qdbus_cast<Shortcuts>(results.value(QStringLiteral("shortcuts")));
        const bool isKnown = std::any_of(
            known.begin(), known.end(), [](const Shortcut &each) { return each.first == shortcutID; });
        if (!isKnown) {
            bindShortcuts();
            break;
        }
        [[fallthrough]];
    }
    case Step::BindingShortcuts:
        m_step = Step::None;
        Q_EMIT bound();
        break;
    }
}

void PortalHotKey::onActivated(
    const QDBusObjectPath &session, const QString &id, qulonglong, const QVariantMap &options)
{
    if (session.path() != m_session || id != shortcutID)
        return;
    const QString token = options.value(QStringLiteral("activation_token")).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8()); // where Qt looks for it
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
