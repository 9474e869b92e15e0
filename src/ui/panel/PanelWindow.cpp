#include "ui/panel/PanelWindow.h"

#include "ui/looks/Design.h"
#include "ui/looks/WidgetRole.h"
#include "ui/panel/ContentView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMargins>
#include <QVBoxLayout>

#include <algorithm>

PanelWindow::PanelWindow(ContentView *content, Backdrop backdrop)
    : FloatingWindow(
        Qt::Tool | Qt::WindowStaysOnTopHint, backdrop, {Design::panelRadius, Design::shadowMargin})
    , m_content(content)
{
    setWindowTitle(QStringLiteral("Quillet"));
    setObjectName(QStringLiteral("panel"));
    WidgetRole::set(*this, QAccessible::Window);
    fit(Design::panelSize);
    setFocusProxy(m_content);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(QMargins() + margin());
    layout->addWidget(m_content);
    qApp->installEventFilter(this);

    m_focusCheck.setSingleShot(true);
    connect(&m_focusCheck, &QTimer::timeout, this, &PanelWindow::checkFocus);
}

bool PanelWindow::fit(QSize room)
{
    const QSize before = size();
    setFixedSize(Design::panelSize.boundedTo(room).grownBy(QMargins() + margin()));
    return size() != before;
}

bool PanelWindow::event(QEvent *event)
{
    // A dialog was closed. Many desktops do not give the focus back to a window that is in no taskbar.
    if (event->type() == QEvent::WindowUnblocked && isVisible())
        activateWindow();
    return FloatingWindow::event(event);
}

bool PanelWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() != this || !m_content->isEnabled() || m_content->isComposing())
        return false; // not the panel's, but that of a sheet over it, or of the input method
    if (!m_content->escape())
        Q_EMIT escaped();
    return true;
}

void PanelWindow::changeEvent(QEvent *event)
{
    FloatingWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    // A key grab takes the focus briefly and gives it back.
    constexpr std::chrono::milliseconds grabDuration{50};
    if (isActiveWindow()) {
        if (m_focusCheck.isActive())
            m_reopening = QDeadlineTimer(); // the next loss is a real one
        m_focusCheck.stop();
    } else if (isVisible()) { // on Wayland also reported after the window was closed
        m_focusCheck.start(std::max(grabDuration, std::chrono::milliseconds(m_reopening.remainingTime())));
    }
}

void PanelWindow::expectFocusAgain()
{
    constexpr std::chrono::seconds focusTimeout{1};
    m_reopening.setRemainingTime(focusTimeout);
    // Deprecated since Qt 6.5 without a replacement: activateWindow() does nothing while the platform's
    // window has the focus, and only QApplication does not know it.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(this);
    QT_WARNING_POP
}

void PanelWindow::hideEvent(QHideEvent *event)
{
    FloatingWindow::hideEvent(event);
    m_focusCheck.stop(); // or it would close the panel if it is opened again at once
}

void PanelWindow::checkFocus()
{
    // The program's own menus and dialogs do not count, and a question stands until it is answered.
    if (!QApplication::activePopupWidget() && !QApplication::activeModalWidget() && m_content->isEnabled())
        Q_EMIT focusLost();
}

void PanelWindow::releaseContent()
{
    layout()->removeWidget(m_content);
    m_content->setParent(nullptr);
}
