#pragma once

/// The compositing manager: whether windows can be translucent, and whether it blurs what is behind them.
namespace Compositor {
enum class Kind { None, Plain, Blurring };
/// On X11 it may start and stop at any time. On Wayland there always is one, and blurring is not detected.
[[nodiscard]] Kind kind();
} // namespace Compositor
