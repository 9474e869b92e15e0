#include "foundation/Files.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>

namespace {
Failure systemFailure(const char *what, const QString &path, int error = errno)
{
    return {QStringLiteral("cannot %1 %2: %3")
                .arg(QLatin1String(what), path, QString::fromLocal8Bit(std::strerror(error))),
        error};
}

/// An open file or folder, closed at the end of its scope.
class Descriptor
{
public:
    Descriptor(FileCalls &calls, const QString &path, int flags)
        : m_calls(calls)
        , m_fd(calls.open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR))
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

QString folderOf(const QString &path)
{
    return path.first(std::max<qsizetype>(1, path.lastIndexOf(u'/')));
}

bool isMissing(int error)
{
    return error == ENOENT || error == ENOTDIR;
}
} // namespace

Result<QString> Files::behindLinks(const QString &path) const
{
    // ".." stays: it refers to the folder behind a link.
    QString current = QDir::current().absoluteFilePath(path);
    for (int links = 0; links < 40; ++links) { // as many as the kernel follows
        QByteArray target(PATH_MAX, Qt::Uninitialized);
        const ssize_t length =
            m_calls.readlink(QFile::encodeName(current).constData(), target.data(), size_t(target.size()));
        if (length < 0 && (errno == EINVAL || isMissing(errno))) // no link
            return current;
        if (length < 0)
            return systemFailure("examine", current);
        target.truncate(length);
        current = QDir(folderOf(current)).absoluteFilePath(QFile::decodeName(target));
    }
    return systemFailure("examine", current, ELOOP);
}

Result<bool> Files::exists(const QString &path) const
{
    char target = 0;
    if (m_calls.readlink(QFile::encodeName(path).constData(), &target, 1) >= 0 || errno == EINVAL)
        return true;
    if (isMissing(errno))
        return false;
    return systemFailure("examine", path);
}

Result<bool> Files::isFolder(const QString &path) const
{
    const Descriptor folder(m_calls, path, O_PATH | O_DIRECTORY);
    if (folder.isOpen() || isMissing(errno))
        return folder.isOpen();
    return systemFailure("examine", path);
}

Result<std::optional<QByteArray>> Files::read(const QString &path) const
{
    const Descriptor file(m_calls, path, O_RDONLY);
    if (!file.isOpen() && isMissing(errno))
        return std::optional<QByteArray>();
    if (!file.isOpen())
        return systemFailure("read", path);
    QByteArray bytes(1 << 16, Qt::Uninitialized);
    qsizetype size = 0;
    for (;;) {
        if (size == bytes.size())
            bytes.resize(2 * size);
        const ssize_t count = m_calls.read(file.fd(), bytes.data() + size, size_t(bytes.size() - size));
        if (count < 0 && errno != EINTR)
            return systemFailure("read", path);
        if (count == 0)
            break;
        size += std::max<ssize_t>(count, 0);
    }
    bytes.truncate(size);
    return std::optional(std::move(bytes));
}

Outcome Files::write(const QString &path, const ByteSource &source) const
{
    const Descriptor file(m_calls, path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
    if (!file.isOpen())
        return systemFailure("write", path);
    Outcome written = Done{};
    source([&](QByteArrayView rest) {
        while (written && !rest.isEmpty()) {
            const ssize_t count = m_calls.write(file.fd(), rest.data(), size_t(rest.size()));
            if (count < 0 && errno != EINTR)
                written = systemFailure("write", path);
            rest = rest.sliced(std::max<ssize_t>(count, 0));
        }
    });
    if (written && m_calls.fsync(file.fd()) != 0)
        written = systemFailure("write", path);
    return written;
}

Outcome Files::rename(const QString &from, const QString &to) const
{
    if (m_calls.rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return systemFailure("replace", to);
    return Done{};
}

Outcome Files::remove(const QString &path) const
{
    if (m_calls.remove(QFile::encodeName(path).constData()) != 0 && errno != ENOENT)
        return systemFailure("remove", path);
    return Done{};
}

Outcome Files::makeFolder(const QString &path) const
{
    if (m_calls.mkdir(QFile::encodeName(path).constData(), S_IRWXU) != 0) {
        Failure failure = systemFailure("create", path);
        const auto madeByAnotherProcess = isFolder(path);
        if (!madeByAnotherProcess || !madeByAnotherProcess.value())
            return failure;
    }
    Outcome synced = syncFolderOf(path);
    if (!synced) // so that the next attempt syncs again
        (void)remove(path);
    return synced;
}

Outcome Files::syncFolderOf(const QString &path) const
{
    const Descriptor folder(m_calls, folderOf(path), O_RDONLY | O_DIRECTORY);
    // Some file systems cannot sync a folder and return EINVAL.
    if (!folder.isOpen() || (m_calls.fsync(folder.fd()) != 0 && errno != EINVAL))
        return systemFailure("sync", folderOf(path));
    return Done{};
}
