#pragma once

#include "reminders/dates/DateGrammar.h"

#include <vector>

/// A draft as one language reads it.
class DateReading
{
public:
    using Match = DateGrammar::Match;
    using Role = DateGrammar::Role;

    /// @p grammar and @p tokens must outlive the reading.
    DateReading(const DateGrammar &grammar, const QList<DateToken> &tokens);

    /// Every way in which a rule matches from this token on.
    [[nodiscard]] std::vector<Match> matches(qsizetype start) const;

    /// The token behind the longest word of this role that begins here; @p start where there is none.
    [[nodiscard]] qsizetype endOf(Role role, qsizetype start) const;
    /// The tokens behind each of the words of this role that begin here.
    [[nodiscard]] std::vector<qsizetype> endsOf(Role role, qsizetype start) const;
    /// The first token of the longest word of this role that ends before the token @p end; @p end for none.
    [[nodiscard]] qsizetype startOf(Role role, qsizetype end) const;
    /// Whether the token stands within such a word, behind its beginning.
    [[nodiscard]] bool isWithin(Role role, qsizetype token) const;

private:
    using Entry = DateGrammar::Entry;
    using Element = DateGrammar::Element;
    using Rule = DateGrammar::Rule;
    using Kind = DateGrammar::Kind;
    using Slot = DateGrammar::Slot;

    /// A word of the language that begins at some token.
    struct Arc {
        Entry entry;
        qsizetype end = 0;
        int digits = 0; ///< of a number; 0 when it is in words
        bool isHanNumeral = false;
        bool isBehindMark = false; ///< "/27" and the like
    };

    void addPhraseArcs(qsizetype start);
    void addNumeralArc(qsizetype start);
    void walk(const Rule &rule, size_t element, qsizetype at, const DateFacts &facts,
        std::vector<Match> &found) const;
    [[nodiscard]] static bool take(const Element &element, const Arc &arc, DateFacts &facts);

    const DateGrammar &m_grammar;
    const QList<DateToken> &m_tokens;
    std::vector<std::vector<Arc>> m_arcs; ///< by first token
};
