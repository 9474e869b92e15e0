#pragma once

#include "search/LexicalQuery.h"
#include "search/MedianCosine.h"
#include "search/SearchIndex.h"

#include <QDeadlineTimer>

#include <memory>

/// Ranks the candidates of an index by how much they resemble a query, in slices.
///
/// A candidate's lexical score counts shared words and pairs of characters; its relative score is the cosine
/// of its vector and the query's minus the baseline, the median cosine among the candidates. A candidate
/// without lexical score is admitted if its relative score exceeds SemanticSearch::admission, as long as the
/// cap allows; the cap is filled in the order of the candidates, not by the best.
///
/// Between slices the texts and the order of the index must not change. Where a vector has been added, the
/// computation of the baseline starts again, since it keeps views into the vector cache.
class RankedSearch
{
public:
    struct Request {
        QString query;
        std::optional<SemanticSearch::Vector> queryVector;
        qsizetype limit = 0;
        qsizetype semanticOnlyCap = 0;
        /// A candidate to leave out. Only the order of the matches is then defined, and the cap must be 0:
        /// the baseline, which shifts all relative scores alike, is computed only where the order depends on
        /// it.
        std::optional<QUuid> except = {};
    };

    /// The index must outlive the search.
    RankedSearch(SearchIndex &index, const Request &request);

    /// Works until it is done or @p deadline has expired; returns whether it is done.
    bool advance(const QDeadlineTimer &deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    /// Best first. Empty until it is done.
    [[nodiscard]] const std::vector<ScoredMatch> &matches() const { return m_matches; }

private:
    enum class Stage { Reading, Baseline, Comparing, Settling, Done };
    void beginMedian();
    [[nodiscard]] bool advanceMedian(const QDeadlineTimer &deadline);
    void beginBaseline();
    void compare(qsizetype index);
    void endComparing();
    [[nodiscard]] bool hasCloseScores() const;
    void settle();
    void finish();
    [[nodiscard]] qsizetype resultSize() const;
    void sortBest();

    SearchIndex &m_index;
    qsizetype m_limit;
    qsizetype m_semanticOnlyLeft;
    std::optional<QUuid> m_except;
    LexicalQuery m_query;
    QByteArray m_preparedQuery; ///< for LexicalIndex::contains()
    std::optional<VectorQuery> m_vector;
    bool m_needsBaseline;
    quint64 m_indexRevision;
    quint64 m_vectorRevision = 0; ///< when m_median was begun

    Stage m_stage = Stage::Reading;
    qsizetype m_next = 0; ///< the next candidate in this stage
    std::unique_ptr<MedianCosine> m_median;
    double m_baseline = 0;
    std::vector<ScoredMatch> m_scored;
    std::vector<ScoredMatch> m_matches;
};
