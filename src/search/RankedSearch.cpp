#include "search/RankedSearch.h"

#include <algorithm>

RankedSearch::RankedSearch(SearchIndex &index, SentenceEmbeddingProviding *provider,
    QList<SemanticCandidate> texts, const Request &request)
    : m_index(index)
    , m_provider(provider)
    , m_texts(std::move(texts))
    , m_limit(request.limit)
    , m_semanticOnlyLeft(request.semanticOnlyCap)
    , m_except(request.except)
    , m_query(request.query)
    , m_contains(size_t(m_texts.size()))
    // Where no text is admitted by its vector alone, the baseline only shifts all relative scores alike: it
    // is not needed but to settle which of two is better that are all but equal.
    , m_needsBaseline(request.queryVector && request.semanticOnlyCap > 0)
{
    Q_ASSERT(m_texts.size() == m_index.texts.size());
    if (request.queryVector)
        m_vector.emplace(*request.queryVector);
    for (const qsizetype place : m_index.texts.containing(request.query.trimmed()))
        m_contains[size_t(place)] = true;
}

bool RankedSearch::advance(const QDeadlineTimer &deadline)
{
    // The places one after another, with a look at the clock now and then.
    const auto eachPlace = [&](auto work) {
        constexpr qsizetype between = 64;
        for (; m_next < m_texts.size(); ++m_next) {
            if (m_next % between == between - 1 && deadline.hasExpired())
                return false;
            work(m_next);
        }
        m_next = 0;
        return true;
    };
    if (m_stage == Stage::Reading) {
        if (!eachPlace([this](qsizetype place) { read(place); }))
            return false;
        if (m_query.isEmpty()) {
            m_stage = Stage::Done;
            return true;
        }
        prepareBaseline();
        m_stage = Stage::Baseline;
    }
    if (m_stage == Stage::Baseline) {
        if (m_median) {
            if (!m_median->advance(deadline))
                return false;
            m_index.baseline = m_median->value();
            m_baseline = m_median->value();
        }
        m_stage = Stage::Comparing;
    }
    if (m_stage == Stage::Comparing) {
        if (!eachPlace([this](qsizetype place) { compare(place); }))
            return false;
        sortBest();
        const bool lacksBaseline = m_vector && !m_needsBaseline;
        if (lacksBaseline && hasCloseScores())
            m_median = std::make_unique<MedianCosine>(candidateVectors());
        m_stage = Stage::Settling;
    }
    if (m_stage == Stage::Settling) {
        if (m_median && !m_needsBaseline) {
            if (!m_median->advance(deadline))
                return false;
            settle();
        }
        m_matches.resize(size_t(resultSize()));
        m_matches.shrink_to_fit();
        m_stage = Stage::Done;
    }
    return true;
}

void RankedSearch::read(qsizetype place)
{
    const SemanticCandidate &text = m_texts[place];
    if (!m_index.texts.hasWords(place))
        m_index.texts.readWords(place, text.text);
    if (m_provider)
        m_index.makeVector(text, *m_provider);
}

void RankedSearch::prepareBaseline()
{
    if (!m_needsBaseline)
        return;
    if (m_index.baseline)
        m_baseline = *m_index.baseline;
    else
        m_median = std::make_unique<MedianCosine>(candidateVectors());
}

std::vector<SparseVector> RankedSearch::candidateVectors() const
{
    std::vector<SparseVector> vectors;
    for (const SemanticCandidate &text : m_texts) {
        const auto vector = text.id == m_except ? std::nullopt : m_index.vectors.find(text.id);
        if (vector)
            vectors.push_back(*vector);
    }
    return vectors;
}

void RankedSearch::compare(qsizetype place)
{
    const QUuid id = m_texts[place].id;
    if (id == m_except)
        return;
    ScoredMatch match{id, m_query.score(m_index.texts.lexis(place)), {}, SemanticHitKind::Lexical};
    if (m_vector) {
        const auto vector = m_index.vectors.find(id);
        if (const auto cosine = vector ? m_vector->cosine(*vector) : std::nullopt)
            match.relativeScore = *cosine - m_baseline;
    }
    if (match.lexicalScore > 0) {
        if (m_contains[size_t(place)])
            match.kind = SemanticHitKind::Substring;
        m_matches.push_back({place, match});
    } else if (match.relativeScore.value_or(0) > SemanticSearch::admission && m_semanticOnlyLeft > 0) {
        match.kind = SemanticHitKind::SemanticOnly;
        m_matches.push_back({place, match});
        --m_semanticOnlyLeft;
    }
}

qsizetype RankedSearch::resultSize() const
{
    return std::clamp<qsizetype>(m_limit, 0, qsizetype(m_matches.size()));
}

void RankedSearch::sortBest()
{
    // One more than is told: it may be as good as the last.
    const auto count = std::min(resultSize() + 1, qsizetype(m_matches.size()));
    std::partial_sort(
        m_matches.begin(), m_matches.begin() + count, m_matches.end(), [](const Match &a, const Match &b) {
            if (SemanticSearch::isBetter(a.score, b.score))
                return true;
            return !SemanticSearch::isBetter(b.score, a.score) && a.place < b.place;
        });
}

bool RankedSearch::hasCloseScores() const
{
    // So close that taking the baseline away could round them to one, or put them in another order.
    constexpr double close = 1e-12;
    const auto count = std::min(resultSize() + 1, qsizetype(m_matches.size()));
    for (qsizetype i = 1; i < count; ++i) {
        const ScoredMatch &a = m_matches[size_t(i) - 1].score;
        const ScoredMatch &b = m_matches[size_t(i)].score;
        if (a.lexicalScore == b.lexicalScore && a.relativeScore && b.relativeScore
            && *a.relativeScore != *b.relativeScore && *a.relativeScore - *b.relativeScore < close)
            return true;
    }
    return false;
}

void RankedSearch::settle()
{
    for (Match &match : m_matches) {
        if (match.score.relativeScore)
            *match.score.relativeScore -= m_median->value();
    }
    sortBest();
}
