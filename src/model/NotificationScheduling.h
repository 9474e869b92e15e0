#pragma once

#include "foundation/Instant.h"

#include <QString>
#include <QStringList>

#include <functional>

/// What is known of the person's leave to notify them.
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
    QString identifier; ///< a later request of the same name replaces this one
    QString title;
    QString body;
    QString noteID; ///< handed back when the notification is clicked
    Instant minute; ///< seconds are 0
    bool operator==(const NotificationRequest &) const = default;
};

/// The way to the notification service, which holds the requests until they are due.
class NotificationScheduling
{
public:
    virtual ~NotificationScheduling() = default;
    /// @p error is empty unless the asking itself failed. The completion may come at once or later.
    virtual void requestAuthorization(
        int options, std::function<void(bool granted, const QString &error)> completion) = 0;
    virtual void add(const NotificationRequest &request) = 0;
    virtual void removePendingNotificationRequests(const QStringList &identifiers) = 0;
    virtual void notificationAuthorizationStatus(std::function<void(AuthorizationStatus)> completion) = 0;
};
