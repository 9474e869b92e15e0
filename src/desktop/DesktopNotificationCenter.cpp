#include "desktop/DesktopNotificationCenter.h"

#include <QTimer>

#include <algorithm>

namespace {
/// Shown one by one; all older ones are merged into one more notification.
constexpr qsizetype maxSingleNotifications = 5;

/// After a refusal: some servers limit the rate.
constexpr std::chrono::seconds retryDelay{2};

/// Some servers refuse a notification identical to the previous one, others merge the two.
constexpr std::chrono::milliseconds identicalDelay{1100};
} // namespace

QString DesktopNotificationCenter::body(const Bubble &bubble)
{
    QStringList lines;
    for (const NotificationRequest &request : bubble)
        lines.append(request.body);
    return lines.join(u'\n');
}

QList<DesktopNotificationCenter::Bubble> DesktopNotificationCenter::bubbles(
    const QList<NotificationRequest> &due)
{
    QList<Bubble> bubbles;
    const qsizetype older = std::max<qsizetype>(0, due.size() - maxSingleNotifications);
    if (older > 0)
        bubbles.append(due.first(older));
    for (const NotificationRequest &request : due.sliced(older))
        bubbles.append({request});
    return bubbles;
}

DesktopNotificationCenter::DesktopNotificationCenter(const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    connect(&m_timer, &WallClockTimer::woke, this, &DesktopNotificationCenter::presentDue);
    connect(&m_server, &NotificationServer::availabilityDetermined, this,
        &DesktopNotificationCenter::availabilityWasDetermined);
    connect(&m_server, &NotificationServer::closed, this, [this](uint id) { m_shown.remove(id); });
    connect(&m_server, &NotificationServer::clicked, this, [this](uint id) {
        if (const Bubble bubble = m_shown.take(id); !bubble.isEmpty())
            Q_EMIT didReceive(bubble.first().noteID);
    });
    connect(&m_server, &NotificationServer::snoozed, this, [this](uint id) {
        for (const NotificationRequest &request : m_shown.take(id))
            Q_EMIT didSnooze(request);
    });
}

void DesktopNotificationCenter::requestAuthorization(
    int, std::function<void(bool granted, const QString &error)> completion)
{
    if (m_server.isAvailable()) {
        completion(true, {});
        return;
    }
    const auto complete = [this, completion = std::move(completion)] {
        completion(m_server.isAvailable(), {});
    };
    connect(&m_server, &NotificationServer::availabilityDetermined, this, complete, Qt::SingleShotConnection);
    m_server.query();
}

void DesktopNotificationCenter::notificationAuthorizationStatus(
    std::function<void(AuthorizationStatus)> completion)
{
    completion(!m_wasDetermined         ? AuthorizationStatus::NotDetermined
               : m_server.isAvailable() ? AuthorizationStatus::Authorized
                                        : AuthorizationStatus::Denied);
}

void DesktopNotificationCenter::availabilityWasDetermined()
{
    m_wasDetermined = true;
    m_shown.clear(); // a new server starts its ids anew
    Q_EMIT authorizationChanged();
    presentDue();
}

void DesktopNotificationCenter::add(const NotificationRequest &request)
{
    m_pending.removeIf(
        [&request](const NotificationRequest &other) { return other.identifier == request.identifier; });
    const auto position = std::upper_bound(m_pending.begin(), m_pending.end(), request,
        [](const NotificationRequest &a, const NotificationRequest &b) { return a.minute < b.minute; });
    m_pending.insert(position, request);
    armTimer();
}

void DesktopNotificationCenter::removePendingNotificationRequests(const QStringList &identifiers)
{
    // Pruning expired reminders withdraws their requests. One that is due, but whose timer event has not been
    // handled yet, must be shown first.
    if (m_server.isAvailable())
        presentDue();
    const auto isNamed = [&identifiers](const NotificationRequest &request) {
        return identifiers.contains(request.identifier);
    };
    m_pending.removeIf(isNamed);
    m_due.removeIf(isNamed);
    armTimer();
}

void DesktopNotificationCenter::armTimer()
{
    if (m_pending.isEmpty())
        m_timer.stop();
    else
        m_timer.start(m_pending.first().minute);
}

void DesktopNotificationCenter::presentDue()
{
    const Instant now = m_clock.now();
    const qsizetype before = m_due.size();
    while (!m_pending.isEmpty() && m_pending.first().minute <= now)
        m_due.append(m_pending.takeFirst());
    armTimer();
    if (!m_server.isAvailable()) {
        if (m_due.size() > before)
            m_server.query();
        return;
    }
    m_unshown += bubbles(std::exchange(m_due, {}));
    showBubbles();
}

void DesktopNotificationCenter::showBubbles()
{
    if (!m_server.isAvailable())
        return; // shown when it is back
    m_recentBodies.removeIf(
        [](QHash<QString, QDeadlineTimer>::iterator recent) { return recent.value().hasExpired(); });
    const QList<Bubble> unshown = std::exchange(m_unshown, {});
    for (const Bubble &bubble : unshown) {
        if (!m_recentBodies.contains(body(bubble))) {
            show(bubble);
            continue;
        }
        m_unshown.append(bubble);
        QTimer::singleShot(identicalDelay, this, &DesktopNotificationCenter::showBubbles);
    }
}

void DesktopNotificationCenter::show(const Bubble &bubble)
{
    const QString text = body(bubble);
    m_recentBodies.insert(text, QDeadlineTimer(identicalDelay));
    Q_EMIT willPresent();
    m_server.show({bubble.first().title, text}, [this, bubble](std::optional<uint> id) {
        if (id) {
            m_shown.insert(*id, bubble);
            return;
        }
        m_unshown.append(bubble);
        QTimer::singleShot(retryDelay, this, &DesktopNotificationCenter::showBubbles);
    });
}
