#include "desktop/Compositor.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>

bool Compositor::isActive()
{
    const auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!native)
        return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    // A compositor owns the selection of the screen's name.
    xcb_connection_t *connection = native->connection();
    static const xcb_atom_t selection = [connection] {
        constexpr std::string_view name = "_NET_WM_CM_S0";
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
            xcb_intern_atom_reply(
                connection, xcb_intern_atom(connection, false, uint16_t(name.size()), name.data()), nullptr),
            &std::free);
        return atom ? atom->atom : xcb_atom_t(XCB_ATOM_NONE);
    }();
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr),
        &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}
