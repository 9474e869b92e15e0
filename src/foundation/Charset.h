#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Texts in other encodings than our own.
namespace Charset {
enum class Extent {
    Whole,
    Beginning, ///< cut off somewhere, maybe within a character, which is then left out
};

/// Nothing when the name (as IANA has it, in any case) is unknown, or when a single byte does not decode.
[[nodiscard]] std::optional<QString> decode(
    QByteArrayView bytes, const QByteArray &name, Extent extent = Extent::Whole);

/// UTF-8 in which anything may be broken: as few U+FFFD stand for what does not decode as Unicode recommends.
/// A byte order mark at the start is no part of the text.
[[nodiscard]] QString decodeLeniently(QByteArrayView bytes);
} // namespace Charset
