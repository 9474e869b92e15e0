#pragma once

#include "search/ConceptFinder.h"
#include "search/SentenceEmbeddingProviding.h"

#include <memory>

/// Sentence vectors out of the concepts that a text speaks of: no model, no network.
///
/// A vector has one axis that is the same in all, one for each theme and one for each concept, and is of
/// length 1 to the last bit. A text in which no concept is known has none.
class ConceptEmbeddingProvider final : public SentenceEmbeddingProviding
{
public:
    ConceptEmbeddingProvider();
    ~ConceptEmbeddingProvider() override;

    /// Reads the shipped lexicon when it is first asked for a vector.
    [[nodiscard]] std::optional<QList<double>> sentenceVector(const QString &text) override;

    /// How much of a vector's squared length is the axis that all share. Two texts without a common theme
    /// have this as their cosine, and so does the median of a store; what is shown must lie 0.03 above it,
    /// which is 0.03 / (1 - share) of what the concepts say.
    static constexpr double commonShare = 0.87;
    /// How much a theme counts beside its concepts.
    static constexpr double themeWeight = 0.45;

private:
    struct Model;
    std::unique_ptr<Model> m_model;
};
