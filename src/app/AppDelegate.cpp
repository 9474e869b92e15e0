#include "app/AppDelegate.h"

#include "app/PanelController.h"
#include "desktop/DesktopNotificationCenter.h"
#include "model/ReminderStore.h"
#include "ui/PanelState.h"

#include <QUuid>

AppDelegate::AppDelegate(DesktopNotificationCenter &notifications, PanelController &panel, QObject *parent)
    : QObject(parent)
    , m_notifications(notifications)
    , m_panel(panel)
{
}

void AppDelegate::didFinishLaunching()
{
    connect(&m_notifications, &DesktopNotificationCenter::willPresent, this,
        &AppDelegate::willPresentNotification);
    connect(
        &m_notifications, &DesktopNotificationCenter::didReceive, this, &AppDelegate::didReceiveNotification);
    m_hotKey.registerHandler([this] {
        m_panel.toggle();
        m_hotKey.handOnKeysTo(m_panel.openWindow());
    });
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
    Q_EMIT m_panel.state().openNote(id);
}
