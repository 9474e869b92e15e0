#pragma once

#include <QLineEdit>

/// The line that is written in. While an input method composes, the keys are the input method's: what reaches
/// the field all the same neither saves nor closes anything.
class ComposerField final : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    [[nodiscard]] bool isComposing() const { return m_isComposing; }
    /// Puts this text in place of all; Ctrl+Z takes it back.
    void replaceAll(const QString &text);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void insertAsOneLine(const QString &text);
    void pasteAsOneLine();

    bool m_isComposing = false;
};
