#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

/// A session bus and a home folder of its own, on which a desktop is started. The destructor ends and removes
/// everything.
class PrivateSession
{
public:
    PrivateSession();
    virtual ~PrivateSession();
    Q_DISABLE_COPY_MOVE(PrivateSession)

    [[nodiscard]] const QString &busAddress() const { return m_busAddress; }
    /// Kills the session bus.
    void stopBus() { kill(*m_bus); }
    /// For the programs on this desktop: its buses and folders, time zone Asia/Shanghai.
    [[nodiscard]] virtual QProcessEnvironment environment() const;
    /// A file of the program's data folder.
    [[nodiscard]] QString dataFile(const QString &name) const
    {
        return file(QStringLiteral("data/Quillet/") + name);
    }
    /// Writes a file, given with its path or relative to the home folder, and returns its path.
    QString writeFile(const QString &name, const QByteArray &bytes) const;

    /// Starts a program whose clock is @p clockShift ahead of the system's.
    std::unique_ptr<QProcess> start(const QString &program, std::chrono::milliseconds clockShift = {},
        const QStringList &arguments = {}) const;
    static void stop(QProcess &process);
    static void kill(QProcess &process);

    /// Handles events until @p condition holds; false when it does not within the time limit.
    static bool waitUntil(const std::function<bool()> &condition,
        std::chrono::milliseconds timeLimit = std::chrono::seconds(10));
    /// Handles events until the program must have done what was asked and painted it.
    static void settle()
    {
        waitUntil([] { return false; }, std::chrono::milliseconds(300));
    }

protected:
    /// Starts a part of the desktop, which is ended together with it.
    QProcess &launch(const QString &program, const QStringList &arguments);
    [[nodiscard]] QString file(const QString &name) const { return m_home.filePath(name); }
    static QByteArray firstLine(QProcess &process);
    void stopAll(); ///< in reverse order of their start

private:
    QTemporaryDir m_home;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    QProcess *m_bus = nullptr;
    QString m_busAddress;
};
