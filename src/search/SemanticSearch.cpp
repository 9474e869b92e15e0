#include "search/SemanticSearch.h"

#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "foundation/WordTokenizer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
QStringView part(const QString &text, TextRange range)
{
    return QStringView(text).sliced(range.start, range.length());
}

char32_t firstCodePoint(QStringView character)
{
    return character.front().isHighSurrogate() && character.size() > 1
               ? QChar::surrogateToUcs4(character[0], character[1])
               : character.front().unicode();
}

/// How many of the smaller set's members are in the other.
qsizetype overlap(const QSet<QString> &a, const QSet<QString> &b)
{
    const auto &[smaller, larger] = a.size() < b.size() ? std::tie(a, b) : std::tie(b, a);
    return std::count_if(smaller.begin(), smaller.end(),
        [&larger = larger](const QString &each) { return larger.contains(each); });
}
} // namespace

bool SemanticSearch::isToken(QStringView word)
{
    return std::none_of(word.begin(), word.end(), [](QChar character) { return character.isSpace(); })
           && (Characters::areSingleCodePoints(word)
                      ? word.size()
                            - qsizetype(std::count_if(
                                word.begin(), word.end(), [](QChar unit) { return unit.isLowSurrogate(); }))
                      : Characters::all(word).size())
                  >= 2;
}

QSet<QString> SemanticSearch::wordTokens(const QString &text)
{
    QSet<QString> tokens;
    for (const TextRange range : WordTokenizer::words(text)) {
        const QString word = part(text, range).toString().toLower();
        if (isToken(word))
            tokens.insert(word);
    }
    return tokens;
}

QSet<QString> SemanticSearch::characterBigrams(const QString &text)
{
    QSet<QString> pairs;
    QStringView previous;
    for (const TextRange range : Characters::all(text)) {
        const QStringView character = part(text, range);
        if (!QChar::isLetterOrNumber(firstCodePoint(character)))
            continue;
        if (!previous.isEmpty())
            pairs.insert(previous.toString().append(character));
        previous = character;
    }
    return pairs;
}

double SemanticSearch::norm(const Vector &vector)
{
    double sum = 0;
    for (const double value : vector)
        sum += value * value;
    return std::sqrt(sum);
}

std::optional<double> SemanticSearch::cosineSimilarity(const Vector &a, const Vector &b)
{
    if (a.isEmpty() || a.size() != b.size())
        return std::nullopt;
    double dot = 0;
    for (qsizetype i = 0; i < a.size(); ++i)
        dot += a[i] * b[i];
    const double norms = norm(a) * norm(b);
    return norms > 0 ? std::optional(dot / norms) : std::nullopt;
}

double SemanticSearch::baseline(const QList<Vector> &vectors)
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

bool SemanticSearch::isBetter(const ScoredMatch &a, const ScoredMatch &b)
{
    if (a.lexicalScore != b.lexicalScore)
        return a.lexicalScore > b.lexicalScore;
    constexpr double none = -std::numeric_limits<double>::infinity();
    return a.relativeScore.value_or(none) > b.relativeScore.value_or(none);
}

QList<ScoredMatch> SemanticSearch::rankMatches(const QString &query,
    const QList<SemanticCandidate> &candidates, const std::optional<Vector> &queryVector,
    const QHash<QUuid, Vector> &vectors, qsizetype limit, qsizetype semanticOnlyCap)
{
    const QString trimmed = query.trimmed();
    if (trimmed.isEmpty() || candidates.isEmpty())
        return {};
    double base = 0;
    if (queryVector) {
        QList<Vector> known;
        for (const SemanticCandidate &candidate : candidates) {
            if (const auto found = vectors.constFind(candidate.id); found != vectors.cend())
                known.append(*found);
        }
        base = baseline(known);
    }

    const QString lowerQuery = trimmed.toLower();
    const QString foldedQuery = CaseFolding::folded(trimmed);
    const QSet<QString> queryWords = wordTokens(lowerQuery);
    const QSet<QString> queryPairs = characterBigrams(lowerQuery);
    QList<ScoredMatch> matches;
    qsizetype semanticOnly = 0;
    for (const SemanticCandidate &candidate : candidates) {
        ScoredMatch match{candidate.id, 0, {}, SemanticHitKind::Lexical};
        const QString text = candidate.text.toLower();
        match.lexicalScore = (text.contains(lowerQuery) ? substringScore : 0)
                             + wordScore * double(overlap(wordTokens(text), queryWords))
                             + double(overlap(characterBigrams(text), queryPairs));
        if (const auto found = vectors.constFind(candidate.id); queryVector && found != vectors.cend()) {
            if (const auto cosine = cosineSimilarity(*queryVector, *found))
                match.relativeScore = *cosine - base;
        }
        if (match.lexicalScore > 0) {
            if (CaseFolding::folded(candidate.text).contains(foldedQuery))
                match.kind = SemanticHitKind::Substring;
            matches.append(match);
        } else if (match.relativeScore.value_or(0) > admission && semanticOnly < semanticOnlyCap) {
            match.kind = SemanticHitKind::SemanticOnly;
            matches.append(match);
            ++semanticOnly;
        }
    }
    std::stable_sort(matches.begin(), matches.end(), isBetter);
    return matches.first(std::clamp<qsizetype>(limit, 0, matches.size()));
}
