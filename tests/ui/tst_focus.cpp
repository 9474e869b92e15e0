// Where the keys go in the panel. Now is Monday 2026-03-02 10:00 in Asia/Shanghai.
#include "support/Table.h"
#include "ui/TestPanel.h"

#include <QClipboard>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {
/// The panel with a note in each list.
class FilledPanel final : public TestPanel
{
public:
    FilledPanel()
    {
        removed = notes.add(u"gone"_s)->id;
        reminded = notes.add(u"one #t"_s)->id;
        notes.add(u"two"_s);
        notes.remove(removed);
        reminders.schedule(reminded, at("2026-03-03T02:00:00Z"), u"one"_s, u"one #t"_s);
        QObject::connect(&window, &PanelWindow::escaped, &window, &QWidget::hide);
        (void)QTest::qWaitForWindowActive(&window);
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, key, modifiers);
    }
    /// Takes each step: a key, the button of a mode, "reopened" in a mode, or there "notified" of a reminder.
    void take(const QString &steps)
    {
        const QStringList modes{u"timeline"_s, u"tags"_s, u"reminders"_s, u"trash"_s};
        for (const QString &step : steps.split(u' ', Qt::SkipEmptyParts)) {
            if (step.startsWith(u"mode."_s)) {
                QTest::mouseClick(find<QAbstractButton>(qPrintable(step)), Qt::LeftButton);
            } else if (step.contains(u'.')) {
                state().setMode(PanelMode(modes.indexOf(step.section(u'.', 1))));
                window.hide();
                state().panelDidToggle();
                window.show();
                window.expectFocusAgain();
                state().panelDidToggle();
                if (step.startsWith(u"notified"_s)) // as a click on a notification does
                    state().openNote(reminded);
            } else {
                const QKeyCombination keys = QKeySequence(step)[0];
                key(keys.key(), keys.keyboardModifiers());
            }
        }
    }
    QString whereAfter(const QString &steps)
    {
        take(steps);
        return where();
    }

    /// The widget with the focus and what is current or written in it.
    QString where()
    {
        if (!window.isVisible())
            return u"closed"_s;
        const QWidget *widget = QApplication::focusWidget();
        const QString name = widget ? widget->objectName() : QString();
        if (const auto *rows = qobject_cast<const RowListView *>(widget))
            return name + u": "_s + rows->model().index(rows->currentRow()).data().toString();
        return widget == field() ? u"field: "_s + field()->text() : name;
    }
    QStringList texts()
    {
        QStringList texts;
        for (const Note &note : notes.notes())
            texts.append(note.text);
        return texts;
    }

    QUuid removed;
    QUuid reminded;
};

/// Where the focus is, and where after a letter, Tab, Return, Escape instead.
using Ends = QStringList;
const Ends field{u"field: "_s, u"field: x"_s, u"mode.number"_s, u"field: "_s, u"closed"_s};
const Ends reminders{u"reminderList: one #t"_s, u"reminderList: one #t"_s, u"mode.number"_s,
    u"timeline: one #t"_s, u"closed"_s};
const Ends trash{u"trashList: gone"_s, u"trashList: gone"_s, u"emptyTrash"_s, u"trashList: "_s, u"closed"_s};
Ends row(const QString &list, const QString &text)
{
    return {list + u": "_s + text, u"field: x"_s, u"field: "_s, u"field: "_s + text, u"field: "_s};
}

