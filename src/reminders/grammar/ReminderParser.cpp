#include "reminders/grammar/ReminderParser.h"

#include "foundation/Digits.h"
#include "foundation/Regex.h"
#include "reminders/grammar/Expression.h"
#include "reminders/grammar/TriggerPhrases.h"
#include "reminders/languages/Languages.h"

#include <algorithm>

using std::chrono::day;
using std::chrono::days;
using std::chrono::local_days;
using std::chrono::month;
using std::chrono::weekday;
using std::chrono::year;

namespace {
QStringView sliced(QStringView text, TextRange range)
{
    return text.sliced(range.start, range.length());
}

/// A token of the match. A group that did not take part or is empty counts as absent.
std::optional<QStringView> token(const Regex::Match &match, int group, int otherGroup, QStringView text)
{
    for (const int number : {group, otherGroup}) {
        const std::optional<TextRange> range = number > 0 ? match.group(number) : std::nullopt;
        if (range && !range->isEmpty())
            return sliced(text, *range);
    }
    return std::nullopt;
}

std::optional<int> firstNumber(QStringView text)
{
    static const Regex digits(QStringLiteral(R"(\d{1,2})"));
    const auto match = digits.firstMatch(text);
    return match ? std::optional(Digits::value(sliced(text, match->range()))) : std::nullopt;
}

std::optional<int> capturedNumber(const Regex &regex, QStringView text)
{
    const auto match = regex.firstMatch(text);
    const auto range = match ? match->group(1) : std::nullopt;
    return range ? std::optional(Digits::value(sliced(text, *range))) : std::nullopt;
}

template <typename Value>
std::optional<Value> value(const Words<Value> &table, const QString &word)
{
    return WordLists::valueIf(table, [&word](QStringView known) { return known == word; });
}

/// The value of a known word that @p text begins with.
std::optional<int> valueByPrefix(const Words<int> &table, QStringView text)
{
    return WordLists::valueIf(table, [text](QStringView known) { return text.startsWith(known); });
}

// Days

Calendar::Day addingDays(Calendar::Day date, int count)
{
    return Calendar::Day(local_days(date) + days(count));
}

/// Empty when the token names no weekday.
std::optional<Calendar::Day> resolveWeekday(
    const QString &lowered, Calendar::Day today, const LanguageRules &rules)
{
    QString name = lowered;
    bool hasNext = false;
    for (const QStringView marker : WordLists::each(rules.grammar.next)) {
        if (name.contains(marker)) {
            name.remove(marker.toString());
            hasNext = true;
            break;
        }
    }
    const auto target = valueByPrefix(rules.weekdays, name.trimmed());
    if (!target)
        return std::nullopt;
    const int current = int(weekday(local_days(today)).c_encoding());
    const int ahead = (*target - current + 7) % 7;
    // "next Friday" on a Wednesday is two days ahead; only today's own weekday moves on by a week.
    return addingDays(today, ahead == 0 && hasNext ? 7 : ahead);
}

/// The month of the first word that begins with the name of a month.
std::optional<int> monthNumber(const QString &lowered, const LanguageRules &rules)
{
    static const Regex word(QStringLiteral(R"(\p{L}+)"));
    for (const Regex::Match &match : word.allMatches(lowered)) {
        const QStringView letters = sliced(lowered, match.range());
        if (const auto month = valueByPrefix(rules.months, letters))
            return month;
        for (const Words<int> *months : rules.grammar.otherMonths) {
            if (const auto month = valueByPrefix(*months, letters))
                return month;
        }
    }
    return std::nullopt;
}

struct AbsoluteDate {
    bool isDate = false;                   ///< the token has the form of a date
    std::optional<Calendar::Day> existing; ///< empty when the calendar has no such day
};

AbsoluteDate resolveAbsoluteDate(const QString &lowered, Calendar::Day today, const LanguageRules &rules)
{
    static const Regex yearMonthDay(QStringLiteral(R"(^(\d{4})[-/年년]\s*(\d{1,2})[-/月월]\s*(\d{1,2}))"));
    static const Regex monthDay(QStringLiteral(R"(^(\d{1,2})[月월]\s*(\d{1,2}))"));

    const auto existing = [](Calendar::Day date) { return date.ok() ? std::optional(date) : std::nullopt; };
    const auto numberIn = [&lowered](const Regex::Match &match, int group) {
        return Digits::value(sliced(lowered, *match.group(group)));
    };
    if (const auto match = yearMonthDay.firstMatch(lowered)) {
        return {true, existing({year(numberIn(*match, 1)), month(unsigned(numberIn(*match, 2))),
                          day(unsigned(numberIn(*match, 3)))})};
    }

    std::optional<int> monthFound;
    std::optional<int> dayFound;
    if (const auto match = monthDay.firstMatch(lowered)) {
        monthFound = numberIn(*match, 1);
        dayFound = numberIn(*match, 2);
    } else {
        monthFound = monthNumber(lowered, rules);
        dayFound = firstNumber(lowered);
    }
    if (!monthFound || !dayFound)
        return {};
    const Calendar::Day thisYear(today.year(), month(unsigned(*monthFound)), day(unsigned(*dayFound)));
    if (!thisYear.ok() || local_days(thisYear) >= local_days(today))
        return {true, existing(thisYear)};
    return {true, existing({today.year() + std::chrono::years(1), thisYear.month(), thisYear.day()})};
}

// Times

DayPart dayPart(
    const QString &loweredTime, std::optional<QStringView> period, bool hasColon, const LanguageRules &rules)
{
    if (hasColon && rules.grammar.colonTimesIgnorePeriod)
        return DayPart::AsWritten;
    if (rules.grammar.periodIsInTime) {
        const auto isInTime = [&](QStringView word) { return loweredTime.contains(word); };
        return WordLists::valueIf(rules.dayParts, isInTime).value_or(rules.grammar.withoutPeriod);
    }
    if (!period)
        return rules.grammar.withoutPeriod;
    return value(rules.dayParts, period->toString().toLower()).value_or(DayPart::AsWritten);
}

QStringView withoutLeadingSpace(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    return text;
}
} // namespace

