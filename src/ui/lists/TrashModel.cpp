#include "ui/lists/TrashModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

std::pair<QUuid, Instant::rep> rowKey(const TrashRow &row)
{
    return row.note ? std::pair(row.note->id, Instant::rep(0))
                    : std::pair(QUuid(), row.day.time_since_epoch().count());
}

TrashModel::TrashModel(NoteStore &notes, const Clock &clock)
    : m_notes(notes)
    , m_clock(clock)
{
    connect(&m_notes, &NoteStore::notesChanged, this, &TrashModel::refreshWhenSeen);
    TrashModel::refresh();
}

void TrashModel::refresh()
{
    QList<TrashRow> rows;
    for (const DaySection &section : m_notes.trashDaySections()) {
        rows.append({section.day, {}});
        for (const qsizetype index : section.notes)
            rows.append({section.day, m_notes.trash()[index]});
    }
    show(rows);
}

QString TrashModel::text(int number) const
{
    const TrashRow &row = this->row(number);
    return row.note ? row.note->text : NoteFormatting::dayTitle(row.day, m_clock.now(), m_clock.calendar());
}

QString TrashModel::help(int number) const
{
    return isHeader(number) ? NoteFormatting::fullDayTitle(row(number).day, m_clock.now(), m_clock.calendar())
                            : QString();
}

void TrashModel::fillEntry(RowContent &entry, int number) const
{
    entry.lead = NoteFormatting::timeString(row(number).note->createdAt, m_clock.calendar());
    entry.symbols = {{QStringLiteral("arrow.uturn.backward"), L10n::text("恢复到时间线"), true}};
}
