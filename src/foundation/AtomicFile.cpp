#include "foundation/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
Failure systemFailure(const QString &what, const QString &path)
{
    return {QStringLiteral("%1 %2: %3").arg(what, path, QString::fromLocal8Bit(std::strerror(errno)))};
}

/// An open file or folder, closed at the end of its scope.
class Descriptor
{
public:
    Descriptor(const QString &path, int flags, mode_t mode = 0)
        : m_fd(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode))
    {
    }
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int fd() const { return m_fd; }
    [[nodiscard]] bool close() { return ::close(std::exchange(m_fd, -1)) == 0; }

private:
    int m_fd;
};

// From here on a path is that of the file itself, behind any links.

QString stagedPath(const QString &path)
{
    return path + QStringLiteral(".staged");
}

bool exists(const QString &path)
{
    struct stat status;
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

bool remove(const QString &path)
{
    return ::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT;
}

bool rename(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool writeAll(int fd, QByteArrayView bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count = ::write(fd, bytes.data() + written, size_t(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

Outcome stage(const QString &target, const ByteSource &bytes)
{
    const QString path = stagedPath(target);
    Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    bool isGood = file.isOpen();
    if (isGood)
        bytes([&](QByteArrayView piece) { isGood = isGood && writeAll(file.fd(), piece); });
    if (!isGood || ::fsync(file.fd()) != 0 || !file.close())
        return systemFailure(QStringLiteral("cannot write"), path);
    return Done{};
}

Outcome syncFoldersOf(const QStringList &paths)
{
    QStringList folders;
    for (const QString &path : paths)
        folders.append(QFileInfo(path).path());
    folders.removeDuplicates();
    for (const QString &folder : std::as_const(folders)) {
        const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
        // Some file systems know no sync of a folder and say so; there is nothing to be done about it.
        if (!descriptor.isOpen() || (::fsync(descriptor.fd()) != 0 && errno != EINVAL))
            return systemFailure(QStringLiteral("cannot sync"), folder);
    }
    return Done{};
}

Outcome stageAll(const QList<AtomicFile::Content> &contents, const QStringList &paths)
{
    for (qsizetype i = 0; i < paths.size(); ++i) {
        if (Outcome staged = stage(paths[i], contents[i].bytes); !staged)
            return staged;
    }
    return syncFoldersOf(paths);
}

/// The last first: a half-written later file must never stand alone and look like a commit.
Outcome discardStaged(const QStringList &paths)
{
    for (auto path = paths.crbegin(); path != paths.crend(); ++path) {
        if (!remove(stagedPath(*path)))
            return systemFailure(QStringLiteral("cannot remove"), stagedPath(*path));
    }
    return Done{};
}

Outcome renameStaged(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (exists(stagedPath(path)) && !rename(stagedPath(path), path))
            return systemFailure(QStringLiteral("cannot replace"), path);
    }
    return syncFoldersOf(paths);
}

Outcome recoverTargets(const QStringList &paths)
{
    const auto isStaged = [](const QString &path) { return exists(stagedPath(path)); };
    if (std::none_of(paths.begin(), paths.end(), isStaged))
        return Done{};
    const bool renamingHadBegun = !isStaged(paths.first());
    return renamingHadBegun ? renameStaged(paths) : discardStaged(paths);
}
} // namespace

QString AtomicFile::target(const QString &path)
{
    QString current = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (int links = 0; links < 40; ++links) { // as many as the kernel follows
        const QString next = QFile::symLinkTarget(current);
        if (next.isEmpty())
            return current;
        current = QDir::cleanPath(next);
    }
    return current;
}

Outcome AtomicFile::createFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return Done{};
    const QString parent = QFileInfo(path).absolutePath();
    if (parent != path) {
        if (Outcome above = createFolder(parent); !above)
            return above;
    }
    if (::mkdir(QFile::encodeName(path).constData(), S_IRWXU) != 0 && errno != EEXIST)
        return systemFailure(QStringLiteral("cannot create"), path);
    // Something that is no folder may stand there; say so now rather than at the first file.
    if (!QFileInfo(path).isDir()) {
        errno = ENOTDIR;
        return systemFailure(QStringLiteral("cannot create"), path);
    }
    return Done{};
}

Outcome AtomicFile::recover(const QStringList &paths)
{
    QStringList targets;
    for (const QString &path : paths)
        targets.append(target(path));
    return recoverTargets(targets);
}

Outcome AtomicFile::replace(const QList<Content> &contents)
{
    QStringList targets;
    for (const Content &content : contents)
        targets.append(target(content.path));

    // A commit whose renaming failed half-way must be complete before its staged files are written over.
    if (Outcome earlier = recoverTargets(targets); !earlier)
        return earlier;
    if (Outcome staged = stageAll(contents, targets); !staged) {
        (void)discardStaged(targets); // what cannot be removed now is discarded before the next commit
        return staged;
    }
    return renameStaged(targets);
}

Result<std::optional<QByteArray>> AtomicFile::read(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return std::optional(bytes);
    } else if (!exists(target(path))) {
        return std::optional<QByteArray>();
    }
    return Failure{QStringLiteral("cannot read %1: %2").arg(path, file.errorString())};
}

Outcome AtomicFile::keepAside(const QString &path, const QString &suffix)
{
    const QString from = target(path);
    QString to = from + suffix;
    for (int number = 2; exists(to); ++number)
        to = from + suffix + QStringLiteral("-%1").arg(number);
    if (!rename(from, to) && errno != ENOENT)
        return systemFailure(QStringLiteral("cannot keep aside"), from);
    return Done{};
}
