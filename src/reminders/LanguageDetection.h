#pragma once

#include "reminders/ReminderLanguage.h"

#include <QStringView>

namespace LanguageDetection {
/// The language that a draft is written in; English where nothing tells. Cheap enough for every keystroke,
/// and rough: a marker counts inside another word too, and the first language whose markers are found has the
/// text.
[[nodiscard]] ReminderLanguage detect(QStringView text);
} // namespace LanguageDetection
