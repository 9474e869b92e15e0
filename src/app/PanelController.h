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

/// Opens and closes the panel. The window is built before it is first needed and kept, so that it opens at
/// once.
class PanelController final : public QObject
{
    Q_OBJECT

public:
    /// @p iconPlace tells where the tray's icon is on the screen, or an empty place.
    PanelController(std::function<ContentView *()> makeContent, std::function<QRect()> iconPlace,
        QObject *parent = nullptr);
    ~PanelController() override;

    void prepare(); ///< builds the panel, hidden
    void open();    ///< a panel that is open already only gets the focus
    void toggle();
    /// As toggle(), but for the click that took the focus from the panel, which so is closed already.
    void toggleByClick();
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] const QWindow *openWindow() const; ///< nothing while the panel is closed

    /// What is posted to the panel from outside.
    [[nodiscard]] PanelState &state();

private:
    void makeWindow();
    void close();
    void place();
    void insistOnPlace();

    std::function<ContentView *()> m_makeContent;
    std::function<QRect()> m_iconPlace;
    QPoint m_place;        ///< of the window
    int m_placeChecks = 0; ///< still to come
    QTimer m_placeCheck;
    QDeadlineTimer m_sameClick;       ///< until when a click may be the one that closed the panel
    ContentView *m_content = nullptr; ///< owned by the window
    std::unique_ptr<PanelWindow> m_window;
};
