#pragma once

#include "model/Reminder.h"
#include "ui/lists/RowModel.h"

#include <optional>

class Clock;
class NoteStore;
class ReminderStore;

struct ReminderRow {
    std::optional<Reminder> reminder; ///< nothing for the header of those that have expired
    bool isExpired = false;
    QString text; ///< the note's, or the reminder's own where the note is gone
    bool operator==(const ReminderRow &) const = default;
};
[[nodiscard]] bool isSameRow(const ReminderRow &a, const ReminderRow &b);

/// The reminders that are still to come, and behind them those whose time has passed.
class ReminderModel final : public RowsOf<ReminderRow>
{
    Q_OBJECT

public:
    ReminderModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent = nullptr);
    void refresh() override;
    void timeDidPass();

    [[nodiscard]] RowContent content(int row) const override;
    [[nodiscard]] bool isHeader(int number) const override { return !row(number).reminder; }
    [[nodiscard]] QString text(int row) const override;

private:
    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
};
