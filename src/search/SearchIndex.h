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
    /// when the provider changes. It must outlive the index.
    void setProvider(SentenceEmbeddingProviding *provider);

    /// The texts in the order in which results come. Must be set again after dropText(), before any search.
    void setCandidates(const QList<SemanticCandidate> &candidates);
    [[nodiscard]] const QList<SemanticCandidate> &candidates() const { return m_candidates; }
    /// Call both when a text has changed or is gone; when a vector is dropped is the owner's decision.
    void dropText(QUuid id);
    void dropVector(QUuid id);

    /// Makes sure that the words of the candidate, and its vector if it has one, are known.
    void read(qsizetype index);
    /// Caches the vector of the text, if there is one and it is not cached yet.
    void makeVector(const SemanticCandidate &text);
    /// Not cached.
    [[nodiscard]] std::optional<SemanticSearch::Vector> queryVector(const QString &query) const;

    LexicalIndex texts;
    VectorCache vectors;
    /// The median cosine of the candidates' vectors, once it has been computed.
    std::optional<double> baseline;

    /// Grows with each change of texts or order.
    [[nodiscard]] quint64 revision() const { return m_revision; }

private:
    SentenceEmbeddingProviding *m_provider = nullptr;
    QList<SemanticCandidate> m_candidates;
    QSet<QUuid> m_vectorless; ///< texts for which the provider yields no vector
    quint64 m_revision = 0;
};
