#include "stage/StatusNotifierWatcher.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

namespace {
const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString connectionName = QStringLiteral("status-notifier-watcher");
const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
} // namespace

StatusNotifierWatcher::StatusNotifierWatcher(const QString &busAddress)
    : m_bus(QDBusConnection::connectToBus(busAddress, connectionName))
{
    if (!m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
                | QDBusConnection::ExportAllProperties)
        || !m_bus.registerService(service))
        qFatal("cannot be the tray of %s", qPrintable(busAddress));
}

StatusNotifierWatcher::~StatusNotifierWatcher()
{
    m_bus.unregisterService(service);
    QDBusConnection::disconnectFromBus(connectionName);
}

void StatusNotifierWatcher::registerHost()
{
    m_hasHost = true;
    Q_EMIT StatusNotifierHostRegistered();
}

void StatusNotifierWatcher::RegisterStatusNotifierItem(const QString &item)
{
    m_items.append(item);
    Q_EMIT StatusNotifierItemRegistered(item);
}

void StatusNotifierWatcher::RegisterStatusNotifierHost(const QString &)
{
    registerHost();
}

void StatusNotifierWatcher::click(const QString &item)
{
    QDBusMessage activate =
        QDBusMessage::createMethodCall(item, itemPath, itemInterface, QStringLiteral("Activate"));
    activate << 10 << 10;
    m_bus.asyncCall(activate);
}

QStringList StatusNotifierWatcher::menuOf(const QString &item)
{
    QDBusMessage where = QDBusMessage::createMethodCall(
        item, itemPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    where << itemInterface << QStringLiteral("Menu");
    const QVariant path = QDBusReply<QDBusVariant>(m_bus.call(where)).value().variant();
    QDBusMessage get = QDBusMessage::createMethodCall(item, path.value<QDBusObjectPath>().path(),
        QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("GetLayout"));
    get << 0 << -1 << QStringList();
    const QVariantList answer = m_bus.call(get).arguments();
    // (id, properties, children), and each child is a variant of the same.
    QStringList entries;
    int id = 0;
    QVariantMap properties;
    const auto root = answer.value(1).value<QDBusArgument>();
    root.beginStructure();
    root >> id >> properties;
    root.beginArray();
    while (!root.atEnd()) {
        QDBusVariant child;
        root >> child;
        const auto entry = child.variant().value<QDBusArgument>();
        entry.beginStructure();
        entry >> id >> properties;
        entry.endStructure();
        entries.append(properties.value(QStringLiteral("label")).toString());
    }
    root.endArray();
    root.endStructure();
    return entries;
}
