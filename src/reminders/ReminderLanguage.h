#pragma once

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
