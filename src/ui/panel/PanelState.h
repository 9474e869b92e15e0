#pragma once

#include "model/Note.h"
#include "ui/panel/PanelMode.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

/// The panel's working state, which composer and timeline share, and what is posted to them within the
/// program.
///
/// The draft is at once what is being written and what the timeline is filtered by.
class PanelState final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] const QString &draft() const { return m_draft; }
    [[nodiscard]] std::optional<QUuid> editingID() const { return m_editingID; }
    [[nodiscard]] const std::optional<Note> &quoting() const { return m_quoting; }
    /// A note that the timeline is to scroll to and flash, once.
    [[nodiscard]] PanelMode mode() const { return m_mode; }
    [[nodiscard]] std::optional<QUuid> jumpTargetID() const { return m_jumpTargetID; }

    void setDraft(const QString &draft);
    void setEditingID(std::optional<QUuid> id);
    void setQuoting(const std::optional<Note> &note);
    void setMode(PanelMode mode);
    void setJumpTargetID(std::optional<QUuid> id);

Q_SIGNALS:
    void draftChanged();
    void editingIDChanged();
    void quotingChanged();
    void modeChanged();
    void jumpTargetIDChanged();

    // Posted, not kept.
    void panelDidToggle();
    void focusComposer();
    void clearComposer();
    void openNote(QUuid noteID);

private:
    QString m_draft;
    std::optional<QUuid> m_editingID;
    std::optional<Note> m_quoting;
    PanelMode m_mode = PanelMode::Timeline;
    std::optional<QUuid> m_jumpTargetID;
};
