#pragma once

#include <QLineEdit>

/// The input line. While an input method is composing, keys belong to the input method: those that reach the
/// field nevertheless neither save nor close anything.
class ComposerField final : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    [[nodiscard]] bool isComposing() const { return m_isComposing; }
    /// Replaces the whole text; Ctrl+Z undoes it.
    void replaceAll(const QString &text);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void insertAsOneLine(QString text);
    void pasteAsOneLine();

    bool m_isComposing = false;
};
