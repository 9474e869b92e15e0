#pragma once

#include "stage/XServer.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

/// A desktop of its own: Xvfb, openbox, a session bus, and as told a tray (tint2), a notification server
/// (dunst) and a compositor (picom). It has its own home folder and goes away with the object.
class PrivateDesktop final
{
public:
    struct Options {
        bool hasTray = true;
        bool hasDunst = false;
        bool hasCompositor = false; ///< picom, and a wallpaper to be seen through what is translucent
        int scale = 1;              ///< device pixels for a logical pixel
    };

    explicit PrivateDesktop(Options options);
    ~PrivateDesktop();
    Q_DISABLE_COPY_MOVE(PrivateDesktop)

    [[nodiscard]] XServer &screen() { return *m_screen; }
    [[nodiscard]] const QString &busAddress() const { return m_busAddress; }
    /// What a program on this desktop is started with: Chinese time, a home of its own.
    [[nodiscard]] QProcessEnvironment environment() const;
    [[nodiscard]] QString dataFile(const QString &name) const;

    /// Starts a program whose clock is @p clockShift ahead of the machine's. Its output is kept for output().
    std::unique_ptr<QProcess> start(const QString &program, std::chrono::milliseconds clockShift = {}) const;
    static void stop(QProcess &process);

    /// Looks again and again, while events are handled, until @p holds does, or the time is up.
    static bool waitUntil(
        const std::function<bool()> &holds, std::chrono::milliseconds limit = std::chrono::seconds(10));

private:
    QProcess &launch(const QString &program, const QStringList &arguments);
    void startDunst();
    void paintWallpaper();

    QTemporaryDir m_home;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    int m_scale;
    QString m_display;
    QString m_busAddress;
    std::unique_ptr<XServer> m_screen;
};
