#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"

/// The present, as the person at the machine reads it. Handed in by constructor, so that tests set their own.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
    /// In the person's time zone, which may change while the program runs: ask anew, keep no copy.
    [[nodiscard]] virtual const Calendar &calendar() const = 0;
};

/// The machine's clock and time zone.
class SystemClock final : public Clock
{
public:
    [[nodiscard]] Instant now() const override;
    [[nodiscard]] const Calendar &calendar() const override { return m_calendar; }

private:
    Calendar m_calendar = Calendar::system();
};
