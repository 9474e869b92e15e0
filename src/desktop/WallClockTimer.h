#pragma once

#include "foundation/Instant.h"

#include <QObject>

class QSocketNotifier;

/// Fires at an instant of the system clock: also when the clock is set, and right after a suspend that lasted
/// past it.
///
/// A QTimer does not count suspended time and would be late by it.
class WallClockTimer final : public QObject
{
    Q_OBJECT

public:
    explicit WallClockTimer(QObject *parent = nullptr);
    ~WallClockTimer() override;
    Q_DISABLE_COPY_MOVE(WallClockTimer)

    /// An instant in the past fires at once. Replaces the previous one.
    void start(Instant instant);
    void stop();

Q_SIGNALS:
    /// The instant has come, or the clock was set: check the clock and start again.
    void woke();

private:
    void readExpiration();

    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
};
