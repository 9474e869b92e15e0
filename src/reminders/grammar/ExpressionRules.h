#pragma once

#include "reminders/languages/Words.h"

/// What one language brings for drafts that begin with a date and time expression.
struct ExpressionRules {
    // ICU patterns that ignore case, with the placeholders of WordLists.
    QStringView date;
    QStringView time;
    /// What a draft must begin with; <date> and <time> stand for the two above.
    QStringView pattern;
    /// The capture groups of `pattern`; 0 where there is none. English has date and time in two positions.
    struct Groups {
        int date = 1;
        int period = 2;
        int time = 3;
        int otherDate = 0;
        int otherTime = 0;
    };
    Groups groups = {};

    WordList pastDays = {}; ///< read as today: a reminder is never on a past day
    WordList next = {};     ///< beside a weekday: not today
    /// Month names of other languages that are understood too.
    std::vector<const Words<int> *> otherMonths = {};

    DayPart withoutPeriod = DayPart::Unnamed;
    bool periodIsInTime = false;         ///< "9pm": the word is part of the time token
    bool colonTimesIgnorePeriod = false; ///< "下午3:30" is 03:30
    QStringView halfPast = {};           ///< "半", "et demie": thirty minutes past the hour
    QStringView halfBefore = {};         ///< "halb": half an hour before the hour that follows
    QStringView minutes = {};            ///< pattern of minutes without a colon, in its group 1

    /// A particle that joins a time to the rest of the sentence.
    QStringView joiningParticle = {};
};
