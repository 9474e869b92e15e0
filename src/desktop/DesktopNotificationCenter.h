#pragma once

#include "desktop/NotificationServer.h"
#include "desktop/WallClockTimer.h"
#include "foundation/Clock.h"
#include "model/NotificationScheduling.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QList>
#include <QObject>

#include <functional>

/// Holds notification requests in memory and shows each when its minute begins.
///
/// A desktop asks for no permission: "authorized" means that a notification server answers, "denied" that
/// none does. Requests that come due without a server are shown when one answers.
class DesktopNotificationCenter final : public QObject, public NotificationScheduling
{
    Q_OBJECT

public:
    explicit DesktopNotificationCenter(const Clock &clock, QObject *parent = nullptr);

    void requestAuthorization(
        int options, std::function<void(bool granted, const QString &error)> completion) override;
    /// A request whose minute has already begun is shown at once.
    void add(const NotificationRequest &request) override;
    void removePendingNotificationRequests(const QStringList &identifiers) override;
    void notificationAuthorizationStatus(std::function<void(AuthorizationStatus)> completion) override;

Q_SIGNALS:
    void willPresent();                     ///< a notification is about to be shown
    void didReceive(const QString &noteID); ///< a notification was clicked
    /// A notification was snoozed; once for each request that it stood for.
    void didSnooze(const NotificationRequest &request);
    void authorizationChanged(); ///< a server may have come or gone

private:
    /// One notification on screen, which may stand for several requests.
    using Bubble = QList<NotificationRequest>;
    [[nodiscard]] static QString body(const Bubble &bubble);
    [[nodiscard]] static QList<Bubble> bubbles(const QList<NotificationRequest> &due);

    void armTimer();
    void presentDue();
    void showBubbles();
    void show(const Bubble &bubble);
    void availabilityWasDetermined();

    const Clock &m_clock;
    NotificationServer m_server;
    bool m_wasDetermined = false; ///< whether a server is available
    WallClockTimer m_timer;
    QList<NotificationRequest> m_pending;          ///< the next one first
    QList<NotificationRequest> m_due;              ///< while there is no server
    QList<Bubble> m_unshown;                       ///< about to be shown
    QHash<uint, Bubble> m_shown;                   ///< by the server's ids
    QHash<QString, QDeadlineTimer> m_recentBodies; ///< until when the same may not be shown
};
