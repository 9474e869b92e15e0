#pragma once

#include <optional>

/// Parts of the day, each with an hour of its own and with what it does to an hour that is named.
enum class DayPart { EarlyMorning, Morning, Noon, Afternoon, Evening, Night, Am, Pm };

enum class SpanUnit { Minutes, Hours, Days, Weeks, Months };

/// What the words of a date have said, before anybody knows what day it is. Every rule and every word adds to
/// it; what nobody has said is empty.
struct DateFacts {
    // The day
    std::optional<int> relativeDay = {}; ///< 0 is today
    std::optional<int> weekday = {};     ///< 0 is Sunday
    std::optional<int> next = {};        ///< set: of today's own weekday, the one in a week
    std::optional<int> weeksLater = {};  ///< behind the day that the weekday alone would mean
    std::optional<int> weeksAhead = {};  ///< 1: in the week that begins next Monday
    std::optional<int> day = {};         ///< of the month
    std::optional<int> month = {};
    std::optional<int> year = {};
    std::optional<int> monthsAhead = {};
    std::optional<int> weekend = {};  ///< how many weekends after the coming one
    std::optional<int> monthEnd = {}; ///< set: the last day of the month

    // A span from now
    std::optional<int> halves = {}; ///< twice the number of units
    std::optional<SpanUnit> unit = {};

    // The time
    std::optional<int> hour = {};
    std::optional<int> minute = {};
    std::optional<int> minutesBefore = {}; ///< set: the minutes are counted back from the hour
    std::optional<int> shift = {};         ///< minutes more, or fewer: half, quarter
    std::optional<int> asWritten = {};     ///< set: in digits, as a 24-hour clock shows it
    std::optional<DayPart> part = {};

    [[nodiscard]] bool saysSpan() const { return unit.has_value(); }
    [[nodiscard]] bool saysMoment() const { return unit == SpanUnit::Minutes || unit == SpanUnit::Hours; }
    [[nodiscard]] bool saysTime() const { return hour.has_value(); }
    [[nodiscard]] bool saysDay() const
    {
        return relativeDay || weekday || day || month || weekend || monthEnd || weeksAhead
               || (unit && !saysMoment());
    }

    bool operator==(const DateFacts &) const = default;

    /// Both together; nothing where they contradict each other.
    [[nodiscard]] static std::optional<DateFacts> together(const DateFacts &a, const DateFacts &b);
};
