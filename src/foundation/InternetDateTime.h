#pragma once

#include "foundation/Instant.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The date form of the data files: an RFC 3339 date-time with whole seconds, "2024-05-01T08:30:00Z".
namespace InternetDateTime {
/// In UTC; a fraction of a second is dropped, towards the past. What lies outside the years 0 to 9999 is
/// moved to their edge: a text that cannot be read again would cost the whole file.
[[nodiscard]] QByteArray format(Instant instant);

/// The same, as so many characters in @p place.
inline constexpr qsizetype length = 20;
void write(Instant instant, char *place);

/// Accepts "Z" or an offset "+08:00". A fraction, a missing zone or any other form is refused, and what is
/// in UTC no longer within the years 0 to 9999.
[[nodiscard]] std::optional<Instant> parse(QByteArrayView text);
} // namespace InternetDateTime
