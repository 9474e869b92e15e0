#include "probe/Arguments.h"
#include "probe/Operations.h"

#include "search/ConceptEmbeddingProvider.h"
#include "search/SemanticSearch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
QJsonArray sorted(const QSet<QString> &texts)
{
    QStringList list(texts.begin(), texts.end());
    std::sort(list.begin(), list.end(), [](const QString &a, const QString &b) {
        return std::ranges::lexicographical_compare(a.toUcs4(), b.toUcs4());
    });
    return QJsonArray::fromStringList(list);
}

QJsonArray answer(const QList<double> &numbers)
{
    QJsonArray answers;
    for (const double number : numbers)
        answers.append(number);
    return answers;
}

QJsonValue wordTokens(Arguments &arguments)
{
    return sorted(SemanticSearch::wordTokens(arguments.text(u"text"_s)));
}

QJsonValue characterBigrams(Arguments &arguments)
{
    return sorted(SemanticSearch::characterBigrams(arguments.text(u"text"_s)));
}

QJsonValue cosineSimilarity(Arguments &arguments)
{
    const auto cosine =
        SemanticSearch::cosineSimilarity(arguments.numbers(u"a"_s), arguments.numbers(u"b"_s));
    return cosine ? QJsonValue(*cosine) : QJsonValue();
}

QJsonValue baseline(Arguments &arguments)
{
    QList<SemanticSearch::Vector> vectors;
    for (const QJsonValue &element : arguments.array(u"vectors"_s)) {
        Arguments of(QJsonObject{{u"vectors"_s, element}});
        vectors.append(of.numbers(u"vectors"_s));
        if (!of.isGood())
            arguments.fail(of.error());
    }
    return SemanticSearch::baseline(vectors);
}

QJsonValue rankMatches(Arguments &arguments)
{
    const auto parsed = [&arguments](const QString &id) {
        const QUuid uuid = QUuid::fromString(id);
        if (uuid.isNull())
            arguments.fail(u"not a UUID: "_s + id);
        return uuid;
    };
    QList<SemanticCandidate> candidates;
    for (const QJsonValue &element : arguments.array(u"candidates"_s)) {
        Arguments of(element.toObject());
        candidates.append({parsed(of.text(u"id"_s)), of.text(u"text"_s)});
        if (!of.isGood())
            arguments.fail(u"a candidate: "_s + of.error());
    }
    QHash<QUuid, SemanticSearch::Vector> vectors;
    for (const auto &[id, vector] : arguments.numbersByName(u"vectors"_s).asKeyValueRange())
        vectors.insert(parsed(id), vector);
    std::optional<SemanticSearch::Vector> queryVector;
    if (arguments.has(u"queryVector"_s))
        queryVector = arguments.numbers(u"queryVector"_s);

    QJsonArray answers;
    for (const ScoredMatch &match : SemanticSearch::rankMatches(arguments.text(u"query"_s), candidates,
             queryVector, vectors, arguments.integer(u"limit"_s), arguments.integer(u"semanticOnlyCap"_s))) {
        answers.append(QJsonObject{{u"id"_s, Answer::uuid(match.id)}, {u"lexicalScore"_s, match.lexicalScore},
            {u"relativeScore"_s, match.relativeScore ? QJsonValue(*match.relativeScore) : QJsonValue()},
            {u"kind"_s, Answer::kindName(match.kind)}});
    }
    return answers;
}

QJsonValue sentenceVector(Arguments &arguments)
{
    static ConceptEmbeddingProvider provider;
    const auto vector = provider.sentenceVector(arguments.text(u"text"_s));
    return vector ? QJsonValue(answer(*vector)) : QJsonValue();
}
} // namespace

QHash<QString, Operation> searchOperations()
{
    return {
        {u"wordTokens"_s, wordTokens},
        {u"characterBigrams"_s, characterBigrams},
        {u"cosineSimilarity"_s, cosineSimilarity},
        {u"baseline"_s, baseline},
        {u"rankMatches"_s, rankMatches},
        {u"sentenceVector"_s, sentenceVector},
    };
}
