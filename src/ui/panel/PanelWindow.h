#pragma once

#include "ui/looks/FloatingFrame.h"

#include <QDeadlineTimer>
#include <QTimer>
#include <QWidget>

class ContentView;

/// The floating window around the panel's content: its looks, Escape, and closing when it loses the focus.
class PanelWindow final : public QWidget
{
    Q_OBJECT

public:
    /// @p content is adopted.
    explicit PanelWindow(
        ContentView *content, FloatingFrame::Backdrop backdrop = FloatingFrame::Backdrop::None);
    [[nodiscard]] const FloatingFrame &frame() const { return m_frame; }
    /// Gives the content back, for another window.
    void releaseContent();
    /// To be called where it is shown again right after it was closed. Qt still takes it for the window with
    /// the focus: it would not hear that it gets it again, and hears late that it lost it.
    void expectFocusAgain();

Q_SIGNALS:
    void escaped();   ///< Escape, with nothing left to undo within the panel
    void focusLost(); ///< another program's window has taken the focus

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void checkFocus();

    ContentView *m_content = nullptr;
    QTimer m_focusCheck;
    QDeadlineTimer m_reopening; ///< until the window manager has had its time
    FloatingFrame m_frame;
};
