#pragma once

#include <QString>

/// Where the data files live.
namespace AppPaths {
/// The person's data folder: $XDG_DATA_HOME, or ~/.local/share.
[[nodiscard]] QString applicationSupport();

/// Quillet's own folder in it.
[[nodiscard]] QString dataFolder();

/// Moves the data files out of the folder that an earlier name of the program used, where they are not yet in
/// the new one. Failures are logged, one line each.
void migrateLegacyDataIfNeeded(const QString &base);

/// The path of a data file at its default place, after the migration.
[[nodiscard]] QString defaultFile(const QString &name);
} // namespace AppPaths
