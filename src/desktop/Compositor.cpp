#include "desktop/Compositor.h"

#include <QGuiApplication>
#include <QRegion>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

namespace {
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// Nothing where this is no X11 session.
xcb_connection_t *connection()
{
    const auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

xcb_window_t root()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

xcb_atom_t atom(std::string_view name)
{
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(
            connection(), xcb_intern_atom(connection(), false, uint16_t(name.size()), name.data()), nullptr),
        &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

/// Both the property of a window and, on the root window, the sign that somebody reads it.
xcb_atom_t blurProperty()
{
    static const xcb_atom_t property = atom("_KDE_NET_WM_BLUR_BEHIND_REGION");
    return property;
}

bool blurs()
{
    const Reply<xcb_list_properties_reply_t> reply(
        xcb_list_properties_reply(connection(), xcb_list_properties(connection(), root()), nullptr),
        &std::free);
    if (!reply)
        return false;
    const xcb_atom_t *first = xcb_list_properties_atoms(reply.get());
    const xcb_atom_t *last = first + xcb_list_properties_atoms_length(reply.get());
    return std::find(first, last, blurProperty()) != last;
}
} // namespace

Compositor::Kind Compositor::kind()
{
    if (!connection())
        return QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) ? Kind::Plain
                                                                                     : Kind::None;
    static const xcb_atom_t selection = atom("_NET_WM_CM_S0"); // which a compositor owns
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(
            connection(), xcb_get_selection_owner(connection(), selection), nullptr),
        &std::free);
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return Kind::None;
    return blurs() ? Kind::Blurring : Kind::Plain;
}

void Compositor::blurBehind(const QWindow &window, const QRegion &part)
{
    if (!connection())
        return;
    std::vector<uint32_t> rectangles;
    for (const QRect &each : part)
        rectangles.insert(rectangles.end(),
            {uint32_t(each.x()), uint32_t(each.y()), uint32_t(each.width()), uint32_t(each.height())});
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, xcb_window_t(window.winId()), blurProperty(),
        XCB_ATOM_CARDINAL, 32, uint32_t(rectangles.size()), rectangles.data());
}
