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
#include "ui/panel/WarningBanner.h"

#include <QLabel>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {
QString title(PanelMode mode)
{
    switch (mode) {
    case PanelMode::Timeline:
        return L10n::text("笔记");
    case PanelMode::Tags:
        return L10n::text("标签");
    case PanelMode::Reminders:
        return L10n::text("提醒");
    case PanelMode::Trash:
        return L10n::text("回收站");
    }
    Q_UNREACHABLE();
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
    , m_timelineModel(new TimelineModel(notes, search, reminders, clock, this))
    , m_timeline(new NoteListView(notes, search, reminders, m_state, *m_timelineModel, this))
    , m_composer(new ComposerView(notes, m_state, detector, titles, clock, this))
    , m_title(new QLabel(this))
    , m_stack(new QStackedLayout)
    , m_emptyTrash(new CapsuleButton(L10n::text("清空回收站"), this))
{
    setFocusProxy(m_composer);

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

    addPage({PanelMode::Timeline, m_timeline, m_timeline});
    m_tags = new TagListView(notes, *new TagModel(notes, this), this);
    addPage({PanelMode::Tags, m_tags, m_tags});
    addReminders();
    addTrash();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addLayout(m_stack, 1);
    layout->addWidget(m_composer);
    layout->addWidget(m_trashBar);

    connect(&m_state, &PanelState::modeChanged, this, &ContentView::modeDidChange);
    connect(&m_state, &PanelState::draftChanged, m_tags, [this] { m_tags->setQuery(m_state.draft()); });
    connect(m_composer, &ComposerView::listRequested, this, [this] { list().enter(); });
    connect(m_tags, &TagListView::selected, this, &ContentView::selectTag);
    addShortcuts();
    m_nextMinute.setSingleShot(true);
    m_nextMinute.setTimerType(Qt::CoarseTimer);
    connect(&m_nextMinute, &QTimer::timeout, this, &ContentView::timeDidPass);
    modeDidChange();
}

void ContentView::addModeButton(QLayout &bar, PanelMode mode, const QString &symbol)
{
    auto *button = new BarButton(symbol, title(mode), this);
    button->setObjectName(QStringLiteral("mode.") + symbol);
    button->setCheckable(true);
    connect(button, &BarButton::clicked, this, [this, mode] { toggle(mode); });
    bar.addWidget(button);
    m_modeButtons.append({mode, button});
}

void ContentView::addPage(const Page &page)
{
    Q_ASSERT(m_pages.size() == qsizetype(page.mode));
    m_stack->addWidget(page.widget);
    m_pages.append(page);
    connect(page.list, &RowListView::left, m_composer, qOverload<>(&QWidget::setFocus));
}

void ContentView::addReminders()
{
    auto *page = new QWidget(this);
    auto *banner = new WarningBanner(QStringLiteral("bell.slash"),
        L10n::text("通知权限未开启，到点不会弹通知。请到 系统设置 → 通知 → Quillet 开启。"), page);
    banner->setObjectName(QStringLiteral("permissionBanner"));
    m_reminderModel = new ReminderModel(m_notes, m_reminders, m_clock, this);
    auto *list = new ReminderListView(m_reminders, *m_reminderModel, page);
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
    addPage({PanelMode::Reminders, page, list});
}

void ContentView::addTrash()
{
    m_trashModel = new TrashModel(m_notes, m_clock, this);
    auto *list = new TrashListView(m_notes, *m_trashModel, this);
    addPage({PanelMode::Trash, list, list});
    m_trashBar = new QWidget(this);
    auto *layout = new QHBoxLayout(m_trashBar);
    layout->setContentsMargins(Design::edge, 0, Design::edge, Design::edge);
    layout->addWidget(m_emptyTrash, 0, Qt::AlignHCenter);
    m_emptyTrash->setObjectName(QStringLiteral("emptyTrash"));
    connect(m_emptyTrash, &QPushButton::clicked, &m_notes, &NoteStore::emptyTrash);
    const auto updateButton = [this] { m_emptyTrash->setEnabled(!m_notes.trash().isEmpty()); };
    connect(&m_notes, &NoteStore::notesChanged, this, updateButton);
    updateButton();
}

void ContentView::addShortcuts()
{
    for (const Page &page : std::as_const(m_pages)) {
        auto *shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + int(page.mode))), this);
        connect(shortcut, &QShortcut::activated, this, [this, mode = page.mode] {
            if (m_state.mode() != mode)
                enter(mode);
        });
    }
}

RowListView &ContentView::list() const
{
    return *m_pages[qsizetype(m_state.mode())].list;
}

// Modes

void ContentView::enter(PanelMode mode)
{
    m_state.setMode(mode);
    if (hasComposer(mode))
        QTimer::singleShot(0, &m_state, &PanelState::focusComposer);
    else if (!list().enter())
        list().setFocus();
}

void ContentView::toggle(PanelMode mode)
{
    enter(m_state.mode() == mode ? PanelMode::Timeline : mode);
}

void ContentView::modeDidChange()
{
    const PanelMode mode = m_state.mode();
    m_title->setText(title(mode));
    for (const ModeButton &each : m_modeButtons) {
        each.button->setChecked(each.mode == mode);
        each.button->setHelp(each.mode == mode ? L10n::text("返回时间线") : title(each.mode));
    }
    m_stack->setCurrentIndex(int(mode));
    m_composer->setVisible(hasComposer(mode));
    m_trashBar->setVisible(mode == PanelMode::Trash);
    if (isVisible())
        timeDidPass();
}

void ContentView::selectTag(const QString &tag)
{
    m_state.setDraft(u'#' + tag);
    m_state.setEditingID({});
    m_state.setQuoting({});
    m_state.setMode(PanelMode::Timeline);
    QTimer::singleShot(0, &m_state, &PanelState::focusComposer);
}

bool ContentView::isComposing() const
{
    return m_composer->isComposing();
}

bool ContentView::escape()
{
    // One layer at a time, from the inside out.
    if (m_composer->completion().isActive())
        m_composer->completion().dismiss();
    else if (m_tags->renameState().renaming())
        m_tags->renameState().setRenaming({});
    else if (list().hasFocus() && m_composer->isVisible())
        m_composer->setFocus();
    else if (!m_state.draft().isEmpty() && m_composer->isVisible())
        m_state.clearComposer();
    else
        return false;
    return true;
}

// Time

void ContentView::timeDidPass()
{
    // The other lists are brought up to date when they are shown.
    switch (m_state.mode()) {
    case PanelMode::Timeline:
        m_timelineModel->timeDidPass();
        break;
    case PanelMode::Reminders:
        m_reminderModel->timeDidPass();
        break;
    case PanelMode::Trash:
        m_trashModel->refresh();
        break;
    case PanelMode::Tags:
        break;
    }
    m_composer->timeDidPass();
    waitForNextMinute();
}

void ContentView::waitForNextMinute()
{
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
    m_nextMinute.stop();
}
