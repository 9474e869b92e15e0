#include "ui/lists/NoteListView.h"

#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/lists/RelatedNotesView.h"
#include "ui/lists/TimelineModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/panel/PanelState.h"

#include <QDesktopServices>
#include <QHash>
#include <QTimer>
#include <QUrl>

namespace {
constexpr int maxTargets = 5; ///< addresses, and tags, of a note in its menu; a click reaches all

/// Empty for an address that may do more than show a page or a file: an imported note can contain any.
QUrl openable(const QString &address)
{
    const QUrl url(address);
    const bool isKnown = url.isLocalFile() || url.scheme() == u"http" || url.scheme() == u"https";
    return isKnown ? url : QUrl();
}
} // namespace

NoteListView::NoteListView(NoteStore &notes, NoteSearch &search, ReminderStore &reminders, PanelState &state,
    TimelineModel &timeline, QWidget *parent)
    : RowListView(timeline, parent)
    , m_notes(notes)
    , m_search(search)
    , m_reminders(reminders)
    , m_state(state)
    , m_timeline(timeline)
{
    setObjectName(QStringLiteral("timeline"));
    setAccessibleName(L10n::text("笔记"));
    connect(&m_state, &PanelState::draftChanged, this, &NoteListView::queryDidChange);
    connect(&m_state, &PanelState::jumpTargetIDChanged, this, &NoteListView::jumpToExternalTarget);
    connect(&m_state, &PanelState::editingIDChanged, this, [this] {
        m_timeline.setEdited(m_state.editingID());
        viewport()->update();
    });
    queryDidChange();
    jumpToExternalTarget();
}

void NoteListView::queryDidChange()
{
    if (m_timeline.query() == m_state.draft())
        return;
    m_timeline.setQuery(m_state.draft());
    forgetHeights(); // other matches are coloured in the rows that stay
    scrollToEnd(-1);
}

RowPainter::EmptyState NoteListView::emptyState() const
{
    if (m_state.draft().trimmed().isEmpty()) {
        QStringList hints{
            L10n::text("带 # 的词成为标签，如「#购物」"), L10n::text("写上时间就会提醒，如「明天下午3点」")};
        if (!m_state.hotKey().isEmpty())
            hints.append(L10n::text("按 %@ 随时打开，按 F1 查看全部按键", QStringList{m_state.hotKey()}));
        return {QStringLiteral("menubar"), L10n::text("还没有笔记，写下第一条吧"), hints};
    }
    return {QStringLiteral("line.3.horizontal.decrease"), L10n::text("没有匹配的笔记，回车保存为新笔记"), {}};
}

// Actions of a note

QList<RowListView::Action> NoteListView::actionsOf(int row)
{
    const Note note = m_timeline.note(row);
    const auto quote = [this, note] {
        m_state.setQuoting(note);
        m_state.setEditingID({});
        m_state.focusComposer();
    };
    const auto edit = [this, note] {
        m_state.setEditingID(note.id); // first, or the bar of a new reminder would show for a moment
        m_state.setDraft(note.text);
        m_state.setQuoting({});
        m_state.focusComposer();
    };
    QList<Action> actions = {
        {L10n::text("引用"), Qt::CTRL | Qt::Key_R, quote},
        copyAction(row),
        {L10n::text("删除"), Qt::Key_Delete, [this, id = note.id] { remove(id); }, {}, true},
        {},
    };
    if (m_reminders.hasReminder(note.id)) {
        const auto cancel = [this, id = note.id] {
            if (!m_reminders.hasReminder(id))
                return;
            m_reminders.cancelForNote(id);
            Q_EMIT done(L10n::text("已取消提醒"));
        };
        actions.append({L10n::text("取消提醒"), Qt::CTRL | Qt::Key_D, cancel});
    }
    actions.append({L10n::text("相关笔记"), Qt::CTRL | Qt::Key_L, [this, note] { showRelated(note); }});
    actions.append(Action());
    actions.append({L10n::text("编辑"), Qt::Key_Return, edit});
    QKeySequence openKey = Qt::CTRL | Qt::Key_Return; // for the first
    if (note.link && !openable(*note.link).isEmpty()) {
        actions.append({L10n::text("打开链接"), std::exchange(openKey, {}),
            [this, link = *note.link] { open(link); }, RowPart::Kind::Link});
    }
    QStringList known{note.link.value_or(QString())};
    QHash<RowPart::Kind, int> count;
    for (const auto &[range, part] : layoutOf(row).targets()) {
        if (count[part.kind] == maxTargets || known.contains(part.target))
            continue;
        ++count[part.kind];
        known.append(part.target);
        actions.append(actionOnText(part));
        if (part.kind == RowPart::Kind::Address)
            actions.last().key = std::exchange(openKey, {});
    }
    if (note.quoteID && m_notes.note(*note.quoteID)) {
        actions.append({L10n::text("跳转到引用的笔记"), Qt::ALT | Qt::Key_Left,
            [this, id = *note.quoteID] { scrollAndFlash(id, false); }, RowPart::Kind::Quote});
    }
    if (m_timeline.row(row).isRepliedTo) {
        const auto jumpToReply = [this, id = note.id] {
            if (const auto reply = m_notes.latestReply(id))
                scrollAndFlash(reply->id, false);
        };
        actions.append(
            {L10n::text("跳转到最新回复"), Qt::ALT | Qt::Key_Right, jumpToReply, RowPart::Kind::Button});
    }
    return actions;
}

