#include "app/PanelController.h"

#include "desktop/Compositor.h"
#include "desktop/X11.h"
#include "ui/looks/Design.h"
#include "ui/panel/ContentView.h"
#include "ui/panel/PanelWindow.h"

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {
FloatingWindow::Backdrop currentBackdrop()
{
    switch (Compositor::kind()) {
    case Compositor::Kind::None:
        return FloatingWindow::Backdrop::None;
    case Compositor::Kind::Plain:
        return FloatingWindow::Backdrop::Sharp;
    case Compositor::Kind::Blurring:
        return FloatingWindow::Backdrop::Blurred;
    }
    Q_UNREACHABLE();
}
} // namespace

PanelController::PanelController(
    std::function<ContentView *()> makeContent, std::function<QRect()> iconRect, QObject *parent)
    : QObject(parent)
    , m_makeContent(std::move(makeContent))
    , m_iconRect(std::move(iconRect))
{
    qApp->installEventFilter(this);
    constexpr std::chrono::milliseconds checkInterval{100};
    m_positionCheck.setSingleShot(true);
    m_positionCheck.setInterval(checkInterval);
    connect(&m_positionCheck, &QTimer::timeout, this, &PanelController::keepPosition);
}

PanelController::~PanelController() = default;

bool PanelController::eventFilter(QObject *watched, QEvent *event)
{
    // The panel, or a report while it is closed. Before the desktop sees it.
    if (event->type() == QEvent::Show && X11::connection()) {
        if (const auto *window = qobject_cast<FloatingWindow *>(watched))
            X11::keepOutOfTaskbars(*window->windowHandle());
    }
    return false;
}

void PanelController::prepare()
{
    if (m_window)
        return;
    m_content = m_makeContent();
    makeWindow();
}

void PanelController::makeWindow()
{
    const FloatingWindow::Backdrop backdrop = currentBackdrop();
    if (m_window && m_window->backdrop() == backdrop)
        return;
    if (m_window)
        m_window->releaseContent();
    m_window = std::make_unique<PanelWindow>(m_content, backdrop);
    connect(m_window.get(), &PanelWindow::focusLost, this, [this] {
        constexpr std::chrono::milliseconds clickDuration{400};
        m_closingClick.setRemainingTime(clickDuration);
        close();
    });
    connect(m_window.get(), &PanelWindow::escaped, this, [this] {
        close();
        m_content->state().panelDidToggle();
    });
    m_window->winId(); // creates the native window
    blurBehind();
    m_window->grab(); // does what the first painting needs: fonts, layouts, symbols
}

ContentView *PanelController::content()
{
    prepare();
    return m_content;
}

PanelState &PanelController::state()
{
    return content()->state();
}

bool PanelController::isOpen() const
{
    return m_window && m_window->isVisible();
}

const QWindow *PanelController::openWindow() const
{
    return isOpen() ? m_window->windowHandle() : nullptr;
}

void PanelController::open()
{
    prepare();
    // Some window managers report the window as minimized while another workspace is shown; Qt would show it
    // minimized.
    m_window->setWindowState(Qt::WindowNoState);
    if (isOpen()) {
        m_window->raise();
        m_window->activateWindow();
        return;
    }
    makeWindow(); // anew if a compositor has come or gone
    moveToIcon();
    m_window->show();
    m_window->activateWindow();
    if (QGuiApplication::focusWindow() == m_window->windowHandle())
        m_window->expectFocusAgain();
    m_content->state().panelDidToggle();
}

void PanelController::close()
{
    m_window->hide();
}

void PanelController::toggle()
{
    if (!isOpen()) {
        open();
        return;
    }
    close();
    m_content->state().panelDidToggle();
}

void PanelController::toggleByClick()
{
    if (isOpen() || m_closingClick.hasExpired())
        toggle();
}

void PanelController::blurBehind() const
{
    if (m_window->backdrop() == FloatingWindow::Backdrop::Blurred)
        X11::blurBehind(*m_window->windowHandle(), m_window->outline(m_window->devicePixelRatioF()));
}

void PanelController::moveToIcon()
{
    // On the screen that holds the pointer; before the window is shown, or it would be seen jumping.
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (QGuiApplication::screens().size() > 1) { // asking for the pointer's position is slow
        if (const QScreen *pointed = QGuiApplication::screenAt(QCursor::pos()))
            screen = pointed;
    }
    disconnect(m_workAreaChange);
    m_workAreaChange = connect(screen, &QScreen::availableGeometryChanged, this, [this] {
        if (isOpen())
            moveToIcon();
    });
    // Next to the icon, within the space that panels and docks leave free; in the corner if the icon is
    // unknown. A low screen leaves no distance to its edges.
    const QRect workArea = screen->availableGeometry();
    if (m_window->fit(workArea.size()))
        blurBehind();
    QRect panel({}, m_window->size());
    const QSize spare = workArea.size() - panel.size().shrunkBy(QMargins() + m_window->margin());
    const auto margin = [this](int space) {
        return std::min(Design::panelMargin, space / 2) - m_window->margin();
    };
    const QRect available = workArea.adjusted(
        margin(spare.width()), margin(spare.height()), -margin(spare.width()), -margin(spare.height()));
    const QRect icon = m_iconRect();
    const bool isKnown = !icon.isEmpty() && screen->geometry().contains(icon.center());
    panel.moveCenter(isKnown ? icon.center() : available.bottomRight());
    m_position = {std::max(available.left(), std::min(panel.left(), available.right() + 1 - panel.width())),
        std::max(available.top(), std::min(panel.top(), available.bottom() + 1 - panel.height()))};
    m_window->move(m_position);
    if (X11::connection()) {
        m_positionChecks = 3;
        m_positionCheck.start();
    }
}

void PanelController::keepPosition()
{
    // While a window manager reparents the window into its frame, Qt may believe the window to be in the
    // corner of the screen, and would open input method windows and popovers there. After a few attempts a
    // window manager that wants another position gets it.
    QWindow *window = m_window->windowHandle();
    if (!window->isVisible() || window->position() == m_position || --m_positionChecks < 0)
        return;
    window->setPosition(m_position);
    m_positionCheck.start();
}
