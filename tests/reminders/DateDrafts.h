#pragma once

#include "foundation/DateFormat.h"
#include "reminders/ReminderDetector.h"
#include "reminders/dates/DateDetector.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"

#include <QDir>

/// The drafts under dates/, with what they mean.
namespace DateDrafts {
struct Row {
    QString draft;
    QString meaning; ///< "03-05 17:00 | call mom"; empty when the draft has no date
};

inline QStringList languages()
{
    QStringList languages = QDir(QStringLiteral(DATES_FOLDER)).entryList({QStringLiteral("*-found.txt")});
    for (QString &language : languages)
        language.chop(qsizetype(qstrlen("-found.txt")));
    return languages;
}

/// @p list is "found", "ordinary" (without a date), "missed" (of both kinds, and understood wrongly), or
/// "grammar" (of both kinds; their meaning begins with the year).
inline QList<Row> rows(const QString &language, const QString &list)
{
    const QString file = QStringLiteral(DATES_FOLDER "/") + language + u'-' + list + QStringLiteral(".txt");
    if (!QFile::exists(file))
        return {};
    QList<Row> rows;
    for (const QString &line : QString::fromUtf8(readFile(file)).split(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype end = line.indexOf(QStringLiteral(" | "));
        rows.append(end < 0 ? Row{line, {}} : Row{line.first(end), line.sliced(end + 3)});
    }
    return rows;
}

inline const TestClock &clock()
{
    static const TestClock clock("2026-03-04T02:00:00Z");
    return clock;
}

/// What is understood, in the form of Row::meaning; the year is left out when it is 2026.
inline QString understood(const QString &draft)
{
    const auto found =
        ReminderDetector::detect(draft, clock().now(), clock().calendar(), DateDetector(clock()));
    if (!found)
        return {};
    const QString moment =
        DateFormat::format(found->fireAt, u"yyyy-MM-dd HH:mm", "en_US_POSIX", clock().calendar());
    return (moment.startsWith(u"2026-") ? moment.sliced(5) : moment) + QStringLiteral(" | ") + found->content;
}
} // namespace DateDrafts
