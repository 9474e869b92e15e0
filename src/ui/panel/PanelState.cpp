#include "ui/panel/PanelState.h"

void PanelState::setDraft(const QString &draft)
{
    if (m_draft == draft)
        return;
    m_draft = draft;
    Q_EMIT draftChanged();
}

void PanelState::setEditingID(std::optional<QUuid> id)
{
    if (m_editingID == id)
        return;
    m_editingID = id;
    Q_EMIT editingIDChanged();
}

void PanelState::setQuoting(const std::optional<Note> &note)
{
    if (m_quoting == note)
        return;
    m_quoting = note;
    Q_EMIT quotingChanged();
}

void PanelState::setJumpTargetID(std::optional<QUuid> id)
{
    if (m_jumpTargetID == id)
        return;
    m_jumpTargetID = id;
    Q_EMIT jumpTargetIDChanged();
}

void PanelState::setMode(PanelMode mode)
{
    if (m_mode == mode)
        return;
    m_mode = mode;
    Q_EMIT modeChanged();
}

void PanelState::focusComposer()
{
    Q_EMIT composerFocusRequested();
}

void PanelState::openNote(QUuid noteID)
{
    setMode(PanelMode::Timeline);
    setJumpTargetID(noteID);
}

void PanelState::panelDidToggle()
{
    Q_EMIT panelToggled();
}
