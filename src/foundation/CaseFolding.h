#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// Comparison without regard to case by Unicode full case folding: no locale, diacritics kept, "ß" equal to
/// "ss".
namespace CaseFolding {
[[nodiscard]] QString folded(QStringView text);

/// Where @p query stands in @p text, case aside: from left to right, not overlapping. The ranges are those of
/// the original characters ("STRASSE" finds the six of "Straße"); a hit never begins or ends within a
/// character.
[[nodiscard]] QList<TextRange> occurrences(QStringView text, QStringView query);
} // namespace CaseFolding
