#include "ui/composer/ReminderBar.h"

#include "foundation/Clock.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

ReminderBar::ReminderBar(const Clock &clock, QWidget *parent)
    : ComposerBar(QStringLiteral("bell"), L10n::text("本次不创建提醒"), parent)
    , m_clock(clock)
{
    setObjectName(QStringLiteral("reminderBar"));
}

void ReminderBar::setPreview(const std::optional<ParsedReminder> &preview)
{
    if (preview) {
        const Instant now = m_clock.now();
        setText(preview->fireAt > now
                    ? NoteFormatting::reminderTimeString(preview->fireAt, now, m_clock.calendar())
                          + QStringLiteral(" · ") + preview->content
                    : L10n::text("时间已过，回车仅保存笔记"));
    }
    setVisible(preview.has_value());
}
