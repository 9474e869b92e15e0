#pragma once

#include <QList>
#include <QString>

#include <optional>

/// Computes a vector for the meaning of a text: texts of similar meaning have vectors of similar direction.
class SentenceEmbeddingProviding
{
public:
    virtual ~SentenceEmbeddingProviding() = default;
    /// Nothing when the text has no vector. Equal texts always give equal results.
    [[nodiscard]] virtual std::optional<QList<double>> sentenceVector(const QString &text) = 0;
};
