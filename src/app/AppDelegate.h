#pragma once

#include "app/GlobalHotKey.h"

#include <QObject>

class DesktopNotificationCenter;
class PanelController;

/// The program's answers to the desktop: a reminder that is due, a notification that was clicked, the hot
/// key.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    AppDelegate(DesktopNotificationCenter &notifications, PanelController &panel, QObject *parent = nullptr);

    void didFinishLaunching();

private:
    void willPresentNotification();
    void didReceiveNotification(const QString &noteID);

    DesktopNotificationCenter &m_notifications;
    PanelController &m_panel;
    GlobalHotKey m_hotKey;
};
