// The built program while parts of the desktop, or all of it, go away.
#include "desktop/RunningProgram.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

class LossesTest final : public QObject
{
    Q_OBJECT

    static bool endsSoon(QProcess &process)
    {
        QElapsedTimer timer;
        timer.start();
        return process.waitForFinished(5000) && timer.elapsed() < 2000;
    }

private Q_SLOTS:
    void a_signal_ends_it_at_once_with_the_files_whole()
    {
        RunningProgram program;
        for (const int signal : {SIGKILL, SIGTERM, SIGHUP, SIGINT}) {
            QVERIFY(program.write(u"note %1"_s.arg(signal)));
            ::kill(pid_t(program.road.process().processId()), signal);
            QVERIFY(endsSoon(program.road.process()));
            program.start(); // the lock was released with the process
        }
        QCOMPARE(program.road.savedNotes().size(), 4);
    }

    void a_lost_screen_ends_it_with_the_files_whole()
    {
        RunningProgram program;
        QVERIFY(program.write(u"one"_s));
        program.desktop.stopScreen();
        QVERIFY(endsSoon(program.road.process()));
        QCOMPARE(program.road.savedNotes().size(), 1);
    }

    void a_lost_session_bus_does_not_prevent_writing()
    {
        RunningProgram program;
        QVERIFY(program.write(u"one"_s));
        program.desktop.stopBus();
        QTest::qWait(300);
        QVERIFY(program.write(u"two"_s));
        QCOMPARE(program.road.process().state(), QProcess::Running);
    }

    void a_tray_that_crashes_gets_the_icon_back()
    {
        RunningProgram program;
        QVERIFY(program.write(u"one"_s));
        program.desktop.stopTray();
        QTest::qWait(300);
        QVERIFY(program.write(u"two"_s));
        program.desktop.startTray();
        QVERIFY(program.road.waitForTrayIcon());
        program.screen().click(program.road.trayIcon()->center());
        QVERIFY(program.road.waitForPanel(true));
    }

    void a_tray_that_comes_late_gets_the_icon()
    {
        PrivateDesktop desktop({.hasTray = false});
        Road road(desktop, QStringLiteral(PROGRAM));
        road.start({u"--hidden"_s});
        QTest::qWait(2500); // until it no longer waits for a tray
        QVERIFY(!road.panel());
        road.pressHotKey();
        QVERIFY(road.waitForPanel(true));
        desktop.startTray();
        QVERIFY(road.waitForTrayIcon());
    }
};

QTEST_GUILESS_MAIN(LossesTest)
#include "tst_losses.moc"
