#pragma once

#include "ui/StillPicture.h"

#include <QTimer>
#include <QWidget>

class ContentView;

/// The floating window around the panel's content: its looks, Escape, and closing when it loses the focus.
class PanelWindow final : public QWidget
{
    Q_OBJECT

public:
    /// @p content is adopted.
    explicit PanelWindow(ContentView *content);

Q_SIGNALS:
    void escaped();   ///< Escape, with nothing left to undo within the panel
    void focusLost(); ///< another program's window has taken the focus

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void checkFocus();

    ContentView *m_content = nullptr;
    QTimer m_focusCheck;
    StillPicture m_frame;
};
