#pragma once

#include "foundation/Clock.h"
#include "model/DataFiles.h"
#include "model/NotificationScheduling.h"
#include "model/Reminder.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

#include <optional>

/// Owns the pending reminders and submits each to the notification service. UI thread only.
class ReminderStore final : public QObject
{
    Q_OBJECT

public:
    /// Loads the file and submits the reminders that are in the future. Scheduler and clock must outlive the
    /// store.
    ReminderStore(const QString &filePath, NotificationScheduling &scheduler, const Clock &clock,
        QObject *parent = nullptr);
    ~ReminderStore() override;

    [[nodiscard]] static QString defaultFilePath();
    /// The store created last, or null if it has been destroyed.
    [[nodiscard]] static ReminderStore *active() { return s_active; }

    /// The request that is submitted for a reminder.
    [[nodiscard]] static NotificationRequest notificationRequest(
        const Reminder &reminder, const Calendar &calendar);

    [[nodiscard]] const QList<Reminder> &reminders() const { return m_reminders; } ///< earliest first
    [[nodiscard]] AuthorizationStatus authorizationStatus() const { return m_authorizationStatus; }

    /// Returns nothing if @p fireAt is not in the future. A note may have several reminders.
    std::optional<Reminder> schedule(
        QUuid noteID, Instant fireAt, const QString &text, const QString &fullText);
    /// Schedules a reminder that was shown again: ten minutes from now, rounded up to a full minute.
    std::optional<Reminder> snooze(QUuid noteID, const QString &text, const QString &fullText);
    void cancel(QUuid id);            ///< an unknown id changes nothing
    void cancelForNote(QUuid noteID); ///< all reminders of the note
    /// Removes the reminders that are due. Keeps all while notifications are not allowed.
    void pruneExpired();
    void refreshAuthorizationStatus();

    [[nodiscard]] bool hasReminder(QUuid noteID) const { return reminder(noteID).has_value(); }
    [[nodiscard]] std::optional<Reminder> reminder(QUuid noteID) const; ///< the note's earliest

Q_SIGNALS:
    void remindersChanged(); ///< after the list has changed, before it is saved
    void authorizationStatusChanged();

private:
    void load();
    void save();
    void submitNotification(const Reminder &reminder);

    static QPointer<ReminderStore> s_active;

    DataFiles m_files;
    NotificationScheduling &m_scheduler;
    const Clock &m_clock;
    QList<Reminder> m_reminders;
    AuthorizationStatus m_authorizationStatus = AuthorizationStatus::NotDetermined;
};
