#pragma once

#include "model/NoteCoding.h"
#include "stage/NotificationRecorder.h"
#include "stage/Road.h"

/// The program on a private desktop with a notification server. It has been started hidden and shows its
/// icon.
class RunningProgram final
{
public:
    PrivateDesktop desktop{{}};
    std::unique_ptr<NotificationRecorder> notifications =
        std::make_unique<NotificationRecorder>(desktop.busAddress());
    Road road{desktop, QStringLiteral(PROGRAM)};

    explicit RunningProgram(const QList<Reminder> &reminders = {}, const QList<Note> &notes = {})
    {
        desktop.writeFile(desktop.dataFile(QStringLiteral("reminders.json")), noteEncoder::encode(reminders));
        desktop.writeFile(desktop.dataFile(QStringLiteral("notes.json")), noteEncoder::encode(notes));
        start();
    }

    void start()
    {
        road.start({QStringLiteral("--hidden")});
        if (!road.waitForTrayIcon())
            qFatal("the program does not start");
    }
    [[nodiscard]] XServer &screen() { return desktop.screen(); }

    /// Presses the hot key. Returns whether the panel is then open, or closed.
    bool toggle(bool opens)
    {
        road.pressHotKey();
        return road.waitForPanel(opens);
    }
    /// Writes a note by hot key and keyboard, a key each 10 ms right from the press. Returns whether it
    /// reached the disk and the panel has closed.
    bool write(const QString &text)
    {
        const qsizetype before = road.savedNotes().size();
        road.pressHotKey();
        screen().type(text);
        screen().press({Keysym::enter});
        screen().press({Keysym::escape});
        return PrivateDesktop::waitUntil([&] { return road.savedNotes().size() == before + 1; })
               && road.savedNotes().first().text == text && road.waitForPanel(false);
    }
};
