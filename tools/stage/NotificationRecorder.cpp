#include "stage/NotificationRecorder.h"

#include <algorithm>

namespace {
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString connectionName = QStringLiteral("notification-recorder");
} // namespace

NotificationRecorder::NotificationRecorder(const QString &busAddress)
    : m_bus(QDBusConnection::connectToBus(busAddress, connectionName))
{
    if (!m_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        || !m_bus.registerService(service))
        qFatal("cannot be the notification server of %s", qPrintable(busAddress));
}

NotificationRecorder::~NotificationRecorder()
{
    m_bus.unregisterService(service);
    QDBusConnection::disconnectFromBus(connectionName);
}

void NotificationRecorder::click(uint id, const QString &action)
{
    Q_EMIT ActivationToken(id, QStringLiteral("token %1").arg(id));
    Q_EMIT ActionInvoked(id, action);
    Q_EMIT NotificationClosed(id, 2);
}

uint NotificationRecorder::Notify(const QString &, uint, const QString &, const QString &title,
    const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout)
{
    constexpr qint64 identicalInterval = 1000; // milliseconds
    const bool isIdentical = std::any_of(m_shown.begin(), m_shown.end(), [&](const Shown &shown) {
        return shown.title == title && shown.body == body && shown.since.elapsed() < identicalInterval;
    });
    if (m_refusesIdentical && isIdentical) {
        ++m_refused;
        sendErrorReply(service + QStringLiteral(".Error.ExcessNotificationGeneration"),
            QStringLiteral("Created too many similar notifications in quick succession"));
        return 0;
    }
    const uint id = uint(m_shown.size()) + 1;
    m_shown.append({id, title, body, actions, hints, timeout, {}});
    m_shown.last().since.start();
    return id;
}

void NotificationRecorder::CloseNotification(uint id)
{
    Q_EMIT NotificationClosed(id, 3);
}

QStringList NotificationRecorder::GetCapabilities() const
{
    return {QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("body-markup")};
}

QString NotificationRecorder::GetServerInformation(
    QString &vendor, QString &version, QString &specification) const
{
    vendor = QStringLiteral("Quillet");
    version = QStringLiteral("1");
    specification = QStringLiteral("1.2");
    return QStringLiteral("recorder");
}
