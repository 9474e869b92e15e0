#include "desktop/WallClockTimer.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/timerfd.h>
#include <unistd.h>

using namespace std::chrono;

WallClockTimer::WallClockTimer(QObject *parent)
    : QObject(parent)
    , m_fd(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (m_fd < 0)
        qFatal("timerfd_create: %s", std::strerror(errno));
    m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &WallClockTimer::readExpiration);
}

WallClockTimer::~WallClockTimer()
{
    m_notifier->setEnabled(false);
    ::close(m_fd);
}

void WallClockTimer::start(Instant instant)
{
    // Zero would disarm the timer, and a time before 1970 is refused.
    const Instant earliest(milliseconds(1));
    const milliseconds sinceEpoch = std::max(instant, earliest).time_since_epoch();
    const seconds whole = floor<seconds>(sinceEpoch);
    itimerspec setting{};
    setting.it_value.tv_sec = whole.count();
    setting.it_value.tv_nsec = nanoseconds(sinceEpoch - whole).count();
    // It may return ECANCELED when the clock has just been set, and is armed nevertheless.
    if (timerfd_settime(m_fd, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &setting, nullptr) != 0
        && errno != ECANCELED)
        qFatal("timerfd_settime: %s", std::strerror(errno));
}

void WallClockTimer::stop()
{
    const itimerspec off{};
    timerfd_settime(m_fd, 0, &off, nullptr);
}

void WallClockTimer::readExpiration()
{
    quint64 expirations = 0;
    const ssize_t size = ::read(m_fd, &expirations, sizeof expirations);
    if (size == sizeof expirations || (size < 0 && errno == ECANCELED))
        Q_EMIT woke();
}
