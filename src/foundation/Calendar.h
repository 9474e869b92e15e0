#pragma once

#include "foundation/Instant.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// The Gregorian calendar in one time zone. A cheap value.
///
/// A wall time that the zone skips becomes the next existing instant; one that occurs twice means the first.
class Calendar
{
public:
    using Day = std::chrono::year_month_day;

    struct TimeOfDay {
        int hour = 0;
        int minute = 0;
        bool operator==(const TimeOfDay &) const = default;
    };

    /// @p timeZoneID is an IANA name ("Asia/Shanghai"); an unknown one means UTC.
    explicit Calendar(const QByteArray &timeZoneID);
    /// In the current time zone of the machine.
    [[nodiscard]] static Calendar system();

    [[nodiscard]] QByteArray timeZoneID() const;

    [[nodiscard]] Day day(Instant instant) const;
    [[nodiscard]] TimeOfDay timeOfDay(Instant instant) const;
    /// The first instant of the day, which is not always 00:00.
    [[nodiscard]] Instant startOfDay(Day day) const;
    [[nodiscard]] Instant startOfDay(Instant instant) const { return startOfDay(day(instant)); }
    [[nodiscard]] Instant startOfMinute(Instant instant) const;

    /// Nothing when the day does not exist (30 February) or the time is not one of 00:00 to 23:59.
    [[nodiscard]] std::optional<Instant> instant(Day day, TimeOfDay time) const;
    /// The same wall time @p days later.
    [[nodiscard]] Instant addingDays(Instant instant, int days) const;
    /// From the day of @p from to the day of @p to, whatever the times of day and however long the days are.
    [[nodiscard]] int daysBetween(Instant from, Instant to) const;

private:
    using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;
    struct Zone;

    explicit Calendar(std::shared_ptr<const Zone> zone);
    [[nodiscard]] std::chrono::milliseconds offsetAt(Instant instant) const;
    [[nodiscard]] LocalTime toLocal(Instant instant) const;
    [[nodiscard]] Instant fromLocal(LocalTime local) const;

    std::shared_ptr<const Zone> m_zone;
};
