#pragma once

#include "reminders/ParsedReminder.h"
#include "ui/composer/ComposerBar.h"

#include <optional>

class Clock;

/// Tells above the field which reminder saving would create, and lets it be dismissed for this draft.
class ReminderBar final : public ComposerBar
{
    Q_OBJECT

public:
    explicit ReminderBar(const Clock &clock, QWidget *parent = nullptr);

    /// Hidden when there is none.
    void setPreview(const std::optional<ParsedReminder> &preview);

private:
    const Clock &m_clock;
};
