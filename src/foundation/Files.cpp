#include "foundation/Files.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>

namespace {
QString folderOf(const QString &path)
{
    return path.first(std::max<qsizetype>(1, path.lastIndexOf(u'/')));
}
} // namespace

/// An open file or folder, closed at the end of its scope.
class Files::Descriptor
{
public:
    Descriptor(Files &files, const char *what, const QString &path, int flags,
        std::initializer_list<int> expected = {})
        : m_calls(files.m_calls)
        , m_fd(int(files.attempt(what, path, expected,
              [&](const char *name) { return m_calls.open(name, flags | O_CLOEXEC, S_IRUSR | S_IWUSR); })))
    {
    }
    ~Descriptor()
    {
        if (isOpen())
            m_calls.close(m_fd); // after an fsync it has nothing more to report
    }
    Q_DISABLE_COPY(Descriptor)

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int fd() const { return m_fd; }

private:
    FileCalls &m_calls;
    const int m_fd;
};

ssize_t Files::attempt(const char *what, const QString &path, std::initializer_list<int> expected,
    const std::function<ssize_t(const char *path)> &call)
{
    if (!m_outcome)
        return -ECANCELED;
    const QByteArray name = QFile::encodeName(path);
    ssize_t result = 0;
    do
        result = call(name.constData());
    while (result < 0 && errno == EINTR);
    if (result >= 0)
        return result;
    const int error = errno;
    if (std::find(expected.begin(), expected.end(), error) == expected.end())
        fail(what, path, error);
    return -error;
}

void Files::fail(const char *what, const QString &path, int error)
{
    m_outcome = Failure{QStringLiteral("cannot %1 %2: %3")
                            .arg(QLatin1String(what), path, QString::fromLocal8Bit(std::strerror(error))),
        error};
}

QString Files::behindLinks(const QString &path)
{
    // ".." stays: it refers to the folder behind a link.
    QString current = QDir::current().absoluteFilePath(path);
    for (int links = 0; links < 40; ++links) { // as many as the kernel follows
        QByteArray target(PATH_MAX, Qt::Uninitialized);
        const ssize_t length = attempt("examine", current, {EINVAL, ENOENT, ENOTDIR},
            [&](const char *name) { return m_calls.readlink(name, target.data(), size_t(target.size())); });
        if (length < 0) // no link
            return current;
        target.truncate(length);
        current = QDir(folderOf(current)).absoluteFilePath(QFile::decodeName(target));
    }
    fail("examine", current, ELOOP);
    return {};
}

bool Files::exists(const QString &path)
{
    char target = 0;
    const ssize_t found = attempt("examine", path, {EINVAL, ENOENT, ENOTDIR},
        [&](const char *name) { return m_calls.readlink(name, &target, 1); });
    return found >= 0 || found == -EINVAL; // no link, but a file
}

bool Files::isFolder(const QString &path)
{
    return Descriptor(*this, "examine", path, O_PATH | O_DIRECTORY, {ENOENT, ENOTDIR}).isOpen();
}

std::optional<QByteArray> Files::read(const QString &path)
{
    const Descriptor file(*this, "read", path, O_RDONLY, {ENOENT, ENOTDIR});
    if (!file.isOpen())
        return std::nullopt;
    QByteArray bytes(1 << 16, Qt::Uninitialized);
    qsizetype size = 0;
    for (;;) {
        if (size == bytes.size())
            bytes.resize(2 * size);
        const ssize_t count = attempt("read", path, {}, [&](const char *) {
            return m_calls.read(file.fd(), bytes.data() + size, size_t(bytes.size() - size));
        });
        if (count <= 0)
            break;
        size += count;
    }
    bytes.truncate(size);
    return bytes;
}

void Files::write(const QString &path, const ByteSource &source)
{
    const Descriptor file(*this, "write", path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
    source([&](QByteArrayView rest) {
        while (m_outcome && !rest.isEmpty()) {
            const ssize_t count = attempt("write", path, {},
                [&](const char *) { return m_calls.write(file.fd(), rest.data(), size_t(rest.size())); });
            rest = rest.sliced(std::max<ssize_t>(count, 0));
        }
    });
    attempt("write", path, {}, [&](const char *) { return m_calls.fsync(file.fd()); });
}

void Files::rename(const QString &from, const QString &to)
{
    attempt("replace", to, {ENOENT},
        [&](const char *name) { return m_calls.rename(QFile::encodeName(from).constData(), name); });
}

void Files::remove(const QString &path)
{
    attempt("remove", path, {ENOENT}, [&](const char *name) { return m_calls.remove(name); });
}

void Files::makeFolder(const QString &path)
{
    const ssize_t made =
        attempt("create", path, {EEXIST}, [&](const char *name) { return m_calls.mkdir(name, S_IRWXU); });
    if (made == -EEXIST && !isFolder(path)) // else another process has made it
        fail("create", path, EEXIST);
    if (!m_outcome)
        return;
    syncFolderOf(path);
    if (!m_outcome) // so that the next attempt syncs again
        m_calls.remove(QFile::encodeName(path).constData());
}

void Files::syncFolderOf(const QString &path)
{
    const Descriptor folder(*this, "sync", folderOf(path), O_RDONLY | O_DIRECTORY);
    // Some file systems cannot sync a folder and return EINVAL.
    attempt("sync", folderOf(path), {EINVAL}, [&](const char *) { return m_calls.fsync(folder.fd()); });
}
