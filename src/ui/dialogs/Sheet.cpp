#include "ui/dialogs/Sheet.h"

#include "ui/looks/Design.h"
#include "ui/looks/FloatingWindow.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
constexpr int padding = Design::edge + 2 * Design::grid;
} // namespace

Sheet::Sheet(QWidget *owner, const QString &title, const QString &text)
    : m_card(new QWidget(this))
    , m_content(new QVBoxLayout(m_card))
    , m_buttons(new QHBoxLayout)
{
    setObjectName(QStringLiteral("sheet"));
    setAccessibleName(title);
    setAccessibleDescription(text);
    WidgetRole::set(*this, QAccessible::Dialog);
    if (owner && owner->isVisible()) {
        m_behind = owner;
        while (m_behind->parentWidget() != owner->window())
            m_behind = m_behind->parentWidget();
        setParent(owner->window());
        setAttribute(Qt::WA_NoMousePropagation);
    } else {
        m_window = std::make_unique<FloatingWindow>(Qt::Dialog | Qt::WindowStaysOnTopHint,
            owner ? FloatingWindow::backdropOver(*owner) : FloatingWindow::Backdrop::None,
            FloatingWindow::Shape{Design::panelRadius, Design::shadowMargin});
        m_window->setWindowTitle(title);
        m_window->setWindowModality(Qt::ApplicationModal);
        auto *window = new QVBoxLayout(m_window.get());
        window->setContentsMargins(QMargins() + m_window->margin());
        window->addWidget(this);
    }
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(QMargins() + (m_window ? 0 : Design::edge));
    page->addStretch();
    page->addWidget(m_card);
    page->addStretch();
    m_content->setContentsMargins(padding, padding, padding, padding);
    m_content->setSpacing(Design::edge);
    m_content->addWidget(NoteStyle::newLabel(title, NoteStyle::headerFont(), m_card));
    if (!text.isEmpty())
        m_content->addWidget(NoteStyle::newLabel(text, NoteStyle::font(), m_card));
    m_content->addLayout(m_buttons);
    m_buttons->setContentsMargins(0, Design::grid, 0, 0);
    m_buttons->setSpacing(Design::edge);
}

Sheet::~Sheet()
{
    setParent(nullptr); // the window, which goes first, would delete it
}

void Sheet::setBody(QWidget *body)
{
    m_content->insertWidget(m_content->count() - 1, body);
}

void Sheet::addButton(const QString &text, CapsuleButton::Kind kind)
{
    auto *button = new CapsuleButton(text, kind, m_card);
    connect(button, &CapsuleButton::clicked, this, [this, number = m_buttons->count()] { answer(number); });
    m_buttons->addWidget(button);
}

int Sheet::ask()
{
    QEventLoop loop;
    m_loop = &loop;
    if (m_behind)
        cover();
    else
        showAlone();
    loop.exec();
    answer(noAnswer); // when the program ends
    return m_answer;
}

void Sheet::cover()
{
    m_focusBefore = window()->focusWidget();
    m_behind->installEventFilter(this);
    setGeometry(m_behind->geometry());
    show();
    raise();
    // As for a popup, so that a list keeps its current row.
    m_buttons->itemAt(m_buttons->count() - 1)->widget()->setFocus(Qt::PopupFocusReason);
    m_behind->setEnabled(false); // neither mouse nor keys nor shortcuts reach it
}

void Sheet::uncover()
{
    const auto sheets = window()->findChildren<Sheet *>(QString(), Qt::FindDirectChildrenOnly);
    m_behind->setEnabled(
        std::none_of(sheets.begin(), sheets.end(), [](const Sheet *sheet) { return sheet->m_loop; }));
    const QWidget *focused = window()->focusWidget();
    if (focused && !isAncestorOf(focused))
        return; // another sheet has it, or what is behind has taken it
    const bool isThere = m_focusBefore && m_focusBefore->isVisibleTo(window());
    (isThere ? m_focusBefore.data() : m_behind)->setFocus(Qt::PopupFocusReason);
}

void Sheet::showAlone()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    const QRect available = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const int width = std::min(Design::panelSize.width() + 2 * m_window->margin(), available.width());
    m_window->setFixedSize(width, m_window->heightForWidth(width));
    m_window->move(available.center() - m_window->rect().center());
    m_window->show();
    m_window->activateWindow();
    m_buttons->itemAt(m_buttons->count() - 1)->widget()->setFocus();
}

void Sheet::answer(int button)
{
    QEventLoop *loop = std::exchange(m_loop, nullptr);
    if (!loop)
        return;
    m_answer = button;
    loop->quit();
    if (m_behind)
        uncover();
    QWidget *shown = this;
    if (m_window)
        shown = m_window.get();
    shown->hide();
}

bool Sheet::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        setGeometry(m_behind->geometry());
    return QWidget::eventFilter(watched, event);
}

bool Sheet::focusNextPrevChild(bool next)
{
    if (!m_loop)
        return QWidget::focusNextPrevChild(next); // out of it: it is being hidden
    QWidget *widget = this;
    if (const QWidget *focused = window()->focusWidget(); focused && isAncestorOf(focused))
        widget = window()->focusWidget();
    const QWidget *start = widget;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    } while (widget != start
             && (!isAncestorOf(widget) || !(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible()));
    widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Sheet::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    answer(noAnswer);
}

void Sheet::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        answer(noAnswer);
}

void Sheet::paintEvent(QPaintEvent *)
{
    if (m_window)
        return;
    QPainter painter(this);
    constexpr float lightDim = 0.28F;
    constexpr float darkDim = 0.5F;
    NoteStyle::fillRounded(painter, rect(), Design::panelRadius,
        QColor::fromRgbF(0, 0, 0, NoteStyle::isDark(palette()) ? darkDim : lightDim));
    painter.setPen(NoteStyle::color(palette(), Design::hairline));
    painter.setBrush(NoteStyle::color(palette(), Design::ground));
    painter.drawRoundedRect(
        QRectF(m_card->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), Design::panelRadius, Design::panelRadius);
}
