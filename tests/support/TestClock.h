#pragma once

#include "foundation/Clock.h"
#include "foundation/InternetDateTime.h"

/// "2026-03-02T02:00:00Z", as a moment.
inline Instant at(const char *text)
{
    return InternetDateTime::parse(text).value();
}

/// Set and moved in the words of a test.
class TestClock final : public FixedClock
{
public:
    explicit TestClock(const char *now, const char *timeZone = "Asia/Shanghai")
        : FixedClock(at(now), Calendar(timeZone))
    {
    }

    void set(const char *now) { FixedClock::set(at(now)); }
    void advance(std::chrono::milliseconds by) { FixedClock::set(now() + by); }
};
