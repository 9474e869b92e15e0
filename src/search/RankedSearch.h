#pragma once

#include "search/LexicalQuery.h"
#include "search/MedianCosine.h"
#include "search/SearchIndex.h"

#include <QDeadlineTimer>

#include <memory>

/// SemanticSearch::rankMatches over the texts of an index, worked out in slices.
///
/// Not to be used any more once the index has changed by other hands.
class RankedSearch
{
public:
    struct Request {
        QString query;
        std::optional<SemanticSearch::Vector> queryVector;
        qsizetype limit = 0;
        qsizetype semanticOnlyCap = 0;
        std::optional<QUuid> except; ///< a text of the order that is no candidate
    };

    /// @p texts are those of the index, in its order. Makes the vectors that are missing; without a provider
    /// there are those that the index has.
    RankedSearch(SearchIndex &index, SentenceEmbeddingProviding *provider, QList<SemanticCandidate> texts,
        const Request &request);

    /// Works on until it is done or the time is over; whether it is done.
    bool advance(const QDeadlineTimer &deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    struct Match {
        qsizetype place = 0; ///< in the order of the texts
        ScoredMatch score;
    };
    /// The best first, once it is done.
    [[nodiscard]] const std::vector<Match> &matches() const { return m_matches; }

private:
    enum class Stage { Reading, Baseline, Comparing, Settling, Done };
    void read(qsizetype place);
    void prepareBaseline();
    void compare(qsizetype place);
    [[nodiscard]] std::vector<SparseVector> candidateVectors() const;
    [[nodiscard]] qsizetype resultSize() const;
    void sortBest();
    [[nodiscard]] bool hasCloseScores() const;
    void settle();

    SearchIndex &m_index;
    SentenceEmbeddingProviding *m_provider;
    QList<SemanticCandidate> m_texts;
    qsizetype m_limit;
    qsizetype m_semanticOnlyLeft;
    std::optional<QUuid> m_except;
    LexicalQuery m_query;
    std::optional<VectorQuery> m_vector;
    std::vector<bool> m_contains; ///< by place: case aside
    bool m_needsBaseline;

    Stage m_stage = Stage::Reading;
    qsizetype m_next = 0; ///< the place that is next in this stage
    std::unique_ptr<MedianCosine> m_median;
    double m_baseline = 0;
    std::vector<Match> m_matches;
};
