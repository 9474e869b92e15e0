#pragma once

#include <QStringView>

namespace Digits {
/// The value of decimal digits of any script: "１５" is 15. Meant for a few of them.
[[nodiscard]] int value(QStringView digits);
} // namespace Digits
