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
class ReminderBar;
class SuggestionList;

/// The one line that is written in. Return saves the draft: as an edit, a link, a note with a reminder, or a
/// note.
class ComposerView final : public QWidget
{
    Q_OBJECT

public:
    ComposerView(NoteStore &store, PanelState &state, const DateDetecting &detector,
        PageTitleFetching &titles, const Clock &clock, QWidget *parent = nullptr);

    /// Saves the draft and clears the field; a blank draft is only cleared. Where the field only filters,
    /// nothing happens.
    void submit();
    [[nodiscard]] bool isComposing() const; ///< an input method is at work in the field
    void timeDidPass();                     ///< what was still to come may be past

    [[nodiscard]] TagCompletionState &completion() { return m_completion; }

Q_SIGNALS:
    void walkedAway(); ///< an arrow key asks for the list

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] bool isFilterOnly() const;
    void draftDidChange();
    void updateCompletion();
    void applyCandidate(const QString &candidate);
    void updateQuoteBar();
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
    ComposerBar *m_quoteBar = nullptr;
    ReminderBar *m_reminderBar = nullptr;
    ComposerField *m_field = nullptr;
    bool m_suppressReminder = false;
    CachedImage m_capsule;
};
