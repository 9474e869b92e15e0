#pragma once

#include "foundation/TextRange.h"

#include <QList>
#include <QString>

/// A draft cut up for finding dates in it.
struct DateToken {
    enum class Type {
        Word,      ///< of a script with spaces, in lower case
        Character, ///< of one without: Chinese, Japanese, Korean
        Number,    ///< decimal digits, of which there are at most four
        Mark,      ///< punctuation, and what holds the parts of a number or a word together
        Barrier,   ///< what no date can have a part in: a price, a version, an address, a tag
    };

    Type type = Type::Barrier;
    TextRange range;
    QString text;         ///< in lower case; a mark in its ASCII form
    int value = 0;        ///< of a number
    int digits = 0;       ///< of a number
    bool isGlued = false; ///< nothing stands between it and the token before
};

namespace DateTokens {
[[nodiscard]] QList<DateToken> of(QStringView text);

[[nodiscard]] bool isUnspaced(QChar character); ///< of a script that writes words without spaces, or Korean
[[nodiscard]] bool isHangul(QChar character);
} // namespace DateTokens
