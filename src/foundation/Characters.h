#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QStringView>

/// Characters as a person sees them: grapheme clusters, one or many UTF-16 units each.
namespace Characters {
/// The character that the unit at @p position belongs to. It is looked for within a few hundred units, so
/// that asking costs the same in a long text.
[[nodiscard]] TextRange at(QStringView text, qsizetype position);

/// All of them, from left to right.
[[nodiscard]] QList<TextRange> all(QStringView text);

/// Whether each code point is sure to be a character by itself: no marks, no joiners, no single letters of
/// Hangul. Most texts are so, and can be walked without asking for boundaries.
[[nodiscard]] bool areSingleCodePoints(QStringView text);

/// Without spaces and tabs at both ends; line breaks stay.
[[nodiscard]] QStringView trimmedOfBlanks(QStringView text);
} // namespace Characters
