#pragma once

#include "foundation/Result.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <vector>

struct xcb_connection_t;

/// Control+Alt+Space on X11, whatever window has the focus and whatever locks are on. Held as long as the
/// object lives.
class X11HotKey final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11HotKey(QObject *parent = nullptr);
    ~X11HotKey() override;
    Q_DISABLE_COPY_MOVE(X11HotKey)

    /// Whether this session can have such a key at all.
    [[nodiscard]] static bool isPossible();

    /// On failure the message is the number of the X error: 10 where another program has the key.
    Outcome grab();

    /// From the press on the server keeps all keys back, until this is called: what was typed meanwhile then
    /// goes to the window that has the focus. It is let go by itself soon, should nobody call.
    void releaseKeyboard();
    /// The same as soon as this window gets the focus.
    void releaseKeyboardTo(std::uint32_t window);

Q_SIGNALS:
    void pressed(); ///< once for each press, however long the key is held

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void ungrab();

    xcb_connection_t *m_connection = nullptr;
    std::uint32_t m_root = 0;
    std::vector<std::uint8_t> m_keycodes; ///< grabbed now
    std::uint32_t m_lastRelease = 0;      ///< in the X server's time
    std::uint32_t m_awaitsFocus = 0;
    QTimer m_remapped;
    QTimer m_patience; ///< while the keys are kept back
};
