#include "search/MedianCosine.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <random>

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();

bool isSame(const SparseVector &a, const SparseVector &b)
{
    return a.dimension == b.dimension && std::ranges::equal(a.axes, b.axes)
           && std::ranges::equal(a.values, b.values);
}

size_t hash(const SparseVector &vector)
{
    return qHashMulti(0, vector.dimension, qHashBits(vector.axes.data(), vector.axes.size_bytes()),
        qHashBits(vector.values.data(), vector.values.size_bytes()));
}

std::optional<double> cosine(const SparseVector &a, const SparseVector &b)
{
    const double norms = a.norm * b.norm;
    if (a.dimension != b.dimension || !(norms > 0))
        return std::nullopt;
    double dot = 0;
    for (size_t i = 0, j = 0; i < a.axes.size() && j < b.axes.size();) {
        if (a.axes[i] == b.axes[j])
            dot += a.values[i++] * b.values[j++];
        else if (a.axes[i] < b.axes[j])
            ++i;
        else
            ++j;
    }
    return dot / norms;
}

quint64 pairsAmong(quint64 count)
{
    return count * (count - 1) / 2;
}
} // namespace

MedianCosine::MedianCosine(const std::vector<SparseVector> &vectors)
{
    if (const auto common = commonCosine(vectors)) {
        m_value = *common;
        m_isDone = true;
        return;
    }
    QHash<size_t, std::vector<size_t>> groupsByHash;
    for (const SparseVector &vector : vectors) {
        std::vector<size_t> &alike = groupsByHash[hash(vector)];
        const auto known = std::find_if(
            alike.begin(), alike.end(), [&](size_t group) { return isSame(m_groups[group].vector, vector); });
        if (known != alike.end()) {
            ++m_groups[*known].count;
        } else {
            alike.push_back(m_groups.size());
            m_groups.push_back({vector, 1});
        }
    }
    beginPass(likelyWindow());
}

std::optional<double> MedianCosine::commonCosine(const std::vector<SparseVector> &vectors)
{
    if (vectors.size() < 2)
        return std::nullopt;
    const SparseVector &first = vectors.front();
    const double norms = first.norm * first.norm;
    if (!(norms > 0))
        return std::nullopt;
    std::vector<quint64> countOfAxis(size_t(first.dimension));
    std::vector<bool> isAlike(
        size_t(first.dimension), true); ///< whether all vectors with this axis have the first one's value
    std::vector<double> firstValues(size_t(first.dimension));
    for (size_t i = 0; i < first.axes.size(); ++i)
        firstValues[first.axes[i]] = first.values[i];
    for (const SparseVector &vector : vectors) {
        if (vector.dimension != first.dimension || vector.norm != first.norm)
            return std::nullopt;
        for (size_t i = 0; i < vector.axes.size(); ++i) {
            const quint32 axis = vector.axes[i];
            ++countOfAxis[axis];
            if (vector.values[i] != firstValues[axis])
                isAlike[axis] = false;
        }
    }

    // The cosine of two vectors that share only the axes which all have, and an upper bound for the number of
    // pairs that share another one: a pair that shares several is counted several times.
    double dot = 0;
    quint64 others = 0;
    for (size_t axis = 0; axis < countOfAxis.size(); ++axis) {
        if (countOfAxis[axis] == vectors.size() && isAlike[axis])
            dot += firstValues[axis] * firstValues[axis];
        else if (countOfAxis[axis] > 0)
            others += pairsAmong(countOfAxis[axis]);
    }
    const quint64 pairs = pairsAmong(vectors.size());
    return others < pairs && pairs - others >= pairs / 2 + 1 ? std::optional(dot / norms) : std::nullopt;
}

MedianCosine::Window MedianCosine::likelyWindow() const
{
    constexpr size_t fewPairs = 1'000'000;
    if (m_groups.size() * m_groups.size() / 2 <= fewPairs)
        return {-infinity, infinity};
    std::vector<double> weights;
    for (const Group &group : m_groups)
        weights.push_back(double(group.count));
    std::discrete_distribution<size_t> pick(weights.begin(), weights.end());
    std::minstd_rand random(1);
    constexpr size_t sampleSize = 20'000;
    std::vector<double> sample;
    for (size_t i = 0; i < sampleSize; ++i) {
        if (const auto each = cosine(m_groups[pick(random)].vector, m_groups[pick(random)].vector))
            sample.push_back(*each);
    }
    if (sample.empty())
        return {-infinity, infinity};
    std::sort(sample.begin(), sample.end());
    return {sample[sample.size() * 48 / 100], sample[sample.size() * 52 / 100]};
}

