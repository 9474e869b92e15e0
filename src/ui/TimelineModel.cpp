#include "ui/TimelineModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/NoteFormatting.h"

#include <QSet>

#include <algorithm>

namespace {
/// The same header or note, whatever has become of its content.
bool isSameRow(const TimelineRow &a, const TimelineRow &b)
{
    return a.note && b.note ? a.note->id == b.note->id : !a.note && !b.note && a.day == b.day;
}
} // namespace

TimelineModel::TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent)
    : QAbstractListModel(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_clock(clock)
    , m_rows(currentRows())
{
    connect(&m_notes, &NoteStore::notesChanged, this, &TimelineModel::refresh);
    connect(&m_reminders, &ReminderStore::remindersChanged, this, &TimelineModel::refresh);
}

void TimelineModel::setQuery(const QString &query)
{
    m_query = query;
    refresh();
}

QList<TimelineRow> TimelineModel::currentRows() const
{
    QSet<QUuid> reminded;
    for (const Reminder &reminder : m_reminders.reminders())
        reminded.insert(reminder.noteID);

    QList<TimelineRow> rows;
    for (const DaySection &section : m_notes.daySections(m_query)) {
        rows.append({section.day, std::nullopt});
        for (const Note &note : section.notes)
            rows.append({section.day, note, reminded.contains(note.id)});
    }
    return rows;
}

void TimelineModel::refresh()
{
    // What stands before and behind the place of a change stays; what lies between comes and goes.
    const QList<TimelineRow> rows = currentRows();
    const auto [oldFront, newFront] =
        std::mismatch(m_rows.cbegin(), m_rows.cend(), rows.cbegin(), rows.cend(), isSameRow);
    const auto [oldBack, newBack] =
        std::mismatch(std::make_reverse_iterator(m_rows.cend()), std::make_reverse_iterator(oldFront),
            std::make_reverse_iterator(rows.cend()), std::make_reverse_iterator(newFront), isSameRow);
    const int front = int(oldFront - m_rows.cbegin());
    const int removed = int(oldBack.base() - oldFront);
    const int inserted = int(newBack.base() - newFront);

    if (removed > 0) {
        beginRemoveRows({}, front, front + removed - 1);
        m_rows.remove(front, removed);
        endRemoveRows();
    }
    if (inserted > 0) {
        beginInsertRows({}, front, front + inserted - 1);
        m_rows = m_rows.first(front) + rows.sliced(front, inserted) + m_rows.sliced(front);
        endInsertRows();
    }
    for (int number = 0; number < rows.size(); ++number) {
        if (m_rows[number] != rows[number]) {
            m_rows[number] = rows[number];
            Q_EMIT dataChanged(index(number), index(number));
        }
    }
}

int TimelineModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant TimelineModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const TimelineRow &row = m_rows[index.row()];
    return row.note ? row.note->text : NoteFormatting::dayTitle(row.day, m_clock.now(), m_clock.calendar());
}

QModelIndex TimelineModel::indexOf(QUuid noteID) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
        [noteID](const TimelineRow &row) { return row.note && row.note->id == noteID; });
    return found == m_rows.end() ? QModelIndex() : index(int(found - m_rows.begin()));
}
