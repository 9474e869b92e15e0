#pragma once

#include "reminders/ParsedReminder.h"

#include <QWidget>

#include <optional>

class Clock;

/// Tells above the field which reminder saving would create, and lets it be dismissed for this draft.
class ReminderBar final : public QWidget
{
    Q_OBJECT

public:
    explicit ReminderBar(const Clock &clock, QWidget *parent = nullptr);

    /// Hidden when there is none.
    void setPreview(const std::optional<ParsedReminder> &preview);
    [[nodiscard]] QString text() const { return m_text; }

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Clock &m_clock;
    QString m_text;
};
