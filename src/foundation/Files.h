#pragma once

#include "foundation/ByteSink.h"
#include "foundation/FileCalls.h"
#include "foundation/Result.h"

#include <QByteArray>

#include <optional>

/// System calls on files, each repeated until it is complete. A failure names the path and keeps the errno.
class Files
{
public:
    explicit Files(FileCalls &calls)
        : m_calls(calls)
    {
    }

    /// The absolute path with symbolic links in its last component followed; the file need not exist.
    [[nodiscard]] Result<QString> behindLinks(const QString &path) const;
    [[nodiscard]] Result<bool> exists(const QString &path) const; ///< a symbolic link exists by itself
    [[nodiscard]] Result<bool> isFolder(const QString &path) const;

    [[nodiscard]] Result<std::optional<QByteArray>> read(const QString &path) const;
    /// Writes and syncs a file that only its owner may read.
    Outcome write(const QString &path, const ByteSource &source) const;
    Outcome rename(const QString &from, const QString &to) const;
    Outcome remove(const QString &path) const; ///< succeeds if there is none
    /// The folder survives a power failure, or is not made.
    Outcome makeFolder(const QString &path) const;
    /// Names that were changed in the folder of @p path then survive a power failure.
    Outcome syncFolderOf(const QString &path) const;

private:
    FileCalls &m_calls;
};
