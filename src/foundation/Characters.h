#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QStringView>

/// User-perceived characters: grapheme clusters, each of one or more UTF-16 units.
namespace Characters {
/// The character that contains the unit at @p position. Only a few hundred units around it are examined, so
/// the cost does not depend on the length of the text.
[[nodiscard]] TextRange at(QStringView text, qsizetype position);

/// All characters, from left to right.
[[nodiscard]] QList<TextRange> all(QStringView text);

/// Whether every code point is certain to be a character of its own: no combining marks, joiners or Hangul
/// jamo. True for most texts, which can then be traversed without finding boundaries.
[[nodiscard]] bool areSingleCodePoints(QStringView text);

/// Without the spaces and tabs at both ends; line breaks are kept.
[[nodiscard]] QStringView trimmedOfBlanks(QStringView text);
} // namespace Characters
