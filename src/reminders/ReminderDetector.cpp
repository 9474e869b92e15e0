#include "reminders/ReminderDetector.h"

#include "reminders/LanguageDetection.h"
#include "reminders/grammar/ReminderParser.h"
#include "reminders/grammar/TriggerPhrases.h"

#include <algorithm>

namespace {
/// The fire time and the detections that it was read from.
struct Choice {
    Instant fireAt;
    QList<TextRange> ranges;
    ReminderLanguage language;
};

/// A date with a time is preferred to a time alone, whose day another detection may supply, and that to a day
/// alone.
std::optional<Choice> choose(const QList<DateDetection> &detections, const Calendar &calendar)
{
    using Kind = DateDetection::Kind;
    const auto first = [&detections](auto... kinds) -> const DateDetection * {
        const auto found = std::find_if(detections.begin(), detections.end(),
            [=](const DateDetection &detection) { return ((detection.kind == kinds) || ...); });
        return found == detections.end() ? nullptr : &*found;
    };
    if (const DateDetection *whole = first(Kind::DayAndTime, Kind::Moment))
        return Choice{whole->fireAt, {whole->range}, whole->language};
    const DateDetection *day = first(Kind::Day);
    if (const DateDetection *time = first(Kind::Time)) {
        if (!day)
            return Choice{time->fireAt, {time->range}, time->language};
        const auto fireAt = time->time.on(day->day, calendar);
        return fireAt ? std::optional(Choice{*fireAt, {time->range, day->range}, time->language})
                      : std::nullopt;
    }
    if (!day)
        return std::nullopt;
    return Choice{ReminderDetector::normalizePureDate(day->day, calendar), {day->range}, day->language};
}
} // namespace

void ReminderDetector::prepare(const Clock &clock, const DateDetecting &detector)
{
    // Everything is compiled on first use. This draft uses it all: the grammar resolves both date and time,
    // and since there is no such day, the detector is asked as well.
    (void)detect(u"march 32 9am", clock.now(), clock.calendar(), detector);
}

std::optional<ParsedReminder> ReminderDetector::detect(
    QStringView text, Instant now, const Calendar &calendar, const DateDetecting &detector)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const ReminderLanguage language = LanguageDetection::detect(trimmed);
    if (auto parsed = ReminderParser::parse(trimmed, now, calendar, language))
        return parsed;

    const auto choice = choose(detector.detectDates(trimmed, language), calendar);
    if (!choice)
        return std::nullopt;
    const bool isInFront = choice->ranges.size() == 1 && choice->ranges.first().start == 0;
    return ParsedReminder{choice->fireAt,
        isInFront
            ? ReminderParser::content(trimmed.sliced(choice->ranges.first().end), trimmed, choice->language)
            : mergedContent(trimmed, choice->ranges, choice->language)};
}

QString ReminderDetector::mergedContent(QStringView text, QList<TextRange> ranges, ReminderLanguage language)
{
    std::stable_sort(
        ranges.begin(), ranges.end(), [](TextRange a, TextRange b) { return a.start < b.start; });
    QString kept;
    qsizetype cursor = 0;
    for (const TextRange &range : std::as_const(ranges)) {
        if (range.start > cursor)
            kept += text.sliced(cursor, range.start - cursor);
        cursor = std::max(cursor, range.end);
    }
    kept += text.sliced(cursor);
    // Removing a date may join two words, so only a phrase that ends as a word is removed.
    return TriggerPhrases::stripped(kept.trimmed(), text, language, TriggerPhrases::Glued::Kept);
}

Instant ReminderDetector::normalizePureDate(Calendar::Day day, const Calendar &calendar)
{
    return calendar.instant(day, DayParts::defaultTimeOfDay).value_or(calendar.startOfDay(day));
}
