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
#include <vector>

/// Holds notification requests in memory and shows each when its minute begins.
///
/// A desktop has no permission to ask for: "authorized" means that a notification server answers, "denied"
/// that none does. What comes due meanwhile is shown when one does.
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
    /// What a notification said is to be said again later; once for each request that it stood for.
    void didSnooze(const NotificationRequest &request);
    void authorizationChanged(); ///< a server came or went

private:
    /// One notification on screen, which may stand for several requests.
    using Bubble = QList<NotificationRequest>;
    [[nodiscard]] static QString body(const Bubble &bubble);
    [[nodiscard]] static QList<Bubble> bubbles(const QList<NotificationRequest> &due);

    void armTimer();
    bool collectDue(); ///< whether there was any
    void presentDue();
    void showBubbles();
    void show(const Bubble &bubble);
    void onAvailabilityChanged();
    void whenKnown(std::function<void(bool isAvailable)> completion);

    const Clock &m_clock;
    NotificationServer m_server;
    WallClockTimer m_timer;
    QList<NotificationRequest> m_pending;         ///< the next one first
    QList<NotificationRequest> m_due;             ///< while there is no server
    QList<Bubble> m_unshown;                      ///< about to be shown
    QHash<uint, Bubble> m_shown;                  ///< by the server's ids
    QHash<QString, QDeadlineTimer> m_shownLately; ///< bodies, and until when the same may not be shown
    std::vector<std::function<void(bool)>> m_waiting;
};
