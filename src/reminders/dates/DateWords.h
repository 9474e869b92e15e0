#pragma once

#include "reminders/dates/DateFacts.h"
#include "reminders/languages/Words.h"

#include <vector>

/// The words and rules by which a language's dates are found anywhere in a draft, beside those words that
/// both engines know.
///
/// A word of four letters or more is also recognised without its accents. A rule is a sequence of elements
/// separated by blanks: alternatives of literal words, or a slot for a word of a kind; "?" after an element
/// makes it optional, and "_" is a blank within a literal.
///
/// Slots: <hour> <minute> <mm> (two digits) <day> <daydigits> <monthnumber> <month> <year> <n> <unit>
/// <weekday> <shortweekday> <relative> <part> <ordinal> <weekdaypart>, and <until> for the end of an
/// interval, which states nothing; DateSlots.cpp has the table. What a slot matches is added to the rule's
/// own facts.
struct DateWords {
    enum class Strength {
        Alone,         ///< sufficient by itself
        AtEdge,        ///< only at the end, before punctuation or a tag, or beside another part of a date
        WithNeighbour, ///< only beside another part of a date
    };
    struct Rule {
        QStringView pattern;
        DateFacts facts = {};
        Strength strength = Strength::Alone;
    };

    /// For <shortweekday>: names that are ordinary words too, so that each rule must say where they count.
    Words<int> shortWeekdays = {};
    Words<int> numbers = {};  ///< numerals in words; articles that mean one
    Words<int> ordinals = {}; ///< "first" is 1
    Words<SpanUnit> units;
    std::vector<Rule> rules;

    WordList before = {};    ///< precedes a date and is removed with it: "at", "by"
    WordList between = {};   ///< may stand between the parts of a date
    WordList after = {};     ///< follows a date and is removed with it
    WordList notAfter = {};  ///< after these words nothing is a date: "last"
    WordList notBefore = {}; ///< before these words nothing is a date
    WordList idioms = {};    ///< phrases within which no date begins or ends: "am Morgen" is not "morgen"
    bool hasHanNumerals = false;
    bool joinsWeekdayAndPart = false; ///< "Freitagabend" is one word
};
