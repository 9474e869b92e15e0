#pragma once

#include "foundation/Instant.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The date form of the data files: an RFC 3339 date-time with whole seconds, "2024-05-01T08:30:00Z".
namespace InternetDateTime {
/// In UTC, rounded down to whole seconds. Instants outside the years 0 to 9999 are clamped to them, because
/// one date that cannot be parsed makes a whole file invalid.
[[nodiscard]] QByteArray format(Instant instant);

inline constexpr qsizetype length = 20;
/// Writes the same text to @p out, which has room for @c length characters.
void write(Instant instant, char *out);

/// Accepts "Z" or an offset such as "+08:00". Rejects fractions of a second, a missing zone, any other form,
/// and instants outside the years 0 to 9999 in UTC.
[[nodiscard]] std::optional<Instant> parse(QByteArrayView text);
} // namespace InternetDateTime
