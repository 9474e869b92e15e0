#pragma once

#include "foundation/Instant.h"
#include "model/Note.h"

#include <QAbstractListModel>
#include <QList>

#include <optional>

class Clock;
class NoteStore;
class ReminderStore;

/// One row of the timeline: the header of a day, or a note of that day.
struct TimelineRow {
    Instant day;
    std::optional<Note> note; ///< nothing for a header
    bool hasReminder = false;
    bool operator==(const TimelineRow &) const = default;
};

/// The store's day sections as rows. Announces exactly the rows that came, went or changed.
class TimelineModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    TimelineModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent = nullptr);

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
    [[nodiscard]] QList<TimelineRow> currentRows() const;

    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
    QString m_query;
    QList<TimelineRow> m_rows;
};
