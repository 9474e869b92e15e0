#pragma once

#include "foundation/Instant.h"
#include "foundation/TextRange.h"
#include "reminders/ReminderLanguage.h"

#include <QList>
#include <QString>

#include <optional>

/// A date or time found somewhere in a draft.
struct DateDetection {
    enum class Kind {
        Day,        ///< at its default time
        DayAndTime, ///< a part of the day counts as a time
        Time,       ///< of today, until another detection tells the day
        Moment,     ///< a span from now, exact to the minute
    };

    Instant fireAt;
    TextRange range;                               ///< in the trimmed draft
    QString text;                                  ///< what stands in that range
    std::optional<Kind> kind = {};                 ///< empty: the language's patterns decide
    std::optional<ReminderLanguage> language = {}; ///< that it was understood in; empty: the draft's
};

/// Finds dates and times wherever they stand in a draft; made with the clock by which it resolves them.
class DateDetecting
{
public:
    virtual ~DateDetecting() = default;
    [[nodiscard]] virtual QList<DateDetection> detectDates(QStringView text) const = 0;
};
