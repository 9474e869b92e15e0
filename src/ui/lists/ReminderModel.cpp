#include "ui/lists/ReminderModel.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

QUuid rowKey(const ReminderRow &row)
{
    return row.reminder ? row.reminder->id : QUuid();
}

ReminderModel::ReminderModel(NoteStore &notes, ReminderStore &reminders, const Clock &clock)
    : m_notes(notes)
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
            .append({reminder, isExpired,
                NoteFormatting::reminderTimeString(reminder.fireAt, m_clock.now(), m_clock.calendar()),
                noteText.isEmpty() ? reminder.text : noteText});
    }
    if (!expired.isEmpty())
        upcoming.append({{}, true});
    show(upcoming + expired);
}

QString ReminderModel::text(int number) const
{
    return row(number).reminder ? row(number).text : L10n::text("已过期");
}

void ReminderModel::fillEntry(RowContent &entry, int number) const
{
    const ReminderRow &row = this->row(number);
    entry.above = row.isExpired ? L10n::text("已过期 · %@", QStringList{row.when}) : row.when;
    entry.isExpired = row.isExpired;
    entry.symbols = {{QStringLiteral("bell.slash"), L10n::text("取消提醒"), true, true}};
}
