#pragma once

#include <QString>

/// The one name under which the desktop knows Quillet: of its desktop file, its bus name, its icon, its
/// notifications.
namespace ApplicationIdentity {
inline const QString id = QStringLiteral("io.github.quillet.Quillet");
inline const QString objectPath = QStringLiteral("/io/github/quillet/Quillet");
} // namespace ApplicationIdentity
