#include "search/SearchIndex.h"

void SearchIndex::setProvider(SentenceEmbeddingProviding *provider)
{
    m_provider = provider;
    m_vectorless.clear();
    invalidate();
}

void SearchIndex::setCandidates(const QList<SemanticCandidate> &candidates)
{
    invalidate();
    m_candidates = candidates;
    texts.setOrder(candidates);
    m_isCurrent = true;
}

void SearchIndex::invalidate()
{
    ++m_revision;
    m_isCurrent = false;
    m_baseline.reset();
}

void SearchIndex::dropText(QUuid id)
{
    invalidate();
    texts.drop(id);
    m_vectorless.remove(id);
}

void SearchIndex::dropVector(QUuid id)
{
    vectors.remove(id);
    m_baseline.reset();
}

void SearchIndex::read(qsizetype index)
{
    const SemanticCandidate &candidate = m_candidates[index];
    if (!texts.hasWords(index))
        texts.readWords(index, candidate.text);
    makeVector(candidate);
}

void SearchIndex::makeVector(const SemanticCandidate &text)
{
    if (!m_provider || vectors.contains(text.id) || m_vectorless.contains(text.id))
        return;
    // The baseline stays: once it is known, all candidates have been read, and this text is none of them.
    if (const auto vector = m_provider->sentenceVector(text.text))
        vectors.insert(text.id, *vector);
    else
        m_vectorless.insert(text.id);
}

std::optional<SemanticSearch::Vector> SearchIndex::queryVector(const QString &query) const
{
    return m_provider ? m_provider->sentenceVector(query.trimmed()) : std::nullopt;
}
