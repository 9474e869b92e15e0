#pragma once

#include "model/Note.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

/// Which list the panel shows.
enum class PanelMode { Timeline, Tags, Reminders, Trash };

/// The panel's working state, shared by composer and timeline. Functions change it or ask for something,
/// signals announce what happened.
///
/// The draft is both the text being written and the filter of the timeline and the tag list.
class PanelState final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] const QString &draft() const { return m_draft; }
    [[nodiscard]] std::optional<QUuid> editingID() const { return m_editingID; }
    [[nodiscard]] const std::optional<Note> &quoting() const { return m_quoting; }
    [[nodiscard]] PanelMode mode() const { return m_mode; }
    /// A note that the timeline scrolls to and flashes once.
    [[nodiscard]] std::optional<QUuid> jumpTargetID() const { return m_jumpTargetID; }

    /// Opens the panel from anywhere; empty if there is none for certain.
    [[nodiscard]] const QString &hotKey() const { return m_hotKey; }
    void setHotKey(const QString &key) { m_hotKey = key; }

    void setDraft(const QString &draft) { set(m_draft, draft, &PanelState::draftChanged); }
    void setEditingID(std::optional<QUuid> id) { set(m_editingID, id, &PanelState::editingIDChanged); }
    void setQuoting(const std::optional<Note> &note) { set(m_quoting, note, &PanelState::quotingChanged); }
    void setMode(PanelMode mode) { set(m_mode, mode, &PanelState::modeChanged); }
    void setJumpTargetID(std::optional<QUuid> id)
    {
        set(m_jumpTargetID, id, &PanelState::jumpTargetIDChanged);
    }

    /// With the caret behind the text.
    void focusComposer() { Q_EMIT composerFocusRequested(); }
    /// Shows the notes with the tag in the timeline. @p name is without the "#".
    void filterByTag(const QString &name)
    {
        setDraft(u'#' + name);
        setEditingID({});
        setQuoting({});
        setMode(PanelMode::Timeline);
        focusComposer();
    }
    /// In the timeline; the draft stays.
    void openNote(QUuid noteID)
    {
        setMode(PanelMode::Timeline);
        setJumpTargetID(noteID);
    }
    /// To be called after the panel was opened or closed on request.
    void panelDidToggle() { Q_EMIT panelToggled(); }

Q_SIGNALS:
    void draftChanged();
    void editingIDChanged();
    void quotingChanged();
    void modeChanged();
    void jumpTargetIDChanged();
    void composerFocusRequested();
    void panelToggled();

private:
    template <typename Value>
    void set(Value &member, const Value &value, void (PanelState::*changed)())
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT(this->*changed)();
    }

    QString m_hotKey;
    QString m_draft;
    std::optional<QUuid> m_editingID;
    std::optional<Note> m_quoting;
    PanelMode m_mode = PanelMode::Timeline;
    std::optional<QUuid> m_jumpTargetID;
};
