#pragma once

#include "reminders/dates/DateWords.h"
#include "reminders/grammar/ExpressionRules.h"
#include "reminders/languages/Words.h"

#include <vector>

/// Everything that one reminder language brings.
struct LanguageRules {
    /// Substrings that indicate this language, with the placeholders of WordLists.
    WordList markers = {};

    Words<int> relativeDays; ///< 0 is today
    Words<int> weekdays;     ///< 0 is Sunday
    Words<int> months = {};  ///< 1 is January
    Words<DayPart> dayParts;

    /// Phrases that announce a reminder, longer ones first.
    std::vector<QStringView> triggerPhrases;

    ExpressionRules grammar; ///< for drafts that begin with a date and a time
    DateWords dates;         ///< for dates anywhere in a draft
};
