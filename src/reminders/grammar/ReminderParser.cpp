#include "reminders/grammar/ReminderParser.h"

#include "foundation/Digits.h"
#include "foundation/Regex.h"
#include "reminders/languages/Languages.h"

#include <algorithm>

using std::chrono::day;
using std::chrono::days;
using std::chrono::local_days;
using std::chrono::month;
using std::chrono::weekday;
using std::chrono::year;

namespace {
constexpr QStringView edgePunctuation = u"，。！？、,.;:：!?～~";

QStringView sliced(QStringView text, TextRange range)
{
    return text.sliced(range.start, range.length());
}

/// A token of the match; one that took no part or is empty counts as absent.
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

bool contains(const std::vector<QStringView> &words, QStringView word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

// Days

Calendar::Day addingDays(Calendar::Day date, int count)
{
    return Calendar::Day(local_days(date) + days(count));
}

/// Nothing when the token names no weekday.
std::optional<Calendar::Day> resolveWeekday(
    const QString &lowered, Calendar::Day today, const LanguageRules &rules)
{
    QString name = lowered;
    bool hasNext = false;
    for (const QStringView marker : rules.next) {
        if (name.contains(marker)) {
            name.remove(marker.toString());
            hasNext = true;
            break;
        }
    }
    name = name.trimmed();
    for (const LanguageRules::Weekday &candidate : rules.weekdays) {
        if (!name.startsWith(candidate.prefix))
            continue;
        const int current = int(weekday(local_days(today)).c_encoding());
        const int ahead = (candidate.number - current + 7) % 7;
        // "next Friday" on a Wednesday is two days off; only today's own weekday moves on by a week.
        return addingDays(today, ahead == 0 && hasNext ? 7 : ahead);
    }
    return std::nullopt;
}

/// The month of the first word that begins with a month's name.
std::optional<int> monthNumber(const QString &lowered, const LanguageRules &rules)
{
    static const Regex word(QStringLiteral(R"(\p{L}+)"));
    for (const Regex::Match &match : word.allMatches(lowered)) {
        const QStringView letters = sliced(lowered, match.range());
        for (const LanguageRules::Month &candidate : rules.months) {
            if (letters.startsWith(candidate.prefix))
                return candidate.number;
        }
    }
    return std::nullopt;
}

struct AbsoluteDate {
    bool isDate = false;                   ///< the token has the form of a date
    std::optional<Calendar::Day> existing; ///< the day, where there is such a day
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

ReminderParser::ResolvedTime applied(HourRule rule, Calendar::TimeOfDay time)
{
    const auto [hour, minute] = time;
    const Calendar::TimeOfDay afterNoon{hour + 12, minute};
    const Calendar::TimeOfDay midnight{0, minute};
    switch (rule) {
    case HourRule::AsWritten:
        break;
    case HourRule::BareHour:
        if (hour >= 1 && hour <= 6)
            return {afterNoon};
        break;
    case HourRule::MidnightIsZero:
        if (hour == 12)
            return {midnight};
        break;
    case HourRule::Afternoon:
        if (hour < 12)
            return {afterNoon};
        break;
    case HourRule::Evening:
        if (hour == 12)
            return {midnight, 1};
        if (hour < 12)
            return {afterNoon};
        break;
    case HourRule::Night:
        if (hour == 12)
            return {midnight, 1};
        if (hour >= 7 && hour <= 11)
            return {afterNoon};
        break;
    }
    return {time};
}

HourRule hourRule(
    const QString &loweredTime, std::optional<QStringView> period, bool hasColon, const LanguageRules &rules)
{
    if (hasColon && rules.colonTimesIgnorePeriod)
        return HourRule::AsWritten;
    if (rules.periodIsInTime) {
        for (const LanguageRules::Period &candidate : rules.periods) {
            if (loweredTime.contains(candidate.word))
                return candidate.rule;
        }
        return rules.withoutPeriod;
    }
    if (!period)
        return rules.withoutPeriod;
    const QString lowered = period->toString().toLower();
    for (const LanguageRules::Period &candidate : rules.periods) {
        if (lowered == candidate.word)
            return candidate.rule;
    }
    return HourRule::AsWritten;
}

// Content

QStringView withoutLeadingSpace(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    return text;
}

QStringView withoutTrailingSpace(QStringView text)
{
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

/// Whether the phrase ends where a word ends. Scripts without spaces have no such ends: there every place
/// will do.
bool endsWithWord(QStringView phrase, QStringView rest)
{
    const bool isSpaced = phrase.back().script() == QChar::Script_Latin;
    return !isSpaced || rest.isEmpty() || !rest.front().isLetterOrNumber();
}
} // namespace

std::optional<Calendar::Day> ReminderParser::resolveDay(
    std::optional<QStringView> dateToken, Instant now, const Calendar &calendar, ReminderLanguage language)
{
    const Calendar::Day today = calendar.day(now);
    const QString lowered = dateToken ? dateToken->toString().simplified().toLower() : QString();
    const LanguageRules &rules = Languages::rules(language);
    if (lowered.isEmpty() || contains(rules.today, lowered))
        return today;
    if (contains(rules.tomorrow, lowered))
        return addingDays(today, 1);
    if (contains(rules.dayAfterTomorrow, lowered))
        return addingDays(today, 2);
    if (const auto date = resolveWeekday(lowered, today, rules))
        return date;
    const AbsoluteDate absolute = resolveAbsoluteDate(lowered, today, rules);
    return absolute.isDate ? absolute.existing : today;
}

std::optional<ReminderParser::ResolvedTime> ReminderParser::resolveTime(
    QStringView timeToken, std::optional<QStringView> period, ReminderLanguage language)
{
    static const Regex afterColon(QStringLiteral(R"([:：](\d{1,2}))"));
    const LanguageRules &rules = Languages::rules(language);
    const QString lowered = timeToken.toString().toLower();
    const bool hasColon = lowered.contains(u':') || lowered.contains(u'：');
    const std::optional<int> hour = firstNumber(lowered);

    if (!rules.halfBefore.isEmpty() && lowered.startsWith(rules.halfBefore.toString() + u' '))
        return applied(hourRule(lowered, period, hasColon, rules), {hour.value_or(1) - 1, 30});
    if (!hour)
        return std::nullopt;
    int minute = 0;
    if (hasColon)
        minute = capturedNumber(afterColon, lowered).value_or(0);
    else if (!rules.halfPast.isEmpty() && lowered.contains(rules.halfPast))
        minute = 30;
    else
        minute = capturedNumber(rules.minutes, lowered).value_or(0);
    return applied(hourRule(lowered, period, hasColon, rules), {*hour, minute});
}

std::optional<ParsedReminder> ReminderParser::parse(
    QStringView text, Instant now, const Calendar &calendar, ReminderLanguage language)
{
    const QStringView trimmed = text.trimmed();
    const LanguageRules &rules = Languages::rules(language);
    const auto match = rules.expression.firstMatch(trimmed);
    if (!match || match->range().start != 0)
        return std::nullopt;
    const auto dateToken = token(*match, rules.groups.date, rules.groups.otherDate, trimmed);
    const auto period = token(*match, rules.groups.period, 0, trimmed);
    const auto timeToken = token(*match, rules.groups.time, rules.groups.otherTime, trimmed);
    if (!timeToken)
        return std::nullopt;

    const auto date = resolveDay(dateToken, now, calendar, language);
    const auto time = resolveTime(*timeToken, period, language);
    const auto fireAt = date && time ? calendar.instant(*date, time->time) : std::nullopt;
    if (!fireAt)
        return std::nullopt;
    return ParsedReminder{time->dayOffset == 0 ? *fireAt : calendar.addingDays(*fireAt, time->dayOffset),
        content(trimmed.sliced(match->range().end), trimmed, language)};
}

QString ReminderParser::content(QStringView remainder, QStringView fullText, ReminderLanguage language)
{
    QStringView text = withoutLeadingSpace(remainder);
    const QStringView particle = Languages::rules(language).joiningParticle;
    if (!particle.isEmpty() && text.startsWith(particle))
        text = text.sliced(particle.size());
    return withoutTriggerPhrases(text, fullText, language, Glued::Removed);
}

QString ReminderParser::withoutTriggerPhrases(
    QStringView original, QStringView fullText, ReminderLanguage language, Glued glued)
{
    const std::vector<QStringView> &phrases = Languages::rules(language).triggerPhrases;
    QStringView text = withoutLeadingSpace(original);
    for (const QStringView phrase : phrases) {
        if (text.startsWith(phrase, Qt::CaseInsensitive)
            && (glued == Glued::Removed || endsWithWord(phrase, text.sliced(phrase.size())))) {
            text = text.sliced(phrase.size());
            break;
        }
    }
    text = withoutTrailingSpace(text);
    for (const QStringView phrase : phrases) {
        if (text.endsWith(phrase, Qt::CaseInsensitive)) {
            text.chop(phrase.size());
            break;
        }
    }
    while (!text.isEmpty() && (text.front().isSpace() || edgePunctuation.contains(text.front())))
        text = text.sliced(1);
    text = text.trimmed();
    return (text.isEmpty() ? fullText : text).toString();
}

bool ReminderParser::holdsDate(QStringView text, ReminderLanguage language)
{
    return Languages::rules(language).date.matchesIn(text);
}

bool ReminderParser::holdsTime(QStringView text, ReminderLanguage language)
{
    return Languages::rules(language).time.matchesIn(text);
}
