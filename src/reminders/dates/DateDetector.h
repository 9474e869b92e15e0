#pragma once

#include "foundation/Clock.h"
#include "reminders/DateDetecting.h"

/// Finds the dates of one-line drafts in thirteen languages, wherever they stand.
///
/// A draft is read in the language that it seems to be in and, where that finds nothing, in those for which
/// its words speak. What stands in a tag, an address or a path is no date.
class DateDetector final : public DateDetecting
{
public:
    explicit DateDetector(const Clock &clock)
        : m_clock(clock)
    {
    }

    /// Makes the tables of all languages ready, for which the first keystroke would wait some milliseconds.
    static void prepare();

    [[nodiscard]] QList<DateDetection> detectDates(QStringView text) const override;

private:
    const Clock &m_clock;
};
