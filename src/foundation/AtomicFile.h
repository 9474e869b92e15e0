#pragma once

#include "foundation/ByteSink.h"
#include "foundation/FileCalls.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

/// Files that are replaced together or not at all, even if the process or the power fails in between.
///
/// Each file of a commit is first written and synced as "<name>.staged" beside its target (symbolic links are
/// followed); then the staged files are renamed, in the order given. Of several files each change of a name
/// is synced before the next, so the changes reach the disk in this order. A staged file that is missing
/// while a later one exists therefore means that renaming had begun: recover() completes it. Any other staged
/// file belongs to a commit that did not take place.
///
/// A failure keeps the errno of the system call that failed.
namespace AtomicFile {
struct Content {
    QString path;
    ByteSource bytes;
};

/// Replaces all files, or none. New files are readable by their owner only; the folders must exist. Several
/// files must have been settled by settle() since the process started and since a replace() failed. Files at
/// the end that already have their content are left as they are: the common save then costs two syncs, not
/// six.
Outcome replace(const QList<Content> &contents, FileCalls &calls = FileCalls::system());

/// Completes or discards an earlier replace() of these files, in this order, that was interrupted.
Outcome recover(const QStringList &paths, FileCalls &calls = FileCalls::system());

/// recover(), after which the names of the files survive a power failure.
Outcome settle(const QStringList &paths, FileCalls &calls = FileCalls::system());

/// Creates the folder and its missing parents, accessible to their owner only.
Outcome createFolder(const QString &path, FileCalls &calls = FileCalls::system());

/// Nothing if the file does not exist; a failure if it exists but cannot be read, or if that is unknown.
[[nodiscard]] Result<std::optional<QByteArray>> read(
    const QString &path, FileCalls &calls = FileCalls::system());

/// Renames the file by appending @p suffix, and a number if that name is taken. Succeeds if the file does not
/// exist.
Outcome keepAside(const QString &path, const QString &suffix, FileCalls &calls = FileCalls::system());
} // namespace AtomicFile
