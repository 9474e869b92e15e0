#pragma once

#include "foundation/Calendar.h"

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <utility>

/// What the fuzzer hands over.
class FuzzInput final
{
public:
    FuzzInput(const uint8_t *data, size_t size)
        : m_bytes(reinterpret_cast<const char *>(data), qsizetype(size))
    {
    }

    [[nodiscard]] QByteArrayView bytes() const { return m_bytes; }
    /// As a text field would hold it: invalid bytes have become U+FFFD.
    [[nodiscard]] QString text() const { return QString::fromUtf8(m_bytes); }
    /// The first line, and what follows it.
    [[nodiscard]] std::pair<QString, QString> lineAndRest() const
    {
        const qsizetype end = m_bytes.indexOf('\n');
        if (end < 0)
            return {text(), QString()};
        return {QString::fromUtf8(m_bytes.first(end)), QString::fromUtf8(m_bytes.sliced(end + 1))};
    }

private:
    QByteArrayView m_bytes;
};

/// Stops the fuzzer at the input that broke a promise.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

inline const Calendar &fuzzCalendar()
{
    static const Calendar calendar("Europe/Berlin"); // with skipped and repeated wall times
    return calendar;
}
constexpr Instant fuzzNow{
    std::chrono::milliseconds(1'774'690'000'000)}; // on the eve of a change of the clocks
