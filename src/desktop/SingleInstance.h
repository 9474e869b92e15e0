#pragma once

#include <QString>

/// The lock that one process holds on its data folder. The system lets go of it whenever the process ends.
class SingleInstance
{
public:
    /// Creates the folder when it is missing. A folder that cannot be locked at all is used unlocked, with a
    /// line in the log.
    explicit SingleInstance(const QString &dataFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    [[nodiscard]] bool isOnly() const { return m_isOnly; }
    /// No process has ever run on this folder.
    [[nodiscard]] bool isVeryFirstStart() const { return m_isVeryFirstStart; }

private:
    int m_fd = -1;
    bool m_isOnly = true;
    bool m_isVeryFirstStart = false;
};
