#pragma once

#include "foundation/ByteSink.h"
#include "foundation/FileCalls.h"
#include "foundation/Result.h"

#include <QByteArray>

#include <functional>
#include <initializer_list>
#include <optional>

/// A sequence of steps on files. After the first failure the others do nothing and what they return is
/// meaningless: ask for the outcome at the end.
class Files
{
public:
    explicit Files(FileCalls &calls)
        : m_calls(calls)
    {
    }

    /// The first failure, if there was one: names the path and keeps the errno.
    [[nodiscard]] const Outcome &outcome() const { return m_outcome; }

    /// The absolute path with symbolic links in its last component followed; the file need not exist.
    [[nodiscard]] QString behindLinks(const QString &path);
    [[nodiscard]] bool exists(const QString &path); ///< a symbolic link exists by itself
    [[nodiscard]] bool isFolder(const QString &path);

    [[nodiscard]] std::optional<QByteArray> read(const QString &path);
    /// Writes and syncs a file that only its owner may read.
    void write(const QString &path, const ByteSource &source);
    void rename(const QString &from, const QString &to); ///< does nothing if there is no such file
    void remove(const QString &path);                    ///< the same
    /// The folder survives a power failure, or is not made.
    void makeFolder(const QString &path);
    /// Names that were changed in the folder of @p path then survive a power failure.
    void syncFolderOf(const QString &path);

private:
    class Descriptor;

    /// Makes a system call, again if a signal interrupts it. Returns what the call returns, or -errno. An
    /// errno that is not @p expected is a failure: "cannot <what> <path>".
    ssize_t attempt(const char *what, const QString &path, std::initializer_list<int> expected,
        const std::function<ssize_t(const char *path)> &call);
    void fail(const char *what, const QString &path, int error);

    FileCalls &m_calls;
    Outcome m_outcome = Done{};
};
