#pragma once

#include "foundation/Instant.h"
#include "model/DaySection.h"

#include <QAbstractListModel>
#include <QList>
#include <QTimer>

#include <memory>
#include <optional>

class Clock;
class NoteStore;
class RankedSearch;
class ReminderStore;

/// One row of the timeline: the header of a day, or a note of that day; above what only resembles the query
/// also a title.
struct TimelineRow {
    enum class Kind { Title, Day, Note };
    Kind kind = Kind::Day;
    Instant day;              ///< not of a title
    std::optional<Note> note; ///< only of a note
    bool hasReminder = false;
    bool isSemanticOnly = false; ///< found among the notes that resemble the query
    bool operator==(const TimelineRow &) const = default;
};

/// The store's day sections as rows: those of the notes that contain the query, or, where there are none, of
/// the notes that resemble it. Announces exactly the rows that came, went or changed.
///
/// What resembles the query is looked for a little later and in slices, so that typing never waits for it.
class TimelineModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent = nullptr);
    ~TimelineModel() override;

    void setQuery(const QString &query);
    [[nodiscard]] const QString &query() const { return m_query; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// The display role is the row's text, for tests and for those who listen to the screen.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

    [[nodiscard]] const TimelineRow &row(int number) const { return m_rows[number]; }
    [[nodiscard]] QModelIndex indexOf(QUuid noteID) const; ///< invalid when the note is not shown
    [[nodiscard]] const Clock &clock() const { return m_clock; }
    [[nodiscard]] const ReminderStore &reminders() const { return m_reminders; }

private:
    void refresh();
    void continueSearch();
    void show(const QList<TimelineRow> &rows);
    [[nodiscard]] QList<TimelineRow> rowsOf(const QList<DaySection> &sections, bool isSemanticOnly) const;

    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
    QString m_query;
    QList<TimelineRow> m_rows;
    std::unique_ptr<RankedSearch> m_search; ///< under way
    QTimer m_searchTimer;
};
