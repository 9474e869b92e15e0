#pragma once

#include "foundation/Result.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <vector>

struct xcb_connection_t;

/// Control+Alt+Space on X11, whichever window has the focus and whichever locks are on. Grabbed until the
/// object is destroyed.
class X11HotKey final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11HotKey(QObject *parent = nullptr);
    ~X11HotKey() override;
    Q_DISABLE_COPY_MOVE(X11HotKey)

    /// Whether keys can be grabbed in this session.
    [[nodiscard]] static bool isPossible();

    void request(); ///< grabs the key, or announces the failure

    /// After a press the server holds back all keys until this is called, for at most a second. They then go
    /// to the window that has the focus.
    void releaseKeyboard();
    /// The same as soon as this window gets the focus.
    void releaseKeyboardTo(std::uint32_t window);

Q_SIGNALS:
    void pressed(); ///< once for each press, however long the key is held
    /// The message is the number of the X error: 10 if another program has grabbed the key.
    void failed(const QString &message);

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    Outcome grab();
    void ungrab();

    xcb_connection_t *m_connection = nullptr;
    std::uint32_t m_root = 0;
    std::vector<std::uint8_t> m_keycodes; ///< grabbed now
    std::uint32_t m_lastRelease = 0;      ///< in the X server's time
    std::uint32_t m_awaitsFocus = 0;      ///< the window to release the keyboard to; 0 for none
    QTimer m_remapped;
    QTimer m_releaseTimeout; ///< while keys are held back
};
