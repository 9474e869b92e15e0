#include "reminders/ReminderDetector.h"

#include "reminders/LanguageDetection.h"
#include "reminders/grammar/ReminderParser.h"

#include <algorithm>

namespace {
/// The fire time and the stretches of the draft that told it.
struct Choice {
    Instant fireAt;
    QList<TextRange> ranges;
    ReminderLanguage language;
};

/// A date with a time wins over a time alone (whose day another detection may supply), and that over a date
/// alone.
std::optional<Choice> choose(
    const QList<DateDetection> &detections, Instant now, const Calendar &calendar, ReminderLanguage language)
{
    // What a detector states decides; of one that states nothing the language's patterns are asked.
    using Kind = DateDetection::Kind;
    const auto holdsTime = [language](const DateDetection &detection) {
        return detection.kind ? detection.kind != Kind::Day
                              : ReminderParser::holdsTime(detection.text, language);
    };
    const auto holdsDate = [language](const DateDetection &detection) {
        return detection.kind ? detection.kind != Kind::Time
                              : ReminderParser::holdsDate(detection.text, language);
    };

    for (const DateDetection &detection : detections) {
        if (holdsTime(detection) && holdsDate(detection))
            return Choice{detection.fireAt, {detection.range}, detection.language.value_or(language)};
    }
    for (const DateDetection &detection : detections) {
        if (!holdsTime(detection))
            continue;
        const auto date = std::find_if(detections.begin(), detections.end(),
            [&](const DateDetection &other) { return &other != &detection && holdsDate(other); });
        const bool hasDate = date != detections.end();
        const auto fireAt = calendar.instant(
            calendar.day(hasDate ? date->fireAt : now), calendar.timeOfDay(detection.fireAt));
        if (!fireAt)
            return std::nullopt;
        // The midnight that ends a day.
        const int dayOffset = detection.kind ? calendar.daysBetween(now, detection.fireAt) : 0;
        return Choice{calendar.addingDays(*fireAt, dayOffset),
            hasDate ? QList{detection.range, date->range} : QList{detection.range},
            detection.language.value_or(language)};
    }
    for (const DateDetection &detection : detections) {
        if (!holdsTime(detection))
            return Choice{ReminderDetector::normalizePureDate(detection.fireAt, calendar), {detection.range},
                detection.language.value_or(language)};
    }
    return std::nullopt;
}
} // namespace

std::optional<ParsedReminder> ReminderDetector::detect(
    QStringView text, Instant now, const Calendar &calendar, const DateDetecting &detector)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const ReminderLanguage language = LanguageDetection::detect(trimmed);
    if (auto parsed = ReminderParser::parse(trimmed, now, calendar, language))
        return parsed;

    QList<DateDetection> detections = detector.detectDates(trimmed);
    std::stable_sort(detections.begin(), detections.end(),
        [](const DateDetection &a, const DateDetection &b) { return a.range.start < b.range.start; });
    const auto choice = choose(detections, now, calendar, language);
    if (!choice)
        return std::nullopt;
    const bool standsInFront = choice->ranges.size() == 1 && choice->ranges.first().start == 0;
    return ParsedReminder{choice->fireAt,
        standsInFront
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
    // Text that was apart may have come together, so that only a phrase with an end of its own is one.
    return ReminderParser::withoutTriggerPhrases(kept.trimmed(), text, language, ReminderParser::Glued::Kept);
}

Instant ReminderDetector::normalizePureDate(Instant date, const Calendar &calendar)
{
    return calendar.instant(calendar.day(date), {9, 0}).value_or(calendar.startOfDay(date));
}
