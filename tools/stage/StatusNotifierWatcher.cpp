#include "stage/StatusNotifierWatcher.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {
const QString itemPath = u"/StatusNotifierItem"_s;
const QString itemInterface = u"org.kde.StatusNotifierItem"_s;
} // namespace

StatusNotifierWatcher::StatusNotifierWatcher(const QString &busAddress)
    : m_service(busAddress, u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s, this)
{
}

void StatusNotifierWatcher::registerHost()
{
    m_hasHost = true;
    Q_EMIT StatusNotifierHostRegistered();
}

void StatusNotifierWatcher::click(const QString &item)
{
    QDBusMessage activate = QDBusMessage::createMethodCall(item, itemPath, itemInterface, u"Activate"_s);
    activate << 10 << 10;
    m_service.bus().asyncCall(activate);
}

QStringList StatusNotifierWatcher::menuOf(const QString &item)
{
    QDBusMessage where =
        QDBusMessage::createMethodCall(item, itemPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    where << itemInterface << u"Menu"_s;
    const QVariant path = QDBusReply<QDBusVariant>(m_service.bus().call(where)).value().variant();
    QDBusMessage get = QDBusMessage::createMethodCall(
        item, path.value<QDBusObjectPath>().path(), u"com.canonical.dbusmenu"_s, u"GetLayout"_s);
    get << 0 << -1 << QStringList();
    const QVariantList answer = m_service.bus().call(get).arguments();
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
        entries.append(properties.value(u"label"_s).toString());
    }
    root.endArray();
    root.endStructure();
    return entries;
}
