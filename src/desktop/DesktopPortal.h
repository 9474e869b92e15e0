#pragma once

#include <QString>

/// Where the desktop's portal is found on the session bus.
namespace DesktopPortal {
inline const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
} // namespace DesktopPortal
