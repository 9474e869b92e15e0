#pragma once

#include "app/AppDelegate.h"
#include "app/GlobalHotKey.h"
#include "app/PanelController.h"
#include "app/StatusBarMenu.h"
#include "desktop/Appearance.h"
#include "desktop/ApplicationService.h"
#include "desktop/DesktopNotificationCenter.h"
#include "desktop/PageTitleFetcher.h"
#include "foundation/Clock.h"
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "reminders/dates/DateDetector.h"
#include "search/ConceptEmbeddingProvider.h"

#include <QObject>

/// The wiring of the program. Members are declared in the order in which they start, and destroyed in
/// reverse.
class QuilletApp final : public QObject
{
    Q_OBJECT

public:
    enum class Start {
        Open,
        Quiet, ///< without the panel, unless there is no tray
        Hidden,
    };

    explicit QuilletApp(Start start);

private:
    void connectAll();
    void applyAppearance();
    void presentMissedReminders();

    // Services of the system
    SystemClock m_clock;
    DateDetector m_dateDetector;
    PageTitleFetcher m_titles;
    ConceptEmbeddingProvider m_embeddings;
    Appearance m_appearance;
    DesktopNotificationCenter m_notifications;
    // Data
    ReminderStore m_reminders;
    NoteStore m_notes;
    NoteSearch m_search;
    // User interface
    PanelController m_panel;
    StatusBarMenu m_statusBar;
    ApplicationService m_service;
    AppDelegate m_delegate;
    GlobalHotKey m_hotKey;
};
