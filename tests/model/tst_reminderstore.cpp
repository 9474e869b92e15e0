// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "model/NoteCoding.h"
#include "model/ReminderStore.h"
#include "support/RecordingScheduler.h"
#include "support/TestClock.h"
#include "support/TestFiles.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ReminderStoreTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingScheduler> m_scheduler;
    TestClock m_clock{"2026-03-02T02:00:00Z"};

    QString file() const { return m_folder->filePath(u"reminders.json"_s); }
    std::unique_ptr<ReminderStore> store()
    {
        return std::make_unique<ReminderStore>(file(), *m_scheduler, m_clock);
    }
    static Reminder schedule(ReminderStore &store, const char *fireAt, QUuid note = QUuid::createUuid())
    {
        return *store.schedule(note, at(fireAt), u"x"_s, u"x"_s);
    }
    QList<Reminder> saved() const { return noteDecoder::decodeReminders(readFile(file())).value(); }
    static QString text(QUuid id) { return id.toString(QUuid::WithoutBraces).toUpper(); }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!Quillet: notification authorization)"_s));
        m_folder = std::make_unique<QTemporaryDir>();
        m_scheduler = std::make_unique<RecordingScheduler>();
        m_clock.set("2026-03-02T02:00:00Z");
    }

    void a_reminder_is_sorted_saved_and_submitted()
    {
        const auto reminders = store();
        const QUuid note = QUuid::createUuid();
        QVERIFY(!reminders->schedule(note, m_clock.now(), u"现在"_s, u"x"_s));
        QVERIFY(!QFile::exists(file()));

        const Reminder late = *reminders->schedule(note, at("2026-03-02T02:15:59Z"), u"后"_s, u"10:15 后"_s);
        const Reminder early = *reminders->schedule(note, at("2026-03-02T02:05:00Z"), u"先"_s, u"10:05 先"_s);
        const Reminder alsoLate =
            *reminders->schedule(note, at("2026-03-02T02:15:59Z"), u"又"_s, u"10:15 又"_s);
        QCOMPARE(reminders->reminders(), (QList<Reminder>{early, late, alsoLate}));
        QCOMPARE(saved(), reminders->reminders());
        QCOMPARE(reminders->reminder(note), early);
        QCOMPARE(late.createdAt, m_clock.now());

        QCOMPARE(m_scheduler->askedOptions, (QList<int>{6, 6, 6}));
        QCOMPARE(m_scheduler->added.first(), (NotificationRequest{text(late.id), u"Quillet 提醒"_s, u"后"_s,
                                                 text(note), at("2026-03-02T02:15:00Z")}));
    }

    void the_log_tells_what_the_service_answered()
    {
        const auto reminders = store();
        m_scheduler->error = u"no\r\nway"_s;
        QTest::ignoreMessage(QtWarningMsg, "Quillet: notification authorization error: no  way");
        QTest::ignoreMessage(QtWarningMsg, "Quillet: notification authorization granted=false");
        schedule(*reminders, "2026-03-02T02:05:00Z");
        m_scheduler->error.clear();
        m_scheduler->status = AuthorizationStatus::Authorized;
        QTest::ignoreMessage(QtWarningMsg, "Quillet: notification authorization granted=true");
        schedule(*reminders, "2026-03-02T02:05:00Z");
        QCOMPARE(reminders->authorizationStatus(), AuthorizationStatus::Authorized);
    }

    void the_status_is_asked_at_start_and_announced_only_when_it_changes()
    {
        m_scheduler->status = AuthorizationStatus::Denied;
        auto reminders = store();
        QCOMPARE(reminders->authorizationStatus(), AuthorizationStatus::Denied);
        QSignalSpy changed(reminders.get(), &ReminderStore::authorizationStatusChanged);
        reminders->refreshAuthorizationStatus();
        QCOMPARE(changed.count(), 0);
        m_scheduler->completions.first()(AuthorizationStatus::Authorized);
        QCOMPARE(changed.count(), 1);
        reminders.reset();
        m_scheduler->completions.first()(AuthorizationStatus::Denied); // an answer after the store has gone
    }

    void each_change_is_announced_before_it_is_saved()
    {
        m_scheduler->status = AuthorizationStatus::Authorized;
        const auto reminders = store();
        writeFile(file(), noteEncoder::encode(QList<Reminder>()));
        QString log; // how many reminders are in the list and in the file, at each announcement
        connect(reminders.get(), &ReminderStore::remindersChanged, this,
            [&] { log += u"%1/%2 "_s.arg(reminders->reminders().size()).arg(saved().size()); });
        for (const char *time : {"2026-03-02T02:05:00Z", "2026-03-02T02:06:00Z"})
            schedule(*reminders, time);
        reminders->cancel(reminders->reminders().first().id);
        m_clock.set("2026-03-02T02:06:00Z");
        reminders->pruneExpired();
        QCOMPARE(log, u"1/0 2/1 1/2 0/1 "_s);
        QFile::remove(file());
        reminders->pruneExpired(); // nothing
        QVERIFY(!QFile::exists(file()));
    }

    void a_failed_save_is_logged_and_made_good_by_the_next()
    {
        const auto reminders = store();
        QVERIFY(QDir().mkdir(file()));
        QTest::ignoreMessage(QtWarningMsg,
            QRegularExpression(u"^Quillet: failed to save reminders: cannot replace .*: Is a directory$"_s));
        schedule(*reminders, "2026-03-02T02:05:00Z");
        QVERIFY(QDir().rmdir(file()));
        schedule(*reminders, "2026-03-02T02:06:00Z");
        QCOMPARE(saved(), reminders->reminders());
    }

    void cancelling_withdraws_each_request_of_the_note()
    {
        const auto reminders = store();
        const QUuid note = QUuid::createUuid();
        const Reminder other = schedule(*reminders, "2026-03-02T02:05:00Z");
        const Reminder one = schedule(*reminders, "2026-03-02T02:05:00Z", note);
        const Reminder two = schedule(*reminders, "2026-03-02T02:06:00Z", note);
        QSignalSpy changed(reminders.get(), &ReminderStore::remindersChanged);
        reminders->cancel(QUuid::createUuid());
        QCOMPARE(changed.count(), 0);
        reminders->cancelForNote(note);
        QCOMPARE(m_scheduler->removed, (QList<QStringList>{{text(one.id)}, {text(two.id)}}));
        QCOMPARE(saved(), QList<Reminder>{other});
    }

    void what_has_expired_is_pruned_only_while_notifications_are_allowed()
    {
        const auto reminders = store();
        const Reminder due = schedule(*reminders, "2026-03-02T02:05:00Z");
        const Reminder ahead = schedule(*reminders, "2026-03-02T02:05:01Z");
        m_clock.set("2026-03-02T02:05:00Z");
        for (const auto status : {AuthorizationStatus::NotDetermined, AuthorizationStatus::Denied}) {
            m_scheduler->status = status;
            reminders->refreshAuthorizationStatus();
            reminders->pruneExpired();
            QCOMPARE(reminders->reminders().size(), 2);
        }
        m_scheduler->status = AuthorizationStatus::Provisional;
        reminders->refreshAuthorizationStatus();
        reminders->pruneExpired();
        QCOMPARE(reminders->reminders(), QList<Reminder>{ahead});
        QCOMPARE(m_scheduler->removed, QList<QStringList>{{text(due.id)}});
        QCOMPARE(saved(), QList<Reminder>{ahead});
    }

    void a_restart_submits_what_is_to_come_and_keeps_what_has_passed()
    {
        const Reminder passed{QUuid::createUuid(), QUuid::createUuid(), u"过"_s, u"过"_s,
            at("2026-03-02T01:00:00Z"), at("2026-03-01T01:00:00Z")};
        Reminder ahead = passed;
        ahead.id = QUuid::createUuid();
        ahead.fireAt = at("2026-03-03T01:00:00Z");
        Reminder dueNow = passed;
        dueNow.id = QUuid::createUuid();
        dueNow.fireAt = m_clock.now();
        writeFile(file(), noteEncoder::encode(QList<Reminder>{ahead, dueNow, passed}));
        const auto reminders = store();
        QCOMPARE(reminders->reminders(), (QList<Reminder>{passed, dueNow, ahead}));
        QCOMPARE(m_scheduler->added.size(), 1);
        QCOMPARE(m_scheduler->added.first().identifier, text(ahead.id));
        QCOMPARE(ReminderStore::active(), reminders.get());
    }

    void what_is_snoozed_comes_back_ten_minutes_later_at_a_full_minute()
    {
        const auto reminders = store();
        m_clock.set("2026-03-02T02:00:00Z");
        QCOMPARE(reminders->snooze({}, u"甲"_s, u"x"_s)->fireAt, at("2026-03-02T02:10:00Z"));
        m_clock.set("2026-03-02T02:00:01Z");
        QCOMPARE(reminders->snooze({}, u"乙"_s, u"x"_s)->fireAt, at("2026-03-02T02:11:00Z"));
    }
};

QTEST_GUILESS_MAIN(ReminderStoreTest)
#include "tst_reminderstore.moc"
