#include "foundation/InternetDateTime.h"

#include <algorithm>
#include <cstring>

using namespace std::chrono;

namespace {
constexpr Instant earliest{sys_days(year(0) / January / 1)};
constexpr Instant latest{sys_days(year(9999) / December / 31) + hours(24) - milliseconds(1)};

constexpr QByteArrayView utcForm("0000-00-00T00:00:00Z");

/// Whether the text has a digit wherever @p form has a 0, and is equal to it elsewhere.
bool hasForm(QByteArrayView text, QByteArrayView form)
{
    return std::equal(text.begin(), text.end(), form.begin(), form.end(),
        [](char unit, char wanted) { return wanted == '0' ? unit >= '0' && unit <= '9' : unit == wanted; });
}

void writePair(char *out, unsigned value)
{
    out[0] = char('0' + value / 10);
    out[1] = char('0' + value % 10);
}
} // namespace

void InternetDateTime::write(Instant instant, char *out)
{
    const auto wholeSeconds = floor<seconds>(std::clamp(instant, earliest, latest));
    const auto midnight = floor<days>(wholeSeconds);
    const year_month_day date(midnight);
    const hh_mm_ss time(wholeSeconds - midnight);
    const auto yearNumber = unsigned(int(date.year()));
    std::memcpy(out, utcForm.data(), length);
    writePair(out, yearNumber / 100);
    writePair(out + 2, yearNumber % 100);
    writePair(out + 5, unsigned(date.month()));
    writePair(out + 8, unsigned(date.day()));
    writePair(out + 11, unsigned(time.hours().count()));
    writePair(out + 14, unsigned(time.minutes().count()));
    writePair(out + 17, unsigned(time.seconds().count()));
}

QByteArray InternetDateTime::format(Instant instant)
{
    QByteArray text(length, Qt::Uninitialized);
    write(instant, text.data());
    return text;
}

std::optional<Instant> InternetDateTime::parse(QByteArrayView text)
{
    const bool isEast = hasForm(text, "0000-00-00T00:00:00+00:00");
    const bool isWest = hasForm(text, "0000-00-00T00:00:00-00:00");
    if (!isEast && !isWest && !hasForm(text, utcForm))
        return std::nullopt;
    const auto number = [text](qsizetype start, qsizetype digits = 2) {
        int value = 0;
        for (const char digit : text.sliced(start, digits))
            value = value * 10 + (digit - '0');
        return value;
    };
    const year_month_day date{year(number(0, 4)), month(unsigned(number(5))), day(unsigned(number(8)))};
    const int hour = number(11);
    const int minute = number(14);
    const int second = number(17);
    const int offsetHours = isEast || isWest ? number(20) : 0;
    const int offsetMinutes = isEast || isWest ? number(23) : 0;
    if (!date.ok() || std::max(hour, offsetHours) > 23 || std::max({minute, second, offsetMinutes}) > 59)
        return std::nullopt;
    const minutes east = hours(offsetHours) + minutes(offsetMinutes);
    const Instant instant =
        sys_days(date) + hours(hour) + minutes(minute) + seconds(second) - (isWest ? -east : east);
    return instant < earliest || instant > latest ? std::nullopt : std::optional(instant);
}
