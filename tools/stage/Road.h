#pragma once

#include "stage/PrivateDesktop.h"

#include "foundation/Instant.h"
#include "model/Note.h"
#include "model/Reminder.h"

#include <QList>

/// What is done and seen on the road of one note, for whoever takes it: a test, or the tour.
class Road final
{
public:
    Road(PrivateDesktop &desktop, QString program)
        : m_desktop(desktop)
        , m_program(std::move(program))
    {
    }

    void start(std::chrono::milliseconds clockShift = {}, const QStringList &arguments = {});
    void start(const QStringList &arguments) { start({}, arguments); }
    void stop();
    [[nodiscard]] QProcess &process() { return *m_process; }

    bool waitForTrayIcon();
    [[nodiscard]] std::optional<QRect> trayIcon() const;
    bool waitForPanel(bool isOpen);
    void pressHotKey();
    [[nodiscard]] std::optional<QRect> panel() const;
    /// Whether the note's row is lit up on the screen now.
    [[nodiscard]] bool isFlashing() const;

    [[nodiscard]] QList<Note> savedNotes(const QString &file = QStringLiteral("notes.json")) const;
    [[nodiscard]] QList<Reminder> savedReminders() const;

    /// How far a clock must be shifted to show, right now, the moment @p before the given one.
    [[nodiscard]] static std::chrono::milliseconds shiftTo(Instant moment, std::chrono::milliseconds before);

private:
    PrivateDesktop &m_desktop;
    QString m_program;
    std::unique_ptr<QProcess> m_process;
};
