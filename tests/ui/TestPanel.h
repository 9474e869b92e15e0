#pragma once

#include "model/NoteCoding.h"
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "reminders/dates/DateDetector.h"
#include "support/KnownTitles.h"
#include "support/RecordingScheduler.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"
#include "ui/composer/ComposerBar.h"
#include "ui/composer/ComposerField.h"
#include "ui/lists/NoteListView.h"
#include "ui/lists/RelatedNotesView.h"
#include "ui/lists/RowListAccessible.h"
#include "ui/lists/RowModel.h"
#include "ui/panel/ContentView.h"
#include "ui/panel/PanelWindow.h"
#include "ui/panel/StatusLine.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

/// The real panel over real stores in a temporary folder. It is Monday 2026-03-02 10:00 in Shanghai.
class TestPanel
{
public:
    TestPanel()
        : reminders(m_folder.filePath(QStringLiteral("reminders.json")), m_scheduler, clock)
        , notes(m_folder.filePath(QStringLiteral("notes.json")), clock)
        , search(notes, nullptr, clock)
        , content((RowListAccessible::install(),
              new ContentView(notes, search, reminders, detector, titles, clock)))
        , window(content)
    {
        notes.setReminderStore(&reminders);
        window.show();
        window.activateWindow();
        state().panelDidToggle();
    }

    ComposerField *field() { return window.findChild<ComposerField *>(); }
    ComposerBar *reminderBar() { return find<ComposerBar>("reminderBar"); }
    /// What the line over the list says; empty while it is hidden.
    QString told()
    {
        auto *line = find<StatusLine>("statusLine");
        return line->isVisible() ? line->accessibleName() : QString();
    }
    NoteListView &list() { return *window.findChild<NoteListView *>(); }
    PanelState &state() { return content->state(); }

    /// Commits the text as an input method does, since key clicks support only ASCII.
    void type(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(field(), &event);
    }
    void compose(const QString &preedit)
    {
        QInputMethodEvent event(preedit, {});
        QCoreApplication::sendEvent(field(), &event);
    }
    void press(Qt::Key key) { QTest::keyClick(field(), key); }

    template <typename Widget>
    Widget *find(const char *name)
    {
        auto *found = window.findChild<Widget *>(QString::fromUtf8(name));
        if (!found)
            qFatal("no widget named %s", name);
        return found;
    }
    RecordingScheduler &scheduler() { return m_scheduler; }

    static QStringList rowsOf(const RowListView &view)
    {
        QStringList rows;
        for (int row = 0; row < view.model().rowCount(); ++row)
            rows.append(view.model().text(row));
        return rows;
    }
    QStringList rows() { return rowsOf(list()); }
    /// Clicks the part, which is searched for point by point.
    void clickPart(int row, RowPart part)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, pointOn(list(), row, part));
    }
    static QPoint pointOn(RowListView &view, int row, const RowPart &part)
    {
        const QRect rect = view.rectOf(row);
        for (int y = rect.top(); y < rect.bottom(); y += 2) {
            for (int x = rect.left(); x < rect.right(); x += 2) {
                if (view.hitAt({x, y}) == RowListView::Hit{row, part})
                    return {x, y};
            }
        }
        qFatal("no such part in row %d", row);
    }
    static void clickRow(RowListView &view, int row)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.rectOf(row).center());
    }
    void doubleClick(int row)
    {
        clickRow(list(), row);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, list().rectOf(row).center());
    }
    /// Chooses an entry of the row's context menu.
    void choose(int row, const QString &entry) { choose(list(), row, entry); }
    static void choose(RowListView &view, int row, const QString &entry)
    {
        choose(*view.viewport(), view.rectOf(row).center(), entry);
    }
    static void choose(QWidget &widget, QPoint position, const QString &entry)
    {
        withMenu(widget, position, [&entry](QAction &action) {
            if (action.text().startsWith(entry))
                action.trigger();
        });
    }
    static void withMenu(QWidget &widget, QPoint position, const std::function<void(QAction &)> &act)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget.mapToGlobal(position));
        QCoreApplication::sendEvent(&widget, &event);
        QMenu *menu = widget.window()->findChildren<QMenu *>().last();
        for (QAction *action : menu->actions())
            act(*action);
        delete menu;
    }
    QList<Note> savedNotes() const
    {
        return noteDecoder::decodeNotes(readFile(m_folder.filePath(QStringLiteral("notes.json")))).value();
    }

private:
    QTemporaryDir m_folder;
    RecordingScheduler m_scheduler;

public:
    KnownTitles titles;
    TestClock clock{"2026-03-02T02:00:00Z"};
    DateDetector detector{clock};
    ReminderStore reminders;
    NoteStore notes;
    NoteSearch search;
    ContentView *content; ///< the window's
    PanelWindow window;
};
