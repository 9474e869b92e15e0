#pragma once

#include "stage/PrivateDesktop.h"

#include "foundation/Instant.h"
#include "model/Note.h"
#include "model/Reminder.h"

#include <QList>

/// Drives the program on a private desktop from start to notification, for tests, tour and benchmarks.
class Road final
{
public:
    Road(PrivateDesktop &desktop, QString program)
        : m_desktop(desktop)
        , m_program(std::move(program))
    {
    }
    ~Road() { stop(); }
    Q_DISABLE_COPY_MOVE(Road)

    void start(std::chrono::milliseconds clockShift = {}, const QStringList &arguments = {});
    void start(const QStringList &arguments) { start({}, arguments); }
    void stop();
    [[nodiscard]] QProcess &process() { return *m_process; }

    bool waitForTrayIcon();
    [[nodiscard]] std::optional<QRect> trayIcon() const;
    bool waitForPanel(bool isOpen);
    void pressHotKey();
    [[nodiscard]] std::optional<QRect> panel() const;
    /// Whether a row of the panel is highlighted on the screen as the target of a jump.
    [[nodiscard]] bool isFlashing() const;

    [[nodiscard]] QList<Note> savedNotes(const QString &file = QStringLiteral("notes.json")) const;
    [[nodiscard]] QList<Reminder> savedReminders() const;

    /// The shift by which a clock now shows the instant @p before the given one.
    [[nodiscard]] static std::chrono::milliseconds shiftTo(Instant instant, std::chrono::milliseconds before);

private:
    PrivateDesktop &m_desktop;
    QString m_program;
    std::unique_ptr<QProcess> m_process;
};
