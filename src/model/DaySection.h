#pragma once

#include "foundation/Instant.h"
#include "model/Note.h"

#include <QList>

/// The notes of one calendar day.
struct DaySection {
    Instant day; ///< the day's first moment
    QList<Note> notes;
    bool operator==(const DaySection &) const = default;
};
