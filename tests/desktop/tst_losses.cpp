// The built program while parts of the desktop, or all of it, go away.
#include "model/NoteCoding.h"
#include "stage/NotificationRecorder.h"
#include "stage/Road.h"
#include "support/TestFiles.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

class LossesTest final : public QObject
{
    Q_OBJECT

    const QString m_program = QStringLiteral(PROGRAM);

    /// Writes a note by hot key and keyboard, and waits until it is on the disk. The program must have been
    /// started hidden: the panel of the very first start would interfere.
    static bool write(PrivateDesktop &desktop, Road &road, const QString &text)
    {
        const qsizetype before = road.savedNotes().size();
        road.pressHotKey();
        if (!road.waitForPanel(true))
            return false;
        desktop.screen().type(text);
        desktop.screen().press({Keysym::enter});
        const bool isSaved =
            PrivateDesktop::waitUntil([&] { return road.savedNotes().size() == before + 1; });
        desktop.screen().press({Keysym::escape});
        return isSaved && road.savedNotes().first().text == text && road.waitForPanel(false);
    }
    static bool endsSoon(QProcess &process)
    {
        QElapsedTimer timer;
        timer.start();
        return process.waitForFinished(5000) && timer.elapsed() < 2000;
    }

private Q_SLOTS:
    void a_signal_ends_it_at_once_with_the_files_whole()
    {
        PrivateDesktop desktop({});
        Road road(desktop, m_program);
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            road.start({u"--hidden"_s});
            QVERIFY(road.waitForTrayIcon());
            QVERIFY(write(desktop, road, u"note %1"_s.arg(signal)));
            ::kill(pid_t(road.process().processId()), signal);
            QVERIFY(endsSoon(road.process()));
        }
        QCOMPARE(road.savedNotes().size(), 3);
    }

    void a_lost_screen_ends_it_with_the_files_whole()
    {
        PrivateDesktop desktop({});
        Road road(desktop, m_program);
        road.start({u"--hidden"_s});
        QVERIFY(road.waitForTrayIcon());
        QVERIFY(write(desktop, road, u"one"_s));
        desktop.stopScreen();
        QVERIFY(endsSoon(road.process()));
        QCOMPARE(road.savedNotes().size(), 1);
    }

    void a_lost_session_bus_does_not_prevent_writing()
    {
        PrivateDesktop desktop({});
        Road road(desktop, m_program);
        road.start({u"--hidden"_s});
        QVERIFY(road.waitForTrayIcon());
        QVERIFY(write(desktop, road, u"one"_s));
        desktop.stopBus();
        QTest::qWait(300);
        QVERIFY(write(desktop, road, u"two"_s));
        QCOMPARE(road.process().state(), QProcess::Running);
        road.stop();
    }

    void a_tray_that_crashes_gets_the_icon_back()
    {
        PrivateDesktop desktop({});
        Road road(desktop, m_program);
        road.start({u"--hidden"_s});
        QVERIFY(road.waitForTrayIcon());
        QVERIFY(write(desktop, road, u"one"_s));
        desktop.stopTray();
        QTest::qWait(300);
        QVERIFY(write(desktop, road, u"two"_s));
        desktop.startTray();
        QVERIFY(road.waitForTrayIcon());
        desktop.screen().click(road.trayIcon()->center());
        QVERIFY(road.waitForPanel(true));
        road.stop();
    }

    void a_tray_that_comes_late_gets_the_icon()
    {
        PrivateDesktop desktop({.hasTray = false});
        Road road(desktop, m_program);
        road.start({u"--hidden"_s});
        QTest::qWait(2500); // until it no longer waits for a tray
        QVERIFY(!road.panel());
        road.pressHotKey();
        QVERIFY(road.waitForPanel(true));
        desktop.startTray();
        QVERIFY(road.waitForTrayIcon());
        road.stop();
    }

    void a_notification_server_that_crashes_is_waited_for()
    {
        PrivateDesktop desktop({});
        auto server = std::make_unique<NotificationRecorder>(desktop.busAddress());
        Road road(desktop, m_program);
        road.start({u"--hidden"_s});
        QVERIFY(road.waitForTrayIcon());
        server.reset();
        QVERIFY(write(desktop, road, u"one"_s));
        server = std::make_unique<NotificationRecorder>(desktop.busAddress());
        QVERIFY(write(desktop, road, u"two"_s));
        QCOMPARE(road.process().state(), QProcess::Running);
        road.stop();
    }
};

QTEST_GUILESS_MAIN(LossesTest)
#include "tst_losses.moc"
