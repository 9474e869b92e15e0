#pragma once

#include "foundation/TextRange.h"

#include <QString>
#include <QVarLengthArray>

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

    class Search;

    /// Lazy, single-pass range over the non-overlapping matches from left to right. The text must outlive it.
    class Matches
    {
    public:
        explicit Matches(std::unique_ptr<Search> search);
        ~Matches();

        struct End {
        };
        class Iterator
        {
        public:
            explicit Iterator(Search *search)
                : m_search(search)
            {
                ++*this;
            }
            const Match &operator*() const;
            Iterator &operator++();
            bool operator==(End) const { return !m_search; }

        private:
            Search *m_search; ///< null after the last match
        };
        [[nodiscard]] Iterator begin() { return Iterator(m_search.get()); }
        [[nodiscard]] End end() const { return {}; }

    private:
        std::unique_ptr<Search> m_search;
    };

    explicit Regex(const QString &pattern, Case caseRule = Case::Sensitive);
    ~Regex();
    Regex(Regex &&) noexcept;
    Regex &operator=(Regex &&) noexcept;

    [[nodiscard]] std::optional<Match> firstMatch(QStringView text) const;
    [[nodiscard]] Matches allMatches(QStringView text) const;
    /// The text with every match replaced by @p replacement, taken literally.
    [[nodiscard]] QString replaced(QStringView text, QStringView replacement) const;
    [[nodiscard]] bool matchesIn(QStringView text) const { return firstMatch(text).has_value(); }

private:
    struct Compiled;
    std::unique_ptr<const Compiled> m_compiled; ///< read-only, so searches may run on several threads
};
