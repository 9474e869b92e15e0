#include "ui/lists/TimelineModel.h"

#include "foundation/Clock.h"
#include "model/NoteSearch.h"
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
constexpr qsizetype maxHits = 20;
} // namespace

std::pair<QUuid, std::pair<int, Instant::rep>> rowKey(const TimelineRow &row)
{
    return {row.id, {int(row.kind), row.day.time_since_epoch().count()}};
}

bool operator==(const TimelineRow &a, const TimelineRow &b)
{
    return rowKey(a) == rowKey(b) && a.hasReminder == b.hasReminder && a.isRepliedTo == b.isRepliedTo
           && a.isSemanticOnly == b.isSemanticOnly && a.text == b.text;
}

TimelineModel::TimelineModel(
    const NoteStore &notes, NoteSearch &search, const ReminderStore &reminders, const Clock &clock)
    : m_notes(notes)
    , m_search(search)
    , m_reminders(reminders)
    , m_clock(clock)
    , m_today(clock.calendar().startOfDay(clock.now()))
{
    m_searchTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &TimelineModel::continueSearch);
    const auto findReplies = [this] {
        QSet<QUuid> repliedTo;
        for (const Note &note : m_notes.notes()) {
            if (note.quoteID)
                repliedTo.insert(*note.quoteID);
        }
        m_notesDidChange = true; // and with them the indexes in the rows that are shown
        m_isRepliedTo.clear();
        for (const Note &note : m_notes.notes())
            m_isRepliedTo.push_back(!repliedTo.isEmpty() && repliedTo.contains(note.id));
        refresh();
    };
    const auto findReminded = [this] {
        m_reminded.clear();
        for (const Reminder &reminder : m_reminders.reminders())
            m_reminded.insert(reminder.noteID);
        refresh();
    };
    connect(&m_search, &NoteSearch::changed, this, findReplies);
    connect(&m_reminders, &ReminderStore::remindersChanged, this, findReminded);
    findReplies();
    findReminded();
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

void TimelineModel::appendSections(
    const QList<DaySection> &sections, bool isSemanticOnly, QList<TimelineRow> &out) const
{
    for (const DaySection &section : sections) {
        out.append({.kind = TimelineRow::Kind::Day, .day = section.day, .isSemanticOnly = isSemanticOnly});
        for (const qsizetype index : section.notes)
            out.append(rowOf(index, section.day, isSemanticOnly));
    }
}

TimelineRow TimelineModel::rowOf(qsizetype noteIndex, Instant day, bool isSemanticOnly) const
{
    const Note &note = m_notes.notes()[noteIndex];
    return {TimelineRow::Kind::Note, day, note.id, note.text, noteIndex,
        !m_reminded.isEmpty() && m_reminded.contains(note.id), m_isRepliedTo[size_t(noteIndex)],
        isSemanticOnly};
}

void TimelineModel::setEdited(std::optional<QUuid> noteID)
{
    m_edited = noteID;
    refresh();
}

void TimelineModel::showWithEdited(QList<TimelineRow> found)
{
    const auto isEdited = [this](const auto &each) { return each.id == m_edited; };
    if (m_edited && std::none_of(found.begin(), found.end(), isEdited)) {
        const auto &notes = m_notes.notes();
        const auto edited = std::find_if(notes.begin(), notes.end(), isEdited);
        if (edited != notes.end()) {
            found.prepend(rowOf(edited - notes.begin(), {}, false));
            found.prepend({.kind = TimelineRow::Kind::EditedTitle});
        }
    }
    show(found);
}

void TimelineModel::refresh()
{
    m_matches.reset();
    m_searchTimer.stop();
    QList<TimelineRow> found;
    appendSections(m_search.daySections(m_query), false, found);
    const bool needsSearch = found.isEmpty() && !m_notes.notes().isEmpty();
    // The hits that are shown stay until those of now are known, or a removed one would take the current row
    // with it.
    const bool keepsHits = needsSearch && !rows().isEmpty() && rows().back().isSemanticOnly;
    if (!keepsHits)
        showWithEdited(found);
    else if (m_notesDidChange)
        showWithEdited(hitRows(remainingHits()));
    m_notesDidChange = false;
    if (needsSearch)
        m_searchTimer.start(untilTheFrameIsShown);
}

