#include "probe/Operations.h"

#include "search/ConceptEmbeddingProvider.h"
#include "search/RankedSearch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
/// By code point.
template <QSet<QString> (*function)(const QString &)>
QStringList sorted(const QString &text)
{
    QStringList list = function(text).values();
    std::ranges::sort(list, [](const QString &a, const QString &b) {
        return std::ranges::lexicographical_compare(a.toUcs4(), b.toUcs4());
    });
    return list;
}

QUuid numbered(qsizetype number)
{
    return QUuid(uint(number), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

/// Views of the vectors, which are inserted into the cache.
std::vector<SparseVector> sparse(const QList<QList<double>> &vectors, VectorCache &cache)
{
    for (qsizetype i = 0; i < vectors.size(); ++i)
        cache.insert(numbered(i), vectors[i]);
    std::vector<SparseVector> views;
    for (qsizetype i = 0; i < vectors.size(); ++i)
        views.push_back(*cache.find(numbered(i)));
    return views;
}

QJsonValue cosineSimilarity(Arguments &arguments)
{
    VectorCache cache;
    const auto other = sparse({arguments.numbers(u"b"_s)}, cache).front();
    return Answer::of(VectorQuery(arguments.numbers(u"a"_s)).cosine(other));
}

QJsonValue baseline(Arguments &arguments)
{
    QList<QList<double>> vectors;
    for (const QJsonValue &vector : arguments.array(u"vectors"_s)) {
        Arguments of(QJsonObject{{u"vectors"_s, vector}});
        vectors.append(of.numbers(u"vectors"_s));
        if (!of.isGood())
            arguments.fail(of.error());
    }
    VectorCache cache;
    MedianCosine median(sparse(vectors, cache));
    median.advance(QDeadlineTimer(QDeadlineTimer::Forever));
    return median.value();
}

QJsonValue rankMatches(Arguments &arguments)
{
    const auto parsed = [&arguments](const QString &id) {
        const QUuid uuid = QUuid::fromString(id);
        if (uuid.isNull())
            arguments.fail(u"not a UUID: "_s + id);
        return uuid;
    };
    QHash<QUuid, QList<double>> vectors;
    for (const auto &[id, vector] : arguments.numbersByName(u"vectors"_s).asKeyValueRange())
        vectors.insert(parsed(id), vector);
    // The index knows its candidates by ids of their own, since the request may repeat one.
    SearchIndex index;
    QList<QUuid> ids;
    QList<SemanticCandidate> candidates;
    for (const QJsonValue &element : arguments.array(u"candidates"_s)) {
        Arguments of(element.toObject());
        ids.append(parsed(of.text(u"id"_s)));
        candidates.append({numbered(candidates.size()), of.text(u"text"_s)});
        if (const auto vector = vectors.constFind(ids.last()); vector != vectors.cend())
            index.vectors.insert(candidates.last().id, *vector);
        if (!of.isGood())
            arguments.fail(u"a candidate: "_s + of.error());
    }
    index.setCandidates(candidates);
    RankedSearch::Request request{arguments.text(u"query"_s), {}, arguments.integer(u"limit"_s),
        arguments.integer(u"semanticOnlyCap"_s)};
    if (arguments.has(u"queryVector"_s))
        request.queryVector = arguments.numbers(u"queryVector"_s);
    if (!arguments.isGood())
        return {};

    RankedSearch search(index, request);
    search.advance();
    QJsonArray answers;
    for (const ScoredMatch &match : search.matches()) {
        answers.append(
            QJsonObject{{u"id"_s, Answer::of(ids[match.index])}, {u"lexicalScore"_s, match.lexicalScore},
                {u"relativeScore"_s, Answer::of(match.relativeScore)}, {u"kind"_s, Answer::of(match.kind)}});
    }
    return answers;
}

std::optional<QList<double>> sentenceVector(const QString &text)
{
    static ConceptEmbeddingProvider provider;
    return provider.sentenceVector(text);
}
} // namespace

QHash<QString, Operation> searchOperations()
{
    return {
        {u"wordTokens"_s, onTexts(sorted<SemanticSearch::wordTokens>, u"text"_s)},
        {u"characterBigrams"_s, onTexts(sorted<SemanticSearch::characterBigrams>, u"text"_s)},
        {u"cosineSimilarity"_s, cosineSimilarity},
        {u"baseline"_s, baseline},
        {u"rankMatches"_s, rankMatches},
        {u"sentenceVector"_s, onTexts(sentenceVector, u"text"_s)},
    };
}
