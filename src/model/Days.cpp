#include "model/Days.h"

#include <QHash>

#include <algorithm>
#include <numeric>

QList<DaySection> Days::group(
    const QList<Note> &notes, const QList<qsizetype> &indexes, const Calendar &calendar)
{
    QList<DaySection> sections;
    QHash<qint64, qsizetype> sectionOfDay;
    // Neighbouring notes are mostly of one day, and asking the calendar is slow.
    qsizetype section = -1;
    Instant dayEnd;
    for (const qsizetype index : indexes) {
        const Instant createdAt = notes[index].createdAt;
        if (section < 0 || createdAt < sections[section].day || createdAt >= dayEnd) {
            const Instant day = calendar.startOfDay(createdAt);
            const qint64 key = day.time_since_epoch().count();
            section = sectionOfDay.value(key, sections.size());
            if (section == sections.size()) {
                sectionOfDay.insert(key, section);
                sections.append({day, {}});
            }
            dayEnd = calendar.startOfDay(day + std::chrono::hours(36));
        }
        sections[section].notes.append(index);
    }
    return sections;
}

QList<qsizetype> Days::all(const QList<Note> &notes)
{
    QList<qsizetype> indexes(notes.size());
    std::iota(indexes.begin(), indexes.end(), 0);
    return indexes;
}

QList<qsizetype> Days::newestFirst(const QList<Note> &notes)
{
    QList<qsizetype> indexes = all(notes);
    std::stable_sort(indexes.begin(), indexes.end(),
        [&notes](qsizetype a, qsizetype b) { return notes[a].createdAt > notes[b].createdAt; });
    return indexes;
}
