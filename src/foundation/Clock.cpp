#include "foundation/Clock.h"

#include <sys/stat.h>

SystemClock::SystemClock(QByteArray zoneFile)
    : m_zoneFile(std::move(zoneFile))
    , m_version(zoneFileVersion())
    , m_calendar(Calendar::system())
    , m_lastCheck(std::chrono::steady_clock::now())
{
}

Instant SystemClock::now() const
{
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

SystemClock::FileVersion SystemClock::zoneFileVersion() const
{
    struct stat link = {};
    if (lstat(m_zoneFile.constData(), &link) != 0)
        return {};
    constexpr std::int64_t second = 1'000'000'000;
    return {link.st_ino, link.st_mtim.tv_sec * second + link.st_mtim.tv_nsec};
}

const Calendar &SystemClock::calendar() const
{
    // Called for each row that is painted, so the file is not examined each time.
    const auto present = std::chrono::steady_clock::now();
    if (present - m_lastCheck >= std::chrono::seconds(1)) {
        m_lastCheck = present;
        if (const FileVersion current = zoneFileVersion(); current != m_version) {
            m_version = current;
            m_calendar = Calendar::system();
        }
    }
    return m_calendar;
}
