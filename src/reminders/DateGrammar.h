#pragma once

#include "reminders/DateTokens.h"
#include "reminders/DateWords.h"

#include <QHash>
#include <QSet>

#include <utility>
#include <vector>

/// A language's date words, made ready to be matched.
class DateGrammar
{
public:
    /// @p announcements are phrases that announce a reminder: where one begins, something else has ended.
    DateGrammar(const DateWords &words, const std::vector<QStringView> &announcements);

    /// A rule that has matched: the tokens up to an end, and what they say.
    struct Match {
        qsizetype end = 0; ///< the token behind the last
        DateFacts facts;
        DateWords::Strength strength = DateWords::Strength::Alone;
    };
    /// What a word does around a date rather than in it.
    enum class Role { Before, Between, After, NotAfter, NotBefore, Idiom, Announcement };

    class Reading;

    /// Whether a word of a draft speaks for this language: a weekday, a month, a unit of time ...
    [[nodiscard]] bool isTelling(const QString &word) const { return m_telling.contains(word); }

private:
    enum class Kind { Relative, Weekday, Month, Number, Ordinal, Part, Unit, WeekdayAndPart, Role, Literal };
    enum class Slot {
        Literal,
        Hour,
        Minute,
        TwoDigits,
        Day,
        DayInDigits,
        MonthNumber,
        Month,
        Year,
        Count,
        Unit,
        Weekday,
        Relative,
        Part,
        Ordinal,
        WeekdayAndPart,
        Until,
    };
    struct Entry {
        Kind kind = Kind::Literal;
        int value = 0;
    };
    struct Node {
        std::vector<std::pair<QString, size_t>> next; ///< by the text of a token: one or a few
        std::vector<Entry> entries;                   ///< what the tokens up to here may be
    };
    struct Element {
        Slot slot = Slot::Literal;
        std::vector<int> literals;
        bool isOptional = false;
    };
    struct Rule {
        std::vector<Element> elements;
        DateFacts facts;
        DateWords::Strength strength;
    };

    void addPhrase(QStringView phrase, Entry entry);
    void addPhrases(QStringView alternatives, Entry entry);
    void addRule(const DateWords::Rule &rule);
    int literal(QStringView phrase);
    [[nodiscard]] static size_t index(Entry entry);

    /// The node behind a token, 0 for none; 0 is also the one before the first token.
    [[nodiscard]] size_t next(size_t node, const QString &token) const;

    QHash<QString, size_t> m_first; ///< the nodes behind the first tokens: hundreds
    std::vector<Node> m_nodes{1};   ///< a tree of the tokens of all phrases
    QHash<QString, int> m_literals;
    QSet<QString> m_telling;
    std::vector<Rule> m_rules;
    std::vector<std::vector<size_t>> m_rulesByFirst; ///< by the index of the entry that they can begin with
    bool m_hasHanNumerals = false;
};

/// A draft as one language reads it.
class DateGrammar::Reading
{
public:
    Reading(const DateGrammar &grammar, const QList<DateToken> &tokens);

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
