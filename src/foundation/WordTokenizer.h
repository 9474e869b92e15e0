#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QStringView>

/// Words by the Unicode rules; for Chinese and Japanese by a dictionary.
namespace WordTokenizer {
/// The words, numbers and ideographs from left to right, without punctuation and white space.
[[nodiscard]] QList<TextRange> words(QStringView text);
} // namespace WordTokenizer
