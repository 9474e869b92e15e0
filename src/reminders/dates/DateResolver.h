#pragma once

#include "foundation/Calendar.h"
#include "reminders/DateDetecting.h"
#include "reminders/dates/DateFacts.h"

#include <optional>

/// Resolves facts to calendar days and times.
namespace DateResolver {
/// Empty for a day or a time that does not exist. A day without a time is at its 09:00, a part of the day
/// without an hour at the default time of the part. The caller adds language, range and text.
[[nodiscard]] std::optional<DateDetection> resolve(
    const DateFacts &facts, Instant now, const Calendar &calendar);
} // namespace DateResolver
