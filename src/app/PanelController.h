#pragma once

#include <QObject>

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
    explicit PanelController(std::function<ContentView *()> makeContent, QObject *parent = nullptr);
    ~PanelController() override;

    void prepare(); ///< builds the panel, hidden
    void open();    ///< a panel that is open already only gets the focus
    void toggle();
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] const QWindow *openWindow() const; ///< nothing while the panel is closed

    /// What is posted to the panel from outside.
    [[nodiscard]] PanelState &state();

private:
    void makeWindow();
    void close();
    void place();

    std::function<ContentView *()> m_makeContent;
    ContentView *m_content = nullptr; ///< owned by the window
    std::unique_ptr<PanelWindow> m_window;
};
