#pragma once

#include "foundation/TextRange.h"

#include <QStringView>

/// Characters as a person sees them: grapheme clusters, one or many UTF-16 units each.
namespace Characters {
/// The character that the unit at @p position belongs to. It is looked for within a few hundred units, so
/// that asking costs the same in a long text.
[[nodiscard]] TextRange at(QStringView text, qsizetype position);

/// Without spaces and tabs at both ends; line breaks stay.
[[nodiscard]] QStringView trimmedOfBlanks(QStringView text);
} // namespace Characters
