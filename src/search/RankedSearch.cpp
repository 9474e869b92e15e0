#include "search/RankedSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
/// Whether @p a comes before @p b; equal scores keep the order of the candidates.
bool isBetter(const ScoredMatch &a, const ScoredMatch &b)
{
    if (a.lexicalScore != b.lexicalScore)
        return a.lexicalScore > b.lexicalScore;
    constexpr double none = -std::numeric_limits<double>::infinity();
    const double relativeA = a.relativeScore.value_or(none);
    const double relativeB = b.relativeScore.value_or(none);
    return relativeA != relativeB ? relativeA > relativeB : a.index < b.index;
}

/// Whether subtracting the baseline could make the scores equal or swap them.
bool areClose(const ScoredMatch &a, const ScoredMatch &b)
{
    constexpr double close = 1e-12;
    return a.lexicalScore == b.lexicalScore && a.relativeScore && b.relativeScore
           && *a.relativeScore != *b.relativeScore && std::abs(*a.relativeScore - *b.relativeScore) < close;
}
} // namespace

RankedSearch::RankedSearch(SearchIndex &index, const Request &request)
    : m_index(index)
    , m_limit(request.limit)
    , m_semanticOnlyLeft(request.semanticOnlyCap)
    , m_except(request.except)
    , m_query(request.query)
    , m_preparedQuery(LexicalIndex::prepared(request.query))
    , m_needsBaseline(request.queryVector && !request.except)
    , m_indexRevision(index.revision())
{
    if (request.queryVector)
        m_vector.emplace(*request.queryVector);
    Q_ASSERT(index.isCurrent());
    Q_ASSERT(!request.except || request.semanticOnlyCap == 0);
}

bool RankedSearch::advance(const QDeadlineTimer &deadline)
{
    Q_ASSERT(m_index.revision() == m_indexRevision);
    const auto forEachCandidate = [&](auto work) {
        constexpr qsizetype checkInterval = 64;
        while (m_next < m_index.candidates().size()) {
            work(m_next);
            if (++m_next % checkInterval == 0 && deadline.hasExpired())
                return false; // after some work, so that a deadline of 0 makes progress too
        }
        m_next = 0;
        return true;
    };
    if (m_stage == Stage::Reading) {
        if (!forEachCandidate([this](qsizetype index) { m_index.read(index); }))
            return false;
        if (m_query.isEmpty()) {
            m_stage = Stage::Done;
            return true;
        }
        beginBaseline();
        m_stage = Stage::Baseline;
    }
    if (m_stage == Stage::Baseline) {
        if (m_median) {
            if (!advanceMedian(deadline))
                return false;
            m_baseline = m_median->value();
            m_index.setBaseline(m_baseline);
        }
        m_stage = Stage::Comparing;
    }
    if (m_stage == Stage::Comparing) {
        if (!forEachCandidate([this](qsizetype index) { compare(index); }))
            return false;
        endComparing();
        m_stage = Stage::Settling;
    }
    if (m_stage == Stage::Settling) {
        if (m_median && !m_needsBaseline) {
            if (!advanceMedian(deadline))
                return false;
            settle();
        }
        finish();
        m_stage = Stage::Done;
    }
    return true;
}

void RankedSearch::beginMedian()
{
    m_vectorRevision = m_index.vectors.revision();
    std::vector<SparseVector> vectors;
    for (const SemanticCandidate &candidate : m_index.candidates()) {
        const auto vector = candidate.id == m_except ? std::nullopt : m_index.vectors.find(candidate.id);
        if (vector)
            vectors.push_back(*vector);
    }
    m_median = std::make_unique<MedianCosine>(vectors);
}

bool RankedSearch::advanceMedian(const QDeadlineTimer &deadline)
{
    if (m_index.vectors.revision() != m_vectorRevision)
        beginMedian();
    return m_median->advance(deadline);
}

void RankedSearch::beginBaseline()
{
    if (!m_needsBaseline)
        return;
    if (const auto known = m_index.baseline())
        m_baseline = *known;
    else
        beginMedian();
}

void RankedSearch::compare(qsizetype index)
{
    const QUuid id = m_index.candidates()[index].id;
    if (id == m_except)
        return;
    ScoredMatch match{index, m_query.score(m_index.texts.lexis(index)), {}, SemanticHitKind::Lexical};
    if (m_vector) {
        const auto vector = m_index.vectors.find(id);
        if (const auto cosine = vector ? m_vector->cosine(*vector) : std::nullopt)
            match.relativeScore = *cosine - m_baseline;
    }
    if (match.lexicalScore > 0) {
        m_scored.push_back(match);
    } else if (match.relativeScore.value_or(0) > SemanticSearch::admission && m_semanticOnlyLeft > 0) {
        match.kind = SemanticHitKind::SemanticOnly;
        m_scored.push_back(match);
        --m_semanticOnlyLeft;
    }
}

void RankedSearch::endComparing()
{
    sortBest();
    const bool lacksBaseline = m_vector && !m_needsBaseline;
    if (lacksBaseline && hasCloseScores())
        beginMedian();
}

qsizetype RankedSearch::resultSize() const
{
    return std::clamp<qsizetype>(m_limit, 0, qsizetype(m_scored.size()));
}

void RankedSearch::sortBest()
{
    std::partial_sort(m_scored.begin(), m_scored.begin() + resultSize(), m_scored.end(), isBetter);
}

bool RankedSearch::hasCloseScores() const
{
    const auto end = m_scored.begin() + resultSize();
    if (end == m_scored.begin())
        return false;
    const ScoredMatch &last = *(end - 1);
    return std::adjacent_find(m_scored.begin(), end, areClose) != end
           || std::any_of(
               end, m_scored.end(), [&last](const ScoredMatch &other) { return areClose(last, other); });
}

void RankedSearch::settle()
{
    for (ScoredMatch &match : m_scored) {
        if (match.relativeScore)
            *match.relativeScore -= m_median->value();
    }
    sortBest();
}

void RankedSearch::finish()
{
    m_matches.assign(m_scored.begin(), m_scored.begin() + resultSize());
    for (ScoredMatch &match : m_matches) {
        if (match.lexicalScore > 0 && m_index.texts.contains(match.index, m_preparedQuery))
            match.kind = SemanticHitKind::Substring;
    }
    m_median.reset();
    m_scored = {};
}
