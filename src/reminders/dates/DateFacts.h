#pragma once

#include "reminders/DayParts.h"

#include <optional>

enum class SpanUnit { Minutes, Hours, Days, Weeks, Months };

/// What a date expression states: parsed but unresolved; unset means not mentioned. Every rule and every word
/// adds to it.
struct DateFacts {
    // The day
    std::optional<int> relativeDay = {}; ///< 0 is today
    std::optional<int> weekday = {};     ///< 0 is Sunday
    bool next = false;                   ///< today's own weekday means the one in a week
    std::optional<int> weeksLater = {};  ///< after the day that the weekday alone would mean
    std::optional<int> weeksAhead = {};  ///< 1: in the week that begins next Monday
    std::optional<int> day = {};         ///< of the month
    std::optional<int> month = {};
    std::optional<int> year = {};
    std::optional<int> monthsAhead = {};
    std::optional<int> weekend = {}; ///< number of weekends after the coming one
    bool monthEnd = false;           ///< the last day of the month

    // A duration from now
    std::optional<int> halves = {}; ///< twice the number of units
    std::optional<SpanUnit> unit = {};

    // The time
    std::optional<int> hour = {};
    std::optional<int> minute = {};
    bool minutesBefore = false;    ///< the minutes are counted back from the hour
    std::optional<int> shift = {}; ///< minutes to add: half, quarter
    bool asWritten = false;        ///< in digits, as a 24-hour clock shows it
    std::optional<DayPart> part = {};

    [[nodiscard]] bool saysMoment() const { return unit == SpanUnit::Minutes || unit == SpanUnit::Hours; }
    [[nodiscard]] bool saysTime() const { return hour.has_value(); }
    [[nodiscard]] bool saysDay() const
    {
        return relativeDay || weekday || day || month || weekend || monthEnd || weeksAhead
               || (unit && !saysMoment());
    }

    bool operator==(const DateFacts &) const = default;

    /// Both combined; empty when they contradict each other.
    [[nodiscard]] static std::optional<DateFacts> combined(const DateFacts &a, const DateFacts &b);
};
