#pragma once

#include "foundation/Instant.h"

#include <QObject>

class QSocketNotifier;

/// Wakes at a moment of the machine's clock: also when the clock is set, and right after a suspend that slept
/// past it.
///
/// A QTimer counts the time that the machine is awake and would be late by every suspend.
class WallClockTimer final : public QObject
{
    Q_OBJECT

public:
    explicit WallClockTimer(QObject *parent = nullptr);
    ~WallClockTimer() override;
    Q_DISABLE_COPY_MOVE(WallClockTimer)

    /// A moment in the past wakes at once. Replaces what was set before.
    void start(Instant moment);
    void stop();

Q_SIGNALS:
    /// The moment has come, or the clock was set: look at the clock, and start anew.
    void woke();

private:
    void readExpiration();

    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
};
