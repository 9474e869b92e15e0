#pragma once

#include "model/NotificationScheduling.h"

#include <QList>

/// A notification service that only records what it is asked.
class RecordingScheduler final : public NotificationScheduling
{
public:
    void requestAuthorization(
        int options, std::function<void(bool granted, const QString &error)> completion) override
    {
        askedOptions.append(options);
        completion(status == AuthorizationStatus::Authorized, error);
    }
    void add(const NotificationRequest &request) override { added.append(request); }
    void removePendingNotificationRequests(const QStringList &identifiers) override
    {
        removed.append(identifiers);
    }
    void notificationAuthorizationStatus(std::function<void(AuthorizationStatus)> completion) override
    {
        completions.append(completion);
        completion(status);
    }

    AuthorizationStatus status = AuthorizationStatus::NotDetermined;
    QString error;
    QList<int> askedOptions;
    QList<std::function<void(AuthorizationStatus)>> completions; ///< called already; may be called again
    QList<NotificationRequest> added;
    QList<QStringList> removed;
};
