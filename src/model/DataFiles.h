#pragma once

#include "foundation/AtomicFile.h"
#include "foundation/Instant.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

/// The files of one store, which are saved together.
///
/// A file that is there but could not be read, or not be understood, is kept aside under another name before
/// the first save replaces it.
class DataFiles
{
public:
    explicit DataFiles(QStringList paths)
        : m_paths(std::move(paths))
    {
    }

    /// Completes or discards what a process that died in a save left behind. To be called before any load().
    void recover();

    /// Hands the bytes of the file, if there is one, to @p decode, which tells whether it understood them.
    void load(qsizetype index, const std::function<bool(const QByteArray &)> &decode);

    /// Replaces all files, in the order of their paths, or none. @p now names what is kept aside.
    Outcome save(const QList<ByteSource> &contents, Instant now);

private:
    QStringList m_paths;
    QStringList m_unreadable;
};
