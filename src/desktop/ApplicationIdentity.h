#pragma once

#include <QString>

/// The application ID: the name of the desktop file, the icon and the service on the session bus.
namespace ApplicationIdentity {
inline const QString id = QStringLiteral("io.github.quillet.Quillet");
inline const QString objectPath = QStringLiteral("/io/github/quillet/Quillet");
} // namespace ApplicationIdentity
