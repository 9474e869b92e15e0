#pragma once

#include "reminders/dates/DateSlots.h"
#include "reminders/languages/LanguageRules.h"

#include <QHash>
#include <QSet>

#include <utility>
#include <vector>

/// The date words and rules of a language, indexed for matching.
class CompiledGrammar
{
public:
    explicit CompiledGrammar(const LanguageRules &rules);

    /// The grammar of a language. All languages are compiled on first use.
    [[nodiscard]] static const CompiledGrammar &of(ReminderLanguage language);

    /// What a word does around a date. An announcement is a trigger phrase: whatever precedes it has ended.
    enum class Role { Before, Between, After, NotAfter, NotBefore, Idiom, Announcement };

    struct Element {
        const DateSlot *slot = nullptr; ///< null for literals
        std::vector<int> literals;
        bool isOptional = false;

        [[nodiscard]] bool accepts(const DateWord &word) const;
    };
    struct Rule {
        std::vector<Element> elements;
        DateFacts facts;
        DateWords::Strength strength;
    };
    using RuleIndex = size_t;
    [[nodiscard]] const Rule &rule(RuleIndex index) const { return m_rules[index]; }
    /// The rules that can begin with this word.
    [[nodiscard]] const std::vector<RuleIndex> &rulesFrom(const DateWord &word) const;

    /// All phrases form a tree of tokens.
    using NodeIndex = size_t;
    static constexpr NodeIndex root = 0;
    /// The node after a token; root where no phrase continues so.
    [[nodiscard]] NodeIndex next(NodeIndex node, const QString &token) const;
    /// What the tokens up to this node may be.
    [[nodiscard]] const std::vector<DateWord> &words(NodeIndex node) const { return m_nodes[node].words; }

    [[nodiscard]] bool hasHanNumerals() const { return m_hasHanNumerals; }
    /// Whether a word of a draft indicates this language: a weekday, a month, a unit of time ...
    [[nodiscard]] bool isTelling(const QString &word) const { return m_telling.contains(word); }

private:
    struct Node {
        std::vector<std::pair<QString, NodeIndex>> next; ///< one or a few
        std::vector<DateWord> words;
    };

    void addPhrase(QStringView phrase, const DateWord &word);
    void addPhrases(WordList list, const DateWord &word);
    template <typename Value>
    void addTable(const Words<Value> &table, DateWord::Kind kind);
    void addJoinedWords(const LanguageRules &rules);
    void addRule(const DateWords::Rule &rule);
    int literal(QStringView phrase);

    QHash<QString, NodeIndex> m_first; ///< the nodes after the first tokens: hundreds
    std::vector<Node> m_nodes{1};
    QHash<QString, int> m_literals;
    QSet<QString> m_telling;
    std::vector<Rule> m_rules;
    std::vector<std::vector<RuleIndex>> m_rulesByFirst; ///< see firstIndex()
    bool m_hasHanNumerals = false;
};
