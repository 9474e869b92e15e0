#pragma once

#include "foundation/Calendar.h"
#include "reminders/DateDetecting.h"
#include "reminders/dates/DateFacts.h"

#include <optional>

/// Puts facts on the calendar.
namespace DateResolver {
struct Resolved {
    Instant fireAt;
    DateDetection::Kind kind;
};

/// Nothing for a day or a time that does not exist. A day without a time is at its 09:00, a part of the day
/// without an hour at the hour of the part: morning 9, noon 12, afternoon 15, evening 20, night 22.
[[nodiscard]] std::optional<Resolved> resolve(const DateFacts &facts, Instant now, const Calendar &calendar);
} // namespace DateResolver
