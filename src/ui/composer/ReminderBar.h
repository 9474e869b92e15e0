#pragma once

#include "reminders/ParsedReminder.h"
#include "ui/composer/ComposerBar.h"

#include <optional>

class Clock;

/// Shows which reminder saving would create, and lets the user dismiss it for this draft.
class ReminderBar final : public ComposerBar
{
    Q_OBJECT

public:
    explicit ReminderBar(const Clock &clock, QWidget *parent = nullptr);

    /// Hides the bar if there is none.
    void setPreview(const std::optional<ParsedReminder> &preview);

private:
    const Clock &m_clock;
};
