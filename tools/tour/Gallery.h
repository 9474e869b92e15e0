#pragma once

#include <QString>

namespace Gallery {
/// Takes screenshots of every view of the program: light and dark, at scale 1 and 2, with and without a
/// compositor, each combination in its own folder. Returns whether all views opened.
bool take(const QString &program, const QString &folder);
} // namespace Gallery
