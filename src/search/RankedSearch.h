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
/// Between slices the texts and the order of the index must not change. Once all texts have been read, no
/// vector may be added or dropped either, since the baseline keeps views into the vector cache.
class RankedSearch
{
public:
    struct Request {
        QString query;
        std::optional<SemanticSearch::Vector> queryVector;
        qsizetype limit = 0;
        qsizetype semanticOnlyCap = 0;
        std::optional<QUuid> except = {}; ///< a candidate to leave out
        /// The baseline shifts all relative scores alike. Where no candidate is admitted by its vector alone
        /// and only the order matters, it need not be subtracted and mostly not be computed.
        bool onlyOrderMatters = false;
    };

    /// The index must outlive the search.
    RankedSearch(SearchIndex &index, const Request &request);

    /// Works until it is done or @p deadline has expired; returns whether it is done.
    bool advance(const QDeadlineTimer &deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    /// Best first. Empty until it is done.
    [[nodiscard]] const std::vector<ScoredMatch> &matches() const { return m_matches; }

private:
    enum class Stage { Reading, Baseline, Comparing, Settling, Done };
    [[nodiscard]] bool isIndexUnchanged() const;
    [[nodiscard]] std::unique_ptr<MedianCosine> medianOfCandidates();
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
    quint64 m_vectorRevision = 0; ///< when m_median was made

    Stage m_stage = Stage::Reading;
    qsizetype m_next = 0; ///< the next candidate in this stage
    std::unique_ptr<MedianCosine> m_median;
    double m_baseline = 0;
    std::vector<ScoredMatch> m_scored;
    std::vector<ScoredMatch> m_matches;
};
