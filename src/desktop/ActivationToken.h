#pragma once

class QString;

/// The token with which the desktop allows a program to take the focus.
namespace ActivationToken {
/// Stores it where Qt looks for it when a window next asks for the focus. An empty one is ignored.
void set(const QString &token);
[[nodiscard]] QString current(); ///< empty if there is none
} // namespace ActivationToken
