#pragma once

#include <QString>

/// The locations of the data files.
namespace AppPaths {
/// "Quillet" in the user's data folder: $XDG_DATA_HOME if it is absolute, else ~/.local/share.
[[nodiscard]] QString dataFolder();

/// Moves data files from the folder used under the program's earlier name, unless the new folder has them
/// already. Each failure is one line in the log.
void migrateLegacyDataIfNeeded(const QString &base);

/// The path of a data file in the default folder. Migrates legacy data first.
[[nodiscard]] QString defaultFile(const QString &name);
} // namespace AppPaths
