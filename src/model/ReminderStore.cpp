#include "model/ReminderStore.h"

#include "foundation/Log.h"
#include "model/AppPaths.h"
#include "model/NoteCoding.h"

#include <algorithm>

QPointer<ReminderStore> ReminderStore::s_active;

namespace {
constexpr std::chrono::minutes snoozeTime{10};

QString identifier(QUuid id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

void sortByFireTime(QList<Reminder> &reminders)
{
    std::stable_sort(reminders.begin(), reminders.end(),
        [](const Reminder &a, const Reminder &b) { return a.fireAt < b.fireAt; });
}
} // namespace

ReminderStore::ReminderStore(
    const QString &filePath, NotificationScheduling &scheduler, const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_files({filePath})
    , m_scheduler(scheduler)
    , m_clock(clock)
{
    s_active = this;
    load();
    for (const Reminder &reminder : std::as_const(m_reminders)) {
        if (reminder.fireAt > m_clock.now())
            submitNotification(reminder);
    }
    refreshAuthorizationStatus();
}

ReminderStore::~ReminderStore() = default;

QString ReminderStore::defaultFilePath()
{
    return AppPaths::defaultFile(QStringLiteral("reminders.json"));
}

void ReminderStore::load()
{
    m_files.recover();
    m_files.load(0, [this](const QByteArray &bytes) {
        auto decoded = noteDecoder::decodeReminders(bytes);
        if (!decoded)
            return false;
        m_reminders = std::move(decoded.value());
        sortByFireTime(m_reminders);
        return true;
    });
}

void ReminderStore::save()
{
    const ByteSource encoded = [this](const ByteSink &sink) { noteEncoder::encode(m_reminders, sink); };
    if (const Outcome saved = m_files.save({encoded}, m_clock.now()); !saved)
        Log::line(QStringLiteral("failed to save reminders: ") + saved.message());
}

std::optional<Reminder> ReminderStore::schedule(
    QUuid noteID, Instant fireAt, const QString &text, const QString &fullText)
{
    const Instant now = m_clock.now();
    if (fireAt <= now)
        return std::nullopt;
    const Reminder reminder{QUuid::createUuid(), noteID, text, fullText, fireAt, now};
    m_reminders.append(reminder);
    sortByFireTime(m_reminders);
    Q_EMIT remindersChanged();
    save();
    submitNotification(reminder);
    return reminder;
}

void ReminderStore::cancel(QUuid id)
{
    const auto found = std::find_if(
        m_reminders.begin(), m_reminders.end(), [id](const Reminder &reminder) { return reminder.id == id; });
    if (found == m_reminders.end())
        return;
    m_reminders.erase(found);
    Q_EMIT remindersChanged();
    m_scheduler.removePendingNotificationRequests({identifier(id)});
    save();
}

void ReminderStore::cancelForNote(QUuid noteID)
{
    const QList<Reminder> snapshot = m_reminders;
    for (const Reminder &reminder : snapshot) {
        if (reminder.noteID == noteID)
            cancel(reminder.id);
    }
}

void ReminderStore::pruneExpired()
{
    if (m_authorizationStatus != AuthorizationStatus::Authorized
        && m_authorizationStatus != AuthorizationStatus::Provisional)
        return;
    const Instant now = m_clock.now();
    // The list is sorted by time, so the expired reminders are at its start.
    const auto firstToKeep = std::find_if(m_reminders.begin(), m_reminders.end(),
        [now](const Reminder &reminder) { return reminder.fireAt > now; });
    if (firstToKeep == m_reminders.begin())
        return;
    const QList<Reminder> expired(m_reminders.begin(), firstToKeep);
    m_reminders.erase(m_reminders.begin(), firstToKeep);
    Q_EMIT remindersChanged();
    for (const Reminder &reminder : expired)
        m_scheduler.removePendingNotificationRequests({identifier(reminder.id)});
    save();
}

void ReminderStore::refreshAuthorizationStatus()
{
    m_scheduler.notificationAuthorizationStatus([store = QPointer(this)](AuthorizationStatus status) {
        if (!store || store->m_authorizationStatus == status)
            return;
        store->m_authorizationStatus = status;
        Q_EMIT store->authorizationStatusChanged();
    });
}

std::optional<Reminder> ReminderStore::reminder(QUuid noteID) const
{
    const auto found = std::find_if(m_reminders.begin(), m_reminders.end(),
        [noteID](const Reminder &reminder) { return reminder.noteID == noteID; });
    return found == m_reminders.end() ? std::nullopt : std::optional(*found);
}

void ReminderStore::submitNotification(const Reminder &reminder)
{
    m_scheduler.requestAuthorization(AuthorizationOption::alert | AuthorizationOption::sound,
        [store = QPointer(this)](bool granted, const QString &error) {
            if (!error.isEmpty())
                Log::line(QStringLiteral("notification authorization error: ") + error);
            Log::line(QStringLiteral("notification authorization granted=%1")
                          .arg(granted ? QStringLiteral("true") : QStringLiteral("false")));
            if (store)
                store->refreshAuthorizationStatus();
        });
    m_scheduler.add(notificationRequest(reminder, m_clock.calendar()));
}

std::optional<Reminder> ReminderStore::snooze(QUuid noteID, const QString &text, const QString &fullText)
{
    const Instant later = m_clock.now() + snoozeTime;
    const Instant minute = m_clock.calendar().startOfMinute(later);
    return schedule(noteID, minute < later ? minute + std::chrono::minutes(1) : minute, text, fullText);
}

NotificationRequest ReminderStore::notificationRequest(const Reminder &reminder, const Calendar &calendar)
{
    return {identifier(reminder.id), QStringLiteral("Quillet 提醒"), reminder.text,
        identifier(reminder.noteID), calendar.startOfMinute(reminder.fireAt)};
}
