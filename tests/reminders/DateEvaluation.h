#pragma once

#include "foundation/DateFormat.h"
#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "reminders/dates/DateDetector.h"
#include "reminders/grammar/ReminderParser.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"

#include <QDir>

/// How well the drafts under dates/ are understood.
namespace DateEvaluation {
struct Score {
    int drafts = 0;
    int found = 0;
    int rightMoments = 0;
    int rightContents = 0;
    int ordinary = 0;
    int falseAlarms = 0; ///< other than those that the grammar makes
    QStringList faults;
};

inline QStringList lines(const QString &file)
{
    return QString::fromUtf8(readFile(QStringLiteral(DATES_FOLDER "/") + file))
        .split(u'\n', Qt::SkipEmptyParts);
}

inline QStringList languages()
{
    QStringList languages = QDir(QStringLiteral(DATES_FOLDER)).entryList({QStringLiteral("*-found.txt")});
    for (QString &language : languages)
        language.chop(qsizetype(qstrlen("-found.txt")));
    return languages;
}

inline const TestClock &clock()
{
    static const TestClock clock("2026-03-04T02:00:00Z");
    return clock;
}

inline std::optional<ParsedReminder> detect(const QString &draft)
{
    return ReminderDetector::detect(draft, clock().now(), clock().calendar(), DateDetector(clock()));
}

inline QString momentOf(Instant fireAt)
{
    return DateFormat::format(fireAt, u"yyyy-MM-dd HH:mm", "en_US_POSIX", clock().calendar());
}

/// "2026-03-05 15:00"; the year may be missing in @p told.
inline bool isMoment(const QString &told, Instant fireAt)
{
    const QString moment = momentOf(fireAt);
    return told == moment || QStringLiteral("2026-") + told == moment;
}

inline Score evaluate(const QString &language)
{
    Score score;
    const auto fault = [&score](const QString &line, const std::optional<ParsedReminder> &found) {
        score.faults.append(
            line + QStringLiteral("   =>   ")
            + (found ? momentOf(found->fireAt) + u' ' + found->content : QStringLiteral("nothing")));
    };
    for (const QString &line : lines(language + QStringLiteral("-found.txt"))) {
        const QStringList columns = line.split(QStringLiteral(" | "));
        const auto found = detect(columns[0]);
        const bool isRight = found && isMoment(columns[1], found->fireAt);
        const bool hasContent = found && found->content == columns[2];
        ++score.drafts;
        score.found += found.has_value();
        score.rightMoments += isRight;
        score.rightContents += hasContent;
        if (!isRight || !hasContent)
            fault(line, found);
    }
    for (const QString &line : lines(language + QStringLiteral("-ordinary.txt"))) {
        ++score.ordinary;
        if (ReminderParser::parse(line, clock().now(), clock().calendar(), LanguageDetection::detect(line)))
            continue;
        if (const auto found = detect(line)) {
            ++score.falseAlarms;
            fault(line, found);
        }
    }
    return score;
}
} // namespace DateEvaluation
