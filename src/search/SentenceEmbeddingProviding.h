#pragma once

#include <QList>
#include <QString>

#include <optional>

/// Makes a vector of what a text means: texts that mean alike have vectors that point alike.
class SentenceEmbeddingProviding
{
public:
    virtual ~SentenceEmbeddingProviding() = default;
    /// Nothing when no vector can be made. The same text always has the same answer.
    [[nodiscard]] virtual std::optional<QList<double>> sentenceVector(const QString &text) = 0;
};
