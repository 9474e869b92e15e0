#include "ui/panel/ContentView.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/composer/ComposerView.h"
#include "ui/lists/NoteListView.h"
#include "ui/lists/ReminderListView.h"
#include "ui/lists/ReminderModel.h"
#include "ui/lists/TagListView.h"
#include "ui/lists/TagModel.h"
#include "ui/lists/TimelineModel.h"
#include "ui/lists/TrashListView.h"
#include "ui/lists/TrashModel.h"
#include "ui/looks/BarButton.h"
#include "ui/looks/CapsuleButton.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"
#include "ui/panel/KeyPage.h"
#include "ui/panel/StatusLine.h"
#include "ui/panel/WarningBanner.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {
QKeySequence keyOf(PanelMode mode)
{
    return {Qt::CTRL | Qt::Key(Qt::Key_1 + int(mode))};
}

QString withKey(const QString &text, PanelMode mode)
{
    return text + u' ' + keyOf(mode).toString(QKeySequence::NativeText);
}

bool hasComposer(PanelMode mode)
{
    return mode == PanelMode::Timeline || mode == PanelMode::Tags;
}
} // namespace

ContentView::ContentView(NoteStore &notes, NoteSearch &search, ReminderStore &reminders,
    const DateDetecting &detector, PageTitleFetching &titles, const Clock &clock, QWidget *parent)
    : QWidget(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_clock(clock)
    , m_title(new QLabel(this))
    , m_stack(new QStackedLayout)
    , m_pages{{L10n::text("笔记")}, {L10n::text("标签")}, {L10n::text("提醒")}, {L10n::text("回收站")}}
    , m_emptyTrash(new CapsuleButton(L10n::text("清空回收站"), CapsuleButton::Kind::Destructive, this))
{
    m_composer = new ComposerView(notes, m_state, detector, titles, clock, this);
    setFocusProxy(m_composer);
    WidgetRole::set(*this, QAccessible::Client);

    m_title->setObjectName(QStringLiteral("title"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFont(NoteStyle::headerFont());

    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(Design::edge, Design::grid, 2 * Design::grid, Design::grid);
    bar->setSpacing(Design::grid);
    bar->addWidget(m_title, 1);
    addModeButton(*bar, PanelMode::Tags, QStringLiteral("number"));
    addModeButton(*bar, PanelMode::Reminders, QStringLiteral("bell"));
    addModeButton(*bar, PanelMode::Trash, QStringLiteral("trash"));

    m_statusLine = new StatusLine(this);
    connect(m_statusLine, &StatusLine::left, this, &ContentView::focusFieldOrList);
    auto *help = new QShortcut(this);
    help->setKeys({QKeySequence(Qt::Key_F1), QKeySequence(Qt::CTRL | Qt::Key_Slash)});
    connect(help, &QShortcut::activated, this, &ContentView::showKeys);
    // The field has an undo of its own, which comes first.
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, m_statusLine, &StatusLine::undo);
    auto *timeline = new NoteListView(
        notes, search, reminders, m_state, *new TimelineModel(notes, search, reminders, clock), this);
    addList(PanelMode::Timeline, *timeline, *timeline);
    m_tags = new TagListView(notes, *new TagModel(notes), this);
    addList(PanelMode::Tags, *m_tags, *m_tags);
    addReminders();
    addTrash();

    auto *middle = new QGridLayout;
    middle->addLayout(m_stack, 0, 0);
    middle->addWidget(m_statusLine, 0, 0, Qt::AlignBottom);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addLayout(middle, 1);
    layout->addWidget(m_composer);
    layout->addWidget(m_trashBar);

    setTabOrder();

    connect(&m_state, &PanelState::modeChanged, this, &ContentView::modeDidChange);
    connect(&m_state, &PanelState::panelToggled, this, &ContentView::focusFieldOrList);
    connect(&m_state, &PanelState::draftChanged, m_tags, [this] { m_tags->setQuery(m_state.draft()); });
    connect(m_composer, &ComposerView::listRequested, this, [this] { list().enter(); });
    connect(m_tags, &TagListView::selected, &m_state, &PanelState::filterByTag);
    m_nextMinute.setSingleShot(true);
    m_nextMinute.setTimerType(Qt::CoarseTimer);
    connect(&m_nextMinute, &QTimer::timeout, this, &ContentView::timeDidPass);
    modeDidChange();
}

void ContentView::addModeButton(QLayout &bar, PanelMode mode, const QString &symbol)
{
    auto *button = new BarButton(symbol, m_pages[qsizetype(mode)].title, this);
    button->setObjectName(QStringLiteral("mode.") + symbol);
    button->setCheckable(true);
    connect(button, &BarButton::clicked, this,
        [this, mode] { enter(m_state.mode() == mode ? PanelMode::Timeline : mode); });
    bar.addWidget(button);
    m_pages[qsizetype(mode)].button = button;
}

void ContentView::addList(PanelMode mode, RowListView &list, QWidget &page)
{
    m_pages[qsizetype(mode)].list = &list;
    m_stack->insertWidget(int(mode), &page);
    connect(&list, &RowListView::done, m_statusLine, &StatusLine::tell);
    connect(m_statusLine, &StatusLine::covers, &list, [&list](int height) {
        list.setCoveredBelow(height);
        if (height > 0 && list.currentRow() >= 0)
            list.scrollTo(list.currentRow());
    });
    if (hasComposer(mode)) {
        connect(&list, &RowListView::left, m_composer, qOverload<>(&QWidget::setFocus));
        list.setAttribute(Qt::WA_InputMethodEnabled);
        list.installEventFilter(this);
    }
    auto *shortcut = new QShortcut(keyOf(mode), this);
    connect(shortcut, &QShortcut::activated, this, [this, mode] { enter(mode); });
}

void ContentView::addReminders()
{
    auto *page = new QWidget(this);
    auto *banner = new WarningBanner(QStringLiteral("bell.slash"),
        L10n::text("通知权限未开启，到点不会弹通知。请到 系统设置 → 通知 → Quillet 开启。"), page);
    banner->setObjectName(QStringLiteral("permissionBanner"));
    auto *list = new ReminderListView(m_reminders, *new ReminderModel(m_notes, m_reminders, m_clock), page);
    connect(list, &ReminderListView::noteChosen, &m_state, &PanelState::openNote);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(banner);
    layout->addWidget(list, 1);
    const auto updateBanner = [this, banner] {
        banner->setVisible(m_reminders.authorizationStatus() == AuthorizationStatus::Denied);
    };
    connect(&m_reminders, &ReminderStore::authorizationStatusChanged, banner, updateBanner);
    updateBanner();
    addList(PanelMode::Reminders, *list, *page);
}

void ContentView::addTrash()
{
    auto *list = new TrashListView(m_notes, *new TrashModel(m_notes, m_clock), this);
    addList(PanelMode::Trash, *list, *list);
    m_trashBar = new QWidget(this);
    auto *layout = new QHBoxLayout(m_trashBar);
    layout->setContentsMargins(Design::edge, 0, Design::edge, Design::edge);
    layout->addWidget(m_emptyTrash, 0, Qt::AlignHCenter);
    m_emptyTrash->setObjectName(QStringLiteral("emptyTrash"));
    connect(m_emptyTrash, &QPushButton::clicked, this, [this] {
        m_notes.emptyTrash();
        m_statusLine->tell(L10n::text("已清空回收站"));
    });
    const auto updateButton = [this] { m_emptyTrash->setEnabled(!m_notes.trash().isEmpty()); };
    connect(&m_notes, &NoteStore::notesChanged, this, updateButton);
    updateButton();
}

void ContentView::setTabOrder()
{
    QWidget *previous = m_composer;
    const auto add = [&previous](
                         QWidget *next) { QWidget::setTabOrder(std::exchange(previous, next), next); };
    for (const Page &page : std::as_const(m_pages)) {
        if (page.button)
            add(page.button);
    }
    for (const Page &page : std::as_const(m_pages))
        add(page.list);
    add(m_emptyTrash);
}

RowListView &ContentView::list() const
{
    return *m_pages[qsizetype(m_state.mode())].list;
}

void ContentView::showKeys()
{
    QList<KeyPage::Entry> modes;
    for (qsizetype mode = 0; mode < m_pages.size(); ++mode)
        modes.append({keyOf(PanelMode(mode)), m_pages[mode].title});
    KeyPage::show(*this, m_state.hotKey(), modes);
}

// Modes

void ContentView::enter(PanelMode mode)
{
    m_state.setMode(mode);
    if (m_composer->isEnabled())
        m_state.focusComposer();
    else
        list().enter();
}

void ContentView::focusFieldOrList()
{
    if (m_composer->isEnabled())
        m_composer->setFocus();
    else
        list().enter();
}

void ContentView::modeDidChange()
{
    const PanelMode mode = m_state.mode();
    const Page &current = m_pages[qsizetype(mode)];
    m_title->setText(current.title);
    for (const Page &page : std::as_const(m_pages)) {
        if (page.button) {
            page.button->setChecked(&page == &current);
            page.button->setToolTip(&page == &current
                                        ? withKey(L10n::text("返回时间线"), PanelMode::Timeline)
                                        : withKey(page.title, PanelMode(&page - m_pages.data())));
        }
    }
    const bool keepsFocus = m_composer->hasFocus();
    m_composer->setVisible(hasComposer(mode));
    m_composer->setEnabled(hasComposer(mode)); // or keys would still reach it
    if (isVisible() && hasComposer(mode))
        m_composer->setFocus(); // before the list is hidden, or Qt gives its focus to one after the other
    m_stack->setCurrentIndex(int(mode));
    m_statusLine->raise(); // the layout has raised the list
    m_trashBar->setVisible(mode == PanelMode::Trash);
    if (!isVisible())
        return;
    timeDidPass();
    if (keepsFocus && m_composer->hasFocus()) {
        // The focus stays, but what is typed means something else now.
        WidgetRole::announce(*m_title, QAccessible::Focus);
        WidgetRole::announce(*QApplication::focusWidget(), QAccessible::Focus);
    }
}

bool ContentView::isComposing() const
{
    return m_composer->isComposing();
}

void ContentView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // A jump may have gone to a row while a question stood and the list could not take the focus.
    if (event->type() == QEvent::EnabledChange && isEnabled() && list().currentRow() >= 0)
        list().setFocus(Qt::PopupFocusReason);
}

void ContentView::keyPressEvent(QKeyEvent *event)
{
    // What neither the field nor a list nor a button has taken.
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        list().scrollPage(event->key() == Qt::Key_PageUp ? -1 : 1);
    else if (m_composer->hasFocus() || !m_composer->takeKey(*event))
        QWidget::keyPressEvent(event);
}

bool ContentView::eventFilter(QObject *watched, QEvent *event)
{
    // A composition that begins over a list is the field's.
    switch (event->type()) {
    case QEvent::InputMethod:
        m_composer->takeInput(*static_cast<QInputMethodEvent *>(event));
        return true;
    case QEvent::InputMethodQuery:
        m_composer->answerFor(
            *qobject_cast<QWidget *>(watched), *static_cast<QInputMethodQueryEvent *>(event));
        return true;
    case QEvent::KeyPress:
        return isComposing();
    case QEvent::FocusOut:
        if (isComposing() && !m_composer->hasFocus()) {
            QInputMethodEvent end;
            m_composer->takeInput(end);
        }
        return false;
    default:
        return false;
    }
}

bool ContentView::escape()
{
    // One layer at a time, from the inside out.
    if (m_composer->completion().isActive())
        m_composer->completion().dismiss();
    else if (m_tags->renameState().renaming())
        m_tags->renameState().setRenaming({});
    else if (m_statusLine->hasFocusWithin())
        m_statusLine->dismiss();
    else if (!list().selectedText().isEmpty())
        list().clearSelection();
    else if (list().hasFocus() && m_composer->isEnabled())
        m_composer->setFocus();
    else if (!m_state.draft().isEmpty() && m_composer->isEnabled())
        m_state.setDraft({});
    else
        return false;
    return true;
}

// Time

void ContentView::timeDidPass()
{
    list().model().timeDidPass(); // the other lists are brought up to date when they are shown
    m_composer->timeDidPass();
    using namespace std::chrono;
    const auto sinceMinute = m_clock.now().time_since_epoch() % minutes(1);
    m_nextMinute.start(duration_cast<milliseconds>(minutes(1) - sinceMinute));
}

void ContentView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_reminders.pruneExpired();
    timeDidPass();
}

void ContentView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_statusLine->dismiss();
    m_nextMinute.stop();
}
