#pragma once

/// Whether something on the desktop puts windows together with what shines through them.
namespace Compositor {
enum class Kind { None, Plain, Blurring };
/// On X11 it may come and go; on Wayland there always is one, and whether it blurs is not asked.
[[nodiscard]] Kind kind();
} // namespace Compositor
