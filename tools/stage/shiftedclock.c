/* Shifts the wall clock of the program it is preloaded into by STAGE_CLOCK_SHIFT_MS milliseconds, and the wall-clock
 * timers that the program sets back by as much, so that they fire when the shifted clock says so. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdlib.h>
#include <sys/time.h>
#include <sys/timerfd.h>
#include <time.h>

static long long shift_ns(void)
{
    static long long shift;
    static int known;
    if (!known) {
        const char *text = getenv("STAGE_CLOCK_SHIFT_MS");
        shift = text ? atoll(text) * 1000000LL : 0;
        known = 1;
    }
    return shift;
}

static void add_ns(struct timespec *time, long long ns)
{
    const long long total = time->tv_sec * 1000000000LL + time->tv_nsec + ns;
    time->tv_sec = total / 1000000000LL;
    time->tv_nsec = total % 1000000000LL;
}

static int (*real_gettime)(clockid_t, struct timespec *);
static int (*real_settime)(int, int, const struct itimerspec *, struct itimerspec *);

/* Before threads exist: a thread looking up a function may have to wait for another that is loading a library. */
__attribute__((constructor)) static void resolve(void)
{
    *(void **)&real_gettime = dlsym(RTLD_NEXT, "clock_gettime");
    *(void **)&real_settime = dlsym(RTLD_NEXT, "timerfd_settime");
}

int clock_gettime(clockid_t clock, struct timespec *time)
{
    if (!real_gettime)
        resolve();
    const int result = real_gettime(clock, time);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        add_ns(time, shift_ns());
    return result;
}

int gettimeofday(struct timeval *restrict time, void *restrict zone)
{
    (void)zone;
    struct timespec now;
    const int result = clock_gettime(CLOCK_REALTIME, &now);
    time->tv_sec = now.tv_sec;
    time->tv_usec = now.tv_nsec / 1000;
    return result;
}

time_t time(time_t *out)
{
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    if (out)
        *out = now.tv_sec;
    return now.tv_sec;
}

int timerfd_settime(int fd, int flags, const struct itimerspec *value, struct itimerspec *old)
{
    if (!real_settime)
        resolve();
    struct itimerspec shifted = *value;
    const int is_set = value->it_value.tv_sec != 0 || value->it_value.tv_nsec != 0;
    /* Only wall-clock timers are cancelled when the clock is set. */
    if (is_set && (flags & TFD_TIMER_ABSTIME) && (flags & TFD_TIMER_CANCEL_ON_SET))
        add_ns(&shifted.it_value, -shift_ns());
    return real_settime(fd, flags, &shifted, old);
}
