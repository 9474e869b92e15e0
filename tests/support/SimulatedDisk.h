#pragma once

#include "foundation/FileCalls.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QtGlobal>

#include <algorithm>
#include <cerrno>
#include <map>

/// A file system in memory. Any call can be made to fail or to be the last, and the power can fail.
///
/// Only what was synced survives a power failure for certain: the bytes of a file by an fsync of the file, a
/// changed name by an fsync of its folder. Each change of a name that was not synced may survive or not,
/// whatever happens to the others. There are no links.
class SimulatedDisk final : public FileCalls
{
public:
    int failingCall = 0; ///< counted from 1; 0: none fails
    int error = EIO;     ///< what the failing call reports
    int lastCall = 0;    ///< from this call on nothing happens any more; 0: all happen

    SimulatedDisk() { putFolder("/"); }

    [[nodiscard]] bool hasStopped() const { return lastCall != 0 && m_calls >= lastCall; }
    [[nodiscard]] bool hasFailed() const { return failingCall != 0 && m_calls >= failingCall; }
    [[nodiscard]] bool isSynced() const
    {
        return m_changes.isEmpty() && std::all_of(m_names.begin(), m_names.end(), [this](int number) {
            return m_nodes[number].bytes == m_nodes[number].synced;
        });
    }
    [[nodiscard]] bool hasOpenFiles() const { return !m_open.isEmpty(); }

    void putFolder(const QByteArray &path) { put(path, {true, {}, {}}); }
    void putFile(const QByteArray &path, const QByteArray &bytes) { put(path, {false, bytes, bytes}); }
    [[nodiscard]] std::map<QByteArray, QByteArray> files() const
    {
        std::map<QByteArray, QByteArray> files;
        for (auto name = m_names.cbegin(); name != m_names.cend(); ++name)
            if (!m_nodes[name.value()].isFolder)
                files[name.key()] = m_nodes[name.value()].bytes;
        return files;
    }

    /// This disk as the next process finds it.
    [[nodiscard]] SimulatedDisk afterExit() const
    {
        SimulatedDisk disk = *this;
        disk.failingCall = disk.lastCall = disk.m_calls = 0;
        disk.m_open.clear();
        return disk;
    }
    /// Every disk that may be found if the power fails now, and this one, as found if only the process ends.
    [[nodiscard]] QList<SimulatedDisk> afterStop() const
    {
        Q_ASSERT(m_changes.size() < 10);
        std::map<std::map<QByteArray, QByteArray>, SimulatedDisk> found;
        for (unsigned survivors = 0; survivors < (1U << m_changes.size()); ++survivors) {
            Names names = m_durableNames;
            for (qsizetype i = 0; i < m_changes.size(); ++i)
                if (survivors & (1U << i))
                    m_changes[i].applyTo(names);
            for (const int writtenHalves : {0, 1, 2}) { // of what was not synced
                SimulatedDisk disk;
                for (auto name = names.cbegin(); name != names.cend(); ++name) {
                    const Node &node = m_nodes[name.value()];
                    const bool isWhole = writtenHalves == 0 || node.bytes == node.synced;
                    const QByteArray bytes =
                        isWhole ? node.synced : node.bytes.first(node.bytes.size() * writtenHalves / 2);
                    if (disk.m_names.contains(folderOf(name.key())))
                        disk.put(name.key(), {node.isFolder, bytes, bytes});
                }
                found.emplace(disk.files(), disk);
            }
        }
        QList<SimulatedDisk> disks{afterExit()};
        for (const auto &[files, disk] : found)
            disks.append(disk);
        return disks;
    }

