#pragma once

#include "search/LexicalIndex.h"
#include "search/SentenceEmbeddingProviding.h"
#include "search/VectorCache.h"

#include <QSet>

/// Everything kept about texts in order to find them: data derived from the texts themselves, and their
/// sentence vectors, which the owner may keep longer.
class SearchIndex
{
public:
    /// Without a provider there are only the vectors that are put into the cache by hand. Cached vectors stay
    /// when the provider changes. It must outlive the index. Invalidates.
    void setProvider(SentenceEmbeddingProviding *provider);

    /// The texts in the order in which results come.
    void setCandidates(const QList<SemanticCandidate> &candidates);
    /// Call when texts or their order have changed. The candidates must be set again before any search.
    void invalidate();
    [[nodiscard]] bool isCurrent() const { return m_isCurrent; }
    [[nodiscard]] const QList<SemanticCandidate> &candidates() const { return m_candidates; }
    /// Call when a text has changed or is gone; invalidates.
    void dropText(QUuid id);
    void dropVector(QUuid id); ///< when is the owner's decision

    /// Makes sure that the words of the candidate, and its vector if it has one, are known.
    void read(qsizetype index);
    /// Caches the vector of the text, if there is one and it is not cached yet.
    void makeVector(const SemanticCandidate &text);
    /// Not cached.
    [[nodiscard]] std::optional<SemanticSearch::Vector> queryVector(const QString &query) const;

    LexicalIndex texts;
    VectorCache vectors;

    /// The median cosine of the vectors of all candidates, once it has been set. All must have been read.
    [[nodiscard]] std::optional<double> baseline() const { return m_baseline; }
    void setBaseline(std::optional<double> baseline) { m_baseline = baseline; }

    /// Grows whenever texts or their order have changed or are set.
    [[nodiscard]] quint64 revision() const { return m_revision; }

private:
    SentenceEmbeddingProviding *m_provider = nullptr;
    QList<SemanticCandidate> m_candidates;
    QSet<QUuid> m_vectorless; ///< texts for which the provider yields no vector
    std::optional<double> m_baseline;
    bool m_isCurrent = false;
    quint64 m_revision = 0;
};
