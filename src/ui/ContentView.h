#pragma once

#include "ui/PanelState.h"

#include <QWidget>

class Clock;
class ComposerView;
class DateDetecting;
class NoteListView;
class NoteStore;
class PageTitleFetching;
class ReminderStore;
class TimelineModel;

/// The whole content of the panel: the title, the timeline, the composer. Owns the panel's working state.
class ContentView final : public QWidget
{
    Q_OBJECT

public:
    ContentView(NoteStore &notes, ReminderStore &reminders, const DateDetecting &detector,
        PageTitleFetching &titles, const Clock &clock, QWidget *parent = nullptr);

    [[nodiscard]] bool isComposing() const;
    [[nodiscard]] PanelState &state() { return m_state; }
    [[nodiscard]] NoteListView &timeline() { return *m_timeline; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void openNote(QUuid id);

    PanelState m_state;
    ReminderStore &m_reminders;
    TimelineModel *m_model = nullptr;
    NoteListView *m_timeline = nullptr;
    ComposerView *m_composer = nullptr;
};
