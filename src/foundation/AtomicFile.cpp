#include "foundation/AtomicFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>

namespace {
Failure systemFailure(const QString &what, const QString &path, int error = errno)
{
    return {QStringLiteral("%1 %2: %3").arg(what, path, QString::fromLocal8Bit(std::strerror(error))), error};
}

/// An open file or folder, closed at the end of its scope.
class Descriptor
{
public:
    Descriptor(FileCalls &calls, const QString &path, int flags, mode_t mode = 0)
        : m_calls(calls)
        , m_fd(calls.open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode))
    {
    }
    ~Descriptor()
    {
        if (isOpen())
            m_calls.close(m_fd); // after an fsync it has nothing more to report
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int fd() const { return m_fd; }

private:
    FileCalls &m_calls;
    const int m_fd;
};

QString stagedPath(const QString &path)
{
    return path + QStringLiteral(".staged");
}

QString folderOf(const QString &path)
{
    return path.first(std::max<qsizetype>(1, path.lastIndexOf(u'/')));
}

bool isMissing(int error)
{
    return error == ENOENT || error == ENOTDIR;
}

/// The steps of a commit. Paths are absolute and have been through behindLinks().
class Files
{
public:
    explicit Files(FileCalls &calls)
        : m_calls(calls)
    {
    }

    /// The path of the file itself, which need not exist. ".." stays: it refers to the folder behind a link.
    [[nodiscard]] Result<QString> behindLinks(const QString &path) const
    {
        QString current = QDir::current().absoluteFilePath(path);
        for (int links = 0; links < 40; ++links) { // as many as the kernel follows
            QByteArray target(PATH_MAX, Qt::Uninitialized);
            const ssize_t length = m_calls.readlink(
                QFile::encodeName(current).constData(), target.data(), size_t(target.size()));
            const bool isNoLink = length < 0 && (errno == EINVAL || isMissing(errno));
            if (isNoLink)
                return current;
            if (length < 0)
                return systemFailure(QStringLiteral("cannot examine"), current);
            target.truncate(length);
            current = QDir(folderOf(current)).absoluteFilePath(QFile::decodeName(target));
        }
        return systemFailure(QStringLiteral("cannot examine"), current, ELOOP);
    }
    [[nodiscard]] Result<QStringList> behindLinks(const QStringList &paths) const
    {
        QStringList files;
        for (const QString &path : paths) {
            const auto file = behindLinks(path);
            if (!file)
                return file.failure();
            files.append(file.value());
        }
        return files;
    }

    /// Nothing if there is no such file.
    [[nodiscard]] Result<std::optional<struct stat>> status(const QString &path) const
    {
        struct stat status = {};
        if (m_calls.lstat(QFile::encodeName(path).constData(), &status) == 0)
            return std::optional(status);
        if (isMissing(errno))
            return std::optional<struct stat>();
        return systemFailure(QStringLiteral("cannot examine"), path);
    }
    [[nodiscard]] Result<bool> exists(const QString &path) const
    {
        const auto found = status(path);
        return found ? Result<bool>(found.value().has_value()) : found.failure();
    }
    [[nodiscard]] Result<bool> isFolder(const QString &path) const
    {
        const auto folder = behindLinks(path);
        if (!folder)
            return folder.failure();
        const auto found = status(folder.value());
        return found ? Result<bool>(found.value() && S_ISDIR(found.value()->st_mode)) : found.failure();
    }

    Outcome makeFolder(const QString &path) const
    {
        if (m_calls.mkdir(QFile::encodeName(path).constData(), S_IRWXU) != 0 && errno != EEXIST)
            return systemFailure(QStringLiteral("cannot create"), path);
        Outcome synced = syncFolderOf(path);
        if (!synced) // so that the next attempt syncs again
            (void)m_calls.rmdir(QFile::encodeName(path).constData());
        return synced;
    }

    [[nodiscard]] Result<QByteArray> read(const QString &path, qsizetype expectedSize) const
    {
        const Descriptor file(m_calls, path, O_RDONLY);
        if (!file.isOpen())
            return systemFailure(QStringLiteral("cannot read"), path);
        QByteArray bytes(expectedSize + 1, Qt::Uninitialized);
        qsizetype size = 0;
        for (;;) {
            if (size == bytes.size())
                bytes.resize(2 * size);
            const ssize_t count = m_calls.read(file.fd(), bytes.data() + size, size_t(bytes.size() - size));
            if (count < 0 && errno != EINTR)
                return systemFailure(QStringLiteral("cannot read"), path);
            if (count == 0)
                break;
            size += std::max<ssize_t>(count, 0);
        }
        bytes.truncate(size);
        return bytes;
    }

