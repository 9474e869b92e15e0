// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "search/ConceptEmbeddingProvider.h"
#include "support/RecordingScheduler.h"
#include "support/TestClock.h"
#include "ui/lists/ReminderModel.h"
#include "ui/lists/TagModel.h"
#include "ui/lists/TimelineModel.h"
#include "ui/lists/TrashModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
/// A timeline of real stores in a temporary folder.
struct Timeline {
    const QTemporaryDir folder;
    TestClock clock{"2026-03-02T02:00:00Z"};
    RecordingScheduler scheduler;
    ReminderStore reminders{folder.filePath(u"reminders.json"_s), scheduler, clock};
    NoteStore notes{folder.filePath(u"notes.json"_s), clock};
    ConceptEmbeddingProvider embeddings;
    NoteSearch search{notes, &embeddings, clock};
    TimelineModel model{notes, search, reminders, clock};
    const QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};

    Timeline() { notes.setReminderStore(&reminders); }
    [[nodiscard]] QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(model.index(row).data().toString());
        return rows;
    }
};
} // namespace

class TimelineModelTest final : public QObject
{
    Q_OBJECT

    static QList<int> ranges(const QSignalSpy &spy)
    {
        QList<int> ranges;
        for (const QList<QVariant> &arguments : spy)
            ranges << arguments[1].toInt() << arguments[2].toInt();
        return ranges;
    }

private Q_SLOTS:
    void rows_come_and_go_where_the_store_changes()
    {
        Timeline timeline;

        const Note oldest = *timeline.notes.add(u"一"_s);
        timeline.clock.advance(std::chrono::hours(24));
        const Note middle = *timeline.notes.add(u"二"_s);
        const Note newest = *timeline.notes.add(u"三"_s);
        QCOMPARE(timeline.rows(),
            (QStringList{u"今天 · 3月3日 星期二"_s, u"三"_s, u"二"_s, u"3月2日 星期一"_s, u"一"_s}));

        QSignalSpy inserted(&timeline.model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&timeline.model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy changed(&timeline.model, &QAbstractItemModel::dataChanged);
        timeline.notes.update(middle.id, u"改"_s);
        QCOMPARE(changed.takeFirst()[0].toModelIndex().row(), 2);
        timeline.notes.remove(newest.id);
        QCOMPARE(ranges(removed), (QList<int>{1, 1}));
        removed.clear();
        timeline.notes.remove(oldest.id); // its day goes with it
        QCOMPARE(ranges(removed), (QList<int>{2, 3}));
        timeline.notes.restore(oldest.id);
        QCOMPARE(ranges(inserted), (QList<int>{2, 3}));
        QCOMPARE(changed.count(), 0);

        timeline.reminders.schedule(middle.id, at("2026-03-04T01:00:00Z"), u"改"_s, u"改"_s);
        QCOMPARE(changed.count(), 1);
        QVERIFY(timeline.model.row(1).hasReminder);

        removed.clear();
        timeline.model.setQuery(u"一"_s);
        QCOMPARE(timeline.rows(), (QStringList{u"3月2日 星期一"_s, u"一"_s}));
        QCOMPARE(ranges(removed), (QList<int>{0, 1}));
        QCOMPARE(timeline.model.indexOf(middle.id), QModelIndex());
        QCOMPARE(timeline.model.indexOf(oldest.id).row(), 1);
    }

    void a_note_with_a_reminder_is_removed_while_a_filter_shows_the_oldest()
    {
        Timeline timeline;
        const ParsedReminder soon{at("2026-03-03T07:00:00Z"), u"茶"_s};
        timeline.notes.add(u"茶 一"_s);
        timeline.notes.add(u"#茶"_s, {}, {}, soon);
        const Note newest = *timeline.notes.add(u"茶 二"_s, {}, {}, soon);
        timeline.model.setQuery(u"茶"_s);
        timeline.notes.remove(newest.id);
        QCOMPARE(timeline.rows(), (QStringList{u"今天 · 3月2日 星期一"_s, u"#茶"_s, u"茶 一"_s}));
        timeline.notes.removeTag(u"茶"_s);
        QCOMPARE(timeline.rows(), (QStringList{u"今天 · 3月2日 星期一"_s, u"茶 一"_s}));
        QVERIFY(timeline.reminders.reminders().isEmpty());
    }

    void what_resembles_the_query_is_shown_where_nothing_contains_it()
    {
        Timeline timeline;
        for (const QString &text :
            {u"口腔科补洞"_s, u"整理书架"_s, u"看电影"_s, u"买牛奶"_s, u"牙线买细的"_s})
            timeline.notes.add(text);

        timeline.model.setQuery(u"牙医"_s);
        QCOMPARE(timeline.rows(), QStringList()); // at first, since typing does not wait for it
        const QStringList resembling{u"语义相关"_s, u"今天 · 3月2日 星期一"_s, u"口腔科补洞"_s};
        QTRY_COMPARE(timeline.rows(), resembling);
        QVERIFY(timeline.model.row(2).isSemanticOnly);

        timeline.model.setQuery(u"牙医们"_s);
        QCOMPARE(timeline.rows(), resembling); // which stays until the next is known
        timeline.notes.add(u"约了牙医们"_s);
        QCOMPARE(timeline.rows(), (QStringList{u"今天 · 3月2日 星期一"_s, u"约了牙医们"_s}));
        QTest::qWait(100);
        QCOMPARE(timeline.rows().size(), 2); // the search that was under way is over

        for (const QString &text : {u"牙科复查"_s, u"补牙"_s})
            timeline.notes.add(text);
        timeline.model.setQuery(u"牙痛"_s);
        QTRY_VERIFY(timeline.rows().size() > 3);
        QStringList remaining = timeline.rows();
        const QUuid removed = timeline.model.row(2).id;
        remaining.removeAt(2);
        timeline.notes.remove(removed);
        QCOMPARE(timeline.rows(), remaining); // at once, so that a current row stays

        timeline.model.setQuery(u"qwzx"_s);
        QTest::qWait(100);
        QCOMPARE(timeline.rows(), QStringList());
        timeline.model.setQuery(QString());
        QCOMPARE(timeline.rows().size(), 8);
    }

    void rows_are_spoken_with_all_that_they_show()
    {
        Timeline timeline;
        NoteStore &notes = timeline.notes;
        const ReminderModel reminders(notes, timeline.reminders, timeline.clock);
        const TagModel tags(notes);
        const TrashModel trash(notes, timeline.clock);
        const auto spoken = [](const RowModel &model) {
            QStringList rows;
            for (int row = 0; row < model.rowCount(); ++row)
                rows.append(model.spokenText(row));
            return rows;
        };
        const Note quoted = *notes.add(u"买\n牛奶"_s);
        notes.add(u"#家 看"_s, quoted, u"https://example.org/"_s,
            ParsedReminder{at("2026-03-03T07:00:00Z"), u"看"_s});
        QCOMPARE(spoken(timeline.model),
            (QStringList{u"今天 · 2026年3月2日 星期一"_s,
                u"10:00，#家 看，明天 15:00 提醒，引用 买 牛奶，https://example.org/"_s,
                u"10:00，买\n牛奶"_s}));
        QCOMPARE(spoken(reminders), QStringList{u"明天 15:00，#家 看"_s});
        QCOMPARE(spoken(tags), QStringList{u"#家，1 条笔记"_s});
        notes.remove(quoted.id);
        QCOMPARE(spoken(trash), (QStringList{u"今天 · 2026年3月2日 星期一"_s, u"10:00，买\n牛奶"_s}));
    }
};

QTEST_MAIN(TimelineModelTest)
#include "tst_timelinemodel.moc"
