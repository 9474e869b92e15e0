#pragma once

#include "model/DaySection.h"
#include "model/Note.h"
#include "model/NoteChange.h"
#include "model/SemanticHit.h"
#include "search/RankedSearch.h"

#include <QObject>

#include <optional>

class Clock;
class NoteStore;

/// A search for the notes that answer a query, computed in slices: those that contain it, newest first; if
/// there are none, those that resemble it, best first.
///
/// It must not be used after the notes have changed.
class SemanticMatches
{
public:
    SemanticMatches(SearchIndex &index, const QString &query, qsizetype limit);

    /// Works until it is done or @p deadline has expired; returns whether it is done.
    bool advance(const QDeadlineTimer &deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    [[nodiscard]] const QList<SemanticHit> &hits() const { return m_hits; } ///< empty until it is done

private:
    std::optional<RankedSearch> m_search; ///< unset once it is done
    QList<SemanticHit> m_hits;
};

/// Finds live notes by what they contain or resemble. UI thread only.
///
/// Follows the store: what is asked after changed() is answered for the new notes. Construct it before any
/// other listener of the store, so that those can ask it too. Its questions are not const because texts and
/// vectors are read when they are first needed.
class NoteSearch final : public QObject
{
    Q_OBJECT

public:
    /// Without a provider notes are related by their words alone. All arguments must outlive the search.
    NoteSearch(const NoteStore &notes, SentenceEmbeddingProviding *provider, const Clock &clock,
        QObject *parent = nullptr);

    /// Cached vectors stay. Not while a search is under way.
    void setEmbeddingProvider(SentenceEmbeddingProviding *provider) { m_index.setProvider(provider); }

    /// The live notes that contain the query, case aside; all notes when it is blank.
    [[nodiscard]] QList<DaySection> daySections(const QString &query);
    /// The notes of the hits, days and notes in the order of the hits.
    [[nodiscard]] QList<DaySection> daySections(const QList<SemanticHit> &hits) const;

    [[nodiscard]] SemanticMatches semanticMatches(const QString &query, qsizetype limit);
    /// The other live notes that share words or pairs of characters with this one, best first.
    [[nodiscard]] QList<Note> relatedNotes(const Note &note, qsizetype limit);

    /// Reads the texts in advance, so that the first keystroke need not.
    void prepare() { updateIndex(); }
    /// The notes whose sentence vector is cached.
    [[nodiscard]] QList<QUuid> cachedVectors() const { return m_index.vectors.ids(); }

Q_SIGNALS:
    void changed(); ///< the notes have changed, and every question is answered accordingly

private:
    void followChange(const NoteChange &change);
    void updateIndex();

    const NoteStore &m_notes;
    const Clock &m_clock;
    SearchIndex m_index;
};
