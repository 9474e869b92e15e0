// The search in slices finds in two texts what the plain rules find. The first line is the query, the second
// one text, the rest the other.
#include "FuzzInput.h"
#include "search/ConceptEmbeddingProvider.h"
#include "search/PlainRanking.h"
#include "search/RankedSearch.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static ConceptEmbeddingProvider provider;
    const auto [query, rest] = FuzzInput(data, size).lineAndRest();
    const qsizetype end = rest.indexOf(u'\n');
    const QList<SemanticCandidate> texts{
        {QUuid(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), rest.first(std::max<qsizetype>(0, end))},
        {QUuid(2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), rest.sliced(end + 1)}};

    SearchIndex index;
    index.setProvider(&provider);
    index.setCandidates(texts);
    const RankedSearch::Request request{query, index.queryVector(query), 2, 2};
    RankedSearch search(index, request);
    while (!search.advance(QDeadlineTimer(0))) {
    }
    QHash<QUuid, SemanticSearch::Vector> vectors;
    for (const SemanticCandidate &text : texts) {
        if (const auto vector = provider.sentenceVector(text.text))
            vectors.insert(text.id, *vector);
    }
    const auto plain = PlainRanking::rankMatches(query, texts, request.queryVector, vectors, 2, 2);
    require(std::ranges::equal(search.matches(), plain));
    return 0;
}
