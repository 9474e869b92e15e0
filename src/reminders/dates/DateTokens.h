#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// A piece of a draft for finding dates.
struct DateToken {
    enum class Type {
        Word,      ///< of a script with spaces, in lower case
        Character, ///< of one without: Chinese, Japanese, Korean
        Number,    ///< one to four decimal digits
        Mark,      ///< punctuation, and the separators within a number or a word
        Barrier,   ///< never part of a date: a price, a version, an address, a tag
    };

    Type type = Type::Barrier;
    TextRange range;
    QString text;         ///< in lower case; a mark in its ASCII form
    int value = 0;        ///< of a number
    int digits = 0;       ///< of a number
    bool isGlued = false; ///< directly after the previous token
};

namespace DateTokens {
[[nodiscard]] QList<DateToken> of(QStringView text);
} // namespace DateTokens
