#include "search/SearchIndex.h"

void SearchIndex::dropText(QUuid id)
{
    texts.drop(id);
    m_vectorless.remove(id);
}

void SearchIndex::dropVector(QUuid id)
{
    vectors.remove(id);
    baseline.reset();
}

void SearchIndex::setOrder(const QList<SemanticCandidate> &candidates)
{
    texts.setOrder(candidates);
    baseline.reset();
}

void SearchIndex::makeVector(const SemanticCandidate &text, SentenceEmbeddingProviding &provider)
{
    if (vectors.contains(text.id) || m_vectorless.contains(text.id))
        return;
    if (const auto vector = provider.sentenceVector(text.text)) {
        vectors.insert(text.id, *vector);
        baseline.reset();
    } else {
        m_vectorless.insert(text.id);
    }
}
