#pragma once

#include "foundation/Clock.h"
#include "reminders/DateDetecting.h"

/// Finds dates anywhere in one-line drafts in thirteen languages.
///
/// A draft is read in its own language and in others that its words indicate; the reading that explains most
/// of it wins. Nothing in a tag, an address or a path is a date.
class DateDetector final : public DateDetecting
{
public:
    explicit DateDetector(const Clock &clock)
        : m_clock(clock)
    {
    }

    [[nodiscard]] QList<DateDetection> detectDates(
        QStringView text, ReminderLanguage language) const override;

private:
    const Clock &m_clock;
};
