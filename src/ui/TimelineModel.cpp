#include "ui/TimelineModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

#include <QUrl>

#include <algorithm>

namespace {
using namespace std::chrono_literals;
constexpr auto untilTheFrameIsShown = 20ms;
constexpr auto slice = 4ms; ///< of a frame of 16
constexpr qsizetype mostHits = 20;
} // namespace

bool isSameRow(const TimelineRow &a, const TimelineRow &b)
{
    if (a.kind != b.kind)
        return false;
    return a.note ? a.note->id == b.note->id : a.day == b.day;
}

TimelineModel::TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent)
    : RowsOf(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_clock(clock)
    , m_today(clock.calendar().startOfDay(clock.now()))
{
    m_searchTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &TimelineModel::continueSearch);
    const auto findReplies = [this] {
        m_repliedTo.clear();
        for (const Note &note : m_notes.notes()) {
            if (note.quoteID)
                m_repliedTo.insert(*note.quoteID);
        }
        refresh();
    };
    connect(&m_notes, &NoteStore::notesChanged, this, findReplies);
    connect(&m_reminders, &ReminderStore::remindersChanged, this, &TimelineModel::refresh);
    findReplies();
}

TimelineModel::~TimelineModel() = default;

void TimelineModel::setQuery(const QString &query)
{
    m_query = query;
    refresh();
}

void TimelineModel::timeDidPass()
{
    const Instant today = m_clock.calendar().startOfDay(m_clock.now());
    if (today == m_today)
        return;
    m_today = today;
    refresh(); // a change of the zone moves notes to other days
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QList<TimelineRow> TimelineModel::rowsOf(const QList<DaySection> &sections, bool isSemanticOnly) const
{
    QSet<QUuid> reminded;
    for (const Reminder &reminder : m_reminders.reminders())
        reminded.insert(reminder.noteID);

    QList<TimelineRow> rows;
    if (isSemanticOnly && !sections.isEmpty())
        rows.append({TimelineRow::Kind::Title, {}, {}, false, false, true});
    for (const DaySection &section : sections) {
        rows.append({TimelineRow::Kind::Day, section.day, {}, false, false, isSemanticOnly});
        for (const Note &note : section.notes) {
            rows.append({TimelineRow::Kind::Note, section.day, note, reminded.contains(note.id),
                m_repliedTo.contains(note.id), isSemanticOnly});
        }
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
    if (!needsSearch || rows().isEmpty() || !rows().front().isSemanticOnly)
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

QList<TimelineModel::Action> TimelineModel::actions(int number) const
{
    QList<Action> actions;
    if (row(number).isRepliedTo)
        actions.append(Action::JumpToReply);
    if (row(number).hasReminder)
        actions.append(Action::TellReminder);
    return actions;
}

RowContent TimelineModel::content(int number) const
{
    const TimelineRow &row = this->row(number);
    RowContent content;
    switch (row.kind) {
    case TimelineRow::Kind::Title:
        content.header = L10n::text("语义相关");
        return content;
    case TimelineRow::Kind::Day:
        content.header = NoteFormatting::dayTitle(row.day, m_clock.now(), m_clock.calendar());
        return content;
    case TimelineRow::Kind::Note:
        break;
    }
    const Note &note = *row.note;
    content.lead = NoteFormatting::timeString(note.createdAt, m_clock.calendar());
    content.text = note.text;
    content.query = m_query;
    content.quote = note.quote.value_or(QString());
    if (note.link) {
        const QUrl url(*note.link);
        content.link = url.isLocalFile() ? url.toLocalFile() : *note.link;
        if (url.isLocalFile())
            content.linkSymbol = QStringLiteral("folder");
    }
    if (row.isSemanticOnly)
        content.marker = L10n::text("仅供参考");
    for (const Action action : actions(number)) {
        switch (action) {
        case Action::JumpToReply:
            content.symbols.append({QStringLiteral("reply"), L10n::text("跳转到最新回复"), true});
            break;
        case Action::TellReminder:
            if (const auto reminder = m_reminders.reminder(note.id)) {
                const QString when =
                    NoteFormatting::reminderTimeString(reminder->fireAt, m_clock.now(), m_clock.calendar());
                content.symbols.append(
                    {QStringLiteral("bell"), L10n::text("%@ 提醒", QStringList{when}), false});
            }
            break;
        }
    }
    return content;
}

QModelIndex TimelineModel::indexOf(QUuid noteID) const
{
    const auto found = std::find_if(rows().begin(), rows().end(),
        [noteID](const TimelineRow &row) { return row.note && row.note->id == noteID; });
    return found == rows().end() ? QModelIndex() : index(int(found - rows().begin()));
}
