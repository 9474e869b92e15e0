#pragma once

#include "stage/PrivateSession.h"

/// A session with a Wayland compositor, headless sway. Keys are pressed by wtype.
class WaylandDesktop final : public PrivateSession
{
public:
    WaylandDesktop();
    ~WaylandDesktop() override { stopAll(); }
    Q_DISABLE_COPY_MOVE(WaylandDesktop)

    /// Whether the programs are installed, and have shared memory.
    [[nodiscard]] static bool isPossible();

    /// Types with wtype and its arguments: a text, or "-k" and the name of a key.
    void type(const QStringList &arguments) const;
    /// Whether a window of this application is open.
    [[nodiscard]] bool hasWindow(const QString &applicationID) const;
    [[nodiscard]] QProcessEnvironment environment() const override;

private:
    [[nodiscard]] QStringList asNobody() const;
    [[nodiscard]] QByteArray output(const QString &program, const QStringList &arguments) const;

    QString m_display;
    QString m_socket;
};
