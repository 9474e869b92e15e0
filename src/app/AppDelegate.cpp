#include "app/AppDelegate.h"

#include "app/PanelController.h"
#include "model/NoteStore.h"
#include "model/NotificationScheduling.h"
#include "model/ReminderStore.h"
#include "ui/panel/PanelState.h"

#include <QUuid>

AppDelegate::AppDelegate(NoteStore &notes, PanelController &panel, QObject *parent)
    : QObject(parent)
    , m_notes(notes)
    , m_panel(panel)
{
}

void AppDelegate::willPresentNotification()
{
    if (ReminderStore *store = ReminderStore::active())
        store->pruneExpired();
}

void AppDelegate::didReceiveNotification(const QString &noteID)
{
    const QUuid id(noteID);
    if (id.isNull())
        return;
    m_panel.open();
    m_panel.state().openNote(id);
}

void AppDelegate::didSnoozeNotification(const NotificationRequest &request)
{
    const QUuid id(request.noteID);
    ReminderStore *reminders = ReminderStore::active();
    if (id.isNull() || !reminders)
        return;
    const auto note = m_notes.note(id);
    reminders->snooze(id, request.body, note ? note->text : request.body);
}
