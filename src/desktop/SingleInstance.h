#pragma once

#include <QString>

/// A lock on the data folder, held by one process at a time. The system releases it when the process ends.
class SingleInstance
{
public:
    /// Creates the folder if necessary. If locking itself fails, the failure is logged and this counts as the
    /// only one.
    explicit SingleInstance(const QString &dataFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    [[nodiscard]] bool isOnly() const { return m_isOnly; }
    /// No process has used this folder before.
    [[nodiscard]] bool isVeryFirstStart() const { return m_isVeryFirstStart; }

private:
    int m_fd = -1;
    bool m_isOnly = true;
    bool m_isVeryFirstStart = false;
};
