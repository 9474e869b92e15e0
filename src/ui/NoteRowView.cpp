#include "ui/NoteRowView.h"

#include "foundation/Clock.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"
#include "ui/Design.h"
#include "ui/NoteStyle.h"
#include "ui/Symbol.h"
#include "ui/TimelineModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

NoteRowView::NoteRowView(const TimelineModel &model, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_layouts(200)
{
}

NoteRowView::~NoteRowView() = default;

const RowLayout &NoteRowView::layout(const TimelineRow &row, int width, const QPalette &palette) const
{
    const LayoutKey key{row.note->id,
        {row.note->text, m_model.query(), row.isSemanticOnly ? L10n::text("仅供参考") : QString()}, width,
        NoteStyle::isDark(palette)};
    if (const RowLayout *kept = m_layouts.object(key))
        return *kept;
    auto *made = new RowLayout(key.content, width, palette);
    m_layouts.insert(key, made); // which takes it, and drops one not used for long
    return *made;
}

QSize NoteRowView::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const TimelineRow &row = m_model.row(index.row());
    const int width = option.rect.width();
    if (!row.note)
        return {width, Design::headerHeight};
    return {width, layout(row, width, option.palette).height()};
}

void NoteRowView::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const TimelineRow &row = m_model.row(index.row());
    const QPalette &palette = option.palette;
    const Calendar &calendar = m_model.clock().calendar();
    if (!row.note) {
        painter->setFont(NoteStyle::headerFont());
        painter->setPen(NoteStyle::metaColor(palette));
        painter->drawText(option.rect.adjusted(Design::edge, 0, -Design::edge, 0),
            Qt::AlignVCenter | Qt::TextSingleLine, index.data().toString());
        return;
    }

    const Note &note = *row.note;
    if (note.id == m_flashID || note.id == m_editingID) {
        painter->fillRect(
            option.rect, note.id == m_flashID ? NoteStyle::flash(palette) : NoteStyle::editing(palette));
    }
    const RowLayout &parts = layout(row, option.rect.width(), palette);
    const QPoint origin = option.rect.topLeft();
    painter->setFont(NoteStyle::quoteFont());
    painter->setPen(NoteStyle::metaColor(palette));
    painter->drawText(parts.timeRect().translated(origin), Qt::AlignVCenter | Qt::TextSingleLine,
        NoteFormatting::timeString(note.createdAt, calendar));
    painter->drawText(
        parts.markerRect().translated(origin), Qt::AlignVCenter | Qt::TextSingleLine, parts.content().marker);
    if (row.hasReminder) {
        Symbol::paint(*painter, parts.symbolRect().translated(origin), QStringLiteral("bell"),
            NoteStyle::metaColor(palette));
    }
    painter->setPen(NoteStyle::color(palette));
    parts.drawText(*painter, origin);
}

bool NoteRowView::helpEvent(
    QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!index.isValid() || event->type() != QEvent::ToolTip)
        return false;
    const TimelineRow &row = m_model.row(index.row());
    const auto reminder = row.note ? m_model.reminders().reminder(row.note->id) : std::nullopt;
    if (!reminder) {
        QToolTip::hideText();
        return false;
    }
    const Clock &clock = m_model.clock();
    const QString when = NoteFormatting::reminderTimeString(reminder->fireAt, clock.now(), clock.calendar());
    QToolTip::showText(event->globalPos(), L10n::text("%@ 提醒", when, L10n::currentLanguage()),
        view->viewport(), option.rect);
    return true;
}
