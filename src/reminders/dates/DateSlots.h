#pragma once

#include "reminders/dates/DateFacts.h"

#include <QStringView>

/// A word or a number as one language understands it.
struct DateWord {
    enum class Kind {
        Relative,
        Weekday,
        ShortWeekday,
        Month,
        Number,
        Ordinal,
        Part,
        Unit,
        WeekdayAndPart,
        Role, ///< around a date rather than in it
        Literal,
    };

    Kind kind = Kind::Literal;
    int value = 0;
    int digits = 0;            ///< of a number; 0 when it is in words
    bool isHanNumeral = false; ///< 十五
    bool followsMark = false;  ///< "/27" and the like

    bool operator==(const DateWord &) const = default;

    /// A weekday and a part of the day in one word.
    [[nodiscard]] static DateWord joined(int weekday, DayPart part);
};

/// A placeholder for a word in a rule, such as <hour>.
struct DateSlot {
    QStringView name;
    DateWord::Kind kind; ///< of the words that it accepts
    /// Adds what the word states; false when the slot does not accept it.
    bool (*take)(const DateWord &word, DateFacts &facts);

    /// Null when there is no slot of that name.
    [[nodiscard]] static const DateSlot *named(QStringView name);
};
