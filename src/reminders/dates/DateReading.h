#pragma once

#include "reminders/dates/CompiledGrammar.h"
#include "reminders/dates/DateTokens.h"

#include <vector>

/// The words that one language recognises in a draft, and the rules that match there.
class DateReading
{
public:
    using Role = CompiledGrammar::Role;

    /// @p grammar and @p tokens must outlive the reading.
    DateReading(const CompiledGrammar &grammar, const QList<DateToken> &tokens);

    /// A rule that has matched.
    struct Match {
        qsizetype end = 0; ///< the token after the last
        DateFacts facts;
        DateWords::Strength strength = DateWords::Strength::Alone;
    };
    /// Every way in which a rule matches from this token on.
    [[nodiscard]] std::vector<Match> matches(qsizetype start) const;

    /// The token after the longest word of this role that begins here; @p start where there is none.
    [[nodiscard]] qsizetype endOf(Role role, qsizetype start) const;
    /// The tokens after each of the words of this role that begin here.
    [[nodiscard]] std::vector<qsizetype> endsOf(Role role, qsizetype start) const;
    /// The first token of the longest word of this role that ends before the token @p end; @p end for none.
    [[nodiscard]] qsizetype startOf(Role role, qsizetype end) const;
    /// Whether the token is within a word of this role, but not its first.
    [[nodiscard]] bool isWithin(Role role, qsizetype token) const;

private:
    /// A word that begins at some token.
    struct Arc {
        DateWord word;
        qsizetype end = 0;
    };

    void addPhraseArcs(qsizetype start);
    void addNumeralArc(qsizetype start);
    void walk(const CompiledGrammar::Rule &rule, size_t element, qsizetype at, const DateFacts &facts,
        std::vector<Match> &found) const;
    [[nodiscard]] static bool hasRole(const Arc &arc, Role role);

    const CompiledGrammar &m_grammar;
    const QList<DateToken> &m_tokens;
    std::vector<std::vector<Arc>> m_arcs; ///< by first token
};
