// Measures a program of Quillet's kind on a private desktop against an empty one, in turns, and prints
// medians.
#include "foundation/Clock.h"
#include "model/NoteCoding.h"
#include "stage/Road.h"
#include "ui/looks/Design.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace std::chrono_literals;

namespace {
struct Sample {
    double startToTray = 0;  ///< ms
    double keyToPixels = 0;  ///< ms, the median of several presses
    double privateBytes = 0; ///< MB of private anonymous memory after the panel was open
};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double privateAnonymousMegabytes(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    const QStringList lines = QString::fromLatin1(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(QStringLiteral("Anonymous:")))
            return line.simplified().section(u' ', 1, 1).toDouble() / 1024;
    }
    return 0;
}

/// Looks at one pixel of the screen without a pause.
bool spinUntil(XServer &screen, QPoint where, bool isPanel)
{
    QElapsedTimer timer;
    timer.start();
    while ((screen.screenshot(QRect(where, QSize(1, 1))).pixel(0, 0) == Design::ground.light) != isPanel) {
        if (timer.elapsed() > 3000)
            return false;
    }
    return true;
}

Sample measure(PrivateDesktop &desktop, const QString &program)
{
    Sample sample;
    QElapsedTimer timer;
    Road road(desktop, program);
    XServer &screen = desktop.screen();
    const std::uint32_t tray = screen.windowsOfClass(QStringLiteral("tint2")).first().id;
    const int iconsBefore = screen.childCount(tray);
    timer.start();
    road.start();
    while (screen.childCount(tray) == iconsBefore) {
        if (timer.elapsed() > 3000)
            qFatal("no icon of %s in the tray", qPrintable(program));
        QThread::usleep(200);
    }
    sample.startToTray = double(timer.nsecsElapsed()) / 1e6;
    QThread::msleep(700); // whatever it does after the start

    QList<double> presses;
    QPoint where;
    for (int i = 0; i < 11; ++i) {
        timer.start();
        road.pressHotKey();
        if (where.isNull()) {
            if (!road.waitForPanel(true))
                qFatal("no panel of %s", qPrintable(program));
            where = road.panel()->topLeft() + QPoint(170, 300);
        } else {
            if (!spinUntil(desktop.screen(), where, true))
                qFatal("no pixels of %s", qPrintable(program));
            presses.append(double(timer.nsecsElapsed()) / 1e6);
        }
        QThread::msleep(150);
        if (i == 0)
            sample.privateBytes = privateAnonymousMegabytes(road.process().processId());
        road.pressHotKey();
        if (!spinUntil(desktop.screen(), where, false))
            qFatal("%s does not close", qPrintable(program));
        QThread::msleep(150);
    }
    sample.keyToPixels = median(presses);
    road.stop();
    return sample;
}

