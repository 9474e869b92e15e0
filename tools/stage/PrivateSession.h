#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

/// A session bus and a home folder of its own, for a desktop to be put on. All goes away with the object.
class PrivateSession
{
public:
    PrivateSession();
    virtual ~PrivateSession();
    Q_DISABLE_COPY_MOVE(PrivateSession)

    [[nodiscard]] const QString &busAddress() const { return m_busAddress; }
    /// Takes the session bus away from everybody on it.
    void stopBus();
    /// What a program on this desktop is started with: Chinese time, a home of its own.
    [[nodiscard]] virtual QProcessEnvironment environment() const;
    [[nodiscard]] QString dataFile(const QString &name) const;

    /// Starts a program whose clock is @p clockShift ahead of the machine's. Its output is kept for output().
    std::unique_ptr<QProcess> start(const QString &program, std::chrono::milliseconds clockShift = {},
        const QStringList &arguments = {}) const;
    static void stop(QProcess &process);

    /// Looks again and again, while events are handled, until @p holds does, or the time is up.
    static bool waitUntil(
        const std::function<bool()> &holds, std::chrono::milliseconds limit = std::chrono::seconds(10));

protected:
    /// Starts a part of the desktop, which ends with it.
    QProcess &launch(const QString &program, const QStringList &arguments);
    [[nodiscard]] QString file(const QString &name) const { return m_home.filePath(name); }
    static QByteArray firstLine(QProcess &process);
    void stopAll(); ///< the last started first

private:
    QTemporaryDir m_home;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    QProcess *m_bus = nullptr;
    QString m_busAddress;
};
