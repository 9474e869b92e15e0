#pragma once

#include "ui/panel/PanelState.h"

#include <QTimer>
#include <QWidget>

class BarButton;
class CapsuleButton;
class Clock;
class ComposerView;
class DateDetecting;
class NoteSearch;
class NoteStore;
class PageTitleFetching;
class QLabel;
class QStackedLayout;
class ReminderStore;
class RowListView;
class StatusLine;
class TagListView;

/// The content of the panel: the top bar, the list of the current mode, and the composer or what takes its
/// place below. Owns the panel's working state.
class ContentView final : public QWidget
{
    Q_OBJECT

public:
    ContentView(NoteStore &notes, NoteSearch &search, ReminderStore &reminders, const DateDetecting &detector,
        PageTitleFetching &titles, const Clock &clock, QWidget *parent = nullptr);

    [[nodiscard]] PanelState &state() { return m_state; }
    [[nodiscard]] bool isComposing() const; ///< an input method is composing in the field
    /// Undoes the innermost thing that Escape undoes within the panel; false when there is none.
    bool escape();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Page {
        QString title;
        BarButton *button = nullptr; ///< leads there and back; the timeline has none
        RowListView *list = nullptr;
    };

    void addModeButton(QLayout &bar, PanelMode mode, const QString &symbol);
    void addList(PanelMode mode, RowListView &list, QWidget &page);
    void addReminders();
    void addTrash();
    [[nodiscard]] RowListView &list() const; ///< of the current mode
    void setTabOrder();
    void enter(PanelMode mode);
    void focusFieldOrList();
    void showKeys();
    void modeDidChange();
    void timeDidPass();

    PanelState m_state;
    NoteStore &m_notes;
    ReminderStore &m_reminders;
    const Clock &m_clock;
    ComposerView *m_composer = nullptr;
    TagListView *m_tags = nullptr;
    QLabel *m_title = nullptr;
    QStackedLayout *m_stack = nullptr;
    StatusLine *m_statusLine = nullptr;
    QList<Page> m_pages; ///< in the order of the modes
    CapsuleButton *m_emptyTrash = nullptr;
    QWidget *m_trashBar = nullptr; ///< below the trash, in place of the composer
    QTimer m_nextMinute;
};
