#include "desktop/X11HotKey.h"

#include "desktop/X11.h"

#include <QGuiApplication>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

using namespace std::chrono_literals;

namespace {
constexpr xcb_keysym_t space = 0x20;
constexpr uint16_t hotModifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
/// Caps Lock and, on every common keyboard map, Num Lock: a grab is valid for exactly one state of them.
constexpr std::array<uint16_t, 4> lockStates{
    0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};
constexpr uint16_t locks = XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2;

std::vector<uint8_t> keycodes(xcb_connection_t *connection, xcb_keysym_t keysym)
{
    const std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)> symbols(
        xcb_key_symbols_alloc(connection), &xcb_key_symbols_free);
    const auto found = X11::owned(xcb_key_symbols_get_keycode(symbols.get(), keysym));
    std::vector<uint8_t> codes;
    for (const xcb_keycode_t *code = found.get(); code && *code != XCB_NO_SYMBOL; ++code)
        codes.push_back(*code);
    return codes;
}
} // namespace

X11HotKey::X11HotKey(QObject *parent)
    : QObject(parent)
{
    // A change of the keyboard map arrives as a burst of events.
    m_remapped.setSingleShot(true);
    m_remapped.setInterval(20ms);
    connect(&m_remapped, &QTimer::timeout, this, [this] {
        if (keycodes(m_connection, space) != m_keycodes)
            (void)grab();
    });
    m_releaseTimeout.setSingleShot(true);
    m_releaseTimeout.setInterval(1s); // a window manager may be slow on a busy machine
    connect(&m_releaseTimeout, &QTimer::timeout, this, &X11HotKey::releaseKeyboard);
}

X11HotKey::~X11HotKey()
{
    ungrab();
}

bool X11HotKey::isPossible()
{
    // On XWayland the grab would succeed, but work only while an X11 window has the focus.
    return X11::connection() && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

void X11HotKey::request()
{
    if (const Outcome grabbed = grab(); !grabbed)
        Q_EMIT failed(grabbed.message());
}

Outcome X11HotKey::grab()
{
    ungrab();
    m_connection = X11::connection();
    m_root = X11::root();
    qApp->installNativeEventFilter(this);
    m_keycodes = keycodes(m_connection, space);

    std::vector<xcb_void_cookie_t> requests;
    for (const uint8_t keycode : m_keycodes) {
        for (const uint16_t lockState : lockStates) {
            requests.push_back(xcb_grab_key_checked(m_connection, true, m_root, hotModifiers | lockState,
                keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC));
        }
    }
    int error = m_keycodes.empty() ? XCB_VALUE : 0;
    for (const xcb_void_cookie_t request : requests) {
        const auto failed = X11::owned(xcb_request_check(m_connection, request));
        if (failed)
            error = failed->error_code;
    }
    if (error == 0)
        return Done{};
    // Some may have succeeded, but a key that depends on the state of Num Lock is of no use.
    ungrab();
    return Failure{QString::number(error)};
}

void X11HotKey::ungrab()
{
    if (!m_connection)
        return;
    qApp->removeNativeEventFilter(this);
    for (const uint8_t keycode : m_keycodes) {
        for (const uint16_t lockState : lockStates)
            xcb_ungrab_key(m_connection, keycode, m_root, hotModifiers | lockState);
    }
    m_keycodes.clear();
    xcb_flush(m_connection);
}

void X11HotKey::releaseKeyboard()
{
    m_releaseTimeout.stop();
    m_awaitsFocus = 0;
    // The server now delivers the keys it has held back.
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void X11HotKey::releaseKeyboardTo(uint32_t window)
{
    m_awaitsFocus = window;
    m_releaseTimeout.start(); // anew: creating the window may have taken long
}

bool X11HotKey::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<xcb_generic_event_t *>(message);
    switch (event->response_type & 0x7F) {
    case XCB_KEY_PRESS: {
        const auto &key = *reinterpret_cast<const xcb_key_press_event_t *>(event);
        const bool isHotKey = key.event == m_root && (key.state & ~locks & 0xFF) == hotModifiers
                              && std::ranges::find(m_keycodes, key.detail) != m_keycodes.end();
        if (!isHotKey)
            break;
        // While the key is held the server sends pairs of release and press with equal times.
        if (key.time != m_lastRelease) {
            m_releaseTimeout.start();
            Q_EMIT pressed();
        } else if (m_awaitsFocus == 0) {
            releaseKeyboard(); // the repeated press has activated the grab again
        }
        break;
    }
    case XCB_KEY_RELEASE:
        m_lastRelease = reinterpret_cast<const xcb_key_release_event_t *>(event)->time;
        break;
    case XCB_FOCUS_IN: {
        const auto &focus = *reinterpret_cast<const xcb_focus_in_event_t *>(event);
        const bool isRealFocus =
            focus.mode == XCB_NOTIFY_MODE_NORMAL || focus.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
        if (isRealFocus && m_awaitsFocus != 0 && focus.event == m_awaitsFocus)
            releaseKeyboard();
        break;
    }
    case XCB_MAPPING_NOTIFY:
        m_remapped.start();
        break;
    default:
        break;
    }
    return false; // Qt takes the time of the press from it, which entitles the panel to the focus
}
