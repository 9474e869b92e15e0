// What the index finds in two texts is what the plain rules find. The first line is the query, the second one
// text, the rest the other.
#include "FuzzInput.h"
#include "search/ConceptEmbeddingProvider.h"
#include "search/RankedSearch.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static ConceptEmbeddingProvider provider;
    const auto [query, rest] = FuzzInput(data, size).lineAndRest();
    const qsizetype end = rest.indexOf(u'\n');
    const QList<SemanticCandidate> texts{
        {QUuid(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), rest.first(std::max<qsizetype>(0, end))},
        {QUuid(2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), rest.sliced(end + 1)}};
    const auto queryVector = provider.sentenceVector(query);

    SearchIndex index;
    index.setOrder(texts);
    RankedSearch search(index, &provider, texts, {query, queryVector, 2, 2, {}});
    while (!search.advance(QDeadlineTimer(0))) {
    }
    QHash<QUuid, SemanticSearch::Vector> vectors;
    for (const SemanticCandidate &text : texts) {
        if (const auto vector = provider.sentenceVector(text.text))
            vectors.insert(text.id, *vector);
    }
    const auto plain = SemanticSearch::rankMatches(query, texts, queryVector, vectors, 2, 2);
    require(size_t(plain.size()) == search.matches().size());
    for (size_t i = 0; i < search.matches().size(); ++i)
        require(search.matches()[i].score == plain[qsizetype(i)]);
    return 0;
}
