#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Decoding of text in other encodings.
namespace Charset {
enum class Extent {
    Whole,
    Beginning, ///< truncated, possibly within a character, which is then left out
};

/// Nothing if the name (an IANA name, in any case) is unknown or if any byte cannot be decoded.
[[nodiscard]] std::optional<QString> decode(
    QByteArrayView bytes, const QByteArray &name, Extent extent = Extent::Whole);

/// Decodes UTF-8 that may be invalid: each maximal invalid sequence becomes one U+FFFD, as Unicode
/// recommends. A byte order mark at the start is removed.
[[nodiscard]] QString decodeLeniently(QByteArrayView bytes);
} // namespace Charset
