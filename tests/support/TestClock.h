#pragma once

#include "foundation/Clock.h"
#include "foundation/InternetDateTime.h"

/// "2026-03-02T02:00:00Z", as a moment.
inline Instant at(const char *text)
{
    return InternetDateTime::parse(text).value();
}

/// A clock that stands still until a test moves it.
class TestClock final : public Clock
{
public:
    explicit TestClock(const char *now, const char *timeZone = "Asia/Shanghai")
        : m_now(at(now))
        , m_calendar(timeZone)
    {
    }

    [[nodiscard]] Instant now() const override { return m_now; }
    [[nodiscard]] const Calendar &calendar() const override { return m_calendar; }
    void set(const char *now) { m_now = at(now); }
    void advance(std::chrono::milliseconds by) { m_now += by; }

private:
    Instant m_now;
    Calendar m_calendar;
};
