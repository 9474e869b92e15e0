#pragma once

#include "foundation/Regex.h"
#include "reminders/dates/DateWords.h"

#include <QStringView>

#include <vector>

/// What a word for a part of the day does to the hour that was written.
enum class HourRule {
    AsWritten,
    BareHour,       ///< no word at all: 1 to 6 are meant after noon
    MidnightIsZero, ///< 12 is 0: "12am", "凌晨12点"
    Afternoon,      ///< below 12 becomes h + 12
    Evening,        ///< 12 is midnight at the day's end, below 12 becomes h + 12
    Night,          ///< 12 is midnight at the day's end, 7 to 11 become h + 12, 1 to 6 stay
};

/// Everything that one reminder language brings. All words are written in lower case.
struct LanguageRules {
    /// Substrings that give a text away as this language.
    std::vector<QStringView> markers;

    // Patterns. `date` and `time` ask whether a text holds a date or a time; `expression` is what a draft
    // must begin with.
    Regex date;
    Regex time;
    Regex expression;
    /// The capture groups of `expression`; 0 where there is none. English has each of date and time in two
    /// places.
    struct Groups {
        int date = 0;
        int period = 0;
        int time = 0;
        int otherDate = 0;
        int otherTime = 0;
    } groups;

    // Days.
    std::vector<QStringView> today; ///< past days too: a reminder is never placed on one
    std::vector<QStringView> tomorrow;
    std::vector<QStringView> dayAfterTomorrow;
    std::vector<QStringView> next; ///< what stands before or after a weekday to mean the coming one
    struct Weekday {
        QStringView prefix; ///< what the word begins with
        int number;         ///< 0 is Sunday
    };
    std::vector<Weekday> weekdays;
    struct Month {
        QStringView prefix;
        int number; ///< 1 is January
    };
    std::vector<Month> months;

    // Times.
    struct Period {
        QStringView word;
        HourRule rule;
    };
    std::vector<Period> periods;
    HourRule withoutPeriod = HourRule::BareHour;
    bool periodIsInTime = false;         ///< "9pm": the word stands within the time itself
    bool colonTimesIgnorePeriod = false; ///< "下午3:30" is 03:30
    QStringView halfPast = {};           ///< "半", "et demie": thirty minutes past the hour
    QStringView halfBefore = {};         ///< "halb": the half hour before the hour that follows
    Regex minutes = {};                  ///< its group 1 holds minutes written without a colon; may be empty

    /// Phrases that announce a reminder, the longer ones first.
    std::vector<QStringView> triggerPhrases;
    /// The particle that joins a time to the rest of the sentence, or nothing.
    QStringView joiningParticle = {};

    /// How dates are found anywhere in a draft.
    DateWords dates = {};
};
