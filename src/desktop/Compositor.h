#pragma once

/// Whether something on the desktop puts windows together with what shines through them.
namespace Compositor {
/// On X11 it may come and go; on Wayland there always is one.
[[nodiscard]] bool isActive();
} // namespace Compositor
