#include "search/ConceptEmbeddingProvider.h"

#include "search/SemanticSearch.h"

#include <algorithm>
#include <cmath>

struct ConceptEmbeddingProvider::Model {
    Model(const ConceptLexicon &lexicon)
        : finder(lexicon)
        , themeCount(lexicon.themes.size())
        , axisCount(1 + themeCount + qsizetype(lexicon.concepts.size()))
    {
        for (const ConceptLexicon::Concept &each : lexicon.concepts)
            themeOf.push_back(each.theme);
    }

    ConceptFinder finder;
    qsizetype themeCount;
    qsizetype axisCount;
    std::vector<int> themeOf; ///< by index of the concept
};

namespace {
/// Makes the length exactly 1 by changing the last bits of one value, so that all vectors that share only the
/// common axis have exactly the same cosine.
void makeLengthExact(QList<double> &vector, double &adjusted)
{
    constexpr int maxSteps = 200;
    for (int i = 0; i < maxSteps; ++i) {
        const double length = SemanticSearch::norm(vector);
        if (length == 1.0)
            return;
        adjusted = std::nextafter(adjusted, length > 1.0 ? 0.0 : 1.0);
    }
}
} // namespace

ConceptEmbeddingProvider::ConceptEmbeddingProvider() = default;
ConceptEmbeddingProvider::~ConceptEmbeddingProvider() = default;

std::optional<QList<double>> ConceptEmbeddingProvider::sentenceVector(const QString &text)
{
    if (!m_model)
        m_model = std::make_unique<Model>(ConceptLexicon::shipped());
    const std::vector<ConceptFinder::Found> found = m_model->finder.find(text);
    if (found.empty())
        return std::nullopt;

    constexpr double maxWeight = 1.5; // so that a concept named repeatedly does not outweigh the others
    QList<double> vector(m_model->axisCount, 0.0);
    double *const themes = vector.data() + 1;
    double *const concepts = themes + m_model->themeCount;
    for (const ConceptFinder::Found &each : found) {
        double &value = concepts[each.meaning];
        const double added = std::min(each.weight, maxWeight - value);
        value += added;
        themes[m_model->themeOf[size_t(each.meaning)]] += added * themeWeight;
    }
    const double scale = std::sqrt(1 - commonShare) / SemanticSearch::norm(vector);
    for (double &value : vector)
        value *= scale;
    vector.front() = std::sqrt(commonShare);
    makeLengthExact(vector, *std::max_element(vector.begin() + 1, vector.end()));
    return vector;
}
