#include "foundation/InternetDateTime.h"

#include <algorithm>

using namespace std::chrono;

namespace {
constexpr Instant earliest{sys_days(year(0) / January / 1)};
constexpr Instant latest{sys_days(year(9999) / December / 31) + hours(24) - milliseconds(1)};

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
    writePair(out, yearNumber / 100);
    writePair(out + 2, yearNumber % 100);
    out[4] = '-';
    writePair(out + 5, unsigned(date.month()));
    out[7] = '-';
    writePair(out + 8, unsigned(date.day()));
    out[10] = 'T';
    writePair(out + 11, unsigned(time.hours().count()));
    out[13] = ':';
    writePair(out + 14, unsigned(time.minutes().count()));
    out[16] = ':';
    writePair(out + 17, unsigned(time.seconds().count()));
    out[19] = 'Z';
}

QByteArray InternetDateTime::format(Instant instant)
{
    QByteArray text(length, Qt::Uninitialized);
    write(instant, text.data());
    return text;
}

namespace {
/// Reads fixed-width fields from the front of a text and remembers whether all of them were valid.
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
    const Instant instant = sys_days(date) + hours(hour) + minutes(minute) + seconds(second) - offset;
    return instant < earliest || instant > latest ? std::nullopt : std::optional(instant);
}
