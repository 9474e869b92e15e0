#include "ui/panel/PanelState.h"

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
