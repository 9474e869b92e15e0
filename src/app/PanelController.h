#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QRect>
#include <QTimer>

#include <functional>
#include <memory>

class ContentView;
class PanelState;
class PanelWindow;
class QWindow;

/// Opens and closes the panel. The window is built before it is first needed, and kept, so that it opens
/// without delay.
class PanelController final : public QObject
{
    Q_OBJECT

public:
    /// @p iconRect returns the tray icon's rectangle on the screen, empty if unknown.
    PanelController(std::function<ContentView *()> makeContent, std::function<QRect()> iconRect,
        QObject *parent = nullptr);
    ~PanelController() override;

    void prepare(); ///< builds the panel, hidden
    void open();    ///< a panel that is open already only gets the focus
    void toggle();
    /// Like toggle(), but ignores the click that has just closed the panel.
    void toggleByClick();
    [[nodiscard]] const QWindow *openWindow() const; ///< null while the panel is closed

    // These build the panel if necessary.
    [[nodiscard]] ContentView *content();
    [[nodiscard]] PanelState &state();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isOpen() const;
    void makeWindow();
    void close();
    void blurBehind() const;
    void moveToIcon();
    void keepPosition();

    std::function<ContentView *()> m_makeContent;
    std::function<QRect()> m_iconRect;
    QMetaObject::Connection m_workAreaChange;
    QPoint m_position;
    int m_positionChecks = 0; ///< left to do
    QTimer m_positionCheck;
    QDeadlineTimer m_closingClick;    ///< until when a click may be the one that has closed the panel
    ContentView *m_content = nullptr; ///< owned by the window
    std::unique_ptr<PanelWindow> m_window;
};
