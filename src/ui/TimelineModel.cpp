#include "ui/TimelineModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

#include <QSet>

#include <algorithm>

namespace {
using namespace std::chrono_literals;
constexpr auto untilTheFrameIsShown = 20ms;
constexpr auto slice = 4ms; ///< of a frame of 16
constexpr qsizetype mostHits = 20;

/// The same header or note, whatever has become of its content.
bool isSameRow(const TimelineRow &a, const TimelineRow &b)
{
    if (a.kind != b.kind)
        return false;
    return a.note ? a.note->id == b.note->id : a.day == b.day;
}
} // namespace

TimelineModel::TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent)
    : QAbstractListModel(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_clock(clock)
    , m_rows(rowsOf(notes.daySections(QString()), false))
{
    m_searchTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &TimelineModel::continueSearch);
    connect(&m_notes, &NoteStore::notesChanged, this, &TimelineModel::refresh);
    connect(&m_reminders, &ReminderStore::remindersChanged, this, &TimelineModel::refresh);
}

TimelineModel::~TimelineModel() = default;

void TimelineModel::setQuery(const QString &query)
{
    m_query = query;
    refresh();
}

QList<TimelineRow> TimelineModel::rowsOf(const QList<DaySection> &sections, bool isSemanticOnly) const
{
    QSet<QUuid> reminded;
    for (const Reminder &reminder : m_reminders.reminders())
        reminded.insert(reminder.noteID);

    QList<TimelineRow> rows;
    if (isSemanticOnly && !sections.isEmpty())
        rows.append({TimelineRow::Kind::Title, {}, {}, false, true});
    for (const DaySection &section : sections) {
        rows.append({TimelineRow::Kind::Day, section.day, {}, false, isSemanticOnly});
        for (const Note &note : section.notes)
            rows.append(
                {TimelineRow::Kind::Note, section.day, note, reminded.contains(note.id), isSemanticOnly});
    }
    return rows;
}

void TimelineModel::refresh()
{
    m_search.reset();
    m_searchTimer.stop();
    const QList<DaySection> sections = m_notes.daySections(m_query);
    const bool needsSearch = sections.isEmpty() && !m_notes.notes().isEmpty();
    // Until it is known what resembles this query, what resembled the last one stays.
    if (!needsSearch || m_rows.isEmpty() || !m_rows.front().isSemanticOnly)
        show(rowsOf(sections, false));
    if (needsSearch)
        m_searchTimer.start(untilTheFrameIsShown);
}

void TimelineModel::continueSearch()
{
    if (!m_search)
        m_search = m_notes.beginRankedSearch(m_query, mostHits);
    if (!m_search->advance(QDeadlineTimer(slice))) {
        m_searchTimer.start(0ms);
        return;
    }
    const QList<SemanticHit> hits = m_notes.hits(*m_search);
    m_search.reset();
    show(rowsOf(m_notes.daySections(hits), true));
}

void TimelineModel::show(const QList<TimelineRow> &rows)
{
    // What stands before and behind the place of a change stays; what lies between comes and goes.
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
    switch (row.kind) {
    case TimelineRow::Kind::Title:
        return L10n::text("语义相关");
    case TimelineRow::Kind::Day:
        return NoteFormatting::dayTitle(row.day, m_clock.now(), m_clock.calendar());
    case TimelineRow::Kind::Note:
        return row.note->text;
    }
    return {};
}

QModelIndex TimelineModel::indexOf(QUuid noteID) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
        [noteID](const TimelineRow &row) { return row.note && row.note->id == noteID; });
    return found == m_rows.end() ? QModelIndex() : index(int(found - m_rows.begin()));
}
