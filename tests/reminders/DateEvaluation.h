#pragma once

#include "reminders/DateDetector.h"
#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "reminders/ReminderParser.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"

#include <QDir>

/// How well the drafts under dates/ are understood.
namespace DateEvaluation {
struct Score {
    int drafts = 0;
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

/// "2026-03-05 15:00"; the year may be missing in @p told.
inline bool isMoment(const QString &told, Instant fireAt, const Calendar &calendar)
{
    const auto day = calendar.day(fireAt);
    const auto time = calendar.timeOfDay(fireAt);
    const QString whole = QString::asprintf("%04d-%02u-%02u %02d:%02d", int(day.year()),
        unsigned(day.month()), unsigned(day.day()), time.hour, time.minute);
    return told == whole || (int(day.year()) == 2026 && told == whole.sliced(5));
}

inline Score evaluate(const QString &language)
{
    const TestClock clock("2026-03-04T02:00:00Z");
    const DateDetector detector(clock);
    const auto detect = [&](const QString &draft) {
        return ReminderDetector::detect(draft, clock.now(), clock.calendar(), detector);
    };
    Score score;
    for (const QString &line : lines(language + QStringLiteral("-found.txt"))) {
        const QStringList columns = line.split(QStringLiteral(" | "));
        const auto found = detect(columns[0]);
        const bool isRight = found && isMoment(columns[1], found->fireAt, clock.calendar());
        const bool hasContent = found && found->content == columns[2];
        ++score.drafts;
        score.rightMoments += isRight;
        score.rightContents += hasContent;
        if (!isRight || !hasContent) {
            score.faults.append(line + QStringLiteral("   =>   ")
                                + (found ? QString::fromLatin1(InternetDateTime::format(
                                               found->fireAt + std::chrono::hours(8)))
                                               + u' ' + found->content
                                         : QStringLiteral("nothing")));
        }
    }
    for (const QString &line : lines(language + QStringLiteral("-ordinary.txt"))) {
        ++score.ordinary;
        if (ReminderParser::parse(line, clock.now(), clock.calendar(), LanguageDetection::detect(line)))
            continue;
        if (const auto found = detect(line)) {
            ++score.falseAlarms;
            score.faults.append(
                line + QStringLiteral("   =>   ")
                + QString::fromLatin1(InternetDateTime::format(found->fireAt + std::chrono::hours(8))) + u' '
                + found->content);
        }
    }
    return score;
}
} // namespace DateEvaluation
