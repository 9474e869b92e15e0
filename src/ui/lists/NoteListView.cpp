#include "ui/lists/NoteListView.h"

#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/lists/RelatedNotesView.h"
#include "ui/lists/TimelineModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/panel/PanelState.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMenu>
#include <QTimer>
#include <QUrl>

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
    connect(&m_state, &PanelState::editingIDChanged, viewport(), qOverload<>(&QWidget::update));
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

void NoteListView::activate(int row)
{
    const Note note = m_timeline.note(row);
    m_state.setDraft(note.text);
    m_state.setEditingID(note.id);
    m_state.setQuoting({});
    m_state.focusComposer();
}

void NoteListView::copy(int row)
{
    copyText(m_timeline.row(row).text);
}

void NoteListView::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT done(L10n::text("已复制"));
}

void NoteListView::remove(int row)
{
    removeNote(m_timeline.row(row).id);
}

void NoteListView::removeNote(QUuid noteID)
{
    m_notes.remove(noteID);
    Q_EMIT done(L10n::text("已移到回收站"), [this, noteID] { m_notes.restore(noteID); });
}

void NoteListView::clickPart(int row, RowPart part)
{
    const Note note = m_timeline.note(row);
    if (part.kind == RowPart::Kind::Link) {
        QDesktopServices::openUrl(QUrl(*note.link));
    } else if (part.kind == RowPart::Kind::Quote) {
        if (note.quoteID && m_notes.note(*note.quoteID))
            scrollAndFlash(*note.quoteID, false);
    } else if (part.kind == RowPart::Kind::Button) {
        if (const auto reply = m_notes.latestReply(note.id))
            scrollAndFlash(reply->id, false);
    }
}

void NoteListView::fillMenu(QMenu &menu, int row)
{
    const Note note = m_timeline.note(row);
    menu.addAction(L10n::text("引用"), this, [this, note] {
        m_state.setQuoting(note);
        m_state.setEditingID({});
        m_state.focusComposer();
    });
    menu.addAction(L10n::text("复制"), this, [this, note] { copyText(note.text); });
    menu.addAction(L10n::text("删除"), this, [this, note] { removeNote(note.id); });
    menu.addSeparator();
    if (m_reminders.hasReminder(note.id))
        menu.addAction(L10n::text("取消提醒"), this, [this, note] {
            m_reminders.cancelForNote(note.id);
            Q_EMIT done(L10n::text("已取消提醒"));
        });
    menu.addAction(L10n::text("相关笔记"), this, [this, note] { showRelated(note); });
}

QColor NoteListView::groundOf(int row) const
{
    if (m_timeline.isHeader(row))
        return {};
    const bool isEdited = m_timeline.row(row).id == m_state.editingID();
    return isEdited ? NoteStyle::color(palette(), Design::editingGround) : QColor();
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
        m_flashID = noteID;
        if (clearsExternalTarget)
            m_state.setJumpTargetID({});
        QTimer::singleShot(Design::flashDuration, this, [this, noteID] {
            if (m_flashID == noteID)
                m_flashID.reset();
        });
    };
    if (m_timeline.indexOf(noteID).isValid()) {
        jump();
        return;
    }
    m_state.setDraft({});
    QTimer::singleShot(0, this, jump);
}
