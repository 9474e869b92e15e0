#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QUuid>

#include <optional>

/// A text that may answer a query.
struct SemanticCandidate {
    QUuid id;
    QString text;
};

enum class SemanticHitKind {
    Substring,    ///< contains the query, case aside
    Lexical,      ///< shares words or pairs of characters with it
    SemanticOnly, ///< shares neither, and is admitted by its vector alone
};

struct ScoredMatch {
    qsizetype index = 0; ///< of the candidate
    double lexicalScore = 0;
    std::optional<double>
        relativeScore; ///< cosine minus baseline; nothing where no vectors could be compared
    SemanticHitKind kind = SemanticHitKind::Lexical;
    bool operator==(const ScoredMatch &) const = default;
};

/// What RankedSearch counts in texts and how much it counts.
namespace SemanticSearch {
using Vector = QList<double>;

inline constexpr double substringScore = 100;
inline constexpr double wordScore = 3; ///< for each shared word; a shared pair of characters counts 1
/// A text without any lexical score is admitted only if its relative score is greater than this.
inline constexpr double admission = 0.03;

/// Whether a word counts: at least two characters, none of them white space.
[[nodiscard]] bool isToken(QStringView word);
/// The words that count, in lower case.
[[nodiscard]] QSet<QString> wordTokens(const QString &text);
/// Pairs of consecutive letters or digits, other characters between them skipped. Case-sensitive.
[[nodiscard]] QSet<QString> characterBigrams(const QString &text);

[[nodiscard]] double norm(const Vector &vector);
} // namespace SemanticSearch
