#pragma once

#include <QStringView>

/// The languages in which a reminder is understood.
enum class ReminderLanguage {
    Chinese,
    English,
    Japanese,
    Korean,
    German,
    French,
    Spanish,
    Danish,
    Norwegian,
    Swedish,
    Dutch,
    Italian,
    Portuguese,
};

namespace ReminderLanguages {
/// The language that a draft is written in; English where nothing tells. Cheap enough for every keystroke,
/// and rough: a marker counts inside another word too, and the first language whose markers are found has the
/// text.
[[nodiscard]] ReminderLanguage detect(QStringView text);
} // namespace ReminderLanguages
