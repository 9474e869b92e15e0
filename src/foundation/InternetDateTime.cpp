#include "foundation/InternetDateTime.h"

#include <cstdio>

using namespace std::chrono;

QByteArray InternetDateTime::format(Instant instant)
{
    const auto wholeSeconds = floor<seconds>(instant);
    const auto midnight = floor<days>(wholeSeconds);
    const year_month_day date(midnight);
    const hh_mm_ss time(wholeSeconds - midnight);
    char buffer[40];
    const int length = std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02uT%02d:%02d:%02dZ",
        int(date.year()), unsigned(date.month()), unsigned(date.day()), int(time.hours().count()),
        int(time.minutes().count()), int(time.seconds().count()));
    return {buffer, length};
}

namespace {
/// Reads fixed-width fields from the front of a text and remembers whether all of them were there.
class FieldReader
{
public:
    explicit FieldReader(QByteArrayView text)
        : m_rest(text)
    {
    }

    int digits(int count)
    {
        int value = 0;
        for (int i = 0; i < count; ++i) {
            const char digit = next();
            m_valid = m_valid && digit >= '0' && digit <= '9';
            value = value * 10 + (digit - '0');
        }
        return m_valid ? value : 0;
    }
    void expect(char separator) { m_valid = (next() == separator) && m_valid; }
    char next()
    {
        if (m_rest.isEmpty()) {
            m_valid = false;
            return '\0';
        }
        const char first = m_rest.front();
        m_rest = m_rest.sliced(1);
        return first;
    }
    [[nodiscard]] bool readAll() const { return m_valid && m_rest.isEmpty(); }

private:
    QByteArrayView m_rest;
    bool m_valid = true;
};
} // namespace

std::optional<Instant> InternetDateTime::parse(QByteArrayView text)
{
    FieldReader reader(text);
    const int yearNumber = reader.digits(4);
    reader.expect('-');
    const int monthNumber = reader.digits(2);
    reader.expect('-');
    const int dayNumber = reader.digits(2);
    reader.expect('T');
    const int hour = reader.digits(2);
    reader.expect(':');
    const int minute = reader.digits(2);
    reader.expect(':');
    const int second = reader.digits(2);

    const char zone = reader.next();
    minutes offset{0};
    if (zone == '+' || zone == '-') {
        const int offsetHours = reader.digits(2);
        reader.expect(':');
        const int offsetMinutes = reader.digits(2);
        if (offsetHours > 23 || offsetMinutes > 59)
            return std::nullopt;
        offset = hours(offsetHours) + minutes(offsetMinutes);
        if (zone == '-')
            offset = -offset;
    } else if (zone != 'Z') {
        return std::nullopt;
    }

    const year_month_day date{year(yearNumber), month(unsigned(monthNumber)), day(unsigned(dayNumber))};
    if (!reader.readAll() || !date.ok() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return Instant(sys_days(date) + hours(hour) + minutes(minute) + seconds(second) - offset);
}
