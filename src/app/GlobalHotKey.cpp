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
    const auto request = [this]<typename Key>(std::unique_ptr<Key> &key) {
        key = std::make_unique<Key>();
        connect(key.get(), &Key::pressed, this, &GlobalHotKey::fire);
        connect(key.get(), &Key::failed, this, [](const QString &message) {
            Log::line(QStringLiteral("failed to register global hotkey: ") + message);
        });
        key->request();
    };
    if (X11HotKey::isPossible())
        request(m_x11);
    else
        request(m_portal);
}

void GlobalHotKey::releaseKeyboardTo(const QWindow *window)
{
    if (!m_x11)
        return;
    if (window)
        m_x11->releaseKeyboardTo(std::uint32_t(window->winId()));
    else
        m_x11->releaseKeyboard();
}

void GlobalHotKey::fire()
{
    QTimer::singleShot(0, this, [this] { m_handler(); });
}
