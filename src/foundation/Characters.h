#pragma once

#include <QStringView>

/// Characters as a person sees them: grapheme clusters, one or many UTF-16 units each.
namespace Characters {
/// Where the character that ends at @p position begins, in UTF-16 units; 0 at the start of the text.
[[nodiscard]] qsizetype startOfPrevious(QStringView text, qsizetype position);
} // namespace Characters
