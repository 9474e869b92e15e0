#pragma once

#include "model/Note.h"
#include "ui/lists/RowModel.h"

#include <optional>
#include <utility>

class Clock;
class NoteStore;

struct TrashRow {
    Instant day;
    std::optional<Note> note; ///< none in the header of the day
    bool operator==(const TrashRow &) const = default;
};
[[nodiscard]] std::pair<QUuid, Instant::rep> rowKey(const TrashRow &row);

/// The trashed notes, grouped by the day on which they were written.
class TrashModel final : public RowsOf<TrashRow>
{
    Q_OBJECT

public:
    TrashModel(NoteStore &notes, const Clock &clock);

    [[nodiscard]] bool isHeader(int number) const override { return !row(number).note; }
    [[nodiscard]] QString text(int row) const override;

private:
    void refresh() override;
    [[nodiscard]] QUuid id(int number) const override
    {
        return isHeader(number) ? QUuid() : row(number).note->id;
    }
    [[nodiscard]] QString help(int row) const override;
    void fillEntry(RowContent &entry, int row) const override;

    NoteStore &m_notes;
    const Clock &m_clock;
};
