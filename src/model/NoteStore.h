#pragma once

#include "foundation/Clock.h"
#include "model/DataFiles.h"
#include "model/DaySection.h"
#include "model/Note.h"
#include "model/SemanticHit.h"
#include "model/TagSummary.h"
#include "reminders/ParsedReminder.h"
#include "search/RankedSearch.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

#include <memory>
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
    /// Loads notes and, beside them, trash.json. The clock must outlive the store.
    NoteStore(const QString &filePath, const Clock &clock, QObject *parent = nullptr);
    ~NoteStore() override;

    [[nodiscard]] static QString defaultFilePath();
    /// Without one, reminder work is skipped.
    void setReminderStore(ReminderStore *store);
    /// Without one, notes are related by their words alone. It must outlive the store.
    void setEmbeddingProvider(SentenceEmbeddingProviding *provider);

    [[nodiscard]] const QList<Note> &notes() const { return m_notes; } ///< newest first
    [[nodiscard]] const QList<Note> &trash() const { return m_trash; } ///< the last deleted first
    [[nodiscard]] std::optional<Note> note(QUuid id) const;            ///< a live one

    /// Nothing when the text is empty. A reminder that is not in the future is dropped.
    std::optional<Note> add(const QString &text, const std::optional<Note> &quoting = {},
        const std::optional<QString> &link = {}, const std::optional<ParsedReminder> &reminder = {});
    void update(QUuid id, const QString &text);
    /// Only while the note still reads as @p expected: an edit meanwhile is not overwritten.
    void applyLinkTitle(const QString &title, QUuid id, const QString &expected);
    void remove(QUuid id); ///< to the trash; its reminders are cancelled
    void restore(QUuid id);
    void emptyTrash();
    [[nodiscard]] std::optional<Note> latestReply(QUuid id) const;
    /// Adds the notes whose id is in neither list, and tells how many these were.
    qsizetype importNotes(const QList<Note> &incoming);

    /// In the order in which the notes, from the newest on, first write them.
    [[nodiscard]] const QList<TagSummary> &tagSummaries() const;
    [[nodiscard]] QStringList tags() const; ///< the names of the summaries
    /// How many notes, the trash included, a change of the tag would touch.
    [[nodiscard]] qsizetype noteCount(const QString &tag) const;
    /// Also in the trash. A name that exists already merges the two tags for good. An empty name, or one with
    /// a space, a tab, "#" or "@" in it, changes nothing.
    void renameTag(const QString &from, const QString &to);
    /// Also in the trash. A live note left empty moves to the trash, a trashed one is gone.
    void removeTag(const QString &tag);

    /// Notes of one day, by their places in notes().
    struct DayPlaces {
        Instant day;
        QList<qsizetype> places;
    };
    /// The sections of daySections() without copying their notes: what a list asks for at each key press.
    [[nodiscard]] QList<DayPlaces> dayPlaces(const QString &query) const;
    /// One section for each day, both in the order given.
    [[nodiscard]] static QList<DaySection> groupByDay(const QList<Note> &notes, const Calendar &calendar);
    /// By the day the notes were written, the newest first.
    [[nodiscard]] static QList<DaySection> groupTrashByDay(QList<Note> trash, const Calendar &calendar);
    /// The live notes that contain the query, case aside; all of them when it is blank.
    [[nodiscard]] QList<DaySection> daySections(const QString &query) const;
    /// By the day of the notes, in the order of the hits.
    [[nodiscard]] QList<DaySection> daySections(const QList<SemanticHit> &hits) const;
    [[nodiscard]] QList<DaySection> trashDaySections() const;

    /// The live notes that contain the query, the newest first; where there are none, those that resemble it,
    /// the best first.
    [[nodiscard]] QList<SemanticHit> semanticMatches(const QString &query, qsizetype limit) const;
    /// The second half of semanticMatches(), to be worked out in slices. It ends with the next change of the
    /// notes.
    [[nodiscard]] std::unique_ptr<RankedSearch> beginRankedSearch(
        const QString &query, qsizetype limit) const;
    [[nodiscard]] QList<SemanticHit> hits(const RankedSearch &search) const;
    [[nodiscard]] QList<DayPlaces> dayPlaces(
        const RankedSearch &search) const; ///< of its hits, in their order
    /// The other live notes that share words or pairs of characters with this one, the best first.
    [[nodiscard]] QList<Note> relatedNotes(const Note &note, qsizetype limit) const;
    /// Reads the texts for the first search, which would else be done at the first key.
    void prepareSearch() const { bringIndexUpToDate(); }
    /// The notes whose sentence vector is kept.
    [[nodiscard]] QList<QUuid> cachedVectors() const { return m_search.vectors.ids(); }

Q_SIGNALS:
    void notesChanged(); ///< notes or trash have changed and are about to be saved

private:
    [[nodiscard]] static QList<DayPlaces> placesByDay(
        const QList<Note> &notes, const QList<qsizetype> &places, const Calendar &calendar);
    void load();
    void publishAndSave();
    void dropDerived(QUuid id);           ///< what is kept about a note's text, its vector included
    void dropTagCounts(const Note &note); ///< if it has any tags
    void countTagsOfNewest(const Note &note);
    void tagDidChange(const QList<Note> &list, QUuid id);
    [[nodiscard]] QList<SemanticCandidate> candidates() const;
    void bringIndexUpToDate() const;
    [[nodiscard]] std::optional<SemanticSearch::Vector> vector(const Note &note) const;

    DataFiles m_files;
    const Clock &m_clock;
    QPointer<ReminderStore> m_reminderStore;
    QList<Note> m_notes;
    QList<Note> m_trash;
    SentenceEmbeddingProviding *m_embeddingProvider = nullptr;
    mutable SearchIndex m_search;
    mutable bool m_isIndexUpToDate = false;
    mutable std::optional<QList<TagSummary>> m_tagSummaries; ///< nothing when to be counted anew
};
