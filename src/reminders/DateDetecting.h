#pragma once

#include "foundation/Instant.h"
#include "foundation/TextRange.h"
#include "reminders/DayParts.h"
#include "reminders/ReminderLanguage.h"

#include <QList>
#include <QString>

/// A date or time found somewhere in a draft.
struct DateDetection {
    enum class Kind {
        Day,        ///< without a time
        DayAndTime, ///< a part of the day counts as a time
        Time,       ///< without a day
        Moment,     ///< a duration from now, to the minute
    };

    Kind kind;
    ReminderLanguage language; ///< in which it was understood
    Calendar::Day day;         ///< today for a Time; not set for a Moment
    ClockTime time;            ///< 09:00 for a Day; not set for a Moment
    Instant fireAt;
    TextRange range; ///< in the trimmed draft
    QString text;    ///< the text of that range
};

/// Finds dates and times anywhere in a draft; constructed with the clock by which it resolves them.
class DateDetecting
{
public:
    virtual ~DateDetecting() = default;
    /// From left to right. @p language is the language of the draft; a detection may be in another.
    [[nodiscard]] virtual QList<DateDetection> detectDates(
        QStringView text, ReminderLanguage language) const = 0;
};
