#pragma once

#include <QString>

/// The XDG desktop portal on the session bus.
namespace DesktopPortal {
inline const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
} // namespace DesktopPortal
