#pragma once

#include "foundation/Clock.h"
#include "model/DataFiles.h"
#include "model/DaySection.h"
#include "model/Note.h"
#include "model/NoteChange.h"
#include "model/TagSummary.h"
#include "reminders/ParsedReminder.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUuid>

#include <optional>

class ReminderStore;

/// Owns the notes and the trash, and saves both files after every change. UI thread only.
///
/// An id occurs once across notes and trash. Texts are trimmed as they come in; an empty one is refused
/// silently, and an operation given an unknown id does nothing.
class NoteStore final : public QObject
{
    Q_OBJECT

public:
    /// Loads the notes file and trash.json beside it. The clock must outlive the store.
    NoteStore(const QString &filePath, const Clock &clock, QObject *parent = nullptr);
    ~NoteStore() override;

    [[nodiscard]] static QString defaultFilePath();
    /// Without a reminder store, reminder work is skipped.
    void setReminderStore(ReminderStore *store);

    [[nodiscard]] const QList<Note> &notes() const { return m_notes; } ///< newest first
    [[nodiscard]] const QList<Note> &trash() const { return m_trash; } ///< most recently deleted first
    [[nodiscard]] std::optional<Note> note(QUuid id) const;            ///< live notes only
    /// The trash by the day on which the notes were written, newest first.
    [[nodiscard]] QList<DaySection> trashDaySections() const;

    /// Nothing when the text is empty. A reminder that is not in the future is dropped.
    std::optional<Note> add(const QString &text, const std::optional<Note> &quoting = {},
        const std::optional<QString> &link = {}, const std::optional<ParsedReminder> &reminder = {});
    void update(QUuid id, const QString &text);
    /// Does nothing if the note no longer reads exactly @p expected, so that an edit made in the meantime is
    /// not overwritten.
    void applyLinkTitle(const QString &title, QUuid id, const QString &expected);
    void remove(QUuid id); ///< moves the note to the trash and cancels its reminders
    void restore(QUuid id);
    void emptyTrash();
    [[nodiscard]] std::optional<Note> latestReply(QUuid id) const;
    /// Adds the notes whose id is in neither list and returns their number.
    qsizetype importNotes(const QList<Note> &incoming);

    /// In order of first use, starting from the newest note.
    [[nodiscard]] const QList<TagSummary> &tagSummaries() const { return m_tagSummaries; }
    [[nodiscard]] QStringList tags() const; ///< the names of the summaries
    /// The number of notes, trash included, that renaming or removing the tag would change.
    [[nodiscard]] qsizetype noteCount(const QString &tag) const;
    /// Also in the trash. A name that already exists merges the two tags for good; one that is not a valid
    /// name changes nothing.
    void renameTag(const QString &from, const QString &to);
    /// Also in the trash. A live note left empty moves to the trash, a trashed one is deleted.
    void removeTag(const QString &tag);

Q_SIGNALS:
    /// Both lists and the tags have changed and are about to be saved. The reminders of notes that have left
    /// are cancelled afterwards.
    void notesChanged(const NoteChange &change);

private:
    void load();
    /// Ends every change, once both lists are final: nothing else in this class emits a signal or calls the
    /// reminder store before it.
    void commit(const NoteChange &change, const QList<QUuid> &notesWithoutReminders = {});
    void save();

    DataFiles m_files;
    const Clock &m_clock;
    QPointer<ReminderStore> m_reminderStore;
    QList<Note> m_notes;
    QList<Note> m_trash;
    QList<TagSummary> m_tagSummaries;
};