const std::pair<QString, Ends> ways[] = {
    {u""_s, field},
    {u"Ctrl+2"_s, field},
    {u"Ctrl+3"_s, reminders},
    {u"Ctrl+4"_s, trash},
    {u"Ctrl+4 Ctrl+1"_s, field},
    {u"Down Ctrl+1"_s, field},
    {u"mode.number"_s, field},
    {u"mode.bell"_s, reminders},
    {u"mode.trash"_s, trash},
    {u"mode.trash mode.trash"_s, field},
    {u"reopened.timeline"_s, field},
    {u"reopened.tags"_s, field},
    {u"reopened.reminders"_s, reminders},
    {u"reopened.trash"_s, trash},
    {u"notified.timeline"_s, row(u"timeline"_s, u"one #t"_s)},
    {u"notified.trash"_s, row(u"timeline"_s, u"one #t"_s)},
    {u"Ctrl+2 Down Return"_s,
        {u"field: #t"_s, u"field: #tx"_s, u"mode.number"_s, u"field: #t"_s, u"field: #t"_s}},
    {u"Down"_s, row(u"timeline"_s, u"two"_s)},
    {u"Ctrl+2 Down"_s, row(u"tagList"_s, u"#t"_s)},
    {u"Ctrl+2 Down F2 u Return"_s, row(u"tagList"_s, u"#u"_s)},
    {u"Ctrl+2 Down F2 Escape"_s, row(u"tagList"_s, u"#t"_s)},
};
} // namespace

class FocusTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_way_in_leads_to_where_the_next_key_is_heard()
    {
        for (const auto &[way, ends] : ways) {
            QStringList is;
            for (const char *next : {"", "x", "Tab", "Return", "Escape"}) {
                FilledPanel panel;
                panel.take(way);
                is.append(panel.whereAfter(QString::fromUtf8(next)));
            }
            QVERIFY2(is == ends, qPrintable(way + u": "_s + is.join(u", "_s)));
        }
    }

    void the_tab_key_comes_round_through_what_is_visible()
    {
        const auto roundFrom = [](const QString &mode, const QString &tab) {
            FilledPanel panel;
            const QString start = panel.whereAfter(mode);
            QStringList round;
            do
                round.append(panel.whereAfter(tab));
            while (round.last() != start && round.size() < 10);
            return round;
        };
        const QStringList buttons = {u"mode.number"_s, u"mode.bell"_s, u"mode.trash"_s};
        QCOMPARE(roundFrom(u"Ctrl+1"_s, u"Tab"_s), buttons + QStringList({u"timeline: two"_s, u"field: "_s}));
        QCOMPARE(roundFrom(u"Ctrl+2"_s, u"Tab"_s), buttons + QStringList({u"tagList: #t"_s, u"field: "_s}));
        QCOMPARE(roundFrom(u"Ctrl+3"_s, u"Tab"_s), buttons + QStringList({u"reminderList: one #t"_s}));
        QCOMPARE(roundFrom(u"Ctrl+4"_s, u"Tab"_s),
            QStringList({u"emptyTrash"_s}) + buttons + QStringList({u"trashList: gone"_s}));
        QCOMPARE(roundFrom(u"Ctrl+1"_s, u"Backtab"_s).first(), u"timeline: two"_s);
    }

    void what_is_typed_over_a_list_goes_on_in_the_field()
    {
        FilledPanel panel;
        panel.type(u"甲"_s);
        panel.state().setDraft({});
        panel.type(u"t"_s);
        QGuiApplication::clipboard()->setText(u"粘贴"_s);
        const auto typed = [&panel](const std::function<void()> &type) {
            panel.field()->setText(u"t"_s);
            panel.field()->setFocus();
            panel.take(u"Down"_s);
            type();
            return panel.where();
        };
        const Table<2> table = {
            {"Space", "field: t "}, {"Ctrl+V", "field: t粘贴"}, {"Shift+Ins", "field: t粘贴"},
            {"Alt+X", "timeline: two"}, {"Backtab y", "field: ty"}, // from a button
        };
        table.check([&](const QString &keys) { return typed([&] { panel.take(keys); }); });
        const auto compose = [&panel](const QString &preedit, const QString &committed) {
            QInputMethodEvent event(preedit, {});
            event.setCommitString(committed);
            QCoreApplication::sendEvent(&panel.list(), &event);
        };
        QCOMPARE(typed([&] {
            compose(u"nai"_s, {});
            QVERIFY(panel.content->isComposing());
            QCOMPARE(panel.where(), u"timeline: two"_s);
            QInputMethodQueryEvent caret(Qt::ImCursorRectangle | Qt::ImEnabled);
            QCoreApplication::sendEvent(&panel.list(), &caret);
            QVERIFY(caret.value(Qt::ImEnabled).toBool());
            const QRect rect = caret.value(Qt::ImCursorRectangle).toRect();
            const QPoint inField = panel.field()->mapFromGlobal(panel.list().mapToGlobal(rect.center()));
            QVERIFY(panel.field()->rect().contains(inField));
            panel.take(u"Del"_s); // the input method's
            compose({}, u"奶"_s);
        }),
            u"field: t奶"_s);
        QCOMPARE(panel.notes.notes().size(), 2);
        typed([&] { compose(u"nai"_s, {}); });
        panel.take(u"Ctrl+3"_s); // ends what is composed
        QVERIFY(!panel.content->isComposing());
    }

    void one_row_is_current_whoever_moves_to_it()
    {
        FilledPanel panel;
        panel.clock.advance(std::chrono::minutes(1));
        for (const QString &text : {u"c"_s, u"b"_s, u"a"_s})
            panel.notes.add(text);
        QCOMPARE(panel.texts(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"two"_s, u"one #t"_s}));
        panel.take(u"Down"_s);
        panel.clickRow(panel.list(), 3);
        QCOMPARE(panel.where(), u"timeline: c"_s);
        QCOMPARE(panel.whereAfter(u"Down"_s), u"timeline: two"_s);
        panel.list().scrollAndFlash(panel.notes.notes().first().id, false);
        QCOMPARE(panel.whereAfter(u"Down"_s), u"timeline: b"_s);
        panel.field()->setFocus();
        QCOMPARE(panel.list().currentRow(), -1);
        panel.choose(3, u"相关笔记"_s);
        auto *popover = panel.list().findChild<RelatedNotesView *>();
        QTRY_VERIFY(popover->isActiveWindow() || popover->isVisible());
        QTest::keyClick(popover, Qt::Key_Escape);
        QCOMPARE(panel.where(), u"timeline: c"_s);
    }

    void delete_goes_on_with_the_row_below_and_typing_with_the_field()
    {
        FilledPanel panel;
        panel.clock.advance(std::chrono::hours(24));
        for (const QString &text : {u"c"_s, u"b"_s, u"a"_s})
            panel.notes.add(text);
        QCOMPARE(panel.whereAfter(u"Down Del Del Del"_s), u"timeline: two"_s);
        QCOMPARE(panel.texts(), (QStringList{u"two"_s, u"one #t"_s}));
        QCOMPARE(panel.whereAfter(u"End Del"_s), u"timeline: two"_s);
        panel.take(u"x Return"_s);
        QCOMPARE(panel.texts(), (QStringList{u"x"_s, u"two"_s}));
    }

    void a_held_key_acts_once()
    {
        FilledPanel panel;
        panel.key(Qt::Key_Down);
        const auto send = [&panel](QEvent::Type type, quint64 time, Qt::Key key = Qt::Key_Delete) {
            QKeyEvent event(type, key, {});
            event.setTimestamp(time);
            QCoreApplication::sendEvent(&panel.list(), &event);
        };
        send(QEvent::KeyPress, 1);
        send(QEvent::KeyRelease, 2);
        send(QEvent::KeyPress, 2); // as X11 repeats it
        QCOMPARE(panel.texts(), QStringList{u"one #t"_s});
        send(QEvent::KeyRelease, 3, Qt::Key_Up);
        send(QEvent::KeyPress, 3); // of another key in the same millisecond
        QCOMPARE(panel.texts(), QStringList());
    }

    void a_row_out_of_sight_is_shown_before_a_key_acts_on_it()
    {
        FilledPanel panel;
        for (int i = 0; i < 60; ++i)
            panel.notes.add(QString::number(i));
        panel.take(u"PgDown"_s); // from the field
        QVERIFY(panel.list().verticalScrollBar()->value() > 100);
        panel.take(u"PgUp Down"_s);
        panel.list().verticalScrollBar()->setValue(1000);
        panel.take(u"Del"_s);
        QCOMPARE(panel.notes.notes().size(), 62);
        QCOMPARE(panel.whereAfter(u"Del"_s), u"timeline: 58"_s);
    }

    void the_keys_of_a_menu_act_on_the_current_row()
    {
        FilledPanel panel;
        panel.notes.add(u"reply"_s, panel.notes.notes().first());
        panel.notes.add(u"page"_s);
        panel.list().goTo(4);
        QKeyEvent unknown(QEvent::KeyPress, 0, Qt::NoModifier);
        QCoreApplication::sendEvent(&panel.list(), &unknown);
        QCOMPARE(panel.state().draft(), QString()); // no entry without a key
        panel.list().goTo(2);
        QCOMPARE(panel.whereAfter(u"Alt+Left"_s), u"timeline: two"_s);
        QCOMPARE(panel.whereAfter(u"Alt+Right Ctrl+C"_s), u"timeline: reply"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"reply"_s);
        panel.list().goTo(4);
        QCOMPARE(panel.whereAfter(u"Ctrl+D Ctrl+R"_s), u"field: "_s);
        QVERIFY(panel.reminders.reminders().isEmpty());
        QCOMPARE(panel.state().quoting()->text, u"one #t"_s);
    }

    void the_edited_note_stays_in_the_list()
    {
        FilledPanel panel;
        panel.doubleClick(1);
        panel.field()->selectAll();
        panel.type(u"one"_s);
        QCOMPARE(panel.rows(), (QStringList{u"编辑中"_s, u"two"_s, u"今天 · 3月2日 星期一"_s, u"one #t"_s}));
        panel.field()->selectAll();
        panel.type(u"qqq"_s);
        QTest::qWait(100);
        QCOMPARE(panel.rows(), (QStringList{u"编辑中"_s, u"two"_s}));
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.rows(), (QStringList{u"今天 · 3月2日 星期一"_s, u"qqq"_s, u"one #t"_s}));

        panel.doubleClick(1);
        panel.field()->selectAll();
        panel.type(u"kept"_s);
        panel.notes.remove(panel.notes.notes().first().id);
        panel.press(Qt::Key_Return); // the note is gone, its text is not
        QCOMPARE(panel.texts(), (QStringList{u"kept"_s, u"one #t"_s}));
    }

    void a_second_click_counts_only_on_the_same_row()
    {
        FilledPanel panel;
        panel.take(u"Ctrl+2"_s);
        auto *tags = panel.find<RowListView>("tagList");
        const QPoint where = tags->rectOf(0).center() + QPoint(0, 20);
        panel.clickRow(*tags, 0);
        const auto clickAgain = [](const RowListView &list, QPoint point) {
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
            QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, point);
        };
        clickAgain(panel.list(), where);
        QVERIFY(!panel.state().editingID());

        const QUuid other = panel.notes.notes().first().id;
        panel.reminders.schedule(other, at("2026-03-04T02:00:00Z"), u"two"_s, u"two"_s);
        panel.take(u"Ctrl+3"_s);
        auto *reminders = panel.find<RowListView>("reminderList");
        const QPoint bell = panel.pointOn(*reminders, 0, {RowPart::Kind::Button, 0});
        QTest::mouseClick(reminders->viewport(), Qt::LeftButton, {}, bell);
        clickAgain(*reminders, bell);
        QCOMPARE(panel.reminders.reminders().size(), 1);
        QCOMPARE(panel.where(), u"reminderList: two"_s);
    }
};

QTEST_MAIN(FocusTest)
#include "tst_focus.moc"
