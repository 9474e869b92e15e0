#pragma once

#include "foundation/Calendar.h"

#include <optional>

/// A wall time as a draft states it.
struct ClockTime {
    Calendar::TimeOfDay time; ///< as read; the calendar rejects an hour above 23
    int dayOffset = 0;        ///< 1 for the midnight that ends the stated day
    bool operator==(const ClockTime &) const = default;

    /// Empty when there is no such day or time.
    [[nodiscard]] std::optional<Instant> on(Calendar::Day day, const Calendar &calendar) const;
};

/// The words that qualify an hour, from "in the morning" to none at all.
enum class DayPart {
    AsWritten, ///< a 24-hour time
    Unnamed,   ///< an hour alone: 1 to 6 are after noon
    EarlyMorning,
    Morning,
    Noon,
    Afternoon,
    Evening,
    Night,
    Am,
    Pm,
};

/// The one table of what a part of the day means, for the grammar and for date detection.
namespace DayParts {
enum class Engine { Grammar, Detection }; ///< they differ in a few hours, see the table

/// The time meant by a written hour: "8" in the evening is 20:00, "12" the midnight that ends the day.
[[nodiscard]] ClockTime clockTime(DayPart part, Calendar::TimeOfDay written, Engine engine);

/// The time of a reminder for a part of the day without an hour.
[[nodiscard]] Calendar::TimeOfDay defaultTime(DayPart part);

/// The time of a reminder for a day without a time.
inline constexpr Calendar::TimeOfDay defaultTimeOfDay{9, 0};
} // namespace DayParts
