#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>
#include <QVarLengthArray>

#include <functional>
#include <memory>
#include <optional>

/// A regular expression in ICU syntax over UTF-16, where \d, \s and \b know all of Unicode.
///
/// A pattern that does not compile is a fault of the program and ends it, naming the pattern. A search that
/// exceeds its time limit matches nothing, so no text can block the program.
class Regex
{
public:
    enum class Case { Sensitive, Insensitive };

    /// What one match captured; group 0 is the whole match.
    class Match
    {
    public:
        /// Empty when the group did not take part in the match.
        [[nodiscard]] std::optional<TextRange> group(int number) const;
        [[nodiscard]] TextRange range() const { return m_groups.front(); }

    private:
        friend class Regex;
        QVarLengthArray<TextRange, 6> m_groups;
    };

    explicit Regex(const QString &pattern, Case caseRule = Case::Sensitive);

    [[nodiscard]] std::optional<Match> firstMatch(QStringView text) const;
    /// From left to right, not overlapping.
    [[nodiscard]] QList<Match> allMatches(QStringView text) const;
    /// The text with every match replaced by @p replacement, taken literally.
    [[nodiscard]] QString replaced(QStringView text, QStringView replacement) const;
    [[nodiscard]] bool matchesIn(QStringView text) const { return firstMatch(text).has_value(); }

private:
    struct Compiled;
    /// Goes on to the next match while @p visit returns true.
    void visitMatches(QStringView text, const std::function<bool(const Match &)> &visit) const;

    std::shared_ptr<const Compiled> m_compiled; ///< read-only, so searches may run on several threads
};
