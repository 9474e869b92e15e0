#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QUuid>

#include <optional>

struct SemanticCandidate {
    QUuid id;
    QString text;
    bool operator==(const SemanticCandidate &) const = default;
};

enum class SemanticHitKind {
    Substring,    ///< contains the query, case aside
    Lexical,      ///< shares words or pairs of characters with it
    SemanticOnly, ///< shares neither, and is admitted by its vector alone
};

struct ScoredMatch {
    QUuid id;
    double lexicalScore = 0;
    std::optional<double> relativeScore; ///< cosine less baseline; nothing where no vectors could be compared
    SemanticHitKind kind = SemanticHitKind::Lexical;
    bool operator==(const ScoredMatch &) const = default;
};

/// How texts resemble a query: the rules in their plain form. What the stores ask at each key press is
/// RankedSearch, which answers the same from a SearchIndex.
namespace SemanticSearch {
using Vector = QList<double>;

inline constexpr double substringScore = 100;
inline constexpr double wordScore = 3; ///< for each word that both have; a shared pair of characters counts 1
/// What a relative score must exceed where nothing else speaks for a text.
inline constexpr double admission = 0.03;

/// Whether a word counts: two characters or more, and no blank in it.
[[nodiscard]] bool isToken(QStringView word);
/// The words that count, in lower case.
[[nodiscard]] QSet<QString> wordTokens(const QString &text);
/// Letters and digits that follow each other, whatever else stands between them. Case counts.
[[nodiscard]] QSet<QString> characterBigrams(const QString &text);

[[nodiscard]] double norm(const Vector &vector);
/// Nothing when a vector is empty or of length 0, or when they are of different dimensions.
[[nodiscard]] std::optional<double> cosineSimilarity(const Vector &a, const Vector &b);
/// The median of the cosines of all pairs; 0 when no pair has one.
[[nodiscard]] double baseline(const QList<Vector> &vectors);

/// Whether the first of two matches comes before the second where the order of the candidates does not
/// decide.
[[nodiscard]] bool isBetter(const ScoredMatch &a, const ScoredMatch &b);

/// The best matches first. @p semanticOnlyCap is filled in the order of the candidates, not by the best.
[[nodiscard]] QList<ScoredMatch> rankMatches(const QString &query, const QList<SemanticCandidate> &candidates,
    const std::optional<Vector> &queryVector, const QHash<QUuid, Vector> &vectors, qsizetype limit,
    qsizetype semanticOnlyCap);
} // namespace SemanticSearch
