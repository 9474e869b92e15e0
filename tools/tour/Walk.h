#pragma once

#include <QString>

namespace Walk {
/// Follows one note through the program on a private desktop, prints the result of each step, and saves a
/// screenshot of each in the folder. Returns whether all steps succeeded.
bool take(const QString &program, const QString &folder);
} // namespace Walk
