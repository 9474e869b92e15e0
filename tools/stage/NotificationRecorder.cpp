#include "stage/NotificationRecorder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
const QString serviceName = u"org.freedesktop.Notifications"_s;
} // namespace

NotificationRecorder::NotificationRecorder(const QString &busAddress)
    : m_service(busAddress, serviceName, u"/org/freedesktop/Notifications"_s, this)
{
}

void NotificationRecorder::click(uint id, const QString &action)
{
    Q_EMIT ActivationToken(id, u"token %1"_s.arg(id));
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
        sendErrorReply(serviceName + u".Error.ExcessNotificationGeneration"_s,
            u"Created too many similar notifications in quick succession"_s);
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
    return {u"actions"_s, u"body"_s, u"body-markup"_s};
}

QString NotificationRecorder::GetServerInformation(
    QString &vendor, QString &version, QString &specification) const
{
    vendor = u"Quillet"_s;
    version = u"1"_s;
    specification = u"1.2"_s;
    return u"recorder"_s;
}
