#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"

#include <QByteArray>

#include <chrono>
#include <cstdint>
#include <utility>

/// The current time and time zone of the user. Passed to constructors, so that tests can set their own.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
    /// In the user's time zone, which may change while the program runs: do not keep a copy.
    [[nodiscard]] virtual const Calendar &calendar() const = 0;
};

/// Does not advance; it is set.
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

/// The machine's clock and time zone. A change of the zone is noticed within a second. For one thread.
class SystemClock final : public Clock
{
public:
    /// The zone is read again when @p zoneFile has changed.
    explicit SystemClock(QByteArray zoneFile = "/etc/localtime");
    [[nodiscard]] Instant now() const override;
    [[nodiscard]] const Calendar &calendar() const override;

private:
    /// Differs whenever the zone has been set.
    struct FileVersion {
        std::uint64_t inode = 0;
        std::int64_t modified = 0; ///< in nanoseconds
        bool operator==(const FileVersion &) const = default;
    };
    [[nodiscard]] FileVersion zoneFileVersion() const;

    QByteArray m_zoneFile;
    mutable FileVersion m_version;
    mutable Calendar m_calendar;
    mutable std::chrono::steady_clock::time_point m_lastCheck;
};
