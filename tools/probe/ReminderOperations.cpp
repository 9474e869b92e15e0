#include "probe/Operations.h"

#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "reminders/dates/DateDetector.h"
#include "reminders/grammar/ReminderParser.h"

using namespace Qt::StringLiterals;

namespace {
QJsonValue parse(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    const ReminderLanguage language =
        arguments.has(u"language"_s) ? arguments.language() : LanguageDetection::detect(text.trimmed());
    return Answer::of(ReminderParser::parse(text, arguments.now(), arguments.calendar(), language));
}

QJsonValue detect(Arguments &arguments)
{
    const FixedClock clock(arguments.now(), arguments.calendar());
    return Answer::of(ReminderDetector::detect(
        arguments.text(u"text"_s), clock.now(), clock.calendar(), DateDetector(clock)));
}

QJsonValue detectDates(Arguments &arguments)
{
    QJsonArray answers;
    const FixedClock clock(arguments.now(), arguments.calendar());
    const QString text = arguments.text(u"text"_s);
    for (const DateDetection &detection :
        DateDetector(clock).detectDates(text, LanguageDetection::detect(text))) {
        answers.append(
            QJsonObject{{u"fireAt"_s, Answer::of(detection.fireAt)}, {u"location"_s, detection.range.start},
                {u"length"_s, detection.range.length()}, {u"text"_s, detection.text}});
    }
    return answers;
}

QJsonValue resolveDay(Arguments &arguments)
{
    const std::optional<QString> token = arguments.optionalText(u"dateToken"_s);
    const auto day = ReminderParser::resolveDay(token ? std::optional<QStringView>(*token) : std::nullopt,
        arguments.now(), arguments.calendar(), arguments.language());
    return Answer::of(day);
}

QJsonValue resolveTime(Arguments &arguments)
{
    const QString token = arguments.text(u"timeToken"_s);
    const std::optional<QString> period = arguments.optionalText(u"period"_s);
    const auto time = ReminderParser::resolveTime(
        token, period ? std::optional<QStringView>(*period) : std::nullopt, arguments.language());
    if (!time)
        return {};
    return QJsonObject{
        {u"hour"_s, time->time.hour}, {u"minute"_s, time->time.minute}, {u"dayOffset"_s, time->dayOffset}};
}

QJsonValue content(Arguments &arguments)
{
    return ReminderParser::content(
        arguments.text(u"remainder"_s), arguments.text(u"fullText"_s), arguments.language());
}

QJsonValue mergedContent(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    QList<TextRange> ranges;
    for (const QJsonValue &element : arguments.array(u"ranges"_s)) {
        const QJsonArray pair = element.toArray();
        const TextRange range{pair.at(0).toInteger(-1), pair.at(0).toInteger(-1) + pair.at(1).toInteger(-1)};
        if (pair.size() != 2 || range.start < 0 || range.length() < 0 || range.end > text.size())
            arguments.fail(u"\"ranges\" must hold pairs of location and length within the text"_s);
        ranges.append(range);
    }
    const ReminderLanguage language = arguments.language();
    return arguments.isGood() ? QJsonValue(ReminderDetector::mergedContent(text, ranges, language))
                              : QJsonValue();
}
} // namespace

QHash<QString, Operation> reminderOperations()
{
    return {
        {u"detectLanguage"_s, onTexts(LanguageDetection::detect, u"text"_s)},
        {u"parse"_s, parse},
        {u"detect"_s, detect},
        {u"detectDates"_s, detectDates},
        {u"resolveDay"_s, resolveDay},
        {u"resolveTime"_s, resolveTime},
        {u"content"_s, content},
        {u"mergedContent"_s, mergedContent},
    };
}
