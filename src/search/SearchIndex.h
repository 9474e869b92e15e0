#pragma once

#include "search/LexicalIndex.h"
#include "search/SentenceEmbeddingProviding.h"
#include "search/VectorCache.h"

#include <QSet>

/// All that is kept about texts to find them: what follows from the text itself, and the sentence vectors,
/// which their owner may keep longer.
class SearchIndex
{
public:
    /// Both to be called when the text changes; the vector's rules are the owner's.
    void dropText(QUuid id);
    void dropVector(QUuid id);
    /// The texts in the order in which results come; to be called after a change before anything is asked.
    void setOrder(const QList<SemanticCandidate> &texts);

    /// Keeps the vector that the provider makes of the text, unless there is one already.
    void makeVector(const SemanticCandidate &text, SentenceEmbeddingProviding &provider);
    /// To be called when the provider is another.
    void forgetVectorless() { m_vectorless.clear(); }

    LexicalIndex texts;
    VectorCache vectors;
    /// The median cosine of the vectors in the order, once it has been worked out.
    std::optional<double> baseline;

private:
    QSet<QUuid> m_vectorless; ///< of whose texts the provider makes no vector
};
