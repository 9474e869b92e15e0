// The built program on private desktops: Xvfb, openbox, tint2, a session bus, and a notification server in
// the test.
//
// The program's clock is shifted so that the minute of a reminder begins a few seconds after the start.
#include "desktop/RunningProgram.h"
#include "foundation/Clock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class RoadTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_road_of_one_note()
    {
        PrivateDesktop desktop({});
        Road road(desktop, QStringLiteral(PROGRAM));
        const QString draft = u"明天下午3点 交房租 #家"_s;
        NotificationRecorder server(desktop.busAddress());

        road.start();
        QVERIFY(road.waitForTrayIcon());
        QVERIFY(road.waitForPanel(true));    // the very first start
        QVERIFY(road.panel()->left() > 512); // at the icon, or at the corner where the tray is
        desktop.screen().press({Keysym::escape});
        QVERIFY(road.waitForPanel(false));

        road.pressHotKey();
        QVERIFY(road.waitForPanel(true));
        QTest::qWait(200);
        desktop.screen().type(draft);
        QTest::qWait(200);
        desktop.screen().press({Keysym::enter});
        QTRY_COMPARE(road.savedReminders().size(), 1);
        QCOMPARE(road.savedNotes().size(), 1);
        const Note note = road.savedNotes().first();
        QCOMPARE(note.text, draft);
        const Calendar shanghai("Asia/Shanghai");
        const Instant three =
            *shanghai.instant(shanghai.day(shanghai.addingDays(SystemClock().now(), 1)), {15, 0});
        QCOMPARE(road.savedReminders().first().fireAt, three);
        QCOMPARE(road.savedReminders().first().noteID, note.id);

        road.stop();
        road.start(Road::shiftTo(three, 6s));
        QVERIFY(road.waitForTrayIcon());
        QVERIFY(!road.panel()); // later starts stay in the tray
        QVERIFY(server.shown().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(server.shown().size(), 1, 15'000);
        QCOMPARE(server.shown().first().title, u"Quillet 提醒"_s);
        QCOMPARE(server.shown().first().body, u"交房租 #家"_s);
        QTRY_VERIFY(road.savedReminders().isEmpty());

        server.click(server.shown().first().id);
        QVERIFY(road.waitForPanel(true));
        QVERIFY(PrivateDesktop::waitUntil([&road] { return road.isFlashing(); }, 3s));
        QVERIFY(PrivateDesktop::waitUntil([&road] { return !road.isFlashing(); }, 3s));
        QCOMPARE(road.savedNotes(), QList<Note>{note});
    }

    void a_second_start_opens_the_panel_of_the_first()
    {
        RunningProgram program;
        Road &road = program.road;
        QVERIFY(!road.panel());
        const auto second = program.desktop.start(QStringLiteral(PROGRAM));
        QVERIFY(second->waitForFinished());
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 0);
        QVERIFY(road.waitForPanel(true));
        QCOMPARE(road.process().state(), QProcess::Running);
    }

    void reminders_missed_while_not_running_are_shown_once()
    {
        const Instant now = std::chrono::floor<std::chrono::minutes>(SystemClock().now());
        QList<Reminder> reminders;
        for (const auto fromNow : {-2h, -1h, 1h})
            reminders.append({QUuid::createUuid(), QUuid::createUuid(), u"x"_s, u"x"_s, now + fromNow, now});
        RunningProgram program(reminders);
        const QList<NotificationRecorder::Shown> &shown = program.notifications->shown();
        for (int start = 0; start < 2; ++start) {
            QTRY_COMPARE(shown.size(), 2);
            QTRY_COMPARE(program.road.savedReminders(), QList<Reminder>{reminders.last()});
            QTest::qWait(300);
            program.road.stop();
            program.start();
        }
    }

    void a_reminder_can_be_snoozed_from_its_notification()
    {
        const Instant now = std::chrono::floor<std::chrono::minutes>(SystemClock().now());
        const Note note{QUuid::createUuid(), u"8点 倒垃圾，改过"_s, {}, {}, {}, now - 1h};
        RunningProgram program(
            {{QUuid::createUuid(), note.id, u"倒垃圾"_s, u"8点 倒垃圾"_s, now - 1min, now - 1h}}, {note});
        Road &road = program.road;
        QTRY_COMPARE(program.notifications->shown().size(), 1);
        QTRY_VERIFY(road.savedReminders().isEmpty());
        program.notifications->click(program.notifications->shown().first().id, u"snooze"_s);
        QTRY_COMPARE(road.savedReminders().size(), 1);
        const Reminder later = road.savedReminders().first();
        QCOMPARE(later.noteID, note.id);
        QCOMPARE(later.fullText, note.text);
        QVERIFY(later.fireAt >= now + 10min && later.fireAt <= SystemClock().now() + 11min);
        QVERIFY(!road.panel());
    }

    void the_hot_key_works_on_any_keyboard_and_toggles_once_a_press()
    {
        RunningProgram program;
        Road &road = program.road;
        program.screen().press({Keysym::numLock});
        for (const bool opens : {true, false, true, false})
            QVERIFY(program.toggle(opens));
        program.screen().hold({Keysym::control, Keysym::alt, Keysym::space}, 1500ms); // repeats meanwhile
        QVERIFY(road.waitForPanel(true));
        QTest::qWait(300);
        QVERIFY(road.panel());
        program.screen().hold({Keysym::control, Keysym::alt, Keysym::space}, 1500ms);
        QVERIFY(road.waitForPanel(false));
        QTest::qWait(300);
        QVERIFY(!road.panel());
        program.screen().moveToAnotherKey(Keysym::space);
        QTest::qWait(500); // nobody types right after changing the keyboard map
        for (const bool opens : {true, false})
            QVERIFY(program.toggle(opens));
    }

    void nothing_typed_right_after_the_hot_key_is_lost()
    {
        RunningProgram program;
        for (int round = 0; round < 12; ++round) {
            QVERIFY(program.write(u"%1 the quick brown fox"_s.arg(QChar(u'a' + round))));
            QTest::qWait(round % 3 * 150);
        }
    }

    void the_panel_opens_at_the_icon_above_other_windows_and_on_the_current_workspace()
    {
        RunningProgram program;
        Road &road = program.road;
        XServer &screen = program.screen();
        const QPoint icon = road.trayIcon()->center();
        screen.click(icon);
        QVERIFY(road.waitForPanel(true));
        QVERIFY(qAbs(road.panel()->bottom() - icon.y()) < 60);
        QVERIFY(road.panel()->left() <= icon.x() && icon.x() <= road.panel()->right());
        QTest::qWait(500); // longer than a double click
        screen.click(icon);
        QVERIFY(road.waitForPanel(false));

        // Above a window that fills the screen.
        screen.openFullScreenWindow();
        QTRY_COMPARE(screen.screenshot(QRect(icon, QSize(1, 1))).pixel(0, 0), qRgb(0, 0, 0));
        QTRY_VERIFY(screen.isFullScreenWindowFocused());
        QVERIFY(program.toggle(true));
        const QPoint besideTheText(road.panel()->left() + 12, road.panel()->center().y());
        QTRY_VERIFY(qGray(screen.screenshot(QRect(besideTheText, QSize(1, 1))).pixel(0, 0)) > 200);
        screen.focusFullScreenWindow();
        QVERIFY(road.waitForPanel(false)); // another window has the focus

        // On another workspace.
        screen.goToDesktop(1);
        QTest::qWait(200);
        QVERIFY(program.toggle(true));
        QTest::qWait(200); // until it has the focus
        screen.goToDesktop(0);
        QTest::qWait(500);
        QVERIFY(!road.panel());
        QVERIFY(program.toggle(true));

        // Some window managers minimize what is on another workspace.
        for (const XServer::Window &window : screen.windowsOfClass(u"Quillet"_s)) {
            if (window.frame == road.panel())
                screen.iconify(window.id);
        }
        QVERIFY(road.waitForPanel(false));
        QTest::qWait(500);
        QVERIFY(program.toggle(true));
    }

    void the_click_that_has_closed_the_panel_does_not_open_it_again()
    {
        RunningProgram program;
        Road &road = program.road;
        XServer &screen = program.screen();
        screen.openFullScreenWindow();
        QTRY_VERIFY(screen.isFullScreenWindowFocused());
        screen.goToDesktop(1); // away from that window, which can still take the focus
        QTest::qWait(200);
        screen.click(road.trayIcon()->center());
        QVERIFY(road.waitForPanel(true));
        QTest::qWait(500);
        screen.goToDesktop(0);
        QTest::qWait(100);
        screen.goToDesktop(1);
        screen.click(road.trayIcon()->center());
        QTest::qWait(500);
        QVERIFY(!road.panel());
        screen.click(road.trayIcon()->center());
        QVERIFY(road.waitForPanel(true));
    }

    void a_taken_hot_key_is_one_line_in_the_log()
    {
        PrivateDesktop desktop({});
        desktop.screen().grabHotKey();
        Road road(desktop, QStringLiteral(PROGRAM));
        road.start({u"--hidden"_s});
        QVERIFY(road.waitForTrayIcon());
        QByteArray log;
        QTRY_VERIFY(
            (log += road.process().readAll()).contains("Quillet: failed to register global hotkey: 10\n"));
    }

    void without_a_tray_the_panel_opens()
    {
        PrivateDesktop desktop({.hasTray = false});
        desktop.writeFile(desktop.dataFile(u".lock"_s), {}); // not the very first start
        Road road(desktop, QStringLiteral(PROGRAM));
        road.start();
        QVERIFY(road.waitForPanel(true));
        QTest::qWait(200);
        desktop.screen().type(u"买牛奶"_s);
        QTest::qWait(200);
        desktop.screen().press({Keysym::enter});
        QTRY_COMPARE(road.savedNotes().size(), 1);
    }
};

QTEST_GUILESS_MAIN(RoadTest)
#include "tst_road.moc"