#pragma once

#include "app/GlobalHotKey.h"

#include <QObject>

class DesktopNotificationCenter;
class NoteStore;
class PanelController;
struct NotificationRequest;

/// The program's answers to the desktop: a reminder that is due, a notification that was clicked, the hot
/// key.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    AppDelegate(DesktopNotificationCenter &notifications, NoteStore &notes, PanelController &panel,
        QObject *parent = nullptr);

    void didFinishLaunching();

private:
    void willPresentNotification();
    void didReceiveNotification(const QString &noteID);
    void didSnoozeNotification(const NotificationRequest &request);

    DesktopNotificationCenter &m_notifications;
    NoteStore &m_notes;
    PanelController &m_panel;
    GlobalHotKey m_hotKey;
};
