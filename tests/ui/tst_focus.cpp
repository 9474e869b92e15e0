// Where the keys go in the panel. Now is Monday 2026-03-02 10:00 in Asia/Shanghai.
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
        QTest::keyClick(focused(), key, modifiers);
    }
    void key(char letter) { QTest::keyClick(focused(), letter); }
    void digit(Qt::Key digit) { key(digit, Qt::ControlModifier); }

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

private:
    QWidget *focused() { return QApplication::focusWidget() ? QApplication::focusWidget() : &window; }
};

struct Way {
    const char *name;
    std::function<void(FilledPanel &)> take;
    // Where the focus is then, and after a letter, Tab, Return, Escape instead.
    const char *where;
    const char *letter;
    const char *tab;
    const char *enter;
    const char *escape;
};

void click(FilledPanel &panel, const char *button)
{
    QTest::mouseClick(panel.find<QAbstractButton>(button), Qt::LeftButton);
}
void reopen(FilledPanel &panel, PanelMode mode)
{
    panel.state().setMode(mode);
    panel.window.hide();
    panel.state().panelDidToggle();
    panel.window.show();
    panel.window.expectFocusAgain();
    panel.state().panelDidToggle();
}
/// As a click on a notification does.
void notify(FilledPanel &panel, PanelMode mode)
{
    reopen(panel, mode);
    panel.state().openNote(panel.reminded);
}

const Way ways[] = {
    {"started", [](FilledPanel &) {}, "field: ", "field: x", "mode.number", "field: ", "closed"},
    {"Ctrl+2", [](FilledPanel &p) { p.digit(Qt::Key_2); }, "field: ", "field: x", "mode.number",
        "field: ", "closed"},
    {"Ctrl+3", [](FilledPanel &p) { p.digit(Qt::Key_3); }, "reminderList: one #t", "reminderList: one #t",
        "mode.number", "timeline: one #t", "closed"},
    {"Ctrl+4", [](FilledPanel &p) { p.digit(Qt::Key_4); }, "trashList: gone", "trashList: gone", "emptyTrash",
        "trashList: ", "closed"},
    {"Ctrl+4, Ctrl+1",
        [](FilledPanel &p) {
            p.digit(Qt::Key_4);
            p.digit(Qt::Key_1);
        },
        "field: ", "field: x", "mode.number", "field: ", "closed"},
    {"Ctrl+1 in the list",
        [](FilledPanel &p) {
            p.key(Qt::Key_Down);
            p.digit(Qt::Key_1);
        },
        "field: ", "field: x", "mode.number", "field: ", "closed"},
    {"the button of the tags", [](FilledPanel &p) { click(p, "mode.number"); }, "field: ", "field: x",
        "mode.number", "field: ", "closed"},
    {"the button of the reminders", [](FilledPanel &p) { click(p, "mode.bell"); }, "reminderList: one #t",
        "reminderList: one #t", "mode.number", "timeline: one #t", "closed"},
    {"the button of the trash", [](FilledPanel &p) { click(p, "mode.trash"); }, "trashList: gone",
        "trashList: gone", "emptyTrash", "trashList: ", "closed"},
    {"the button of the trash and back",
        [](FilledPanel &p) {
            click(p, "mode.trash");
            click(p, "mode.trash");
        },
        "field: ", "field: x", "mode.number", "field: ", "closed"},
    {"reopened at the timeline", [](FilledPanel &p) { reopen(p, PanelMode::Timeline); },
        "field: ", "field: x", "mode.number", "field: ", "closed"},
    {"reopened at the tags", [](FilledPanel &p) { reopen(p, PanelMode::Tags); }, "field: ", "field: x",
        "mode.number", "field: ", "closed"},
    {"reopened at the reminders", [](FilledPanel &p) { reopen(p, PanelMode::Reminders); },
        "reminderList: one #t", "reminderList: one #t", "mode.number", "timeline: one #t", "closed"},
    {"reopened at the trash", [](FilledPanel &p) { reopen(p, PanelMode::Trash); }, "trashList: gone",
        "trashList: gone", "emptyTrash", "trashList: ", "closed"},
    {"a notification at the timeline", [](FilledPanel &p) { notify(p, PanelMode::Timeline); },
        "timeline: one #t", "field: x", "field: ", "field: one #t", "field: "},
    {"a notification at the trash", [](FilledPanel &p) { notify(p, PanelMode::Trash); }, "timeline: one #t",
        "field: x", "field: ", "field: one #t", "field: "},
    {"a picked tag",
        [](FilledPanel &p) {
            p.digit(Qt::Key_2);
            p.key(Qt::Key_Down);
            p.key(Qt::Key_Return);
        },
        "field: #t", "field: #tx", "mode.number", "field: #t", "field: #t"},
    {"a walk through the timeline", [](FilledPanel &p) { p.key(Qt::Key_Down); }, "timeline: two", "field: x",
        "field: ", "field: two", "field: "},
    {"a walk through the tags",
        [](FilledPanel &p) {
            p.digit(Qt::Key_2);
            p.key(Qt::Key_Down);
        },
        "tagList: #t", "field: x", "field: ", "field: #t", "field: "},
    {"a renamed tag",
        [](FilledPanel &p) {
            p.digit(Qt::Key_2);
            p.key(Qt::Key_Down);
            p.key(Qt::Key_F2);
            p.key('u');
            p.key(Qt::Key_Return);
        },
        "tagList: #u", "field: x", "field: ", "field: #u", "field: "},
    {"a tag that is not renamed",
        [](FilledPanel &p) {
            p.digit(Qt::Key_2);
            p.key(Qt::Key_Down);
            p.key(Qt::Key_F2);
            p.key(Qt::Key_Escape);
        },
        "tagList: #t", "field: x", "field: ", "field: #t", "field: "},
};
} // namespace

class FocusTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_way_in_leads_to_where_the_next_key_is_heard()
    {
        for (const Way &way : ways) {
            QString where;
            const auto after = [&](const std::function<void(FilledPanel &)> &press) {
                FilledPanel panel;
                way.take(panel);
                where = panel.where();
                press(panel);
                return panel.where();
            };
            QStringList is = {after([](FilledPanel &panel) { panel.key('x'); }),
                after([](FilledPanel &panel) { panel.key(Qt::Key_Tab); }),
                after([](FilledPanel &panel) { panel.key(Qt::Key_Return); }),
                after([](FilledPanel &panel) { panel.key(Qt::Key_Escape); })};
            is.prepend(where);
            const QStringList shouldBe = {QString::fromUtf8(way.where), QString::fromUtf8(way.letter),
                QString::fromUtf8(way.tab), QString::fromUtf8(way.enter), QString::fromUtf8(way.escape)};
            QVERIFY2(is == shouldBe, qPrintable(QString::fromUtf8(way.name) + u": "_s + is.join(u", "_s)));
        }
    }

    void the_tab_key_comes_round_through_what_is_visible()
    {
        const auto roundFrom = [](Qt::Key digit, Qt::Key tab) {
            FilledPanel panel;
            panel.digit(digit);
            const QString start = panel.where();
            QStringList round;
            do {
                panel.key(tab);
                round.append(panel.where());
            } while (round.last() != start && round.size() < 10);
            return round;
        };
        const QStringList buttons = {u"mode.number"_s, u"mode.bell"_s, u"mode.trash"_s};
        QCOMPARE(
            roundFrom(Qt::Key_1, Qt::Key_Tab), buttons + QStringList({u"timeline: two"_s, u"field: "_s}));
        QCOMPARE(roundFrom(Qt::Key_2, Qt::Key_Tab), buttons + QStringList({u"tagList: #t"_s, u"field: "_s}));
        QCOMPARE(roundFrom(Qt::Key_3, Qt::Key_Tab), buttons + QStringList({u"reminderList: one #t"_s}));
        QCOMPARE(roundFrom(Qt::Key_4, Qt::Key_Tab),
            QStringList({u"emptyTrash"_s}) + buttons + QStringList({u"trashList: gone"_s}));
        QCOMPARE(roundFrom(Qt::Key_1, Qt::Key_Backtab).first(), u"timeline: two"_s);
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
            panel.key(Qt::Key_Down);
            type();
            return panel.where();
        };
        QCOMPARE(typed([&] { panel.key(' '); }), u"field: t "_s);
        QCOMPARE(typed([&] { panel.key(Qt::Key_V, Qt::ControlModifier); }), u"field: t粘贴"_s);
        QCOMPARE(typed([&] { panel.key(Qt::Key_Insert, Qt::ShiftModifier); }), u"field: t粘贴"_s);
        QCOMPARE(typed([&] { panel.key(Qt::Key_X, Qt::AltModifier); }), u"timeline: two"_s);
        QCOMPARE(typed([&] {
            panel.key(Qt::Key_Tab, Qt::ShiftModifier); // to a button
            panel.key('y');
        }),
            u"field: ty"_s);
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
            panel.key(Qt::Key_Delete); // the input method's
            compose({}, u"奶"_s);
        }),
            u"field: t奶"_s);
        QCOMPARE(panel.notes.notes().size(), 2);
        typed([&] { compose(u"nai"_s, {}); });
        panel.digit(Qt::Key_3); // ends what is composed
        QVERIFY(!panel.content->isComposing());
    }

    void one_row_is_current_whoever_moves_to_it()
    {
        FilledPanel panel;
        panel.clock.advance(std::chrono::minutes(1));
        for (const QString &text : {u"c"_s, u"b"_s, u"a"_s})
            panel.notes.add(text);
        QCOMPARE(panel.texts(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"two"_s, u"one #t"_s}));
        panel.key(Qt::Key_Down);
        panel.clickRow(panel.list(), 3);
        QCOMPARE(panel.where(), u"timeline: c"_s);
        panel.key(Qt::Key_Down);
        QCOMPARE(panel.where(), u"timeline: two"_s);
        panel.list().scrollAndFlash(panel.notes.notes().first().id, false);
        panel.key(Qt::Key_Down);
        QCOMPARE(panel.where(), u"timeline: b"_s);
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
        panel.key(Qt::Key_Down);
        for (int i = 0; i < 3; ++i)
            panel.key(Qt::Key_Delete);
        QCOMPARE(panel.texts(), (QStringList{u"two"_s, u"one #t"_s}));
        QCOMPARE(panel.where(), u"timeline: two"_s);
        panel.key(Qt::Key_End);
        panel.key(Qt::Key_Delete);
        QCOMPARE(panel.where(), u"timeline: two"_s);
        panel.key('x');
        panel.key(Qt::Key_Return);
        QCOMPARE(panel.texts(), (QStringList{u"x"_s, u"two"_s}));
    }

    void a_held_key_acts_once()
    {
        FilledPanel panel;
        panel.key(Qt::Key_Down);
        const auto send = [&panel](QEvent::Type type, quint64 time) {
            QKeyEvent event(type, Qt::Key_Delete, {});
            event.setTimestamp(time);
            QCoreApplication::sendEvent(&panel.list(), &event);
        };
        send(QEvent::KeyPress, 1);
        send(QEvent::KeyRelease, 2);
        send(QEvent::KeyPress, 2); // as X11 repeats it
        QCOMPARE(panel.texts(), QStringList{u"one #t"_s});
        send(QEvent::KeyRelease, 3);
        send(QEvent::KeyPress, 4);
        QCOMPARE(panel.texts(), QStringList());
    }

    void a_row_out_of_sight_is_shown_before_a_key_acts_on_it()
    {
        FilledPanel panel;
        for (int i = 0; i < 60; ++i)
            panel.notes.add(QString::number(i));
        panel.key(Qt::Key_PageDown); // from the field
        QVERIFY(panel.list().verticalScrollBar()->value() > 100);
        panel.key(Qt::Key_PageUp);
        panel.key(Qt::Key_Down);
        panel.list().verticalScrollBar()->setValue(1000);
        panel.key(Qt::Key_Delete);
        QCOMPARE(panel.notes.notes().size(), 62);
        panel.key(Qt::Key_Delete);
        QCOMPARE(panel.where(), u"timeline: 58"_s);
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
        panel.key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(panel.where(), u"timeline: two"_s);
        panel.key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(panel.where(), u"timeline: reply"_s);
        panel.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"reply"_s);
        panel.list().goTo(4);
        panel.key(Qt::Key_D, Qt::ControlModifier);
        QVERIFY(panel.reminders.reminders().isEmpty());
        panel.key(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(panel.state().quoting()->text, u"one #t"_s);
        QCOMPARE(panel.where(), u"field: "_s);
    }

    void suggestions_follow_the_caret()
    {
        FilledPanel panel;
        panel.notes.add(u"x #tag"_s);
        const auto offered = [&panel] { return panel.find<QWidget>("suggestions")->isVisible(); };
        panel.type(u"a #ta"_s);
        QVERIFY(offered());
        panel.press(Qt::Key_Home);
        QVERIFY(!offered());
        panel.press(Qt::Key_End);
        QVERIFY(offered());
        panel.press(Qt::Key_Return);
        QVERIFY(!offered());
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.texts().first(), u"a #tag"_s);
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
        panel.digit(Qt::Key_2);
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
        panel.digit(Qt::Key_3);
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
