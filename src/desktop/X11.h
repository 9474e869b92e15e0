#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

struct xcb_connection_t;
class QRegion;
class QWindow;

/// Qt's connection to the X server, and what Qt does not do over it.
namespace X11 {
/// Nothing where this is no X11 session; nothing below may be called then.
[[nodiscard]] xcb_connection_t *connection();
[[nodiscard]] std::uint32_t root();
[[nodiscard]] std::uint32_t atom(std::string_view name);
/// Of a selection; 0 where there is none.
[[nodiscard]] std::uint32_t ownerOf(std::uint32_t selection);

/// A reply of the server, which is to be freed.
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;
template <typename T>
[[nodiscard]] Reply<T> owned(T *reply)
{
    return Reply<T>(reply, &std::free);
}

/// Before the window is shown, each time: taskbars and pagers are not to list it.
void keepOutOfTaskbars(const QWindow &window);
/// Both the property of a window and, on the root window, the sign that somebody blurs what is behind
/// windows.
[[nodiscard]] std::uint32_t blurProperty();
/// Asks for what is behind this part of the window, in device pixels, to be blurred.
void blurBehind(const QWindow &window, const QRegion &part);
} // namespace X11
