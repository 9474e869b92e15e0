#include "foundation/Calendar.h"

#include <unicode/basictz.h>
#include <unicode/tztrans.h>

using namespace std::chrono;

struct Calendar::Zone {
    // Every zone that ICU makes is a BasicTimeZone; the class only exists apart for binary compatibility.
    explicit Zone(icu::TimeZone *made)
        : icuZone(dynamic_cast<icu::BasicTimeZone *>(made))
    {
        Q_ASSERT(icuZone);
    }
    std::unique_ptr<const icu::BasicTimeZone> icuZone;
};

Calendar::Calendar(std::shared_ptr<const Zone> zone)
    : m_zone(std::move(zone))
{
}

Calendar::Calendar(const QByteArray &timeZoneID)
    : Calendar(std::make_shared<Zone>(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(timeZoneID.constData()))))
{
}

Calendar Calendar::system()
{
    // ICU's own default is read once per process; this follows the machine.
    return Calendar(std::make_shared<Zone>(icu::TimeZone::detectHostTimeZone()));
}

QByteArray Calendar::timeZoneID() const
{
    icu::UnicodeString id;
    m_zone->icuZone->getID(id);
    return QStringView(id.getBuffer(), id.length()).toUtf8();
}

milliseconds Calendar::offsetAt(Instant instant) const
{
    int32_t raw = 0;
    int32_t daylightSaving = 0;
    UErrorCode status = U_ZERO_ERROR;
    m_zone->icuZone->getOffset(UDate(instant.time_since_epoch().count()), false, raw, daylightSaving, status);
    Q_ASSERT(U_SUCCESS(status));
    return milliseconds(raw + daylightSaving);
}

Calendar::LocalTime Calendar::toLocal(Instant instant) const
{
    return LocalTime(instant.time_since_epoch() + offsetAt(instant));
}

Instant Calendar::fromLocal(LocalTime local) const
{
    int32_t raw = 0;
    int32_t daylightSaving = 0;
    UErrorCode status = U_ZERO_ERROR;
    m_zone->icuZone->getOffsetFromLocal(UDate(local.time_since_epoch().count()), UCAL_TZ_LOCAL_FORMER,
        UCAL_TZ_LOCAL_FORMER, raw, daylightSaving, status);
    Q_ASSERT(U_SUCCESS(status));
    const milliseconds former(raw + daylightSaving);
    const Instant instant(local.time_since_epoch() - former);
    if (offsetAt(instant) == former)
        return instant;
    // The wall time was skipped: the offset before the gap leads past its end, which is the next existing
    // instant.
    icu::TimeZoneTransition gap;
    if (m_zone->icuZone->getPreviousTransition(UDate(instant.time_since_epoch().count()), true, gap))
        return Instant(milliseconds(qint64(gap.getTime())));
    return instant;
}

Calendar::Day Calendar::day(Instant instant) const
{
    return Day(floor<days>(toLocal(instant)));
}

Calendar::TimeOfDay Calendar::timeOfDay(Instant instant) const
{
    const LocalTime local = toLocal(instant);
    const hh_mm_ss time(local - floor<days>(local));
    return {int(time.hours().count()), int(time.minutes().count())};
}

Instant Calendar::startOfDay(Day day) const
{
    return fromLocal(LocalTime(local_days(day)));
}

Instant Calendar::startOfMinute(Instant instant) const
{
    const LocalTime local = toLocal(instant);
    return instant - (local - floor<minutes>(local));
}

std::optional<Instant> Calendar::instant(Day day, TimeOfDay time) const
{
    if (!day.ok() || time.hour < 0 || time.hour > 23 || time.minute < 0 || time.minute > 59)
        return std::nullopt;
    return fromLocal(LocalTime(local_days(day) + hours(time.hour) + minutes(time.minute)));
}

Instant Calendar::addingDays(Instant instant, int count) const
{
    return fromLocal(toLocal(instant) + days(count));
}

int Calendar::daysBetween(Instant from, Instant to) const
{
    return int((local_days(day(to)) - local_days(day(from))).count());
}
