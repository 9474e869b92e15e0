#pragma once

#include "search/ConceptFinder.h"
#include "search/SentenceEmbeddingProviding.h"

#include <memory>

/// Computes sentence vectors from the concepts that occur in a text, without a model or network access.
///
/// A vector has one axis whose value is the same in all vectors, one for each theme and one for each concept;
/// its length is exactly 1 in double precision. A text without a known concept has no vector.
class ConceptEmbeddingProvider final : public SentenceEmbeddingProviding
{
public:
    ConceptEmbeddingProvider();
    ~ConceptEmbeddingProvider() override;

    /// The first call reads the shipped lexicon.
    [[nodiscard]] std::optional<QList<double>> sentenceVector(const QString &text) override;

    /// The share of the common axis in a vector's squared length. It is the cosine of two texts without a
    /// common theme, and mostly the median of a store. A match must lie SemanticSearch::admission above it,
    /// that is admission / (1 - commonShare) of the rest.
    static constexpr double commonShare = 0.87;
    /// The weight of a theme relative to its concepts.
    static constexpr double themeWeight = 0.45;

private:
    struct Model;
    std::unique_ptr<Model> m_model;
};
