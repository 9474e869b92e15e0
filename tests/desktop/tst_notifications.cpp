// The notification center on a private bus, with a server that the test starts and stops.
#include "desktop/DesktopNotificationCenter.h"
#include "stage/NotificationRecorder.h"
#include "stage/PrivateSession.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class NotificationsTest final : public QObject
{
    Q_OBJECT

    PrivateSession m_session;
    SystemClock m_clock;
    std::unique_ptr<NotificationRecorder> m_server;
    std::unique_ptr<DesktopNotificationCenter> m_center;

    void startServer() { m_server = std::make_unique<NotificationRecorder>(m_session.busAddress()); }

    NotificationRequest request(
        const QString &body, std::chrono::milliseconds fromNow, const QString &identifier = {}) const
    {
        return {identifier.isEmpty() ? body : identifier, u"Quillet 提醒"_s, body, u"note of "_s + body,
            m_clock.now() + fromNow};
    }
    QStringList bodies() const
    {
        QStringList bodies;
        for (const NotificationRecorder::Shown &shown : m_server->shown())
            bodies.append(shown.body);
        return bodies;
    }
    AuthorizationStatus status()
    {
        AuthorizationStatus result = AuthorizationStatus::NotDetermined;
        m_center->notificationAuthorizationStatus([&result](AuthorizationStatus status) { result = status; });
        return result;
    }

private Q_SLOTS:
    void initTestCase() { qputenv("DBUS_SESSION_BUS_ADDRESS", m_session.busAddress().toLatin1()); }
    void init() { m_center = std::make_unique<DesktopNotificationCenter>(m_clock); }
    void cleanup()
    {
        m_center.reset();
        m_server.reset();
    }

    void a_request_is_shown_when_its_minute_begins()
    {
        startServer();
        QTRY_COMPARE(status(), AuthorizationStatus::Authorized);
        QSignalSpy willPresent(m_center.get(), &DesktopNotificationCenter::willPresent);
        m_center->add(request(u"later"_s, 1h));
        m_center->add(request(u"a < b & c"_s, 500ms));
        m_center->add(request(u"replaced"_s, 400ms, u"one"_s));
        m_center->add(request(u"replacing"_s, 600ms, u"one"_s));
        m_center->add(request(u"withdrawn"_s, 550ms));
        m_center->removePendingNotificationRequests({u"withdrawn"_s, u"unknown"_s});
        QTest::qWait(300);
        QVERIFY(bodies().isEmpty());
        QTRY_COMPARE(bodies(), (QStringList{u"a &lt; b &amp; c"_s, u"replacing"_s}));
        QCOMPARE(willPresent.count(), 2);

        const NotificationRecorder::Shown &shown = m_server->shown().first();
        QCOMPARE(shown.title, u"Quillet 提醒"_s);
        QCOMPARE(
            shown.actions, (QStringList{u"default"_s, {}, u"open"_s, u"打开"_s, u"snooze"_s, u"稍后提醒"_s}));
        QCOMPARE(shown.hints.value(u"desktop-entry"_s).toString(), u"io.github.quillet.Quillet"_s);
        QCOMPARE(shown.hints.value(u"sound-name"_s).toString(), u"message-new-instant"_s);
        QCOMPARE(shown.timeout, 0);

        QSignalSpy received(m_center.get(), &DesktopNotificationCenter::didReceive);
        m_server->click(4711);
        m_server->click(m_server->shown().last().id);
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received.first().first().toString(), u"note of replacing"_s);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "token 2"); // where Qt looks for it
        QSignalSpy snoozed(m_center.get(), &DesktopNotificationCenter::didSnooze);
        m_server->click(m_server->shown().first().id, u"snooze"_s);
        QTRY_COMPARE(snoozed.count(), 1);
        QCOMPARE(snoozed.first().first().value<NotificationRequest>().body, u"a < b & c"_s);
        QCOMPARE(received.count(), 1);
    }

    void identical_texts_all_get_through()
    {
        startServer();
        m_server->refuseIdentical();
        QTRY_COMPARE(status(), AuthorizationStatus::Authorized);
        for (const QString &identifier : {u"one"_s, u"two"_s, u"three"_s})
            m_center->add(request(u"same"_s, -1ms, identifier));
        m_center->add(request(u"other"_s, -1ms));
        QTRY_COMPARE(bodies(), (QStringList{u"same"_s, u"other"_s, u"same"_s, u"same"_s}));
        QCOMPARE(m_server->refused(), 0);
    }

    void what_is_due_without_a_server_is_shown_when_one_comes()
    {
        QTRY_COMPARE(status(), AuthorizationStatus::Denied);
        QList<bool> answers;
        const auto requestAuthorization = [&] {
            m_center->requestAuthorization(
                0, [&](bool granted, const QString &) { answers.append(granted); });
        };
        requestAuthorization();
        QCOMPARE(answers, QList<bool>());
        QTRY_COMPARE(answers, QList<bool>{false});
        m_center->add(request(u"waits"_s, -1h));
        m_center->add(request(u"cancelled"_s, -1h));
        QTest::qWait(100);
        m_center->removePendingNotificationRequests({u"cancelled"_s});
        QSignalSpy changed(m_center.get(), &DesktopNotificationCenter::authorizationChanged);
        startServer();
        QTRY_COMPARE(bodies(), QStringList{u"waits"_s});
        QVERIFY(changed.count() > 0);
        QCOMPARE(status(), AuthorizationStatus::Authorized);
        requestAuthorization();
        QCOMPARE(answers, (QList<bool>{false, true}));

        m_server.reset();
        QTRY_COMPARE(status(), AuthorizationStatus::Denied);
        m_center->add(request(u"in between"_s, -1ms));
        startServer();
        QTRY_COMPARE(bodies(), QStringList{u"in between"_s}); // and not what was shown before
    }

    void more_than_five_at_once_are_five_and_one_that_gathers_the_rest()
    {
        for (int i = 1; i <= 8; ++i)
            m_center->add(request(QString::number(i), -std::chrono::minutes(60 - i)));
        QTest::qWait(50);
        startServer();
        QTRY_COMPARE(bodies(), (QStringList{u"1\n2\n3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s}));
        QSignalSpy snoozed(m_center.get(), &DesktopNotificationCenter::didSnooze);
        m_server->click(m_server->shown().first().id, u"snooze"_s);
        QTRY_COMPARE(snoozed.count(), 3);
    }

    void withdrawing_does_not_lose_what_is_due_but_not_yet_shown()
    {
        startServer();
        QTRY_COMPARE(status(), AuthorizationStatus::Authorized);
        connect(m_center.get(), &DesktopNotificationCenter::willPresent, this, [this] {
            m_center->removePendingNotificationRequests({u"one"_s, u"two"_s});
        });
        m_center->add(request(u"one"_s, 100ms));
        m_center->add(request(u"two"_s, 100ms));
        QTest::qSleep(200); // both have come due, and the timer event is not handled yet
        m_center->removePendingNotificationRequests({u"one"_s, u"two"_s});
        QTRY_COMPARE(bodies(), (QStringList{u"one"_s, u"two"_s}));
    }
};

QTEST_GUILESS_MAIN(NotificationsTest)
#include "tst_notifications.moc"
