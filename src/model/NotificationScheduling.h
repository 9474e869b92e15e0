#pragma once

#include "foundation/Instant.h"

#include <QString>
#include <QStringList>

#include <functional>

/// Whether the user allows notifications, as far as is known.
enum class AuthorizationStatus {
    NotDetermined = 0,
    Denied = 1,
    Authorized = 2,
    Provisional = 3,
    Ephemeral = 4
};

namespace AuthorizationOption {
constexpr int sound = 2;
constexpr int alert = 4;
} // namespace AuthorizationOption

/// One notification, to be shown once, at the start of a minute.
struct NotificationRequest {
    QString identifier; ///< a later request with the same identifier replaces this one
    QString title;
    QString body;
    QString noteID; ///< handed back when the notification is clicked
    Instant minute; ///< seconds are 0
    bool operator==(const NotificationRequest &) const = default;
};

/// The notification service, which holds requests until they are due.
class NotificationScheduling
{
public:
    virtual ~NotificationScheduling() = default;
    /// Asks the user for permission. @p error is empty unless asking failed. The completion may be called
    /// immediately or later.
    virtual void requestAuthorization(
        int options, std::function<void(bool granted, const QString &error)> completion) = 0;
    virtual void add(const NotificationRequest &request) = 0;
    virtual void removePendingNotificationRequests(const QStringList &identifiers) = 0;
    virtual void notificationAuthorizationStatus(std::function<void(AuthorizationStatus)> completion) = 0;
};
