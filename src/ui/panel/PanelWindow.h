#pragma once

#include "ui/looks/FloatingWindow.h"

#include <QDeadlineTimer>
#include <QTimer>

class ContentView;

/// The floating window around the panel's content: Escape, and the loss of the focus.
class PanelWindow final : public FloatingWindow
{
    Q_OBJECT

public:
    /// Takes ownership of @p content.
    explicit PanelWindow(ContentView *content, Backdrop backdrop = Backdrop::None);
    /// Makes it no larger than its screen leaves room for. Whether its size changes.
    bool fit(QSize room);
    /// Gives up ownership of the content, for another window.
    void releaseContent();
    /// To be called when the window is shown again right after it was closed. Qt then still believes that it
    /// has the focus: it would not report the new focus, and reports the loss of the old one late.
    void expectFocusAgain();

Q_SIGNALS:
    void escaped();   ///< Escape, with nothing left to undo within the panel
    void focusLost(); ///< to another program's window

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void checkFocus();

    ContentView *m_content = nullptr;
    QTimer m_focusCheck;
    QDeadlineTimer m_reopening; ///< until the window manager must have given the focus
};
