#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

class CapsuleButton;

/// Says for a few seconds what was done, and takes it back where that is possible. It stays while the pointer
/// or the focus is on it.
class StatusLine final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    /// In place of what it says now. Without @p undo there is no button.
    void tell(const QString &text, const std::function<void()> &undo = {});
    void undo(); ///< what it says; nothing while it is hidden
    void dismiss();
    [[nodiscard]] bool hasFocusWithin() const;

Q_SIGNALS:
    void left();             ///< it is closing and has the focus
    void covers(int height); ///< so much of what it is over, at the bottom; 0 when it is closed

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::function<void()> m_undo;
    CapsuleButton *m_button = nullptr;
    QTimer m_closing;
};
