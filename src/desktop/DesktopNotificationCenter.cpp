#include "desktop/DesktopNotificationCenter.h"

#include <QTimer>

#include <algorithm>

namespace {
/// As many as are shown one by one; the older ones are gathered in one more.
constexpr qsizetype mostShownAtOnce = 5;

/// After a refusal: some servers answer a burst with one.
constexpr std::chrono::seconds timeToRetry{2};

/// Some servers refuse what is identical to one they have just shown, others take both for one.
constexpr std::chrono::milliseconds timeBetweenIdenticalOnes{1100};
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
    const qsizetype older = std::max<qsizetype>(0, due.size() - mostShownAtOnce);
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
    connect(&m_server, &NotificationServer::availabilityChanged, this,
        &DesktopNotificationCenter::onAvailabilityChanged);
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

void DesktopNotificationCenter::whenKnown(std::function<void(bool)> completion)
{
    if (const auto isAvailable = m_server.isAvailable())
        completion(*isAvailable);
    else
        m_waiting.push_back(std::move(completion));
}

void DesktopNotificationCenter::requestAuthorization(
    int, std::function<void(bool granted, const QString &error)> completion)
{
    whenKnown([completion = std::move(completion)](bool isAvailable) { completion(isAvailable, QString()); });
}

void DesktopNotificationCenter::notificationAuthorizationStatus(
    std::function<void(AuthorizationStatus)> completion)
{
    whenKnown([completion = std::move(completion)](bool isAvailable) {
        completion(isAvailable ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied);
    });
}

void DesktopNotificationCenter::onAvailabilityChanged()
{
    m_shown.clear(); // a new server counts anew
    const bool isAvailable = *m_server.isAvailable();
    for (const auto &completion : std::exchange(m_waiting, {}))
        completion(isAvailable);
    Q_EMIT authorizationChanged();
    presentDue();
}

void DesktopNotificationCenter::add(const NotificationRequest &request)
{
    const auto isSame = [&request](const NotificationRequest &other) {
        return other.identifier == request.identifier;
    };
    m_pending.removeIf(isSame);
    const auto place = std::upper_bound(m_pending.begin(), m_pending.end(), request,
        [](const NotificationRequest &a, const NotificationRequest &b) { return a.minute < b.minute; });
    m_pending.insert(place, request);
    armTimer();
}

void DesktopNotificationCenter::removePendingNotificationRequests(const QStringList &identifiers)
{
    // A request that is due but whose timer has not been heard yet must not be withdrawn by whoever tidies up
    // what has expired: it is shown first.
    if (m_server.isAvailable() == true)
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

bool DesktopNotificationCenter::collectDue()
{
    const Instant now = m_clock.now();
    const qsizetype before = m_due.size();
    while (!m_pending.isEmpty() && m_pending.first().minute <= now)
        m_due.append(m_pending.takeFirst());
    armTimer();
    return m_due.size() > before;
}

void DesktopNotificationCenter::presentDue()
{
    const bool hasNew = collectDue();
    if (m_server.isAvailable() != true) {
        if (hasNew && m_server.isAvailable() == false)
            m_server.query(); // there may be one that only needs to be started
        return;
    }
    m_unshown += bubbles(std::exchange(m_due, {}));
    showBubbles();
}

void DesktopNotificationCenter::showBubbles()
{
    if (m_server.isAvailable() != true)
        return; // they are shown when it comes back
    m_shownLately.removeIf(
        [](QHash<QString, QDeadlineTimer>::iterator lately) { return lately.value().hasExpired(); });
    const QList<Bubble> unshown = std::exchange(m_unshown, {});
    for (const Bubble &bubble : unshown) {
        if (!m_shownLately.contains(body(bubble))) {
            show(bubble);
            continue;
        }
        m_unshown.append(bubble);
        QTimer::singleShot(timeBetweenIdenticalOnes, this, &DesktopNotificationCenter::showBubbles);
    }
}

void DesktopNotificationCenter::show(const Bubble &bubble)
{
    const QString text = body(bubble);
    m_shownLately.insert(text, QDeadlineTimer(timeBetweenIdenticalOnes));
    Q_EMIT willPresent();
    m_server.show({bubble.first().title, text}, [this, bubble](std::optional<uint> id) {
        if (id) {
            m_shown.insert(*id, bubble);
            return;
        }
        m_unshown.append(bubble);
        QTimer::singleShot(timeToRetry, this, &DesktopNotificationCenter::showBubbles);
    });
}
