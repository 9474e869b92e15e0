#include "desktop/DesktopNotificationCenter.h"

#include <QTimer>

#include <algorithm>

namespace {
/// As many as are shown one by one; the older ones are gathered in one more.
constexpr qsizetype mostShownAtOnce = 5;

/// After a refusal: some servers answer a burst with one.
constexpr std::chrono::seconds timeToRetry{2};

NotificationRequest gathered(const QList<NotificationRequest> &requests)
{
    NotificationRequest one = requests.first();
    for (const NotificationRequest &request : requests.sliced(1))
        one.body += u'\n' + request.body;
    return one;
}

QList<NotificationRequest> withOlderOnesGathered(const QList<NotificationRequest> &due)
{
    if (due.size() <= mostShownAtOnce)
        return due;
    const qsizetype older = due.size() - mostShownAtOnce;
    return QList<NotificationRequest>{gathered(due.first(older))} + due.sliced(older);
}
} // namespace

DesktopNotificationCenter::DesktopNotificationCenter(const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    connect(&m_timer, &WallClockTimer::woke, this, &DesktopNotificationCenter::presentDue);
    connect(&m_server, &NotificationServer::availabilityChanged, this,
        &DesktopNotificationCenter::onAvailabilityChanged);
    connect(&m_server, &NotificationServer::closed, this, [this](uint id) { m_noteIDs.remove(id); });
    connect(&m_server, &NotificationServer::clicked, this, [this](uint id) {
        if (const QString noteID = m_noteIDs.take(id); !noteID.isEmpty())
            Q_EMIT didReceive(noteID);
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
    m_noteIDs.clear(); // a new server counts anew
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
    const QList<NotificationRequest> due = std::exchange(m_due, {});
    for (const NotificationRequest &request : withOlderOnesGathered(due))
        present(request);
}

void DesktopNotificationCenter::present(const NotificationRequest &request)
{
    Q_EMIT willPresent();
    m_server.show({request.title, request.body}, [this, request](std::optional<uint> id) {
        if (id) {
            m_noteIDs.insert(*id, request.noteID);
            return;
        }
        m_due.append(request);
        QTimer::singleShot(timeToRetry, this, &DesktopNotificationCenter::presentDue);
    });
}
