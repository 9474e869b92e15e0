#pragma once

#include <QString>

#include <optional>

namespace LocalFile {
/// The absolute path if the draft, trimmed, is only the path of an existing file or folder, perhaps quoted,
/// with "~" or with a shell's backslashes; or its file URL.
[[nodiscard]] std::optional<QString> detect(QStringView text);
} // namespace LocalFile
