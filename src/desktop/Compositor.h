#pragma once

class QRegion;
class QWindow;

/// Whether something on the desktop puts windows together with what shines through them.
namespace Compositor {
enum class Kind { None, Plain, Blurring };
/// On X11 it may come and go; on Wayland there always is one, and whether it blurs is not asked.
[[nodiscard]] Kind kind();
/// Asks for what is behind this part of the window, in device pixels, to be blurred.
void blurBehind(const QWindow &window, const QRegion &part);
} // namespace Compositor
