#pragma once

#include "foundation/CaseFolding.h"
#include "search/SemanticSearch.h"

#include <QHash>

#include <algorithm>
#include <limits>

/// The rules of RankedSearch and MedianCosine in their plain form, to compare them with.
namespace PlainRanking {
using SemanticSearch::Vector;

inline std::optional<double> cosineSimilarity(const Vector &a, const Vector &b)
{
    if (a.isEmpty() || a.size() != b.size())
        return std::nullopt;
    double dot = 0;
    for (qsizetype i = 0; i < a.size(); ++i)
        dot += a[i] * b[i];
    const double norms = SemanticSearch::norm(a) * SemanticSearch::norm(b);
    return norms > 0 ? std::optional(dot / norms) : std::nullopt;
}

inline double baseline(const QList<Vector> &vectors)
{
    std::vector<double> cosines;
    for (qsizetype i = 0; i < vectors.size(); ++i) {
        for (qsizetype j = i + 1; j < vectors.size(); ++j) {
            if (const auto cosine = cosineSimilarity(vectors[i], vectors[j]))
                cosines.push_back(*cosine);
        }
    }
    if (cosines.empty())
        return 0;
    std::sort(cosines.begin(), cosines.end());
    const size_t middle = cosines.size() / 2;
    return cosines.size() % 2 == 1 ? cosines[middle] : (cosines[middle - 1] + cosines[middle]) / 2;
}

inline double overlap(const QSet<QString> &a, const QSet<QString> &b)
{
    return double(QSet(a).intersect(b).size());
}

/// Best first.
inline QList<ScoredMatch> rankMatches(const QString &query, const QList<SemanticCandidate> &candidates,
    const std::optional<Vector> &queryVector, const QHash<QUuid, Vector> &vectors, qsizetype limit,
    qsizetype semanticOnlyCap)
{
    const QString trimmed = query.trimmed();
    if (trimmed.isEmpty())
        return {};
    QList<Vector> known;
    for (const SemanticCandidate &candidate : candidates) {
        if (vectors.contains(candidate.id))
            known.append(vectors.value(candidate.id));
    }
    const double base = queryVector ? baseline(known) : 0;

    const QString lowerQuery = trimmed.toLower();
    const QSet<QString> queryWords = SemanticSearch::wordTokens(lowerQuery);
    const QSet<QString> queryPairs = SemanticSearch::characterBigrams(lowerQuery);
    QList<ScoredMatch> matches;
    for (qsizetype index = 0; index < candidates.size(); ++index) {
        const SemanticCandidate &candidate = candidates[index];
        ScoredMatch match{index, 0, {}, SemanticHitKind::Lexical};
        const QString text = candidate.text.toLower();
        match.lexicalScore = (text.contains(lowerQuery) ? 100 : 0)
                             + 3 * overlap(SemanticSearch::wordTokens(text), queryWords)
                             + overlap(SemanticSearch::characterBigrams(text), queryPairs);
        if (queryVector && vectors.contains(candidate.id)) {
            if (const auto cosine = cosineSimilarity(*queryVector, vectors.value(candidate.id)))
                match.relativeScore = *cosine - base;
        }
        if (match.lexicalScore > 0) {
            if (CaseFolding::folded(candidate.text).contains(CaseFolding::folded(trimmed)))
                match.kind = SemanticHitKind::Substring;
            matches.append(match);
        } else if (match.relativeScore.value_or(0) > 0.03 && semanticOnlyCap > 0) {
            match.kind = SemanticHitKind::SemanticOnly;
            matches.append(match);
            --semanticOnlyCap;
        }
    }
    std::stable_sort(matches.begin(), matches.end(), [](const ScoredMatch &a, const ScoredMatch &b) {
        constexpr double none = -std::numeric_limits<double>::infinity();
        return std::pair(a.lexicalScore, a.relativeScore.value_or(none))
               > std::pair(b.lexicalScore, b.relativeScore.value_or(none));
    });
    return matches.first(std::clamp<qsizetype>(limit, 0, matches.size()));
}
} // namespace PlainRanking
