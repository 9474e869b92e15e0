// The panel's modes and what can be done in each. Now is Monday 2026-03-02 10:00 in Asia/Shanghai.
#include "ui/TestPanel.h"
#include "ui/composer/SuggestionList.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/ImportExport.h"
#include "ui/dialogs/ModalQuestion.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class ModesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_mode_has_its_name_its_key_and_its_field()
    {
        TestPanel panel;
        auto *tags = panel.find<QAbstractButton>("mode.number");
        QCOMPARE(tags->toolTip(), u"标签 Ctrl+2"_s);
        tags->click();
        QCOMPARE(panel.find<QLabel>("title")->text(), u"标签"_s);
        QCOMPARE(tags->toolTip(), u"返回时间线 Ctrl+1"_s);
        QCOMPARE(panel.field()->placeholderText(), u"输入即筛选标签"_s);
        panel.type(u"x"_s);
        panel.press(Qt::Key_Return); // the field only filters here
        QVERIFY(panel.notes.notes().isEmpty());
        QCOMPARE(panel.field()->text(), u"x"_s);
        panel.find<QAbstractButton>("mode.trash")->click();
        QVERIFY(!panel.field()->isVisible());
    }

    void tags_are_offered_while_one_is_typed()
    {
        TestPanel panel;
        panel.notes.add(u"一 #家务"_s);
        panel.notes.add(u"二 #家庭"_s);
        panel.type(u"买菜 #家"_s);
        auto *list = panel.window.findChild<SuggestionList *>();
        QVERIFY(list->isVisible());
        QCOMPARE(list->suggestions(), (QStringList{u"#家庭"_s, u"#家务"_s}));
        panel.press(Qt::Key_Home);
        QVERIFY(!list->isVisible());
        panel.press(Qt::Key_End);
        QVERIFY(list->isVisible());
        panel.press(Qt::Key_Down);
        panel.compose(u"x"_s);
        panel.press(Qt::Key_Return); // the input method's
        panel.compose({});
        QCOMPARE(panel.field()->text(), u"买菜 #家"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.field()->text(), u"买菜 #家务"_s);
        QVERIFY(!list->isVisible());
        QCOMPARE(panel.notes.notes().size(), 2);
        QTRY_COMPARE(panel.field()->cursorPosition(), panel.field()->text().size());
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().size(), 3);
        panel.type(u"#"_s);
        QVERIFY(list->isVisible());
        panel.press(Qt::Key_Escape); // the list first, the draft then
        QVERIFY(!list->isVisible());
        QCOMPARE(panel.field()->text(), u"#"_s);
    }

    void a_reply_quotes_a_note_and_each_leads_to_the_other()
    {
        TestPanel panel;
        const Note quoted = *panel.notes.add(u"聚餐定在周五"_s);
        panel.clock.advance(std::chrono::minutes(1));
        panel.choose(1, u"引用"_s);
        auto *bar = panel.find<QWidget>("quoteBar");
        QVERIFY(bar->isVisible());
        panel.type(u"明天下午3点 改到周六"_s);
        QVERIFY(panel.reminderBar()->isVisible()); // although a reply makes no reminder
        panel.press(Qt::Key_Return);
        QVERIFY(!bar->isVisible());
        const Note reply = panel.savedNotes().first();
        QCOMPARE(reply.quoteID, quoted.id);
        QVERIFY(panel.reminders.reminders().isEmpty());
        panel.clickPart(2, {RowPart::Kind::Button, 0});
        QTRY_COMPARE(panel.list().currentRow(), 1);
        panel.clickPart(1, {RowPart::Kind::Quote});
        QTRY_COMPARE(panel.list().currentRow(), 2);

        panel.choose(1, u"引用"_s);
        bar->findChild<QAbstractButton *>()->click();
        QVERIFY(!panel.state().quoting());
    }

    void what_is_replaced_in_the_field_can_be_taken_back()
    {
        TestPanel panel;
        panel.notes.add(u"旧"_s);
        panel.type(u"写了一半"_s);
        panel.list().scrollAndFlash(panel.notes.notes().first().id, false);
        QCOMPARE(panel.field()->text(), QString());
        QTest::keyClick(panel.field(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(panel.field()->text(), u"写了一半"_s);
    }

    void what_is_pasted_becomes_one_line()
    {
        TestPanel panel;
        QGuiApplication::clipboard()->setText(u"一\r\n二\n\n三"_s);
        QTest::keyClick(panel.field(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(panel.field()->text(), u"一 二 三"_s);
        panel.choose(*panel.field(), {}, u"&Paste"_s);
        QCOMPARE(panel.field()->text(), u"一 二 三一 二 三"_s);
    }

    void the_extension_in_the_dialog_follows_the_format()
    {
        QTemporaryDir folder;
        QFileDialog dialog(nullptr, {}, folder.path());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        const ExportFormatAccessory accessory(dialog, u"Quillet-2026-03-02"_s);
        dialog.show();
        auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
        auto *formats = dialog.findChild<QComboBox *>(u"fileTypeCombo"_s);
        QCOMPARE(name->text(), u"Quillet-2026-03-02.json"_s);
        const auto nameAfter = [&](const QString &typed, int format) {
            name->setText(typed);
            formats->setCurrentIndex(format);
            Q_EMIT formats->activated(format); // as a hand does
            Q_EMIT formats->textActivated(formats->currentText());
            return name->text();
        };
        QCOMPARE(nameAfter(name->text(), 1), u"Quillet-2026-03-02.md"_s);
        QCOMPARE(accessory.format(), ExportFormatAccessory::Format::Markdown);
        QCOMPARE(nameAfter(u"a.b.txt"_s, 0), u"a.b.json"_s);
        QCOMPARE(nameAfter(u"plain"_s, 1), u"plain.md"_s);
    }

    void a_tag_is_picked_renamed_merged_and_deleted()
    {
        TestPanel panel;
        panel.notes.add(u"甲 #a"_s);
        panel.notes.add(u"乙 #b"_s);
        panel.state().setMode(PanelMode::Tags);
        auto *list = panel.find<RowListView>("tagList");
        QCOMPARE(panel.rowsOf(*list), (QStringList{u"#b"_s, u"#a"_s}));
        const auto rename = [&](int row, const QString &to) {
            panel.choose(*list, row, u"重命名"_s);
            auto *field = list->findChild<QLineEdit *>();
            field->setText(to);
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        rename(0, u"x@y"_s);
        QCOMPARE(panel.rowsOf(*list), (QStringList{u"#b"_s, u"#a"_s}));
        rename(0, u" c "_s);
        QCOMPARE(panel.told(), u"已重命名"_s);
        QCOMPARE(panel.rowsOf(*list), (QStringList{u"#c"_s, u"#a"_s}));
        ModalQuestion::setNextAnswer(false);
        rename(0, u"a"_s);
        QCOMPARE(ModalQuestion::lastMessage(),
            (ModalQuestion::Message{
                u"合并标签？"_s, u"把「#c」改名为已存在的「#a」，涉及 1 条笔记，合并后无法再分开。"_s}));
        QCOMPARE(panel.rowsOf(*list), (QStringList{u"#c"_s, u"#a"_s}));
        ModalQuestion::setNextAnswer(true);
        rename(0, u"a"_s);
        QCOMPARE(panel.rowsOf(*list), QStringList{u"#a"_s});

        ModalQuestion::setNextAnswer(true);
        panel.choose(*list, 0, u"删除"_s);
        QCOMPARE(ModalQuestion::lastMessage().title, u"删除标签「#a」？"_s);
        QCOMPARE(panel.rowsOf(*list), QStringList());

        panel.notes.add(u"丙 #d"_s);
        panel.choose(*list, 0, u"重命名"_s);
        panel.notes.removeTag(u"d"_s);
        QCOMPARE(panel.rowsOf(*list), QStringList());
        QVERIFY(list->findChild<QLineEdit *>()->isHidden());
        panel.notes.add(u"丙 #d"_s);
        panel.clickRow(*list, 0);
        QCOMPARE(panel.state().mode(), PanelMode::Timeline);
        QCOMPARE(panel.field()->text(), u"#d"_s);
    }

    void reminders_are_upcoming_and_expired()
    {
        TestPanel panel;
        const Note note = *panel.notes.add(u"明天交房租"_s);
        panel.reminders.schedule(note.id, at("2026-03-02T02:30:00Z"), u"交房租"_s, note.text);
        panel.reminders.schedule(note.id, at("2026-03-03T02:00:00Z"), u"交房租"_s, note.text);
        panel.state().setMode(PanelMode::Reminders);
        auto *list = panel.find<RowListView>("reminderList");
        QCOMPARE(panel.rowsOf(*list).size(), 2);
        QVERIFY(!panel.find<QWidget>("permissionBanner")->isVisible());
        panel.clock.set("2026-03-02T02:30:00Z");
        panel.window.hide();
        panel.scheduler().status = AuthorizationStatus::Denied;
        panel.reminders.refreshAuthorizationStatus();
        panel.window.show(); // what has expired is kept while notifications are not allowed
        QCOMPARE(panel.rowsOf(*list), (QStringList{u"明天交房租"_s, u"已过期"_s, u"明天交房租"_s}));
        QVERIFY(panel.find<QWidget>("permissionBanner")->isVisible());
        panel.choose(*list, 0, u"跳转到笔记"_s);
        QTRY_COMPARE(panel.list().currentRow(), 1);
        panel.state().setMode(PanelMode::Reminders);
        panel.choose(*list, 0, u"取消提醒"_s);
        QCOMPARE(panel.told(), u"已取消提醒"_s);
        QCOMPARE(panel.rowsOf(*list), QStringList());
    }

    void the_trash_gives_back_and_is_emptied()
    {
        TestPanel panel;
        const Note note = *panel.notes.add(u"一"_s);
        panel.notes.add(u"二"_s);
        panel.state().setMode(PanelMode::Trash);
        auto *empty = panel.find<QPushButton>("emptyTrash");
        QVERIFY(!empty->isEnabled());
        panel.notes.remove(note.id);
        panel.notes.remove(panel.notes.notes().first().id);
        auto *list = panel.find<RowListView>("trashList");
        QCOMPARE(panel.rowsOf(*list).size(), 3);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(panel.notes.notes().size(), 1);
        QCOMPARE(panel.told(), u"已恢复到时间线"_s);
        empty->click();
        QCOMPARE(panel.told(), u"已清空回收站"_s);
        QVERIFY(panel.notes.trash().isEmpty());
        QVERIFY(!empty->isEnabled());
    }

    void what_is_told_does_not_cover_the_current_row()
    {
        TestPanel panel;
        for (int i = 0; i < 40; ++i)
            panel.notes.add(QString::number(i));
        QTRY_VERIFY(panel.field()->hasFocus());
        panel.press(Qt::Key_Down);
        QTest::keyClick(&panel.list(), Qt::Key_End);
        QTest::keyClick(&panel.list(), Qt::Key_Delete);
        const auto bottomOf = [&panel](const QWidget &widget, const QRect &rect) {
            return widget.mapTo(&panel.window, rect.bottomLeft()).y();
        };
        const auto *line = panel.find<StatusLine>("statusLine");
        const RowListView &list = panel.list();
        QVERIFY(line->isVisible());
        QVERIFY(bottomOf(*list.viewport(), list.rectOf(list.currentRow()))
                < line->mapTo(&panel.window, QPoint()).y());
    }

    void what_was_done_is_told_and_taken_back()
    {
        TestPanel panel;
        const QUuid note = panel.notes.add(u"一"_s)->id;
        const Instant later = panel.clock.now() + std::chrono::hours(1);
        panel.reminders.schedule(note, later, u"一"_s, u"一"_s);
        panel.reminders.schedule(note, later + std::chrono::hours(1), u"一"_s, u"一"_s);
        QTRY_VERIFY(panel.field()->hasFocus());
        auto *line = panel.find<StatusLine>("statusLine");
        auto *undo = line->findChild<QPushButton *>();
        const auto wait = [line] {
            line->findChild<QTimer *>()->start(1);
            QTest::qWait(20);
        };
        panel.press(Qt::Key_Down);
        QTest::keyClick(&panel.list(), Qt::Key_Delete);
        QCOMPARE(panel.told(), u"已移到回收站"_s);
        QVERIFY(panel.reminders.reminders().isEmpty());
        panel.clock.advance(std::chrono::hours(1));
        undo->setFocus();
        wait();
        QCOMPARE(panel.told(), u"已移到回收站"_s); // while the focus is on it
        QTest::keyClick(undo, Qt::Key_Return);
        QCOMPARE(panel.rows().last(), u"一"_s);
        QCOMPARE(panel.told(), QString());
        QCOMPARE(panel.reminders.reminders().size(), 1); // what is still to come
        QVERIFY(panel.list().hasFocus());
        QCOMPARE(panel.list().currentRow(), 1);
        QTest::keyClick(&panel.list(), Qt::Key_Delete);
        QTest::keyClick(&panel.list(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(panel.rows().last(), u"一"_s);
        panel.choose(1, u"复制"_s);
        QCOMPARE(panel.told(), u"已复制"_s); // in place of the other
        QVERIFY(!undo->isVisible());
        wait();
        QCOMPARE(panel.told(), QString());
        panel.withMenu(*panel.list().viewport(), panel.list().rectOf(1).center(), [&](QAction &action) {
            panel.notes.remove(note);
            if (action.text().startsWith(u"删除") || action.text().startsWith(u"取消提醒"))
                action.trigger();
        });
        QCOMPARE(panel.told(), QString()); // it was too late
    }

    void a_question_stands_over_the_panel_until_it_is_answered()
    {
        TestPanel panel;
        panel.notes.add(u"甲 #a"_s);
        QTRY_VERIFY(panel.field()->hasFocus());
        panel.state().setMode(PanelMode::Tags);
        auto *list = panel.find<RowListView>("tagList");
        const auto press = [&panel](const QList<Qt::Key> &keys) {
            for (const Qt::Key key : keys)
                QTest::keyClick(panel.window.focusWidget(), key);
        };
        const auto isDeletedAfter = [&](const std::function<void()> &act) {
            list->enter();
            QTimer::singleShot(0, &panel.window, act);
            QTest::keyClick(list, Qt::Key_Delete);
            return panel.notes.tags().isEmpty();
        };
        QVERIFY(!isDeletedAfter([&] { press({Qt::Key_Return}); })); // the button to cancel has the focus
        QVERIFY(!isDeletedAfter([&] { press({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}); }));
        QVERIFY(!isDeletedAfter([&] { press({Qt::Key_Escape}); }));
        QVERIFY(panel.window.isVisible());
        QVERIFY(list->hasFocus());
        QVERIFY(!isDeletedAfter([&] {
            QTest::keyClick(panel.window.focusWidget(), Qt::Key_1, Qt::ControlModifier);
            panel.state().focusComposer();
            panel.clickRow(*list, 0);
            panel.window.hide();
        }));
        QCOMPARE(panel.state().mode(), PanelMode::Tags);
        panel.window.show();
        QVERIFY(isDeletedAfter([&] { press({Qt::Key_Tab, Qt::Key_Return}); }));
        QCOMPARE(panel.told(), u"已删除标签"_s);
    }

    void what_changes_while_a_question_stands_does_no_harm()
    {
        TestPanel panel;
        const Note note = *panel.notes.add(u"甲 #a"_s);
        QTRY_VERIFY(panel.field()->hasFocus());
        auto *list = panel.find<RowListView>("tagList");
        const auto escape = [&panel] { QTest::keyClick(panel.window.focusWidget(), Qt::Key_Escape); };
        const auto ask = [&](const std::function<void()> &meanwhile) {
            panel.state().setMode(PanelMode::Tags);
            list->enter();
            QTimer::singleShot(0, &panel.window, meanwhile);
            QTest::keyClick(list, Qt::Key_Delete);
            return panel.content->isEnabled();
        };
        QVERIFY(ask([&] {
            panel.state().setMode(PanelMode::Timeline);
            escape();
        }));
        QVERIFY(panel.field()->hasFocus());
        QVERIFY(ask([&] {
            panel.state().openNote(note.id);
            escape();
        }));
        QVERIFY(panel.list().hasFocus());
        QCOMPARE(panel.list().currentRow(), 1);

        const auto report = [&](const std::function<void()> &meanwhile) {
            QTimer::singleShot(0, &panel.window, meanwhile);
            ModalQuestion::inform(panel.content, u"导入完成"_s, {});
        };
        QVERIFY(ask([&] {
            report(escape);
            QVERIFY(!panel.content->isEnabled());
            escape();
        }));
        QVERIFY(list->hasFocus());
        QVERIFY(ask([&] { report([&] { panel.window.hide(); }); }));

        auto owner = std::make_unique<QWidget>(); // a panel that is made anew
        QTimer::singleShot(0, &panel.window, [&owner] {
            owner.reset();
            QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_Escape);
        });
        ModalQuestion::inform(owner.get(), u"导入完成"_s, {});
        QVERIFY(!owner);
    }

    void a_question_stands_though_the_focus_goes_elsewhere()
    {
        TestPanel panel;
        panel.notes.add(u"甲 #a #b"_s);
        QVERIFY(QTest::qWaitForWindowActive(&panel.window));
        panel.state().setMode(PanelMode::Tags);
        auto *list = panel.find<RowListView>("tagList");
        QSignalSpy lost(&panel.window, &PanelWindow::focusLost);
        QWidget other;
        other.show();
        panel.choose(*list, 0, u"重命名"_s);
        list->findChild<QLineEdit *>()->setText(list->model().text(1).sliced(1));
        QTimer::singleShot(100, &panel.window, [&] {
            QVERIFY(lost.isEmpty());
            auto *sheet = panel.find<QWidget>("sheet");
            QTest::mouseClick(sheet->findChild<QPushButton *>(), Qt::LeftButton);
        });
        other.activateWindow(); // commits the name
        QTRY_COMPARE(panel.notes.tags().size(), 1);
        panel.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel.window));
        other.activateWindow();
        QTRY_COMPARE(lost.size(), 1);
    }

    void an_edit_never_shows_the_bar_of_a_reminder()
    {
        TestPanel panel;
        panel.notes.add(u"明天9点 开会"_s);
        bool isShown = false;
        const auto look = [&] { isShown |= panel.reminderBar()->isVisible(); };
        connect(&panel.state(), &PanelState::draftChanged, &panel.window, look);
        connect(&panel.state(), &PanelState::editingIDChanged, &panel.window, look);
        panel.choose(1, u"编辑"_s);
        panel.type(u"！"_s);
        panel.press(Qt::Key_Return);
        QCOMPARE(panel.savedNotes().first().text, u"明天9点 开会！"_s);
        QVERIFY(!isShown);
    }

    void the_page_of_keys_lists_what_the_menus_do()
    {
        TestPanel panel;
        const Note note = *panel.notes.add(u"明天 #a"_s, {}, u"https://a.example"_s);
        panel.notes.add(u"答 #a"_s, note);
        panel.notes.add(u"旧"_s);
        panel.notes.remove(panel.notes.notes().first().id);
        panel.reminders.schedule(note.id, at("2026-03-03T02:00:00Z"), u"明天"_s, note.text);
        QTRY_VERIFY(panel.field()->hasFocus());
        QStringList shown;
        QTimer::singleShot(0, &panel.window, [&] {
            const auto labels = panel.find<QWidget>("sheet")->findChildren<QLabel *>();
            for (qsizetype i = 1; i < labels.size(); i += 2) // after the title, a key and what it does
                shown.append(labels[i]->text() + u'\t' + labels[i + 1]->text());
            QTest::keyClick(panel.window.focusWidget(), Qt::Key_F1);
        });
        QTest::keyClick(&panel.window, Qt::Key_F1);
        shown.remove(0, shown.indexOf(u"Ctrl+1\t笔记"_s)); // the keys of the panel
        QStringList expected = {u"Ctrl+1\t笔记"_s, u"Ctrl+2\t标签"_s, u"Ctrl+3\t提醒"_s, u"Ctrl+4\t回收站"_s};
        QStringList withoutKey;
        int lists = 0;
        for (const char *name : {"timeline", "tagList", "reminderList", "trashList"}) {
            auto *list = panel.find<RowListView>(name);
            QStringList entries;
            panel.state().setMode(PanelMode(lists++));
            for (int row = 0; row < list->model().rowCount(); ++row) {
                if (list->model().isHeader(row))
                    continue;
                panel.withMenu(*list->viewport(), list->rectOf(row).center(), [&](const QAction &action) {
                    const QStringList parts = action.text().split(u'\t'); // the title and the key
                    if (parts.size() == 2)
                        entries.append(parts.last() + u'\t' + parts.first());
                    else if (!action.isSeparator())
                        withoutKey.append(parts.first());
                });
            }
            entries.removeDuplicates();
            expected.append(entries);
        }
        QVERIFY(expected.size() > 12);
        shown.sort();
        expected.sort();
        QCOMPARE(shown, expected);
        withoutKey.removeDuplicates();
        QCOMPARE(withoutKey, QStringList{u"筛选 #a"_s});
    }

    void midnight_moves_today()
    {
        TestPanel panel;
        panel.notes.add(u"一"_s);
        QCOMPARE(panel.rows().first(), u"今天 · 3月2日 星期一"_s);
        panel.window.hide();
        panel.clock.set("2026-03-02T16:00:00Z");
        panel.window.show();
        QCOMPARE(panel.rows().first(), u"3月2日 星期一"_s);
    }

    void notes_go_out_and_come_in()
    {
        TestPanel panel;
        const QTemporaryDir folder;
        panel.notes.add(u"一 #t"_s);
        using Target = FileDialogs::Target;
        using Format = ExportFormatAccessory::Format;
        const auto isWrittenTo = [&](const QString &name, Format format, const QString &written) {
            FileDialogs::setNextTarget(Target{folder.filePath(name), format});
            ImportExport::exportNotes(panel.notes, panel.clock, nullptr);
            return QFile::exists(folder.filePath(written));
        };
        QVERIFY(isWrittenTo(u"a.MD"_s, Format::Json, u"a.json"_s));
        QVERIFY(isWrittenTo(u"b.markdown"_s, Format::Markdown, u"b.md"_s));
        QVERIFY(isWrittenTo(u"c.txt"_s, Format::Json, u"c.txt.json"_s));
        const auto import = [&](const QString &name) {
            FileDialogs::setNextSource(folder.filePath(name));
            ModalQuestion::setNextAnswer(true);
            ImportExport::importNotes(panel.notes, panel.clock, nullptr);
            return ModalQuestion::lastMessage();
        };
        QCOMPARE(import(u"a.json"_s),
            (ModalQuestion::Message{u"没有可导入的笔记"_s, u"文件中的笔记均已存在。"_s}));
        QCOMPARE(import(u"b.md"_s), (ModalQuestion::Message{u"导入完成"_s, u"已导入 1 条笔记。"_s}));
        QCOMPARE(import(u"nothing.json"_s).title, u"导入失败"_s);
        ModalQuestion::setNextAnswer(true);
        QVERIFY(!isWrittenTo(u"nowhere/x"_s, Format::Json, u"nowhere/x.json"_s));
        QCOMPARE(ModalQuestion::lastMessage().title, u"导出失败"_s);
    }
};

QTEST_MAIN(ModesTest)
#include "tst_modes.moc"
