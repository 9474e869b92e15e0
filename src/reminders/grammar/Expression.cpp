#include "reminders/grammar/Expression.h"

#include "reminders/languages/Languages.h"

Expression::Expression(const LanguageRules &rules)
    : pattern(WordLists::expanded(rules.grammar.pattern, rules), Regex::Case::Insensitive)
{
    if (!rules.grammar.minutes.isEmpty())
        minutes.emplace(rules.grammar.minutes.toString());
}

const Expression &Expression::of(ReminderLanguage language)
{
    static const Languages::Compilation<Expression> expressions;
    return expressions.of(language);
}
