#pragma once

#include <QObject>

#include <functional>

class QWindow;
class X11HotKey;

/// Control+Alt+Space, whichever program has the focus: grabbed on X11, requested from the desktop portal
/// elsewhere. A failure is logged.
class GlobalHotKey final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// @p handler runs on the next turn of the event loop after each press. Only the last one registered
    /// runs.
    void registerHandler(std::function<void()> handler);

    /// To be called at the end of the handler: keys typed since the press go to @p window once it has the
    /// focus, or without one to the window that has it.
    void releaseKeyboardTo(const QWindow *window);

    /// The name of the key if it is certain that it works: a desktop portal may have assigned another.
    [[nodiscard]] QString certainKey() const;

private:
    void fire();

    X11HotKey *m_x11 = nullptr; ///< once a handler is registered, on X11
    bool m_hasFailed = false;
    std::function<void()> m_handler;
};
