#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"

#include <chrono>
#include <cstdint>
#include <utility>

/// The present, as the person at the machine reads it. Handed in by constructor, so that tests set their own.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
    /// In the person's time zone, which may change while the program runs: ask anew, keep no copy.
    [[nodiscard]] virtual const Calendar &calendar() const = 0;
};

/// Stands still until it is set.
class FixedClock : public Clock
{
public:
    FixedClock(Instant now, Calendar calendar)
        : m_now(now)
        , m_calendar(std::move(calendar))
    {
    }
    [[nodiscard]] Instant now() const override { return m_now; }
    [[nodiscard]] const Calendar &calendar() const override { return m_calendar; }
    void set(Instant now) { m_now = now; }

private:
    Instant m_now;
    Calendar m_calendar;
};

/// The machine's clock and time zone. A change of the zone is noticed within a second. Of one thread.
class SystemClock final : public Clock
{
public:
    SystemClock();
    [[nodiscard]] Instant now() const override;
    [[nodiscard]] const Calendar &calendar() const override;

private:
    /// Which file names the zone: another whenever the zone is set.
    struct ZoneFile {
        std::uint64_t inode = 0;
        std::int64_t modified = 0; ///< in nanoseconds
        bool operator==(const ZoneFile &) const = default;
    };
    [[nodiscard]] static ZoneFile zoneFile();

    mutable ZoneFile m_zoneFile;
    mutable Calendar m_calendar;
    mutable std::chrono::steady_clock::time_point m_lastLook;
};
