#pragma once

#include "foundation/Instant.h"

#include <QList>

/// One calendar day and its notes.
struct DaySection {
    Instant day;            ///< the day's first moment
    QList<qsizetype> notes; ///< indexes into the list that was grouped
    bool operator==(const DaySection &) const = default;
};
