#pragma once

#include "model/Reminder.h"
#include "ui/lists/RowModel.h"

#include <optional>

class Clock;
class NoteStore;
class ReminderStore;

struct ReminderRow {
    std::optional<Reminder> reminder; ///< none in the header of the expired ones
    bool isExpired = false;
    QString when = {}; ///< as seen from today
    QString text = {}; ///< the note's, or the reminder's own when the note no longer exists
    bool operator==(const ReminderRow &) const = default;
};
[[nodiscard]] QUuid rowKey(const ReminderRow &row);

/// The upcoming reminders, followed by the expired ones.
class ReminderModel final : public RowsOf<ReminderRow>
{
    Q_OBJECT

public:
    ReminderModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock);

    [[nodiscard]] bool isHeader(int number) const override { return !row(number).reminder; }
    [[nodiscard]] QString text(int row) const override;

private:
    void refresh() override;
    [[nodiscard]] QUuid id(int number) const override
    {
        return isHeader(number) ? QUuid() : row(number).reminder->id;
    }
    void fillEntry(RowContent &entry, int row) const override;

    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
};
