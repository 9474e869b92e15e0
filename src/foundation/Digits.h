#pragma once

#include <QStringView>

namespace Digits {
/// The value of decimal digits of any script: "１５" is 15. For a few digits: an overflow is not detected.
[[nodiscard]] int value(QStringView digits);
} // namespace Digits