std::optional<Calendar::Day> ReminderParser::resolveDay(
    std::optional<QStringView> dateToken, Instant now, const Calendar &calendar, ReminderLanguage language)
{
    const Calendar::Day today = calendar.day(now);
    const QString lowered = dateToken ? dateToken->toString().simplified().toLower() : QString();
    const LanguageRules &rules = Languages::rules(language);
    if (lowered.isEmpty() || WordLists::contains(rules.grammar.pastDays, lowered))
        return today;
    if (const auto ahead = value(rules.relativeDays, lowered))
        return addingDays(today, *ahead);
    if (const auto date = resolveWeekday(lowered, today, rules))
        return date;
    const AbsoluteDate absolute = resolveAbsoluteDate(lowered, today, rules);
    return absolute.isDate ? absolute.existing : today;
}

std::optional<ClockTime> ReminderParser::resolveTime(
    QStringView timeToken, std::optional<QStringView> period, ReminderLanguage language)
{
    static const Regex afterColon(QStringLiteral(R"([:：](\d{1,2}))"));
    const LanguageRules &rules = Languages::rules(language);
    const QString lowered = timeToken.toString().toLower();
    const bool hasColon = lowered.contains(u':') || lowered.contains(u'：');
    const std::optional<int> hour = firstNumber(lowered);
    const auto resolved = [&](Calendar::TimeOfDay written) {
        return DayParts::clockTime(
            dayPart(lowered, period, hasColon, rules), written, DayParts::Engine::Grammar);
    };

    const QStringView halfBefore = rules.grammar.halfBefore;
    if (!halfBefore.isEmpty() && lowered.startsWith(halfBefore.toString() + u' '))
        return resolved({hour.value_or(1) - 1, 30});
    if (!hour)
        return std::nullopt;
    int minute = 0;
    if (hasColon)
        minute = capturedNumber(afterColon, lowered).value_or(0);
    else if (!rules.grammar.halfPast.isEmpty() && lowered.contains(rules.grammar.halfPast))
        minute = 30;
    else if (const auto &minutes = Expression::of(language).minutes)
        minute = capturedNumber(*minutes, lowered).value_or(0);
    return resolved({*hour, minute});
}

std::optional<ParsedReminder> ReminderParser::parse(
    QStringView text, Instant now, const Calendar &calendar, ReminderLanguage language)
{
    const QStringView trimmed = text.trimmed();
    const auto match = Expression::of(language).pattern.firstMatch(trimmed);
    if (!match || match->range().start != 0)
        return std::nullopt;
    const ExpressionRules::Groups &groups = Languages::rules(language).grammar.groups;
    const auto dateToken = token(*match, groups.date, groups.otherDate, trimmed);
    const auto period = token(*match, groups.period, 0, trimmed);
    const auto timeToken = token(*match, groups.time, groups.otherTime, trimmed);
    if (!timeToken)
        return std::nullopt;

    const auto day = resolveDay(dateToken, now, calendar, language);
    const auto time = resolveTime(*timeToken, period, language);
    const auto fireAt = day && time ? time->on(*day, calendar) : std::nullopt;
    if (!fireAt)
        return std::nullopt;
    return ParsedReminder{*fireAt, content(trimmed.sliced(match->range().end), trimmed, language)};
}

QString ReminderParser::content(QStringView remainder, QStringView fullText, ReminderLanguage language)
{
    QStringView text = withoutLeadingSpace(remainder);
    const QStringView particle = Languages::rules(language).grammar.joiningParticle;
    if (!particle.isEmpty() && text.startsWith(particle))
        text = text.sliced(particle.size());
    return TriggerPhrases::stripped(text, fullText, language, TriggerPhrases::Glued::Removed);
}
