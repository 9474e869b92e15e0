#pragma once

#include "search/VectorCache.h"

#include <QDeadlineTimer>
#include <QHash>

#include <vector>

/// The baseline of a search: the exact median of the cosines of all pairs of vectors, 0 when no pair has a
/// cosine. Computed in slices, so that typing never waits for it, and without a cosine per pair if possible.
///
/// If more than half of the pairs certainly have one and the same cosine, that is the median: the vectors
/// agree in the axes that all of them have, and most pairs share no other axis. Otherwise all pairs are
/// visited, equal vectors as one and many at a time; only cosines near the median are stored.
class MedianCosine
{
public:
    /// The cache that the vectors show must not change while this exists.
    explicit MedianCosine(const std::vector<SparseVector> &vectors);

    /// Works until it is done or @p deadline has expired; returns whether it is done.
    bool advance(const QDeadlineTimer &deadline);
    [[nodiscard]] double value() const { return m_value; }

private:
    /// Equal vectors.
    struct Group {
        SparseVector vector;
        quint64 count = 0;
    };
    struct Window {
        double low;
        double high;
    };

    [[nodiscard]] static std::optional<double> commonCosine(const std::vector<SparseVector> &vectors);
    [[nodiscard]] Window likelyWindow() const;
    void beginPass(Window window);
    void compareWithBlock(size_t other);
    void count(double cosine, quint64 pairs);
    void endPass();

    static constexpr size_t blockSize = 64;

    std::vector<Group> m_groups;
    double m_value = 0;
    bool m_isDone = false;

    // The current pass.
    Window m_window{};
    size_t m_block = 0; ///< the first of the groups with which the others are compared
    size_t m_other = 0;
    std::vector<double> m_columns; ///< the block's values, axis by axis
    quint64 m_below = 0;           ///< number of pairs with a cosine below the window
    quint64 m_total = 0;
    QHash<quint64, quint64> m_inside; ///< number of pairs by the bits of their cosine
};
