#pragma once

#include "reminders/DateDetecting.h"

/// Finds none: only what the grammar accepts is a reminder.
class NoDateDetector final : public DateDetecting
{
public:
    [[nodiscard]] QList<DateDetection> detectDates(QStringView) const override { return {}; }
};
