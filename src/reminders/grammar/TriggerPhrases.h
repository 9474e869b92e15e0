#pragma once

#include "reminders/ReminderLanguage.h"

#include <QString>

/// Phrases that announce a reminder: "remind me to", "don't forget".
namespace TriggerPhrases {
/// What to do with a phrase at the front that runs on into a word: "remindme".
enum class Glued { Removed, Kept };

/// The text without one phrase at the front, one at the end and leading punctuation; @p fullText when nothing
/// else is left.
[[nodiscard]] QString stripped(
    QStringView text, QStringView fullText, ReminderLanguage language, Glued glued);
} // namespace TriggerPhrases
