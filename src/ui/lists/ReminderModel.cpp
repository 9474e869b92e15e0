#include "ui/lists/ReminderModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

bool isSameRow(const ReminderRow &a, const ReminderRow &b)
{
    if (a.reminder && b.reminder)
        return a.reminder->id == b.reminder->id;
    return !a.reminder && !b.reminder;
}

ReminderModel::ReminderModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock, QObject *parent)
    : RowsOf(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_clock(clock)
{
    connect(&m_notes, &NoteStore::notesChanged, this, &ReminderModel::refreshWhenSeen);
    connect(&m_reminders, &ReminderStore::remindersChanged, this, &ReminderModel::refreshWhenSeen);
    ReminderModel::refresh();
}

void ReminderModel::refresh()
{
    QHash<QUuid, QString> texts;
    for (const Reminder &reminder : m_reminders.reminders())
        texts.insert(reminder.noteID, {});
    for (const Note &note : m_notes.notes()) {
        if (const auto wanted = texts.find(note.id); wanted != texts.end())
            *wanted = note.text;
    }
    QList<ReminderRow> upcoming;
    QList<ReminderRow> expired;
    for (const Reminder &reminder : m_reminders.reminders()) {
        const QString noteText = texts.value(reminder.noteID);
        const bool isExpired = reminder.fireAt <= m_clock.now();
        (isExpired ? expired : upcoming)
            .append({reminder, isExpired, noteText.isEmpty() ? reminder.text : noteText});
    }
    if (!expired.isEmpty())
        upcoming.append({{}, true, {}});
    show(upcoming + expired);
}

void ReminderModel::timeDidPass()
{
    refresh();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1)); // "today" and "tomorrow" move
}

QString ReminderModel::text(int number) const
{
    return row(number).reminder ? row(number).text : L10n::text("已过期");
}

RowContent ReminderModel::content(int number) const
{
    const ReminderRow &row = this->row(number);
    RowContent content;
    if (!row.reminder) {
        content.header = text(number);
        return content;
    }
    const QString when =
        NoteFormatting::reminderTimeString(row.reminder->fireAt, m_clock.now(), m_clock.calendar());
    content.above = row.isExpired ? L10n::text("已过期 · %@", QStringList{when}) : when;
    content.text = row.text;
    content.isExpired = row.isExpired;
    content.symbols = {{QStringLiteral("bell.slash"), L10n::text("取消提醒"), true}};
    return content;
}
