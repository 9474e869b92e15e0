#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// Case-insensitive comparison by full Unicode case folding: independent of the locale, diacritics are kept,
/// "ß" equals "ss".
namespace CaseFolding {
[[nodiscard]] QString folded(QStringView text);

/// The matches of @p query in @p text, ignoring case, from left to right and not overlapping. The ranges
/// refer to @p text itself ("STRASSE" matches the six characters of "Straße"); no match begins or ends within
/// a character.
[[nodiscard]] QList<TextRange> occurrences(QStringView text, QStringView query);
/// The start of the first; -1 if there is none. Quick in a text of a megabyte too.
[[nodiscard]] qsizetype indexOf(QStringView text, QStringView query);
} // namespace CaseFolding
