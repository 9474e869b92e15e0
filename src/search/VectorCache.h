#pragma once

#include "search/SemanticSearch.h"

#include <span>
#include <vector>

/// A view of a vector with few non-zero values in a VectorCache. Valid until the cache changes.
struct SparseVector {
    std::span<const quint32> axes; ///< ascending
    std::span<const double> values;
    qsizetype dimension = 0;
    double norm = 0;
};

/// The sentence vectors of texts by id. Only their non-zero values are stored.
class VectorCache
{
public:
    using Vector = SemanticSearch::Vector;

    /// Values of removed vectors beyond which the storage is compacted, once they are more than half of it.
    static constexpr size_t defaultWasteLimit = 65536;
    explicit VectorCache(size_t wasteLimit = defaultWasteLimit)
        : m_wasteLimit(wasteLimit)
    {
    }

    void insert(QUuid id, const Vector &vector);
    void remove(QUuid id);
    [[nodiscard]] bool contains(QUuid id) const { return m_entries.contains(id); }
    [[nodiscard]] std::optional<Vector> vector(QUuid id) const;
    [[nodiscard]] std::optional<SparseVector> find(QUuid id) const;
    [[nodiscard]] QList<QUuid> ids() const { return m_entries.keys(); }
    /// Grows with each change, which invalidates what find() has returned.
    [[nodiscard]] quint64 revision() const { return m_revision; }

private:
    struct Entry {
        size_t begin = 0;
        quint32 count = 0;
        quint32 dimension = 0;
        double norm = 0;
    };
    void compact();

    size_t m_wasteLimit;
    QHash<QUuid, Entry> m_entries;
    std::vector<quint32> m_axes;
    std::vector<double> m_values;
    size_t m_dead = 0; ///< number of values of removed vectors
    quint64 m_revision = 0;
};

/// A query's vector prepared for comparison with many.
class VectorQuery
{
public:
    explicit VectorQuery(SemanticSearch::Vector vector);
    /// Nothing when a vector is empty or has length 0, or when the dimensions differ.
    [[nodiscard]] std::optional<double> cosine(const SparseVector &other) const;

private:
    SemanticSearch::Vector m_vector;
    double m_norm = 0;
};
