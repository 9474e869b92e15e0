#include "foundation/DateFormat.h"

#include "foundation/Calendar.h"

#include <QHash>

#include <unicode/smpdtfmt.h>

#include <memory>

namespace {
struct Key {
    QString pattern;
    QByteArray locale;
    QByteArray timeZoneID;
    bool operator==(const Key &) const = default;
};

size_t qHash(const Key &key, size_t seed = 0)
{
    return qHashMulti(seed, key.pattern, key.locale, key.timeZoneID);
}

icu::UnicodeString toIcu(QStringView text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size())};
}

std::shared_ptr<const icu::SimpleDateFormat> makeFormatter(const Key &key)
{
    UErrorCode status = U_ZERO_ERROR;
    auto formatter = std::make_shared<icu::SimpleDateFormat>(
        toIcu(key.pattern), icu::Locale(key.locale.constData()), status);
    if (U_FAILURE(status))
        return nullptr;
    formatter->adoptTimeZone(icu::TimeZone::createTimeZone(toIcu(QString::fromUtf8(key.timeZoneID))));
    return formatter;
}
} // namespace

QString DateFormat::format(
    Instant instant, QStringView pattern, const QByteArray &locale, const Calendar &calendar)
{
    // Few patterns are in use at a time. A change of the time zone leaves stale entries, so the cache is
    // bounded.
    static QHash<Key, std::shared_ptr<const icu::SimpleDateFormat>> formatters;
    constexpr qsizetype maxFormatters = 16;

    const Key key{pattern.toString(), locale, calendar.timeZoneID()};
    auto found = formatters.constFind(key);
    if (found == formatters.cend()) {
        if (formatters.size() >= maxFormatters)
            formatters.clear();
        found = formatters.insert(key, makeFormatter(key));
    }
    if (!*found)
        return {};
    icu::UnicodeString text;
    (*found)->format(UDate(instant.time_since_epoch().count()), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}
