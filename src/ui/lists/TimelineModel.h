#pragma once

#include "model/DaySection.h"
#include "model/Note.h"
#include "model/SemanticHit.h"
#include "ui/lists/RowModel.h"

#include <QSet>
#include <QTimer>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class Clock;
class NoteSearch;
class NoteStore;
class ReminderStore;
class SemanticMatches;

/// One row of the timeline: the header of a day, or a note of that day; notes that only resemble the query
/// also have a title above them.
struct TimelineRow {
    enum class Kind { Title, EditedTitle, Day, Note };
    Kind kind = Kind::Day;
    Instant day = {};        ///< unset for a title
    QUuid id = {};           ///< this and the rest are set for a note only
    QString text = {};       ///< the only part of a note that changes
    qsizetype noteIndex = 0; ///< into NoteStore::notes()
    bool hasReminder = false;
    bool isRepliedTo = false;
    bool isSemanticOnly = false; ///< found among the notes that resemble the query

    [[nodiscard]] bool isNote() const { return kind == Kind::Note; }
};
[[nodiscard]] std::pair<QUuid, std::pair<int, Instant::rep>> rowKey(const TimelineRow &row);
/// Whether the rows show the same.
[[nodiscard]] bool operator==(const TimelineRow &a, const TimelineRow &b);

/// The live notes by day as rows: those that contain the query or, if there are none, those that resemble it.
/// Notes that resemble the query are searched for a little later and in slices, so that typing never waits.
class TimelineModel final : public RowsOf<TimelineRow>
{
    Q_OBJECT

public:
    TimelineModel(
        const NoteStore &notes, NoteSearch &search, const ReminderStore &reminders, const Clock &clock);
    ~TimelineModel() override;

    void setQuery(const QString &query);
    [[nodiscard]] const QString &query() const { return m_query; }
    /// The note that is being edited is shown on top while the query does not find it.
    void setEdited(std::optional<QUuid> noteID);
    void timeDidPass() override;

    [[nodiscard]] bool isHeader(int number) const override { return !row(number).isNote(); }
    [[nodiscard]] QString text(int row) const override;
    [[nodiscard]] const Note &note(
        int row) const; ///< the row must be a note's; valid until the store changes
    [[nodiscard]] QModelIndex indexOf(QUuid noteID) const; ///< invalid when the note is not shown

private:
    [[nodiscard]] QUuid id(int number) const override { return row(number).id; }
    [[nodiscard]] QString help(int row) const override;
    void fillEntry(RowContent &entry, int row) const override;
    void refresh() override; ///< also while the panel is hidden, so that it opens at once
    void continueSearch();
    [[nodiscard]] QList<SemanticHit> remainingHits() const; ///< of the rows
    [[nodiscard]] QList<TimelineRow> hitRows(const QList<SemanticHit> &hits) const;
    void showWithEdited(QList<TimelineRow> found);
    [[nodiscard]] TimelineRow rowOf(qsizetype noteIndex, Instant day, bool isSemanticOnly) const;
    void appendSections(
        const QList<DaySection> &sections, bool isSemanticOnly, QList<TimelineRow> &out) const;

    const NoteStore &m_notes;
    NoteSearch &m_search;
    const ReminderStore &m_reminders;
    const Clock &m_clock;
    QString m_query;
    std::optional<QUuid> m_edited;
    QSet<QUuid> m_reminded;
    std::vector<bool> m_isRepliedTo; ///< by the index of the note
    bool m_notesDidChange = false;
    Instant m_today;                            ///< the start of the day that the headers call today
    std::unique_ptr<SemanticMatches> m_matches; ///< the search under way
    QTimer m_searchTimer;
};
