#pragma once

#include "search/VectorCache.h"

#include <QDeadlineTimer>
#include <QHash>

#include <vector>

/// The baseline of SemanticSearch, exact, without a cosine for each pair where that can be: worked out in
/// slices, so that a key press need not wait for it.
///
/// Where more than half of the pairs are sure to have one and the same cosine, that is the median: the
/// vectors agree in the axes that all have, and most pairs share no other. Otherwise the pairs are gone
/// through, equal vectors together and many at a time; only those near the median are kept apart.
class MedianCosine
{
public:
    /// What the vectors show must live as long as this.
    explicit MedianCosine(const std::vector<SparseVector> &vectors);

    /// Works on until it is done or the time is over; whether it is done.
    bool advance(const QDeadlineTimer &deadline);
    [[nodiscard]] double value() const { return m_value; }

private:
    /// Vectors that are the same.
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

    // The pass that is under way.
    Window m_window{};
    size_t m_block = 0; ///< the first of the groups that the others are compared with
    size_t m_other = 0;
    std::vector<double> m_columns; ///< the block's values, axis by axis
    quint64 m_below = 0;           ///< pairs whose cosine lies below the window
    quint64 m_total = 0;
    QHash<quint64, quint64> m_inside; ///< pairs by the bits of their cosine
};
