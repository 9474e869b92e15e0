#pragma once

#include "reminders/ParsedReminder.h"
#include "text/TagCompletion.h"
#include "ui/looks/CachedImage.h"

#include <QWidget>

#include <optional>

class Clock;
class ComposerBar;
class ComposerField;
class DateDetecting;
class NoteStore;
class PageTitleFetching;
class PanelState;
class QInputMethodEvent;
class QInputMethodQueryEvent;
class QKeyEvent;
class SuggestionList;

/// The line that notes are written in, with completion and bars above it. Return saves the draft: as an edit,
/// a link, a note with a reminder, or a plain note.
class ComposerView final : public QWidget
{
    Q_OBJECT

public:
    ComposerView(NoteStore &store, PanelState &state, const DateDetecting &detector,
        PageTitleFetching &titles, const Clock &clock, QWidget *parent = nullptr);

    [[nodiscard]] bool isComposing() const; ///< an input method is composing in the field
    void timeDidPass();                     ///< a previewed reminder may have passed

    // What is typed while another widget has the focus goes on in the field.
    /// Takes the focus and the key if it is a character or pastes; returns whether it is.
    bool takeKey(QKeyEvent &key);
    void takeInput(
        QInputMethodEvent &event); ///< takes the focus with the first text that is not composed any more
    void answerFor(
        const QWidget &asker, QInputMethodQueryEvent &query) const; ///< in the coordinates of the @p asker

    [[nodiscard]] TagCompletionState &completion() { return m_completion; }

Q_SIGNALS:
    void listRequested(); ///< by an arrow key

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] bool isFilterOnly() const;
    /// Saves the draft and clears the field; a blank draft is only cleared.
    void submit();
    void draftDidChange();
    void updateCompletion();
    void applyCandidate(const QString &candidate);
    [[nodiscard]] bool isEditing() const;
    void updateBars();
    bool handleKey(int key);
    void updateReminderPreview();
    void updatePlaceholder();
    void focusAtEnd();
    void addWebLink(const QString &draft, const QString &address);
    void addFileLink(const QString &path);
    [[nodiscard]] std::optional<ParsedReminder> detectedReminder() const;

    NoteStore &m_store;
    PanelState &m_state;
    const DateDetecting &m_detector;
    PageTitleFetching &m_titles;
    const Clock &m_clock;
    TagCompletionState m_completion;
    SuggestionList *m_suggestions = nullptr;
    ComposerBar *m_editBar = nullptr;
    ComposerBar *m_quoteBar = nullptr;
    ComposerBar *m_reminderBar = nullptr; ///< which reminder saving would create
    ComposerField *m_field = nullptr;
    bool m_suppressReminder = false;
    qsizetype m_completedCaret = 0; ///< for which tags are offered, or none
    CachedImage m_capsules[2][2];   ///< by whether the field has the focus, and whether it edits a note
};
