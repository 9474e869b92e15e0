#include "foundation/DateFormat.h"

#include "foundation/Calendar.h"

#include <unicode/smpdtfmt.h>

#include <map>
#include <memory>
#include <tuple>

namespace {
using Key = std::tuple<QString, QByteArray, QByteArray>; // pattern, locale, time zone

icu::UnicodeString toIcu(QStringView text)
{
    return {text.utf16(), int32_t(text.size())};
}

/// Null if the pattern is invalid.
std::unique_ptr<const icu::SimpleDateFormat> makeFormatter(const Key &key)
{
    const auto &[pattern, locale, timeZoneID] = key;
    UErrorCode status = U_ZERO_ERROR;
    auto formatter =
        std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), icu::Locale(locale.constData()), status);
    if (U_FAILURE(status))
        return nullptr;
    formatter->adoptTimeZone(icu::TimeZone::createTimeZone(toIcu(QString::fromUtf8(timeZoneID))));
    return formatter;
}
} // namespace

QString DateFormat::format(
    Instant instant, QStringView pattern, const QByteArray &locale, const Calendar &calendar)
{
    // Few patterns are in use at a time. A change of the time zone leaves stale entries, so the cache is
    // bounded.
    static std::map<Key, std::unique_ptr<const icu::SimpleDateFormat>> formatters;
    constexpr size_t maxFormatters = 16;

    const Key key(pattern.toString(), locale, calendar.timeZoneID());
    auto found = formatters.find(key);
    if (found == formatters.end()) {
        if (formatters.size() >= maxFormatters)
            formatters.clear();
        found = formatters.emplace(key, makeFormatter(key)).first;
    }
    if (!found->second)
        return {};
    icu::UnicodeString text;
    found->second->format(UDate(instant.time_since_epoch().count()), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}
