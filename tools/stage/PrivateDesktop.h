#pragma once

#include "stage/PrivateSession.h"
#include "stage/XServer.h"

#include <memory>

/// A session with an X server (Xvfb) and a window manager (openbox), optionally with a tray (tint2), a
/// notification server (dunst) and a compositor (picom).
class PrivateDesktop final : public PrivateSession
{
public:
    struct Options {
        bool hasTray = true;
        bool hasDunst = false;
        bool hasCompositor = false;
        int scale = 1; ///< device pixels per logical pixel
    };

    explicit PrivateDesktop(Options options);
    ~PrivateDesktop() override;
    Q_DISABLE_COPY_MOVE(PrivateDesktop)

    [[nodiscard]] XServer &screen() { return *m_screen; }
    /// Kills the X server.
    void stopScreen();
    void startTray();
    void stopTray() { kill(*m_tray); }
    [[nodiscard]] QProcessEnvironment environment() const override;

private:
    void startDunst();
    void paintWallpaper();

    int m_scale;
    QString m_display;
    QProcess *m_server = nullptr;
    QProcess *m_tray = nullptr;
    std::unique_ptr<XServer> m_screen;
};
