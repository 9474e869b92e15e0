#pragma once

#include <QString>

namespace Walk {
/// Takes the program down the road of one note on a private desktop, tells each step with its result, and
/// leaves a picture of each in the folder. Whether all went well.
bool take(const QString &program, const QString &folder);
} // namespace Walk
