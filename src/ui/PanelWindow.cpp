#include "ui/PanelWindow.h"

#include "ui/ContentView.h"
#include "ui/Design.h"
#include "ui/NoteStyle.h"

#include <QApplication>
#include <QBitmap>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

PanelWindow::PanelWindow(ContentView *content)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_content(content)
{
    setWindowTitle(QStringLiteral("Quillet"));
    setObjectName(QStringLiteral("panel"));
    setFixedSize(Design::panelSize);
    setFocusProxy(m_content);
    setAttribute(Qt::WA_OpaquePaintEvent);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
    qApp->installEventFilter(this);

    // A grabbed key takes the focus for a moment and gives it back.
    constexpr std::chrono::milliseconds moment{50};
    m_focusCheck.setSingleShot(true);
    m_focusCheck.setInterval(moment);
    connect(&m_focusCheck, &QTimer::timeout, this, &PanelWindow::checkFocus);
}

bool PanelWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() != this || m_content->isComposing())
        return false;
    if (!m_content->escape())
        Q_EMIT escaped();
    return true;
}

void PanelWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    if (isActiveWindow())
        m_focusCheck.stop();
    else
        m_focusCheck.start();
}

void PanelWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_focusCheck.stop(); // or it would close a panel that is opened again at once
}

void PanelWindow::checkFocus()
{
    // A menu or dialog of our own has it for us.
    if (!QApplication::activePopupWidget() && !QApplication::activeModalWidget())
        Q_EMIT focusLost();
}

void PanelWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QBitmap outline(size());
    outline.fill(Qt::color0);
    QPainter painter(&outline);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(rect(), Design::panelRadius, Design::panelRadius);
    painter.end();
    setMask(outline);
}

void PanelWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_frame.paint(painter, *this, NoteStyle::background(palette()), [this](QPainter &frame) {
        frame.setPen(NoteStyle::hairline(palette()));
        frame.drawRoundedRect(
            QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Design::panelRadius, Design::panelRadius);
    });
}
