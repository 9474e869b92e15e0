#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QStringView>

/// Words by Unicode's rules, and in Chinese and Japanese by a dictionary.
namespace WordTokenizer {
/// Letters, numbers and ideographs that stand together, from left to right; punctuation and blanks are none.
[[nodiscard]] QList<TextRange> words(QStringView text);
} // namespace WordTokenizer
