#include "search/VectorCache.h"

void VectorCache::insert(QUuid id, const Vector &vector)
{
    remove(id);
    ++m_revision;
    if (m_dead > m_wasteLimit && m_dead > m_values.size() / 2)
        compact();
    Entry entry{m_values.size(), 0, quint32(vector.size()), SemanticSearch::norm(vector)};
    for (qsizetype axis = 0; axis < vector.size(); ++axis) {
        // Zeros add nothing to a sum of products, so leaving them out changes no bit of a result.
        if (vector[axis] != 0.0) {
            m_axes.push_back(quint32(axis));
            m_values.push_back(vector[axis]);
            ++entry.count;
        }
    }
    m_entries.insert(id, entry);
}

void VectorCache::remove(QUuid id)
{
    const auto found = m_entries.constFind(id);
    if (found == m_entries.cend())
        return;
    ++m_revision;
    m_dead += found->count;
    m_entries.erase(found);
}

void VectorCache::compact()
{
    std::vector<quint32> axes;
    std::vector<double> values;
    for (Entry &entry : m_entries) {
        const auto begin = qsizetype(entry.begin);
        entry.begin = values.size();
        axes.insert(axes.end(), m_axes.begin() + begin, m_axes.begin() + begin + entry.count);
        values.insert(values.end(), m_values.begin() + begin, m_values.begin() + begin + entry.count);
    }
    m_axes = std::move(axes);
    m_values = std::move(values);
    m_dead = 0;
}

std::optional<VectorCache::Vector> VectorCache::vector(QUuid id) const
{
    const auto sparse = find(id);
    if (!sparse)
        return std::nullopt;
    Vector vector(sparse->dimension, 0.0);
    for (size_t i = 0; i < sparse->axes.size(); ++i)
        vector[sparse->axes[i]] = sparse->values[i];
    return vector;
}

std::optional<SparseVector> VectorCache::find(QUuid id) const
{
    const auto found = m_entries.constFind(id);
    if (found == m_entries.cend())
        return std::nullopt;
    return SparseVector{std::span(m_axes).subspan(found->begin, found->count),
        std::span(m_values).subspan(found->begin, found->count), found->dimension, found->norm};
}

VectorQuery::VectorQuery(SemanticSearch::Vector vector)
    : m_vector(std::move(vector))
    , m_norm(SemanticSearch::norm(m_vector))
{
}

std::optional<double> VectorQuery::cosine(const SparseVector &other) const
{
    const double norms = m_norm * other.norm;
    if (m_vector.size() != other.dimension || !(norms > 0))
        return std::nullopt;
    double dot = 0;
    for (size_t i = 0; i < other.axes.size(); ++i)
        dot += m_vector[other.axes[i]] * other.values[i];
    return dot / norms;
}
