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
    /// How the desktop shows the window: cut out of a rectangle, or with soft corners and a shadow.
    enum class Surface { Opaque, Translucent };

    /// @p content is adopted.
    explicit PanelWindow(ContentView *content, Surface surface = Surface::Opaque);
    [[nodiscard]] Surface surface() const { return m_surface; }
    /// How far the panel's edge is within the window's.
    [[nodiscard]] int shadowMargin() const;
    /// Gives the content back, for another window.
    void releaseContent();

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

    [[nodiscard]] QRect panel() const { return rect().marginsRemoved(QMargins() + shadowMargin()); }

    ContentView *m_content = nullptr;
    Surface m_surface;
    QTimer m_focusCheck;
    StillPicture m_frame;
};
