#pragma once

#include "model/Note.h"
#include "ui/lists/RowModel.h"

#include <QSet>
#include <QTimer>

#include <memory>
#include <vector>

class Clock;
class NoteStore;
class RankedSearch;
class ReminderStore;

/// One row of the timeline: the header of a day, or a note of that day; above what only resembles the query
/// also a title.
struct TimelineRow {
    enum class Kind { Title, Day, Note };
    Kind kind = Kind::Day;
    Instant day = {};    ///< not of a title
    QUuid id = {};       ///< the rest is only of a note
    QString text = {};   ///< the only thing about a note that changes
    qsizetype place = 0; ///< of the note in the store, now
    bool hasReminder = false;
    bool isRepliedTo = false;
    bool isSemanticOnly = false; ///< found among the notes that resemble the query

    [[nodiscard]] bool isNote() const { return kind == Kind::Note; }
};
[[nodiscard]] bool isSameRow(const TimelineRow &a, const TimelineRow &b);
/// Whether the rows show the same.
[[nodiscard]] bool operator==(const TimelineRow &a, const TimelineRow &b);

/// The store's day sections as rows: those of the notes that contain the query, or, where there are none, of
/// the notes that resemble it. Announces exactly the rows that came, went or changed.
///
/// What resembles the query is looked for a little later and in slices, so that typing never waits for it.
class TimelineModel final : public RowsOf<TimelineRow>
{
    Q_OBJECT

public:
    TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent = nullptr);
    ~TimelineModel() override;

    void setQuery(const QString &query);
    [[nodiscard]] const QString &query() const { return m_query; }
    void timeDidPass(); ///< a minute, midnight, or a change of the clock

    [[nodiscard]] RowContent content(int row) const override;
    [[nodiscard]] bool isHeader(int number) const override { return !row(number).isNote(); }
    [[nodiscard]] QString text(int row) const override;
    [[nodiscard]] const Note &note(int row) const;         ///< of a note's row; until the store changes
    [[nodiscard]] QModelIndex indexOf(QUuid noteID) const; ///< invalid when the note is not shown

    /// What the symbols of a note's row are for, in their order.
    enum class Action { JumpToReply, TellReminder };
    [[nodiscard]] QList<Action> actions(int row) const;

private:
    void refresh() override; ///< also while nobody looks, so that the panel opens at once
    void continueSearch();
    void appendNote(QList<TimelineRow> &rows, Instant day, qsizetype place, bool isSemanticOnly) const;

    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
    QString m_query;
    QSet<QUuid> m_reminded;
    std::vector<bool> m_isRepliedTo; ///< by the place of the note
    bool m_notesDidChange = false;
    Instant m_today;                        ///< its start, as the headers tell it
    std::unique_ptr<RankedSearch> m_search; ///< under way
    QTimer m_searchTimer;
};
