#pragma once

#include "search/SemanticSearch.h"

#include <span>
#include <vector>

/// A vector of which few axes are not zero.
struct SparseVector {
    std::span<const quint32> axes; ///< ascending
    std::span<const double> values;
    qsizetype dimension = 0;
    double norm = 0;
};

/// The sentence vectors of texts by id, each kept as what is not zero of it.
class VectorCache
{
public:
    using Vector = SemanticSearch::Vector;

    void insert(QUuid id, const Vector &vector);
    void remove(QUuid id);
    [[nodiscard]] bool contains(QUuid id) const { return m_entries.contains(id); }
    [[nodiscard]] std::optional<Vector> vector(QUuid id) const;
    /// What it shows lives until the cache changes.
    [[nodiscard]] std::optional<SparseVector> find(QUuid id) const;
    [[nodiscard]] QList<QUuid> ids() const { return m_entries.keys(); }

private:
    struct Entry {
        size_t begin = 0;
        quint32 count = 0;
        quint32 dimension = 0;
        double norm = 0;
    };
    void dropDead();

    QHash<QUuid, Entry> m_entries;
    std::vector<quint32> m_axes;
    std::vector<double> m_values;
    size_t m_dead = 0; ///< values of vectors that are gone
};

/// A query's vector made ready to be compared with many.
class VectorQuery
{
public:
    explicit VectorQuery(SemanticSearch::Vector vector);
    /// As SemanticSearch::cosineSimilarity, to the last bit.
    [[nodiscard]] std::optional<double> cosine(const SparseVector &other) const;

private:
    SemanticSearch::Vector m_vector;
    double m_norm = 0;
};
