#pragma once

#include <QString>

#include <optional>

namespace LocalFile {
/// The absolute path when the draft, trimmed, is nothing but the place of a file or folder that exists: a
/// path, also quoted, with "~" or with backslashes as a shell has them, or a file address.
[[nodiscard]] std::optional<QString> detect(QStringView text);
} // namespace LocalFile
