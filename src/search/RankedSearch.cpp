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
        finish();
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
    // Where no text is admitted by its vector alone, the baseline only shifts all relative scores alike.
    if (!m_vector || m_semanticOnlyLeft == 0)
        return;
    if (m_index.baseline) {
        m_baseline = *m_index.baseline;
        return;
    }
    std::vector<SparseVector> vectors;
    for (const SemanticCandidate &text : m_texts) {
        if (const auto vector = m_index.vectors.find(text.id))
            vectors.push_back(*vector);
    }
    m_median = std::make_unique<MedianCosine>(vectors);
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

void RankedSearch::finish()
{
    const auto count = std::clamp<qsizetype>(m_limit, 0, qsizetype(m_matches.size()));
    std::partial_sort(
        m_matches.begin(), m_matches.begin() + count, m_matches.end(), [](const Match &a, const Match &b) {
            if (SemanticSearch::isBetter(a.score, b.score))
                return true;
            return !SemanticSearch::isBetter(b.score, a.score) && a.place < b.place;
        });
    m_matches.resize(size_t(count));
    m_matches.shrink_to_fit();
}
