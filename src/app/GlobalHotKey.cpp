#include "app/GlobalHotKey.h"

#include "desktop/PortalHotKey.h"
#include "desktop/X11HotKey.h"
#include "foundation/Log.h"

#include <QKeySequence>
#include <QTimer>
#include <QWindow>

void GlobalHotKey::registerHandler(std::function<void()> handler)
{
    if (std::exchange(m_handler, std::move(handler)))
        return; // the key has been requested already
    const auto request = [this]<typename Key>(Key *key) {
        connect(key, &Key::pressed, this, &GlobalHotKey::fire);
        connect(key, &Key::failed, this, [this](const QString &message) {
            m_hasFailed = true;
            Log::line(QStringLiteral("failed to register global hotkey: ") + message);
        });
        key->request();
    };
    if (X11HotKey::isPossible())
        request(m_x11 = new X11HotKey(this));
    else
        request(new PortalHotKey({}, this));
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

QString GlobalHotKey::certainKey() const
{
    const QKeySequence key(Qt::CTRL | Qt::ALT | Qt::Key_Space);
    return m_x11 && !m_hasFailed ? key.toString(QKeySequence::NativeText) : QString();
}

void GlobalHotKey::fire()
{
    QTimer::singleShot(0, this, [this] { m_handler(); });
}
