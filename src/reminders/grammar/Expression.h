#pragma once

#include "foundation/Regex.h"
#include "reminders/languages/LanguageRules.h"

#include <optional>

/// The patterns of one language's ExpressionRules, compiled.
struct Expression {
    explicit Expression(const LanguageRules &rules);

    Regex pattern;
    std::optional<Regex> minutes;

    /// All languages are compiled on first use.
    [[nodiscard]] static const Expression &of(ReminderLanguage language);
};