void writeNotes(const PrivateDesktop &desktop, int count)
{
    const Instant now = SystemClock().now();
    QList<Note> notes;
    for (int i = 0; i < count; ++i) {
        notes.append({QUuid::createUuid(), QStringLiteral("第%1条 买牛奶和面包，顺便取快递 #家 #购物").arg(i),
            {}, {}, {}, now - std::chrono::hours(i)});
    }
    QDir().mkpath(QFileInfo(desktop.dataFile(QString())).path());
    QFile file(desktop.dataFile(QStringLiteral("notes.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(noteEncoder::encode(notes)) < 0)
        qFatal("cannot write the notes");
    QFile lock(desktop.dataFile(QStringLiteral(".lock"))); // not the very first start, which opens the panel
    if (!lock.open(QIODevice::WriteOnly))
        qFatal("cannot write the lock");
}

void report(const char *what, const char *unit, const QList<Sample> &peer, const QList<Sample> &quillet,
    double Sample::*field)
{
    const auto medianOf = [field](const QList<Sample> &samples) {
        QList<double> values;
        for (const Sample &sample : samples)
            values.append(sample.*field);
        return median(values);
    };
    const double base = medianOf(peer);
    const double own = medianOf(quillet);
    std::printf("%-44s empty program %7.1f %s   Quillet %7.1f %s   ratio %.2f, difference %+.1f\n", what,
        base, unit, own, unit, own / base, own - base);
}
/// From a key event to the first changed pixel of the list, in ms.
double keyToList(XServer &screen, QRect list, const std::function<void()> &press)
{
    const QImage before = screen.screenshot(list);
    QElapsedTimer timer;
    timer.start();
    press();
    while (screen.screenshot(list) == before) {
        if (timer.elapsed() > 3000)
            qFatal("the list does not change");
    }
    const double taken = double(timer.nsecsElapsed()) / 1e6;
    QThread::msleep(120);
    return taken;
}

void measurePanel(const QString &program, int noteCount, int rounds)
{
    PrivateDesktop desktop({.hasTray = true, .hasDunst = false});
    writeNotes(desktop, noteCount);
    XServer &screen = desktop.screen();
    Road road(desktop, program);
    road.start();
    if (!road.waitForTrayIcon())
        qFatal("no icon in the tray");
    QThread::msleep(2000);
    road.pressHotKey();
    if (!road.waitForPanel(true))
        qFatal("no panel");
    QThread::msleep(500);
    const QRect list(road.panel()->topLeft() + QPoint(12, 44), QSize(240, 120));

    QList<double> keys;
    QList<double> modes;
    QList<double> pages;
    screen.type(QStringLiteral("123"));
    QThread::msleep(300);
    screen.press({Keysym::escape});
    QThread::msleep(300);
    for (int round = 0; round < rounds; ++round) {
        for (const auto digit : {Keysym::digit1, Keysym::digit2, Keysym::digit3})
            keys.append(keyToList(screen, list, [&] { screen.press({digit}); }));
        keys.append(keyToList(screen, list, [&] { screen.press({Keysym::escape}); }));
        modes.append(keyToList(screen, list, [&] { screen.press({Keysym::control, Keysym::digit2}); }));
        modes.append(keyToList(screen, list, [&] { screen.press({Keysym::control, Keysym::digit1}); }));
        (void)keyToList(screen, list, [&] { screen.press({Keysym::down}); });
        for (int page = 0; page < 3; ++page)
            pages.append(keyToList(screen, list, [&] { screen.press({Keysym::pageDown}); }));
        (void)keyToList(screen, list, [&] { screen.press({Keysym::home}); });
        screen.press({Keysym::escape});
        QThread::msleep(200);
    }
    road.stop();
    const auto tell = [noteCount](const char *what, QList<double> values) {
        std::sort(values.begin(), values.end());
        std::printf("%7d notes: %-34s median %6.1f ms   99th percentile %6.1f ms   (%d)\n", noteCount, what,
            values[values.size() / 2], values[values.size() * 99 / 100], int(values.size()));
    };
    tell("key typed to list repainted", keys);
    tell("mode switched", modes);
    tell("scrolled one page", pages);
}
} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: quillet-bench-desktop QUILLET PEER [ROUNDS [NOTES]]\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    const QString quillet = QDir().absoluteFilePath(QString::fromLocal8Bit(argv[1]));
    const QString peer = QDir().absoluteFilePath(QString::fromLocal8Bit(argv[2]));
    const int rounds = argc > 3 ? std::max(1, atoi(argv[3])) : 9;

    PrivateDesktop desktop({.hasTray = true, .hasDunst = false});
    const int notes = argc > 4 ? atoi(argv[4]) : 1000;
    writeNotes(desktop, notes);
    QList<Sample> ofPeer;
    QList<Sample> ofQuillet;
    for (int round = -1; round < rounds; ++round) {
        const Sample one = measure(desktop, peer);
        const Sample two = measure(desktop, quillet);
        if (round >= 0) { // the first warms the disk
            ofPeer.append(one);
            ofQuillet.append(two);
        }
    }
    std::printf("medians of %d rounds in turns, %d notes\n", rounds, notes);
    report("start to tray icon docked", "ms", ofPeer, ofQuillet, &Sample::startToTray);
    report("hot key pressed to pixels on the X server", "ms", ofPeer, ofQuillet, &Sample::keyToPixels);
    report("private anonymous memory, panel was open", "MB", ofPeer, ofQuillet, &Sample::privateBytes);
    for (const int noteCount : {10'000, 100'000})
        measurePanel(quillet, noteCount, rounds);
    return 0;
}
