#include "desktop/Compositor.h"

#include "desktop/X11.h"

#include <QGuiApplication>

#include <algorithm>

#include <xcb/xcb.h>

namespace {
bool blurs()
{
    const auto reply = X11::owned(xcb_list_properties_reply(
        X11::connection(), xcb_list_properties(X11::connection(), X11::root()), nullptr));
    if (!reply)
        return false;
    const xcb_atom_t *first = xcb_list_properties_atoms(reply.get());
    const xcb_atom_t *last = first + xcb_list_properties_atoms_length(reply.get());
    return std::find(first, last, X11::blurProperty()) != last;
}
} // namespace

Compositor::Kind Compositor::kind()
{
    if (!X11::connection())
        return QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) ? Kind::Plain
                                                                                     : Kind::None;
    static const xcb_atom_t selection = X11::atom("_NET_WM_CM_S0"); // owned by the compositor
    if (X11::ownerOf(selection) == XCB_WINDOW_NONE)
        return Kind::None;
    return blurs() ? Kind::Blurring : Kind::Plain;
}
