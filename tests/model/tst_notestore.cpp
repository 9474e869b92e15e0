// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "model/AppPaths.h"
#include "model/NoteCoding.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "support/RecordingScheduler.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class NoteStoreTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    TestClock m_clock{"2026-03-02T02:00:00Z"};

    QString path(const QString &name) const { return m_folder->filePath(u"Quillet/"_s + name); }
    void saveAs(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(path({}));
        writeFile(path(name), bytes);
    }
    QString notesPath() const { return path(u"notes.json"_s); }
    std::unique_ptr<NoteStore> store() { return std::make_unique<NoteStore>(notesPath(), m_clock); }

    static QStringList texts(const QList<Note> &notes)
    {
        QStringList result;
        for (const Note &note : notes)
            result.append(note.text);
        return result;
    }
    QStringList savedTexts(const QString &name) const
    {
        return texts(noteDecoder::decodeNotes(readFile(path(name))).value());
    }
    static Note note(const char *text, const char *createdAt)
    {
        return {QUuid::createUuid(), QString::fromUtf8(text), {}, {}, {}, at(createdAt)};
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_clock.set("2026-03-02T02:00:00Z");
    }

    void a_note_is_trimmed_announced_saved_and_found_again()
    {
        const auto notes = store();
        QSignalSpy changed(notes.get(), &NoteStore::notesChanged);
        bool wasSavedWhenAnnounced = true;
        connect(notes.get(), &NoteStore::notesChanged, this,
            [&] { wasSavedWhenAnnounced = QFile::exists(notesPath()); });

        QVERIFY(!notes->add(u" \u3000\n"_s));
        QVERIFY(!QFile::exists(notesPath()));
        const auto added = notes->add(u"  买牛奶 \n"_s);
        QVERIFY(added);
        QVERIFY(!wasSavedWhenAnnounced);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(savedTexts(u"notes.json"_s), QStringList{u"买牛奶"_s});
        QCOMPARE(readFile(path(u"trash.json"_s)), "[\n\n]");
        QCOMPARE(store()->notes(), QList<Note>{*added});
    }

    void an_edit_keeps_everything_but_the_text()
    {
        const auto notes = store();
        const Note quoted = *notes->add(u"第一"_s);
        m_clock.advance(std::chrono::minutes(1));
        const Note reply = *notes->add(u"第二"_s, quoted, u"https://a.example/"_s);
        notes->update(quoted.id, u" 改 "_s);
        notes->update(reply.id, u" "_s);
        notes->update(QUuid::createUuid(), u"x"_s);
        QCOMPARE(texts(notes->notes()), (QStringList{u"第二"_s, u"改"_s}));
        QCOMPARE(notes->notes().first().quote, u"第一"_s); // as it was when the reply was written
    }

    void a_title_replaces_only_the_text_it_was_fetched_for()
    {
        const auto notes = store();
        const Note link = *notes->add(u"https://a.example/x"_s, {}, u"https://a.example/x"_s);
        for (const QString &other : {u"https://a.example/"_s, u"https://a.example/xy"_s, u"a.example/x"_s,
                 u"https://A.example/x"_s, QString()}) {
            notes->applyLinkTitle(u"标题"_s, link.id, other);
            QCOMPARE(notes->notes().first(), link);
        }
        notes->applyLinkTitle(u"标题"_s, link.id, link.text);
        QCOMPARE(notes->notes().first().text, u"标题"_s);
        QCOMPARE(notes->notes().first().link, link.link);
    }

    void a_note_goes_to_the_trash_and_back_to_its_place()
    {
        const auto notes = store();
        const Note first = *notes->add(u"一"_s);
        const Note second = *notes->add(u"二"_s); // written at the same moment
        m_clock.advance(std::chrono::minutes(1));
        const Note third = *notes->add(u"三"_s);
        notes->remove(first.id);
        notes->remove(third.id);
        notes->remove(first.id); // is gone already
        QCOMPARE(texts(notes->trash()), (QStringList{u"三"_s, u"一"_s}));
        QCOMPARE(savedTexts(u"trash.json"_s), (QStringList{u"三"_s, u"一"_s}));
        QCOMPARE(savedTexts(u"notes.json"_s), QStringList{u"二"_s});
        notes->restore(first.id);
        notes->restore(third.id);
        QCOMPARE(texts(notes->notes()), (QStringList{u"三"_s, u"二"_s, u"一"_s})); // behind its equal
        notes->remove(second.id);
        notes->emptyTrash();
        QCOMPARE(readFile(path(u"trash.json"_s)), "[\n\n]");
    }

    void a_reminder_comes_with_the_note_and_goes_with_it()
    {
        RecordingScheduler scheduler;
        ReminderStore reminders(path(u"reminders.json"_s), scheduler, m_clock);
        const auto notes = store();
        const ParsedReminder soon{at("2026-03-03T07:00:00Z"), u"交房租"_s};
        notes->add(u"没有人听"_s, {}, {}, soon);
        QVERIFY(reminders.reminders().isEmpty());
        notes->setReminderStore(&reminders);
        notes->add(u"过去"_s, {}, {}, ParsedReminder{at("2026-03-02T02:00:00Z"), u"过去"_s});
        QVERIFY(reminders.reminders().isEmpty());
        const Note added = *notes->add(u" 明天下午3点 交房租 "_s, {}, {}, soon);
        const auto reminder = reminders.reminder(added.id);
        QVERIFY(reminder);
        QCOMPARE(reminder->text, u"交房租"_s);
        QCOMPARE(reminder->fullText, u"明天下午3点 交房租"_s);
        notes->remove(added.id);
        QVERIFY(!reminders.hasReminder(added.id));
    }

    void notes_are_sorted_when_they_are_loaded_and_the_trash_is_not()
    {
        const QList<Note> saved{note("旧", "2026-01-01T00:00:00Z"), note("新", "2026-03-01T00:00:00Z"),
            note("又新", "2026-03-01T00:00:00Z")};
        saveAs(u"notes.json"_s, noteEncoder::encode(saved));
        saveAs(u"trash.json"_s, noteEncoder::encode(QList<Note>{
                                    note("先", "2026-01-01T00:00:00Z"), note("后", "2026-03-01T00:00:00Z")}));
        const auto notes = store();
        QCOMPARE(texts(notes->notes()), (QStringList{u"新"_s, u"又新"_s, u"旧"_s}));
        QCOMPARE(texts(notes->trash()), (QStringList{u"先"_s, u"后"_s}));
    }

    void the_later_of_two_notes_under_one_id_gets_an_id_of_its_own()
    {
        const Note first = note("一", "2026-01-01T00:00:00Z");
        Note second = note("二", "2026-03-01T00:00:00Z"); // newer, but later in the file
        Note trashed = note("三", "2026-01-01T00:00:00Z");
        second.id = trashed.id = first.id;
        saveAs(u"notes.json"_s, noteEncoder::encode(QList<Note>{first, second}));
        saveAs(u"trash.json"_s, noteEncoder::encode(QList<Note>{trashed}));
        const auto notes = store();
        QCOMPARE(texts(notes->notes()), (QStringList{u"二"_s, u"一"_s}));
        QCOMPARE(notes->notes().last(), first);
        QCOMPARE(notes->note(first.id), first);
        const QUuid secondID = notes->notes().first().id;
        const QUuid trashedID = notes->trash().first().id;
        QVERIFY(secondID != first.id && trashedID != first.id && secondID != trashedID);
        QCOMPARE(notes->trash().first().text, u"三"_s);
    }

    void nothing_is_announced_or_saved_where_nothing_changes()
    {
        const auto notes = store();
        const Note live = *notes->add(u"在 #a"_s);
        const Note trashed = *notes->add(u"删"_s);
        notes->remove(trashed.id);
        QVERIFY(QDir(path({})).removeRecursively());
        QSignalSpy changed(notes.get(), &NoteStore::notesChanged);
        notes->add(u"\t"_s);
        notes->update(live.id, u" "_s);
        notes->update(trashed.id, u"x"_s);
        notes->applyLinkTitle(u"标题"_s, live.id, u"在"_s);
        notes->remove(trashed.id);
        notes->restore(live.id);
        notes->importNotes({live, trashed});
        for (const QString &name : {u"a"_s, u" a\t"_s, u" "_s, u"#b"_s, u"b c"_s, u"b\tc"_s, u"b@c"_s})
            notes->renameTag(u"a"_s, name);
        notes->renameTag(u"A"_s, u"b"_s);
        notes->removeTag(u"A"_s);
        QVERIFY(!QFile::exists(notesPath()));
        notes->emptyTrash();
        QVERIFY(QDir(path({})).removeRecursively());
        notes->emptyTrash();
        QVERIFY(!QFile::exists(notesPath()));
        QCOMPARE(changed.count(), 1); // the trash was emptied once
    }

    void a_tag_is_renamed_everywhere_and_may_merge()
    {
        const auto notes = store();
        const Note trashed = *notes->add(u"旧 #work"_s);
        notes->remove(trashed.id);
        notes->add(u"#work #working #job"_s);
        notes->renameTag(u"work"_s, u" job\t"_s);
        QCOMPARE(texts(notes->notes()), QStringList{u"#job #working #job"_s});
        QCOMPARE(texts(notes->trash()), QStringList{u"旧 #job"_s});
    }

    void a_note_that_was_only_the_tag_leaves_with_it()
    {
        RecordingScheduler scheduler;
        ReminderStore reminders(path(u"reminders.json"_s), scheduler, m_clock);
        const auto notes = store();
        notes->setReminderStore(&reminders);
        notes->remove(notes->add(u"#x"_s)->id);
        notes->remove(notes->add(u"留 #x"_s)->id);
        notes->add(u"buy #x milk"_s);
        const Note emptiedBefore = *notes->add(u"#y"_s);
        notes->removeTag(u"y"_s);
        notes->restore(emptiedBefore.id);
        const Note only =
            *notes->add(u"#x #x"_s, {}, {}, ParsedReminder{at("2026-03-03T07:00:00Z"), u"#x"_s});
        notes->removeTag(u"x"_s);
        QCOMPARE(texts(notes->notes()), (QStringList{u"buy milk"_s, u""_s}));
        QCOMPARE(notes->notes().last().id, emptiedBefore.id); // had no such tag
        QCOMPARE(texts(notes->trash()), (QStringList{u""_s, u"留"_s}));
        QCOMPARE(notes->trash().first().id, only.id);
        QVERIFY(reminders.reminders().isEmpty());
        QCOMPARE(savedTexts(u"trash.json"_s), (QStringList{u""_s, u"留"_s}));
    }

    void a_file_that_cannot_be_understood_is_kept_aside_before_it_is_replaced()
    {
        saveAs(u"notes.json"_s, "[{\"text\" : \"half");
        const auto notes = store();
        QVERIFY(notes->notes().isEmpty());
        QCOMPARE(readFile(notesPath()), "[{\"text\" : \"half"); // only the first save moves it
        notes->add(u"新"_s);
        notes->add(u"新二"_s);
        QCOMPARE(savedTexts(u"notes.json"_s), (QStringList{u"新二"_s, u"新"_s}));
        QCOMPARE(readFile(path(u"notes.json.unreadable-20260302T020000Z"_s)), "[{\"text\" : \"half");
        const QStringList aside = QDir(path({})).entryList({u"*unreadable*"_s});
        QCOMPARE(aside.size(), 1);
    }

    void a_failed_save_is_one_line_and_keeps_the_list()
    {
        writeFile(m_folder->filePath(u"Quillet"_s), "a file where the folder should be");
        const auto notes = store();
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(u"^Quillet: failed to save notes: cannot create .*$"_s));
        QVERIFY(notes->add(u"留着"_s));
        QCOMPARE(texts(notes->notes()), QStringList{u"留着"_s});
    }

    void a_relative_data_folder_is_ignored()
    {
        qputenv("XDG_DATA_HOME", "relative");
        QCOMPARE(AppPaths::dataFolder(), QDir::homePath() + u"/.local/share/Quillet"_s);
        qputenv("XDG_DATA_HOME", "/tmp/elsewhere");
        QCOMPARE(AppPaths::dataFolder(), u"/tmp/elsewhere/Quillet"_s);
    }

    void data_moves_once_out_of_the_legacy_folder()
    {
        const QString base = m_folder->path();
        QDir(base).mkpath(u"Tallypad"_s);
        QDir(base).mkpath(u"Quillet"_s);
        writeFile(base + u"/Tallypad/notes.json"_s, "old notes");
        writeFile(base + u"/Tallypad/reminders.json"_s, "old reminders");
        writeFile(base + u"/Quillet/notes.json"_s, "new notes");
        AppPaths::migrateLegacyDataIfNeeded(base);
        QCOMPARE(readFile(base + u"/Quillet/notes.json"_s), "new notes");
        QCOMPARE(readFile(base + u"/Quillet/reminders.json"_s), "old reminders");
        QCOMPARE(readFile(base + u"/Tallypad/notes.json"_s), "old notes");
        QFile::remove(base + u"/Quillet/notes.json"_s);
        AppPaths::migrateLegacyDataIfNeeded(base);
        QCOMPARE(readFile(base + u"/Quillet/notes.json"_s), "old notes");
        QVERIFY(!QFile::exists(base + u"/Tallypad"_s));

        QDir(base).mkpath(u"Tallypad"_s);
        QDir(base + u"/Quillet"_s).removeRecursively();
        writeFile(base + u"/Quillet"_s, "a file");
        writeFile(base + u"/Tallypad/trash.json"_s, "old trash");
        QTest::ignoreMessage(QtWarningMsg,
            QRegularExpression(u"^Quillet: failed to migrate trash.json from .*/Tallypad/trash.json: .+$"_s));
        AppPaths::migrateLegacyDataIfNeeded(base);
        QCOMPARE(readFile(base + u"/Tallypad/trash.json"_s), "old trash");
    }
};

QTEST_GUILESS_MAIN(NoteStoreTest)
#include "tst_notestore.moc"
