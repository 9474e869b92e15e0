#pragma once

#include "reminders/ReminderLanguage.h"

#include <QStringView>

namespace LanguageDetection {
/// The language of a draft; English when nothing indicates another. Fast enough for every keystroke and
/// approximate: a marker also counts inside another word, and the first language with a marker in the text
/// wins.
[[nodiscard]] ReminderLanguage detect(QStringView text);
} // namespace LanguageDetection
