// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "ui/TestPanel.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class PanelTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_draft_with_a_time_becomes_a_note_with_a_reminder()
    {
        TestPanel panel;
        panel.type(u"给妈妈打电话 周五下午五点 #家"_s);
        QVERIFY(panel.reminderBar()->isVisible());
        QCOMPARE(panel.reminderBar()->accessibleName(), u"3月6日 17:00 · 给妈妈打电话 #家"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.field()->text(), QString());
        QVERIFY(!panel.reminderBar()->isVisible());
        QCOMPARE(panel.rows(), (QStringList{u"今天 · 3月2日 星期一"_s, u"给妈妈打电话 周五下午五点 #家"_s}));
        QCOMPARE(panel.savedNotes().first().text, u"给妈妈打电话 周五下午五点 #家"_s);
        QCOMPARE(panel.reminders.reminders().first().text, u"给妈妈打电话 #家"_s);
        QCOMPARE(panel.reminders.reminders().first().fireAt, at("2026-03-06T09:00:00Z"));
        panel.type(u"今天10点 开会"_s); // which is now
        QCOMPARE(panel.reminderBar()->accessibleName(), u"时间已过，回车仅保存笔记"_s);
    }

    void a_dismissed_reminder_stays_away_until_the_field_is_empty()
    {
        TestPanel panel;
        panel.type(u"明天9点 开会"_s);
        QTest::mouseClick(panel.reminderBar()->findChild<QToolButton *>(), Qt::LeftButton);
        QVERIFY(!panel.reminderBar()->isVisible());
        panel.type(u"议"_s);
        QVERIFY(!panel.reminderBar()->isVisible());
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().first().text, u"明天9点 开会议"_s);
        QVERIFY(panel.reminders.reminders().isEmpty());
        panel.type(u"明天9点 开会"_s);
        QVERIFY(panel.reminderBar()->isVisible());
    }

    void a_link_takes_the_title_of_its_page()
    {
        TestPanel panel;
        const auto submit = [&](const QString &draft) {
            panel.type(draft);
            panel.press(Qt::Key_Return);
            return panel.notes.notes().first();
        };
        const Note titled = submit(u" https://a.example/中文 "_s);
        QCOMPARE(titled.text, u"https://a.example/中文"_s);
        QCOMPARE(titled.link, u"https://a.example/%E4%B8%AD%E6%96%87"_s);
        const Note untitled = submit(u"https://a.example/2"_s);
        QCOMPARE(panel.titles.asked, (QStringList{*titled.link, *untitled.link}));
        panel.window.hide();
        panel.titles.tell(u"标题"_s);
        panel.titles.tell({});
        QCOMPARE(panel.savedNotes().last().text, u"标题"_s);
        QCOMPARE(panel.savedNotes().first().text, untitled.text);
    }

    void a_path_becomes_a_note_with_the_name_of_the_file()
    {
        TestPanel panel;
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"a #b"_s));
        panel.type(u"'"_s + folder.filePath(u"a #b/"_s) + u"'"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().first().text, u"a #b"_s);
        QCOMPARE(panel.savedNotes().first().link, u"file://"_s + folder.path() + u"/a%20%23b/"_s);
        panel.type(u"/"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().first().text, u"/"_s);
    }

    void a_double_click_edits_in_place()
    {
        TestPanel panel;
        const Note note = *panel.notes.add(u"买牛奶"_s);
        panel.doubleClick(1);
        QCOMPARE(panel.field()->text(), u"买牛奶"_s);
        QCOMPARE(panel.field()->placeholderText(), u"编辑中，回车保存修改"_s);
        QTRY_COMPARE(panel.field()->cursorPosition(), 3);
        panel.type(u" 明天9点"_s);
        panel.press(Qt::Key_Home);
        panel.type(u"明天9点 "_s);
        QVERIFY(!panel.reminderBar()->isVisible()); // an edit makes no reminder
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().size(), 1);
        QCOMPARE(panel.savedNotes().first().id, note.id);
        QCOMPARE(panel.savedNotes().first().text, u"明天9点 买牛奶 明天9点"_s);

        panel.doubleClick(1);
        panel.field()->clear(); // leaves the edit
        QVERIFY(!panel.state().editingID());
        panel.type(u"面包"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().size(), 2);
    }

    void escape_peels_one_layer_at_a_time()
    {
        TestPanel panel;
        QSignalSpy escaped(&panel.window, &PanelWindow::escaped);
        panel.type(u"牛奶"_s);
        panel.compose(u"nai"_s);
        panel.press(Qt::Key_Escape); // the input method's
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.state().draft(), u"牛奶"_s);
        QVERIFY(panel.notes.notes().isEmpty());
        panel.compose({});
        panel.press(Qt::Key_Escape);
        QCOMPARE(panel.field()->text(), QString());
        QCOMPARE(escaped.count(), 0);
        panel.press(Qt::Key_Escape);
        QCOMPARE(escaped.count(), 1);
        panel.type(u" \u3000"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.field()->text(), QString());
    }

    void a_jump_clears_the_draft_that_hides_the_note()
    {
        TestPanel panel;
        const Note target = *panel.notes.add(u"目标"_s);
        panel.type(u"别的"_s); // hides it
        panel.state().openNote(target.id);
        QTRY_COMPARE(panel.list().currentRow(), 1);
        QCOMPARE(panel.field()->text(), QString());
        QVERIFY(!panel.state().jumpTargetID());
    }

    void related_notes_are_one_click_away()
    {
        TestPanel panel;
        const Note older = *panel.notes.add(u"周末去看电影"_s);
        panel.notes.add(u"qwzx"_s);
        panel.notes.add(u"电影票根夹在本子里"_s);

        const auto related = [&panel](int row) {
            panel.choose(row, u"相关笔记"_s);
            return panel.list().findChildren<RelatedNotesView *>().last();
        };
        QCOMPARE(related(2)->findChildren<QPushButton *>().size(), 0);
        QCOMPARE(related(2)->findChildren<QLabel *>().last()->text(), u"暂无相关笔记"_s);
        QPointer<RelatedNotesView> popover = related(1);
        const auto buttons = popover->findChildren<QPushButton *>();
        QCOMPARE(buttons.size(), 1);
        QCOMPARE(buttons.first()->accessibleName(), older.text);
        buttons.first()->click();
        QTRY_COMPARE(panel.list().currentRow(), 3);
        QTRY_VERIFY(!popover);
    }

    void a_long_note_is_unfolded_by_key_click_and_menu_and_stays_so()
    {
        TestPanel panel;
        panel.notes.add(u"长"_s + QString(30, u'\n') + u"尾"_s);
        panel.notes.add(u"短"_s);
        NoteListView &list = panel.list();
        const auto height = [&list] {
            list.grab();
            return list.rectOf(list.model().rowCount() - 1).height();
        };
        const int folded = height();
        list.goTo(2);
        QTest::keyClick(&list, Qt::Key_Right);
        const int whole = height();
        QVERIFY(whole > 2 * folded);
        panel.type(u"短"_s);
        panel.state().setDraft({});
        QCOMPARE(height(), whole);
        list.goTo(2);
        QTest::keyClick(&list, Qt::Key_Left);
        QCOMPARE(height(), folded);
        panel.clickPart(2, {RowPart::Kind::Fold});
        QCOMPARE(height(), whole);
        panel.choose(2, u"收起"_s);
        QCOMPARE(height(), folded);
    }
};

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
