#pragma once

#include <QString>

namespace Gallery {
/// Takes pictures of all that can be seen of the program, as it is on the screen: light and dark, at one and
/// two device pixels for a pixel, with a compositor and without. Each look has its folder. Whether all could
/// be seen.
bool take(const QString &program, const QString &folder);
} // namespace Gallery
