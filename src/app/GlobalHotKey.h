#pragma once

#include "desktop/PortalHotKey.h"
#include "desktop/X11HotKey.h"

#include <QObject>

#include <functional>
#include <memory>

class QWindow;

/// Control+Alt+Space, whatever program has the focus: taken by ourselves on X11, through the desktop's portal
/// elsewhere. A key that cannot be had is one line in the log.
class GlobalHotKey final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// @p handler runs on the next turn of the event loop after each press. Only the last one registered
    /// runs.
    void registerHandler(std::function<void()> handler);

    /// To be called when the handler has done its work: what is typed after the press goes to @p window once
    /// it has the focus, or without one to whoever has it.
    void handOnKeysTo(const QWindow *window);

private:
    void fire();

    X11HotKey m_x11;
    std::unique_ptr<PortalHotKey> m_portal; ///< only where there is no X11
    std::function<void()> m_handler;
};
