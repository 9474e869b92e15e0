#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// The tags within a text: a "#" and what follows it up to white space, "#" or "@", exactly as written. A
/// tag's name is its text without the leading "#".
namespace TagEditing {
struct Token {
    TextRange range;
    QString text; ///< with its "#"
    bool operator==(const Token &) const = default;
};

/// Whether a tag ends before this character: white space, "#" or "@".
[[nodiscard]] bool endsTag(QChar character);

[[nodiscard]] QList<Token> tokens(QStringView text); ///< in text order

/// Whether a tag may be renamed to this: not empty, and without space, tab, "#" or "@".
[[nodiscard]] bool isValidName(QStringView name);

/// The number of times the tag occurs in the text.
[[nodiscard]] qsizetype occurrences(QStringView tag, QStringView text);

/// The text with each whole occurrence of one tag replaced by another.
[[nodiscard]] QString replacingTag(QStringView text, QStringView from, QStringView to);

/// The text without the tag. Where white space precedes the tag, that after it is removed as well. Trimmed of
/// spaces and tabs, not of line breaks.
[[nodiscard]] QString removingTag(QStringView text, QStringView tag);
} // namespace TagEditing
