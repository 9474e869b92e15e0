#include "foundation/Clock.h"

#include <sys/stat.h>

SystemClock::SystemClock()
    : m_zoneFile(zoneFile())
    , m_calendar(Calendar::system())
    , m_lastLook(std::chrono::steady_clock::now())
{
}

Instant SystemClock::now() const
{
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

SystemClock::ZoneFile SystemClock::zoneFile()
{
    struct stat link = {};
    if (lstat("/etc/localtime", &link) != 0)
        return {};
    constexpr std::int64_t second = 1'000'000'000;
    return {link.st_ino, link.st_mtim.tv_sec * second + link.st_mtim.tv_nsec};
}

const Calendar &SystemClock::calendar() const
{
    // It is asked for each row that is drawn: the file is looked at now and then.
    const auto present = std::chrono::steady_clock::now();
    if (present - m_lastLook >= std::chrono::seconds(1)) {
        m_lastLook = present;
        if (const ZoneFile current = zoneFile(); current != m_zoneFile) {
            m_zoneFile = current;
            m_calendar = Calendar::system();
        }
    }
    return m_calendar;
}
