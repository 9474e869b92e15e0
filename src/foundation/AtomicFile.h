#pragma once

#include "foundation/ByteSink.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

/// Files that are replaced as a whole or not at all, whenever the process or the power goes.
///
/// Every file of a commit is first staged beside its target (a symbolic link is followed) as "<name>.staged",
/// all are synced, and only then renamed, in the order given. So a staged file that is missing while a later
/// one is there means that the renaming had begun: recover() completes it. Any other staged file belongs to a
/// commit that never was.
namespace AtomicFile {
struct Content {
    QString path;
    ByteSource bytes;
};

/// Replaces all files, or none. New files are readable by their owner alone; the folders must exist.
Outcome replace(const QList<Content> &contents);

/// Completes or discards what an earlier replace() of these files, in this order, left behind.
Outcome recover(const QStringList &paths);

/// The path behind any symbolic links, whether there is a file or not.
[[nodiscard]] QString target(const QString &path);

/// Creates the folder, and what is missing above it, open to its owner alone.
Outcome createFolder(const QString &path);

/// Nothing when there is no such file; a failure when there is one that cannot be read.
[[nodiscard]] Result<std::optional<QByteArray>> read(const QString &path);

/// Moves a file out of the way, to its name followed by @p suffix (and a number where that is taken). A file
/// that has gone meanwhile needs no keeping.
Outcome keepAside(const QString &path, const QString &suffix);
} // namespace AtomicFile