    Outcome rename(const QString &from, const QString &to) const
    {
        if (m_calls.rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
            return systemFailure(QStringLiteral("cannot replace"), to);
        return Done{};
    }

    Outcome syncFolderOf(const QString &path) const
    {
        const Descriptor folder(m_calls, folderOf(path), O_RDONLY | O_DIRECTORY);
        // Some file systems cannot sync a folder and return EINVAL.
        if (!folder.isOpen() || (m_calls.fsync(folder.fd()) != 0 && errno != EINVAL))
            return systemFailure(QStringLiteral("cannot sync"), folderOf(path));
        return Done{};
    }

    Outcome stageAll(const QStringList &paths, const QList<AtomicFile::Content> &contents) const
    {
        if (paths.size() == 1) // its rename alone commits it: no order to keep
            return stage(paths.first(), contents.first().bytes);
        // An earlier commit may have been interrupted between its last rename and the sync.
        for (const QString &path : paths) {
            if (Outcome synced = syncFolderOf(path); !synced)
                return synced;
        }
        for (qsizetype i = 0; i < paths.size(); ++i) {
            if (Outcome staged = stage(paths[i], contents[i].bytes); !staged)
                return staged;
            if (Outcome synced = syncFolderOf(paths[i]); !synced)
                return synced;
        }
        return Done{};
    }

    /// In reverse order: a half-written later file must never be found alone, as if renaming had begun.
    Outcome discardStaged(const QStringList &paths) const
    {
        for (auto path = paths.crbegin(); path != paths.crend(); ++path) {
            const QString staged = stagedPath(*path);
            if (m_calls.unlink(QFile::encodeName(staged).constData()) != 0 && errno != ENOENT)
                return systemFailure(QStringLiteral("cannot remove"), staged);
            if (Outcome synced = syncFolderOf(*path); !synced)
                return synced;
        }
        return Done{};
    }

    /// Also syncs what an earlier attempt has renamed already.
    Outcome renameStaged(const QStringList &paths) const
    {
        for (const QString &path : paths) {
            const auto isStaged = exists(stagedPath(path));
            if (!isStaged)
                return isStaged.failure();
            if (isStaged.value()) {
                if (Outcome renamed = rename(stagedPath(path), path); !renamed)
                    return renamed;
            }
            if (Outcome synced = syncFolderOf(path); !synced)
                return synced;
        }
        return Done{};
    }

    Outcome recover(const QStringList &paths) const
    {
        QList<bool> areStaged;
        for (const QString &path : paths) {
            const auto isStaged = exists(stagedPath(path));
            if (!isStaged)
                return isStaged.failure();
            areStaged.append(isStaged.value());
        }
        if (!areStaged.contains(true))
            return Done{};
        const bool renamingHadBegun = !areStaged.first();
        return renamingHadBegun ? renameStaged(paths) : discardStaged(paths);
    }

private:
    Outcome stage(const QString &target, const ByteSource &source) const
    {
        const QString path = stagedPath(target);
        const auto failure = [&path] { return systemFailure(QStringLiteral("cannot write"), path); };
        const Descriptor file(m_calls, path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (!file.isOpen())
            return failure();
        Outcome written = Done{};
        source([&](QByteArrayView piece) {
            if (written && !writeAll(file.fd(), piece))
                written = failure();
        });
        if (written && m_calls.fsync(file.fd()) != 0)
            written = failure();
        return written;
    }

    [[nodiscard]] bool writeAll(int fd, QByteArrayView bytes) const
    {
        for (qsizetype written = 0; written < bytes.size();) {
            const ssize_t count = m_calls.write(fd, bytes.data() + written, size_t(bytes.size() - written));
            if (count < 0 && errno != EINTR)
                return false;
            written += std::max<ssize_t>(count, 0);
        }
        return true;
    }

    FileCalls &m_calls;
};
} // namespace

Outcome AtomicFile::createFolder(const QString &path, FileCalls &calls)
{
    const Files files(calls);
    const auto isThere = files.isFolder(path);
    if (!isThere)
        return isThere.failure();
    if (isThere.value())
        return Done{};
    const QString folder = QDir::current().absoluteFilePath(path);
    if (folderOf(folder) != folder) {
        if (Outcome above = createFolder(folderOf(folder), calls); !above)
            return above;
    }
    if (Outcome made = files.makeFolder(folder); !made)
        return made;
    // A file of that name may exist; report it now rather than when a file in the folder is opened.
    const auto isFolder = files.isFolder(folder);
    if (!isFolder)
        return isFolder.failure();
    if (!isFolder.value())
        return systemFailure(QStringLiteral("cannot create"), folder, ENOTDIR);
    return Done{};
}

Outcome AtomicFile::recover(const QStringList &paths, FileCalls &calls)
{
    const Files files(calls);
    const auto targets = files.behindLinks(paths);
    return targets ? files.recover(targets.value()) : targets.failure();
}

Outcome AtomicFile::replace(const QList<Content> &contents, FileCalls &calls)
{
    const Files files(calls);
    QStringList paths;
    for (const Content &content : contents)
        paths.append(content.path);
    const auto targets = files.behindLinks(paths);
    if (!targets)
        return targets.failure();

    // A commit whose renaming failed half-way must be completed before its staged files are overwritten.
    if (Outcome earlier = files.recover(targets.value()); !earlier)
        return earlier;
    Outcome done = files.stageAll(targets.value(), contents);
    if (done)
        done = files.renameStaged(targets.value());
    if (!done)
        (void)files.recover(targets.value()); // if this fails, the next commit does it
    return done;
}

Result<std::optional<QByteArray>> AtomicFile::read(const QString &path, FileCalls &calls)
{
    const Files files(calls);
    const auto file = files.behindLinks(path);
    if (!file)
        return file.failure();
    const auto status = files.status(file.value());
    if (!status)
        return status.failure();
    if (!status.value())
        return std::optional<QByteArray>();
    auto bytes = files.read(file.value(), qsizetype(status.value()->st_size));
    if (!bytes)
        return bytes.failure();
    return std::optional(std::move(bytes.value()));
}

Outcome AtomicFile::keepAside(const QString &path, const QString &suffix, FileCalls &calls)
{
    const Files files(calls);
    const auto file = files.behindLinks(path);
    if (!file)
        return file.failure();
    const QString &from = file.value();
    QString to = from + suffix;
    for (int number = 2;; ++number) {
        const auto isTaken = files.exists(to);
        if (!isTaken)
            return isTaken.failure();
        if (!isTaken.value())
            break;
        to = from + suffix + QStringLiteral("-%1").arg(number);
    }
    if (Outcome renamed = files.rename(from, to); !renamed && renamed.failure().systemError != ENOENT)
        return renamed;
    // Or else a later rename to the old name might reach the disk first and take the file with it.
    return files.syncFolderOf(from);
}
