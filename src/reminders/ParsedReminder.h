#pragma once

#include "foundation/Instant.h"

#include <QString>

/// What a draft asks to be reminded of.
struct ParsedReminder {
    Instant fireAt;  ///< seconds are always 0; may lie in the past
    QString content; ///< never empty: the whole trimmed draft when nothing else is left
    bool operator==(const ParsedReminder &) const = default;
};
