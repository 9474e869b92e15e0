#include "desktop/SingleInstance.h"

#include "foundation/AtomicFile.h"
#include "foundation/Log.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

SingleInstance::SingleInstance(const QString &dataFolder)
{
    const QByteArray path = QFile::encodeName(dataFolder + QStringLiteral("/.lock"));
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC;
    constexpr mode_t mode = S_IRUSR | S_IWUSR;
    if (const Outcome created = AtomicFile::createFolder(dataFolder); !created) {
        Log::line(QStringLiteral("failed to lock the data folder: ") + created.message());
        return;
    }
    m_fd = ::open(path.constData(), flags | O_EXCL, mode);
    m_isVeryFirstStart = m_fd >= 0;
    if (m_fd < 0)
        m_fd = ::open(path.constData(), flags, mode);
    if (m_fd >= 0 && ::flock(m_fd, LOCK_EX | LOCK_NB) == 0)
        return;
    m_isOnly = m_fd < 0 || errno != EWOULDBLOCK;
    if (m_isOnly) {
        Log::line(QStringLiteral("failed to lock the data folder: ")
                  + QString::fromLocal8Bit(std::strerror(errno)));
    }
}

SingleInstance::~SingleInstance()
{
    if (m_fd >= 0)
        ::close(m_fd);
}