void MedianCosine::beginPass(Window window)
{
    m_window = window;
    m_block = m_other = 0;
    m_below = m_total = 0;
    m_inside.clear();
}

bool MedianCosine::advance(const QDeadlineTimer &deadline)
{
    constexpr size_t checkInterval = 256; // comparisons with a block between two checks of the deadline
    size_t sinceCheck = 0;
    while (!m_isDone) {
        if (m_block >= m_groups.size()) {
            endPass();
            continue;
        }
        compareWithBlock(m_other);
        if (++m_other >= m_groups.size()) {
            m_block += blockSize;
            m_other = m_block;
        }
        if (++sinceCheck % checkInterval == 0 && deadline.hasExpired())
            return m_isDone;
    }
    return true;
}

void MedianCosine::compareWithBlock(size_t other)
{
    const size_t rows = std::min(blockSize, m_groups.size() - m_block);
    if (other == m_block) {
        // The block's values of one axis are adjacent, so that one pass over the other vector's values
        // multiplies with all vectors of the block.
        qsizetype dimension = 0;
        for (size_t row = 0; row < rows; ++row)
            dimension = std::max(dimension, m_groups[m_block + row].vector.dimension);
        m_columns.assign(size_t(dimension) * blockSize, 0.0);
        for (size_t row = 0; row < rows; ++row) {
            const SparseVector &vector = m_groups[m_block + row].vector;
            for (size_t i = 0; i < vector.axes.size(); ++i)
                m_columns[vector.axes[i] * blockSize + row] = vector.values[i];
        }
    }
    const Group &with = m_groups[other];
    std::array<double, blockSize> dots{};
    for (size_t i = 0; i < with.vector.axes.size(); ++i) {
        if (with.vector.axes[i] * blockSize >= m_columns.size())
            break; // of a higher dimension than all vectors of the block, so that no pair has a cosine
        const double value = with.vector.values[i];
        const double *const column = &m_columns[with.vector.axes[i] * blockSize];
        for (size_t row = 0; row < blockSize; ++row)
            dots[row] += value * column[row];
    }
    for (size_t row = 0; row < rows && m_block + row <= other; ++row) {
        const Group &group = m_groups[m_block + row];
        const double norms = group.vector.norm * with.vector.norm;
        if (group.vector.dimension != with.vector.dimension || !(norms > 0))
            continue;
        const quint64 pairs = m_block + row == other ? pairsAmong(group.count) : group.count * with.count;
        if (pairs > 0)
            count(dots[row] / norms, pairs);
    }
}

void MedianCosine::count(double cosine, quint64 pairs)
{
    m_total += pairs;
    if (cosine < m_window.low)
        m_below += pairs;
    else if (cosine <= m_window.high)
        m_inside[std::bit_cast<quint64>(cosine + 0.0)] += pairs; // -0 is 0
}

void MedianCosine::endPass()
{
    if (m_total == 0) {
        m_isDone = true;
        return;
    }
    quint64 inside = 0;
    std::vector<std::pair<double, quint64>> cosines;
    for (auto [bits, pairs] : m_inside.asKeyValueRange()) {
        cosines.emplace_back(std::bit_cast<double>(bits), pairs);
        inside += pairs;
    }
    const quint64 upper = m_total / 2;
    const quint64 lower = m_total % 2 == 1 ? upper : upper - 1;
    if (lower < m_below) {
        beginPass({-infinity, m_window.high});
        return;
    }
    if (upper >= m_below + inside) {
        beginPass({m_window.low, infinity});
        return;
    }
    std::sort(cosines.begin(), cosines.end());
    const auto at = [&](quint64 rank) {
        quint64 before = m_below;
        for (const auto &[cosine, pairs] : cosines) {
            before += pairs;
            if (rank < before)
                return cosine;
        }
        return cosines.back().first;
    };
    m_value = lower == upper ? at(upper) : (at(lower) + at(upper)) / 2;
    m_isDone = true;
}
