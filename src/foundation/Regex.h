#pragma once

#include "foundation/TextRange.h"

#include <QString>
#include <QVarLengthArray>

#include <memory>
#include <mutex>
#include <optional>

/// A regular expression in ICU syntax over UTF-16, where \d, \s and \b know all of Unicode.
///
/// Compiled on first use and then shared read-only. A pattern that does not compile matches nothing, and so
/// does a search that runs over its limit of time: no text may hold up the program.
class Regex
{
public:
    enum class Case { Sensitive, Insensitive };

    /// What one match captured; group 0 is the whole match.
    class Match
    {
    public:
        /// Nothing when the group took no part in the match.
        [[nodiscard]] std::optional<TextRange> group(int number) const;
        [[nodiscard]] TextRange range() const { return m_groups.front(); }

    private:
        friend class Regex;
        QVarLengthArray<TextRange, 6> m_groups;
    };

    class Search;

    /// The matches from left to right, not overlapping, each looked for when it is its turn. To be walked
    /// once, while the text lives.
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
            Search *m_search; ///< null behind the last match
        };
        [[nodiscard]] Iterator begin() { return Iterator(m_search.get()); }
        [[nodiscard]] End end() const { return {}; }

    private:
        std::unique_ptr<Search> m_search;
    };

    Regex()
        : Regex(QString())
    {
    } ///< matches nothing
    explicit Regex(QString pattern, Case caseRule = Case::Sensitive);
    ~Regex();
    Regex(const Regex &) = delete;
    Regex &operator=(const Regex &) = delete;

    [[nodiscard]] std::optional<Match> firstMatch(QStringView text) const;
    [[nodiscard]] Matches allMatches(QStringView text) const;
    /// The text with every match written as @p replacement, which is taken as it is.
    [[nodiscard]] QString replaced(QStringView text, QStringView replacement) const;
    [[nodiscard]] bool matchesIn(QStringView text) const { return firstMatch(text).has_value(); }

private:
    struct Compiled;
    [[nodiscard]] const Compiled &compiled() const;

    QString m_pattern;
    Case m_case;
    mutable std::once_flag m_once;
    mutable std::unique_ptr<Compiled> m_compiled;
};