    int open(const char *path, int flags, mode_t) override
    {
        if (!happens())
            return -1;
        if (!m_names.contains(path) && (flags & O_CREAT) && m_names.contains(folderOf(path)))
            change({folderOf(path), {}, path, newNode({})});
        if (!m_names.contains(path))
            return fail(ENOENT);
        const int number = m_names[path];
        if ((flags & O_DIRECTORY) && !m_nodes[number].isFolder)
            return fail(ENOTDIR);
        if (flags & O_TRUNC)
            m_nodes[number].bytes.clear();
        m_open.insert(++m_lastFd, {number, path, 0});
        return m_lastFd;
    }
    ssize_t read(int fd, char *bytes, size_t size) override
    {
        if (!happens())
            return -1;
        OpenFile &file = m_open[fd];
        const QByteArray piece =
            m_nodes[file.node].bytes.mid(file.position, std::min(qsizetype(size), maxBytesPerCall));
        std::copy(piece.begin(), piece.end(), bytes);
        file.position += piece.size();
        return piece.size();
    }
    ssize_t write(int fd, const char *bytes, size_t size) override
    {
        if (!happens())
            return -1;
        OpenFile &file = m_open[fd];
        const QByteArray piece(bytes, std::min(qsizetype(size), maxBytesPerCall));
        m_nodes[file.node].bytes.replace(file.position, piece.size(), piece);
        file.position += piece.size();
        return piece.size();
    }
    int fsync(int fd) override
    {
        if (!happens())
            return -1;
        const OpenFile &file = m_open[fd];
        Node &node = m_nodes[file.node];
        node.synced = node.bytes;
        for (qsizetype i = 0; i < m_changes.size();) {
            if (node.isFolder && m_changes[i].folder == file.path)
                m_changes.takeAt(i).applyTo(m_durableNames);
            else
                ++i;
        }
        return 0;
    }
    int close(int fd) override
    {
        m_open.remove(fd); // even when it fails
        return happens() ? 0 : -1;
    }
    int rename(const char *from, const char *to) override
    {
        if (!happens())
            return -1;
        if (!m_names.contains(from))
            return fail(ENOENT);
        change({folderOf(from), from, to, m_names.value(from)});
        return 0;
    }
    int remove(const char *path) override
    {
        if (!happens())
            return -1;
        if (!m_names.contains(path))
            return fail(ENOENT);
        change({folderOf(path), path, {}, -1});
        return 0;
    }
    int mkdir(const char *path, mode_t) override
    {
        if (!happens())
            return -1;
        if (m_names.contains(path))
            return fail(EEXIST);
        change({folderOf(path), {}, path, newNode({true, {}, {}})});
        return 0;
    }
    ssize_t readlink(const char *path, char *, size_t) override
    {
        return happens() ? fail(m_names.contains(path) ? EINVAL : ENOENT) : -1;
    }

private:
    static constexpr qsizetype maxBytesPerCall = 8; ///< of a read or write

    struct Node {
        bool isFolder = false;
        QByteArray bytes;
        QByteArray synced;
    };
    using Names = QMap<QByteArray, int>; ///< of nodes, by their indexes

    /// A change of a name; one that is not made or not removed is empty.
    struct Change {
        QByteArray folder;
        QByteArray removed;
        QByteArray made;
        int node = -1;

        void applyTo(Names &names) const
        {
            if (!removed.isEmpty())
                names.remove(removed);
            if (!made.isEmpty())
                names[made] = node;
        }
    };
    struct OpenFile {
        int node = -1;
        QByteArray path;
        qsizetype position = 0;
    };

    static QByteArray folderOf(const QByteArray &path)
    {
        return path.first(std::max<qsizetype>(1, path.lastIndexOf('/')));
    }
    static int fail(int number)
    {
        errno = number;
        return -1;
    }
    bool happens()
    {
        ++m_calls;
        if (!hasStopped() && m_calls != failingCall)
            return true;
        errno = error;
        return false;
    }
    void put(const QByteArray &path, const Node &node)
    {
        m_names[path] = m_durableNames[path] = newNode(node);
    }
    int newNode(const Node &node)
    {
        m_nodes.append(node);
        return int(m_nodes.size()) - 1;
    }
    void change(const Change &change)
    {
        change.applyTo(m_names);
        m_changes.append(change);
    }

    QList<Node> m_nodes;
    Names m_names;
    Names m_durableNames;
    QList<Change> m_changes; ///< not synced
    QHash<int, OpenFile> m_open;
    int m_lastFd = 2;
    int m_calls = 0;
};
