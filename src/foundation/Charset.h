#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Texts in other encodings than our own.
namespace Charset {
/// Nothing when the name (as IANA has it, in any case) is unknown, or when a single byte does not decode.
[[nodiscard]] std::optional<QString> decode(QByteArrayView bytes, const QByteArray &name);
} // namespace Charset
