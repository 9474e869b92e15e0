#include "ui/PanelWindow.h"

#include "ui/ContentView.h"
#include "ui/Design.h"
#include "ui/NoteStyle.h"

#include <QApplication>
#include <QBitmap>
#include <QKeyEvent>
#include <QMargins>
#include <QPainter>
#include <QVBoxLayout>

namespace {
/// Soft at its edge and a little lower than the panel, as if the light came from above.
void paintShadow(QPainter &painter, const QRectF &panel)
{
    constexpr int lower = 3;
    constexpr qreal darkest = 0.10;
    painter.setPen(Qt::NoPen);
    const int reach = Design::shadowMargin - lower;
    for (int spread = reach; spread > 0; --spread) {
        const qreal nearness = 1 - qreal(spread) / reach;
        painter.setBrush(QColor::fromRgbF(0, 0, 0, float(darkest * nearness * nearness / 3)));
        const qreal radius = Design::panelRadius + spread;
        painter.drawRoundedRect(
            panel.adjusted(-spread, -spread + lower, spread, spread + lower), radius, radius);
    }
}
} // namespace

PanelWindow::PanelWindow(ContentView *content, Surface surface)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_content(content)
    , m_surface(surface)
{
    setWindowTitle(QStringLiteral("Quillet"));
    setObjectName(QStringLiteral("panel"));
    setFixedSize(Design::panelSize.grownBy(QMargins() + shadowMargin()));
    setFocusProxy(m_content);
    setAttribute(m_surface == Surface::Opaque ? Qt::WA_OpaquePaintEvent : Qt::WA_TranslucentBackground);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(QMargins() + shadowMargin());
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

int PanelWindow::shadowMargin() const
{
    return m_surface == Surface::Translucent ? Design::shadowMargin : 0;
}

void PanelWindow::releaseContent()
{
    layout()->removeWidget(m_content);
    m_content->setParent(nullptr);
}

void PanelWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_surface == Surface::Translucent)
        return;
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
    const bool isOpaque = m_surface == Surface::Opaque;
    const QColor ground = NoteStyle::background(palette());
    m_frame.paint(painter, *this, isOpaque ? ground : QColor(Qt::transparent), [&](QPainter &frame) {
        const QRectF outline = QRectF(panel()).adjusted(0.5, 0.5, -0.5, -0.5);
        if (!isOpaque) {
            paintShadow(frame, outline);
            frame.setBrush(ground);
        }
        frame.setPen(NoteStyle::hairline(palette()));
        frame.drawRoundedRect(outline, Design::panelRadius, Design::panelRadius);
    });
}
