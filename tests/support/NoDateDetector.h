#pragma once

#include "reminders/DateDetecting.h"

/// Finds nothing, so only what the grammar accepts is a reminder.
class NoDateDetector final : public DateDetecting
{
public:
    [[nodiscard]] QList<DateDetection> detectDates(QStringView, ReminderLanguage) const override
    {
        ++asked;
        return {};
    }

    mutable int asked = 0;
};
