#include "model/NoteSearch.h"

#include "foundation/Clock.h"
#include "model/Days.h"
#include "model/NoteStore.h"

#include <algorithm>

SemanticMatches::SemanticMatches(SearchIndex &index, const QString &query, qsizetype limit)
{
    constexpr qsizetype semanticOnlyCap = 2;
    if (query.trimmed().isEmpty())
        return;
    const QList<qsizetype> containing = index.texts.containing(query);
    const qsizetype count = std::clamp<qsizetype>(limit, 0, containing.size());
    for (const qsizetype note : containing.first(count))
        m_hits.append({note, SemanticHitKind::Substring});
    if (containing.isEmpty())
        m_search.emplace(
            index, RankedSearch::Request{query, index.queryVector(query), limit, semanticOnlyCap});
}

bool SemanticMatches::advance(const QDeadlineTimer &deadline)
{
    if (!m_search)
        return true;
    if (!m_search->advance(deadline))
        return false;
    for (const ScoredMatch &match : m_search->matches())
        m_hits.append({match.index, match.kind});
    m_search.reset();
    return true;
}

NoteSearch::NoteSearch(
    const NoteStore &notes, SentenceEmbeddingProviding *provider, const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_notes(notes)
    , m_clock(clock)
{
    m_index.setProvider(provider);
    connect(&m_notes, &NoteStore::notesChanged, this, &NoteSearch::followChange);
}

void NoteSearch::followChange(const NoteChange &change)
{
    for (const QUuid id : change.texts)
        m_index.dropText(id);
    for (const QUuid id : change.vectors)
        m_index.dropVector(id);
    m_index.invalidate();
    Q_EMIT changed();
}

void NoteSearch::updateIndex()
{
    if (m_index.isCurrent())
        return;
    QList<SemanticCandidate> candidates;
    candidates.reserve(m_notes.notes().size());
    for (const Note &note : m_notes.notes())
        candidates.append({note.id, note.text});
    m_index.setCandidates(candidates);
}

QList<DaySection> NoteSearch::daySections(const QString &query)
{
    if (query.trimmed().isEmpty())
        return Days::group(m_notes.notes(), Days::all(m_notes.notes()), m_clock.calendar());
    updateIndex();
    return Days::group(m_notes.notes(), m_index.texts.containing(query), m_clock.calendar());
}

QList<DaySection> NoteSearch::daySections(const QList<SemanticHit> &hits) const
{
    QList<qsizetype> indexes;
    for (const SemanticHit &hit : hits)
        indexes.append(hit.note);
    return Days::group(m_notes.notes(), indexes, m_clock.calendar());
}

SemanticMatches NoteSearch::semanticMatches(const QString &query, qsizetype limit)
{
    updateIndex();
    return {m_index, query, limit};
}

QList<Note> NoteSearch::relatedNotes(const Note &note, qsizetype limit)
{
    updateIndex();
    const bool hasOthers = std::any_of(m_notes.notes().begin(), m_notes.notes().end(),
        [&note](const Note &other) { return other.id != note.id; });
    if (!hasOthers)
        return {};
    m_index.makeVector({note.id, note.text});
    RankedSearch search(m_index, {note.text, m_index.vectors.vector(note.id), limit, 0, note.id});
    search.advance();
    QList<Note> related;
    for (const ScoredMatch &match : search.matches())
        related.append(m_notes.notes()[match.index]);
    return related;
}
