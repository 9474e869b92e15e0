#pragma once

#include "reminders/DayParts.h"
#include "reminders/ReminderLanguage.h"

#include <QStringTokenizer>
#include <QStringView>

#include <optional>
#include <vector>

/// Alternatives in lower case, separated by "|": "mon|monday".
using WordList = QStringView;

/// Words of one meaning. Both engines know @p words; the other lists hold what only one of them accepts.
template <typename Value>
struct Word {
    WordList words;
    Value value;
    WordList detectionOnly = {};
    WordList grammarOnly = {};
};
template <typename Value>
using Words = std::vector<Word<Value>>;

struct LanguageRules;

namespace WordLists {
/// The alternatives of a list as a range.
[[nodiscard]] inline auto each(WordList list)
{
    return list.tokenize(u'|', Qt::SkipEmptyParts);
}

[[nodiscard]] bool contains(WordList list, QStringView word);

/// The value of the first word of a table, as the grammar knows it, that matches.
template <typename Value, typename Predicate>
std::optional<Value> valueIf(const Words<Value> &table, Predicate &&matches)
{
    for (const Word<Value> &word : table) {
        for (const WordList list : {word.words, word.grammarOnly}) {
            for (const QStringView alternative : each(list)) {
                if (matches(alternative))
                    return word.value;
            }
        }
    }
    return std::nullopt;
}

/// The text with each placeholder replaced by the alternatives that it stands for: <day> (today, yesterday
/// ...), <weekday>, <month>, <anymonth> (also those of `otherMonths`) and <part>, all as the grammar knows
/// them; <ymd>, the pattern of a date like "2026-03-05"; <date> and <time>, the patterns of the grammar.
[[nodiscard]] QString expanded(QStringView text, const LanguageRules &rules);
} // namespace WordLists
