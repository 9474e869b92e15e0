#pragma once

#include "reminders/dates/DateFacts.h"

#include <QStringView>

#include <vector>

/// The words and rules by which a language's dates are found anywhere in a draft.
///
/// All words are in lower case; alternatives stand in one text, "mon|monday". A word of four letters or more
/// is also known without its accents. A rule is a sequence of elements between blanks: alternatives of
/// literal words, or a slot for a word of a kind; a "?" behind makes it optional, and "_" is a blank within a
/// literal.
///
/// Slots: <hour> <minute> <mm> (two digits) <day> <daydigits> <monthnumber> <month> <year> <n> <unit>
/// <weekday> <relative> <part> <ordinal> <weekdaypart>, and <until> for the end of a stretch of time, which
/// says nothing. What a slot matches is added to the rule's own facts.
struct DateWords {
    struct Word {
        QStringView words;
        int value;
    };
    struct PartWord {
        QStringView words;
        DayPart part;
    };
    struct UnitWord {
        QStringView words;
        SpanUnit unit;
    };
    enum class Strength {
        Alone,         ///< a reason by itself
        AtEdge,        ///< only before the end, a stop or a tag, or beside another part of a date
        WithNeighbour, ///< only beside another part of a date
    };
    struct Rule {
        QStringView pattern;
        DateFacts facts = {};
        Strength strength = Strength::Alone;
    };

    std::vector<Word> relativeDays;
    std::vector<Word> weekdays;
    std::vector<Word> months;
    std::vector<Word> numbers;  ///< numerals in words; articles that mean one
    std::vector<Word> ordinals; ///< "first" is 1
    std::vector<PartWord> parts;
    std::vector<UnitWord> units;
    std::vector<Rule> rules;

    QStringView before = {};    ///< what leads to a date and is cut out with it: "at", "by"
    QStringView between = {};   ///< what may stand between the parts of a date
    QStringView after = {};     ///< what follows a date and is cut out with it
    QStringView notAfter = {};  ///< words that make what follows no date: "last"
    QStringView notBefore = {}; ///< words that make what precedes no date
    QStringView idioms = {};    ///< phrases within which no date begins or ends: "am Morgen" is not "morgen"
    bool hasHanNumerals = false;
    bool joinsWeekdayAndPart = false; ///< "Freitagabend" is one word
};