RowListView::Action NoteListView::actionOnText(const RowPart &part)
{
    if (part.kind == RowPart::Kind::Address) {
        const auto open = [this, address = part.target] { this->open(address); };
        return {L10n::text("打开 %@", QStringList{part.target}), {}, open};
    }
    const QString tag = part.target.sliced(1);
    const auto filter = [this, tag] { m_state.filterByTag(tag); };
    return {L10n::text("筛选 #%@", QStringList{tag}), {}, filter};
}

void NoteListView::remove(QUuid id)
{
    if (!m_notes.note(id))
        return; // gone while the menu was open
    QList<Reminder> reminders = m_reminders.reminders();
    reminders.removeIf([id](const Reminder &reminder) { return reminder.noteID != id; });
    m_notes.remove(id);
    Q_EMIT done(L10n::text("已移到回收站"), [this, id, reminders] { undoRemoval(id, reminders); });
}

void NoteListView::undoRemoval(QUuid id, const QList<Reminder> &reminders)
{
    m_notes.restore(id);
    if (!m_notes.note(id))
        return; // the trash has been emptied
    for (const Reminder &reminder : reminders)
        m_reminders.schedule(id, reminder.fireAt, reminder.text, reminder.fullText);
    if (const QModelIndex index = m_timeline.indexOf(id); index.isValid() && isVisible()) {
        goTo(index.row());
        scrollTo(index.row());
    }
}

QUrl NoteListView::linkOf(int row) const
{
    return openable(m_timeline.note(row).link.value_or(QString()));
}

void NoteListView::open(const QString &address)
{
    const QUrl url = openable(address);
    if (url.isEmpty() || !QDesktopServices::openUrl(url))
        Q_EMIT done(L10n::text("无法打开链接"));
}

RowPainter::Marks NoteListView::marksOf(int row) const
{
    RowPainter::Marks marks = RowListView::marksOf(row);
    marks.isEdited = !m_timeline.isHeader(row) && m_timeline.row(row).id == m_state.editingID();
    if (marks.isEdited)
        marks.ground = NoteStyle::color(palette(), Design::editingGround);
    return marks;
}

void NoteListView::showRelated(const Note &note)
{
    const QRect row = rectOf(m_timeline.indexOf(note.id).row());
    auto *related = new RelatedNotesView(m_search, note, this);
    connect(related, &RelatedNotesView::selected, this, [this](QUuid id) { scrollAndFlash(id, false); });
    related->popUp({viewport()->mapToGlobal(row.topLeft()), row.size()});
}

// Jumps

void NoteListView::jumpToExternalTarget()
{
    if (const auto target = m_state.jumpTargetID())
        scrollAndFlash(*target, true);
}

void NoteListView::scrollAndFlash(QUuid noteID, bool clearsExternalTarget)
{
    const auto jump = [this, noteID, clearsExternalTarget] {
        jumpTo([this, noteID] { return m_timeline.indexOf(noteID); });
        if (const QModelIndex index = m_timeline.indexOf(noteID); index.isValid())
            goTo(index.row());
        else
            m_state.focusComposer();
        if (clearsExternalTarget)
            m_state.setJumpTargetID({});
    };
    if (m_timeline.indexOf(noteID).isValid()) {
        jump();
        return;
    }
    m_state.setDraft({});
    QTimer::singleShot(0, this, jump);
}
