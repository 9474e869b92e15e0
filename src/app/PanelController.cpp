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
FloatingFrame::Backdrop presentBackdrop()
{
    switch (Compositor::kind()) {
    case Compositor::Kind::None:
        return FloatingFrame::Backdrop::None;
    case Compositor::Kind::Plain:
        return FloatingFrame::Backdrop::Sharp;
    case Compositor::Kind::Blurring:
        return FloatingFrame::Backdrop::Blurred;
    }
    Q_UNREACHABLE();
}
} // namespace

PanelController::PanelController(
    std::function<ContentView *()> makeContent, std::function<QRect()> iconPlace, QObject *parent)
    : QObject(parent)
    , m_makeContent(std::move(makeContent))
    , m_iconPlace(std::move(iconPlace))
{
    constexpr std::chrono::milliseconds aMoment{100};
    m_placeCheck.setSingleShot(true);
    m_placeCheck.setInterval(aMoment);
    connect(&m_placeCheck, &QTimer::timeout, this, &PanelController::insistOnPlace);
}

PanelController::~PanelController() = default;

void PanelController::prepare()
{
    if (m_window)
        return;
    m_content = m_makeContent();
    makeWindow();
}

void PanelController::makeWindow()
{
    const FloatingFrame::Backdrop backdrop = presentBackdrop();
    if (m_window && m_window->frame().backdrop() == backdrop)
        return;
    if (m_window)
        m_window->releaseContent();
    m_window = std::make_unique<PanelWindow>(m_content, backdrop);
    connect(m_window.get(), &PanelWindow::focusLost, this, [this] {
        constexpr std::chrono::milliseconds aClick{400};
        m_sameClick.setRemainingTime(aClick);
        close();
    });
    connect(m_window.get(), &PanelWindow::escaped, this, [this] {
        close();
        m_content->state().panelDidToggle();
    });
    m_window->winId(); // the platform's window too
    if (backdrop == FloatingFrame::Backdrop::Blurred)
        X11::blurBehind(*m_window->windowHandle(), m_window->frame().outline(m_window->devicePixelRatioF()));
    m_window->grab(); // and all that the first painting costs: fonts, layouts, symbols
}

PanelState &PanelController::state()
{
    prepare();
    return m_content->state();
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
    // A window manager may call it iconic while another workspace is shown, and Qt would show it so.
    m_window->setWindowState(Qt::WindowNoState);
    if (isOpen()) {
        m_window->raise();
        m_window->activateWindow();
        return;
    }
    makeWindow(); // a compositor may have come or gone
    place();
    if (X11::connection())
        X11::keepOutOfTaskbars(*m_window->windowHandle());
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
    if (isOpen() || m_sameClick.hasExpired())
        toggle();
}

void PanelController::place()
{
    // On the screen where the person is; before it is shown, or it would be seen jumping.
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (QGuiApplication::screens().size() > 1) { // to ask where the pointer is takes a while
        if (const QScreen *pointed = QGuiApplication::screenAt(QCursor::pos()))
            screen = pointed;
    }
    // Beside the icon, as close as the bar that holds it leaves room; else in the corner.
    const int margin = Design::panelMargin - m_window->frame().margin();
    const QRect available = screen->availableGeometry().marginsRemoved(QMargins() + margin);
    const QRect icon = m_iconPlace();
    QRect panel({}, Design::panelSize.grownBy(QMargins() + m_window->frame().margin()));
    const bool isKnown = !icon.isEmpty() && screen->geometry().contains(icon.center());
    panel.moveCenter(isKnown ? icon.center() : available.bottomRight());
    m_place = {std::max(available.left(), std::min(panel.left(), available.right() + 1 - panel.width())),
        std::max(available.top(), std::min(panel.top(), available.bottom() + 1 - panel.height()))};
    m_window->move(m_place);
    if (X11::connection()) {
        m_placeChecks = 3;
        m_placeCheck.start();
    }
}

void PanelController::insistOnPlace()
{
    // While a window manager puts the window into its frame, Qt may take it to be in the corner of the
    // screen, and with it the input method and the popovers. A window manager that wants it elsewhere gets
    // its way in the end.
    QWindow *window = m_window->windowHandle();
    if (!window->isVisible() || window->position() == m_place || --m_placeChecks < 0)
        return;
    window->setPosition(m_place);
    m_placeCheck.start();
}
