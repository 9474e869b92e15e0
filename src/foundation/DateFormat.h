#pragma once

#include "foundation/Instant.h"

#include <QByteArray>
#include <QString>

class Calendar;

namespace DateFormat {
/// @p pattern in the Unicode date-pattern syntax ("M月d日 EEEE"), @p locale as ICU names it ("zh_CN").
/// Formatters are cached, so that a list can format its rows quickly.
[[nodiscard]] QString format(
    Instant instant, QStringView pattern, const QByteArray &locale, const Calendar &calendar);
} // namespace DateFormat
