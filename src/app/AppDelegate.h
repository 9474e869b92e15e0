#pragma once

#include <QObject>

class NoteStore;
class PanelController;
struct NotificationRequest;

/// The program's answers to the notification service.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    AppDelegate(NoteStore &notes, PanelController &panel, QObject *parent = nullptr);

    void willPresentNotification();
    void didReceiveNotification(const QString &noteID); ///< it was clicked
    void didSnoozeNotification(const NotificationRequest &request);

private:
    NoteStore &m_notes;
    PanelController &m_panel;
};
