#include "app/GlobalHotKey.h"

#include "foundation/Log.h"

#include <QTimer>
#include <QWindow>

void GlobalHotKey::registerHandler(std::function<void()> handler)
{
    const bool isFirst = !m_handler;
    m_handler = std::move(handler);
    if (!isFirst || !X11HotKey::isPossible())
        return;
    connect(&m_x11, &X11HotKey::pressed, this, &GlobalHotKey::fire);
    if (const Outcome grabbed = m_x11.grab(); !grabbed)
        Log::line(QStringLiteral("failed to register global hotkey: ") + grabbed.message());
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
