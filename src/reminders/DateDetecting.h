#pragma once

#include "foundation/Instant.h"
#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// A date or time found somewhere in a draft.
struct DateDetection {
    Instant fireAt;
    TextRange range; ///< in the trimmed draft
    QString text;    ///< what stands in that range
};

/// Finds dates and times wherever they stand in a draft; made with the clock by which it resolves them.
class DateDetecting
{
public:
    virtual ~DateDetecting() = default;
    [[nodiscard]] virtual QList<DateDetection> detectDates(QStringView text) const = 0;
};

/// Finds none: only what the grammar accepts is a reminder.
class NoDateDetector final : public DateDetecting
{
public:
    [[nodiscard]] QList<DateDetection> detectDates(QStringView) const override { return {}; }
};
