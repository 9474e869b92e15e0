#include "desktop/X11.h"

#include <QGuiApplication>
#include <QRegion>
#include <QWindow>

#include <array>
#include <vector>

#include <xcb/xcb.h>

namespace {
void setProperty(const QWindow &window, xcb_atom_t property, xcb_atom_t type, const std::uint32_t *values,
    std::size_t count)
{
    xcb_change_property(X11::connection(), XCB_PROP_MODE_REPLACE, xcb_window_t(window.winId()), property,
        type, 32, std::uint32_t(count), values);
}
} // namespace

xcb_connection_t *X11::connection()
{
    const auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

std::uint32_t X11::root()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

std::uint32_t X11::atom(std::string_view name)
{
    const auto reply = owned(xcb_intern_atom_reply(connection(),
        xcb_intern_atom(connection(), false, std::uint16_t(name.size()), name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

std::uint32_t X11::ownerOf(std::uint32_t selection)
{
    const auto reply = owned(xcb_get_selection_owner_reply(
        connection(), xcb_get_selection_owner(connection(), selection), nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

void X11::keepOutOfTaskbars(const QWindow &window)
{
    static const std::array<xcb_atom_t, 2> states{
        atom("_NET_WM_STATE_SKIP_TASKBAR"), atom("_NET_WM_STATE_SKIP_PAGER")};
    static const xcb_atom_t property = atom("_NET_WM_STATE");
    setProperty(
        window, property, XCB_ATOM_ATOM, states.data(), states.size()); // Qt adds its own states to these
}

std::uint32_t X11::blurProperty()
{
    static const xcb_atom_t property = atom("_KDE_NET_WM_BLUR_BEHIND_REGION");
    return property;
}

void X11::blurBehind(const QWindow &window, const QRegion &region)
{
    std::vector<std::uint32_t> rectangles;
    for (const QRect &rect : region)
        rectangles.insert(rectangles.end(), {std::uint32_t(rect.x()), std::uint32_t(rect.y()),
                                                std::uint32_t(rect.width()), std::uint32_t(rect.height())});
    setProperty(window, blurProperty(), XCB_ATOM_CARDINAL, rectangles.data(), rectangles.size());
}
