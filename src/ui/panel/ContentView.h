#pragma once

#include "ui/panel/PanelState.h"

#include <QTimer>
#include <QWidget>

class BarButton;
class CapsuleButton;
class Clock;
class ComposerView;
class DateDetecting;
class NoteListView;
class NoteStore;
class PageTitleFetching;
class QLabel;
class QStackedLayout;
class ReminderModel;
class ReminderStore;
class RowListView;
class TagListView;
class TimelineModel;
class TrashModel;

/// The whole content of the panel: the top bar, the list of the present mode, and what stands below it. Owns
/// the panel's working state.
class ContentView final : public QWidget
{
    Q_OBJECT

public:
    ContentView(NoteStore &notes, ReminderStore &reminders, const DateDetecting &detector,
        PageTitleFetching &titles, const Clock &clock, QWidget *parent = nullptr);

    [[nodiscard]] PanelState &state() { return m_state; }
    [[nodiscard]] NoteListView &timeline() { return *m_timeline; }
    [[nodiscard]] bool isComposing() const;
    /// Undoes the innermost thing that Escape undoes within the panel; false when there is none.
    bool escape();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addModeButton(QLayout &bar, PanelMode mode, const QString &symbol);
    void addShortcuts();
    void addReminders(ReminderStore &reminders);
    void addTags(NoteStore &notes);
    void addTrash(NoteStore &notes);
    void toggleMode(PanelMode mode);
    void modeDidChange();
    void selectTag(const QString &tag);
    void timeDidPass();
    void waitForNextMinute();
    [[nodiscard]] RowListView &list() const; ///< of the present mode

    struct ModeButton {
        PanelMode mode;
        BarButton *button;
    };

    PanelState m_state;
    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
    TimelineModel *m_model = nullptr;
    NoteListView *m_timeline = nullptr;
    ComposerView *m_composer = nullptr;
    TagListView *m_tags = nullptr;
    ReminderModel *m_reminderModel = nullptr;
    TrashModel *m_trashModel = nullptr;
    QWidget *m_permissionBanner = nullptr;
    QLabel *m_title = nullptr;
    QList<ModeButton> m_modeButtons;
    QStackedLayout *m_stack = nullptr; ///< a page for each mode, in their order
    CapsuleButton *m_emptyTrash = nullptr;
    QWidget *m_trashBar = nullptr; ///< below the trash, in place of the composer
    QTimer m_nextMinute;
};