void TimelineModel::continueSearch()
{
    if (!m_matches)
        m_matches = std::make_unique<SemanticMatches>(m_search.semanticMatches(m_query, maxHits));
    if (!m_matches->advance(QDeadlineTimer(slice))) {
        m_searchTimer.start(0ms);
        return;
    }
    const auto matches = std::move(m_matches);
    showWithEdited(hitRows(matches->hits()));
}

QList<SemanticHit> TimelineModel::remainingHits() const
{
    QList<SemanticHit> hits;
    const QList<Note> &notes = m_notes.notes();
    for (const TimelineRow &row : rows()) {
        if (!row.isNote() || !row.isSemanticOnly)
            continue;
        const auto isOfRow = [&row](const Note &note) { return note.id == row.id; };
        const auto found = std::find_if(notes.begin(), notes.end(), isOfRow);
        if (found != notes.end())
            hits.append(SemanticHit{found - notes.begin()});
    }
    return hits;
}

QList<TimelineRow> TimelineModel::hitRows(const QList<SemanticHit> &hits) const
{
    QList<TimelineRow> found;
    if (!hits.isEmpty())
        found.append({.kind = TimelineRow::Kind::Title, .isSemanticOnly = true});
    appendSections(m_search.daySections(hits), true, found);
    return found;
}

const Note &TimelineModel::note(int number) const
{
    return m_notes.notes()[row(number).noteIndex];
}

QString TimelineModel::text(int number) const
{
    switch (row(number).kind) {
    case TimelineRow::Kind::Title:
        return L10n::text("语义相关");
    case TimelineRow::Kind::EditedTitle:
        return L10n::text("编辑中");
    case TimelineRow::Kind::Day:
        return NoteFormatting::dayTitle(row(number).day, m_clock.now(), m_clock.calendar());
    case TimelineRow::Kind::Note:
        return row(number).text;
    }
    Q_UNREACHABLE();
}

QString TimelineModel::help(int number) const
{
    return row(number).kind == TimelineRow::Kind::Day
               ? NoteFormatting::fullDayTitle(row(number).day, m_clock.now(), m_clock.calendar())
               : QString();
}

void TimelineModel::fillEntry(RowContent &entry, int number) const
{
    const TimelineRow &row = this->row(number);
    const QList<Note> &notes = m_notes.notes();
    if (row.noteIndex >= notes.size() || notes[row.noteIndex].id != row.id)
        return; // the note is gone, and the row about to go
    const Note &note = notes[row.noteIndex];
    entry.lead = NoteFormatting::timeString(note.createdAt, m_clock.calendar());
    entry.query = m_query;
    entry.quote = note.quote.value_or(QString());
    if (note.link) {
        const QUrl url(*note.link);
        entry.link = url.isLocalFile() ? url.toLocalFile() : *note.link;
        if (url.isLocalFile())
            entry.linkSymbol = QStringLiteral("folder");
    }
    if (row.isSemanticOnly)
        entry.marker = L10n::text("仅供参考");
    if (row.isRepliedTo)
        entry.symbols.append({QStringLiteral("reply"), L10n::text("跳转到最新回复"), true});
    if (const auto reminder = row.hasReminder ? m_reminders.reminder(note.id) : std::nullopt) {
        const QString when =
            NoteFormatting::reminderTimeString(reminder->fireAt, m_clock.now(), m_clock.calendar());
        entry.symbols.append({QStringLiteral("bell"), L10n::text("%@ 提醒", QStringList{when}), false});
    }
}

QModelIndex TimelineModel::indexOf(QUuid noteID) const
{
    const auto found = std::find_if(rows().begin(), rows().end(),
        [noteID](const TimelineRow &row) { return row.isNote() && row.id == noteID; });
    return found == rows().end() ? QModelIndex() : index(int(found - rows().begin()));
}
