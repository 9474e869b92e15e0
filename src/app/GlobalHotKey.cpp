#include "app/GlobalHotKey.h"

#include "foundation/Log.h"

#include <QTimer>
#include <QWindow>

void GlobalHotKey::registerHandler(std::function<void()> handler)
{
    const bool isFirst = !m_handler;
    m_handler = std::move(handler);
    if (!isFirst)
        return;
    const auto tellFailure = [](const QString &message) {
        Log::line(QStringLiteral("failed to register global hotkey: ") + message);
    };
    if (X11HotKey::isPossible()) {
        connect(&m_x11, &X11HotKey::pressed, this, &GlobalHotKey::fire);
        if (const Outcome grabbed = m_x11.grab(); !grabbed)
            tellFailure(grabbed.message());
    } else {
        m_portal = std::make_unique<PortalHotKey>();
        connect(m_portal.get(), &PortalHotKey::pressed, this, &GlobalHotKey::fire);
        connect(m_portal.get(), &PortalHotKey::failed, this, tellFailure);
        m_portal->request();
    }
}

void GlobalHotKey::handOnKeysTo(const QWindow *window)
{
    if (window)
        m_x11.releaseKeyboardTo(std::uint32_t(window->winId()));
    else
        m_x11.releaseKeyboard();
}

void GlobalHotKey::fire()
{
    QTimer::singleShot(0, this, [this] {
        if (m_handler)
            m_handler();
    });
}
