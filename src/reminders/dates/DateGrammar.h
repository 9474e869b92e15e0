#pragma once

#include "reminders/dates/DateTokens.h"
#include "reminders/dates/DateWords.h"

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

    /// Whether a word of a draft speaks for this language: a weekday, a month, a unit of time ...
    [[nodiscard]] bool isTelling(const QString &word) const { return m_telling.contains(word); }

private:
    friend class DateReading;

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
    /// A weekday and a part of the day in one number.
    static constexpr int partsInAWeekday = 16;

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
    void addJoined(const DateWords::Word &weekday, const DateWords::PartWord &part);
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
