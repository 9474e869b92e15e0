#pragma once

#include "app/AppDelegate.h"
#include "app/PanelController.h"
#include "app/StatusBarMenu.h"
#include "desktop/Appearance.h"
#include "desktop/ApplicationService.h"
#include "desktop/DesktopNotificationCenter.h"
#include "desktop/PageTitleFetcher.h"
#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "reminders/dates/DateDetector.h"
#include "search/ConceptEmbeddingProvider.h"

#include <QObject>

/// The wiring of the program. Members stand in the order in which they start and are destroyed in reverse.
class QuilletApp final : public QObject
{
    Q_OBJECT

public:
    /// With the panel open; in the tray, or open where there is none; or in the tray whether there is one or
    /// not.
    enum class Start { Open, Quiet, Hidden };

    explicit QuilletApp(Start start);

private:
    void presentMissedReminders();
    void applyAppearance();

    // What the machine provides
    SystemClock m_clock;
    DateDetector m_dateDetector;
    PageTitleFetcher m_titles;
    ConceptEmbeddingProvider m_embeddings;
    Appearance m_appearance;
    DesktopNotificationCenter m_notifications;
    // What is owned
    ReminderStore m_reminders;
    NoteStore m_notes;
    // What is seen
    PanelController m_panel;
    StatusBarMenu m_statusBar;
    ApplicationService m_service;
    AppDelegate m_delegate;
};
