#pragma once

#include "foundation/AtomicFile.h"
#include "foundation/Instant.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

/// The files of one store, which are saved together.
///
/// A file that exists but could not be read or decoded is renamed before the first save replaces it.
class DataFiles
{
public:
    explicit DataFiles(QStringList paths, FileCalls &calls = FileCalls::system())
        : m_paths(std::move(paths))
        , m_calls(calls)
    {
    }

    /// Completes or discards a save that was interrupted. Call it before load().
    void recover();

    /// Passes the content of the file, if it exists, to @p decode, which returns whether it could decode it.
    void load(qsizetype index, const std::function<bool(const QByteArray &)> &decode);

    /// Replaces all files, in the order of their paths, or none. @p now is part of the names of files kept
    /// aside.
    Outcome save(const QList<ByteSource> &contents, Instant now);

private:
    QStringList m_paths;
    FileCalls &m_calls;
    QStringList m_toKeepAside; ///< before the next save
    bool m_areSettled = false; ///< the last save of this process was complete
};
