#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

struct xcb_connection_t;
class QRegion;
class QWindow;

/// Qt's connection to the X server, and requests that Qt has no function for.
namespace X11 {
/// Null if this is no X11 session; the functions below must not be called then.
[[nodiscard]] xcb_connection_t *connection();
[[nodiscard]] std::uint32_t root();
[[nodiscard]] std::uint32_t atom(std::string_view name);
/// The window that owns a selection; 0 if there is none.
[[nodiscard]] std::uint32_t ownerOf(std::uint32_t selection);

/// A reply of the server, freed with the pointer.
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;
template <typename T>
[[nodiscard]] Reply<T> owned(T *reply)
{
    return Reply<T>(reply, &std::free);
}

/// Hides the window from taskbars and pagers. To be called each time before the window is shown.
void keepOutOfTaskbars(const QWindow &window);
/// Property that requests blur; compositors that support it set it on the root window.
[[nodiscard]] std::uint32_t blurProperty();
/// Requests blur behind this region of the window, in device pixels.
void blurBehind(const QWindow &window, const QRegion &region);
} // namespace X11
